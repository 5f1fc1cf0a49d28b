#include "link/packagesocket.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <poll.h>
#include <sys/socket.h>
#include <thread>

using namespace wire;

namespace {

QByteArray receive(const Descriptor &socket)
{
    QByteArray bytes(1 << 16, 0);
    const ssize_t got = ::recv(socket.fd(), bytes.data(), std::size_t(bytes.size()), MSG_DONTWAIT);
    bytes.resize(int(qMax<ssize_t>(got, 0)));
    return bytes;
}

void say(const Descriptor &socket, const QByteArray &bytes)
{
    QCOMPARE(::send(socket.fd(), bytes.constData(), std::size_t(bytes.size()), MSG_NOSIGNAL), ssize_t(bytes.size()));
}

using Kind = PackageSocket::Event::Kind;

/// The events in short: "+" for a connection, "-" for its end, and the frames, each followed by a blank.
QByteArray inShort(const PackageSocket::Events &events)
{
    QByteArray text;
    for (const PackageSocket::Event &event : events)
        text += (event.kind == Kind::Frame ? event.frame : event.kind == Kind::Connected ? "+" : "-") + ' ';
    return text;
}

} // namespace

/// The device node: one instrument at a time, at any time, at any pace.
class TstProcessorSocket : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void messagesKeepTheirBounds();
    void framesArriveWhole();
    void largeFrameArrivesWhole();
    void emptyMessageIsNoHangUp();
    void hangUpIsSeenAndANewInstrumentMayCome();
    void newcomerTakesThePlaceAndTheOldFramesAreStillRead();
    void briefVisitorIsHeardAsWell();
    void slowReaderLosesWholeDatagramsOnly();
    void nothingIsKeptForTheNextInstrument();
    void staleSocketIsReplaced();
    void nodeIsThereOnlyWhenItIsServed();
    void servedSocketIsLeftAlone();
    void otherFileIsLeftAlone();
    void missingFolderIsOneLine();
    void longPathIsPossible();
    void closingRemovesTheSocket();

private:
    Descriptor connected()
    {
        QString error;
        Descriptor client = connectTo(m_path, SOCK_SEQPACKET, &error);
        m_node->serve();
        return client;
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<PackageSocket> m_node;
    QString m_path;
};

void TstProcessorSocket::init()
{
    m_folder.reset(new QTemporaryDir);
    m_path = m_folder->filePath("node");
    m_node.reset(new PackageSocket);
    QString error;
    QVERIFY2(m_node->open(m_path, &error), qPrintable(error));
}

void TstProcessorSocket::messagesKeepTheirBounds()
{
    const Descriptor client = connected();
    QVERIFY(m_node->connected());
    m_node->send({ QByteArray(8192, 'a'), QByteArray(100, 'b'), QByteArray(8192, 'c') });
    QCOMPARE(receive(client), QByteArray(8192, 'a'));
    QCOMPARE(receive(client), QByteArray(100, 'b'));
    QCOMPARE(receive(client), QByteArray(8192, 'c'));
    QVERIFY(receive(client).isEmpty());
    QCOMPARE(m_node->sentPackages(), quint64(3));
}

void TstProcessorSocket::framesArriveWhole()
{
    const Descriptor client = connected();
    say(client, "first");
    say(client, "second");
    QCOMPARE(inShort(m_node->serve()), QByteArray("first second "));
}

void TstProcessorSocket::largeFrameArrivesWhole()
{
    const Descriptor client = connected();
    raiseBuffers(client, 1 << 20);
    const QByteArray image(150000, 'i'); // fits the buffers that any user may ask for
    say(client, image);
    QVERIFY(inShort(m_node->serve()) == image + ' ');
}

void TstProcessorSocket::emptyMessageIsNoHangUp()
{
    const Descriptor client = connected();
    QCOMPARE(::send(client.fd(), "", 0, MSG_NOSIGNAL), ssize_t(0));
    say(client, "after");
    QCOMPARE(inShort(m_node->serve()), QByteArray(" after "));
    QVERIFY(m_node->connected());
}

void TstProcessorSocket::hangUpIsSeenAndANewInstrumentMayCome()
{
    for (int round = 0; round < 50; ++round) {
        Descriptor client = connected();
        say(client, "bye");
        client.close();
        QCOMPARE(inShort(m_node->serve()), QByteArray("bye - ")); // what it had said is not lost
        QVERIFY(!m_node->connected());
        m_node->send({ QByteArray(8192, 'x') }); // to nobody
    }
    const Descriptor client = connected();
    m_node->send({ QByteArray(8192, 'y') });
    QCOMPARE(receive(client), QByteArray(8192, 'y'));
}

void TstProcessorSocket::newcomerTakesThePlaceAndTheOldFramesAreStillRead()
{
    const Descriptor first = connected();
    say(first, "last words");
    QString error;
    const Descriptor second = connectTo(m_path, SOCK_SEQPACKET, &error);
    say(second, "hello");
    QCOMPARE(inShort(m_node->serve()), QByteArray("last words - + hello "));
    m_node->send({ QByteArray(8192, 'x') });
    QCOMPARE(receive(second).size(), 8192);
    QVERIFY(receive(first).isEmpty());
}

