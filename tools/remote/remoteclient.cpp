#include "remote/remoteclient.h"

#include <QElapsedTimer>
#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <zlib.h>

namespace {

enum Command : quint32 { Identify = 0, PressKey = 1, Screen = 2, KeepAlive = 3 };

constexpr int kMessageBytes = 32;
constexpr int kPictureHead = 8; // word 4, then the length
constexpr quint32 kPictureWord = 4;
constexpr quint32 kLongestPicture = 16 * 1024 * 1024; // a 640 x 480 picture stays far below
constexpr int kSilenceMs = 60; // no datagram for so long: what was still on its way has come

struct KeyName
{
    const char *name;
    int code;
};

// The first name of a number is the one that the help text shows.
constexpr KeyName kKeys[] = {
    { "F1", 40 },   { "F2", 41 },      { "F3", 42 },    { "F4", 43 },     { "F5", 44 },    { "F6", 45 },
    { "F7", 46 },   { "F8", 47 },      { "F9", 49 },    { "F10", 50 },    { "F11", 48 },   { "F12", 51 },
    { "Up", 17 },   { "Down", 19 },    { "Left", 16 },  { "Right", 18 },  { "Enter", 13 }, { "Scope", 45 },
    { "Menu", 46 }, { "Monitor", 47 }, { "Setup", 49 }, { "Memory", 50 }, { "Save", 48 },  { "Light", 51 },
};

} // namespace

RemoteClient::RemoteClient(const QHostAddress &host, quint16 port) : m_host(host), m_port(port)
{
    m_socket.bind(host.protocol() == QAbstractSocket::IPv6Protocol ? QHostAddress(QHostAddress::AnyIPv6)
                                                                   : QHostAddress(QHostAddress::AnyIPv4));
    m_socket.setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, 1024 * 1024);
}

void RemoteClient::setPatience(int answerMs, int attempts)
{
    m_answerMs = answerMs;
    m_attempts = attempts;
}

bool RemoteClient::send(quint32 command, quint32 key)
{
    quint32 words[3] = { qToLittleEndian(command), 0, qToLittleEndian(key) };
    const QByteArray request(reinterpret_cast<const char *>(words), sizeof words);
    if (m_socket.writeDatagram(request, m_host, m_port) == request.size())
        return true;
    m_error = QStringLiteral("cannot send to %1 port %2: %3")
                  .arg(m_host.toString())
                  .arg(m_port)
                  .arg(m_socket.errorString());
    return false;
}

// The next datagram of the instrument, or nothing after waitMs. Other senders do not count. What has come in time is
// taken however late this process looks.
QByteArray RemoteClient::receive(int waitMs)
{
    QElapsedTimer timer;
    timer.start();
    for (bool isOver = false;;) {
        while (m_socket.hasPendingDatagrams()) {
            QByteArray datagram(int(std::max<qint64>(m_socket.pendingDatagramSize(), 0)), '\0');
            QHostAddress sender;
            quint16 port = 0;
            const qint64 size = m_socket.readDatagram(datagram.data(), datagram.size(), &sender, &port);
            if (size <= 0 || port != m_port || !sender.isEqual(m_host, QHostAddress::ConvertV4MappedToIPv4))
                continue;
            datagram.truncate(int(size));
            return datagram;
        }
        if (isOver)
            return {};
        const qint64 left = waitMs - timer.elapsed();
        isOver = left <= 0 || !m_socket.waitForReadyRead(int(left));
    }
}

void RemoteClient::drain()
{
    while (m_socket.hasPendingDatagrams())
        m_socket.readDatagram(nullptr, 0);
}

bool RemoteClient::askMessage(quint32 command, QByteArray *answer)
{
    for (int attempt = 0; attempt < m_attempts; ++attempt) {
        drain();
        if (!send(command))
            return false;
        QElapsedTimer timer;
        timer.start();
        for (;;) {
            const QByteArray datagram = receive(std::max<int>(0, m_answerMs - int(timer.elapsed())));
            if (datagram.isEmpty())
                break;
            if (datagram.size() == kMessageBytes && qFromLittleEndian<quint32>(datagram.constData()) == command) {
                *answer = datagram;
                return true;
            }
        }
    }
    m_error = QStringLiteral("no answer from %1 port %2").arg(m_host.toString()).arg(m_port);
    return false;
}

