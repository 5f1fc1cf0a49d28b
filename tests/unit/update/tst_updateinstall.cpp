#include "packages.h"

#include <QSet>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace update;
using Content = UpdateDesk::Content;

/// That an installation which ends anywhere leaves a whole version, the old one or the new one.
class TstUpdateInstall : public QObject
{
    Q_OBJECT
private slots:
    void softwareThatEndsAnywhereLeavesTheOldOrTheNewVersion_data();
    void softwareThatEndsAnywhereLeavesTheOldOrTheNewVersion();
    void firmwareThatEndsAnywhereLeavesNoImageOrTheWholeOne_data();
    void firmwareThatEndsAnywhereLeavesNoImageOrTheWholeOne();
    void allIsOnTheDiskBeforeTheNewVersionCounts();
    void versionBeforeIsKeptAndOlderOnesGo();
    void sameVersionAgainIsInstalledBesideTheOneThatRuns();
    void versionThatALinkMadeByHandLeadsToIsKept();
    void folderInPlaceOfTheLinkIsLeftAlone();
    void linkInPlaceOfTheVersionsIsNotFollowed();
    void twoUpdatesAtOnceDoNotMix();
    void diskWithoutRoomKeepsTheOldVersion();
    void minimumIsRaisedOnlyByAnUpdateThatCounts();
    void versionThatADiskReadsWronglyAtFirstIsTheSignedOne();
    void memoryDoesNotGrowWithThePackage();

private:
    static QProcessEnvironment faulty(const UpdateDesk &desk, const char *variable, const QString &value)
    {
        QProcessEnvironment all = desk.environment();
        all.insert("LD_PRELOAD", QStringLiteral(QUVERA_DISK_FAULTS));
        all.insert("ASAN_OPTIONS", "verify_asan_link_order=0");
        all.insert(QString::fromLatin1(variable), value);
        return all;
    }
    static QString put(const UpdateDesk &desk, const QByteArray &package)
    {
        UpdateDesk::write(desk.path("/usb/Software.upd"), package);
        return desk.path("/usb/Software.upd");
    }
    /// The calls of an update that goes through, as lines of the log.
    static QList<QByteArray> calls(const UpdateDesk &desk, const QByteArray &package)
    {
        const auto result = desk.unpack(put(desk, package), faulty(desk, "DISK_LOG", desk.path("/log")));
        QList<QByteArray> lines = UpdateDesk::read(desk.path("/log")).split('\n');
        lines.removeLast();
        return result.status == Done ? lines : QList<QByteArray>();
    }
    /// Unpacks under limits that a shell sets.
    static UpdateDesk::Result limited(const UpdateDesk &desk, const QString &package, const char *limits)
    {
        QProcess process;
        process.setProcessEnvironment(desk.environment());
        process.start("/bin/sh",
                      { "-c", QLatin1String(limits) + "; exec \"$0\" \"$1\"",
                        QStringLiteral(QUVERA_BIN_DIR "/update-unpack"), package });
        process.waitForFinished(60000);
        return { process.exitCode(), process.readAllStandardError() };
    }
    static void addFaults()
    {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<bool>("killed");
        QTest::newRow("power cut") << "DISK_KILL" << true;
        QTest::newRow("failed call") << "DISK_FAIL" << false;
    }
};

static const Content kOldest { { "bin/quvera", "oldest" } };
static const Content kOld { { "bin/quvera", "old program" }, { "share/words", "old words" } };
static const Content kNew { { "bin/quvera", "new program" }, { "bin/tool", "tool" }, { "share/a/words", "new words" } };

/// An instrument that has been updated once already.
class UpdatedDesk : public UpdateDesk
{
public:
    UpdatedDesk()
    {
        install("1", kOldest);
        install("2", kOld);
        if (!QFile::link("versions/1", path("/opt/quvera/previous"))
            || !QFile::link("versions/2", path("/opt/quvera/current")))
            qFatal("the links of the versions before cannot be made");
    }

private:
    void install(const QString &name, const Content &files) const
    {
        for (auto file = files.begin(); file != files.end(); ++file)
            write(path("/opt/quvera/versions/" + name + '/' + file.key()), file.value());
    }
};

void TstUpdateInstall::softwareThatEndsAnywhereLeavesTheOldOrTheNewVersion_data()
{
    addFaults();
}

