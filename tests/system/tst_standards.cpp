// The tables of IEC 61000-4-30 (testing states), 61000-4-15 (flicker) and 61000-4-7 (groups), row by row: what stands
// on the screen, in the registers and in the exported recording is the table's value. One run for each table
// (QUVERA_TEST_VARIANT).
#include "exportedtables.h"
#include "recordedrun.h"
#include "scenariorows.h"
#include "standardrows.h"

#include "views/harmonics/harm.h"
#include "views/harmonics/harmmeterpage.h"

#include <QJsonDocument>

#include <limits>

using namespace SystemTest;
using namespace Standards;

namespace {

const QByteArray kTable
    = qEnvironmentVariableIsSet("QUVERA_TEST_VARIANT") ? qgetenv("QUVERA_TEST_VARIANT") : "-states-50";
const bool kIsAt60 = kTable.endsWith("60") || kTable.endsWith("120");
const bool kIsLong = kTable.startsWith("-long");
const bool kIsPst = kTable.contains("pst"), kIsPinst = kTable.contains("pinst");
const Rating kRating = kIsAt60 ? Rating { 60, 120 } : Rating { 50, 230 };
constexpr double kEdge = 0.03; // s around a change of the supply in which either level may count

/// The points of a table of flicker stand in the scenarios that play them.
QVector<Flicker> pointsOf(const QString &scenario)
{
    QVector<Flicker> points;
    QFile file(QStringLiteral(QUVERA_SOURCE_DIR "/processor/scenarios/%1.json").arg(scenario));
    const QJsonObject all
        = file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
    const auto take = [&points](const QJsonValue &signal) {
        const QJsonObject one = signal.toObject().value("flicker").toArray().at(0).toObject();
        points.append({ one.value("rate").toDouble(one.value("changesPerMinute").toDouble() / 120),
                        one.value("percent").toDouble(), one.value("shape") == QLatin1String("sinusoidal") });
    };
    take(all.value("signal"));
    for (const QJsonValue &step : all.value("steps").toArray())
        take(step.toObject().value("signal"));
    return points;
}

/// Three points at a time, one a phase. All voltages and all changes rise together, as in the standard.
Supplies pointsTogether(const char *name, const QVector<Flicker> &points, Quantity what)
{
    Supplies list;
    for (int first = 0; first < points.size(); first += kPhases) {
        Supply supply;
        supply.hertz = kRating.hertz;
        supply.isInPhase = true;
        supply.name = QLatin1String(name);
        for (int phase = 0; phase < kPhases; ++phase) {
            supply.volts[phase] = kRating.volts;
            if (first + phase >= points.size())
                continue;
            supply.flicker[phase] = points[first + phase];
            const double rate = supply.flicker[phase].rate;
            supply.name += what == Pst ? QStringLiteral(" %1 a minute").arg(std::round(120 * rate))
                                       : QStringLiteral(" %1 Hz").arg(rate, 0, 'g', 3);
            supply.expected.append({ what, phase, 0, 1, kFlickerError });
        }
        list.append(supply);
    }
    return list;
}

/// The order of the harmonics with their shares in percent: a voltage that crosses zero several times a half wave.
constexpr double kDistortion[][2] = { { 3, 5 },  { 5, 6 },     { 7, 5 },     { 9, 1.5 },   { 11, 3.5 },  { 13, 3 },
                                      { 17, 2 }, { 19, 1.76 }, { 23, 1.41 }, { 25, 1.27 }, { 29, 1.06 }, { 31, 0.97 } };

/// A distorted voltage flickers as much as a sine does: what counts is its square, of the relative size.
Supply distorted()
{
    Supply supply = pointsTogether(
        "distorted", { { 8.8, kIsAt60 ? 0.321 : 0.250, true }, { 8.8, kIsAt60 ? 0.252 : 0.196 } }, Pinst)[0];
    for (int phase = 0; phase < 2; ++phase) {
        for (const auto &one : kDistortion)
            supply.tones.append({ phase, one[0] * supply.hertz, one[1] / 100 * supply.volts[phase], 180 });
    }
    return supply;
}

/// Frequency and voltage change together, every four seconds.
Supply combined()
{
    Supply supply;
    supply.name = QStringLiteral("frequency and voltage together");
    supply.isInPhase = true;
    supply.hertz = kIsAt60 ? 59.75 : 49.75;
    supply.alternateHertz = kIsAt60 ? 60.25 : 50.25;
    supply.alternateVolts = kIsAt60 ? 119.266 : 228.812;
    for (int phase = 0; phase < kPhases; ++phase) {
        supply.volts[phase] = kRating.volts;
        supply.expected.append({ Pinst, phase, 0, 1, 0.08 });
    }
    return supply;
}

Supplies severities()
{
    Supplies list;
    QVector<Flicker> points;
    for (const char *rate : { "0001", "0002", "0007", "0039", "0110", "1620", kIsAt60 ? "4800" : "4000" })
        points += pointsOf(QStringLiteral("pst-%1v-%2").arg(kRating.volts).arg(QLatin1String(rate)));
    list += pointsTogether("changes", points, Pst);
    for (int state = 2; state <= 3; ++state) {
        Supply supply = TestingStates(kRating).state(state);
        supply.name = TestingStates::inState(state, "severity");
        const double severity = state == 2 ? 1 : 4;
        for (int phase = 0; phase < kPhases; ++phase)
            supply.expected.append({ Pst, phase, 0, severity, 0.05 * severity });
        list.append(supply);
    }
    return list;
}

/// Of the whole table, or of its ends and its middle.
Supplies sensations()
{
    Supplies list;
    const QString lamp = QStringLiteral("%1v").arg(kRating.volts);
    for (const char *shape : { "sinusoidal", "rectangular" }) {
        const QVector<Flicker> points = pointsOf(QStringLiteral("pinst-%1-%2").arg(QLatin1String(shape), lamp));
        const QVector<Flicker> some { points.first(), points.value(points.size() / 2), points.last() };
        list += pointsTogether(shape, kIsLong ? points : some, Pinst);
    }
    return list << distorted() << combined();
}

Supplies suppliesOfTable()
{
    if (kTable.contains("groups"))
        return groupsOfLines(kRating);
    return kIsPst ? severities() : kIsPinst ? sensations() : TestingStates(kRating).all();
}

/// Where a quantity stands. %1 is the phase, %2 the number.
struct Place
{
    const char *tile, *title, *label; // of the screen
    int address; // of L1; -1: there is no register
    int perPhase, perNumber, firstNumber, lastNumber; // registers from one to the next, and the numbers that have one
    bool onlyFirst; // phase
    const char *table, *column; // of the export; null: it is not recorded
    double factor; // of the recorded value
};
const Place kPlaces[] = {
    { "vif", "Volts/Amps/Hertz", "freq", 0, 0, 0, 0, 0, false, "frequency", "f_mean_Hz", 1 },
    { "vif", "Volts/Amps/Hertz", "Urms_L%1", 2, 2, 0, 0, 0, false, "rms", "U_rms_mean_L%1_V", 1 },
    { "harmonics", "Harmonics", "Uharm %2", 1004, 104, 2, 1, 50, false, "harmonics_u", "Uh%2_mean_L%1_V", 1 },
    { "harmonics", "Harmonics", "Uinharm %2", 1312, 0, 2, 0, 14, true, "interharmonics_u", "Uih%2_mean_L%1_V", 1 },
    { "unbalance", "Unbalance", "uneg_v", 3500, 0, 0, 0, 0, false, "unbalance", "U_negative_ratio_mean_percent", 1 },
    { "unbalance", "Unbalance", "uzero_v", 3502, 0, 0, 0, 0, false, "unbalance", "U_zero_ratio_mean_percent", 1 },
    { "mainssignaling", "Mains Signaling", "sig1_L%1", -1, 0, 0, 0, 0, false, "signalling", "U_signal1_ratio_mean_L%1",
      100 },
    { "mainssignaling", "Mains Signaling", "sig2_L%1", -1, 0, 0, 0, 0, false, "signalling", "U_signal2_ratio_mean_L%1",
      100 },
    { "flicker", "Flicker", "P1_L%1", 3000, 2, 0, 0, 0, false, nullptr, nullptr, 1 },
    { "flicker", "Flicker", "Pst_L%1", 3008, 2, 0, 0, 0, false, "flicker_pst", "Pst_L%1", 1 },
};

const Place &placeOf(const Expectation &expectation)
{
    return kPlaces[expectation.what];
}

/// The first register; -1 where there is none.
int addressOf(const Expectation &expectation)
{
    const Place &place = placeOf(expectation);
    if (place.address < 0 || expectation.number < place.firstNumber || expectation.number > place.lastNumber
        || (place.onlyFirst && expectation.phase > 0))
        return -1;
    return place.address + place.perPhase * expectation.phase
        + place.perNumber * (expectation.number - place.firstNumber);
}

} // namespace

