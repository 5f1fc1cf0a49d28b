#pragma once

#include "detect/flickerprocessor.h"
#include "detect/powerevents.h"
#include "model/livedata.h"
#include "settings/limitbuiltins.h"
#include "task/functions/monitorjudge.h"

#include <cstring>
#include <memory>

// A judge with what stands around it, and records as a supply of known values gives them.

namespace MonitorCase {

/// 230 V, 50 Hz, the European set, three phases.
inline MonitorSetup european()
{
    return { LimitBuiltins::en50160(), 230, 50, 3 };
}

/// Records, detector and judge of a set-up.
struct Judged
{
    explicit Judged(const MonitorSetup &setup = european())
        : events(
            eventSettings(setup.limits, { float(setup.nominalVolt), float(setup.nominalFrequency), 5.0, 100, 2, 1, 1 }),
            1),
          judge(setup, data, trend, events)
    { }

    __monitor_data data;
    __monitor_trend trend;
    PowerEvents events;
    MonitorJudge judge;
};

/// An aggregation of \a volts on all phases at \a hertz, without anything else.
inline std::unique_ptr<__datagram_aggregation> supply(float volts, float hertz, qint64 time = 0)
{
    auto record = std::make_unique<__datagram_aggregation>();
    std::memset(static_cast<void *>(record.get()), 0, sizeof(*record));
    record->time = time;
    record->frequency = hertz;
    for (ChannelRms &channel : record->channel) {
        channel.voltage = volts;
        channel.voltageFundamental = volts;
    }
    return record;
}

} // namespace MonitorCase
