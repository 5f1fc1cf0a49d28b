// Dips, swells, interruptions and inrush of known depth, length and phase: the live list, the page, the Modbus table
// and the true signal tell the same. Run once as a 50 Hz instrument and once as a 60 Hz one (QUVERA_TEST_VARIANT).
#include "livegraph.h"
#include "supplymodel.h"

#include "views/dips/dipseventpage.h"
#include "views/dips/dswell.h"
#include "views/inrush/inrusheventpage.h"
#include "views/inrush/inrushpage.h"
#include "widgets/controls/eventswidget.h"
#include "settings/localtime.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMap>
#include <QTime>

using namespace SystemTest;
using namespace SupplyModel;

namespace {

const double kHertz = ratedHertz();
constexpr double kFirstMoment = 40; // s of the signal; the values have settled long before
constexpr double kSpacing = 3; // s from case to case
constexpr double kValueTolerance = 0.002; // of the value

/// Where nothing is left of a voltage, a share of the nominal one.
double valueTolerance(const Expected &event)
{
    return kValueTolerance * (event.value < 0.01 * kVolts && event.type != EventInrush ? kVolts : event.value);
}

/// Half a cycle in whole milliseconds, as the stamps are.
qint64 halfCycleMs()
{
    return qint64(std::ceil(500.0 / kHertz));
}

QVector<Case> allCases()
{
    QVector<Case> cases;
    const auto add = [&cases](const QByteArray &name, const QVector<Part> &parts) { cases.append({ name, parts }); };
    const auto number = [](double value) { return QByteArray::number(value); };
    // One phase: depth by length, each on another phase and at another point on wave.
    int turn = 0;
    const auto addEach
        = [&](const char *kind, std::initializer_list<double> levels, std::initializer_list<double> lengths) {
              static const char *const kPhases[] = { "l1", "l2", "l3" };
              for (const double level : levels) {
                  for (const double length : lengths) {
                      const char *phase = kPhases[turn % 3];
                      const double angle = 90.0 * (turn % 4);
                      ++turn;
                      add(QByteArray(kind) + ' ' + phase + " to " + number(level) + " % for " + number(1000 * length)
                              + " ms at " + number(angle) + " deg",
                          { { kind, phase, level, length, angle } });
                  }
              }
          };
    addEach("dip", { 85.0, 70.0, 40.0, 10.0 }, { 0.03, 0.1, 0.5 });
    for (const double angle : { 0.0, 45.0, 90.0, 180.0, 270.0 })
        add("dip l1 to 40 % at " + number(angle) + " deg", { { "dip", "l1", 40, 0.1, angle } });
    addEach("swell", { 115.0, 125.0, 140.0 }, { 0.05, 0.3 });
    // Several phases: from the first that falls to the last that returns, with the deepest value of all.
    add("dip of all phases", { { "dip", "all", 60, 0.2, 0 } });
    add("dip of two phases", { { "dip", "l2+l3", 50, 0.15, 180 } });
    add("dip that goes on in another phase", { { "dip", "l1", 70, 0.2, 0 }, { "dip", "l3", 55, 0.3, 0, 0.1 } });
    add("dip that deepens", { { "dip", "l2", 80, 0.4, 0 }, { "dip", "l2", 50, 0.1, 0, 0.2 } });
    add("swell of all phases", { { "swell", "all", 120, 0.2, 0 } });
    add("dip and swell at once", { { "dip", "l1", 50, 0.2, 0 }, { "swell", "l3", 130, 0.3, 0, 0.06 } });
    // Interruptions: all phases without voltage; one or two are a dip only.
    add("interruption", { { "interruption", "all", 0, 0.3, 0 } });
    add("interruption of one second at 90 deg", { { "interruption", "all", 0, 1.0, 90 } });
    add("dip that becomes an interruption",
        { { "dip", "all", 50, 0.3, 0 }, { "interruption", "all", 0, 0.2, 0, 0.2 } });
    add("two phases gone are a dip", { { "interruption", "l1+l2", 0, 0.2, 0 } });
    // What does not reach a level is no event.
    add("no dip at 95 %", { { "dip", "all", 95, 0.2, 0 } });
    add("no swell at 105 %", { { "swell", "all", 105, 0.2, 0 } });
    // Inrush, each current by itself.
    add("inrush of one current", { { "inrush", "l1", 800, 0.1, 0 } });
    add("inrush at the crest", { { "inrush", "l2", 500, 0.2, 90 } });
    add("inrush of all currents", { { "inrush", "all", 600, 0.15, 0 } });
    return cases;
}

double momentOf(int index)
{
    return kFirstMoment + kSpacing * index;
}

/// The scenario that plays the cases; every length is written as it is.
QJsonObject scenarioOf(const QVector<Case> &cases)
{
    QJsonArray events;
    for (int i = 0; i < cases.size(); ++i) {
        for (const Part &part : cases.at(i).parts) {
            QJsonObject event { { QStringLiteral("at"), momentOf(i) + part.after },
                                { QStringLiteral("type"), QString::fromLatin1(part.type) },
                                { QStringLiteral("inputs"), QString::fromLatin1(part.inputs) },
                                { QStringLiteral("level"), part.level },
                                { QStringLiteral("phase"), part.phase } };
            event.insert(part.onCurrents() ? QStringLiteral("decay") : QStringLiteral("length"), part.length);
            events.append(event);
        }
    }
    const QJsonObject signal { { QStringLiteral("u"), kVolts },
                               { QStringLiteral("f"), kHertz },
                               { QStringLiteral("i"), kAmps } };
    return { { QStringLiteral("name"), QStringLiteral("cases") },
             { QStringLiteral("signal"), signal },
             { QStringLiteral("events"), events } };
}

/// A row of the Modbus event table.
struct TableRow
{
    int finished, type, channel;
    quint32 startSeconds;
    float value;
    qint32 duration;
};

} // namespace

