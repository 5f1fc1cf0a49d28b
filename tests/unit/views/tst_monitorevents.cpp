#include "pagetest.h"
#include "settings/monitorinfo.h"
#include "settings/phasecolor.h"
#include "unit/documentpage.h"
#include "unit/setup/typing.h"
#include "views/monitor/monitoreventpage.h"
#include "views/monitor/monitorpage.h"
#include "views/monitor/monitortrend.h"
#include "views/monitor/monitortrendpage.h"
#include "widgets/charts/monitortrendchart.h"
#include "widgets/controls/eventswidget.h"
#include "widgets/controls/softkeybuttons.h"

#include <QRandomGenerator>
#include <QScopeGuard>
#include <QSet>
#include <QSignalSpy>
#include <QTimer>

#include <memory>

using namespace PageTest;

/// The monitor's lists of events and the trends behind them.
class TstMonitorEvents : public QObject
{
    Q_OBJECT

private slots:
    void init();

    // events
    void eachListHasItsFamily_data();
    void eachListHasItsFamily();
    void f4ShowsAllEventsAndBack();
    void theArrowsMoveTheCounter();
    void aChangedEventIsListedAnew();
    void startEmptiesTheLists();
    void aHeldListStaysAsItIs();

    // trends
    void eachListLeadsToItsTrend_data();
    void eachListLeadsToItsTrend();
    void placeholdersStandBeforeTheFirstValue_data();
    void placeholdersStandBeforeTheFirstValue();
    void latestValuesStandBelowTheCurves();
    void eachTrendHasItsQuantityAndScale_data();
    void eachTrendHasItsQuantityAndScale();
    void scaleOfTheVoltageIsInTheUnitOfItsCaption();
    void curvesAreThoseOfTheWiring_data();
    void curvesAreThoseOfTheWiring();
    void unbalanceTrendChangesToTheFrequencyAndBack();
    void withoutThreePhasesOnlyTheFrequencyIsThere();
    void axisReads21hTo3hAtTheFinestZoom();
    void zoomKeysStepThroughTheRows();
    void aFlickerValueCoversTwoHours();
    void widestZoomKeepsADipBehindATransformer();
    void widestZoomKeepsALowFrequency();
    void heldTrendsStay();

    // all
    void withoutAFreeNameStartAsksForOne();
    void randomKeysKeepEveryChoiceWithinItsBounds();

    // document
    void softKeysAreThoseOfTheDocument();
    void zoomsAreThoseOfTheDocument();

private:
    template <typename P> P *page() { return m_page->findChild<P *>(); }
    EventsWidget *table(LivePage *page) { return named<EventsWidget>(page, "events"); }
    MonitorTrendChart *chart(LivePage *page) { return named<MonitorTrendChart>(page, "trend"); }
    void addEvent(qint32 type, qint32 channel = 0);

    std::unique_ptr<MonitorPage> m_page;
};

void TstMonitorEvents::init()
{
    MonitorInfo::m_duration = 2;
    MonitorInfo::m_zoom_index = 3;
    m_page = openedPage<MonitorPage>();
    m_page->show(); // a hidden page catches up later
}

void TstMonitorEvents::addEvent(qint32 type, qint32 channel)
{
    PQAEventItem event;
    event.type = type;
    event.channel = channel;
    liveData().events().append(event);
}

void TstMonitorEvents::eachListHasItsFamily_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("family");
    QTest::addColumn<QList<int>>("types");
    QList<int> harmonics;
    for (int type = 0; type < 25; ++type)
        harmonics << type;
    QTest::newRow("vrms") << int(MonitorPage::Vrm) << "Vrms" << QList<int> { 25 };
    QTest::newRow("harmonics") << int(MonitorPage::HarmEvents) << "Harmonics" << harmonics;
    QTest::newRow("flicker") << int(MonitorPage::Flicker) << "Flicker" << QList<int> { 26 };
    QTest::newRow("dirs") << int(MonitorPage::Dirs) << "DIRS" << QList<int> { 27, 28, 29, 30 };
    QTest::newRow("unbalance") << int(MonitorPage::Unbalance) << "Unbal., Hz" << QList<int> { 31, 32 };
}

