#include "packages.h"

#include "package.h"
#include "unit/documentpage.h"

#include <QTemporaryFile>

#include <sys/stat.h>
#include <unistd.h>

using namespace update;

/// What a package may be, and that nothing else is taken.
class TstUpdatePackage : public QObject
{
    Q_OBJECT
private slots:
    void goodSoftwareBecomesTheCurrentVersion();
    void goodFirmwareLeavesThePlainImageForTheOwnerAlone();
    void anyFlippedBitIsRefused();
    void anyCutIsRefused();
    void bytesBehindTheEndAreRefused();
    void packageWithoutSignatureIsRefused();
    void signatureOfAnotherKeyIsRefused();
    void olderPackageThanAllowedIsRefused();
    void minimumOnlyRisesAndBelongsToAKind();
    void minimumThatCannotBeReadLetsNothingIn_data();
    void minimumThatCannotBeReadLetsNothingIn();
    void minimumThatNamesOneKindAllowsAllOfTheOther();
    void otherKindThanAskedForIsRefused();
    void instrumentWithoutKeyTakesNothing_data();
    void instrumentWithoutKeyTakesNothing();
    void badNamesAreRefused_data();
    void badNamesAreRefused();
    void goodNamesAreInstalled();
    void filesThatExcludeEachOtherAreRefused();
    void largerThanTheBoundsIsRefused_data();
    void largerThanTheBoundsIsRefused();
    void otherThanPlainFilesAreRefused();
    void firmwareOfAnotherNameOrNumberIsRefused();
    void packageThatIsNoOrdinaryFileIsNotRead_data();
    void packageThatIsNoOrdinaryFileIsNotRead();
    void linkAtTheImagesPlaceIsReplacedNotFollowed();
    void wrongCallsAreTold();
    void contentThatChangesBetweenTheTwoReadsIsRefused();
    void documentGivesBoundsAndStatuses();

private:
    void refuses(const UpdateDesk &desk, const QByteArray &package, const char *why)
    {
        const auto result = desk.unpack(package);
        QVERIFY2(result.status == Refused, result.text);
        QVERIFY2(result.text.contains(why), result.text);
        QCOMPARE(result.text.count('\n'), 1);
        QVERIFY(desk.versions().isEmpty());
        QVERIFY(!QFile::exists(desk.path("/tmp/.firmwareupd.tmp")));
    }
};

static const UpdateDesk::Content kFiles { { "bin/quvera", "program" }, { "share/lang/lang_de.qm", "words" } };

void TstUpdatePackage::goodSoftwareBecomesTheCurrentVersion()
{
    UpdateDesk desk;
    QDir().mkpath(desk.path("/build/bin"));
    UpdateDesk::write(desk.path("/build/bin/quvera"), "program");
    UpdateDesk::write(desk.path("/build/share/a.txt"), QByteArray(700000, 'a')); // more than one piece
    UpdateDesk::write(desk.path("/build/empty"), "");
    QFile::setPermissions(desk.path("/build/bin/quvera"), QFile::Permissions(0x7755));
    UpdateDesk::write(desk.path("/key"), QByteArray::fromStdString(desk.privateKey));
    const QStringList arguments { "software", desk.path("/key"),   "12",
                                  "0",        desk.path("/build"), desk.path("/usb/Software.upd") };
    QCOMPARE(QProcess::execute(QStringLiteral(QUVERA_BIN_DIR "/make-update"), arguments), 0);
    const auto result = desk.unpack(desk.path("/usb/Software.upd"), desk.environment());
    QVERIFY2(result.status == Done && result.text.isEmpty(), result.text);
    const UpdateDesk::Content expected { { "bin/quvera", "program" },
                                         { "share/a.txt", QByteArray(700000, 'a') },
                                         { "empty", "" } };
    QCOMPARE(desk.current(), expected);
    struct stat info
    {
    };
    QCOMPARE(::stat(qPrintable(desk.path("/opt/quvera/current/bin/quvera")), &info), 0);
    QCOMPARE(int(info.st_mode & 07777), 0755);
    QCOMPARE(::stat(qPrintable(desk.path("/opt/quvera/current/empty")), &info), 0);
    QCOMPARE(int(info.st_mode & 07777), 0644);
}

