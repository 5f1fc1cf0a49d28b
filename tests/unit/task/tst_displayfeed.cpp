#include "task/displayfeed.h"

#include <QTest>

#include <cstring>
#include <memory>

namespace {

/// A record in which every float has a value of its own, so that no field can be taken for another.
std::unique_ptr<__datagram_aggregation> numberedRecord()
{
    auto record = std::make_unique<__datagram_aggregation>();
    auto *words = reinterpret_cast<float *>(record.get());
    for (std::size_t i = 0; i < sizeof(__datagram_aggregation) / 4; ++i)
        words[i] = float(i);
    for (int c = 0; c < kChannels; ++c)
        record->energy[c] = { 10.0 + c, 20.0 + c, 30.0 + c };
    return record;
}

} // namespace

class TstDisplayFeed : public QObject
{
    Q_OBJECT

private slots:
    void vifTakesTheRowsOfAllFourChannels();
    void powerPutsReactiveBeforeApparent();
    void harmonicsCopyOnlyTheOrdersAsked();
    void unbalanceTakesRatiosAndAngles();
    void mainsSignalMeansHoldFifteenValues();
    void trendsHoldTheLastTenMinutes();
    void trendOfSignalsIsInPercent();
};

void TstDisplayFeed::vifTakesTheRowsOfAllFourChannels()
{
    const auto record = numberedRecord();
    __vif_data vif;
    vif.frequency = -1;
    DisplayFeed::feedVif(*record, vif);
    for (int c = 0; c < kChannels; ++c) {
        const float first = float(3 + 13 * c); // word of the channel's row
        QCOMPARE(vif.voltage[c], first);
        QCOMPARE(vif.voltagePeak[c], first + 1);
        QCOMPARE(vif.voltageOffset[c], first + 2);
        QCOMPARE(vif.voltageCrest[c], first + 3);
        QCOMPARE(vif.current[c], first + 4);
        QCOMPARE(vif.currentPeak[c], first + 5);
        QCOMPARE(vif.currentOffset[c], first + 6);
        QCOMPARE(vif.currentCrest[c], first + 7);
    }
    QCOMPARE(vif.frequency, -1.0f); // set apart
}

void TstDisplayFeed::powerPutsReactiveBeforeApparent()
{
    const auto record = numberedRecord();
    __power_data power;
    DisplayFeed::feedPower(*record, power);
    const auto *words = reinterpret_cast<const float *>(&power);
    for (int c = 0; c < 3; ++c) {
        QCOMPARE(words[c], float(3 + 13 * c));
        QCOMPARE(words[3 + c], float(7 + 13 * c));
    }
    for (int c = 0; c < kChannels; ++c) {
        QCOMPARE(words[6 + c], 10.0f + c); // active energy
        QCOMPARE(words[10 + c], 20.0f + c); // apparent
        QCOMPARE(words[14 + c], 30.0f + c); // reactive
        const float row = float(55 + 6 * c); // word of active, apparent, reactive, ...
        QCOMPARE(words[19 + 6 * c], row);
        QCOMPARE(words[20 + 6 * c], row + 2);
        QCOMPARE(words[21 + 6 * c], row + 1);
        QCOMPARE(words[22 + 6 * c], row + 3);
        QCOMPARE(words[23 + 6 * c], row + 4);
        QCOMPARE(words[24 + 6 * c], row + 5);
    }
}

void TstDisplayFeed::harmonicsCopyOnlyTheOrdersAsked()
{
    const auto record = numberedRecord();
    auto harm = std::make_unique<harm_data>();
    std::memset(static_cast<void *>(harm.get()), 0, sizeof(harm_data));
    harm->reference = 2;
    DisplayFeed::feedHarmonics(*record, 12, *harm);
    QCOMPARE(harm->reference, 2);
    const auto *words = reinterpret_cast<const float *>(harm.get());
    // U2 is block 1: r.m.s., offset, distortion, then orders of magnitude, frequency, phase.
    const int block = 1 + 603;
    QCOMPARE(words[block], float(3 + 13));
    QCOMPARE(words[block + 1], float(5 + 13));
    QCOMPARE(words[block + 2], float(104 + 1202));
    QCOMPARE(words[block + 3 + 3 * 11], float(406 + 1202 + 3 * 11));
    QCOMPARE(words[block + 5 + 3 * 11], float(408 + 1202 + 3 * 11));
    QCOMPARE(words[block + 3 + 3 * 12], 0.0f); // order 13 keeps its old contents
    QCOMPARE(words[block + 303 + 3 * 4], float(106 + 1202 + 3 * 4));
    // I2 is block 5.
    const int current = 1 + 603 * 5;
    QCOMPARE(words[current], float(7 + 13));
    QCOMPARE(words[current + 2], float(105 + 1202));
    QCOMPARE(words[current + 3], float(1006 + 1202));
    QCOMPARE(words[current + 303], float(706 + 1202));

    DisplayFeed::feedHarmonics(*record, 100000, *harm); // a wrong count stays inside the record
    QCOMPARE(words[block + 3 + 3 * 99], float(406 + 1202 + 3 * 99));
}

