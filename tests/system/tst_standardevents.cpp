// Dips, swells and interruptions beside the frequency and the harmonics of the testing states of IEC 61000-4-30: the
// list on the screen, the table of the registers and the exported recording hold their residual voltage and duration.
#include "exportedtables.h"
#include "recordedrun.h"
#include "standardrows.h"

#include "views/dips/dswell.h"
#include "widgets/controls/eventswidget.h"

#include <QJsonDocument>
#include <QTime>

using namespace SystemTest;
using namespace Standards;

namespace {

const Rating kRating { 50, 230 };
constexpr double kAfter = 2; // s behind the moment at which the supply changed
constexpr double kValueError = 0.002 * 230; // V; class A: 0.2 % of the declared voltage
constexpr double kRounded = 0.002; // s; start and end are whole milliseconds
constexpr double kRecorded = 3; // s until an event and its curve are recorded

struct Disturbance
{
    const char *type, *inputs, *listed; // the last as the list names it, with any phase for all of them
    int kind;
    double level; // percent that stand
    int cycles;
};
const Disturbance kDisturbances[] = {
    { "dip", "l1", "L1 DIP", EventDip, 40, 25 },      { "dip", "l2", "L2 DIP", EventDip, 85, 5 },
    { "dip", "l3", "L3 DIP", EventDip, 10, 50 },      { "swell", "l1", "L1 SWL", EventSwell, 115, 10 },
    { "swell", "l2", "L2 SWL", EventSwell, 140, 50 }, { "interruption", "all", " INT", EventInterruption, 0, 30 },
};

/// The state with equal phases, and without what makes the value of a cycle differ from that of the next.
Supply steady(int state)
{
    Supply supply = TestingStates(kRating).state(state);
    QVector<Tone> harmonics;
    for (Tone tone : qAsConst(supply.tones)) {
        if (isHarmonic(supply, tone))
            harmonics.append(tone);
    }
    supply.tones = harmonics;
    for (int phase = 0; phase < kPhases; ++phase) {
        supply.volts[phase] = kRating.volts;
        supply.flicker[phase] = Flicker();
    }
    return supply;
}

} // namespace

class TstStandardEvents : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void listRegistersAndFileHoldTheEvent_data();
    void listRegistersAndFileHoldTheEvent();

private:
    /// An event as one of the three ways tells it; it waits up to a cycle for its zero crossing.
    struct Told
    {
        double start = -1; // s of the signal
        double value = 0, duration = 0; // V, s
    };
    struct Played
    {
        int state = 1;
        const Disturbance *what = nullptr;
        double start = 0, value = 0, hertz = 50;
        Told listed, held;
    };

    void play(Played *played);
    Told listed(const Played &played) const;
    Told held(const Played &played);
    Told recorded(const Played &played);
    static bool isNear(double start, const Played &played, double resolution)
    {
        return std::fabs(start - played.start) <= resolution + 2 / played.hertz;
    }
    static void compare(const Told &told, const Played &played, double digit);

    std::unique_ptr<LiveGraph> m_live;
    std::unique_ptr<ModbusClient> m_master;
    std::unique_ptr<ExportedTables> m_tables;
    QVector<Played> m_played;
};

void TstStandardEvents::initTestCase()
{
    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({}), qPrintable(m_live->desk().error()));
    QVERIFY(LiveGraph::open(QStringLiteral("dips_swells")));
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Dips&Swells"));
    m_master.reset(new ModbusClient(ModbusSlave::port()));
    QVERIFY(LiveGraph::runUntil([] { return g_unitask->aggregation().time > 0; }, 1));
    QVERIFY(RecordedRun::begin(QStringLiteral("Events"), 0));
    LiveGraph::key(Qt::Key_Y); // F2, "Events"
    for (int state = 1; state <= 3; ++state) {
        for (const Disturbance &one : kDisturbances) {
            m_played.append(Played());
            m_played.last().state = state;
            m_played.last().what = &one;
            play(&m_played.last());
            if (QTest::currentTestFailed())
                return;
        }
    }
    QString problem;
    m_tables = ExportedTables::ofRunningRecording(QStringLiteral("Events"), &problem);
    QVERIFY2(m_tables, qPrintable(problem));
}

void TstStandardEvents::cleanupTestCase()
{
    m_live.reset(); // ends the stand-in
}

void TstStandardEvents::play(Played *played)
{
    const Supply supply = steady(played->state);
    const Disturbance &what = *played->what;
    QJsonObject scenario = scenarioOf(supply);
    scenario.insert("events",
                    QJsonArray { QJsonObject { { "at", kAfter },
                                               { "type", what.type },
                                               { "inputs", what.inputs },
                                               { "level", what.level },
                                               { "length", what.cycles / supply.hertz },
                                               { "phase", 0 } } });
    const double begun = LiveGraph::play(scenario);
    QVERIFY(begun > 0);
    played->hertz = supply.hertz;
    played->start = begun + kAfter;
    played->value = what.level / 100 * rmsOf(supply, 0);
    const qint64 end = LiveGraph::startMs() + qint64(1000 * (played->start + what.cycles / supply.hertz + kRecorded));
    QVERIFY(LiveGraph::runUntil([end] { return LiveGraph::measuredUntil() > end; }, 5));
    QTRY_VERIFY_WITH_TIMEOUT(listed(*played).start >= 0, kPatienceMs);
    played->listed = listed(*played);
    played->held = held(*played);
}

