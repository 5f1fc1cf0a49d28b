#include "task/functions/functionplan.h"

#include "settings/monitorinfo.h"
#include "settings/waveinfo.h"

#include <limits>

namespace {

/// Kept: seconds of a monitor's run for each of its hours.
constexpr qint64 kMonitorHour = 3601;

/// Length of a monitor's run; -1, the longest, for hours that no run can have.
int monitorSeconds(int hours)
{
    const qint64 seconds = kMonitorHour * hours;
    return seconds > 0 && seconds <= std::numeric_limits<int>::max() ? int(seconds) : -1;
}

} // namespace

std::optional<FunctionPlan> functionPlan(AbstractTask::UniFunction function)
{
    switch (function) {
    case AbstractTask::UniBasic:
        return FunctionPlan { 0, -1, true };
    case AbstractTask::UniWave:
        return FunctionPlan { WaveInfo::m_begain_time, -1, false };
    case AbstractTask::UniMonitor:
        return FunctionPlan { MonitorInfo::m_begain_time, monitorSeconds(MonitorInfo::m_duration), true };
    case AbstractTask::UniLogger: // it ends by the user's key
    case AbstractTask::UniPowerInverter:
        return FunctionPlan();
    }
    return std::nullopt;
}
