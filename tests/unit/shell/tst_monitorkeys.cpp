#include "shellcase.h"

#include "settings/config_data.h"
#include "settings/monitorinfo.h"
#include "task/unitask.h"
#include "views/monitor/monitorpage.h"
#include "views/monitor/monitstartpage.h"

/// The monitor in the whole instrument: how its run is started, shown and left.
class TstMonitorKeys : public ShellCase
{
    Q_OBJECT

private slots:
    void monitorKeyOpensTheSetUpAndStartsNothing();
    void startMakesTheMonitorsTask();
    void startedRunIsShownWithItsClock();
    void timedStartIsTakenOver();
    void aMeasuringRunAsksBeforeItIsLeft_data();
    void aMeasuringRunAsksBeforeItIsLeft();
    void aRunThatOnlyWaitsEndsWithoutAQuestion();
    void resultsStayUntilTheNextRunIsSetUp();
    void memoryLeavesTheRunAlone();
    void anotherLimitSetReachesTheProcessor();
    void theMonitorsOwnKeyDoesNothing();

private:
    static MonitorPage *monitorPage() { return pageOf<MonitorPage>(UI_MONITOR); }
    static MonitStartPage *overview() { return monitorPage()->findChild<MonitStartPage *>(); }
    static QString state() { return overview()->findChild<QLabel *>("state")->text(); }
    static void press(Qt::Key letter, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            QTest::keyClick(monitorPage()->currentPage(), letter);
    }
    static void open()
    {
        QTest::keyClick(m_basedialog->menu(), kF8);
        QCOMPARE(top(), static_cast<QWidget *>(monitorPage()));
    }
};

void TstMonitorKeys::monitorKeyOpensTheSetUpAndStartsNothing()
{
    open();
    QCOMPARE(title(), QStringLiteral("Monitor"));
    QCOMPARE(monitorPage()->currentIndex(), int(MonitorPage::Main));
    QVERIFY(!m_taskmanage->currentTask());
}

void TstMonitorKeys::startMakesTheMonitorsTask()
{
    open();
    press(kF5);
    QCOMPARE(m_taskmanage->getUniFunction(), 4);
    QVERIFY(g_unitask && !g_unitask->isTaskRunning()); // ten seconds from now
    QCOMPARE(monitorPage()->currentIndex(), int(MonitorPage::Start));
}

void TstMonitorKeys::startedRunIsShownWithItsClock()
{
    open();
    press(kF5);
    emit g_unitask->stopWatchChanged(QStringLiteral("-00:00:07"));
    QCOMPARE(overview()->findChild<QLabel *>("stop_watch")->text(), QStringLiteral("-00:00:07"));
    QCOMPARE(state(), QStringLiteral("Waiting"));
    press(kF5); // the list of the unbalance
    QCOMPARE(monitorPage()->currentPage()->findChild<QLabel *>("stop_watch")->text(), QStringLiteral("-00:00:07"));
    emit g_unitask->stopWatchChanged(QStringLiteral("-00:00:00"));
    QCOMPARE(state(), QStringLiteral("Waiting"));
    emit g_unitask->stopWatchChanged(QStringLiteral("00:00:01"));
    QCOMPARE(state(), QStringLiteral("Running"));
    g_unitask->startTask();
    m_taskmanage->data().live().monitor.freqReady = 1;
    m_taskmanage->data().live().monitor.freqMax = 50.25f;
    emit g_unitask->updateDisplay(nullptr);
    press(kF5);
    press(kRight, 8);
    QCOMPARE(overview()->findChild<QLabel *>("A1_Value")->text(), QStringLiteral("50.25Hz"));
}

void TstMonitorKeys::timedStartIsTakenOver()
{
    open();
    press(kEnter); // timed
    press(kDown);
    press(kRight); // a year from now
    press(kF5);
    QVERIFY(MonitorInfo::m_begain_time > QDateTime::currentSecsSinceEpoch() + 300 * 86400);
    const QLabel *watch = overview()->findChild<QLabel *>("stop_watch");
    QTRY_VERIFY2(watch->text().startsWith(QStringLiteral("-87")),
                 qPrintable(watch->text())); // 365 or 366 days of hours
}

