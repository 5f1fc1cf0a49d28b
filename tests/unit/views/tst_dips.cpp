#include "settings/config_data.h"
#include "settings/dipswellinfo.h"
#include "model/displayrecords.h"
#include "pagetest.h"
#include "views/dips/dipseventpage.h"
#include "views/dips/dswell.h"
#include "views/dips/dswellmain.h"
#include "widgets/charts/dstrendchart.h"
#include "widgets/controls/eventswidget.h"
#include "widgets/text/f_to_str.h"
#include "widgets/controls/softkeybuttons.h"

#include <QSignalSpy>
#include <QStackedWidget>

#include <cstring>
#include <memory>

using namespace PageTest;

namespace {

constexpr float kNominal = 230;

__event_item eventOf(int type, int channel = 0)
{
    __event_item item;
    item.type = type;
    item.channel = channel;
    return item;
}

} // namespace

/// The page of dips and swells, its trend and its events, driven by their keys.
class TstDips : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void savedRecordHoldsTrendAndEvents();

    // the trend page
    void axisFollowsTheNominalFrequency_data();
    void axisFollowsTheNominalFrequency();
    void scaleStopsAtTheLastPair();
    void scaleStopsAtTheFirstPair();
    void zoomPairsSetSecondsAndValuesPerPoint_data();
    void zoomPairsSetSecondsAndValuesPerPoint();
    void exactlyOneOfCursorAndZoomIsOn();
    void leftPastTheOldestWindowStopsThere();
    void rightReturnsThroughTheWindowsToTheNewest();
    void cursorDoesNotEnterTheEmptyPart();
    void heldCursorGrowsToTwentyPointsPerTick();
    void cursorValueShowsInTheLabels();
    void f1SwapsVoltageAndCurrent();
    void longReadingsAndCaptionsFitTheirLabels();
    void everyRestartBeginsWithTheVoltage();
    void onePhaseWiringsShowASingleCurve_data();
    void onePhaseWiringsShowASingleCurve();
    void anInputThatTheWiringDoesNotHaveLeavesTheScaleAlone();
    void holdFreezesTheTrend();
    void eachStartShowsEmptyRecords();
    void pagesLiveBeforeTheFirstStart();
    void chartCursorStandsOnTheNewestPointAtTheStart();

    // events
    void withNoEventsTheCounterShowsZeroOfZero();
    void unbalanceNeverShowsUp();
    void eventsOfTheFamilyKeepTheirOrder();
    void hiddenPageCatchesUpWhenItIsShown();
    void shownPageFollowsEachChange();
    void upAndDownMoveTheSelectionAndTheCounter();
    void heldKeyGoesOnOneLineAtATime();
    void eventKeysOpenTheListAndLeadBack();
    void restartEmptiesTheLists();

private:
    DswellMain *mainPage() { return m_page->findChild<DswellMain *>(); }
    /// Makes these the live list under the page, which is shown.
    void list(const QList<__event_item> &events);
    QList<int> listedTypes() const;
    DipsEventPage *eventPage() { return m_page->findChild<DipsEventPage *>(); }
    DSTrendChart *chart() { return named<DSTrendChart>(mainPage(), "trend"); }
    void feed(int count, float value = kNominal);

    std::unique_ptr<dswell> m_page;
};

void TstDips::init()
{
    DipSwellInfo::m_zoom_index = 0;
    m_page = openedPage<dswell>();
}

/// \a count half-cycle values arrive on every phase, and the display is refreshed.
void TstDips::feed(int count, float value)
{
    for (int i = 0; i < count; ++i) {
        for (int c = 0; c < 3; ++c) {
            live().dips.voltage[c].append(value);
            live().dips.current[c].append(value / 100);
        }
    }
    m_page->updateDisplay(nullptr);
}

