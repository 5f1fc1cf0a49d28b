#include "settings/config_data.h"
#include "device/devicegpio.h"
#include "device/deviceinit.h"
#include "device/idevice.h"
#include "board/softpower.h"
#include "platform/target.h"
#include "device/gpiofiles.h"
#include "stdoutcapture.h"
#include "unit/filestandin.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

/// The range switches. The kernel's files are played by links to one pipe, so the order of all writes shows.
class TstDeviceGpio : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void setUpExportsAndSwitchesOnInItsOrder();
    void lineThatExistsIsNotExportedAgainButSetToOutput();
    void selectorWritesBit1ThenBit0_data();
    void selectorWritesBit1ThenBit0();
    void onlyTwoBitsOfAValueCount();
    void rangesFollowTheIndices_data();
    void rangesFollowTheIndices();
    void currentIndexOf0SelectsTheValue0();
    void indexOutsideTheTableSelectsTheValue1();
    void analogSwitchesSetPhaseThenNeutral();
    void openingALine();
    void lineThatIsNoFileHoldsNobodyUp_data() { addFileStandIns(); }
    void lineThatIsNoFileHoldsNobodyUp();
    void powerOffLatchesTheSupply();

private:
    /// Makes a line's file write into the pipe; what it writes is distinguished by the order only.
    void watch(const QString &boardPath);
    QByteArray written();

    int m_pipe = -1;
};

namespace {
QString gpio(int line, const char *file)
{
    return QStringLiteral("/sys/class/gpio/gpio%1/%2").arg(line).arg(QLatin1String(file));
}
const int kLines[] = { 56, 54, 58, 50, 52, 48, 57, 55, 59, 49, 53, 51 };
} // namespace

