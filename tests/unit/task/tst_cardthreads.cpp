// The main thread, which draws the screen and measures, waits for no card: whatever a run of any writer asks of it
// there is short, and no more for thousands of events than for a few. Told by the calls, not by a clock.
#include <QTest>

#include "cardcalls.h"
#include "settings/loggerinfo.h"
#include "settings/monitorinfo.h"
#include "settings/recordinfo.h"
#include "settings/waveinfo.h"
#include "task/recordopening.h"
#include "unit/storage/rootfiles.h"
#include "unitaskcase.h"

#include <algorithm>
#include <atomic>
#include <dlfcn.h>
#include <functional>
#include <unistd.h>

static std::atomic<int> s_removedByMain { 0 }; // files and folders, by their place in a folder

// What removes whole folders calls this one.
extern "C" int unlinkat(int folder, const char *path, int flags) noexcept
{
    static const auto real = reinterpret_cast<int (*)(int, const char *, int)>(::dlsym(RTLD_NEXT, "unlinkat"));
    s_removedByMain += ::gettid() == ::getpid();
    return real(folder, path, flags);
}

namespace {

constexpr int kFew = 5;
constexpr int kMany = 10'000; // as many as a measurement keeps
constexpr int kMostBytes = 2 << 20; // a card takes them into the system's memory within a hundredth of a second

/// What the main thread did meanwhile.
struct Piece
{
    int calls = 0;
    int waits = 0; // writing out, removing
    qint64 bytes = 0;
};

Piece pieceOf(const std::function<void()> &work)
{
    const int before = CardCalls::taken().size();
    s_removedByMain = 0;
    work();
    Piece piece;
    piece.waits = s_removedByMain;
    for (const CardCalls::Call &call : CardCalls::taken().mid(before)) {
        if (!call.onMainThread)
            continue;
        ++piece.calls;
        piece.bytes += call.bytes.size();
        piece.waits += call.kind == CardCalls::Call::Sync || call.kind == CardCalls::Call::SyncAll
            || call.kind == CardCalls::Call::Remove;
    }
    return piece;
}

/// The pieces of one run, in the order in which they follow each other.
using Pieces = QList<Piece>;

} // namespace

class TstCardThreads : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Pqa2FF::setOpening(recordOpening); }
    void init();
    void cleanup();
    void noWriterLetsTheMainThreadWait_data();
    void noWriterLetsTheMainThreadWait();
    void settingsAreWrittenOutByWhoeverStoresThem();

private:
    void addEvents(int count);
    void feed(qint64 from, qint64 to);
    /// A run with so many events in it, kept or discarded at its end.
    Pieces recorder(int events, bool keep);
    Pieces function(AbstractTask::UniFunction which, int events, bool keep);

    std::unique_ptr<UniTask> m_task;
};

void TstCardThreads::init()
{
    RootFiles::clean();
    renewRecords();
    m_userConfig_g.setTimeZone(QStringLiteral("UTC"));
    *RecordInfo::m_record_file = QStringLiteral("Logger_1");
    RecordInfo::m_begain_time = MonitorInfo::m_begain_time = LoggerInfo::m_begain_time = WaveInfo::m_begain_time = 0;
    RecordInfo::m_interval_index = 0;
    RecordInfo::m_recordItems = 0xFFFF;
    *MonitorInfo::m_monitor_file = QStringLiteral("Monitor-1");
    *LoggerInfo::m_logger_file = QStringLiteral("Plant");
    LoggerInfo::m_paramselected = 0xFFFFFFF;
    LoggerInfo::m_interval_index = 0;
    *WaveInfo::m_wave_file = QStringLiteral("Wave_1");
    WaveInfo::m_sample_index = 0;
    WaveInfo::m_duration = 600;
    WaveInfo::initPointsNumbs(50.0);
}

void TstCardThreads::cleanup()
{
    m_task.reset();
    CardCalls::end();
    dropRecords();
    LoggerInfo::m_logger_file->clear();
    WaveInfo::m_wave_file->clear();
}

void TstCardThreads::addEvents(int count)
{
    PQAEventItem event;
    event.type = EventDip;
    event.finished = 1;
    event.startTime = event.endTime = kNow;
    for (int input = 0; input < 7; ++input)
        event.startRms[input].fill({ kNow, 115.0f }, 300); // shared by all of them
    for (int i = 0; i < count; ++i)
        liveData().events().append(event);
}

