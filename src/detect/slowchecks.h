#pragma once

#include "model/pqaeventitem.h"

/// Takes the means of ten seconds, ten minutes and two hours, each of which may begin or end an event. Who judges a
/// stored file has nobody to tell and passes one that does nothing.
class SlowChecks
{
public:
    SlowChecks() = default;
    virtual ~SlowChecks() = default;
    SlowChecks(const SlowChecks &) = delete;
    SlowChecks &operator=(const SlowChecks &) = delete;

    virtual void checkEventFreq(const _value_with_time &frequency) = 0; // Hz
    virtual void checkEventVolt(int phase, const _value_with_time &voltage) = 0; // V; a phase beyond 0 to 2 is ignored
    virtual void checkEventUnbal(const _value_with_time &ratio) = 0; // percent, negative sequence
    /// index 0 THD, k order k + 1; percent of the fundamental. Indices beyond 0 to 24 and phases beyond 0 to 2 are
    /// ignored.
    virtual void checkEventHarm(int phase, int index, const _value_with_time &ratio) = 0;
    virtual void checkEventFlicker(int phase, const _value_with_time &plt) = 0;
};
