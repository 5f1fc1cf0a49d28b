#include "settings/userconfig.h"

#include <QDir>

#include "settings/phasecolor.h"
#include "platform/target.h"

#include <cstring>

namespace {

const char kUserFile[] = "/mnt/userfs/config/user.conf";
const char kTypeFile[] = "/mnt/userfs/config/quvera_type.conf";
const char kSerialFile[] = "/mnt/userfs/sys/sn";

const char *const kFolders[] = { "/mnt/userfs/config/", "/mnt/userfs/skin/", "/mnt/userfs/language/",
                                 "/mnt/storage/",       "/tmp/screenshots/", "/mnt/userfs/sys/" };

struct Sleep
{
    const char *key; // in the file
    const char *name; // as shown
    int seconds;
};
constexpr Sleep kSleeps[]
    = { { "OFF", "OFF", 0 }, { "5", "5 s", 5 }, { "15", "15 s", 15 }, { "30", "30 s", 30 }, { "60", "60 s", 60 } };
constexpr int kSleepCount = 5;

const char *const kModels[] = { "QUVERAE", "QUVERA" };

} // namespace

const QVector<UserConfig::Language> &UserConfig::languages()
{
    // 4 and 9, 8 and 11 show the same name on purpose.
    static const QVector<Language> table = {
        { "EN", "English", "" },         { "ZH", "Chinese", "zh" },
        { "PO", "Polski", "po" },        { "PT_ZOLC", "Portuguese", "pt_zolcar" },
        { "KO", "Korean", "ko" },        { "TU", "Turkish", "tu" },
        { "FR", "French", "fr" },        { "SP", "Spanish", "sp" },
        { "PT", "Portuguese", "pt" },    { "GE", "German", "ge" },
        { "SP_LA", "Spanish", "sp_la" }, { "RU", "Russian", "ru" },
        { "JP", "Japanese", "jp" },      { "IT", "Italian", "it" },
    };
    return table;
}

const QVector<SettingRow<UserValues>> &UserConfig::rows()
{
    using V = UserValues;
    static const QVector<SettingRow<V>> table = {
        { "USER_NAME", "text", "root", 0, 0, &V::userName, "name shown on the user page and in files" },
        { "LANG", "keyword", "EN", 0, 0, &V::language, "language" },
        { "SLEEP", "keyword", "OFF", 0, 0, &V::sleep, "back-light time-out" },
        { "PHASECOLOR", "five digits", "01231", 0, 0, &V::phaseColors,
          "colour index of phases A, B, C, N and of earth" },
        { "TZ", "text", "UTC", 0, 0, &V::timeZone, "time-zone name" },
        { "TYPE", "keyword", "QUVERA", 0, 0, &V::type, "model, only a label" },
        { "SN", "text", "1AA000000", 0, 0, &V::serialNumber, "serial number, a label" },
    };
    return table;
}

QString UserConfig::filePath(const char *key)
{
    if (strcmp(key, "TYPE") == 0)
        return QLatin1String(kTypeFile);
    return QLatin1String(strcmp(key, "SN") == 0 ? kSerialFile : kUserFile);
}

UserConfig::UserConfig()
{
    for (const char *folder : kFolders)
        QDir().mkpath(Target::path(QLatin1String(folder)));
    load();
}

void UserConfig::load()
{
    for (const auto &row : rows()) {
        QString text = Config::readConfigFile(filePath(row.key), QLatin1String(row.key));
        if (text.isEmpty())
            text = QLatin1String(row.defaultText);
        m_values.*std::get<QString UserValues::*>(row.member) = text;
    }
    m_lang = EN;
    for (int i = 0; i < languages().size(); ++i) {
        if (m_values.language == QLatin1String(languages().at(i).key))
            m_lang = i + 1;
    }
    m_sleep = SleepOff;
    for (int i = 0; i < kSleepCount; ++i) {
        if (m_values.sleep == QLatin1String(kSleeps[i].key))
            m_sleep = i + 1;
    }
    m_model = m_values.type == QLatin1String(kModels[0]) ? QuveraE : Quvera;
    PhaseColor::setPhaseColors(m_values.phaseColors);
}

void UserConfig::store(QString UserValues::*member, const QString &value)
{
    m_values.*member = value;
    for (const auto &row : rows()) {
        if (std::get<QString UserValues::*>(row.member) == member)
            Config::writeConfigFile(filePath(row.key), QLatin1String(row.key), value);
    }
}

void UserConfig::setUserName(const QString &name)
{
    store(&UserValues::userName, name);
}

QString UserConfig::getLanguage(int language)
{
    if (language < 1 || language > languages().size())
        return {};
    return QLatin1String(languages().at(language - 1).name);
}

void UserConfig::setLanguage(int language)
{
    const int known = language >= 1 && language <= languages().size() ? language : int(EN);
    store(&UserValues::language, QLatin1String(languages().at(known - 1).key));
}

void UserConfig::changeLangNext()
{
    m_lang = qMin(m_lang + 1, languages().size());
}

void UserConfig::changeLangPrev()
{
    m_lang = qMax(m_lang - 1, 1);
}

QString UserConfig::getSleep() const
{
    return QLatin1String(kSleeps[m_sleep - 1].name);
}

int UserConfig::sleepDelay() const
{
    return kSleeps[m_sleep - 1].seconds;
}

void UserConfig::setSleep(int sleep)
{
    m_sleep = sleep >= 1 && sleep <= kSleepCount ? sleep : int(SleepOff);
    store(&UserValues::sleep, QLatin1String(kSleeps[m_sleep - 1].key));
}

void UserConfig::changeSleepNext()
{
    if (m_sleep < kSleepCount)
        setSleep(m_sleep + 1);
}

void UserConfig::changeSleepPrev()
{
    if (m_sleep > 1)
        setSleep(m_sleep - 1);
}

void UserConfig::setPhaseColors(const QString &digits)
{
    store(&UserValues::phaseColors, digits);
    PhaseColor::setPhaseColors(digits);
}

void UserConfig::setTimeZone(const QString &id)
{
    store(&UserValues::timeZone, id);
}

QStringList UserConfig::modelNames()
{
    return { QLatin1String(kModels[0]), QLatin1String(kModels[1]) };
}

QString UserConfig::getInstrumentModelName() const
{
    return modelNames().value(m_model - 1, QStringLiteral("QUVERA"));
}

void UserConfig::setInstrumentModel(int number)
{
    if (number > 2)
        return;
    m_model = number;
    store(&UserValues::type, QLatin1String(kModels[number == QuveraE ? 0 : 1]));
}

void UserConfig::setInstrumentModelByName(const QString &name)
{
    // Kept: the place counts from 0, the model from 1, so the other label is stored. Only the text is ever shown.
    setInstrumentModel(modelNames().indexOf(name));
}

void UserConfig::setInstrumentSN(const QString &serialNumber)
{
    store(&UserValues::serialNumber, serialNumber);
}