/// Events of the simulated supply, as the user and the plant's master see them.
class TstLiveEvents : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void modelGivesWhatOneWorksOutByHand_data();
    void modelGivesWhatOneWorksOutByHand();
    void eventsAreThoseOfTheSignal_data();
    void eventsAreThoseOfTheSignal();
    void nothingElseIsInTheList();
    void modbusTableFollowedEveryChange();
    void listPageCountsItsEvents();

private:
    void readTable();
    void comparePage(const __event_item &event, const Expected &expected, qint64 startMs) const;

    std::unique_ptr<LiveGraph> m_live;
    std::unique_ptr<ModbusClient> m_master;
    const QVector<Case> m_cases = allCases();
    QVector<QVector<Expected>> m_expected; // of each case
    QMap<int, TableRow> m_table; // by the place in the live list: the last row seen of each event
    QStringList m_tableFaults;
    int m_tableReads = 0;
};

void TstLiveEvents::initTestCase()
{
    for (int i = 0; i < m_cases.size(); ++i)
        m_expected.append(Model(kHertz).events(m_cases.at(i), momentOf(i)));
    const QString path = qEnvironmentVariable("QUVERA_ROOT") + QStringLiteral("/cases.json");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray json = QJsonDocument(scenarioOf(m_cases)).toJson();
    QCOMPARE(file.write(json), qint64(json.size()));
    file.close();

    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({ QStringLiteral("--scenario"), path }), qPrintable(m_live->desk().error()));
    QVERIFY(LiveGraph::open(QStringLiteral("dips_swells")));
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Dips&Swells"));
    m_master.reset(new ModbusClient(ModbusSlave::port()));
    QVERIFY(m_master->isConnected());
    // Behind the publisher, which took the signal when the task was made.
    connect(g_unitask, &UniTask::eventTableChanged, this, &TstLiveEvents::readTable);

    // Slowly until gains and ranges are those of the set-up; then as fast as both keep up with.
    QVERIFY(LiveGraph::setSpeed(0.5));
    QTRY_VERIFY_WITH_TIMEOUT(std::fabs(m_taskmanage->data().live().vif.voltage[0] - kVolts) < 0.001 * kVolts,
                             kPatienceMs);
    QVERIFY(LiveGraph::measuredUntil() < LiveGraph::startMs() + qint64(1000 * kFirstMoment) - 1000);
    QCOMPARE(m_taskmanage->data().events().size(), 0);
    const qint64 end = LiveGraph::startMs() + qint64(1000 * momentOf(m_cases.size()));
    QVERIFY(LiveGraph::runUntil([end] { return LiveGraph::measuredUntil() > end; }, 40));
    QCOMPARE(LiveGraph::status(QStringLiteral("dropped")), QStringLiteral("0"));
    QCOMPARE(LiveGraph::status(QStringLiteral("clipped")), QStringLiteral("no"));
}

