#include "model/displayrecords.h"
#include "pagetest.h"
#include "views/mainssignaling/mainssignaling.h"
#include "views/mainssignaling/mainssignalingevent.h"
#include "views/mainssignaling/mainssignalingmain.h"
#include "views/mainssignaling/mainssignalingtrend.h"
#include "widgets/controls/eventswidget.h"
#include "widgets/charts/viftrendchart.h"

#include <cstring>
#include <limits>
#include <memory>

using namespace PageTest;

class TstMainsSignaling : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void tableShowsCarriersInPercentAndVolts();
    void tableShowsTheFrequenciesOfTheCarriers();
    void tableShowsOnlyTheChannelsOfTheWiring_data();
    void tableShowsOnlyTheChannelsOfTheWiring();
    void lostFrequencyIsGreyAndPositive();
    void eachStartShowsEmptyRecords();
    void pagesLiveBeforeTheFirstStart();
    void f4OpensTheTrendAndLeadsBack();
    void f2OpensTheEventsAndF5LeadsBack();

    void longReadingsFitTheirLabels();
    void trendQuantityCycles();
    void trendShowsThePercentOfItsSeries();
    void trendFlagsFollowTheWiring_data();
    void trendFlagsFollowTheWiring();

    void withoutEventsTheCounterShowsZeroOfZero();
    void upAndDownScrollTheEvents();
    void savedRecordHoldsTheEvents();

private:
    MainsSignalingMain *mainPage() { return m_page->findChild<MainsSignalingMain *>(); }
    MainsSignalingTrend *trendPage() { return m_page->findChild<MainsSignalingTrend *>(); }
    MainsSignalingEvent *eventPage() { return m_page->findChild<MainsSignalingEvent *>(); }
    void start(int joinMode);
    void addEvents(int count);

    std::unique_ptr<MainsSignaling> m_page;
};

void TstMainsSignaling::start(int joinMode)
{
    setUpMeasurement(joinMode);
    beginRun(*m_page);
    for (int c = 0; c < 4; ++c) {
        live().mainsSignal.signal1[c] = 0.0125f + 0.01f * float(c);
        live().mainsSignal.signal1Mean[c] = 2.5f + float(c);
        live().mainsSignal.signal2[c] = 0.05f;
        live().mainsSignal.signal2Mean[c] = 11.5f;
        live().mainsSignal.rms1[c] = 230.0f + float(c);
        live().mainsSignal.rms2[c] = 5.0f + float(c);
    }
    live().mainsSignal.frequency = 50;
    m_page->updateDisplay(nullptr);
}

void TstMainsSignaling::init()
{
    m_page = std::make_unique<MainsSignaling>(liveData());
    openAll(*m_page);
    start(1);
}

void TstMainsSignaling::addEvents(int count)
{
    for (int i = 0; i < count; ++i) {
        PQAEventItem item;
        item.type = EventMainsSignaling;
        item.channel = i % 3;
        item.value = float(i);
        m_page->events().append(item);
    }
}

void TstMainsSignaling::tableShowsCarriersInPercentAndVolts()
{
    QCOMPARE(text(mainPage(), "sig1_t"), QStringLiteral("Sig 1(%)"));
    QCOMPARE(text(mainPage(), "sig2_t"), QStringLiteral("Sig 2(%)"));
    QCOMPARE(text(mainPage(), "sig1mean_t"), QStringLiteral("Sig 1(V)"));
    QCOMPARE(text(mainPage(), "rms1_t"), QString::fromUtf8("Urms\u00bd(V)"));
    QCOMPARE(text(mainPage(), "rms2_t"), QString::fromUtf8("Irms\u00bd(A)"));
    QCOMPARE(text(mainPage(), "sig1_L1"), QStringLiteral("1.25")); // 0.0125 of the nominal voltage
    QCOMPARE(text(mainPage(), "sig1_N"), QStringLiteral("4.25"));
    QCOMPARE(text(mainPage(), "sig1mean_L2"), QStringLiteral("3.50"));
    QCOMPARE(text(mainPage(), "sig2_L3"), QStringLiteral("5.00"));
    QCOMPARE(text(mainPage(), "sig2mean_L3"), QStringLiteral("11.50"));
    QCOMPARE(text(mainPage(), "rms1_L2"), QStringLiteral("231.00"));
    QVERIFY(text(mainPage(), "rms2_N").startsWith(QStringLiteral("8.")));
    QCOMPARE(text(mainPage(), "freq"), QStringLiteral("50.00Hz"));
}

void TstMainsSignaling::tableShowsTheFrequenciesOfTheCarriers()
{
    // Those of the limit set in use, which the processor measures; the settings hold others.
    m_settingConfig_g.setMainsSigFreq1(1350);
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "carriers"), QStringLiteral("1: 1375Hz  2: 285Hz"));
}

void TstMainsSignaling::tableShowsOnlyTheChannelsOfTheWiring_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<QStringList>("headers");
    for (int mode : { 1, 7, 9 })
        QTest::addRow("star %d", mode) << mode << QStringList { "L1", "L2", "L3", "N" };
    for (int mode : { 2, 4, 8, 10 })
        QTest::addRow("delta %d", mode) << mode << QStringList { "L12", "L23", "L31", "" };
    QTest::newRow("1P") << 3 << QStringList { "L1", "", "", "N" };
    QTest::newRow("1P SPLIT") << 5 << QStringList { "L1", "L2", "", "N" };
    QTest::newRow("1P IT") << 6 << QStringList { "L12", "", "", "" };
}

