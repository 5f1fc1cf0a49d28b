#include "views/monitor/monitormain.h"

#include "settings/config_data.h"
#include "settings/localtime.h"
#include "settings/monitorinfo.h"
#include "widgets/dialogs/virtualkeyboard.h"

#include <algorithm>

namespace {

constexpr int kHoursOfDay = 24;

void setDuration(int hours)
{
    MonitorInfo::m_duration = std::clamp(hours, MonitorMain::kShortest, MonitorMain::kLongest);
}

} // namespace

MonitorMain::MonitorMain(QWidget *parent)
    : EditorPage(UI_MONITOR, { QT_TRANSLATE_NOOP("MonitorMain", "SETUP"), 42, 36, 240, 36, 20 }, KeyRepeat::Pace(),
                 parent)
{
    static const KeyRow<MonitorMain> keys[] = {
        { Qt::Key_F5, QT_TRANSLATE_NOOP("MonitorMain", "Start"), &MonitorMain::start },
    };
    std::vector<Row> rows = m_start.rows();
    rows.push_back({ "duration_days",
                     QT_TRANSLATE_NOOP("MonitorMain", "Duration"),
                     [] { return QString::number(MonitorInfo::m_duration / kHoursOfDay) + tr(" d"); },
                     [this](int step) { stepDays(step); },
                     {},
                     {} });
    rows.push_back({ "duration_hours",
                     nullptr, // one duration in two fields
                     [] { return QString::number(MonitorInfo::m_duration % kHoursOfDay) + tr(" h"); },
                     [this](int step) { stepHours(step); },
                     {},
                     {} });
    rows.push_back({ "limits",
                     QT_TRANSLATE_NOOP("MonitorMain", "Limits"),
                     [this] { return fitted("limits", m_limits); },
                     [this](int step) { stepLimits(step); },
                     {},
                     {} });
    rows.push_back({ "file_name",
                     QT_TRANSLATE_NOOP("MonitorMain", "File name:"),
                     [this] { return fitted("file_name", *MonitorInfo::m_monitor_file); },
                     {},
                     [this] { editName(); },
                     {} });
    setRows(std::move(rows));
    setKeys(keys);
}

void MonitorMain::reset()
{
    stopRepeat();
    m_start.reset(LocalTime::currentDateTime());
    m_limits = m_limits_g.activeLimitsName();
    *MonitorInfo::m_monitor_file = MonitorInfo::getDefName(QStringLiteral("Monitor"), QString());
    showRows();
    selectFirst();
}

void MonitorMain::start()
{
    stopRepeat();
    // Without a name every default is taken: one has to be typed first.
    if (MonitorInfo::m_monitor_file->isEmpty())
        editName();
    if (MonitorInfo::m_monitor_file->isEmpty())
        return;
    initBegainTime();
    initLimits();
    emit goMonitorStart();
}

void MonitorMain::initBegainTime()
{
    MonitorInfo::m_begain_time = m_start.begin(LocalTime::localTimeZone());
}

void MonitorMain::initLimits()
{
    if (m_limits == m_limits_g.activeLimitsName())
        return; // no file is written anew
    m_limits_g.changeActiveLimits(m_limits);
    emit limitsChanged();
}

void MonitorMain::stepDays(int step)
{
    // Whole days: the hours stay where they are.
    const int hours = MonitorInfo::m_duration % kHoursOfDay;
    const int days = std::clamp(MonitorInfo::m_duration / kHoursOfDay + step, 0, kLongest / kHoursOfDay);
    setDuration(days * kHoursOfDay + hours);
}

void MonitorMain::stepHours(int step)
{
    const int days = MonitorInfo::m_duration / kHoursOfDay;
    const int hours = std::clamp(MonitorInfo::m_duration % kHoursOfDay + step, 0, kHoursOfDay - 1);
    setDuration(days * kHoursOfDay + hours);
}

void MonitorMain::stepLimits(int step)
{
    const QStringList names = m_limits_g.allLimitsList();
    const int place = int(names.indexOf(m_limits)) + (step < 0 ? -1 : 1); // few sets: no larger steps
    m_limits = names.value(std::clamp(place, 0, int(names.size()) - 1), m_limits);
}

void MonitorMain::editName()
{
    const QString name = VirtualKeyBoard::getFileName(tr("File name:"), *MonitorInfo::m_monitor_file);
    if (!name.isEmpty())
        *MonitorInfo::m_monitor_file = name;
    showRows();
}
