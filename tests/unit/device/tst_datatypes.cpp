#include "aggregationcase.h"
#include "settings/config_data.h"
#include "device/cleanvalue.h"
#include "device/datatypes.h"

#include <QTest>
#include <cmath>
#include <memory>
#include <random>

/// Payloads to records. Scales are 1 unless a test sets them, so raw values are volts, amperes and watts.
class TstDataTypes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void anotherCalibrationDecodesWithoutTouchingTheOneInUse();
    void payloadFitsFromItsWholeLengthOn();
    void rmsCountIsCappedAt60AndHalved_data();
    void rmsCountIsCappedAt60AndHalved();
    void rmsValuesAreHeldToTenUnitsAndScaled();
    void rmsTimesAreSecondsAndMilliseconds();
    void waveKeepsVoltagesFirstThenCurrents();
    void flickerIsCopiedAsItIs();
    void voltAmpsAndCrestOfEachChannel();
    void smallAndOddValuesAreStoredAsZero_data();
    void smallAndOddValuesAreStoredAsZero();
    void harmonicsAgreeWithThePlainFormula();
    void negativeHarmonicMagnitudesAreStoredAsZero();
    void distortionIsTheRootSumSquareWithoutTheFundamental();
    void phasesAreReferredToTheL1Fundamental();
    void wildPhasesEndInRange_data();
    void wildPhasesEndInRange();
    void at400HzTwelveOrdersAreReadAndTheRestKept();
    void interharmonicsLieHalfTheNominalFrequencyOn();
    void energiesAreLeftAlone();
    void randomBytesLeaveEveryDecoderSound();
    void unalignedPayloadsAreDecodedToo();

private:
    DecodeSettings by() const { return { m_scales, m_settingConfig_g.derived() }; }
    void decode(const Payload &payload)
    {
        *m_record = {};
        DataTypes::datagramAggregation(m_record.get(), payload.data(), by());
    }
    ScaleTable m_scales; // of 1, unless a test sets others
    std::unique_ptr<__datagram_aggregation> m_record = std::make_unique<__datagram_aggregation>();
};

void TstDataTypes::init()
{
    if (m_settingConfig_g.getJoinMode() != 1)
        m_settingConfig_g.setJoinMode(1);
    if (m_settingConfig_g.getNomFreqSelect() != 1)
        m_settingConfig_g.setNomFreq(1);
    m_scales = ScaleTable();
}

void TstDataTypes::anotherCalibrationDecodesWithoutTouchingTheOneInUse()
{
    __calib_data other = m_calib_data_g.data();
    other.volt[1][0] = 40.0f; // 230 V star uses row 1
    other.current[3][0] = 70.0f; // 5 A x 10 mV/A uses row 3
    const Clamp clamp("own", 5, 10000, false, true, QString());
    const Derived derived = derive(m_settingConfig_g.values(), &clamp, nullptr, other);
    Payload payload(Link::kAggregationWords);
    payload.set(8, 2.0f);
    payload.set(9, 3.0f);
    *m_record = {};
    DataTypes::datagramAggregation(m_record.get(), payload.data(), { derived.scales, derived });
    NEAR(m_record->channel[0].voltage, 2 * 40.0);
    NEAR(m_record->channel[0].current, 3 * 70.0 / 10);
    QCOMPARE(m_settingConfig_g.derived().scales.voltage[0], 79.25f);
}

void TstDataTypes::payloadFitsFromItsWholeLengthOn()
{
    QVERIFY(!DataTypes::fits(DatagramAggregation, QByteArray(12999, '\0')));
    QVERIFY(DataTypes::fits(DatagramAggregation, QByteArray(13000, '\0')));
    QVERIFY(!DataTypes::fits(DatagramWave, QByteArray(65547, '\0')));
    QVERIFY(DataTypes::fits(DatagramRMS_1_2, QByteArray(2180, '\0')));
    QVERIFY(DataTypes::fits(DatagramFlicker, QByteArray(6012, '\0')));
    QVERIFY(!DataTypes::fits(__datagramtype(7), QByteArray(100000, '\0')));
    QVERIFY(!DataTypes::fits(__datagramtype(-1), QByteArray(100000, '\0')));
}

