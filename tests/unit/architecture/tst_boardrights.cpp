// What of the board runs as root takes nothing from the instrument's user: no program, no setting, no line of a
// description. packaging/debian/inside.sh tries the same in a Debian that runs.
#include "unit/architecture/packagetext.h"

#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace PackageText;

namespace {

const QString kBoard = QStringLiteral("packaging/board/");
const QString kWired = kBoard + QStringLiteral("wired-network");

/// Folders that are the user's, and those that are everybody's.
QStringList foldersOfTheUser()
{
    QStringList folders { QStringLiteral("/tmp"), QStringLiteral("/home"), QStringLiteral("/run/media") };
    for (const QStringList &row : rows(kDebian + QStringLiteral("quvera.tmpfiles"))) {
        if (row.value(3) == QLatin1String("quvera"))
            folders << row.at(1);
    }
    for (const QString &state : unit(QStringLiteral("StateDirectory")))
        folders << QStringLiteral("/var/lib/") + state;
    return folders;
}

bool isOfTheUser(const QString &path)
{
    for (const QString &folder : foldersOfTheUser()) {
        if (path == folder || path.startsWith(folder + QLatin1Char('/')))
            return true;
    }
    return false;
}

/// Units and what is added to units of others.
QStringList unitFiles()
{
    QStringList files { kUnit };
    const QDir board(kTop + QLatin1Char('/') + kBoard);
    for (const QString &name : board.entryList({ QStringLiteral("*.service"), QStringLiteral("*.conf") })) {
        if (text(kBoard + name).contains(QLatin1String("\n[Service]\n")))
            files << kBoard + name;
    }
    return files;
}

/// A command of a unit and whether it runs as root.
struct Command
{
    QString program;
    bool root;
};

QVector<Command> commands(const QString &unitText)
{
    QVector<Command> found;
    const bool ofRoot = !unitText.contains(QLatin1String("\nUser="));
    for (const QString &line : caught(unitText, QStringLiteral("^Exec[A-Za-z]+=([^\n]+)$"))) {
        const int start = line.indexOf(QLatin1Char('/'));
        const QString marks = line.left(start);
        found.append({ line.mid(start).section(QLatin1Char(' '), 0, 0),
                       ofRoot || marks.contains(QLatin1Char('+')) || marks.contains(QLatin1Char('!')) });
    }
    return found;
}

/// The scripts that make the description of eth0, below a root of their own.
class WiredBoard
{
public:
    WiredBoard() : m_commands(kWired)
    {
        QDir().mkpath(m_commands.root() + QStringLiteral("/mnt/userfs/config"));
        QDir().mkpath(folder());
        m_commands.answer("setpriv", "while [ \"$1\" != dd ]; do shift; done\nexec \"$@\"");
    }
    void set(const QByteArray &content) { write(settings(), content); }
    static void write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    int run(const char *interface = "eth0")
    {
        return m_commands.run({ QLatin1String(interface), QStringLiteral("quvera") });
    }
    QString root() const { return m_commands.root(); }
    QString settings() const { return root() + QStringLiteral("/mnt/userfs/config/eth0.conf"); }
    QString folder() const { return root() + QStringLiteral("/etc/network/interfaces.d"); }
    QString file() const { return folder() + QStringLiteral("/quvera"); }
    QString description() const { return read(file()); }
    BoardCommands &commands() { return m_commands; }

private:
    BoardCommands m_commands;
};

const QString kByDhcp = QStringLiteral("auto eth0\niface eth0 inet dhcp\n");
const QString kUsual = QStringLiteral("auto eth0\niface eth0 inet static\n    address 192.168.2.100\n"
                                      "    netmask 255.255.255.0\n    gateway 192.168.2.1\n");

} // namespace

