#include "unit/wildfloats.h"
#include "settings/harmdata.h"
#include "model/displayrecords.h"
#include "pagetest.h"
#include "views/harmonics/harm.h"
#include "views/harmonics/harmmain.h"
#include "views/harmonics/harmmeterpage.h"
#include "views/harmonics/harmvalues.h"
#include "widgets/controls/softkeybuttons.h"

#include <QScrollBar>
#include <QSignalSpy>

#include <algorithm>
#include <cstring>
#include <memory>

using namespace PageTest;

class TstHarmonics : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void startShowsVoltageOfL1WithoutInterharmonics();
    void eachStartShowsEmptyRecords();
    void savedRecordIsTheLiveOneByteForByte();
    void pagesLiveBeforeTheFirstStart();

    // the graph
    void f1SwapsVoltageAndCurrentAndPutsTheCursorBack();
    void f2StepsThroughTheChannelsOfTheWiring_data();
    void f2StepsThroughTheChannelsOfTheWiring();
    void f2PutsTheCursorBack();
    void f3TogglesInterharmonicsAndPutsTheCursorBack();
    void f3DoesNothingAt400Hz();
    void windowFollowsChannelAndInterharmonics_data();
    void windowFollowsChannelAndInterharmonics();
    void cursorLeadsThroughAllWindowsAndBack_data();
    void cursorLeadsThroughAllWindowsAndBack();
    void cursorStopsAtOrderTwelveAt400Hz();
    void heldCursorGrowsAfterEightTicks();
    void barsAreCutAtHundredPercent();
    void barsFollowTheReference();
    void interharmonicFollowsItsOrder();
    void cursorOnAnOrderShowsMagnitudePercentPhaseAndFrequency();
    void cursorOnThdAndDc();
    void channelWithoutDataShowsPlaces();
    void allShowsEveryChannelOfTheWiring();
    void wildRecordIsShown();

    // the table
    void tableBeginsWithDcThdAndTheFirstOrders();
    void tableEndsWithOrderHundredAndBlanks();
    void tableEndsAtItsLastPageAt400Hz();
    void tableShowsPercentOfTheReference();
    void tableShowsOnlyTheChannelsOfTheWiring_data();
    void tableShowsOnlyTheChannelsOfTheWiring();
    void heldTableGrowsAfterThreeTicks();
    void f3AsksForTheOtherReference();
    void f4LeadsToTheTableAndBack();
    void deltaWiringsNameBothVoltageAndPhase();

private:
    HarmMain *mainPage() { return m_page->findChild<HarmMain *>(); }
    HarmMeterPage *meterPage() { return m_page->findChild<HarmMeterPage *>(); }
    HarmonicGraph *graph() { return named<HarmonicGraph>(mainPage(), "graph"); }
    void start(int joinMode, int frequency = 1);
    /// Every channel: 200 r.m.s., fundamental 160, order n 160 / n, interharmonic n half of that; THD 40, DC 10.
    void fill();

    std::unique_ptr<harm> m_page;
};

void TstHarmonics::start(int joinMode, int frequency)
{
    setUpMeasurement(joinMode, frequency);
    beginRun(*m_page);
    fill();
    m_page->updateDisplay(nullptr);
}

void TstHarmonics::fill()
{
    for (HarmChannel &channel : live().harmonics.channel) {
        channel.rms = 200;
        channel.offset = 10;
        channel.distortion = 40;
        for (int i = 0; i < kHarmonicOrders; ++i) {
            channel.harmonic[i] = { 160.0f / float(i + 1), 50.0f * float(i + 1), 0.5f };
            channel.inter[i] = { 80.0f / float(i + 1), 50.0f * float(i) + 25.0f, 0 };
        }
    }
}

void TstHarmonics::init()
{
    m_page = std::make_unique<harm>(liveData());
    openAll(*m_page);
    start(1);
}

void TstHarmonics::startShowsVoltageOfL1WithoutInterharmonics()
{
    press(mainPage(), F1);
    press(mainPage(), F2);
    press(mainPage(), F3);
    press(mainPage(), Right);
    beginRun(*m_page);
    QCOMPARE(mainPage()->quantity(), int(HarmValues::Voltage));
    QCOMPARE(mainPage()->channelFlag(), int(GraphL1));
    QVERIFY(!mainPage()->interharmonics());
    QCOMPARE(mainPage()->cursorIndex(), 0);
    QCOMPARE(live().harmonics.reference, 2);
    QCOMPARE(text(mainPage(), "type"), QStringLiteral("U(V) %f"));
    QCOMPARE(text(mainPage(), "btn_f4"), QStringLiteral("Meter"));
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Hold"));
}

