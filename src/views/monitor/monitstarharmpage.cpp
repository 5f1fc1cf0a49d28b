#include "views/monitor/monitstarharmpage.h"

#include "views/monitor/keybutton.h"
#include "widgets/charts/monitorharmhisto.h"
#include "widgets/controls/softkeybuttons.h"

#include <algorithm>

namespace {

constexpr int kTicksPerStep = 8;
constexpr int kFirstOrder = 52, kOrderPitch = 22; // pixels: where the histogram's orders stand, by their number

} // namespace

MonitStarHarmPage::MonitStarHarmPage(const LiveData &data, QWidget *parent)
    : MonitorBarsPage(data, parent), m_histogram(new MonitorHarmHisto), m_phaseKey(new MonitorHarmBtn1)
{
    static const KeyRow<MonitStarHarmPage> keys[] = {
        { Qt::Key_F1, nullptr, &MonitStarHarmPage::changeHarmPhase },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("MonitStarHarmPage", "Events"), &MonitStarHarmPage::goMonitorHarmEven },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("MonitStarHarmPage", "Back"), &MonitStarHarmPage::goMonitorStart },
        { Qt::Key_Left, nullptr, &MonitStarHarmPage::moveCursorL, -1, { kTicksPerStep, {} } },
        { Qt::Key_Right, nullptr, &MonitStarHarmPage::moveCursorR, 1, { kTicksPerStep, {} } },
    };
    KeyButton::place(this, 1, m_phaseKey);
    addCaption(QStringLiteral("bar_thd"), 30, 40, 12)->setText(QStringLiteral("THD"));
    for (int order = 2; order <= kMonitorHarmonics; ++order)
        addCaption(QStringLiteral("bar_%1").arg(order), kFirstOrder + (order - 1) * kOrderPitch, kOrderPitch, 12)
            ->setText(QString::number(order));
    setUpBars(m_histogram, 0, width());
    setKeys(keys);
}

void MonitStarHarmPage::init_parameter()
{
    m_phaseKey->offer(phases());
    setPhase(0);
    setCursor(0);
    MonitorBarsPage::init_parameter();
}

void MonitStarHarmPage::retranslateUi()
{
    MonitorBarsPage::retranslateUi();
    m_histogram->update(); // its legends
}

/// Phases of the wiring.
int MonitStarHarmPage::phases()
{
    return std::max(1, int(ChannelLabels::channels().taskPhases));
}

void MonitStarHarmPage::changeHarmPhase()
{
    setPhase((m_phase + 1) % phases());
}

void MonitStarHarmPage::setPhase(int phase)
{
    m_phase = phase;
    m_phaseKey->setBtnFlag(phase);
    updateDisplay(nullptr);
}

void MonitStarHarmPage::showBars(const MonitorView &view)
{
    m_histogram->setCursorIndex(cursor());
    m_histogram->showHarmHistogram(MonitorValues::harmonics(view, m_phase).data());
}

MonitorReadout MonitStarHarmPage::readout(const MonitorView &view) const
{
    return MonitorReadout::ofHarmonic(view, m_phase, cursor());
}
