#include "shellcase.h"

#include "model/livedata.h"
#include "pages/viewcontainer.h"
#include "settings/dipswellinfo.h"
#include "settings/harmdata.h"
#include "setup/setuppage.h"
#include "shell/pagetable.h"
#include "shell/tasklinks.h"
#include "task/unitask.h"
#include "views/flicker/flicker.h"
#include "views/flicker/flickerpage.h"
#include "views/harmonics/harm.h"
#include "views/harmonics/harmmain.h"
#include "views/harmonics/harmmeterpage.h"
#include "views/power/powen.h"
#include "views/power/powermain.h"
#include "views/powerinverter/powerinverter.h"
#include "views/transients/trans.h"
#include "views/unbalance/unbalan.h"
#include "views/unbalance/unbalvectorpage.h"

#include "testpaths.h"

#include <QFile>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTranslator>

/// What a page does after many visits through the menu: the same, once. And what it does when it is left, or made late.
class TstVisits : public ShellCase
{
    Q_OBJECT

private slots:
    void holdIsAskedForOnce();
    void aPageVisitedOnHoldShowsTheHeldMoment();
    void referenceOfTheHarmonicsChangesOnce();
    void energyIsResetOnce();
    void aPageIsMadeWhenItIsFirstEntered();
    void pagesStandInTheOrderOfTheTable();
    void aPageMadeOnHoldIsHeld();
    void aPageMadeInAnotherLanguageSpeaksIt();
    void whatTheTaskKeepsFollowsTheFrequencyBeforeItsPagesAreMade();
    void inverterIsSetUpAnewOnlyWhenItIsLeft();
    void holdOfTheInverterWaitsForItsStart();
    void setupAsksBeforeItEndsAMeasurement();
    void setupShowsNoTimeOfAMeasurement();
    void whatSetupChangedIsOnTheNextPage();
    void aCommandedPageIsEnteredOnceItIsInFront();
    void panelHasHelpForEveryPage(); // makes them all, so it is the last

private:
    static constexpr int kVisits = 4;

    static void backToMenu()
    {
        auto *container = qobject_cast<ViewContainer *>(top());
        QTest::keyClick(container ? container->currentPage() : top(), kF7);
        QCOMPARE(top(), static_cast<QWidget *>(m_basedialog->menu()));
    }

    /// To the page of a tile and back to the menu, so many times, and to the page once more.
    static void visit(const char *tile)
    {
        for (int i = 0; i < kVisits; ++i) {
            moveToTile(tile);
            QTest::keyClick(m_basedialog->menu(), kEnter);
            backToMenu();
        }
        moveToTile(tile);
        QTest::keyClick(m_basedialog->menu(), kEnter);
    }
};

void TstVisits::holdIsAskedForOnce()
{
    visit("vif");
    g_unitask->startTask();
    QSignalSpy paused(g_unitask, &AbstractTask::taskPaused);
    QSignalSpy asked(&m_taskmanage->links(), &TaskLinks::pauseWanted);
    emit vifPage()->pause();
    QCOMPARE(paused.count(), 1);
    QCOMPARE(asked.count(), 1);
    QVERIFY(!vifPage()->isRunning());
}

void TstVisits::aPageVisitedOnHoldShowsTheHeldMoment()
{
    visit("vif");
    g_unitask->startTask();
    LiveData &data = m_taskmanage->data();
    data.live().harmonics.channel[0].rms = data.live().harmonics.channel[0].offset = 30;
    data.live().harmonics.channel[0].harmonic[0].magnitude = 60;
    emit vifPage()->pause();
    data.live().harmonics.channel[0].offset = 45;
    backToMenu();
    visit("harmonics");
    const auto *meter = pageOf<harm>(UI_HARMONICS)->page(harm::Meter); // made on hold
    QCOMPARE(meter->findChild<QLabel *>("row1_L1")->text(), QStringLiteral("50.000")); // 30 of 60
    g_unitask->continueTask();
    backToMenu();
    visit("harmonics");
    QCOMPARE(meter->findChild<QLabel *>("row1_L1")->text(), QStringLiteral("75.000")); // 45 of 60
}

