#pragma once

#include <QString>
#include <QStringList>

#include <memory>

/// Names what is being recorded, in "/mnt/storage/.running", so that the next start knows what a lost supply cut
/// (docs/formats/run-journal.md). It is written behind, on the disk thread. Any thread.
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

    /// What was being written when the program before ended, and was not forgotten since.
    QStringList interrupted() const;
    void forget(const QString &name);

    static QString path(); // the board's

private:
    struct State;

    void write() const;

    const std::shared_ptr<State> m_state; // held by what is under way
};
