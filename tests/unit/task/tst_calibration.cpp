// The runs of the calibration, datagram by datagram. Expected values follow from the procedure's own arithmetic, worked
// out here from what was sent.
#include "calibrationcase.h"

#include <QElapsedTimer>

class TstCalibration : public CalibrationCase
{
    Q_OBJECT

private slots:
    void itIsACalibrationAndBeginsInCalibrationMode();
    void aZeroRunBeginsWithoutOffsetsInTheLowestRanges();
    void aZeroRunTakesFiftyDatagramsAndThenOneForEachFurtherRange();
    void currentRangesOneAndTwoAreStoredCrosswise();
    void offsetsAreFilteredFromDatagramToDatagram();
    void aZeroRunStopsTheStreamWhileARangeSettles();
    void aZeroRunWithAllDatagramsNaNStoresNaNOffsets();
    void aVoltageRunIsSetUpByItsRow_data();
    void aVoltageRunIsSetUpByItsRow();
    void aCurrentRunIsSetUpByItsInput_data();
    void aCurrentRunIsSetUpByItsInput();
    void gainsComeFromDatagramsFiftyToNinetyNineAlone();
    void aRunOnOneChannelLeavesTheOthersAsTheyWere_data();
    void aRunOnOneChannelLeavesTheOthersAsTheyWere();
    void aNaNCountsAsTenAndAnInfinityAsNothing();
    void anInfiniteGainIsStoredAsZero_data();
    void anInfiniteGainIsStoredAsZero();
    void trailingFactorsAreCarriedAlong();
    void datagramsOutsideARunChangeNothing();
    void aShortDatagramIsNoDatagram();
    void aRunPausesBeforeItsStream();
};

void TstCalibration::itIsACalibrationAndBeginsInCalibrationMode()
{
    FrameSpy spy;
    Calibration calibration;
    QCOMPARE(takeFrames(spy), QVector<QVector<quint32>> { calibrationFrame() });
    QCOMPARE(calibration.getTaskName(), QStringLiteral("Calibration"));
}

void TstCalibration::aZeroRunBeginsWithoutOffsetsInTheLowestRanges()
{
    Calibration calibration;
    m_idevice->changeAnalogSwitchI(3);
    m_idevice->changeAnalogSwitchV(3);
    calibration.file().data().zeroVolt[0][0] = 0.5f; // of an earlier calibration
    FrameSpy spy;
    calibration.startCalibZero();
    QCOMPARE(takeFrames(spy), (QVector<QVector<quint32>> { calibrationFrame(), kStreamOn }));
    QVERIFY((switches() == Switches { 0, 0, 0, 0 }));
}

void TstCalibration::aZeroRunTakesFiftyDatagramsAndThenOneForEachFurtherRange()
{
    Calibration calibration;
    const QSignalSpy completed(&calibration, &Calibration::Completed);
    calibration.startCalibZero();
    Measured measured;
    measured.voltOffsets = { 0.5f, 0.5f, 0.5f, 0.5f };
    measured.send(49);
    QCOMPARE(calibration.file().data().zeroVolt[0][0], 0.0f);
    for (int stage = 0; stage < 4; ++stage) {
        QCOMPARE(completed.count(), 0);
        QVERIFY((switches() == Switches { stage, stage, stage, stage }));
        measured.send();
        QVERIFY(std::fabs(calibration.file().data().zeroVolt[stage][0] - 0.5f) < 1e-6f);
        if (stage < 3)
            QCOMPARE(calibration.file().data().zeroVolt[stage + 1][0], 0.0f);
    }
    QCOMPARE(completed.count(), 1);

    // The next run counts from the beginning.
    calibration.startCalibZero();
    measured.send(52);
    QCOMPARE(completed.count(), 1);
    measured.send();
    QCOMPARE(completed.count(), 2);
}