void TstUpdatePackage::goodFirmwareLeavesThePlainImageForTheOwnerAlone()
{
    UpdateDesk desk;
    const auto result = desk.unpack(desk.firmwarePackage("image"));
    QVERIFY2(result.status == Done, result.text);
    QCOMPARE(desk.firmware(), QByteArray("image"));
    struct stat info
    {
    };
    QCOMPARE(::stat(qPrintable(desk.path("/tmp/.firmwareupd.tmp")), &info), 0);
    QCOMPARE(int(info.st_mode & 07777), 0600);
    QCOMPARE(QDir(desk.path("/tmp")).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void TstUpdatePackage::anyFlippedBitIsRefused()
{
    UpdateDesk desk;
    const QByteArray whole = desk.softwarePackage(kFiles, 3);
    const QString name = desk.path("/usb/a");
    UpdateDesk::write(name, whole);
    QVERIFY(Package().open(name.toStdString(), desk.publicKey, {}).good());
    for (int bit = 0; bit < whole.size() * 8; ++bit) {
        QByteArray flipped = whole;
        flipped[bit / 8] = char(flipped[bit / 8] ^ (1 << bit % 8));
        UpdateDesk::write(name, flipped);
        const Outcome outcome = Package().open(name.toStdString(), desk.publicKey, {});
        QVERIFY2(outcome.status == Refused, QByteArray::number(bit));
    }
}

void TstUpdatePackage::anyCutIsRefused()
{
    UpdateDesk desk;
    const QByteArray whole = desk.softwarePackage(kFiles, 3);
    const QString name = desk.path("/usb/a");
    for (int size = 0; size < whole.size(); ++size) {
        UpdateDesk::write(name, whole.left(size));
        const Outcome outcome = Package().open(name.toStdString(), desk.publicKey, {});
        QVERIFY2(outcome.status == Refused, QByteArray::number(size));
    }
}

void TstUpdatePackage::bytesBehindTheEndAreRefused()
{
    UpdateDesk desk;
    refuses(desk, desk.softwarePackage(kFiles, 3) + '\0', "something stands behind its end");
}

void TstUpdatePackage::packageWithoutSignatureIsRefused()
{
    UpdateDesk desk;
    const std::string message = compose(UpdateDesk::head(Kind::Firmware, 1), { UpdateDesk::entry(kFirmwareName, "x") });
    refuses(desk, QByteArray::fromStdString(message) + QByteArray(64, '\0') + 'x', "it is not signed");
}

void TstUpdatePackage::signatureOfAnotherKeyIsRefused()
{
    UpdateDesk desk, other;
    refuses(desk, other.softwarePackage(kFiles, 3), "its signature is wrong");
}

void TstUpdatePackage::olderPackageThanAllowedIsRefused()
{
    UpdateDesk desk;
    UpdateDesk::write(desk.path("/var/lib/quvera/update.minimum"),
                      "software 7\nsoftware 3\nfirmware 2\n"); // the largest
    refuses(desk, desk.softwarePackage(kFiles, 6), "it is older than allowed");
    refuses(desk, desk.firmwarePackage("image", 1), "it is older than allowed");
    QCOMPARE(int(desk.unpack(desk.softwarePackage(kFiles, 7)).status), int(Done));
    QCOMPARE(int(desk.unpack(desk.firmwarePackage("image", 2)).status), int(Done));
}

void TstUpdatePackage::minimumOnlyRisesAndBelongsToAKind()
{
    UpdateDesk desk;
    QCOMPARE(int(desk.unpack(desk.softwarePackage(kFiles, 9, 5)).status), int(Done));
    QCOMPARE(UpdateDesk::read(desk.path("/var/lib/quvera/update.minimum")), QByteArray("software 5\nfirmware 0\n"));
    QCOMPARE(int(desk.unpack(desk.firmwarePackage("image", 4, 4)).status), int(Done));
    QCOMPARE(int(desk.unpack(desk.softwarePackage(kFiles, 6, 2)).status), int(Done));
    QCOMPARE(UpdateDesk::read(desk.path("/var/lib/quvera/update.minimum")), QByteArray("software 5\nfirmware 4\n"));
    QCOMPARE(int(desk.unpack(desk.softwarePackage(kFiles, 4)).status), int(Refused));
}

void TstUpdatePackage::minimumThatCannotBeReadLetsNothingIn_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("zeroes") << QByteArray(20, '\0');
    QTest::newRow("a number too large") << QByteArray("software 4294967296\nfirmware 0\n");
    QTest::newRow("a number below zero") << QByteArray("software -1\nfirmware 0\n");
    QTest::newRow("no number") << QByteArray("software\nfirmware 0\n");
    QTest::newRow("more behind the number") << QByteArray("software 3x\nfirmware 0\n");
    QTest::newRow("another kind's line is damaged") << QByteArray("software 0\nfirm");
    QTest::newRow("an unknown kind") << QByteArray("software 0\nbootware 2\n");
    QTest::newRow("too long") << QByteArray("software 0\n").repeated(500);
    QTest::newRow("a folder") << QByteArray();
}

void TstUpdatePackage::minimumThatCannotBeReadLetsNothingIn()
{
    QFETCH(QByteArray, content);
    UpdateDesk desk;
    const QString path = desk.path("/var/lib/quvera/update.minimum");
    if (content.isNull())
        QVERIFY(QDir().mkpath(path));
    else
        UpdateDesk::write(path, content);
    for (const QByteArray &package : { desk.softwarePackage(kFiles, 99, 99), desk.firmwarePackage("image", 99, 99) }) {
        const auto result = desk.unpack(package);
        QCOMPARE(result.status, int(NotInstalled));
        QVERIFY2(result.text.contains("the oldest version that is allowed cannot be read"), result.text);
    }
    QVERIFY(desk.versions().isEmpty());
    QVERIFY(!QFile::exists(desk.path("/tmp/.firmwareupd.tmp")));
    QCOMPARE(UpdateDesk::read(path), content); // for the service to look at
}

void TstUpdatePackage::minimumThatNamesOneKindAllowsAllOfTheOther()
{
    UpdateDesk desk;
    UpdateDesk::write(desk.path("/var/lib/quvera/update.minimum"), "firmware 2\n");
    QCOMPARE(int(desk.unpack(desk.softwarePackage(kFiles, 1)).status), int(Done));
    QCOMPARE(int(desk.unpack(desk.firmwarePackage("image", 1)).status), int(Refused));
}

void TstUpdatePackage::otherKindThanAskedForIsRefused()
{
    UpdateDesk desk;
    QProcessEnvironment asked = desk.environment();
    asked.insert("QUVERA_UPDATE_KIND", "software");
    UpdateDesk::write(desk.path("/usb/a"), desk.firmwarePackage("image"));
    const auto result = desk.unpack(desk.path("/usb/a"), asked);
    QCOMPARE(result.status, int(Refused));
    QVERIFY2(result.text.contains("it holds firmware, asked for is software"), result.text);
    QVERIFY(desk.firmware().isEmpty());
    asked.insert("QUVERA_UPDATE_KIND", "firmware");
    QCOMPARE(desk.unpack(desk.path("/usb/a"), asked).status, int(Done));
}

void TstUpdatePackage::instrumentWithoutKeyTakesNothing_data()
{
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no key") << QByteArray("-----BEGIN PUBLIC KEY-----\nAAAA\n-----END PUBLIC KEY-----\n");
    QTest::newRow("another kind of key") << QByteArray(
        "-----BEGIN PUBLIC KEY-----\nMCowBQYDK2VuAyEAmL5CcRVrRnPA9wEYZbaiRFmhw2lEbMKVMHoQsHbqqjQ=\n"
        "-----END PUBLIC KEY-----\n"); // X25519
    QTest::newRow("too large") << QByteArray(100000, 'k');
    QTest::newRow("missing") << QByteArray("-");
}

void TstUpdatePackage::instrumentWithoutKeyTakesNothing()
{
    QFETCH(QByteArray, key);
    UpdateDesk desk;
    if (key == "-")
        QVERIFY(QFile::remove(desk.path(kKeyFile)));
    else
        UpdateDesk::write(desk.path(kKeyFile), key);
    const auto result = desk.unpack(desk.softwarePackage(kFiles, 3));
    QCOMPARE(result.status, int(NotInstalled));
    QVERIFY2(result.text.contains("no key"), result.text);
    QVERIFY(desk.versions().isEmpty());
}

void TstUpdatePackage::badNamesAreRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("parent") << QByteArray("../quvera");
    QTest::newRow("parent inside") << QByteArray("bin/../../../etc/passwd");
    QTest::newRow("parent at the end") << QByteArray("bin/..");
    QTest::newRow("itself") << QByteArray("./quvera");
    QTest::newRow("absolute") << QByteArray("/etc/passwd");
    QTest::newRow("two slashes") << QByteArray("bin//quvera");
    QTest::newRow("slash at the end") << QByteArray("bin/");
    QTest::newRow("zero byte") << QByteArray("bin\0quvera", 10);
    QTest::newRow("zero byte at the end") << QByteArray("quvera\0", 7);
    QTest::newRow("line feed") << QByteArray("a\nb");
    QTest::newRow("backslash") << QByteArray("a\\b");
    QTest::newRow("blank") << QByteArray("a b");
    QTest::newRow("dash") << QByteArray("-rf");
    QTest::newRow("no ASCII") << QByteArray("\xc3\xa4");
    QTest::newRow("256 bytes") << QByteArray(256, 'a');
    QTest::newRow("17 parts") << QByteArray("a/").repeated(16) + "a";
}

