#include "settings/settingconfig.h"

#include <QDir>

#include "platform/target.h"
#include "settings/config_data.h"
#include "settings/inrushinfo.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

const char kFolder[] = "/mnt/userfs/sys/";
const char kClamps[] = "/mnt/userfs/sys/clamps.xcl";
const char kClampsN[] = "/mnt/userfs/sys/clampsN.xcl";
constexpr int kLegacyClamps = 10;

QString clampName(const Clamp *clamp)
{
    return clamp ? clamp->name() : QString();
}

/// The nearest whole number that the type holds.
template <typename T> T wholeNumber(double value)
{
    constexpr double kLowest = std::numeric_limits<T>::min();
    constexpr double kHighest = std::numeric_limits<T>::max();
    return static_cast<T>(std::llround(std::clamp(value, kLowest, kHighest)));
}

} // namespace

QString SettingConfig::filePath()
{
    return QStringLiteral("/mnt/userfs/sys/setting.conf");
}

SettingConfig::SettingConfig()
{
    QDir().mkpath(Target::path(QLatin1String(kFolder)));
    loadSettingConfig();
}

void SettingConfig::readRow(const QByteArray &file, const SettingRow<SettingValues> &row)
{
    QString text = Config::valueIn(file, QLatin1String(row.key));
    if (text.isEmpty())
        text = QLatin1String(row.defaultText);
    if (const auto *member = std::get_if<int SettingValues::*>(&row.member)) {
        int value = strcmp(row.type, "int") == 0 ? SettingText::toInt(text) : SettingText::floatToInt(text);
        if (row.lowest != row.highest)
            value = qBound(row.lowest, value, row.highest);
        m_values.**member = value;
    } else if (const auto *mask = std::get_if<unsigned SettingValues::*>(&row.member)) {
        m_values.**mask = SettingText::toUnsigned(text);
    } else { // no row of this file holds a text
        m_values.*std::get<double SettingValues::*>(row.member) = SettingText::toDouble(text);
    }
}

void SettingConfig::readRows(const QByteArray &file, std::initializer_list<const char *> keys)
{
    for (const char *key : keys) {
        for (const auto &row : rows()) {
            if (strcmp(row.key, key) == 0)
                readRow(file, row);
        }
    }
}

void SettingConfig::loadSettingConfig()
{
    const QByteArray file = Config::readWhole(filePath());
    readRows(file,
             { "NOM_VOLT_SELECT", "NOM_VOLT_LINE_SELECT", "NOM_VOLT_CUSTOM", "NOM_VOLT_LINE_CUSTOM", "NOM_FREQ",
               "JOINMODE", "CLAMP_TYPE", "TRANS_THRESHOLD", "LOGGER_FLAG" });
    readRows(file,
             { "RATIO_IFENMU", "RATIO_IFENZI", "RATIO_VFENMU", "RATIO_VFENZI", "RATIO_ICUSTOM", "RATIO_VCUSTOM",
               "RATIO_INFENMU", "RATIO_INFENZI", "RATIO_VNFENMU", "RATIO_VNFENZI", "RATIO_INCUSTOM", "RATIO_VNCUSTOM",
               "FLICKER_WEIGHTING_CURVE", "MAINSSIG_FREQ1", "MAINSSIG_THRESHOLD1", "MAINSSIG_FREQ2",
               "MAINSSIG_THRESHOLD2" });
    readRows(file, { "CLAMP_RATIO", "RANGE_I" });
    initClamps();
    m_stepSize = 2;
    follow(FollowDerived | FollowTables);
    readRows(file, { "INRUSH_INDEX", "INRUSH_NOMAMPS", "INRUSH_THRESHOLD", "INRUSH_HYSTERESIS" });
    initInrushLevels();
    readRows(file, { "KFACTOR_METHOD", "KFACTOR_E", "KFACTOR_Q" });
}

void SettingConfig::initClamps()
{
    m_clamps.load(QLatin1String(kClamps));
    m_clampsN.load(QLatin1String(kClampsN));
    m_legacyClamps.clear();
    int number = 0;
    for (const Clamp *clamp = m_clamps.first(); clamp && !clamp->editable(); clamp = clamp->nextNode)
        m_legacyClamps.append({ ++number, clamp->name(), clamp->range(), clamp->ratio() });
    m_legacyClamps.append({ kLegacyClamps, QStringLiteral("CUSTOM"), m_values.rangeI, m_values.clampRatio });
}

