// What the packages name is there, and is called by the names that the program has for it. Nothing is packed here:
// packaging/debian/test.sh does that.
#include "unit/architecture/packagetext.h"

#include <QFileInfo>
#include <QLibraryInfo>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace PackageText;

namespace {

const QString kRights = QStringLiteral("packaging/board/board-rights");
const QString kDisk = QStringLiteral("packaging/board/usb-disk");
const QString kUdev = kDebian + QStringLiteral("quvera.udev");

/// The install commands of the build.
QStringList installs()
{
    QString all;
    QDirIterator files(kTop, { QStringLiteral("CMakeLists.txt"), QStringLiteral("*.cmake") }, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        if (!path.startsWith(kTop + QStringLiteral("/build/")))
            all += read(path);
    }
    return caught(all, QStringLiteral("^install\\(([^)]*)\\)"));
}

/// Programs that are installed, those of a component alone when one is named.
QStringList programs(const QString &component = {})
{
    QStringList names;
    const QStringList all = installs();
    for (const QString &install : all) {
        const QStringList targets = caught(install, QStringLiteral("^TARGETS (.*) RUNTIME DESTINATION bin COMPONENT"));
        if (!targets.isEmpty() && (component.isEmpty() || install.endsWith(QLatin1Char(' ') + component)))
            names << targets.first().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    }
    return names;
}

/// Packages that a list of the scripts names.
QStringList packages(const QString &path)
{
    QStringList names;
    for (const QStringList &row : rows(path))
        names << row.first();
    return names;
}

} // namespace

class TstPackaging : public QObject
{
    Q_OBJECT

private slots:
    void everyProgramHasItsManualPage();
    void whatThePackagesNameIsThere();
    void componentsArePackedWhole();
    void versionsAgree();
    void librariesAreListedEverywhere();
    void serviceNamesWhatTheProgramReads();
    void serviceStartsWhatUpdatesInstall();
    void rightsNameTheFilesOfTheBoard();
    void rightsAreGivenToTheProgramsGroup();
    void userIsTheSameEverywhere();
    void serviceWaitsForTheNodeButNotForEver();
    void scriptsThatTheProgramCallsAreOnItsPath();
    void commandsThatTheProgramCallsAreBrought();
    void clientOfALostNetworkIsFoundAndEnded();
    void comingDisksAreShownWhereTheProgramLooks();
    void diskIsTheUsersToWrite_data();
    void diskIsTheUsersToWrite();
    void diskThatCannotBeShownLeavesNothing_data();
    void diskThatCannotBeShownLeavesNothing();
    void boardSettingsAreKnown();
};

void TstPackaging::everyProgramHasItsManualPage()
{
    const QStringList tools = programs(QStringLiteral("tools")), all = programs();
    QVERIFY2(tools.size() >= 6 && all.size() >= tools.size() + 2, qPrintable(all.join(QLatin1Char(' '))));
    const QString ofTools = text(kDebian + QStringLiteral("quvera-tools.manpages"));
    QVERIFY(ofTools.contains(QLatin1String("docs/man/*.1")));
    const QString ofInstrument = text(kDebian + QStringLiteral("quvera.manpages"));
    for (const QString &name : all) {
        const QString page = QStringLiteral("docs/man/%1.%2").arg(name, tools.contains(name) ? "1" : "8");
        const QString manual = text(page);
        QVERIFY2(manual.contains(QStringLiteral(".TH %1 ").arg(name.toUpper())), qPrintable(page));
        QVERIFY2(manual.contains(QStringLiteral(".SH NAME\n") + name + QLatin1String(" \\- ")), qPrintable(page));
        QVERIFY2(tools.contains(name) || ofInstrument.contains(page), qPrintable(page));
    }
    // And no page of a program that is gone.
    const QStringList pages = QDir(kTop + QStringLiteral("/docs/man")).entryList(QDir::Files);
    for (const QString &page : pages)
        QVERIFY2(all.contains(QFileInfo(page).completeBaseName()), qPrintable(page));
}