void TstLiveEvents::cleanupTestCase()
{
    m_live.reset(); // ends the stand-in
}

// At each change of the list the master reads the table: it holds the newest ten events, oldest first.
void TstLiveEvents::readTable()
{
    ++m_tableReads;
    const QList<quint16> block = m_master->read(5000, 100);
    if (block.size() != 100) {
        m_tableFaults << QStringLiteral("no table");
        return;
    }
    const int count = m_taskmanage->data().events().size();
    const int first = qMax(0, count - 10);
    for (int row = 0; row < 10; ++row) {
        const QList<quint16> words = block.mid(10 * row, 10);
        const bool valid = words[0] != 0;
        if (valid != (first + row < count)) {
            m_tableFaults << QStringLiteral("row %1 of %2 events").arg(row).arg(count);
            continue;
        }
        if (!valid)
            continue;
        const TableRow read { words[1],
                              words[2],
                              words[3],
                              words[4] | quint32(words[5]) << 16,
                              LiveGraph::registerFloat(words, 6),
                              qint32(words[8] | quint32(words[9]) << 16) };
        m_table.insert(first + row, read);
        const __event_item &event = m_taskmanage->data().events().at(first + row);
        if (read.finished != event.finished || read.type != event.type || read.channel != event.channel
            || read.startSeconds != event.startSeconds || read.value != event.value || read.duration != event.duration)
            m_tableFaults << QStringLiteral("event %1 differs").arg(first + row);
    }
}

void TstLiveEvents::modelGivesWhatOneWorksOutByHand_data()
{
    QTest::addColumn<double>("level");
    QTest::addColumn<double>("phase");
    QTest::addColumn<double>("startHalfCycles"); // behind the zero crossing of L1 before or at the dip's beginning
    QTest::addColumn<double>("lengthHalfCycles");
    QTest::addColumn<double>("value"); // of the nominal voltage
    // A dip of five cycles of L1 to the part r, U^2 = 1 - (1 - r^2) w, w the share of the cycle's energy in the dip.
    // Phase 0: cycles lie half in the dip at its edges, w = 1/2.
    //   r = 0.4: U = sqrt(1 - 0.84 / 2) = 0.762, below 0.90 and 0.92: from the edge itself to the first whole cycle
    //   behind the other edge, 5 cycles and a half one.
    QTest::newRow("40 % at 0 deg") << 40.0 << 0.0 << 0.0 << 11.0 << 0.4;
    //   r = 0.85: U = sqrt(1 - 0.2775 / 2) = 0.928, not below 0.90 and not below 0.92: only whole cycles count, from
    //   half a cycle behind the one edge to the other edge.
    QTest::newRow("85 % at 0 deg") << 85.0 << 0.0 << 1.0 << 9.0 << 0.85;
    // Phase 90: the edges cut a half wave at its crest, so w = 1/4 and 3/4 by turns. Dip from 1/2 to 10 1/2 half
    // cycles.
    //   r = 0.4: w = 1/4 gives 0.889 < 0.90: the cycle around the zero crossing before the dip counts, and the last is
    //   the one around half cycle 11; half cycle 12 is whole again.
    QTest::newRow("40 % at 90 deg") << 40.0 << 90.0 << 0.0 << 12.0 << 0.4;
    //   r = 0.85: w = 3/4 gives 0.890 < 0.90, w = 1/4 gives 0.965 > 0.92: from half cycle 1 to half cycle 11.
    QTest::newRow("85 % at 90 deg") << 85.0 << 90.0 << 1.0 << 10.0 << 0.85;
}