void SettingConfig::saveClampConfig()
{
    m_clamps.save(QLatin1String(kClamps));
    m_clampsN.save(QLatin1String(kClampsN));
    const ClampInUse before = m_derived.clamp;
    followSettings();
    if (m_derived.clamp != before)
        initInrushLevels();
}

void SettingConfig::initInrushLevels()
{
    // Kept: the levels go to the settings whenever the clamp is taken over, at every start too.
    constexpr int kThreshold = 200; // percent
    constexpr int kHysteresis = 2; // percent
    if (m_values.inrushNomAmps != m_derived.inrush.nomAmps)
        setInrushNomAmps(m_derived.inrush.nomAmps);
    if (m_values.inrushThreshold != kThreshold)
        setInrushThreshold(kThreshold);
    if (m_values.inrushHysteresis != kHysteresis)
        setInrushHysteresis(kHysteresis);
}

template <typename T> void SettingConfig::store(T SettingValues::*member, T value)
{
    m_values.*member = value;
    for (const auto &row : rows()) {
        const auto *kept = std::get_if<T SettingValues::*>(&row.member);
        if (!kept || *kept != member)
            continue;
        follow(row.follows);
        QString text;
        if constexpr (std::is_same_v<T, double>)
            text = SettingText::fromDouble(value);
        else
            text = QString::number(value);
        Config::writeConfigFile(filePath(), QLatin1String(row.key), text);
        return;
    }
}

void SettingConfig::follow(unsigned what)
{
    if (what & FollowDerived)
        followSettings();
    if (what & FollowTables)
        InrushInfo::changeInfoCuzFreq(m_derived.nominalFrequency);
    m_legacyClamps.last().ratio = m_values.clampRatio;
    m_legacyClamps.last().range = m_values.rangeI;
}

void SettingConfig::followSettings()
{
    m_derived = derive(m_values, curClamp(), curClampN(), m_calib_data_g.data());
}

const SettingRow<SettingValues> *SettingConfig::row(const char *key)
{
    for (const auto &row : rows()) {
        if (strcmp(row.key, key) == 0)
            return &row;
    }
    return nullptr;
}

EditRange SettingConfig::editRange(const SettingRow<SettingValues> &row) const
{
    EditRange range = { row.edit.lowest, row.edit.highest, row.edit.step };
    if (strcmp(row.key, "INRUSH_NOMAMPS") == 0) {
        const double step = m_derived.inrush.stepAtClamp;
        range = { step, std::max(step, double(m_derived.clamp.range)), step };
    } else if (strcmp(row.key, "RANGE_I") == 0 && m_values.clampRatio > 0) {
        constexpr int kLargestOutput = 2000000; // uV
        range.highest = std::clamp(double(kLargestOutput / m_values.clampRatio), range.lowest, range.highest);
    }
    return range;
}

double SettingConfig::value(const SettingRow<SettingValues> &row) const
{
    if (const auto *whole = std::get_if<int SettingValues::*>(&row.member))
        return m_values.**whole;
    if (const auto *mask = std::get_if<unsigned SettingValues::*>(&row.member))
        return m_values.**mask;
    return m_values.*std::get<double SettingValues::*>(row.member);
}

bool SettingConfig::setValue(const SettingRow<SettingValues> &row, double wanted)
{
    const double before = value(row);
    const double held = editRange(row).held(std::isfinite(wanted) ? wanted : before);
    if (const auto *whole = std::get_if<int SettingValues::*>(&row.member)) {
        const int rounded = wholeNumber<int>(held);
        if (rounded != m_values.**whole)
            store(*whole, rounded);
    } else if (const auto *mask = std::get_if<unsigned SettingValues::*>(&row.member)) {
        const auto rounded = wholeNumber<unsigned>(held);
        if (rounded != m_values.**mask)
            store(*mask, rounded);
    } else if (const auto *real = std::get_if<double SettingValues::*>(&row.member); held != before) {
        store(*real, held);
    }
    return value(row) != before;
}