void TstDips::savedRecordHoldsTrendAndEvents()
{
    live().dips.voltage[0] = { 230, 231, 232 };
    live().dips.voltage[1] = { 1, 2, 3, 4 }; // longer: cut
    live().dips.current[3] = { 5 }; // shorter: filled up
    m_page->updateDisplay(nullptr);
    __event_item dip = eventOf(EventDip, 2);
    dip.finished = 1;
    dip.value = 80.5f;
    dip.startSeconds = 1700000000;
    dip.startTime = 1700000000123;
    dip.endTime = 1700000000223;
    dip.duration = 100;
    list({ dip, eventOf(EventSwell) });

    const QByteArray record = m_page->pqaData();
    QCOMPARE(record.size(), 8 + 8 * 3 * 4 + 2 * 48);
    qint32 sizes[2];
    std::memcpy(sizes, record.constData(), sizeof sizes);
    QCOMPARE(sizes[0], 96);
    QCOMPARE(sizes[1], 96);
    float values[24];
    std::memcpy(values, record.constData() + 8, sizeof values);
    QCOMPARE(values[2], 232.0f);
    QCOMPARE(values[5], 3.0f);
    QCOMPARE(values[21], 5.0f);
    QCOMPARE(values[23], 0.0f);
    qint32 words[12];
    std::memcpy(words, record.constData() + 8 + 96, sizeof words);
    QCOMPARE(words[0], 2); // channel
    QCOMPARE(words[1], int(EventDip));
    QCOMPARE(words[2], 1); // finished
    float level;
    std::memcpy(&level, &words[3], 4);
    QCOMPARE(level, 80.5f);
    QCOMPARE(words[4], 1700000000);
    qint64 times[2];
    std::memcpy(times, &words[6], sizeof times);
    QCOMPARE(times[0], qint64(1700000000123));
    QCOMPARE(times[1], qint64(1700000000223));
    QCOMPARE(words[10], 100);
    QCOMPARE(words[5], 0);
    QCOMPARE(words[11], 0);
}

void TstDips::axisFollowsTheNominalFrequency_data()
{
    QTest::addColumn<int>("select");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<int>("valuesPerPoint");
    const QStringList five { "1m", "48s", "36s", "24s", "12s" };
    QTest::newRow("50 Hz") << 1 << QStringList { "1m", "50s", "40s", "30s", "20s", "10s" } << 10;
    QTest::newRow("60 Hz") << 2 << five << 12;
    QTest::newRow("400 Hz") << 3 << five << 10; // 100 a second over 60 s
}

void TstDips::axisFollowsTheNominalFrequency()
{
    QFETCH(int, select);
    QFETCH(QStringList, labels);
    QFETCH(int, valuesPerPoint);
    setUpMeasurement(1, select);
    beginRun(*m_page);
    QCOMPARE(chart()->fullScale(), labels);
    QCOMPARE(mainPage()->seconds(), 60);
    QCOMPARE(mainPage()->window().valuesPerPoint, valuesPerPoint);
}

void TstDips::scaleStopsAtTheLastPair()
{
    press(mainPage(), Right, 3);
    QCOMPARE(mainPage()->seconds(), 12);
    QCOMPARE(chart()->fullScale(), QStringList({ "12s", "10s", "8s", "6s", "4s", "2s" }));
    press(mainPage(), Right);
    QCOMPARE(mainPage()->seconds(), 12);
    QCOMPARE(mainPage()->window().valuesPerPoint, 2);
    QCOMPARE(DipSwellInfo::m_zoom_index, 3);
}

void TstDips::scaleStopsAtTheFirstPair()
{
    press(mainPage(), Left);
    QCOMPARE(mainPage()->seconds(), 60);
    QCOMPARE(DipSwellInfo::m_zoom_index, 0);
}

void TstDips::zoomPairsSetSecondsAndValuesPerPoint_data()
{
    QTest::addColumn<int>("select");
    QTest::addColumn<QVector<int>>("seconds");
    QTest::addColumn<QVector<int>>("values");
    QTest::newRow("50 Hz") << 1 << QVector<int> { 48, 24, 12, 24, 48, 60 } << QVector<int> { 8, 4, 2, 4, 8, 10 };
    QTest::newRow("60 Hz") << 2 << QVector<int> { 40, 20, 10, 20, 40, 60 } << QVector<int> { 8, 4, 2, 4, 8, 12 };
    QTest::newRow("400 Hz") << 3 << QVector<int> { 48, 24, 12, 24, 48, 60 } << QVector<int> { 8, 4, 2, 4, 8, 12 };
}

