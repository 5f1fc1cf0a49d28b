#include "model/displayrecords.h"
#include "device/idevice.h"
#include "framespy.h"
#include "pagetest.h"
#include "task/inverterfeed.h"
#include "views/powerinverter/powerinverter.h"
#include "views/powerinverter/powerinvertermain.h"
#include "views/powerinverter/powerinvertersetup.h"
#include "views/powerinverter/powerinvertertrend.h"
#include "widgets/controls/mradiobutton.h"
#include "widgets/charts/viftrendchart.h"

#include <QSignalSpy>

#include <limits>
#include <memory>

using namespace PageTest;

class TstPowerInverter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void upAndDownChooseTheOutput();
    void f5StartsTheTaskWithTheChosenOutput();
    void entryShowsTheSetup();
    void inputIsTheOffsetOfTheFourthChannel();
    void efficiencyIsOutputOverInput();
    void efficiencyIsZeroWithoutInput_data();
    void efficiencyIsZeroWithoutInput();
    void threePhaseEfficiencyTakesTheTotal();
    void singlePhaseShowsL1Only();
    void outputsFollowTheWiring_data();
    void outputsFollowTheWiring();
    void longReadingsFitTheirLabels();
    void trendKeepsTenMinutes();
    void trendQuantityCycles();
    void trendShowsInputsAsSingleValuesWithTheirSign();
    void trendFlagsFollowTheOutput();
    void f4OpensTheTrendAndF5LeadsBack();
    void holdFreezesTheValues();
    void onlyWhoHasLeftSetsTheProcessorUp_data();
    void onlyWhoHasLeftSetsTheProcessorUp();
    void eachStartShowsEmptyRecords();
    void savesAPictureOnly();
    void pagesLiveBeforeTheFirstStart();
    void wildValuesAreShown();

private:
    PowerInverterSetup *setupPage() { return m_page->findChild<PowerInverterSetup *>(); }
    PowerInverterMain *mainPage() { return m_page->findChild<PowerInverterMain *>(); }
    PowerInverterTrend *trendPage() { return m_page->findChild<PowerInverterTrend *>(); }
    /// New values, one point of each trend, and a refresh.
    void refresh();
    void start(int joinMode, bool single);
    static void measure();

    std::unique_ptr<PowerInverter> m_page;
};

void TstPowerInverter::initTestCase()
{
    if (!m_idevice)
        m_idevice = new IDevice;
}

void TstPowerInverter::start(int joinMode, bool single)
{
    setUpMeasurement(joinMode);
    beginRun(*m_page);
    measure();
    press(setupPage(), single ? Up : Down);
    press(setupPage(), F5);
    refresh();
}

void TstPowerInverter::measure()
{
    for (int c = 0; c < 3; ++c) {
        live().vif.voltage[c] = 230.0f + float(c);
        live().vif.current[c] = 10.0f + float(c);
        live().power.row[c].active = 1000.0f * float(c + 1);
    }
    live().power.row[3].active = 6000;
    live().vif.voltage[3] = 999; // the alternating part of the input plays no role
    live().vif.voltageOffset[3] = 400;
    live().vif.currentOffset[3] = 20;
    live().vif.frequency = 50;
}

void TstPowerInverter::init()
{
    singleOrThree = 0;
    m_page = std::make_unique<PowerInverter>(liveData());
    openAll(*m_page);
    start(1, false);
}

void TstPowerInverter::cleanup()
{
    m_page.reset();
}

void TstPowerInverter::refresh()
{
    // As the task feeds it.
    const int outputs = InverterFeed::outputMask(ChannelLabels::channels().trendFlags(), singleOrThree != 0);
    InverterFeed::feed(live().vif, live().power, singleOrThree != 0, outputs, live().inverter);
    InverterFeed::appendTrends(outputs, live().inverter);
    m_page->updateDisplay(nullptr);
}

