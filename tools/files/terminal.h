#pragma once

#include "record/tables/recordsource.h"

#include <QElapsedTimer>
#include <QString>

/// What the program says beside its results, and who may end it.
namespace Terminal {

/// A line on standard error, whatever stands in a name.
void complain(const QString &text);
/// The line that goes with every state but whole. \a outcome: what became of the work because of it, told in any state.
void complainOf(const RecordSource &source, const QString &outcome = {});
/// Names of files may hold anything; what would not stay in one line or is no text is written as "\n" or "\x1B".
QString printable(const QString &text);

/// The user's interrupt ends the work in good order from now on, and a closed pipe is an error like any other.
void catchSignals();
bool isInterrupted();

/// False, with a line on standard error, when standard output did not take everything.
bool finishOutput();

} // namespace Terminal

/// Shows how far a piece of work is: on a terminal alone, and only when it takes longer than a second.
class Progress
{
public:
    explicit Progress(const QString &what);
    ~Progress(); // takes what is shown away
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    /// To be handed to the work, for which it is asked from time to time.
    RecordProgress callback();

private:
    bool take(qint64 done, qint64 total);

    const QString m_what;
    const bool m_isShown;
    QElapsedTimer m_time;
    qint64 m_shownAt = 0; // ms
};
