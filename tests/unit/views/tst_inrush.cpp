#include "settings/inrushinfo.h"
#include "model/displayrecords.h"
#include "framespy.h"
#include "pagetest.h"
#include "views/inrush/inrusheventpage.h"
#include "views/inrush/inrushmain.h"
#include "views/inrush/inrushpage.h"
#include "views/inrush/inrushstartpage.h"
#include "widgets/text/f_to_str.h"
#include "widgets/charts/inrushtrendchart.h"

#include <QSignalSpy>

#include <cstring>
#include <memory>

using namespace PageTest;

class TstInrush : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    // set-up
    void fieldsShowTheParameters();
    void upAndDownStopAtTheEnds();
    void nominalAmpsMoveByTheClampsStep();
    void nominalAmpsStopAtTheClampsRangeAndAtOneStep();
    void aValueBetweenTwoStepsMovesOntoTheGrid();
    void thresholdStaysBetweenOneAndAThousandPercent();
    void hysteresisStaysBetweenOneAndAHundredPercent();
    void heldKeyGrowsToTwentyPercentPerTick();
    void durationHasSevenRows();
    void changesAreStoredAtOnce();
    void defaultsRestoreEverything();
    void aRestartKeepsTheUsersLevels();

    // start
    void startSendsTheInrushCommandOfOneWord();
    void switchedOffStartSendsNothing();
    void startTellsTheShell();
    void pagesLeadToEachOther();

    // trend
    void trendOpensWithTheCurrents();
    void trendOpensAtTheScaleOfTheDuration_data();
    void trendOpensAtTheScaleOfTheDuration();
    void zoomPassesThePairsAndTheScaleOfTheDuration();
    void cursorCountsFromTheRightEdge();
    void valuesAtTheCursorAreThoseOfTheTask();
    void wiringDecidesCaptionsAndCurves();
    void pagesLiveBeforeTheFirstStart();
    void longReadingsAndCaptionsFitTheirLabels();

    // events
    void onlyInrushEventsAreListed();
    void counterFollowsTheSelection();
    void savedRecordHoldsTrendAndEvents();

private:
    InrushMain *mainPage() { return m_page->findChild<InrushMain *>(); }
    InrushStartPage *startPage() { return m_page->findChild<InrushStartPage *>(); }
    InrushEventPage *eventPage() { return m_page->findChild<InrushEventPage *>(); }
    InrushTrendChart *chart() { return named<InrushTrendChart>(startPage(), "trend"); }
    void setClamp(int range, int ratio);
    void feed(int count, float amps);

    std::unique_ptr<InrushPage> m_page;
};

void TstInrush::initTestCase()
{
    m_idevice = new IDevice;
}

void TstInrush::cleanupTestCase()
{
    delete m_idevice;
    m_idevice = nullptr;
}

void TstInrush::init()
{
    InrushInfo::m_duration_index = 0;
    setClamp(1000, 1000);
    m_page = openedPage<InrushPage>();
}

/// A clamp of \a range amperes and \a ratio microvolts an ampere, and the levels that follow from it.
void TstInrush::setClamp(int range, int ratio)
{
    auto *clamp = m_settingConfig_g.clamps()->getCurClamp();
    clamp->setRange(range);
    clamp->setRatio(ratio);
    m_settingConfig_g.followSettings();
    m_settingConfig_g.initInrushLevels();
}

void TstInrush::feed(int count, float amps)
{
    for (int i = 0; i < count; ++i) {
        for (int c = 0; c < 3; ++c) {
            live().inrush.voltage[c].append(230);
            live().inrush.current[c].append(amps + c);
        }
    }
    m_page->updateDisplay(nullptr);
}