void TstDataTypes::rmsCountIsCappedAt60AndHalved_data()
{
    QTest::addColumn<quint32>("word");
    QTest::addColumn<quint32>("entries");
    QTest::newRow("none") << 0u << 0u;
    QTest::newRow("one value is no pair") << 1u << 0u;
    QTest::newRow("59") << 59u << 29u;
    QTest::newRow("60") << 60u << 30u;
    QTest::newRow("61") << 61u << 30u;
    QTest::newRow("2^32 - 1") << 0xFFFFFFFFu << 30u;
}

void TstDataTypes::rmsCountIsCappedAt60AndHalved()
{
    QFETCH(quint32, word);
    QFETCH(quint32, entries);
    Payload payload(Link::kRmsWords);
    for (int c = 0; c < 3; ++c)
        payload.setInt(2 + 181 * c, word);
    __datagram_rms record = {};
    record.voltage[3].count = record.current[3].count = 77;
    DataTypes::datagramRMS_1_2(&record, payload.data(), m_settingConfig_g.derived().scales);
    for (int c = 0; c < 3; ++c) {
        QCOMPARE(record.voltage[c].count, entries);
        QCOMPARE(record.current[c].count, entries);
    }
    QCOMPARE(record.voltage[3].count, 77u); // the fourth channel is not filled
    QCOMPARE(record.current[3].count, 77u);
}

void TstDataTypes::rmsValuesAreHeldToTenUnitsAndScaled()
{
    const float *scales = m_settingConfig_g.wvi();
    Payload payload(Link::kRmsWords);
    const float raw[] = { 12.0f, -12.0f, 2.5f, 10.0f, kInf };
    const float held[] = { 10.0f, -10.0f, 2.5f, 10.0f, 10.0f };
    for (int c = 0; c < 3; ++c) {
        payload.setInt(2 + 181 * c, 10);
        for (int i = 0; i < 5; ++i) {
            payload.set(2 + 181 * c + 1 + 6 * i + 2, raw[i]);
            payload.set(2 + 181 * c + 1 + 6 * i + 5, -raw[i]);
        }
    }
    __datagram_rms record = {};
    DataTypes::datagramRMS_1_2(&record, payload.data(), m_settingConfig_g.derived().scales);
    for (int c = 0; c < 3; ++c) {
        for (int i = 0; i < 5; ++i) {
            QCOMPARE(record.voltage[c].entry[i].value, held[i] * scales[4 + c]);
            QCOMPARE(record.current[c].entry[i].value, -held[i] * scales[8 + c]);
        }
    }
}

void TstDataTypes::rmsTimesAreSecondsAndMilliseconds()
{
    Payload payload(Link::kRmsWords);
    const int entry = 2 + 181 * 1 + 1 + 6 * 2; // third entry of L2
    payload.setInt(2 + 181 * 1, 6);
    payload.setInt(entry, 1600000000);
    payload.setInt(entry + 1, 999);
    payload.setInt(entry + 3, 0xFFFFFFFF);
    payload.setInt(entry + 4, 0xFFFFFFFF);
    __datagram_rms record = {};
    DataTypes::datagramRMS_1_2(&record, payload.data(), m_settingConfig_g.derived().scales);
    const qint64 voltage = record.voltage[1].entry[2].time, current = record.current[1].entry[2].time;
    QCOMPARE(voltage, qint64(1600000000999));
    QCOMPARE(current, qint64(4294967295) * 1001);
}

void TstDataTypes::waveKeepsVoltagesFirstThenCurrents()
{
    Payload payload(Link::kWaveWords);
    payload.setInt(0, 0x89ABCDEF);
    payload.setInt(1, 0x00000174);
    for (int c = 0; c < 4; ++c) {
        for (int i = 0; i < 2048; ++i) { // two samples a word
            payload.setInt(2 + 4096 * c + i, 0x00010000u * quint32(100 * c + 1) + quint32(i));
            payload.setInt(2 + 4096 * c + 2048 + i, 0x00010000u * quint32(100 * c + 2) + quint32(i));
        }
    }
    payload.setInt(16386, 0x03000ABC);
    auto record = std::make_unique<__datagram_wave>();
    DataTypes::datagramWave(record.get(), payload.data());
    const qint64 time = record->time;
    QCOMPARE(time, qint64(0x0000017489ABCDEF));
    for (int c = 0; c < 4; ++c) {
        QCOMPARE(int(record->voltage[c][0]), 0);
        QCOMPARE(int(record->voltage[c][1]), 100 * c + 1);
        QCOMPARE(int(record->voltage[c][4094]), 2047);
        QCOMPARE(int(record->current[c][1]), 100 * c + 2);
        QCOMPARE(int(record->current[c][4094]), 2047);
    }
    QCOMPARE(quint32(record->transient), 0x03000ABCu);
}

