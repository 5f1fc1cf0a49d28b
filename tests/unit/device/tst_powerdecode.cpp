#include "aggregationcase.h"
#include "settings/config_data.h"
#include "device/datatypes.h"

#include <QTest>
#include <cmath>
#include <memory>

/// Sequences, angles, powers by wiring and mains signals, with values worked out by hand. Scales are 1.
class TstPowerDecode : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void sequencesOfEitherRotationArePositive_data();
    void sequencesOfEitherRotationArePositive();
    void sequenceRatios_data();
    void sequenceRatios();
    void anglesLieBehindTheL1Voltage();
    void powerOfStarWirings_data();
    void powerOfStarWirings();
    void apparentTotalIsTheRootOfTheSums();
    void powerOfLineWirings_data();
    void powerOfLineWirings();
    void lineWiringsKeepTheReactivePowerOfTheSequences();
    void powerOfSinglePhaseWirings_data();
    void powerOfSinglePhaseWirings();
    void powerOfSplitPhase();
    void unknownWiringHasThePowersOfAStar();
    void withoutActivePowerTheTangentIs9999();
    void mainsSignalsInVoltsAndOfTheNominal();

private:
    void decode(const Payload &payload)
    {
        *m_record = {};
        DataTypes::datagramAggregation(m_record.get(), payload.data(), { m_scales, m_settingConfig_g.derived() });
    }
    ScaleTable m_scales; // of 1, unless a test sets others
    std::unique_ptr<__datagram_aggregation> m_record = std::make_unique<__datagram_aggregation>();
};

void TstPowerDecode::init()
{
    if (m_settingConfig_g.getJoinMode() != 1)
        m_settingConfig_g.setJoinMode(1);
    m_scales = ScaleTable();
}

void TstPowerDecode::sequencesOfEitherRotationArePositive_data()
{
    QTest::addColumn<float>("step"); // degrees from L1 to L2
    QTest::newRow("L1 L2 L3") << -120.0f;
    QTest::newRow("L1 L3 L2") << 120.0f;
}

void TstPowerDecode::sequencesOfEitherRotationArePositive()
{
    QFETCH(float, step);
    Payload payload(Link::kAggregationWords);
    for (int c = 0; c < 3; ++c)
        payload.setChannel(c, 230, 10, 0, step * kDegree * float(c), step * kDegree * float(c) - 0.5f);
    decode(payload);
    NEAR(m_record->voltageSequence.positive, 230);
    NEAR(m_record->currentSequence.positive, 10);
    QVERIFY(m_record->voltageSequence.negative < 0.001f);
    QVERIFY(m_record->voltageSequence.zero < 0.001f);
    QVERIFY(m_record->voltageSequence.negativeRatio < 0.001f);
}

void TstPowerDecode::sequenceRatios_data()
{
    QTest::addColumn<QVector<float>>("volts");
    QTest::addColumn<QVector<float>>("degrees");
    QTest::addColumn<QVector<float>>("expected"); // positive, negative, ratio, zero, ratio
    using Row = QVector<float>;
    // One phase alone splits into three equal parts.
    QTest::newRow("one phase") << Row { 300, 0, 0 } << Row { 0, 0, 0 } << Row { 100, 100, 100, 100, 100 };
    // (200 + 100 + 100) / 3, (200 - 100) / 3
    QTest::newRow("one phase twice as high")
        << Row { 200, 100, 100 } << Row { 0, -120, 120 } << Row { 133.3333f, 33.33333f, 25, 33.33333f, 25 };
    QTest::newRow("equal phases: only zero sequence")
        << Row { 90, 90, 90 } << Row { 0, 0, 0 } << Row { 0, 0, 0, 90, 100 };
    // 30 |1 + 2 cos 110|, 30 |1 + 2 cos 230|, 30 (1 + 2 cos 10): the zero sequence is 940 percent, held to 100.
    QTest::newRow("nearly equal phases: the ratio is capped")
        << Row { 90, 90, 90 } << Row { 0, -10, -20 } << Row { 9.478791f, 8.567256f, 90.38342f, 89.08847f, 100 };
    QTest::newRow("nothing") << Row { 0, 0, 0 } << Row { 0, 0, 0 } << Row { 0, 0, 0, 0, 0 };
}

void TstPowerDecode::sequenceRatios()
{
    QFETCH(QVector<float>, volts);
    QFETCH(QVector<float>, degrees);
    QFETCH(QVector<float>, expected);
    Payload payload(Link::kAggregationWords);
    for (int c = 0; c < 3; ++c)
        payload.setChannel(c, volts[c], 0, 0, degrees[c] * kDegree, 0);
    decode(payload);
    const SequenceValues values = m_record->voltageSequence;
    QVERIFY(std::fabs(values.positive - expected[0]) < 1e-3f);
    QVERIFY(std::fabs(values.negative - expected[1]) < 1e-3f);
    QVERIFY(std::fabs(values.negativeRatio - expected[2]) < 1e-3f);
    QVERIFY(std::fabs(values.zero - expected[3]) < 1e-3f);
    QVERIFY(std::fabs(values.zeroRatio - expected[4]) < 1e-3f);
}

