#pragma once

#include <QSharedData>
#include <QSharedDataPointer>
#include <QString>

/// What a scan says of one network. Texts are the daemon's.
struct __wifi_info : QSharedData
{
    QString ssid; // with the daemon's escapes, so that no byte is lost; empty for a hidden network
    QString bssid = QStringLiteral("-:-");
    QString flags = QStringLiteral("Unknown"); // "[WPA2-PSK-CCMP][ESS]"
    QString freq = QStringLiteral("Unknown"); // MHz
    int level = 0; // dBm; 0 when the scan says none
};

/// One network as scanned; copies share their data until one of them changes.
class WifiInfo
{
public:
    WifiInfo() : m_data(new __wifi_info) { }

    const __wifi_info &getData() const { return *m_data; }
    QString ssid() const { return m_data->ssid; }
    QString bssid() const { return m_data->bssid; }
    QString flags() const { return m_data->flags; }
    QString freq() const { return m_data->freq; }
    int level() const { return m_data->level; }

    /// The bytes of the name.
    QByteArray ssidBytes() const;
    /// What the list shows: the name as plain text, "[Unknown]" for a hidden one.
    QString shownName() const;

    void setSsid(const QString &escaped) { m_data->ssid = escaped; }
    void setBssid(const QString &bssid) { m_data->bssid = bssid; }
    void setFlags(const QString &flags) { m_data->flags = flags; }
    void setFreq(const QString &freq) { m_data->freq = freq; }
    void setLevel(int level) { m_data->level = level; }

    /// Gives this copy data of its own.
    void cope() { m_data.detach(); }

private:
    QSharedDataPointer<__wifi_info> m_data;
};
