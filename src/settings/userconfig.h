#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include "settings/settingrow.h"

/// The values behind the keys of user.conf, quvera_type.conf and sn.
struct UserValues
{
    QString userName, language, sleep, phaseColors, timeZone, type, serialNumber;
};

/// The user's and the instrument's identity: name, language, back-light time-out, phase colours, time zone, model and
/// serial number. Read at construction, stored at each change. GUI thread. Keys: docs/settings.md.
class UserConfig
{
public:
    enum __model { QuveraE = 1, Quvera = 2 };
    enum __language { EN = 1, ZH, PO, PT_ZOLC, KO, TU, FR, SP, PT, GE, SP_LA, RU, JP, IT };
    enum __sleep { SleepOff = 1, Sleep5, Sleep15, Sleep30, Sleep60 };

    /// One language: its number is its place in the list, from 1.
    struct Language
    {
        const char *key; // in the file
        const char *name; // as shown
        const char *fileWord; // of "lang_<word>.qm"; empty: the source texts
    };

    UserConfig();

    static const QVector<SettingRow<UserValues>> &rows();
    static QString filePath(const char *key); // the board's path of the file that holds a key
    static const QVector<Language> &languages();

    QString getUserName() const { return m_values.userName; }
    void setUserName(const QString &name);

    int getLang() const { return m_lang; } // __language
    QString getLanguage() const { return getLanguage(m_lang); }
    static QString getLanguage(int language); // name as shown; empty outside 1..14
    /// Stores a language. Kept: the number that getLang answers does not change here, the caller steps it.
    void setLanguage(int language);
    void changeLangNext();
    void changeLangPrev();

    int getSleepNumber() const { return m_sleep; } // __sleep
    QString getSleep() const; // "OFF", "5 s", "15 s", "30 s" or "60 s"
    int sleepDelay() const; // s; 0: never
    void setSleep(int sleep);
    void changeSleepNext();
    void changeSleepPrev();

    QString getPhaseColors() const { return m_values.phaseColors; }
    void setPhaseColors(const QString &digits); // the colours of PhaseColor follow

    QString getTimeZone() const { return m_values.timeZone; }
    void setTimeZone(const QString &id);

    static QStringList modelNames();
    int getInstrumentModel() const { return m_model; }
    QString getInstrumentModelName() const;
    void setInstrumentModel(int number);
    void setInstrumentModelByName(const QString &name);

    QString getInstrumentSN() const { return m_values.serialNumber; }
    void setInstrumentSN(const QString &serialNumber);

private:
    void load();
    void store(QString UserValues::*member, const QString &value);

    UserValues m_values;
    int m_lang = EN;
    int m_sleep = SleepOff;
    int m_model = Quvera;
};