void TstVisits::referenceOfTheHarmonicsChangesOnce()
{
    visit("harmonics");
    auto *page = pageOf<harm>(UI_HARMONICS);
    QTest::keyClick(page->findChild<HarmMain *>(), kF4);
    QSignalSpy refreshes(g_unitask, &UniTask::updateDisplay); // each change is shown at once
    QTest::keyClick(page->findChild<HarmMeterPage *>(), kF3);
    QCOMPARE(refreshes.count(), 1);
}

void TstVisits::energyIsResetOnce()
{
    visit("power");
    QSignalSpy refreshes(g_unitask, &UniTask::updateDisplay);
    emit pageOf<powen>(UI_POWER)->resetEnergy();
    QCOMPARE(refreshes.count(), 1);
}

void TstVisits::aPageIsMadeWhenItIsFirstEntered()
{
    const auto flickers = [] { return m_basedialog->findChildren<flicker *>().size(); };
    QCOMPARE(flickers(), 0);
    visit("flicker");
    QCOMPARE(flickers(), 1);
    auto *page = pageOf<flicker>(UI_FLICKER);
    QVERIFY(!page->findChild<FlickerPage *>()); // its trend was not looked at yet
    QTest::keyClick(page->currentPage(), kF4);
    QVERIFY(page->findChild<FlickerPage *>());
    QCOMPARE(static_cast<QWidget *>(page->currentPage()), page->findChild<QWidget *>("FlickerPage"));
}

void TstVisits::panelHasHelpForEveryPage()
{
    QFile table(QStringLiteral(QUVERA_SOURCE_DIR "/tools/panel/page/help.js"));
    QVERIFY(table.open(QIODevice::ReadOnly));
    const QByteArray text = table.readAll();
    for (int type = 0; type < kUiTypes; ++type) {
        const QObject *page = m_basedialog->navigator().page(_quvera_ui_type(type));
        if (page)
            QVERIFY2(text.contains(QByteArray("  ") + page->metaObject()->className() + ": '"),
                     page->metaObject()->className());
    }
}

void TstVisits::pagesStandInTheOrderOfTheTable()
{
    for (const auto type : { UI_SCOPE, UI_POWER, UI_VIF, UI_MAINS_SIG, UI_UNBALANCE })
        QVERIFY(m_basedialog->navigator().page(type));
    const auto *stack = m_basedialog->findChild<QStackedWidget *>("base_stackedWidget");
    QList<int> found;
    for (int i = 0; i < stack->count(); ++i)
        found << qobject_cast<Page *>(stack->widget(i))->uiType();
    QList<int> expected;
    for (const PageRow &row : PageTable::rows()) {
        if (found.contains(row.type) && !expected.contains(row.type))
            expected << row.type;
    }
    QCOMPARE(found, expected);
    QCOMPARE(found.first(), int(UI_MENU));
}

void TstVisits::aPageMadeOnHoldIsHeld()
{
    enterVif();
    g_unitask->startTask();
    emit vifPage()->pause();
    QVERIFY(g_unitask->isTaskPaused());
    QTest::keyClick(vifPage()->currentPage(), kF7);
    QVERIFY(!m_basedialog->findChild<trans *>());
    moveToTile("transients");
    QTest::keyClick(m_basedialog->menu(), kEnter);
    auto *page = pageOf<trans>(UI_TRANSIENTS);
    QVERIFY(!page->isRunning());
    QTest::keyClick(page->currentPage(), kF5); // Start: to the live voltages
    QCOMPARE(page->currentPage()->findChild<QLabel *>("btn_f5")->text(), QStringLiteral("Run"));
    emit page->run();
    QCOMPARE(page->currentPage()->findChild<QLabel *>("btn_f5")->text(), QStringLiteral("Hold"));
}

