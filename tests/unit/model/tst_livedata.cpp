#include "model/livedata.h"

#include <QTest>

#include <cstring>

/// The owner of the measured data: emptied at a start, held as it stood.
class TstLiveData : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_data.empty(50); }

    void shownIsLiveUntilHeld();
    void heldRecordsStandStillWhileTheLiveOnesGoOn();
    void runShowsTheLiveRecordsAgain();
    void secondHoldKeepsTheMomentOfTheFirst();
    void startEmptiesEveryRecordAndHoldsNothing();
    void startStandsForTheNominalFrequency();
    void referenceOfHarmonicsChangesOnHoldToo();
    void holdSharesTheListsUntilTheyAreWritten();
    void liveRecordsKeepTheirAddress();
    void endOfAMeasurementKeepsItsEventsAndNoTransients();
    void startEmptiesTheLists();
    void aTrendOfTheMonitorDropsItsOldestValueWhenItIsFull();
    void listsGoOnBehindAHold();
    void endOfAHeldMeasurementLeavesWhatIsShown();
    void heldTransientsOutlastTheirDrop();
    void aHoldCopiesNoList();
    void beyondItsLimitTheTransientListDropsTheOldest();

private:
    static __trans_data transient(qint32 number)
    {
        __trans_data record;
        record.number = number;
        return record;
    }

    LiveData m_data;
};

void TstLiveData::shownIsLiveUntilHeld()
{
    QCOMPARE(&m_data.shown(), &static_cast<const LiveData &>(m_data).live());
    m_data.hold();
    QVERIFY(m_data.isHeld());
    QVERIFY(&m_data.shown() != &m_data.live());
}

void TstLiveData::heldRecordsStandStillWhileTheLiveOnesGoOn()
{
    DisplayRecords &live = m_data.live();
    live.vif.voltage[2] = 230;
    live.vif.trend[VifTrendURms].series[0] = { 1, 2 };
    live.power.seconds = 7;
    live.harmonics.channel[7].harmonic[49].phase = 0.5f;
    live.unbalance.angleDifference[3] = 30;
    live.scope.currentSamples[3][4095] = 99;
    live.flicker.pinstTrend[1] = { 3 };
    live.transient.samples[3][599] = 98;
    live.dips.voltage[0] = { 231, 232 };
    live.inrush.current[0] = { 5 };
    live.mainsSignal.frequencyTrend = { 50 };
    live.inverter.trend[5].series[0] = { 6 };
    live.monitor.voltMax[1] = 231;
    live.monitorTrend.row[MonitorTrendUnbalance] = { 0.5f };
    m_data.hold();

    live.vif.voltage[2] = 0;
    live.vif.trend[VifTrendURms].series[0].append(3);
    live.power.seconds = 8;
    live.harmonics.channel[7].harmonic[49].phase = 0;
    live.unbalance.angleDifference[3] = 0;
    live.scope.currentSamples[3][4095] = 0;
    live.flicker.pinstTrend[1].clear();
    live.transient.samples[3][599] = 0;
    live.dips.voltage[0].removeFirst();
    live.inrush.current[0].append(6);
    live.mainsSignal.frequencyTrend.append(51);
    live.inverter.trend[5].series[0].clear();
    live.monitor.voltMax[1] = 232;
    live.monitorTrend.append(MonitorTrendUnbalance, 1);

    const DisplayRecords &shown = m_data.shown();
    QCOMPARE(shown.vif.voltage[2], 230.0f);
    QCOMPARE(shown.vif.trend[VifTrendURms].series[0], QList<float>({ 1, 2 }));
    QCOMPARE(shown.power.seconds, 7);
    QCOMPARE(shown.harmonics.channel[7].harmonic[49].phase, 0.5f);
    QCOMPARE(shown.unbalance.angleDifference[3], 30.0f);
    QCOMPARE(int(shown.scope.currentSamples[3][4095]), 99);
    QCOMPARE(shown.flicker.pinstTrend[1], QList<float>({ 3 }));
    QCOMPARE(int(shown.transient.samples[3][599]), 98);
    QCOMPARE(shown.dips.voltage[0], QList<float>({ 231, 232 }));
    QCOMPARE(shown.inrush.current[0], QList<float>({ 5 }));
    QCOMPARE(shown.mainsSignal.frequencyTrend, QList<float>({ 50 }));
    QCOMPARE(shown.inverter.trend[5].series[0], QList<float>({ 6 }));
    QCOMPARE(shown.monitor.voltMax[1], 231.0f);
    QCOMPARE(shown.monitorTrend.row[MonitorTrendUnbalance], QList<float>({ 0.5f }));
}

