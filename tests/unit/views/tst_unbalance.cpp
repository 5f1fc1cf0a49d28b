#include "settings/phasecolor.h"
#include "model/displayrecords.h"
#include "pagetest.h"
#include "views/unbalance/unbalan.h"
#include "views/unbalance/unbalanmain.h"
#include "views/unbalance/unbalvectorpage.h"
#include "widgets/controls/softkeybuttons.h"
#include "widgets/charts/vectorchart.h"

#include <QImage>

#include <cstring>
#include <limits>
#include <memory>

using namespace PageTest;

class TstUnbalance : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void tableShowsEveryQuantityWithItsFormat();
    void longReadingsFitTheirLabels();
    void fieldsOfMissingPhasesStayEmpty_data();
    void fieldsOfMissingPhasesStayEmpty();
    void lostFrequencyIsGreyAndPositive();
    void eachStartShowsEmptyRecords();
    void savedRecordIsTheLiveOne();
    void pagesLiveBeforeTheFirstStart();
    void f4OpensThePhasorsRefreshedAndLeadsBack();

    void selectorRunsByTheWiringAndWraps_data();
    void selectorRunsByTheWiringAndWraps();
    void selectorChoosesCaptionsAndValues();
    void selectorOfAPhaseShowsVoltageAndCurrent();
    void missingPhasesHaveNoPhasor();
    void startGoesBackToTheVoltages();
    void hiddenPhasorsAreNotDrawn();
    void wildRecordIsShown();

private:
    UnbalanMain *mainPage() { return m_page->findChild<UnbalanMain *>(); }
    UnbalVectorPage *vectorPage() { return m_page->findChild<UnbalVectorPage *>(); }
    VectorChart *chart() { return named<VectorChart>(vectorPage(), "vector_chart"); }
    void start(int joinMode);
    static bool hasColor(const QImage &image, const QColor &color);

    std::unique_ptr<unbalan> m_page;
};

void TstUnbalance::start(int joinMode)
{
    setUpMeasurement(joinMode);
    beginRun(*m_page);
    for (int c = 0; c < 4; ++c) {
        live().vif.voltage[c] = 240.0f + float(c);
        live().vif.current[c] = 20.0f + float(c);
    }
    live().vif.frequency = 50;
    live().unbalance = { 50,
                         1.5f,
                         2.25f,
                         3.5f,
                         4.75f,
                         { 230, 231, 232, 3 },
                         { 10, 11, 12, 1 },
                         { 0, -120, -240, -10 },
                         { -30, -150, -270, -20 },
                         { 30, 31.5f, 32, 33 } };
    m_page->updateDisplay(nullptr);
}

void TstUnbalance::init()
{
    m_page = std::make_unique<unbalan>(liveData());
    openAll(*m_page);
    start(1);
}

void TstUnbalance::tableShowsEveryQuantityWithItsFormat()
{
    QCOMPARE(text(mainPage(), "U_t"), QStringLiteral("Urms(V)"));
    QCOMPARE(text(mainPage(), "I_t"), QStringLiteral("Irms(A)"));
    QCOMPARE(text(mainPage(), "Uf_t"), QStringLiteral("Ufund(V)"));
    QCOMPARE(text(mainPage(), "If_t"), QStringLiteral("Ifund(A)"));
    QCOMPARE(text(mainPage(), "IU_t"), QString::fromUtf8("\u0424I-U(\u00b0):"));
    QCOMPARE(text(mainPage(), "U_L2"), QStringLiteral("241.00"));
    QVERIFY(text(mainPage(), "I_N").startsWith(QStringLiteral("23.")));
    QCOMPARE(text(mainPage(), "Uf_L3"), QStringLiteral("232.00"));
    QVERIFY(text(mainPage(), "If_L1").startsWith(QStringLiteral("10.")));
    QCOMPARE(text(mainPage(), "IU_L2"), QStringLiteral("31.5"));
    QCOMPARE(text(mainPage(), "uneg"), QStringLiteral("Uneg"));
    QCOMPARE(text(mainPage(), "Izero"), QStringLiteral("Izero"));
    QCOMPARE(text(mainPage(), "uneg_v"), QStringLiteral("1.50%"));
    QCOMPARE(text(mainPage(), "uzero_v"), QStringLiteral("2.25%"));
    QCOMPARE(text(mainPage(), "Ineg_v"), QStringLiteral("3.50%"));
    QCOMPARE(text(mainPage(), "Izero_v"), QStringLiteral("4.75%"));
    QCOMPARE(text(mainPage(), "freq_t"), QStringLiteral("Freq ="));
    QCOMPARE(text(mainPage(), "freq_v"), QStringLiteral("50.00Hz"));
}

