#include "setupcase.h"

#include "model/livedata.h"

#include <cmath>

using namespace PageTest;
using SetupCase::Keys;

/// Choice of the nominal voltage by two tables, of which the wiring makes one active.
class TstSetupVnom : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SetupCase::makeDevice(); }
    void init() { SetupCase::restoreSettings(); }
    void tablesShowAllVoltages();
    void wiringDisablesTheOtherTable_data();
    void wiringDisablesTheOtherTable();
    void selectionStopsAtBothEndsOfTheTable();
    void okStoresSelectionAndCustomOfTheActiveTable();
    void okInADeltaWiringStoresTheLineTable();
    void cancelLeavesTheFileAsItWas();
    void customChangesOnItsOwnFieldOnly();
    void customStopsAtOneVolt();
    void customStopsAtItsUpperBound();
    void heldKeyChangesTheCustomInGrowingSteps();
    void extremeCustomsLeaveEverythingDerivedFinite_data();
    void extremeCustomsLeaveEverythingDerivedFinite();

private:
    static QString field(const SetupPage &setup, const char *table, int number)
    {
        return PageTest::text(setup.currentPage(), QString::fromLatin1(table) + QString::number(number));
    }
    static bool isEnabled(const SetupPage &setup, const char *table)
    {
        bool any = false, all = true;
        for (int i = 1; i <= 9; ++i) {
            const bool on = setup.currentPage()
                                ->findChild<QLabel *>(QString::fromLatin1(table) + QString::number(i))
                                ->isEnabled();
            any |= on;
            all &= on;
        }
        if (any != all)
            qFatal("a table is active as a whole");
        return all;
    }
    static void open(SetupPage &setup)
    {
        setup.enter();
        SetupCase::press(setup, { F2 });
    }
};

void TstSetupVnom::tablesShowAllVoltages()
{
    SetupPage setup(liveData());
    open(setup);
    const int star[] = { 58, 100, 120, 139, 230, 277, 347, 400 };
    const int delta[] = { 100, 173, 208, 240, 398, 480, 600, 693 };
    for (int i = 0; i < 8; ++i) {
        QCOMPARE(field(setup, "star", i + 1), QStringLiteral("%1 V").arg(star[i]));
        QCOMPARE(field(setup, "delta", i + 1), QStringLiteral("%1 V").arg(delta[i]));
    }
    QCOMPARE(field(setup, "star", 9), QStringLiteral("Custom: 500 V"));
    QCOMPARE(field(setup, "delta", 9), QStringLiteral("Custom: 866 V"));
}

void TstSetupVnom::wiringDisablesTheOtherTable_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("star");
    const bool star[] = { true, false, true, false, true, false, true, false, true, false };
    for (int mode = 1; mode <= 10; ++mode)
        QTest::addRow("wiring %d", mode) << mode << star[mode - 1];
}

void TstSetupVnom::wiringDisablesTheOtherTable()
{
    QFETCH(int, mode);
    QFETCH(bool, star);
    SetupPage setup(liveData());
    open(setup);
    m_settingConfig_g.setJoinMode(mode); // the page follows when it is opened again
    SetupCase::press(setup, { F5, F2 });
    QCOMPARE(isEnabled(setup, "star"), star);
    QCOMPARE(isEnabled(setup, "delta"), !star);
    SetupCase::press(setup, { Right, F4 });
    QCOMPARE(m_settingConfig_g.getNomVoltStarSelect(), star ? 6 : 5);
    QCOMPARE(m_settingConfig_g.getNomVoltDeltaSelect(), star ? 5 : 6);
}

void TstSetupVnom::selectionStopsAtBothEndsOfTheTable()
{
    SetupPage setup(liveData());
    open(setup);
    SetupCase::press(setup, Keys(12, Left));
    SetupCase::press(setup, { F4 });
    QCOMPARE(m_settingConfig_g.getNomVoltStarSelect(), 1);
    open(setup);
    SetupCase::press(setup, Keys(12, Right));
    SetupCase::press(setup, { F4 });
    QCOMPARE(m_settingConfig_g.getNomVoltStarSelect(), 9);
    QCOMPARE(SetupCase::text(setup, "vnom"), QStringLiteral("500 V"));
}

void TstSetupVnom::okStoresSelectionAndCustomOfTheActiveTable()
{
    SetupPage setup(liveData());
    open(setup);
    SetupCase::press(setup, { Right, Right, Right, Right, Up, Up, Up, Down, F4 });
    const QList<QByteArray> file = SetupCase::settingFile().split('\n');
    QVERIFY(file.contains("NOM_VOLT_SELECT=9"));
    QVERIFY(file.contains("NOM_VOLT_CUSTOM=502"));
    QVERIFY(!SetupCase::settingFile().contains("NOM_VOLT_LINE")); // the other table stands as it did
    QCOMPARE(m_settingConfig_g.getNomVolt(), 502);
}

void TstSetupVnom::okInADeltaWiringStoresTheLineTable()
{
    m_settingConfig_g.setJoinMode(SettingConfig::Join3PDelta);
    SetupPage setup(liveData());
    open(setup);
    SetupCase::press(setup, { Right, Right, Right, Right, Down, F4 });
    const QList<QByteArray> file = SetupCase::settingFile().split('\n');
    QVERIFY(file.contains("NOM_VOLT_LINE_SELECT=9"));
    QVERIFY(file.contains("NOM_VOLT_LINE_CUSTOM=865"));
    QCOMPARE(m_settingConfig_g.getNomVoltStarSelect(), 5);
    QCOMPARE(m_settingConfig_g.getNomVolt(), 865);
}

