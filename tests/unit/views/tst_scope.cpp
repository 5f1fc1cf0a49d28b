#include "settings/config_data.h"
#include "settings/phasecolor.h"
#include "model/displayrecords.h"
#include "pagetest.h"
#include "views/scope/scopepage.h"
#include "widgets/text/f_to_str.h"
#include "widgets/charts/scopewidget.h"
#include "widgets/controls/softkeybuttons.h"

#include <QSignalSpy>

#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

using namespace PageTest;

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kPerSample = 10.0 / 32768.0; // converter volts

/// Volts for one converter volt at unit transformer ratio, from the calibration block.
double voltGain(int channel)
{
    return m_calib_data_g.data().volt[m_settingConfig_g.getVoltIndex()][channel];
}

/// Amperes for one converter volt: millivolts of the gain row over the clamp's mV/A.
double ampereGain(int channel)
{
    return m_calib_data_g.data().current[m_settingConfig_g.getCurrentIndex()][channel]
        / (m_settingConfig_g.curClamp()->ratio() / 1000.0);
}

} // namespace

/// The oscilloscope page, driven by its keys.
class TstScope : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void f1StepsThroughTheModesOfTheWiring_data();
    void f1StepsThroughTheModesOfTheWiring();
    void modesShowTheirCurves_data();
    void modesShowTheirCurves();
    void oneEightCyclesFillTheScreen_data();
    void oneEightCyclesFillTheScreen();
    void waveStepMovesThroughItsValues();
    void waveStepShowsAlsoOnHold();
    void cursorShowsTheSampleInVoltsAndAmperes();
    void withoutCursorTheRmsValuesShow();
    void oneChannelShowsVoltageAndCurrentInTwoRows();
    void captionsFollowTheWiring();
    void captionsHaveTheColoursOfTheCurves();
    void holdKeepsSamplesWhileCursorAndZoomWork();
    void heldCursorGrowsToTwentyPointsPerTick();
    void cursorStopsAtBothEnds();
    void releaseOfTheKeyStopsTheCursor();
    void arrowsWithoutCursorAndZoomAreAcceptedAndDoNothing();
    void zoomStepsThroughThirteenTexts();
    void zoomOffLocksUpAndDown();
    void nominalVoltagePeaksAtTheEdgeOfTheGrid();
    void nominalCurrentPeaksAtTheEdgeOfTheGrid();
    void savedRecordIsInPhysicalUnits();
    void withoutLockTheFrequencyIsGrey();
    void f6StaysHere();
    void restartForgetsEverything();
    void holdLabelFollowsTheTask();
    void pageLivesBeforeTheFirstStart();
    void refreshIsHarmlessWhenRepeated();
    void longReadingsAndCaptionsFitTheirLabels();

private:
    ScopeWidget *scope() { return named<ScopeWidget>(m_page.get(), "scope"); }
    static void fillSine(int cycles, double amplitude);

    std::unique_ptr<ScopePage> m_page;
};

void TstScope::init()
{
    setUpMeasurement(1);
    m_page = std::make_unique<ScopePage>(liveData());
    beginRun(*m_page);
}

void TstScope::fillSine(int cycles, double amplitude)
{
    for (int c = 0; c < 4; ++c) {
        for (int i = 0; i < 4096; ++i) {
            const double s = amplitude * std::sin(2 * kPi * cycles * (i + 0.5) / 4090.0);
            live().scope.voltageSamples[c][i] = qint16(std::lround(s));
            live().scope.currentSamples[c][i] = qint16(std::lround(-s));
        }
    }
}

void TstScope::f1StepsThroughTheModesOfTheWiring_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<QVector<int>>("cycle");
    const QVector<int> four { 1, 2, 3, 4, 5, 0 };
    const QVector<int> three { 1, 3, 4, 5, 0 };
    QTest::newRow("3P WYE") << 1 << four;
    QTest::newRow("3P IT") << 2 << three;
    QTest::newRow("1P") << 3 << QVector<int> { 1, 2, 3, 0 };
    QTest::newRow("3P DELTA") << 4 << three;
    QTest::newRow("1P SPLIT") << 5 << QVector<int> { 1, 2, 3, 4, 0 };
    QTest::newRow("1P IT") << 6 << QVector<int> { 1, 3, 0 };
    QTest::newRow("H-LEG") << 7 << four;
    QTest::newRow("O-LEG") << 8 << three;
    QTest::newRow("2.5-ELMT") << 9 << four;
    QTest::newRow("2-ELMT") << 10 << three;
}

void TstScope::f1StepsThroughTheModesOfTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(QVector<int>, cycle);
    setUpMeasurement(joinMode);
    beginRun(*m_page);
    QCOMPARE(m_page->displayMode(), 0);
    for (const int mode : cycle) {
        press(m_page.get(), F1);
        QCOMPARE(m_page->displayMode(), mode);
        QCOMPARE(m_page->findChild<Btn1 *>()->btnFlag(), mode);
    }
    QCOMPARE(m_page->findChild<Btn1 *>()->geometry(), QRect(3, 410, 124, 34)); // over its key
}

void TstScope::modesShowTheirCurves_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<QVector<int>>("flags"); // in the order of the cycle
    QTest::newRow("3P WYE") << 1 << QVector<int> { 15, 240, 136, 17, 34, 68 };
    QTest::newRow("3P DELTA") << 4 << QVector<int> { 7, 112, 17, 34, 68 };
    QTest::newRow("1P") << 3 << QVector<int> { 9, 144, 136, 17 };
    QTest::newRow("1P SPLIT") << 5 << QVector<int> { 11, 176, 136, 17, 34 };
    QTest::newRow("1P IT") << 6 << QVector<int> { 1, 16, 17 };
}

void TstScope::modesShowTheirCurves()
{
    QFETCH(int, joinMode);
    QFETCH(QVector<int>, flags);
    setUpMeasurement(joinMode);
    beginRun(*m_page);
    for (const int expected : flags) {
        QCOMPARE(int(scope()->flags()), expected);
        press(m_page.get(), F1);
    }
}

void TstScope::oneEightCyclesFillTheScreen_data()
{
    QTest::addColumn<int>("step");
    for (const int step : { 1, 2, 4, 6, 8 })
        QTest::newRow(qPrintable(QString::number(step))) << step;
}

void TstScope::oneEightCyclesFillTheScreen()
{
    QFETCH(int, step);
    fillSine(10, 10000);
    wave_step = step;
    m_page->updateDisplay(nullptr);
    int falling = 0; // once in the middle of each cycle
    const qint16 *s = m_page->drawn().voltageSamples[2];
    for (int i = 1; i < 600; ++i)
        falling += s[i - 1] >= 0 && s[i] < 0;
    QCOMPARE(falling, step);
}

void TstScope::waveStepMovesThroughItsValues()
{
    QCOMPARE(wave_step, 1);
    press(m_page.get(), F3); // cursor off, zoom is on
    QVector<int> up, down;
    for (int i = 0; i < 5; ++i) {
        press(m_page.get(), Right);
        up << wave_step;
    }
    for (int i = 0; i < 5; ++i) {
        press(m_page.get(), Left);
        down << wave_step;
    }
    QCOMPARE(up, QVector<int>({ 2, 4, 6, 8, 8 }));
    QCOMPARE(down, QVector<int>({ 6, 4, 2, 1, 1 }));
}

void TstScope::waveStepShowsAlsoOnHold()
{
    fillSine(10, 10000);
    m_page->updateDisplay(nullptr);
    holdRun(*m_page);
    const qint16 before = m_page->drawn().voltageSamples[0][150];
    press(m_page.get(), F3);
    press(m_page.get(), Right);
    QVERIFY(m_page->drawn().voltageSamples[0][150] != before);
}

void TstScope::cursorShowsTheSampleInVoltsAndAmperes()
{
    for (int i = 0; i < 4096; ++i) {
        for (int c = 0; c < 4; ++c) {
            live().scope.voltageSamples[c][i] = qint16(1000 * (c + 1));
            live().scope.currentSamples[c][i] = qint16(-2000 * (c + 1));
        }
    }
    m_page->updateDisplay(nullptr);
    const char *const places[] = { "D1_Value", "D2_Value", "D3_Value", "D4_Value" };
    for (int c = 0; c < 4; ++c)
        QCOMPARE(text(m_page.get(), places[c]), F_to_Str::number_V(float(1000 * (c + 1) * kPerSample * voltGain(c))));
    press(m_page.get(), F1);
    for (int c = 0; c < 4; ++c)
        QCOMPARE(text(m_page.get(), places[c]),
                 F_to_Str::number_A(float(-2000 * (c + 1) * kPerSample * ampereGain(c))));
}