void TstHarmonics::eachStartShowsEmptyRecords()
{
    live().harmonics.reference = 1;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "type"), QStringLiteral("U(V) %r"));
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "type"), QStringLiteral("U(V) %f"));
    QCOMPARE(text(mainPage(), "D1_val"), QStringLiteral("_.__"));
}

void TstHarmonics::savedRecordIsTheLiveOneByteForByte()
{
    const QByteArray bytes = m_page->pqaData();
    QCOMPARE(bytes.size(), 19300);
    QCOMPARE(std::memcmp(bytes.constData(), &live().harmonics, 19300), 0);
}

void TstHarmonics::pagesLiveBeforeTheFirstStart()
{
    renewLive();
    harm page(liveData());
    openAll(page);
    page.updateDisplay(nullptr);
    page.retranslateUi();
    QCOMPARE(page.pqaData().size(), 19300);
    auto *main = page.findChild<HarmMain *>();
    for (FrontKey key : { F1, F2, F3, Left, Right })
        press(main, key);
    for (const __graphdata &bar : main->bars())
        QVERIFY(std::all_of(std::begin(bar.value), std::end(bar.value), [](float value) { return value == 0; }));
    auto *meter = page.findChild<HarmMeterPage *>();
    QSignalSpy asked(&page, &harm::changeFlag);
    for (FrontKey key : { F3, Up, Down })
        press(meter, key);
    QCOMPARE(asked.count(), 1);
}

void TstHarmonics::f1SwapsVoltageAndCurrentAndPutsTheCursorBack()
{
    live().harmonics.channel[4].rms = 5;
    press(mainPage(), Right, 3);
    press(mainPage(), F1);
    QCOMPARE(mainPage()->quantity(), int(HarmValues::Current));
    QCOMPARE(mainPage()->cursorIndex(), 0);
    QCOMPARE(graph()->cursorIndex(), 0);
    QCOMPARE(named<HarmBtn1>(mainPage(), "btn_f1")->selectedText(), QStringLiteral("I"));
    QCOMPARE(text(mainPage(), "type"), QStringLiteral("I(A) %f"));
    press(mainPage(), F1);
    QCOMPARE(named<HarmBtn1>(mainPage(), "btn_f1")->selectedText(), QStringLiteral("U"));
}

void TstHarmonics::f2StepsThroughTheChannelsOfTheWiring_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<QList<int>>("cycle");
    for (int mode : { 1, 7, 9 })
        QTest::addRow("star %d", mode) << mode << QList<int> { 1, 2, 3, 4, 5, 1 };
    for (int mode : { 2, 4, 8, 10 })
        QTest::addRow("delta %d", mode) << mode << QList<int> { 1, 2, 3, 5, 1, 2 };
    QTest::newRow("1P toggles L1 and N") << 3 << QList<int> { 1, 4, 1, 4, 1, 4 };
    QTest::newRow("1P SPLIT") << 5 << QList<int> { 1, 2, 4, 5, 1, 2 };
    QTest::newRow("1P IT stays") << 6 << QList<int> { 1, 1, 1, 1, 1, 1 };
}

void TstHarmonics::f2StepsThroughTheChannelsOfTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(QList<int>, cycle);
    start(joinMode);
    for (int flag : cycle) {
        QCOMPARE(mainPage()->channelFlag(), flag);
        QCOMPARE(graph()->graphType(), flag);
        QCOMPARE(named<HarmBtn2>(mainPage(), "btn_f2")->btnFlag(), flag);
        press(mainPage(), F2);
    }
}

void TstHarmonics::f2PutsTheCursorBack()
{
    press(mainPage(), Right, 60); // into the second window
    QCOMPARE(mainPage()->firstOrder(), 51);
    press(mainPage(), F2);
    QCOMPARE(mainPage()->cursorIndex(), 0);
    QCOMPARE(mainPage()->firstOrder(), 1);
    QCOMPARE(mainPage()->lastOrder(), 50);
}

