// What is stored is copied and deleted while a recording runs, which loses nothing by it.
#include "livegraph.h"

#include "memory/memorypage.h"
#include "platform/target.h"
#include "record/pqa2reader.h"
#include "settings/recordinfo.h"
#include "storage/fileinfo.h"
#include "unit/memory/memorycase.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <thread>

using namespace SystemTest;
using MemoryCase::Answers;

namespace {

// Letters of the front panel.
constexpr auto kF1 = Qt::Key_W, kF2 = Qt::Key_Y, kF3 = Qt::Key_P, kF4 = Qt::Key_F, kF5 = Qt::Key_L, kMemory = Qt::Key_R;
constexpr int kWaitMs = 60000;
constexpr int kLarge = 60000000; // bytes of a recording from before

const QString kStorage = QStringLiteral("/mnt/storage/");
const QString kDisk = QStringLiteral("/run/media/sda1");
const QString kOld = QStringLiteral("231114_221320 Logger_9"); // of a run that lost its supply: no entry

void press(Qt::Key key)
{
    QTRY_VERIFY(QApplication::focusWidget()); // behind a question the window gets the keyboard back
    LiveGraph::key(key);
}

QByteArray hashOf(const QString &boardPath)
{
    QFile file(Target::path(boardPath));
    QCryptographicHash hash(QCryptographicHash::Sha1);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result() : QByteArray();
}

QStringList foldersOn(const QString &boardPath)
{
    return QDir(Target::path(boardPath)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

MemoryPage *memory()
{
    return qobject_cast<MemoryPage *>(m_basedialog->navigator().page(UI_MEMORY));
}

/// The longest time that the event loop did not come round, in turns of a thread beside it, each a millisecond or more:
/// where the whole machine stands still, that one stands still as well.
class LoopGap : public QObject
{
public:
    LoopGap()
        : m_beside([this] {
              for (; !m_ends; ++m_turns)
                  QThread::msleep(1);
          })
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            const int now = m_turns;
            longest = std::max(longest, now - m_before);
            m_before = now;
        });
        m_timer.start(1);
    }
    ~LoopGap() override
    {
        m_ends = true;
        m_beside.join();
    }
    int longest = 0;

private:
    std::atomic<int> m_turns { 0 };
    std::atomic<bool> m_ends { false };
    int m_before = 0;
    QTimer m_timer;
    std::thread m_beside; // last: it uses the others
};

} // namespace

class TstLiveMemory : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { m_live.reset(); }

    void theIndexIsMendedAfterTheStart();
    void aRecordingRuns();
    void copyingDoesNotDisturbIt();
    void deletingLeavesItAlone();
    void itIsWholeAndCanBeDeletedBehindItsEnd();

private:
    std::unique_ptr<LiveGraph> m_live;
    QString m_running; // its folder
};

void TstLiveMemory::initTestCase()
{
    m_live.reset(new LiveGraph);
    QDir().mkpath(Target::path(kStorage + kOld));
    QDir().mkpath(Target::path(kDisk));
    QFile old(Target::path(kStorage + kOld + QStringLiteral("/Common.pqa2")));
    QVERIFY(old.open(QIODevice::WriteOnly));
    QByteArray bytes(kLarge, '\0');
    for (int i = 0; i < kLarge; ++i)
        bytes[i] = char(i * 31 + i / 256);
    QCOMPARE(old.write(bytes), qint64(kLarge));
    QFile index(Target::path(FileInfo::indexPath()));
    QVERIFY(index.open(QIODevice::WriteOnly));
    index.write("gone.png,2023-01-01 00:00:00\n");
    index.close();
    QVERIFY2(m_live->start({}), qPrintable(m_live->desk().error()));
    QVERIFY(LiveGraph::setSpeed(1));
}

void TstLiveMemory::theIndexIsMendedAfterTheStart()
{
    QTRY_COMPARE_WITH_TIMEOUT(FileInfo().readInfo(), QStringList { kOld + ",2023-11-14 22:13:20" }, kWaitMs);
}

