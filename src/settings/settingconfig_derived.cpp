// What follows from the settings: nominal voltage, calibration rows, scale factors, units, decimals.
#include "settings/settingconfig.h"

#include "settings/calibfile.h"
#include "settings/config_data.h"

namespace {

// Volts by row 1 to 8; row 9 is the user's own value.
constexpr int kStarVolts[] = { 58, 100, 120, 139, 230, 277, 347, 400 };
constexpr int kDeltaVolts[] = { 100, 173, 208, 240, 398, 480, 600, 693 };
constexpr int kCustomRow = 9;

int tableVolts(const int (&volts)[8], int custom, int row)
{
    if (row == kCustomRow)
        return custom;
    return row >= 1 && row < kCustomRow ? volts[row - 1] : 0;
}

// Upper bounds of the voltage ranges 0, 1 and 2, volts.
constexpr int kStarRanges[] = { 130, 240, 410 };
constexpr int kDeltaRanges[] = { 183, 340, 580 };

int voltIndexOf(int volts, const int (&bounds)[3])
{
    int index = 0;
    while (index < 3 && volts >= bounds[index])
        ++index;
    return index;
}

/// Row of the current gains for a clamp, by the span of its output in microvolts.
int currentIndexOf(const Clamp *clamp)
{
    const double span = clamp ? 2.0 * clamp->range() * clamp->ratio() : 0.0;
    return span < 505000.0 ? 3 : span < 1515000.0 ? 1 : 2;
}

float quotient(int numerator, int denominator)
{
    return static_cast<float>(numerator) / static_cast<float>(denominator == 0 ? 1 : denominator);
}

float ratioOf(const Clamp *clamp)
{
    return clamp ? static_cast<float>(clamp->ratio()) : 0.0f;
}

/// gain / (ratio / 1000); a clamp that gives nothing measures nothing.
float perMillivolt(float gain, float clampRatio)
{
    return clampRatio == 0.0f ? 0.0f : gain / (clampRatio / 1000.0f);
}

} // namespace

int SettingConfig::getNomVoltStar(int row) const
{
    return tableVolts(kStarVolts, m_values.nomVoltStarCustom, row);
}

int SettingConfig::getNomVoltDelta(int row) const
{
    return tableVolts(kDeltaVolts, m_values.nomVoltDeltaCustom, row);
}

int SettingConfig::getNomVolt(int joinMode) const
{
    const ChannelSet *set = channelSet(joinMode);
    if (!set)
        return 0;
    return set->star() ? getNomVoltStar() : getNomVoltDelta();
}

float SettingConfig::getRealNominalVolt() const
{
    return static_cast<float>(getNomVolt()) * ratioV();
}

void SettingConfig::initNominalVolt()
{
    m_nominalVolt = getNomVolt();
}

double SettingConfig::getNomFreq() const
{
    switch (m_values.nomFreqSelect) {
    case 2:
        return 60.0;
    case 3:
        return 400.0;
    default:
        return 50.0;
    }
}

QString SettingConfig::getJoinModeName(int mode)
{
    const ChannelSet *set = channelSet(mode);
    return set ? QString::fromLatin1(set->name) : QString();
}

QString SettingConfig::getJoinModeFullName(int mode)
{
    const ChannelSet *set = channelSet(mode);
    return set ? QString::fromLatin1(set->fullName) : QString();
}

bool SettingConfig::isStarJoinMode(int mode)
{
    const ChannelSet *set = channelSet(mode);
    return set && set->star();
}

void SettingConfig::initInputMode()
{
    m_star = m_values.joinMode % 2 != 0;
    m_neutral = m_star;
}

float SettingConfig::getClampRatioF(int row) const
{
    if (row < 1 || row > m_legacyClamps.size())
        return 0.0f;
    return static_cast<float>(m_legacyClamps.at(row - 1).ratio) / 1000.0f;
}

float SettingConfig::ratioI() const
{
    return quotient(m_values.ratioIFenzi, m_values.ratioIFenmu);
}

float SettingConfig::ratioV() const
{
    return quotient(m_values.ratioVFenzi, m_values.ratioVFenmu);
}

float SettingConfig::ratioIN() const
{
    return quotient(m_values.ratioINFenzi, m_values.ratioINFenmu);
}

float SettingConfig::ratioVN() const
{
    return quotient(m_values.ratioVNFenzi, m_values.ratioVNFenmu);
}

void SettingConfig::initCalibIndex()
{
    m_voltIndex = voltIndexOf(getNomVolt(), m_values.joinMode % 2 != 0 ? kStarRanges : kDeltaRanges);
    m_currentIndex = currentIndexOf(curClamp());
    m_currentNIndex = currentIndexOf(curClampN());
}

void SettingConfig::Tmp_wvi()
{
    const float nominal = static_cast<float>(getNomVolt());
    const float clampRatio = ratioOf(curClamp());
    const float clampRatioN = ratioOf(curClampN());

    const float volt = nominal * ratioV();
    const float voltN = nominal * ratioVN();
    const float ampere = clampRatio / ratioI();
    const float ampereN = clampRatioN / ratioIN();
    m_units = DisplayUnits();
    m_unitsN = DisplayUnits();
    DisplayScale::chooseVolt(m_units, volt);
    DisplayScale::chooseVolt(m_unitsN, voltN);
    DisplayScale::chooseAmpere(m_units, ampere);
    DisplayScale::chooseAmpere(m_unitsN, ampereN);
    DisplayScale::choosePower(m_units, volt * ampere);
    DisplayScale::choosePower(m_unitsN, voltN * ampereN);

    const __calib_data &calib = m_calib_data_g.data();
    float *const power = m_wvi;
    float *const voltage = m_wvi + 4;
    float *const current = m_wvi + 8;
    for (int k = 0; k < 3; ++k) {
        const float voltGain = calib.volt[m_voltIndex][k];
        const float currentGain = calib.current[m_currentIndex][k];
        voltage[k] = ratioV() * voltGain;
        current[k] = perMillivolt(currentGain * ratioI(), clampRatio);
        power[k] = perMillivolt(voltGain * currentGain * ratioV() * ratioI(), clampRatio);
    }
    const float voltGainN = calib.volt[m_voltIndex][3];
    const float currentGainN = calib.current[m_currentNIndex][3];
    voltage[3] = ratioVN() * voltGainN;
    // As required: the neutral current takes the ratio of the phases here.
    current[3] = perMillivolt(currentGainN * ratioI(), clampRatioN);
    power[3] = perMillivolt(voltGainN * currentGainN * ratioVN() * ratioIN(), clampRatioN);
}

int SettingConfig::clampPrecision()
{
    m_currentDigits = DisplayScale::currentDigits(ratioOf(curClamp()) / ratioI(), m_units.factorAmpere);
    return m_currentDigits;
}

int SettingConfig::clampNPrecision()
{
    m_currentNDigits = DisplayScale::currentDigits(ratioOf(curClampN()) / ratioIN(), m_unitsN.factorAmpere);
    return m_currentNDigits;
}

QString SettingConfig::systemInfo() const
{
    const Clamp *clamp = curClamp();
    const Clamp *clampN = curClampN();
    return QStringLiteral("%1V;%2Hz\\%3;%4\\%5")
        .arg(QString::number(m_nominalVolt), QString::number(getNomFreq(), 'f', 0), clamp ? clamp->name() : QString(),
             clampN ? clampN->name() : QString(), getJoinModeName());
}
