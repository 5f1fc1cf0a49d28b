#include "board/boardfiles.h"
#include "board/usbdisks.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace board;

namespace {

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

void write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}

} // namespace

/// The board's files under the root, and its USB disks.
class TstProcessorBoard : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void missingFilesAreMade();
    void preparedRootIsUsedAsItStands();
    void rootThatCannotBeWrittenIsOneLine();
    void selectorsAreReadBitByBit_data();
    void selectorsAreReadBitByBit();
    void halfWrittenLineKeepsTheLastRange();
    void gaugeFollowsTheDividerOfTheBoard_data();
    void gaugeFollowsTheDividerOfTheBoard();
    void chargerShowsOnTwoLines();
    void networkShowsItsCarrier();
    void diskComesAndGoesAsAFolder();
    void pulledDiskKeepsItsContent();
    void diskOverItsSizeIsNamed();
    void wrongNamesAreRefused_data();
    void wrongNamesAreRefused();
    void sizesAreBytesOrPowersOf1024();

private:
    QString gpio(int number, const char *file = "value") const
    {
        return m_root->filePath(QString("sys/class/gpio/gpio%1/%2").arg(number).arg(file));
    }
    QScopedPointer<QTemporaryDir> m_root;
    QScopedPointer<BoardFiles> m_files;
};

void TstProcessorBoard::init()
{
    m_root.reset(new QTemporaryDir);
    m_files.reset(new BoardFiles(m_root->path()));
}

void TstProcessorBoard::missingFilesAreMade()
{
    QString error;
    QVERIFY2(m_files->prepare(&error), qPrintable(error));
    for (int number : { 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59 }) {
        QCOMPARE(read(gpio(number)), QByteArray("0\n"));
        QCOMPARE(read(gpio(number, "direction")), QByteArray("out\n"));
    }
    for (int number : { 105, 117 })
        QCOMPARE(read(gpio(number, "direction")), QByteArray("in\n"));
    QVERIFY(QDir(m_root->filePath("run/media")).exists());
    QVERIFY(QFile::exists(m_root->filePath("sys/class/backlight/backlight/brightness")));
    QVERIFY(read(m_root->filePath("sys/bus/iio/devices/iio:device0/in_voltage0_raw")).toInt() > 2000);
}

void TstProcessorBoard::preparedRootIsUsedAsItStands()
{
    QDir().mkpath(m_root->filePath("sys/class/gpio/gpio54"));
    write(gpio(54), "1\n");
    QString error;
    QVERIFY(m_files->prepare(&error));
    QCOMPARE(read(gpio(54)), QByteArray("1\n"));
}

void TstProcessorBoard::rootThatCannotBeWrittenIsOneLine()
{
    write(m_root->filePath("file"), "");
    BoardFiles files(m_root->filePath("file/below"));
    QString error;
    QVERIFY(!files.prepare(&error));
    QVERIFY(error.startsWith("cannot write " + m_root->filePath("file/below")));
    QVERIFY(!error.contains('\n'));
}

void TstProcessorBoard::selectorsAreReadBitByBit_data()
{
    QTest::addColumn<QList<int>>("high"); // lines that stand at 1
    QTest::addColumn<QList<int>>("expected"); // phase and neutral voltage, phase and neutral current
    QTest::newRow("all low") << QList<int> {} << QList<int> { 0, 0, 0, 0 };
    QTest::newRow("phase voltage, bit 1") << QList<int> { 52 } << QList<int> { 2, 0, 0, 0 };
    QTest::newRow("phase voltage, bit 0") << QList<int> { 48 } << QList<int> { 1, 0, 0, 0 };
    QTest::newRow("neutral voltage, bit 1") << QList<int> { 53 } << QList<int> { 0, 2, 0, 0 };
    QTest::newRow("neutral voltage, bit 0") << QList<int> { 51 } << QList<int> { 0, 1, 0, 0 };
    QTest::newRow("phase current, bit 1") << QList<int> { 54 } << QList<int> { 0, 0, 2, 0 };
    QTest::newRow("phase current, bit 0") << QList<int> { 58 } << QList<int> { 0, 0, 1, 0 };
    QTest::newRow("neutral current, bit 1") << QList<int> { 55 } << QList<int> { 0, 0, 0, 2 };
    QTest::newRow("neutral current, bit 0") << QList<int> { 59 } << QList<int> { 0, 0, 0, 1 };
    QTest::newRow("enable lines select nothing") << QList<int> { 49, 50, 56, 57 } << QList<int> { 0, 0, 0, 0 };
    QTest::newRow("all high") << QList<int> { 48, 51, 52, 53, 54, 55, 58, 59 } << QList<int> { 3, 3, 3, 3 };
}

void TstProcessorBoard::selectorsAreReadBitByBit()
{
    QFETCH(QList<int>, high);
    QFETCH(QList<int>, expected);
    QString error;
    QVERIFY(m_files->prepare(&error));
    for (int number : high)
        write(gpio(number), "1\n");
    const RangeSelectors ranges = m_files->ranges({});
    QCOMPARE((QList<int> { ranges.phaseVoltage, ranges.neutralVoltage, ranges.phaseCurrent, ranges.neutralCurrent }),
             expected);
}