class TstBoardRights : public QObject
{
    Q_OBJECT

private slots:
    void foldersOfTheUserAreKnown();
    void nothingThatRunsAsRootLiesWhereTheUserWrites();
    void noCommandOfRootGetsTheProgramsEnvironment();
    void filesAndLinksOfThePackageLeadNowhereTheUserWrites();
    void scriptsOfThePackageWorkAsTheUserInTheUsersFolders();
    void userIsInNoGroupThatOthersTrust();
    void linesAndLightAreGivenAheadOfTheProgram();
    void networkIsDescribedByRootWheneverItStarts();
    void descriptionIsMadeOfTheSettings_data();
    void descriptionIsMadeOfTheSettings();
    void withoutSettingsTheDescriptionStays_data();
    void withoutSettingsTheDescriptionStays();
    void settingsAreReadWithTheRightsOfTheUser();
    void descriptionTakesThePlaceOfALink();
    void onlyAnInterfaceIsDescribed();
    void figuresOfTheBoardArePrintedByTheBench();
};

void TstBoardRights::foldersOfTheUserAreKnown()
{
    for (const char *folder : { "/mnt/userfs/config", "/mnt/storage", "/opt/quvera", "/var/lib/quvera" })
        QVERIFY2(isOfTheUser(QLatin1String(folder)), folder);
    QVERIFY(isOfTheUser(QStringLiteral("/opt/quvera/current/bin/quvera")));
    // The key of updates, screen and keys are the maker's.
    QVERIFY(!isOfTheUser(QStringLiteral("/etc/quvera/board.conf")));
    QVERIFY(rows(kDebian + QStringLiteral("quvera.tmpfiles"))
                .contains({ "d", "/etc/quvera", "0755", "root", "root", "-" }));
    for (const QString &path : unit(QStringLiteral("ReadWritePaths")).value(0).split(QLatin1Char(' ')))
        QVERIFY2(!path.startsWith(QLatin1String("/etc")) && !path.startsWith(QLatin1String("/usr")), qPrintable(path));
}

void TstBoardRights::nothingThatRunsAsRootLiesWhereTheUserWrites()
{
    int ofRoot = 0, ofTheUser = 0;
    for (const QString &path : unitFiles()) {
        for (const Command &command : commands(text(path))) {
            if (command.root)
                QVERIFY2(command.program.startsWith(QLatin1String("/usr/lib/quvera/scripts/")),
                         qPrintable(path + QLatin1String(": ") + command.program));
            ++(command.root ? ofRoot : ofTheUser);
        }
    }
    QVERIFY2(ofRoot >= 4, qPrintable(QString::number(ofRoot)));
    QCOMPARE(ofTheUser, 1);
    QVERIFY(!isOfTheUser(QStringLiteral("/usr/lib/quvera/scripts/")));
    // Each is a script of the package that this test looks at, and calls nothing by a path of the user's.
    for (const char *name : { "board-rights", "wired-network", "usb-disk" }) {
        const QString script = text(kBoard + QLatin1String(name));
        QVERIFY2(script.startsWith(QLatin1String("#!/bin/sh\n")), name);
        for (const QString &path : caught(script, QStringLiteral("^ *(/[^ \n]+)")))
            QVERIFY2(!isOfTheUser(path), qPrintable(path));
        QVERIFY2(!script.contains(QRegularExpression(QStringLiteral("(^|[;&|] *)(\\.|source|eval) "),
                                                     QRegularExpression::MultilineOption)),
                 name);
    }
}

void TstBoardRights::noCommandOfRootGetsTheProgramsEnvironment()
{
    int seen = 0;
    for (const QString &path : unitFiles()) {
        const QString all = text(path);
        for (const Command &command : commands(all)) {
            if (!command.root)
                continue;
            ++seen;
            const QString what = path + QLatin1String(": ") + command.program;
            QVERIFY2(!all.contains(QLatin1String("\nEnvironmentFile=")), qPrintable(what));
            for (const QString &value : caught(all, QStringLiteral("^[A-Z][A-Za-z]+=[-+!@:]*(/[^ \n]*)")))
                QVERIFY2(!isOfTheUser(value), qPrintable(what + QLatin1Char(' ') + value));
        }
    }
    QVERIFY2(seen >= 4, qPrintable(QString::number(seen)));
    // What the service itself reads is root's, too.
    for (const QString &file : unit(QStringLiteral("EnvironmentFile")))
        QVERIFY2(!isOfTheUser(QString(file).remove(QLatin1Char('-'))), qPrintable(file));
}

