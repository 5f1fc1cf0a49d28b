#include "report/recordjudge.h"

#include "model/channelset.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr int kMoments = 12; // with a picture
constexpr int kListed = 200; // events in a table
constexpr int kMostSamples = 65536; // of one picture, all inputs together
constexpr int kMostCurve = 4096; // half cycles of one curve
constexpr int kMostTables = 1000;

/// Where the values of a quantity stand.
struct Source
{
    const char *table;
    const char *column; // its quantity; of harmonics the stem: "Uh"
    Quantity quantity;
    double scale; // to the unit in which it is judged
    bool ofFundamental; // in V: to be taken in percent of the fundamental
    qint64 made; // ms: values of this length are made of shorter intervals; 0: they are taken as they are
    bool ofNominal = false; // in V: to be taken in percent of the nominal voltage
};

constexpr qint64 kThreeSeconds = 3000, kTenMinutes = ClockMeans::kTenMinutes; // ms

constexpr Source kSources[] = {
    { "monitor_frequency", "f", Quantity::Frequency, 1, false, 0 },
    { "monitor_voltage", "U_rms", Quantity::Voltage, 1, false, 0 },
    { "monitor_unbalance", "U_negative_ratio", Quantity::Unbalance, 1, false, 0 },
    { "monitor_unbalance", "U_zero_ratio", Quantity::ZeroUnbalance, 1, false, 0 },
    { "monitor_harmonics", "U_distortion", Quantity::Thd, 1, false, 0 },
    { "monitor_harmonics", "Uh", Quantity::Harmonic, 1, false, 0 },
    { "monitor_flicker_pst", "Pst", Quantity::Pst, 1, false, 0 },
    { "monitor_flicker_plt", "Plt", Quantity::Plt, 1, false, 0 },
    { "frequency_10s", "f", Quantity::Frequency, 1, false, 0 },
    { "rms", "U_rms", Quantity::Voltage, 1, false, kTenMinutes },
    { "unbalance", "U_negative_ratio", Quantity::Unbalance, 1, false, kTenMinutes },
    { "unbalance", "U_zero_ratio", Quantity::ZeroUnbalance, 1, false, kTenMinutes },
    { "harmonics_u", "U_distortion", Quantity::Thd, 100, true, kTenMinutes },
    { "harmonics_u", "Uh", Quantity::Harmonic, 100, true, kTenMinutes },
    { "flicker_pst", "Pst", Quantity::Pst, 1, false, 0 },
    { "flicker_plt", "Plt", Quantity::Plt, 1, false, 0 },
    // Their recorded ratio leaves the voltage transformer out.
    { "signalling", "U_signal1", Quantity::Signal1, 100, false, kThreeSeconds, true },
    { "signalling", "U_signal2", Quantity::Signal2, 100, false, kThreeSeconds, true },
};

bool isUnbalance(Quantity quantity)
{
    return quantity == Quantity::Unbalance || quantity == Quantity::ZeroUnbalance;
}

/// Whether a wiring has the quantity: the sequences of fewer than three phases are stored, but mean nothing.
bool hasQuantity(int joinMode, Quantity quantity)
{
    const ChannelSet *wiring = channelSet(joinMode);
    return !isUnbalance(quantity) || !wiring || wiring->taskPhases == kMonitorPhases;
}

constexpr Quantity kAll[]
    = { Quantity::Frequency, Quantity::Voltage, Quantity::Unbalance, Quantity::ZeroUnbalance, Quantity::Thd,
        Quantity::Harmonic,  Quantity::Pst,     Quantity::Plt,       Quantity::Signal1,       Quantity::Signal2 };

bool isOf(const Source &source, const RecordTable &table, const RecordColumn &column)
{
    if (table.name != source.table || column.channel == "N" || column.type == CellType::Text)
        return false;
    if (column.statistic != Statistic::None && column.statistic != Statistic::Mean)
        return false;
    if (source.quantity == Quantity::Harmonic)
        return column.order >= 2 && column.quantity.startsWith(source.column);
    return column.quantity == source.column;
}

