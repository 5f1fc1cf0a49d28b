#include "settings/settingrow.h"

#include <algorithm>
#include <cmath>

double EditRange::held(double value) const
{
    return highest > lowest ? std::clamp(value, lowest, highest) : value;
}

double EditRange::moved(double value, int steps) const
{
    constexpr double kRounding = 1e-6; // of a step: what stands on the grid in floating point
    if (!any())
        return value;
    const double places = (value - lowest) / step;
    const double onto = steps < 0 ? std::ceil(places - kRounding) : std::floor(places + kRounding);
    return held(lowest + (onto + steps) * step);
}

int SettingText::toInt(const QString &text)
{
    return text.toInt(); // 0 when it does not parse or does not fit
}

unsigned SettingText::toUnsigned(const QString &text)
{
    return text.toUInt();
}

double SettingText::toDouble(const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && std::isfinite(value) ? value : 0.0;
}

int SettingText::floatToInt(const QString &text)
{
    bool ok = false;
    const float value = text.toFloat(&ok);
    // 2147483648 is the first float beyond an int.
    if (!ok || !std::isfinite(value) || value >= 2147483648.0f || value < -2147483648.0f)
        return 0;
    return static_cast<int>(value);
}

QString SettingText::fromDouble(double value)
{
    return QString::number(value, 'g', 6);
}