// Each range shows another offset; y = 0.09 new + 0.91 y, so that the ranges behind the first hold a tenth of their
// own.
void TstCalibration::currentRangesOneAndTwoAreStoredCrosswise()
{
    Calibration calibration;
    calibration.startCalibZero();
    double filtered[8] = {};
    double stored[4][8];
    for (int stage = 0; stage < 4; ++stage) {
        Measured measured;
        for (int k = 0; k < 4; ++k) {
            measured.voltOffsets[k] = 0.1f * float(stage + 1) + 0.01f * float(k);
            measured.ampOffsets[k] = -0.2f * float(stage + 1) - 0.01f * float(k);
        }
        for (int k = 0; k < 8; ++k) {
            const double now = double(k < 4 ? measured.voltOffsets[k] : measured.ampOffsets[k - 4]);
            filtered[k] = stage == 0 ? now : 0.09 * now + 0.91 * filtered[k];
            stored[stage][k] = filtered[k];
        }
        measured.send(stage == 0 ? 50 : 1);
    }
    const __calib_data &data = calibration.file().data();
    const int currentRow[4] = { 0, 2, 1, 3 };
    for (int stage = 0; stage < 4; ++stage) {
        for (int k = 0; k < 4; ++k) {
            QVERIFY(std::fabs(double(data.zeroVolt[stage][k]) - stored[stage][k]) < 1e-5);
            QVERIFY(std::fabs(double(data.zeroCurrent[currentRow[stage]][k]) - stored[stage][4 + k]) < 1e-5);
        }
    }
}

// One datagram of 1 and 49 of 0 leave 0.91 to the power of 49.
void TstCalibration::offsetsAreFilteredFromDatagramToDatagram()
{
    Calibration calibration;
    calibration.startCalibZero();
    Measured first;
    first.voltOffsets = { 1, 2, 0, 0 };
    first.ampOffsets = { 0, 0, 4, 0 };
    first.send();
    Measured().send(49);
    const double rest = std::pow(0.91, 49);
    const __calib_data &data = calibration.file().data();
    QVERIFY(std::fabs(double(data.zeroVolt[0][0]) - rest) < 1e-6);
    QVERIFY(std::fabs(double(data.zeroVolt[0][1]) - 2 * rest) < 1e-6);
    QVERIFY(std::fabs(double(data.zeroCurrent[0][2]) - 4 * rest) < 1e-6);
    QCOMPARE(data.zeroVolt[0][2], 0.0f);
    Measured().send(3); // the other ranges: no count is left to the next case
}

void TstCalibration::aZeroRunStopsTheStreamWhileARangeSettles()
{
    Calibration calibration;
    calibration.startCalibZero();
    Measured().send(49);
    FrameSpy spy;
    const int pauses[] = { 200, 50, 50 }; // ms
    for (const int pause : pauses) {
        QElapsedTimer timer;
        timer.start();
        Measured().send();
        QVERIFY(timer.elapsed() >= pause);
        QCOMPARE(takeFrames(spy), (QVector<QVector<quint32>> { kStreamOff, kStreamOn }));
    }
    Measured().send();
    QCOMPARE(takeFrames(spy), QVector<QVector<quint32>> { kStreamOff });
}

void TstCalibration::aZeroRunWithAllDatagramsNaNStoresNaNOffsets()
{
    Calibration calibration;
    calibration.startCalibZero();
    Measured measured;
    measured.voltOffsets = measured.ampOffsets = { kNaN, kNaN, kNaN, kNaN };
    measured.send(53);
    for (int i = 0; i < 32; ++i)
        QVERIFY(std::isnan(calibration.file().calibData()[i]));
    QCOMPARE(calibration.file().data().volt[0][0], 39.8f);
}

namespace {

/// Offsets that tell their row and channel.
void numberOffsets(Calibration &calibration)
{
    for (int r = 0; r < 4; ++r) {
        for (int k = 0; k < 4; ++k) {
            calibration.file().data().zeroVolt[r][k] = 0.1f * float(r + 1) + 0.01f * float(k);
            calibration.file().data().zeroCurrent[r][k] = 0.5f + 0.1f * float(r) + 0.01f * float(k);
        }
    }
}

} // namespace

void TstCalibration::aVoltageRunIsSetUpByItsRow_data()
{
    QTest::addColumn<int>("volts");
    QTest::addColumn<int>("row");
    QTest::newRow("120 V") << 120 << 0;
    QTest::newRow("220 V") << 220 << 1;
    QTest::newRow("400 V") << 400 << 2;
    QTest::newRow("600 V") << 600 << 3;
}

