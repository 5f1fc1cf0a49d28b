#pragma once

#include <QByteArray>
#include <QString>

#include <atomic>
#include <thread>

/// Stands in for the wireless daemon of an instrument on a desk: a datagram socket that answers the daemon's commands
/// for an air with a few networks in it. Joining any of them works. It answers in a thread of its own.
class WirelessStandIn
{
public:
    /// @param root the folder that stands for "/".
    explicit WirelessStandIn(const QString &root);
    ~WirelessStandIn();
    WirelessStandIn(const WirelessStandIn &) = delete;
    WirelessStandIn &operator=(const WirelessStandIn &) = delete;

    bool isListening() const { return m_socket >= 0; }

private:
    void serve();
    QByteArray answer(const QByteArray &command);

    QByteArray m_path;
    int m_socket = -1;
    QByteArray m_status;
    QByteArray m_joined; // name of the network that was configured last
    std::atomic<bool> m_ends { false };
    std::thread m_thread; // runs serve()
};
