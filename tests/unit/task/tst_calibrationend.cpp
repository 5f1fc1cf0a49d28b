// How a calibration ends: kept, given up, in mid-run, with a card that takes nothing, with a link that went away.
#include "calibrationcase.h"

#include "device/deviceinit.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/ordinaryuser.h"
#include "unit/storage/wornfile.h"

#include <QRegularExpression>

class TstCalibrationEnd : public CalibrationCase
{
    Q_OBJECT

private slots:
    void keptValuesAreStoredAndInUse();
    void aCancelledCalibrationLeavesTheFileAndMeasuresByTheStoredGains();
    void theEndStopsTheStreamAndGivesTheWiringBack();
    void aFullCardLeavesTheOldCalibrationInFileAndUse();
    void aFolderThatCannotBeWrittenLeavesTheOldCalibration();
    void aFileThatCouldNotBeReadIsNotWrittenOver();
    void aProcessorThatFallsSilentLeavesTheRunRunning();
    void aCancelledRunLeavesItsCountToTheNextOne();
    void aLinkThatComesBackBeginsTheRunAnew();
    void aLinkThatComesBackBetweenRunsIsInCalibrationModeAgain();
    void withoutAProcessorNothingHappens();

private:
    /// Calibrates the 220 V row to a gain of 110.
    static void calibrate220V(Calibration &calibration)
    {
        calibration.startCalibVolt(Calibration::Volt220, Calibration::AllChannels);
        Measured measured;
        measured.volts = { 2, 2, 2, 2 };
        measured.send(100);
        QCOMPARE(calibration.file().data().volt[1][0], 110.0f);
    }
    /// Volts per unit that the frames sent last relate the transient threshold to: of 50 V, the factory setting.
    static float gainInUse(const QVector<QVector<quint32>> &frames)
    {
        for (const QVector<quint32> &words : frames) {
            if (words.value(1) != 198)
                continue;
            float threshold;
            const quint32 word = words.value(19);
            memcpy(&threshold, &word, 4);
            return 50.0f / threshold;
        }
        return 0;
    }
};

void TstCalibrationEnd::keptValuesAreStoredAndInUse()
{
    const QByteArray before = RootFiles::read(kCalibrationFile);
    Calibration calibration;
    calibrate220V(calibration);
    QCOMPARE(RootFiles::read(kCalibrationFile), before); // nothing is stored before the end
    QCOMPARE(m_calib_data_g.data().volt[1][0], 79.25f);
    FrameSpy spy;
    calibration.save(true);
    const QByteArray after = RootFiles::read(kCalibrationFile);
    QCOMPARE(after.size(), 280);
    QCOMPARE(after.mid(144, 4), QByteArray::fromHex("0000dc42")); // 110, little-endian
    QCOMPARE(after.left(144) + after.mid(160), before.left(144) + before.mid(160));
    QCOMPARE(m_calib_data_g.data().volt[1][0], 110.0f);
    QCOMPARE(m_settingConfig_g.derived().scales.voltage[0], 110.0f);

    // Ranges of 230 V and the clamp in use, then set-up, version and stream.
    QVERIFY((switches() == Switches { 1, 1, 3, 3 }));
    const auto frames = takeFrames(spy);
    QCOMPARE(frames.size(), 3);
    QCOMPARE(gainInUse(frames), 110.0f);
    QCOMPARE(frames.at(1), (QVector<quint32> { 122, 194, 0, 123 }));
    QCOMPARE(frames.at(2), kStreamOn);
}