void TstMonitorKeys::aMeasuringRunAsksBeforeItIsLeft_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("next");
    QTest::newRow("F6") << int(kF6) << "Scope";
    QTest::newRow("F7") << int(kF7) << "Menu";
    QTest::newRow("F9") << int(Qt::Key_S) << "Setup";
}

void TstMonitorKeys::aMeasuringRunAsksBeforeItIsLeft()
{
    QFETCH(int, key);
    open();
    press(kF5);
    g_unitask->startTask();
    UniTask *task = g_unitask;

    DialogAnswer cancel(kF5);
    press(Qt::Key(key));
    QVERIFY(cancel.text.contains("do you want to quit?"));
    QCOMPARE(top(), static_cast<QWidget *>(monitorPage()));
    QVERIFY(g_unitask == task && task->isTaskRunning());

    DialogAnswer quit(kF4);
    press(Qt::Key(key));
    QVERIFY(quit.asked);
    QTEST(title(), "next");
    QVERIFY(m_taskmanage->getUniFunction() != 4);
}

void TstMonitorKeys::aRunThatOnlyWaitsEndsWithoutAQuestion()
{
    open();
    press(kF5);
    DialogAnswer answer(kF5);
    press(kF7);
    QTest::qWait(60);
    QVERIFY(!answer.asked);
    QCOMPARE(title(), QStringLiteral("Menu"));
    QVERIFY(!m_taskmanage->currentTask());
}

void TstMonitorKeys::resultsStayUntilTheNextRunIsSetUp()
{
    open();
    press(kF5);
    g_unitask->startTask();
    m_taskmanage->data().live().monitor.voltReady = 1;
    emit g_unitask->updateDisplay(nullptr);
    m_taskmanage->stopTask();
    QCOMPARE(state(), QStringLiteral("Finished"));
    emit g_unitask->stopWatchChanged(QStringLiteral("02:00:00")); // the last one stays
    QCOMPARE(state(), QStringLiteral("Finished"));
    press(kLeft, 3);
    QCOMPARE(overview()->findChild<QLabel *>("verdict")->text(), QStringLiteral("Within the limits"));

    DialogAnswer answer(kF5);
    press(kF7);
    QTest::qWait(60);
    QVERIFY(!answer.asked);
    open();
    QCOMPARE(monitorPage()->currentIndex(), int(MonitorPage::Main));
    press(kF5);
    QCOMPARE(overview()->findChild<QLabel *>("verdict")->text(), QString());
    QCOMPARE(state(), QStringLiteral("Waiting"));
}

void TstMonitorKeys::memoryLeavesTheRunAlone()
{
    open();
    press(kF5);
    g_unitask->startTask();
    UniTask *task = g_unitask;
    DialogAnswer answer(kF5);
    press(kF10);
    QTest::qWait(60);
    QVERIFY(!answer.text.contains("quit"));
    QVERIFY(g_unitask == task && task->isTaskRunning());
    m_basedialog->navigator().showLast();
    QCOMPARE(title(), QStringLiteral("Monitor"));
    QCOMPARE(monitorPage()->currentIndex(), int(MonitorPage::Start));
}

void TstMonitorKeys::anotherLimitSetReachesTheProcessor()
{
    m_limits_g.changeActiveLimits(QStringLiteral("EN50160"));
    open();
    press(kDown, 3); // past the greyed date: limits
    press(kRight);
    FrameSpy spy;
    press(kF5);
    QCOMPARE(m_limits_g.activeLimitsName(), QStringLiteral("GOST32144"));
    // The set-up frame begins with its length and 0xc6.
    QVERIFY(std::any_of(spy.frames.begin(), spy.frames.end(),
                        [](const auto &words) { return words.size() > 20 && words[1] == 0xc6; }));
    m_limits_g.changeActiveLimits(QStringLiteral("EN50160"));
}

void TstMonitorKeys::theMonitorsOwnKeyDoesNothing()
{
    open();
    press(kF5);
    UniTask *task = g_unitask;
    press(kF8);
    QCOMPARE(monitorPage()->currentIndex(), int(MonitorPage::Start));
    QCOMPARE(g_unitask, task);
}

QTEST_MAIN(TstMonitorKeys)
#include "tst_monitorkeys.moc"