void TstBoardRights::filesAndLinksOfThePackageLeadNowhereTheUserWrites()
{
    int seen = 0;
    for (const char *list : { "quvera.links", "quvera.install" }) {
        for (const QStringList &row : rows(kDebian + QLatin1String(list))) {
            for (const QString &end : row)
                QVERIFY2(!isOfTheUser(QLatin1Char('/') + end), qPrintable(row.join(QLatin1Char(' '))));
            ++seen;
        }
    }
    QVERIFY2(seen >= 12, qPrintable(QString::number(seen)));
}

void TstBoardRights::scriptsOfThePackageWorkAsTheUserInTheUsersFolders()
{
    static const QRegularExpression changes(
        QStringLiteral("\\b(cp|mv|ln|install|mkdir|touch|tee|ch(own|mod|grp)|setfacl)\\b|>"));
    static const QRegularExpression path(QStringLiteral("(?<![\\w}])/[a-z][\\w/.$*-]*"));
    int seen = 0;
    for (const char *name : { "quvera.postinst", "quvera.prerm", "quvera.postrm" }) {
        QString script = text(kDebian + QLatin1String(name));
        // What runs as the user stands between the quotes of one variable.
        script.remove(
            QRegularExpression(QStringLiteral("^bring_version='\n.*?\n'$"),
                               QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption));
        for (QString line : script.split(QLatin1Char('\n'))) {
            line.remove(QStringLiteral("2>/dev/null"));
            if (line.trimmed().startsWith(QLatin1Char('#')) || !line.contains(changes))
                continue;
            ++seen;
            if (line.contains(QLatin1String(" setsid --wait runuser -u "))
                && line.contains(QLatin1String("</dev/null")))
                continue;
            auto paths = path.globalMatch(line);
            while (paths.hasNext())
                QVERIFY2(!isOfTheUser(paths.next().captured()), qPrintable(QLatin1String(name) + line));
        }
    }
    QVERIFY2(seen >= 4, qPrintable(QString::number(seen)));
    // Other processes of the user reach no terminal of root's through them.
    for (const QString &path : { kDebian + QStringLiteral("quvera.postinst"), kWired }) {
        const QString script = text(path);
        const int calls = script.count(QRegularExpression(QStringLiteral("\\b(runuser|setpriv) -")));
        QVERIFY2(calls > 0
                     && script.count(QRegularExpression(QStringLiteral("setsid --wait (runuser|setpriv) -"))) == calls,
                 qPrintable(path));
    }
    // Folders within folders of the user are the user's to make.
    const QString postinst = text(kDebian + QStringLiteral("quvera.postinst"));
    QVERIFY(postinst.contains(QLatin1String(
        "\n        /mnt/userfs/*) setsid --wait runuser -u \"$user\" -- mkdir -p \"$folder\" </dev/null")));
    for (const QStringList &row : rows(kDebian + QStringLiteral("quvera.tmpfiles"))) {
        const QString folder = row.value(1);
        QVERIFY2(folder.startsWith(QLatin1String("/mnt/userfs/")) || !isOfTheUser(QFileInfo(folder).path()),
                 qPrintable(folder));
    }
}

void TstBoardRights::userIsInNoGroupThatOthersTrust()
{
    QStringList groups = unit(QStringLiteral("SupplementaryGroups")).value(0).split(QLatin1Char(' '));
    groups.sort();
    QCOMPARE(groups, (QStringList { "input", "video" })); // screen and keys
    const QString made = text(kDebian + QStringLiteral("quvera.sysusers"));
    QCOMPARE(caught(made, QStringLiteral("^([a-z]) [^\n]+$")), QStringList { QStringLiteral("u") });
    QVERIFY(text(QStringLiteral("docs/board.md")).contains(QLatin1String("GROUP=quvera`")));
}