void TstCalibrationEnd::aCancelledCalibrationLeavesTheFileAndMeasuresByTheStoredGains()
{
    CalibFile stored;
    stored.data().volt[1][0] = 80.0f;
    stored.data().zeroVolt[1][0] = 0.25f;
    stored.data().zeroCurrent[3][2] = -0.5f;
    stored.save();
    m_calib_data_g.load();
    m_settingConfig_g.followSettings();
    const QByteArray before = RootFiles::read(kCalibrationFile);
    FrameSpy spy;
    DeviceInit::setupADSP21479();
    const auto setUp = takeFrames(spy);
    QCOMPARE(gainInUse(setUp), 80.0f);

    {
        Calibration calibration;
        calibration.startCalibZero();
        Measured().send(53);
        calibrate220V(calibration);
        takeFrames(spy);
        calibration.save(false);
    }
    QCOMPARE(RootFiles::read(kCalibrationFile), before);
    QCOMPARE(m_settingConfig_g.derived().scales.voltage[0], 80.0f);
    QVERIFY((switches() == Switches { 1, 1, 3, 3 }));
    const auto frames = takeFrames(spy);
    QCOMPARE(frames.first(), setUp.first()); // word for word what measuring was set up with
    QCOMPARE(frames.mid(1), (QVector<QVector<quint32>> { { 122, 194, 0, 123 }, kStreamOn, kStreamOff }));
}

void TstCalibrationEnd::theEndStopsTheStreamAndGivesTheWiringBack()
{
    m_settingConfig_g.setJoinMode(4);
    auto calibration = std::make_unique<Calibration>();
    calibration->startCalibVolt(Calibration::Volt220, Calibration::AllChannels);
    m_settingConfig_g.setJoinMode(1);
    FrameSpy spy;
    calibration.reset();
    QCOMPARE(takeFrames(spy), QVector<QVector<quint32>> { kStreamOff });
    QCOMPARE(m_settingConfig_g.getJoinMode(), 4);
    QVERIFY(RootFiles::read(SettingConfig::filePath()).contains("JOINMODE=4\n"));
    Measured().send(100); // to nobody
}

void TstCalibrationEnd::aFullCardLeavesTheOldCalibrationInFileAndUse()
{
    const QByteArray before = RootFiles::read(kCalibrationFile);
    Calibration calibration;
    calibrate220V(calibration);
    for (const rlim_t n : { 0, 100, 279 }) {
        FileLimit full(n);
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("open calib file error!")));
        calibration.save(true);
    }
    QCOMPARE(RootFiles::read(kCalibrationFile), before);
    QVERIFY(!RootFiles::exists(kCalibrationFile + QStringLiteral(".bak")));
    QCOMPARE(m_calib_data_g.data().volt[1][0], 79.25f);
    QCOMPARE(m_settingConfig_g.derived().scales.voltage[0], 79.25f);
}

void TstCalibrationEnd::aFolderThatCannotBeWrittenLeavesTheOldCalibration()
{
    const QByteArray before = RootFiles::read(kCalibrationFile);
    {
        Calibration calibration;
        calibrate220V(calibration);
        OrdinaryUser user;
        user.setFolderMode(QFile::encodeName(Target::path(QStringLiteral("/mnt/calibration"))), 0555);
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("open calib file error!")));
        calibration.save(true);
    }
    QCOMPARE(RootFiles::read(kCalibrationFile), before);
    QCOMPARE(m_settingConfig_g.derived().scales.voltage[0], 79.25f);
}

void TstCalibrationEnd::aFileThatCouldNotBeReadIsNotWrittenOver()
{
    QVERIFY(makeWornFile(kCalibrationFile));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("read calib file error!")));
    Calibration calibration;
    calibrate220V(calibration);
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression(QStringLiteral("calib file could not be read, is not written over")));
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("read calib file error!")));
    calibration.save(true);
    QVERIFY(isWornFile(kCalibrationFile));
    QCOMPARE(m_settingConfig_g.derived().scales.voltage[0], 79.25f);
}