void TstScope::withoutCursorTheRmsValuesShow()
{
    for (int c = 0; c < 4; ++c) {
        live().scope.voltage[c] = 230.5f + c;
        live().scope.current[c] = 1.25f + c;
    }
    press(m_page.get(), F3);
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(m_page.get(), "D2_Value"), F_to_Str::number_V(231.5f));
    QCOMPARE(text(m_page.get(), "D4_Value"), F_to_Str::number_V(233.5f));
    press(m_page.get(), F1);
    QCOMPARE(text(m_page.get(), "D1_Value"), F_to_Str::number_A(1.25f));
}

void TstScope::oneChannelShowsVoltageAndCurrentInTwoRows()
{
    for (int c = 0; c < 4; ++c) {
        live().scope.voltage[c] = 100.0f + c;
        live().scope.current[c] = 10.0f + c;
    }
    press(m_page.get(), F3);
    press(m_page.get(), F1, 4); // L2
    QCOMPARE(m_page->displayMode(), 4);
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(m_page.get(), "D1_Caption"), QStringLiteral("L2:"));
    QCOMPARE(text(m_page.get(), "D2_Caption"), QStringLiteral("L2:"));
    QCOMPARE(text(m_page.get(), "D1_Value"), F_to_Str::number_V(101.0f));
    QCOMPARE(text(m_page.get(), "D2_Value"), F_to_Str::number_A(11.0f));
    QCOMPARE(text(m_page.get(), "D3_Caption"), QString());
    QCOMPARE(text(m_page.get(), "D3_Value"), QString());
    QCOMPARE(text(m_page.get(), "D4_Value"), QString());
}

void TstScope::captionsFollowTheWiring()
{
    QCOMPARE(text(m_page.get(), "D4_Caption"), QStringLiteral("N:"));
    setUpMeasurement(4);
    beginRun(*m_page);
    QCOMPARE(text(m_page.get(), "D1_Caption"), QStringLiteral("L12:"));
    QCOMPARE(text(m_page.get(), "D2_Caption"), QStringLiteral("L23:"));
    QCOMPARE(text(m_page.get(), "D3_Caption"), QStringLiteral("L31:"));
    QCOMPARE(text(m_page.get(), "D4_Caption"), QString());
    setUpMeasurement(3);
    beginRun(*m_page);
    QCOMPARE(text(m_page.get(), "D1_Caption"), QStringLiteral("L1:"));
    QCOMPARE(text(m_page.get(), "D2_Caption"), QString());
    QCOMPARE(text(m_page.get(), "D4_Caption"), QStringLiteral("N:"));
}

void TstScope::captionsHaveTheColoursOfTheCurves()
{
    QCOMPARE(sheet(m_page.get(), "D2_Caption"), QStringLiteral("color: %1;").arg(PhaseColor::colorUB().name()));
    press(m_page.get(), F1);
    QCOMPARE(sheet(m_page.get(), "D2_Caption"), QStringLiteral("color: %1;").arg(PhaseColor::colorIB().name()));
}

void TstScope::holdKeepsSamplesWhileCursorAndZoomWork()
{
    for (int i = 0; i < 4096; ++i)
        live().scope.voltageSamples[0][i] = qint16(i * 7);
    m_page->updateDisplay(nullptr);
    holdRun(*m_page);
    QCOMPARE(text(m_page.get(), "btn_f5"), QStringLiteral("Run"));
    const QString first = text(m_page.get(), "D1_Value");
    hold(m_page.get(), Right, 8);
    release(m_page.get(), Right);
    // 1 + 3 x 1 + 3 x 5 + 2 x 10 = 39 points on: position 39 x 409 / 599 of a ramp of 7 for a sample
    const int sample = int(7 * 39 * 409 / 599.0);
    QCOMPARE(text(m_page.get(), "D1_Value"), F_to_Str::number_V(float(sample * kPerSample * voltGain(0))));
    QVERIFY(text(m_page.get(), "D1_Value") != first);
    press(m_page.get(), Up);
    QCOMPARE(text(m_page.get(), "zoom_scale"), QStringLiteral("2X"));
}

void TstScope::heldCursorGrowsToTwentyPointsPerTick()
{
    const auto index = [this] { return scope()->cursorPosition() - 1; };
    QCOMPARE(index(), 0);
    hold(m_page.get(), Right, 3);
    QCOMPARE(index(), 4);
    auto *repeat = m_page->findChild<KeyRepeat *>();
    repeat->tick();
    QCOMPARE(index(), 9);
    for (int i = 0; i < 3; ++i)
        repeat->tick();
    QCOMPARE(index(), 29); // 5, 5, 10
    for (int i = 0; i < 3; ++i)
        repeat->tick();
    QCOMPARE(index(), 69); // 10, 10, 20
    release(m_page.get(), Right);
    press(m_page.get(), Left);
    QCOMPARE(index(), 68);
}

