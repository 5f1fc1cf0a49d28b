#pragma once

#include "platform/shellqueue.h"
#include "board/wifiinfo.h"
#include "board/wpaanswers.h"
#include "board/wpachannel.h"

#include <QObject>
#include <QTimer>
#include <QVector>

#include <functional>

class QWpaCtrl;
struct NetworkSetting;

/// The front of the wireless network: what pages ask for, and what they show. One object, made at the start; the
/// operations and the state are static. No operation waits: its result comes later, once, from the event loop, and not
/// at all when `context` is gone by then. Without a daemon every operation ends with its failure. Main thread.
class Wifi : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(bool ok)>;
    using Number = std::function<void(int number)>; // negative: failed, or none

    static constexpr int kStatusMs = 3000;
    static constexpr int kPageScanMs = 1000; // between two scans while the page is open
    static constexpr int kMostNetworks = 1000; // of a list, whatever the daemon says

    explicit Wifi(QObject *parent = nullptr);
    ~Wifi() override;

    static QWpaCtrl *wpaCtrl;
    static bool is_opened;
    static bool is_openning; // from open() to the first join
    static __wifi_status status;

    /// The networks of the last whole list.
    static QVector<WifiInfo> networks() { return s_networks; }
    /// Whether the daemon says that a network is joined.
    static bool isWifiConnected();

    /// Joins what is stored, looks for networks and goes on looking; nothing while opening.
    static void open();
    static void close();

    static void startScan();
    static void stopScan();
    static void accScanInv(); // the interval of an open page
    static void restoreScanInv(); // the usual one
    /// Asks for the state; `status` changes at once when the answer is there, and is empty after a failure.
    static void scanStatus();
    /// Reads the list of networks anew, from the daemon's first to its last; networksChanged() at the end.
    static void scanResults();

    /// A new stored network.
    static void addNetwork(QObject *context, Number done);
    /// Stores one value of a network; see JoinSettings::command for what is refused or sent as hexadecimal.
    static void setNetwork(int id, const QByteArray &name, const QByteArray &value, bool quoted, QObject *context,
                           Done done);
    static void enableNetwork(int id, QObject *context, Done done);
    static void selectNetwork(int id, QObject *context, Done done);
    static void removeNetwork(int id, QObject *context, Done done);
    static void disconnectNetwork();
    static void reconnectNetwork();
    static void reassociateNetwork();
    static void reconfigureNetwork();
    /// Lets the daemon write its file, then all disks be written. `done` says whether the daemon did.
    static void saveConfig(QObject *context, Done done);
    /// Number of the stored network with this name (the daemon's escaped text); -1 without one.
    static void networkId(const QString &ssid, QObject *context, Number done);

    /// Stores what a network without a password needs; ends at the first value that is refused.
    static void configNetworkNoAuth(int id, const WifiInfo &info, QObject *context, Done done);
    /// The same with a password; see JoinSettings::withAuth.
    static void configNetworkWithAuth(int id, const WifiInfo &info, const QString &password, QObject *context,
                                      Done done);
    /// A stored network takes the daemon's defaults for what its router no longer asks for.
    static void forgetFormerKind(int id, const WifiInfo &info, QObject *context, Done done);
    /// Adds and configures a network and answers its number; an empty password: a network without one. What could not
    /// be configured is removed again.
    static void addSsid(const WifiInfo &info, const QString &password, QObject *context, Number done);
    /// Joins a stored network, leaves the others, and saves. `done` says whether it was selected.
    static void change2Network(int id, QObject *context, Done done);

    /// Turns the escapes of a name back into text that can be shown (plain text, never markup).
    static QString hexStr2QString(const QString &text);

signals:
    void statusChanged();
    void networksChanged();

private:
    static void ask(const QByteArray &command, QObject *context, WpaAnswer answer);
    static void tell(const QByteArray &command);
    static void askOk(const QByteArray &command, QObject *context, Done done);
    static void configure(int id, const QVector<NetworkSetting> &settings, int next, QObject *context, Done done);
    void connected();
    void disconnected();
    void askForNetwork(int number);
    void takeNetworks();

    static QVector<WifiInfo> s_networks;

    QTimer m_statusTimer;
    ShellQueue m_shell;
    QVector<WifiInfo> m_found; // of the list that is being read
    bool m_reading = false;
    int m_closed = 0; // how often
};

/// The one object, from its construction to its end.
extern Wifi *wifi;
