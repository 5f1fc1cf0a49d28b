#pragma once

#include <QString>
#include <QVector>

#include "model/channelset.h"
#include "settings/clampif.h"
#include "model/displayunits.h"
#include "settings/settingrow.h"

class CalibFile;

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
};

/// One row of the legacy clamp table.
struct LegacyClamp
{
    int number;
    QString name;
    int range; // A
    int ratio; // uV/A
};

/// The measurement set-up of "/mnt/userfs/sys/setting.conf" and what follows from it: nominal voltage, clamps, range
/// and calibration rows, scale factors, units, decimals. The file is read at construction only; every setter keeps the
/// value and stores it at once. GUI thread; other threads read members only. Keys: docs/settings.md.
class SettingConfig
{
public:
    enum __join_mode {
        Join3PWye = 1,
        Join3PIT = 2,
        Join1PNeutral = 3,
        Join3PDelta = 4,
        Join1PSplitPhase = 5,
        Join1PITNoNeutral = 6,
        Join3PHighLeg = 7,
        Join3POpenLeg = 8,
        Join25Element = 9,
        Join2Element = 10,
    };
    /// Rows of the phase-voltage table; row 9 is the custom value.
    enum __nom_volt_star { Star58 = 1, Star100, Star120, Star139, Star230, Star277, Star347, Star400, StarCustom };
    /// Rows of the line-voltage table; row 9 is the custom value.
    enum __nom_volt_delta {
        Delta100 = 1,
        Delta173,
        Delta208,
        Delta240,
        Delta398,
        Delta480,
        Delta600,
        Delta693,
        DeltaCustom
    };

    SettingConfig();
    SettingConfig(const SettingConfig &) = delete;
    SettingConfig &operator=(const SettingConfig &) = delete;

    /// All keys of the file, in their order.
    static const QVector<SettingRow<SettingValues>> &rows();
    static QString filePath(); // the board's
    const SettingValues &values() const { return m_values; }

    /// Reads everything anew, in the told order.
    void loadSettingConfig();

    // Nominal voltage, volts
    int getNomVoltStarSelect() const { return m_values.nomVoltStarSelect; }
    void setNomVoltStarSelect(int row);
    int getNomVoltDeltaSelect() const { return m_values.nomVoltDeltaSelect; }
    void setNomVoltDeltaSelect(int row);
    int getNomVoltStarCustom() const { return m_values.nomVoltStarCustom; }
    void setNomVoltStarCustom(int volts);
    int getNomVoltDeltaCustom() const { return m_values.nomVoltDeltaCustom; }
    void setNomVoltDeltaCustom(int volts);
    int getNomVoltStar() const { return getNomVoltStar(m_values.nomVoltStarSelect); }
    int getNomVoltStar(int row) const; // 0 outside 1 to 9
    int getNomVoltDelta() const { return getNomVoltDelta(m_values.nomVoltDeltaSelect); }
    int getNomVoltDelta(int row) const; // 0 outside 1 to 9
    /// Phase voltage in star modes, line voltage in delta modes, 0 for a join mode outside 1 to 10.
    int getNomVolt() const { return getNomVolt(m_values.joinMode); }
    int getNomVolt(int joinMode) const;
    /// getNomVolt times the voltage transformer's ratio.
    float getRealNominalVolt() const;
    void initNominalVolt();

    // Frequency
    int getNomFreqSelect() const { return m_values.nomFreqSelect; } // 1 to 3
    double getNomFreq() const; // Hz: 50, 60 or 400
    void setNomFreq(int select);
    void changeFreqPrev();
    void changeFreqNext();

    // Wiring
    int getJoinMode() const { return m_values.joinMode; }
    void setJoinMode(int mode);
    QString getJoinModeName() const { return getJoinModeName(m_values.joinMode); }
    QString getJoinModeFullName() const { return getJoinModeFullName(m_values.joinMode); }
    static QString getJoinModeName(int mode); // empty outside 1 to 10
    static QString getJoinModeFullName(int mode); // empty outside 1 to 10
    bool isStarJoinMode() const { return isStarJoinMode(m_values.joinMode); }
    static bool isStarJoinMode(int mode); // 1, 3, 5, 7, 9
    /// The channels of the wiring; null for a join mode outside 1 to 10.
    const ChannelSet *channels() const { return channelSet(m_values.joinMode); }
    void initInputMode();
    bool starFlag() const { return m_star; }
    bool neutralFlag() const { return m_neutral; }

    // Clamps
    ClampIF *clamps() { return &m_clamps; }
    ClampIF *clampsN() { return &m_clampsN; }
    const Clamp *curClamp() const { return m_clamps.getCurClamp(); }
    const Clamp *curClampN() const { return m_clampsN.getCurClamp(); }
    void initClamps();
    void saveClampConfig(); // both catalogues; what follows from the clamps is worked out anew
    int getClampType() const { return m_values.clampType; }
    void setClampType(int row);
    void changeClampPrev();
    void changeClampNext();
    int getClampRatio() const { return m_values.clampRatio; }
    void setClampRatio(int microvoltsPerAmp);
    int getRangeI() const { return m_values.rangeI; }
    void setRangeI(int amps);
    const QVector<LegacyClamp> &legacyClamps() const { return m_legacyClamps; }
    float getClampRatioF() const { return getClampRatioF(m_values.clampType); } // mV/A
    float getClampRatioF(int row) const; // mV/A; 0 outside 1 to 10

