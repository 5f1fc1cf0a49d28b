// A recording of each supply that comes with the stand-in, beside the true signal: interval by interval, event by
// event. One run for each (QUVERA_TEST_VARIANT).
#include "recordedevents.h"
#include "scenariorows.h"
#include "supplymodel.h"
#include "truechannels.h"

#include "model/pqaeventitem.h"
#include "record/pqa2format.h"

#include <QTimer>

#include <numeric>

using namespace SystemTest;

/// Of the live scenario: what is compared, and what was off.
class TstLiveScenario : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void intervalsFollowEachOtherWithoutAGap();
    void voltsAndAmperesAreThoseOfTheSignal();
    void wattsAreThoseOfTheSignal();
    void wattHoursAreThoseOfTheSignal();
    void hertzAreThoseOfTheSignal();
    void linesAreThoseOfTheSignal();
    void unbalanceIsThatOfTheSignal();
    void telegramsAreThoseOfTheSignal();
    void eventsAreThoseOfTheSignal();
    void curvesAndWavesAreThoseOfTheSignal();
    void severitiesAreThoseOfTheTable();

private:
    /// A stretch of whole cycles that one aggregation covers.
    struct Window
    {
        double from, to; // s
    };
    struct Interval
    {
        int block; // place in the list of each type
        QVector<Window> windows;
        bool isQuiet; // no event touches it
        bool isPlain; // nor a telegram
    };

    void openInputs();
    void playSupply();
    void takeIntervals();
    /// A coil shows the change of its current: what the processor sums up from it takes as long to settle.
    double settlesFor() const { return m_row.setUp == Coils ? 4 : 0; }
    /// When "link-faults" spoils packages, with half a second for what is under way.
    static bool hasLinkFaults(double from, double to)
    {
        return from < 4 || (from < 30.5 && to > 9.5) || (from < 35.7 && to > 34.5);
    }
    int cyclesOfWindow() const { return m_setting.hertz / 5; }
    /// Place of a channel's row in the blocks; -1: not recorded.
    int rowOf(int channel) const
    {
        const quint32 mask = m_channels->set().recordMask;
        return mask >> channel & 1 ? int(qPopulationCount(mask & ((1u << channel) - 1))) : -1;
    }
    void compare(const QString &what, int interval, double measured, double expected, double allowed);
    /// Mean, largest and smallest value of an interval's windows beside the three blocks.
    template <typename Quantity>
    void compareStatistics(const QString &what, quint32 mean, quint32 maximum, quint32 minimum, int offset,
                           Quantity quantity, double share, double least);
    void compareLines(int channel, bool current, const Window &window);
    /// A half of a spectrum in all quiet intervals; \a least is the allowed error in V or A of a line that is not
    /// there.
    void compareHalf(const QString &what, quint32 type, int channel, const QVector<double> &expected, double least);
    QVector<double> sequences(bool current, const Window &window) const;
    QVector<SupplyModel::Series> halfCycles(bool current) const;
    QVector<SupplyModel::Expected> expectedEvents() const;
    void compareEvent(const RecordedEvent &event, QVector<SupplyModel::Expected> *left);

    const Row m_row = thisRow();
    const Setting m_setting = settingOf(thisRow().setUp);
    TrueSignal m_signal;
    std::unique_ptr<TrueChannels> m_channels;
    std::unique_ptr<LiveGraph> m_live;
    RecordedRun m_run;
    QVector<Interval> m_intervals;
    double m_begin = 0, m_end = 0; // s of the signal
    QStringList m_faults;
};

