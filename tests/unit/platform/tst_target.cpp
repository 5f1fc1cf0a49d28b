#include <QRegularExpression>
#include <QTest>

#include <QProcess>

#include "platform/debuglog.h"
#include "platform/deskroot.h"
#include "platform/target.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

QByteArray readRoot(const QString &boardPath)
{
    QFile file(Target::root() + boardPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

} // namespace

/// The seam between the board and a desk: paths, commands, the processor's node.
class TstTarget : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QFile::remove(Target::root() + "/dev/mcasp");
        QFile::remove(Target::root() + "/var/log/commands");
    }

    void pathsOfTheBoardStandUnderTheRoot()
    {
        QCOMPARE(Target::root(), QString::fromLocal8Bit(qgetenv("QUVERA_ROOT")));
        QCOMPARE(Target::path("/mnt/storage/"), Target::root() + "/mnt/storage/");
        QCOMPARE(Target::path("/mnt/userfs/sys//limits/"), Target::root() + "/mnt/userfs/sys//limits/");
    }

    void pathsThatAreNotOfTheBoardStay()
    {
        QCOMPARE(Target::path(":/splash"), QString(":/splash"));
        QCOMPARE(Target::path("relative/file"), QString("relative/file"));
        QCOMPARE(Target::path(""), QString());
        const QString mapped = Target::path("/mnt/storage/x");
        QCOMPARE(Target::path(mapped), mapped);
    }

    void aNeighbourOfTheRootIsNotTakenForMapped()
    {
        const QString neighbour = Target::root() + "-other/file";
        QCOMPARE(Target::path(neighbour), Target::root() + neighbour);
    }

    void boardPathTakesTheRootOffAgain()
    {
        QCOMPARE(Target::boardPath(Target::path("/run/media/sda1")), QString("/run/media/sda1"));
        QCOMPARE(Target::boardPath("/elsewhere/x"), QString("/elsewhere/x"));
    }

    void commandsActUnderTheRoot_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("mapped"); // R stands for the root
        QTest::newRow("redirection") << "echo 1 > /sys/class/gpio/gpio56/value"
                                     << "echo 1 > R/sys/class/gpio/gpio56/value";
        QTest::newRow("no blank") << "echo 1 >/sys/bus/iio/x"
                                  << "echo 1 >R/sys/bus/iio/x";
        QTest::newRow("quoted") << "rm -rf \"/mnt/storage/a b\""
                                << "rm -rf \"R/mnt/storage/a b\"";
        QTest::newRow("two paths") << "cp /mnt/storage/x /run/media/sda1/"
                                   << "cp R/mnt/storage/x R/run/media/sda1/";
        QTest::newRow("null device stays") << "udhcpc -i wlan0 > /dev/null 2>&1 &"
                                           << "udhcpc -i wlan0 > /dev/null 2>&1 &";
        QTest::newRow("init script") << "networking.sh eth0;/etc/init.d/networking restart; sleep 1"
                                     << "networking.sh eth0;R/etc/init.d/networking restart; sleep 1";
        QTest::newRow("whole path before other words")
            << "cp /etc/resolv.conf /tmp; cat /etc/wpa_supplicant.conf|wc"
            << "cp R/etc/resolv.conf R/tmp; cat R/etc/wpa_supplicant.conf|wc";
        QTest::newRow("supplicant") << "ls /var/run/wpa_supplicant"
                                    << "ls R/var/run/wpa_supplicant";
        QTest::newRow("fonts") << "ls /usr/lib/fonts/"
                               << "ls R/usr/lib/fonts/";
        QTest::newRow("node") << "cat /dev/mcasp"
                              << "cat R/dev/mcasp";
        QTest::newRow("longer word stays") << "ls /mntx /tmpfile /sys/classes"
                                           << "ls /mntx /tmpfile /sys/classes";
        QTest::newRow("inside a path stays") << "ls a/mnt/b ./tmp/x"
                                             << "ls a/mnt/b ./tmp/x";
        QTest::newRow("assignment") << "X=/tmp/dat; cat $X"
                                    << "X=R/tmp/dat; cat $X";
        QTest::newRow("host programs stay") << "/bin/sh -c 'ls /usr/bin'"
                                            << "/bin/sh -c 'ls /usr/bin'";
        QTest::newRow("mapped already") << "ls R/mnt/storage"
                                        << "ls R/mnt/storage";
        QTest::newRow("nothing") << ""
                                 << "";
    }
    void commandsActUnderTheRoot()
    {
        QFETCH(QString, command);
        QFETCH(QString, mapped);
        const QString root = Target::root();
        const auto withRoot
            = [&](QString text) { return text.replace(QRegularExpression("(?<![A-Z\\w$])R(?=/)"), root); };
        const QString whole = Target::deskCommand(withRoot(command));
        QCOMPARE(whole.section("export PATH; ", 1), withRoot(mapped));
        QVERIFY(whole.startsWith(QString("PATH='%1/bin':\"$PATH\";").arg(root)));
    }

    void shellRunsTheCommandAndAnswersItsStatus()
    {
        QCOMPARE(Target::shell("echo 1 > /sys/class/gpio/gpio56/value"), 0);
        QCOMPARE(readRoot("/sys/class/gpio/gpio56/value"), QByteArray("1\n"));
        QCOMPARE(WEXITSTATUS(Target::shell("exit 3")), 3);
    }

    void shellOutputGivesWhatTheCommandWrote()
    {
        QCOMPARE(Target::shellOutput("echo one; echo two"), QString("one\ntwo\n"));
        bool started = false;
        QCOMPARE(Target::shellOutput("true", &started), QString());
        QVERIFY(started);
    }

    void aFloodOfOutputIsCutAndTheCommandEnds()
    {
        const QString output = Target::shellOutput("head -c 5000000 /dev/zero | tr '\\0' x");
        QVERIFY(output.size() >= 1024 * 1024);
        QVERIFY(output.size() < 1024 * 1024 + 4096 + 1);
    }

    void commandsThatMustNotTouchTheHostAreOnlyNoted()
    {
        Target::shell("date -s '2024-01-02 03:04:05'");
        Target::shell("sync");
        Target::shell("networking.sh eth0;/etc/init.d/networking restart");
        Target::shell("echo 77 | xargs kill -9 > /dev/null 2>&1");
        Target::shell("update-unpack \"/run/media/sda1/Software.upd\"");
        QCOMPARE(readRoot("/var/log/commands"),
                 QByteArray("date -s 2024-01-02 03:04:05\nsync\nnetworking.sh eth0\nnetworking restart\nkill -9 77\n"
                            "update-unpack ")
                     + Target::root().toUtf8() + "/run/media/sda1/Software.upd\n");
    }

    void everyStandInLeavesItsLine()
    {
        QByteArray expected;
        for (const char *name :
             { "date", "sync", "ps", "kill", "networking.sh", "udhcpc", "wlan0_del_route.sh", "update-unpack" }) {
            // Through a program that looks it up, for the shell has a kill of its own.
            QCOMPARE(Target::shell(QStringLiteral("env %1 a b").arg(QLatin1String(name))), 0);
            expected += QByteArray(name) + " a b\n";
        }
        QCOMPARE(readRoot("/var/log/commands"), expected);
    }

    void noProcessorNodeGivesMinusOne()
    {
        QCOMPARE(Target::openProcessor(), -1);
        QCOMPARE(errno, ENOENT);
    }

    void aPlainNodeIsOpenedForReadingAndWritingWithoutBlocking()
    {
        QVERIFY(::mkfifo(QFile::encodeName(Target::path("/dev/mcasp")).constData(), 0600) == 0);
        const int fd = Target::openProcessor();
        QVERIFY(fd >= 0);
        const int flags = ::fcntl(fd, F_GETFL);
        QCOMPARE(flags & O_ACCMODE, O_RDWR);
        QVERIFY(flags & O_NONBLOCK);
        ::close(fd);
    }

    void aSocketNodeIsConnectedAndKeepsMessageBounds()
    {
        const int server = listenAtNode();
        const int fd = Target::openProcessor();
        QVERIFY(fd >= 0);
        QVERIFY(::fcntl(fd, F_GETFL) & O_NONBLOCK);
        const int peer = ::accept(server, nullptr, nullptr);
        QVERIFY(peer >= 0);
        QByteArray package(8192, 'p');
        QCOMPARE(::send(peer, package.constData(), 8192, 0), ssize_t(8192));
        QCOMPARE(::send(peer, "short", 5, 0), ssize_t(5));
        char buffer[10000];
        QCOMPARE(::read(fd, buffer, sizeof(buffer)), ssize_t(8192));
        QCOMPARE(::read(fd, buffer, sizeof(buffer)), ssize_t(5));
        // A frame of a firmware image goes out in one piece.
        const QByteArray image(150000, 'f');
        QCOMPARE(::write(fd, image.constData(), size_t(image.size())), ssize_t(image.size()));
        ::close(peer);
        QCOMPARE(::read(fd, buffer, sizeof(buffer)) > 0, false);
        ::close(fd);
        ::close(server);
    }

    void aSocketNodeThatNobodyServesGivesMinusOne()
    {
        ::close(listenAtNode());
        QCOMPARE(Target::openProcessor(), -1);
        QCOMPARE(errno, ECONNREFUSED);
    }

    void portsComeFromTheEnvironmentOnADesk_data()
    {
        QTest::addColumn<QByteArray>("given");
        QTest::addColumn<int>("modbus");
        QTest::addColumn<int>("remote");
        QTest::newRow("unset") << QByteArray() << 502 << 3527;
        QTest::newRow("any free") << QByteArray("0") << 0 << 0;
        QTest::newRow("given") << QByteArray("15020") << 15020 << 15020;
        QTest::newRow("too large") << QByteArray("65536") << 502 << 3527;
        QTest::newRow("negative") << QByteArray("-1") << 502 << 3527;
        QTest::newRow("a word") << QByteArray("modbus") << 502 << 3527;
    }
    void portsComeFromTheEnvironmentOnADesk()
    {
        QFETCH(QByteArray, given);
        const QByteArray oldModbus = qgetenv("QUVERA_MODBUS_PORT");
        const QByteArray oldRemote = qgetenv("QUVERA_REMOTE_PORT");
        qputenv("QUVERA_MODBUS_PORT", given);
        qputenv("QUVERA_REMOTE_PORT", given);
        QTEST(int(Target::modbusPort()), "modbus");
        QTEST(int(Target::remotePort()), "remote");
        qputenv("QUVERA_MODBUS_PORT", oldModbus);
        qputenv("QUVERA_REMOTE_PORT", oldRemote);
    }

    void onTheBoardEverythingIsTheIdentity()
    {
        // A process of its own, since the root is fixed at its first use.
        QProcess board;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("QUVERA_ROOT");
        environment.insert("QUVERA_MODBUS_PORT", "9");
        environment.insert("TST_TARGET_SHOW", "1");
        board.setProcessEnvironment(environment);
        board.start(QCoreApplication::applicationFilePath(), QStringList());
        QVERIFY(board.waitForFinished(30000));
        QCOMPARE(board.readAllStandardOutput(),
                 QByteArray("root=\npath=/mnt/storage/\ncommand=cat /mnt/x\nmodbus=502\nok=1\n"));
    }

    void aDebugLineNamesItsSource()
    {
        QCOMPARE(debugSource("/build/src/task/unitask.cpp"), QString("task/unitask"));
        QCOMPARE(debugSource("/home/a/src/q/src/config/limits.h"), QString("config/limits"));
        QCOMPARE(debugSource("unitask"), QString("unitask"));
    }

private:
    static int listenAtNode()
    {
        const QByteArray node = QFile::encodeName(Target::path("/dev/mcasp"));
        ::unlink(node.constData());
        const int server = ::socket(AF_UNIX, SOCK_SEQPACKET, 0);
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        qstrncpy(address.sun_path, node.constData(), sizeof(address.sun_path));
        if (::bind(server, reinterpret_cast<sockaddr *>(&address), sizeof(address)) != 0 || ::listen(server, 1) != 0)
            qFatal("cannot listen at %s", node.constData());
        return server;
    }
};

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsSet("TST_TARGET_SHOW")) {
        printf("root=%s\npath=%s\ncommand=%s\nmodbus=%d\nok=%d\n", qPrintable(Target::root()),
               qPrintable(Target::path("/mnt/storage/")), qPrintable(Target::deskCommand("cat /mnt/x")),
               int(Target::modbusPort()), int(DeskRoot::prepare()));
        return 0;
    }
    QCoreApplication application(argc, argv);
    TstTarget test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_target.moc"