void TstPowerDecode::anglesLieBehindTheL1Voltage()
{
    decode(balanced(230, 10, 30, 2.0f));
    const float voltage[] = { 0, -120, -240 }, current[] = { -30, -150, -270 };
    for (int c = 0; c < 3; ++c) {
        QVERIFY(std::fabs(m_record->channel[c].voltageAngle - voltage[c]) < 1e-3f);
        QVERIFY(std::fabs(m_record->channel[c].currentAngle - current[c]) < 1e-3f);
        QVERIFY(std::fabs(m_record->channel[c].angleDifference - 30) < 1e-3f);
        QCOMPARE(float(m_record->channel[c].voltageFundamental), 230.0f);
        QCOMPARE(float(m_record->channel[c].currentFundamental), 10.0f);
    }
    decode(balanced(230, 10, -30, 2.0f)); // the current leads: 30 - 360
    QVERIFY(std::fabs(m_record->channel[0].currentAngle + 330) < 1e-3f);
    QVERIFY(std::fabs(m_record->channel[0].angleDifference + 30) < 1e-3f);
}

void TstPowerDecode::powerOfStarWirings_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::newRow("3P WYE") << 1;
    QTest::newRow("3P HIGH LEG") << 7;
    QTest::newRow("2.5-ELEMENT") << 9;
}

void TstPowerDecode::powerOfStarWirings()
{
    QFETCH(int, joinMode);
    m_settingConfig_g.setJoinMode(joinMode);
    decode(balanced(230, 10, 30));
    for (int c = 0; c < 4; ++c) {
        const double rows = c == 3 ? 3 : 1;
        NEAR(m_record->power[c].active, rows * 2300 * 0.8660254);
        NEAR(m_record->power[c].apparent, rows * 2300);
        NEAR(m_record->power[c].reactive, rows * 1150);
        NEAR(m_record->power[c].factor, 0.8660254);
        NEAR(m_record->power[c].fundamentalFactor, 0.8660254);
        NEAR(m_record->power[c].tangent, 0.5773503);
    }
    decode(balanced(230, 10, -150)); // feeds back, capacitive
    NEAR(m_record->power[3].factor, -0.8660254);
    NEAR(m_record->power[3].reactive, -3450);
    NEAR(m_record->power[3].fundamentalFactor, -0.8660254);
    NEAR(m_record->power[3].tangent, 0.5773503);
}

void TstPowerDecode::apparentTotalIsTheRootOfTheSums()
{
    Payload payload(Link::kAggregationWords);
    for (int c = 0; c < 3; ++c)
        payload.setChannel(c, 100.0f * float(c + 1), float(c + 1), 50.0f * float(c + 1), 0, 0);
    decode(payload);
    NEAR(m_record->power[0].apparent, 100);
    NEAR(m_record->power[1].apparent, 400);
    NEAR(m_record->power[2].apparent, 900);
    NEAR(m_record->power[3].apparent, 1400); // root of 140000 * 14
    NEAR(m_record->power[3].active, 300);
    NEAR(m_record->power[3].factor, 300.0 / 1400);
}

void TstPowerDecode::powerOfLineWirings_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::newRow("3P IT") << 2;
    QTest::newRow("3P DELTA") << 4;
    QTest::newRow("3P OPEN LEG") << 8;
    QTest::newRow("2-ELEMENT") << 10;
}

void TstPowerDecode::powerOfLineWirings()
{
    QFETCH(int, joinMode);
    m_settingConfig_g.setJoinMode(joinMode);
    Payload payload = balanced(400, 10, 60);
    payload.set(5, 3000);
    payload.set(5 + 9, 111); // the middle row has no meter
    payload.set(5 + 18, 500);
    decode(payload);
    for (int c = 0; c < 3; ++c) {
        QCOMPARE(float(m_record->power[c].apparent), 0.0f);
        QCOMPARE(float(m_record->power[c].factor), 0.0f);
        NEAR(m_record->power[c].reactive, 4000 * 0.8660254);
        NEAR(m_record->power[c].fundamentalFactor, 0.5);
    }
    const PowerRow total = m_record->power[3];
    NEAR(total.active, 3500);
    NEAR(total.apparent, std::sqrt(3 * 160000.0 * 300 / 3)); // 6928.2
    NEAR(total.reactive, 3 * 4000 * 0.8660254); // of the positive sequences
    NEAR(total.factor, 3500 / 6928.2032);
    NEAR(total.fundamentalFactor, 0.5);
    NEAR(total.tangent, 3 * 4000 * 0.8660254 / 3500);
}

void TstPowerDecode::lineWiringsKeepTheReactivePowerOfTheSequences()
{
    // U12 and U23 only: U+ = 800 / 3. I1 only, 60 degrees behind: I+ = 10 / 3. Q = 3 U+ I+ sin 60.
    Payload payload(Link::kAggregationWords);
    payload.setChannel(0, 400, 10, 0, 0, -60 * kDegree);
    payload.setChannel(1, 400, 0, 0, -120 * kDegree, 0);
    payload.setChannel(2, 0, 0, 0, 120 * kDegree, 0);
    m_settingConfig_g.setJoinMode(4);
    decode(payload);
    NEAR(m_record->power[3].reactive, 3 * (800.0 / 3) * (10.0 / 3) * 0.8660254);
    m_settingConfig_g.setJoinMode(1); // star: the sum of the rows comes last
    decode(payload);
    NEAR(m_record->power[3].reactive, 4000 * 0.8660254);
}

