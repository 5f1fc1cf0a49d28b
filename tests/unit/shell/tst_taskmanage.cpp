#include "wholegraph.h"

#include "shell/basedialog.h"
#include "platform/clock.h"
#include "task/unitask.h"
#include "shell/taskmanage.h"
#include "views/power/powen.h"
#include "views/vif/vifpage.h"

#include <QEventLoop>
#include <QPointer>
#include <QSignalSpy>
#include <QTimer>

class TstTaskManage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { m_taskmanage->exitTask(); }

    void splashGoesWhereTheMainWindowLeavesItUncovered();
    void splashShowsThePictureOfTheLanguage();
    void datagramBeforeAnyTaskIsDropped();
    void recordsKeepTheirAddress();
    void initTwiceKeepsTheTask();
    void initStartsTheStreamAndExitStopsIt();
    void exitWithoutATaskStillStopsTheStream();
    void withoutATaskEverythingAnswers();
    void onlyTheUniversalTypeMakesATask();
    void startTaskTakesNoNullTask();
    void pagesHoldAndRunTheTask();
    void displayLinkMovesAndUnlinks();
    void aSecondLinkChangesNothing();
    void energyResetIsShownAtOnce();
    void energyResetOnHoldShowsAtRun();
    void stoppedRunTellsItsTimeToTheWavePage();
    void functionChangesReachTheTask();
    void runEmptiesThePages();
    void datagramsReachTheTaskAndTheScreen();
    void buzzerRingsThroughTheDevice();
    void exitDeletesTheTask();
    void taskOutlivesTheCallOfItsOwnThatEndsIt_data();
    void taskOutlivesTheCallOfItsOwnThatEndsIt();
    void exitFromTheStopOfAnExitIsOne();
};

void TstTaskManage::initTestCase()
{
    buildWholeGraph({ 10, 40 });
}

// On a desk's screen the two windows are placed apart.
void TstTaskManage::splashGoesWhereTheMainWindowLeavesItUncovered()
{
    QVERIFY(m_basedialog->isVisible());
    QVERIFY(!m_basedialog->geometry().contains(splash->geometry()));
    QVERIFY(!splash->isVisible());
}

void TstTaskManage::splashShowsThePictureOfTheLanguage()
{
    QVERIFY(!splash->pixmap().isNull());
    QVERIFY(QImage(":/splash") != QImage(":/splash_ru"));
    QCOMPARE(splash->pixmap().toImage(), QImage(":/splash"));
    const int russian = 12;
    while (m_userConfig_g.getLang() < russian)
        m_userConfig_g.changeLangNext();
    delete splash; // the program keeps the one it has
    showSplash();
    QCOMPARE(splash->pixmap().toImage(), QImage(":/splash_ru"));
    m_userConfig_g.changeLangNext();
    delete splash;
    showSplash();
    QCOMPARE(splash->pixmap().toImage(), QImage(":/splash"));
    while (m_userConfig_g.getLang() > 1)
        m_userConfig_g.changeLangPrev();
}

void TstTaskManage::datagramBeforeAnyTaskIsDropped()
{
    emit m_idevice->datagramAggregation(QByteArray(13000, '\x41'));
    emit m_idevice->datagramWave(QByteArray(65548, '\x41'));
    QVERIFY(!g_unitask);
    QCOMPARE(m_taskmanage->data().live().vif.voltage[0], 0.0f);
}

void TstTaskManage::recordsKeepTheirAddress()
{
    LiveData &data = m_taskmanage->data();
    const __vif_data *vif = &data.live().vif;
    data.live().vif.voltage[0] = 5;
    data.hold();
    initUiParameter();
    QCOMPARE(&data.live().vif, vif);
    QCOMPARE(data.live().vif.voltage[0], 0.0f);
    QVERIFY(!data.isHeld());
}

