#include "monitorrun.h"
#include "unit/wildfloats.h"
#include "unitaskcase.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

using MonitorCase::Run;

namespace {

constexpr int kValuesOfTwoHours = 12;

} // namespace

/// The monitor inside its task: what reaches it, and how it ends the run.
class TstMonitorTask : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aggregationsReachTheMonitorWithTheWaveBehindThem();
    void tenMinutesRefreshThePages();
    void enoughValuesEndTheRun();
    void runOfTwoHoursShowsItsLongTermFlicker();
    void taskMayBeDroppedWhenItHasEnough();
    void onHoldNoSecondsPassAndTheSumsGoOn();
    void fileIsWholeWhenTheEndIsHeardOf();
    void savedRunIsEndedOnce();
    void transientsAreStoredAsTheyCome();
    void plannedRunThatIsGivenUpEndsItsFile();
    void endOfTheFileHoldsAllOfTenThousandEvents();
    void anyPayloadInAnyWiringLeavesTheTrendsBounded();

private:
    void start()
    {
        m_task->initUniFunction(AbstractTask::UniMonitor);
        m_task->startTask();
    }
    void supply(float frequency)
    {
        m_task->datagramAggregation(aggregation(frequency).bytes());
        m_task->datagramWave(wave().bytes());
    }
    void pass(int seconds)
    {
        for (int i = 0; i < seconds; ++i)
            m_task->tick();
    }
    void fillTrend()
    {
        for (int i = 0; i < kValuesOfTwoHours; ++i)
            live().monitorTrend.append(MonitorTrendVoltage, 230);
    }
    std::unique_ptr<UniTask> m_task;
};

void TstMonitorTask::init()
{
    RootFiles::clean();
    renewRecords();
    MonitorInfo::m_duration = 2;
    m_task = std::make_unique<UniTask>(liveData());
}

void TstMonitorTask::cleanup()
{
    m_task.reset();
    dropRecords();
}

void TstMonitorTask::aggregationsReachTheMonitorWithTheWaveBehindThem()
{
    start();
    m_task->datagramAggregation(aggregation(-49).bytes()); // no lock: the magnitude counts
    m_task->datagramWave(wave().bytes());
    m_task->datagramWave(wave().bytes()); // none that is new
    m_task->datagramAggregation(aggregation(53).bytes()); // overtaken before a wave: it counts, too
    supply(51);
    pass(10);
    QCOMPARE(live().monitor.freqMax, 51.0f);
}

void TstMonitorTask::tenMinutesRefreshThePages()
{
    start();
    QSignalSpy refresh(m_task.get(), &UniTask::updateDisplay);
    supply(50);
    pass(599);
    QCOMPARE(refresh.count(), 0);
    pass(1);
    QCOMPARE(refresh.count(), 1);
    QCOMPARE(live().monitor.voltReady, 1);
    QVERIFY(live().monitorTrend.row[MonitorTrendVoltage].first() > 1);
}

void TstMonitorTask::enoughValuesEndTheRun()
{
    start();
    pass(1);
    QVERIFY(m_task->isTaskRunning());
    fillTrend();
    pass(1);
    QVERIFY(m_task->isTaskStoped());
    QCOMPARE(Run::kinds(), QList<quint32>({ 0xA1000018, 0xA1000019 }));
    pass(30); // and nothing more
    QCOMPARE(Run::kinds().size(), 2);
}

void TstMonitorTask::runOfTwoHoursShowsItsLongTermFlicker()
{
    constexpr int kPerSecond = 4; // flicker datagrams
    Payload steady(Link::kFlickerWords);
    for (int word = 2; word < Link::kFlickerWords; ++word)
        steady.set(word, 1.0f);
    const QByteArray bytes = steady.bytes();
    start();
    int shown = 0;
    connect(m_task.get(), &UniTask::updateDisplay, this, [&shown] { shown = live().monitor.flickerReady; });
    for (int i = 1; !m_task->isTaskStoped(); ++i) {
        m_task->datagramFlicker(bytes);
        if (i % kPerSecond == 1)
            m_task->tick();
    }
    // The last interval lacks three datagrams: it is judged because it is nearly full.
    const QList<quint32> kinds = Run::kinds();
    QCOMPARE(kinds.count(0xA1010002), kValuesOfTwoHours);
    QCOMPARE(kinds.mid(kinds.size() - 3), QList<quint32>({ 0xA1010002, 0xA1010003, 0xA1000019 }));
    QCOMPARE(live().monitorTrend.row[MonitorTrendPlt].size(), 1);
    QCOMPARE(shown, 1);
}