void TstDips::zoomPairsSetSecondsAndValuesPerPoint()
{
    QFETCH(int, select);
    QFETCH(QVector<int>, seconds);
    QFETCH(QVector<int>, values);
    setUpMeasurement(1, select);
    beginRun(*m_page);
    for (int i = 0; i < 6; ++i) {
        press(mainPage(), i < 3 ? Right : Left);
        QCOMPARE(mainPage()->seconds(), seconds[i]);
        QCOMPARE(mainPage()->window().valuesPerPoint, values[i]);
        QCOMPARE(mainPage()->window().values(), 600 * values[i]);
    }
}

void TstDips::exactlyOneOfCursorAndZoomIsOn()
{
    QVERIFY(mainPage()->zoomOn());
    QVERIFY(!mainPage()->cursorOn());
    for (const FrontKey key : { F3, F3, F4, F4, F4, F3 }) {
        const bool cursor = mainPage()->cursorOn();
        press(mainPage(), key);
        QCOMPARE(mainPage()->cursorOn(), !cursor);
        QCOMPARE(mainPage()->zoomOn(), cursor);
        QCOMPARE(chart()->cursorOn(), !cursor);
        QCOMPARE(mainPage()->findChild<Btn2 *>()->btnFlag(), int(!cursor));
        QCOMPARE(mainPage()->findChild<Btn3 *>()->btnFlag(), int(cursor));
    }
}

void TstDips::leftPastTheOldestWindowStopsThere()
{
    feed(6000);
    press(mainPage(), Right, 3); // two values a point: a window of 1200
    press(mainPage(), F3);
    hold(mainPage(), Left, 1000);
    release(mainPage(), Left);
    // Windows move by 600 values as long as older ones lie behind: 4800 + 1200 reaches the oldest.
    QCOMPARE(mainPage()->window().offset, 4800);
    QCOMPARE(mainPage()->cursorPosition(), 600);
    press(mainPage(), Left);
    QCOMPARE(mainPage()->window().offset, 4800);
    QCOMPARE(mainPage()->cursorPosition(), 600);
}

void TstDips::rightReturnsThroughTheWindowsToTheNewest()
{
    feed(6000);
    press(mainPage(), Right, 3);
    press(mainPage(), F3);
    hold(mainPage(), Left, 36); // 1 + 3 x 1 + 3 x 5 + 3 x 10 + 27 x 20 = 589
    release(mainPage(), Left);
    press(mainPage(), Left, 11); // to the edge and into the next window
    QCOMPARE(mainPage()->window().offset, 600);
    QCOMPARE(mainPage()->cursorPosition(), 1);
    press(mainPage(), Right);
    QCOMPARE(mainPage()->window().offset, 0);
    QCOMPARE(mainPage()->cursorPosition(), 600);
    QCOMPARE(chart()->cursorPosition(), 1);
    hold(mainPage(), Right, 36);
    release(mainPage(), Right);
    press(mainPage(), Right, 10);
    QCOMPARE(mainPage()->cursorPosition(), 1);
    press(mainPage(), Right);
    QCOMPARE(mainPage()->cursorPosition(), 1);
    QCOMPARE(mainPage()->window().offset, 0);
}

void TstDips::cursorDoesNotEnterTheEmptyPart()
{
    feed(1000); // 100 points of ten values
    press(mainPage(), F3);
    hold(mainPage(), Left, 40);
    release(mainPage(), Left);
    QCOMPARE(mainPage()->cursorPosition(), 100);
    QCOMPARE(chart()->cursorPosition(), 501);
    QCOMPARE(mainPage()->window().offset, 0);
    // Zoomed in and out again the cursor stays on the curve.
    press(mainPage(), F4);
    press(mainPage(), Right, 3);
    press(mainPage(), F3);
    hold(mainPage(), Left, 40);
    release(mainPage(), Left);
    QCOMPARE(mainPage()->cursorPosition(), 500);
    press(mainPage(), F4);
    press(mainPage(), Left, 3);
    QCOMPARE(mainPage()->cursorPosition(), 100);
}