void TstTaskManage::initTwiceKeepsTheTask()
{
    AbstractTask *task = m_taskmanage->initTask(TaskManage::Universal);
    QVERIFY(task);
    QCOMPARE(m_taskmanage->initTask(TaskManage::Universal), nullptr);
    QCOMPARE(static_cast<AbstractTask *>(g_unitask), task);
    m_taskmanage->startTask(task);
}

void TstTaskManage::initStartsTheStreamAndExitStopsIt()
{
    FrameSpy spy;
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    QVERIFY(spy.contains({ 122, 193, 1, 123 }));
    QVERIFY(!spy.contains({ 122, 193, 0, 123 }));
    m_taskmanage->exitTask();
    QVERIFY(spy.contains({ 122, 193, 0, 123 }));
}

void TstTaskManage::exitWithoutATaskStillStopsTheStream()
{
    QVERIFY(!m_taskmanage->currentTask());
    FrameSpy spy;
    m_taskmanage->exitTask();
    QVERIFY(spy.contains({ 122, 193, 0, 123 }));
}

void TstTaskManage::withoutATaskEverythingAnswers()
{
    QCOMPARE(m_taskmanage->curTaskName(), QStringLiteral(" "));
    QCOMPARE(m_taskmanage->curTaskType(), 0);
    QCOMPARE(m_taskmanage->getUniFunction(), 0);
    m_taskmanage->pauseTask();
    m_taskmanage->continueTask();
    m_taskmanage->stopTask();
    m_taskmanage->saveTask(true);
    m_taskmanage->enableRecord();
    m_taskmanage->stopRecordWithSave(true);
    m_taskmanage->stopTaskWithSave(false);
    m_taskmanage->exitTaskWithSave(true);
    m_taskmanage->connectDisplay(UI_VIF);
    m_taskmanage->disconnectDisplay(UI_VIF);
    m_taskmanage->changeUniFunction(AbstractTask::UniWave);
    QVERIFY(!m_taskmanage->currentTask());
}

void TstTaskManage::onlyTheUniversalTypeMakesATask()
{
    QCOMPARE(m_taskmanage->initTask(TaskManage::__type(7)), nullptr);
    QCOMPARE(m_taskmanage->curTaskType(), 7);
    QVERIFY(m_taskmanage->initTask(TaskManage::Universal));
    m_taskmanage->startTask(g_unitask);
    QCOMPARE(m_taskmanage->curTaskName(), QStringLiteral("Power Quality"));
}

void TstTaskManage::startTaskTakesNoNullTask()
{
    QCOMPARE(m_taskmanage->startTask(nullptr), 0);
    QVERIFY(!m_taskmanage->currentTask());
    QCOMPARE(m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal)), 1);
}

void TstTaskManage::pagesHoldAndRunTheTask()
{
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    QSignalSpy paused(g_unitask, &AbstractTask::taskPaused);
    QSignalSpy continued(g_unitask, &AbstractTask::taskContinued);
    emit vifPage()->pause(); // the task waits: nothing to hold
    QCOMPARE(paused.count(), 0);
    g_unitask->startTask();
    emit vifPage()->pause();
    QVERIFY(g_unitask->isTaskPaused());
    QVERIFY(!vifPage()->isRunning());
    QCOMPARE(paused.count(), 1);
    emit vifPage()->run();
    QVERIFY(g_unitask->isTaskRunning());
    QVERIFY(vifPage()->isRunning());
    QCOMPARE(continued.count(), 1);
}

void TstTaskManage::displayLinkMovesAndUnlinks()
{
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    auto *label = vifPage()->findChild<QLabel *>("Urms_L1");
    m_taskmanage->data().live().vif.voltage[0] = 111.0f;
    emit g_unitask->updateDisplay(nullptr);
    QVERIFY(!label->text().startsWith("111"));
    m_taskmanage->connectDisplay(UI_VIF);
    emit g_unitask->updateDisplay(nullptr);
    QVERIFY(label->text().startsWith("111"));
    emit g_unitask->stopWatchChanged("00:00:42");
    QCOMPARE(vifPage()->findChild<QLabel *>("stop_watch")->text(), QStringLiteral("00:00:42"));
    m_taskmanage->disconnectDisplay(UI_VIF);
    m_taskmanage->data().live().vif.voltage[0] = 222.0f;
    emit g_unitask->updateDisplay(nullptr);
    QVERIFY(label->text().startsWith("111"));
    m_taskmanage->connectDisplay(UI_MENU); // no page, no link
    m_taskmanage->disconnectDisplay(_quvera_ui_type(99));
}

