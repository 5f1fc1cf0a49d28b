#pragma once

#include <QString>

#include "model/channelset.h"
#include "model/displayunits.h"

class Clamp;
struct SettingValues;
struct __calib_data;

/// What turns converter units into watts, volts and amperes. Columns: L1, L2, L3, N; of the power the last is Total.
struct ScaleTable
{
    float power[4] = { 1, 1, 1, 1 }; // W per squared converter unit
    float voltage[4] = { 1, 1, 1, 1 }; // V per converter unit
    float current[4] = { 1, 1, 1, 1 }; // A per converter unit

    /// All twelve, in this order.
    const float *all() const { return reinterpret_cast<const float *>(this); }
};
static_assert(sizeof(ScaleTable) == 12 * sizeof(float), "one run of twelve floats");

/// A current sensor in use; nothing where there is none.
struct ClampInUse
{
    QString name;
    int range = 0; // A, full scale
    int ratio = 0; // uV/A
    bool flexible = false;

    bool operator!=(const ClampInUse &other) const
    {
        return name != other.name || range != other.range || ratio != other.ratio || flexible != other.flexible;
    }
};

/// A transformer's ratio; a denominator of 0 counts as 1.
struct TransformerRatio
{
    int numerator = 1;
    int denominator = 1;

    float quotient() const;
};

/// How the inrush set-up shows and steps its nominal current.
struct InrushEditing
{
    double shownPerAmp = 1.0; // one ampere at the clamp, in the shown unit
    double stepAtClamp = 0.001; // A
    double step = 0.001; // the same in the shown unit
    double range = 0.0; // top of the clamp, in the shown unit
    QString unit = QStringLiteral("A"); // "mA", "A" or "kA"
    int decimals = 3;
    double nomAmps = 0.0; // A at the clamp: the level that a newly chosen clamp begins with
};

/// Everything that follows from the measurement set-up, the clamps in use and a calibration: made by derive() in one
/// go, then only read. Decoders, number formats, recorded files and set-up frames take it as an argument, so that they
/// can be given another one, a calibration under way for instance, without a global being touched.
struct Derived
{
    int joinMode = 0;
    const ChannelSet *channels = nullptr; // null for a wiring outside 1 to 10
    bool star = true;
    bool neutral = true;
    double nominalFrequency = 50.0; // Hz: 50, 60 or 400
    int nominalVolt = 0; // V: phase voltage in star modes, line voltage in delta modes
    float realNominalVolt = 0; // V, with the transformer's ratio
    ClampInUse clamp, clampN; // of the phases, of the neutral channel
    TransformerRatio ratioI, ratioV, ratioIN, ratioVN;

    // Rows of the calibration block in use, and what stands in them.
    int voltIndex = 0;
    int currentIndex = 0;
    int currentNIndex = 0;
    float voltGain[4] = {}; // V per converter unit
    float zeroVolt[4] = {}; // converter units
    float zeroCurrent[4] = {}; // converter units, of the phases' row

    ScaleTable scales;
    DisplayUnits units, unitsN; // of the phases, of the neutral channel
    int currentDigits = 0;
    int currentNDigits = 0;
    InrushEditing inrush;
};

/// Works everything out; no globals. A clamp may be null.
Derived derive(const SettingValues &values, const Clamp *clamp, const Clamp *clampN, const __calib_data &calibration);

/// Volts of a row of the phase-voltage table, of the line-voltage table; 0 outside 1 to 9.
int nominalStarVolts(const SettingValues &values, int row);
int nominalDeltaVolts(const SettingValues &values, int row);
/// Volts that a wiring measures against; 0 for one outside 1 to 10.
int nominalVolts(const SettingValues &values, int joinMode);