bool SettingConfig::moveValue(const SettingRow<SettingValues> &row, int steps)
{
    return setValue(row, editRange(row).moved(value(row), steps));
}

bool SettingConfig::setDefault(const SettingRow<SettingValues> &row)
{
    return setValue(row, SettingText::toDouble(QLatin1String(row.defaultText)));
}

#define SETTER(type, name, member)                                                                                     \
    void SettingConfig::name(type value)                                                                               \
    {                                                                                                                  \
        store(&SettingValues::member, value);                                                                          \
    }
SETTER(int, setNomVoltStarSelect, nomVoltStarSelect)
SETTER(int, setNomVoltDeltaSelect, nomVoltDeltaSelect)
SETTER(int, setNomVoltStarCustom, nomVoltStarCustom)
SETTER(int, setNomVoltDeltaCustom, nomVoltDeltaCustom)
SETTER(int, setNomFreq, nomFreqSelect)
SETTER(int, setJoinMode, joinMode)
SETTER(int, setRatioIFenzi, ratioIFenzi)
SETTER(int, setRatioIFenmu, ratioIFenmu)
SETTER(int, setRatioVFenzi, ratioVFenzi)
SETTER(int, setRatioVFenmu, ratioVFenmu)
SETTER(int, setRatioINFenzi, ratioINFenzi)
SETTER(int, setRatioINFenmu, ratioINFenmu)
SETTER(int, setRatioVNFenzi, ratioVNFenzi)
SETTER(int, setRatioVNFenmu, ratioVNFenmu)
SETTER(int, setClampType, clampType)
SETTER(int, setClampRatio, clampRatio)
SETTER(int, setRangeI, rangeI)
SETTER(int, setRatioICustom, ratioICustom)
SETTER(int, setRatioVCustom, ratioVCustom)
SETTER(int, setRatioINCustom, ratioINCustom)
SETTER(int, setRatioVNCustom, ratioVNCustom)
SETTER(int, setFlickerWeightingCurve, flickerWeightingCurve)
SETTER(int, setInrushIndex, inrushIndex)
SETTER(double, setInrushNomAmps, inrushNomAmps)
SETTER(int, setInrushThreshold, inrushThreshold)
SETTER(int, setInrushHysteresis, inrushHysteresis)
SETTER(int, setTransThreshold, transThreshold)
SETTER(unsigned, setLoggerFlag, loggerFlag)
SETTER(int, setkFactorMethod, kFactorMethod)
SETTER(double, setkFactorE, kFactorE)
SETTER(double, setkFactorQ, kFactorQ)
SETTER(double, setMainsSigFreq1, mainsSigFreq1)
SETTER(double, setMainsSigThreshold1, mainsSigThreshold1)
SETTER(double, setMainsSigFreq2, mainsSigFreq2)
SETTER(double, setMainsSigThreshold2, mainsSigThreshold2)
#undef SETTER

void SettingConfig::changeFreqPrev()
{
    if (m_values.nomFreqSelect > 1)
        setNomFreq(m_values.nomFreqSelect - 1);
}

void SettingConfig::changeFreqNext()
{
    if (m_values.nomFreqSelect < 3)
        setNomFreq(m_values.nomFreqSelect + 1);
}

void SettingConfig::changeClampPrev()
{
    if (m_values.clampType > 1)
        setClampType(m_values.clampType - 1);
}

void SettingConfig::changeClampNext()
{
    if (m_values.clampType < kLegacyClamps)
        setClampType(m_values.clampType + 1);
}

void SettingConfig::changeStepSize(int step)
{
    m_stepSize = qBound(1, step, 10);
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

float SettingConfig::getClampRatioF(int row) const
{
    if (row < 1 || row > m_legacyClamps.size())
        return 0.0f;
    return static_cast<float>(m_legacyClamps.at(row - 1).ratio) / 1000.0f;
}

QString SettingConfig::systemInfo() const
{
    return QStringLiteral("%1V;%2Hz\\%3;%4\\%5")
        .arg(QString::number(m_derived.nominalVolt), QString::number(m_derived.nominalFrequency, 'f', 0),
             clampName(curClamp()), clampName(curClampN()), getJoinModeName());
}
