#include "model/displayrecords.h"
#include "pagetest.h"
#include "views/flicker/flicker.h"
#include "views/flicker/flickermain.h"
#include "views/flicker/flickerpage.h"
#include "views/flicker/flickerparam.h"
#include "widgets/charts/viftrendchart.h"

#include <cstring>
#include <limits>
#include <memory>

using namespace PageTest;

class TstFlicker : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void beforeTheFirstIntervalTheTableShowsZero();
    void tableShowsPstPltAndPinst();
    void tableShowsOnlyThePhasesOfTheWiring_data();
    void tableShowsOnlyThePhasesOfTheWiring();
    void deltaWiringsNameBothVoltageAndPhase();
    void eachStartShowsEmptyRecords();
    void f4OpensTheTrendAndLeadsBack();
    void titleFollowsThePageOnTop();
    void f5AsksToPause();
    void trendShowsTheLatestValueOfEachPhase();
    void trendAxisCoversTwelveSeconds();
    void trendHasNoCurveForTheNeutral_data();
    void trendHasNoCurveForTheNeutral();
    void savedRecordHoldsScalarsCountAndTrends();
    void savedRecordIgnoresPhasesThatAreNotMeasured();
    void pagesLiveBeforeTheFirstStart();
    void wildValuesAreShown();

private:
    FlickerMain *mainPage() { return m_page->findChild<FlickerMain *>(); }
    FlickerPage *trendPage() { return m_page->findChild<FlickerPage *>(); }
    void start(int joinMode);
    static float word(const QByteArray &bytes, int index);

    std::unique_ptr<flicker> m_page;
};

void TstFlicker::start(int joinMode)
{
    setUpMeasurement(joinMode);
    beginRun(*m_page);
}

void TstFlicker::init()
{
    m_page = std::make_unique<flicker>(liveData());
    openAll(*m_page);
    start(1);
}

float TstFlicker::word(const QByteArray &bytes, int index)
{
    float value;
    std::memcpy(&value, bytes.constData() + 4 * index, 4);
    return value;
}

void TstFlicker::beforeTheFirstIntervalTheTableShowsZero()
{
    for (const char *name : { "Pst_L1", "Pst_L2", "Pst_L3", "Plt_L1", "Plt_L2", "Plt_L3", "P1_L1", "P1_L2", "P1_L3" })
        QCOMPARE(text(mainPage(), name), QStringLiteral("0.00"));
}

void TstFlicker::tableShowsPstPltAndPinst()
{
    for (int p = 0; p < 3; ++p) {
        live().flicker.flickerMax[p] = 1.25f + float(p);
        live().flicker.pst[p] = 0.875f + float(p);
        live().flicker.plt[p] = 10.5f + float(p);
    }
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "Pst_t"), QStringLiteral("Pst"));
    QCOMPARE(text(mainPage(), "Plt_t"), QStringLiteral("Plt"));
    QCOMPARE(text(mainPage(), "Pst_L2"), QStringLiteral("1.88"));
    QCOMPARE(text(mainPage(), "Plt_L3"), QStringLiteral("12.50"));
    QCOMPARE(text(mainPage(), "P1_L1"), QStringLiteral("1.25"));
}

void TstFlicker::tableShowsOnlyThePhasesOfTheWiring_data()
{
    addWirings("phases", { 3, 3, 1, 3, 2, 1, 3, 3, 3, 3 });
}

void TstFlicker::tableShowsOnlyThePhasesOfTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(int, phases);
    start(joinMode);
    m_page->updateDisplay(nullptr);
    for (int p = 1; p <= 3; ++p) {
        for (const char *row : { "Pst_L%1", "Plt_L%1", "P1_L%1" })
            QCOMPARE(!text(mainPage(), QString(row).arg(p)).isEmpty(), p <= phases);
        QCOMPARE(!text(mainPage(), QStringLiteral("header_%1").arg(p)).isEmpty(), p <= phases);
        QCOMPARE(!text(trendPage(), QStringLiteral("P_L%1_V").arg(p)).isEmpty(), p <= phases);
        QCOMPARE(!text(trendPage(), QStringLiteral("P_L%1").arg(p)).isEmpty(), p <= phases);
    }
}

void TstFlicker::deltaWiringsNameBothVoltageAndPhase()
{
    QCOMPARE(text(mainPage(), "header_2"), QStringLiteral("L2"));
    start(4);
    QCOMPARE(text(mainPage(), "header_1"), QStringLiteral("L12/L1"));
    QCOMPARE(text(mainPage(), "header_2"), QStringLiteral("L23/L2"));
    QCOMPARE(text(mainPage(), "header_3"), QStringLiteral("L31/L3"));
}

void TstFlicker::eachStartShowsEmptyRecords()
{
    live().flicker.pst[1] = 5;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "Pst_L2"), QStringLiteral("5.00"));
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "Pst_L2"), QStringLiteral("0.00"));
}