void TstProcessorSocket::briefVisitorIsHeardAsWell()
{
    QString error;
    Descriptor first = connectTo(m_path, SOCK_SEQPACKET, &error);
    say(first, "one");
    const Descriptor second = connectTo(m_path, SOCK_SEQPACKET, &error);
    say(second, "two");
    first.close();
    QCOMPARE(inShort(m_node->serve()), QByteArray("+ one - + two "));
}

void TstProcessorSocket::slowReaderLosesWholeDatagramsOnly()
{
    const Descriptor client = connected();
    // Nine packages a datagram, each marked with the datagram's number and its own.
    int sent = 0;
    for (; m_node->droppedDatagrams() < 5; ++sent) {
        std::vector<QByteArray> datagram;
        for (int package = 0; package < 9; ++package)
            datagram.push_back(QByteArray::number(sent) + ':' + QByteArray::number(package) + QByteArray(8000, ' '));
        m_node->send(datagram);
        QVERIFY(sent < 100000);
    }
    QVERIFY(m_node->queued() <= PackageSocket::kQueueMessages);
    QVERIFY(m_node->queued() > PackageSocket::kQueueMessages - 9);
    int expected = 0;
    for (QByteArray message = receive(client); !message.isEmpty(); message = receive(client)) {
        QCOMPARE(message.trimmed(), QByteArray::number(expected / 9) + ':' + QByteArray::number(expected % 9));
        ++expected;
        m_node->serve();
    }
    QCOMPARE(expected, (sent - 5) * 9); // the first ones whole and in order, the last five not at all
}

void TstProcessorSocket::nothingIsKeptForTheNextInstrument()
{
    Descriptor client = connected();
    for (int i = 0; i < 100000 && m_node->queued() == 0; ++i)
        m_node->send({ QByteArray(8192, 'o') });
    QVERIFY(m_node->queued() > 0);
    client = connected();
    QCOMPARE(m_node->queued(), std::size_t(0));
    QVERIFY(receive(client).isEmpty());
}

void TstProcessorSocket::staleSocketIsReplaced()
{
    const QString path = m_folder->filePath("stale");
    QString error;
    listenAt(path, SOCK_SEQPACKET, &error).close(); // leaves its file behind, as a killed process does
    QVERIFY(QFile::exists(path));
    PackageSocket again;
    QVERIFY2(again.open(path, &error), qPrintable(error));
}

// An instrument that finds no listener at its start goes without its processor until it is started anew.
void TstProcessorSocket::nodeIsThereOnlyWhenItIsServed()
{
    const QString path = m_folder->filePath("late");
    for (int round = 0; round < 3000; ++round) {
        QString refusal, error;
        std::thread instrument([&] {
            while (!QFile::exists(path)) { }
            connectTo(path, SOCK_SEQPACKET, &refusal);
        });
        PackageSocket node;
        const bool opened = node.open(path, &error);
        if (!opened)
            QFile(path).open(QIODevice::WriteOnly); // the other one must not wait for ever
        instrument.join();
        QVERIFY2(opened, qPrintable(error));
        QVERIFY2(refusal.isEmpty(), qPrintable(refusal));
        QCOMPARE(QDir(m_folder->path()).entryList({ "late.*" }, QDir::AllEntries | QDir::System), QStringList());
    }
}

void TstProcessorSocket::servedSocketIsLeftAlone()
{
    PackageSocket second;
    QString error;
    QVERIFY(!second.open(m_path, &error));
    QCOMPARE(error, m_path + " is in use by another processor");
    second.close();
    QVERIFY(QFile::exists(m_path));
}

void TstProcessorSocket::otherFileIsLeftAlone()
{
    const QString path = m_folder->filePath("file");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    PackageSocket node;
    QString error;
    QVERIFY(!node.open(path, &error));
    QCOMPARE(error, path + " exists and is no socket");
    QVERIFY(QFile::exists(path));
}

void TstProcessorSocket::missingFolderIsOneLine()
{
    PackageSocket node;
    QString error;
    QVERIFY(!node.open(m_folder->filePath("none/node"), &error));
    QVERIFY(error.startsWith("cannot make ") && error.endsWith("No such file or directory"));
    QVERIFY(!error.contains('\n'));
}

void TstProcessorSocket::longPathIsPossible()
{
    const QString folder = m_folder->filePath(QString(100, 'd') + '/' + QString(100, 'e'));
    QVERIFY(QDir().mkpath(folder));
    PackageSocket node;
    QString error;
    QVERIFY2(node.open(folder + "/node", &error), qPrintable(error));
    const Descriptor client = connectTo(folder + "/node", SOCK_SEQPACKET, &error);
    QVERIFY2(client.isOpen(), qPrintable(error));
    node.close();
    QVERIFY(!QFile::exists(folder + "/node"));
}

void TstProcessorSocket::closingRemovesTheSocket()
{
    m_node.reset();
    QVERIFY(!QFile::exists(m_path));
}

QTEST_GUILESS_MAIN(TstProcessorSocket)
#include "tst_processor_socket.moc"
