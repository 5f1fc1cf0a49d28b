#pragma once

#include "platform/target.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QSocketNotifier>
#include <QString>
#include <QVector>

#include <cstring>
#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// Plays the wireless daemon: a datagram socket in its folder that notes every command and answers by its script.
class ScriptedDaemon
{
public:
    /// Where a client's messages come from.
    struct Client
    {
        sockaddr_un address {};
        socklen_t size = 0;
    };

    explicit ScriptedDaemon(const QString &interface = QStringLiteral("wlan0"))
        : m_path(QFile::encodeName(Target::path(QStringLiteral("/var/run/wpa_supplicant/") + interface)))
    {
        start();
    }
    ~ScriptedDaemon() { die(); }
    ScriptedDaemon(const ScriptedDaemon &) = delete;
    ScriptedDaemon &operator=(const ScriptedDaemon &) = delete;

    void start()
    {
        QDir().mkpath(QString::fromLocal8Bit(m_path.left(m_path.lastIndexOf('/'))));
        m_fd = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, m_path.constData(), sizeof(address.sun_path));
        if (::bind(m_fd, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) != 0)
            qFatal("the scripted daemon cannot listen at %s", m_path.constData());
        m_notifier = std::make_unique<QSocketNotifier>(m_fd, QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { take(); });
    }

    void die()
    {
        m_notifier.reset();
        if (m_fd >= 0)
            ::close(m_fd);
        m_fd = -1;
        ::unlink(m_path.constData());
        attached.clear();
    }

    /// Lets commands lie in the socket.
    void hang() { m_notifier->setEnabled(false); }
    void wake() { m_notifier->setEnabled(true); }

    /// An unsolicited message to every client that attached.
    void event(const QByteArray &text)
    {
        for (const Client &client : attached)
            send(client, text);
    }
    void send(const Client &client, const QByteArray &text)
    {
        ::sendto(m_fd, text.constData(), static_cast<size_t>(text.size()), MSG_NOSIGNAL,
                 reinterpret_cast<const sockaddr *>(&client.address), client.size);
    }

    /// How often a command came.
    int count(const QByteArray &command) const { return commands.count(command); }
    QByteArray path() const { return m_path; }

    QVector<QByteArray> commands; // in the order of their arrival
    QVector<Client> attached;
    Client last; // who sent the last command
    QHash<QByteArray, QByteArray> answers; // by the whole command, else by its first word
    QVector<QByteArray> silent; // first words of commands that get no answer
    QVector<QByteArray> networks; // answers to "BSS n"

private:
    void take()
    {
        char buffer[8192];
        Client from;
        from.size = sizeof(from.address);
        const ssize_t size
            = ::recvfrom(m_fd, buffer, sizeof(buffer), 0, reinterpret_cast<sockaddr *>(&from.address), &from.size);
        if (size < 0)
            return;
        const QByteArray command(buffer, static_cast<int>(size));
        commands.append(command);
        last = from;
        const QByteArray word = command.split(' ').first();
        if (silent.contains(word))
            return;
        if (word == "ATTACH" && !answers.contains(word))
            attached.append(from);
        send(from, answerTo(command, word));
    }

    QByteArray answerTo(const QByteArray &command, const QByteArray &word) const
    {
        if (answers.contains(command))
            return answers.value(command);
        if (answers.contains(word))
            return answers.value(word);
        if (word == "PING")
            return "PONG\n";
        if (word == "BSS")
            return networks.value(command.mid(4).toInt());
        if (word == "ADD_NETWORK")
            return "0\n";
        if (word == "STATUS")
            return "wpa_state=DISCONNECTED\n";
        if (word == "LIST_NETWORKS")
            return "network id / ssid / bssid / flags\n";
        return "OK\n";
    }

    QByteArray m_path;
    int m_fd = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
