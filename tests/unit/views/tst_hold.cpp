#include "device/idevice.h"
#include "model/transparam.h"
#include "allpages.h"
#include "pages/viewcontainer.h"
#include "settings/dipswellinfo.h"
#include "settings/monitorinfo.h"
#include "widgets/controls/eventswidget.h"

#include <QImage>
#include <QVector>

#include <cmath>
#include <memory>

using namespace PageTest;

namespace {

using Keys = QVector<FrontKey>;

/// Ten minutes or less of values around \a level.
QList<float> seriesOf(float level, int count)
{
    QList<float> values;
    for (int i = 0; i < count; ++i)
        values << level + 0.05f * level * float(i % 7);
    return values;
}

template <std::size_t N> void fillTrends(__trend_data (&trends)[N], float level)
{
    for (__trend_data &trend : trends) {
        for (int c = 0; c < kChannels; ++c)
            trend.series[c] = seriesOf(level * float(c + 1), 20);
    }
}

/// The monitor's results and trends, all of them others for another \a level.
void monitor(float level)
{
    __monitor_data &data = live().monitor;
    data.freqReady = data.voltReady = data.flickerReady = 1;
    for (int p = 0; p < kMonitorPhases; ++p) {
        data.voltMax[p] = data.voltMin[p] = level * float(p + 1);
        data.voltPartialRatio[p] = data.pltPartialRatio[p] = level * float(p + 1);
        for (int row = 0; row < kMonitorHarmonics; ++row)
            data.harmPartialRatio[p][row] = level / float(row + 1);
    }
    data.freqMax = data.freqMin = data.freqPartialRatio = level;
    for (const int row : { MonitorTrendVoltage, MonitorTrendThd, MonitorTrendPlt }) {
        for (int p = 0; p < kMonitorPhases; ++p)
            live().monitorTrend.row[row + p] = seriesOf(level * float(p + 1), 20);
    }
    live().monitorTrend.row[MonitorTrendUnbalance] = live().monitorTrend.row[MonitorTrendFrequency]
        = seriesOf(level, 20);
}

/// Values on every page, all of them others for another \a level.
void measure(float level)
{
    DisplayRecords &records = live();
    for (int c = 0; c < kChannels; ++c) {
        const float value = level * float(c + 1);
        records.vif.voltage[c] = records.vif.voltagePeak[c] = records.vif.voltageOffset[c] = value;
        records.vif.current[c] = records.vif.currentPeak[c] = records.vif.currentOffset[c] = value;
        records.vif.voltageCrest[c] = records.vif.currentCrest[c] = value;
        records.power.row[c] = { value, value, value, value / 1000, value / 1000, value };
        records.mainsSignal.signal1[c] = records.mainsSignal.signal2[c] = value / 1000;
        records.mainsSignal.rms1[c] = records.mainsSignal.rms2[c] = value;
        records.unbalance.voltageFundamental[c] = records.unbalance.currentFundamental[c] = value;
        records.unbalance.voltageAngle[c] = records.unbalance.currentAngle[c] = value;
        for (QList<float> *list :
             { records.dips.voltage, records.dips.current, records.inrush.voltage, records.inrush.current })
            list[c] = seriesOf(value, 5000);
        for (int i = 0; i < kWaveSamples; ++i) {
            const auto sample = qint16(std::lround(20 * value * std::sin(i / 50.0)));
            records.scope.voltageSamples[c][i] = records.scope.currentSamples[c][i] = sample;
            if (i < 600)
                records.transient.samples[c][i] = sample;
        }
        records.scope.voltage[c] = records.scope.current[c] = records.transient.rms[c] = value;
    }
    for (int p = 0; p < 3; ++p) {
        records.power.voltage[p] = records.power.current[p] = level * float(p + 1);
        records.flicker.pst[p] = level * float(p + 1);
        records.flicker.pinstTrend[p] = seriesOf(level * float(p + 1), 20);
        records.inverter.outputVoltage[p] = records.inverter.outputCurrent[p] = level;
        records.inverter.outputPower[p] = level;
    }
    records.wave.percent = int(level) / 2;
    records.inverter.inputVoltage = records.inverter.inputCurrent = records.inverter.efficiency = level;
    for (HarmChannel &channel : records.harmonics.channel) {
        channel.rms = channel.offset = channel.distortion = level;
        for (int i = 0; i < kHarmonicOrders; ++i)
            channel.harmonic[i] = channel.inter[i] = { 100 / (1 + level * float(i) / 100), level * float(i), level };
    }
    records.vif.frequency = records.unbalance.frequency = records.mainsSignal.frequency = 50 + level / 1000;
    fillTrends(records.vif.trend, level);
    fillTrends(records.power.trend, level);
    fillTrends(records.mainsSignal.trend, level);
    fillTrends(records.inverter.trend, level);
    monitor(level);
}

constexpr float kHeldLevel = 100;
constexpr float kLaterLevel = 137;

} // namespace
Q_DECLARE_METATYPE(Keys)

