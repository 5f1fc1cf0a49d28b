#pragma once

#include "board/wpachannel.h"

#include <QObject>
#include <QTimer>

/// The control socket of the wireless daemon: one connection for commands, one for its events, which become signals.
/// Nothing here waits; a daemon that is not there is looked for every 10 s. Main thread.
class QWpaCtrl : public QObject
{
    Q_OBJECT

public:
    static constexpr int kPingMs = 10000;
    static constexpr int kScanMs = 5000; // between two scans, as long as no page asks for more

    /// `folder` is a path of the board; `interface` empty: see openCtrlConnection.
    explicit QWpaCtrl(const QString &folder = QStringLiteral("/var/run/wpa_supplicant"),
                      const QString &interface = QString(), QObject *parent = nullptr);

    /// Connects to the daemon's socket of the interface `name`; without one, to the first entry of the folder, "wlan0"
    /// before all others (a daemon that serves direct links has an entry more). 0, or -1 when nobody listens. What is
    /// open is closed first.
    int openCtrlConnection(const QString &name = QString());
    void closeCtrlConnection();
    bool isOpen() const { return m_commands.isOpen(); }

    /// Sends a command; see WpaChannel::request. Without a daemon the answer is a negative result.
    void ctrlRequest(const QByteArray &command, QObject *context, WpaAnswer answer);
    /// Whether this command waits for its turn or its answer.
    bool isWaiting(const QByteArray &command) const { return m_commands.isWaiting(command); }
    /// How long an answer may take, ms.
    void setAnswerTime(int ms);
    /// How often the daemon is asked whether it lives, ms.
    void setPingInterval(int ms) { m_ping_timer.setInterval(ms); }

    /// Asks whether the daemon lives. No answer, or a wrong one: the connection is closed and opened anew.
    void ping();
    /// Asks for one scan, unless one is asked for already.
    void scan();
    void startScan(int ms); // scans every `ms` from now on
    void stopScan();
    /// Begins the time to the next scan anew: `ms`, or the interval that is set when that is shorter.
    void restartScan(int ms);
    /// The interval, also of a timer that runs.
    void setScanInterval(int ms);
    bool isScanning() const { return m_scan_timer.isActive(); }
    int scanInterval() const { return m_scan_timer.interval(); }

signals:
    void scanResult();
    void connected();
    void disconnected();

private:
    void attach();
    void receiveMsgs(const QByteArray &line);
    void processMsg(const QByteArray &text);
    void reopen();
    QString firstInterface() const;

    QString m_folder;
    QString m_interface; // as given; empty: the folder's first
    WpaChannel m_commands;
    WpaChannel m_events;
    QTimer m_ping_timer;
    QTimer m_scan_timer;
    int m_scanInterval = kScanMs;
};