void TstProcessorBoard::halfWrittenLineKeepsTheLastRange()
{
    QString error;
    QVERIFY(m_files->prepare(&error));
    RangeSelectors last;
    last.phaseVoltage = 3;
    write(gpio(52), ""); // as between emptying and filling
    QCOMPARE(m_files->ranges(last).phaseVoltage, 3);
    QFile::remove(gpio(52));
    QCOMPARE(m_files->ranges(last).phaseVoltage, 3);
}

void TstProcessorBoard::gaugeFollowsTheDividerOfTheBoard_data()
{
    // volts = raw / 4096 * 1.8 / 1.5 * 11.5, so raw = volts * 4096 / 13.8.
    QTest::addColumn<double>("volts");
    QTest::addColumn<int>("raw");
    QTest::newRow("7.4 V: 2196.4") << 7.4 << 2196;
    QTest::newRow("6.3 V: 1869.9") << 6.3 << 1870;
    QTest::newRow("0 V") << 0.0 << 0;
    QTest::newRow("below") << -1.0 << 0;
    QTest::newRow("above the converter") << 20.0 << 4095;
    QTest::newRow("no number") << std::nan("") << 0;
}

void TstProcessorBoard::gaugeFollowsTheDividerOfTheBoard()
{
    QFETCH(double, volts);
    QFETCH(int, raw);
    QCOMPARE(BoardFiles::gaugeReading(volts), raw);
}

void TstProcessorBoard::chargerShowsOnTwoLines()
{
    QString error;
    QVERIFY(m_files->prepare(&error));
    const auto lines = [this] { return read(gpio(105)) + read(gpio(117)); };
    QVERIFY(m_files->setCharger(Charger::Charging));
    QCOMPARE(lines(), QByteArray("1\n0\n"));
    QVERIFY(m_files->setCharger(Charger::Full));
    QCOMPARE(lines(), QByteArray("1\n1\n"));
    QVERIFY(m_files->setCharger(Charger::Off));
    QCOMPARE(lines(), QByteArray("0\n0\n"));
}

void TstProcessorBoard::networkShowsItsCarrier()
{
    QString error;
    QVERIFY(m_files->prepare(&error));
    QVERIFY(m_files->setNetwork(false));
    QCOMPARE(read(m_root->filePath("sys/class/net/eth0/carrier")), QByteArray("0\n"));
}

void TstProcessorBoard::diskComesAndGoesAsAFolder()
{
    UsbDisks disks(m_root->path());
    QCOMPARE(disks.insert("STICK", 0), QString());
    QVERIFY(QDir(m_root->filePath("run/media/STICK")).exists());
    QCOMPARE(disks.inserted(), QStringList { "STICK" });
    QCOMPARE(disks.insert("STICK", 0), QString("STICK is in already"));
    QCOMPARE(disks.pull("STICK"), QString());
    QVERIFY(!QDir(m_root->filePath("run/media/STICK")).exists());
    QCOMPARE(disks.pull("STICK"), QString("STICK is not in"));
}

void TstProcessorBoard::pulledDiskKeepsItsContent()
{
    UsbDisks disks(m_root->path());
    QCOMPARE(disks.insert("STICK", 0), QString());
    write(m_root->filePath("run/media/STICK/Firmware.upd"), "new");
    QCOMPARE(disks.pull("STICK"), QString());
    QCOMPARE(disks.insert("STICK", 0), QString());
    QCOMPARE(read(m_root->filePath("run/media/STICK/Firmware.upd")), QByteArray("new"));
}

void TstProcessorBoard::diskOverItsSizeIsNamed()
{
    UsbDisks disks(m_root->path());
    QCOMPARE(disks.insert("SMALL", 1024), QString());
    QCOMPARE(read(m_root->filePath("run/media/SMALL/.capacity")), QByteArray("1024\n"));
    write(m_root->filePath("run/media/SMALL/data"), QByteArray(1024, 'x'));
    QCOMPARE(disks.overfull(), QStringList());
    write(m_root->filePath("run/media/SMALL/more"), "x");
    QCOMPARE(disks.overfull(), QStringList { "SMALL" });
}

void TstProcessorBoard::wrongNamesAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("parent") << "..";
    QTest::newRow("hidden") << ".x";
    QTest::newRow("path") << "a/b";
    QTest::newRow("absolute") << "/etc";
    QTest::newRow("long") << QString(65, 'x');
}

void TstProcessorBoard::wrongNamesAreRefused()
{
    QFETCH(QString, name);
    UsbDisks disks(m_root->path());
    QVERIFY(!disks.insert(name, 0).isEmpty());
    QVERIFY(!disks.pull(name).isEmpty());
    QVERIFY(disks.inserted().isEmpty());
}

void TstProcessorBoard::sizesAreBytesOrPowersOf1024()
{
    QCOMPARE(UsbDisks::sizeFromText("100"), qint64(100));
    QCOMPARE(UsbDisks::sizeFromText("64k"), qint64(65536));
    QCOMPARE(UsbDisks::sizeFromText("16M"), qint64(16777216));
    QCOMPARE(UsbDisks::sizeFromText("2G"), qint64(2147483648));
    for (const char *wrong : { "", "M", "-1", "1T", "1.5M", "99999999999" })
        QCOMPARE(UsbDisks::sizeFromText(wrong), qint64(-1));
}

QTEST_GUILESS_MAIN(TstProcessorBoard)
#include "tst_processor_board.moc"
