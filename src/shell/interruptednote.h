#pragma once

#include <QObject>

class FileWork;
struct InterruptedRun;
struct PlannedRun;

/// Tells the user once, at a start, which recordings the end of the program before has cut, and which waited for their
/// start. Main thread.
class InterruptedNote : public QObject
{
    Q_OBJECT

public:
    /// Looks for them behind the work that \a work has, which is deleted then, and tells them one after the other. The
    /// start waits for nothing; a recording is forgotten when its message is answered.
    static void tell(FileWork *work);
    static QString text(const InterruptedRun &run);
    static QString text(const PlannedRun &run);
};
