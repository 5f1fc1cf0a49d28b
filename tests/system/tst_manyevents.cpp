// Thousands of events without a pause, in accelerated time.
#include "livegraph.h"

#include "views/dips/dipseventpage.h"
#include "views/dips/dswell.h"
#include "widgets/controls/eventswidget.h"

#include <QFile>

using namespace SystemTest;

namespace {

constexpr int kEvents = 3000;
constexpr int kFirstMs = 40000; // of the signal
constexpr int kEveryMs = 100;
constexpr int kDipMs = 40; // 30 ms of the signal, and the half cycle that the method adds (dip to 50 % at 0 deg)
constexpr double kSpeed = 60;

} // namespace

/// A supply that dips ten times a second, for some thousand times: none is lost, each is right, and what has a limit
/// keeps it.
class TstManyEvents : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void everyDipIsInTheListAndRight();
    void tableAndPageShowTheNewest();
    void trendsKeepTheirLengths();
    void memoryOfAnEventIsThatOfItsCurves();
    void instrumentLivesOn();

private:
    static int residentKilobytes();

    std::unique_ptr<LiveGraph> m_live;
    QList<__event_item> m_listed; // as it was when the last dip had passed
    int m_grownKilobytes = 0;
};

int TstManyEvents::residentKilobytes()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QString text = QString::fromLatin1(file.readAll());
    return text.section(QStringLiteral("VmRSS:"), 1).simplified().section(QLatin1Char(' '), 0, 0).toInt();
}

void TstManyEvents::initTestCase()
{
    const QString path = qEnvironmentVariable("QUVERA_ROOT") + QStringLiteral("/many.json");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(R"({"name": "many", "signal": {"u": 230.0, "f": 50.0, "i": 1.0},
        "events": [{"at": 40.0, "every": 0.1, "type": "dip", "inputs": "l1", "level": 50, "length": 0.03,
                    "phase": 0}]})")
            > 0);
    file.close();
    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({ QStringLiteral("--scenario"), path }), qPrintable(m_live->desk().error()));
    QVERIFY(LiveGraph::open(QStringLiteral("dips_swells")));
    QVERIFY(LiveGraph::setSpeed(0.5));
    QTRY_VERIFY_WITH_TIMEOUT(std::fabs(m_taskmanage->data().live().vif.voltage[0] - 230) < 0.23, kPatienceMs);
    const qint64 end = LiveGraph::startMs() + kFirstMs + qint64(kEvents) * kEveryMs;
    const int before = residentKilobytes();
    QVERIFY(LiveGraph::runUntil([end] { return LiveGraph::measuredUntil() > end; }, kSpeed));
    m_grownKilobytes = residentKilobytes() - before;
    m_listed = QList<__event_item>(m_taskmanage->data().events().begin(), m_taskmanage->data().events().end());
    QCOMPARE(LiveGraph::status(QStringLiteral("dropped")), QStringLiteral("0"));
}

void TstManyEvents::cleanupTestCase()
{
    m_live.reset(); // ends the stand-in
}

void TstManyEvents::everyDipIsInTheListAndRight()
{
    QVERIFY2(m_listed.size() >= kEvents, qPrintable(QString::number(m_listed.size())));
    for (int i = 0; i < kEvents; ++i) {
        const __event_item &event = m_listed.at(i);
        const qint64 begin = LiveGraph::startMs() + kFirstMs + qint64(i) * kEveryMs;
        const QString found = QStringLiteral("event %1: %2 ms late, %3 ms, %4 V")
                                  .arg(i)
                                  .arg(event.startTime - begin)
                                  .arg(event.duration)
                                  .arg(double(event.value));
        QVERIFY2(event.type == EventDip && event.channel == 0 && event.finished == 1, qPrintable(found));
        QVERIFY2(qAbs(event.startTime - begin) <= 10 && qAbs(event.duration - kDipMs) <= 10, qPrintable(found));
        QVERIFY2(std::fabs(double(event.value) - 115) <= 0.23, qPrintable(found));
    }
}

void TstManyEvents::tableAndPageShowTheNewest()
{
    ModbusClient master(ModbusSlave::port());
    const QList<quint16> block = master.read(5000, 100);
    const int count = m_taskmanage->data().events().size();
    QCOMPARE(block.size(), 100);
    for (int row = 0; row < 10; ++row) {
        const __event_item &event = m_taskmanage->data().events().at(count - 10 + row);
        const quint32 seconds = block[10 * row + 4] | quint32(block[10 * row + 5]) << 16;
        QCOMPARE(int(block[10 * row]), 1);
        QCOMPARE(int(block[10 * row + 2]), int(EventDip));
        QCOMPARE(seconds, event.startSeconds);
        QCOMPARE(LiveGraph::registerFloat(block, 10 * row + 6), event.value);
    }
    LiveGraph::key(Qt::Key_Y); // F2, "Events"
    QTRY_VERIFY(
        LiveGraph::text("events_count").endsWith(QStringLiteral("/%1").arg(m_taskmanage->data().events().size())));
    const QWidget *page = LiveGraph::subPage(UI_DIPS_SWELLS, dswell::Events);
    QVERIFY(page);
    const auto *table = dynamic_cast<EventsWidget *>(page->findChild<QWidget *>(QStringLiteral("events")));
    QVERIFY(table);
    QCOMPARE(table->eventsCnt(), m_taskmanage->data().events().size());
    QCOMPARE(table->lineTexts(0).value(1), QStringLiteral("L1 DIP"));
    QCOMPARE(table->lineTexts(kEvents - 1).value(1), QStringLiteral("L1 DIP"));
}

// A minute at 100 values a second.
void TstManyEvents::trendsKeepTheirLengths()
{
    QVERIFY(m_taskmanage->data().live().dips.voltage[0].size() <= 6000 + 100);
}

// Two curves of three seconds, voltage and current, 300 samples of 12 bytes each: 14.4 kB for an event of one phase.
// The rest is what the stream itself takes until its queues and trends have their size.
void TstManyEvents::memoryOfAnEventIsThatOfItsCurves()
{
    constexpr int kCurveBytes = 2 * 2 * 300 * 12;
    constexpr int kRestKilobytes = 48 * 1024;
    const int limit = int(1.2 * m_listed.size() * kCurveBytes / 1024) + kRestKilobytes;
    QVERIFY2(m_grownKilobytes < limit, qPrintable(QStringLiteral("%1 kB, limit %2").arg(m_grownKilobytes).arg(limit)));
}

void TstManyEvents::instrumentLivesOn()
{
    LiveGraph::key(Qt::Key_A); // Menu
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Menu"));
    QVERIFY(!LiveGraph::tell(QStringLiteral("event clear")).isNull());
    QVERIFY(!LiveGraph::tell(QStringLiteral("set u2 207")).isNull());
    QVERIFY(LiveGraph::setSpeed(2));
    ModbusClient master(ModbusSlave::port());
    QTRY_VERIFY_WITH_TIMEOUT(std::fabs(double(LiveGraph::registerFloat(master.read(4, 2), 0)) - 207) <= 0.207,
                             kPatienceMs);
}

int main(int argc, char **argv)
{
    // One phase: its curves take a third of the memory.
    return runInInstrument<TstManyEvents>(argc, argv, { { QStringLiteral("JOINMODE"), QStringLiteral("3") } });
}

#include "tst_manyevents.moc"
