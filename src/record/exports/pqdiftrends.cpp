#include "record/exports/pqdiftrends.h"

#include "record/exports/pqdifobservation.h"
#include "record/exports/pqdifquantity.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr qint64 kMicroseconds = 1000; // of a ms

bool isTrend(const QByteArray &table)
{
    return table != "events" && table != "transients" && table != "system_log";
}

/// The order of a channel's series, by what they are of their interval.
struct SeriesRow
{
    Statistic statistic;
    PqdifId value;
};
constexpr SeriesRow kSeries[] = {
    { Statistic::Minimum, PqdifValue::kSeriesMin },
    { Statistic::Maximum, PqdifValue::kSeriesMax },
    { Statistic::Mean, PqdifValue::kSeriesAvg },
    { Statistic::None, PqdifValue::kSeriesVal },
};

double nominalOf(const PqdifQuantity &quantity, const RecordColumn &column, const RecordFacts &facts)
{
    if (quantity.characteristic == PqdifValue::kQcFrequency)
        return facts.nominalFrequency;
    const bool isVoltage = quantity.characteristic == PqdifValue::kQcRms && quantity.measured == PqdifMeasured::Voltage;
    return isVoltage && column.channel != "N" ? facts.nominalVolt : 0;
}

/// What tells the columns of one channel from those of others.
struct LineKey
{
    QByteArray quantity, channel, unit;

    bool operator==(const LineKey &other) const
    {
        return quantity == other.quantity && channel == other.channel && unit == other.unit;
    }
};
uint qHash(const LineKey &key, uint seed = 0)
{
    return ::qHash(key.quantity, seed) ^ ::qHash(key.channel, seed + 1) ^ ::qHash(key.unit, seed + 2);
}

/// Columns of one channel, by statistic.
struct LineColumns
{
    int columns[4] = { -1, -1, -1, -1 }; // of the table
    int cells[4] = { -1, -1, -1, -1 }; // of a row's numbers
};

QVector<LineColumns> linesOf(const RecordTable &table, int *numbers)
{
    QVector<LineColumns> lines;
    QHash<LineKey, int> places;
    *numbers = 0;
    for (int i = 0; i < table.columns.size(); ++i) {
        const RecordColumn &column = table.columns[i];
        if (column.type == CellType::Text)
            continue;
        const LineKey key { column.quantity, column.channel, column.unit };
        auto place = places.find(key);
        if (place == places.end()) {
            place = places.insert(key, lines.size());
            lines.append(LineColumns());
        }
        lines[place.value()].columns[int(column.statistic)] = i;
        lines[place.value()].cells[int(column.statistic)] = (*numbers)++;
    }
    return lines;
}

} // namespace

void PqdifTrends::table(int number, const RecordTable &table, const RecordFacts &facts)
{
    m_start = facts.start;
    if (!isTrend(table.name))
        return;
    Trend trend;
    trend.name = table.name;
    for (const LineColumns &columns : linesOf(table, &trend.columns)) {
        Line line;
        PqdifChannel channel;
        channel.series << pqdifTimeSeries();
        for (const SeriesRow &row : kSeries) {
            const int place = columns.columns[int(row.statistic)];
            if (place < 0)
                continue;
            const RecordColumn &column = table.columns[place];
            const PqdifQuantity quantity = pqdifQuantity(column);
            channel.name
                = quantity.stem + (column.channel.isEmpty() ? "" : " ") + column.channel + " (" + table.name + ')';
            channel.phase = quantity.phase;
            channel.measured = quantity.measured;
            channel.series.append({ row.value, quantity.unit, quantity.characteristic, PqdifStorage::Values,
                                    nominalOf(quantity, column, facts) });
            line.group = quantity.group;
            line.isDouble = line.isDouble || column.type != CellType::Single;
            line.cells << columns.cells[int(row.statistic)];
        }
        line.definition = m_channels->numberOf(channel);
        trend.lines << line;
    }
    m_trends.insert(number, trend);
}

bool PqdifTrends::row(const RecordRow &row)
{
    const auto trend = m_trends.find(row.table);
    if (trend == m_trends.end() || trend->columns == 0)
        return true;
    trend->times.push_back(row.time);
    trend->cells.insert(trend->cells.end(), row.numbers, row.numbers + trend->columns);
    return trend->cells.size() + std::size_t(trend->columns) <= kMostCells || flush(&*trend);
}

bool PqdifTrends::flush()
{
    bool good = true;
    for (Trend &trend : m_trends)
        good = good && flush(&trend);
    return good;
}

bool PqdifTrends::flush(Trend *trend)
{
    if (trend->times.empty())
        return true;
    // A clock that was set back leaves rows in another order than readers expect.
    std::vector<int> order(trend->times.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [trend](int a, int b) { return trend->times[std::size_t(a)] < trend->times[std::size_t(b)]; });
    const auto timeAt = [&](std::size_t place) { return trend->times[std::size_t(order[place])]; };
    for (std::size_t i = 1; i < order.size(); ++i) {
        const qint64 distance = timeAt(i) - timeAt(i - 1);
        if (distance > 0 && (trend->interval == 0 || distance < trend->interval))
            trend->interval = distance;
    }
    // Rows are stamped with the end of their interval, an observation with its beginning. The first interval of all may
    // be the only one; it began with the recording.
    const bool isOnly = trend->interval == 0 && m_start > 0 && m_start < timeAt(0);
    const qint64 start = isOnly ? m_start : qMax<qint64>(0, timeAt(0) - trend->interval);
    QVector<double> times;
    times.reserve(int(order.size()));
    for (std::size_t i = 0; i < order.size(); ++i)
        times << double(timeAt(i) - start) / 1e3;
    PqdifObservation observation("Trend " + trend->name, start * kMicroseconds,
                                 timeAt(order.size() - 1) * kMicroseconds, PqdifTrigger::Periodic);
    for (const Line &line : qAsConst(trend->lines))
        addLine(*trend, line, order, &observation, times);
    trend->times.clear();
    trend->cells.clear();
    return observation.isEmpty() || m_keep(observation.body(), observation.start());
}

/// The rows in which all values of the line are there: its series are of one length.
void PqdifTrends::addLine(const Trend &trend, const Line &line, const std::vector<int> &order,
                          PqdifObservation *observation, const QVector<double> &times) const
{
    std::vector<int> rows; // places in the order of times
    for (std::size_t i = 0; i < order.size(); ++i) {
        const double *cells = &trend.cells[std::size_t(order[i]) * std::size_t(trend.columns)];
        const bool isThere = std::all_of(line.cells.begin(), line.cells.end(),
                                         [cells](int cell) { return std::isfinite(cells[cell]); });
        if (isThere)
            rows.push_back(int(i));
    }
    if (rows.empty())
        return;
    observation->beginChannel(line.definition, line.group);
    if (rows.size() == order.size()) {
        observation->addTimes(times);
    } else {
        QVector<double> own;
        for (int row : rows)
            own << times[row];
        observation->addTimes(own);
    }
    const auto valueAt = [&](int row, int cell) {
        return trend.cells[std::size_t(order[std::size_t(row)]) * std::size_t(trend.columns) + std::size_t(cell)];
    };
    for (int cell : line.cells) {
        QVector<float> singles;
        QVector<double> doubles;
        for (int row : rows) {
            if (line.isDouble)
                doubles << valueAt(row, cell);
            else
                singles << float(valueAt(row, cell));
        }
        if (line.isDouble)
            observation->addValues(doubles);
        else
            observation->addValues(singles);
    }
}
