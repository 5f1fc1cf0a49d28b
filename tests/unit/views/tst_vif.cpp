#include "settings/config_data.h"
#include "model/displayrecords.h"
#include "pagetest.h"
#include "pages/trendscaler.h"
#include "views/vif/vifmain.h"
#include "views/vif/vifpage.h"
#include "views/vif/viftrendpage.h"
#include "widgets/charts/viftrendchart.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <cstring>
#include <limits>
#include <memory>

using namespace PageTest;

namespace {

const char *const kColumns[] = { "L1", "L2", "L3", "N" };
const int kWiringFlags[10] = { 15, 7, 9, 7, 11, 1, 15, 7, 15, 7 };

} // namespace

class TstVif : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void eachStartShowsEmptyRecords();
    void startShowsTheNominalFrequency();
    void showsOnlyTheChannelsOfTheWiring_data();
    void showsOnlyTheChannelsOfTheWiring();
    void singlePhaseWithoutNeutralFillsOnlyTheFirstColumnOfTableAndTrend();
    void aWiringOutsideTheTableLeavesTheFieldsUntouched();
    void tableShowsEveryQuantityWithItsFormat();
    void longReadingsAndCaptionsFitTheirLabels();
    void pagesLiveBeforeTheFirstStart();
    void negativeFrequencyIsShownGreyAndPositive();
    void f4OpensTheTrendAndLeadsBack();
    void f5AsksToPauseAndMovesOnlyOnTheAnswer();
    void f5WithoutATaskChangesNothing();
    void functionKeysTellCurrentAndTarget_data();
    void functionKeysTellCurrentAndTarget();
    void unusedKeysDoNothingAndOthersRise();
    void trendQuantityCycles();
    void f1AtTheFrequencyReturnsToTheVoltage();
    void trendFlagsFollowTheWiringAndTheFrequencyIsSingle();
    void trendValuesUseTheChannelsOfTheWiring();
    void stopWatchReachesAllSubPages();
    void savedRecordHoldsValuesAndSeries();
    void equalValuesStillHaveAScaleOfTen_data();
    void equalValuesStillHaveAScaleOfTen();
    void scalingRoundsOutwardToTens();
    void anInputThatTheWiringDoesNotHaveLeavesTheScaleAlone_data() { addWirings("flags", kWiringFlags); }
    void anInputThatTheWiringDoesNotHaveLeavesTheScaleAlone();
    void scalingCountsOnlyTheSeriesOfTheCurves();
    void scalingCutsToSixHundredPoints();
    void scalingSurvivesWildValues();

private:
    VifMain *mainPage() { return m_page->findChild<VifMain *>(); }
    VifTrendPage *trendPage() { return m_page->findChild<VifTrendPage *>(); }

    std::unique_ptr<VifPage> m_page;
};

void TstVif::init()
{
    m_page = openedPage<VifPage>();
}

void TstVif::eachStartShowsEmptyRecords()
{
    live().vif.trend[0].series[0].append(1.0f);
    live().vif.voltage[2] = 5;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "Urms_L3"), QStringLiteral("5.00"));
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "Urms_L3"), QStringLiteral("0.00"));
    QCOMPARE(text(trendPage(), "D3_Value"), QStringLiteral("0.00"));
}

void TstVif::startShowsTheNominalFrequency()
{
    QCOMPARE(live().vif.frequency, 50.0f);
    QCOMPARE(text(mainPage(), "freq"), QStringLiteral("50.00Hz"));
    QCOMPARE(text(mainPage(), "freq_t"), QStringLiteral("Freq ="));
}

void TstVif::showsOnlyTheChannelsOfTheWiring_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<QStringList>("headers");
    const QStringList star { "L1", "L2", "L3", "N" };
    const QStringList delta { "L12", "L23", "L31", "" };
    QTest::newRow("3P WYE") << 1 << star;
    QTest::newRow("3P IT") << 2 << delta;
    QTest::newRow("1P") << 3 << QStringList { "L1", "", "", "N" };
    QTest::newRow("3P DELTA") << 4 << delta;
    QTest::newRow("1P SPLIT") << 5 << QStringList { "L1", "L2", "", "N" };
    QTest::newRow("1P IT") << 6 << QStringList { "L12", "", "", "" };
    QTest::newRow("H-LEG") << 7 << star;
    QTest::newRow("O-LEG") << 8 << delta;
    QTest::newRow("2.5-ELMT") << 9 << star;
    QTest::newRow("2-ELMT") << 10 << delta;
}

void TstVif::showsOnlyTheChannelsOfTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(QStringList, headers);
    // Values of a fuller wiring must not stay behind.
    m_page->updateDisplay(nullptr);
    m_settingConfig_g.setJoinMode(joinMode);
    beginRun(*m_page);
    m_page->updateDisplay(nullptr);
    for (int c = 0; c < 4; ++c) {
        QCOMPARE(text(mainPage(), QStringLiteral("header_%1").arg(c + 1)), headers[c]);
        for (const char *row : { "Urms", "Upk", "Ucf", "Irms", "Ipk", "Icf" }) {
            const QString value = text(mainPage(), QStringLiteral("%1_%2").arg(row, kColumns[c]));
            QCOMPARE(value.isEmpty(), headers[c].isEmpty());
        }
    }
}

void TstVif::singlePhaseWithoutNeutralFillsOnlyTheFirstColumnOfTableAndTrend()
{
    for (int c = 0; c < 4; ++c)
        live().vif.voltage[c] = 100.0f + c;
    m_page->updateDisplay(nullptr); // all four columns of the wiring before
    m_settingConfig_g.setJoinMode(6);
    beginRun(*m_page);
    for (int c = 0; c < 4; ++c)
        live().vif.voltage[c] = 100.0f + c;
    m_page->updateDisplay(nullptr);
    const QStringList values { "100.00", "", "", "" };
    const QStringList captions { "L12:", "", "", "" };
    for (int c = 0; c < 4; ++c) {
        QCOMPARE(text(mainPage(), QStringLiteral("Urms_%1").arg(kColumns[c])), values[c]);
        QCOMPARE(text(trendPage(), QStringLiteral("D%1_Value").arg(c + 1)), values[c]);
        QCOMPARE(text(trendPage(), QStringLiteral("D%1_Caption").arg(c + 1)), captions[c]);
    }
    auto *chart = static_cast<VifTrendChart *>(trendPage()->findChild<QWidget *>("trend"));
    QCOMPARE(chart->flags(), 1);
}

void TstVif::aWiringOutsideTheTableLeavesTheFieldsUntouched()
{
    live().vif.voltage[0] = 230.0f;
    m_page->updateDisplay(nullptr);
    m_settingConfig_g.setJoinMode(11);
    beginRun(*m_page);
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "header_1"), QStringLiteral("L1"));
    QCOMPARE(text(mainPage(), "header_4"), QStringLiteral("N"));
    QCOMPARE(text(mainPage(), "Urms_L1"), QStringLiteral("230.00"));
}

void TstVif::tableShowsEveryQuantityWithItsFormat()
{
    for (int c = 0; c < 4; ++c) {
        live().vif.voltage[c] = 230.04f + c;
        live().vif.voltagePeak[c] = 325.0f + c;
        live().vif.voltageCrest[c] = 1.414f;
        live().vif.current[c] = 1.5f + c;
        live().vif.currentPeak[c] = 2.5f + c;
        live().vif.currentCrest[c] = std::numeric_limits<float>::quiet_NaN();
    }
    live().vif.frequency = 49.987f;
    m_page->updateDisplay(nullptr);
    // 79.25 V a unit resolves 79.25 * 10 / 65536 = 0.0121 V: two decimals are worth showing.
    QCOMPARE(text(mainPage(), "Urms_L2"), QStringLiteral("231.04"));
    QCOMPARE(text(mainPage(), "Upk_N"), QStringLiteral("328.00"));
    QCOMPARE(text(mainPage(), "Ucf_L1"), QStringLiteral("1.41"));
    QVERIFY(text(mainPage(), "Irms_L3").startsWith(QStringLiteral("3.5")));
    QVERIFY(text(mainPage(), "Ipk_L1").startsWith(QStringLiteral("2.5")));
    QCOMPARE(text(mainPage(), "Icf_L1"), QStringLiteral("0.00"));
    QCOMPARE(text(mainPage(), "freq"), QStringLiteral("49.99Hz"));
    QCOMPARE(text(mainPage(), "Urms_t"), QStringLiteral("Urms(V)"));
    QCOMPARE(text(mainPage(), "Upk_t"), QStringLiteral("Upk(V)"));
    QCOMPARE(text(mainPage(), "Irms_t"), QStringLiteral("Irms(A)"));
    QCOMPARE(text(mainPage(), "Ucf_t"), QStringLiteral("CF"));
}