void TstBoardRights::linesAndLightAreGivenAheadOfTheProgram()
{
    const QString name = QStringLiteral("quvera-board.service");
    const QString board = text(kBoard + name);
    // Wanted, not required: a program that was started without it still measures, and is started anew after a crash.
    for (const char *key : { "Wants", "After" })
        QVERIFY2(unit(QLatin1String(key)).value(0).split(QLatin1Char(' ')).contains(name), key);
    QVERIFY(board.contains(QLatin1String("\nType=oneshot\n")));
    QVERIFY(!board.contains(QLatin1String("RemainAfterExit"))); // it runs each time
    QVERIFY(board.contains(QLatin1String("\nStartLimitIntervalSec=0\n")));
    QVERIFY(board.contains(QLatin1String("\nCapabilityBoundingSet=CAP_CHOWN\n")));
    QVERIFY(rows(kDebian + QStringLiteral("quvera.install"))
                .contains({ kBoard + name, QStringLiteral("lib/systemd/system") }));
}

void TstBoardRights::networkIsDescribedByRootWheneverItStarts()
{
    const QString interface = caught(SourceText::code(QStringLiteral("src/user/userlanpage.cpp")),
                                     QStringLiteral("\"networking\\.sh ([a-z0-9]+);/etc/init\\.d/networking restart"))
                                  .value(0);
    const QString settings = caught(SourceText::code(QStringLiteral("src/settings/netconfig.cpp")),
                                    QStringLiteral("filePath\\(\\)\n\\{\n *return QStringLiteral\\(\"([^\"]+)\""))
                                 .value(0);
    QCOMPARE(settings, QStringLiteral("/mnt/userfs/config/%1.conf").arg(interface));
    QVERIFY(text(kWired).contains(QLatin1String("\nsettings=${QUVERA_ROOT:-}/mnt/userfs/config/$interface.conf\n")));
    // A start goes on when the description cannot be made.
    const QString added = text(kBoard + QStringLiteral("wired-network.conf"));
    QVERIFY(added.contains(
        QStringLiteral("\n[Service]\nExecStartPre=-/usr/lib/quvera/scripts/wired-network %1 quvera\n").arg(interface)));
    const QVector<QStringList> placed = rows(kDebian + QStringLiteral("quvera.install"));
    QVERIFY(placed.contains({ kWired, QStringLiteral("usr/lib/quvera/scripts") }));
    QVERIFY(placed.contains(
        { kBoard + QStringLiteral("wired-network.conf"), QStringLiteral("lib/systemd/system/networking.service.d") }));
    QVERIFY(QFileInfo(kTop + QLatin1Char('/') + kWired).isExecutable());
    // It goes with the package.
    QVERIFY(text(kDebian + QStringLiteral("quvera.postrm"))
                .contains(QLatin1String("rm -f /etc/network/interfaces.d/quvera\n")));
}