void TstDisplayFeed::unbalanceTakesRatiosAndAngles()
{
    const auto record = numberedRecord();
    __unbalance_data data;
    DisplayFeed::feedUnbalance(*record, data);
    const auto *words = reinterpret_cast<const float *>(&data);
    const float expected[] = { 2, 4914, 4916, 4919, 4921 };
    for (int i = 0; i < 5; ++i)
        QCOMPARE(words[i], expected[i]);
    for (int group = 0; group < 5; ++group) {
        for (int c = 0; c < kChannels; ++c)
            QCOMPARE(words[5 + 4 * group + c], float(3 + 13 * c + 8 + group));
    }
}

void TstDisplayFeed::mainsSignalMeansHoldFifteenValues()
{
    auto record = numberedRecord();
    __mains_sig_data data;
    for (int i = 1; i <= 20; ++i) {
        record->mainsSignal[0] = { 0.01f * i, float(i), 0.02f * i, float(2 * i), { 0, 0 } };
        DisplayFeed::feedMainsSignal(*record, -50.0f, data);
    }
    QCOMPARE(data.frequency, -50.0f);
    QCOMPARE(data.mean1[0].size(), 15);
    QCOMPARE(data.mean2[0].size(), 15);
    QCOMPARE(data.signal1[0], 0.2f);
    QCOMPARE(data.signal2[0], 0.4f);
    QCOMPARE(data.signal1Mean[0], 13.0f); // mean of 6 to 20
    QCOMPARE(data.signal2Mean[0], 26.0f);
}

void TstDisplayFeed::trendsHoldTheLastTenMinutes()
{
    __vif_data vif;
    for (int i = 0; i < 650; ++i) {
        vif.voltage[2] = float(i);
        vif.frequency = -float(i);
        DisplayFeed::trendVif(vif);
    }
    QCOMPARE(vif.trend[VifTrendURms].series[2].size(), 600);
    QCOMPARE(vif.trend[VifTrendURms].series[2].first(), 50.0f);
    QCOMPARE(vif.trend[VifTrendURms].series[2].last(), 649.0f);
    QCOMPARE(vif.trend[VifTrendFrequency].series[0].last(), 649.0f); // magnitude
    QVERIFY(vif.trend[VifTrendFrequency].series[1].isEmpty());

    __power_data power;
    power.row[3].reactive = 7;
    power.current[1] = 5;
    DisplayFeed::trendPower(power);
    QCOMPARE(power.trend[2].series[3].last(), 7.0f);
    QCOMPARE(power.trend[7].series[1].last(), 5.0f);
    QVERIFY(power.trend[7].series[3].isEmpty()); // currents have no total
}

void TstDisplayFeed::trendOfSignalsIsInPercent()
{
    __mains_sig_data data;
    data.signal1[1] = 0.05f;
    data.signal2[1] = 0.04f;
    data.signal2Mean[1] = 3.0f;
    data.frequency = -49.5f;
    DisplayFeed::trendMainsSignal(data);
    QCOMPARE(data.trend[0].series[1].last(), 5.0f);
    QCOMPARE(data.trend[2].series[1].last(), 4.0f);
    QCOMPARE(data.trend[3].series[1].last(), 3.0f);
    QCOMPARE(data.frequencyTrend.last(), 49.5f);
}

QTEST_GUILESS_MAIN(TstDisplayFeed)
#include "tst_displayfeed.moc"