void TstDataTypes::flickerIsCopiedAsItIs()
{
    Payload payload(Link::kFlickerWords);
    payload.setInt(0, 5);
    for (int phase = 0; phase < 3; ++phase) {
        payload.set(2 + 500 * phase, float(phase) + 0.25f);
        payload.set(2 + 500 * phase + 499, float(phase) + 0.5f);
    }
    payload.setInt(1502, 2000);
    auto record = std::make_unique<__datagram_flicker>();
    DataTypes::datagramFlicker(record.get(), payload.data());
    const qint64 time = record->time;
    QCOMPARE(time, qint64(5));
    for (int phase = 0; phase < 3; ++phase) {
        QCOMPARE(float(record->pinst[phase][0]), float(phase) + 0.25f);
        QCOMPARE(float(record->pinst[phase][499]), float(phase) + 0.5f);
    }
    QCOMPARE(quint32(record->samplesPerWindow), 2000u);
}

void TstDataTypes::voltAmpsAndCrestOfEachChannel()
{
    Payload payload(Link::kAggregationWords);
    payload.setInt(0, 0xFFFFFFFF);
    payload.setInt(1, 1);
    payload.set(2, -49.5f);
    for (int c = 0; c < 4; ++c) {
        m_scales.voltage[c] = 100.0f + float(c);
        m_scales.current[c] = 10.0f + float(c);
        const float raw[] = { 2.0f, 1.0f, 3.0f, 0.01f, 2.0f, -0.02f }; // words 8 to 13
        for (int i = 0; i < 6; ++i)
            payload.set(8 + 9 * c + i, raw[i]);
    }
    decode(payload);
    const qint64 time = m_record->time;
    QCOMPARE(time, qint64(0x1FFFFFFFF));
    QCOMPARE(float(m_record->frequency), -49.5f); // signed, as sent
    for (int c = 0; c < 4; ++c) {
        const ChannelRms row = m_record->channel[c];
        const float u = 100.0f + float(c), i = 10.0f + float(c);
        NEAR(row.voltage, 2 * u);
        NEAR(row.current, i);
        NEAR(row.voltagePeak, 3 * u);
        NEAR(row.voltageOffset, 0.01 * u);
        NEAR(row.currentPeak, 2 * i);
        NEAR(row.currentOffset, -0.02 * i);
        NEAR(row.voltageCrest, 1.5);
        NEAR(row.currentCrest, 2.0);
    }
}

void TstDataTypes::smallAndOddValuesAreStoredAsZero_data()
{
    QTest::addColumn<float>("raw");
    QTest::addColumn<float>("stored");
    QTest::newRow("0.00009") << 0.00009f << 0.0f;
    QTest::newRow("-0.00009") << -0.00009f << 0.0f;
    QTest::newRow("0.00011") << 0.00011f << 0.00011f;
    QTest::newRow("-0.00011") << -0.00011f << -0.00011f;
    QTest::newRow("NaN") << kNaN << 0.0f;
    QTest::newRow("infinity") << kInf << 0.0f;
    QTest::newRow("-infinity") << -kInf << 0.0f;
}