void TstPackaging::whatThePackagesNameIsThere()
{
    int seen = 0;
    const QDir debian(kTop + QLatin1Char('/') + kDebian);
    const QStringList lists = debian.entryList({ QStringLiteral("*.install"), QStringLiteral("*.manpages") });
    QVERIFY(lists.size() >= 3);
    for (const QString &list : lists) {
        for (const QStringList &row : rows(kDebian + list)) {
            const QFileInfo file(kTop + QLatin1Char('/') + row.first());
            QVERIFY2(!QDir(file.path()).entryList({ file.fileName() }, QDir::Files).isEmpty(), qPrintable(row.first()));
            ++seen;
        }
    }
    QVERIFY2(seen >= 8, qPrintable(QString::number(seen)));
    // Links to files of the package lead to programs that are installed.
    for (const QStringList &row : rows(kDebian + QStringLiteral("quvera.links"))) {
        QCOMPARE(row.size(), 2);
        if (row.first().startsWith(QLatin1String("usr/lib/quvera/bin/")))
            QVERIFY2(programs(QStringLiteral("instrument")).contains(QFileInfo(row.first()).fileName()),
                     qPrintable(row.first()));
    }
}

void TstPackaging::componentsArePackedWhole()
{
    const QStringList packed = caught(text(kDebian + QStringLiteral("rules")), QStringLiteral("--component ([a-z]+)$"));
    QSet<QString> given;
    const QStringList all = installs();
    for (const QString &install : all) {
        const QStringList component = caught(install, QStringLiteral("COMPONENT ([a-z]+)$"));
        QVERIFY2(component.size() == 1, qPrintable(install));
        given << component.first();
    }
    QVERIFY(given.size() >= 3);
    QCOMPARE(QSet<QString>(packed.cbegin(), packed.cend()), given);
}

void TstPackaging::versionsAgree()
{
    const QString version
        = caught(text(QStringLiteral("CMakeLists.txt")), QStringLiteral("^project\\(quvera VERSION ([0-9.]+) "))
              .value(0);
    const QStringList parts = version.split(QLatin1Char('.'));
    QCOMPARE(parts.size(), 3);
    const int number = (parts[0].toInt() * 100 + parts[1].toInt()) * 100 + parts[2].toInt();
    QCOMPARE(caught(text(kDebian + QStringLiteral("changelog")), QStringLiteral("\\A[a-z]+ \\(([0-9.]+)\\)")),
             QStringList { version });
    QCOMPARE(caught(text(kDebian + QStringLiteral("quvera.postinst")), QStringLiteral("^version=([0-9]+)$")),
             QStringList { QString::number(number) });
    QVERIFY(text(QStringLiteral("docs/board.md"))
                .contains(QStringLiteral("quvera_%1_armhf.deb update.key %2 ").arg(version).arg(number)));
}

void TstPackaging::librariesAreListedEverywhere()
{
    const QStringList here = packages(QStringLiteral("packaging/debian-packages.txt"));
    const QStringList sysroot
        = caught(text(QStringLiteral("packaging/armhf/debian-packages.txt")), QStringLiteral("^#sysroot: ([^\n]*)"))
              .join(QLatin1Char(' '))
              .split(QLatin1Char(' '));
    QStringList needed
        = caught(text(kDebian + QStringLiteral("control")), QStringLiteral("^Build-Depends: (.*?)\n[A-Z]"))
              .value(0)
              .simplified()
              .split(QStringLiteral(", "));
    QVERIFY(needed.removeOne(QStringLiteral("debhelper-compat (= 13)")));
    QVERIFY(needed.size() >= 15);
    for (const QString &name : qAsConst(needed))
        QVERIFY2(here.contains(name), qPrintable(QStringLiteral("packaging/debian-packages.txt lacks ") + name));
    for (const QString &name : here) {
        if (!name.endsWith(QLatin1String("-dev")) && !name.endsWith(QLatin1String("-dev-tools")))
            continue;
        QVERIFY2(sysroot.contains(name), qPrintable(QStringLiteral("the sysroot lacks ") + name));
        QVERIFY2(needed.contains(name) || name == QLatin1String("libbenchmark-dev"), qPrintable(name));
    }
}

