#include <QRegularExpression>
#include <QTest>

#include "settings/calibfile.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"
#include "unit/storage/wornfile.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace {

const QString kPath = QStringLiteral("/mnt/calibration/calibration.dat");

quint32 bits(float value)
{
    quint32 word;
    memcpy(&word, &value, sizeof(word));
    return word;
}

QByteArray floats(int count, float first)
{
    QByteArray bytes;
    for (int i = 0; i < count; ++i) {
        const float value = first + i;
        bytes.append(reinterpret_cast<const char *>(&value), sizeof(value));
    }
    return bytes;
}

} // namespace

/// The calibration block and its file.
class TstCalibFile : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void theFactoryDefaults()
    {
        const CalibFile file;
        const float *block = file.calibData();
        for (int i = 0; i < 32; ++i)
            QCOMPARE(block[i], 0.0f);
        for (int k = 0; k < 4; ++k) {
            QCOMPARE(bits(block[32 + k]), 0x421F3333u); // 39.8
            QCOMPARE(block[36 + k], 79.25f);
            QCOMPARE(block[40 + k], 153.6f);
            QCOMPARE(block[44 + k], 667.0f);
            QCOMPARE(block[48 + k], 99.4f);
            QCOMPARE(bits(block[52 + k]), 0x43567333u); // 214.45
            QCOMPARE(bits(block[56 + k]), 0x438EDC29u); // 285.72
            QCOMPARE(bits(block[60 + k]), 0x428EE666u); // 71.45
        }
        for (int i = 64; i < 70; ++i)
            QCOMPARE(block[i], 1.0f);
    }

    void aMissingFileIsWrittenWithTheDefaults()
    {
        QDir(Target::path("/mnt/calibration")).removeRecursively();
        const CalibFile file;
        const QByteArray bytes = RootFiles::read(kPath);
        QCOMPARE(bytes.size(), 280);
        QCOMPARE(bytes.mid(128, 4), QByteArray::fromHex("33331f42")); // 39.8, little-endian
        QCOMPARE(RootFiles::commands(), QByteArray("sync\n"));
    }

    void theFileIsReadOverTheBlock()
    {
        RootFiles::write(kPath, floats(70, 1000.0f));
        const CalibFile file;
        for (int i = 0; i < 70; ++i)
            QCOMPARE(file.calibData()[i], 1000.0f + i);
        QCOMPARE(file.data().zeroVolt[1][2], 1006.0f);
        QCOMPARE(file.data().zeroCurrent[0][0], 1016.0f);
        QCOMPARE(file.data().volt[2][3], 1043.0f);
        QCOMPARE(file.data().current[3][1], 1061.0f);
        QCOMPARE(file.data().factors[5], 1069.0f);
    }

    void aShortFileLeavesTheTailAtItsDefaults_data()
    {
        QTest::addColumn<int>("size");
        for (int size : { 0, 1, 3, 4, 130, 144, 279 })
            QTest::addRow("%d bytes", size) << size;
    }
    void aShortFileLeavesTheTailAtItsDefaults()
    {
        QFETCH(int, size);
        RootFiles::write(kPath, floats(70, 1000.0f).left(size));
        const CalibFile file;
        CalibFile defaults;
        defaults.initCalibData();
        for (int i = 0; i < 70; ++i)
            QCOMPARE(file.calibData()[i], i < size / 4 ? 1000.0f + i : defaults.calibData()[i]);
    }

    void aLongFileIsCut()
    {
        RootFiles::write(kPath, floats(90, 5.0f));
        QCOMPARE(CalibFile().calibData()[69], 74.0f);
    }

    void valuesAreTakenAsTheyStand()
    {
        QByteArray bytes = floats(70, 0.0f);
        const float wild[] = { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity() };
        memcpy(bytes.data(), wild, sizeof(wild));
        RootFiles::write(kPath, bytes);
        const CalibFile file;
        QVERIFY(std::isnan(file.calibData()[0]));
        QVERIFY(std::isinf(file.calibData()[1]));
    }

    void savedValuesAreLoadedByAnother()
    {
        CalibFile procedure;
        procedure.data().volt[1][0] = 80.5f;
        procedure.save();
        CalibFile running;
        QCOMPARE(running.data().volt[1][0], 80.5f);
        QVERIFY(!RootFiles::exists(kPath + ".bak"));
    }

    void aFullDiskKeepsTheOldCalibration()
    {
        CalibFile file;
        file.data().volt[1][0] = 80.5f;
        file.save();
        file.data().volt[1][0] = 1.0f;
        for (rlim_t n : { 0, 1, 100, 279 }) {
            FileLimit full(n);
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open calib file error!"));
            file.save();
        }
        QCOMPARE(CalibFile().data().volt[1][0], 80.5f);
    }

    void aCalibrationThatCouldNotBeReadIsNotWrittenOver()
    {
        QVERIFY(makeWornFile(kPath));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("read calib file error!"));
        CalibFile file;
        QCOMPARE(file.data().volt[0][0], 39.8f);
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("calib file could not be read, is not written over"));
        file.save();
        QVERIFY(isWornFile(kPath));
    }

    void aFolderInPlaceOfTheFileLeavesTheDefaults()
    {
        QVERIFY(QDir().mkpath(Target::path(kPath)));
        CalibFile file;
        QCOMPARE(file.data().volt[1][0], 79.25f);
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open calib file error!"));
        file.save();
    }
};

QTEST_GUILESS_MAIN(TstCalibFile)
#include "tst_calibfile.moc"
