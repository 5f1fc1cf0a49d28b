#include "device/idevice.h"
#include "pagetest.h"
#include "platform/clock.h"
#include "settings/localtime.h"
#include "settings/monitorinfo.h"
#include "unit/setup/typing.h"
#include "views/monitor/monitoreventpage.h"
#include "views/monitor/monitormain.h"
#include "views/monitor/monitorpage.h"
#include "views/monitor/monitortrendpage.h"
#include "views/monitor/monitstarharmpage.h"
#include "views/monitor/monitstartpage.h"
#include "widgets/charts/monitorharmhisto.h"
#include "widgets/charts/monitorhistogram.h"
#include "widgets/controls/softkeybuttons.h"

#include <QSignalSpy>

#include <cstring>
#include <memory>

using namespace PageTest;

namespace {

enum SetUpRow { StartRow, YearRow, MonthRow, DayRow, HourRow, MinuteRow, DaysRow, HoursRow, LimitsRow, NameRow };

} // namespace

/// The monitor's set-up, overview and harmonics page, and how they lead to each other.
class TstMonitor : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    // set-up
    void setUpShowsStartDurationLimitsAndName();
    void enterTogglesImmediateAndTimed();
    void dateIsGreyWhileTheStartIsImmediate();
    void durationMovesByDaysAndHours();
    void durationStaysBetweenAnHourAndAMonth();
    void limitSetsAreWalkedThrough();
    void limitSetCountsWithStartAlone();
    void sameLimitSetIsNotPutInForceAgain();
    void nameIsTyped();
    void anEmptyNameLeavesTheOldOne();
    void immediateStartHasNoTime();
    void timedStartIsAMomentOfTheUsersZone();
    void startTellsTheShellAndShowsTheOverview();
    void openingAgainBeginsWithTheSetUp();
    void openingAgainKeepsTheDuration();
    void timeOfTheRunBeforeIsNotShownOnTheSetUp();
    void startChoosesTheZoomForTheDuration();

    // overview
    void cursorBeginsOnTheHarmonics();
    void cursorSkipsBarsThatTheWiringDoesNotHave();
    void cursorStopsAtTheEnds();
    void flagsFollowTheWiring_data();
    void flagsFollowTheWiring();
    void softKeysLeadToEachQuantityAndBack_data();
    void softKeysLeadToEachQuantityAndBack();
    void placeholdersGiveWayToTheFirstValues();
    void verdictFollowsTheRatios();
    void dirsBarCountsTheEvents();
    void startForgetsTheLastRun();
    void resultsStayWhenTheRunHasEnded();

    // harmonics
    void harmonicsKeyStepsThroughThePhases_data();
    void harmonicsKeyStepsThroughThePhases();
    void harmonicsCursorRunsOverAllOrders();
    void harmonicsLeadToTheirEventsAndBack();

    // all
    void commonKeysLeadAway_data();
    void commonKeysLeadAway();
    void f5NeverHoldsTheRun();
    void savedAsMonitor();
    void savedRecordHoldsResultsAndTrends();
    void coloursOfThePhasesAreTakenOver();

private:
    MonitorMain *mainPage() { return m_page->findChild<MonitorMain *>(); }
    MonitStartPage *startPage() { return m_page->findChild<MonitStartPage *>(); }
    MonitStarHarmPage *harmPage() { return m_page->findChild<MonitStarHarmPage *>(); }
    MonitorHistogram *histogram() { return named<MonitorHistogram>(startPage(), "histogram"); }
    MonitorHarmHisto *harmHisto() { return named<MonitorHarmHisto>(harmPage(), "histogram"); }
    void choose(SetUpRow row);

    std::unique_ptr<MonitorPage> m_page;
};

void TstMonitor::initTestCase()
{
    m_idevice = new IDevice;
}

void TstMonitor::cleanupTestCase()
{
    delete m_idevice;
    m_idevice = nullptr;
}