void TstVisits::aPageMadeInAnotherLanguageSpeaksIt()
{
    /// Every text with a mark before it.
    class Marked : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *text, const char *, int) const override
        {
            return QLatin1Char('~') + QString::fromUtf8(text);
        }
    } language;
    QVERIFY(!m_basedialog->findChild<unbalan *>() || !m_basedialog->findChild<UnbalVectorPage *>());
    QCoreApplication::installTranslator(&language);
    auto *page = pageOf<unbalan>(UI_UNBALANCE);
    page->showPage(unbalan::Vector);
    QCOMPARE(page->currentPage()->findChild<QLabel *>("btn_f5")->text(), QStringLiteral("~Hold"));
    QCoreApplication::removeTranslator(&language);
}

void TstVisits::whatTheTaskKeepsFollowsTheFrequencyBeforeItsPagesAreMade()
{
    const auto restore = qScopeGuard([] {
        m_settingConfig_g.setNomFreq(1);
        initUiParameter();
    });
    m_settingConfig_g.setNomFreq(2); // 60 Hz
    initUiParameter();
    QCOMPARE(DipSwellInfo::m_rms_numb_per_sec, 120);
    QCOMPARE(HarmData::m_harm_max_numb, 100);
    m_settingConfig_g.setNomFreq(3); // 400 Hz
    initUiParameter();
    QCOMPARE(DipSwellInfo::m_rms_numb_per_sec, 100);
    QCOMPARE(HarmData::m_harm_max_numb, 12);
    QVERIFY(!HarmData::m_bewith_inharm);
}

void TstVisits::inverterIsSetUpAnewOnlyWhenItIsLeft()
{
    Navigator &navigator = m_basedialog->navigator();
    navigator.go(UI_MENU, UI_POWER_INVERTER);
    auto *page = pageOf<PowerInverter>(UI_POWER_INVERTER);
    QTest::keyClick(page->currentPage(), kF5); // Start
    QCOMPARE(m_taskmanage->getUniFunction(), 5);
    g_unitask->startTask();
    FrameSpy spy;
    QTest::keyClick(page->currentPage(), kF10);
    QCOMPARE(title(), QStringLiteral("Memory"));
    QTest::keyClick(top(), kF5);
    QCOMPARE(top(), static_cast<QWidget *>(page));
    DialogAnswer cancel(kF5);
    QTest::keyClick(page->currentPage(), kF7);
    QVERIFY(cancel.asked);
    QCOMPARE(top(), static_cast<QWidget *>(page));
    QCOMPARE(spy.frames.size(), std::size_t(0));
    DialogAnswer quit(kF4);
    QTest::keyClick(page->currentPage(), kF7);
    QVERIFY(quit.asked);
    QCOMPARE(top(), static_cast<QWidget *>(m_basedialog->menu()));
    QVERIFY(spy.frames.size() >= 3); // end of the stream, then the usual set-up
}

void TstVisits::holdOfTheInverterWaitsForItsStart()
{
    m_basedialog->navigator().go(UI_MENU, UI_POWER_INVERTER);
    auto *page = pageOf<PowerInverter>(UI_POWER_INVERTER);
    QTest::keyClick(page->currentPage(), kF5); // Start: the run begins in ten seconds
    QVERIFY(!g_unitask->isTaskRunning());
    const auto caption = [page] { return page->currentPage()->findChild<QLabel *>("btn_f5")->text(); };
    QTest::keyClick(page->currentPage(), kF5);
    QCOMPARE(caption(), QStringLiteral("Hold"));
    QVERIFY(page->isRunning());
    g_unitask->startTask();
    QTest::keyClick(page->currentPage(), kF5);
    QVERIFY(g_unitask->isTaskPaused());
    QCOMPARE(caption(), QStringLiteral("Run"));
}