void TstMonitorEvents::eachListHasItsFamily()
{
    QFETCH(int, row);
    QFETCH(QList<int>, types);
    for (int type = 0; type <= 34; ++type)
        addEvent(type);
    LivePage *shown = m_page->page(row);
    QTEST(text(shown, "family"), "family");
    QCOMPARE(table(shown)->eventsCnt(), types.size());
    QCOMPARE(text(shown, "events_count"), QStringLiteral("1/%1").arg(types.size()));
    QCOMPARE(text(shown, "events_t"), QStringLiteral("EVENTS :"));
    EventsWidget names;
    EventList list;
    for (int i = 0; i < types.size(); ++i) {
        PQAEventItem event;
        event.type = types.at(i);
        list.append(event);
        EventSelection one(list, kAllEvents);
        one.refresh();
        names.refreshEventList(&one);
        QCOMPARE(table(shown)->lineTexts(i).at(1), names.lineTexts(i).at(1)); // the column of the types
    }
}

void TstMonitorEvents::f4ShowsAllEventsAndBack()
{
    for (const qint32 type : { EventDip, EventRms, EventUnbalance, EventRms })
        addEvent(type);
    auto *list = page<MonitStarVrmPage>();
    auto *key = named<BtnSelAll>(list, "btn_f4");
    QCOMPARE(key->selectedText(), QStringLiteral("Selected"));
    QCOMPARE(text(list, "events_count"), QStringLiteral("1/2"));
    press(list, F4);
    QCOMPARE(key->selectedText(), QStringLiteral("All"));
    QCOMPARE(text(list, "events_count"), QStringLiteral("1/4"));
    QCOMPARE(text(list, "family"), QStringLiteral("All events"));
    press(list, F4);
    QCOMPARE(key->selectedText(), QStringLiteral("Selected"));
    QCOMPARE(text(list, "events_count"), QStringLiteral("1/2"));
}

void TstMonitorEvents::theArrowsMoveTheCounter()
{
    for (int i = 0; i < 15; ++i)
        addEvent(EventFlicker);
    auto *list = page<MonitFlickPage>();
    press(list, Down, 13);
    QCOMPARE(text(list, "events_count"), QStringLiteral("14/15"));
    QCOMPARE(table(list)->firstShown(), 1);
    press(list, Up);
    QCOMPARE(text(list, "events_count"), QStringLiteral("13/15"));
}

void TstMonitorEvents::aChangedEventIsListedAnew()
{
    addEvent(EventDip);
    auto *list = page<MonitDirsPage>();
    QCOMPARE(table(list)->lineTexts(0).at(3), QString()); // no duration yet
    liveData().events().change(0, [](PQAEventItem &event) {
        event.finished = 1;
        event.duration = 1500;
        event.value = 180.5f;
    });
    QCOMPARE(table(list)->lineTexts(0).at(3), QStringLiteral("00:00:01:500"));
    QCOMPARE(table(list)->lineTexts(0).at(2), QStringLiteral("180.5"));
}

void TstMonitorEvents::startEmptiesTheLists()
{
    addEvent(EventRms);
    auto *list = page<MonitStarVrmPage>();
    press(list, F4);
    beginRun(*m_page);
    QCOMPARE(text(list, "events_count"), QStringLiteral("0/0"));
    addEvent(EventDip);
    QCOMPARE(text(list, "events_count"), QStringLiteral("0/0")); // its own family again
}

void TstMonitorEvents::aHeldListStaysAsItIs()
{
    addEvent(EventRms);
    holdRun(*m_page);
    addEvent(EventRms);
    auto *list = page<MonitStarVrmPage>();
    press(list, F4);
    QCOMPARE(text(list, "events_count"), QStringLiteral("1/1"));
    continueRun(*m_page);
    QCOMPARE(text(list, "events_count"), QStringLiteral("1/2"));
}

