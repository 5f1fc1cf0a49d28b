#pragma once

#include <QtGlobal>

/// Finds where a clock that is read now and then was set on or back, beside a clock that goes evenly.
class ClockStep
{
public:
    static constexpr qint64 kTolerance = 2000; // ms: the clocks of the instrument are not corrected for less

    /// \a time in ms since 1970, by a clock that may differ from the one that take() is given; \a elapsed in ms.
    void begin(qint64 time, qint64 elapsed);
    /// ms by which the clock was set on (above 0) or back since the last call; 0: it was not. Values that waited, so
    /// that less time passed on the clock than beside it, are no step: only a clock that goes back was set back. The
    /// first value is measured against begin() both ways.
    qint64 take(qint64 time, qint64 elapsed);

private:
    qint64 m_time = 0;
    qint64 m_elapsed = 0;
    bool m_first = true;
};