void TstPowerInverter::upAndDownChooseTheOutput()
{
    auto *one = setupPage()->findChild<MRadioButton *>("phase1");
    auto *three = setupPage()->findChild<MRadioButton *>("phase3");
    QCOMPARE(one->text(), QStringLiteral("1-Phase"));
    QCOMPARE(three->text(), QStringLiteral("3-Phase"));
    QVERIFY(three->isChecked());
    press(setupPage(), Up);
    QVERIFY(one->isChecked());
    press(setupPage(), Up);
    QVERIFY(one->isChecked());
    QCOMPARE(singleOrThree, 0); // not before the start
    press(setupPage(), Down);
    QVERIFY(three->isChecked());
}

void TstPowerInverter::f5StartsTheTaskWithTheChosenOutput()
{
    m_page->enter();
    int atStart = -1;
    connect(m_page.get(), &PowerInverter::startPowerInverterTask, this, [&atStart] { atStart = singleOrThree; });
    QCOMPARE(text(setupPage(), "btn_f5"), QStringLiteral("Start"));
    press(setupPage(), Up);
    press(setupPage(), F5);
    QCOMPARE(atStart, 1);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
    press(setupPage(), Down);
    press(setupPage(), F5);
    QCOMPARE(atStart, 0);
}

void TstPowerInverter::entryShowsTheSetup()
{
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
    m_page->enter();
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(setupPage()));
}

void TstPowerInverter::inputIsTheOffsetOfTheFourthChannel()
{
    QCOMPARE(live().inverter.inputVoltage, 400.0f);
    QCOMPARE(live().inverter.inputCurrent, 20.0f);
    QCOMPARE(live().inverter.inputPower, 8000.0f);
    QCOMPARE(text(mainPage(), "Uin_t"), QStringLiteral("U in(V)"));
    QCOMPARE(text(mainPage(), "Uin"), QStringLiteral("400.00"));
    QCOMPARE(text(mainPage(), "Uout_t"), QStringLiteral("U out(V)"));
    QCOMPARE(text(mainPage(), "Iin_t"), QStringLiteral("I in(A)"));
    QCOMPARE(text(mainPage(), "Iout_t"), QStringLiteral("I out(A)"));
    QCOMPARE(text(mainPage(), "freq"), QStringLiteral("50.00Hz"));
}

void TstPowerInverter::efficiencyIsOutputOverInput()
{
    start(1, true);
    live().power.row[0].active = 7600;
    refresh();
    QCOMPARE(live().inverter.efficiency, 95.0f); // 7600 of 8000
    QCOMPARE(text(mainPage(), "eff"), QStringLiteral("95.00%"));
    QCOMPARE(text(mainPage(), "eff_t"), QStringLiteral("Efficiency"));
    live().power.row[0].active = 8800; // a reading above all is shown as it is
    refresh();
    QCOMPARE(text(mainPage(), "eff"), QStringLiteral("110.00%"));
}

void TstPowerInverter::efficiencyIsZeroWithoutInput_data()
{
    QTest::addColumn<float>("volts");
    QTest::addColumn<float>("amperes");
    const float nan = std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("no voltage") << 0.0f << 20.0f;
    QTest::newRow("no current") << 400.0f << 0.0f;
    QTest::newRow("below 0.00001 W") << 0.003f << 0.003f;
    QTest::newRow("power flows back") << 400.0f << -20.0f;
    QTest::newRow("no number") << nan << 20.0f;
}

void TstPowerInverter::efficiencyIsZeroWithoutInput()
{
    QFETCH(float, volts);
    QFETCH(float, amperes);
    live().vif.voltageOffset[3] = volts;
    live().vif.currentOffset[3] = amperes;
    refresh();
    QCOMPARE(text(mainPage(), "eff"), QStringLiteral("0.00%"));
}

void TstPowerInverter::threePhaseEfficiencyTakesTheTotal()
{
    QCOMPARE(live().inverter.efficiency, 75.0f); // 6000 of 8000
    start(4, false); // two wattmeters: the phases need not add up
    live().power.row[3].active = 4000;
    refresh();
    QCOMPARE(live().inverter.efficiency, 50.0f);
}