void TstUnbalance::longReadingsFitTheirLabels()
{
    // Half as much again as the largest full scale in one unit.
    for (const char *row : { "U_%1", "I_%1", "Uf_%1", "If_%1" }) {
        for (const char *suffix : { "L1", "L2", "L3", "N" })
            QVERIFY(holds(mainPage(), QString(row).arg(suffix), QStringLiteral("15000.00")));
    }
    for (int i = 1; i <= 3; ++i) {
        QVERIFY(holds(vectorPage(), QStringLiteral("v%1_v").arg(i), QStringLiteral("15000.00")));
        QVERIFY(holds(vectorPage(), QStringLiteral("v%1").arg(i), QStringLiteral("U1fund(V):")));
    }
}

void TstUnbalance::fieldsOfMissingPhasesStayEmpty_data()
{
    addShownColumns();
}

void TstUnbalance::fieldsOfMissingPhasesStayEmpty()
{
    QFETCH(int, joinMode);
    QFETCH(QList<bool>, shown);
    start(joinMode);
    const char *const suffixes[] = { "L1", "L2", "L3", "N" };
    for (int c = 0; c < 4; ++c) {
        for (const char *row : { "U", "I", "Uf", "If", "IU" })
            QCOMPARE(!text(mainPage(), QStringLiteral("%1_%2").arg(row, suffixes[c])).isEmpty(), shown[c]);
    }
    for (const char *ratio : { "uneg", "uzero_v", "Ineg_v", "Izero" })
        QCOMPARE(!text(mainPage(), ratio).isEmpty(), shown[2]);
    QCOMPARE(!text(vectorPage(), "v3_v").isEmpty(), shown[2]);
    QCOMPARE(!text(vectorPage(), "L2_V").isEmpty(), shown[1]);
    QCOMPARE(!text(vectorPage(), "neg_v").isEmpty(), shown[2]);
}

void TstUnbalance::lostFrequencyIsGreyAndPositive()
{
    live().vif.frequency = -49.5f;
    live().unbalance.frequency = 49.5f; // the record keeps the magnitude
    m_page->updateDisplay(nullptr);
    for (const QWidget *page : { static_cast<QWidget *>(mainPage()), static_cast<QWidget *>(vectorPage()) }) {
        QCOMPARE(text(page, "freq_v"), QStringLiteral("49.50Hz"));
        QCOMPARE(sheet(page, "freq_v"), QStringLiteral("color: #808080;"));
    }
    live().vif.frequency = 50;
    m_page->updateDisplay(nullptr);
    QCOMPARE(sheet(mainPage(), "freq_v"), QStringLiteral("color: #ffffff;"));
}

void TstUnbalance::eachStartShowsEmptyRecords()
{
    QCOMPARE(text(mainPage(), "Uf_L1"), QStringLiteral("230.00"));
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "Uf_L1"), QStringLiteral("0.00"));
}

void TstUnbalance::savedRecordIsTheLiveOne()
{
    const QByteArray bytes = m_page->pqaData();
    QCOMPARE(bytes.size(), 100);
    float word[25];
    std::memcpy(word, bytes.constData(), sizeof word);
    QCOMPARE(word[0], 50.0f);
    QCOMPARE(word[4], 4.75f); // zero sequence of the current
    QCOMPARE(word[5 + 4 + 2], 12.0f); // fundamental current of L3
    QCOMPARE(word[24], 33.0f);
}

void TstUnbalance::pagesLiveBeforeTheFirstStart()
{
    renewLive();
    unbalan page(liveData());
    openAll(page);
    page.updateDisplay(nullptr);
    page.retranslateUi();
    page.showPage(unbalan::Vector);
    press(page.findChild<UnbalVectorPage *>(), F1, 6);
    QCOMPARE(page.pqaData().size(), 100);
}

