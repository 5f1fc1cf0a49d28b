#pragma once

#include "detect/powerevents.h"

#include <initializer_list>

/// Levels that floats hold exactly: nominal 200 V, dip 180 (+4), swell 220 (-4), interruption 10 (+2), inrush 100 A
/// (-8).
inline EventSettings exactSettings()
{
    EventSettings s = {};
    s.nominalVolt = 200;
    s.nominalFrequency = 50;
    s.swellLevel = 220;
    s.swellHysteresis = 4;
    s.dipLevel = 180;
    s.dipHysteresis = 4;
    s.interruptionLevel = 10;
    s.interruptionHysteresis = 2;
    s.inrushLevel = 100;
    s.inrushHysteresis = 8;
    s.frequencyUpper = 51;
    s.frequencyLower = 49;
    s.voltageUpper = 210;
    s.voltageLower = 190;
    s.unbalanceLimit = 2;
    s.flickerLimit = 1;
    for (float &limit : s.harmonicLimit)
        limit = 5;
    s.rvc = { 50, 1, 1.0f, 0.2f, 5.0f, 1.0f };
    return s;
}

/// Feeds a detector half cycle by half cycle, 10 ms apart.
struct EventStream
{
    explicit EventStream(PowerEvents &detector, qint64 start = 1'000'000) : events(detector), time(start) { }

    /// One half cycle: voltages L1 to L3 and currents I1 to I3; N stays 0.
    void feed(float u1, float u2, float u3, float i1 = 0, float i2 = 0, float i3 = 0)
    {
        const float values[8] = { u1, u2, u3, 0, i1, i2, i3, 0 };
        QList<_value_with_time> list;
        for (const float value : values)
            list.append({ time, value });
        events.checkPowerEvents(list);
        time += 10;
    }
    void feed(int halfCycles, float u)
    {
        for (int i = 0; i < halfCycles; ++i)
            feed(u, u, u);
    }

    PowerEvents &events;
    qint64 time; // ms, of the next half cycle
};

/// Brings the counter to the given number with unbalance events.
inline void countTo(PowerEvents &events, int number)
{
    while (events.eventCounter() < number) {
        events.checkEventUnbal({ 0, 3 });
        events.checkEventUnbal({ 1, 1 });
    }
}