void TstPowerInverter::singlePhaseShowsL1Only()
{
    start(1, true);
    QCOMPARE(text(mainPage(), "header_1"), QStringLiteral("L1"));
    QCOMPARE(text(mainPage(), "Uout_L1"), QStringLiteral("230.00"));
    // Full scale of 230 V with a clamp of 1000 uV/A: powers are shown in thousands.
    QCOMPARE(text(mainPage(), "Pout_t"), QStringLiteral("P out(kW)"));
    QCOMPARE(text(mainPage(), "Pout_L1"), QStringLiteral("1.00"));
    for (const char *name : { "header_2", "header_3", "Uout_L2", "Iout_L3", "Pout_L2" })
        QCOMPARE(text(mainPage(), name), QString());
    QCOMPARE(live().inverter.efficiency, 12.5f); // 1000 of 8000
    start(1, false);
    QCOMPARE(text(mainPage(), "Uout_L3"), QStringLiteral("232.00"));
    QCOMPARE(text(mainPage(), "Pout_L2"), QStringLiteral("2.00"));
}

void TstPowerInverter::outputsFollowTheWiring_data()
{
    addWirings("phases", { 3, 3, 1, 3, 2, 1, 3, 3, 3, 3 });
}

void TstPowerInverter::outputsFollowTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(int, phases);
    start(joinMode, false);
    for (int p = 1; p <= 3; ++p) {
        for (const char *row : { "header_%1", "Uout_L%1", "Iout_L%1", "Pout_L%1" })
            QCOMPARE(!text(mainPage(), QString(row).arg(p)).isEmpty(), p <= phases);
    }
    QCOMPARE(text(mainPage(), "Uin"), QStringLiteral("400.00")); // in every wiring
}

void TstPowerInverter::longReadingsFitTheirLabels()
{
    const QString reading = QStringLiteral("-29999.97");
    for (const char *name : { "Uin", "Iin", "Pin", "Uout_L1", "Iout_L2", "Pout_L3" })
        QVERIFY(holds(mainPage(), QString(name), reading));
    for (int c = 1; c <= 4; ++c) {
        QVERIFY(holds(trendPage(), QStringLiteral("D%1_Caption").arg(c), QStringLiteral("L31:"), 4));
        QVERIFY(holds(trendPage(), QStringLiteral("D%1_Value").arg(c), reading));
    }
}

void TstPowerInverter::trendKeepsTenMinutes()
{
    __pi_data data;
    for (int i = 0; i < 700; ++i) {
        data.inputVoltage = float(i);
        InverterFeed::appendTrends(0b001, data);
    }
    QCOMPARE(data.trend[InverterFeed::InputVoltage].series[0].size(), 600);
    QCOMPARE(data.trend[InverterFeed::InputVoltage].series[0].last(), 699.0f);
    QVERIFY(data.trend[InverterFeed::OutputVoltage].series[1].isEmpty());
}

void TstPowerInverter::trendQuantityCycles()
{
    for (const char *caption :
         { "U in(V)", "U out(V)", "I in(A)", "I out(A)", "Efficiency %", "P out(kW)", "U in(V)" }) {
        QCOMPARE(text(trendPage(), "type"), QString(caption));
        press(trendPage(), F1);
    }
}

void TstPowerInverter::trendShowsInputsAsSingleValuesWithTheirSign()
{
    live().vif.voltageOffset[3] = -400;
    refresh();
    QCOMPARE(text(trendPage(), "D1_Value"), QStringLiteral("-400.00"));
    QCOMPARE(sheet(trendPage(), "D1_Value"), QString());
    QCOMPARE(text(trendPage(), "D2_Value"), QString());
    press(trendPage(), F1);
    QCOMPARE(text(trendPage(), "D1_Caption"), QStringLiteral("L1:"));
    QCOMPARE(text(trendPage(), "D3_Value"), QStringLiteral("232.00"));
    QCOMPARE(text(trendPage(), "D4_Caption"), QString());
    QCOMPARE(text(trendPage(), "D4_Value"), QString());
}