/// Phase that a channel belongs to: "L1" and "L12" to the first; -1 without a channel.
int phaseOf(const QByteArray &channel)
{
    const int digit = channel.size() > 1 ? channel.at(1) - '1' : -1;
    return digit >= 0 && digit < kMonitorPhases ? digit : -1;
}

bool hasTrend(Quantity quantity)
{
    return quantity != Quantity::Harmonic && !isSignal(quantity) && quantity != Quantity::ZeroUnbalance
        && quantity != Quantity::Pst;
}

MonitorSetup setupOf(const RecordFacts &facts, const monitor_limit &limits)
{
    MonitorSetup setup;
    setup.limits = limits;
    setup.nominalVolt = std::isfinite(facts.nominalVolt) ? facts.nominalVolt : 0;
    setup.nominalFrequency = std::isfinite(facts.nominalFrequency) ? facts.nominalFrequency : 0;
    return setup;
}

} // namespace

/// A value of a row and what is made of it.
struct RecordJudge::Lane
{
    int cell; // among the numbers of the row
    int fundamental; // cell to divide by, -1: none
    double scale;
    qint64 made; // ms, 0: taken as it is
    QuantityKey key;
    std::size_t judge; // in m_judges
    int trend; // in the judgement, -1: none
    bool isJudged; // its intervals fit
    bool hasInterval; // they are known
};

struct RecordJudge::Feed
{
    bool isMonitor = false;
    double interval = 0; // of a row, ms
    std::vector<Lane> lanes;
    std::unique_ptr<ClockMeans> means;
    qint64 made = 0; // length of what they make, ms
    std::vector<double> values; // of a row, in the order of the lanes
};

RecordJudge::RecordJudge(const RecordOverview &overview, const MonitorLimits2 &limits)
    : m_instrument(setupOf(overview.facts, limits.limit()))
{
    m_judgement.overview = overview;
    m_judgement.setup = setupOf(overview.facts, limits.limit());
    m_judgement.limitsName = limits.name();
    m_judgement.weeks = Weeks(overview.start, overview.end);
    chooseMoments();
}

RecordJudge::~RecordJudge() = default;

bool RecordJudge::begin(const RecordFacts &)
{
    return true;
}

void RecordJudge::addLane(Feed &feed, const QuantityKey &key, int cell, int fundamental)
{
    const Judgement &j = m_judgement;
    // Mains signals have to keep to their limit in each day, everything else in each week.
    const bool daily = isSignal(key.quantity);
    m_judges.emplace_back(key, boundsOf(key, j.setup.limits, j.setup.nominalVolt, j.setup.nominalFrequency),
                          daily ? Weeks(j.overview.start, j.overview.end, Weeks::kDay) : j.weeks);
    Lane lane { cell, fundamental, 1, 0, key, m_judges.size() - 1, -1, true, feed.interval > 0 };
    if (hasTrend(key.quantity)) {
        lane.trend = m_judgement.trends.size();
        m_judgement.trends.append({ key, TrendBand(j.overview.start, j.overview.end) });
    }
    feed.lanes.push_back(lane);
}

void RecordJudge::findLanes(Feed &feed, const RecordTable &table)
{
    int fundamentals[kMonitorPhases] = { -1, -1, -1 };
    int cell = -1;
    for (const RecordColumn &column : table.columns) {
        cell += column.type != CellType::Text;
        const int phase = phaseOf(column.channel);
        if (column.quantity == "U_fundamental" && column.statistic == Statistic::Mean && phase >= 0)
            fundamentals[phase] = cell;
    }
    cell = -1;
    for (const RecordColumn &column : table.columns) {
        cell += column.type != CellType::Text;
        for (const Source &source : kSources) {
            if (!isOf(source, table, column) || !hasQuantity(m_judgement.overview.facts.joinMode, source.quantity))
                continue;
            const int phase = phaseOf(column.channel);
            const int fundamental = source.ofFundamental && phase >= 0 ? fundamentals[phase] : -1;
            if (source.ofFundamental && fundamental < 0)
                continue;
            const bool ordered = source.quantity == Quantity::Harmonic;
            const QuantityKey key { source.quantity, qint8(phase), ordered ? column.order : qint16(0) };
            const bool known = std::any_of(m_judges.begin(), m_judges.end(),
                                           [&key](const ValueJudge &judge) { return judge.verdict().key == key; });
            if (known || (ordered && column.order > monitor_limit::kRows))
                continue;
            addLane(feed, key, cell, fundamental);
            const double nominal = m_judgement.setup.nominalVolt;
            feed.lanes.back().scale = !source.ofNominal ? source.scale : nominal > 0 ? source.scale / nominal : kNone;
            feed.lanes.back().made = source.made;
        }
    }
}