void TstInrush::fieldsShowTheParameters()
{
    QCOMPARE(text(mainPage(), "nom_amps_t"), QStringLiteral("Nominal Amps"));
    QCOMPARE(text(mainPage(), "nom_amps"), QStringLiteral("250 A")); // a quarter of the range
    QCOMPARE(text(mainPage(), "threshold_t"), QStringLiteral("Threshold"));
    QCOMPARE(text(mainPage(), "threshold"), QStringLiteral("200 %"));
    QCOMPARE(text(mainPage(), "hysteresis_t"), QStringLiteral("Hysteresis"));
    QCOMPARE(text(mainPage(), "hysteresis"), QStringLiteral("2 %"));
    QCOMPARE(text(mainPage(), "duration_t"), QStringLiteral("DURATION"));
    QCOMPARE(text(mainPage(), "duration"), QStringLiteral("6 s"));
    QCOMPARE(text(mainPage(), "arming_t"), QStringLiteral("Switch"));
    QCOMPARE(text(mainPage(), "arming"), QStringLiteral("On"));
    QCOMPARE(text(mainPage(), "btn_f4"), QStringLiteral("Defaults"));
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Start"));
}

void TstInrush::upAndDownStopAtTheEnds()
{
    press(mainPage(), Up);
    QCOMPARE(mainPage()->field(), 0);
    press(mainPage(), Down, 2);
    QCOMPARE(mainPage()->field(), 2);
    press(mainPage(), Down, 9);
    QCOMPARE(mainPage()->field(), 4);
    press(mainPage(), Up, 3);
    QCOMPARE(mainPage()->field(), 1);
    // The bar stands behind the field chosen.
    QCOMPARE(mainPage()->findChild<QWidget *>("field_bar")->y(), mainPage()->findChild<QWidget *>("threshold")->y());
}

void TstInrush::nominalAmpsMoveByTheClampsStep()
{
    press(mainPage(), Right); // 10 A from 1000 A of range on
    QCOMPARE(text(mainPage(), "nom_amps"), QStringLiteral("260 A"));
    press(mainPage(), Left, 2);
    QCOMPARE(text(mainPage(), "nom_amps"), QStringLiteral("240 A"));
    QCOMPARE(m_settingConfig_g.getInrushNomAmps(), 240.0);

    setClamp(5, 10000); // steps of a milliampere
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "nom_amps"), QStringLiteral("1.250 A"));
    press(mainPage(), Right);
    QCOMPARE(text(mainPage(), "nom_amps"), QStringLiteral("1.251 A"));
}

void TstInrush::nominalAmpsStopAtTheClampsRangeAndAtOneStep()
{
    hold(mainPage(), Right, 40);
    release(mainPage(), Right);
    QCOMPARE(text(mainPage(), "nom_amps"), QStringLiteral("1000 A"));
    press(mainPage(), Right);
    QCOMPARE(text(mainPage(), "nom_amps"), QStringLiteral("1000 A"));
    hold(mainPage(), Left, 60);
    release(mainPage(), Left);
    QCOMPARE(text(mainPage(), "nom_amps"), QStringLiteral("10 A"));
}

void TstInrush::aValueBetweenTwoStepsMovesOntoTheGrid()
{
    setClamp(150, 1000); // a quarter is 37.5 A, steps are 1 A
    beginRun(*m_page);
    press(mainPage(), Right);
    QCOMPARE(m_settingConfig_g.getInrushNomAmps(), 38.0);
    m_settingConfig_g.setInrushNomAmps(37.5);
    press(mainPage(), Left);
    QCOMPARE(m_settingConfig_g.getInrushNomAmps(), 37.0);
}

void TstInrush::thresholdStaysBetweenOneAndAThousandPercent()
{
    press(mainPage(), Down);
    hold(mainPage(), Right, 60);
    release(mainPage(), Right);
    QCOMPARE(text(mainPage(), "threshold"), QStringLiteral("1000 %"));
    hold(mainPage(), Left, 80);
    release(mainPage(), Left);
    QCOMPARE(text(mainPage(), "threshold"), QStringLiteral("1 %"));
}

void TstInrush::hysteresisStaysBetweenOneAndAHundredPercent()
{
    press(mainPage(), Down, 2);
    press(mainPage(), Left, 4);
    QCOMPARE(text(mainPage(), "hysteresis"), QStringLiteral("1 %"));
    hold(mainPage(), Right, 30);
    release(mainPage(), Right);
    QCOMPARE(text(mainPage(), "hysteresis"), QStringLiteral("100 %"));
}