void TstPowerInverter::trendFlagsFollowTheOutput()
{
    auto *chart = named<VifTrendChart>(trendPage(), "trend");
    QCOMPARE(chart->flags(), 16);
    press(trendPage(), F1);
    QCOMPARE(chart->flags(), 7);
    start(1, true);
    press(mainPage(), F4);
    QCOMPARE(chart->flags(), 1);
    QCOMPARE(text(trendPage(), "D2_Caption"), QString());
    start(5, false);
    press(mainPage(), F4);
    QCOMPARE(chart->flags(), 3);
}

void TstPowerInverter::f4OpensTheTrendAndF5LeadsBack()
{
    QCOMPARE(text(mainPage(), "btn_f4"), QStringLiteral("Trend"));
    press(mainPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(trendPage()));
    QCOMPARE(text(trendPage(), "btn_f5"), QStringLiteral("Back"));
    QCOMPARE(text(trendPage(), "D1_Value"), QStringLiteral("400.00")); // before the next refresh
    press(trendPage(), F5);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
}

void TstPowerInverter::holdFreezesTheValues()
{
    QSignalSpy paused(m_page.get(), &LivePage::pause);
    press(mainPage(), F5);
    QCOMPARE(paused.count(), 1);
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Hold")); // until the task answers
    holdRun(*m_page);
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Run"));
    live().vif.voltageOffset[3] = 500;
    refresh();
    QCOMPARE(text(mainPage(), "Uin"), QStringLiteral("400.00"));
    press(mainPage(), F4);
    QCOMPARE(text(trendPage(), "D1_Value"), QStringLiteral("400.00"));
    continueRun(*m_page);
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Hold"));
    refresh();
    QCOMPARE(text(mainPage(), "Uin"), QStringLiteral("500.00"));
    holdRun(*m_page);
    start(1, false);
    QCOMPARE(text(mainPage(), "Uin"), QStringLiteral("400.00"));
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Hold"));
}

void TstPowerInverter::onlyWhoHasLeftSetsTheProcessorUp_data()
{
    QTest::addColumn<int>("letter");
    QTest::newRow("F6") << int(Qt::Key_E);
    QTest::newRow("F7") << int(Qt::Key_A);
    QTest::newRow("F8") << int(Qt::Key_U);
    QTest::newRow("F9") << int(Qt::Key_S);
    QTest::newRow("F10") << int(Qt::Key_R);
}

void TstPowerInverter::onlyWhoHasLeftSetsTheProcessorUp()
{
    QFETCH(int, letter);
    FrameSpy spy;
    press(mainPage(), F4);
    QCOMPARE(spy.count(), 0);
    QTest::keyClick(trendPage(), Qt::Key(letter));
    QCOMPARE(spy.count(), 0); // asked for, not left yet
    m_page->left();
    // Set-up, firmware request, start of the stream.
    QCOMPARE(spy.count(), 3);
}

void TstPowerInverter::eachStartShowsEmptyRecords()
{
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "Uin"), QStringLiteral("0.00"));
    QCOMPARE(text(trendPage(), "D1_Value"), QStringLiteral("0.00"));
}

void TstPowerInverter::savesAPictureOnly()
{
    QVERIFY(m_page->pqaData().isEmpty());
}

void TstPowerInverter::pagesLiveBeforeTheFirstStart()
{
    renewLive();
    PowerInverter page(liveData());
    openAll(page);
    page.updateDisplay(nullptr);
    page.retranslateUi();
    press(page.findChild<PowerInverterTrend *>(), F1, 7);
    press(page.findChild<PowerInverterSetup *>(), F5);
}

void TstPowerInverter::wildValuesAreShown()
{
    for (float value : { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 1e38f }) {
        live().vif.voltageOffset[3] = value;
        live().vif.currentOffset[3] = value;
        for (int c = 0; c < 3; ++c)
            live().vif.voltage[c] = live().vif.current[c] = live().power.row[c].active = value;
        live().power.row[3].active = value;
        refresh();
        for (int i = 0; i < 6; ++i) {
            press(trendPage(), F1);
            trendPage()->grab();
        }
        QVERIFY(!text(mainPage(), "eff").contains(QStringLiteral("nan")));
    }
}

PAGE_TEST_MAIN(TstPowerInverter)
#include "tst_powerinverter.moc"
