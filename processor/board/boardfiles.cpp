#include "board/boardfiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <cstdio>

namespace board {

namespace {

constexpr char kGpio[] = "/sys/class/gpio/";
constexpr char kGauge[] = "/sys/bus/iio/devices/iio:device0/in_voltage0_raw";
constexpr char kBackLight[] = "/sys/class/backlight/backlight/brightness";
constexpr char kSettings[] = "/mnt/userfs/sys/setting.conf";
constexpr char kWiringKey[] = "JOINMODE=";
constexpr int kWirings = 10;
constexpr char kCarrier[] = "/sys/class/net/eth0/carrier";

// The gauge counts 1/4096 of 1.8 V; a divider of 1.5 and a factor of 11.5 lie between it and the battery.
constexpr double kVoltsPerCount = 0.000244140625 * 1.8 / 1.5 * 11.5;
constexpr int kGaugeTop = 4095;
constexpr double kBatteryAtStart = 7.9; // V, a full battery

constexpr int kSupplyLatch = 47;
constexpr int kChargerPresent = 105;
constexpr int kChargeFinished = 117;
constexpr int kFirstRangeLine = 48;
constexpr int kLastRangeLine = 59;

/// Lines of one selector.
struct SelectorLines
{
    int bit1;
    int bit0;
};
constexpr SelectorLines kPhaseCurrent = { 54, 58 };
constexpr SelectorLines kPhaseVoltage = { 52, 48 };
constexpr SelectorLines kNeutralCurrent = { 55, 59 };
constexpr SelectorLines kNeutralVoltage = { 53, 51 };

QString gpioPath(int gpio, const char *file)
{
    return QStringLiteral("%1gpio%2/%3").arg(QLatin1String(kGpio)).arg(gpio).arg(QLatin1String(file));
}

} // namespace

BoardFiles::BoardFiles(const QString &root) : m_root(QDir(root).absolutePath())
{
    if (m_root == QLatin1String("/"))
        m_root.clear();
}

bool BoardFiles::makeFile(const QString &boardPath, const QString &text, QString *error)
{
    const QString file = path(boardPath);
    if (QFileInfo::exists(file))
        return true;
    if (QDir().mkpath(QFileInfo(file).path()) && write(boardPath, text))
        return true;
    *error = QStringLiteral("cannot write %1").arg(file);
    return false;
}

bool BoardFiles::prepare(QString *error)
{
    for (const char *folder : { "/dev", "/run", "/run/media", "/sys/class/gpio" }) {
        const QString made = path(QLatin1String(folder));
        if (!QDir().mkpath(made) || !QFileInfo(made).isWritable()) {
            *error = QStringLiteral("cannot write %1").arg(made);
            return false;
        }
    }
    QList<int> lines = { kSupplyLatch, kChargerPresent, kChargeFinished };
    for (int gpio = kFirstRangeLine; gpio <= kLastRangeLine; ++gpio)
        lines << gpio;
    bool good = true;
    for (int gpio : qAsConst(lines)) {
        const bool input = gpio == kChargerPresent || gpio == kChargeFinished;
        good = good && makeFile(gpioPath(gpio, "direction"), input ? "in\n" : "out\n", error)
            && makeFile(gpioPath(gpio, "value"), "0\n", error);
    }
    const QString gauge = QString::number(gaugeReading(kBatteryAtStart)) + '\n';
    return good && makeFile(QLatin1String(kGpio) + "export", "", error) && makeFile(kGauge, gauge, error)
        && makeFile(kBackLight, "7", error) && makeFile(kCarrier, "1\n", error);
}

bool BoardFiles::write(const QString &boardPath, const QString &text) const
{
    const QString target = path(boardPath);
    QFile file(target + QLatin1String(".new"));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toLatin1()) != text.size() || !file.flush())
        return false;
    file.close();
    return std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(target).constData()) == 0;
}

std::optional<int> BoardFiles::line(int gpio) const
{
    QFile file(path(gpioPath(gpio, "value")));
    char value = 0;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || file.read(&value, 1) != 1
        || (value != '0' && value != '1'))
        return std::nullopt;
    return value - '0';
}

RangeSelectors BoardFiles::ranges(const RangeSelectors &last) const
{
    const auto selector = [this](const SelectorLines &lines, int before) {
        const std::optional<int> bit1 = line(lines.bit1);
        const std::optional<int> bit0 = line(lines.bit0);
        return bit1 && bit0 ? 2 * *bit1 + *bit0 : before;
    };
    RangeSelectors ranges;
    ranges.phaseVoltage = selector(kPhaseVoltage, last.phaseVoltage);
    ranges.neutralVoltage = selector(kNeutralVoltage, last.neutralVoltage);
    ranges.phaseCurrent = selector(kPhaseCurrent, last.phaseCurrent);
    ranges.neutralCurrent = selector(kNeutralCurrent, last.neutralCurrent);
    return ranges;
}

int BoardFiles::wiring() const
{
    QFile file(path(QLatin1String(kSettings)));
    int wiring = 0;
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = file.read(1 << 16).split('\n');
        for (const QByteArray &line : lines) { // the last one counts, as for the instrument
            if (line.startsWith(kWiringKey))
                wiring = line.mid(int(sizeof kWiringKey) - 1).trimmed().toInt();
        }
    }
    return wiring >= 1 && wiring <= kWirings ? wiring : 0;
}

int BoardFiles::gaugeReading(double volts)
{
    if (!(volts > 0.0))
        return 0;
    return int(std::lround(std::fmin(volts / kVoltsPerCount, kGaugeTop)));
}

bool BoardFiles::setBattery(double volts)
{
    return write(kGauge, QString::number(gaugeReading(volts)) + '\n');
}

bool BoardFiles::setCharger(Charger charger)
{
    return write(gpioPath(kChargerPresent, "value"), charger == Charger::Off ? "0\n" : "1\n")
        && write(gpioPath(kChargeFinished, "value"), charger == Charger::Full ? "1\n" : "0\n");
}

bool BoardFiles::setNetwork(bool up)
{
    return write(kCarrier, up ? "1\n" : "0\n");
}

} // namespace board
