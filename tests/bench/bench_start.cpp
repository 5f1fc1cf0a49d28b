#include "shell/quveraglobal.h"

#include "shell/applicationfont.h"
#include "shell/basedialog.h"
#include "pages/viewcontainer.h"
#include "settings/config_data.h"
#include "settings/langtranslation.h"
#include "settings/userconfig.h"
#include "shell/menupage.h"
#include "shell/navigator.h"
#include "platform/deskroot.h"

#include <QApplication>
#include <QLabel>
#include <QStackedWidget>
#include <QTextCodec>
#include <QTimer>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// From the start of a process to the splash and to the painted menu, in processor time (the start waits for the
// measurement processor on purpose), beside the toolkit alone: an empty widget, and as many plain pages and labels.
// The bench starts itself as the instrument: bench_start --splash | --menu | --count

void usePictures() // the macro wants to stand outside a namespace
{
    Q_INIT_RESOURCE(skin);
}

namespace {

constexpr int kRounds = 7;

/// Leaves without destroying anything, as the peer does: only the start is measured.
[[noreturn]] void leave()
{
    std::fflush(stdout);
    _exit(0);
}

/// Makes what a user makes who opens every page and sub page.
void makeAllPages()
{
    for (int type = 0; type < kUiTypes; ++type) {
        auto *container = qobject_cast<ViewContainer *>(m_basedialog->navigator().page(_quvera_ui_type(type)));
        for (int row = 0; container && row < container->pageCount(); ++row)
            container->page(row);
    }
}

/// Leaves at the first paint of the menu; asked for, it first prints how many pages and labels there are.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(bool counts) : m_counts(counts) { }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched == m_basedialog->menu())
            QTimer::singleShot(0, this, [this] {
                if (m_counts)
                    countPages();
                leave();
            });
        return false;
    }

private:
    /// All pages that there are, entered before or not: what the plain program is to have as well.
    static void countPages()
    {
        makeAllPages();
        int pages = 0;
        int labels = 0;
        for (const QWidget *widget : QApplication::allWidgets()) {
            labels += qobject_cast<const QLabel *>(widget) ? 1 : 0;
            pages += qobject_cast<const QStackedWidget *>(widget->parentWidget()) ? 1 : 0;
        }
        std::printf("%d %d\n", pages, labels);
    }

    const bool m_counts;
};

int runInstrument(int argc, char **argv, const std::string &mode)
{
    usePictures();
    QString error;
    if (!DeskRoot::prepare(&error)) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    QApplication app(argc, argv);
    setlocale(LC_NUMERIC, "C");
    showSplash();
    if (mode == "--splash")
        leave();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    loadApplicationFont();
    languageTranslator.initLangTranslation(m_userConfig_g.getLang());
    PaintWatch watch(mode == "--count");
    app.installEventFilter(&watch);
    appInit();
    appConnection();
    langConnection();
    return app.exec();
}

struct Start
{
    double milliseconds = -1; // of processor time, user and system
    std::string said; // the last line of its output
};

/// Starts a program and waits for its end.
Start measure(const std::vector<std::string> &command)
{
    Start start;
    int ends[2];
    if (pipe(ends) != 0)
        return start;
    const pid_t child = fork();
    if (child == 0) {
        dup2(ends[1], STDOUT_FILENO);
        close(ends[0]);
        close(ends[1]);
        std::vector<char *> arguments;
        for (const std::string &argument : command)
            arguments.push_back(const_cast<char *>(argument.c_str()));
        arguments.push_back(nullptr);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    close(ends[1]);
    std::string output;
    char buffer[4096];
    for (ssize_t got; (got = read(ends[0], buffer, sizeof buffer)) > 0;)
        output.append(buffer, size_t(got));
    close(ends[0]);
    int status = 0;
    rusage usage = {};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        return start;
    const auto inMs = [](const timeval &time) { return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3; };
    start.milliseconds = inMs(usage.ru_utime) + inMs(usage.ru_stime);
    while (!output.empty() && output.back() == '\n')
        output.pop_back();
    start.said = output.substr(output.rfind('\n') + 1);
    return start;
}

/// One ratio: the figure and its limit in turn, the smallest of each counting.
bool compare(const char *what, const std::vector<std::string> &figure, const std::vector<std::string> &limit,
             double goal)
{
    double ours = 1e9;
    double theirs = 1e9;
    for (int round = 0; round < kRounds; ++round) {
        const double one = measure(figure).milliseconds;
        const double other = measure(limit).milliseconds;
        if (one < 0 || other < 0) {
            std::fprintf(stderr, "%s: a process failed\n", what);
            return false;
        }
        ours = std::min(ours, one);
        theirs = std::min(theirs, other);
    }
    const double ratio = ours / theirs;
    std::printf("ratio %s: %.2f (%.0f ms beside %.0f ms; goal: at most %.2f)%s\n", what, ratio, ours, theirs, goal,
                ratio <= goal ? "" : " MISSED");
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "--splash" || mode == "--menu" || mode == "--count")
        return runInstrument(argc, argv, mode);

    const std::string self = argv[0];
    const std::string plain = self + "_plain";
    const Start menu = measure({ self, "--count" });
    int pages = 0;
    int labels = 0;
    if (std::sscanf(menu.said.c_str(), "%d %d", &pages, &labels) != 2 || pages < 1) {
        std::fprintf(stderr, "the menu was not reached: %s\n", menu.said.c_str());
        return 1;
    }
    std::printf("the instrument has %d pages and %d labels\n", pages, labels);
    const bool splashMeasured
        = compare("start to the splash, beside an empty widget", { self, "--splash" }, { plain }, 1.3);
    const bool menuMeasured
        = compare("start to the painted menu, beside as many plain pages and labels", { self, "--menu" },
                  { plain, std::to_string(pages), std::to_string(labels) }, 2.0);
    return splashMeasured && menuMeasured ? 0 : 1;
}