void TstHarmonics::f3TogglesInterharmonicsAndPutsTheCursorBack()
{
    press(mainPage(), Right, 5);
    press(mainPage(), F3);
    QVERIFY(mainPage()->interharmonics());
    QVERIFY(graph()->inharmEnabled());
    QCOMPARE(mainPage()->cursorIndex(), 0);
    QCOMPARE(mainPage()->lastOrder(), 25);
    QCOMPARE(named<HarmBtn3>(mainPage(), "btn_f3")->btnFlag(), 1);
    press(mainPage(), F3);
    QVERIFY(!graph()->inharmEnabled());
}

void TstHarmonics::f3DoesNothingAt400Hz()
{
    start(1, 3);
    press(mainPage(), Right, 4);
    press(mainPage(), F3);
    QVERIFY(!mainPage()->interharmonics());
    QCOMPARE(mainPage()->cursorIndex(), 4);
}

void TstHarmonics::windowFollowsChannelAndInterharmonics_data()
{
    QTest::addColumn<int>("frequency");
    QTest::addColumn<bool>("all");
    QTest::addColumn<bool>("inter");
    QTest::addColumn<int>("last");
    QTest::newRow("one channel") << 1 << false << false << 50;
    QTest::newRow("one channel, interharmonics") << 1 << false << true << 25;
    QTest::newRow("all") << 2 << true << false << 25;
    QTest::newRow("all, interharmonics") << 2 << true << true << 13;
    QTest::newRow("400 Hz") << 3 << false << false << 12;
    QTest::newRow("400 Hz, all") << 3 << true << false << 12;
}

void TstHarmonics::windowFollowsChannelAndInterharmonics()
{
    QFETCH(int, frequency);
    QFETCH(bool, all);
    QFETCH(bool, inter);
    QFETCH(int, last);
    start(1, frequency);
    if (all)
        press(mainPage(), F2, 4);
    if (inter)
        press(mainPage(), F3);
    QCOMPARE(mainPage()->firstOrder(), 1);
    QCOMPARE(mainPage()->lastOrder(), last);
    QCOMPARE(graph()->barCount(), last);
    QCOMPARE(mainPage()->bars().size(), 2 + last * (inter ? 2 : 1));
}

void TstHarmonics::cursorLeadsThroughAllWindowsAndBack_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<bool>("all");
    QTest::addColumn<bool>("inter");
    QTest::addColumn<QList<QPoint>>("windows"); // first and last order
    QTest::addColumn<int>("lastPlace"); // of a full window
    QTest::addColumn<int>("firstPlace");
    QTest::addColumn<int>("end"); // cursor on the last bar of all
    using Windows = QList<QPoint>;
    QTest::newRow("one channel") << 1 << false << false << Windows { { 1, 50 }, { 51, 100 } } << 51 << 2 << 51;
    QTest::newRow("one channel, interharmonics")
        << 1 << false << true << Windows { { 1, 25 }, { 26, 50 }, { 51, 75 }, { 76, 100 } } << 51 << 2 << 51;
    const Windows quarters { { 1, 25 }, { 26, 50 }, { 51, 75 }, { 76, 100 } };
    const Windows thirteens { { 1, 13 },  { 14, 26 }, { 27, 39 }, { 40, 52 },
                              { 53, 65 }, { 66, 78 }, { 79, 91 }, { 92, 100 } };
    QTest::newRow("all") << 1 << true << false << quarters << 80 << 6 << 80;
    // Nine orders in the last window: (18 + 2) groups of three.
    QTest::newRow("all, interharmonics") << 1 << true << true << thirteens << 83 << 6 << 59;
    QTest::newRow("split phase") << 5 << true << false << quarters << 53 << 4 << 53;
    QTest::newRow("split phase, interharmonics") << 5 << true << true << thirteens << 55 << 4 << 39;
}