void TstCalibration::aVoltageRunIsSetUpByItsRow()
{
    QFETCH(int, volts);
    QFETCH(int, row);
    Calibration calibration;
    numberOffsets(calibration);
    const CalibFile before = calibration.file();
    m_idevice->changeAnalogSwitchI(3);
    m_idevice->changeAnalogSwitchV(row ^ 3);
    FrameSpy spy;
    calibration.startCalibVolt(Calibration::CAL_VOLT(volts), Calibration::AllChannels);
    const __calib_data &data = calibration.file().data();
    QCOMPARE(takeFrames(spy),
             (QVector<QVector<quint32>> { calibrationFrame(rowOf(data.zeroVolt[row]), rowOf(data.zeroCurrent[0])),
                                          kStreamOn }));
    QVERIFY((switches() == Switches { row, row, 3, 3 })); // the current's stay

    const QSignalSpy completed(&calibration, &Calibration::Completed);
    Measured measured;
    measured.volts = { 1, 2, 4, 5 };
    measured.send(100);
    QCOMPARE(completed.count(), 1);
    QCOMPARE(takeFrames(spy), QVector<QVector<quint32>> { kStreamOff });
    CalibFile expected = before;
    for (int k = 0; k < 4; ++k)
        expected.data().volt[row][k] = float(volts) / measured.volts.at(k);
    QCOMPARE(memcmp(&data, &expected.data(), sizeof data), 0);
}

void TstCalibration::aCurrentRunIsSetUpByItsInput_data()
{
    QTest::addColumn<int>("input");
    QTest::addColumn<float>("millivolts");
    QTest::addColumn<int>("gainRow");
    QTest::addColumn<int>("zeroRow");
    QTest::addColumn<int>("analogSwitch");
    QTest::newRow("1 mV/A") << 0 << 100.0f << 2 << 1 << 1;
    QTest::newRow("10 mV/A") << 1 << 100.0f << 1 << 0 << 2;
    QTest::newRow("65 mV/kA") << 2 << 65.0f << 3 << 2 << 3;
    QTest::newRow("any other") << 7 << 100.0f << 1 << 3 << 2;
}

void TstCalibration::aCurrentRunIsSetUpByItsInput()
{
    QFETCH(int, input);
    QFETCH(float, millivolts);
    QFETCH(int, gainRow);
    QFETCH(int, zeroRow);
    QFETCH(int, analogSwitch);
    Calibration calibration;
    numberOffsets(calibration);
    const CalibFile before = calibration.file();
    m_idevice->changeAnalogSwitchI(0);
    m_idevice->changeAnalogSwitchV(2);
    FrameSpy spy;
    calibration.startCalibCurrent(Calibration::CAL_CURRENT(input), Calibration::AllChannels);
    const __calib_data &data = calibration.file().data();
    QCOMPARE(takeFrames(spy),
             (QVector<QVector<quint32>> { calibrationFrame(rowOf(data.zeroVolt[1]), rowOf(data.zeroCurrent[zeroRow])),
                                          kStreamOn }));
    QVERIFY((switches() == Switches { 2, 2, analogSwitch, analogSwitch }));

    Measured measured;
    measured.amps = { 0.25f, 0.5f, 1, 2 };
    measured.send(100);
    CalibFile expected = before;
    for (int k = 0; k < 4; ++k)
        expected.data().current[gainRow][k] = millivolts / measured.amps.at(k);
    QCOMPARE(memcmp(&data, &expected.data(), sizeof data), 0);
}

// The 49 before and the one behind carry a value that would show. 25 times 1 and 25 times 3 have the mean of 2.
void TstCalibration::gainsComeFromDatagramsFiftyToNinetyNineAlone()
{
    Calibration calibration;
    const QSignalSpy completed(&calibration, &Calibration::Completed);
    for (int run = 0; run < 2; ++run) {
        calibration.startCalibVolt(Calibration::Volt400, Calibration::AllChannels);
        Measured wild, low, high;
        wild.volts = { 1000, 1000, 1000, 1000 };
        high.volts = { 3, 3, 3, 3 };
        wild.send(49);
        low.send(25);
        high.send(25);
        QCOMPARE(completed.count(), run);
        wild.send();
        QCOMPARE(completed.count(), run + 1);
        QCOMPARE(calibration.file().data().volt[2][0], 200.0f);
        calibration.file().data().volt[2][0] = 0;
    }
}

void TstCalibration::aRunOnOneChannelLeavesTheOthersAsTheyWere_data()
{
    QTest::addColumn<int>("channel");
    QTest::newRow("L1") << 1;
    QTest::newRow("L2") << 2;
    QTest::newRow("L3") << 3;
    QTest::newRow("N") << 4;
}

void TstCalibration::aRunOnOneChannelLeavesTheOthersAsTheyWere()
{
    QFETCH(int, channel);
    Calibration calibration;
    calibration.startCalibVolt(Calibration::Volt220, channel);
    Measured measured;
    measured.volts = { 2, 2, 2, 2 };
    measured.send(100);
    calibration.startCalibCurrent(Calibration::Input65mV, channel);
    measured.amps = { 2, 2, 2, 2 };
    measured.send(100);
    for (int k = 0; k < 4; ++k) {
        const bool calibrated = k + 1 == channel;
        QCOMPARE(calibration.file().data().volt[1][k], calibrated ? 110.0f : 79.25f);
        QCOMPARE(calibration.file().data().current[3][k], calibrated ? 32.5f : 71.45f);
    }
}

