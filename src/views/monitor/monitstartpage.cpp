#include "views/monitor/monitstartpage.h"

#include "widgets/charts/monitorhistogram.h"

#include <QLabel>

namespace {

constexpr int kTicksPerStep = 8;
constexpr int kChartLeft = 20, kChartWidth = 600; // pixels
constexpr int kFirstCursor = MonitorBarHarmonics; // where the histogram's own stands

constexpr QRect kStatePlace(230, 2, 180, 26);
/// By MonitStartPage::State; to be translated.
const char *const kStates[]
    = { QT_TRANSLATE_NOOP("MonitStartPage", "Waiting"), QT_TRANSLATE_NOOP("MonitStartPage", "Running"),
        QT_TRANSLATE_NOOP("MonitStartPage", "Finished") };

/// Words below the bars.
const struct
{
    const char *name;
    const char *caption; // to be translated
    int centre; // pixels of the histogram
    int width;
} kCaptions[] = {
    { "bar_vrms", QT_TRANSLATE_NOOP("MonitStartPage", "Vrms"), 60, 110 },
    { "bar_harm", QT_TRANSLATE_NOOP("MonitStartPage", "Harm."), 180, 110 },
    { "bar_flicker", QT_TRANSLATE_NOOP("MonitStartPage", "Flicker"), 307, 106 },
    { "bar_dirs", QT_TRANSLATE_NOOP("MonitStartPage", "DIRS"), 389, 38 },
    { "bar_unbal", QT_TRANSLATE_NOOP("MonitStartPage", "Unb."), 425, 34 },
    { "bar_freq", QT_TRANSLATE_NOOP("MonitStartPage", "Hz"), 455, 26 },
    { "bar_signals", QT_TRANSLATE_NOOP("MonitStartPage", "Sig."), 487, 34 },
};

} // namespace

MonitStartPage::MonitStartPage(const LiveData &data, QWidget *parent)
    : MonitorBarsPage(data, parent), m_histogram(new MonitorHistogram), m_stateLabel(new QLabel(this))
{
    static const KeyRow<MonitStartPage> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("MonitStartPage", "Vrms"), &MonitStartPage::goMonitorVrm },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("MonitStartPage", "Harm."), &MonitStartPage::goMonitorHarm },
        { Qt::Key_F3, QT_TRANSLATE_NOOP("MonitStartPage", "Flicker"), &MonitStartPage::goMonitorFlicker },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("MonitStartPage", "DIRS"), &MonitStartPage::goMonitorDirs },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("MonitStartPage", "Unbal., Hz"), &MonitStartPage::goMonitorUnbal },
        { Qt::Key_Left, nullptr, &MonitStartPage::moveCursorL, -1, { kTicksPerStep, {} } },
        { Qt::Key_Right, nullptr, &MonitStartPage::moveCursorR, 1, { kTicksPerStep, {} } },
    };
    for (const auto &caption : kCaptions)
        addCaption(QString::fromLatin1(caption.name), kChartLeft + caption.centre, caption.width, 13);
    m_stateLabel->setObjectName(QStringLiteral("state"));
    m_stateLabel->setGeometry(kStatePlace);
    m_stateLabel->setAlignment(Qt::AlignCenter);
    setUpBars(m_histogram, kChartLeft, kChartWidth);
    setCursor(kFirstCursor);
    setKeys(keys);
}

void MonitStartPage::refreshEventList(const EventSelection &events)
{
    m_events = MonitorValues::count(events);
    updateDisplay(nullptr);
}

void MonitStartPage::stopWatchChanged(const QString &text)
{
    MonitorBarsPage::stopWatchChanged(text);
    // Before the start the clock counts down.
    if (m_state == Waiting && !text.startsWith(QLatin1Char('-')))
        setState(Running);
}

void MonitStartPage::runEnded()
{
    setState(Finished);
}

void MonitStartPage::setState(State state)
{
    m_state = state;
    setText(m_stateLabel, tr(kStates[state]));
}

void MonitStartPage::init_parameter()
{
    setState(Waiting);
    m_events = {};
    setCursor(kFirstCursor);
    MonitorBarsPage::init_parameter();
}

void MonitStartPage::retranslateUi()
{
    MonitorBarsPage::retranslateUi();
    showCaptions();
    setState(m_state);
    m_histogram->update(); // its legends
}

void MonitStartPage::showCaptions()
{
    for (const auto &caption : kCaptions)
        setText(findChild<QLabel *>(QString::fromLatin1(caption.name)), tr(caption.caption));
}

int MonitStartPage::barCount() const
{
    return MonitorHistogram::kBars;
}

bool MonitStartPage::isShown(int bar) const
{
    return MonitorValues::histogramFlags(ChannelLabels::channels()) >> bar & 1;
}

void MonitStartPage::showBars(const MonitorView &view)
{
    m_histogram->setFlags(MonitorValues::histogramFlags(view.channels));
    m_histogram->setCursorPosition(cursor());
    m_histogram->showHistogram(MonitorValues::histogram(view).data());
}

MonitorReadout MonitStartPage::readout(const MonitorView &view) const
{
    return MonitorReadout::ofBar(view, cursor());
}