void TstMonitorEvents::eachListLeadsToItsTrend_data()
{
    QTest::addColumn<int>("list");
    QTest::addColumn<int>("trend");
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("type");
    QTest::newRow("vrms") << int(MonitorPage::Vrm) << int(MonitorPage::VrmTrend) << "MonitStarVrmTrendPage"
                          << "Vrms(V)";
    QTest::newRow("harmonics") << int(MonitorPage::HarmEvents) << int(MonitorPage::HarmTrend) << "MonitHarmEvenTrePage"
                               << "THD(%)";
    QTest::newRow("flicker") << int(MonitorPage::Flicker) << int(MonitorPage::FlickerTrend) << "MonitFlickTrePage"
                             << "Plt";
    QTest::newRow("dirs") << int(MonitorPage::Dirs) << int(MonitorPage::DirsTrend) << "MonitDirsTrePage"
                          << "Vrms(V)";
    QTest::newRow("unbalance") << int(MonitorPage::Unbalance) << int(MonitorPage::UnbalanceTrend) << "MonitUnbalTrePage"
                               << "Unbalance(%)";
}

void TstMonitorEvents::eachListLeadsToItsTrend()
{
    QFETCH(int, list);
    QFETCH(int, trend);
    m_page->showPage(list);
    QCOMPARE(text(m_page->currentPage(), "btn_f3"), QStringLiteral("Trend"));
    press(m_page->currentPage(), F3);
    QCOMPARE(m_page->currentIndex(), trend);
    QTEST(QString::fromLatin1(m_page->currentPage()->metaObject()->className()), "page");
    QTEST(text(m_page->currentPage(), "type"), "type");
    QCOMPARE(text(m_page->currentPage(), "btn_f5"), QStringLiteral("Back"));
    press(m_page->currentPage(), F5);
    QCOMPARE(m_page->currentIndex(), list);
}

void TstMonitorEvents::placeholdersStandBeforeTheFirstValue_data()
{
    QTest::addColumn<int>("trend");
    QTest::addColumn<QString>("placeholder");
    QTest::newRow("vrms") << int(MonitorPage::VrmTrend) << "___._V";
    QTest::newRow("harmonics") << int(MonitorPage::HarmTrend) << "___.__%";
    QTest::newRow("flicker") << int(MonitorPage::FlickerTrend) << "__.__";
    QTest::newRow("dirs") << int(MonitorPage::DirsTrend) << "___._V";
    QTest::newRow("unbalance") << int(MonitorPage::UnbalanceTrend) << "___.__%";
}

void TstMonitorEvents::placeholdersStandBeforeTheFirstValue()
{
    QFETCH(int, trend);
    QTEST(text(m_page->page(trend), "D1_Value"), "placeholder");
}

void TstMonitorEvents::latestValuesStandBelowTheCurves()
{
    for (int phase = 0; phase < 3; ++phase) {
        live().monitorTrend.append(MonitorTrendPlt + phase, 9);
        live().monitorTrend.append(MonitorTrendPlt + phase, 0.5f + 0.25f * float(phase));
    }
    m_page->updateDisplay(nullptr);
    auto *trend = page<MonitFlickTrePage>();
    QCOMPARE(text(trend, "D1_Caption"), QStringLiteral("L1:"));
    QCOMPARE(text(trend, "D1_Value"), QStringLiteral("0.50"));
    QCOMPARE(text(trend, "D2_Value"), QStringLiteral("0.75"));
    QCOMPARE(text(trend, "D3_Value"), QStringLiteral("1.00"));
}

void TstMonitorEvents::eachTrendHasItsQuantityAndScale_data()
{
    QTest::addColumn<int>("trend");
    QTest::addColumn<int>("presses"); // of F1
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("scale");
    QTest::newRow("vrms") << int(MonitorPage::VrmTrend) << 0 << "231.00V" << QStringList({ "240", "230" });
    QTest::newRow("harmonics") << int(MonitorPage::HarmTrend) << 0 << "2.50%" << QStringList({ "3", "2" });
    QTest::newRow("flicker") << int(MonitorPage::FlickerTrend) << 0 << "0.75" << QStringList({ "1", "0" });
    QTest::newRow("dirs") << int(MonitorPage::DirsTrend) << 0 << "231.00V" << QStringList({ "240", "230" });
    QTest::newRow("unbalance") << int(MonitorPage::UnbalanceTrend) << 0 << "1.25%" << QStringList({ "2", "1" });
    QTest::newRow("frequency") << int(MonitorPage::UnbalanceTrend) << 1 << "50.02Hz" << QStringList({ "50.1", "50.0" });
}

