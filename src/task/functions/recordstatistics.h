#pragma once

#include "task/functions/recordangles.h"

#include <memory>

/// Mean, maximum and minimum of the aggregations of an interval: three records laid out as that of one aggregation.
/// Their times mean nothing. Any float is welcome.
class RecordStatistics
{
public:
    RecordStatistics();

    /// All three records become zero.
    void clear();
    /// \a energy stands in the place of the record's own.
    void take(const __datagram_aggregation &record, const EnergyRow (&energy)[kChannels]);
    int count() const { return m_count; } // taken since clear()
    /// Turns the sums into means; nothing is taken behind it until clear(). Nothing happens while the count is 0.
    void finish();

    /// Valid behind finish(). Angles are averaged by their vector sums. Energies are counters and have no mean: those
    /// of the last aggregation stand here. Phases of single lines are averaged plainly, as no file has them.
    const __datagram_aggregation &mean() const { return m_records->sum; }
    /// Energies: 0.
    const __datagram_aggregation &maximum() const { return m_records->maximum; }
    const __datagram_aggregation &minimum() const { return m_records->minimum; }
    const RecordAngles &angles() const { return m_angles; }

private:
    struct Records
    {
        __datagram_aggregation sum, part, maximum, minimum;
    };

    void foldPart();

    std::unique_ptr<Records> m_records;
    RecordAngles m_angles;
    int m_count = 0;
    int m_partCount = 0;
};