void TstInrush::heldKeyGrowsToTwentyPercentPerTick()
{
    press(mainPage(), Down);
    hold(mainPage(), Right, 11);
    QCOMPARE(m_settingConfig_g.getInrushThreshold(), 200 + 1 + 3 * 1 + 3 * 5 + 3 * 10 + 2 * 20);
    release(mainPage(), Right);
    press(mainPage(), Left);
    QCOMPARE(m_settingConfig_g.getInrushThreshold(), 288);
}

void TstInrush::durationHasSevenRows()
{
    press(mainPage(), Down, 3);
    QStringList rows { text(mainPage(), "duration") };
    for (int i = 0; i < 7; ++i) {
        press(mainPage(), Right);
        rows << text(mainPage(), "duration");
    }
    QCOMPARE(rows, QStringList({ "6 s", "1 m", "2 m", "4 m", "8 m", "16 m", "32 m", "32 m" }));
    press(mainPage(), Left, 9);
    QCOMPARE(text(mainPage(), "duration"), QStringLiteral("6 s"));
}

void TstInrush::changesAreStoredAtOnce()
{
    press(mainPage(), Right);
    QCOMPARE(m_settingConfig_g.getInrushNomAmps(), 260.0);
    press(mainPage(), Down);
    press(mainPage(), Left);
    QCOMPARE(m_settingConfig_g.getInrushThreshold(), 199);
    press(mainPage(), Down);
    press(mainPage(), Right);
    QCOMPARE(m_settingConfig_g.getInrushHysteresis(), 3);
    press(mainPage(), Down);
    press(mainPage(), Right, 2);
    QCOMPARE(m_settingConfig_g.getInrushIndex(), 2);
}

void TstInrush::defaultsRestoreEverything()
{
    for (int field = 0; field < 5; ++field) {
        press(mainPage(), field == 4 ? Left : Right);
        press(mainPage(), Down);
    }
    QVERIFY(!mainPage()->switchOn());
    press(mainPage(), F4);
    QCOMPARE(text(mainPage(), "nom_amps"), QStringLiteral("250 A"));
    QCOMPARE(text(mainPage(), "threshold"), QStringLiteral("200 %"));
    QCOMPARE(text(mainPage(), "hysteresis"), QStringLiteral("2 %"));
    QCOMPARE(text(mainPage(), "duration"), QStringLiteral("6 s"));
    QCOMPARE(text(mainPage(), "arming"), QStringLiteral("On"));
    QCOMPARE(m_settingConfig_g.getInrushThreshold(), 200);
}

void TstInrush::aRestartKeepsTheUsersLevels()
{
    press(mainPage(), Right);
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "nom_amps"), QStringLiteral("260 A"));
}

void TstInrush::startSendsTheInrushCommandOfOneWord()
{
    FrameSpy spy;
    press(mainPage(), F5);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.frames.first().bytes.size(), 4);
    QCOMPARE(spy.word(0, 0), 174u);
    // The bytes stay where they are: the device thread reads them later.
    press(mainPage(), F5);
    QCOMPARE(spy.frames.at(1).address, spy.frames.at(0).address);
}

void TstInrush::switchedOffStartSendsNothing()
{
    press(mainPage(), Down, 4);
    press(mainPage(), Left);
    QCOMPARE(text(mainPage(), "arming"), QStringLiteral("Off"));
    FrameSpy spy;
    press(mainPage(), F5);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(static_cast<QWidget *>(m_page->currentPage()), static_cast<QWidget *>(startPage()));
}

void TstInrush::startTellsTheShell()
{
    QSignalSpy spy(m_page.get(), &InrushPage::startInrushTask);
    press(mainPage(), F5);
    QCOMPARE(spy.count(), 1);
}

void TstInrush::pagesLeadToEachOther()
{
    FrameSpy spy;
    const auto current = [this] { return static_cast<QWidget *>(m_page->currentPage()); };
    QCOMPARE(current(), static_cast<QWidget *>(mainPage()));
    press(mainPage(), F5);
    QCOMPARE(current(), static_cast<QWidget *>(startPage()));
    press(startPage(), F2);
    QCOMPARE(current(), static_cast<QWidget *>(eventPage()));
    press(eventPage(), F5);
    QCOMPARE(current(), static_cast<QWidget *>(startPage()));
    QCOMPARE(spy.count(), 1); // coming back from the list is no start
    m_page->enter();
    QCOMPARE(current(), static_cast<QWidget *>(mainPage()));
}

