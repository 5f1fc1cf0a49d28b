#pragma once

#include "device/datagramkinds.h"
#include "platform/target.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVector>

#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// The far end of the link in tests: listens at the node of the test's root and speaks raw packages.
class ProcessorPeer
{
public:
    ProcessorPeer() { listen(); }
    ~ProcessorPeer() { goAway(); }
    ProcessorPeer(const ProcessorPeer &) = delete;
    ProcessorPeer &operator=(const ProcessorPeer &) = delete;

    static QString node() { return Target::path(QStringLiteral("/dev/mcasp")); }

    bool listen()
    {
        const QString path = node();
        QDir().mkpath(QFileInfo(path).path());
        QFile::remove(path);
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof(address.sun_path));
        m_listener = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
        return ::bind(m_listener, reinterpret_cast<sockaddr *>(&address), sizeof(address)) == 0
            && ::listen(m_listener, 16) == 0;
    }

    /// Takes the next connection; the one before is closed. False when none comes within half a minute.
    bool accept()
    {
        disconnect();
        pollfd waiting { m_listener, POLLIN, 0 };
        if (::poll(&waiting, 1, 30000) != 1)
            return false;
        m_connection = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        return m_connection >= 0;
    }
    bool isConnectionWaiting()
    {
        pollfd waiting { m_listener, POLLIN, 0 };
        return ::poll(&waiting, 1, 0) == 1;
    }
    void disconnect()
    {
        if (m_connection >= 0)
            ::close(m_connection);
        m_connection = -1;
    }
    /// Closes everything and removes the node.
    void goAway()
    {
        disconnect();
        if (m_listener >= 0)
            ::close(m_listener);
        m_listener = -1;
        QFile::remove(node());
    }

    bool send(const QByteArray &package, bool wait = true)
    {
        return ::send(m_connection, package.constData(), static_cast<size_t>(package.size()),
                      MSG_NOSIGNAL | (wait ? 0 : MSG_DONTWAIT))
            == package.size();
    }
    void send(const QVector<QByteArray> &packages)
    {
        for (const QByteArray &package : packages)
            send(package);
    }

    bool isFrameWaiting()
    {
        pollfd waiting { m_connection, POLLIN, 0 };
        return ::poll(&waiting, 1, 0) == 1;
    }
    /// The next frame of the instrument; a null array when there is none now, an empty one when the far end closed.
    QByteArray receive(int timeoutMs = 0)
    {
        pollfd waiting { m_connection, POLLIN, 0 };
        if (::poll(&waiting, 1, timeoutMs) != 1)
            return {};
        QByteArray frame(1024 * 1024, Qt::Uninitialized);
        const ssize_t length = ::recv(m_connection, frame.data(), static_cast<size_t>(frame.size()), 0);
        if (length <= 0)
            return QByteArray("");
        frame.truncate(static_cast<int>(length));
        return frame;
    }

private:
    int m_listener = -1;
    int m_connection = -1;
};

/// Words as a frame or payload.
inline QByteArray wordsToBytes(const QVector<quint32> &words)
{
    return QByteArray(reinterpret_cast<const char *>(words.constData()), 4 * words.size());
}

/// What a package head says.
struct HeadValues
{
    quint32 flag = 0xC0A5FF00;
    quint32 id = 1;
    quint32 type = 0;
    quint32 bds = 0;
    quint32 seconds = 0;
    quint32 milliseconds = 0;
};

/// One package of 8192 bytes: a first head of 40 bytes and the payload behind it, or, for `next`, a head of 16 bytes.
inline QByteArray makePackage(const HeadValues &head, const QByteArray &payload = {}, bool next = false)
{
    QByteArray package(Link::kPackageBytes, '\0');
    const auto put = [&package](int offset, quint32 word) { memcpy(package.data() + offset, &word, 4); };
    put(0, head.flag);
    if (!next) {
        put(4, head.id);
        put(16, head.type);
        put(20, head.bds);
        put(32, head.seconds);
        put(36, head.milliseconds);
    }
    const int offset = next ? Link::kNextHeadBytes : Link::kFirstHeadBytes;
    memcpy(package.data() + offset, payload.constData(),
           static_cast<size_t>(qMin(payload.size(), Link::kPackageBytes - offset)));
    return package;
}

/// The packages of a whole datagram, as the processor sends them.
inline QVector<QByteArray> makeDatagram(HeadValues head, const QByteArray &payload)
{
    constexpr quint32 kPattern = 0x00A5FF00;
    constexpr int first = 4 * Link::kFirstPayloadWords, next = 4 * Link::kNextPayloadWords;
    QVector<QByteArray> packages;
    head.flag = 0x80000000 | kPattern | (payload.size() <= first ? 0x40000000u : 0u);
    packages << makePackage(head, payload.left(first));
    quint32 number = 1;
    for (int at = first; at < payload.size(); at += next, ++number) {
        head.flag = kPattern | number | (at + next >= payload.size() ? 0x40000000u : 0u);
        packages << makePackage(head, payload.mid(at, next), true);
    }
    return packages;
}

/// A payload of a kind whose words count up from `seed`.
inline QByteArray countingPayload(int words, quint32 seed)
{
    QVector<quint32> payload(words);
    for (int i = 0; i < words; ++i)
        payload[i] = seed + quint32(i);
    return wordsToBytes(payload);
}

/// The eight bytes of the time stamp that the link puts in front.
inline QByteArray timeBytes(quint64 msec)
{
    return QByteArray(reinterpret_cast<const char *>(&msec), 8);
}