void TstLiveScenario::initTestCase()
{
    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({ QStringLiteral("--scenario"), QLatin1String(m_row.scenario) }),
             qPrintable(m_live->desk().error()));
    QVERIFY(LiveGraph::open(QStringLiteral("power")));
    QVERIFY(LiveGraph::runUntil([] { return g_unitask->aggregation().time > 0; }, 1));
    QVERIFY(RecordedRun::begin(QStringLiteral("Truth"), 0)); // every second
    RecordedRun::followProcessor(this);
    playSupply();
    QCOMPARE(LiveGraph::status(QStringLiteral("dropped")), QStringLiteral("0"));
    QVERIFY(m_signal.load(QLatin1String(m_row.scenario), LiveGraph::status(QStringLiteral("t")).toDouble()));
    m_signal.unplug(m_setting.open);
    m_signal.setRange(10 * m_setting.voltsOfUnit);
    if (m_row.peculiarity == OpenInputs)
        openInputs();
    m_channels.reset(new TrueChannels(m_signal, m_setting.wiring));
    QVERIFY(m_run.read(QStringLiteral("Truth")));
    takeIntervals();
    if (m_row.peculiarity == None || m_row.peculiarity == AllAtOnce)
        QVERIFY(m_intervals.size() >= int(m_row.seconds - settlesFor()) - 3);
    QVERIFY(m_intervals.size() > 4);
}

/// What the input stage of "out-of-calibration" adds in the ranges of 230 V and 5 A, converter units, with the gains of
/// the factory; its noise is one step.
void TstLiveScenario::openInputs()
{
    constexpr double kVolts[] = { 0.0035, 0.0035 + 0.001, 0.0035 - 0.001, 0.0035 };
    constexpr double kAmps[] = { -0.0035, -0.0035 + 0.001, -0.0035 - 0.001, -0.0035 };
    constexpr double kAmpsOfUnit = 7.145, kSteps = 3276.8; // of a unit
    for (int channel = 0; channel < 4; ++channel) {
        m_signal.setOpenInput(TrueSignal::U1 + channel, kVolts[channel] * m_setting.voltsOfUnit,
                              m_setting.voltsOfUnit / kSteps);
        m_signal.setOpenInput(TrueSignal::I1 + channel, kAmps[channel] * kAmpsOfUnit, kAmpsOfUnit / kSteps);
    }
}

/// Lets the signal go on, and the recording with it, for as long as the row says.
void TstLiveScenario::playSupply()
{
    constexpr int kAggregationsASecond = 5;
    connect(g_unitask, &UniTask::aggregationTaken, this,
            [left = int(m_row.seconds * kAggregationsASecond)](const __datagram_aggregation *) mutable {
                if (--left == 0)
                    QTimer::singleShot(0, m_taskmanage, [] { m_taskmanage->stopRecordWithSave(true); });
            });
    const auto isOver = [] { return !g_unitask->isRecording(); };
    if (m_row.peculiarity != ClockJumps) {
        QVERIFY(LiveGraph::runUntil(isOver, 60));
        return;
    }
    // How far the measurement is cannot be seen by its time.
    QVERIFY(LiveGraph::setSpeed(20));
    QTRY_VERIFY_WITH_TIMEOUT(isOver(), kPatienceMs);
    QVERIFY(LiveGraph::setSpeed(LiveGraph::kStandStill));
}

void TstLiveScenario::cleanupTestCase()
{
    Clock::useSystem();
    m_live.reset(); // ends the stand-in
}

/// The time of a block is the beginning of its last window, which begins with a turn of L1.
void TstLiveScenario::takeIntervals()
{
    const QList<QByteArray> blocks = m_run.of(0xA1000029);
    for (int block = 1; block < blocks.size(); ++block) {
        Interval interval { block, {}, true, true };
        if (m_row.peculiarity == ClockJumps) {
            interval.windows.append({ 1, 1.2 });
            m_intervals.append(interval);
            continue;
        }
        const auto lastTurn
            = [&](int at) { return std::round(m_signal.turnsOfL1(RecordedRun::secondsOf(blocks[at]))); };
        const double last = lastTurn(block);
        for (double turn = lastTurn(block - 1) + cyclesOfWindow(); turn < last + 1; turn += cyclesOfWindow())
            interval.windows.append({ m_signal.momentOfL1(turn), m_signal.momentOfL1(turn + cyclesOfWindow()) });
        if (interval.windows.isEmpty())
            continue;
        const double from = interval.windows.first().from, to = interval.windows.last().to;
        if (from < settlesFor() || (m_row.peculiarity == LosesPackages && hasLinkFaults(from, to)))
            continue;
        interval.isQuiet = m_signal.isQuiet(from - 0.1, to + 0.1);
        interval.isPlain = interval.isQuiet && m_signal.isWithoutTelegrams(from, to);
        m_intervals.append(interval);
    }
    m_begin = RecordedRun::secondsOf(blocks.value(0));
    m_end = RecordedRun::secondsOf(blocks.value(blocks.size() - 1));
}