bool RemoteClient::identify(QString *name)
{
    QByteArray answer;
    if (!askMessage(Identify, &answer))
        return false;
    const quint32 length = std::min<quint32>(qFromLittleEndian<quint32>(answer.constData() + 4), kMessageBytes - 8);
    *name = QString::fromLatin1(answer.constData() + 8, int(length));
    return true;
}

bool RemoteClient::keepAlive()
{
    QByteArray answer;
    return askMessage(KeepAlive, &answer);
}

bool RemoteClient::pressKey(int code)
{
    return send(PressKey, quint32(code)) && keepAlive();
}

QByteArray RemoteClient::receivePicture()
{
    QByteArray stream;
    quint32 length = 0;
    for (;;) {
        const QByteArray datagram = receive(m_answerMs);
        if (datagram.isEmpty()) {
            m_error = stream.isEmpty() ? QStringLiteral("no answer from %1 port %2").arg(m_host.toString()).arg(m_port)
                                       : QStringLiteral("the picture stopped after %1 of %2 bytes")
                                             .arg(stream.size())
                                             .arg(length + kPictureHead);
            return {};
        }
        if (stream.isEmpty()) {
            if (datagram.size() < kPictureHead || qFromLittleEndian<quint32>(datagram.constData()) != kPictureWord)
                continue;
            length = qFromLittleEndian<quint32>(datagram.constData() + 4);
            if (length > kLongestPicture)
                continue; // the middle of an older picture
        }
        stream += datagram;
        if (quint32(stream.size()) >= length + kPictureHead)
            return stream.mid(kPictureHead, int(length));
    }
}

QByteArray RemoteClient::screen()
{
    for (int attempt = 0; attempt < m_attempts; ++attempt) {
        // What is left of a picture that came too late must not stand in front of the next one.
        drain();
        while (attempt > 0 && !receive(kSilenceMs).isEmpty()) { }
        if (!send(Screen))
            return {};
        const QByteArray png = receivePicture();
        if (isWholePng(png))
            return png;
        if (!png.isEmpty())
            m_error = QStringLiteral("the picture came damaged: a datagram was lost on the way");
        else if (m_error.isEmpty())
            m_error = QStringLiteral("the instrument has no picture of its screen");
    }
    return {};
}

bool RemoteClient::isWholePng(const QByteArray &bytes)
{
    static const char kSignature[] = "\x89PNG\r\n\x1a\n";
    if (!bytes.startsWith(QByteArray::fromRawData(kSignature, 8)))
        return false;
    qint64 at = 8;
    while (at + 12 <= bytes.size()) {
        const auto *chunk = reinterpret_cast<const uchar *>(bytes.constData()) + at;
        const qint64 length = qFromBigEndian<quint32>(chunk);
        if (at + 12 + length > bytes.size())
            return false;
        const uLong sum = crc32(crc32(0, nullptr, 0), chunk + 4, uInt(length + 4));
        if (sum != qFromBigEndian<quint32>(chunk + 8 + length))
            return false;
        at += 12 + length;
        if (std::memcmp(chunk + 4, "IEND", 4) == 0)
            return at == bytes.size();
    }
    return false;
}

int RemoteClient::keyCode(const QString &text)
{
    for (const KeyName &key : kKeys) {
        if (text.compare(QLatin1String(key.name), Qt::CaseInsensitive) == 0)
            return key.code;
    }
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    return isNumber && number >= 0 ? number : -1;
}

bool RemoteClient::isKey(int code)
{
    return std::any_of(std::begin(kKeys), std::end(kKeys), [code](const KeyName &key) { return key.code == code; });
}

QStringList RemoteClient::keyNames()
{
    QStringList names;
    for (const KeyName &key : kKeys)
        names << QLatin1String(key.name);
    return names;
}
