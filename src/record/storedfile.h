#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class Pqa2Device;
class QDateTime;

/// A file directly on the storage that grows for as long as a measurement runs, with its entry in the index. What is
/// appended is there whole or not at all, and is written out every few seconds without anyone waiting. Main thread.
class StoredFile
{
public:
    explicit StoredFile(std::unique_ptr<Pqa2Device> device);
    ~StoredFile();
    StoredFile(const StoredFile &) = delete;
    StoredFile &operator=(const StoredFile &) = delete;

    /// Starts the file \a name anew, in place of the one that is open, and, on the disk's own thread, enters it in the
    /// index; \a localTime is the time of day of the user's zone. False: there is no open file.
    bool open(const QString &name, const QDateTime &localTime);
    bool isOpen() const { return m_open; }
    QString name() const { return m_name; } // with its suffix; of the last one that was opened
    /// False: the storage refused it, and nothing of it is left.
    bool append(const QByteArray &bytes);
    /// Over what stands at \a offset.
    bool rewrite(qint64 offset, const char *data, qint64 size);
    /// To be called behind what belongs together: has the system write it out if the last time was some seconds ago.
    void flushNowAndThen();
    /// Has the system write out what was written so far, without waiting for it. False when it was not begun, as the
    /// flush before still goes on.
    bool flush();
    void close();
    /// Closes the file and takes it away, with its entry.
    void remove();

private:
    std::unique_ptr<Pqa2Device> m_device;
    QString m_name;
    bool m_open = false;
    qint64 m_flushed = 0; // Clock::elapsed() of the last flush
};