void TstCalibrationEnd::aProcessorThatFallsSilentLeavesTheRunRunning()
{
    const QByteArray before = RootFiles::read(kCalibrationFile);
    Calibration calibration;
    const QSignalSpy completed(&calibration, &Calibration::Completed);
    calibration.startCalibVolt(Calibration::Volt220, Calibration::AllChannels);
    Measured().send(70);
    QTest::qWait(1500); // no clock ends it
    QCOMPARE(completed.count(), 0);
    calibration.save(false);
    QCOMPARE(RootFiles::read(kCalibrationFile), before);
    Measured().send(30); // it is not dead either, and leaves no count to the next case
    QCOMPARE(completed.count(), 1);
}

void TstCalibrationEnd::aCancelledRunLeavesItsCountToTheNextOne()
{
    {
        Calibration calibration;
        calibration.startCalibZero();
        Measured measured;
        measured.voltOffsets = { 1, 1, 1, 1 };
        measured.send(30);
        calibration.startCalibVolt(Calibration::Volt120, Calibration::AllChannels);
        measured.send(40);
    }
    Calibration calibration;
    const QSignalSpy completed(&calibration, &Calibration::Completed);
    calibration.startCalibZero();
    Measured().send(20); // the fiftieth, and what the first thirty left of 1
    QVERIFY(std::fabs(double(calibration.file().data().zeroVolt[0][0]) - std::pow(0.91, 20)) < 1e-6);
    Measured().send(3);
    QCOMPARE(completed.count(), 1);
    calibration.startCalibVolt(Calibration::Volt120, Calibration::AllChannels);
    Measured().send(59);
    QCOMPARE(completed.count(), 1);
    Measured().send(); // 40 and 60
    QCOMPARE(completed.count(), 2);
}

void TstCalibrationEnd::aLinkThatComesBackBeginsTheRunAnew()
{
    Calibration calibration;
    const QSignalSpy completed(&calibration, &Calibration::Completed);
    calibration.file().data().zeroVolt[1][2] = 0.5f;
    const Row offsets = rowOf(calibration.file().data().zeroVolt[1]);
    calibration.startCalibVolt(Calibration::Volt220, Calibration::AllChannels);
    Measured().send(90);
    m_idevice->changeAnalogSwitchV(3); // as measuring needs it
    FrameSpy spy;
    emit m_idevice->reopened();
    QCOMPARE(takeFrames(spy),
             (QVector<QVector<quint32>> { kStreamOff, calibrationFrame(), calibrationFrame(offsets), kStreamOn }));
    QVERIFY((switches() == Switches { 1, 1, switches().phaseCurrent, switches().neutralCurrent }));
    Measured measured;
    measured.volts = { 2, 2, 2, 2 };
    measured.send(99);
    QCOMPARE(completed.count(), 0);
    measured.send();
    QCOMPARE(completed.count(), 1);
    QCOMPARE(calibration.file().data().volt[1][0], 110.0f);

    calibration.startCalibZero();
    Measured().send(52);
    emit m_idevice->reopened();
    QVERIFY((switches() == Switches { 0, 0, 0, 0 }));
    Measured().send(52);
    QCOMPARE(completed.count(), 1);
    Measured().send();
    QCOMPARE(completed.count(), 2);
}

void TstCalibrationEnd::aLinkThatComesBackBetweenRunsIsInCalibrationModeAgain()
{
    Calibration calibration;
    FrameSpy spy;
    emit m_idevice->reopened();
    QCOMPARE(takeFrames(spy), (QVector<QVector<quint32>> { kStreamOff, calibrationFrame() }));
}

void TstCalibrationEnd::withoutAProcessorNothingHappens()
{
    delete m_idevice;
    {
        Calibration calibration;
        calibration.startCalibZero();
        calibration.startCalibVolt(Calibration::Volt120, Calibration::AllChannels);
        calibration.startCalibCurrent(Calibration::Input1mV, Calibration::AllChannels);
        calibration.save(true);
    }
    m_idevice = new IDevice;
}

QTEST_GUILESS_MAIN(TstCalibrationEnd)
#include "tst_calibrationend.moc"