void TstMonitor::init()
{
    MonitorInfo::m_duration = 2;
    m_limits_g.changeActiveLimits(QStringLiteral("EN50160"));
    m_page = openedPage<MonitorPage>();
    m_page->enter();
}

void TstMonitor::cleanup()
{
    Clock::useSystem();
    m_userConfig_g.setTimeZone("UTC");
}

void TstMonitor::choose(SetUpRow row)
{
    while (mainPage()->field() > row)
        press(mainPage(), Up);
    for (int i = 0; i < 10 && mainPage()->field() < row; ++i)
        press(mainPage(), Down);
    QCOMPARE(mainPage()->field(), int(row));
}

void TstMonitor::setUpShowsStartDurationLimitsAndName()
{
    QCOMPARE(m_page->currentIndex(), int(MonitorPage::Main));
    QCOMPARE(text(mainPage(), "title"), QStringLiteral("SETUP"));
    QCOMPARE(text(mainPage(), "start_t"), QStringLiteral("Start"));
    QCOMPARE(text(mainPage(), "start"), QStringLiteral("Immediate"));
    QCOMPARE(text(mainPage(), "duration_days_t"), QStringLiteral("Duration"));
    QCOMPARE(text(mainPage(), "duration_days"), QStringLiteral("0 d"));
    QCOMPARE(text(mainPage(), "duration_hours"), QStringLiteral("2 h"));
    QCOMPARE(text(mainPage(), "limits_t"), QStringLiteral("Limits"));
    QCOMPARE(text(mainPage(), "limits"), QStringLiteral("EN50160"));
    QCOMPARE(text(mainPage(), "file_name_t"), QStringLiteral("File name:"));
    QCOMPARE(text(mainPage(), "file_name"), QStringLiteral("Monitor-1"));
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Start"));
    for (int key = 1; key <= 4; ++key)
        QCOMPARE(text(mainPage(), QStringLiteral("btn_f%1").arg(key)), QString());
}

void TstMonitor::enterTogglesImmediateAndTimed()
{
    press(mainPage(), Enter);
    QCOMPARE(text(mainPage(), "start"), QStringLiteral("Timed"));
    press(mainPage(), Enter);
    QCOMPARE(text(mainPage(), "start"), QStringLiteral("Immediate"));
}

void TstMonitor::dateIsGreyWhileTheStartIsImmediate()
{
    press(mainPage(), Down);
    QCOMPARE(mainPage()->field(), int(DaysRow)); // past the date
    press(mainPage(), Up);
    press(mainPage(), Enter);
    press(mainPage(), Down);
    QCOMPARE(mainPage()->field(), int(YearRow));
}

void TstMonitor::durationMovesByDaysAndHours()
{
    choose(DaysRow);
    press(mainPage(), Right, 7);
    QCOMPARE(text(mainPage(), "duration_days"), QStringLiteral("7 d"));
    QCOMPARE(MonitorInfo::m_duration, 7 * 24 + 2);
    choose(HoursRow);
    press(mainPage(), Left, 2);
    QCOMPARE(text(mainPage(), "duration_hours"), QStringLiteral("0 h"));
    QCOMPARE(MonitorInfo::m_duration, 168);
    press(mainPage(), Left); // hours do not carry into the days
    QCOMPARE(MonitorInfo::m_duration, 168);
}

void TstMonitor::durationStaysBetweenAnHourAndAMonth()
{
    choose(HoursRow);
    press(mainPage(), Left, 5);
    QCOMPARE(MonitorInfo::m_duration, 1);
    press(mainPage(), Right, 30);
    QCOMPARE(MonitorInfo::m_duration, 23);
    choose(DaysRow);
    press(mainPage(), Right, 40);
    QCOMPARE(MonitorInfo::m_duration, 31 * 24);
    press(mainPage(), Left, 40);
    QCOMPARE(MonitorInfo::m_duration, 1);
}