void TstSetupVnom::cancelLeavesTheFileAsItWas()
{
    SetupPage setup(liveData());
    open(setup);
    const QByteArray file = SetupCase::settingFile();
    SetupCase::press(setup, { Right, Right, Right, Right, Up, Up, F5 });
    QCOMPARE(SetupCase::settingFile(), file);
    QCOMPARE(m_settingConfig_g.getNomVolt(), 230);
    SetupCase::press(setup, { F2 });
    QCOMPARE(field(setup, "star", 9), QStringLiteral("Custom: 500 V"));
}

void TstSetupVnom::customChangesOnItsOwnFieldOnly()
{
    SetupPage setup(liveData());
    open(setup);
    SetupCase::press(setup, { Up, Down, Down });
    QCOMPARE(field(setup, "star", 9), QStringLiteral("Custom: 500 V"));
    QVERIFY(setup.currentPage()->findChild<QLabel *>("hint")->isHidden());
    SetupCase::press(setup, { Right, Right, Right, Right });
    QVERIFY(!setup.currentPage()->findChild<QLabel *>("hint")->isHidden());
}

void TstSetupVnom::customStopsAtOneVolt()
{
    m_settingConfig_g.setNomVoltStarSelect(9);
    m_settingConfig_g.setNomVoltStarCustom(3);
    SetupPage setup(liveData());
    open(setup);
    SetupCase::press(setup, { Down, Down, Down, Down });
    QCOMPARE(field(setup, "star", 9), QStringLiteral("Custom: 1 V"));
    SetupCase::hold(setup, Down, 20);
    QCOMPARE(field(setup, "star", 9), QStringLiteral("Custom: 1 V"));
    SetupCase::press(setup, { F4 });
    QCOMPARE(m_settingConfig_g.getNomVolt(), 1);
}

void TstSetupVnom::customStopsAtItsUpperBound()
{
    m_settingConfig_g.setJoinMode(2);
    m_settingConfig_g.setNomVoltDeltaSelect(9);
    m_settingConfig_g.setNomVoltDeltaCustom(999990);
    SetupPage setup(liveData());
    open(setup);
    SetupCase::hold(setup, Up, 20);
    QCOMPARE(field(setup, "delta", 9), QStringLiteral("Custom: 999999 V"));
    SetupCase::press(setup, { Up, F4 });
    QCOMPARE(m_settingConfig_g.getNomVolt(), 999999);
    QCOMPARE(SetupCase::text(setup, "vnom"), QStringLiteral("999999 V"));
}

void TstSetupVnom::heldKeyChangesTheCustomInGrowingSteps()
{
    m_settingConfig_g.setNomVoltStarSelect(9);
    SetupPage setup(liveData());
    open(setup);
    const auto value = [&] { return field(setup, "star", 9).section(QLatin1Char(' '), 1, 1).toInt(); };
    QList<int> taken;
    int before = value();
    PageTest::hold(setup.currentPage(), Up, 0);
    auto *repeat = setup.currentPage()->findChild<KeyRepeat *>();
    for (int tick = 0; tick < 30; ++tick) {
        if (!taken.contains(value() - before))
            taken << value() - before;
        before = value();
        repeat->tick();
    }
    PageTest::release(setup.currentPage(), Up);
    QCOMPARE(taken, (QList<int> { 1, 5, 10, 20 }));
}

void TstSetupVnom::extremeCustomsLeaveEverythingDerivedFinite_data()
{
    QTest::addColumn<int>("volts");
    for (int volts : { 1, 999999 })
        QTest::addRow("%d V", volts) << volts;
}

void TstSetupVnom::extremeCustomsLeaveEverythingDerivedFinite()
{
    QFETCH(int, volts);
    m_settingConfig_g.setNomVoltStarCustom(volts);
    m_settingConfig_g.setNomVoltDeltaCustom(volts);
    m_settingConfig_g.setNomVoltStarSelect(9);
    m_settingConfig_g.setNomVoltDeltaSelect(9);
    for (int ratio : { 1, 99999 }) {
        m_settingConfig_g.setRatioVFenzi(ratio);
        for (int mode = 1; mode <= 10; ++mode) {
            m_settingConfig_g.setJoinMode(mode);
            const Derived &derived = m_settingConfig_g.derived();
            QCOMPARE(derived.nominalVolt, volts);
            QVERIFY(std::isfinite(derived.realNominalVolt) && derived.realNominalVolt > 0);
            QVERIFY(derived.voltIndex >= 0 && derived.voltIndex <= 3);
            QCOMPARE(derived.voltIndex, volts == 1 ? 0 : 3);
            for (int i = 0; i < 12; ++i)
                QVERIFY(std::isfinite(derived.scales.all()[i]));
        }
    }
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, { F2, F5, F1, F5 });
    QCOMPARE(SetupCase::text(setup, "vnom"), QStringLiteral("%1 V").arg(volts));
}

PAGE_TEST_MAIN(TstSetupVnom)
#include "tst_setupvnom.moc"