void TstUpdatePackage::badNamesAreRefused()
{
    QFETCH(QByteArray, name);
    UpdateDesk desk;
    const QByteArray package
        = desk.signedPackage(UpdateDesk::head(Kind::Software, 1), { UpdateDesk::entry(name.toStdString(), "x") }, "x");
    refuses(desk, package, "a file name that is not allowed");
}

void TstUpdatePackage::goodNamesAreInstalled()
{
    UpdateDesk desk;
    const UpdateDesk::Content files { { "a", "1" },
                                      { "..a", "2" },
                                      { "lib/libstdc++.so.6", "3" },
                                      { QString(255, 'b'), "4" },
                                      { QString("c/").repeated(15) + "c", "5" } };
    const auto result = desk.unpack(desk.softwarePackage(files, 1));
    QVERIFY2(result.status == Done, result.text);
    QCOMPARE(desk.current(), files);
}

void TstUpdatePackage::filesThatExcludeEachOtherAreRefused()
{
    UpdateDesk desk;
    const auto of = [&desk](std::initializer_list<std::string> names) {
        std::vector<Entry> entries;
        for (const std::string &name : names)
            entries.push_back(UpdateDesk::entry(name, "x"));
        return desk.signedPackage(UpdateDesk::head(Kind::Software, 1), entries, QByteArray(int(names.size()), 'x'));
    };
    refuses(desk, of({ "a", "b", "a" }), "a file stands in it twice");
    refuses(desk, of({ "a", "a.b", "a/b" }), "both a file and a folder");
    refuses(desk, of({ "a/b/c", "a/b" }), "both a file and a folder");
}