void TstTaskManage::aSecondLinkChangesNothing()
{
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    m_taskmanage->connectDisplay(UI_VIF);
    m_taskmanage->connectDisplay(UI_VIF);
    m_taskmanage->data().live().vif.voltage[0] = 123.0f;
    emit g_unitask->updateDisplay(nullptr);
    auto *label = vifPage()->findChild<QLabel *>("Urms_L1");
    QVERIFY(label->text().startsWith("123"));
    m_taskmanage->disconnectDisplay(UI_VIF);
    m_taskmanage->data().live().vif.voltage[0] = 321.0f;
    emit g_unitask->updateDisplay(nullptr);
    QVERIFY(label->text().startsWith("123"));
}

void TstTaskManage::energyResetIsShownAtOnce()
{
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    const auto *page = pageOf<powen>(UI_POWER);
    m_taskmanage->connectDisplay(UI_POWER);
    auto *label = page->findChild<QLabel *>("kwh_1");
    m_taskmanage->data().live().power.activeEnergy[0] = 9000.0f;
    emit g_unitask->updateDisplay(nullptr);
    QCOMPARE(label->text(), QStringLiteral("9.000"));
    emit pageOf<powen>(UI_POWER)->resetEnergy();
    QCOMPARE(label->text(), QStringLiteral("0.000"));
    m_taskmanage->disconnectDisplay(UI_POWER);
    m_taskmanage->data().live().power.activeEnergy[0] = 9000.0f;
    emit pageOf<powen>(UI_POWER)->resetEnergy(); // no longer linked
    QCOMPARE(m_taskmanage->data().live().power.activeEnergy[0], 9000.0f);
}

void TstTaskManage::energyResetOnHoldShowsAtRun()
{
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    m_taskmanage->connectDisplay(UI_POWER);
    g_unitask->startTask();
    auto *label = pageOf<powen>(UI_POWER)->findChild<QLabel *>("kwh_1");
    m_taskmanage->data().live().power.activeEnergy[0] = 9000.0f;
    emit pageOf<powen>(UI_POWER)->pause();
    QCOMPARE(label->text(), QStringLiteral("9.000")); // the moment of the hold is shown at once
    emit pageOf<powen>(UI_POWER)->resetEnergy();
    QCOMPARE(label->text(), QStringLiteral("9.000"));
    QCOMPARE(m_taskmanage->data().live().power.activeEnergy[0], 0.0f);
    emit pageOf<powen>(UI_POWER)->run();
    g_unitask->updatedata();
    QCOMPARE(label->text(), QStringLiteral("0.000"));
}

void TstTaskManage::stoppedRunTellsItsTimeToTheWavePage()
{
    // The link is made by the text of the signal, with another name of the same type.
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    QVERIFY(g_unitask->metaObject()->indexOfSignal("taskStoped(uint)") >= 0);
}

void TstTaskManage::functionChangesReachTheTask()
{
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    m_taskmanage->changeUniFunction(AbstractTask::UniPowerInverter);
    QCOMPARE(m_taskmanage->getUniFunction(), 5);
}

void TstTaskManage::runEmptiesThePages()
{
    m_taskmanage->data().live().vif.voltage[2] = 55.0f;
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    QCOMPARE(m_taskmanage->data().live().vif.voltage[2], 0.0f);
}

