#pragma once

#include "settings/limits.h"
#include "task/functions/sortedvalues.h"

/// A band of limits around the nominal value of a quantity. Plain arithmetic.
class MonitorBand
{
public:
    /// How much of the way from the nominal value to a limit a value goes, in percent.
    struct Ratios
    {
        float partial;
        float whole;
    };

    MonitorBand(const LimitBand<float> &limits, double nominal);

    double nominal() const { return m_nominal; }
    float nep() const { return m_limits.nep; }
    Ratios ratios(float value) const;
    /// The whole limit of the side on which \a value lies counts.
    bool hasWhole(float value) const;
    bool holdsPartial(float value) const { return holds(value, m_limits.partialUpper, m_limits.partialLower); }
    bool holdsWhole(float value) const { return holds(value, m_limits.wholeUpper, m_limits.wholeLower); }

private:
    bool holds(float value, float upper, float lower) const;

    LimitBand<float> m_limits; // percent
    double m_nominal; // V or Hz
    double m_partialUpper, m_wholeUpper, m_partialLower, m_wholeLower; // widths, V or Hz
};

/// The values of one quantity since the run began, and whether they comply with a band.
class MonitorBandRecord
{
public:
    /// What is not a number leaves everything as it is.
    void take(const MonitorBand &band, float value);
    float percentile(float share) const { return m_values.percentile(share); }
    /// 1: complies. Kept: the share of values outside is divided as whole numbers, so that one value inside is enough.
    int partialOk() const { return m_values.isEmpty() || m_anyPartial; }
    int wholeOk() const { return m_values.isEmpty() || m_anyWhole; }
    int size() const { return m_values.size(); }

private:
    SortedValues m_values;
    bool m_anyPartial = false; // one of them lies inside the partial band
    bool m_anyWhole = false;
};
