#include "settings/derived.h"

#include "settings/calibfile.h"
#include "settings/clamp.h"
#include "settings/settingvalues.h"

#include <algorithm>
#include <cmath>

namespace {

// Volts by row 1 to 8; row 9 is the user's own value.
constexpr int kStarVolts[] = { 58, 100, 120, 139, 230, 277, 347, 400 };
constexpr int kDeltaVolts[] = { 100, 173, 208, 240, 398, 480, 600, 693 };
constexpr int kCustomRow = 9;

// Upper bounds of the voltage ranges 0, 1 and 2, volts.
constexpr int kStarRanges[] = { 130, 240, 410 };
constexpr int kDeltaRanges[] = { 183, 340, 580 };

int tableVolts(const int (&volts)[8], int custom, int row)
{
    if (row == kCustomRow)
        return custom;
    return row >= 1 && row < kCustomRow ? volts[row - 1] : 0;
}

int voltIndexOf(int volts, const int (&bounds)[3])
{
    int index = 0;
    while (index < 3 && volts >= bounds[index])
        ++index;
    return index;
}

/// Row of the current gains for a clamp, by the span of its output in microvolts.
int currentIndexOf(const ClampInUse &clamp)
{
    const double span = 2.0 * clamp.range * clamp.ratio;
    return span < 505000.0 ? 3 : span < 1515000.0 ? 1 : 2;
}

/// gain / (ratio / 1000); a clamp that gives nothing measures nothing.
float perMillivolt(float gain, float clampRatio)
{
    return clampRatio == 0.0f ? 0.0f : gain / (clampRatio / 1000.0f);
}

ClampInUse inUse(const Clamp *clamp)
{
    ClampInUse used;
    if (clamp)
        used = { clamp->name(), clamp->range(), clamp->ratio(), clamp->flexible() };
    return used;
}

double hertzOf(int select)
{
    switch (select) {
    case 2:
        return 60.0;
    case 3:
        return 400.0;
    default:
        return 50.0;
    }
}

void deriveCalibration(Derived &d, const __calib_data &calibration)
{
    d.voltIndex = voltIndexOf(d.nominalVolt, d.star ? kStarRanges : kDeltaRanges);
    d.currentIndex = currentIndexOf(d.clamp);
    d.currentNIndex = currentIndexOf(d.clampN);
    std::copy_n(calibration.volt[d.voltIndex], 4, d.voltGain);
    std::copy_n(calibration.zeroVolt[d.voltIndex], 4, d.zeroVolt);
    std::copy_n(calibration.zeroCurrent[d.currentIndex], 4, d.zeroCurrent);
}

void deriveScales(Derived &d, const __calib_data &calibration)
{
    const float ratioV = d.ratioV.quotient();
    const float ratioI = d.ratioI.quotient();
    const auto clampRatio = static_cast<float>(d.clamp.ratio);
    const auto clampRatioN = static_cast<float>(d.clampN.ratio);
    for (int k = 0; k < 3; ++k) {
        const float voltGain = d.voltGain[k];
        const float currentGain = calibration.current[d.currentIndex][k];
        d.scales.voltage[k] = ratioV * voltGain;
        d.scales.current[k] = perMillivolt(currentGain * ratioI, clampRatio);
        d.scales.power[k] = perMillivolt(voltGain * currentGain * ratioV * ratioI, clampRatio);
    }
    const float voltGainN = d.voltGain[3];
    const float currentGainN = calibration.current[d.currentNIndex][3];
    d.scales.voltage[3] = d.ratioVN.quotient() * voltGainN;
    // Kept: the neutral current takes the ratio of the phases here.
    d.scales.current[3] = perMillivolt(currentGainN * ratioI, clampRatioN);
    d.scales.power[3]
        = perMillivolt(voltGainN * currentGainN * d.ratioVN.quotient() * d.ratioIN.quotient(), clampRatioN);
}

/// Units and decimals of one kind of channel.
int deriveUnits(DisplayUnits &units, int nominalVolt, const ClampInUse &clamp, float ratioV, float ratioI)
{
    const float volt = static_cast<float>(nominalVolt) * ratioV;
    const float ampere = static_cast<float>(clamp.ratio) / ratioI;
    DisplayScale::chooseVolt(units, volt);
    DisplayScale::chooseAmpere(units, ampere);
    DisplayScale::choosePower(units, volt * ampere);
    return DisplayScale::currentDigits(ampere, units.factorAmpere);
}

/// Step of the inrush editor in amperes at the clamp, by the clamp's range in amperes.
double inrushStep(int range)
{
    if (range >= 1000)
        return 10.0;
    if (range >= 100)
        return 1.0;
    if (range >= 21)
        return 0.1;
    return range >= 6 ? 0.01 : 0.001;
}

InrushEditing deriveInrush(int range, double ratio)
{
    InrushEditing inrush;
    const double primary = range * ratio; // A in the line
    double factor = 1.0; // shown number = A x factor
    if (primary < 1.0) {
        factor = 1000.0;
        inrush.unit = QStringLiteral("mA");
    } else if (primary >= 10000.0) {
        factor = 0.001;
        inrush.unit = QStringLiteral("kA");
    }
    inrush.shownPerAmp = ratio * factor;
    inrush.range = primary * factor;
    inrush.stepAtClamp = inrushStep(range);
    inrush.step = inrush.stepAtClamp * inrush.shownPerAmp;
    const double digits = inrush.step > 0.0 ? std::ceil(-std::log10(inrush.step) - 1e-6) : 0.0;
    inrush.decimals = static_cast<int>(qBound(0.0, digits, 9.0));
    inrush.nomAmps = range * 0.25;
    return inrush;
}

} // namespace

