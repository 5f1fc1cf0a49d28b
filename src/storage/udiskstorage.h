#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>

/// Watches for USB disks under "/run/media/". The paths it gives are the board's; open them through Target::path.
/// GUI thread.
class uDiskStorage : public QObject
{
    Q_OBJECT

public:
    explicit uDiskStorage(QObject *parent = nullptr);

    bool hasMassStorage() const { return !m_disks.isEmpty(); }
    QStringList Storages() const { return m_disks; }

    static QString mediaPath(); // the board's
    static QString internalCard(); // the entry that never counts

public slots:
    void directoryUpdated(const QString &path);
    void checkUDiskDev();

signals:
    void uDiskStorageChanged(QStringList disks);

private:
    void watch();

    QFileSystemWatcher m_watcher;
    QStringList m_disks;
};