void TstLiveEvents::modelGivesWhatOneWorksOutByHand()
{
    QFETCH(double, level);
    QFETCH(double, phase);
    QFETCH(double, startHalfCycles);
    QFETCH(double, lengthHalfCycles);
    QFETCH(double, value);
    const Model model(kHertz);
    const double half = model.period() / 2;
    const QVector<Expected> events = model.events({ "by hand", { { "dip", "l1", level, 10 * half, phase } } }, 10);
    QCOMPARE(events.size(), 1);
    QCOMPARE(events[0].type, int(EventDip));
    QCOMPARE(events[0].channels, 1u);
    QVERIFY(std::fabs(events[0].start - 10 - startHalfCycles * half) < 1e-6);
    QVERIFY(std::fabs(events[0].duration - lengthHalfCycles * half) < 1e-6);
    QVERIFY(std::fabs(events[0].value / kVolts - value) < 0.001);
}

void TstLiveEvents::eventsAreThoseOfTheSignal_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < m_cases.size(); ++i)
        QTest::newRow(m_cases.at(i).name.constData()) << i;
}

void TstLiveEvents::eventsAreThoseOfTheSignal()
{
    QFETCH(int, index);
    const QVector<Expected> expected = m_expected.at(index);
    QVector<int> places;
    const qint64 from = LiveGraph::startMs() + qint64(1000 * momentOf(index)) - 200;
    for (int i = 0; i < m_taskmanage->data().events().size(); ++i) {
        const qint64 time = m_taskmanage->data().events().at(i).startTime;
        if (time >= from && time < from + qint64(1000 * kSpacing))
            places.append(i);
    }
    QCOMPARE(places.size(), expected.size());
    QVector<Expected> left = expected;
    for (const int place : qAsConst(places)) {
        const __event_item &event = m_taskmanage->data().events().at(place);
        // Events of several currents begin together, in the order of the inputs.
        int match = -1;
        for (int i = 0; i < left.size() && match < 0; ++i) {
            if (left[i].type == event.type && (left[i].channels & (1u << event.channel)))
                match = i;
        }
        QVERIFY2(match >= 0, qPrintable(QStringLiteral("kind %1, phase %2").arg(event.type).arg(event.channel)));
        const Expected want = left.takeAt(match);
        const qint64 startMs = LiveGraph::startMs() + qint64(std::llround(1000 * want.start));
        const double tolerance = valueTolerance(want);
        const QString found = QStringLiteral("start %1 ms, duration %2 ms, value %3; wanted %4, %5, %6")
                                  .arg(event.startTime - LiveGraph::startMs())
                                  .arg(event.duration)
                                  .arg(double(event.value))
                                  .arg(1000 * want.start)
                                  .arg(1000 * want.duration)
                                  .arg(want.value);
        QCOMPARE(event.finished, 1);
        QVERIFY2(qAbs(event.startTime - startMs) <= halfCycleMs(), qPrintable(found));
        QVERIFY2(std::fabs(event.duration - 1000 * want.duration) <= double(halfCycleMs()), qPrintable(found));
        QVERIFY2(std::fabs(double(event.value) - want.value) <= tolerance, qPrintable(found));
        QCOMPARE(event.endTime - event.startTime, qint64(event.duration));
        QCOMPARE(event.startSeconds, quint32(event.startTime / 1000));

        QVERIFY(m_table.contains(place));
        const TableRow &row = m_table[place];
        QCOMPARE(row.finished, 1);
        QCOMPARE(row.type, want.type);
        QVERIFY(want.channels & (1u << row.channel));
        QVERIFY(qAbs(qint64(row.startSeconds) * 1000 - startMs) < 1000 + halfCycleMs());
        QVERIFY(std::fabs(row.duration - 1000 * want.duration) <= double(halfCycleMs()));
        QVERIFY(std::fabs(double(row.value) - want.value) <= tolerance);

        comparePage(event, want, startMs);
        if (QTest::currentTestFailed())
            return;
    }
}