void TstTaskManage::datagramsReachTheTaskAndTheScreen()
{
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    m_taskmanage->connectDisplay(UI_VIF);
    g_unitask->startTask();
    QByteArray bytes(13000, '\0');
    const float raw = 2.0f;
    bytes.replace(4 * 8, 4, reinterpret_cast<const char *>(&raw), 4);
    emit m_idevice->datagramAggregation(bytes);
    g_unitask->updatedata();
    QCOMPARE(vifPage()->findChild<QLabel *>("Urms_L1")->text(), QStringLiteral("158.50")); // 2 x 79.25 V
}

void TstTaskManage::buzzerRingsThroughTheDevice()
{
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    FrameSpy spy;
    emit g_unitask->buzzerRing(0);
    QVERIFY(spy.contains({ 194, 0 }));
}

void TstTaskManage::exitDeletesTheTask()
{
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    QSignalSpy destroyed(g_unitask, &QObject::destroyed);
    m_taskmanage->data().events().append({});
    m_taskmanage->exitTaskWithSave(false);
    QCOMPARE(destroyed.count(), 0);
    QTRY_COMPARE(destroyed.count(), 1);
    QVERIFY(m_taskmanage->data().events().isOver()); // it was stopped before its links went: the menu counts no events
    QVERIFY(!g_unitask);
    QCOMPARE(m_taskmanage->curTaskType(), 0);
    emit vifPage()->pause();
    emit m_idevice->datagramAggregation(QByteArray(13000, '\0'));
}

void TstTaskManage::taskOutlivesTheCallOfItsOwnThatEndsIt_data()
{
    QTest::addColumn<QString>("call");
    for (const char *call : { "clock tick", "end of the run", "display tick", "wave datagram" })
        QTest::newRow(call) << QString(call);
}

void TstTaskManage::taskOutlivesTheCallOfItsOwnThatEndsIt()
{
    QFETCH(QString, call);
    AbstractTask *started = m_taskmanage->initTask(TaskManage::Universal);
    m_taskmanage->startTask(started);
    QPointer<UniTask> task = g_unitask;
    bool alive = false;
    const auto endIt = [&] {
        m_taskmanage->exitTask();
        // A page that asks the user at the end lets the event loop run, and with it whatever is to be deleted.
        QEventLoop question;
        QTimer::singleShot(20, &question, &QEventLoop::quit);
        question.exec();
        alive = !task.isNull();
    };
    if (call == "clock tick") {
        connect(task, &AbstractTask::taskStarted, this, endIt);
        task->setTaskLifeCycle(0, 1);
        Clock::advance(11'000);
        task->baseTimerTimeout();
    } else if (call == "end of the run") {
        connect(task, QOverload<>::of(&AbstractTask::taskStoped), this, endIt);
        task->stopTask();
    } else if (call == "display tick") {
        connect(task, &UniTask::updateDisplay, this, endIt);
        task->startTask();
        task->updatedata();
    } else {
        connect(task, &AbstractTask::recordingStarted, this, endIt);
        task->setRecordLifeCycle(Clock::seconds() + 10, 10);
        task->enableRecord();
        QByteArray bytes(4 * 16400, '\0');
        const qint64 later = Clock::msecs() + 20'000;
        bytes.replace(0, 8, reinterpret_cast<const char *>(&later), 8);
        task->datagramWave(bytes);
    }
    QVERIFY(alive);
    QVERIFY(!g_unitask);
    QTRY_VERIFY(task.isNull());
    Clock::useSystem();
}

void TstTaskManage::exitFromTheStopOfAnExitIsOne()
{
    m_taskmanage->startTask(m_taskmanage->initTask(TaskManage::Universal));
    QPointer<UniTask> task = g_unitask;
    int stops = 0;
    connect(task, QOverload<>::of(&AbstractTask::taskStoped), this, [&] {
        ++stops;
        m_taskmanage->exitTask();
    });
    m_taskmanage->exitTask();
    QCOMPARE(stops, 1);
    QVERIFY(!g_unitask);
    QVERIFY(!m_taskmanage->currentTask());
    QTRY_VERIFY(task.isNull());
}

QTEST_MAIN(TstTaskManage)
#include "tst_taskmanage.moc"
