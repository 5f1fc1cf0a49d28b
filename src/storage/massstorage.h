#pragma once

#include <QString>
#include <QtGlobal>

/// Sizes of a file system or a folder. Paths are the board's; "free" is what an ordinary program may still use.
/// A path that cannot be asked gives 0. Any thread.
class MassStorage
{
public:
    static qint64 storageFreeRoom(const QString &path); // kB
    static float storageFreeSize(const QString &path); // MB
    static float storageUsedSize(const QString &path); // MB
    /// Free size through the shell's df, by the line of the path.
    static float storageFreeSize0(const QString &path);
    /// Bytes of the files in a folder, not of those in its sub-folders.
    static qint64 folderUsedSize(const QString &path);
};