void TstDeviceGpio::init()
{
    const QString pipe = Target::path(QStringLiteral("/pipe"));
    QFile::remove(pipe);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    m_pipe = ::open(QFile::encodeName(pipe).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    QVERIFY(m_pipe >= 0);
    for (int line : kLines) {
        QVERIFY(QDir().mkpath(Target::path(QStringLiteral("/sys/class/gpio/gpio%1").arg(line))));
        for (const char *file : { "value", "direction" })
            QFile::remove(Target::path(gpio(line, file)));
    }
}

void TstDeviceGpio::cleanup()
{
    ::close(m_pipe);
    QDir(Target::path(QStringLiteral("/sys/class/gpio"))).removeRecursively();
    QDir().mkpath(Target::path(QStringLiteral("/sys/class/gpio")));
}

void TstDeviceGpio::watch(const QString &boardPath)
{
    const QString path = Target::path(boardPath);
    QFile::remove(path);
    QVERIFY(QFile::link(Target::path(QStringLiteral("/pipe")), path));
}

QByteArray TstDeviceGpio::written()
{
    char bytes[4096];
    const ssize_t n = ::read(m_pipe, bytes, sizeof(bytes));
    return n > 0 ? QByteArray(bytes, int(n)) : QByteArray();
}

void TstDeviceGpio::setUpExportsAndSwitchesOnInItsOrder()
{
    watch(QStringLiteral("/sys/class/gpio/export"));
    for (int line : kLines)
        QVERIFY(QDir(Target::path(QStringLiteral("/sys/class/gpio/gpio%1").arg(line))).removeRecursively());
    // The folders do not appear: every later command fails in its shell, and nothing stops.
    DeviceGPIO gpioLines;
    QCOMPARE(written(), QByteArray("56\n54\n58\n50\n52\n48\n57\n55\n59\n49\n53\n51\n"));

    for (int line : kLines)
        QVERIFY(QDir().mkpath(Target::path(QStringLiteral("/sys/class/gpio/gpio%1").arg(line))));
    for (int line : kLines) {
        watch(gpio(line, "value"));
        watch(gpio(line, "direction"));
    }
    gpioLines.resetDeviceGPIO();
    QByteArray expected;
    for (int i = 0; i < 12; ++i)
        expected += "out\n";
    expected += "1\n1\n1\n1\n"; // the four enable lines come last
    QCOMPARE(written(), expected);
    gpioLines.closeDeviceGPIO();
    QCOMPARE(written(), QByteArray());
}

void TstDeviceGpio::lineThatExistsIsNotExportedAgainButSetToOutput()
{
    DeviceGPIO gpioLines;
    watch(QStringLiteral("/sys/class/gpio/export"));
    gpioLines.initGPIO(QStringLiteral("54"));
    QCOMPARE(written(), QByteArray());
    QFile direction(Target::path(gpio(54, "direction")));
    QVERIFY(direction.open(QIODevice::ReadOnly));
    QCOMPARE(direction.readAll(), QByteArray("out\n"));
    for (int line : { 56, 50, 57, 49 }) {
        QFile enable(Target::path(gpio(line, "value")));
        QVERIFY(enable.open(QIODevice::ReadOnly));
        QCOMPARE(enable.readAll(), QByteArray("1\n"));
    }
}

void TstDeviceGpio::selectorWritesBit1ThenBit0_data()
{
    QTest::addColumn<int>("channel"); // 0 phase current, 1 phase voltage, 2 neutral current, 3 neutral voltage
    QTest::addColumn<int>("bit1");
    QTest::addColumn<int>("bit0");
    QTest::newRow("phase current") << 0 << 54 << 58;
    QTest::newRow("phase voltage") << 1 << 52 << 48;
    QTest::newRow("neutral current") << 2 << 55 << 59;
    QTest::newRow("neutral voltage") << 3 << 53 << 51;
}

void TstDeviceGpio::selectorWritesBit1ThenBit0()
{
    QFETCH(int, channel);
    QFETCH(int, bit1);
    QFETCH(int, bit0);
    DeviceGPIO gpioLines;
    void (DeviceGPIO::*const kOperations[])(int) = { &DeviceGPIO::changeCurrentGPIO, &DeviceGPIO::changeVoltGPIO,
                                                     &DeviceGPIO::changeNCurrentGPIO, &DeviceGPIO::changeNVoltGPIO };
    const QByteArray truth[] = { "0\n0\n", "0\n1\n", "1\n0\n", "1\n1\n" };
    for (int line : kLines)
        QFile::remove(Target::path(gpio(line, "value")));
    for (int value = 0; value < 4; ++value) {
        watch(gpio(bit1, "value"));
        watch(gpio(bit0, "value"));
        (gpioLines.*kOperations[channel])(value);
        QCOMPARE(written(), truth[value]);
    }
    for (int line : kLines) // no other line was touched
        QVERIFY(line == bit1 || line == bit0 || !QFile::exists(Target::path(gpio(line, "value"))));
}

void TstDeviceGpio::onlyTwoBitsOfAValueCount()
{
    DeviceGPIO gpioLines;
    watch(gpio(52, "value"));
    watch(gpio(48, "value"));
    gpioLines.changeVoltGPIO(6);
    QCOMPARE(written(), QByteArray("1\n0\n"));
    gpioLines.changeVoltGPIO(-1);
    QCOMPARE(written(), QByteArray("1\n1\n"));
}

void TstDeviceGpio::rangesFollowTheIndices_data()
{
    QTest::addColumn<int>("volts"); // custom nominal voltage, star
    QTest::addColumn<int>("clampRange"); // A at 1000 uV/A
    QTest::addColumn<QByteArray>("written"); // phase current, neutral current, phase voltage, neutral voltage
    // Current index 3, 1, 2 selects 3, 2, 1. The neutral clamp stays at index 3.
    QTest::newRow("129 V, 252 A") << 129 << 252 << QByteArray("1\n1\n1\n1\n0\n0\n0\n0\n");
    QTest::newRow("130 V, 253 A") << 130 << 253 << QByteArray("1\n0\n1\n1\n0\n1\n0\n1\n");
    QTest::newRow("240 V, 757 A") << 240 << 757 << QByteArray("1\n0\n1\n1\n1\n0\n1\n0\n");
    QTest::newRow("410 V, 758 A") << 410 << 758 << QByteArray("0\n1\n1\n1\n1\n1\n1\n1\n");
}

void TstDeviceGpio::rangesFollowTheIndices()
{
    QFETCH(int, volts);
    QFETCH(int, clampRange);
    QFETCH(QByteArray, written);
    StdoutCapture noNode;
    Clamp *phase = m_settingConfig_g.clamps()->getCurClamp(), *neutral = m_settingConfig_g.clampsN()->getCurClamp();
    phase->setRatio(1000);
    phase->setRange(clampRange);
    neutral->setRatio(1000);
    neutral->setRange(10);
    m_settingConfig_g.setJoinMode(1);
    m_settingConfig_g.setNomVoltStarSelect(9);
    m_settingConfig_g.setNomVoltStarCustom(volts);
    m_settingConfig_g.followSettings();
    m_idevice = new IDevice;
    for (int line : { 54, 58, 55, 59, 52, 48, 53, 51 })
        watch(gpio(line, "value"));
    DeviceInit::set_analog_channel();
    QCOMPARE(this->written(), written);
    delete m_idevice;
}

void TstDeviceGpio::currentIndexOf0SelectsTheValue0()
{
    // No clamp leads to index 0; the table has the row all the same.
    const int current[] = { 0, 2, 1, 3 };
    for (int index = 0; index < 4; ++index) {
        QCOMPARE(DeviceInit::selectorOfCurrent(index), current[index]);
        QCOMPARE(DeviceInit::selectorOfVolt(index), index);
    }
}

void TstDeviceGpio::indexOutsideTheTableSelectsTheValue1()
{
    for (int index : { 4, 5, 1000000, -1 }) {
        QCOMPARE(DeviceInit::selectorOfCurrent(index), 1);
        QCOMPARE(DeviceInit::selectorOfVolt(index), 1);
    }
}

void TstDeviceGpio::analogSwitchesSetPhaseThenNeutral()
{
    StdoutCapture noNode;
    IDevice device;
    for (int line : { 54, 58, 55, 59 })
        watch(gpio(line, "value"));
    device.changeAnalogSwitchI(2);
    QCOMPARE(written(), QByteArray("1\n0\n1\n0\n"));
    device.changeNCurrentGPIO(1);
    QCOMPARE(written(), QByteArray("0\n1\n"));
    for (int line : { 52, 48, 53, 51 })
        watch(gpio(line, "value"));
    device.changeAnalogSwitchV(1);
    QCOMPARE(written(), QByteArray("0\n1\n0\n1\n"));
}

void TstDeviceGpio::openingALine()
{
    DeviceGPIO gpioLines;
    const int fd = gpioLines.openGPIODev(QStringLiteral("56")); // the enable line was written
    QVERIFY(fd >= 0);
    ::close(fd);
    QTest::ignoreMessage(QtDebugMsg,
                         QRegularExpression(QStringLiteral("^F: device/devicegpio L: [0-9]+ > gpio open err!$")));
    QVERIFY(gpioLines.openGPIODev(QStringLiteral("999")) < 0);
}

void TstDeviceGpio::lineThatIsNoFileHoldsNobodyUp()
{
    QFETCH(FileStandIn, kind);
    const QStringList paths { QStringLiteral("/sys/class/gpio/export"), gpio(56, "direction"), gpio(56, "value") };
    for (const QString &path : paths)
        QVERIFY(putStandIn(path, kind));
    ::alarm(20); // a writer that waits for a reader of the pipe would wait for ever
    DeviceGPIO gpioLines;
    gpioLines.changeCurrentGPIO(3);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("gpio open err!$")));
    QVERIFY(gpioLines.openGPIODev(QStringLiteral("56")) < 0);
    QCOMPARE(GpioFiles::isHigh(56), false);
    ::alarm(0);
    for (const QString &path : paths)
        removeStandIn(path);
}

void TstDeviceGpio::powerOffLatchesTheSupply()
{
    QVERIFY(QDir().mkpath(Target::path(QStringLiteral("/sys/class/gpio/gpio47"))));
    watch(QStringLiteral("/sys/class/gpio/export"));
    watch(gpio(47, "direction"));
    watch(gpio(47, "value"));
    SoftPower::powerOff();
    QCOMPARE(written(), QByteArray("47\nout\n1\n"));
}

QTEST_GUILESS_MAIN(TstDeviceGpio)
#include "tst_devicegpio.moc"
