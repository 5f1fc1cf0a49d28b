#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

#include "settings/limits.h"

/// The catalogue of limit sets and the one in use. A single instance is the global m_limits_g. GUI thread.
class LimitsManager
{
public:
    static QString builtin_en50160;
    static QString builtin_gost32144;

    /// Makes the folder, takes the two built-in sets, the files of the folder and the stored name.
    LimitsManager();
    LimitsManager(const LimitsManager &) = delete;
    LimitsManager &operator=(const LimitsManager &) = delete;

    /// The active set; the address stays the same for the life of the manager.
    const monitor_limit *getLimitsInUsed() const { return &m_active.limit(); }
    QString activeLimitsName() const { return m_active.name(); }
    /// Names in the catalogue's order: the built-in sets, then the files.
    QStringList allLimitsList() const;
    /// The set of that name as integers; an unknown name leaves the target alone.
    void getLimits(monitor_limit_int *target, const QString &name) const;
    bool getLimits(monitor_limit *target, const QString &name) const;

    /// Saves the set as a file and takes it into the catalogue, in place of the first one of its name, whose own file
    /// goes when it is called otherwise. False: it is in the catalogue, but no file of it was written.
    bool add(MonitorLimits2 *set);
    bool add(const QString &name, const monitor_limit &limit);
    bool add(const QString &name, const monitor_limit_int &limit);
    /// Gives the first set of a name another one, in place of a set that has it. False: nothing has changed, since the
    /// file could not be written.
    bool rename(const QString &from, const QString &to);
    /// Takes the set out of the catalogue and deletes its file. If it was active, EN50160 becomes active.
    void remove(const QString &name);
    void changeActiveLimits(const QString &name);
    void initActiveLimits(const QString &name);

    void loadAllLimitsFile();
    /// Name of the active set as stored, EN50160's when there is none.
    QString loadLimitsConf() const;
    void changeLimitsConf(const QString &name) const;

    static QString folder(); // the board's, with its double slash
    static QString confPath(); // the board's
    /// Whether a name can be the name of a set's file: one plain component that a folder can hold.
    static bool isPlainName(const QString &name);

private:
    MonitorLimits2 *find(const QString &name) const;
    bool store(MonitorLimits2 *set);
    void take(const MonitorLimits2 &set);

    std::vector<std::unique_ptr<MonitorLimits2>> m_sets; // the catalogue
    MonitorLimits2 m_en50160; // to fall back on
    MonitorLimits2 m_active;
};