void TstScope::cursorStopsAtBothEnds()
{
    press(m_page.get(), Left);
    QCOMPARE(scope()->cursorPosition(), 1);
    hold(m_page.get(), Right, 60);
    QCOMPARE(scope()->cursorPosition(), 600);
    release(m_page.get(), Right);
}

void TstScope::releaseOfTheKeyStopsTheCursor()
{
    auto *repeat = m_page->findChild<KeyRepeat *>();
    QTest::keyPress(m_page.get(), Qt::Key(Right));
    QVERIFY(repeat->isActive());
    QTest::keyRelease(m_page.get(), Qt::Key(Up));
    QVERIFY(repeat->isActive());
    QTest::keyRelease(m_page.get(), Qt::Key(Right));
    QVERIFY(!repeat->isActive());
}

void TstScope::arrowsWithoutCursorAndZoomAreAcceptedAndDoNothing()
{
    press(m_page.get(), F3);
    press(m_page.get(), F4);
    for (const FrontKey key : { Left, Right, Up, Down }) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(m_page.get(), &event);
        QVERIFY(event.isAccepted());
    }
    QCOMPARE(wave_step, 1);
    QCOMPARE(scope()->getZoomIndex(), 6);
    QCOMPARE(scope()->cursorPosition(), 1);
}

void TstScope::zoomStepsThroughThirteenTexts()
{
    QCOMPARE(text(m_page.get(), "zoom_t"), QStringLiteral("1 *"));
    QCOMPARE(text(m_page.get(), "zoom_scale"), QStringLiteral("1X"));
    press(m_page.get(), Down, 20);
    QStringList seen { text(m_page.get(), "zoom_scale") };
    for (int i = 0; i < 13; ++i) {
        press(m_page.get(), Up);
        seen << text(m_page.get(), "zoom_scale");
    }
    QCOMPARE(seen,
             QStringList({ "1/32X", "1/16X", "1/10X", "1/8X", "1/4X", "1/2X", "1X", "2X", "4X", "8X", "10X", "16X",
                           "32X", "32X" }));
    press(m_page.get(), F2);
    QCOMPARE(text(m_page.get(), "zoom_scale"), QStringLiteral("1X"));
}

void TstScope::zoomOffLocksUpAndDown()
{
    press(m_page.get(), F4);
    press(m_page.get(), Up);
    press(m_page.get(), Down, 2);
    QCOMPARE(text(m_page.get(), "zoom_scale"), QStringLiteral("1X"));
}

void TstScope::nominalVoltagePeaksAtTheEdgeOfTheGrid()
{
    // Raw peak of a sine of the nominal r.m.s. voltage.
    const double peak = m_settingConfig_g.getNomVolt() * std::sqrt(2.0) / (kPerSample * voltGain(0));
    QVERIFY(std::abs(peak * scope()->getScaleU() - 146.0) < 0.1);
}

void TstScope::nominalCurrentPeaksAtTheEdgeOfTheGrid()
{
    const double peak = m_settingConfig_g.curClamp()->range() * std::sqrt(2.0) / (kPerSample * ampereGain(0));
    QVERIFY(std::abs(peak * scope()->getScaleI() - 146.0) < 0.1);
}

void TstScope::savedRecordIsInPhysicalUnits()
{
    live().scope.frequency = 49.5f;
    for (int c = 0; c < 4; ++c) {
        live().scope.voltage[c] = 200.0f + c;
        live().scope.current[c] = 20.0f + c;
    }
    for (int i = 0; i < 4096; ++i)
        live().scope.currentSamples[3][i] = 1234;
    live().scope.voltageSamples[0][0] = -321;
    m_page->updateDisplay(nullptr);
    const QByteArray record = m_page->pqaData();
    QCOMPARE(record.size(), 19236);
    float words[4809];
    std::memcpy(words, record.constData(), sizeof words);
    QCOMPARE(words[0], 49.5f);
    QCOMPARE(words[4], 203.0f);
    QCOMPARE(words[8], 23.0f);
    QCOMPARE(words[9], float(-321 * kPerSample * voltGain(0)));
    const double gain = m_calib_data_g.data().current[m_settingConfig_g.getCurrentNIndex()][3]
        / (m_settingConfig_g.curClampN()->ratio() / 1000.0);
    QCOMPARE(words[4808], float(1234 * kPerSample * gain));
    QCOMPARE(words[9 + 7 * 600], float(1234 * kPerSample * gain));
    QCOMPARE(words[9 + 7 * 600 - 1], 0.0f);
}

