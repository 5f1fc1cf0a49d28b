// How the remote control ends, or breaks, with the process that it is in. Each case runs in a process of its own: this
// executable with a word.
#include "board/screenshot.h"
#include "platform/lineoutput.h"
#include "remotepeer.h"
#include "services/iremote.h"

#include <QApplication>
#include <QProcess>
#include <QTest>
#include <QUdpSocket>

#include <clocale>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace RemotePeer;

class TstIRemoteFailures : public QObject
{
    Q_OBJECT
private slots:
    void takenPortEndsTheProcess();
    void missingSocketEndsTheProcess_data();
    void missingSocketEndsTheProcess();
    void failedSendIsPrintedAndStopsThePicture();
    void errorStormSpinsNoCore_data();
    void errorStormSpinsNoCore();
};

void TstIRemoteFailures::takenPortEndsTheProcess()
{
    QUdpSocket taken;
    QVERIFY(taken.bind(QHostAddress(QHostAddress::AnyIPv4), 0));
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QUVERA_REMOTE_PORT"), QString::number(taken.localPort()));
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), { QStringLiteral("child-run") });
    QVERIFY(child.waitForFinished(kPatience));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 255);
    QVERIFY(child.readAllStandardOutput().contains("bind() 函数使用失败了.\r"));
}

void TstIRemoteFailures::missingSocketEndsTheProcess_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("no descriptor at all") << QStringLiteral("child-no-descriptors");
    QTest::newRow("none but those that end its thread") << QStringLiteral("child-two-descriptors");
}

void TstIRemoteFailures::missingSocketEndsTheProcess()
{
    QFETCH(QString, word);
    QProcess child;
    // A leak checker needs descriptors at the end, and there are none to be had.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), { word });
    QVERIFY(child.waitForFinished(kPatience));
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QCOMPARE(child.exitCode(), 255);
    QVERIFY(child.readAllStandardOutput().contains("创建套接字失败了.\r"));
}

void TstIRemoteFailures::failedSendIsPrintedAndStopsThePicture()
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), { QStringLiteral("child-send-to-nobody") });
    QVERIFY(child.waitForFinished(kPatience));
    QCOMPARE(child.exitCode(), 0);
    // Once: the first datagram fails, the two behind it are not tried.
    QCOMPARE(child.readAllStandardOutput().count("sendto fail errno Invalid argument\r\n"), 1);
}

void TstIRemoteFailures::errorStormSpinsNoCore_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("closed socket") << QStringLiteral("child-closed-socket") << QByteArray("err select");
    QTest::newRow("socket that cannot be read")
        << QStringLiteral("child-unreadable-socket") << QByteArray("recvfrom()函数使用失败了.");
}

void TstIRemoteFailures::errorStormSpinsNoCore()
{
    QFETCH(QString, word);
    QFETCH(QByteArray, text);
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), { word });
    QByteArray output;
    while (output.count(text) < 8)
        QVERIFY(child.waitForReadyRead(kPatience) && (output += child.readAllStandardOutput(), true));
    // Pauses of 1, 2, 4 ... ms stood between the eight; without them there would be thousands by now.
    QVERIFY2(output.count(text) < 100, QByteArray::number(output.count(text)));
    child.kill();
    child.waitForFinished(kPatience);
}

namespace {

// The descriptor of the remote control's socket: the one that is bound to its port.
int remoteDescriptor()
{
    for (int descriptor = 3; descriptor < 1000; ++descriptor) {
        sockaddr_in address = {};
        socklen_t size = sizeof address;
        if (getsockname(descriptor, reinterpret_cast<sockaddr *>(&address), &size) == 0 && address.sin_family == AF_INET
            && ntohs(address.sin_port) == IRemote::port())
            return descriptor;
    }
    return -1;
}

/// Descriptors that are free again once the remote control has its own: whoever opens something then gets one of them.
class LowNumbers
{
public:
    LowNumbers()
    {
        for (int &descriptor : m_descriptors)
            descriptor = open("/dev/null", O_RDONLY | O_CLOEXEC);
    }
    void release() const
    {
        for (const int descriptor : m_descriptors)
            close(descriptor);
    }

private:
    int m_descriptors[16];
};

void waitForPort()
{
    while (IRemote::port() == 0)
        usleep(1000);
}

int runChild(const QByteArray &word)
{
    ScreenShot::initScreenShot();
    LineOutput::print("child\n"); // what the output opens must not get the number of the socket that is closed below
    const LowNumbers low; // nor must what the Modbus thread opens, whenever that is
    if (word == "child-no-descriptors") {
        const rlimit limit = { 0, 0 };
        setrlimit(RLIMIT_NOFILE, &limit);
    }
    if (word == "child-two-descriptors") {
        low.release();
        const int lowest = dup(STDERR_FILENO);
        close(lowest);
        const rlimit limit = { rlim_t(lowest) + 2, rlim_t(lowest) + 2 };
        setrlimit(RLIMIT_NOFILE, &limit);
    }
    IRemote remote(nullptr);
    if (word == "child-send-to-nobody") {
        waitForPort();
        remote.respondImage(QByteArray(3000, 'x'));
        return 0;
    }
    if (word == "child-closed-socket" || word == "child-unreadable-socket") {
        waitForPort();
        const int descriptor = remoteDescriptor();
        low.release();
        const int null = open("/dev/null", O_RDONLY);
        QUdpSocket socket;
        socket.bind(QHostAddress(QHostAddress::LocalHost), 0);
        const quint16 port = IRemote::port();
        if (word == "child-closed-socket")
            close(descriptor);
        else
            dup2(null, descriptor);
        // Wakes the thread: a poll that already waits holds on to the old socket.
        socket.writeDatagram(request(0), QHostAddress(QHostAddress::LocalHost), port);
        for (;;)
            pause();
    }
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    if (argc > 1 && QByteArray(argv[1]).startsWith("child-"))
        return runChild(argv[1]);
    TstIRemoteFailures test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_iremotefailures.moc"
