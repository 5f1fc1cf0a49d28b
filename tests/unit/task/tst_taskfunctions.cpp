#include "task/eventwave.h"
#include "task/functions/taskfunction.h"
#include "storedblocks.h"
#include "unitaskcase.h"

#include <QTest>

namespace {

/// Writes down what it hears.
class Listener : public TaskFunction
{
public:
    void start() override { heard << "start"; }
    void measure() override { heard << "measure"; }
    void aggregation(const __datagram_aggregation &record) override
    {
        heard << QStringLiteral("aggregation %1").arg(double(record.frequency));
    }
    void second() override { heard << "second"; }
    void tick() override { heard << "tick"; }
    void halfCycles(const __datagram_rms &) override { heard << "half cycles"; }
    void wave(const __datagram_wave &) override
    {
        heard << "wave";
        if (onWave)
            onWave();
    }
    void flicker(const __datagram_flicker &, const FlickerOutput &) override { heard << "flicker"; }
    void transient(const __trans_data &record) override { heard << QStringLiteral("transient %1").arg(record.number); }
    void eventComplete(const PQAEventItem &event) override { heard << QStringLiteral("event %1").arg(event.type); }
    void eventWave(const EventWave &wave, const ChannelSet &) override
    {
        heard << QStringLiteral("event wave %1").arg(wave.time - kNow);
    }
    void stop(Keep keep) override
    {
        heard << (keep == Keep::Data ? "stop" : "stop, nothing kept");
        if (onStop)
            onStop();
    }

    QStringList take() { return std::exchange(heard, {}); }

    QStringList heard;
    std::function<void()> onWave;
    std::function<void()> onStop;
};

} // namespace

/// What the functions of a measurement hear of it.
class TstTaskFunctions : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void functionHearsWhatArrivesInItsOrder();
    void eachAggregationIsHeardOnceAtTheLatestWithTheWaveBehindIt();
    void functionsHearNothingOfEachOther();
    void functionHearsNothingBeforeAndAfterItsPart();
    void functionMayEndOthersAndTheTaskInACall();
    void endOfTheRunEndsEachOnceBeforeAnyoneElseHearsOfIt();
    void savedFunctionEndsWithWhatTheUserKeeps();
    void basicMeasuringGoesOnWhenItsRecordingEnds();
    void recorderHearsOnlyInsideTheRecordingWindow();
    void monitorEndsItsFileWithTheHeadsOfAllEvents();
    void changeOfTheFunctionEndsTheFormerOne();
    void chosenFunctionHearsWhenItsRunMeasures();
    void secondsPassWhetherDataComesOrNotAndNotOnHold();

private:
    void start(AbstractTask::UniFunction function = AbstractTask::UniBasic)
    {
        m_task->initUniFunction(function);
        m_task->startTask();
    }
    std::unique_ptr<UniTask> m_task;
    Listener m_listener;
};

void TstTaskFunctions::init()
{
    renewRecords();
    m_listener.heard.clear();
    m_listener.onWave = nullptr;
    m_listener.onStop = nullptr;
    m_task = std::make_unique<UniTask>(liveData());
}

void TstTaskFunctions::cleanup()
{
    m_task.reset();
    dropRecords();
}

void TstTaskFunctions::functionHearsWhatArrivesInItsOrder()
{
    start();
    m_task->begin(&m_listener);
    QCOMPARE(m_listener.take(), QStringList({ "start" }));
    m_task->datagramAggregation(aggregation(-50.5f).bytes());
    QCOMPARE(m_listener.take(), QStringList());
    m_task->datagramRMS_1_2(halfCycles(10, 1.5f, 0.001f).bytes()); // a dip
    QCOMPARE(m_listener.take(), QStringList({ "half cycles" }));
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    QCOMPARE(m_listener.take(), QStringList({ "aggregation 50.5", "transient 1", "wave" }));
    Clock::advance(1000);
    m_task->datagramAggregation(aggregation().bytes());
    m_task->datagramWave(wave(0, kNow + 200).bytes());
    QCOMPARE(m_listener.take(), QStringList({ "aggregation 50", "second", "event wave 0", "wave" }));
    m_task->datagramFlicker(Payload(Link::kFlickerWords).bytes());
    QCOMPARE(m_listener.take(), QStringList({ "flicker" }));
    for (int i = 1; i <= 20; ++i)
        m_task->datagramRMS_1_2(halfCycles(30, 2.9f, 0.001f, kNow + 300 * i).bytes());
    QCOMPARE(m_listener.heard.count("half cycles"), 20);
    QCOMPARE(m_listener.heard.count(QStringLiteral("event %1").arg(EventDip)), 1);
}