void TstPackaging::serviceNamesWhatTheProgramReads()
{
    const QString notes = text(QStringLiteral("src/platform/servicenotes.cpp"));
    QCOMPARE(unit(QStringLiteral("Type")), QStringList { QStringLiteral("notify") });
    QVERIFY(notes.contains(QLatin1String("READY=1")));
    QCOMPARE(unit(QStringLiteral("WatchdogSec")).size(), 1);
    QVERIFY(notes.contains(QLatin1String("WATCHDOG_USEC")));
    // Its folders are those that the package makes, and the settings of screen and keys lie where the package puts
    // them.
    const QString made = text(kDebian + QStringLiteral("quvera.tmpfiles"));
    const QStringList mounts = unit(QStringLiteral("RequiresMountsFor")).value(0).split(QLatin1Char(' '));
    QVERIFY(mounts.size() >= 4);
    for (const QString &folder : mounts)
        QVERIFY2(made.contains(QStringLiteral("\nd %1 0755 quvera quvera -\n").arg(folder)), qPrintable(folder));
    const QStringList settings = unit(QStringLiteral("EnvironmentFile"));
    QCOMPARE(settings, QStringList { QStringLiteral("-/etc/quvera/board.conf") });
    QVERIFY(text(kDebian + QStringLiteral("quvera.postinst"))
                .contains(QStringLiteral("cp --remove-destination /usr/share/quvera/board.conf ")
                          + settings.first().mid(1)));
}

void TstPackaging::serviceStartsWhatUpdatesInstall()
{
    const QString folder = caught(text(QStringLiteral("packaging/update/board.h")),
                                  QStringLiteral("kSoftwareFolder\\[\\] = \"([^\"]+)\""))
                               .value(0);
    QVERIFY(folder.startsWith(QLatin1Char('/')));
    QCOMPARE(unit(QStringLiteral("ExecStart")), QStringList { folder + QStringLiteral("/current/bin/quvera") });
    QVERIFY(unit(QStringLiteral("ReadWritePaths")).value(0).split(QLatin1Char(' ')).contains(folder));
    const QString postinst = text(kDebian + QStringLiteral("quvera.postinst"));
    QVERIFY(postinst.contains(QStringLiteral("\ncd %1\n").arg(folder)));
    QVERIFY(postinst.contains(QLatin1String("mv -fT .current current")));
}

void TstPackaging::rightsNameTheFilesOfTheBoard()
{
    QString code;
    for (const char *folder : { "src/board", "src/device", "src/platform/target.cpp" }) {
        const QString path = QLatin1String(folder);
        const QStringList files
            = path.endsWith(QLatin1String(".cpp")) ? QStringList { path } : SourceText::sources(path);
        for (const QString &file : files)
            code += SourceText::code(file);
    }
    const QString rules = text(kUdev);
    // The processor's node.
    const QStringList nodes = caught(code, QStringLiteral("path\\(QStringLiteral\\(\"/dev/([^\"]+)\""));
    QCOMPARE(nodes.size(), 1);
    QVERIFY2(rules.contains(QStringLiteral("KERNEL==\"%1\", GROUP=").arg(nodes.first())), qPrintable(nodes.first()));
    QVERIFY(text(kUnit).contains(QStringLiteral("\nDeviceAllow=/dev/%1 rw\n").arg(nodes.first())));
    // The kernel's files of lines and light that it writes.
    const QString script = text(kRights);
    int files = 0;
    for (const QString &file : caught(code, QStringLiteral("\"/sys/class/([a-z]+/[^\"]+/[a-z]+)\""))) {
        if (file.startsWith(QLatin1String("net/"))) // read only
            continue;
        QVERIFY2(script.contains(QStringLiteral("\"$system/%1\"").arg(QString(file).replace("%1", "$line"))),
                 qPrintable(file));
        ++files;
    }
    QVERIFY2(files >= 4, qPrintable(QString::number(files)));
    const auto numbers = [](const QString &list) { return list.simplified().remove(QLatin1Char(',')); };
    const QStringList lines
        = caught(text(QStringLiteral("src/platform/deskroot.cpp")), QStringLiteral("kGpioLines\\[\\] = \\{([^}]+)\\}"));
    QCOMPARE(lines.size(), 1);
    QCOMPARE(caught(script, QStringLiteral("^for line in ([0-9 ]+); do$")), QStringList { numbers(lines.first()) });
}

