#include "settings/settingconfig.h"

// One row per key of setting.conf, in the order of docs/settings.md, whose table tst_settingdocs compares with this
// one.
const QVector<SettingRow<SettingValues>> &SettingConfig::rows()
{
    using V = SettingValues;
    static const QVector<SettingRow<V>> table = {
        { "NOM_VOLT_SELECT", "int", "5", 1, 9, &V::nomVoltStarSelect, "row of the phase-voltage table" },
        { "NOM_VOLT_LINE_SELECT", "int", "5", 1, 9, &V::nomVoltDeltaSelect, "row of the line-voltage table" },
        { "NOM_VOLT_CUSTOM", "int", "500", 0, 0, &V::nomVoltStarCustom, "row 9 of the phase table, V" },
        { "NOM_VOLT_LINE_CUSTOM", "int", "866", 0, 0, &V::nomVoltDeltaCustom, "row 9 of the line table, V" },
        { "NOM_FREQ", "int", "1", 1, 3, &V::nomFreqSelect, "nominal frequency: 1 is 50 Hz, 2 is 60 Hz, 3 is 400 Hz" },
        { "JOINMODE", "int", "1", 1, 10, &V::joinMode, "wiring" },
        { "CLAMP_TYPE", "int", "1", 1, 10, &V::clampType, "legacy clamp row" },
        { "CLAMP_RATIO", "float read, int kept", "1000", 0, 0, &V::clampRatio, "custom clamp ratio, uV/A" },
        { "RANGE_I", "int", "3000", 0, 0, &V::rangeI, "custom clamp range, A" },
        { "FLICKER_WEIGHTING_CURVE", "int", "230", 0, 0, &V::flickerWeightingCurve,
          "lamp voltage of the flicker curve, V" },
        { "INRUSH_INDEX", "int", "1", 0, 0, &V::inrushIndex, "inrush record counter" },
        { "INRUSH_NOMAMPS", "double", "1.25", 0, 0, &V::inrushNomAmps, "inrush nominal current, A at the clamp" },
        { "INRUSH_THRESHOLD", "int", "200", 0, 0, &V::inrushThreshold, "inrush threshold, percent" },
        { "INRUSH_HYSTERESIS", "int", "20", 0, 0, &V::inrushHysteresis, "inrush hysteresis, percent" },
        { "TRANS_THRESHOLD", "int", "50", 0, 0, &V::transThreshold, "transient threshold, percent" },
        { "LOGGER_FLAG", "unsigned", "65535", 0, 0, &V::loggerFlag, "mask of logged quantities" },
        { "RATIO_IFENMU", "int", "1", 0, 0, &V::ratioIFenmu, "current transformer ratio, denominator" },
        { "RATIO_IFENZI", "int", "1", 0, 0, &V::ratioIFenzi, "current transformer ratio, numerator" },
        { "RATIO_VFENMU", "int", "1", 0, 0, &V::ratioVFenmu, "voltage transformer ratio, denominator" },
        { "RATIO_VFENZI", "int", "1", 0, 0, &V::ratioVFenzi, "voltage transformer ratio, numerator" },
        { "RATIO_ICUSTOM", "int", "1", 0, 0, &V::ratioICustom, "custom-ratio selector, phase currents" },
        { "RATIO_VCUSTOM", "int", "1", 0, 0, &V::ratioVCustom, "custom-ratio selector, phase voltages" },
        { "RATIO_INFENMU", "int", "1", 0, 0, &V::ratioINFenmu, "neutral current ratio, denominator" },
        { "RATIO_INFENZI", "int", "1", 0, 0, &V::ratioINFenzi, "neutral current ratio, numerator" },
        { "RATIO_VNFENMU", "int", "1", 0, 0, &V::ratioVNFenmu, "neutral voltage ratio, denominator" },
        { "RATIO_VNFENZI", "int", "1", 0, 0, &V::ratioVNFenzi, "neutral voltage ratio, numerator" },
        { "RATIO_INCUSTOM", "int", "1", 0, 0, &V::ratioINCustom, "custom-ratio selector, neutral current" },
        { "RATIO_VNCUSTOM", "int", "1", 0, 0, &V::ratioVNCustom, "custom-ratio selector, neutral voltage" },
        { "KFACTOR_METHOD", "int", "1", 0, 0, &V::kFactorMethod, "K-factor method" },
        { "KFACTOR_E", "double", "0.1", 0, 0, &V::kFactorE, "K-factor exponent term e" },
        { "KFACTOR_Q", "double", "1.7", 0, 0, &V::kFactorQ, "K-factor exponent q" },
        { "MAINSSIG_FREQ1", "double", "1350", 0, 0, &V::mainsSigFreq1, "mains-signalling frequency 1, Hz" },
        { "MAINSSIG_THRESHOLD1", "double", "5", 0, 0, &V::mainsSigThreshold1, "mains-signalling threshold 1, percent" },
        { "MAINSSIG_FREQ2", "double", "2850", 0, 0, &V::mainsSigFreq2, "mains-signalling frequency 2, Hz" },
        { "MAINSSIG_THRESHOLD2", "double", "5", 0, 0, &V::mainsSigThreshold2, "mains-signalling threshold 2, percent" },
    };
    return table;
}