void TstMonitorTask::taskMayBeDroppedWhenItHasEnough()
{
    start();
    QPointer<UniTask> task = m_task.get();
    connect(m_task.get(), QOverload<>::of(&AbstractTask::taskStoped), this, [this] { m_task.release()->retire(); });
    fillTrend();
    task->tick();
    QTRY_VERIFY(task.isNull());
    QVERIFY(!m_task);
}

void TstMonitorTask::onHoldNoSecondsPassAndTheSumsGoOn()
{
    start();
    supply(49);
    pass(9);
    m_task->pauseTask();
    pass(50);
    supply(51);
    QCOMPARE(live().monitor.freqReady, 0);
    m_task->continueTask();
    pass(1);
    QCOMPARE(live().monitor.freqMax, 50.0f);
}

void TstMonitorTask::fileIsWholeWhenTheEndIsHeardOf()
{
    start();
    QList<quint32> atTheEnd;
    connect(m_task.get(), QOverload<>::of(&AbstractTask::taskStoped), this, [&] { atTheEnd = Run::kinds(); });
    m_task->stopTask();
    QCOMPARE(atTheEnd, QList<quint32>({ 0xA1000018, 0xA1000019 }));
}

void TstMonitorTask::savedRunIsEndedOnce()
{
    for (bool keep : { true, false }) {
        init();
        start();
        m_task->save(keep); // the monitor's data stays, whatever is asked
        m_task->stopTask();
        m_task->save(keep);
        QCOMPARE(Run::kinds(), QList<quint32>({ 0xA1000018, 0xA1000019 }));
    }
}

void TstMonitorTask::transientsAreStoredAsTheyCome()
{
    start();
    m_task->datagramAggregation(aggregation(-50.1f).bytes());
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    m_task->datagramWave(wave((5u << 24) | 2000).bytes()); // of no channel
    QCOMPARE(Run::kinds(), QList<quint32>({ 0xA1000018, 0xA1000025 }));
    const QByteArray payload = Run::blocks().last().payload; // time, frequency, position, 600 samples
    QCOMPARE(payload.size(), 8 + 4 + 4 + 1200);
    float frequency = 0;
    quint32 position = 0;
    std::memcpy(&frequency, payload.constData() + 8, sizeof frequency);
    std::memcpy(&position, payload.constData() + 12, sizeof position);
    QCOMPARE(frequency, 50.1f);
    QCOMPARE(position, (2u << 24) | 301u);
}

void TstMonitorTask::plannedRunThatIsGivenUpEndsItsFile()
{
    m_task->initUniFunction(AbstractTask::UniMonitor);
    m_task->preStartTask();
    QVERIFY(!Run::kinds().contains(0xA1000018));
    m_task->stopTask();
    QCOMPARE(Run::kinds(), QList<quint32>({ 0xA1000019 }));
}

void TstMonitorTask::endOfTheFileHoldsAllOfTenThousandEvents()
{
    start();
    for (int i = 0; i < 10001; ++i)
        liveData().events().append({});
    m_task->stopTask();
    QCOMPARE(Run::kinds().count(0xA1010080), 10001);
    QCOMPARE(Run::kinds().last(), 0xA1000019u);
}

void TstMonitorTask::anyPayloadInAnyWiringLeavesTheTrendsBounded()
{
    MonitorInfo::m_duration = 10000;
    quint32 pick = 1;
    const auto next = [&pick](std::size_t of) {
        pick = pick * 1664525u + 1013904223u;
        return (pick >> 8) % of;
    };
    for (int joinMode = 1; joinMode <= 10; ++joinMode) {
        m_settingConfig_g.setJoinMode(joinMode);
        m_task = std::make_unique<UniTask>(liveData());
        start();
        for (int i = 0; i < 40; ++i) {
            Payload payload(Link::kAggregationWords, i % 3 ? kNow + i : -1 - qint64(i) * kNow);
            for (int word = 2; word < Link::kAggregationWords; ++word)
                payload.set(word, next(4) ? float(next(1000)) : kWildFloats[next(std::size(kWildFloats))]);
            m_task->datagramAggregation(payload.bytes());
            m_task->datagramWave(wave().bytes());
            pass(300);
        }
        for (const QList<float> &row : live().monitorTrend.row)
            QVERIFY(row.size() <= 20);
        QCOMPARE(live().monitorTrend.row[MonitorTrendVoltage].size(), 20);
        m_task->stopTask();
        QVERIFY(Run::kinds().contains(0xA1010006));
        RootFiles::clean();
    }
    m_settingConfig_g.setJoinMode(1);
}

QTEST_GUILESS_MAIN(TstMonitorTask)
#include "tst_monitortask.moc"