void TstTaskFunctions::eachAggregationIsHeardOnceAtTheLatestWithTheWaveBehindIt()
{
    start();
    m_task->begin(&m_listener);
    m_listener.take();
    m_task->datagramWave(wave().bytes());
    QCOMPARE(m_listener.take(), QStringList({ "wave" })); // none came yet
    m_task->datagramAggregation(aggregation(49).bytes());
    m_task->datagramAggregation(aggregation(51).bytes());
    m_task->datagramWave(wave().bytes());
    m_task->datagramWave(wave().bytes());
    // Two between two waves: above the nominal frequency. Each is heard, and each once.
    QCOMPARE(m_listener.take(), QStringList({ "aggregation 49", "aggregation 51", "wave", "wave" }));
}

void TstTaskFunctions::functionsHearNothingOfEachOther()
{
    // Beside basic measuring's own: each hears all, whoever was first.
    start();
    Listener second;
    m_task->begin(&m_listener);
    m_task->begin(&second);
    m_task->begin(&second); // it runs already
    m_task->datagramAggregation(aggregation().bytes());
    m_task->datagramWave(wave().bytes());
    const QStringList all { "start", "aggregation 50", "wave" };
    QCOMPARE(m_listener.take(), all);
    QCOMPARE(second.take(), all);
    m_task->end(&m_listener, Keep::Nothing);
    m_task->datagramWave(wave().bytes());
    QCOMPARE(m_listener.take(), QStringList({ "stop, nothing kept" }));
    QCOMPARE(second.take(), QStringList({ "wave" }));
    m_task->end(&second, Keep::Data);
}

void TstTaskFunctions::functionHearsNothingBeforeAndAfterItsPart()
{
    m_task->begin(&m_listener);
    m_listener.take();
    m_task->datagramAggregation(aggregation().bytes()); // the task waits
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    QCOMPARE(m_listener.take(), QStringList());
    start();
    m_listener.take();
    m_task->begin(&m_listener);
    m_task->pauseTask(); // it goes on behind a hold
    m_task->datagramWave(wave().bytes());
    QCOMPARE(m_listener.take(), QStringList({ "start", "wave" }));
    m_task->stopTask();
    m_task->datagramWave(wave().bytes());
    QCOMPARE(m_listener.take(), QStringList({ "stop" }));
}

void TstTaskFunctions::functionMayEndOthersAndTheTaskInACall()
{
    start();
    Listener other;
    m_task->begin(&m_listener);
    m_task->begin(&other);
    m_listener.onWave = [&] { m_task->end(&other, Keep::Data); };
    m_task->datagramWave(wave().bytes());
    QCOMPARE(other.take(), QStringList({ "start", "stop" }));

    m_task->begin(&other);
    other.take();
    m_listener.take();
    m_listener.onWave = [&] { m_task->stopTask(); }; // as a monitor that has enough
    m_task->datagramWave(wave().bytes());
    QCOMPARE(m_listener.take(), QStringList({ "wave", "stop" }));
    QCOMPARE(other.take(), QStringList({ "stop" }));
}

void TstTaskFunctions::endOfTheRunEndsEachOnceBeforeAnyoneElseHearsOfIt()
{
    start();
    liveData().events().append({});
    m_task->begin(&m_listener);
    m_listener.take();
    int events = -1;
    bool over = true;
    m_listener.onStop = [&] {
        events = liveData().events().size();
        over = liveData().events().isOver();
    };
    QStringList heardAtTheEnd;
    connect(m_task.get(), QOverload<>::of(&AbstractTask::taskStoped), this, [&] { heardAtTheEnd = m_listener.heard; });
    m_task->stopTask();
    m_task->stopTask();
    QCOMPARE(heardAtTheEnd, QStringList({ "stop" }));
    QCOMPARE(m_listener.take(), QStringList({ "stop" }));
    QCOMPARE(events, 1);
    QVERIFY(!over);
    QVERIFY(liveData().events().isOver());
}