void TstVif::longReadingsAndCaptionsFitTheirLabels()
{
    // The unit is chosen for four places of the nominal value; a crest can be twice as high.
    for (const char *column : kColumns) {
        for (const char *row : { "Urms", "Upk", "Ucf", "Irms", "Ipk", "Icf" })
            QVERIFY(holds(mainPage(), QStringLiteral("%1_%2").arg(row, column), QStringLiteral("21213.00")));
    }
    for (const char *row : { "Urms_t", "Upk_t", "Irms_t", "Ipk_t" })
        QVERIFY(holds(mainPage(), QString::fromLatin1(row), QStringLiteral("Urms(mV)"), 4));
    for (int c = 1; c <= 4; ++c) {
        QVERIFY(holds(trendPage(), QStringLiteral("D%1_Caption").arg(c), QStringLiteral("L31:"), 4));
        QVERIFY(holds(trendPage(), QStringLiteral("D%1_Value").arg(c), QStringLiteral("-21213.00")));
    }
}

void TstVif::pagesLiveBeforeTheFirstStart()
{
    renewLive();
    VifPage page(liveData());
    openAll(page);
    page.updateDisplay(nullptr);
    page.retranslateUi();
    QCOMPARE(page.pqaData().size(), 60136);
    press(page.findChild<VifTrendPage *>(), F1);
}

void TstVif::negativeFrequencyIsShownGreyAndPositive()
{
    auto *label = mainPage()->findChild<QLabel *>("freq");
    live().vif.frequency = -49.5f;
    m_page->updateDisplay(nullptr);
    QCOMPARE(label->text(), QStringLiteral("49.50Hz"));
    QCOMPARE(label->styleSheet(), QStringLiteral("color: #808080;"));
    live().vif.frequency = 50.0f;
    m_page->updateDisplay(nullptr);
    QCOMPARE(label->styleSheet(), QStringLiteral("color: #ffffff;"));
}

