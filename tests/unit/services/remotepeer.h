#pragma once

#include "services/iremote.h"

#include <QUdpSocket>
#include <QtEndian>

/// What a PC tool sends to the remote control and gets from it.
namespace RemotePeer {

constexpr int kPatience = 30000; // ms

inline QByteArray request(quint32 command, qint32 key = 0)
{
    QByteArray bytes(12, '\0');
    qToLittleEndian(command, bytes.data());
    qToLittleEndian(key, bytes.data() + 8);
    return bytes;
}

inline quint32 word(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

/// A PC tool: one socket, and what came to it.
class Peer
{
public:
    Peer() { m_socket.bind(QHostAddress(QHostAddress::LocalHost), 0); }

    void send(const QByteArray &bytes)
    {
        m_socket.writeDatagram(bytes, QHostAddress(QHostAddress::LocalHost), IRemote::port());
    }
    const QList<QByteArray> &received()
    {
        while (m_socket.hasPendingDatagrams()) {
            QByteArray bytes(int(m_socket.pendingDatagramSize()), '\0');
            m_socket.readDatagram(bytes.data(), bytes.size());
            m_received << bytes;
        }
        return m_received;
    }
    /// Waits without the event loop: the remote control's thread answers by itself.
    QByteArray answerWithoutLoop()
    {
        if (received().isEmpty() && m_socket.waitForReadyRead(kPatience))
            received();
        return m_received.isEmpty() ? QByteArray() : m_received.takeFirst();
    }
    /// True when all datagrams sent before have been read: the answer to a keep-alive has come.
    bool isCaughtUp()
    {
        send(request(3));
        for (;;) {
            const QByteArray answer = answerWithoutLoop();
            if (answer.isEmpty())
                return false;
            if (answer.size() == 32 && word(answer, 0) == 3)
                return true;
        }
    }
    void forget()
    {
        received();
        m_received.clear();
    }
    /// The joined datagrams once the length that the stream tells has come; else empty.
    QByteArray wholePicture()
    {
        QByteArray stream;
        for (const QByteArray &bytes : received())
            stream += bytes;
        if (stream.size() < 8 || stream.size() < int(word(stream, 4)) + 8)
            return {};
        return stream.left(int(word(stream, 4)) + 8);
    }

private:
    QUdpSocket m_socket;
    QList<QByteArray> m_received;
};

} // namespace RemotePeer
