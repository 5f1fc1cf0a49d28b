#pragma once

#include "platform/diskworker.h"

#include <QFile>
#include <QString>

/// The file below a Pqa2FF and the room on its storage: one member function for each thing the writer asks of the
/// system, so that a test can count, cut and refuse them. Nothing is buffered: what returned has reached the system.
class Pqa2Device
{
public:
    Pqa2Device();
    virtual ~Pqa2Device() = default;

    /// Opens the file of a board's path for reading and writing and truncates it. Has the system write out
    /// its name, without waiting for it.
    virtual bool open(const QString &path);
    /// Closes the file and has the system write everything out, without waiting for it.
    virtual void close();
    /// Bytes taken, fewer than asked when the storage fails in between, -1 when it fails at once.
    virtual qint64 write(const char *data, qint64 size);
    virtual bool seek(qint64 position);
    virtual qint64 pos() const;
    virtual qint64 size() const;
    /// Cuts the file.
    virtual bool resize(qint64 size);
    /// Has the system write this file out.
    virtual bool sync();
    /// The same without waiting for it. False when it was not begun, as the one before still goes on.
    virtual bool syncBehind();
    /// MB on "/mnt/storage/".
    virtual float freeSize();

private:
    QFile m_file;
    FileFlush m_flush;
};