void TstCardThreads::feed(qint64 from, qint64 to)
{
    for (qint64 at = kNow + from; at < kNow + to; at += 200) {
        Clock::advance(at - Clock::msecs());
        Payload values = aggregation();
        values.set(0, quint32(at)).set(1, quint32(quint64(at) >> 32));
        m_task->datagramAggregation(values.bytes());
        m_task->datagramWave(wave(0, at).bytes());
    }
}

Pieces TstCardThreads::recorder(int events, bool keep)
{
    Pieces pieces;
    m_task = std::make_unique<UniTask>(liveData());
    m_task->initUniFunction(AbstractTask::UniBasic);
    m_task->startTask();
    addEvents(events);
    CardCalls::begin();
    pieces << pieceOf([this] {
        m_task->initRecording();
        m_task->enableRecord();
        feed(10'000, 10'200);
    });
    pieces << pieceOf([this] { m_task->recorder().beat(); });
    pieces << pieceOf([this] { m_task->stopRecordTask(); });
    pieces << pieceOf([this, keep] { m_task->saveRecord(keep); });
    RootFiles::waitForDisks();
    CardCalls::end();
    return pieces;
}

Pieces TstCardThreads::function(AbstractTask::UniFunction which, int events, bool keep)
{
    Pieces pieces;
    m_task = std::make_unique<UniTask>(liveData());
    CardCalls::begin();
    pieces << pieceOf([this, which] {
        m_task->initUniFunction(which);
        m_task->startTask();
    });
    addEvents(events);
    pieces << pieceOf([this] { feed(0, 200); });
    pieces << pieceOf([this] { m_task->tick(); });
    pieces << pieceOf([this, keep] {
        if (!keep)
            m_task->save(false);
        m_task->stopTask();
    });
    RootFiles::waitForDisks();
    CardCalls::end();
    return pieces;
}

void TstCardThreads::noWriterLetsTheMainThreadWait_data()
{
    QTest::addColumn<int>("which"); // 1: the recorder, inside basic measuring
    QTest::addColumn<bool>("keep");
    for (const bool keep : { true, false }) {
        const char *end = keep ? "saved" : "discarded";
        QTest::addRow("recorder, %s", end) << int(AbstractTask::UniBasic) << keep;
        QTest::addRow("monitor, %s", end) << int(AbstractTask::UniMonitor) << keep;
        QTest::addRow("logger, %s", end) << int(AbstractTask::UniLogger) << keep;
        QTest::addRow("capture, %s", end) << int(AbstractTask::UniWave) << keep;
    }
}

void TstCardThreads::noWriterLetsTheMainThreadWait()
{
    QFETCH(int, which);
    QFETCH(bool, keep);
    const auto run = [&](int events) {
        RootFiles::clean();
        renewRecords();
        return which == AbstractTask::UniBasic ? recorder(events, keep)
                                               : function(AbstractTask::UniFunction(which), events, keep);
    };
    const Pieces few = run(kFew), many = run(kMany);
    QCOMPARE(many.size(), few.size());
    int calls = 0;
    for (int i = 0; i < many.size(); ++i) {
        const QByteArray piece = "piece " + QByteArray::number(i) + ": ";
        QVERIFY2(many[i].waits == 0 && few[i].waits == 0, piece + QByteArray::number(many[i].waits) + " waits");
        QVERIFY2(many[i].bytes < kMostBytes, piece + QByteArray::number(many[i].bytes) + " bytes");
        // Some events fit into the first slice of a recording; thousands go slice by slice.
        const int more = which == AbstractTask::UniBasic && i == 1 ? 300 : 0;
        QVERIFY2(many[i].calls <= few[i].calls + more,
                 piece + QByteArray::number(many[i].calls) + " calls, not " + QByteArray::number(few[i].calls));
        calls += many[i].calls;
    }
    QVERIFY(calls >= 2); // it was looked at
}

/// That the main thread's own calls are known as such.
void TstCardThreads::settingsAreWrittenOutByWhoeverStoresThem()
{
    CardCalls::begin();
    const Piece piece = pieceOf([] {
        m_settingConfig_g.setJoinMode(2);
        m_settingConfig_g.setJoinMode(1);
    });
    CardCalls::end();
    QVERIFY(piece.waits >= 2);
}

QTEST_GUILESS_MAIN(TstCardThreads)
#include "tst_cardthreads.moc"
