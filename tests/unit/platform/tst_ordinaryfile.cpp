#include "platform/ordinaryfile.h"
#include "unit/filestandin.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

/// Files that may be something else.
class TstOrdinaryFile : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        ::alarm(20); // whoever waits for the other end of a pipe would wait for ever
        removeStandIn(kName);
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("value\n"), 6LL);
    }
    void cleanup() { ::alarm(0); }

    void aFileIsReadUpToItsBound()
    {
        QCOMPARE(OrdinaryFile::start(path(), 16), QByteArray("value\n"));
        QCOMPARE(OrdinaryFile::start(path(), 3), QByteArray("val"));
        QVERIFY(!OrdinaryFile::isSomethingElse(path()));
    }

    void writingLeavesWhatLiesBehind()
    {
        QVERIFY(OrdinaryFile::write(path(), "7"));
        QCOMPARE(OrdinaryFile::start(path(), 16), QByteArray("7alue\n"));
    }

    void aMissingFileIsNotMade()
    {
        QVERIFY(QFile::remove(path()));
        QVERIFY(!OrdinaryFile::write(path(), "7"));
        QCOMPARE(OrdinaryFile::start(path(), 16), QByteArray());
        QCOMPARE(OrdinaryFile::open(path(), O_RDONLY), -1);
        QCOMPARE(errno, ENOENT);
        QVERIFY(!QFile::exists(path()));
        QVERIFY(!OrdinaryFile::isSomethingElse(path()));
    }

    void somethingElseIsRefusedAtOnce_data() { addFileStandIns(); }
    void somethingElseIsRefusedAtOnce()
    {
        QFETCH(FileStandIn, kind);
        QVERIFY(putStandIn(kName, kind));
        for (const int flags : { O_RDONLY, O_WRONLY, O_RDWR })
            QCOMPARE(OrdinaryFile::open(path(), flags), -1);
        QCOMPARE(OrdinaryFile::start(path(), 16), QByteArray());
        QVERIFY(!OrdinaryFile::write(path(), "7"));
        QVERIFY(OrdinaryFile::isSomethingElse(path()));
    }

    void anEchoLeavesNothingOfTheOldTextAndMakesAMissingFile()
    {
        QVERIFY(OrdinaryFile::echo(path(), "7\n"));
        QCOMPARE(OrdinaryFile::start(path(), 16), QByteArray("7\n"));
        QVERIFY(QFile::remove(path()));
        QVERIFY(OrdinaryFile::echo(path(), "in\n"));
        QCOMPARE(OrdinaryFile::start(path(), 16), QByteArray("in\n"));
        QVERIFY(!OrdinaryFile::echo(path() + QStringLiteral("/below"), "7\n"));
    }

    void anEchoGoesIntoAPipeAndWaitsForNoReader()
    {
        QVERIFY(putStandIn(kName, FileStandIn::Pipe));
        QVERIFY(!OrdinaryFile::echo(path(), "7\n"));
        const int reader = ::open(QFile::encodeName(path()).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(reader >= 0);
        QVERIFY(OrdinaryFile::echo(path(), "7\n"));
        char bytes[8] = {};
        QCOMPARE(::read(reader, bytes, sizeof(bytes)), ssize_t(2));
        QCOMPARE(QByteArray(bytes), QByteArray("7\n"));
        ::close(reader);
    }

private:
    const QString kName = QStringLiteral("/mnt/userfs/plain");

    QString path() const { return Target::path(kName); }
};

QTEST_GUILESS_MAIN(TstOrdinaryFile)
#include "tst_ordinaryfile.moc"