/// Of the list on the screen, whose times have no milliseconds.
TstStandardEvents::Told TstStandardEvents::listed(const Played &played) const
{
    Told told;
    const QWidget *page = LiveGraph::subPage(UI_DIPS_SWELLS, dswell::Events);
    const auto *table = page ? page->findChild<EventsWidget *>(QStringLiteral("events")) : nullptr;
    for (int line = 0; table && line < m_taskmanage->data().events().size(); ++line) {
        const QStringList texts = table->lineTexts(line);
        if (texts.size() != 4 || !texts[1].endsWith(QLatin1String(played.what->listed)))
            continue;
        QDateTime time = QDateTime::fromString(texts[0], QStringLiteral("yyyy/MM/dd hh:mm:ss"));
        time.setTimeSpec(Qt::UTC);
        const double start = double(time.toMSecsSinceEpoch() - LiveGraph::startMs()) / 1000;
        const QTime duration = QTime::fromString(texts[3], QStringLiteral("hh:mm:ss:zzz"));
        if (isNear(start, played, 1) && duration.isValid())
            told = { start, texts[2].toDouble(), double(duration.msecsSinceStartOfDay()) / 1000 };
    }
    return told;
}

/// Of the ten rows of the registers.
TstStandardEvents::Told TstStandardEvents::held(const Played &played)
{
    constexpr int kFirst = 5000, kWords = 10;
    Told told;
    for (int row = 0; row < 10; ++row) {
        const QList<quint16> words = m_master->read(kFirst + kWords * row, kWords);
        if (words.size() != kWords || words[0] == 0 || words[1] == 0 || words[2] != played.what->kind)
            continue;
        const double start = double(words[4] | qint64(words[5]) << 16) - double(LiveGraph::startMs() / 1000);
        if (isNear(start, played, 1))
            told = { start, double(LiveGraph::registerFloat(words, 6)),
                     double(qint32(words[8] | quint32(words[9]) << 16)) / 1000 };
    }
    return told;
}

TstStandardEvents::Told TstStandardEvents::recorded(const Played &played)
{
    const QString table = QStringLiteral("events");
    const QVector<ExportedTables::Cell> kinds = m_tables->column(table, QStringLiteral("kind"));
    const QVector<ExportedTables::Cell> values = m_tables->column(table, QStringLiteral("value"));
    const QVector<ExportedTables::Cell> durations = m_tables->column(table, QStringLiteral("duration_ms"));
    Told told;
    for (int i = 0; i < kinds.size(); ++i) {
        const double start = double(kinds[i].time - LiveGraph::startMs()) / 1000;
        if (int(kinds[i].value) == played.what->kind && isNear(start, played, 0))
            told = { start, values[i].value, durations[i].value / 1000 };
    }
    return told;
}

/// Class A: a residual voltage to 0.2 % of the declared one, a duration to a cycle; \a digit is half of the last one.
/// An interruption begins when the cycle behind every phase's value lies in it, and ends with the first value that its
/// end touches: it lasts a cycle less, give or take the half cycle from value to value.
void TstStandardEvents::compare(const Told &told, const Played &played, double digit)
{
    const QString found
        = QStringLiteral("%1 V for %2 s, wanted %3 V").arg(told.value).arg(told.duration).arg(played.value);
    QVERIFY2(told.start >= 0, "there is none");
    QVERIFY2(std::fabs(told.value - played.value) <= kValueError + digit, qPrintable(found));
    const bool isInterruption = played.what->kind == EventInterruption;
    const double cycles = played.what->cycles - (isInterruption ? 1 : 0);
    const double allowed = isInterruption ? 0.5 : 1;
    QVERIFY2(std::fabs(told.duration - cycles / played.hertz) <= allowed / played.hertz + kRounded, qPrintable(found));
}

void TstStandardEvents::listRegistersAndFileHoldTheEvent_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < m_played.size(); ++i)
        QTest::addRow("state %d, %s %s %g %%", m_played[i].state, m_played[i].what->type, m_played[i].what->inputs,
                      m_played[i].what->level)
            << i;
}

void TstStandardEvents::listRegistersAndFileHoldTheEvent()
{
    QFETCH(int, index);
    const Played &played = m_played[index];
    compare(played.listed, played, 0.05);
    if (!QTest::currentTestFailed())
        compare(played.held, played, 0);
    if (!QTest::currentTestFailed())
        compare(recorded(played), played, 0);
}

int main(int argc, char **argv)
{
    return runInInstrument<TstStandardEvents>(argc, argv);
}

#include "tst_standardevents.moc"
