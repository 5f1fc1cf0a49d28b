#pragma once

#include <QDateTime>
#include <QString>
#include <QTimeZone>
#include <QVector>

class RunJournal;

/// A recording that the end of the program cut.
struct InterruptedRun
{
    QString name; // of its file or folder on the storage
    QDateTime last; // what it holds reaches up to here
};

/// What the journal of runs left, looked at.
namespace InterruptedRuns {

constexpr qint64 kLargestRead = 64 << 20; // bytes; of a longer file the file system tells the time

/// Those that are still there and lack their end; the others are forgotten, also files that were opened for a run that
/// the journal says waited for its start. The last time in a file counts, else the
/// file's own. May take seconds: not on the main thread.
QVector<InterruptedRun> find(RunJournal &journal, const QTimeZone &zone);

} // namespace InterruptedRuns
