#pragma once

#include <QString>
#include <QVector>

#include "model/channelset.h"
#include "model/displayunits.h"
#include "settings/clampif.h"
#include "settings/derived.h"
#include "settings/settingrow.h"
#include "settings/settingvalues.h"

/// One row of the legacy clamp table.
struct LegacyClamp
{
    int number;
    QString name;
    int range; // A
    int ratio; // uV/A
};

/// The measurement set-up of "/mnt/userfs/sys/setting.conf", the clamps, and the one record of what follows from both
/// and from the calibration. The file is read at construction only; every setter keeps the value, works the record out
/// anew where that follows, and stores the value at once. GUI thread; other threads read members only. Keys:
/// docs/settings.md.
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
    /// The row of a key; null for an unknown one.
    static const SettingRow<SettingValues> *row(const char *key);
    const SettingValues &values() const { return m_values; }

    /// Reads everything anew, in the order that the keys depend on each other.
    void loadSettingConfig();

    // For editors, by the row of a key
    /// Bounds and step of the present moment: the clamps decide some of them.
    EditRange editRange(const SettingRow<SettingValues> &row) const;
    double value(const SettingRow<SettingValues> &row) const;
    /// Keeps and stores a value held to editRange; whole numbers are rounded. True when it is another one than before:
    /// then what row.follows names has to follow, of which derived() and the tables have already.
    bool setValue(const SettingRow<SettingValues> &row, double value);
    /// Moves a value by so many steps of editRange, likewise.
    bool moveValue(const SettingRow<SettingValues> &row, int steps);
    /// Back to the value of a missing key, likewise.
    bool setDefault(const SettingRow<SettingValues> &row);

    /// What follows from settings, clamps and calibration.
    const Derived &derived() const { return m_derived; }
    /// Works it out anew: after a change that does not come through a setter, such as a calibration.
    void followSettings();

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
    int getNomVoltStar(int row) const { return nominalStarVolts(m_values, row); } // 0 outside 1 to 9
    int getNomVoltDelta() const { return getNomVoltDelta(m_values.nomVoltDeltaSelect); }
    int getNomVoltDelta(int row) const { return nominalDeltaVolts(m_values, row); } // 0 outside 1 to 9
    /// Phase voltage in star modes, line voltage in delta modes, 0 for a join mode outside 1 to 10.
    int getNomVolt() const { return getNomVolt(m_values.joinMode); }
    int getNomVolt(int joinMode) const { return nominalVolts(m_values, joinMode); }
    /// getNomVolt times the voltage transformer's ratio.
    float getRealNominalVolt() const { return m_derived.realNominalVolt; }

    // Frequency
    int getNomFreqSelect() const { return m_values.nomFreqSelect; } // 1 to 3
    double getNomFreq() const { return m_derived.nominalFrequency; } // Hz: 50, 60 or 400
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
    bool starFlag() const { return m_derived.star; }
    bool neutralFlag() const { return m_derived.neutral; }

    // Clamps
    ClampIF *clamps() { return &m_clamps; }
    ClampIF *clampsN() { return &m_clampsN; }
    const Clamp *curClamp() const { return m_clamps.getCurClamp(); }
    const Clamp *curClampN() const { return m_clampsN.getCurClamp(); }
    void initClamps();
    /// Stores both catalogues; what follows from the clamps is worked out anew, and with another clamp on the phases
    /// the inrush levels too.
    void saveClampConfig();
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
    float ratioI() const { return m_derived.ratioI.quotient(); }
    float ratioV() const { return m_derived.ratioV.quotient(); }
    float ratioIN() const { return m_derived.ratioIN.quotient(); }
    float ratioVN() const { return m_derived.ratioVN.quotient(); }

    // Functions
    int getFlickerWeightingCurve() const { return m_values.flickerWeightingCurve; } // V of the lamp
    void setFlickerWeightingCurve(int volts);
    int getInrushIndex() const { return m_values.inrushIndex; }
    void setInrushIndex(int index);
    double getInrushNomAmps() const { return m_values.inrushNomAmps; } // A at the clamp
    void setInrushNomAmps(double amps);
    int getInrushThreshold() const { return m_values.inrushThreshold; } // percent
    void setInrushThreshold(int percent);
    int getInrushHysteresis() const { return m_values.inrushHysteresis; } // percent
    void setInrushHysteresis(int percent);
    /// Sets the three levels to those that the clamp in use begins with. What stands there already is not written
    /// again.
    void initInrushLevels();
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

    // Parts of derived()
    int getVoltIndex() const { return m_derived.voltIndex; }
    int getCurrentIndex() const { return m_derived.currentIndex; }
    int getCurrentNIndex() const { return m_derived.currentNIndex; }
    /// Twelve floats: power scale A, B, C, N; voltage scale A, B, C, N; current scale A, B, C, N.
    const float *wvi() const { return m_derived.scales.all(); }
    const DisplayUnits &units() const { return m_derived.units; }
    const DisplayUnits &unitsN() const { return m_derived.unitsN; }
    int currentDigits() const { return m_derived.currentDigits; }
    int currentNDigits() const { return m_derived.currentNDigits; }

    /// One line: voltage;frequency\clamp;neutral clamp\wiring.
    QString systemInfo() const;

private:
    void readRow(const QByteArray &file, const SettingRow<SettingValues> &row);
    void readRows(const QByteArray &file, std::initializer_list<const char *> keys);
    template <typename T> void store(T SettingValues::*member, T value);
    void follow(unsigned what);

    SettingValues m_values {};
    ClampIF m_clamps;
    ClampIF m_clampsN;
    QVector<LegacyClamp> m_legacyClamps;
    int m_stepSize = 2;
    Derived m_derived;
};