void TstMonitorEvents::eachTrendHasItsQuantityAndScale()
{
    QFETCH(int, trend);
    QFETCH(int, presses);
    LivePage *shown = m_page->page(trend);
    press(shown, F1, presses);
    QCOMPARE(chart(shown)->limits(), QStringList({ "10", "0" })); // no value yet
    live().monitorTrend.append(MonitorTrendVoltage, 231);
    live().monitorTrend.append(MonitorTrendThd, 2.5f);
    live().monitorTrend.append(MonitorTrendPlt, 0.75f);
    live().monitorTrend.append(MonitorTrendUnbalance, 1.25f);
    live().monitorTrend.append(MonitorTrendFrequency, 50.02f);
    m_page->updateDisplay(nullptr);
    QTEST(text(shown, "D1_Value"), "value");
    QTEST(chart(shown)->limits(), "scale");
}

void TstMonitorEvents::scaleOfTheVoltageIsInTheUnitOfItsCaption()
{
    const auto restore = qScopeGuard([] { m_settingConfig_g.setRatioVFenzi(1); });
    m_settingConfig_g.setRatioVFenzi(1000);
    beginRun(*m_page);
    live().monitorTrend.append(MonitorTrendVoltage, 224000);
    live().monitorTrend.append(MonitorTrendVoltage, 235990);
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(page<MonitStarVrmTrendPage>(), "type"), QStringLiteral("Vrms(kV)"));
    QCOMPARE(chart(page<MonitStarVrmTrendPage>())->limits(), QStringList({ "236", "224" }));
}

void TstMonitorEvents::curvesAreThoseOfTheWiring_data()
{
    addWirings("flags", { 7, 7, 1, 7, 3, 1, 7, 7, 7, 7 });
}

void TstMonitorEvents::curvesAreThoseOfTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(int, flags);
    setUpMeasurement(joinMode);
    beginRun(*m_page);
    auto *trend = page<MonitStarVrmTrendPage>();
    QCOMPARE(chart(trend)->flags(), flags);
    QCOMPARE(text(trend, "D2_Value"), flags & 2 ? QStringLiteral("___._V") : QString());
    QCOMPARE(text(trend, "D1_Caption"), channelSet(joinMode)->caption(0) + QStringLiteral(":"));
}

void TstMonitorEvents::unbalanceTrendChangesToTheFrequencyAndBack()
{
    auto *trend = page<MonitUnbalTrePage>();
    live().monitorTrend.append(MonitorTrendUnbalance, 1.25f);
    live().monitorTrend.append(MonitorTrendFrequency, 50.02f);
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(trend, "btn_f1"), QStringLiteral("Type"));
    QCOMPARE(text(trend, "D1_Value"), QStringLiteral("1.25%"));
    QCOMPARE(chart(trend)->flags(), 8);
    press(trend, F1);
    QCOMPARE(text(trend, "type"), QStringLiteral("Freq(Hz)"));
    QCOMPARE(text(trend, "D1_Value"), QStringLiteral("50.02Hz"));
    QCOMPARE(chart(trend)->flags(), 16);
    press(trend, F1);
    QCOMPARE(text(trend, "type"), QStringLiteral("Unbalance(%)"));
    // A page of one quantity has no such key.
    QCOMPARE(text(page<MonitFlickTrePage>(), "btn_f1"), QString());
}

void TstMonitorEvents::withoutThreePhasesOnlyTheFrequencyIsThere()
{
    for (const int joinMode : { 3, 5, 6 }) {
        setUpMeasurement(joinMode);
        beginRun(*m_page);
        auto *trend = page<MonitUnbalTrePage>();
        QCOMPARE(text(trend, "type"), QStringLiteral("Freq(Hz)"));
        QCOMPARE(text(trend, "btn_f1"), QString());
        press(trend, F1);
        QCOMPARE(text(trend, "type"), QStringLiteral("Freq(Hz)"));
    }
}

