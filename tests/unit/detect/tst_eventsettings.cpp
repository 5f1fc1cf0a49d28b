#include "settings/config_data.h"
#include "detect/powerevents.h"

#include <QTest>

#include <cmath>

class TstEventSettings : public QObject
{
    Q_OBJECT

private slots:
    void levelsFollowTheLimitSet();
    void lowerVoltageThresholdAddsItsPercentage();
    void voltageEventRunsAtAnyVoltageButTheThreshold();
    void inrushLevelIsAmpsTimesPercentTimesRatio();
    void ratioWithoutDenominatorCountsAsOne();
    void nominalsComeFromTheRecordThatIsGiven();
    void detectorLatchesTheActiveSet();
};

namespace {

constexpr EventNominals kNominals = { 230.0f, 50.0f, 1.25, 200, 20, 1, 1 };

monitor_limit en50160()
{
    MonitorLimits2 set;
    set.initEN50160();
    return set.limit();
}

bool isNear(double value, double expected)
{
    return std::fabs(value - expected) < 1e-4;
}

} // namespace

void TstEventSettings::levelsFollowTheLimitSet()
{
    const EventSettings s = eventSettings(en50160(), kNominals);
    QVERIFY(isNear(s.swellLevel, 253.0)); // 230 V x 110 %
    QVERIFY(isNear(s.dipLevel, 207.0)); // 90 %
    QVERIFY(isNear(s.interruptionLevel, 2.3)); // 1 %
    QVERIFY(isNear(s.swellHysteresis, 4.6)); // 2 %
    QVERIFY(isNear(s.dipHysteresis, 4.6));
    QVERIFY(isNear(s.interruptionHysteresis, 4.6));
    QVERIFY(isNear(s.frequencyUpper, 50.5)); // 1 %
    QVERIFY(isNear(s.frequencyLower, 49.5));
    QCOMPARE(s.unbalanceLimit, 2.0f);
    QCOMPARE(s.flickerLimit, 1.0f);
    QCOMPARE(s.harmonicLimit[0], 8.0f); // THD
    QCOMPARE(s.harmonicLimit[4], 6.0f); // order 5
    QCOMPARE(s.harmonicLimit[24], 1.5f); // order 25
    QCOMPARE(s.rvc.frequency, 50);
    QCOMPARE(s.rvc.seconds, 1);
    QCOMPARE(s.rvc.band, 0.2f);
    QCOMPARE(s.rvc.settleFactor, 0.2f);
    QCOMPARE(s.rvc.minStep, 5.0f);
    QCOMPARE(s.rvc.minRate, 1.0f);
}

void TstEventSettings::lowerVoltageThresholdAddsItsPercentage()
{
    monitor_limit limits = en50160();
    limits.voltage.partialUpper = 10;
    limits.voltage.partialLower = 6;
    const EventSettings s = eventSettings(limits, kNominals);
    QVERIFY(isNear(s.voltageUpper, 253.0));
    QVERIFY(isNear(s.voltageLower, 243.8)); // 230 + 6 %, not 230 - 6 %
}

void TstEventSettings::voltageEventRunsAtAnyVoltageButTheThreshold()
{
    const EventSettings s = eventSettings(en50160(), kNominals);
    QCOMPARE(s.voltageLower, s.voltageUpper);
    PowerEvents events(s, 1);
    events.checkEventVolt(0, { 0, s.voltageUpper });
    QVERIFY(events.getAllEvents().isEmpty());
    events.checkEventVolt(0, { 10, 230.0f });
    QCOMPARE(events.getAllEvents().size(), 1);
    events.checkEventVolt(0, { 20, s.voltageUpper });
    QCOMPARE(events.getAllEvents().at(0).finished, 1);
}

void TstEventSettings::inrushLevelIsAmpsTimesPercentTimesRatio()
{
    EventNominals nominals = kNominals;
    nominals.inrushAmps = 25;
    nominals.inrushThreshold = 200;
    nominals.inrushHysteresis = 2;
    nominals.currentRatioNumerator = 3;
    nominals.currentRatioDenominator = 2;
    const EventSettings s = eventSettings(en50160(), nominals);
    QCOMPARE(s.inrushLevel, 75.0); // 25 A x 2 x 1.5
    QVERIFY(isNear(s.inrushHysteresis, 0.75)); // 25 A x 0.02 x 1.5
}

void TstEventSettings::ratioWithoutDenominatorCountsAsOne()
{
    EventNominals nominals = kNominals;
    nominals.currentRatioNumerator = 4;
    nominals.currentRatioDenominator = 0;
    QCOMPARE(eventSettings(en50160(), nominals).inrushLevel, 10.0); // 1.25 A x 2 x 4
}

void TstEventSettings::nominalsComeFromTheRecordThatIsGiven()
{
    SettingValues values {};
    values.inrushNomAmps = 2.5;
    values.inrushThreshold = 150;
    values.inrushHysteresis = 4;
    Derived derived;
    derived.realNominalVolt = 11000.0f;
    derived.nominalFrequency = 60.0;
    derived.ratioI = { 200, 5 };
    const EventNominals nominals = eventNominals(values, derived);
    const EventSettings settings = eventSettings(en50160(), nominals);
    QVERIFY(isNear(double(settings.dipLevel), 9900.0)); // 90 percent
    QCOMPARE(settings.nominalFrequency, 60.0f);
    QCOMPARE(settings.inrushLevel, 150.0); // 2.5 A x 1.5 x 40
    QCOMPARE(settings.inrushHysteresis, 4.0);
}

void TstEventSettings::detectorLatchesTheActiveSet()
{
    m_limits_g.changeActiveLimits(QStringLiteral("EN50160"));
    EventList list;
    PowerEvents before(list);
    m_limits_g.changeActiveLimits(QStringLiteral("GOST32144"));
    PowerEvents after(list);
    m_limits_g.changeActiveLimits(QStringLiteral("EN50160"));
    const double volt = double(m_settingConfig_g.getRealNominalVolt());
    QVERIFY(isNear(before.settings().interruptionLevel, volt * 0.01));
    QVERIFY(isNear(after.settings().interruptionLevel, volt * 0.05));
}

QTEST_GUILESS_MAIN(TstEventSettings)
#include "tst_eventsettings.moc"
