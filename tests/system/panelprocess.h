#pragma once

#include "testpaths.h"

#include <QBuffer>
#include <QColor>
#include <QElapsedTimer>
#include <QImage>
#include <QMutex>
#include <QProcess>
#include <QTcpSocket>
#include <QTest>
#include <QThread>
#include <QUdpSocket>
#include <QUrl>
#include <QVector>
#include <QtEndian>

#include <atomic>
#include <sys/socket.h>

/// What the tests of the panel share: the program, an instrument that is none, and a visitor without a browser.
namespace PanelTest {

constexpr int kPatience = 60000; // ms, ends a hang only

/// Answers the remote control as an instrument does, with a picture that the test chooses, and counts what it is asked.
class FakeInstrument : public QThread
{
public:
    FakeInstrument() { show(Qt::darkBlue); }
    ~FakeInstrument() override
    {
        m_ends = true;
        wait();
    }
    /// Starts to answer; the port is known when this returns.
    void begin()
    {
        start();
        while (m_port == 0)
            msleep(1);
    }
    quint16 port() const { return m_port; }
    void show(const QColor &colour, const QString &title = QString())
    {
        QImage image(640, 480, QImage::Format_RGB32);
        image.fill(colour);
        if (!title.isEmpty())
            image.setText(QStringLiteral("Title"), title);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "png");
        const QMutexLocker guard(&m_lock);
        m_png = buffer.data();
    }
    QByteArray png() const
    {
        const QMutexLocker guard(&m_lock);
        return m_png;
    }
    QVector<quint32> keys() const
    {
        const QMutexLocker guard(&m_lock);
        return m_keys;
    }
    std::atomic<int> picturesAsked { 0 };
    std::atomic<bool> isSilent { false }; // hears everything, answers nothing

protected:
    void run() override
    {
        QUdpSocket socket;
        socket.bind(QHostAddress(QHostAddress::LocalHost), 0);
        m_port = socket.localPort();
        while (!m_ends) {
            if (!socket.waitForReadyRead(20))
                continue;
            while (socket.hasPendingDatagrams())
                answer(&socket);
        }
    }

private:
    void answer(QUdpSocket *socket)
    {
        char request[128] = {};
        QHostAddress peer;
        quint16 port = 0;
        socket->readDatagram(request, sizeof request, &peer, &port);
        const quint32 command = qFromLittleEndian<quint32>(request);
        QByteArray stream(8, '\0');
        if (command == 1) {
            const QMutexLocker guard(&m_lock);
            m_keys << qFromLittleEndian<quint32>(request + 8);
            return;
        }
        if (command == 2)
            ++picturesAsked;
        if (isSilent)
            return;
        if (command == 2) {
            stream += png();
            qToLittleEndian<quint32>(4, stream.data());
            qToLittleEndian<quint32>(quint32(stream.size() - 8), stream.data() + 4);
        } else {
            stream = QByteArray(32, '\0');
            qToLittleEndian<quint32>(command, stream.data());
        }
        for (int at = 0; at < stream.size(); at += 1024)
            socket->writeDatagram(stream.mid(at, 1024), peer, port);
    }

    mutable QMutex m_lock;
    QByteArray m_png;
    QVector<quint32> m_keys;
    std::atomic<quint16> m_port { 0 };
    std::atomic<bool> m_ends { false };
};

/// quvera-panel on a free port.
class PanelProcess
{
public:
    ~PanelProcess()
    {
        m_process.kill();
        m_process.waitForFinished(kPatience);
    }
    /// Starts it and waits for its address. False when it ended instead.
    bool start(const QStringList &arguments)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QUVERA_REMOTE_PORT"));
        m_process.setProcessEnvironment(environment);
        m_process.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-panel"),
                        QStringList { QStringLiteral("--port"), QStringLiteral("0") } + arguments);
        while (!m_process.canReadLine() && m_process.waitForReadyRead(kPatience)) { }
        m_address = QUrl(QString::fromLatin1(m_process.readLine().trimmed()));
        if (!m_address.isValid() || m_address.port() < 0)
            m_process.waitForFinished(kPatience);
        return m_process.state() == QProcess::Running;
    }
    bool startFor(const FakeInstrument &instrument, const QStringList &arguments = {})
    {
        return start(
            QStringList { "--instrument", "127.0.0.1", "--instrument-port", QString::number(instrument.port()) }
            + arguments);
    }
    QUrl address() const { return m_address; }
    quint16 port() const { return quint16(m_address.port()); }
    QProcess &process() { return m_process; }

