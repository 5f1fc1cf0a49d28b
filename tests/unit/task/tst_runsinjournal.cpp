// Runs stand in the journal from the opening of their files to the end of them.
#include <QTest>

#include <mutex>

#include "monitorrun.h"
#include "recorderrun.h"
#include "storage/runjournal.h"

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
};

QTEST_GUILESS_MAIN(TstRunsInJournal)
#include "tst_runsinjournal.moc"