void TstMonitorEvents::axisReads21hTo3hAtTheFinestZoom()
{
    QCOMPARE(chart(page<MonitStarVrmTrendPage>())->fullScale(),
             QStringList({ "21h", "18h", "15h", "12h", "9h", "6h", "3h" }));
}

void TstMonitorEvents::zoomKeysStepThroughTheRows()
{
    auto *trend = page<MonitDirsTrePage>();
    QCOMPARE(text(trend, "btn_f4"), QStringLiteral("Zoom"));
    press(trend, Up); // the finest already
    QCOMPARE(MonitorInfo::m_zoom_index, 3);
    press(trend, F4);
    QCOMPARE(MonitorInfo::m_zoom_index, 2);
    QCOMPARE(chart(trend)->fullScale().first(), QStringLiteral("42h"));
    press(trend, Down, 4);
    QCOMPARE(MonitorInfo::m_zoom_index, 0);
    QCOMPARE(chart(trend)->fullScale().first(), QStringLiteral("168h"));
    press(trend, F4); // begins again
    QCOMPARE(MonitorInfo::m_zoom_index, 3);
    press(trend, Down);
    press(trend, Up);
    QCOMPARE(MonitorInfo::m_zoom_index, 3);
}

void TstMonitorEvents::aFlickerValueCoversTwoHours()
{
    for (const float value : { 0.9f, 0.1f })
        live().monitorTrend.append(MonitorTrendPlt, value);
    m_page->updateDisplay(nullptr);
    auto *trend = page<MonitFlickTrePage>();
    const QImage picture = chart(trend)->grab().toImage();
    const QRgb color = PhaseColor::colorA().rgb();
    int first = picture.width();
    for (int x = 584; x > 80; --x) { // without the letters left of the frame and the flag
        for (int y = 1; y < 101; ++y) {
            if (picture.pixel(x, y) == color)
                first = x;
        }
    }
    // The plot ends at 601 - 520 + 506; twice 12 ten-minute steps of four points each.
    QCOMPARE(first, 587 - 96);
}

void TstMonitorEvents::widestZoomKeepsADipBehindATransformer()
{
    const auto restore = qScopeGuard([] { m_settingConfig_g.setRatioVFenzi(1); });
    m_settingConfig_g.setRatioVFenzi(3); // 690 V are nominal
    MonitorInfo::m_zoom_index = 0;
    for (int i = 0; i < 20; ++i)
        live().monitorTrend.append(MonitorTrendVoltage, i % 2 ? 700 : 600);
    m_page->updateDisplay(nullptr);
    // Ten points, all of them of 600 V: the lower end of the scale.
    const QImage picture = chart(page<MonitStarVrmTrendPage>())->grab().toImage();
    QCOMPARE(picture.pixel(580, 100), PhaseColor::colorA().rgb());
}

void TstMonitorEvents::widestZoomKeepsALowFrequency()
{
    MonitorInfo::m_zoom_index = 0;
    for (int i = 0; i < 20; ++i)
        live().monitorTrend.append(MonitorTrendFrequency, i % 2 ? 50.1f : 49.0f);
    auto *trend = page<MonitUnbalTrePage>();
    press(trend, F1);
    const QImage picture = chart(trend)->grab().toImage();
    bool isLow = false;
    for (int y = 90; y <= 100; ++y)
        isLow = isLow || picture.pixel(580, y) == QColor(Qt::white).rgb();
    QVERIFY(isLow);
}

void TstMonitorEvents::heldTrendsStay()
{
    live().monitorTrend.append(MonitorTrendFrequency, 50.5f);
    auto *trend = page<MonitUnbalTrePage>();
    press(trend, F1);
    holdRun(*m_page);
    live().monitorTrend.append(MonitorTrendFrequency, 49.5f);
    press(trend, F1, 2);
    QCOMPARE(text(trend, "D1_Value"), QStringLiteral("50.50Hz"));
    continueRun(*m_page);
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(trend, "D1_Value"), QStringLiteral("49.50Hz"));
}