void TstUpdatePackage::largerThanTheBoundsIsRefused_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<quint64>("size");
    QTest::newRow("software") << int(Kind::Software) << quint64((512ull << 20) + 1);
    QTest::newRow("software, all ones") << int(Kind::Software) << ~quint64(0);
    QTest::newRow("firmware") << int(Kind::Firmware) << quint64((8 << 20) + 1);
}

void TstUpdatePackage::largerThanTheBoundsIsRefused()
{
    QFETCH(int, kind);
    QFETCH(quint64, size);
    UpdateDesk desk;
    Entry entry = UpdateDesk::entry(kFirmwareName, "x");
    entry.size = size;
    refuses(desk, desk.signedPackage(UpdateDesk::head(Kind(kind), 1), { entry }, "x"), "it is too large");
    // A size that wraps round in the sum is no way past the bound either.
    Entry other = UpdateDesk::entry("other", "x");
    other.size = 2 - size;
    if (Kind(kind) == Kind::Software)
        refuses(desk, desk.signedPackage(UpdateDesk::head(Kind::Software, 1), { entry, other }, "xx"),
                "its files are larger than it is");
}

void TstUpdatePackage::otherThanPlainFilesAreRefused()
{
    UpdateDesk desk;
    const std::string message = compose(UpdateDesk::head(Kind::Software, 1), { UpdateDesk::entry("a", "x") });
    for (const unsigned mode : { 0120777u, 0040755u, 0104755u, 0100644u, 04755u, 0777u, 0u }) {
        std::string changed = message;
        changed[kHeadBytes + 2] = char(mode & 0xFF);
        changed[kHeadBytes + 3] = char(mode >> 8);
        refuses(desk, QByteArray::fromStdString(changed + sign(desk.privateKey, changed)) + 'x',
                "an entry is no plain file");
    }
}

void TstUpdatePackage::firmwareOfAnotherNameOrNumberIsRefused()
{
    UpdateDesk desk;
    const Head head = UpdateDesk::head(Kind::Firmware, 1);
    const Entry image = UpdateDesk::entry(kFirmwareName, "x");
    refuses(desk, desk.signedPackage(head, { UpdateDesk::entry("other.bin", "x") }, "x"), "does not hold what");
    refuses(desk, desk.signedPackage(head, { image, UpdateDesk::entry("b", "x") }, "xx"), "does not hold what");
    refuses(desk, desk.firmwarePackage(""), "does not hold what");
    refuses(desk, desk.signedPackage(UpdateDesk::head(Kind::Software, 1), {}, ""), "does not hold what");
    refuses(desk, desk.signedPackage(UpdateDesk::head(Kind(3), 1), { image }, "x"), "unknown kind");
    refuses(desk, desk.firmwarePackage("x", 0), "its version makes no sense");
    refuses(desk, desk.firmwarePackage("x", 3, 4), "its version makes no sense");
}