void TstMainsSignaling::tableShowsOnlyTheChannelsOfTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(QStringList, headers);
    start(joinMode);
    const char *const suffixes[] = { "L1", "L2", "L3", "N" };
    for (int c = 0; c < 4; ++c) {
        QCOMPARE(text(mainPage(), QStringLiteral("header_%1").arg(c + 1)), headers[c]);
        for (const char *row : { "sig1", "sig1mean", "sig2", "sig2mean", "rms1", "rms2" })
            QCOMPARE(text(mainPage(), QStringLiteral("%1_%2").arg(row, suffixes[c])).isEmpty(), headers[c].isEmpty());
    }
}

void TstMainsSignaling::lostFrequencyIsGreyAndPositive()
{
    live().mainsSignal.frequency = -49.5f;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "freq"), QStringLiteral("49.50Hz"));
    QCOMPARE(sheet(mainPage(), "freq"), QStringLiteral("color: #808080;"));
}

void TstMainsSignaling::eachStartShowsEmptyRecords()
{
    addEvents(2);
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "sig1_L1"), QStringLiteral("0.00"));
    QCOMPARE(text(mainPage(), "rms1_L2"), QStringLiteral("0.00"));
    QVERIFY(m_page->events().isEmpty());
}

void TstMainsSignaling::pagesLiveBeforeTheFirstStart()
{
    renewLive();
    MainsSignaling page(liveData());
    openAll(page);
    page.updateDisplay(nullptr);
    page.retranslateUi();
    press(page.findChild<MainsSignalingTrend *>(), F1, 5);
    page.showPage(MainsSignaling::Events);
}

void TstMainsSignaling::f4OpensTheTrendAndLeadsBack()
{
    press(mainPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(trendPage()));
    press(trendPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
}

void TstMainsSignaling::f2OpensTheEventsAndF5LeadsBack()
{
    QCOMPARE(text(mainPage(), "btn_f2"), QStringLiteral("Events"));
    press(mainPage(), F2);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(eventPage()));
    press(eventPage(), F5);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
}

void TstMainsSignaling::longReadingsFitTheirLabels()
{
    // Half as much again as the largest full scale in one unit.
    for (const char *row : { "sig1_%1", "sig1mean_%1", "sig2_%1", "sig2mean_%1", "rms1_%1", "rms2_%1" }) {
        for (const char *suffix : { "L1", "L2", "L3", "N" })
            QVERIFY(holds(mainPage(), QString(row).arg(suffix), QStringLiteral("15000.00")));
    }
    for (int c = 1; c <= 4; ++c) {
        QVERIFY(holds(trendPage(), QStringLiteral("D%1_Caption").arg(c), QStringLiteral("L31:"), 4));
        QVERIFY(holds(trendPage(), QStringLiteral("D%1_Value").arg(c), QStringLiteral("15000.00")));
    }
}

void TstMainsSignaling::trendQuantityCycles()
{
    const QStringList captions { "Sig 1(%)", "Sig 2(%)", QString::fromUtf8("Urms\u00bd(V)"),
                                 QString::fromUtf8("Irms\u00bd(A)"), "Sig 1(%)" };
    for (const QString &caption : captions) {
        QCOMPARE(text(trendPage(), "type"), caption);
        press(trendPage(), F1);
    }
    QCOMPARE(named<VifTrendChart>(trendPage(), "trend")->fullScale(), QStringList({ "10m", "8m", "6m", "4m", "2m" }));
}

void TstMainsSignaling::trendShowsThePercentOfItsSeries()
{
    QCOMPARE(text(trendPage(), "D2_Value"), QStringLiteral("2.25"));
    press(trendPage(), F1);
    QCOMPARE(text(trendPage(), "D1_Value"), QStringLiteral("5.00"));
    press(trendPage(), F1);
    QCOMPARE(text(trendPage(), "D3_Value"), QStringLiteral("232.00"));
    press(trendPage(), F1);
    QVERIFY(text(trendPage(), "D1_Value").startsWith(QStringLiteral("5.")));
}

void TstMainsSignaling::trendFlagsFollowTheWiring_data()
{
    addWirings("flags", { 15, 7, 9, 7, 11, 1, 15, 7, 15, 7 });
}

void TstMainsSignaling::trendFlagsFollowTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(int, flags);
    start(joinMode);
    QCOMPARE(named<VifTrendChart>(trendPage(), "trend")->flags(), flags);
}

void TstMainsSignaling::withoutEventsTheCounterShowsZeroOfZero()
{
    press(mainPage(), F2);
    QCOMPARE(text(eventPage(), "events_t"), QStringLiteral("EVENTS :"));
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("0/0"));
    press(eventPage(), Up);
    press(eventPage(), Down);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("0/0"));
}

void TstMainsSignaling::upAndDownScrollTheEvents()
{
    addEvents(20);
    press(mainPage(), F2);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("1/20"));
    press(eventPage(), Down, 14);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("15/20"));
    press(eventPage(), Up);
    QCOMPARE(text(eventPage(), "events_count"), QStringLiteral("14/20"));
    QCOMPARE(named<EventsWidget>(eventPage(), "events")->lineTexts(0).value(1), QStringLiteral("L1 MSIG"));
}

void TstMainsSignaling::savedRecordHoldsTheEvents()
{
    QCOMPARE(m_page->pqaData().size(), 8);
    addEvents(3);
    const QByteArray bytes = m_page->pqaData();
    QCOMPARE(bytes.size(), 8 + 3 * 48);
    qint32 word[2];
    std::memcpy(word, bytes.constData(), sizeof word);
    QCOMPARE(word[0], 0);
    QCOMPARE(word[1], 3 * 48);
}

PAGE_TEST_MAIN(TstMainsSignaling)
#include "tst_mainssignaling.moc"
