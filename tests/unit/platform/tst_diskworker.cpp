#include "platform/diskworker.h"
#include "unit/storage/rootfiles.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <sys/stat.h>

namespace {

/// A card that answers when the test says so, or when whoever should say so has waited for it long enough.
class SlowCard
{
public:
    void release()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_open = true;
        m_changed.notify_all();
    }
    void wait()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait_for(lock, std::chrono::seconds(60), [this] { return m_open; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_open = false;
};

std::atomic<int> g_flushes { 0 };

/// Counts what is still open.
int countedSync(int fd)
{
    struct stat file
    {
    };
    g_flushes += ::fstat(fd, &file) == 0;
    return 0;
}

int openFiles()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

} // namespace

/// What waits for the card in place of the main thread.
class TstDiskWorker : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        RootFiles::clean();
        g_flushes = 0;
    }
    void jobsAreDoneInTheirOrder();
    void nobodyWaitsForASlowCard();
    void aSyncThatWaitsIsDoneOnce();
    void aSyncAskedForWhileOneRunsIsDoneAfterIt();
    void aFileIsNotFlushedTwiceAtATime();
    void aFlushOutlivesItsFile();
    void nothingIsFlushedWithoutAFile();
    void whatTakesLongHoldsNoFlushUp();
    void whatWasAskedForIsDoneAtTheEnd();
};

void TstDiskWorker::jobsAreDoneInTheirOrder()
{
    QByteArray done;
    for (const char c : QByteArray("disk worker"))
        DiskWorker::instance().run([&done, c] { done += c; });
    DiskWorker::instance().wait();
    QCOMPARE(done, QByteArray("disk worker"));
}

void TstDiskWorker::nobodyWaitsForASlowCard()
{
    SlowCard card;
    QElapsedTimer timer;
    timer.start();
    DiskWorker::instance().run([&card] { card.wait(); });
    DiskWorker::instance().sync();
    FileFlush flush(countedSync);
    QVERIFY(flush.begin(0));
    QVERIFY2(timer.elapsed() < 30000, "the caller waited");
    QCOMPARE(g_flushes.load(), 0);
    card.release();
    DiskWorker::instance().wait();
    QCOMPARE(g_flushes.load(), 1);
}

void TstDiskWorker::aSyncThatWaitsIsDoneOnce()
{
    SlowCard card;
    DiskWorker::instance().run([&card] { card.wait(); });
    for (int i = 0; i < 9; ++i)
        DiskWorker::instance().sync();
    card.release();
    QCOMPARE(RootFiles::commands(), QByteArray("sync\n"));
}

void TstDiskWorker::aSyncAskedForWhileOneRunsIsDoneAfterIt()
{
    SlowCard card;
    DiskWorker::instance().sync();
    DiskWorker::instance().run([&card] { card.wait(); }); // behind the first
    QTRY_COMPARE_WITH_TIMEOUT(RootFiles::lines(QStringLiteral("/var/log/commands")), QByteArrayList { "sync" }, 30000);
    DiskWorker::instance().sync();
    card.release();
    QCOMPARE(RootFiles::commands(), QByteArray("sync\nsync\n"));
}

void TstDiskWorker::aFileIsNotFlushedTwiceAtATime()
{
    SlowCard card;
    DiskWorker::instance().run([&card] { card.wait(); });
    FileFlush flush(countedSync), other(countedSync);
    QVERIFY(flush.begin(0));
    QVERIFY(!flush.begin(0));
    QVERIFY(other.begin(0));
    card.release();
    DiskWorker::instance().wait();
    QCOMPARE(g_flushes.load(), 2);
    QVERIFY(flush.begin(0));
    DiskWorker::instance().wait();
    QCOMPARE(g_flushes.load(), 3);
}

void TstDiskWorker::aFlushOutlivesItsFile()
{
    const int before = openFiles();
    SlowCard card;
    DiskWorker::instance().run([&card] { card.wait(); });
    {
        QFile file(Target::path(QStringLiteral("/mnt/storage/recorded")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        FileFlush flush(countedSync);
        QVERIFY(flush.begin(file.handle()));
    }
    card.release();
    DiskWorker::instance().wait();
    QCOMPARE(g_flushes.load(), 1);
    QCOMPARE(openFiles(), before);
}

void TstDiskWorker::nothingIsFlushedWithoutAFile()
{
    FileFlush flush(countedSync);
    QVERIFY(!flush.begin(-1));
    QVERIFY(!flush.begin(-1)); // nor does it count as begun
    QVERIFY(flush.begin(0));
    DiskWorker::instance().wait();
    QCOMPARE(g_flushes.load(), 1);
}

void TstDiskWorker::whatTakesLongHoldsNoFlushUp()
{
    SlowCard card;
    DiskWorker::slow().run([&card] { card.wait(); });
    FileFlush flush(countedSync);
    QVERIFY(flush.begin(0));
    DiskWorker::instance().wait();
    QCOMPARE(g_flushes.load(), 1);
    card.release();
    DiskWorker::slow().wait();
}

void TstDiskWorker::whatWasAskedForIsDoneAtTheEnd()
{
    SlowCard card;
    int done = 0;
    {
        DiskWorker worker;
        worker.run([&card] { card.wait(); });
        for (int i = 0; i < 100; ++i)
            worker.run([&done] { ++done; });
        card.release();
    }
    QCOMPARE(done, 100);
}

QTEST_GUILESS_MAIN(TstDiskWorker)
#include "tst_diskworker.moc"