void TstUpdatePackage::packageThatIsNoOrdinaryFileIsNotRead_data()
{
    QTest::addColumn<QString>("what");
    for (const char *what : { "missing", "folder", "pipe", "link", "device" })
        QTest::newRow(what) << QString::fromLatin1(what);
}

void TstUpdatePackage::packageThatIsNoOrdinaryFileIsNotRead()
{
    QFETCH(QString, what);
    UpdateDesk desk;
    const QString name = desk.path("/usb/a");
    if (what == "folder")
        QVERIFY(QDir().mkpath(name));
    if (what == "pipe")
        QCOMPARE(::mkfifo(qPrintable(name), 0600), 0);
    UpdateDesk::write(desk.path("/usb/b"), desk.firmwarePackage("image"));
    if (what == "link")
        QVERIFY(QFile::link(desk.path("/usb/b"), name));
    const auto result = desk.unpack(what == "device" ? QStringLiteral("/dev/zero") : name, desk.environment());
    QCOMPARE(result.status, int(Unreadable));
    QVERIFY2(result.text.contains("no ordinary file"), result.text);
    QVERIFY(desk.firmware().isEmpty());
}

void TstUpdatePackage::linkAtTheImagesPlaceIsReplacedNotFollowed()
{
    UpdateDesk desk;
    UpdateDesk::write(desk.path("/victim"), "precious");
    QVERIFY(QFile::link(desk.path("/victim"), desk.path("/tmp/.firmwareupd.tmp")));
    QCOMPARE(desk.unpack(desk.firmwarePackage("image")).status, int(Done));
    QCOMPARE(UpdateDesk::read(desk.path("/victim")), QByteArray("precious"));
    QCOMPARE(desk.firmware(), QByteArray("image"));
    QVERIFY(!QFileInfo(desk.path("/tmp/.firmwareupd.tmp")).isSymLink());
}

void TstUpdatePackage::wrongCallsAreTold()
{
    QCOMPARE(QProcess::execute(QStringLiteral(QUVERA_BIN_DIR "/update-unpack"), QStringList()), int(WrongCall));
    QCOMPARE(QProcess::execute(QStringLiteral(QUVERA_BIN_DIR "/update-unpack"), { "a", "b" }), int(WrongCall));
    QCOMPARE(QProcess::execute(QStringLiteral(QUVERA_BIN_DIR "/make-update"), { "software" }), 2);
}

void TstUpdatePackage::contentThatChangesBetweenTheTwoReadsIsRefused()
{
    UpdateDesk desk;
    const QString name = desk.path("/usb/a");
    const QByteArray whole = desk.firmwarePackage("image");
    UpdateDesk::write(name, whole);
    Package package;
    QVERIFY(package.open(name.toStdString(), desk.publicKey, Kind::Firmware).good());
    UpdateDesk::write(name, whole.left(whole.size() - 5) + "IMAGE");
    QTemporaryFile copy;
    QVERIFY(copy.open());
    QCOMPARE(int(package.copy(0, copy.handle()).status), int(Refused));
}

void TstUpdatePackage::documentGivesBoundsAndStatuses()
{
    const DocumentPage format(QStringLiteral("formats/update-package.md"));
    QVector<quint64> bounds;
    for (const QStringList &row : format.table(QStringLiteral("## Bounds")))
        bounds << row.value(1).toULongLong();
    QCOMPARE(bounds,
             (QVector<quint64> { kMostFiles, kMostTableBytes, kMostNameBytes, kMostNameParts, kMostSoftwareBytes,
                                 kMostFirmwareBytes }));
    const auto end = [&format](const char *heading) {
        const QVector<QStringList> rows = format.table(QString::fromLatin1(heading));
        return rows.last().value(0).toUInt() + rows.last().value(1).toUInt();
    };
    QCOMPARE(end("## Head"), unsigned(kHeadBytes));
    QCOMPARE(end("## Table"), 12u + unsigned(kDigestBytes)); // where the name begins
    const QString page = UpdateDesk::read(QStringLiteral(QUVERA_SOURCE_DIR "/src/user/userupdate.cpp"));
    int status = Done;
    for (const QStringList &row : DocumentPage(QStringLiteral("updates.md")).table("## What the unpacker does")) {
        QCOMPARE(row.value(0).toInt(), status++);
        QVERIFY2(page.contains('"' + row.value(2) + '"'), qPrintable(row.value(2)));
    }
    QCOMPARE(status, Busy + 1);
}

QTEST_GUILESS_MAIN(TstUpdatePackage)
#include "tst_updatepackage.moc"