void TstTaskFunctions::savedFunctionEndsWithWhatTheUserKeeps()
{
    for (bool keep : { true, false }) {
        init();
        start(AbstractTask::UniMonitor);
        m_task->begin(&m_listener);
        m_listener.take();
        m_task->save(keep);
        m_task->stopTask();
        QCOMPARE(m_listener.take(), QStringList({ keep ? "stop" : "stop, nothing kept" }));
    }
}

void TstTaskFunctions::basicMeasuringGoesOnWhenItsRecordingEnds()
{
    start();
    m_task->begin(&m_listener);
    m_listener.take();
    m_task->save(false);
    QCOMPARE(m_listener.take(), QStringList());
    Clock::advance(1000);
    m_task->datagramAggregation(aggregation().bytes());
    m_task->datagramWave(wave().bytes());
    QCOMPARE(live().vif.trend[VifTrendURms].series[0].size(), 1);
    m_task->stopTask();
}

void TstTaskFunctions::recorderHearsOnlyInsideTheRecordingWindow()
{
    start();
    m_task->datagramWave(wave().bytes());
    m_task->startRecordTask();
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    m_task->stopRecordTask();
    m_task->datagramWave(wave((2u << 24) | 2000).bytes());
    QCOMPARE(recordedBlocks(m_task->recorder(), 0xA1000025u).size(), 1);
    QCOMPARE(liveData().transients().size(), 2);
}

void TstTaskFunctions::monitorEndsItsFileWithTheHeadsOfAllEvents()
{
    Pqa2FF file("/tmp/monitor.pqa2");
    QVERIFY(file.open());
    start(AbstractTask::UniMonitor);
    m_task->monitor().file().set(&file);
    m_task->datagramRMS_1_2(halfCycles(10, 1.5f, 0.001f).bytes()); // a dip that runs
    m_task->stopTask();
    m_task->monitor().file().set(nullptr);
    const QList<ReadBlock> blocks = storedBlocks(file);
    QCOMPARE(blocks.size(), 2); // then the time
    QCOMPARE(blocks[0].type, 0xA1010080u);
    QCOMPARE(blocks[0].payload.size(), 32);
    QCOMPARE(blocks[1].type, 0xA1000019u);
}

void TstTaskFunctions::changeOfTheFunctionEndsTheFormerOne()
{
    start();
    m_task->begin(&m_listener);
    m_listener.take();
    m_task->initUniFunction(AbstractTask::UniWave);
    QCOMPARE(m_listener.take(), QStringList({ "stop" }));
    m_task->datagramWave(wave().bytes());
    QCOMPARE(m_listener.take(), QStringList());
}

void TstTaskFunctions::chosenFunctionHearsWhenItsRunMeasures()
{
    m_task->begin(&m_listener); // chosen, the run is still to come
    QCOMPARE(m_listener.take(), QStringList({ "start" }));
    m_task->startTask();
    QCOMPARE(m_listener.take(), QStringList({ "measure" }));
    m_task->end(&m_listener, Keep::Data);
    m_listener.take();
    m_task->begin(&m_listener); // in the midst of it
    QCOMPARE(m_listener.take(), QStringList({ "start" }));
}

void TstTaskFunctions::secondsPassWhetherDataComesOrNotAndNotOnHold()
{
    m_task->begin(&m_listener);
    m_task->tick(); // it waits
    QCOMPARE(m_listener.take(), QStringList({ "start" }));
    m_task->startTask();
    m_listener.take();
    m_task->tick();
    m_task->pauseTask();
    m_task->tick();
    m_task->continueTask();
    m_task->tick();
    QCOMPARE(m_listener.take(), QStringList({ "tick", "tick" }));
    QCOMPARE(m_task->secondTimer().interval(), 1000);
    QTRY_VERIFY_WITH_TIMEOUT(!m_listener.heard.isEmpty(), 30000); // by the clock
    QCOMPARE(m_listener.heard.count("tick"), m_listener.heard.size());
    m_task->stopTask();
    m_listener.take();
    m_task->tick();
    QCOMPARE(m_listener.take(), QStringList());
}

QTEST_GUILESS_MAIN(TstTaskFunctions)
#include "tst_taskfunctions.moc"