void TstFlicker::f4OpensTheTrendAndLeadsBack()
{
    QCOMPARE(text(mainPage(), "btn_f4"), QStringLiteral("Trend"));
    press(mainPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(trendPage()));
    QCOMPARE(text(trendPage(), "btn_f4"), QStringLiteral("Back"));
    press(trendPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
}

void TstFlicker::titleFollowsThePageOnTop()
{
    m_page->enter();
    QCOMPARE(FlickerParam::currentTitle(), QStringLiteral("Flicker"));
    press(mainPage(), F4);
    QCOMPARE(FlickerParam::currentTitle(), QStringLiteral("pinst"));
}

void TstFlicker::f5AsksToPause()
{
    int asked = 0;
    connect(m_page.get(), &LivePage::pause, this, [&asked] { ++asked; });
    press(mainPage(), F5);
    press(trendPage(), F5);
    QCOMPARE(asked, 2);
    holdRun(*m_page);
    QCOMPARE(text(trendPage(), "btn_f5"), QStringLiteral("Run"));
}

void TstFlicker::trendShowsTheLatestValueOfEachPhase()
{
    for (int p = 0; p < 3; ++p)
        live().flicker.pinstTrend[p] = { 9.0f, 0.5f + float(p) };
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(trendPage(), "type"), QStringLiteral("pinst"));
    QCOMPARE(text(trendPage(), "P_L1"), QStringLiteral("L1"));
    QCOMPARE(text(trendPage(), "P_L1_V"), QStringLiteral("0.50"));
    QCOMPARE(text(trendPage(), "P_L3_V"), QStringLiteral("2.50"));
}

void TstFlicker::trendAxisCoversTwelveSeconds()
{
    QCOMPARE(named<VifTrendChart>(trendPage(), "trend_flicker")->fullScale(), QStringList({ "12s", "9s", "6s", "3s" }));
}

void TstFlicker::trendHasNoCurveForTheNeutral_data()
{
    addWirings("flags", { 7, 7, 1, 7, 3, 1, 7, 7, 7, 7 });
}

void TstFlicker::trendHasNoCurveForTheNeutral()
{
    QFETCH(int, joinMode);
    QFETCH(int, flags);
    start(joinMode);
    QCOMPARE(named<VifTrendChart>(trendPage(), "trend_flicker")->flags(), flags);
}

void TstFlicker::savedRecordHoldsScalarsCountAndTrends()
{
    for (int p = 0; p < 3; ++p) {
        live().flicker.flickerMax[p] = float(p + 1);
        live().flicker.pst[p] = float(p + 4);
        live().flicker.plt[p] = float(p + 7);
        for (int i = 0; i < 5 + p; ++i)
            live().flicker.pinstTrend[p].append(float(100 * p + i));
    }
    const QByteArray bytes = m_page->pqaData();
    QCOMPARE(bytes.size(), 7240);
    for (int i = 0; i < 9; ++i)
        QCOMPARE(word(bytes, i), float(i + 1));
    qint32 count;
    std::memcpy(&count, bytes.constData() + 36, 4);
    QCOMPARE(count, 5);
    // The newest five of each phase: those of the third end with 206.
    QCOMPARE(word(bytes, 10), 0.0f);
    QCOMPARE(word(bytes, 10 + 4), 4.0f);
    QCOMPARE(word(bytes, 10 + 5), 0.0f);
    QCOMPARE(word(bytes, 10 + 1200), 202.0f);
    QCOMPARE(word(bytes, 10 + 1204), 206.0f);
}

void TstFlicker::savedRecordIgnoresPhasesThatAreNotMeasured()
{
    live().flicker.pinstTrend[0] = { 1, 2, 3 };
    const QByteArray bytes = m_page->pqaData();
    qint32 count;
    std::memcpy(&count, bytes.constData() + 36, 4);
    QCOMPARE(count, 3);
    QCOMPARE(word(bytes, 12), 3.0f);
    live().flicker.pinstTrend[0].clear();
    std::memcpy(&count, m_page->pqaData().constData() + 36, 4);
    QCOMPARE(count, 0);
    for (int i = 0; i < 1000; ++i) // longer than the record's places
        live().flicker.pinstTrend[0].append(float(i));
    const QByteArray full = m_page->pqaData();
    std::memcpy(&count, full.constData() + 36, 4);
    QCOMPARE(count, 600);
    QCOMPARE(word(full, 10 + 599), 999.0f);
}

void TstFlicker::pagesLiveBeforeTheFirstStart()
{
    renewLive();
    flicker page(liveData());
    openAll(page);
    page.updateDisplay(nullptr);
    page.retranslateUi();
    QCOMPARE(page.pqaData().size(), 7240);
}

void TstFlicker::wildValuesAreShown()
{
    const float wild[] = { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 1e30f };
    for (float value : wild) {
        live().flicker.pst[0] = value;
        live().flicker.pinstTrend[0].append(value);
        m_page->updateDisplay(nullptr);
        trendPage()->grab();
    }
    QVERIFY(!text(mainPage(), "Pst_L1").contains(QStringLiteral("nan")));
}

PAGE_TEST_MAIN(TstFlicker)
#include "tst_flicker.moc"
