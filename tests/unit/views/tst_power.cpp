#include "settings/config_data.h"
#include "model/displayrecords.h"
#include "pagetest.h"
#include "views/power/powen.h"
#include "views/power/powermain.h"
#include "views/power/powertrendpage.h"
#include "widgets/controls/softkeybuttons.h"
#include "widgets/charts/viftrendchart.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <cstring>
#include <memory>

using namespace PageTest;

class TstPower : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void eachStartShowsEmptyRecords();
    void tableShowsEveryRow();
    void columnsFollowTheWiring_data();
    void columnsFollowTheWiring();
    void resetKeyWorksOnlyWithThePanelShown();
    void panelShowsEnergiesAndRunningTime();
    void reactiveFlagFollowsTheSign_data();
    void reactiveFlagFollowsTheSign();
    void longReadingsFitTheirLabels_data();
    void longReadingsFitTheirLabels();
    void trendCycleHasEightQuantities();
    void trendCaptionsEndBeforeTheirValues();
    void trendFlagsShowTheTotalInTheFourthBand();
    void savedRecordHoldsWordsAndTrends();
    void pagesLiveBeforeTheFirstStart();

private:
    PowerMain *mainPage() { return m_page->findChild<PowerMain *>(); }
    PowerTrendPage *trendPage() { return m_page->findChild<PowerTrendPage *>(); }
    QWidget *panel() { return mainPage()->findChild<QWidget *>("energy"); }

    std::unique_ptr<powen> m_page;
};

void TstPower::init()
{
    m_page = openedPage<powen>();
}

void TstPower::eachStartShowsEmptyRecords()
{
    live().power.row[0].factor = 0.5f;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "TPF_L1"), QStringLiteral("0.50"));
    beginRun(*m_page);
    QCOMPARE(text(mainPage(), "TPF_L1"), QStringLiteral("0.00"));
}

void TstPower::tableShowsEveryRow()
{
    // 230 V times 10000 uV/A is 2.3 million: powers are shown in kW.
    QCOMPARE(text(mainPage(), "P_t"), QStringLiteral("P(kW)"));
    QCOMPARE(text(mainPage(), "S_t"), QStringLiteral("S(kVA)"));
    QCOMPARE(text(mainPage(), "Q_t"), QStringLiteral("Q1(kvar)"));
    QCOMPARE(text(mainPage(), "TPF_t"), QStringLiteral("PF"));
    QCOMPARE(text(mainPage(), "DPF_t"), QStringLiteral("cosΦ"));
    QCOMPARE(text(mainPage(), "tan_t"), QStringLiteral("tanΦ"));
    QCOMPARE(text(mainPage(), "Urms_t"), QStringLiteral("Urms(V)"));
    for (int c = 0; c < 4; ++c)
        live().power.row[c] = { 1230.0f + 1000 * c, -2340.0f, 3450.0f, 0.95f, 0.97f, 0.31f };
    live().power.voltage[2] = 231.0f;
    live().power.current[0] = 2.5f;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "P_L1"), QStringLiteral("1.23"));
    QCOMPARE(text(mainPage(), "P_Tot"), QStringLiteral("4.23"));
    QCOMPARE(text(mainPage(), "Q_L2"), QStringLiteral("-2.34"));
    QCOMPARE(text(mainPage(), "S_L3"), QStringLiteral("3.45"));
    QCOMPARE(text(mainPage(), "TPF_Tot"), QStringLiteral("0.95"));
    QCOMPARE(text(mainPage(), "DPF_L1"), QStringLiteral("0.97"));
    QCOMPARE(text(mainPage(), "tan_Tot"), QStringLiteral("0.31"));
    QCOMPARE(text(mainPage(), "Urms_L3"), QStringLiteral("231.00"));
    QVERIFY(text(mainPage(), "Irms_L1").startsWith("2.5"));
}

void TstPower::columnsFollowTheWiring_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<QStringList>("headers");
    for (int mode : { 1, 7, 9 })
        QTest::addRow("star %d", mode) << mode << QStringList { "L1", "L2", "L3", "Total" };
    for (int mode : { 2, 4, 8, 10 })
        QTest::addRow("delta %d", mode) << mode << QStringList { "L12", "L23", "L31", "Total" };
    QTest::newRow("1P") << 3 << QStringList { "L1", "", "", "Total" };
    QTest::newRow("1P SPLIT") << 5 << QStringList { "L1", "L2", "", "Total" };
    QTest::newRow("1P IT") << 6 << QStringList { "L12", "", "", "Total" };
}

