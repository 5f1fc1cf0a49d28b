#include "board/battery.h"

#include "device/gpiofiles.h"
#include "platform/ordinaryfile.h"

#include <QFile>

int Battery::battery_level = 0;
int Battery::status = Battery::NoGauge;

namespace {

constexpr int kChargerOn = 105;
constexpr int kChargeFinished = 117;

QString gaugePath()
{
    return Target::path(QStringLiteral("/sys/bus/iio/devices/iio:device0/in_voltage0_raw"));
}

/// Raw value of the converter; 0 for a text that is no number.
int readGauge()
{
    return OrdinaryFile::start(gaugePath(), 16).trimmed().toInt();
}

/// Battery volts: 12 bits of 1.8 V, behind the divider.
double volts(int raw)
{
    return raw * 0.000244140625 * 1.8 / 1.5 * 11.5;
}

int firstStatus(double v)
{
    return v < 6.3 ? Battery::Low : v < 6.8 ? Battery::Second : v < 7.1 ? Battery::Third : Battery::Full;
}

/// One row of the hysteresis between the steps.
struct Step
{
    int from;
    bool rising; // taken at `volts` and above; falling: below
    double volts;
    int to;
};
constexpr Step kSteps[] = {
    { Battery::Low, true, 6.6, Battery::Second },    { Battery::Second, true, 7.1, Battery::Third },
    { Battery::Third, false, 6.8, Battery::Second }, { Battery::Third, true, 7.7, Battery::Full },
    { Battery::Full, false, 7.1, Battery::Third },
};

int nextStatus(int now, double v)
{
    if (v < 6.3)
        return Battery::Low;
    if (now == Battery::NoGauge) // the gauge came late: no step to start from
        return firstStatus(v);
    for (const Step &step : kSteps) {
        if (step.from == now && (v >= step.volts) == step.rising)
            return step.to;
    }
    return now;
}

} // namespace

void Battery::batteryInit()
{
    for (int line : { kChargerOn, kChargeFinished }) {
        GpioFiles::exportLine(line);
        GpioFiles::setDirection(line, QStringLiteral("in"));
    }
    if (!QFile::exists(gaugePath())) {
        status = NoGauge;
        return;
    }
    battery_level = readGauge();
    status = firstStatus(volts(battery_level));
}

int Battery::batteryStatus()
{
    if (!QFile::exists(gaugePath())) {
        status = NoGauge;
        return status;
    }
    if (GpioFiles::isHigh(kChargerOn))
        return GpioFiles::isHigh(kChargeFinished) ? Charged : Charging;
    battery_level = readGauge();
    status = nextStatus(status, volts(battery_level));
    return status;
}