void TstBoardRights::descriptionIsMadeOfTheSettings_data()
{
    QTest::addColumn<QByteArray>("settings");
    QTest::addColumn<QString>("description");
    const QString own = QStringLiteral("auto eth0\niface eth0 inet static\n    address 10.0.0.7\n"
                                       "    netmask 255.0.0.0\n    gateway 10.0.0.1\n");
    const QByteArray ownSettings = "USE_DHCP=0\nIPADDR=10.0.0.7\nNETMASK=255.0.0.0\nGATEWAY=10.0.0.1\n";
    const QString address = QStringLiteral("    hwaddress ether 6E:69:75:53:01:0A\n");
    QTest::newRow("DHCP") << QByteArray("USE_DHCP=1\nIPADDR=10.0.0.7\n") << kByDhcp;
    QTest::newRow("DHCP where nothing is said") << QByteArray("NETWORK=1.2.3.0\n") << kByDhcp;
    QTest::newRow("own address") << ownSettings << own;
    QTest::newRow("blanks around") << QByteArray("USE_DHCP = 0\nIPADDR =10.0.0.7\nNETMASK= 255.0.0.0\n"
                                                 "GATEWAY   =   10.0.0.1\n")
                                   << own;
    QTest::newRow("lines of another system") << QByteArray(ownSettings).replace("\n", "\r\n") << own;
    QTest::newRow("the last line counts") << "IPADDR=1.2.3.4\n" + ownSettings << own;
    QTest::newRow("hardware address") << ownSettings + "MAC=6E:69:75:53:01:0A\n" << own + address;
    QTest::newRow("defaults") << QByteArray("USE_DHCP=0\n") << kUsual;
    QTest::newRow("commands behind values")
        << QByteArray("USE_DHCP=0\nIPADDR=10.0.0.7;touch x\nNETMASK=255.0.0.0 pre-up touch x\nGATEWAY=$(touch x)\n"
                      "MAC=6E:69:75:53:01:0A up touch x\n")
        << kUsual;
    QTest::newRow("lines of a description")
        << QByteArray("USE_DHCP=0\n    pre-up touch x\nup touch x\niface lo:1 inet loopback\nsource /tmp/x\n")
        << kUsual;
    QTest::newRow("separators of other kinds")
        << QByteArray("USE_DHCP=0\nIPADDR=10.0.0.7\vup x\nNETMASK=255.0.0.0\fup\n"
                      "GATEWAY=10.0.0.1\\\nMAC=6E:69:75:53:01:0A\302\205up x\n")
        << kUsual;
    QTest::newRow("fields beyond 255") << QByteArray(
        "USE_DHCP=0\nIPADDR=10.0.0.256\nNETMASK=999.0.0.0\nGATEWAY=1.2.3\n")
                                       << kUsual;
    QTest::newRow("yes or no that is neither") << QByteArray("USE_DHCP=0 up touch x\n") << kByDhcp;
    QTest::newRow("zeroes within") << QByteArray("USE_DHCP=0\nIPADDR=10.0.0.7\0;x\n", 29) << kUsual;
    QTest::newRow("more than it reads") << ownSettings + QByteArray(100000, '#') + "\nIPADDR=1.1.1.1\n" << own;
}

void TstBoardRights::descriptionIsMadeOfTheSettings()
{
    QFETCH(QByteArray, settings);
    QFETCH(QString, description);
    WiredBoard board;
    board.set(settings);
    WiredBoard::write(board.file(), "what was there\n");
    QCOMPARE(board.run(), 0);
    QCOMPARE(board.description(), description);
    QCOMPARE(QDir(board.folder()).entryList(QDir::Files | QDir::Hidden), QStringList { QStringLiteral("quvera") });
    QVERIFY(!(QFile::permissions(board.file()) & (QFile::WriteGroup | QFile::WriteOther | QFile::ExeOwner)));
}