void TstDips::heldCursorGrowsToTwentyPointsPerTick()
{
    feed(6000);
    press(mainPage(), F3);
    hold(mainPage(), Left, 3);
    QCOMPARE(mainPage()->cursorPosition(), 5);
    auto *repeat = mainPage()->findChild<KeyRepeat *>();
    for (int i = 0; i < 7; ++i)
        repeat->tick();
    QCOMPARE(mainPage()->cursorPosition(), 5 + 3 * 5 + 3 * 10 + 20);
    release(mainPage(), Left);
    QVERIFY(!repeat->isActive());
}

void TstDips::cursorValueShowsInTheLabels()
{
    for (int i = 0; i < 6000; ++i) {
        for (int c = 0; c < 3; ++c)
            live().dips.voltage[c].append(i < 5970 ? 200.0f + c : 240.0f + c);
    }
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "D1_Caption"), QStringLiteral("L1:"));
    QCOMPARE(text(mainPage(), "D3_Value"), F_to_Str::number_V(242.0f));
    press(mainPage(), F3);
    press(mainPage(), Left, 3); // the fourth point is behind the last thirty values
    QCOMPARE(text(mainPage(), "D1_Value"), F_to_Str::number_V(200.0f));
    QCOMPARE(text(mainPage(), "D2_Value"), F_to_Str::number_V(201.0f));
    press(mainPage(), Right);
    QCOMPARE(text(mainPage(), "D1_Value"), F_to_Str::number_V(240.0f));
}

void TstDips::longReadingsAndCaptionsFitTheirLabels()
{
    // The unit is chosen for four places of the nominal value; a crest can be twice as high.
    for (int c = 1; c <= 4; ++c) {
        QVERIFY(holds(mainPage(), QStringLiteral("D%1_Caption").arg(c), QStringLiteral("L31:"), 4));
        QVERIFY(holds(mainPage(), QStringLiteral("D%1_Value").arg(c), QStringLiteral("-21213.00")));
    }
    QVERIFY(holds(mainPage(), QStringLiteral("events_t"), QStringLiteral("EVENTS :"), 4));
    QVERIFY(holds(mainPage(), QStringLiteral("events_count"), QStringLiteral("100000")));
}

void TstDips::f1SwapsVoltageAndCurrent()
{
    feed(100);
    QCOMPARE(text(mainPage(), "btn_f1"), QStringLiteral("U(%1)").arg(m_settingConfig_g.units().volt));
    press(mainPage(), F1);
    QCOMPARE(mainPage()->quantity(), int(RmsTrendPage::Current));
    QCOMPARE(text(mainPage(), "btn_f1"), QStringLiteral("I(%1)").arg(m_settingConfig_g.units().ampere));
    QCOMPARE(text(mainPage(), "D1_Value"), F_to_Str::number_A(2.3f));
    press(mainPage(), F1);
    QCOMPARE(mainPage()->quantity(), int(RmsTrendPage::Voltage));
}

void TstDips::everyRestartBeginsWithTheVoltage()
{
    for (int i = 0; i < 3; ++i) {
        beginRun(*m_page);
        QCOMPARE(mainPage()->quantity(), int(RmsTrendPage::Voltage));
    }
    press(mainPage(), F1);
    beginRun(*m_page);
    QCOMPARE(mainPage()->quantity(), int(RmsTrendPage::Voltage));
}

void TstDips::onePhaseWiringsShowASingleCurve_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<int>("flags");
    const int flags[] = { 15, 7, 1, 7, 11, 1, 15, 7, 15, 7 };
    for (int mode = 1; mode <= 10; ++mode)
        QTest::newRow(qPrintable(SettingConfig::getJoinModeName(mode))) << mode << flags[mode - 1];
}

