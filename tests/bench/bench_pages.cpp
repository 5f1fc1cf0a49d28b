#include "settings/config_data.h"
#include "bench/benchapplication.h"
#include "bench/ratios.h"
#include "unit/measureddata.h"
#include "pages/viewcontainer.h"
#include "views/harmonics/harm.h"
#include "views/power/powen.h"
#include "views/scope/scopepage.h"
#include "views/unbalance/unbalan.h"
#include "views/vif/vifpage.h"

#include <QLabel>
#include <QPainter>

#include <memory>

// One refresh of a page with its repaint, beside the same number of plain labels that take new texts.

using namespace MeasuredData;

namespace {

constexpr int kWidth = 640;
constexpr int kHeight = 448;

void paint(QWidget &widget)
{
    static QImage screen(kWidth, kHeight, QImage::Format_RGB32);
    widget.render(&screen);
    benchmark::DoNotOptimize(screen.bits());
}

/// The labels of a page again, in a plain widget: as many, as large, in the same fonts and places.
class PlainLabels : public QWidget
{
public:
    explicit PlainLabels(const QWidget &page)
    {
        resize(kWidth, kHeight);
        setPalette(page.palette());
        for (const QLabel *shown : page.findChildren<QLabel *>()) {
            if (shown->isHidden())
                continue;
            auto *label = new QLabel(shown->text(), this);
            label->setFont(shown->font());
            label->setAlignment(shown->alignment());
            label->setGeometry(QRect(shown->mapTo(&page, QPoint()), shown->size()));
            // Captions stand still on the page too.
            bool isNumber = false;
            shown->text().toDouble(&isNumber);
            if (isNumber)
                m_labels.append(label);
        }
    }
    void refresh(float value)
    {
        for (QLabel *label : qAsConst(m_labels))
            label->setText(QString::number(double(value), 'f', 2));
    }

private:
    QList<QLabel *> m_labels;
};

void feed(float value)
{
    for (int c = 0; c < kChannels; ++c) {
        live().vif.voltage[c] = live().vif.voltagePeak[c] = live().vif.current[c] = value;
        live().power.row[c] = { value, value, value, 0.9f, 0.9f, 0.1f };
    }
}

/// All sub pages, as they are once each was looked at: all are refreshed.
void openAll(FunctionPage &page)
{
    page.enter();
    auto *container = qobject_cast<ViewContainer *>(&page);
    for (int row = 0; container && row < container->pageCount(); ++row)
        container->page(row);
}

template <typename Page> void refreshPage(benchmark::State &state)
{
    static auto *page = [] {
        auto *made = new Page(liveData());
        openAll(*made);
        made->init_parameter();
        return made;
    }();
    float value = 100;
    for (auto _ : state) {
        feed(value += 0.01f);
        page->updateDisplay(nullptr);
        paint(*page);
    }
}

void vif(benchmark::State &state)
{
    refreshPage<VifPage>(state);
}
void power(benchmark::State &state)
{
    refreshPage<powen>(state);
}
void harmonics(benchmark::State &state)
{
    refreshPage<harm>(state);
}
void unbalance(benchmark::State &state)
{
    refreshPage<unbalan>(state);
}
void scope(benchmark::State &state)
{
    refreshPage<ScopePage>(state);
}

void labels(benchmark::State &state)
{
    static auto *plain = [] {
        static VifPage page(liveData());
        openAll(page);
        page.init_parameter();
        feed(100);
        page.updateDisplay(nullptr);
        paint(page); // lays the page out
        return new PlainLabels(page);
    }();
    float value = 100;
    for (auto _ : state) {
        plain->refresh(value += 0.01f);
        paint(*plain);
    }
}

BENCHMARK(vif)->Unit(benchmark::kMicrosecond);
BENCHMARK(power)->Unit(benchmark::kMicrosecond);
BENCHMARK(harmonics)->Unit(benchmark::kMicrosecond);
BENCHMARK(unbalance)->Unit(benchmark::kMicrosecond);
BENCHMARK(scope)->Unit(benchmark::kMicrosecond);
BENCHMARK(labels)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    BenchApplication app(argc, argv);
    renewLive();
    return Ratios::run(
        argc, argv, Ratios::ProcessorTime,
        {
            { "Volts/Amps/Hertz refresh and repaint, beside as many plain labels", "vif", "labels", 1.3 },
            { "power refresh and repaint, beside plain labels", "power", "labels", 0 },
            { "harmonics refresh and repaint, beside plain labels", "harmonics", "labels", 0 },
            { "unbalance refresh and repaint, beside plain labels", "unbalance", "labels", 0 },
            { "scope refresh and repaint, beside plain labels", "scope", "labels", 0 },
        });
}
