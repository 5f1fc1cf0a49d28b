#include "model/transparam.h"
#include "model/displayrecords.h"
#include "framespy.h"
#include "pagetest.h"
#include "views/transients/trans.h"
#include "views/transients/transmain.h"
#include "views/transients/transtart.h"
#include "views/transients/transview.h"
#include "widgets/text/f_to_str.h"
#include "widgets/dialogs/savedialog.h"
#include "widgets/charts/scopewidget.h"
#include "widgets/controls/softkeybuttons.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTimer>

#include <cstring>
#include <limits>
#include <memory>

using namespace PageTest;

namespace {

/// 2023-11-14 22:13:20.123 UTC
constexpr double kTime = 1700000000123.0;

/// A transient of number \a number on phase code \a code at place \a place of its record, every sample \a level.
__trans_data transient(int number, int code = 1, int place = 301, qint16 level = 100)
{
    __trans_data record;
    record.number = number;
    record.frequency = 50;
    record.time = kTime + number;
    record.position = quint32(code) << 24 | quint32(place);
    for (int c = 0; c < 4; ++c) {
        record.rms[c] = 230.0f + c;
        for (qint16 &sample : record.samples[c])
            sample = qint16(level * (c + 1));
    }
    return record;
}

} // namespace

class TstTransients : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    // set-up
    void thresholdStopsAtItsBounds();
    void heldKeyGrowsToAHundred();
    void thresholdIsStoredAtOnce();
    void defaultsRestoreFifty();
    void f1KeepsTheOnlyField();
    void startSendsTheSetUpOnlyAfterAChange();
    void startTellsTheShell();
    void pagesLeadToEachOther();
    void snapshotOfTheSetUpPageAsksForAName();

    // live
    void liveVoltagesShowWithRmsOrCursorValues();
    void liveZoomAndCursorKeys();
    void triggerShowsTheThresholdInForce();
    void holdLabelFollowsTheTask();

    // captured
    void withoutTransientsTheViewIsEmpty();
    void viewOpensWithTheNewest();
    void prevAndNextStopAtTheEnds();
    void captionTimeAndTriggerAreThoseOfTheRecord();
    void cursorStandsOnTheTransient();
    void cursorMovesAndShowsTheSample();
    void aNewTransientChangesOnlyTheCount();
    void aDroppedHeadKeepsTheTransientShown();
    void aDroppedTransientGivesWayToTheOldest();
    void aClearedListEmptiesTheView();
    void aReplacedListShowsNothingOfTheOld();
    void anyListLengthOverAnyOrderOfKeys();
    void wildRecordsDoNoHarm();
    void wiringDecidesTheCaptions();
    void zoomTextsAreThoseOfTheScope();
    void savedRecordHoldsEveryTransient();
    void pagesLiveBeforeTheFirstStart();
    void longReadingsAndCaptionsFitTheirLabels();

private:
    TransMain *mainPage() { return m_page->findChild<TransMain *>(); }
    TranStart *startPage() { return m_page->findChild<TranStart *>(); }
    TransView *viewPage() { return m_page->findChild<TransView *>(); }
    void capture(const __trans_data &record);
    static void dropOldest();

    std::unique_ptr<trans> m_page;
};

void TstTransients::initTestCase()
{
    m_idevice = new IDevice;
}

void TstTransients::cleanupTestCase()
{
    delete m_idevice;
    m_idevice = nullptr;
}

void TstTransients::init()
{
    if (m_settingConfig_g.getTransThreshold() != 50)
        m_settingConfig_g.setTransThreshold(50);
    m_page = openedPage<trans>();
}

void TstTransients::cleanup()
{
    m_page.reset();
    liveData().transients().clear();
}

/// A list without its oldest entry.
void TstTransients::dropOldest()
{
    const TransientList::Items kept(liveData().transients().begin() + 1, liveData().transients().end());
    liveData().transients().clear();
    for (const __trans_data &record : kept)
        liveData().transients().append(record);
}

/// As the task lists a transient.
void TstTransients::capture(const __trans_data &record)
{
    liveData().transients().append(record);
    m_page->hasTransEvents();
}

void TstTransients::thresholdStopsAtItsBounds()
{
    m_settingConfig_g.setTransThreshold(3);
    press(mainPage(), Left, 5);
    QCOMPARE(m_settingConfig_g.getTransThreshold(), 1);
    QCOMPARE(text(mainPage(), "threshold"), QStringLiteral("1 %"));
    m_settingConfig_g.setTransThreshold(5999);
    press(mainPage(), Right, 5);
    QCOMPARE(m_settingConfig_g.getTransThreshold(), 6000);
    QCOMPARE(text(mainPage(), "threshold"), QStringLiteral("6000 %"));
}

