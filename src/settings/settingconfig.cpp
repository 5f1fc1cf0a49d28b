#include "settings/settingconfig.h"

#include <QDir>

#include "settings/inrushinfo.h"
#include "model/transparam.h"
#include "platform/target.h"

#include <cstring>

namespace {

const char kFolder[] = "/mnt/userfs/sys/";
const char kClamps[] = "/mnt/userfs/sys/clamps.xcl";
const char kClampsN[] = "/mnt/userfs/sys/clampsN.xcl";
constexpr int kLegacyClamps = 10;

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
    } else if (const auto *real = std::get_if<double SettingValues::*>(&row.member)) {
        m_values.**real = SettingText::toDouble(text);
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
    TransParam::m_trans_threshold = m_values.transThreshold;
    readRows(file,
             { "RATIO_IFENMU", "RATIO_IFENZI", "RATIO_VFENMU", "RATIO_VFENZI", "RATIO_ICUSTOM", "RATIO_VCUSTOM",
               "RATIO_INFENMU", "RATIO_INFENZI", "RATIO_VNFENMU", "RATIO_VNFENZI", "RATIO_INCUSTOM", "RATIO_VNCUSTOM",
               "FLICKER_WEIGHTING_CURVE", "MAINSSIG_FREQ1", "MAINSSIG_THRESHOLD1", "MAINSSIG_FREQ2",
               "MAINSSIG_THRESHOLD2" });
    readRows(file, { "CLAMP_RATIO", "RANGE_I" });
    initClamps();
    initInputMode();
    initNominalVolt();
    initCalibIndex();
    m_stepSize = 2;
    Tmp_wvi();
    clampPrecision();
    clampNPrecision();
    readRows(file, { "INRUSH_INDEX", "INRUSH_NOMAMPS", "INRUSH_THRESHOLD", "INRUSH_HYSTERESIS" });
    InrushInfo::initInfoTimes(*this);
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
    followSettings();
    InrushInfo::changeInfoCuzClamp(*this);
}

template <typename T> void SettingConfig::store(T SettingValues::*member, T value)
{
    m_values.*member = value;
    for (const auto &row : rows()) {
        const auto *kept = std::get_if<T SettingValues::*>(&row.member);
        if (!kept || *kept != member)
            continue;
        QString text;
        if constexpr (std::is_same_v<T, double>)
            text = SettingText::fromDouble(value);
        else
            text = QString::number(value);
        Config::writeConfigFile(filePath(), QLatin1String(row.key), text);
        return;
    }
}

void SettingConfig::followSettings()
{
    initInputMode();
    initNominalVolt();
    initCalibIndex();
    Tmp_wvi();
    clampPrecision();
    clampNPrecision();
}

// Setters of values that others follow from: the cached value, what follows, then the file.
#define FOLLOWED_SETTER(name, member)                                                                                  \
    void SettingConfig::name(int value)                                                                                \
    {                                                                                                                  \
        m_values.member = value;                                                                                       \
        followSettings();                                                                                              \
        store(&SettingValues::member, value);                                                                          \
    }
FOLLOWED_SETTER(setNomVoltStarSelect, nomVoltStarSelect)
FOLLOWED_SETTER(setNomVoltDeltaSelect, nomVoltDeltaSelect)
FOLLOWED_SETTER(setNomVoltStarCustom, nomVoltStarCustom)
FOLLOWED_SETTER(setNomVoltDeltaCustom, nomVoltDeltaCustom)
FOLLOWED_SETTER(setJoinMode, joinMode)
FOLLOWED_SETTER(setRatioIFenzi, ratioIFenzi)
FOLLOWED_SETTER(setRatioIFenmu, ratioIFenmu)
FOLLOWED_SETTER(setRatioVFenzi, ratioVFenzi)
FOLLOWED_SETTER(setRatioVFenmu, ratioVFenmu)
FOLLOWED_SETTER(setRatioINFenzi, ratioINFenzi)
FOLLOWED_SETTER(setRatioINFenmu, ratioINFenmu)
FOLLOWED_SETTER(setRatioVNFenzi, ratioVNFenzi)
FOLLOWED_SETTER(setRatioVNFenmu, ratioVNFenmu)
#undef FOLLOWED_SETTER

#define SETTER(type, name, member)                                                                                     \
    void SettingConfig::name(type value)                                                                               \
    {                                                                                                                  \
        store(&SettingValues::member, value);                                                                          \
    }
SETTER(int, setClampType, clampType)
SETTER(int, setRatioICustom, ratioICustom)
SETTER(int, setRatioVCustom, ratioVCustom)
SETTER(int, setRatioINCustom, ratioINCustom)
SETTER(int, setRatioVNCustom, ratioVNCustom)
SETTER(int, setFlickerWeightingCurve, flickerWeightingCurve)
SETTER(int, setInrushIndex, inrushIndex)
SETTER(double, setInrushNomAmps, inrushNomAmps)
SETTER(int, setInrushThreshold, inrushThreshold)
SETTER(int, setInrushHysteresis, inrushHysteresis)
SETTER(unsigned, setLoggerFlag, loggerFlag)
SETTER(int, setkFactorMethod, kFactorMethod)
SETTER(double, setkFactorE, kFactorE)
SETTER(double, setkFactorQ, kFactorQ)
SETTER(double, setMainsSigFreq1, mainsSigFreq1)
SETTER(double, setMainsSigThreshold1, mainsSigThreshold1)
SETTER(double, setMainsSigFreq2, mainsSigFreq2)
SETTER(double, setMainsSigThreshold2, mainsSigThreshold2)
#undef SETTER

void SettingConfig::setNomFreq(int select)
{
    store(&SettingValues::nomFreqSelect, select);
    InrushInfo::changeInfoCuzFreq(getNomFreq());
}

void SettingConfig::setTransThreshold(int percent)
{
    TransParam::m_trans_threshold = percent;
    store(&SettingValues::transThreshold, percent);
}

void SettingConfig::setClampRatio(int microvoltsPerAmp)
{
    store(&SettingValues::clampRatio, microvoltsPerAmp);
    m_legacyClamps.last().ratio = microvoltsPerAmp;
}

void SettingConfig::setRangeI(int amps)
{
    store(&SettingValues::rangeI, amps);
    m_legacyClamps.last().range = amps;
}

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
