#pragma once

#include "storage/udiskstorage.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

/// Collects once a second what the title bar tells about the instrument: a line of text, and the names of two icons.
/// The right icon is the battery's. The left one shows the others in turn, one a cycle: recording, disk, satellite,
/// cable, wireless; with none of them it tells that the cable is out. GUI thread.
class SystemTray : public QObject
{
    Q_OBJECT

public:
    explicit SystemTray(QObject *parent = nullptr);

    /// How to learn whether the wireless network is joined; the object graph gives the wireless service's answer.
    void setWirelessQuery(const std::function<bool()> &query) { m_wirelessJoined = query; }

    /// How to learn whether something is being recorded that the storage refuses: then a text of its own says so.
    void setStorageQuery(const std::function<bool()> &query) { m_storageRefuses = query; }

    /// Texts that stand in turn with the set-up line, one a cycle.
    void addInfo(const QString &info);
    void removeInfo(const QString &info);
    QStringList infos() const { return m_infos; }
    /// Icons of the left place, beside those that the collecting adds and removes itself.
    void addIcon(const QString &icon);
    void removeIcon(const QString &icon);
    QStringList icons() const { return m_icons; }
    /// Icon of a `Battery::Status`.
    static QString batteryIcon(int status);

public slots:
    /// One cycle: reads battery, network, recorder and disks, and emits both signals.
    void collectSystemInfo();
    /// Whether the processor's time comes from its satellite receiver: `word` is not 0.
    void usingBDS(quint32 word);

signals:
    void refreshSystemInfo(QString text);
    void refreshSystemIcon(QString icon1, QString icon2);

private:
    void setIcon(const char *icon, bool shown);
    void changeBatteryIcon(int status);
    void tellStorage();
    QString infoInTurn() const;
    QString iconInTurn() const;

    QTimer m_timer;
    uDiskStorage m_disks;
    QStringList m_infos;
    QStringList m_icons;
    QString m_batteryIcon;
    std::function<bool()> m_wirelessJoined;
    std::function<bool()> m_storageRefuses;
    QString m_storageInfo; // as it stands among the infos
    int m_turn = 0; // cycles, for taking turns
};
