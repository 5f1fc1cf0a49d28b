#include "detect/eventsettings.h"

#include "settings/config_data.h"

#include <algorithm>

namespace {

constexpr float kRvcSettleFactor = 0.2f; // percent of the band

/// The integer part, and 0 for what no int holds.
int integerPart(float value)
{
    return value > -1.0e9f && value < 1.0e9f ? int(value) : 0;
}

} // namespace

EventSettings eventSettings(const monitor_limit &limits, const EventNominals &nominals)
{
    const float volt = nominals.volt;
    const float hertz = nominals.frequency;
    const auto ofVolt = [volt](float percent) { return volt * (percent / 100.0f); };
    const auto ofHertz = [hertz](float percent) { return hertz * (percent / 100.0f); };
    const double ratio = double(nominals.currentRatioNumerator)
        / (nominals.currentRatioDenominator ? nominals.currentRatioDenominator : 1);
    const auto ofAmps = [&](int percent) { return nominals.inrushAmps * percent / 100.0 * ratio; };

    EventSettings settings = {};
    settings.nominalVolt = volt;
    settings.nominalFrequency = hertz;
    settings.swellLevel = ofVolt(limits.swells.threshold);
    settings.swellHysteresis = ofVolt(limits.swells.hysteresis);
    settings.dipLevel = ofVolt(limits.dips.threshold);
    settings.dipHysteresis = ofVolt(limits.dips.hysteresis);
    settings.interruptionLevel = ofVolt(limits.interruptions.threshold);
    settings.interruptionHysteresis = ofVolt(limits.interruptions.hysteresis);
    settings.inrushLevel = ofAmps(nominals.inrushThreshold);
    settings.inrushHysteresis = ofAmps(nominals.inrushHysteresis);
    settings.frequencyUpper = hertz + ofHertz(limits.frequency.partialUpper);
    settings.frequencyLower = hertz - ofHertz(limits.frequency.partialLower);
    settings.voltageUpper = volt + ofVolt(limits.voltage.partialUpper);
    // Kept: the lower percentage is added although the limit stores it as a positive number. With the built-in
    // sets both thresholds are equal, and any voltage but that one is outside.
    settings.voltageLower = volt + ofVolt(limits.voltage.partialLower);
    settings.unbalanceLimit = limits.neg.partial;
    settings.flickerLimit = limits.plt.partial;
    std::copy_n(limits.harmonicPartial, kHarmonicLimits, settings.harmonicLimit);
    settings.rvc = { integerPart(hertz),   integerPart(limits.rvc.steadytime),
                     limits.rvc.threshold, kRvcSettleFactor,
                     limits.rvc.minstep,   limits.rvc.minrate };
    return settings;
}

EventNominals eventNominals(const SettingValues &values, const Derived &derived)
{
    return { derived.realNominalVolt,   float(derived.nominalFrequency), values.inrushNomAmps,
             values.inrushThreshold,    values.inrushHysteresis,         derived.ratioI.numerator,
             derived.ratioI.denominator };
}

EventSettings currentEventSettings()
{
    return eventSettings(*m_limits_g.getLimitsInUsed(),
                         eventNominals(m_settingConfig_g.values(), m_settingConfig_g.derived()));
}

int currentJoinMode()
{
    return m_settingConfig_g.getJoinMode();
}