class TstStandards : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void screenRegisterAndFileHoldTheTable_data();
    void screenRegisterAndFileHoldTheTable();

private:
    struct Played
    {
        double from = 0, to = 0; // s of the signal in which nothing is under way any more
        QStringList faults; // of screen and registers
        int shown = 0, held = 0; // values that were right there
    };

    void play(const Supply &supply, Played *played);
    void look(const Supply &supply, Played *played);
    void lookForHighest(const Supply &supply, Played *played);
    void compareFile(const Supply &supply, const Played &played, const Expectation &expectation);
    bool turnTo(const Place &place);
    static QByteArray lineOfMeter(const Expectation &expectation);
    /// Where the value must lie, of a window between two moments.
    static Span spanOf(const Supply &supply, const Expectation &expectation, double from, double to);
    /// The same of the window that is shown.
    static Span spanNow(const Supply &supply, const Expectation &expectation);
    static bool isIn(double value, const Span &span, double tolerance)
    {
        return value >= span.low - tolerance && value <= span.high + tolerance;
    }
    static double now() { return double(LiveGraph::measuredUntil() - LiveGraph::startMs()) / 1000; }

    std::unique_ptr<LiveGraph> m_live;
    std::unique_ptr<ModbusClient> m_master;
    std::unique_ptr<ExportedTables> m_tables;
    const Supplies m_supplies = suppliesOfTable();
    QVector<Played> m_played;
};