void TstBoardRights::withoutSettingsTheDescriptionStays_data()
{
    QTest::addColumn<QString>("kind");
    for (const char *kind : { "missing", "empty", "a folder", "a pipe", "a link to a pipe", "a link to nothing" })
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TstBoardRights::withoutSettingsTheDescriptionStays()
{
    QFETCH(QString, kind);
    WiredBoard board;
    const QString aside = board.root() + QStringLiteral("/aside");
    if (kind == QLatin1String("empty"))
        board.set({});
    else if (kind == QLatin1String("a folder"))
        QVERIFY(QDir().mkpath(board.settings()));
    else if (kind == QLatin1String("a pipe"))
        QCOMPARE(::mkfifo(QFile::encodeName(board.settings()).constData(), 0600), 0);
    else if (kind == QLatin1String("a link to a pipe"))
        QCOMPARE(::mkfifo(QFile::encodeName(aside).constData(), 0600), 0);
    if (kind.startsWith(QLatin1String("a link")))
        QVERIFY(QFile::link(aside, board.settings()));
    QCOMPARE(board.run(), 0); // nothing is waited for
    QVERIFY(!QFileInfo::exists(board.file()));
    WiredBoard::write(board.file(), "what was there\n");
    QCOMPARE(board.run(), 0);
    QCOMPARE(board.description(), QStringLiteral("what was there\n"));
}

void TstBoardRights::settingsAreReadWithTheRightsOfTheUser()
{
    WiredBoard board;
    board.set("USE_DHCP=0\n");
    board.commands().answer("setpriv", "exit 1"); // the only way to them
    QCOMPARE(board.run(), 0);
    QVERIFY(!QFileInfo::exists(board.file()));
    const QString how = board.commands().noted();
    for (const char *part : { "setpriv ", "--reuid=quvera ", "--regid=quvera ", "--clear-groups ", "--inh-caps=-all ",
                              "--bounding-set=-all ", "--no-new-privs ", " dd if=" })
        QVERIFY2(how.contains(QLatin1String(part)), part);
    QCOMPARE(text(kWired).count(QLatin1String("$settings")), 1);
}

void TstBoardRights::descriptionTakesThePlaceOfALink()
{
    WiredBoard board;
    board.set("USE_DHCP=1\n");
    const QString elsewhere = board.root() + QStringLiteral("/elsewhere");
    WiredBoard::write(elsewhere, "of others\n");
    QVERIFY(QFile::link(elsewhere, board.file()));
    QCOMPARE(board.run(), 0);
    QVERIFY(!QFileInfo(board.file()).isSymLink());
    QCOMPARE(board.description(), kByDhcp);
    QCOMPARE(read(elsewhere), QStringLiteral("of others\n"));
}

void TstBoardRights::onlyAnInterfaceIsDescribed()
{
    WiredBoard board;
    board.set("USE_DHCP=1\n");
    for (const char *name : { "../eth0", "eth0 up", "eth0\n", "*" })
        QCOMPARE(board.run(name), 2);
    QVERIFY(!QFileInfo::exists(board.file()));
    QVERIFY(board.commands().noted().isEmpty());
}

void TstBoardRights::figuresOfTheBoardArePrintedByTheBench()
{
    QTemporaryDir top;
    const auto printed = [&top] {
        QProcess shell;
        shell.start(QStringLiteral("/bin/bash"),
                    { QStringLiteral("-c"), QStringLiteral("top=$0; . \"$1/packaging/common.sh\"; board_figures"),
                      top.path(), kTop });
        shell.waitForFinished(-1);
        return QString::fromUtf8(shell.readAllStandardOutput());
    };
    const QString without = printed();
    QCOMPARE(without.count(QLatin1Char('\n')), 1);
    QVERIFY2(without.contains(QLatin1String("packaging/armhf/test.sh")), qPrintable(without));
    QVERIFY(QDir().mkpath(top.filePath(QStringLiteral("build/armhf"))));
    WiredBoard::write(top.filePath(QStringLiteral("build/armhf/figures")), "counted on a day\n  to the menu: 7\n");
    QCOMPARE(printed(), QStringLiteral("counted on a day\n  to the menu: 7\n"));
    // Who leaves them, and who prints them.
    QVERIFY(text(QStringLiteral("packaging/armhf/test.sh")).contains(QLatin1String("\n\"$here/figures\"\n")));
    const QString figures = text(QStringLiteral("packaging/armhf/figures"));
    QVERIFY(figures.contains(QLatin1String("$(date -I)")));
    QVERIFY(figures.contains(QLatin1String("\"$(board_figures_file)\"\n")));
    QVERIFY(text(QStringLiteral("bench.sh")).contains(QLatin1String("board_figures;")));
}

QTEST_GUILESS_MAIN(TstBoardRights)
#include "tst_boardrights.moc"