void TstLiveData::runShowsTheLiveRecordsAgain()
{
    m_data.hold();
    m_data.live().vif.voltage[0] = 5;
    QCOMPARE(m_data.shown().vif.voltage[0], 0.0f);
    m_data.run();
    QVERIFY(!m_data.isHeld());
    QCOMPARE(m_data.shown().vif.voltage[0], 5.0f);
    m_data.run();
    QCOMPARE(m_data.shown().vif.voltage[0], 5.0f);
}

void TstLiveData::secondHoldKeepsTheMomentOfTheFirst()
{
    m_data.live().vif.voltage[0] = 1;
    m_data.hold();
    m_data.live().vif.voltage[0] = 2;
    m_data.hold();
    QCOMPARE(m_data.shown().vif.voltage[0], 1.0f);
}

void TstLiveData::startEmptiesEveryRecordAndHoldsNothing()
{
    DisplayRecords &live = m_data.live();
    live.vif.current[1] = 1;
    live.vif.trend[VifTrendFrequency].series[0] = { 1 };
    live.power.row[3].tangent = 1;
    live.power.trend[7].series[3] = { 1 };
    live.power.hours = 1;
    std::memset(&live.harmonics, 0x41, sizeof(live.harmonics));
    std::memset(&live.unbalance, 0x41, sizeof(live.unbalance));
    std::memset(&live.scope, 0x41, sizeof(live.scope));
    live.flicker.plt[2] = 1;
    live.flicker.pltTrend[2] = { 1 };
    live.transient.number = 4;
    live.dips.current[3] = { 1 };
    live.inrush.voltage[0] = { 1 };
    live.mainsSignal.mean2[0] = { 1 };
    live.mainsSignal.rms1[0] = 1;
    live.inverter.efficiency = 1;
    live.inverter.trend[0].series[0] = { 1 };
    live.monitor.voltReady = 1;
    live.monitor.harmOk[2][24] = 0;
    live.monitorTrend.append(MonitorTrendFrequency, 50);
    m_data.hold();
    m_data.empty(60);

    QVERIFY(!m_data.isHeld());
    QCOMPARE(live.vif.current[1], 0.0f);
    QVERIFY(live.vif.trend[VifTrendFrequency].series[0].isEmpty());
    QCOMPARE(live.power.row[3].tangent, 0.0f);
    QVERIFY(live.power.trend[7].series[3].isEmpty());
    QCOMPARE(live.power.hours, 0);
    QCOMPARE(live.monitor.voltReady, 0);
    QCOMPARE(live.monitor.harmOk[2][24], 1);
    QVERIFY(live.monitorTrend.row[MonitorTrendFrequency].isEmpty());
    QCOMPARE(live.harmonics.reference, 2);
    QCOMPARE(live.harmonics.channel[7].inter[49].frequency, 0.0f);
    QCOMPARE(live.unbalance.angleDifference[3], 0.0f);
    QCOMPARE(int(live.scope.currentSamples[3][4095]), 0);
    QCOMPARE(live.flicker.plt[2], 0.0f);
    QVERIFY(live.flicker.pltTrend[2].isEmpty());
    QCOMPARE(live.transient.number, 0);
    QVERIFY(live.dips.current[3].isEmpty());
    QVERIFY(live.inrush.voltage[0].isEmpty());
    QVERIFY(live.mainsSignal.mean2[0].isEmpty());
    QCOMPARE(live.mainsSignal.rms1[0], 0.0f);
    QCOMPARE(live.inverter.efficiency, 0.0f);
    QVERIFY(live.inverter.trend[0].series[0].isEmpty());
}

void TstLiveData::aTrendOfTheMonitorDropsItsOldestValueWhenItIsFull()
{
    __monitor_trend &trend = m_data.live().monitorTrend;
    for (int i = 0; i < 1024; ++i)
        trend.append(MonitorTrendVoltage + 2, float(i));
    QCOMPARE(trend.row[6].size(), 1024);
    QCOMPARE(trend.row[6].first(), 0.0f);
    trend.append(MonitorTrendVoltage + 2, 1024);
    QCOMPARE(trend.row[6].size(), 1024);
    QCOMPARE(trend.row[6].first(), 1.0f);
    QCOMPARE(trend.row[6].last(), 1024.0f);
    QVERIFY(trend.row[4].isEmpty());
}

void TstLiveData::startStandsForTheNominalFrequency()
{
    m_data.empty(60);
    QCOMPARE(m_data.shown().vif.frequency, 60.0f);
}

