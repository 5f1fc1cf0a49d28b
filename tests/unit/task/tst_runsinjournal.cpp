// Runs stand in the journal from the opening of their files to the end of them.
#include <QTest>

#include <mutex>

#include "monitorrun.h"
#include "recorderrun.h"
#include "settings/loggerinfo.h"
#include "settings/monitorinfo.h"
#include "settings/waveinfo.h"
#include "storage/runjournal.h"
#include "unitaskcase.h"

namespace {

QByteArray journal()
{
    RootFiles::waitForDisks();
    return RootFiles::read(RunJournal::path());
}

const QByteArray kNone("(missing)");

} // namespace

class TstRunsInJournal : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_userConfig_g.setTimeZone(QStringLiteral("UTC")); }
    void cleanup() { Clock::useSystem(); }

    void aRecordingStandsThereUntilItsFilesAreClosed()
    {
        RecorderRun run;
        run.recorder().start();
        QCOMPARE(journal(), QByteArray("231114_221320 Logger_1\n"));
        run.take(10, 200);
        run.recorder().stop(Keep::Data);
        QCOMPARE(journal(), kNone);
        run.recorder().folder().release();
    }

    void aDiscardedRecordingIsNotTold()
    {
        RecorderRun run;
        run.recorder().start();
        run.recorder().folder().remove();
        run.recorder().stop(Keep::Data);
        QCOMPARE(journal(), kNone);
    }

    void aRecordingWhoseEventsAreStillBeingWrittenStandsThere()
    {
        RecorderRun run;
        PQAEventItem event {};
        event.finished = 1;
        for (int i = 0; i < 3; ++i)
            run.data().events().append(event);
        run.recorder().start();
        DiskWorker::slow().wait();
        std::mutex held;
        held.lock();
        DiskWorker::slow().run([&held] { const std::lock_guard<std::mutex> wait(held); });
        run.recorder().stop(Keep::Data);
        DiskWorker::instance().wait();
        QCOMPARE(RootFiles::read(RunJournal::path()), QByteArray("231114_221320 Logger_1\n"));
        held.unlock();
        QCOMPARE(journal(), kNone);
    }

    void aMonitorStandsThereUntilItsFileIsClosed()
    {
        MonitorCase::beginCase();
        {
            MonitorCase::Run run;
            run.m_function->start();
            QCOMPARE(journal(), QByteArray("231114_221320 Monitor-EN50160-1\n"));
            run.m_function->measure();
            run.m_function->stop(Keep::Data);
            QCOMPARE(journal(), kNone);
        }
        MonitorCase::endCase();
    }

    void aRunThatWaitsForItsTimeIsPlannedThere_data()
    {
        QTest::addColumn<int>("function");
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("wave") << int(AbstractTask::UniWave) << QByteArray("Wave_7");
        QTest::newRow("logger") << int(AbstractTask::UniLogger) << QByteArray("Log_7");
        QTest::newRow("monitor") << int(AbstractTask::UniMonitor) << QByteArray("Monitor_7");
    }
    void aRunThatWaitsForItsTimeIsPlannedThere()
    {
        QFETCH(int, function);
        QFETCH(QByteArray, name);
        RootFiles::clean();
        renewRecords();
        *WaveInfo::m_wave_file = QStringLiteral("Wave_7");
        *LoggerInfo::m_logger_file = QStringLiteral("Log_7");
        *MonitorInfo::m_monitor_file = QStringLiteral("Monitor_7");
        const auto planned = [&](quint32 start) {
            WaveInfo::m_begain_time = LoggerInfo::m_begain_time = MonitorInfo::m_begain_time = start;
            auto task = std::make_unique<UniTask>(liveData());
            task->initUniFunction(AbstractTask::UniFunction(function));
            return task;
        };
        const QByteArray line = ".planned 1700003600 " + name + '\n';
        const auto ended = planned(quint32(kNow / 1000) + 3600);
        QVERIFY(journal().startsWith(line));
        ended->stopTask();
        QCOMPARE(journal(), kNone);
        const auto begun = planned(quint32(kNow / 1000) + 3600);
        QVERIFY(journal().startsWith(line));
        begun->startTask();
        QVERIFY(!journal().contains("planned"));
        begun->stopTask();
        const auto atOnce = planned(0);
        QVERIFY(!journal().contains("planned"));
        atOnce->stopTask();
        WaveInfo::m_begain_time = LoggerInfo::m_begain_time = MonitorInfo::m_begain_time = 0;
        dropRecords();
    }
};

QTEST_GUILESS_MAIN(TstRunsInJournal)
#include "tst_runsinjournal.moc"