void TstDataTypes::smallAndOddValuesAreStoredAsZero()
{
    QFETCH(float, raw);
    QFETCH(float, stored);
    Payload payload(Link::kAggregationWords);
    for (int word = 5; word < 41; ++word)
        payload.set(word, raw);
    decode(payload);
    for (int c = 0; c < 4; ++c) {
        QCOMPARE(float(m_record->channel[c].voltage), stored);
        QCOMPARE(float(m_record->channel[c].currentOffset), stored);
        QCOMPARE(float(m_record->channel[c].voltageCrest), stored > 0 ? 1.0f : 0.0f);
    }
    QCOMPARE(float(m_record->power[0].active), stored);
    QCOMPARE(SafeMath::cleaned(raw), stored);
    QCOMPARE(SafeMath::div_sn(1.0f, 0.0f), 0.0f);
    QCOMPARE(SafeMath::div_sn(1.0f, -4.0f), 0.0f);
    QCOMPARE(SafeMath::div_sn(1.0f, kNaN), 0.0f);
    QCOMPARE(SafeMath::div_s_percent(5.0f, 0.0f), 0.0f);
    QCOMPARE(SafeMath::div_s_percent(5.0f, 1.0f), 1.0f);
    QCOMPARE(SafeMath::div_s_percent(-5.0f, 1.0f), 0.0f);
}

void TstDataTypes::harmonicsAgreeWithThePlainFormula()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> magnitude(0.0f, 3.0f), phase(-3.14159f, 3.14159f);
    for (int round = 0; round < 50; ++round) {
        Payload payload(Link::kAggregationWords);
        payload.set(2, round % 2 ? -49.87f : 50.13f);
        for (int word = 42; word < 3242; word += 4) {
            payload.set(word, magnitude(random));
            payload.set(word + 1, kNaN); // not read
            payload.set(word + 2, magnitude(random));
            payload.set(word + 3, phase(random));
        }
        for (int c = 0; c < 4; ++c) {
            m_scales.voltage[c] = 50.0f + float(c);
            m_scales.current[c] = 3.0f + float(c);
        }
        decode(payload);
        const double p0 = double(payload.at(45)), f = std::fabs(double(payload.at(2)));
        for (int input = 0; input < 8; ++input) {
            const ChannelSpectrum &spectrum = m_record->spectrum[input % 4];
            const SpectrumLine *lines = input < 4 ? spectrum.voltage : spectrum.current;
            const SpectrumLine *inter = input < 4 ? spectrum.voltageInter : spectrum.currentInter;
            const double k = double(input < 4 ? m_scales.voltage[input] : m_scales.current[input - 4]);
            double squares = 0;
            for (int h = 0; h < 100; ++h) {
                const int word = 42 + 400 * input + 4 * h;
                NEAR(lines[h].magnitude, k * double(payload.at(word + 2)));
                NEAR(lines[h].frequency, (h + 1) * f);
                NEAR(inter[h].magnitude, k * double(payload.at(word)));
                NEAR(inter[h].frequency, 25.0 + h * f);
                QCOMPARE(float(inter[h].phase), 0.0f);
                // Equal angles have equal sines and cosines, whatever the number of turns.
                const double angle = double(payload.at(word + 3)) - p0 * (h + 1) - h * 1.5707963267948966;
                QVERIFY(std::fabs(lines[h].phase) <= 3.1415930f);
                QVERIFY(std::fabs(std::sin(double(lines[h].phase)) - std::sin(angle)) < 2e-6);
                QVERIFY(std::fabs(std::cos(double(lines[h].phase)) - std::cos(angle)) < 2e-6);
                if (h > 0)
                    squares += std::pow(k * double(payload.at(word + 2)), 2);
            }
            NEAR(input < 4 ? spectrum.voltageDistortion : spectrum.currentDistortion, std::sqrt(squares));
        }
    }
}

void TstDataTypes::negativeHarmonicMagnitudesAreStoredAsZero()
{
    Payload payload(Link::kAggregationWords);
    for (int word = 42; word < 3242; word += 4) {
        payload.set(word, -1.0f);
        payload.set(word + 2, -2.0f);
    }
    *m_record = {};
    memset(static_cast<void *>(m_record->spectrum), 0x55, sizeof(m_record->spectrum));
    DataTypes::datagramAggregation(m_record.get(), payload.data(), by());
    for (const ChannelSpectrum &spectrum : m_record->spectrum) {
        for (int h = 0; h < 100; ++h) {
            QCOMPARE(float(spectrum.voltage[h].magnitude), 0.0f);
            QCOMPARE(float(spectrum.current[h].magnitude), 0.0f);
            QCOMPARE(float(spectrum.voltageInter[h].magnitude), 0.0f);
            QCOMPARE(float(spectrum.currentInter[h].magnitude), 0.0f);
        }
        QCOMPARE(float(spectrum.voltageDistortion), 0.0f);
    }
}