// The line of the list page: time, kind and phase, level, duration.
void TstLiveEvents::comparePage(const __event_item &event, const Expected &expected, qint64 startMs) const
{
    const bool inrush = expected.type == EventInrush;
    const QWidget *page = inrush ? LiveGraph::subPage(UI_INRUSH, InrushPage::Events)
                                 : LiveGraph::subPage(UI_DIPS_SWELLS, dswell::Events);
    QVERIFY(page);
    const auto *table = dynamic_cast<EventsWidget *>(page->findChild<QWidget *>(QStringLiteral("events")));
    QVERIFY(table);
    int line = 0; // events of the page's own kinds in front of this one
    for (const __event_item &other : m_taskmanage->data().events()) {
        if (other.startTime == event.startTime && other.type == event.type && other.channel == event.channel)
            break;
        line += (other.type == EventInrush) == inrush;
    }
    const QStringList texts = table->lineTexts(line);
    QCOMPARE(texts.size(), 4);
    const QDateTime shown = QDateTime::fromString(texts[0], QStringLiteral("yyyy/MM/dd hh:mm:ss"));
    const QDateTime wanted = LocalTime::toLocalDateTime(QDateTime::fromMSecsSinceEpoch(startMs, Qt::UTC));
    QVERIFY(shown.isValid());
    QVERIFY2(
        qAbs(QDateTime(shown.date(), shown.time(), Qt::UTC).msecsTo(QDateTime(wanted.date(), wanted.time(), Qt::UTC)))
            < 1000 + halfCycleMs(),
        qPrintable(texts[0]));
    static const QMap<int, QString> names { { EventDip, QStringLiteral("DIP") },
                                            { EventSwell, QStringLiteral("SWL") },
                                            { EventInterruption, QStringLiteral("INT") },
                                            { EventInrush, QStringLiteral("INRUSH") } };
    QCOMPARE(texts[1], QStringLiteral("L%1 %2").arg(event.channel + 1).arg(names.value(expected.type)));
    QVERIFY2(std::fabs(texts[2].toDouble() - expected.value) <= valueTolerance(expected) + 0.05, // one decimal
             qPrintable(texts[2]));
    const QTime duration = QTime::fromString(texts[3], QStringLiteral("hh:mm:ss:zzz"));
    QVERIFY(duration.isValid());
    QVERIFY2(std::fabs(duration.msecsSinceStartOfDay() - 1000 * expected.duration) <= double(halfCycleMs()),
             qPrintable(texts[3]));
}

void TstLiveEvents::nothingElseIsInTheList()
{
    int expected = 0;
    for (const QVector<Expected> &events : qAsConst(m_expected))
        expected += events.size();
    QCOMPARE(m_taskmanage->data().events().size(), expected);
    QCOMPARE(m_table.size(), expected);
}

void TstLiveEvents::modbusTableFollowedEveryChange()
{
    QVERIFY(m_tableReads >= 2 * m_taskmanage->data().events().size()); // each event at its beginning and at its end
    QCOMPARE(m_tableFaults, QStringList());
}

void TstLiveEvents::listPageCountsItsEvents()
{
    int dips = 0;
    for (const __event_item &event : m_taskmanage->data().events())
        dips += event.type != EventInrush;
    LiveGraph::key(Qt::Key_Y); // F2, "Events"
    QTRY_VERIFY(LiveGraph::text("events_count").endsWith(QStringLiteral("/%1").arg(dips)));
    LiveGraph::key(Qt::Key_L); // F5, "Back"
    QTRY_COMPARE(LiveGraph::text("btn_f2"), QStringLiteral("Events"));
}

int main(int argc, char **argv)
{
    QList<QPair<QString, QString>> settings;
    if (kHertz == 60)
        settings.append({ QStringLiteral("NOM_FREQ"), QStringLiteral("2") });
    return runInInstrument<TstLiveEvents>(argc, argv, settings);
}

#include "tst_liveevents.moc"
