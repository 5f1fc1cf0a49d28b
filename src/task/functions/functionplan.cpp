#include "task/functions/functionplan.h"

#include "settings/loggerinfo.h"
#include "settings/monitorinfo.h"
#include "settings/waveinfo.h"

#include <limits>

namespace {

/// Kept: seconds of a monitor's run for each of its hours.
constexpr qint64 kMonitorHour = 3601;
/// The line of the last interval is due at the very end of the last hour.
constexpr qint64 kLoggerHour = 3601;

/// Length of a run of \a hours, each of so many seconds; -1, the longest, for hours that no run can have.
int lengthOf(int hours, qint64 hour)
{
    const qint64 seconds = hour * hours;
    return seconds > 0 && seconds <= std::numeric_limits<int>::max() ? int(seconds) : -1;
}

} // namespace

std::optional<FunctionPlan> functionPlan(AbstractTask::UniFunction function)
{
    switch (function) {
    case AbstractTask::UniBasic:
        return FunctionPlan { 0, -1, true };
    case AbstractTask::UniWave:
        return FunctionPlan { WaveInfo::m_begain_time, -1, false, *WaveInfo::m_wave_file };
    case AbstractTask::UniMonitor:
        return FunctionPlan { MonitorInfo::m_begain_time, lengthOf(MonitorInfo::m_duration, kMonitorHour), true,
                              *MonitorInfo::m_monitor_file };
    case AbstractTask::UniLogger:
        return FunctionPlan { LoggerInfo::m_begain_time, lengthOf(LoggerInfo::m_duration, kLoggerHour), false,
                              *LoggerInfo::m_logger_file };
    case AbstractTask::UniPowerInverter:
        return FunctionPlan();
    }
    return std::nullopt;
}
