#pragma once

#include <QString>

class QDateTime;

/// The folder of one recording, or of one run of the monitor, on the storage: "yyMMdd_hhmmss name", by the user's time.
/// Paths are the board's. Main thread.
class RecordFolder
{
public:
    /// What a recording of that name is called which begins at that time. Slashes, commas and control characters, which
    /// would lead elsewhere or break the line of the index, become "_"; a long name is cut.
    static QString nameAt(const QDateTime &localTime, const QString &record);

    /// Makes the folder of a recording that begins now, or a second later for each that is there already; the index,
    /// which has to wait for the card, gets its entry behind. The journal of runs says that it is being written, until
    /// ended(). False, with no name, when it cannot be made.
    bool create(const QString &record);
    /// The files in the folder of that name are complete. Any thread.
    static void ended(const QString &name);
    /// Lets go of the folder, which stays.
    void release() { m_name.clear(); }
    /// Takes the folder away with all that is in it, and its entry. It is out of sight at once; that its files go may
    /// take longer than the screen may stand still, and is done behind.
    void remove();

    QString name() const { return m_name; } // empty without a folder
    QString path() const; // with a slash at its end; empty without a folder
    /// Path of a file in it; empty without a folder.
    QString file(const QString &name) const;

private:
    QString m_name;
};