void TstHarmonics::cursorLeadsThroughAllWindowsAndBack()
{
    QFETCH(int, joinMode);
    QFETCH(bool, all);
    QFETCH(bool, inter);
    QFETCH(QList<QPoint>, windows);
    QFETCH(int, lastPlace);
    QFETCH(int, firstPlace);
    QFETCH(int, end);
    start(joinMode);
    while (all && mainPage()->channelFlag() != GraphAll)
        press(mainPage(), F2);
    if (inter)
        press(mainPage(), F3);
    const auto window = [this] { return QPoint(mainPage()->firstOrder(), mainPage()->lastOrder()); };

    for (int w = 0; w < windows.size(); ++w) {
        QCOMPARE(window(), windows[w]);
        QCOMPARE(mainPage()->cursorIndex(), w == 0 ? 0 : firstPlace);
        const int target = w + 1 < windows.size() ? lastPlace : end;
        press(mainPage(), Right, target - mainPage()->cursorIndex());
        QCOMPARE(window(), windows[w]);
        QCOMPARE(mainPage()->cursorIndex(), target);
        press(mainPage(), Right);
    }
    QCOMPARE(window(), windows.last());
    QCOMPARE(mainPage()->cursorIndex(), end);
    QCOMPARE(graph()->cursorIndex(), end);

    for (int w = windows.size() - 1; w > 0; --w) {
        press(mainPage(), Left, mainPage()->cursorIndex() - firstPlace);
        QCOMPARE(window(), windows[w]);
        press(mainPage(), Left);
        QCOMPARE(window(), windows[w - 1]);
        QCOMPARE(mainPage()->cursorIndex(), lastPlace);
    }
    press(mainPage(), Left, lastPlace + 3);
    QCOMPARE(window(), windows.first());
    QCOMPARE(mainPage()->cursorIndex(), 0);
}

void TstHarmonics::cursorStopsAtOrderTwelveAt400Hz()
{
    start(1, 3);
    press(mainPage(), Right, 40);
    QCOMPARE(mainPage()->cursorIndex(), 13); // THD, DC, twelve orders
    QVERIFY(text(mainPage(), "order").startsWith(QStringLiteral("H12 ")));
    QCOMPARE(mainPage()->lastOrder(), 12);
}

void TstHarmonics::heldCursorGrowsAfterEightTicks()
{
    hold(mainPage(), Right, 8);
    QCOMPARE(mainPage()->cursorIndex(), 9); // the press and eight ticks
    hold(mainPage(), Right, 1); // a key that repeats by itself changes nothing; the ninth tick moves five
    QCOMPARE(mainPage()->cursorIndex(), 14);
    release(mainPage(), Right);
    press(mainPage(), Right);
    QCOMPARE(mainPage()->cursorIndex(), 15);
    hold(mainPage(), Left, 1);
    release(mainPage(), Left);
    QCOMPARE(mainPage()->cursorIndex(), 13);
}

void TstHarmonics::barsAreCutAtHundredPercent()
{
    live().harmonics.channel[0].harmonic[4].magnitude = 320; // twice the fundamental
    live().harmonics.channel[0].offset = -10;
    m_page->updateDisplay(nullptr);
    QCOMPARE(mainPage()->bars().at(2 + 4).value[0], 100.0f);
    QCOMPARE(mainPage()->bars().at(1).value[0], 0.0f);
}

void TstHarmonics::barsFollowTheReference()
{
    // 40 of 160, 10 of 160, 160 / 5 of 160; then of 200.
    const QList<__graphdata> &bars = mainPage()->bars();
    QCOMPARE(bars.at(0).value[0], 25.0f);
    QCOMPARE(bars.at(1).value[0], 6.25f);
    QCOMPARE(bars.at(6).value[2], 20.0f);
    live().harmonics.reference = 1;
    m_page->updateDisplay(nullptr);
    QCOMPARE(mainPage()->bars().at(0).value[0], 20.0f);
    QCOMPARE(mainPage()->bars().at(1).value[0], 5.0f);
    QCOMPARE(mainPage()->bars().at(6).value[2], 16.0f);
    QCOMPARE(text(mainPage(), "type"), QStringLiteral("U(V) %r"));
}

void TstHarmonics::interharmonicFollowsItsOrder()
{
    press(mainPage(), F3);
    // 80 / 2 of 160 behind order 2.
    QCOMPARE(mainPage()->bars().at(2 + 2).value[0], 50.0f);
    QCOMPARE(mainPage()->bars().at(2 + 3).value[0], 25.0f);
    press(mainPage(), Right, 5);
    QCOMPARE(text(mainPage(), "order"), QStringLiteral("IH2  75.00Hz"));
    QCOMPARE(text(mainPage(), "D1_val"), QStringLiteral("40.00\n25.00%"));
}