void TstLiveScenario::compare(const QString &what, int interval, double measured, double expected, double allowed)
{
    if (!(std::fabs(measured - expected) <= allowed))
        m_faults << QStringLiteral("%1 of interval %2: %3 instead of %4")
                        .arg(what)
                        .arg(interval)
                        .arg(measured)
                        .arg(expected);
}

#define VERIFY_NO_FAULTS()                                                                                             \
    do {                                                                                                               \
        const QStringList faults = std::exchange(m_faults, QStringList());                                             \
        QVERIFY2(                                                                                                      \
            faults.isEmpty(),                                                                                          \
            qPrintable(QStringLiteral("%1 times\n").arg(faults.size()) + faults.mid(0, 12).join(QLatin1Char('\n'))));  \
    } while (false)

void TstLiveScenario::intervalsFollowEachOtherWithoutAGap()
{
    QCOMPARE(m_run.of(Pqa2StartTime).size(), 1);
    QCOMPARE(m_run.of(Pqa2EndTime).size(), 1);
    if (m_row.peculiarity != None && m_row.peculiarity != AllAtOnce)
        return;
    QCOMPARE(m_run.of(Pqa2SystemLog).size(), 0); // nothing was lost
    for (int i = 0; i + 1 < m_intervals.size(); ++i) // a second has fifty nominal cycles, or sixty, or four hundred
        QCOMPARE(m_intervals[i].windows.size(), 5);
}

template <typename Quantity>
void TstLiveScenario::compareStatistics(const QString &what, quint32 mean, quint32 maximum, quint32 minimum, int offset,
                                        Quantity quantity, double share, double least)
{
    const QList<QByteArray> blocks[] = { m_run.of(mean), m_run.of(maximum), m_run.of(minimum) };
    for (const Interval &interval : qAsConst(m_intervals)) {
        double sum = 0, largest = -1e30, smallest = 1e30;
        for (const Window &window : interval.windows) {
            const double value = quantity(m_channels->means(window.from, window.to));
            sum += value;
            largest = std::max(largest, value);
            smallest = std::min(smallest, value);
        }
        const double expected[] = { sum / interval.windows.size(), largest, smallest };
        const char *const names[] = { "mean", "maximum", "minimum" };
        // Behind jumps of the phase, among noise, the turn of L1 at which a window ends is known to 2 ms, no better.
        const bool isLoose = m_row.peculiarity == AllAtOnce && !interval.isQuiet;
        const double looser = isLoose ? 0.03 * (largest - smallest) + 0.001 * largest : 0;
        for (int kind = 0; kind < 3; ++kind)
            compare(what + QLatin1Char(' ') + QLatin1String(names[kind]), interval.block,
                    double(valueAt<float>(blocks[kind].value(interval.block), offset)), expected[kind],
                    std::max(share * std::fabs(expected[kind]), least) + looser);
    }
}

void TstLiveScenario::voltsAndAmperesAreThoseOfTheSignal()
{
    const double leastAmps = m_row.setUp == Coils ? 0.3 : 0.003;
    for (int channel = 0; channel < TrueChannels::kChannels; ++channel) {
        if (rowOf(channel) < 0)
            continue;
        const int place = 8 + 52 * rowOf(channel);
        const QString line = QStringLiteral(" of channel %1").arg(channel + 1);
        compareStatistics(
            QStringLiteral("volts") + line, 0xA1000020, 0xA1000060, 0xA10000A0, place,
            [=](const TrueChannels::Means &means) { return means.volts[channel]; }, 0.001, 0.05);
        compareStatistics(
            QStringLiteral("amperes") + line, 0xA1000020, 0xA1000060, 0xA10000A0, place + 16,
            [=](const TrueChannels::Means &means) { return means.amps[channel]; }, 0.001, leastAmps);
    }
    VERIFY_NO_FAULTS();
}

