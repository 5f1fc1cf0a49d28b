// What the recorder's pages ask of the shell, and what they hear of the task.
#include "shellcase.h"

#include "settings/loggerinfo.h"
#include "shell/pagetable.h"
#include "shell/tasklinks.h"
#include "task/unitask.h"
#include "views/recorder/recordingsetup.h"
#include "views/recorder/recordingstart.h"
#include "views/recorder/recordpqa2page.h"
#include "views/vif/vifmain.h"
#include "views/vif/vifpage.h"

#include <QSignalSpy>

#include <algorithm>
#include <memory>

class TstRecordingPages : public ShellCase
{
    Q_OBJECT

private slots:
    void startArmsARecordingInARunOfItsOwn();
    void aRunThatGoesOnTakesTheRecording();
    void planOnThePageIsTheTasks();
    void saveEndsTheRecordingAndNoMore();
    void restartPlansAnew();
    void comingBackShowsTheRecordingOrANewPlan();
    void recordingTimeReachesThePageInsteadOfTheRuns();
    void restartInTheQuestionOfAnotherPageKeepsThatPageLive();
    void loggersPagesRunTheirOwnFunction();

private:
    static RecordPqa2Page *recorder()
    {
        return static_cast<RecordPqa2Page *>(m_basedialog->navigator().page(UI_LOGGER));
    }
    static void enterLogger()
    {
        moveToTile("logger");
        QTest::keyClick(m_basedialog->menu(), kEnter);
        QCOMPARE(title(), QStringLiteral("Logger"));
    }
    static QString shown(const char *label)
    {
        return recorder()->currentPage()->findChild<QLabel *>(QLatin1String(label))->text();
    }
    static void press(Qt::Key letter) { QTest::keyClick(recorder()->currentPage(), letter); }
};

void TstRecordingPages::startArmsARecordingInARunOfItsOwn()
{
    enterLogger();
    QVERIFY(!m_taskmanage->currentTask()); // no measurement before the user's command
    press(kF5);
    QVERIFY(m_taskmanage->currentTask());
    QCOMPARE(m_taskmanage->getUniFunction(), int(AbstractTask::UniBasic));
    QVERIFY(g_unitask->recordEnabled());
    QCOMPARE(RecordInfo::m_in_recording, 1);
    QCOMPARE(recorder()->currentIndex(), int(RecordPqa2Page::Start));
    QVERIFY(shown("text").startsWith("Logger waits for its start."));
}

void TstRecordingPages::aRunThatGoesOnTakesTheRecording()
{
    enterVif();
    g_unitask->startTask();
    const UniTask *task = g_unitask;
    m_basedialog->navigator().go(UI_VIF, UI_MENU);
    enterLogger();
    press(kF5);
    QCOMPARE(static_cast<const UniTask *>(g_unitask), task);
    QVERIFY(g_unitask->recordEnabled());
    QVERIFY(g_unitask->isTaskRunning());
}

void TstRecordingPages::planOnThePageIsTheTasks()
{
    RecordInfo::m_duration = 30;
    enterLogger();
    press(kF5);
    QCOMPARE(g_unitask->recordLife(), qint64(30) * 3600 * 1000);
    QCOMPARE(shown("duration"), QStringLiteral("1 d, 6 hr"));
    QCOMPARE(shown("start"), RecordingText::moment(g_unitask->recordStart()));
    RecordInfo::m_duration = 2;
}

void TstRecordingPages::saveEndsTheRecordingAndNoMore()
{
    enterLogger();
    press(kF5);
    g_unitask->startTask();
    const UniTask *task = g_unitask;
    DialogAnswer save(kF4);
    press(kF5);
    QVERIFY(save.asked);
    QCOMPARE(RecordInfo::m_in_recording, 0);
    QCOMPARE(static_cast<const UniTask *>(g_unitask), task);
    QVERIFY(g_unitask->isTaskRunning());
    QVERIFY(!g_unitask->recordEnabled());
    QCOMPARE(recorder()->currentIndex(), int(RecordPqa2Page::Setup));
}