void TstStandards::initTestCase()
{
    m_live.reset(new LiveGraph);
    // The flickermeter takes a minute to forget another voltage.
    const QString nominal = kIsAt60 ? QStringLiteral("nominal-60") : QStringLiteral("nominal");
    QVERIFY2(m_live->start({ QStringLiteral("--scenario"), nominal }), qPrintable(m_live->desk().error()));
    QVERIFY(LiveGraph::open(QStringLiteral("vif")));
    m_master.reset(new ModbusClient(ModbusSlave::port()));
    QVERIFY(m_master->isConnected());
    QVERIFY(LiveGraph::runUntil([] { return g_unitask->aggregation().time > 0; }, 1));
    constexpr int kEverySecond = 0, kEveryMinute = 5;
    QVERIFY(RecordedRun::begin(QStringLiteral("Tables"), kIsPst ? kEveryMinute : kEverySecond, 24));
    for (const Supply &supply : m_supplies) {
        m_played.append(Played());
        play(supply, &m_played.last());
        if (QTest::currentTestFailed())
            return;
    }
    QCOMPARE(LiveGraph::status(QStringLiteral("dropped")), QStringLiteral("0"));
    QCOMPARE(LiveGraph::status(QStringLiteral("clipped")), QStringLiteral("no"));

    QString problem;
    m_tables = ExportedTables::ofRunningRecording(QStringLiteral("Tables"), &problem);
    QVERIFY2(m_tables, qPrintable(problem));
}

void TstStandards::cleanupTestCase()
{
    m_live.reset(); // ends the stand-in
}

/// Lets the supply stand until its values have settled and were recorded, then looks.
void TstStandards::play(const Supply &supply, Played *played)
{
    const double begun = LiveGraph::play(scenarioOf(supply));
    QVERIFY2(begun > 0, qPrintable(supply.name));
    played->from = begun + (kIsPinst ? 15 : kIsPst ? 0 : 1.5);
    if (kIsPst) {
        // The interval in which the supply changed, and one that has it alone. A look at the signal waits for no more
        // than five minutes: an interval at a time.
        const auto &trend = m_taskmanage->data().live().flicker.pstTrend[2];
        for (int interval = trend.size() + 1, last = interval + 1; interval <= last; ++interval)
            QVERIFY(LiveGraph::runUntil([&] { return trend.size() >= interval; }, 100));
    } else {
        const double end = played->from + 4;
        QVERIFY(LiveGraph::runUntil([end] { return now() > end; }, kIsPinst ? 20 : 5));
    }
    played->to = now() - 0.4;
    if (supply.alternateHertz > 0)
        lookForHighest(supply, played);
    else
        look(supply, played);
}