/// Held pages: whatever is pressed shows the moment of the hold, while the measurement goes on behind it.
class TstHold : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyKeyShowsTheHeldMoment_data();
    void everyKeyShowsTheHeldMoment();
    void aPageRefreshedOnHoldShowsTheHeldMoment_data();
    void aPageRefreshedOnHoldShowsTheHeldMoment();
    void savedRecordIsTheOneShown_data() { addAllPages(); }
    void savedRecordIsTheOneShown();
    void runShowsTheLiveMomentAgain_data() { addAllPages(); }
    void runShowsTheLiveMomentAgain();
    void percentagesOfTheHeldSpectrumTakeTheOtherReference();
    void eventsStayThoseOfTheHold_data();
    void eventsStayThoseOfTheHold();
    void eventsShownForTheFirstTimeOnHoldAreThoseOfTheHold();
    void transientsStayThoseOfTheHold();

private:
    /// Pictures after each key: a page with values of the held level, then held or not, then other values behind it.
    static QVector<QImage> pictures(const MakePage &make, int subPage, const Keys &keys, bool held, bool later);
};

void TstHold::initTestCase()
{
    if (!m_idevice)
        m_idevice = new IDevice;
    setUpMeasurement(1);
}

QVector<QImage> TstHold::pictures(const MakePage &make, int subPage, const Keys &keys, bool held, bool later)
{
    DipSwellInfo::m_zoom_index = 0; // survive their pages
    MonitorInfo::m_zoom_index = 3;
    std::unique_ptr<FunctionPage> page(make());
    if (auto *harmonics = qobject_cast<harm *>(page.get())) {
        // As the task answers.
        connect(harmonics, &harm::changeFlag, harmonics, [harmonics](int flag) {
            liveData().setHarmonicReference(flag == 1 ? 2 : 1);
            harmonics->updateDisplay(nullptr);
        });
    }
    beginRun(*page);
    measure(kHeldLevel);
    page->updateDisplay(nullptr);
    if (held)
        holdRun(*page);
    if (later)
        measure(kLaterLevel);
    auto *container = qobject_cast<ViewContainer *>(page.get());
    LivePage *top = container ? container->page(subPage) : page.get();
    QVector<QImage> shown;
    for (const FrontKey key : keys) {
        LivePage *before = container ? container->currentPage() : nullptr;
        press(top, key);
        if (container && container->currentPage() != before)
            top = container->currentPage(); // the key opened it
        shown << top->grab().toImage();
    }
    return shown;
}

