#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

/// A run that is to begin at a time that the user chose.
struct PlannedRun
{
    QString name; // as the user knows it
    quint32 start; // s since 1970
};

/// Names what is being recorded or waits for its start, in "/mnt/storage/.running", so that the next start knows what a
/// lost supply cut or dropped (docs/formats/run-journal.md). It is written behind, on the disk thread. Any thread.
class RunJournal
{
public:
    static RunJournal &instance();

    /// Takes in what the run of the program before left.
    RunJournal();

    /// The file or folder of that name in "/mnt/storage/" is being written from now on; \a instead of the one that it
    /// goes on from, which has ended well: no moment lies between the two.
    void begin(const QString &name, const QString &instead = {});
    /// It ended well: it is forgotten when everything that was asked of the disk thread before is done.
    void end(const QString &name);

    /// A run waits for its start, the only one; it no longer does: it begins, or somebody ended it.
    void plan(const PlannedRun &run);
    void endPlan();

    /// What was being written when the program before ended, and was not forgotten since.
    QStringList interrupted() const;
    void forget(const QString &name);
    /// What waited for its start when a program before ended, and was not forgotten since.
    QVector<PlannedRun> missed() const;
    void forgetMissed();

    static QString path(); // the board's

private:
    struct State;

    void write() const;

    const std::shared_ptr<State> m_state; // held by what is under way
};
