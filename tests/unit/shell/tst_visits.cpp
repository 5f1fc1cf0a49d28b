#include "shellcase.h"

#include "model/livedata.h"
#include "pages/viewcontainer.h"
#include "task/unitask.h"
#include "views/harmonics/harm.h"
#include "views/harmonics/harmmain.h"
#include "views/harmonics/harmmeterpage.h"
#include "views/power/powen.h"
#include "views/power/powermain.h"

#include <QSignalSpy>

/// What a page does after many visits through the menu: the same, once.
class TstVisits : public ShellCase
{
    Q_OBJECT

private slots:
    void holdIsAskedForOnce();
    void aPageVisitedOnHoldShowsTheHeldMoment();
    void referenceOfTheHarmonicsChangesOnce();
    void energyIsResetOnce();

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
    QSignalSpy shown(vifPage(), &FunctionPage::taskPaused);
    emit vifPage()->pause();
    QCOMPARE(paused.count(), 1);
    QCOMPARE(shown.count(), 1);
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
    auto *meter = pageOf<harm>(UI_HARMONICS)->findChild<HarmMeterPage *>();
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

QTEST_MAIN(TstVisits)
#include "tst_visits.moc"