void TstLiveScenario::wattsAreThoseOfTheSignal()
{
    for (int row = 0; row < TrueChannels::kChannels; ++row) {
        if (rowOf(row) < 0)
            continue;
        compareStatistics(
            QStringLiteral("watts of row %1").arg(row + 1), 0xA1000021, 0xA1000061, 0xA10000A1, 8 + 24 * rowOf(row),
            [=](const TrueChannels::Means &means) { return means.watts[row]; }, 0.002, 0.1);
    }
    VERIFY_NO_FAULTS();
}

/// A counter tells how far it came: what it gains from the first interval to the last is the energy between them.
void TstLiveScenario::wattHoursAreThoseOfTheSignal()
{
    if (m_row.peculiarity != None && m_row.peculiarity != AllAtOnce)
        return; // its clock jumps, it leaves gaps, or there is no energy
    const QList<QByteArray> counters = m_run.of(0xA1000022);
    for (int row = 0; row < TrueChannels::kChannels; ++row) {
        if (rowOf(row) < 0)
            continue;
        double expected = 0;
        for (const Interval &interval : m_intervals.mid(1)) {
            for (const Window &window : interval.windows)
                expected += m_channels->means(window.from, window.to).watts[row] * (window.to - window.from) / 3600;
        }
        const auto counted = [&](const Interval &interval) {
            return valueAt<double>(counters.value(interval.block), 8 + 24 * rowOf(row));
        };
        compare(QStringLiteral("watt hours of row %1").arg(row + 1), m_intervals.last().block,
                counted(m_intervals.last()) - counted(m_intervals.first()), expected,
                std::max(0.002 * std::fabs(expected), 1e-4));
    }
    VERIFY_NO_FAULTS();
}

void TstLiveScenario::hertzAreThoseOfTheSignal()
{
    if (m_row.peculiarity == OpenInputs)
        return;
    for (const Interval &interval : qAsConst(m_intervals)) {
        double sum = 0;
        for (const Window &window : interval.windows)
            sum += m_signal.hertz((window.from + window.to) / 2) / interval.windows.size();
        const QByteArray block = m_run.of(0xA1000029)[interval.block];
        compare(QStringLiteral("hertz"), interval.block, double(valueAt<float>(block, 8)), sum, 0.01);
    }
    const QList<QByteArray> tens = m_run.of(Pqa2Frequency10s);
    for (int i = 1; i < tens.size() && m_row.peculiarity != ClockJumps; ++i) {
        const double from = RecordedRun::secondsOf(tens[i - 1]), to = RecordedRun::secondsOf(tens[i]);
        const double expected = (m_signal.turns(to + 0.2) - m_signal.turns(from + 0.2)) / (to - from);
        compare(QStringLiteral("hertz of ten seconds"), i, double(valueAt<float>(tens[i], 8)), expected, 0.01);
    }
    VERIFY_NO_FAULTS();
}

void TstLiveScenario::linesAreThoseOfTheSignal()
{
    const auto quiet = std::find_if(m_intervals.begin(), m_intervals.end(),
                                    [](const Interval &interval) { return interval.isPlain; });
    QVERIFY(quiet != m_intervals.end());
    for (int channel = 0; channel < TrueChannels::kChannels; ++channel) {
        for (const bool current : { false, true }) {
            if (rowOf(channel) >= 0)
                compareLines(channel, current, quiet->windows.first());
        }
    }
    VERIFY_NO_FAULTS();
}