void TstPower::columnsFollowTheWiring()
{
    QFETCH(int, joinMode);
    QFETCH(QStringList, headers);
    m_page->updateDisplay(nullptr);
    m_settingConfig_g.setJoinMode(joinMode);
    beginRun(*m_page);
    m_page->updateDisplay(nullptr);
    const char *const columns[] = { "L1", "L2", "L3", "Tot" };
    for (int c = 0; c < 4; ++c) {
        QCOMPARE(text(mainPage(), QStringLiteral("header_%1").arg(c + 1)), headers[c]);
        for (const char *row : { "P", "S", "Q", "TPF", "tan" })
            QCOMPARE(text(mainPage(), QStringLiteral("%1_%2").arg(row, columns[c])).isEmpty(), headers[c].isEmpty());
        QCOMPARE(text(mainPage(), QStringLiteral("kwh_%1").arg(c + 1)).isEmpty(), headers[c].isEmpty());
    }
}

void TstPower::resetKeyWorksOnlyWithThePanelShown()
{
    QSignalSpy reset(m_page.get(), &powen::resetEnergy);
    QCOMPARE(text(mainPage(), "btn_f2"), QString());
    press(mainPage(), F2);
    QCOMPARE(reset.count(), 0);
    QVERIFY(panel()->isHidden());
    press(mainPage(), F3);
    QVERIFY(!panel()->isHidden());
    QCOMPARE(text(mainPage(), "btn_f2"), QStringLiteral("Reset"));
    QCOMPARE(mainPage()->findChild<EnergyBtn *>("btn_f3")->btnFlag(), 1);
    press(mainPage(), F2);
    QCOMPARE(reset.count(), 1);
    press(mainPage(), F3);
    QVERIFY(panel()->isHidden());
    QCOMPARE(mainPage()->findChild<EnergyBtn *>("btn_f3")->btnFlag(), 0);
    press(mainPage(), F2);
    QCOMPARE(reset.count(), 1);
}

void TstPower::panelShowsEnergiesAndRunningTime()
{
    live().power.activeEnergy[0] = 1234.5f;
    live().power.apparentEnergy[1] = 2000.0f;
    live().power.reactiveEnergy[3] = -3000.0f;
    live().power.hours = 101;
    live().power.minutes = 2;
    live().power.seconds = 3;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(mainPage(), "energy_t"), QStringLiteral("E(kWh)"));
    QCOMPARE(text(mainPage(), "kwh"), QStringLiteral("kWh"));
    QCOMPARE(text(mainPage(), "kvarh"), QStringLiteral("kvarh"));
    QCOMPARE(text(mainPage(), "kwh_1"), QStringLiteral("1.234")); // 1.2345 as a float lies below
    QCOMPARE(text(mainPage(), "kvah_2"), QStringLiteral("2.000"));
    QCOMPARE(text(mainPage(), "kvarh_4"), QStringLiteral("-3.000"));
    QCOMPARE(text(mainPage(), "energy_time"), QStringLiteral("101:02:03"));
}

void TstPower::reactiveFlagFollowsTheSign_data()
{
    QTest::addColumn<float>("reactive");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("exactly zero") << 0.0f << QString();
    QTest::newRow("a trace, capacitive") << -1e-5f << QString();
    QTest::newRow("a trace, inductive") << 1e-5f << QString();
    QTest::newRow("capacitive") << -2e-5f << QStringLiteral("background-image: url(:/capacitance);");
    QTest::newRow("inductive") << 2e-5f << QStringLiteral("background-image: url(:/incuctor);");
}

void TstPower::reactiveFlagFollowsTheSign()
{
    QFETCH(float, reactive);
    QFETCH(QString, sheet);
    live().power.row[3].reactive = reactive;
    m_page->updateDisplay(nullptr);
    QCOMPARE(mainPage()->findChild<QLabel *>("q_flag4")->styleSheet(), sheet);
    QCOMPARE(mainPage()->findChild<QLabel *>("q_flag1")->styleSheet(), QString());
}

void TstPower::longReadingsFitTheirLabels_data()
{
    QTest::addColumn<QString>("names"); // %1: the column
    QTest::addColumn<QString>("reading");
    // The unit is chosen so that the full scale of a phase has four places; the total is three times as much.
    for (const char *row : { "P_%1", "S_%1", "Q_%1" })
        QTest::newRow(row) << QString(row) << QStringLiteral("-29999.97");
    QTest::newRow("tan_%1") << QStringLiteral("tan_%1") << QStringLiteral("9999.00");
    QTest::newRow("Urms_%1") << QStringLiteral("Urms_%1") << QStringLiteral("15000.00");
    // 30 days at three times full scale.
    for (const char *row : { "kwh_%1", "kvah_%1", "kvarh_%1" })
        QTest::newRow(row) << QString(row) << QStringLiteral("21600000.000");
}

