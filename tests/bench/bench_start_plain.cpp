#include <QApplication>
#include <QLabel>
#include <QStackedWidget>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

// What the start of the instrument is measured beside: the toolkit alone, up to its first painted window.
// Usage: bench_start_plain [pages labels]    without numbers an empty widget

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 480;

QWidget *plainPages(int pages, int labels)
{
    auto *stack = new QStackedWidget;
    for (int p = 0; p < pages; ++p) {
        auto *page = new QWidget;
        // The labels spread evenly over the pages.
        const int count = labels / pages + (p < labels % pages ? 1 : 0);
        for (int i = 0; i < count; ++i) {
            auto *label = new QLabel(QString::number(i), page);
            label->setGeometry(i % 8 * 80, i / 8 % 16 * 30, 76, 26);
        }
        stack->addWidget(page);
    }
    return stack;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const int pages = argc == 3 ? std::atoi(argv[1]) : 0;
    QWidget *window = pages > 0 ? plainPages(pages, std::atoi(argv[2])) : new QWidget;
    window->resize(kWidth, kHeight);
    window->show();
    QCoreApplication::processEvents();
    std::puts("shown");
    std::fflush(stdout);
    _exit(0);
}