void TstUpdateInstall::softwareThatEndsAnywhereLeavesTheOldOrTheNewVersion()
{
    QFETCH(QString, variable);
    QFETCH(bool, killed);
    const UpdatedDesk untouched;
    const int count = calls(untouched, untouched.softwarePackage(kNew, 3, 2)).size();
    QVERIFY2(count > 25, QByteArray::number(count)); // three files, their folders, two links, and what goes
    int oldAfterwards = 0, newAfterwards = 0;
    for (int call = 1; call <= count; ++call) {
        const UpdatedDesk desk;
        const QString package = put(desk, desk.softwarePackage(kNew, 3, 2));
        const auto result = desk.unpack(package, faulty(desk, qPrintable(variable), QString::number(call)));
        const QByteArray where = "call " + QByteArray::number(call) + ' ' + result.text;
        QVERIFY2(result.status == (killed ? -1 : NotInstalled) || (!killed && result.status == Done), where);
        const Content now = desk.current();
        QVERIFY2(now == kNew || (now == kOld && result.status != Done), where);
        (now == kOld ? oldAfterwards : newAfterwards)++;
        const Content former = desk.version(kPreviousLink);
        QVERIFY2(former == kOldest || former == kOld, where);
        // The next update clears up whatever is left.
        const auto again = desk.unpack(package, desk.environment());
        QVERIFY2(again.status == Done, where + again.text);
        QCOMPARE(desk.current(), kNew);
        QCOMPARE(desk.versions().size(), 2);
        const QStringList top = QDir(desk.path(kSoftwareFolder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        QCOMPARE(top, QStringList({ "current", "previous", "versions" }));
    }
    QVERIFY(oldAfterwards > 10 && newAfterwards > 0);
}

void TstUpdateInstall::firmwareThatEndsAnywhereLeavesNoImageOrTheWholeOne_data()
{
    addFaults();
}

void TstUpdateInstall::firmwareThatEndsAnywhereLeavesNoImageOrTheWholeOne()
{
    QFETCH(QString, variable);
    const QByteArray image(600000, 'f'); // several writes
    const UpdateDesk untouched;
    const int count = calls(untouched, untouched.firmwarePackage(image, 2, 2)).size();
    QVERIFY(count > 5);
    for (int call = 1; call <= count; ++call) {
        const UpdateDesk desk;
        const QString package = put(desk, desk.firmwarePackage(image, 2, 2));
        desk.unpack(package, faulty(desk, qPrintable(variable), QString::number(call)));
        QVERIFY2(desk.firmware().isEmpty() || desk.firmware() == image, QByteArray::number(call));
        QCOMPARE(desk.unpack(package, desk.environment()).status, int(Done));
        QCOMPARE(desk.firmware(), image);
    }
}

/// A process that is killed loses nothing that it wrote; a power cut loses all that was not brought to the disk. So
/// nothing may be outstanding when the link to the current version is exchanged, and nothing at the end.
void TstUpdateInstall::allIsOnTheDiskBeforeTheNewVersionCounts()
{
    const UpdatedDesk desk;
    const QByteArray top = desk.path(kSoftwareFolder).toLocal8Bit();
    QSet<QByteArray> outstanding;
    int exchanged = 0, files = 0;
    const auto log = calls(desk, desk.softwarePackage(kNew, 3));
    QVERIFY(!log.isEmpty());
    for (const QByteArray &line : log) {
        const QByteArray call = line.split(' ').at(0), path = line.split(' ').at(1), name = line.split(' ').at(2);
        if (call == "rename" && name == kCurrentLink) {
            QCOMPARE(outstanding, QSet<QByteArray> { top }); // the link made aside, which the rename itself needs
            ++exchanged;
        }
        if (name == ".lock")
            continue;
        if (call == "create" || call == "mkdir")
            outstanding << path << path + '/' + name;
        if (call == "write" || call == "symlink" || call == "rename")
            outstanding << path;
        if (call == "fsync")
            outstanding.remove(path);
        files += call == "create";
    }
    QCOMPARE(exchanged, 1);
    QCOMPARE(files, kNew.size());
    QVERIFY2(outstanding.isEmpty(), outstanding.values().join(' '));
}

void TstUpdateInstall::versionBeforeIsKeptAndOlderOnesGo()
{
    UpdatedDesk desk;
    QCOMPARE(desk.unpack(desk.softwarePackage(kNew, 3)).status, int(Done));
    QCOMPARE(desk.current(), kNew);
    QCOMPARE(desk.version(kPreviousLink), kOld);
    QCOMPARE(desk.versions(), QStringList({ "2", "3" }));
    QCOMPARE(QFile::symLinkTarget(desk.path("/opt/quvera/current")), desk.path("/opt/quvera/versions/3"));
}

void TstUpdateInstall::sameVersionAgainIsInstalledBesideTheOneThatRuns()
{
    UpdatedDesk desk;
    UpdateDesk::write(desk.path("/opt/quvera/current/bin/quvera"), "damaged");
    QCOMPARE(desk.unpack(desk.softwarePackage(kOld, 2)).status, int(Done));
    QCOMPARE(desk.current(), kOld);
    QCOMPARE(desk.versions(), QStringList({ "2", "2.1" }));
    QCOMPARE(desk.unpack(desk.softwarePackage(kOld, 2)).status, int(Done));
    QCOMPARE(desk.versions(), QStringList({ "2.1", "2.2" }));
    QCOMPARE(desk.unpack(desk.softwarePackage(kOld, 2)).status, int(Done));
    QCOMPARE(desk.versions(), QStringList({ "2", "2.2" }));
    QCOMPARE(desk.current(), kOld);
}

void TstUpdateInstall::versionThatALinkMadeByHandLeadsToIsKept()
{
    const UpdatedDesk desk;
    for (const QString &to : { desk.path("/opt/quvera/versions/2"), QStringLiteral("./versions//2/") }) {
        QVERIFY(QFile::remove(desk.path("/opt/quvera/current")));
        QVERIFY(QFile::link(to, desk.path("/opt/quvera/current")));
        // The first write fails, so that no new version takes the place.
        const QString package = put(desk, desk.softwarePackage(kNew, 3));
        QCOMPARE(desk.unpack(package, faulty(desk, "DISK_FAIL", "3")).status, int(NotInstalled));
        QCOMPARE(desk.current(), kOld);
    }
    QCOMPARE(desk.unpack(desk.softwarePackage(kNew, 3)).status, int(Done));
    QCOMPARE(desk.version(kPreviousLink), kOld);
}

void TstUpdateInstall::folderInPlaceOfTheLinkIsLeftAlone()
{
    UpdateDesk desk;
    UpdateDesk::write(desk.path("/opt/quvera/current/bin/quvera"), "by hand");
    const auto result = desk.unpack(desk.softwarePackage(kNew, 3));
    QCOMPARE(result.status, int(NotInstalled));
    QCOMPARE(result.text.count('\n'), 1);
    QCOMPARE(UpdateDesk::read(desk.path("/opt/quvera/current/bin/quvera")), QByteArray("by hand"));
}

void TstUpdateInstall::linkInPlaceOfTheVersionsIsNotFollowed()
{
    UpdateDesk desk;
    UpdateDesk::write(desk.path("/home/precious"), "precious");
    QVERIFY(QFile::link(desk.path("/home"), desk.path("/opt/quvera/versions")));
    QCOMPARE(desk.unpack(desk.softwarePackage(kNew, 3)).status, int(NotInstalled));
    QCOMPARE(QDir(desk.path("/home")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("precious"));
}

void TstUpdateInstall::twoUpdatesAtOnceDoNotMix()
{
    UpdatedDesk desk;
    const int lock = ::open(qPrintable(desk.path("/opt/quvera/.lock")), O_RDWR | O_CREAT, 0600);
    QCOMPARE(::flock(lock, LOCK_SH), 0); // which only an update that wants the lock for itself finds taken
    const auto result = desk.unpack(desk.softwarePackage(kNew, 3));
    QCOMPARE(result.status, int(Busy));
    QCOMPARE(desk.current(), kOld);
    ::close(lock);
    QCOMPARE(desk.unpack(desk.softwarePackage(kNew, 3)).status, int(Done));
}

void TstUpdateInstall::diskWithoutRoomKeepsTheOldVersion()
{
    const UpdatedDesk desk;
    Content large = kNew;
    large.insert("large", QByteArray(300000, 'l'));
    const QString package = put(desk, desk.softwarePackage(large, 3));
    // No file of the program may grow beyond 100 KiB: a disk that fills up in the middle of one.
    const auto result = limited(desk, package, "trap '' XFSZ; ulimit -f 200");
    QCOMPARE(result.status, int(NotInstalled));
    QVERIFY2(result.text.contains("a file cannot be written"), result.text);
    QCOMPARE(desk.current(), kOld);
    QCOMPARE(desk.versions(), QStringList({ "1", "2" }));
}

void TstUpdateInstall::minimumIsRaisedOnlyByAnUpdateThatCounts()
{
    UpdateDesk desk;
    QVERIFY(QDir().mkpath(desk.path("/opt/quvera/current/x")));
    QCOMPARE(desk.unpack(desk.softwarePackage(kNew, 3, 3)).status, int(NotInstalled));
    QVERIFY(!QFile::exists(desk.path("/var/lib/quvera/update.minimum")));
}

void TstUpdateInstall::versionThatADiskReadsWronglyAtFirstIsTheSignedOne()
{
    UpdatedDesk desk;
    UpdateDesk::write(desk.path("/var/lib/quvera/update.minimum"), "software 50\n");
    const QString package = put(desk, desk.softwarePackage(kNew, 3));
    const QString placeOfVersion = QStringLiteral("16");
    // First read as 67, which would be allowed.
    const auto result = desk.unpack(package, faulty(desk, "DISK_MISREAD", placeOfVersion));
    QCOMPARE(result.status, int(Refused));
    QVERIFY2(result.text.contains("it is older than allowed"), result.text);
    QCOMPARE(desk.current(), kOld);
}

void TstUpdateInstall::memoryDoesNotGrowWithThePackage()
{
    const UpdateDesk desk(QDir::tempPath());
    const QByteArray large(60 << 20, 'l');
    const auto result
        = limited(desk, put(desk, desk.softwarePackage({ { "large", large } }, 1)), "ulimit -v 40000"); // kB
    QVERIFY2(result.status == Done, result.text);
    QCOMPARE(QFileInfo(desk.path("/opt/quvera/current/large")).size(), qint64(large.size()));
}

QTEST_GUILESS_MAIN(TstUpdateInstall)
#include "tst_updateinstall.moc"
