#pragma once

#include <QByteArray>
#include <QSet>

/// What this program holds open on the storage: a recording that runs must neither be deleted nor copied half. Any
/// thread.
class FilesInUse
{
public:
    /// Names of the files in "/mnt/storage/" that are open, and of the folders that an open file lies in.
    static QSet<QByteArray> names();
};
