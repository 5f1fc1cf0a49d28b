#include "storage/udiskstorage.h"

#include <QDir>
#include <QFileInfo>

#include "platform/target.h"

QString uDiskStorage::mediaPath()
{
    return QStringLiteral("/run/media/");
}

QString uDiskStorage::internalCard()
{
    return QStringLiteral("mmcblk0p1");
}

uDiskStorage::uDiskStorage(QObject *parent) : QObject(parent)
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &uDiskStorage::directoryUpdated);
    checkUDiskDev();
}

void uDiskStorage::watch()
{
    // Where the folder is made with the first disk and goes with the last, its parent tells when it comes back.
    const QString media = Target::path(mediaPath());
    const QString parent = Target::path(QStringLiteral("/run"));
    const bool there = QFileInfo(media).isDir();
    const QStringList watched = m_watcher.directories();
    if (there && !watched.contains(media))
        m_watcher.addPath(media);
    if (there && watched.contains(parent))
        m_watcher.removePath(parent);
    if (!there && !watched.contains(parent) && QFileInfo(parent).isDir())
        m_watcher.addPath(parent);
}

void uDiskStorage::directoryUpdated(const QString &)
{
    checkUDiskDev();
}

void uDiskStorage::checkUDiskDev()
{
    watch();
    m_disks.clear();
    const QStringList entries = QDir(Target::path(mediaPath())).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        if (entry != internalCard())
            m_disks << mediaPath() + entry;
    }
    emit uDiskStorageChanged(m_disks);
}