void TstMonitor::limitSetsAreWalkedThrough()
{
    choose(LimitsRow);
    press(mainPage(), Right);
    QCOMPARE(text(mainPage(), "limits"), QStringLiteral("GOST32144"));
    press(mainPage(), Right); // the last of two
    QCOMPARE(text(mainPage(), "limits"), QStringLiteral("GOST32144"));
    press(mainPage(), Left, 3);
    QCOMPARE(text(mainPage(), "limits"), QStringLiteral("EN50160"));
}

void TstMonitor::limitSetCountsWithStartAlone()
{
    QSignalSpy changed(m_page.get(), &MonitorPage::limitsChanged);
    choose(LimitsRow);
    press(mainPage(), Right);
    QCOMPARE(m_limits_g.activeLimitsName(), QStringLiteral("EN50160"));
    press(mainPage(), F5);
    QCOMPARE(m_limits_g.activeLimitsName(), QStringLiteral("GOST32144"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(text(startPage(), "type"), QStringLiteral("GOST32144"));
}

void TstMonitor::sameLimitSetIsNotPutInForceAgain()
{
    QSignalSpy changed(m_page.get(), &MonitorPage::limitsChanged);
    press(mainPage(), F5);
    QCOMPARE(changed.count(), 0);
}

void TstMonitor::nameIsTyped()
{
    choose(NameRow);
    DialogDriver driver({ Typing::typed(QStringLiteral("Feeder-7")) });
    press(mainPage(), Enter);
    QVERIFY(driver.isDone());
    QCOMPARE(*MonitorInfo::m_monitor_file, QStringLiteral("Feeder-7"));
    QCOMPARE(text(mainPage(), "file_name"), QStringLiteral("Feeder-7"));
}

void TstMonitor::anEmptyNameLeavesTheOldOne()
{
    choose(NameRow);
    DialogDriver driver({ Typing::droppedAfter(QStringLiteral("Feeder-7")) });
    press(mainPage(), Enter);
    QVERIFY(driver.isDone());
    QCOMPARE(*MonitorInfo::m_monitor_file, QStringLiteral("Monitor-1"));
}

void TstMonitor::immediateStartHasNoTime()
{
    MonitorInfo::m_begain_time = 77;
    press(mainPage(), F5);
    QCOMPARE(MonitorInfo::m_begain_time, 0u);
}

void TstMonitor::timedStartIsAMomentOfTheUsersZone()
{
    m_userConfig_g.setTimeZone("Asia/Tokyo"); // nine hours ahead, all the year
    Clock::setForTest(qint64(1767225600) * 1000); // 2026-01-01 00:00 UTC
    m_page->enter();
    QCOMPARE(text(mainPage(), "hours"), QStringLiteral("09"));
    press(mainPage(), Enter);
    choose(MinuteRow);
    press(mainPage(), Right, 30);
    press(mainPage(), F5);
    QCOMPARE(MonitorInfo::m_begain_time, 1767225600u + 30 * 60);
}

void TstMonitor::startTellsTheShellAndShowsTheOverview()
{
    QSignalSpy started(m_page.get(), &MonitorPage::startMonitorTask);
    press(mainPage(), F5);
    QCOMPARE(started.count(), 1);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(startPage()));
}

void TstMonitor::openingAgainBeginsWithTheSetUp()
{
    press(mainPage(), Enter); // timed
    choose(LimitsRow);
    press(mainPage(), Right);
    m_page->showPage(MonitorPage::Harm);
    m_page->enter();
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
    QCOMPARE(mainPage()->field(), 0);
    QCOMPARE(text(mainPage(), "start"), QStringLiteral("Immediate"));
    QCOMPARE(text(mainPage(), "limits"), QStringLiteral("EN50160"));
}

void TstMonitor::openingAgainKeepsTheDuration()
{
    choose(DaysRow);
    press(mainPage(), Right);
    m_page->enter();
    QCOMPARE(text(mainPage(), "duration_days"), QStringLiteral("1 d"));
}

void TstMonitor::timeOfTheRunBeforeIsNotShownOnTheSetUp()
{
    press(mainPage(), F5);
    m_page->stopWatchChanged(QStringLiteral("00:01:17"));
    QCOMPARE(text(startPage(), "stop_watch"), QStringLiteral("00:01:17"));
    m_page->enter();
    QCOMPARE(text(mainPage(), "stop_watch"), QString());
}

void TstMonitor::startChoosesTheZoomForTheDuration()
{
    press(mainPage(), F5);
    QCOMPARE(MonitorInfo::m_zoom_index, 3); // 21 hours
    MonitorInfo::m_duration = 168;
    m_page->enter();
    press(mainPage(), F5);
    QCOMPARE(MonitorInfo::m_zoom_index, 0);
}

void TstMonitor::cursorBeginsOnTheHarmonics()
{
    QCOMPARE(startPage()->cursor(), 3);
    QCOMPARE(histogram()->cursorX(), 150);
    QCOMPARE(text(startPage(), "quantity"), QStringLiteral("L1 Harmonics"));
}

void TstMonitor::cursorSkipsBarsThatTheWiringDoesNotHave()
{
    setUpMeasurement(3);
    beginRun(*m_page);
    QCOMPARE(startPage()->cursor(), 3);
    press(startPage(), Left);
    QCOMPARE(startPage()->cursor(), 0);
    press(startPage(), Right, 2);
    QCOMPARE(startPage()->cursor(), 6);
    press(startPage(), Right);
    QCOMPARE(startPage()->cursor(), 9);
    press(startPage(), Right);
    QCOMPARE(startPage()->cursor(), 11); // past the unbalance
    QCOMPARE(text(startPage(), "quantity"), QStringLiteral("Frequency"));
}

void TstMonitor::cursorStopsAtTheEnds()
{
    press(startPage(), Left, 9);
    QCOMPARE(startPage()->cursor(), 0);
    press(startPage(), Right, 20);
    QCOMPARE(startPage()->cursor(), 12);
    QCOMPARE(text(startPage(), "quantity"), QStringLiteral("Mains Signaling"));
}

void TstMonitor::flagsFollowTheWiring_data()
{
    constexpr int three = 0b1111111111111, two = 0b1101011011011, one = 0b1101001001001;
    addWirings("flags", { three, three, one, three, two, one, three, three, three, three });
}

void TstMonitor::flagsFollowTheWiring()
{
    QFETCH(int, joinMode);
    setUpMeasurement(joinMode);
    beginRun(*m_page);
    QTEST(histogram()->flags(), "flags");
}

void TstMonitor::softKeysLeadToEachQuantityAndBack_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("page");
    QTest::newRow("F1") << int(F1) << "Vrms" << int(MonitorPage::Vrm) << "MonitStarVrmPage";
    QTest::newRow("F2") << int(F2) << "Harm." << int(MonitorPage::Harm) << "MonitStarHarmPage";
    QTest::newRow("F3") << int(F3) << "Flicker" << int(MonitorPage::Flicker) << "MonitFlickPage";
    QTest::newRow("F4") << int(F4) << "DIRS" << int(MonitorPage::Dirs) << "MonitDirsPage";
    QTest::newRow("F5") << int(F5) << "Unbal., Hz" << int(MonitorPage::Unbalance) << "MonitUnbalPage";
}