void TstCalibration::aNaNCountsAsTenAndAnInfinityAsNothing()
{
    Calibration calibration;
    calibration.startCalibVolt(Calibration::Volt120, Calibration::AllChannels);
    Measured measured, whole;
    measured.send(49);
    measured.volts = { kNaN, kInfinity, -kInfinity, kNaN };
    measured.send(25);
    whole.volts = { 2, 2, 6, 10 };
    whole.send(25);
    measured.send();
    // Means: (10 + 2) / 2, (0 + 2) / 2, (0 + 6) / 2, 10.
    const Row expected { 120.0f / 6, 120.0f / 1, 120.0f / 3, 120.0f / 10 };
    QCOMPARE(rowOf(calibration.file().data().volt[0]), expected);
}

void TstCalibration::anInfiniteGainIsStoredAsZero_data()
{
    QTest::addColumn<float>("volts");
    QTest::newRow("an input without a signal") << 0.0f;
    QTest::newRow("all infinite") << kInfinity;
    QTest::newRow("so little that the quotient overflows") << 1e-40f;
    QTest::newRow("so much that the sum overflows") << 3e38f;
}

void TstCalibration::anInfiniteGainIsStoredAsZero()
{
    QFETCH(float, volts);
    Calibration calibration;
    calibration.startCalibVolt(Calibration::Volt600, Calibration::ChannelL2);
    Measured measured;
    measured.volts = { volts, volts, volts, volts };
    measured.send(100);
    QCOMPARE(rowOf(calibration.file().data().volt[3]), (Row { 667, 0, 667, 667 }));
}

void TstCalibration::trailingFactorsAreCarriedAlong()
{
    CalibFile file;
    for (int i = 0; i < 6; ++i)
        file.data().factors[i] = 2.5f * float(i + 1);
    file.save();
    Calibration calibration;
    calibration.startCalibZero();
    Measured().send(53);
    calibration.startCalibVolt(Calibration::Volt600, Calibration::AllChannels);
    Measured().send(100);
    calibration.save(true);
    QCOMPARE(RootFiles::read(kCalibrationFile).right(24),
             QByteArray(reinterpret_cast<const char *>(file.data().factors), 24));
}

void TstCalibration::datagramsOutsideARunChangeNothing()
{
    Calibration calibration;
    const QSignalSpy completed(&calibration, &Calibration::Completed);
    FrameSpy spy;
    Measured().send(120);
    calibration.startCalibVolt(Calibration::Volt120, Calibration::AllChannels);
    Measured().send(99);
    QCOMPARE(completed.count(), 0);
    Measured().send();
    QCOMPARE(completed.count(), 1);
    takeFrames(spy);
    Measured().send(200);
    QCOMPARE(completed.count(), 1);
    QVERIFY(takeFrames(spy).isEmpty());
    QCOMPARE(calibration.file().data().volt[0][0], 120.0f);
}

void TstCalibration::aShortDatagramIsNoDatagram()
{
    Calibration calibration;
    const QSignalSpy completed(&calibration, &Calibration::Completed);
    const auto sendShort = [] {
        for (int i = 0; i < 300; ++i)
            emit m_idevice->datagramAggregation(Measured().bytes().left(i % 144)); // 36 words hold L3, not N
    };
    calibration.startCalibZero();
    sendShort();
    QCOMPARE(completed.count(), 0);
    Measured().send(53);
    QCOMPARE(completed.count(), 1);
    calibration.startCalibVolt(Calibration::Volt120, Calibration::AllChannels);
    sendShort();
    QCOMPARE(completed.count(), 1);
    Measured().send(100);
    QCOMPARE(completed.count(), 2);
}

void TstCalibration::aRunPausesBeforeItsStream()
{
    Calibration calibration;
    for (int run = 0; run < 3; ++run) {
        QElapsedTimer timer;
        timer.start();
        if (run == 0)
            calibration.startCalibZero();
        else if (run == 1)
            calibration.startCalibVolt(Calibration::Volt220, Calibration::AllChannels);
        else
            calibration.startCalibCurrent(Calibration::Input1mV, Calibration::AllChannels);
        QVERIFY(timer.elapsed() >= 100);
        Measured().send(100);
    }
}

QTEST_GUILESS_MAIN(TstCalibration)
#include "tst_calibration.moc"