void TstPackaging::rightsAreGivenToTheProgramsGroup()
{
    QTemporaryDir root;
    const QString system = root.path() + QStringLiteral("/sys/class/");
    const auto make = [&system](const char *name) {
        QDir().mkpath(QFileInfo(system + QLatin1String(name)).path());
        QFile file(system + QLatin1String(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    };
    for (const char *name :
         { "gpio/export", "gpio/gpio48/direction", "gpio/gpio48/value", "backlight/backlight/brightness" })
        make(name);
    QProcess script;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QUVERA_ROOT"), root.path());
    script.setProcessEnvironment(environment);
    script.start(kTop + QLatin1Char('/') + kRights, { QString::number(::getgid()) });
    QVERIFY(script.waitForFinished(-1));
    QCOMPARE(script.exitCode(), 0);
    for (const char *name : { "gpio/gpio48/direction", "gpio/gpio48/value", "backlight/backlight/brightness" })
        QVERIFY2(QFile::permissions(system + QLatin1String(name)) & QFile::WriteGroup, name);
    QVERIFY(!(QFile::permissions(system + QStringLiteral("gpio/export")) & QFile::WriteGroup));
    QCOMPARE(read(system + QStringLiteral("gpio/export")), QString("117\n")); // the last line that was missing

    // A machine without such files, as a container, is none of its business.
    QVERIFY(QDir(system).removeRecursively());
    script.start();
    QVERIFY(script.waitForFinished(-1));
    QCOMPARE(script.exitCode(), 0);
}

void TstPackaging::userIsTheSameEverywhere()
{
    const QString user = unit(QStringLiteral("User")).value(0);
    QVERIFY(!user.isEmpty());
    QVERIFY(text(kDebian + QStringLiteral("quvera.sysusers")).contains(QStringLiteral("\nu %1 - ").arg(user)));
    QVERIFY(text(QStringLiteral("packaging/board/50-quvera.rules"))
                .contains(QStringLiteral("subject.user === \"%1\"").arg(user)));
    QVERIFY(text(kDebian + QStringLiteral("quvera.postinst")).contains(QStringLiteral("runuser -u %1 --").arg(user)));
    QCOMPARE(caught(text(kUdev), QStringLiteral("GROUP=\"([a-z]+)\"")), QStringList { user });
    QVERIFY(text(QStringLiteral("packaging/board/quvera-board.service"))
                .contains(QStringLiteral("\nExecStart=/usr/lib/quvera/scripts/board-rights %1\n").arg(user)));
    const QString page = text(QStringLiteral("docs/board.md"));
    QVERIFY(page.contains(QStringLiteral("as the user `%1`").arg(user)));
    // Its rights are those that the page lists, and the commands that it calls get no others.
    const QStringList rights = unit(QStringLiteral("AmbientCapabilities")).value(0).split(QLatin1Char(' '));
    QCOMPARE(rights.size(), 4);
    for (const QString &right : rights)
        QVERIFY2(page.contains(QLatin1Char('`') + right + QLatin1Char('`')), qPrintable(right));
    QCOMPARE(unit(QStringLiteral("CapabilityBoundingSet")), unit(QStringLiteral("AmbientCapabilities")));
}

void TstPackaging::scriptsThatTheProgramCallsAreOnItsPath()
{
    QSet<QString> called;
    const QStringList sources = SourceText::sources(QStringLiteral("src"));
    for (const QString &source : sources) {
        for (const QString &name : caught(SourceText::code(source), QStringLiteral("[\" ;]([a-z0-9_]+\\.sh)[\" ;]")))
            called << name;
    }
    QSet<QString> installed;
    QString folder;
    for (const QStringList &row : rows(kDebian + QStringLiteral("quvera.install"))) {
        if (!row.first().endsWith(QLatin1String(".sh")))
            continue;
        installed << QFileInfo(row.first()).fileName();
        folder = QLatin1Char('/') + row.at(1);
        QVERIFY2(QFileInfo(kTop + QLatin1Char('/') + row.first()).isExecutable(), qPrintable(row.first()));
    }
    QVERIFY(called.size() >= 2);
    QCOMPARE(installed, called);
    QVERIFY(text(kUnit).contains(QStringLiteral("\nEnvironment=PATH=%1:").arg(folder)));
}

void TstPackaging::serviceWaitsForTheNodeButNotForEver()
{
    const QStringList nodes = caught(text(kUdev), QStringLiteral("^KERNEL==\"([a-z]+)\", .*TAG\\+=\"systemd\"$"));
    QCOMPARE(nodes.size(), 1);
    const QString device = QStringLiteral("dev-%1.device").arg(nodes.first());
    QVERIFY(unit(QStringLiteral("Wants")).value(0).split(QLatin1Char(' ')).contains(device));
    QVERIFY(unit(QStringLiteral("After")).value(0).split(QLatin1Char(' ')).contains(device));
    QVERIFY(unit(QStringLiteral("Requires")).isEmpty() && unit(QStringLiteral("BindsTo")).isEmpty());
    QVERIFY(
        text(kDebian + QStringLiteral("quvera.install"))
            .contains(QStringLiteral("\npackaging/board/processor-node.conf lib/systemd/system/%1.d\n").arg(device)));
    QCOMPARE(caught(text(QStringLiteral("packaging/board/processor-node.conf")),
                    QStringLiteral("^\\[Unit\\]\nJobRunningTimeoutSec=([0-9]+s)$")),
             QStringList { QStringLiteral("5s") });
}

void TstPackaging::commandsThatTheProgramCallsAreBrought()
{
    // The table of the page: commands, and the package that brings them.
    QHash<QString, QString> brings;
    for (const QString &row : caught(text(QStringLiteral("docs/board.md")), QStringLiteral("^\\| (`[^\n]+) \\|$"))) {
        const QStringList cells = row.split(QStringLiteral(" | "));
        if (cells.size() == 3 && !cells.first().contains(QLatin1String("/lib/"))) {
            for (const QString &command : caught(cells.first(), QStringLiteral("`([^`]+)`")))
                brings.insert(command, cells.at(1));
        }
    }
    int seen = 0;
    for (const QString &source : SourceText::sources(QStringLiteral("src"))) {
        const QStringList lines = caught(
            SourceText::code(source),
            QStringLiteral(
                "(?:shell|shellOutput|\\brun|kApply =)\\s*\\(?\\s*QStringLiteral\\(\"((?:[^\"\\\\]|\\\\.)+)\"\\)"));
        for (const QString &line : lines) {
            for (const QString &command : line.split(QRegularExpression(QStringLiteral("[|;]")))) {
                QStringList words = command.simplified().split(QLatin1Char(' '));
                words = words.mid(0, words.first() == QLatin1String("xargs") ? 2 : 1); // which calls another
                for (const QString &word : qAsConst(words))
                    QVERIFY2(brings.contains(word), qPrintable(source + QLatin1String(": ") + word));
                seen += words.size();
            }
        }
    }
    QVERIFY2(seen >= 14, qPrintable(QString::number(seen)));
    const QString control = text(kDebian + QStringLiteral("control"));
    const QStringList wanted = caught(control, QStringLiteral("^(?:Depends|Recommends): ([^\n]+)$"))
                                   .join(QStringLiteral(", "))
                                   .split(QStringLiteral(", "));
    for (const QString &package : qAsConst(brings)) {
        if (package != QLatin1String("`quvera`") && !package.endsWith(QLatin1String(", essential")))
            QVERIFY2(wanted.contains(QString(package).remove(QLatin1Char('`')).remove(QStringLiteral(", recommended"))),
                     qPrintable(package));
    }
}

void TstPackaging::clientOfALostNetworkIsFoundAndEnded()
{
    QString line = caught(SourceText::code(QStringLiteral("src/board/wifi.cpp")),
                          QStringLiteral("QStringLiteral\\(\"(ps (?:[^\"\\\\]|\\\\.)+)\"\\)"))
                       .value(0)
                       .replace(QLatin1String("\\\""), QLatin1String("\""));
    // An interface of this test alone: what it ends is its own.
    const QString interface = QStringLiteral("wlan%1").arg(::getpid());
    QVERIFY(line.contains(QLatin1String("udhcpc -i wlan0")));
    line.replace(QLatin1String("wlan0"), interface);
    QProcess client;
    client.start(QStringLiteral("/bin/bash"),
                 { QStringLiteral("-c"), QStringLiteral("exec -a 'udhcpc -i %1' sleep 1000").arg(interface) });
    QVERIFY(client.waitForStarted());
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PATH"), kTop + QStringLiteral("/packaging/board:/usr/bin:/bin"));
    shell.setProcessEnvironment(environment);
    shell.start(QStringLiteral("/bin/sh"), { QStringLiteral("-c"), line });
    QVERIFY(shell.waitForFinished()); // ended by itself: its own command line holds the words, too
    QVERIFY(client.waitForFinished());
    QCOMPARE(client.exitStatus(), QProcess::CrashExit);
    QCOMPARE(client.exitCode(), 9);
    QVERIFY(rows(kDebian + QStringLiteral("quvera.install"))
                .contains({ QStringLiteral("packaging/board/ps"), QStringLiteral("usr/lib/quvera/scripts") }));
}

void TstPackaging::comingDisksAreShownWhereTheProgramLooks()
{
    const QString media = caught(SourceText::code(QStringLiteral("src/storage/udiskstorage.cpp")),
                                 QStringLiteral("mediaPath\\(\\)\n\\{\n *return QStringLiteral\\(\"([^\"]+)\"\\)"))
                              .value(0);
    QVERIFY(!media.isEmpty());
    QVERIFY(text(kDisk).contains(QStringLiteral("\nfolder=${QUVERA_ROOT:-}%1$name\n").arg(media)));
    // From the disk to the unit, from the unit to the script, and each in its place.
    const QString rule = text(QStringLiteral("packaging/board/80-quvera-usb.rules"));
    QVERIFY(rule.contains(QLatin1String("ENV{ID_BUS}==\"usb\", ENV{ID_FS_USAGE}==\"filesystem\"")));
    QVERIFY(rule.contains(QLatin1String("ENV{SYSTEMD_WANTS}+=\"quvera-usb@%k.service\"")));
    const QString service = text(QStringLiteral("packaging/board/quvera-usb@.service"));
    const QString call
        = QStringLiteral("=/usr/lib/quvera/scripts/usb-disk %1 %I ") + unit(QStringLiteral("User")).value(0);
    QVERIFY(service.contains(QLatin1String("\nExecStart") + call.arg(QStringLiteral("mount")) + QLatin1Char('\n')));
    QVERIFY(service.contains(QLatin1String("\nExecStop") + call.arg(QStringLiteral("unmount")) + QLatin1Char('\n')));
    QVERIFY(service.contains(QLatin1String("\nBindsTo=dev-%i.device\n")));
    const QVector<QStringList> placed = rows(kDebian + QStringLiteral("quvera.install"));
    QVERIFY(placed.contains({ kDisk, QStringLiteral("usr/lib/quvera/scripts") }));
    QVERIFY(
        placed.contains({ QStringLiteral("packaging/board/80-quvera-usb.rules"), QStringLiteral("lib/udev/rules.d") }));
    QVERIFY(placed.contains(
        { QStringLiteral("packaging/board/quvera-usb@.service"), QStringLiteral("lib/systemd/system") }));
}

void TstPackaging::diskIsTheUsersToWrite_data()
{
    QTest::addColumn<QString>("asked");
    const QString hard = QStringLiteral("nosuid,nodev,noexec,noatime"), own = QStringLiteral(",uid=7,gid=7,umask=0022");
    QTest::newRow("vfat") << QStringLiteral("vfat -o ") + hard + own + QStringLiteral(",utf8,flush");
    QTest::newRow("exfat") << QStringLiteral("exfat -o ") + hard + own;
    QTest::newRow("ntfs") << QStringLiteral("ntfs3 -o ") + hard + own;
    QTest::newRow("ext4") << QStringLiteral("ext4 -o ") + hard;
}

void TstPackaging::diskIsTheUsersToWrite()
{
    QFETCH(QString, asked);
    BoardCommands board(kDisk);
    board.answer("findmnt", "exit 1");
    board.answer("blkid", QByteArray("echo ") + QTest::currentDataTag());
    board.answer("id", "echo 7");
    board.answer("mount");
    board.answer("umount");
    QCOMPARE(board.run({ QStringLiteral("mount"), QStringLiteral("sda1"), QStringLiteral("quvera") }), 0);
    const QString folder = board.root() + QStringLiteral("/run/media/sda1");
    QCOMPARE(board.noted(), QStringLiteral("mount -t %1 /dev/sda1 %2\n").arg(asked, folder));
    QVERIFY(QDir(folder).exists());
    // It goes, even when somebody still reads it.
    board.answer("umount", "[ \"$1\" = --lazy ]");
    QCOMPARE(board.run({ QStringLiteral("unmount"), QStringLiteral("sda1"), QStringLiteral("quvera") }), 0);
    QVERIFY(board.noted().endsWith(QStringLiteral("umount --lazy %1\n").arg(folder)));
    QVERIFY(!QDir(folder).exists());
}

void TstPackaging::diskThatCannotBeShownLeavesNothing_data()
{
    QTest::addColumn<QByteArray>("elsewhere");
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("mounted");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("result");
    const QByteArray no = "exit 1", fat = "echo vfat", yes = "exit 0";
    QTest::newRow("mounting fails") << no << fat << no << "sda1" << 1;
    QTest::newRow("no known file system") << no << QByteArray("echo swap") << yes << "sda1" << 1;
    QTest::newRow("nothing on it") << no << QByteArray("exit 2") << yes << "sda1" << 1;
    QTest::newRow("in use elsewhere") << QByteArray("echo /mnt/storage") << fat << yes << "sda1" << 0;
    QTest::newRow("no name of a partition") << no << fat << yes << "../sda1" << 2;
}

void TstPackaging::diskThatCannotBeShownLeavesNothing()
{
    QFETCH(QByteArray, elsewhere);
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, mounted);
    QFETCH(QString, name);
    QFETCH(int, result);
    BoardCommands board(kDisk);
    board.answer("findmnt", elsewhere);
    board.answer("blkid", kind);
    board.answer("id", "echo 7");
    board.answer("mount", mounted);
    QCOMPARE(board.run({ QStringLiteral("mount"), name, QStringLiteral("quvera") }), result);
    QCOMPARE(QDir(board.root() + QStringLiteral("/run/media")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries),
             QStringList());
    QCOMPARE(board.noted().contains(QLatin1String("mount")), mounted == "exit 1");
}

void TstPackaging::boardSettingsAreKnown()
{
    // Settings of screen and keys are the toolkit's: its frame buffer knows their names and options.
    const QString frameBuffer
        = QLibraryInfo::location(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms/libqlinuxfb.so");
    QFile plugin(frameBuffer);
    QVERIFY2(plugin.open(QIODevice::ReadOnly), qPrintable(frameBuffer));
    const QByteArray known = plugin.readAll();
    QSet<QString> set;
    for (const QStringList &row : rows(QStringLiteral("packaging/board/board.conf"))) {
        QCOMPARE(row.size(), 1);
        const QString name = row.first().section(QLatin1Char('='), 0, 0);
        const QString value = row.first().section(QLatin1Char('='), 1);
        QVERIFY2(!set.contains(name), qPrintable(name));
        set << name;
        if (name == QLatin1String("QT_QPA_PLATFORM")) {
            QCOMPARE(value.section(QLatin1Char(':'), 0, 0), QString("linuxfb"));
            for (const QString &option : value.split(QLatin1Char(':')).mid(1))
                QVERIFY2(known.contains(option.section(QLatin1Char('='), 0, 0).toLatin1()), qPrintable(option));
        } else {
            QVERIFY2(known.contains(name.toLatin1()), qPrintable(name));
        }
    }
    QVERIFY(set.contains(QStringLiteral("QT_QPA_PLATFORM")));
    QVERIFY(set.size() >= 3);
}

QTEST_GUILESS_MAIN(TstPackaging)
#include "tst_packaging.moc"
