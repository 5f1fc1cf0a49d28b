#include "storage/massstorage.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "platform/diskroom.h"
#include "platform/target.h"

#include <cstdio>
#include <sys/vfs.h>

namespace {

constexpr float kMegabyte = 1024.0f * 1024.0f;

/// A path as one word of a shell command; plain ones stay as they are.
QString shellWord(const QString &path)
{
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9_./:-]+\\z"));
    if (plain.match(path).hasMatch())
        return path;
    QString quoted = path;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

} // namespace

qint64 MassStorage::storageFreeRoom(const QString &path)
{
    struct statfs info
    {
    };
    if (!DiskRoom::ask(path, &info))
        return 0;
    return static_cast<qint64>(static_cast<double>(info.f_bavail) / 1024.0 * static_cast<double>(info.f_bsize));
}

float MassStorage::storageFreeSize(const QString &path)
{
    struct statfs info
    {
    };
    if (!DiskRoom::ask(path, &info))
        return 0.0f;
    return static_cast<float>(static_cast<double>(info.f_bavail) * static_cast<double>(info.f_bsize) / kMegabyte);
}

float MassStorage::storageUsedSize(const QString &path)
{
    struct statfs info
    {
    };
    if (!DiskRoom::ask(path, &info))
        return 0.0f;
    const double blocks = static_cast<double>(info.f_blocks) - static_cast<double>(info.f_bavail);
    return static_cast<float>(blocks * static_cast<double>(info.f_bsize) / kMegabyte);
}

float MassStorage::storageFreeSize0(const QString &path)
{
    if (!QFileInfo::exists(Target::path(path)))
        return 0.0f;
    bool started = false;
    const QString output
        = Target::shellOutput(QStringLiteral("df |grep %1 | awk '{print $4}'").arg(shellWord(path)), &started);
    if (!started) {
        ::perror(QStringLiteral("popen:%1").arg(path).toLocal8Bit().constData());
        return 0.0f;
    }
    const QString first = output.section(QLatin1Char('\n'), 0, 0).trimmed();
    return static_cast<float>(first.toDouble() * 9.536743e-7);
}

qint64 MassStorage::folderUsedSize(const QString &path)
{
    qint64 bytes = 0;
    const auto files = QDir(Target::path(path)).entryInfoList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QFileInfo &file : files)
        bytes += file.size();
    return bytes;
}