void TstHarmonics::cursorOnAnOrderShowsMagnitudePercentPhaseAndFrequency()
{
    press(mainPage(), Right, 6);
    QCOMPARE(text(mainPage(), "order"), QStringLiteral("H5  250.00Hz"));
    // 160 / 5 V, of 160 V; 0.5 rad are 28.6 degrees.
    QCOMPARE(text(mainPage(), "D1_val"), QStringLiteral("32.00\n20.00%  28.6\u00b0"));
    QCOMPARE(text(mainPage(), "D1"), QStringLiteral("L1"));
    QCOMPARE(text(mainPage(), "D2_val"), QString());
    QCOMPARE(text(mainPage(), "D2"), QString());
}

void TstHarmonics::cursorOnThdAndDc()
{
    QCOMPARE(text(mainPage(), "order"), QStringLiteral("THD"));
    QCOMPARE(text(mainPage(), "D1_val"), QStringLiteral("25.00%"));
    press(mainPage(), Right);
    QCOMPARE(text(mainPage(), "order"), QStringLiteral("DC"));
    QCOMPARE(text(mainPage(), "D1_val"), QStringLiteral("10.00 DC"));
}

void TstHarmonics::channelWithoutDataShowsPlaces()
{
    beginRun(*m_page);
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "D1_val"), QStringLiteral("_.__"));
}

void TstHarmonics::allShowsEveryChannelOfTheWiring()
{
    start(5);
    press(mainPage(), F2, 3);
    QCOMPARE(mainPage()->channelFlag(), int(GraphAll));
    QCOMPARE(graph()->graphTypeEx(), int(GraphTwoPhases));
    const bool shown[] = { true, true, false, true };
    for (int c = 0; c < 4; ++c)
        QCOMPARE(!text(mainPage(), QStringLiteral("D%1_val").arg(c + 1)).isEmpty(), shown[c]);
    // Two bars a group: the fifth place is L1 of the first order.
    press(mainPage(), Right, 4);
    QVERIFY(text(mainPage(), "order").startsWith(QStringLiteral("H1 ")));
    press(mainPage(), Right, 2);
    QVERIFY(text(mainPage(), "order").startsWith(QStringLiteral("H2 ")));
}

void TstHarmonics::wildRecordIsShown()
{
    for (float value : kWildFloats) {
        for (HarmChannel &channel : live().harmonics.channel) {
            channel.rms = channel.offset = channel.distortion = value;
            for (HarmLine &line : channel.harmonic)
                line = { value, value, value };
        }
        m_page->updateDisplay(nullptr);
        press(mainPage(), Right);
        for (const __graphdata &bar : mainPage()->bars())
            QVERIFY(bar.value[0] >= 0 && bar.value[0] <= 100);
    }
    live().harmonics.reference = 99;
    m_page->updateDisplay(nullptr);
}

void TstHarmonics::tableBeginsWithDcThdAndTheFirstOrders()
{
    const QStringList names { "Udc", "Idc", "Uthd", "Ithd", "Uharm 1", "Uharm 2", "Uharm 3" };
    for (int i = 0; i < names.size(); ++i)
        QCOMPARE(text(meterPage(), QStringLiteral("row%1_t").arg(i + 1)), names[i]);
    press(meterPage(), Up);
    QCOMPARE(meterPage()->scrollPosition(), 0);
    press(meterPage(), Down);
    QCOMPARE(meterPage()->scrollPosition(), 7);
    QCOMPARE(text(meterPage(), "row1_t"), QStringLiteral("Uharm 4"));
    // The four heads and 100 orders of the voltage end at line 104, in the 15th page.
    press(meterPage(), Down, 13);
    QCOMPARE(text(meterPage(), "row6_t"), QStringLiteral("Uharm 100"));
    QCOMPARE(text(meterPage(), "row7_t"), QStringLiteral("Iharm 1"));
}