void TstInrush::trendOpensWithTheCurrents()
{
    const QString amps = QStringLiteral("I(%1)").arg(m_settingConfig_g.units().ampere);
    QCOMPARE(text(startPage(), "btn_f1"), amps);
    press(startPage(), F1);
    QCOMPARE(text(startPage(), "btn_f1"), QStringLiteral("U(%1)").arg(m_settingConfig_g.units().volt));
    press(startPage(), F1);
    QCOMPARE(text(startPage(), "btn_f1"), amps);
    press(startPage(), F1);
    beginRun(*m_page);
    QCOMPARE(text(startPage(), "btn_f1"), amps);
}

void TstInrush::trendOpensAtTheScaleOfTheDuration_data()
{
    QTest::addColumn<int>("frequency");
    QTest::addColumn<int>("duration");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("valuesPerPoint");
    // 600 points of the duration's step at 100 (60 Hz: 120) values a second.
    const int steps[] = { 1, 1, 2, 2, 5, 10, 10 };
    for (const int frequency : { 1, 2, 3 }) {
        for (int row = 0; row < 7; ++row) {
            const int seconds = 600 * steps[row] / (frequency == 2 ? 120 : 100);
            QTest::addRow("frequency %d row %d", frequency, row) << frequency << row << seconds << steps[row];
        }
    }
}

void TstInrush::trendOpensAtTheScaleOfTheDuration()
{
    QFETCH(int, frequency);
    QFETCH(int, duration);
    QFETCH(int, seconds);
    QFETCH(int, valuesPerPoint);
    setUpMeasurement(1, frequency);
    beginRun(*m_page);
    InrushInfo::m_duration_index = duration;
    press(mainPage(), F5);
    QCOMPARE(startPage()->seconds(), seconds);
    QCOMPARE(startPage()->window().valuesPerPoint, valuesPerPoint);
    QCOMPARE(chart()->fullScale().size(), frequency == 1 ? 6 : 5);
}

void TstInrush::zoomPassesThePairsAndTheScaleOfTheDuration()
{
    press(mainPage(), F5);
    QCOMPARE(startPage()->seconds(), 6);
    QCOMPARE(chart()->fullScale(), QStringList({ "6s", "5s", "4s", "3s", "2s", "1s" }));
    QVector<int> seconds, values;
    for (int i = 0; i < 5; ++i) {
        press(startPage(), Left);
        seconds << startPage()->seconds();
        values << startPage()->window().valuesPerPoint;
    }
    QCOMPARE(seconds, QVector<int>({ 12, 24, 48, 60, 60 }));
    QCOMPARE(values, QVector<int>({ 2, 4, 8, 10, 10 }));
    QCOMPARE(InrushInfo::m_zoom_index, 0);
    press(startPage(), Right, 9);
    QCOMPARE(startPage()->seconds(), 6);
    QCOMPARE(InrushInfo::m_zoom_index, 3); // the last pair that was passed
}

void TstInrush::cursorCountsFromTheRightEdge()
{
    feed(600, 5);
    press(mainPage(), F5);
    press(startPage(), F3);
    press(startPage(), Left, 3);
    QCOMPARE(startPage()->cursorPosition(), 4);
    QCOMPARE(chart()->cursorPosition(), 597); // the fourth point from the right of 600
    hold(startPage(), Left, 60);
    release(startPage(), Left);
    QCOMPARE(startPage()->cursorPosition(), 600);
    QCOMPARE(chart()->cursorPosition(), 1);
    hold(startPage(), Right, 60);
    release(startPage(), Right);
    QCOMPARE(startPage()->cursorPosition(), 1);
    QVERIFY(chart()->cursorPosition() <= 600); // never beside the plot
}