void TstHold::everyKeyShowsTheHeldMoment_data()
{
    QTest::addColumn<MakePage>("make");
    QTest::addColumn<int>("subPage");
    QTest::addColumn<Keys>("keys");
    QTest::newRow("harmonics") << MakePage(makePage<harm>) << 0
                               << Keys { Right, Right, Right, Left, F3, Right, F2, Right, F1, Right };
    QTest::newRow("harmonics meter") << MakePage(makePage<harm>) << 1 << Keys { Down, Down, Up, F3, F3 };
    QTest::newRow("vif trend") << MakePage(makePage<VifPage>) << 1 << Keys(9, F1);
    QTest::newRow("power trend") << MakePage(makePage<powen>) << 1 << Keys(8, F1);
    QTest::newRow("energy") << MakePage(makePage<powen>) << 0 << Keys { F3 };
    QTest::newRow("mains signaling trend") << MakePage(makePage<MainsSignaling>) << 1 << Keys(4, F1);
    QTest::newRow("opening the phasors") << MakePage(makePage<unbalan>) << 0 << Keys { F4 };
    QTest::newRow("phasors") << MakePage(makePage<unbalan>) << 1 << Keys(5, F1);
    QTest::newRow("scope") << MakePage(makePage<ScopePage>) << 0
                           << Keys { F1, F1, F1, Right, F3, Right, Right, Left, Up, F2 };
    QTest::newRow("dips") << MakePage(makePage<dswell>) << 0 << Keys { F1, Right, F3, Left, Left, Right, F1 };
    QTest::newRow("inrush") << MakePage(makePage<InrushPage>) << 1 << Keys { F1, Left, F3, Left, Left, Right, F1 };
    QTest::newRow("opening the flicker trend") << MakePage(makePage<flicker>) << 0 << Keys { F4 };
    QTest::newRow("transients") << MakePage(makePage<trans>) << 1 << Keys { Right, Right, F3, Up, F2 };
    QTest::newRow("monitor overview") << MakePage(makePage<MonitorPage>) << 1
                                      << Keys { Left, Left, Right, Right, Right };
    QTest::newRow("monitor harmonics") << MakePage(makePage<MonitorPage>) << 4 << Keys { Right, F1, Right, F1 };
    QTest::newRow("monitor trend") << MakePage(makePage<MonitorPage>) << 12 << Keys { F1, Down, F4, Up };
    QTest::newRow("inverter trend") << MakePage(makePage<PowerInverter>) << 2 << Keys(6, F1);
}

void TstHold::everyKeyShowsTheHeldMoment()
{
    QFETCH(MakePage, make);
    QFETCH(int, subPage);
    QFETCH(Keys, keys);
    const QVector<QImage> asHeld = pictures(make, subPage, keys, true, false);
    const QVector<QImage> withLaterValues = pictures(make, subPage, keys, true, true);
    QCOMPARE(withLaterValues.size(), asHeld.size());
    for (int i = 0; i < asHeld.size(); ++i)
        QVERIFY2(withLaterValues.at(i) == asHeld.at(i), qPrintable(QStringLiteral("after key %1").arg(i + 1)));
}

void TstHold::aPageRefreshedOnHoldShowsTheHeldMoment_data()
{
    addAllPages();
}

/// Pictures of all sub pages.
static QVector<QImage> allPictures(FunctionPage *page)
{
    auto *container = qobject_cast<ViewContainer *>(page);
    if (!container)
        return { page->grab().toImage() };
    QVector<QImage> shown;
    for (int index = 0; index < container->pageCount(); ++index)
        shown << container->page(index)->grab().toImage();
    return shown;
}

void TstHold::aPageRefreshedOnHoldShowsTheHeldMoment()
{
    QFETCH(MakePage, make);
    std::unique_ptr<FunctionPage> page(make());
    beginRun(*page);
    measure(kHeldLevel);
    holdRun(*page);
    measure(kLaterLevel);
    page->updateDisplay(nullptr); // as a visit from another page asks for it
    const QVector<QImage> shown = allPictures(page.get());
    measure(kHeldLevel);
    page->updateDisplay(nullptr);
    QCOMPARE(allPictures(page.get()), shown);
    liveData().run();
    page->updateDisplay(nullptr);
    QCOMPARE(allPictures(page.get()), shown); // the held level, live
}