void TstDips::onePhaseWiringsShowASingleCurve()
{
    QFETCH(int, joinMode);
    QFETCH(int, flags);
    setUpMeasurement(joinMode);
    beginRun(*m_page);
    feed(10);
    QCOMPARE(chart()->flags(), flags);
}

void TstDips::anInputThatTheWiringDoesNotHaveLeavesTheScaleAlone()
{
    QWidget *chart = named<QWidget>(mainPage(), "trend");
    chart->resize(609, 317);
    setUpMeasurement(5); // L1, L2 and N
    const auto picture = [&](float open) {
        beginRun(*m_page);
        for (int c = 0; c < kChannels; ++c) {
            for (int i = 0; i < 100; ++i)
                live().dips.voltage[c].append(c == 2 ? open : 230.0f + i % 7);
        }
        m_page->updateDisplay(nullptr);
        return chart->grab().toImage();
    };
    QCOMPARE(picture(0.0f), picture(233.0f));
}

void TstDips::holdFreezesTheTrend()
{
    feed(50);
    holdRun(*m_page);
    feed(50, 100);
    QCOMPARE(text(mainPage(), "D1_Value"), F_to_Str::number_V(kNominal));
    continueRun(*m_page);
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "D1_Value"), F_to_Str::number_V(100));
}

void TstDips::eachStartShowsEmptyRecords()
{
    feed(10);
    QCOMPARE(text(mainPage(), "D1_Value"), F_to_Str::number_V(kNominal));
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "D1_Value"), F_to_Str::number_V(0));
    QCOMPARE(m_page->pqaData(), QByteArray(8, 0));
}

void TstDips::pagesLiveBeforeTheFirstStart()
{
    renewLive();
    dswell page(liveData());
    openAll(page);
    page.updateDisplay(nullptr);
    page.retranslateUi();
    for (const FrontKey key : { F1, F2, F3, Left, Right, F4, Left, Right, F5 })
        press(page.findChild<DswellMain *>(), key);
    QCOMPARE(page.pqaData(), QByteArray(8, 0));
}

void TstDips::chartCursorStandsOnTheNewestPointAtTheStart()
{
    QCOMPARE(chart()->cursorPosition(), 600);
    QVERIFY(!chart()->cursorOn());
    QCOMPARE(mainPage()->cursorPosition(), 1);
}

void TstDips::withNoEventsTheCounterShowsZeroOfZero()
{
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("0/0"));
    QCOMPARE(text(eventPage(), "events_t"), QStringLiteral("EVENTS :"));
    press(eventPage(), Down, 2);
    press(eventPage(), Up);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("0/0"));
}

void TstDips::list(const QList<__event_item> &events)
{
    m_page->show();
    liveData().events().clear();
    for (const __event_item &event : events)
        liveData().events().append({ event, {}, {} });
}

QList<int> TstDips::listedTypes() const
{
    QList<int> types;
    for (int i = 0; i < m_page->events().size(); ++i)
        types << m_page->events().at(i).type;
    return types;
}

void TstDips::unbalanceNeverShowsUp()
{
    QList<__event_item> events;
    for (int type = 0; type <= 34; ++type)
        events.append(eventOf(type));
    list(events);
    QCOMPARE(m_page->events().size(), 4);
    for (const int type : listedTypes())
        QVERIFY(type != EventUnbalance && type >= 27 && type <= 30);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("1/4"));
    QCOMPARE(text(mainPage(), "events_count"), QStringLiteral("4"));
}

void TstDips::eventsOfTheFamilyKeepTheirOrder()
{
    list({ eventOf(EventSwell), eventOf(EventRms), eventOf(EventInterruption), eventOf(EventDip), eventOf(EventInrush),
           eventOf(EventRvc), eventOf(EventDip) });
    QCOMPARE(listedTypes(), QList<int>({ 28, 29, 27, 30, 27 }));
    m_page->hide();
    m_page->show();
    QCOMPARE(m_page->events().size(), 5);
}