void TstDataTypes::distortionIsTheRootSumSquareWithoutTheFundamental()
{
    Payload payload(Link::kAggregationWords);
    payload.set(44, 230.0f); // U1 order 1
    payload.set(44 + 4 * 2, 3.0f); // order 3
    payload.set(44 + 4 * 99, 4.0f); // order 100
    payload.set(44 + 400 * 7 + 4, 0.00005f); // IN order 2: below the filter
    decode(payload);
    NEAR(m_record->spectrum[0].voltageDistortion, 5.0);
    QCOMPARE(float(m_record->spectrum[3].currentDistortion), 0.0f);
    QCOMPARE(float(m_record->spectrum[1].voltageDistortion), 0.0f);
}

void TstDataTypes::phasesAreReferredToTheL1Fundamental()
{
    Payload payload(Link::kAggregationWords);
    payload.set(45, 1.0f); // p0
    payload.set(45 + 4 * 2, 0.25f); // U1 order 3
    payload.set(45 + 400 * 4, 0.4f); // I1 order 1
    decode(payload);
    QCOMPARE(float(m_record->spectrum[0].voltage[0].phase), 0.0f);
    NEAR(m_record->spectrum[0].current[0].phase, 0.4 - 1.0);
    // 0.25 - 3 * 1.0 - 2 * 1.5707963 = -5.8915927; one turn on: 0.3915926
    NEAR(m_record->spectrum[0].voltage[2].phase, 0.3915926);
}

void TstDataTypes::wildPhasesEndInRange_data()
{
    QTest::addColumn<float>("wild");
    for (float value : { 1e30f, -1e30f, kInf, -kInf, kNaN, 3.4e38f, 1e6f, 7.0f, -7.0f, 6.2831850f })
        QTest::newRow(qPrintable(QString::number(double(value)))) << value;
}

void TstDataTypes::wildPhasesEndInRange()
{
    QFETCH(float, wild);
    for (int nomFreq : { 1, 3 }) {
        m_settingConfig_g.setNomFreq(nomFreq);
        for (int word : { 45, 45 + 400 * 5 + 40, 73, 73 + 400 * 5 }) {
            Payload payload = balanced(230, 10, 30);
            payload.set(word, wild);
            decode(payload);
            for (const ChannelSpectrum &spectrum : m_record->spectrum) {
                for (int h = 0; h < 100; ++h) {
                    QVERIFY(std::fabs(spectrum.voltage[h].phase) <= 3.1415930f);
                    QVERIFY(std::fabs(spectrum.current[h].phase) <= 3.1415930f);
                }
            }
            for (const ChannelRms &row : m_record->channel) {
                QVERIFY(row.voltageAngle <= 0 && row.voltageAngle >= -360);
                QVERIFY(row.currentAngle <= 0 && row.currentAngle >= -360);
                QVERIFY(std::fabs(row.angleDifference) <= 180);
            }
        }
    }
}