void TstMonitor::softKeysLeadToEachQuantityAndBack()
{
    QFETCH(int, key);
    QFETCH(QString, caption);
    m_page->showPage(MonitorPage::Start);
    QCOMPARE(text(startPage(), QStringLiteral("btn_") + QString::fromLatin1(QTest::currentDataTag()).toLower()),
             caption);
    press(startPage(), FrontKey(key));
    QTEST(m_page->currentIndex(), "row");
    QTEST(QString::fromLatin1(m_page->currentPage()->metaObject()->className()), "page");
    QCOMPARE(text(m_page->currentPage(), "btn_f5"), QStringLiteral("Back"));
    press(m_page->currentPage(), F5);
    QCOMPARE(m_page->currentIndex(), int(MonitorPage::Start));
}

void TstMonitor::placeholdersGiveWayToTheFirstValues()
{
    press(startPage(), Left, 3);
    QCOMPARE(text(startPage(), "A1_Value"), QStringLiteral("___._V"));
    QCOMPARE(text(startPage(), "B3_Value"), QStringLiteral("___._%"));
    QCOMPARE(text(startPage(), "verdict"), QString());
    live().monitor.voltReady = 1;
    live().monitor.voltMax[0] = 231;
    live().monitor.voltWholeRatio[0] = 4.5f;
    m_page->updateDisplay(nullptr);
    QVERIFY(text(startPage(), "A1_Value").startsWith("231"));
    QCOMPARE(text(startPage(), "B3_Value"), QStringLiteral("4.5%"));
}

