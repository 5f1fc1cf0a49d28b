#include "settings/settingconfig.h"

namespace {

using V = SettingValues;

// How each kind of setting is edited: lowest, highest, step, unit, growth of the step while a key is held.
constexpr EditRule kTableRow = { 1, 9, 1 };
constexpr EditRule kVolts = { 1, 999999, 1, "V", 3, 20 };
constexpr EditRule kFrequency = { 1, 3, 1 };
constexpr EditRule kRow10 = { 1, 10, 1 };
constexpr EditRule kClampRatio = { 1, 1000000, 1, "uV/A" };
constexpr EditRule kClampRange = { 1, 9999, 1, "A" }; // less for a large ratio, see editRange
constexpr EditRule kLamp = { 120, 230, 110, "V" }; // one or the other
constexpr EditRule kInrushLength = { 0, 6, 1 };
constexpr EditRule kInrushAmps = { 0.001, 9999, 0.001, "A", 3, 20 }; // the clamp decides, see editRange
constexpr EditRule kInrushLevel = { 1, 1000, 1, "%", 3, 20 };
constexpr EditRule kHysteresis = { 1, 100, 1, "%", 3, 20 };
constexpr EditRule kTransient = { 1, 6000, 1, "%", 5, 100 };
constexpr EditRule kRatio = { 1, 99999, 1 }; // five digits; nothing over something, or over nothing, is no ratio
constexpr EditRule kSwitch = { 0, 1, 1 };
constexpr EditRule kMethod = { 1, 2, 1 };
constexpr EditRule kTermE = { 0, 0.2, 0.01 };
constexpr EditRule kTermQ = { 1, 2, 0.05 };
constexpr EditRule kSignalHertz = { 50, 3000, 1, "Hz", 3, 20 };
constexpr EditRule kSignalLevel = { 1, 5, 1, "%" };

constexpr unsigned kSupplyFollows = FollowDerived | FollowRanges | FollowProcessor | FollowModbus | FollowTask;
constexpr unsigned kFrequencyFollows = FollowDerived | FollowTables | FollowProcessor | FollowModbus | FollowTask;
constexpr unsigned kRatioFollows = FollowDerived | FollowModbus | FollowTask;
constexpr unsigned kNeutralFollows = FollowDerived | FollowModbus;

// One row per key of setting.conf, in the order of docs/settings.md, whose tables tst_settingdocs compares with this
// one. A constant, since the settings are read before main.
constexpr SettingRow<V> kRows[] = {
    { "NOM_VOLT_SELECT", "int", "5", 1, 9, &V::nomVoltStarSelect, "row of the phase-voltage table", kTableRow,
      kSupplyFollows },
    { "NOM_VOLT_LINE_SELECT", "int", "5", 1, 9, &V::nomVoltDeltaSelect, "row of the line-voltage table", kTableRow,
      kSupplyFollows },
    { "NOM_VOLT_CUSTOM", "int", "500", 0, 0, &V::nomVoltStarCustom, "row 9 of the phase table, V", kVolts,
      kSupplyFollows },
    { "NOM_VOLT_LINE_CUSTOM", "int", "866", 0, 0, &V::nomVoltDeltaCustom, "row 9 of the line table, V", kVolts,
      kSupplyFollows },
    { "NOM_FREQ", "int", "1", 1, 3, &V::nomFreqSelect, "nominal frequency: 1 is 50 Hz, 2 is 60 Hz, 3 is 400 Hz",
      kFrequency, kFrequencyFollows },
    { "JOINMODE", "int", "1", 1, 10, &V::joinMode, "wiring", kRow10, kSupplyFollows },
    { "CLAMP_TYPE", "int", "1", 1, 10, &V::clampType, "legacy clamp row", kRow10 },
    { "CLAMP_RATIO", "float read, int kept", "1000", 0, 0, &V::clampRatio, "custom clamp ratio, uV/A", kClampRatio },
    { "RANGE_I", "int", "3000", 0, 0, &V::rangeI, "custom clamp range, A", kClampRange },
    { "FLICKER_WEIGHTING_CURVE", "int", "230", 0, 0, &V::flickerWeightingCurve, "lamp voltage of the flicker curve, V",
      kLamp, FollowProcessor },
    { "INRUSH_INDEX", "int", "1", 0, 0, &V::inrushIndex, "inrush record counter", kInrushLength, FollowTask },
    { "INRUSH_NOMAMPS", "double", "1.25", 0, 0, &V::inrushNomAmps, "inrush nominal current, A at the clamp",
      kInrushAmps, FollowTask },
    { "INRUSH_THRESHOLD", "int", "200", 0, 0, &V::inrushThreshold, "inrush threshold, percent", kInrushLevel,
      FollowTask },
    { "INRUSH_HYSTERESIS", "int", "20", 0, 0, &V::inrushHysteresis, "inrush hysteresis, percent", kHysteresis,
      FollowTask },
    { "TRANS_THRESHOLD", "int", "50", 0, 0, &V::transThreshold, "transient threshold, percent", kTransient,
      FollowProcessor },
    { "LOGGER_FLAG", "unsigned", "65535", 0, 0, &V::loggerFlag, "mask of logged quantities" },
    { "RATIO_IFENMU", "int", "1", 0, 0, &V::ratioIFenmu, "current transformer ratio, denominator", kRatio,
      kRatioFollows },
    { "RATIO_IFENZI", "int", "1", 0, 0, &V::ratioIFenzi, "current transformer ratio, numerator", kRatio,
      kRatioFollows },
    { "RATIO_VFENMU", "int", "1", 0, 0, &V::ratioVFenmu, "voltage transformer ratio, denominator", kRatio,
      kRatioFollows },
    { "RATIO_VFENZI", "int", "1", 0, 0, &V::ratioVFenzi, "voltage transformer ratio, numerator", kRatio,
      kRatioFollows },
    { "RATIO_ICUSTOM", "int", "1", 0, 0, &V::ratioICustom, "custom-ratio selector, phase currents", kSwitch },
    { "RATIO_VCUSTOM", "int", "1", 0, 0, &V::ratioVCustom, "custom-ratio selector, phase voltages", kSwitch },
    { "RATIO_INFENMU", "int", "1", 0, 0, &V::ratioINFenmu, "neutral current ratio, denominator", kRatio,
      kNeutralFollows },
    { "RATIO_INFENZI", "int", "1", 0, 0, &V::ratioINFenzi, "neutral current ratio, numerator", kRatio,
      kNeutralFollows },
    { "RATIO_VNFENMU", "int", "1", 0, 0, &V::ratioVNFenmu, "neutral voltage ratio, denominator", kRatio,
      kNeutralFollows },
    { "RATIO_VNFENZI", "int", "1", 0, 0, &V::ratioVNFenzi, "neutral voltage ratio, numerator", kRatio,
      kNeutralFollows },
    { "RATIO_INCUSTOM", "int", "1", 0, 0, &V::ratioINCustom, "custom-ratio selector, neutral current", kSwitch },
    { "RATIO_VNCUSTOM", "int", "1", 0, 0, &V::ratioVNCustom, "custom-ratio selector, neutral voltage", kSwitch },
    { "KFACTOR_METHOD", "int", "1", 0, 0, &V::kFactorMethod, "K-factor method", kMethod },
    { "KFACTOR_E", "double", "0.1", 0, 0, &V::kFactorE, "K-factor exponent term e", kTermE },
    { "KFACTOR_Q", "double", "1.7", 0, 0, &V::kFactorQ, "K-factor exponent q", kTermQ },
    { "MAINSSIG_FREQ1", "double", "1350", 0, 0, &V::mainsSigFreq1, "mains-signalling frequency 1, Hz", kSignalHertz },
    { "MAINSSIG_THRESHOLD1", "double", "5", 0, 0, &V::mainsSigThreshold1, "mains-signalling threshold 1, percent",
      kSignalLevel },
    { "MAINSSIG_FREQ2", "double", "2850", 0, 0, &V::mainsSigFreq2, "mains-signalling frequency 2, Hz", kSignalHertz },
    { "MAINSSIG_THRESHOLD2", "double", "5", 0, 0, &V::mainsSigThreshold2, "mains-signalling threshold 2, percent",
      kSignalLevel },
};

} // namespace

const QVector<SettingRow<SettingValues>> &SettingConfig::rows()
{
    static const QVector<SettingRow<V>> table(std::begin(kRows), std::end(kRows));
    return table;
}