void TstDataTypes::at400HzTwelveOrdersAreReadAndTheRestKept()
{
    m_settingConfig_g.setNomFreq(3);
    Payload payload(Link::kAggregationWords);
    payload.set(2, 401.0f);
    for (int word = 42; word < 3242; ++word)
        payload.set(word, 9.0f); // nothing of this is read but the words below
    for (int input = 0; input < 8; ++input) {
        for (int h = 0; h < 12; ++h) {
            payload.set(72 + 400 * input + 32 * h, h == 0 ? 115.0f : 1.0f);
            payload.set(73 + 400 * input + 32 * h, 0.0f);
        }
    }
    payload.set(72 + 400 * 2 + 32 * 3, -1.0f); // L3, order 4
    memset(static_cast<void *>(m_record.get()), 0, sizeof(*m_record));
    for (ChannelSpectrum &spectrum : m_record->spectrum) {
        for (int h = 0; h < 100; ++h) {
            spectrum.voltage[h] = { 77, 78, 79 };
            spectrum.voltageInter[h] = { 67, 68, 69 };
        }
    }
    DataTypes::datagramAggregation(m_record.get(), payload.data(), by());
    const ChannelSpectrum &l2 = m_record->spectrum[1];
    QCOMPARE(float(l2.voltage[0].magnitude), 115.0f);
    QCOMPARE(float(l2.voltage[11].magnitude), 1.0f);
    NEAR(l2.voltage[11].frequency, 12 * 401.0);
    NEAR(l2.voltage[1].phase, -kPi / 2);
    QCOMPARE(float(l2.voltage[12].magnitude), 77.0f);
    QCOMPARE(float(l2.voltage[99].phase), 79.0f);
    QCOMPARE(float(l2.voltageInter[0].magnitude), 67.0f);
    NEAR(l2.voltageInter[1].frequency, 200.0 + 401.0);
    QCOMPARE(float(l2.voltageInter[12].frequency), 68.0f);
    NEAR(l2.voltageDistortion, std::sqrt(11.0));
    QCOMPARE(float(m_record->spectrum[2].voltage[3].magnitude), 0.0f);
    NEAR(m_record->spectrum[2].voltageDistortion, std::sqrt(10.0));
}

void TstDataTypes::interharmonicsLieHalfTheNominalFrequencyOn()
{
    m_settingConfig_g.setNomFreq(2);
    Payload payload(Link::kAggregationWords);
    payload.set(2, -59.5f);
    decode(payload);
    NEAR(m_record->spectrum[2].currentInter[0].frequency, 30.0);
    NEAR(m_record->spectrum[2].currentInter[10].frequency, 30.0 + 595.0);
    NEAR(m_record->spectrum[2].current[9].frequency, 595.0);
}

void TstDataTypes::energiesAreLeftAlone()
{
    *m_record = {};
    m_record->energy[3].apparent = 12.5;
    DataTypes::datagramAggregation(m_record.get(), balanced(230, 10, 0).data(), by());
    QCOMPARE(double(m_record->energy[3].apparent), 12.5);
}

void TstDataTypes::randomBytesLeaveEveryDecoderSound()
{
    std::mt19937 random(99);
    auto wave = std::make_unique<__datagram_wave>();
    auto flicker = std::make_unique<__datagram_flicker>();
    auto rms = std::make_unique<__datagram_rms>();
    for (int round = 0; round < 2000; ++round) {
        if (round % 1000 == 0) { // each setting is stored at once, with a shell command
            m_settingConfig_g.setNomFreq(1 + round / 1000 * 2);
            m_settingConfig_g.setJoinMode(1 + round / 1000 * 3);
        }
        Payload payload(Link::kWaveWords);
        for (int word = 0; word < Link::kAggregationWords; ++word)
            payload.setInt(word, quint32(random()));
        DataTypes::datagramAggregation(m_record.get(), payload.data(), by());
        DataTypes::datagramRMS_1_2(rms.get(), payload.data(), m_scales);
        DataTypes::datagramFlicker(flicker.get(), payload.data());
        DataTypes::datagramWave(wave.get(), payload.data());
        for (const ChannelRms &row : m_record->channel) {
            QVERIFY(std::isfinite(row.voltage) && std::isfinite(row.voltageCrest));
            QVERIFY(row.voltageAngle <= 0 && row.voltageAngle >= -360);
        }
        for (const PowerRow &row : m_record->power)
            QVERIFY(std::isfinite(row.active) && std::isfinite(row.apparent) && std::isfinite(row.reactive));
        QVERIFY(rms->voltage[0].count <= 30);
    }
}

void TstDataTypes::unalignedPayloadsAreDecodedToo()
{
    const QByteArray bytes = QByteArray("x") + balanced(230, 10, 30).bytes();
    *m_record = {};
    DataTypes::datagramAggregation(m_record.get(), bytes.constData() + 1, by());
    NEAR(m_record->power[3].active, 3 * 2300 * 0.8660254);
}

QTEST_GUILESS_MAIN(TstDataTypes)
#include "tst_datatypes.moc"