void TstTransients::heldKeyGrowsToAHundred()
{
    hold(mainPage(), Right, 26); // 1 and, five ticks each, 1, 5, 10, 20, 50, then 100
    QCOMPARE(m_settingConfig_g.getTransThreshold(), 50 + 1 + 5 * (1 + 5 + 10 + 20 + 50) + 100);
    release(mainPage(), Right);
    press(mainPage(), Left);
    QCOMPARE(m_settingConfig_g.getTransThreshold(), 580);
}

void TstTransients::thresholdIsStoredAtOnce()
{
    press(mainPage(), Right);
    QCOMPARE(m_settingConfig_g.getTransThreshold(), 51);
    SettingConfig again;
    QCOMPARE(again.getTransThreshold(), 51);
}

void TstTransients::defaultsRestoreFifty()
{
    press(mainPage(), Right, 4);
    press(mainPage(), F4);
    QCOMPARE(m_settingConfig_g.getTransThreshold(), 50);
    QCOMPARE(text(mainPage(), "threshold"), QStringLiteral("50 %"));
}

void TstTransients::f1KeepsTheOnlyField()
{
    press(mainPage(), F1);
    press(mainPage(), Right);
    QCOMPARE(text(mainPage(), "threshold"), QStringLiteral("51 %"));
}

void TstTransients::startSendsTheSetUpOnlyAfterAChange()
{
    FrameSpy spy;
    press(mainPage(), F5);
    QCOMPARE(spy.count(), 0);
    press(mainPage(), Right);
    press(mainPage(), F5);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.word(0, 0), 122u);
    QCOMPARE(spy.word(0, 1), 198u);
    press(mainPage(), F5);
    QCOMPARE(spy.count(), 1);
}

void TstTransients::startTellsTheShell()
{
    QSignalSpy spy(m_page.get(), &trans::startTransTask);
    press(mainPage(), F5);
    QCOMPARE(spy.count(), 1);
}

void TstTransients::pagesLeadToEachOther()
{
    const auto current = [this] { return static_cast<QWidget *>(m_page->currentPage()); };
    QCOMPARE(current(), static_cast<QWidget *>(mainPage()));
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Start"));
    press(mainPage(), F5);
    QCOMPARE(current(), static_cast<QWidget *>(startPage()));
    press(startPage(), F1);
    QCOMPARE(current(), static_cast<QWidget *>(viewPage()));
    QCOMPARE(text(viewPage(), "btn_f1"), QStringLiteral("Prev"));
    QCOMPARE(text(viewPage(), "btn_f2"), QStringLiteral("Next"));
    press(viewPage(), F5);
    QCOMPARE(current(), static_cast<QWidget *>(startPage()));
}

void TstTransients::snapshotOfTheSetUpPageAsksForAName()
{
    for (const bool setUpPage : { true, false }) {
        if (!setUpPage)
            press(mainPage(), F5);
        bool asked = false;
        QTimer::singleShot(0, this, [&asked] {
            if (auto *dialog = qobject_cast<SaveDialog *>(QApplication::activeModalWidget())) {
                asked = dialog->name().startsWith(QLatin1String("Trans"));
                QTest::keyClick(dialog, Qt::Key(F5));
            }
        });
        press(m_page.get(), F11);
        QVERIFY(asked);
    }
}

void TstTransients::liveVoltagesShowWithRmsOrCursorValues()
{
    const __trans_data running = transient(1, 0, 0, 500);
    live().transient = running;
    m_page->updateDisplay(nullptr);
    const double volts = 500 * 10.0 / 32768.0 * m_calib_data_g.data().volt[m_settingConfig_g.getVoltIndex()][0];
    QCOMPARE(text(startPage(), "D1_Value"), F_to_Str::number_V(float(volts)));
    press(startPage(), F3);
    QCOMPARE(text(startPage(), "D1_Value"), F_to_Str::number_V(230));
    QCOMPARE(text(startPage(), "D4_Value"), F_to_Str::number_V(233));
    QCOMPARE(int(named<ScopeWidget>(startPage(), "scope")->flags()), 15); // voltages only
}

