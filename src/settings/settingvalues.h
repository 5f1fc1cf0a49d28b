#pragma once

/// The values behind the keys of setting.conf; meanings, defaults and bounds stand in SettingConfig::rows().
struct SettingValues
{
    int nomVoltStarSelect, nomVoltDeltaSelect, nomVoltStarCustom, nomVoltDeltaCustom;
    int nomFreqSelect, joinMode;
    int clampType, clampRatio, rangeI;
    int flickerWeightingCurve;
    int inrushIndex;
    double inrushNomAmps;
    int inrushThreshold, inrushHysteresis;
    int transThreshold;
    unsigned loggerFlag;
    int ratioIFenmu, ratioIFenzi, ratioVFenmu, ratioVFenzi, ratioICustom, ratioVCustom;
    int ratioINFenmu, ratioINFenzi, ratioVNFenmu, ratioVNFenzi, ratioINCustom, ratioVNCustom;
    int kFactorMethod;
    double kFactorE, kFactorQ;
    double mainsSigFreq1, mainsSigThreshold1, mainsSigFreq2, mainsSigThreshold2;

    static constexpr int kEuropeanLamp = 230, kAmericanLamp = 120; // V
    /// The lamp that a flickerWeightingCurve stands for: every number but the one of the European lamp is the American.
    static constexpr int lampOf(int curve) { return curve == kEuropeanLamp ? kEuropeanLamp : kAmericanLamp; }
};