void TstHold::savedRecordIsTheOneShown()
{
    QFETCH(MakePage, make);
    std::unique_ptr<FunctionPage> page(make());
    beginRun(*page);
    measure(kHeldLevel);
    page->updateDisplay(nullptr);
    const QByteArray shown = page->pqaData();
    holdRun(*page);
    measure(kLaterLevel);
    page->updateDisplay(nullptr);
    QCOMPARE(page->pqaData(), shown);
}

void TstHold::runShowsTheLiveMomentAgain()
{
    QFETCH(MakePage, make);
    std::unique_ptr<FunctionPage> page(make());
    beginRun(*page);
    measure(kHeldLevel);
    page->updateDisplay(nullptr);
    holdRun(*page);
    const QVector<QImage> held = allPictures(page.get());
    measure(kLaterLevel);
    page->updateDisplay(nullptr);
    QCOMPARE(allPictures(page.get()), held);
    continueRun(*page);
    page->updateDisplay(nullptr);
    const QVector<QImage> running = allPictures(page.get());
    holdRun(*page); // the caption of F5 again
    QVERIFY(allPictures(page.get()) != held);
    continueRun(*page);
    measure(kHeldLevel);
    page->updateDisplay(nullptr);
    QVERIFY(allPictures(page.get()) != running);
}

void TstHold::percentagesOfTheHeldSpectrumTakeTheOtherReference()
{
    harm page(liveData());
    connect(&page, &harm::changeFlag, &page, [&page](int flag) {
        liveData().setHarmonicReference(flag == 1 ? 2 : 1);
        page.updateDisplay(nullptr);
    });
    beginRun(page);
    HarmChannel &channel = live().harmonics.channel[0];
    channel.rms = 200;
    channel.harmonic[0].magnitude = 160;
    channel.offset = 40;
    page.updateDisplay(nullptr);
    LivePage *meter = page.page(1);
    QCOMPARE(text(meter, "row1_L1"), QStringLiteral("25.000")); // 40 of 160
    holdRun(page);
    channel.offset = 80;
    press(meter, F3);
    QCOMPARE(text(meter, "row1_L1"), QStringLiteral("20.000")); // 40 of 200
    press(meter, F3);
    QCOMPARE(text(meter, "row1_L1"), QStringLiteral("25.000"));
    press(meter, F3);
    continueRun(page);
    page.updateDisplay(nullptr);
    QCOMPARE(text(meter, "row1_L1"), QStringLiteral("40.000")); // 80 of 200: the choice stays
}

static PQAEventItem eventOf(qint32 type, float value)
{
    PQAEventItem event;
    event.type = type;
    event.value = value;
    return event;
}

void TstHold::eventsStayThoseOfTheHold_data()
{
    QTest::addColumn<MakePage>("make");
    QTest::addColumn<int>("trend");
    QTest::addColumn<int>("list");
    QTest::addColumn<int>("type");
    QTest::newRow("dips") << MakePage(makePage<dswell>) << int(dswell::Main) << int(dswell::Events) << int(EventDip);
    QTest::newRow("inrush") << MakePage(makePage<InrushPage>) << int(InrushPage::Start) << int(InrushPage::Events)
                            << int(EventInrush);
}