void TstTransients::liveZoomAndCursorKeys()
{
    auto *scope = named<ScopeWidget>(startPage(), "scope");
    press(startPage(), Up, 2);
    QCOMPARE(text(startPage(), "zoom_scale"), QStringLiteral("4X"));
    press(startPage(), Down);
    QCOMPARE(text(startPage(), "zoom_scale"), QStringLiteral("2X"));
    press(startPage(), F2);
    QCOMPARE(text(startPage(), "zoom_scale"), QStringLiteral("1X"));
    press(startPage(), F4);
    QCOMPARE(startPage()->findChild<Btn3 *>()->btnFlag(), 0);
    press(startPage(), Up);
    QCOMPARE(text(startPage(), "zoom_scale"), QStringLiteral("1X"));
    press(startPage(), Right, 3);
    QCOMPARE(scope->cursorPosition(), 4);
    press(startPage(), F3);
    QVERIFY(!scope->cursorOn());
    press(startPage(), Right, 3);
    QCOMPARE(scope->cursorPosition(), 4);
}

void TstTransients::triggerShowsTheThresholdInForce()
{
    QCOMPARE(text(startPage(), "trigger_t"), QStringLiteral("TRIGGER ON:"));
    press(mainPage(), Right, 2);
    press(mainPage(), F5);
    QCOMPARE(text(startPage(), "trigger"), QStringLiteral("52 %"));
    QCOMPARE(text(startPage(), "trans_count"), QStringLiteral("#0"));
    capture(transient(1));
    QCOMPARE(text(startPage(), "trans_count"), QStringLiteral("#1"));
}

void TstTransients::holdLabelFollowsTheTask()
{
    QSignalSpy spy(m_page.get(), &LivePage::pause);
    press(startPage(), F5);
    QCOMPARE(spy.count(), 1);
    holdRun(*m_page);
    QCOMPARE(text(startPage(), "btn_f5"), QStringLiteral("Run"));
    QCOMPARE(text(mainPage(), "btn_f5"), QStringLiteral("Start"));
    QCOMPARE(text(viewPage(), "btn_f5"), QStringLiteral("Back"));
}

void TstTransients::withoutTransientsTheViewIsEmpty()
{
    m_page->showPage(trans::View);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#0/0(trans)"));
    QCOMPARE(text(viewPage(), "trans_time"), QString());
    QCOMPARE(text(viewPage(), "trigger"), QString());
    for (const FrontKey key : { F1, F2, F3, F4, Left, Right, Up, Down })
        press(viewPage(), key);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#0/0(trans)"));
}

void TstTransients::viewOpensWithTheNewest()
{
    for (int i = 1; i <= 3; ++i)
        capture(transient(i));
    press(startPage(), F1);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#3/3(trans)"));
}

void TstTransients::prevAndNextStopAtTheEnds()
{
    for (int i = 1; i <= 3; ++i)
        capture(transient(i));
    m_page->showPage(trans::View);
    press(viewPage(), F2);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#3/3(trans)"));
    press(viewPage(), F1);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#2/3(trans)"));
    press(viewPage(), F1, 4);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#1/3(trans)"));
    press(viewPage(), F2);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#2/3(trans)"));
}

void TstTransients::captionTimeAndTriggerAreThoseOfTheRecord()
{
    __trans_data first = transient(0, 1); // time of kTime itself
    first.number = 7;
    capture(first);
    capture(transient(8, 3));
    m_page->showPage(trans::View);
    QCOMPARE(text(viewPage(), "trigger_t"), QStringLiteral("TRIGGER ON:"));
    QCOMPARE(text(viewPage(), "trigger"), QStringLiteral("L3"));
    QCOMPARE(text(viewPage(), "trans_time"), QStringLiteral("2023-11-14 22:13:20 131"));
    press(viewPage(), F1);
    QCOMPARE(text(viewPage(), "trigger"), QStringLiteral("L1"));
    QCOMPARE(text(viewPage(), "trans_time"), QStringLiteral("2023-11-14 22:13:20 123"));
    press(viewPage(), F3); // r.m.s. values of the record
    QCOMPARE(text(viewPage(), "D3_Value"), F_to_Str::number_V(232));
}

void TstTransients::cursorStandsOnTheTransient()
{
    capture(transient(1, 1, 100));
    capture(transient(2, 1, 505));
    m_page->showPage(trans::View);
    auto *scope = named<ScopeWidget>(viewPage(), "scope");
    QCOMPARE(scope->cursorPosition(), 506);
    press(viewPage(), F1);
    QCOMPARE(scope->cursorPosition(), 101);
}

