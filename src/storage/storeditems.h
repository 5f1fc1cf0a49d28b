#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTimeZone>
#include <QVector>

/// One thing that was recorded or saved: a file or a folder in "/mnt/storage/".
struct StoredItem
{
    QByteArray file; // its name, byte by byte
    QString name; // its name as text
    bool isFolder = false;
    QString time; // when it was saved, in the user's zone: "yyyy-MM-dd hh:mm:ss"
};

/// What stands on the storage, whether the index knows it or not. Reading and deleting may take long: any thread but,
/// by preference, the main one (FileWork). Names reach no shell.
class StoredItems
{
public:
    /// All of them, the newest first. The time is that of the index, else the one in the name, else the file's own.
    static QVector<StoredItem> read(const QTimeZone &zone);
    /// Takes items away, folders with all that is in them, and their entries; then everything is brought to the card.
    /// What is in use stays. Names that are still there come back.
    static QList<QByteArray> remove(const QList<QByteArray> &files);
    /// Takes everything away, with the index: the names first, so that what begins to be recorded meanwhile stays.
    /// False: something is in use, and nothing was touched.
    static bool removeAll();
    /// Makes the index name what is there: entries without a file go, and what stands there without an entry, such as
    /// a recording that a lost supply ended, gets one. What was about to go then goes. A storage that cannot be read
    /// changes nothing.
    static void mendIndex(const QTimeZone &zone);
};
