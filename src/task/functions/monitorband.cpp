#include "task/functions/monitorband.h"

#include <cmath>

MonitorBand::MonitorBand(const LimitBand<float> &limits, double nominal)
    : m_limits(limits), m_nominal(nominal), m_partialUpper(nominal * double(limits.partialUpper) * 0.01),
      m_wholeUpper(nominal * double(limits.wholeUpper) * 0.01),
      m_partialLower(nominal * double(limits.partialLower) * 0.01),
      m_wholeLower(nominal * double(limits.wholeLower) * 0.01)
{ }

MonitorBand::Ratios MonitorBand::ratios(float value) const
{
    const double above = double(value) - m_nominal;
    if (above > 0)
        return { float(above * 100 / m_partialUpper), float(above * 100 / m_wholeUpper) };
    return { float(-above * 100 / m_partialLower), float(-above * 100 / m_wholeLower) };
}

bool MonitorBand::hasWhole(float value) const
{
    return (double(value) > m_nominal ? m_limits.wholeUpper : m_limits.wholeLower) < kLimitNotApplied;
}

bool MonitorBand::holds(float value, float upper, float lower) const
{
    // Kept: hundred times the plain difference, in V or Hz, is compared with percent of the nominal value.
    const double deviation = (double(value) - m_nominal) * 100;
    return deviation < double(upper) && deviation > -double(lower);
}

void MonitorBandRecord::take(const MonitorBand &band, float value)
{
    if (std::isnan(value))
        return;
    m_values.insert(value);
    m_anyPartial = m_anyPartial || band.holdsPartial(value);
    m_anyWhole = m_anyWhole || band.holdsWhole(value);
}