float TransformerRatio::quotient() const
{
    return static_cast<float>(numerator) / static_cast<float>(denominator == 0 ? 1 : denominator);
}

int nominalStarVolts(const SettingValues &values, int row)
{
    return tableVolts(kStarVolts, values.nomVoltStarCustom, row);
}

int nominalDeltaVolts(const SettingValues &values, int row)
{
    return tableVolts(kDeltaVolts, values.nomVoltDeltaCustom, row);
}

int nominalVolts(const SettingValues &values, int joinMode)
{
    const ChannelSet *set = channelSet(joinMode);
    if (!set)
        return 0;
    return set->star() ? nominalStarVolts(values, values.nomVoltStarSelect)
                       : nominalDeltaVolts(values, values.nomVoltDeltaSelect);
}

Derived derive(const SettingValues &values, const Clamp *clamp, const Clamp *clampN, const __calib_data &calibration)
{
    Derived d;
    d.joinMode = values.joinMode;
    d.channels = channelSet(values.joinMode);
    d.star = d.channels && d.channels->star();
    d.neutral = d.star;
    d.nominalFrequency = hertzOf(values.nomFreqSelect);
    d.clamp = inUse(clamp);
    d.clampN = inUse(clampN);
    d.ratioI = { values.ratioIFenzi, values.ratioIFenmu };
    d.ratioV = { values.ratioVFenzi, values.ratioVFenmu };
    d.ratioIN = { values.ratioINFenzi, values.ratioINFenmu };
    d.ratioVN = { values.ratioVNFenzi, values.ratioVNFenmu };
    d.nominalVolt = nominalVolts(values, values.joinMode);
    d.realNominalVolt = static_cast<float>(d.nominalVolt) * d.ratioV.quotient();
    deriveCalibration(d, calibration);
    deriveScales(d, calibration);
    d.currentDigits = deriveUnits(d.units, d.nominalVolt, d.clamp, d.ratioV.quotient(), d.ratioI.quotient());
    d.currentNDigits = deriveUnits(d.unitsN, d.nominalVolt, d.clampN, d.ratioVN.quotient(), d.ratioIN.quotient());
    d.inrush = deriveInrush(d.clamp.range, double(d.ratioI.quotient()));
    return d;
}