void TstUnbalance::f4OpensThePhasorsRefreshedAndLeadsBack()
{
    QCOMPARE(text(mainPage(), "btn_f4"), QStringLiteral("Vector"));
    live().unbalance.voltageFundamental[0] = 100;
    press(mainPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(vectorPage()));
    QCOMPARE(text(vectorPage(), "v1_v"), QStringLiteral("100.00"));
    press(vectorPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
}

void TstUnbalance::selectorRunsByTheWiringAndWraps_data()
{
    addWirings("maximum", { 5, 5, 3, 5, 4, 3, 5, 5, 5, 5 });
}

void TstUnbalance::selectorRunsByTheWiringAndWraps()
{
    QFETCH(int, joinMode);
    QFETCH(int, maximum);
    start(joinMode);
    QCOMPARE(vectorPage()->selectorMaximum(), maximum);
    for (int selector = 1; selector <= maximum; ++selector) {
        QCOMPARE(vectorPage()->selector(), selector);
        QCOMPARE(named<UnbalBtn1>(vectorPage(), "btn_f1")->btnFlag(), selector);
        press(vectorPage(), F1);
    }
    QCOMPARE(vectorPage()->selector(), 1);
}

void TstUnbalance::selectorChoosesCaptionsAndValues()
{
    QCOMPARE(text(vectorPage(), "v1"), QStringLiteral("U1fund(V):"));
    QCOMPARE(text(vectorPage(), "v3"), QStringLiteral("U3fund(V):"));
    QCOMPARE(text(vectorPage(), "v3_v"), QStringLiteral("232.00"));
    QCOMPARE(text(vectorPage(), "L2"), QString::fromUtf8("\u04242(\u00b0):"));
    QCOMPARE(text(vectorPage(), "L2_V"), QStringLiteral("-120.0"));
    QCOMPARE(text(vectorPage(), "neg"), QStringLiteral("Neg."));
    QCOMPARE(text(vectorPage(), "neg_v"), QStringLiteral("1.50%"));
    QCOMPARE(text(vectorPage(), "zero"), QStringLiteral("Zero"));
    QCOMPARE(text(vectorPage(), "zero_v"), QStringLiteral("2.25%"));
    press(vectorPage(), F1);
    QCOMPARE(text(vectorPage(), "v2"), QStringLiteral("I2fund(A):"));
    QVERIFY(text(vectorPage(), "v2_v").startsWith(QStringLiteral("11.")));
    QCOMPARE(text(vectorPage(), "L3_V"), QStringLiteral("-270.0"));
    QCOMPARE(text(vectorPage(), "neg_v"), QStringLiteral("3.50%"));
    QCOMPARE(text(vectorPage(), "zero_v"), QStringLiteral("4.75%"));
}

void TstUnbalance::selectorOfAPhaseShowsVoltageAndCurrent()
{
    press(vectorPage(), F1, 3);
    QCOMPARE(text(vectorPage(), "v1"), QStringLiteral("U2fund(V):"));
    QCOMPARE(text(vectorPage(), "v2"), QStringLiteral("I2fund(A):"));
    QCOMPARE(text(vectorPage(), "v3"), QString());
    QCOMPARE(text(vectorPage(), "v3_v"), QString());
    QCOMPARE(text(vectorPage(), "v1_v"), QStringLiteral("231.00"));
    QCOMPARE(text(vectorPage(), "L1_V"), QStringLiteral("-120.0"));
    QCOMPARE(text(vectorPage(), "L2_V"), QStringLiteral("-150.0"));
    QCOMPARE(text(vectorPage(), "L3_V"), QString());
    QCOMPARE(text(vectorPage(), "neg"), QString());
    QCOMPARE(text(vectorPage(), "zero_v"), QString());
}

bool TstUnbalance::hasColor(const QImage &image, const QColor &color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

void TstUnbalance::missingPhasesHaveNoPhasor()
{
    start(5);
    QCOMPARE(text(vectorPage(), "v2"), QStringLiteral("U2fund(V):"));
    QCOMPARE(text(vectorPage(), "v3"), QString());
    QImage image = chart()->grab().toImage();
    QVERIFY(hasColor(image, PhaseColor::colorA()));
    QVERIFY(hasColor(image, PhaseColor::colorB()));
    QVERIFY(!hasColor(image, PhaseColor::colorC()));
    press(vectorPage(), F1, 3);
    QCOMPARE(vectorPage()->selector(), 4);
    QCOMPARE(text(vectorPage(), "v1"), QStringLiteral("U2fund(V):"));
}

void TstUnbalance::startGoesBackToTheVoltages()
{
    press(vectorPage(), F1, 2);
    start(3);
    QCOMPARE(vectorPage()->selector(), 1);
    QCOMPARE(text(vectorPage(), "v1"), QStringLiteral("U1fund(V):"));
    QCOMPARE(text(vectorPage(), "v2"), QString());
}

void TstUnbalance::hiddenPhasorsAreNotDrawn()
{
    press(vectorPage(), F1, 2); // phase 1
    const QImage image = chart()->grab().toImage();
    QVERIFY(hasColor(image, PhaseColor::colorA()));
    QVERIFY(!hasColor(image, PhaseColor::colorB()));
    QVERIFY(!hasColor(image, PhaseColor::colorC()));
    QCOMPARE(chart()->angleU1(), 0.0);
    QCOMPARE(chart()->angleA1(), -30.0);
}

void TstUnbalance::wildRecordIsShown()
{
    for (float value : { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(), 1e30f }) {
        for (int c = 0; c < 4; ++c) {
            live().unbalance.voltageAngle[c] = live().unbalance.currentAngle[c] = value;
            live().unbalance.voltageFundamental[c] = value;
        }
        live().unbalance.frequency = value;
        for (int i = 0; i < 5; ++i) {
            press(vectorPage(), F1);
            m_page->updateDisplay(nullptr);
            chart()->grab();
        }
    }
}

PAGE_TEST_MAIN(TstUnbalance)
#include "tst_unbalance.moc"