void TstPowerDecode::powerOfSinglePhaseWirings_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::newRow("1P +NEUTRAL") << 3;
    QTest::newRow("1P IT NO NEUTRAL") << 6;
}

void TstPowerDecode::powerOfSinglePhaseWirings()
{
    QFETCH(int, joinMode);
    m_settingConfig_g.setJoinMode(joinMode);
    decode(balanced(230, 10, 30));
    for (int c : { 0, 3 }) {
        NEAR(m_record->power[c].active, 2300 * 0.8660254);
        NEAR(m_record->power[c].apparent, 2300);
        NEAR(m_record->power[c].reactive, 1150);
        NEAR(m_record->power[c].factor, 0.8660254);
        NEAR(m_record->power[c].fundamentalFactor, 0.8660254);
        NEAR(m_record->power[c].tangent, 0.5773503);
    }
    const PowerRow none = {};
    for (int c : { 1, 2 })
        QVERIFY(memcmp(&m_record->power[c], &none, sizeof(none)) == 0);
}

void TstPowerDecode::powerOfSplitPhase()
{
    m_settingConfig_g.setJoinMode(5);
    Payload payload(Link::kAggregationWords);
    payload.setChannel(0, 120, 10, 1000, 0, 0);
    payload.setChannel(1, 120, 20, 2000, 180 * kDegree, 150 * kDegree);
    payload.setChannel(2, 300, 30, 9000, 0, 0); // not part of the wiring
    decode(payload);
    NEAR(m_record->power[0].apparent, 1200);
    NEAR(m_record->power[1].apparent, 2400);
    NEAR(m_record->power[0].reactive, 0);
    NEAR(m_record->power[1].reactive, 1200);
    const PowerRow none = {};
    QVERIFY(memcmp(&m_record->power[2], &none, sizeof(none)) == 0);
    NEAR(m_record->power[3].active, 3000);
    NEAR(m_record->power[3].apparent, std::sqrt(28800.0 * 500)); // 3794.7
    NEAR(m_record->power[3].reactive, 1200);
    // Fundamental active power: 1200 + 2400 cos 30 = 3278.46
    NEAR(m_record->power[3].fundamentalFactor, 3278.461 / std::hypot(3278.461, 1200.0));
}

void TstPowerDecode::unknownWiringHasThePowersOfAStar()
{
    const Payload payload = balanced(230, 10, 60);
    Derived derived = m_settingConfig_g.derived();
    derived.channels = nullptr;
    *m_record = {};
    DataTypes::datagramAggregation(m_record.get(), payload.data(), { m_scales, derived });
    for (int row = 0; row < 3; ++row) {
        NEAR(m_record->power[row].active, 1150);
        NEAR(m_record->power[row].apparent, 2300);
    }
    NEAR(m_record->power[3].active, 3450);
    NEAR(m_record->power[3].apparent, 6900);
}

void TstPowerDecode::withoutActivePowerTheTangentIs9999()
{
    decode(balanced(230, 0, 0));
    for (int c = 0; c < 4; ++c) {
        QCOMPARE(float(m_record->power[c].tangent), 9999.0f);
        QCOMPARE(float(m_record->power[c].factor), 0.0f);
    }
}

void TstPowerDecode::mainsSignalsInVoltsAndOfTheNominal()
{
    Payload payload(Link::kAggregationWords);
    for (int c = 0; c < 4; ++c) {
        m_scales.voltage[c] = 10.0f * float(c + 1);
        payload.set(3242 + 2 * c, 2.3f);
        payload.set(3243 + 2 * c, -0.23f);
    }
    m_settingConfig_g.setNomVoltStarSelect(5); // 230 V
    decode(payload);
    for (int c = 0; c < 4; ++c) {
        const MainsSignalRow row = m_record->mainsSignal[c];
        NEAR(row.ratio1, 0.1 * (c + 1));
        NEAR(row.volt1, 23.0 * (c + 1));
        NEAR(row.ratio2, -0.01 * (c + 1));
        NEAR(row.volt2, -2.3 * (c + 1));
        QCOMPARE(float(row.reserved[0]), 0.0f);
        QCOMPARE(float(row.reserved[1]), 0.0f);
    }
    m_settingConfig_g.setNomVoltStarSelect(9);
    m_settingConfig_g.setNomVoltStarCustom(0);
    decode(payload);
    QCOMPARE(float(m_record->mainsSignal[0].ratio1), 0.0f);
    m_settingConfig_g.setNomVoltStarCustom(500);
    m_settingConfig_g.setNomVoltStarSelect(5);
}

QTEST_GUILESS_MAIN(TstPowerDecode)
#include "tst_powerdecode.moc"