/// What the intervals of its rows allow.
void RecordJudge::prepare(Feed &feed)
{
    constexpr double kTolerance = 1.05, kSignalTolerance = 1.1;
    for (Lane &lane : feed.lanes) {
        if (lane.made == 0)
            continue;
        const double longest = (isSignal(lane.key.quantity) ? kSignalTolerance : kTolerance) * double(lane.made);
        lane.isJudged = feed.interval > 0 && feed.interval <= longest;
        if (lane.isJudged)
            feed.made = lane.made; // one length for all lanes of a table
    }
    if (feed.made > 0)
        feed.means = std::make_unique<ClockMeans>(
            feed.lanes.size(), feed.interval, feed.made,
            [this, &feed](qint64 time, const std::vector<double> &values) { take(feed, time, values); });
}

bool RecordJudge::table(int number, const RecordTable &table)
{
    if (number < 0 || number >= kMostTables)
        return true;
    if (std::size_t(number) >= m_feeds.size())
        m_feeds.resize(std::size_t(number) + 1);
    auto feed = std::make_unique<Feed>();
    feed->isMonitor = table.name.startsWith("monitor_");
    feed->interval = m_judgement.overview.tables.value(table.name).interval;
    findLanes(*feed, table);
    feed->values.resize(feed->lanes.size());
    prepare(*feed);
    if (!feed->lanes.empty())
        m_feeds[std::size_t(number)] = std::move(feed);
    return true;
}

ValueJudge::Mark RecordJudge::markOf(qint64 from, qint64 to) const
{
    const RecordOverview &overview = m_judgement.overview;
    if (overview.interruptions.touch(from, to))
        return ValueJudge::LeftOut;
    return overview.disturbances.touch(from, to) ? ValueJudge::Flagged : ValueJudge::Plain;
}

bool RecordJudge::row(const RecordRow &row)
{
    Feed *feed
        = row.table >= 0 && std::size_t(row.table) < m_feeds.size() ? m_feeds[std::size_t(row.table)].get() : nullptr;
    if (!feed || !isPlausibleTime(row.time))
        return true;
    for (std::size_t i = 0; i < feed->lanes.size(); ++i) {
        const Lane &lane = feed->lanes[i];
        double value = row.numbers[lane.cell] * lane.scale;
        if (lane.fundamental >= 0)
            value = row.numbers[lane.fundamental] > 0 ? value / row.numbers[lane.fundamental] : kNone;
        feed->values[i] = value;
        if (lane.trend >= 0)
            m_judgement.trends[lane.trend].band.take(row.time, value);
        // As the instrument took them: what is not a number, too.
        if (feed->isMonitor)
            m_instrument.take(lane.key, row.time, float(value));
    }
    if (feed->means)
        feed->means->take(row.time, feed->values);
    else
        take(*feed, row.time, feed->values);
    return true;
}

void RecordJudge::take(const Feed &feed, qint64 time, const std::vector<double> &values)
{
    qint64 markedFor = 0;
    ValueJudge::Mark mark = ValueJudge::Plain;
    for (std::size_t i = 0; i < feed.lanes.size(); ++i) {
        const Lane &lane = feed.lanes[i];
        if (!lane.isJudged)
            continue;
        if (const qint64 interval = intervalOf(lane.key.quantity); interval != markedFor) {
            mark = markOf(time - interval, time);
            markedFor = interval;
        }
        m_judges[lane.judge].take(time, values[i], mark);
    }
}