void TstTransients::cursorMovesAndShowsTheSample()
{
    __trans_data record = transient(1, 1, 300, 0);
    record.samples[1][302] = 2000;
    capture(record);
    m_page->showPage(trans::View);
    QCOMPARE(text(viewPage(), "D2_Value"), F_to_Str::number_V(0));
    press(viewPage(), Right, 2);
    const double volts = 2000 * 10.0 / 32768.0 * m_calib_data_g.data().volt[m_settingConfig_g.getVoltIndex()][1];
    QCOMPARE(text(viewPage(), "D2_Value"), F_to_Str::number_V(float(volts)));
    hold(viewPage(), Left, 4);
    release(viewPage(), Left);
    QCOMPARE(named<ScopeWidget>(viewPage(), "scope")->cursorPosition() - 1, 302 - 9);
}

void TstTransients::aNewTransientChangesOnlyTheCount()
{
    capture(transient(1, 1, 100));
    capture(transient(2, 2, 200));
    m_page->showPage(trans::View);
    press(viewPage(), F1);
    press(viewPage(), Right);
    capture(transient(3));
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#1/3(trans)"));
    QCOMPARE(text(viewPage(), "trigger"), QStringLiteral("L1"));
    QCOMPARE(named<ScopeWidget>(viewPage(), "scope")->cursorPosition(), 102);
}

void TstTransients::aDroppedHeadKeepsTheTransientShown()
{
    for (int i = 1; i <= 1000; ++i)
        liveData().transients().append(transient(i, 1 + i % 3));
    m_page->hasTransEvents();
    m_page->showPage(trans::View);
    press(viewPage(), F1);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#999/1000(trans)"));
    const QString time = text(viewPage(), "trans_time");
    for (int i = 1001; i <= 1005; ++i)
        capture(transient(i));
    QCOMPARE(liveData().transients().size(), 1000);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#994/1000(trans)"));
    QCOMPARE(text(viewPage(), "trans_time"), time);
    press(viewPage(), F2);
    QCOMPARE(liveData().transients().at(viewPage()->index()).number, 1000);
}

void TstTransients::aDroppedTransientGivesWayToTheOldest()
{
    capture(transient(1, 1));
    m_page->showPage(trans::View);
    for (int i = 2; i <= 1000; ++i)
        liveData().transients().append(transient(i, i == 2 ? 2 : 1));
    m_page->hasTransEvents();
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#1/1000(trans)"));
    QCOMPARE(text(viewPage(), "trigger"), QStringLiteral("L1"));
    capture(transient(1001));
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#1/1000(trans)"));
    QCOMPARE(text(viewPage(), "trigger"), QStringLiteral("L2")); // the second became the first
}

void TstTransients::aClearedListEmptiesTheView()
{
    for (int i = 1; i <= 3; ++i)
        capture(transient(i));
    m_page->showPage(trans::View);
    liveData().transients().clear();
    press(viewPage(), Right); // before the page heard of it
    press(viewPage(), F1);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#0/0(trans)"));
    capture(transient(1));
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#1/1(trans)"));
}

void TstTransients::aReplacedListShowsNothingOfTheOld()
{
    capture(transient(1, 1));
    capture(transient(2, 1));
    m_page->showPage(trans::View);
    liveData().transients().clear();
    __trans_data other = transient(2, 3, 401); // the numbers begin anew with the task
    other.time = kTime + 5000;
    liveData().transients().append(other);
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(viewPage(), "trans_number"), QStringLiteral("#1/1(trans)"));
    QCOMPARE(text(viewPage(), "trigger"), QStringLiteral("L3"));
    QCOMPARE(named<ScopeWidget>(viewPage(), "scope")->cursorPosition(), 402);
}

void TstTransients::anyListLengthOverAnyOrderOfKeys()
{
    const FrontKey keys[] = { F1, F2, F1, F1, F2, Left, Right, F2, F2, F1 };
    quint32 random = 12345;
    m_page->showPage(trans::View);
    for (int i = 0; i < 400; ++i) {
        random = random * 1664525u + 1013904223u;
        const int what = int(random >> 24) % 8;
        if (what < 3) {
            liveData().transients().append(transient(i + 1));
        } else if (what == 3) {
            liveData().transients().clear();
        } else if (what == 4 && !liveData().transients().isEmpty()) {
            dropOldest();
        }
        if (what % 2)
            m_page->hasTransEvents();
        press(viewPage(), keys[i % 10]);
        m_page->updateDisplay(nullptr);
        QVERIFY(viewPage()->index() == 0 || viewPage()->index() < liveData().transients().size());
        QVERIFY(text(viewPage(), "trans_number")
                    .endsWith(QStringLiteral("/%1(trans)").arg(liveData().transients().size())));
    }
}

