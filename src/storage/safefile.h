#pragma once

#include <QByteArray>
#include <QString>

/// Replaces small files so that a reader, a crash or a full disk never meets a part of one.
class SafeFile
{
public:
    /// Writes `content` to `path` + ".bak", brings it to the disk and renames it over `path` (a board's path).
    /// False when any step failed: then the file of that name is as it was.
    static bool replace(const QString &path, const QByteArray &content);
    /// Only the first half: the complete staging copy beside `path`. False: no staging copy is left.
    static bool stage(const QString &path, const QByteArray &content);
    /// Only the second half: the staging copy takes the file's name.
    static bool commit(const QString &path);
};