/// Orders with the lines beside them, and what lies between the orders without these (IEC 61000-4-7).
void TstLiveScenario::compareLines(int channel, bool current, const Window &window)
{
    QVector<int> all(1224);
    std::iota(all.begin(), all.end(), 0);
    const QVector<std::complex<double>> lines = m_channels->lines(channel, current, window.from, window.to, all);
    const int cycles = cyclesOfWindow(), orders = m_setting.hertz == 400 ? 12 : 100;
    const auto group = [&lines](int first, int last) {
        double sum = 0;
        for (int line = first; line <= last && line < lines.size(); ++line)
            sum += std::norm(lines[line]);
        return std::sqrt(sum);
    };
    QVector<double> harmonics(100), between(100);
    for (int order = 1; order <= orders; ++order)
        harmonics[order - 1] = group(order * cycles - 1, order * cycles + 1);
    const TrueSignal::Supply &supply = m_signal.supplyAt(window.from);
    const bool flickers = supply.inputs[TrueSignal::U1].flickerDepth > 0;
    for (int order = 0; order < 100 && orders == 100; ++order)
        between[order] = group(order * cycles + 2, (order + 1) * cycles - 2);
    const double least = 0.001 * harmonics[0] + (current ? (m_row.setUp == Coils ? 0.1 : 0.001) : 0.02)
        + 0.1 * m_channels->noise(channel, current, window.from);
    const QString line
        = QStringLiteral("%1 of channel %2").arg(QLatin1String(current ? "amperes" : "volts")).arg(channel + 1);
    const quint32 first = current ? 0xA1000031 : 0xA1000030; // low and high orders, then low and high between them
    compareHalf(line + QStringLiteral(", orders"), first, channel, harmonics.mid(0, 50), least);
    compareHalf(line + QStringLiteral(", high orders"), first + 2, channel, harmonics.mid(50), least);
    if (flickers)
        return; // what a window holds between the orders goes by its place in the changes
    compareHalf(line + QStringLiteral(", between orders"), first + 4, channel, between.mid(0, 50), least);
    compareHalf(line + QStringLiteral(", between high orders"), first + 6, channel, between.mid(50), least);
}

void TstLiveScenario::compareHalf(const QString &what, quint32 type, int channel, const QVector<double> &expected,
                                  double least)
{
    const QList<QByteArray> blocks = m_run.of(type);
    for (const Interval &interval : qAsConst(m_intervals)) {
        if (!interval.isPlain)
            continue;
        for (int line = 0; line < expected.size(); ++line) {
            const double found
                = double(valueAt<float>(blocks.value(interval.block), 8 + 208 * rowOf(channel) + 8 + 4 * line));
            compare(what + QStringLiteral(", line %1").arg(line + 1), interval.block, found, expected[line],
                    std::max(0.05 * expected[line], least));
        }
    }
}

/// Negative and zero sequence in percent of the one that turns with the supply; nothing without it.
QVector<double> TstLiveScenario::sequences(bool current, const Window &window) const
{
    const std::complex<double> turn = std::polar(1.0, 2 * std::acos(-1.0) / 3);
    std::complex<double> phasor[3];
    for (int phase = 0; phase < 3; ++phase)
        phasor[phase] = m_channels->lines(phase, current, window.from, window.to, { cyclesOfWindow() })[0];
    const double one = std::abs(phasor[0] + turn * phasor[1] + turn * turn * phasor[2]) / 3;
    const double other = std::abs(phasor[0] + turn * turn * phasor[1] + turn * phasor[2]) / 3;
    const double zero = std::abs(phasor[0] + phasor[1] + phasor[2]) / 3;
    const double with = std::max(one, other);
    return with < 0.05 ? QVector<double>() : QVector<double> { 100 * std::min(one, other) / with, 100 * zero / with };
}

void TstLiveScenario::unbalanceIsThatOfTheSignal()
{
    if (m_channels->set().taskPhases < 3 || m_row.peculiarity == OpenInputs)
        return;
    for (const bool current : { false, true }) {
        QMap<double, QVector<double>> expected; // a supply has the same in all quiet intervals
        for (const Interval &interval : qAsConst(m_intervals)) {
            const Window &window = interval.windows.first();
            const double since = m_signal.supplyAt(window.from).from;
            if (!interval.isQuiet)
                continue;
            if (!expected.contains(since))
                expected.insert(since, sequences(current, window));
            const QByteArray block = m_run.of(0xA1000023).value(interval.block);
            for (int which = 0; which < expected[since].size(); ++which)
                compare(QStringLiteral("%1 sequence of the %2")
                            .arg(QLatin1String(which ? "zero" : "negative"),
                                 QLatin1String(current ? "currents" : "voltages")),
                        interval.block, double(valueAt<float>(block, 8 + (current ? 20 : 0) + 8 + 8 * which)),
                        expected[since][which], 0.15);
        }
    }
    VERIFY_NO_FAULTS();
}