void TstScope::withoutLockTheFrequencyIsGrey()
{
    live().scope.frequency = 50.02f;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(m_page.get(), "freq"), QStringLiteral("50.02Hz"));
    QCOMPARE(sheet(m_page.get(), "freq"), QStringLiteral("color: #ffffff;"));
    live().scope.frequency = -47.5f;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(m_page.get(), "freq"), QStringLiteral("47.50Hz"));
    QCOMPARE(sheet(m_page.get(), "freq"), QStringLiteral("color: #808080;"));
}

void TstScope::f6StaysHere()
{
    QSignalSpy spy(m_page.get(), &Page::leave);
    QKeyEvent event(QEvent::KeyPress, F6, Qt::NoModifier);
    QCoreApplication::sendEvent(m_page.get(), &event);
    QCOMPARE(spy.count(), 0);
    QVERIFY(event.isAccepted());
}

void TstScope::restartForgetsEverything()
{
    fillSine(10, 1000);
    m_page->updateDisplay(nullptr);
    press(m_page.get(), F1, 2);
    hold(m_page.get(), Right, 5);
    press(m_page.get(), F3);
    press(m_page.get(), Up, 2);
    press(m_page.get(), Right);
    holdRun(*m_page);
    beginRun(*m_page);
    QCOMPARE(int(m_page->drawn().voltageSamples[0][100]), 0);
    QCOMPARE(m_page->displayMode(), 0);
    QCOMPARE(wave_step, 1);
    QCOMPARE(scope()->cursorPosition(), 1);
    QVERIFY(scope()->cursorOn());
    QVERIFY(m_page->isRunning());
    QCOMPARE(text(m_page.get(), "zoom_scale"), QStringLiteral("1X"));
    QCOMPARE(m_page->findChild<Btn2 *>()->btnFlag(), 1);
    QCOMPARE(m_page->findChild<Btn3 *>()->btnFlag(), 1);
    QVERIFY(!m_page->findChild<KeyRepeat *>()->isActive());
}

void TstScope::holdLabelFollowsTheTask()
{
    QSignalSpy paused(m_page.get(), &LivePage::pause);
    QSignalSpy run(m_page.get(), &LivePage::run);
    press(m_page.get(), F5);
    QCOMPARE(paused.count(), 1);
    QCOMPARE(text(m_page.get(), "btn_f5"), QStringLiteral("Hold"));
    holdRun(*m_page);
    QCOMPARE(text(m_page.get(), "btn_f5"), QStringLiteral("Run"));
    press(m_page.get(), F5);
    QCOMPARE(run.count(), 1);
    continueRun(*m_page);
    QCOMPARE(text(m_page.get(), "btn_f5"), QStringLiteral("Hold"));
}

void TstScope::pageLivesBeforeTheFirstStart()
{
    renewLive();
    ScopePage page(liveData());
    page.updateDisplay(nullptr);
    page.retranslateUi();
    for (const FrontKey key : { F1, F2, F3, F4, F5, Left, Right, Up, Down })
        press(&page, key);
    QCOMPARE(page.pqaData().size(), 19236);
}

void TstScope::longReadingsAndCaptionsFitTheirLabels()
{
    // The unit is chosen for four places of the nominal value; a crest can be twice as high.
    for (int c = 1; c <= 4; ++c) {
        QVERIFY(holds(m_page.get(), QStringLiteral("D%1_Caption").arg(c), QStringLiteral("L31:"), 4));
        QVERIFY(holds(m_page.get(), QStringLiteral("D%1_Value").arg(c), QStringLiteral("-21213.00")));
    }
}

void TstScope::refreshIsHarmlessWhenRepeated()
{
    fillSine(10, 5000);
    m_page->updateDisplay(nullptr);
    const __scope_data_ui first = m_page->drawn();
    m_page->updateDisplay(nullptr);
    QCOMPARE(std::memcmp(&first, &m_page->drawn(), sizeof first), 0);
}

PAGE_TEST_MAIN(TstScope)
#include "tst_scope.moc"