void TstLiveData::referenceOfHarmonicsChangesOnHoldToo()
{
    m_data.hold();
    m_data.setHarmonicReference(1);
    QCOMPARE(m_data.shown().harmonics.reference, 1);
    m_data.run();
    QCOMPARE(m_data.shown().harmonics.reference, 1);
}

void TstLiveData::holdSharesTheListsUntilTheyAreWritten()
{
    for (int i = 0; i < 100; ++i)
        m_data.live().inrush.current[0].append(float(i));
    m_data.hold();
    QVERIFY(m_data.shown().inrush.current[0].isSharedWith(m_data.live().inrush.current[0]));
    m_data.live().inrush.current[0].append(100);
    QCOMPARE(m_data.shown().inrush.current[0].size(), 100);
}

void TstLiveData::liveRecordsKeepTheirAddress()
{
    const DisplayRecords *live = &m_data.live();
    m_data.hold();
    m_data.run();
    m_data.empty(50);
    QCOMPARE(&m_data.live(), const_cast<DisplayRecords *>(live));
}

void TstLiveData::endOfAMeasurementKeepsItsEventsAndNoTransients()
{
    m_data.events().append({});
    m_data.transients().append({});
    m_data.finish();
    QCOMPARE(m_data.events().size(), 1);
    QVERIFY(m_data.events().isOver());
    QVERIFY(m_data.transients().isEmpty());
}

void TstLiveData::startEmptiesTheLists()
{
    m_data.events().append({});
    m_data.transients().append(transient(1));
    m_data.hold();
    m_data.finish();
    m_data.empty(50);
    QVERIFY(m_data.events().isEmpty());
    QVERIFY(!m_data.events().isOver());
    QVERIFY(m_data.transients().isEmpty());
    QCOMPARE(m_data.events().shownSize(), 0);
    QCOMPARE(m_data.transients().shownSize(), 0);
}

void TstLiveData::listsGoOnBehindAHold()
{
    m_data.events().append({});
    m_data.transients().append(transient(1));
    m_data.hold();
    m_data.events().append({});
    m_data.transients().append(transient(2));
    m_data.hold(); // changes nothing
    QCOMPARE(m_data.events().size(), 2);
    QCOMPARE(m_data.transients().size(), 2);
    QCOMPARE(m_data.events().shownSize(), 1);
    QCOMPARE(m_data.transients().shownSize(), 1);
    QCOMPARE(m_data.transients().shownAt(0).number, 1);
    m_data.run();
    QCOMPARE(m_data.events().shownSize(), 2);
    QCOMPARE(m_data.transients().shownSize(), 2);
    QCOMPARE(m_data.transients().shownAt(1).number, 2);
}

void TstLiveData::endOfAHeldMeasurementLeavesWhatIsShown()
{
    for (int number = 1; number <= 3; ++number)
        m_data.transients().append(transient(number));
    m_data.hold();
    m_data.transients().append(transient(4));
    m_data.finish();
    QVERIFY(m_data.transients().isEmpty());
    QCOMPARE(m_data.transients().shownSize(), 3);
    QCOMPARE(m_data.transients().shownAt(0).number, 1);
    QCOMPARE(m_data.transients().shownAt(2).number, 3);
}

void TstLiveData::heldTransientsOutlastTheirDrop()
{
    TransientList &list = m_data.transients();
    for (int number = 1; number <= 998; ++number)
        list.append(transient(number));
    m_data.hold();
    for (int number = 999; number <= 3500; ++number) {
        list.append(transient(number));
        if (number % 100 != 0 && number > 1005)
            continue;
        QCOMPARE(list.shownSize(), 998);
        for (const int index : { 0, 1, 500, 997 })
            QCOMPARE(list.shownAt(index).number, index + 1);
    }
    QCOMPARE(list.size(), 1000);
    m_data.run();
    QCOMPARE(list.shownSize(), 1000);
    QCOMPARE(list.shownAt(0).number, 2501);
}

void TstLiveData::aHoldCopiesNoList()
{
    m_data.events().append({});
    m_data.transients().append(transient(1));
    m_data.hold();
    QCOMPARE(&m_data.events().shownAt(0), &m_data.events().at(0));
    QCOMPARE(&m_data.transients().shownAt(0), &m_data.transients().at(0));
}

void TstLiveData::beyondItsLimitTheTransientListDropsTheOldest()
{
    __trans_data record;
    for (record.number = 1; record.number <= 1003; ++record.number)
        m_data.transients().append(record);
    QCOMPARE(m_data.transients().size(), 1000);
    QCOMPARE(m_data.transients().at(0).number, 4);
    QCOMPARE(m_data.transients().last().number, 1003);
}

QTEST_GUILESS_MAIN(TstLiveData)
#include "tst_livedata.moc"