private:
    QProcess m_process;
    QUrl m_address;
};

struct Answer
{
    int status = 0; // 0: none came
    QByteArray head;
    QByteArray body;

    QByteArray field(const QByteArray &name) const
    {
        const auto lines = head.split('\n');
        for (const QByteArray &line : lines) {
            if (line.toLower().startsWith(name.toLower() + ':'))
                return line.mid(name.size() + 1).trimmed();
        }
        return {};
    }
};

/// Asks once and again until it is so; each question is put once, other than by QTRY_VERIFY.
template <typename Condition> bool eventually(Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > kPatience)
            return false;
        QTest::qWait(10);
    }
    return true;
}

/// Sends bytes as they are and takes what comes until the panel closes.
/// @param isAll says that nothing will follow, as one who hangs up does.
inline Answer say(quint16 port, const QByteArray &request, bool isAll = false)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    if (!socket.waitForConnected(kPatience))
        return {};
    socket.write(request);
    while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(kPatience)) { }
    if (isAll)
        shutdown(int(socket.socketDescriptor()), SHUT_WR);
    while (socket.state() == QAbstractSocket::ConnectedState && socket.waitForReadyRead(kPatience)) { }
    const QByteArray all = socket.readAll();
    Answer answer;
    const int end = all.indexOf("\r\n\r\n");
    answer.head = all.left(end);
    answer.body = end < 0 ? QByteArray() : all.mid(end + 4);
    answer.status = answer.head.split(' ').value(1).toInt();
    return answer;
}

inline QByteArray host(quint16 port)
{
    return "Host: 127.0.0.1:" + QByteArray::number(port) + "\r\n";
}

inline Answer get(quint16 port, const QByteArray &path, const QByteArray &fields = QByteArray())
{
    return say(port, "GET " + path + " HTTP/1.1\r\n" + host(port) + fields + "\r\n");
}

inline Answer post(quint16 port, const QByteArray &path, const QByteArray &body,
                   const QByteArray &fields = "Content-Type: application/json\r\n")
{
    return say(port,
               "POST " + path + " HTTP/1.1\r\n" + host(port) + fields
                   + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
}

/// One who looks: reads the stream of events as far as the test asks.
class Viewer
{
public:
    explicit Viewer(quint16 port, const QByteArray &fields = QByteArray())
    {
        m_socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
        m_socket.waitForConnected(kPatience);
        m_socket.write("GET /events HTTP/1.1\r\n" + host(port) + fields + "\r\n");
        m_socket.flush();
    }
    /// All events that came so far, by name.
    int count(const QByteArray &name)
    {
        m_socket.waitForReadyRead(0);
        m_read += m_socket.readAll();
        return m_read.count("event: " + name + "\n");
    }
    /// What was said of the instrument so far, from the first time on.
    QVector<QByteArray> sayings()
    {
        count("instrument");
        QVector<QByteArray> all;
        const QByteArray begin = "event: instrument\ndata: ";
        for (int at = m_read.indexOf(begin); at >= 0; at = m_read.indexOf(begin, at + 1)) {
            const int end = m_read.indexOf('\n', at + begin.size());
            if (end >= 0)
                all << m_read.mid(at + begin.size(), end - at - begin.size());
        }
        return all;
    }
    const QByteArray &read() const { return m_read; }
    QTcpSocket &socket() { return m_socket; }

private:
    QTcpSocket m_socket;
    QByteArray m_read;
};

} // namespace PanelTest