bool TstStandards::turnTo(const Place &place)
{
    if (LiveGraph::text("name") == QLatin1String(place.title))
        return true;
    LiveGraph::key(Qt::Key_A); // menu
    if (!LiveGraph::choose(QLatin1String(place.tile))
        || !QTest::qWaitFor([&] { return LiveGraph::text("name") == QLatin1String(place.title); }, kPatienceMs))
        return false;
    if (qstrcmp(place.tile, "harmonics") == 0)
        LiveGraph::key(Qt::Key_F); // F4, "Meter"
    return true;
}

/// Turns the list of orders until it shows this one. The label's name without its phase.
QByteArray TstStandards::lineOfMeter(const Expectation &expectation)
{
    // Four lines of distortion and offset, a hundred orders of voltage and of current, then what lies between. The
    // first line of these is what lies below the fundamental.
    const int line = expectation.what == Order ? 4 + expectation.number - 1 : 204 + expectation.number;
    const QString caption = QStringLiteral("%1 %2")
                                .arg(QLatin1String(expectation.what == Order ? "Uharm" : "Uinharm"))
                                .arg(expectation.number + (expectation.what == Order ? 0 : 1));
    const auto *page = qobject_cast<HarmMeterPage *>(LiveGraph::subPage(UI_HARMONICS, harm::Meter));
    const int pages = page ? line / HarmMeterPage::kLines - page->scrollPosition() / HarmMeterPage::kLines : 0;
    for (int i = 0; i < std::abs(pages); ++i)
        LiveGraph::key(pages > 0 ? Qt::Key_T : Qt::Key_Q);
    const QByteArray row = "row" + QByteArray::number(line % HarmMeterPage::kLines + 1);
    return LiveGraph::text(row + "_t") == caption ? row + "_L%1" : QByteArray();
}

Span TstStandards::spanOf(const Supply &supply, const Expectation &expectation, double from, double to)
{
    const Flicker &flicker = supply.flicker[expectation.phase];
    if (expectation.what != Volts || flicker.percent == 0)
        return { expectation.value, expectation.value };
    return flickering(flicker, expectation.value, from - kEdge, to + kEdge);
}

Span TstStandards::spanNow(const Supply &supply, const Expectation &expectation)
{
    const double from = double(g_unitask->aggregation().time - LiveGraph::startMs()) / 1000;
    return spanOf(supply, expectation, from, from + kRating.cycles() / supply.hertz);
}

void TstStandards::look(const Supply &supply, Played *played)
{
    for (const Expectation &expectation : supply.expected) {
        const int lookMs = played->faults.isEmpty() ? 20000 : 1000; // only what is wrong takes so long
        const Place &place = placeOf(expectation);
        QVERIFY2(turnTo(place), place.tile);
        const bool isLine = expectation.what == Order || expectation.what == Between;
        const QByteArray form = isLine ? lineOfMeter(expectation) : QByteArray(place.label);
        QVERIFY2(!form.isEmpty(), qPrintable(LiveGraph::text("row1_t")));
        const QByteArray label = QByteArray(form).replace("%1", QByteArray::number(expectation.phase + 1));
        // Of orders the page has percent of the fundamental.
        const double unit = isLine ? supply.volts[expectation.phase] / 100 : 1;
        const auto shows = [&] {
            return isIn(unit * LiveGraph::number(label), spanNow(supply, expectation),
                        expectation.tolerance + unit * LiveGraph::halfDigit(label));
        };
        const QString what = QLatin1String(label)
            + QStringLiteral(", number %1, wanted %2: ").arg(expectation.number).arg(expectation.value);
        if (QTest::qWaitFor(shows, lookMs))
            ++played->shown;
        else
            played->faults << QStringLiteral("screen ") + what + LiveGraph::text(label);
        const int address = addressOf(expectation);
        double held = 0;
        const auto holds = [&] {
            held = double(LiveGraph::registerFloat(m_master->read(address, 2), 0));
            return isIn(held, spanNow(supply, expectation), expectation.tolerance);
        };
        if (address >= 0 && !QTest::qWaitFor(holds, lookMs))
            played->faults << QStringLiteral("register ") + what + QString::number(held);
        else
            played->held += address >= 0;
    }
}

