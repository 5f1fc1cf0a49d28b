#pragma once

#include <QtGlobal>

#include <limits>
#include <vector>

/// A trend however long it is, as the highest and the lowest value of each of some hundred columns of time.
class TrendBand
{
public:
    static constexpr int kColumns = 560;

    struct Column
    {
        float lowest = std::numeric_limits<float>::infinity();
        float highest = -std::numeric_limits<float>::infinity();
        bool isEmpty() const { return !(lowest <= highest); }
    };

    TrendBand() = default;
    /// From \a start to \a end, ms since 1970.
    TrendBand(qint64 start, qint64 end) : m_start(start), m_length(double(end - start)), m_columns(kColumns) { }

    void take(qint64 time, double value)
    {
        if (m_columns.empty() || !(value == value))
            return;
        const double place = m_length > 0 ? double(time - m_start) / m_length * kColumns : 0;
        Column &column = m_columns[std::size_t(qBound(0.0, place, double(kColumns - 1)))];
        column.lowest = qMin(column.lowest, float(value));
        column.highest = qMax(column.highest, float(value));
        m_any = true;
    }
    bool isEmpty() const { return !m_any; }
    const std::vector<Column> &columns() const { return m_columns; }

private:
    qint64 m_start = 0;
    double m_length = 0;
    std::vector<Column> m_columns;
    bool m_any = false;
};