void TstVif::f4OpensTheTrendAndLeadsBack()
{
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
    QCOMPARE(text(mainPage(), "btn_f4"), QStringLiteral("Trend"));
    press(mainPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(trendPage()));
    press(trendPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
    m_page->showPage(VifPage::Trend);
    m_page->enter();
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
}

void TstVif::f5AsksToPauseAndMovesOnlyOnTheAnswer()
{
    QSignalSpy pause(m_page.get(), &LivePage::pause);
    QSignalSpy run(m_page.get(), &LivePage::run);
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Hold"));
    press(mainPage(), F5);
    QCOMPARE(pause.count(), 1);
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Hold"));
    QVERIFY(mainPage()->isRunning());

    holdRun(*m_page);
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Run"));
    QCOMPARE(text(trendPage(), "btn_f5"), QStringLiteral("Run"));
    press(trendPage(), F5);
    QCOMPARE(run.count(), 1);
    continueRun(*m_page);
    QCOMPARE(text(trendPage(), "btn_f5"), QStringLiteral("Hold"));
}

void TstVif::f5WithoutATaskChangesNothing()
{
    for (int i = 0; i < 3; ++i) {
        press(mainPage(), F5);
        press(trendPage(), F5);
    }
    QVERIFY(mainPage()->isRunning());
    QVERIFY(trendPage()->isRunning());
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Hold"));
    QCOMPARE(text(trendPage(), "btn_f5"), QStringLiteral("Hold"));
}

void TstVif::functionKeysTellCurrentAndTarget_data()
{
    QTest::addColumn<int>("letter");
    QTest::addColumn<int>("target");
    QTest::newRow("F6") << int(Qt::Key_E) << int(UI_SCOPE);
    QTest::newRow("F7") << int(Qt::Key_A) << int(UI_MENU);
    QTest::newRow("F8") << int(Qt::Key_U) << int(UI_MONITOR);
    QTest::newRow("F9") << int(Qt::Key_S) << int(UI_SETUP);
    QTest::newRow("F10") << int(Qt::Key_R) << int(UI_MEMORY);
}

void TstVif::functionKeysTellCurrentAndTarget()
{
    QFETCH(int, letter);
    QFETCH(int, target);
    QList<int> seen;
    connect(m_page.get(), &Page::leave, this, [&](_quvera_ui_type to) { seen.append(to); });
    QCOMPARE(m_page->uiType(), UI_VIF);
    QTest::keyClick(mainPage(), Qt::Key(letter));
    QTest::keyClick(trendPage(), Qt::Key(letter));
    QCOMPARE(seen, (QList<int> { target, target }));
}

void TstVif::unusedKeysDoNothingAndOthersRise()
{
    const auto accepted = [this](int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(mainPage(), &event);
        return event.isAccepted();
    };
    for (int letter : { Qt::Key_W, Qt::Key_Y, Qt::Key_P, Qt::Key_O, Qt::Key_Q, Qt::Key_D, Qt::Key_T, Qt::Key_K })
        QVERIFY(accepted(letter));
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
    LivePage alone(UI_VIF);
    for (int letter : { Qt::Key_I, Qt::Key_X, Qt::Key_B, Qt::Key_Escape, Qt::Key_1 }) {
        QKeyEvent event(QEvent::KeyPress, letter, Qt::NoModifier);
        QCoreApplication::sendEvent(&alone, &event);
        QVERIFY(!event.isAccepted());
    }
}

void TstVif::trendQuantityCycles()
{
    const QStringList expected { "U rms(V)", "U pk(V)", "U dc(V)", "U cf",    "I rms(A)",
                                 "I pk(A)",  "I dc(A)", "I cf",    "Freq(Hz)" };
    const int types[] = { 1, 2, 4, 3, 5, 6, 8, 7, 9 };
    for (int i = 0; i < expected.size(); ++i) {
        QCOMPARE(text(trendPage(), "type"), expected[i]);
        QCOMPARE(trendPage()->type(), types[i]);
        press(trendPage(), F1);
    }
    QCOMPARE(text(trendPage(), "type"), expected[0]);
}

void TstVif::f1AtTheFrequencyReturnsToTheVoltage()
{
    while (trendPage()->type() != 9)
        press(trendPage(), F1);
    QCOMPARE(text(trendPage(), "type"), QStringLiteral("Freq(Hz)"));
    press(trendPage(), F1);
    QCOMPARE(trendPage()->type(), 1);
    QCOMPARE(text(trendPage(), "type"), QStringLiteral("U rms(V)"));
}

void TstVif::trendFlagsFollowTheWiringAndTheFrequencyIsSingle()
{
    const int flags[] = { 15, 7, 9, 7, 11, 1, 15, 7, 15, 7 };
    // The chart has no meta-object of its own: it is found by its name.
    auto *chart = static_cast<VifTrendChart *>(trendPage()->findChild<QWidget *>("trend"));
    for (int mode = 1; mode <= 10; ++mode) {
        m_settingConfig_g.setJoinMode(mode);
        beginRun(*m_page);
        QCOMPARE(chart->flags(), flags[mode - 1]);
    }
    for (int i = 0; i < 8; ++i)
        press(trendPage(), F1);
    QCOMPARE(trendPage()->type(), 9);
    QCOMPARE(chart->flags(), 16);
    QCOMPARE(chart->fullScale(), QStringList({ "10m", "8m", "6m", "4m", "2m" }));
}

void TstVif::trendValuesUseTheChannelsOfTheWiring()
{
    m_settingConfig_g.setJoinMode(5);
    beginRun(*m_page);
    for (int c = 0; c < 4; ++c)
        live().vif.voltage[c] = 100.0f + c;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(trendPage(), "D1_Caption"), QStringLiteral("L1:"));
    QCOMPARE(text(trendPage(), "D2_Value"), QStringLiteral("101.00"));
    QCOMPARE(text(trendPage(), "D3_Caption"), QString());
    QCOMPARE(text(trendPage(), "D3_Value"), QString());
    QCOMPARE(text(trendPage(), "D4_Caption"), QStringLiteral("N:"));
    live().vif.frequency = -50.02f;
    for (int i = 0; i < 8; ++i)
        press(trendPage(), F1);
    QCOMPARE(text(trendPage(), "D1_Value"), QStringLiteral("50.02"));
    QCOMPARE(trendPage()->findChild<QLabel *>("D1_Value")->styleSheet(), QStringLiteral("color: #808080;"));
    QCOMPARE(text(trendPage(), "D2_Value"), QString());
    press(trendPage(), F1); // the grey goes with the frequency
    QCOMPARE(text(trendPage(), "D1_Value"), QStringLiteral("100.00"));
    QCOMPARE(trendPage()->findChild<QLabel *>("D1_Value")->styleSheet(), QString());
}

