#include "platform/servicenotes.h"

#include <QTemporaryDir>
#include <QtTest>

#include <cstddef>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

/// The service manager's end of the socket.
class Manager
{
public:
    explicit Manager(const QByteArray &name)
    {
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        memcpy(address.sun_path, name.constData(), size_t(name.size()));
        if (name.startsWith('@'))
            address.sun_path[0] = '\0';
        m_fd = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + size_t(name.size()));
        m_bound = ::bind(m_fd, reinterpret_cast<sockaddr *>(&address), length) == 0;
    }
    ~Manager() { ::close(m_fd); }
    bool isBound() const { return m_bound; }
    /// The next note, empty when there is none.
    QByteArray note() const
    {
        char text[64];
        const ssize_t got = ::recv(m_fd, text, sizeof text, 0);
        return got > 0 ? QByteArray(text, int(got)) : QByteArray();
    }
    /// How many signs of life came since the last call of this.
    int signsOfLife() const
    {
        int signs = 0;
        while (note() == "WATCHDOG=1")
            ++signs;
        return signs;
    }

private:
    int m_fd = -1;
    bool m_bound = false;
};

class TestServiceNotes : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        for (const char *name : { "NOTIFY_SOCKET", "WATCHDOG_USEC", "WATCHDOG_PID" })
            qunsetenv(name);
    }
    void withoutAManagerNothingIsSaid();
    void readyIsToldOnceWithoutAWatchdog_data();
    void readyIsToldOnceWithoutAWatchdog();
    void theWatchdogHearsOfTheEventLoopAsLongAsItTurns();
    void aSocketNameTooLongIsLeftAlone();

private:
    QTemporaryDir m_folder;
};

void TestServiceNotes::withoutAManagerNothingIsSaid()
{
    qputenv("WATCHDOG_USEC", "3000");
    ServiceNotes::begin();
    QVERIFY(!qEnvironmentVariableIsSet("WATCHDOG_USEC"));
}

void TestServiceNotes::readyIsToldOnceWithoutAWatchdog_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("process");
    QTest::addColumn<QByteArray>("patience");
    const QByteArray file = QFile::encodeName(m_folder.filePath(QStringLiteral("notify")));
    QTest::newRow("a socket with a file") << file << QByteArray() << QByteArray();
    QTest::newRow("a socket without one") << "@quvera" + file << QByteArray() << QByteArray();
    QTest::newRow("the watchdog is for another process") << file << QByteArray("1") << QByteArray("3000");
    QTest::newRow("no time") << file << QByteArray() << QByteArray("soon");
}

void TestServiceNotes::readyIsToldOnceWithoutAWatchdog()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, process);
    QFETCH(QByteArray, patience);
    QFile::remove(QFile::decodeName(name));
    const Manager manager(name);
    QVERIFY(manager.isBound());
    qputenv("NOTIFY_SOCKET", name);
    qputenv("WATCHDOG_PID", process);
    qputenv("WATCHDOG_USEC", patience);
    ServiceNotes::begin();
    QCOMPARE(manager.note(), QByteArray("READY=1"));
    QVERIFY(!qEnvironmentVariableIsSet("NOTIFY_SOCKET"));
    QTest::qWait(20);
    QCOMPARE(manager.note(), QByteArray());
}

void TestServiceNotes::theWatchdogHearsOfTheEventLoopAsLongAsItTurns()
{
    const QByteArray name = QFile::encodeName(m_folder.filePath(QStringLiteral("watch")));
    const Manager manager(name);
    QVERIFY(manager.isBound());
    qputenv("NOTIFY_SOCKET", name);
    qputenv("WATCHDOG_PID", QByteArray::number(::getpid()));
    qputenv("WATCHDOG_USEC", "30000");
    ServiceNotes::begin();
    QCOMPARE(manager.note(), QByteArray("READY=1"));
    int heard = 0;
    QTRY_VERIFY((heard += manager.signsOfLife()) >= 3);
    QTest::qSleep(100); // the loop stands still
    QCOMPARE(manager.signsOfLife(), 0);
}

void TestServiceNotes::aSocketNameTooLongIsLeftAlone()
{
    qputenv("NOTIFY_SOCKET", '/' + QByteArray(2000, 'x'));
    ServiceNotes::begin();
}

QTEST_GUILESS_MAIN(TestServiceNotes)
#include "tst_servicenotes.moc"