void TstMonitorEvents::withoutAFreeNameStartAsksForOne()
{
    QSignalSpy started(m_page.get(), &MonitorPage::startMonitorTask);
    m_page->enter();
    MonitorInfo::m_monitor_file->clear(); // as with all 999 taken
    DialogDriver dropped({ Typing::droppedAfter(QStringLiteral("A")) });
    press(m_page->currentPage(), F5);
    QVERIFY(dropped.isDone());
    QCOMPARE(started.count(), 0);
    QCOMPARE(m_page->currentIndex(), int(MonitorPage::Main));
    DialogDriver typed({ Typing::typed(QStringLiteral("B-1")) });
    press(m_page->currentPage(), F5);
    QVERIFY(typed.isDone());
    QCOMPARE(started.count(), 1);
    QCOMPARE(*MonitorInfo::m_monitor_file, QStringLiteral("B-1"));
}

void TstMonitorEvents::randomKeysKeepEveryChoiceWithinItsBounds()
{
    m_limits_g.changeActiveLimits(QStringLiteral("EN50160"));
    m_page->enter();
    const FrontKey keys[] = { F1, F2, F3, F4, F5, F5, Left, Right, Up, Down, Enter };
    QRandomGenerator random(20240118);
    const auto next = [&random, &keys] { return keys[random.bounded(int(std::size(keys)))]; };
    // The keyboard runs a loop of its own: what comes then goes to it.
    QTimer pump;
    connect(&pump, &QTimer::timeout, this, [&next] {
        if (QWidget *dialog = QApplication::activeModalWidget())
            QTest::keyClick(dialog, Qt::Key(next()));
    });
    pump.start(0);
    QSet<int> visited;
    for (int i = 0; i < 8000; ++i) {
        if (i % 400 == 0)
            m_page->enter();
        if (i % 150 == 0)
            addEvent(i / 150 % 35, i % 3);
        if (i % 2000 == 0) {
            setUpMeasurement(1 + i / 2000 * 3);
            beginRun(*m_page);
        }
        press(m_page->currentPage(), next());
        visited << m_page->currentIndex();
        QVERIFY(MonitorInfo::m_duration >= 1 && MonitorInfo::m_duration <= 744);
        QVERIFY(MonitorInfo::m_zoom_index >= 0 && MonitorInfo::m_zoom_index <= 3);
        QVERIFY(!MonitorInfo::m_monitor_file->isEmpty());
        QVERIFY(m_limits_g.allLimitsList().contains(m_limits_g.activeLimitsName()));
    }
    QCOMPARE(visited.size(), m_page->pageCount());
    m_limits_g.changeActiveLimits(QStringLiteral("EN50160"));
}

void TstMonitorEvents::softKeysAreThoseOfTheDocument()
{
    const auto rows = DocumentPage(QStringLiteral("monitor-pages.md")).table(QStringLiteral("## Pages"));
    QCOMPARE(rows.size(), m_page->pageCount());
    for (int i = 0; i < rows.size(); ++i) {
        const LivePage *page = m_page->page(i);
        QCOMPARE(QString::fromLatin1(page->metaObject()->className()), rows.at(i).at(0));
        QStringList keys;
        for (int key = 1; key <= 5; ++key) {
            const auto *label = page->findChild<QLabel *>(QStringLiteral("btn_f%1").arg(key));
            const auto *button = dynamic_cast<const SoftKeyButton *>(label);
            keys << (button ? button->texts().join(QLatin1Char(' ')) : label->text());
        }
        keys.removeAll(QString());
        QCOMPARE(keys.join(QStringLiteral(", ")), rows.at(i).at(2));
    }
}

void TstMonitorEvents::zoomsAreThoseOfTheDocument()
{
    const auto rows = DocumentPage(QStringLiteral("monitor-pages.md")).table(QStringLiteral("## Trends"));
    QCOMPARE(rows.size(), 4);
    for (int i = 0; i < rows.size(); ++i) {
        const QStringList axis = MonitorTrend::axisLabels(MonitorInfo::m_zoom_time[3 - i].hours);
        QCOMPARE(rows.at(i).at(0), QStringLiteral("%1 h").arg(MonitorInfo::m_zoom_time[3 - i].hours));
        QCOMPARE(rows.at(i).at(2), axis.first() + QStringLiteral(" to ") + axis.last());
    }
}

PAGE_TEST_MAIN(TstMonitorEvents)
#include "tst_monitorevents.moc"