void TstHarmonics::tableEndsWithOrderHundredAndBlanks()
{
    press(meterPage(), Down, 70);
    QCOMPARE(meterPage()->scrollPosition(), 399);
    QCOMPARE(meterPage()->findChild<QScrollBar *>()->value(), 399);
    QCOMPARE(meterPage()->findChild<QScrollBar *>()->maximum(), 399);
    // 4 + 400 lines: five are left for the last page.
    QCOMPARE(text(meterPage(), "row1_t"), QStringLiteral("Iinharm 96"));
    QCOMPARE(text(meterPage(), "row5_t"), QStringLiteral("Iinharm 100"));
    QCOMPARE(text(meterPage(), "row6_t"), QString());
    QCOMPARE(text(meterPage(), "row7_t"), QString());
    QVERIFY(!text(meterPage(), "row5_L1").isEmpty());
    QCOMPARE(text(meterPage(), "row6_L1"), QString());
    press(meterPage(), Up);
    QCOMPARE(meterPage()->scrollPosition(), 392);
    QVERIFY(!text(meterPage(), "row7_L1").isEmpty());
}

void TstHarmonics::tableEndsAtItsLastPageAt400Hz()
{
    start(1, 3);
    press(meterPage(), Down, 10);
    QCOMPARE(meterPage()->scrollPosition(), 21);
    QCOMPARE(text(meterPage(), "row1_t"), QStringLiteral("Iharm 6"));
    QCOMPARE(text(meterPage(), "row7_t"), QStringLiteral("Iharm 12"));
}

void TstHarmonics::tableShowsPercentOfTheReference()
{
    live().harmonics.channel[1].offset = 4;
    live().harmonics.channel[6].distortion = 8;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(meterPage(), "row1_L2"), QStringLiteral("2.500")); // 4 of 160
    QCOMPARE(text(meterPage(), "row4_L3"), QStringLiteral("5.000")); // 8 of 160
    QCOMPARE(text(meterPage(), "row7_N"), QStringLiteral("33.333"));
    live().harmonics.reference = 1;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(meterPage(), "row1_L2"), QStringLiteral("2.000")); // 4 of 200
    QCOMPARE(text(meterPage(), "row5_L1"), QStringLiteral("80.000"));
    QCOMPARE(named<HarmBtn4>(meterPage(), "btn_f3")->selectedText(), QStringLiteral("%r"));
}

void TstHarmonics::tableShowsOnlyTheChannelsOfTheWiring_data()
{
    addShownColumns();
}

void TstHarmonics::tableShowsOnlyTheChannelsOfTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(QList<bool>, shown);
    start(joinMode);
    const char *const suffixes[] = { "L1", "L2", "L3", "N" };
    for (int c = 0; c < 4; ++c) {
        for (int row = 1; row <= 7; ++row)
            QCOMPARE(!text(meterPage(), QStringLiteral("row%1_%2").arg(row).arg(suffixes[c])).isEmpty(), shown[c]);
    }
}

void TstHarmonics::heldTableGrowsAfterThreeTicks()
{
    hold(meterPage(), Down, 3);
    QCOMPARE(meterPage()->scrollPosition(), 4 * 7);
    hold(meterPage(), Down, 1);
    QCOMPARE(meterPage()->scrollPosition(), 9 * 7); // five pages at once
    release(meterPage(), Down);
}

void TstHarmonics::f3AsksForTheOtherReference()
{
    QSignalSpy asked(m_page.get(), &harm::changeFlag);
    press(meterPage(), F3);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.at(0).at(0).toInt(), 2);
    live().harmonics.reference = 1;
    m_page->updateDisplay(nullptr);
    press(meterPage(), F3);
    QCOMPARE(asked.at(1).at(0).toInt(), 1);
}

void TstHarmonics::f4LeadsToTheTableAndBack()
{
    press(mainPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(meterPage()));
    QCOMPARE(text(meterPage(), "btn_f4"), QStringLiteral("Harmonic"));
    press(meterPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
}

void TstHarmonics::deltaWiringsNameBothVoltageAndPhase()
{
    start(4);
    QCOMPARE(text(meterPage(), "header_2"), QStringLiteral("L23/L2"));
    QCOMPARE(text(meterPage(), "header_3"), QStringLiteral("L31/L3"));
    QCOMPARE(text(meterPage(), "header_4"), QString());
    QCOMPARE(text(mainPage(), "D1"), QStringLiteral("L12/L1"));
}

PAGE_TEST_MAIN(TstHarmonics)
#include "tst_harmonics.moc"