void TstMonitor::verdictFollowsTheRatios()
{
    press(startPage(), Left, 2); // L2
    live().monitor.voltReady = 1;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(startPage(), "verdict"), QStringLiteral("Within the limits"));
    live().monitor.voltPartialRatio[1] = 101;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(startPage(), "verdict"), QStringLiteral("Limit exceeded"));
    press(startPage(), Left); // L1 is another matter
    QCOMPARE(text(startPage(), "verdict"), QStringLiteral("Within the limits"));
}

void TstMonitor::dirsBarCountsTheEvents()
{
    m_page->show();
    press(startPage(), Right, 6);
    QCOMPARE(text(startPage(), "A1_Value"), QStringLiteral("0/20"));
    for (const qint32 type : { EventDip, EventRms, EventDip }) {
        PQAEventItem event;
        event.type = type;
        liveData().events().append(event);
    }
    QCOMPARE(text(startPage(), "A1_Value"), QStringLiteral("2/20"));
}

void TstMonitor::startForgetsTheLastRun()
{
    live().monitor.voltReady = 1;
    m_page->updateDisplay(nullptr);
    press(startPage(), Right, 2);
    press(harmPage(), F1);
    // As the task that the start makes.
    connect(m_page.get(), &MonitorPage::startMonitorTask, m_page.get(), [] { renewLive(); });
    m_page->enter();
    press(mainPage(), F5);
    QCOMPARE(startPage()->cursor(), 3);
    QCOMPARE(text(startPage(), "verdict"), QString());
    QCOMPARE(text(startPage(), "A1_Value"), QStringLiteral("___._%"));
    QCOMPARE(harmPage()->phase(), 0);
}

void TstMonitor::resultsStayWhenTheRunHasEnded()
{
    live().monitor.voltReady = 1;
    liveData().finish();
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(startPage(), "verdict"), QStringLiteral("Within the limits"));
}

void TstMonitor::harmonicsKeyStepsThroughThePhases_data()
{
    addWirings("phases", { 3, 3, 1, 3, 2, 1, 3, 3, 3, 3 });
}

void TstMonitor::harmonicsKeyStepsThroughThePhases()
{
    QFETCH(int, joinMode);
    QFETCH(int, phases);
    setUpMeasurement(joinMode);
    beginRun(*m_page);
    auto *button = named<MonitorHarmBtn1>(harmPage(), "btn_f1");
    QVERIFY(button);
    QCOMPARE(button->texts(), QStringList({ "L1", "L2", "L3" }).mid(0, phases));
    for (int press = 0; press <= phases; ++press) {
        QCOMPARE(button->btnFlag(), press % phases);
        QCOMPARE(harmPage()->phase(), press % phases);
        QCOMPARE(text(harmPage(), "quantity"), channelSet(joinMode)->caption(press % phases) + " THD");
        PageTest::press(harmPage(), F1);
    }
}

void TstMonitor::harmonicsCursorRunsOverAllOrders()
{
    press(harmPage(), Left);
    QCOMPARE(harmHisto()->cursorIndex(), 0);
    press(harmPage(), Right, 4);
    QCOMPARE(harmHisto()->cursorIndex(), 4);
    QCOMPARE(text(harmPage(), "quantity"), QStringLiteral("L1 H5"));
    press(harmPage(), Right, 30);
    QCOMPARE(text(harmPage(), "quantity"), QStringLiteral("L1 H25"));
}