void TstLiveMemory::aRecordingRuns()
{
    m_basedialog->navigator().go(UI_MENU, UI_LOGGER);
    press(kF5);
    QTRY_VERIFY_WITH_TIMEOUT(foldersOn(kStorage).size() == 2, kWaitMs);
    QCOMPARE(RecordInfo::m_in_recording, 1);
    for (const QString &folder : foldersOn(kStorage))
        m_running = folder == kOld ? m_running : folder;
    QTRY_VERIFY_WITH_TIMEOUT(LiveGraph::measuredUntil() > 0, kWaitMs);
}

void TstLiveMemory::copyingDoesNotDisturbIt()
{
    press(kMemory);
    QCOMPARE(LiveGraph::text("name"), QStringLiteral("Memory"));
    QTRY_VERIFY(!memory()->isWorking());
    QCOMPARE(memory()->findChild<FilesList *>()->count(), 2);
    press(kF2);
    press(kF1); // all but the one that runs
    const qint64 before = LiveGraph::measuredUntil();
    const LoopGap gap;
    Answers answers("F");
    press(kF4);
    QTRY_VERIFY_WITH_TIMEOUT(!memory()->isWorking() && !QApplication::activeModalWidget(), kWaitMs);
    QCOMPARE(answers.said, QStringList { "Copy the files?" });
    QCOMPARE(foldersOn(kDisk), QStringList { kOld });
    QCOMPARE(hashOf(kDisk + "/" + kOld + "/Common.pqa2"), hashOf(kStorage + kOld + "/Common.pqa2"));
    // A quiet board comes round within a twentieth of a second; this machine has other things to do as well.
    QVERIFY2(gap.longest < 1000, qPrintable(QString::number(gap.longest)));
    QTRY_VERIFY_WITH_TIMEOUT(LiveGraph::measuredUntil() > before, kWaitMs);
    QVERIFY(g_unitask->isTaskRunning());
    QCOMPARE(RecordInfo::m_in_recording, 1);
    press(kF5);
    press(kF5);
    QCOMPARE(LiveGraph::text("name"), QStringLiteral("Logger"));
}

void TstLiveMemory::deletingLeavesItAlone()
{
    press(kMemory);
    QTRY_VERIFY(!memory()->isWorking());
    {
        Answers answers("L");
        press(kF1);
        QCOMPARE(answers.said, QStringList { "A recording is running.\nIt has to end first." });
    }
    Answers answers("F");
    press(kF3);
    press(kF1);
    press(kF4);
    QTRY_VERIFY(!memory()->isWorking());
    QCOMPARE(answers.said, QStringList { "Delete the file?" });
    QCOMPARE(foldersOn(kStorage), QStringList { m_running });
    QCOMPARE(FileInfo().getInfoFiles(), QStringList { m_running });
    press(kF5);
    press(kF5);
}

void TstLiveMemory::itIsWholeAndCanBeDeletedBehindItsEnd()
{
    // Some intervals of a second, all of them with the clock of the signal.
    const qint64 begun = LiveGraph::measuredUntil();
    QTRY_VERIFY_WITH_TIMEOUT(LiveGraph::measuredUntil() > begun + 3000, kWaitMs);
    Answers save("F");
    press(kF5);
    QCOMPARE(RecordInfo::m_in_recording, 0);
    QFile common(Target::path(kStorage + m_running + "/Common.pqa2"));
    QVERIFY(common.open(QIODevice::ReadOnly));
    Pqa2Reader reader(&common);
    Pqa2Block block;
    int blocks = 0;
    while (reader.next(&block))
        ++blocks;
    QCOMPARE(reader.state(), Pqa2Reader::Whole);
    QVERIFY(blocks > 2);
    common.close();

    press(kMemory);
    QTRY_VERIFY(!memory()->isWorking());
    const auto *list = memory()->findChild<FilesList *>();
    press(kF3);
    QTRY_VERIFY((memory()->reflashFilesList(), QTest::qWait(50), !list->at(0).inUse)); // its files are written out
    Answers answers("F");
    press(kF1);
    press(kF4);
    QTRY_VERIFY(!memory()->isWorking());
    QCOMPARE(foldersOn(kStorage), QStringList());
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveMemory>(argc, argv);
}

#include "tst_livememory.moc"
