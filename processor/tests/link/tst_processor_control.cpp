#include "board/controlsocket.h"

#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <fcntl.h>
#include <sys/socket.h>
#include <thread>

using board::ControlSocket;

/// The control socket: lines in, answers out, and nobody makes the processor wait.
class TstProcessorControl : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void eachLineIsAnsweredInOrder();
    void linesMayComeInPieces();
    void endlessLineIsSentAway();
    void clientsComeAndGo();
    void tellReturnsTheWholeAnswer();
    void tellSaysWhenNobodyIsThere();
    void silentClientBlocksNobody();

private:
    static QString echo(const QString &line) { return "ok " + line; }
    wire::Descriptor client()
    {
        QString error;
        return wire::connectTo(m_path, SOCK_STREAM, &error);
    }
    static void say(const wire::Descriptor &socket, const QByteArray &bytes)
    {
        ::send(socket.fd(), bytes.constData(), std::size_t(bytes.size()), MSG_NOSIGNAL);
    }
    static QByteArray heard(const wire::Descriptor &socket)
    {
        char buffer[8192];
        const ssize_t got = ::recv(socket.fd(), buffer, sizeof buffer, MSG_DONTWAIT);
        return QByteArray(buffer, int(qMax<ssize_t>(got, 0)));
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<ControlSocket> m_control;
    QString m_path;
};

void TstProcessorControl::init()
{
    m_folder.reset(new QTemporaryDir);
    m_path = m_folder->filePath("ctl");
    m_control.reset(new ControlSocket);
    QString error;
    QVERIFY2(m_control->open(m_path, &error), qPrintable(error));
}

void TstProcessorControl::eachLineIsAnsweredInOrder()
{
    const wire::Descriptor one = client();
    say(one, "a\nb\r\n\nc\n");
    m_control->serve(echo);
    QCOMPARE(heard(one), QByteArray("ok a\nok b\nok \nok c\n"));
}

void TstProcessorControl::linesMayComeInPieces()
{
    const wire::Descriptor one = client();
    for (const char *piece : { "st", "at", "us\nhe" }) {
        say(one, piece);
        m_control->serve(echo);
    }
    QCOMPARE(heard(one), QByteArray("ok status\n"));
    say(one, "lp\n");
    m_control->serve(echo);
    QCOMPARE(heard(one), QByteArray("ok help\n"));
}

void TstProcessorControl::endlessLineIsSentAway()
{
    const wire::Descriptor one = client();
    say(one, QByteArray(ControlSocket::kMaxLine, 'x'));
    m_control->serve(echo);
    QCOMPARE(heard(one), QByteArray("error: the line is too long\n"));
    say(one, "status\n");
    m_control->serve(echo);
    QCOMPARE(heard(one), QByteArray());
}

void TstProcessorControl::clientsComeAndGo()
{
    for (int round = 0; round < 200; ++round) {
        wire::Descriptor one = client();
        say(one, "x\n");
        m_control->serve(echo);
        QCOMPARE(heard(one), QByteArray("ok x\n"));
        one.close();
        m_control->serve(echo);
    }
}

void TstProcessorControl::tellReturnsTheWholeAnswer()
{
    std::atomic<bool> done { false };
    QString answer;
    bool reached = false;
    std::thread teller([&] {
        reached = ControlSocket::tell(m_path, "help", &answer);
        done = true;
    });
    while (!done)
        m_control->serve([](const QString &) { return QString("  one\n  ok is not the end here\nok"); });
    teller.join();
    QVERIFY(reached);
    QCOMPARE(answer, QString("  one\n  ok is not the end here\nok"));
}

void TstProcessorControl::tellSaysWhenNobodyIsThere()
{
    QString answer;
    QVERIFY(!ControlSocket::tell(m_folder->filePath("none"), "status", &answer));
    QCOMPARE(answer, "cannot reach " + m_folder->filePath("none") + ": No such file or directory");
}

void TstProcessorControl::silentClientBlocksNobody()
{
    std::vector<wire::Descriptor> silent;
    for (int i = 0; i < 10; ++i) {
        silent.push_back(client());
        m_control->serve(echo);
    }
    const wire::Descriptor one = client();
    say(one, "x\n");
    m_control->serve(echo);
    QCOMPARE(heard(one), QByteArray("ok x\n"));
    // A client that asks without reading is sent away when its answers do not fit any more.
    const wire::Descriptor greedy = client();
    m_control->serve(echo);
    ::fcntl(greedy.fd(), F_SETFL, O_NONBLOCK);
    for (int i = 0; i < 1000; ++i) {
        say(greedy, "status\n");
        m_control->serve([](const QString &) { return "ok " + QString(4000, 'x'); });
    }
    say(one, "y\n");
    m_control->serve(echo);
    QCOMPARE(heard(one), QByteArray("ok y\n"));
}

QTEST_GUILESS_MAIN(TstProcessorControl)
#include "tst_processor_control.moc"