void TstInrush::valuesAtTheCursorAreThoseOfTheTask()
{
    feed(500, 5);
    feed(100, 50);
    press(mainPage(), F5);
    QCOMPARE(text(startPage(), "D1_Value"), F_to_Str::number_A(50));
    QCOMPARE(text(startPage(), "D3_Value"), F_to_Str::number_A(52));
    press(startPage(), F3);
    hold(startPage(), Left, 12); // 1 + 3 + 15 + 30 + 60 = 109 points of one value
    release(startPage(), Left);
    QCOMPARE(text(startPage(), "D1_Value"), F_to_Str::number_A(5));
    press(startPage(), F1);
    QCOMPARE(text(startPage(), "D1_Value"), F_to_Str::number_V(230));
}

void TstInrush::wiringDecidesCaptionsAndCurves()
{
    setUpMeasurement(4);
    beginRun(*m_page);
    feed(10, 1);
    QCOMPARE(text(startPage(), "D1_Caption"), QStringLiteral("L12:"));
    QCOMPARE(text(startPage(), "D3_Caption"), QStringLiteral("L31:"));
    QCOMPARE(text(startPage(), "D4_Caption"), QString());
    QCOMPARE(chart()->flags(), 7);
    setUpMeasurement(6);
    beginRun(*m_page);
    feed(10, 1);
    QCOMPARE(chart()->flags(), 1);
    QCOMPARE(text(startPage(), "D2_Caption"), QString());
}

void TstInrush::longReadingsAndCaptionsFitTheirLabels()
{
    // The unit is chosen for four places of the nominal value; a crest can be twice as high.
    for (int c = 1; c <= 4; ++c) {
        QVERIFY(holds(startPage(), QStringLiteral("D%1_Caption").arg(c), QStringLiteral("L31:"), 4));
        QVERIFY(holds(startPage(), QStringLiteral("D%1_Value").arg(c), QStringLiteral("-21213.00")));
    }
}

void TstInrush::pagesLiveBeforeTheFirstStart()
{
    renewLive();
    InrushPage page(liveData());
    openAll(page);
    page.updateDisplay(nullptr);
    page.retranslateUi();
    press(page.findChild<InrushMain *>(), F5);
    for (const FrontKey key : { F1, F2, F3, Left, Right, F4, Left, Right, F5 })
        press(page.findChild<InrushStartPage *>(), key);
    QCOMPARE(page.pqaData(), QByteArray(8, 0));
}

void TstInrush::onlyInrushEventsAreListed()
{
    liveData().events().clear();
    m_page->show();
    for (int type = 0; type <= 34; ++type) {
        PQAEventItem item;
        item.type = type;
        liveData().events().append(item);
        liveData().events().append(item);
    }
    QCOMPARE(m_page->events().size(), 2);
    QCOMPARE(m_page->events().at(0).type, int(EventInrush));
    QCOMPARE(text(startPage(), "events_count"), QStringLiteral("2"));
    liveData().events().clear(); // as the task does it at each start
    beginRun(*m_page);
    QVERIFY(m_page->events().isEmpty());
    QCOMPARE(text(startPage(), "events_count"), QStringLiteral("0"));
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("0/0"));
    liveData().events().clear();
}

void TstInrush::counterFollowsTheSelection()
{
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("0/0"));
    PQAEventItem item;
    item.type = EventInrush;
    for (int i = 0; i < 3; ++i)
        liveData().events().append(item);
    m_page->show();
    press(eventPage(), Down);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("2/3"));
    press(eventPage(), Up, 2);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("1/3"));
    liveData().events().clear();
}

void TstInrush::savedRecordHoldsTrendAndEvents()
{
    feed(4, 5);
    PQAEventItem item;
    item.type = EventInrush;
    item.value = 123.5f;
    liveData().events().append(item);
    const QByteArray record = m_page->pqaData();
    liveData().events().clear();
    QCOMPARE(record.size(), 8 + 8 * 4 * 4 + 48);
    float values[32];
    std::memcpy(values, record.constData() + 8, sizeof values);
    QCOMPARE(values[0], 230.0f);
    QCOMPARE(values[16], 5.0f);
    QCOMPARE(values[20], 6.0f);
    QCOMPARE(values[31], 0.0f);
    float level;
    std::memcpy(&level, record.constData() + 8 + 128 + 12, sizeof level);
    QCOMPARE(level, 123.5f);
}

PAGE_TEST_MAIN(TstInrush)
#include "tst_inrush.moc"
