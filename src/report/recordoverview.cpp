#include "report/recordoverview.h"

#include "report/clockmeans.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t kSteps = 63; // that tell the usual one
constexpr int kLogLines = 20;
constexpr int kMostTables = 1000;

/// Whether the rows of a table can be of a time before the recording: a recorder takes over what was found until then.
bool holdsHappenings(const QByteArray &table)
{
    return table == "events" || table == "transients";
}

/// Number of the cell of column \a at among those of its kind.
int cellOf(const RecordTable &table, int at)
{
    const bool text = table.columns.at(at).type == CellType::Text;
    return int(std::count_if(table.columns.begin(), table.columns.begin() + at,
                             [text](const RecordColumn &column) { return (column.type == CellType::Text) == text; }));
}

} // namespace

bool isPlausibleTime(qint64 time)
{
    constexpr qint64 kLatest = 253402300799999; // the end of the year 9999, ms since 1970
    return time > 0 && time <= kLatest;
}

bool OverviewSink::begin(const RecordFacts &facts)
{
    m_overview.facts = facts;
    return true;
}

bool OverviewSink::table(int number, const RecordTable &table)
{
    if (number < 0 || number >= kMostTables)
        return true;
    if (std::size_t(number) >= m_tables.size())
        m_tables.resize(std::size_t(number) + 1);
    Table &entry = m_tables[std::size_t(number)];
    entry.name = table.name;
    for (int i = 0; i < table.columns.size(); ++i) {
        const RecordColumn &column = table.columns.at(i);
        if (column.quantity == "U_rms" && column.statistic == Statistic::Mean && column.channel != "N")
            entry.voltages.push_back(cellOf(table, i));
        if (table.name == "system_log" && column.type == CellType::Text)
            entry.logText = cellOf(table, i);
    }
    return true;
}

bool OverviewSink::row(const RecordRow &row)
{
    if (row.table < 0 || std::size_t(row.table) >= m_tables.size() || !isPlausibleTime(row.time))
        return true;
    Table &table = m_tables[std::size_t(row.table)];
    if (table.logText >= 0 && row.texts && m_overview.log.size() < kLogLines)
        m_overview.log << QString::fromUtf8(row.texts[table.logText]);
    TableLook &look = table.look;
    const qint64 before = look.rows > 0 ? look.last : 0;
    if (look.rows > 0 && row.time > look.last && table.steps.size() < kSteps)
        table.steps.push_back(row.time - look.last);
    look.first = look.rows > 0 ? std::min(look.first, row.time) : row.time;
    look.last = std::max(look.last, row.time);
    ++look.rows;
    if (!table.voltages.empty())
        lookAtVoltages(table, row, before);
    return true;
}

void OverviewSink::lookAtVoltages(const Table &table, const RecordRow &row, qint64 before)
{
    const double nominal = m_overview.facts.nominalVolt;
    bool any = false, live = false;
    for (const int cell : table.voltages) {
        const double value = row.numbers[cell];
        any = any || std::isfinite(value);
        live = live || (std::isfinite(value) && value * 100 >= m_interruption * nominal && value > 0);
    }
    m_overview.hasVoltage = m_overview.hasVoltage || any;
    m_overview.hasLiveVoltage = m_overview.hasLiveVoltage || live;
    if (any && !live)
        m_overview.interruptions.add(std::max(before, row.time - ClockMeans::kTenMinutes), row.time);
}

bool OverviewSink::event(const RecordedEvent &event)
{
    if (m_overview.events.size() >= RecordOverview::kMostEvents) {
        ++m_overview.eventsBeyond;
        return true;
    }
    RecordedEvent kept;
    kept.number = event.number;
    static_cast<__event_item &>(kept.item) = event.item;
    m_overview.events.append(kept);
    return true;
}

bool OverviewSink::end(const RecordFacts &facts)
{
    RecordOverview &o = m_overview;
    o.facts = facts;
    qint64 first = 0, firstValue = 0, last = 0;
    double firstInterval = 0;
    for (Table &table : m_tables) {
        if (table.look.rows == 0)
            continue;
        if (!table.steps.empty()) {
            const auto middle = table.steps.begin() + std::ptrdiff_t(table.steps.size() / 2);
            std::nth_element(table.steps.begin(), middle, table.steps.end());
            table.look.interval = double(*middle);
        }
        o.tables.insert(table.name, table.look);
        first = first == 0 ? table.look.first : std::min(first, table.look.first);
        if (!holdsHappenings(table.name) && (firstValue == 0 || table.look.first < firstValue)) {
            firstValue = table.look.first;
            firstInterval = table.look.interval;
        }
        last = std::max(last, table.look.last);
    }
    // The start is told by the instrument's clock, values by the processor's: the two may be apart. A value of days
    // before has a damaged time.
    constexpr qint64 kApart = qint64(24) * 3600 * 1000;
    o.start = isPlausibleTime(facts.start) ? facts.start : first;
    if (firstValue > 0 && firstValue < o.start && o.start - firstValue <= kApart)
        o.start = firstValue;
    if (firstValue > 0)
        o.countsFrom = o.start == firstValue ? o.start - qint64(firstInterval) : o.start;
    o.end = std::max({ isPlausibleTime(facts.end) ? facts.end : last, o.start, last });
    for (const RecordedEvent &event : qAsConst(o.events)) {
        const __event_item &item = event.item;
        const qint64 until = item.finished ? item.endTime : o.end;
        if (item.type == EventInterruption)
            o.interruptions.add(item.startTime, until);
        else if (item.type == EventDip || item.type == EventSwell)
            o.disturbances.add(item.startTime, until);
    }
    return true;
}