void TstRecordingPages::restartPlansAnew()
{
    enterLogger();
    press(kF5);
    g_unitask->startTask();
    emit g_unitask->recordTimeChanged(QStringLiteral("00:12:00"));
    QVERIFY(shown("text").startsWith("Logger is running."));
    DialogAnswer restart(Qt::Key_Y);
    press(kF5);
    QVERIFY(restart.asked);
    QCOMPARE(RecordInfo::m_in_recording, 1);
    QVERIFY(g_unitask->recordEnabled());
    QCOMPARE(recorder()->currentIndex(), int(RecordPqa2Page::Start));
    QVERIFY(shown("text").startsWith("Logger waits for its start."));
}

void TstRecordingPages::comingBackShowsTheRecordingOrANewPlan()
{
    enterLogger();
    press(kF5);
    g_unitask->startTask();
    m_basedialog->navigator().go(UI_LOGGER, UI_VIF); // no question on the way
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
    m_basedialog->navigator().go(UI_VIF, UI_LOGGER);
    QCOMPARE(recorder()->currentIndex(), int(RecordPqa2Page::Start));
    m_basedialog->navigator().go(UI_LOGGER, UI_VIF);
    g_unitask->stopRecordTask(); // at its end
    m_basedialog->navigator().go(UI_VIF, UI_LOGGER);
    QCOMPARE(recorder()->currentIndex(), int(RecordPqa2Page::Setup));
    QVERIFY(m_taskmanage->currentTask());
}

void TstRecordingPages::recordingTimeReachesThePageInsteadOfTheRuns()
{
    enterLogger();
    press(kF5);
    g_unitask->startTask();
    emit g_unitask->stopWatchChanged(QStringLiteral("01:00:00"));
    emit g_unitask->recordTimeChanged(QStringLiteral("00:00:07"));
    QCOMPARE(shown("stop_watch"), QStringLiteral("00:00:07"));
    m_basedialog->navigator().go(UI_LOGGER, UI_VIF);
    emit g_unitask->recordTimeChanged(QStringLiteral("00:00:09"));
    m_basedialog->navigator().go(UI_VIF, UI_LOGGER);
    QCOMPARE(shown("stop_watch"), QStringLiteral("00:00:09"));
}

void TstRecordingPages::restartInTheQuestionOfAnotherPageKeepsThatPageLive()
{
    enterLogger();
    press(kF5);
    g_unitask->startTask();
    m_basedialog->navigator().go(UI_LOGGER, UI_VIF);
    DialogAnswer restart(Qt::Key_Y);
    m_basedialog->navigator().go(UI_VIF, UI_SETUP);
    QVERIFY(restart.asked);
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
    QVERIFY(g_unitask->recordEnabled());
    emit g_unitask->stopWatchChanged(QStringLiteral("00:00:42"));
    auto *vif = static_cast<VifPage *>(m_basedialog->navigator().page(UI_VIF));
    QCOMPARE(vif->currentPage()->findChild<QLabel *>("stop_watch")->text(), QStringLiteral("00:00:42"));
}

void TstRecordingPages::loggersPagesRunTheirOwnFunction()
{
    const std::vector<PageRow> &rows = PageTable::rows();
    const auto row = std::find_if(rows.begin(), rows.end(), [](const PageRow &r) { return r.plan == Plan::Unreached; });
    QVERIFY(row != rows.end() && row->type == UI_LOGGER);
    TaskLinks links;
    const std::unique_ptr<FunctionPage> made(row->make(links, m_taskmanage->data()));
    auto *page = qobject_cast<LoggerPage *>(made.get());
    QVERIFY(page);
    QList<int> started;
    connect(&links, &TaskLinks::startWanted, this,
            [&started](AbstractTask::UniFunction function, _quvera_ui_type display) {
                started << int(function) << int(display);
            });
    QSignalSpy ended(&links, &TaskLinks::endWanted);
    page->enter();
    QTest::keyClick(page->currentPage(), kF5);
    QCOMPARE(started, QList<int>({ AbstractTask::UniLogger, UI_LOGGER }));
    LoggerInfo::m_in_logging = 1; // its function runs
    DialogAnswer exit(kF1);
    QTest::keyClick(page->currentPage(), kF5);
    QVERIFY(exit.asked);
    QCOMPARE(ended.count(), 1);
    QCOMPARE(ended.at(0).at(0).toBool(), false);
    LoggerInfo::m_in_logging = 0;
    emit links.ended();
}

QTEST_MAIN(TstRecordingPages)
#include "tst_recordingpages.moc"
