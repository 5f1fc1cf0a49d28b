#pragma once

#include "record/storedfile.h"

#include <QString>

/// File of the logger: lines of text, the first of them the header. A run of many lines goes on in a next file, which
/// has the next number. Format: docs/formats/csv-logger.md. Main thread.
class LoggerFile
{
public:
    /// \a stem: name without number and suffix; null or empty: no file can be opened.
    explicit LoggerFile(const QString *stem);
    /// On another device.
    LoggerFile(const QString *stem, std::unique_ptr<Pqa2Device> device);

    /// Starts the file of the number that is due anew, unless it is the open one, and enters it in the index; a file of
    /// the number before is closed, and at no moment is neither named as running. \a localTime is the time of day of
    /// the user's zone. False: there is no open file.
    bool open(const QDateTime &localTime);
    bool isOpen() const { return m_file.isOpen(); }
    /// A whole line with its line feed. False: the storage refused it, and nothing of it is left.
    bool write(const QByteArray &line) { return isOpen() && m_file.append(line); }
    /// Has the system write out what was written so far, some seconds after the last time, without waiting for it.
    void flush() { m_file.flushNowAndThen(); }
    void close() { m_file.close(); }
    /// Closes the file; one that is not kept is deleted, and its entry in the index with it.
    void save(bool keep);
    void incFileIndex() { ++m_index; }

    QString fileName() const; // with number and suffix

private:
    const QString m_stem;
    StoredFile m_file;
    int m_index = 0;
};
