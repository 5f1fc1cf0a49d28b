// What the pages say of a recording, from its plan to its end.
#include "livegraph.h"
#include "unit/widgets/dialogdriver.h"

#include "platform/target.h"
#include "record/pqa2reader.h"
#include "settings/config_data.h"
#include "settings/recordgroups.h"
#include "settings/recordinfo.h"
#include "storage/massstorage.h"

#include <QDir>
#include <QFile>

#include <cstring>

using namespace SystemTest;

namespace {

// Letters of the front panel.
constexpr auto kF1 = Qt::Key_W, kF2 = Qt::Key_Y, kF4 = Qt::Key_F, kF5 = Qt::Key_L, kLeft = Qt::Key_O,
               kRight = Qt::Key_D, kDown = Qt::Key_T, kEnter = Qt::Key_K, kMenu = Qt::Key_A, kMonitor = Qt::Key_U;
constexpr int kWaitMs = 60000;
constexpr double kFast = 60;

const QString kRunning = QStringLiteral("Logger is running.\nSwith to other page to see real time data and details.");

void press(Qt::Key key, int times = 1)
{
    for (int i = 0; i < times; ++i) {
        QTRY_VERIFY(QApplication::focusWidget()); // behind a question the window gets the keyboard back
        LiveGraph::key(key);
    }
}

/// From the menu to the page behind the tile, which starts nothing by itself.
void enterLogger()
{
    press(kMenu);
    for (int row = 0; row < 3; ++row, press(kDown)) {
        for (int column = 0; column < 4; ++column, press(kRight)) {
            if (m_basedialog->menu()->currentItem()->objectName() != QLatin1String("logger"))
                continue;
            press(kEnter);
            QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Logger"));
            return;
        }
    }
    QFAIL("no such tile");
}

QStringList recordings()
{
    return QDir(Target::path(QStringLiteral("/mnt/storage/"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
}

/// The number that the only block of a type holds; 0 without one.
quint32 numberOf(const QString &folder, quint32 type)
{
    QFile file(Target::path(QStringLiteral("/mnt/storage/%1/Common.pqa2").arg(folder)));
    quint32 number = 0;
    if (!file.open(QIODevice::ReadOnly))
        return number;
    Pqa2Reader reader(&file);
    Pqa2Block block;
    while (reader.next(&block)) {
        if (block.type == type)
            std::memcpy(&number, reader.payload(block).constData(), sizeof number);
    }
    return reader.state() == Pqa2Reader::Whole ? number : 0;
}

} // namespace

class TstLiveRecording : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_live.reset(new LiveGraph);
        QVERIFY2(m_live->start({}), qPrintable(m_live->desk().error()));
        QVERIFY(LiveGraph::setSpeed(1));
    }
    void cleanupTestCase() { m_live.reset(); }

    void waitsForAPlannedTimeWhilePagesLive();
    void runsCountsAndEndsByItself();
    void monitorAsksBeforeItEndsTheRecording();

private:
    std::unique_ptr<LiveGraph> m_live;
};

void TstLiveRecording::waitsForAPlannedTimeWhilePagesLive()
{
    enterLogger();
    QCOMPARE(LiveGraph::text("file_name"), QStringLiteral("Logger_1"));
    press(kDown, 3);
    press(kEnter); // "Timed"
    press(kDown);
    press(kRight); // in a year
    press(kF5);
    QCOMPARE(RecordInfo::m_in_recording, 1);
    QVERIFY2(LiveGraph::text("text").startsWith("Logger waits for its start."), qPrintable(LiveGraph::text("text")));
    QTRY_VERIFY_WITH_TIMEOUT(g_unitask->isTaskRunning(), kWaitMs);
    QTRY_VERIFY_WITH_TIMEOUT(LiveGraph::text("stop_watch").startsWith('-')
                                 && LiveGraph::text("stop_watch").section(':', 0, 0).mid(1).toInt() > 8000,
                             kWaitMs); // hours
    press(kMenu);
    QVERIFY(LiveGraph::open(QStringLiteral("vif")));
    QTRY_VERIFY_WITH_TIMEOUT(std::fabs(LiveGraph::number("Urms_L1") - 230) < 5, kWaitMs);
    enterLogger();
    QVERIFY(LiveGraph::text("text").startsWith("Logger waits for its start."));
    DialogDriver exit({ DialogDriver::press("W") });
    press(kF5);
    QVERIFY(exit.isDone());
    QCOMPARE(RecordInfo::m_in_recording, 0);
    QCOMPARE(LiveGraph::text("memory_t"), QStringLiteral("Memory Available:")); // the set-up again
    QCOMPARE(LiveGraph::text("start"), QStringLiteral("Immediate"));
    QCOMPARE(recordings(), QStringList());
}

void TstLiveRecording::runsCountsAndEndsByItself()
{
    press(kDown);
    press(kLeft, 3); // one hour
    press(kDown);
    press(kRight, 9); // every five minutes
    QCOMPARE(LiveGraph::text("duration"), QStringLiteral(" 0 d, 1 hr"));
    QCOMPARE(LiveGraph::text("interval"), QStringLiteral("5 min"));
    press(kF2);
    press(kF1);
    press(kF4); // all parameters
    press(kF5);
    QTRY_COMPARE_WITH_TIMEOUT(LiveGraph::text("text"), kRunning, kWaitMs);
    QCOMPARE(LiveGraph::text("btn_f5"), QStringLiteral("Stop"));
    QCOMPARE(LiveGraph::text("duration"), QStringLiteral("0 d, 1 hr"));
    QCOMPARE(recordings().size(), 1);
    QVERIFY(LiveGraph::runUntil([] { return LiveGraph::text("stop_watch") > QLatin1String("00:30:00"); }, kFast));
    QVERIFY(LiveGraph::text("stop_watch") < QLatin1String("01:00:00"));
    QVERIFY(LiveGraph::runUntil([] { return RecordInfo::m_in_recording == 0; }, kFast));
    QCOMPARE(LiveGraph::text("stop_watch"), QStringLiteral("01:00:00"));
    QCOMPARE(LiveGraph::text("text"), QStringLiteral("Logger has ended.\nIts data stands in Memory."));
    QCOMPARE(LiveGraph::text("btn_f5"), QStringLiteral("Back"));
    const QString folder = recordings().value(0);
    const quint32 begin = numberOf(folder, 0xA1000018), end = numberOf(folder, 0xA1000019);
    QVERIFY(begin != 0);
    QVERIFY2(end >= begin, qPrintable(QStringLiteral("%1 %2").arg(begin).arg(end)));
    QVERIFY(g_unitask->isTaskRunning()); // the live pages go on
    // What the set-up page foretold of the room is what an hour took.
    const double foretold = recordBytesPerHour(0xffff, 300, *m_settingConfig_g.channels());
    const double taken = double(MassStorage::folderUsedSize(QStringLiteral("/mnt/storage/") + folder));
    QVERIFY2(std::fabs(taken / foretold - 1) < 0.1, qPrintable(QStringLiteral("%1 of %2").arg(taken).arg(foretold)));
    QVERIFY(LiveGraph::setSpeed(1));
    press(kF5);
    QCOMPARE(LiveGraph::text("file_name"), QStringLiteral("Logger_2"));
    QCOMPARE(recordings(), QStringList { folder });
}

void TstLiveRecording::monitorAsksBeforeItEndsTheRecording()
{
    press(kF5);
    QTRY_COMPARE_WITH_TIMEOUT(LiveGraph::text("text"), kRunning, kWaitMs);
    QString question;
    DialogDriver stay({ [&question](QDialog *dialog) {
        question = labelText(dialog, "message");
        QTest::keyClick(dialog, kF5); // Cancel
    } });
    press(kMonitor);
    QVERIFY(question.startsWith("Logger is running!\nSave: save the data.\n"));
    QCOMPARE(LiveGraph::text("name"), QStringLiteral("Logger"));
    QCOMPARE(RecordInfo::m_in_recording, 1);
    DialogDriver exit({ DialogDriver::press("W") });
    press(kMonitor);
    QVERIFY(exit.isDone());
    QCOMPARE(LiveGraph::text("name"), QStringLiteral("Monitor"));
    QCOMPARE(RecordInfo::m_in_recording, 0);
    QTRY_COMPARE(recordings().size(), 1); // that of the test before
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveRecording>(argc, argv);
}

#include "tst_liverecording.moc"