void TstHold::eventsStayThoseOfTheHold()
{
    QFETCH(MakePage, make);
    QFETCH(int, trend);
    QFETCH(int, list);
    QFETCH(int, type);
    std::unique_ptr<FunctionPage> page(make());
    auto *container = static_cast<ViewContainer *>(page.get());
    openAll(*page);
    beginRun(*page);
    page->show();
    LivePage *count = container->page(trend);
    LivePage *lines = container->page(list);
    auto *table = named<EventsWidget>(lines, "events");
    EventList &events = liveData().events();
    events.append(eventOf(type, 1));
    events.append(eventOf(type, 2));
    const QByteArray saved = page->pqaData();
    holdRun(*page);

    events.append(eventOf(type, 3));
    events.change(0, [](PQAEventItem &event) { event.value = 4; });
    press(lines, Down, 5);
    page->updateDisplay(nullptr);
    page->hide();
    page->show();
    QCOMPARE(text(count, "events_count"), QStringLiteral("2"));
    QCOMPARE(text(lines, "events_count"), QStringLiteral("2/2"));
    QCOMPARE(table->lineTexts(0).value(2), QStringLiteral("1.0"));
    QVERIFY(table->lineTexts(2).isEmpty());
    QCOMPARE(page->pqaData(), saved);

    continueRun(*page);
    QCOMPARE(text(count, "events_count"), QStringLiteral("3"));
    QCOMPARE(text(lines, "events_count"), QStringLiteral("2/3"));
    QCOMPARE(table->lineTexts(0).value(2), QStringLiteral("4.0"));
    QCOMPARE(table->lineTexts(2).value(2), QStringLiteral("3.0"));
    QVERIFY(page->pqaData() != saved);
}

void TstHold::eventsShownForTheFirstTimeOnHoldAreThoseOfTheHold()
{
    renewLive();
    liveData().events().append(eventOf(EventSwell, 1));
    liveData().hold();
    liveData().events().append(eventOf(EventSwell, 2));
    dswell page(liveData());
    page.enter();
    page.show();
    QCOMPARE(text(page.page(dswell::Main), "events_count"), QStringLiteral("1"));
    QCOMPARE(text(page.page(dswell::Events), "events_count"), QStringLiteral("1/1"));
    page.hide();
    liveData().run();
    QCOMPARE(text(page.page(dswell::Main), "events_count"), QStringLiteral("1")); // it is hidden
    page.show();
    QCOMPARE(text(page.page(dswell::Main), "events_count"), QStringLiteral("2"));
}

void TstHold::transientsStayThoseOfTheHold()
{
    trans page(liveData());
    openAll(page);
    beginRun(page);
    const auto capture = [&page](int number) {
        __trans_data record;
        record.number = number;
        record.time = 1e12 + number;
        record.position = 1u << 24 | 300u;
        for (int i = 0; i < 600; ++i)
            record.samples[0][i] = qint16(1000 * number);
        liveData().transients().append(record);
        page.hasTransEvents();
    };
    for (int number = 1; number <= 3; ++number)
        capture(number);
    page.showPage(trans::View);
    LivePage *start = page.page(trans::Start);
    LivePage *view = page.page(trans::View);
    const QByteArray saved = page.pqaData();
    holdRun(page);
    const QImage third = view->grab().toImage();

    for (int number = 4; number <= 1003; ++number) // none of the held ones is in the list any more
        capture(number);
    page.updateDisplay(nullptr);
    press(view, F2, 2);
    QCOMPARE(text(view, "trans_number"), QStringLiteral("#3/3(trans)"));
    QVERIFY(view->grab().toImage() == third);
    press(view, F1);
    QCOMPARE(text(view, "trans_number"), QStringLiteral("#2/3(trans)"));
    press(view, F5);
    QCOMPARE(text(start, "trans_count"), QStringLiteral("#3"));
    press(start, F1);
    QCOMPARE(text(view, "trans_number"), QStringLiteral("#3/3(trans)"));
    QCOMPARE(page.pqaData(), saved);

    continueRun(page);
    page.updateDisplay(nullptr);
    QCOMPARE(text(start, "trans_count"), QStringLiteral("#1000"));
    QCOMPARE(text(view, "trans_number"), QStringLiteral("#1/1000(trans)"));
    press(view, F2);
    QVERIFY(page.pqaData() != saved);
}

PAGE_TEST_MAIN(TstHold)
#include "tst_hold.moc"