void TstPower::longReadingsFitTheirLabels()
{
    QFETCH(QString, names);
    QFETCH(QString, reading);
    const QStringList columns
        = names.startsWith('k') ? QStringList { "1", "2", "3", "4" } : QStringList { "L1", "L2", "L3", "Tot" };
    for (const QString &column : columns) {
        if (names != "Urms_%1" || column != "Tot")
            QVERIFY(holds(mainPage(), names.arg(column), reading));
    }
}

void TstPower::trendCaptionsEndBeforeTheirValues()
{
    for (int c = 1; c <= 4; ++c) {
        QVERIFY(holds(trendPage(), QStringLiteral("D%1_Caption").arg(c), QStringLiteral("L31 :"), 4));
        QVERIFY(holds(trendPage(), QStringLiteral("D%1_Value").arg(c), QStringLiteral("-29999.97")));
    }
}

void TstPower::trendCycleHasEightQuantities()
{
    press(mainPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(trendPage()));
    const QStringList captions { "P(kW)", "S(kVA)", "Q1(kvar)", "PF", "cosΦ", "tanΦ", "U rms(V)", "I rms(A)" };
    for (int i = 0; i < 8; ++i) {
        QCOMPARE(text(trendPage(), "type"), captions[i]);
        QCOMPARE(trendPage()->type(), 1 << i);
        press(trendPage(), F1);
    }
    QCOMPARE(trendPage()->type(), 1);
    press(trendPage(), F4);
    QCOMPARE(m_page->currentPage(), static_cast<LivePage *>(mainPage()));
}

void TstPower::trendFlagsShowTheTotalInTheFourthBand()
{
    auto *chart = static_cast<VifTrendChart *>(trendPage()->findChild<QWidget *>("trend_power"));
    QCOMPARE(chart->flags(), 7 | 64);
    live().power.row[3].active = 9000.0f;
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(trendPage(), "D4_Caption"), QStringLiteral("T :"));
    QCOMPARE(text(trendPage(), "D1_Caption"), QStringLiteral("L1 :"));
    live().power.trend[0].series[0].append(1.0f);
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(trendPage(), "D4_Value"), QStringLiteral("9.00"));
    for (int i = 0; i < 6; ++i)
        press(trendPage(), F1);
    QCOMPARE(chart->flags(), 7); // voltages have no total
    QCOMPARE(text(trendPage(), "D4_Caption"), QString());
    QCOMPARE(text(trendPage(), "D4_Value"), QString());
    m_settingConfig_g.setJoinMode(5);
    beginRun(*m_page);
    QCOMPARE(chart->flags(), 3);
}

void TstPower::savedRecordHoldsWordsAndTrends()
{
    live().power.row[3].tangent = 0.5f; // word 42
    live().power.seconds = 59; // word 47
    for (int c = 0; c < 4; ++c) {
        for (int i = 0; i < 5; ++i) {
            live().power.trend[0].series[c].append(float(10 * c + i));
            live().power.trend[7].series[c].append(float(100 * c + i));
        }
    }
    m_page->updateDisplay(nullptr);
    const QByteArray bytes = m_page->pqaData();
    QCOMPARE(bytes.size(), 76996);
    const auto word = [&bytes](int index) {
        float value;
        std::memcpy(&value, bytes.constData() + 4 * index, 4);
        return value;
    };
    const auto integer = [&bytes](int index) {
        qint32 value;
        std::memcpy(&value, bytes.constData() + 4 * index, 4);
        return value;
    };
    QCOMPARE(word(19 + 6 * 3 + 5), 0.5f);
    QCOMPARE(integer(47), 59);
    QCOMPARE(integer(48), 5);
    QCOMPARE(word(49 + 600 * 3 + 4), 34.0f); // P of the total, fifth point
    QCOMPARE(word(49 + 600 * (7 * 4 + 2) + 1), 201.0f); // I rms of L3
}

void TstPower::pagesLiveBeforeTheFirstStart()
{
    renewLive();
    powen page(liveData());
    openAll(page);
    page.updateDisplay(nullptr);
    press(page.findChild<PowerTrendPage *>(), F1);
    QCOMPARE(page.pqaData().size(), 76996);
}

PAGE_TEST_MAIN(TstPower)
#include "tst_power.moc"