/// A window that a telegram fills in part shows it in part.
void TstLiveScenario::telegramsAreThoseOfTheSignal()
{
    const QVector<int> numbers { 275, 57 }; // 1375 Hz and 285 Hz
    const TrueSignal::Supply &supply = m_signal.supplyAt(0);
    if (m_setting.hertz == 400 || supply.drift != 0 || supply.hertz != m_setting.hertz)
        return; // no line of the window stands at their frequencies
    const double least = 0.001 * m_setting.nominalVolts;
    for (int phase = 0; phase < m_channels->set().taskPhases; ++phase) {
        QVector<double> expected;
        for (const Interval &interval : qAsConst(m_intervals)) {
            if (!interval.isQuiet)
                continue;
            if (expected.isEmpty() || !supply.telegrams.isEmpty())
                expected = { 0, 0 };
            for (const Window &window : interval.windows) {
                if (supply.telegrams.isEmpty())
                    break; // there is nothing of them
                const auto lines = m_channels->lines(phase, false, window.from, window.to, numbers);
                for (int signal = 0; signal < 2; ++signal)
                    expected[signal] += std::abs(lines[signal]) / interval.windows.size();
            }
            const QByteArray block = m_run.of(0xA1000038).value(interval.block);
            for (int signal = 0; signal < 2; ++signal) {
                const int place = 8 + 24 * rowOf(phase) + 8 * signal;
                const double allowed = std::max(0.05 * expected[signal], least);
                compare(QStringLiteral("volts of telegram %1").arg(signal + 1), interval.block,
                        double(valueAt<float>(block, place + 4)), expected[signal], allowed);
                compare(QStringLiteral("ratio of telegram %1").arg(signal + 1), interval.block,
                        double(valueAt<float>(block, place)), expected[signal] / m_setting.nominalVolts,
                        allowed / m_setting.nominalVolts);
            }
        }
    }
    VERIFY_NO_FAULTS();
}

QVector<SupplyModel::Series> TstLiveScenario::halfCycles(bool current) const
{
    QVector<SupplyModel::Series> series;
    const int phases = current ? 3 : m_channels->set().eventPhases;
    SupplyModel::Series steady {};
    for (int half = 20; m_signal.momentOf((half + 2) / 2.0) < m_end; ++half) {
        const double from = m_signal.momentOf(half / 2.0), to = m_signal.momentOf((half + 2) / 2.0);
        SupplyModel::Series entry = steady;
        if (series.isEmpty() || !m_signal.isQuiet(from, to)) {
            for (int phase = 0; phase < 3; ++phase)
                entry.value[phase] = phase >= phases        ? entry.value[0]
                    : phase >= m_channels->set().taskPhases ? 0
                                                            : m_channels->cycleRms(phase, current, from, to);
        }
        if (series.isEmpty())
            steady = entry;
        entry.time = m_signal.momentOf((half + 1) / 2.0);
        series.append(entry);
    }
    return series;
}

QVector<SupplyModel::Expected> TstLiveScenario::expectedEvents() const
{
    using namespace SupplyModel;
    QVector<Expected> list;
    const QVector<Series> voltages = halfCycles(false), currents = halfCycles(true);
    Model::findDips(voltages, &list, m_setting.nominalVolts);
    Model::findSwells(voltages, &list, m_setting.nominalVolts);
    for (int phase = 0; phase < 3; ++phase) {
        if (m_channels->set().inrushMask >> phase & 1)
            Model::findInrush(currents, phase, &list);
    }
    return list;
}