void TstDips::upAndDownMoveTheSelectionAndTheCounter()
{
    list(QVector<__event_item>(20, eventOf(EventDip)).toList());
    press(eventPage(), Down, 14);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("15/20"));
    QCOMPARE(named<EventsWidget>(eventPage(), "events")->firstShown(), 2);
    press(eventPage(), Up, 3);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("12/20"));
    press(eventPage(), Down, 30);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("20/20"));
    press(eventPage(), Up, 30);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("1/20"));
}

void TstDips::heldKeyGoesOnOneLineAtATime()
{
    list(QVector<__event_item>(50, eventOf(EventDip)).toList());
    hold(eventPage(), Down, 12);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("14/50"));
    release(eventPage(), Down);
    QVERIFY(!eventPage()->findChild<KeyRepeat *>()->isActive());
}

void TstDips::eventKeysOpenTheListAndLeadBack()
{
    QCOMPARE(text(mainPage(), "btn_f2"), QStringLiteral("Events"));
    QCOMPARE(text(eventPage(), "btn_f5"), QStringLiteral("Back"));
    press(mainPage(), F2);
    QCOMPARE(static_cast<QWidget *>(m_page->currentPage()), static_cast<QWidget *>(eventPage()));
    press(eventPage(), F5);
    QCOMPARE(static_cast<QWidget *>(m_page->currentPage()), static_cast<QWidget *>(mainPage()));
    holdRun(*m_page);
    QCOMPARE(text(eventPage(), "btn_f5"), QStringLiteral("Back"));
}

void TstDips::hiddenPageCatchesUpWhenItIsShown()
{
    list({ eventOf(EventDip), eventOf(EventDip) });
    press(eventPage(), Down);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("2/2"));
    m_page->hide();
    liveData().events().append({ eventOf(EventSwell), {}, {} });
    liveData().events().change(1, [](PQAEventItem &event) { event.type = EventInrush; });
    liveData().events().append({ eventOf(EventRvc), {}, {} });
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("2/2")); // nothing was done for it
    QCOMPARE(text(mainPage(), "events_count"), QStringLiteral("2"));
    m_page->show();
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("2/3"));
    QCOMPARE(text(mainPage(), "events_count"), QStringLiteral("3"));
    QCOMPARE(listedTypes(), QList<int>({ 27, 28, 30 }));
    m_page->hide();
    liveData().events().clear();
    QVERIFY(m_page->events().isEmpty());
}

void TstDips::shownPageFollowsEachChange()
{
    list({ eventOf(EventDip) });
    liveData().events().append({ eventOf(EventUnbalance), {}, {} });
    liveData().events().append({ eventOf(EventSwell), {}, {} });
    QCOMPARE(listedTypes(), QList<int>({ 27, 28 }));
    liveData().events().change(0, [](PQAEventItem &event) { event.type = EventInterruption; });
    QCOMPARE(named<EventsWidget>(eventPage(), "events")->lineTexts(0).value(1), QStringLiteral("L1 INT"));
    liveData().events().change(0, [](PQAEventItem &event) { event.type = EventFrequency; });
    QCOMPARE(listedTypes(), QList<int>({ 28 }));
    liveData().events().change(1, [](PQAEventItem &event) { event.type = EventRvc; });
    QCOMPARE(listedTypes(), QList<int>({ 30, 28 }));
    QCOMPARE(text(mainPage(), "events_count"), QStringLiteral("2"));
    liveData().events().clear();
    QCOMPARE(text(mainPage(), "events_count"), QStringLiteral("0"));
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("0/0"));
}

void TstDips::restartEmptiesTheLists()
{
    list({ eventOf(EventDip) });
    QCOMPARE(m_page->events().size(), 1);
    liveData().events().clear(); // as the task does it at each start
    beginRun(*m_page);
    QVERIFY(m_page->events().isEmpty());
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("0/0"));
    QCOMPARE(text(mainPage(), "events_count"), QStringLiteral("0"));
}

PAGE_TEST_MAIN(TstDips)
#include "tst_dips.moc"