void TstVif::stopWatchReachesAllSubPages()
{
    m_page->stopWatchChanged(QStringLiteral("00:01:02"));
    QCOMPARE(text(mainPage(), "stop_watch"), QStringLiteral("00:01:02"));
    QCOMPARE(text(trendPage(), "stop_watch"), QStringLiteral("00:01:02"));
}

void TstVif::savedRecordHoldsValuesAndSeries()
{
    live().vif.currentCrest[3] = 1.5f; // word 31
    live().vif.frequency = 50.5f; // word 32
    for (int c = 0; c < 4; ++c) {
        for (int i = 0; i < 10 + c; ++i) {
            live().vif.trend[VifTrendURms].series[c].append(float(100 * c + i));
            live().vif.trend[VifTrendICrest].series[c].append(float(1000 * c + i));
        }
    }
    live().vif.trend[VifTrendFrequency].series[0].append(49.0f);
    const QByteArray bytes = m_page->pqaData();
    QCOMPARE(bytes.size(), 60136);
    const auto word = [&bytes](int index) {
        float value;
        std::memcpy(&value, bytes.constData() + 4 * index, 4);
        return value;
    };
    QCOMPARE(word(31), 1.5f);
    QCOMPARE(word(32), 50.5f);
    qint32 count;
    std::memcpy(&count, bytes.constData() + 4 * 33, 4);
    QCOMPARE(count, 10); // the shortest U rms series
    QCOMPARE(word(34 + 600 * 2 + 9), 209.0f); // U rms of L3, last point
    QCOMPARE(word(34 + 600 * 2 + 10), 0.0f); // not filled beyond the count
    QCOMPARE(word(34 + 600 * (5 * 4 + 1) + 3), 1003.0f); // I crest factor of L2
    QCOMPARE(word(34 + 600 * 24), 49.0f); // frequency
}

void TstVif::equalValuesStillHaveAScaleOfTen_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<QString>("upper");
    QTest::addColumn<QString>("lower");
    QTest::newRow("zero") << 0.0f << "10"
                          << "0";
    QTest::newRow("positive ten") << 230.0f << "240"
                                  << "230";
    QTest::newRow("between") << 234.9f << "240"
                             << "230";
    QTest::newRow("negative") << -15.0f << "-10"
                              << "-20";
    QTest::newRow("negative ten") << -20.0f << "-20"
                                  << "-30";
}

void TstVif::equalValuesStillHaveAScaleOfTen()
{
    QFETCH(float, value);
    QFETCH(QString, upper);
    QFETCH(QString, lower);
    __trend_data record;
    for (auto &series : record.series)
        series = { value, value, value };
    const TrendScaler::Picture picture = TrendScaler::scale(record, 1.0);
    for (int group = 0; group < 2; ++group) {
        QCOMPARE(picture.upper[group], upper);
        QCOMPARE(picture.lower[group], lower);
    }
}