/// What comes and goes with the changes of the supply: the highest of some of them, on the screen and in the registers.
void TstStandards::lookForHighest(const Supply &supply, Played *played)
{
    constexpr double kTwoChanges = 8.5, kManyChanges = 40; // s
    QVERIFY(turnTo(placeOf(supply.expected[0])));
    double shown[kPhases] = {}, held[kPhases] = {};
    const auto isRight = [&](const Expectation &one) {
        return std::fabs(shown[one.phase] - one.value) <= one.tolerance + 0.005
            && std::fabs(held[one.phase] - one.value) <= one.tolerance;
    };
    const auto hasSeenAll = [&, from = now()] {
        for (const Expectation &one : supply.expected) {
            const QByteArray label = QByteArray(placeOf(one).label).replace("%1", QByteArray::number(one.phase + 1));
            shown[one.phase] = std::max(shown[one.phase], LiveGraph::number(label));
            const QList<quint16> words = m_master->read(addressOf(one), 2);
            held[one.phase] = std::max(held[one.phase], double(LiveGraph::registerFloat(words, 0)));
        }
        return now() > from + kManyChanges
            || (now() > from + kTwoChanges && std::all_of(supply.expected.begin(), supply.expected.end(), isRight));
    };
    QVERIFY(LiveGraph::runUntil(hasSeenAll, 0.5));
    for (const Expectation &one : supply.expected) {
        if (!isRight(one))
            played->faults
                << QStringLiteral("L%1: %2, %3").arg(one.phase + 1).arg(shown[one.phase]).arg(held[one.phase]);
        played->shown += isRight(one);
        played->held += isRight(one);
    }
}

/// Every interval that has nothing but the supply.
void TstStandards::compareFile(const Supply &supply, const Played &played, const Expectation &expectation)
{
    const Place &place = placeOf(expectation);
    if (!place.table)
        return;
    const QString number = QString::number(expectation.number).rightJustified(2, QLatin1Char('0'));
    QString column = QLatin1String(place.column);
    column.replace("%2", number).replace("%1", QString::number(expectation.phase + 1));
    const QVector<ExportedTables::Cell> cells = m_tables->column(QLatin1String(place.table), column);
    QVERIFY2(!cells.isEmpty(), qPrintable(column));
    const double window = kRating.cycles() / supply.hertz;
    int intervals = 0;
    for (const ExportedTables::Cell &cell : cells) {
        // The time is that of the last of five windows; a severity has ten minutes behind it.
        const double time = double(cell.time - LiveGraph::startMs()) / 1000;
        const double from = expectation.what == Pst ? time - 600 : time - 4 * window;
        const double to = expectation.what == Pst ? time : time + window;
        if (from < played.from || to > played.to)
            continue;
        ++intervals;
        const Span span = spanOf(supply, expectation, from, to);
        QVERIFY2(isIn(cell.value * place.factor, span, expectation.tolerance),
                 qPrintable(QStringLiteral("file %1: %2, wanted %3 to %4")
                                .arg(column)
                                .arg(cell.value)
                                .arg(span.low)
                                .arg(span.high)));
    }
    QVERIFY2(intervals >= (kIsPst ? 1 : 2), qPrintable(column + QStringLiteral(" has no interval of it")));
}

void TstStandards::screenRegisterAndFileHoldTheTable_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < m_supplies.size(); ++row)
        QTest::newRow(qPrintable(m_supplies[row].name)) << row;
}

void TstStandards::screenRegisterAndFileHoldTheTable()
{
    QFETCH(int, row);
    QVERIFY(row < m_played.size());
    const Supply &supply = m_supplies[row];
    const Played &played = m_played[row];
    QVERIFY(!supply.expected.isEmpty());
    QVERIFY2(played.faults.isEmpty(), qPrintable(played.faults.join(QLatin1Char('\n'))));
    QCOMPARE(played.shown, supply.expected.size());
    int registers = 0;
    for (const Expectation &expectation : supply.expected) {
        registers += addressOf(expectation) >= 0;
        compareFile(supply, played, expectation);
        if (QTest::currentTestFailed())
            return;
    }
    QCOMPARE(played.held, registers);
}

int main(int argc, char **argv)
{
    qputenv("QTEST_FUNCTION_TIMEOUT", "3600000"); // all rows are played before the first function; CTest ends a hang
    return runInInstrument<TstStandards>(
        argc, argv, kIsAt60 ? settingOf(Star120V).settings : decltype(settingOf(Star120V).settings)());
}

#include "tst_standards.moc"
