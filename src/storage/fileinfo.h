#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

class QDateTime;

/// The text index "/mnt/storage/.infomation" of what the instrument recorded, and the names it gives.
/// Format: docs/formats/storage-index.md. Any thread; changes are made one after the other. Failures go to the debug
/// log only.
class FileInfo
{
public:
    QStringList readInfo() const; // the lines
    bool testInfo() const; // whether the index is readable
    QStringList getInfoFiles() const; // the names, also those that are about to be entered
    bool testFileexist(const QString &name) const;
    /// Adds the entry or replaces those of the same base name; false when the index could not be read or written.
    /// `localTime` is the time of saving in the user's zone.
    bool saveInfo(const QString &name, const QDateTime &localTime) const;
    /// Deletes the stored files of the name's base name, but for what is being recorded, then removes its entries.
    /// False when the index could not be read (then nothing is deleted) or written (then the files are gone and the
    /// entries stay).
    bool removeInfo(const QString &name) const;
    /// The same two for the main thread, which waits for no card: the disk worker writes the index, in the order of the
    /// calls, and frees what the files took. Their names are free, and the entry's name is taken, when the call
    /// returns.
    void saveInfoBehind(const QString &name, const QDateTime &localTime) const;
    void removeInfoBehind(const QString &name) const;
    /// Removes the entries of exactly these names, in one writing however many they are; files are left alone.
    bool removeEntries(const QStringList &names) const;
    /// Removes the entries that are not among \a present (entry names with their times) and appends what is missing.
    /// Writes only what differs.
    bool mend(const QHash<QString, QString> &present) const;
    /// Files of a folder (a board's path), no dot files, oldest first.
    QStringList getFiles(const QString &path) const;
    /// Entries of the storage that look like records: "yyMMdd_hhmmss name".
    QStringList getRecordInfos() const;
    /// prefix + n + suffix with the first n of 1 to 999 that neither the index nor the storage holds; empty when all
    /// are taken.
    QString getDefaultFileName(const QString &prefix, const QString &suffix) const;
    /// prefix + n with the first n of 1 to 999 that no record is named; empty when all are taken.
    QString getDefaultRecordName(const QString &prefix) const;

    static QString indexPath(); // the board's
    static QString storagePath(); // the board's
    /// A name without its last extension: names are compared so.
    static QString baseName(const QString &name);
    /// A file's name as the index holds it: of Latin-1, one line, up to the first comma.
    static QString entryName(const QString &name);
};
