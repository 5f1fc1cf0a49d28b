#pragma once

#include <QtGlobal>

#include <algorithm>

/// The weeks in which a recording is judged, or the days. They begin with it. What is left behind the last whole one
/// counts as one of its own from a seventh on; less belongs to the one before.
struct Weeks
{
    static constexpr qint64 kDay = qint64(24) * 3600 * 1000; // ms
    static constexpr qint64 kWeek = 7 * kDay;
    static constexpr qint64 kLongest = qint64(100) * 366 * kDay; // what a damaged file says beyond is not believed

    qint64 start = 0; // ms since 1970
    qint64 length = 0; // of the recording, ms
    qint64 period = kWeek;
    int count = 1;

    Weeks() = default;
    Weeks(qint64 from, qint64 to, qint64 each = kWeek)
        : start(from), length(to > from && from >= 0 && to - from < kLongest ? to - from : 0), period(each),
          count(int(std::max<qint64>(1, (length + period / 7 * 6) / period)))
    { }

    /// The week of a value whose interval ends at \a time.
    int indexOf(qint64 time) const
    {
        if (time <= start)
            return 0;
        return int(std::min<qint64>((time - 1 - start) / period, count - 1));
    }
    qint64 startOf(int week) const { return start + week * period; }
    /// Length of the last week, ms, when it is a shorter one than the others; else 0.
    qint64 rest() const
    {
        const qint64 last = length - (count - 1) * period;
        return count > 1 && last < period / 100 * 99 ? last : 0;
    }
    /// The standards judge whole weeks; a recording that has none is an indication. A percent of it may be missing.
    bool isWhole() const { return length >= kWeek / 100 * 99; }
};
