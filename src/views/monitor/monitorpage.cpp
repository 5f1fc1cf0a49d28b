#include "views/monitor/monitorpage.h"

#include "settings/monitorinfo.h"
#include "views/monitor/monitoreventpage.h"
#include "views/monitor/monitormain.h"
#include "views/monitor/monitortrend.h"
#include "views/monitor/monitortrendpage.h"
#include "views/monitor/monitstarharmpage.h"
#include "views/monitor/monitstartpage.h"

namespace {

constexpr MonitorPage::Row kEventRows[]
    = { MonitorPage::Vrm, MonitorPage::HarmEvents, MonitorPage::Flicker, MonitorPage::Dirs, MonitorPage::Unbalance };
constexpr int kSavedTrends[] = { MonitorTrendVoltage, MonitorTrendThd, MonitorTrendPlt };

void append(QByteArray &record, const QList<float> &list)
{
    const auto count = qint32(list.size());
    record.append(reinterpret_cast<const char *>(&count), sizeof count);
    for (const float value : list)
        record.append(reinterpret_cast<const char *>(&value), sizeof value);
}

} // namespace

MonitorPage::MonitorPage(const LiveData &data, QWidget *parent)
    : ViewContainer(
        UI_MONITOR, { 20, "Monitor" }, data,
        {
            { make<MonitorMain>,
              { way(&MonitorMain::goMonitorStart, Start, &MonitorPage::start),
                pass(&MonitorMain::limitsChanged, &MonitorPage::limitsChanged) } },
            { make<MonitStartPage>,
              { way(&MonitStartPage::goMonitorVrm, Vrm), way(&MonitStartPage::goMonitorHarm, Harm),
                way(&MonitStartPage::goMonitorFlicker, Flicker), way(&MonitStartPage::goMonitorDirs, Dirs),
                way(&MonitStartPage::goMonitorUnbal, Unbalance) } },
            { make<MonitStarVrmPage>, { way(&MonitorEventPage::goTrend, VrmTrend), way(&EventsPage::goBack, Start) } },
            { make<MonitStarVrmTrendPage>, { way(&MonitorTrendPage::goBack, Vrm) } },
            { make<MonitStarHarmPage>,
              { way(&MonitStarHarmPage::goMonitorHarmEven, HarmEvents),
                way(&MonitStarHarmPage::goMonitorStart, Start) } },
            { make<MonitHarmEvenPage>, { way(&MonitorEventPage::goTrend, HarmTrend), way(&EventsPage::goBack, Harm) } },
            { make<MonitHarmEvenTrePage>, { way(&MonitorTrendPage::goBack, HarmEvents) } },
            { make<MonitFlickPage>,
              { way(&MonitorEventPage::goTrend, FlickerTrend), way(&EventsPage::goBack, Start) } },
            { make<MonitFlickTrePage>, { way(&MonitorTrendPage::goBack, Flicker) } },
            { make<MonitDirsPage>, { way(&MonitorEventPage::goTrend, DirsTrend), way(&EventsPage::goBack, Start) } },
            { make<MonitDirsTrePage>, { way(&MonitorTrendPage::goBack, Dirs) } },
            { make<MonitUnbalPage>,
              { way(&MonitorEventPage::goTrend, UnbalanceTrend), way(&EventsPage::goBack, Start) } },
            { make<MonitUnbalTrePage>, { way(&MonitorTrendPage::goBack, Unbalance) } },
        },
        parent)
{
    const auto show = [this](const EventSelection &events) {
        if (auto *overview = made<MonitStartPage>(Start))
            overview->refreshEventList(events);
        for (const Row row : kEventRows) {
            if (auto *list = made<EventsPage>(row))
                list->refreshEventList(&events);
        }
    };
    m_follower = std::make_unique<EventFollower>(this, data.events(), kAllEvents, show);
}

void MonitorPage::enter()
{
    static_cast<MonitorMain *>(page(Main))->reset();
    showPage(Main);
}

void MonitorPage::pageMade(int)
{
    if (m_follower)
        m_follower->catchUp();
}

/// What the last run left is forgotten, and the trends open at the zoom that has room for the whole run.
void MonitorPage::start()
{
    MonitorInfo::m_zoom_index = MonitorTrend::zoomFor(MonitorInfo::m_duration);
    emit startMonitorTask();
    init_parameter();
}

void MonitorPage::runEnded()
{
    if (auto *overview = made<MonitStartPage>(Start))
        overview->runEnded();
}

QByteArray MonitorPage::pqaData() const
{
    const DisplayRecords &records = shown();
    QByteArray record(reinterpret_cast<const char *>(&records.monitor), sizeof records.monitor);
    for (const int first : kSavedTrends) {
        for (int phase = 0; phase < kMonitorPhases; ++phase)
            append(record, records.monitorTrend.row[first + phase]);
    }
    append(record, records.monitorTrend.row[MonitorTrendUnbalance]);
    append(record, records.monitorTrend.row[MonitorTrendFrequency]);
    return record;
}