bool RecordJudge::end(const RecordFacts &)
{
    for (const auto &feed : m_feeds) {
        if (!feed || !feed->means)
            continue;
        feed->means->finish();
        if (feed->made == kTenMinutes)
            m_judgement.incompleteTenMinutes = std::max(m_judgement.incompleteTenMinutes, feed->means->incomplete());
    }
    for (ValueJudge &judge : m_judges)
        m_judgement.verdicts.append(judge.finish());
    std::stable_sort(
        m_judgement.verdicts.begin(), m_judgement.verdicts.end(),
        [](const QuantityVerdict &one, const QuantityVerdict &other) { return one.key.quantity < other.key.quantity; });
    m_judgement.instrument = m_instrument.results();
    auto &trends = m_judgement.trends;
    trends.erase(
        std::remove_if(trends.begin(), trends.end(), [](const QuantityTrend &trend) { return trend.band.isEmpty(); }),
        trends.end());
    countEvents();
    listNotJudged();
    listGaps();
    return true;
}

void RecordJudge::countEvents()
{
    const monitor_limit &limits = m_judgement.setup.limits;
    const std::pair<qint32, int> kinds[] = { { EventDip, limits.dips.maxAllowed },
                                             { EventSwell, limits.swells.maxAllowed },
                                             { EventInterruption, limits.interruptions.maxAllowed },
                                             { EventRvc, limits.rvc.maxAllowed } };
    for (const auto &kind : kinds) {
        EventCount count { kind.first, 0, 0, kind.second };
        QHash<int, int> weeks;
        for (const RecordedEvent &event : qAsConst(m_judgement.overview.events)) {
            if (event.item.type != kind.first)
                continue;
            ++count.all;
            if (m_judgement.overview.isEarlier(event.item))
                continue;
            const qint64 time = isPlausibleTime(event.item.startTime) ? event.item.startTime + 1 : 0;
            count.count = std::max(count.count, ++weeks[m_judgement.weeks.indexOf(time)]);
        }
        m_judgement.eventCounts.append(count);
    }
}

void RecordJudge::listNotJudged()
{
    const MonitorSetup &setup = m_judgement.setup;
    for (const Quantity quantity : kAll) {
        if (!hasQuantity(m_judgement.overview.facts.joinMode, quantity))
            continue;
        const QuantityKey key { quantity, -1, qint16(quantity == Quantity::Harmonic ? 2 : 0) };
        const Bounds bounds = boundsOf(key, setup.limits, setup.nominalVolt, setup.nominalFrequency);
        const Lane *lane = laneOf(quantity);
        const bool isBand = quantity == Quantity::Frequency || quantity == Quantity::Voltage;
        if (lane && ((isBand && !(bounds.nominal > 0)) || (isSignal(quantity) && !(setup.nominalVolt > 0)))) {
            m_judgement.notJudged.append({ quantity, NotJudgedBecause::NoNominal });
            continue;
        }
        if (!bounds.hasPartial() && !bounds.hasWhole())
            continue;
        const auto isJudged
            = [quantity](const QuantityVerdict &v) { return v.key.quantity == quantity && v.judged > 0; };
        const auto &verdicts = m_judgement.verdicts;
        if (!lane)
            m_judgement.notJudged.append({ quantity, NotJudgedBecause::NotRecorded });
        else if (!lane->isJudged && lane->hasInterval)
            m_judgement.notJudged.append(
                { quantity,
                  isSignal(quantity) ? NotJudgedBecause::NotTheInterval : NotJudgedBecause::IntervalTooLong });
        else if (std::none_of(verdicts.begin(), verdicts.end(), isJudged))
            m_judgement.notJudged.append({ quantity, NotJudgedBecause::NoValue });
    }
}

/// Quantities of which much of the time has no value: what was not seen was not judged.
void RecordJudge::listGaps()
{
    constexpr double kMuch = 0.1; // of the recording
    constexpr int kIntervals = 3; // a severity's first value comes late
    const double length = double(m_judgement.overview.length());
    for (const Quantity quantity : kAll) {
        const double interval = double(intervalOf(quantity));
        double least = length;
        for (const QuantityVerdict &v : qAsConst(m_judgement.verdicts)) {
            if (v.key.quantity == quantity && v.judged > 0 && v.outcome() != Outcome::NotApplied)
                least = std::min(least, double(v.judged + v.leftOut) * interval);
        }
        if (length - least > std::max(kMuch * length, kIntervals * interval))
            m_judgement.gaps.append({ quantity, 100 * least / length });
    }
}