    // Transformer ratios: numerator "Fenzi" over denominator "Fenmu"
    int getRatioIFenzi() const { return m_values.ratioIFenzi; }
    void setRatioIFenzi(int value);
    int getRatioIFenmu() const { return m_values.ratioIFenmu; }
    void setRatioIFenmu(int value);
    int getRatioVFenzi() const { return m_values.ratioVFenzi; }
    void setRatioVFenzi(int value);
    int getRatioVFenmu() const { return m_values.ratioVFenmu; }
    void setRatioVFenmu(int value);
    int getRatioICustom() const { return m_values.ratioICustom; }
    void setRatioICustom(int value);
    int getRatioVCustom() const { return m_values.ratioVCustom; }
    void setRatioVCustom(int value);
    int getRatioINFenzi() const { return m_values.ratioINFenzi; }
    void setRatioINFenzi(int value);
    int getRatioINFenmu() const { return m_values.ratioINFenmu; }
    void setRatioINFenmu(int value);
    int getRatioVNFenzi() const { return m_values.ratioVNFenzi; }
    void setRatioVNFenzi(int value);
    int getRatioVNFenmu() const { return m_values.ratioVNFenmu; }
    void setRatioVNFenmu(int value);
    int getRatioINCustom() const { return m_values.ratioINCustom; }
    void setRatioINCustom(int value);
    int getRatioVNCustom() const { return m_values.ratioVNCustom; }
    void setRatioVNCustom(int value);
    // The quotients; a denominator of 0 counts as 1.
    float ratioI() const;
    float ratioV() const;
    float ratioIN() const;
    float ratioVN() const;

    // Functions
    int getFlickerWeightingCurve() const { return m_values.flickerWeightingCurve; } // V of the lamp
    void setFlickerWeightingCurve(int volts);
    int getInrushIndex() const { return m_values.inrushIndex; }
    void setInrushIndex(int index);
    double getInrushNomAmps() const { return m_values.inrushNomAmps; } // A at the clamp
    double readInrushNomAmps() const { return m_values.inrushNomAmps; }
    void setInrushNomAmps(double amps);
    int getInrushThreshold() const { return m_values.inrushThreshold; } // percent
    void setInrushThreshold(int percent);
    int getInrushHysteresis() const { return m_values.inrushHysteresis; } // percent
    void setInrushHysteresis(int percent);
    int getTransThreshold() const { return m_values.transThreshold; } // percent
    void setTransThreshold(int percent);
    unsigned getLoggerFlag() const { return m_values.loggerFlag; }
    void setLoggerFlag(unsigned mask);
    int getkFactorMethod() const { return m_values.kFactorMethod; }
    void setkFactorMethod(int method);
    double getkFactorE() const { return m_values.kFactorE; }
    void setkFactorE(double e);
    double getkFactorQ() const { return m_values.kFactorQ; }
    void setkFactorQ(double q);
    double getMainsSigFreq1() const { return m_values.mainsSigFreq1; } // Hz
    void setMainsSigFreq1(double hertz);
    double getMainsSigThreshold1() const { return m_values.mainsSigThreshold1; } // percent
    void setMainsSigThreshold1(double percent);
    double getMainsSigFreq2() const { return m_values.mainsSigFreq2; } // Hz
    void setMainsSigFreq2(double hertz);
    double getMainsSigThreshold2() const { return m_values.mainsSigThreshold2; } // percent
    void setMainsSigThreshold2(double percent);

    // Step of the set-up editors
    int getStepSize() const { return m_stepSize; }
    void changeStepSize(int step); // held to 1..10

    // What follows from the settings
    /// Works out the rows of the calibration block that are in use.
    void initCalibIndex();
    int getVoltIndex() const { return m_voltIndex; }
    int getCurrentIndex() const { return m_currentIndex; }
    int getCurrentNIndex() const { return m_currentNIndex; }
    /// Works out the scale table and the units; needs the indices. Called after a new calibration too.
    void Tmp_wvi();
    /// Twelve floats: power scale A, B, C, N; voltage scale A, B, C, N; current scale A, B, C, N.
    const float *wvi() const { return m_wvi; }
    const DisplayUnits &units() const { return m_units; }
    const DisplayUnits &unitsN() const { return m_unitsN; }
    /// Works out and answers the decimals shown for a current.
    int clampPrecision();
    int clampNPrecision();
    int currentDigits() const { return m_currentDigits; }
    int currentNDigits() const { return m_currentNDigits; }

    /// One line: voltage;frequency\clamp;neutral clamp\wiring.
    QString systemInfo() const;

private:
    void readRow(const QByteArray &file, const SettingRow<SettingValues> &row);
    void readRows(const QByteArray &file, std::initializer_list<const char *> keys);
    template <typename T> void store(T SettingValues::*member, T value);
    void followSettings();

    SettingValues m_values {};
    ClampIF m_clamps;
    ClampIF m_clampsN;
    QVector<LegacyClamp> m_legacyClamps;
    int m_nominalVolt = 0;
    bool m_star = true;
    bool m_neutral = true;
    int m_stepSize = 2;
    int m_currentDigits = 0;
    int m_currentNDigits = 0;
    int m_voltIndex = 0;
    int m_currentIndex = 0;
    int m_currentNIndex = 0;
    float m_wvi[12] = {};
    DisplayUnits m_units;
    DisplayUnits m_unitsN;
};