void TstVisits::aCommandedPageIsEnteredOnceItIsInFront()
{
    Navigator &navigator = m_basedialog->navigator();
    navigator.go(UI_MENU, UI_POWER_INVERTER);
    auto *page = pageOf<PowerInverter>(UI_POWER_INVERTER);
    page->showPage(PowerInverter::Main);
    navigator.go(UI_POWER_INVERTER, UI_MENU);
    QCOMPARE(top(), static_cast<QWidget *>(m_basedialog->menu()));
    QWidget *inFront = nullptr;
    auto *stack = page->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    QVERIFY(stack);
    connect(stack, &QStackedWidget::currentChanged, this, [&] { inFront = top(); });
    navigator.go(UI_MENU, UI_POWER_INVERTER);
    QCOMPARE(page->currentPage(), page->page(PowerInverter::Setup));
    QCOMPARE(inFront, static_cast<QWidget *>(page));
    QVERIFY(page->currentPage()->isAncestorOf(page->window()->focusWidget()));
    disconnect(stack, nullptr, this, nullptr);
}

void TstVisits::setupAsksBeforeItEndsAMeasurement()
{
    constexpr auto kSetup = Qt::Key_S;
    visit("vif");
    g_unitask->startTask();
    DialogAnswer stay(kF5);
    QTest::keyClick(vifPage()->currentPage(), kSetup);
    QVERIFY(stay.text.contains(QStringLiteral("is running.\ndo you want to quit?")));
    QCOMPARE(top(), static_cast<QWidget *>(vifPage()));
    QVERIFY(g_unitask->isTaskRunning());
    DialogAnswer quit(kF4);
    QTest::keyClick(vifPage()->currentPage(), kSetup);
    QVERIFY(quit.asked);
    QCOMPARE(title(), QStringLiteral("Setup"));
    QCOMPARE(top(), static_cast<QWidget *>(pageOf<SetupPage>(UI_SETUP)));
    QVERIFY(!m_taskmanage->currentTask());
    backToMenu();
    QCOMPARE(title(), QStringLiteral("Menu"));
}

void TstVisits::setupShowsNoTimeOfAMeasurement()
{
    visit("vif");
    const auto *shown = vifPage()->currentPage()->findChild<QLabel *>("stop_watch");
    QVERIFY(!shown->text().isEmpty());
    DialogAnswer quit(kF4);
    QTest::keyClick(vifPage()->currentPage(), Qt::Key_S);
    const auto *setup = pageOf<SetupPage>(UI_SETUP);
    QCOMPARE(top(), static_cast<const QWidget *>(setup));
    QTest::keyClick(setup->currentPage(), kF4); // the clamps
    const QList<QLabel *> times = top()->findChildren<QLabel *>("stop_watch");
    QVERIFY(!times.isEmpty());
    for (const QLabel *time : times)
        QCOMPARE(time->text(), QString());
}

void TstVisits::whatSetupChangedIsOnTheNextPage()
{
    const auto restore = qScopeGuard([] { m_settingConfig_g.setJoinMode(1); });
    m_settingConfig_g.setJoinMode(1);
    visit("vif");
    QCOMPARE(vifPage()->currentPage()->findChild<QLabel *>("header_1")->text(), QStringLiteral("L1"));
    backToMenu();
    m_taskmanage->exitTask();
    QTest::keyClick(m_basedialog->menu(), Qt::Key_S);
    const auto *setup = pageOf<SetupPage>(UI_SETUP);
    for (const Qt::Key key : { kF1, kRight, kEnter, kF4 }) // Config, from 3P WYE to 3P IT, its picture, Ok
        QTest::keyClick(setup->currentPage(), key);
    QCOMPARE(m_settingConfig_g.getJoinMode(), 2);
    QTest::keyClick(setup->currentPage(), kF6); // Scope
    QCOMPARE(title(), QStringLiteral("Scope"));
    QVERIFY(m_taskmanage->currentTask());
    backToMenu();
    visit("vif");
    QCOMPARE(vifPage()->currentPage()->findChild<QLabel *>("header_1")->text(), QStringLiteral("L12"));
}

QTEST_MAIN(TstVisits)
#include "tst_visits.moc"
