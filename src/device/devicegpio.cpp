#include "device/devicegpio.h"

#include "device/gpiofiles.h"
#include "device/trace.h"
#include "platform/ordinaryfile.h"

#include <QFile>
#include <fcntl.h>

namespace {

/// Lines of one channel.
struct ChannelLines
{
    int bit1;
    int bit0;
    int enable;
};
constexpr ChannelLines kPhaseCurrent = { 54, 58, 56 };
constexpr ChannelLines kPhaseVolt = { 52, 48, 50 };
constexpr ChannelLines kNeutralCurrent = { 55, 59, 57 };
constexpr ChannelLines kNeutralVolt = { 53, 51, 49 };

constexpr const ChannelLines *kSetUpOrder[] = { &kPhaseCurrent, &kPhaseVolt, &kNeutralCurrent, &kNeutralVolt };

void select(const ChannelLines &lines, int value)
{
    GpioFiles::writeValue(lines.bit1, value & 2);
    GpioFiles::writeValue(lines.bit0, value & 1);
}

} // namespace

DeviceGPIO::DeviceGPIO(QObject *parent) : QObject(parent)
{
    initDeviceGPIO();
}

void DeviceGPIO::changeCurrentGPIO(int value)
{
    select(kPhaseCurrent, value);
}

void DeviceGPIO::changeVoltGPIO(int value)
{
    select(kPhaseVolt, value);
}

void DeviceGPIO::changeNCurrentGPIO(int value)
{
    select(kNeutralCurrent, value);
}

void DeviceGPIO::changeNVoltGPIO(int value)
{
    select(kNeutralVolt, value);
}

void DeviceGPIO::initDeviceGPIO()
{
    for (const ChannelLines *lines : kSetUpOrder) {
        for (int line : { lines->enable, lines->bit1, lines->bit0 })
            initGPIO(QString::number(line));
    }
    for (const ChannelLines *lines : kSetUpOrder)
        GpioFiles::writeValue(lines->enable, true);
}

void DeviceGPIO::initGPIO(QString number)
{
    const int line = number.toInt();
    if (!QFile::exists(Target::path(QStringLiteral("/sys/class/gpio/gpio") + number)))
        GpioFiles::exportLine(line);
    GpioFiles::setDirection(line, QStringLiteral("out"));
}

int DeviceGPIO::openGPIODev(QString number)
{
    const QString path = Target::path(QStringLiteral("/sys/class/gpio/gpio") + number + QStringLiteral("/value"));
    const int fd = OrdinaryFile::open(path, O_RDWR);
    if (fd < 0)
        QV_TRACE("device/devicegpio") << "gpio open err!";
    return fd;
}