void TstVif::scalingRoundsOutwardToTens()
{
    __trend_data record;
    record.series[0] = { 221.0f, 239.0f };
    record.series[1] = { 230.0f };
    record.series[2] = { 245.0f };
    record.series[3] = { -3.0f, 3.0f };
    const TrendScaler::Picture picture = TrendScaler::scale(record, 0.1);
    QCOMPARE(picture.max[0], 250.0f);
    QCOMPARE(picture.min[0], 220.0f);
    QCOMPARE(picture.max[1], 10.0f);
    QCOMPARE(picture.min[1], -10.0f);
    QCOMPARE(picture.upper[0], QStringLiteral("25")); // labels carry the display scale
    QCOMPARE(picture.lower[0], QStringLiteral("22"));
    // (1 - (221 - 220) / 30) * 75 = 72.5 and (1 - 19 / 30) * 75 = 27.5
    QCOMPARE(picture.series[0], (QVector<qint16> { 72, 27 }));
    QCOMPARE(picture.series[3], (QVector<qint16> { 48, 26 })); // 48.75, 26.25
}

void TstVif::anInputThatTheWiringDoesNotHaveLeavesTheScaleAlone()
{
    QFETCH(int, joinMode);
    QFETCH(int, flags);
    setUpMeasurement(joinMode);
    beginRun(*m_page);
    QWidget *chart = named<QWidget>(trendPage(), "trend");
    chart->resize(609, 317);
    // Whatever the inputs that are not connected pick up, the picture is that of the wiring's own.
    const auto picture = [&](float open) {
        for (int c = 0; c < kChannels; ++c)
            live().vif.trend[VifTrendURms].series[c] = { 231.0f, flags >> c & 1 ? 238.0f : open, 233.0f };
        m_page->updateDisplay(nullptr);
        return chart->grab().toImage();
    };
    QCOMPARE(picture(0.0f), picture(238.0f));
}

void TstVif::scalingCountsOnlyTheSeriesOfTheCurves()
{
    __trend_data record;
    record.series[0] = { 221.0f, 239.0f };
    record.series[1] = { 5.0f };
    record.series[3] = { 77.0f };
    const TrendScaler::Picture picture = TrendScaler::scale(record, 1.0, TrendScaler::seriesOf(TrendL1 | TrendTotal));
    QCOMPARE(picture.lower[0], QStringLiteral("220"));
    QCOMPARE(picture.upper[0], QStringLiteral("240"));
    QCOMPARE(picture.lower[1], QStringLiteral("70"));
    // A single value is drawn from the first series, the one in the fourth band from the fourth.
    QCOMPARE(TrendScaler::seriesOf(TrendSingle), 1);
    QCOMPARE(TrendScaler::seriesOf(TrendSingleFourth), 8);
    QCOMPARE(TrendScaler::seriesOf(TrendL2 | TrendN), 10);
}

void TstVif::scalingCutsToSixHundredPoints()
{
    __trend_data record;
    for (int i = 0; i < 700; ++i)
        record.series[0].append(i < 100 ? 0.0f : 100.0f);
    const TrendScaler::Picture picture = TrendScaler::scale(record, 1.0);
    QCOMPARE(picture.series[0].size(), 600);
    // Top of the scale is 110, bottom 0: (1 - 100 / 110) * 75 = 6.8
    QCOMPARE(picture.series[0].first(), qint16(6));
    QVERIFY(picture.series[1].isEmpty());
    __trend_data empty;
    QVERIFY(TrendScaler::scale(empty, 1.0).upper[0].isNull());
}

void TstVif::scalingSurvivesWildValues()
{
    __trend_data record;
    const float inf = std::numeric_limits<float>::infinity();
    record.series[0] = { std::numeric_limits<float>::quiet_NaN(), inf, -inf, 1e30f, -1e30f, 1e-40f };
    const TrendScaler::Picture picture = TrendScaler::scale(record, 1000.0);
    QCOMPARE(picture.series[0].size(), 6);
    for (qint16 y : picture.series[0])
        QVERIFY(y >= 0 && y <= 75);
}

PAGE_TEST_MAIN(TstVif)
#include "tst_vif.moc"