void TstLiveScenario::compareEvent(const RecordedEvent &event, QVector<SupplyModel::Expected> *left)
{
    const double halfCycle = 0.5 / m_signal.hertz(event.start) + 0.001; // stamps are whole milliseconds
    const QString name
        = QStringLiteral("event %1 of L%2 at %3 s").arg(event.type).arg(event.channel + 1).arg(event.start);
    for (int i = 0; i < left->size(); ++i) {
        const SupplyModel::Expected &want = left->at(i);
        if (want.type != event.type || !(want.channels >> event.channel & 1)
            || std::fabs(want.start - event.start) > halfCycle)
            continue;
        compare(name + QStringLiteral(", duration"), 0, event.end - event.start, want.duration, halfCycle);
        const bool isGone = want.type != EventInrush && want.value < 0.01 * m_setting.nominalVolts;
        compare(name + QStringLiteral(", extreme"), 0, event.value, want.value,
                0.002 * (isGone ? m_setting.nominalVolts : want.value)
                    + 0.1 * m_channels->noise(event.channel, want.type == EventInrush, event.start));
        left->remove(i);
        return;
    }
    m_faults << name
            + QStringLiteral(" is none of the signal's: %1, %2 s").arg(event.value).arg(event.end - event.start);
}

void TstLiveScenario::eventsAreThoseOfTheSignal()
{
    if (m_row.peculiarity == ClockJumps || m_row.peculiarity == OpenInputs)
        return;
    constexpr double kCurves = 2; // s behind an event until its curves are there
    QVector<SupplyModel::Expected> expected = expectedEvents();
    for (const RecordedEvent &event : recordedEvents(m_run)) {
        if (!event.finished || event.end > m_end - kCurves
            || (m_row.peculiarity == LosesPackages && hasLinkFaults(event.start, event.end)))
            continue;
        compareEvent(event, &expected);
    }
    for (const SupplyModel::Expected &event : qAsConst(expected)) {
        // One that just reaches its level may come or not.
        const bool isMarginal = event.type == EventSwell && event.value < 1.1 * m_setting.nominalVolts * 1.0005;
        if (event.start + event.duration < m_end - kCurves && !isMarginal)
            m_faults << QStringLiteral("event %1 at %2 s is missing").arg(event.type).arg(event.start);
    }
    VERIFY_NO_FAULTS();
}

void TstLiveScenario::curvesAndWavesAreThoseOfTheSignal()
{
    if (m_row.peculiarity != None && m_row.peculiarity != AllAtOnce)
        return;
    m_faults << waveFaults(m_run, *m_channels, m_setting.nominalVolts)
             << transientFaults(m_run, *m_channels, m_setting.nominalVolts, m_begin, m_end)
             << curveFaults(m_run, *m_channels);
    VERIFY_NO_FAULTS();
}

/// Points that are published (IEC 61000-4-15) come out within 5 percent.
void TstLiveScenario::severitiesAreThoseOfTheTable()
{
    const double expected = severityOf(m_row.scenario);
    const QList<QByteArray> blocks = m_run.of(Pqa2FlickerShort);
    QCOMPARE(blocks.size(), m_row.seconds >= kTwoIntervals ? 2 : 0);
    for (const QByteArray &block : blocks) {
        for (int phase = 0; phase < 3 && expected > 0; ++phase)
            compare(QStringLiteral("severity of L%1").arg(phase + 1), 0, double(valueAt<float>(block, 8 + 4 * phase)),
                    expected, 0.05 * expected);
    }
    VERIFY_NO_FAULTS();
}

int main(int argc, char **argv)
{
    if (thisRow().setUp == Coils) { // what is on the cables of that board, before the settings are read
        DeskInstrument desk(QStringLiteral(QUVERA_BIN_DIR), qEnvironmentVariable("QUVERA_ROOT"));
        const auto use = [&desk](const char *file, const char *clamp) {
            const QString path = desk.path(QStringLiteral("/mnt/userfs/sys/"));
            QFile catalogue(path + QLatin1String(file));
            const QByteArray text
                = QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<PQA version=\"1.0\" inUsed=\"") + clamp
                + "\"/>\n";
            return QDir().mkpath(path) && catalogue.open(QIODevice::WriteOnly) && catalogue.write(text) == text.size();
        };
        if (!use("clamps.xcl", "TARN-F1") || !use("clampsN.xcl", "TARN-45"))
            return 1;
    }
    return runInInstrument<TstLiveScenario>(argc, argv, settingOf(thisRow().setUp).settings);
}

#include "tst_livescenario.moc"