void TstMonitor::harmonicsLeadToTheirEventsAndBack()
{
    m_page->showPage(MonitorPage::Harm);
    press(harmPage(), F4);
    QCOMPARE(m_page->currentIndex(), int(MonitorPage::HarmEvents));
    press(m_page->currentPage(), F3);
    QCOMPARE(m_page->currentIndex(), int(MonitorPage::HarmTrend));
    press(m_page->currentPage(), F5);
    QCOMPARE(m_page->currentIndex(), int(MonitorPage::HarmEvents));
    press(m_page->currentPage(), F5);
    QCOMPARE(m_page->currentIndex(), int(MonitorPage::Harm));
    press(harmPage(), F5);
    QCOMPARE(m_page->currentIndex(), int(MonitorPage::Start));
}

void TstMonitor::commonKeysLeadAway_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<_quvera_ui_type>("target");
    QTest::newRow("F6") << int('E') << UI_SCOPE;
    QTest::newRow("F7") << int('A') << UI_MENU;
    QTest::newRow("F9") << int('S') << UI_SETUP;
    QTest::newRow("F10") << int('R') << UI_MEMORY;
}

void TstMonitor::commonKeysLeadAway()
{
    QFETCH(int, key);
    QFETCH(_quvera_ui_type, target);
    QSignalSpy left(m_page.get(), &Page::leave);
    for (int row = 0; row < m_page->pageCount(); ++row)
        QTest::keyClick(m_page->page(row), Qt::Key(key));
    QCOMPARE(left.count(), m_page->pageCount());
    for (const QList<QVariant> &arguments : left)
        QCOMPARE(arguments.at(0).value<_quvera_ui_type>(), target);
}

void TstMonitor::f5NeverHoldsTheRun()
{
    QSignalSpy pauses(m_page.get(), &LivePage::pause);
    for (int row = 0; row < m_page->pageCount(); ++row)
        press(m_page->page(row), F5);
    QCOMPARE(pauses.count(), 0);
}

void TstMonitor::savedAsMonitor()
{
    QCOMPARE(m_page->saveIdentity().windowId, 20);
    QCOMPARE(QString::fromLatin1(m_page->saveIdentity().defaultName), QStringLiteral("Monitor"));
}

void TstMonitor::savedRecordHoldsResultsAndTrends()
{
    live().monitor.freqMax = 50.25f; // word 279
    // Voltage, distortion, flicker of L1 to L3, unbalance, frequency: each list holds the number of its row.
    const int rows[] = { 4, 5, 6, 12, 13, 14, 20, 21, 22, 28, 36 };
    for (int row : rows)
        live().monitorTrend.append(row, float(row));
    live().monitorTrend.append(36, 50);
    const QByteArray record = m_page->pqaData();
    // 301 words, then eleven lists: their length, their values.
    QCOMPARE(record.size(), (301 + 11 + 12) * 4);
    float words[324];
    qint32 numbers[324];
    std::memcpy(words, record.constData(), sizeof words);
    std::memcpy(numbers, record.constData(), sizeof numbers);
    QCOMPARE(words[279], 50.25f);
    for (int list = 0; list < 11; ++list) {
        QCOMPARE(numbers[301 + 2 * list], list < 10 ? 1 : 2);
        QCOMPARE(words[302 + 2 * list], float(rows[list]));
    }
    QCOMPARE(words[323], 50.0f);
}

void TstMonitor::coloursOfThePhasesAreTakenOver()
{
    m_page->show();
    m_page->showPage(MonitorPage::Start);
    const QString before = sheet(startPage(), "quantity");
    m_page->hide();
    const QString stored = m_userConfig_g.getPhaseColors();
    m_userConfig_g.setPhaseColors(QStringLiteral("50213"));
    m_page->show();
    QVERIFY(sheet(startPage(), "quantity") != before);
    m_userConfig_g.setPhaseColors(stored);
}

PAGE_TEST_MAIN(TstMonitor)
#include "tst_monitor.moc"