void TstTransients::wildRecordsDoNoHarm()
{
    for (const double time :
         { std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -1e300, 1e300 }) {
        __trans_data record = transient(1, 255, 0xFFFFFF, 32767);
        record.time = time;
        record.rms[0] = std::numeric_limits<float>::quiet_NaN();
        record.frequency = std::numeric_limits<float>::infinity();
        capture(record);
        m_page->showPage(trans::View);
        QCOMPARE(text(viewPage(), "trans_time"), QString());
        QCOMPARE(text(viewPage(), "trigger"), QString());
        QCOMPARE(named<ScopeWidget>(viewPage(), "scope")->cursorPosition(), 600);
        m_page->updateDisplay(nullptr);
    }
    press(viewPage(), F3);
    QCOMPARE(text(viewPage(), "D1_Value"), F_to_Str::number_V(0));
}

void TstTransients::wiringDecidesTheCaptions()
{
    setUpMeasurement(4);
    beginRun(*m_page);
    capture(transient(1, 2));
    m_page->showPage(trans::View);
    QCOMPARE(text(viewPage(), "D2_Caption"), QStringLiteral("L23:"));
    QCOMPARE(text(viewPage(), "D4_Caption"), QString());
    QCOMPARE(text(viewPage(), "trigger"), QStringLiteral("L23"));
    QCOMPARE(int(named<ScopeWidget>(viewPage(), "scope")->flags()), 7);
}

void TstTransients::zoomTextsAreThoseOfTheScope()
{
    capture(transient(1));
    m_page->showPage(trans::View);
    press(viewPage(), Down, 20);
    QCOMPARE(text(viewPage(), "zoom_scale"), QStringLiteral("1/32X"));
    press(viewPage(), Up, 20);
    QCOMPARE(text(viewPage(), "zoom_scale"), QStringLiteral("32X"));
}

void TstTransients::savedRecordHoldsEveryTransient()
{
    QCOMPARE(m_page->pqaData().size(), 8);
    capture(transient(1, 1, 10, 5));
    capture(transient(2, 2, 20, 6));
    const QByteArray record = m_page->pqaData();
    QCOMPARE(record.size(), 8 + 2 * 4836);
    qint32 head[2];
    std::memcpy(head, record.constData(), sizeof head);
    QCOMPARE(head[0], 2);
    QCOMPARE(head[1], 4836);
    qint32 number;
    std::memcpy(&number, record.constData() + 8 + 4836, sizeof number);
    QCOMPARE(number, 2);
    qint16 sample;
    std::memcpy(&sample, record.constData() + 8 + 2 * 4836 - 2, sizeof sample);
    QCOMPARE(int(sample), 24); // last sample of N
}

void TstTransients::longReadingsAndCaptionsFitTheirLabels()
{
    // The unit is chosen for four places of the nominal value; a crest can be twice as high.
    for (const QWidget *page :
         { static_cast<const QWidget *>(startPage()), static_cast<const QWidget *>(viewPage()) }) {
        for (int c = 1; c <= 4; ++c) {
            QVERIFY(holds(page, QStringLiteral("D%1_Caption").arg(c), QStringLiteral("L31:"), 4));
            QVERIFY(holds(page, QStringLiteral("D%1_Value").arg(c), QStringLiteral("-21213.00")));
        }
    }
    QVERIFY(holds(viewPage(), QStringLiteral("trans_time"), QStringLiteral("2026-11-21 07:44:30 171"), 4));
    QVERIFY(holds(startPage(), QStringLiteral("trans_count"), QStringLiteral("#1000")));
}

void TstTransients::pagesLiveBeforeTheFirstStart()
{
    renewLive();
    trans page(liveData());
    openAll(page);
    page.updateDisplay(nullptr);
    page.hasTransEvents();
    page.retranslateUi();
    for (const FrontKey key : { F1, F2, F3, F4, Left, Right, Up, Down }) {
        press(page.findChild<TransMain *>(), key);
        press(page.findChild<TranStart *>(), key);
        press(page.findChild<TransView *>(), key);
    }
    QCOMPARE(page.pqaData().size(), 8);
}

PAGE_TEST_MAIN(TstTransients)
#include "tst_transients.moc"
