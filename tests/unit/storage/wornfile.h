#pragma once

#include <QDir>
#include <QFileInfo>

#include "platform/target.h"

#include <unistd.h>

/// Puts a file in place that opens, but whose every read ends in an input/output error, as on a worn card: the memory
/// of this process, whose first page is never mapped.
inline bool makeWornFile(const QString &boardPath)
{
    const QString path = Target::path(boardPath);
    QDir().mkpath(QFileInfo(path).path());
    QFile::remove(path);
    return ::symlink("/proc/self/mem", QFile::encodeName(path).constData()) == 0;
}

/// Whether it still stands there, not written over.
inline bool isWornFile(const QString &boardPath)
{
    return QFileInfo(Target::path(boardPath)).symLinkTarget() == QLatin1String("/proc/self/mem");
}