/// A value of that quantity in a row; null: no table has one.
const RecordJudge::Lane *RecordJudge::laneOf(Quantity quantity) const
{
    for (const auto &feed : m_feeds) {
        for (std::size_t i = 0; feed && i < feed->lanes.size(); ++i) {
            if (feed->lanes[i].key.quantity == quantity)
                return &feed->lanes[i];
        }
    }
    return nullptr;
}

namespace {

/// The order in which events are worth a picture: what is deep, high or long first, by the kind. What goes on lasts
/// until the recording's \a end.
double weightOf(const __event_item &item, double nominal, qint64 end)
{
    const double seconds = (double(item.finished ? item.endTime : end) - double(item.startTime)) / 1000;
    const double depth = nominal > 0 ? std::abs(double(item.value) - nominal) / nominal : 0;
    switch (item.type) {
    case EventInterruption:
        return 3e9 + qBound(0.0, seconds, 1e8);
    case EventDip:
    case EventSwell:
        return 2e9 + qBound(0.0, depth, 1e3) * 1e5 + qBound(0.0, seconds, 1e4);
    case EventRvc:
    case EventInrush:
        return 1e9 + qBound(0.0, double(item.value), 1e6);
    default:
        return 0;
    }
}

} // namespace

void RecordJudge::chooseMoments()
{
    QVector<RecordedEvent> chosen;
    const auto weight = [this](const RecordedEvent &event) {
        return weightOf(event.item, m_judgement.setup.nominalVolt, m_judgement.overview.end);
    };
    for (const RecordedEvent &event : qAsConst(m_judgement.overview.events)) {
        if (weight(event) > 0)
            chosen.append(event);
    }
    const int count = std::min(int(chosen.size()), kMoments);
    std::partial_sort(
        chosen.begin(), chosen.begin() + count, chosen.end(),
        [&weight](const RecordedEvent &one, const RecordedEvent &other) { return weight(one) > weight(other); });
    for (int i = 0; i < count; ++i) {
        m_judgement.moments.append({ chosen.at(i), {}, {} });
        m_judgement.listed.insert(chosen.at(i).number);
    }
    for (int i = 0; i < m_judgement.overview.events.size() && m_judgement.listed.size() < kListed; ++i)
        m_judgement.listed.insert(m_judgement.overview.events.at(i).number);
}

bool RecordJudge::event(const RecordedEvent &event)
{
    for (Moment &moment : m_judgement.moments) {
        if (moment.event.number != event.number || event.number == 0)
            continue;
        moment.event = event;
        for (int input = 0; input < 8; ++input) {
            moment.event.item.startRms[input] = event.item.startRms[input].mid(0, kMostCurve);
            moment.event.item.endRms[input] = event.item.endRms[input].mid(0, kMostCurve);
        }
    }
    return true;
}

bool RecordJudge::waveformBegin(const RecordedWaveform &wave)
{
    m_filling = nullptr;
    const bool usable = wave.sampleRate > 0 && !wave.channels.isEmpty() && wave.channels.size() <= 64;
    for (Moment &moment : m_judgement.moments) {
        if (usable && wave.event != 0 && moment.event.number == wave.event && moment.samples.isEmpty())
            m_filling = &moment;
    }
    // Transients have no event: the first few are shown.
    constexpr int kTransients = 4;
    const auto isTransient = [](const Moment &moment) { return moment.event.number == 0; };
    if (usable && wave.origin == RecordedWaveform::Transient && wave.event == 0
        && std::count_if(m_judgement.moments.begin(), m_judgement.moments.end(), isTransient) < kTransients) {
        m_judgement.moments.append(Moment());
        m_filling = &m_judgement.moments.last();
    }
    if (m_filling)
        m_filling->wave = wave;
    return true;
}

bool RecordJudge::waveformSamples(const qint16 *samples, int count)
{
    if (!m_filling)
        return true;
    const int channels = m_filling->wave.channels.size();
    const int room = (kMostSamples - m_filling->samples.size()) / channels;
    for (int i = 0; i < std::min(count, room) * channels; ++i)
        m_filling->samples.append(samples[i]);
    return true;
}
