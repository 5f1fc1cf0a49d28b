#include "instrument.h"
#include "testpaths.h"

#include <QBuffer>
#include <QDir>
#include <QRegularExpression>
#include <QSet>

#include <csignal>

using namespace SystemTest;

/// The tools as a user calls them.
class TstTools : public QObject
{
    Q_OBJECT
private slots:
    void remoteTellsWrongUse_data();
    void remoteTellsWrongUse();
    void wordsThatNoToolKnowsAreWrongUse_data();
    void wordsThatNoToolKnowsAreWrongUse();
    void remoteTellsThatNobodyAnswers();
    void remoteIdentifiesPressesAndSavesTheScreen();
    void pictureWithAFlippedBitIsNotWhole();
    void keyNamesAndNumbersGiveTheRemoteNumber();
    void galleryPicturesTheMenuAndVoltsAmpsHertz();
    void galleryPicturesOneLanguage();
    void stoppedGalleryLeavesNothingBehind_data();
    void stoppedGalleryLeavesNothingBehind();
    void helpIsPrintedByAll_data();
    void helpIsPrintedByAll();
    void programTakesTheOptionsOfTheToolkitOnly_data();
    void programTakesTheOptionsOfTheToolkitOnly();
    void manualsHaveTheOptionsOfTheHelp_data();
    void manualsHaveTheOptionsOfTheHelp();

private:
    struct Result
    {
        int code;
        QByteArray output;
        QByteArray error;
    };
    static Result run(const QString &tool, const QStringList &arguments, const QProcessEnvironment &changes = {})
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(QStringLiteral("QUVERA_REMOTE_PORT")); // the test run's; a user has none
        environment.insert(changes);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(QUVERA_BIN_DIR "/") + tool, arguments);
        process.waitForFinished(240000);
        return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                 process.readAllStandardOutput(), process.readAllStandardError() };
    }
};

void TstTools::remoteTellsWrongUse_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("error");
    QTest::newRow("no command") << QStringList {} << QByteArray("no command given");
    QTest::newRow("unknown command") << QStringList { "dance" } << QByteArray("no command is called \"dance\"");
    QTest::newRow("no key") << QStringList { "key" } << QByteArray("wrong number of arguments for key");
    QTest::newRow("unknown key") << QStringList { "key", "F4", "F13" } << QByteArray("no key is called \"F13\"");
    QTest::newRow("two files") << QStringList { "screen", "a.png", "b.png" }
                               << QByteArray("screen takes one file name");
    QTest::newRow("bad port") << QStringList { "--port", "70000", "identify" } << QByteArray("\"70000\" is no port");
    QTest::newRow("bad time") << QStringList { "--timeout", "soon", "identify" } << QByteArray("times are in ms");
}

void TstTools::remoteTellsWrongUse()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, error);
    const Result result = run(QStringLiteral("quvera-remote"), arguments);
    QCOMPARE(result.code, 2);
    QVERIFY2(result.error.contains(error), result.error);
    QCOMPARE(result.error.count('\n'), 1);
}

void TstTools::wordsThatNoToolKnowsAreWrongUse_data()
{
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("error");
    for (const QString tool : { "quvera-remote", "quvera-gallery", "quvera-panel" }) {
        QTest::addRow("%s, option", qPrintable(tool))
            << tool << QStringList { "--bogus" } << QByteArray("Unknown option 'bogus'");
        if (tool != QLatin1String("quvera-remote")) // its words are commands
            QTest::addRow("%s, word", qPrintable(tool))
                << tool << QStringList { "extra" } << QByteArray("\"extra\" is no option");
    }
    QTest::newRow("quvera-remote, no value")
        << "quvera-remote" << QStringList { "identify", "--port" } << QByteArray("Missing value after '--port'");
}

void TstTools::wordsThatNoToolKnowsAreWrongUse()
{
    QFETCH(QString, tool);
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, error);
    const Result result = run(tool, arguments);
    QCOMPARE(result.code, 2);
    // The toolkit may have complained of its surroundings before.
    QVERIFY2(('\n' + result.error).endsWith('\n' + tool.toUtf8() + ": " + error + "; --help lists the options\n"),
             result.error);
    QCOMPARE(result.output, QByteArray());
}

void TstTools::remoteTellsThatNobodyAnswers()
{
    const QString port = QString::number(DeskInstrument::freeUdpPort());
    for (const QStringList &command : { QStringList { "identify" }, QStringList { "keepalive" },
                                        QStringList { "key", "F4" }, QStringList { "screen", "never.png" } }) {
        const Result result
            = run(QStringLiteral("quvera-remote"), QStringList { "--port", port, "--timeout", "50" } + command);
        QCOMPARE(result.code, 1);
        QVERIFY2(result.error.contains("no answer from 127.0.0.1 port " + port.toLatin1()), result.error);
    }
    QVERIFY(!QFile::exists(QStringLiteral("never.png")));
}

void TstTools::remoteIdentifiesPressesAndSavesTheScreen()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    const QStringList port { "--port", QString::number(desk.remotePort()) };
    QCOMPARE(run(QStringLiteral("quvera-remote"), port + QStringList { "identify" }).output, QByteArray("QUVERA\n"));
    QCOMPARE(run(QStringLiteral("quvera-remote"), port + QStringList { "keepalive" }).code, 0);
    const QString before = desk.path(QStringLiteral("/before.png"));
    const QString after = desk.path(QStringLiteral("/after.png"));
    QCOMPARE(run(QStringLiteral("quvera-remote"), port + QStringList { "screen", before }).code, 0);
    QCOMPARE(run(QStringLiteral("quvera-remote"), port + QStringList { "key", "Right", "19", "enter" }).code, 0);
    QCOMPARE(run(QStringLiteral("quvera-remote"), port + QStringList { "screen", after }).code, 0);
    QCOMPARE(QImage(before).size(), QSize(640, 480));
    QVERIFY(page(QImage(before)) != page(QImage(after)));
    const Result unwritable
        = run(QStringLiteral("quvera-remote"), port + QStringList { "screen", "/no/such/folder/a.png" });
    QCOMPARE(unwritable.code, 1);
    QVERIFY(unwritable.error.contains("/no/such/folder/a.png"));
}

void TstTools::pictureWithAFlippedBitIsNotWhole()
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    QVERIFY(image.save(&buffer, "PNG"));
    QVERIFY(RemoteClient::isWholePng(png));
    for (int at = 0; at < png.size(); ++at) {
        QByteArray damaged = png;
        damaged[at] = char(damaged.at(at) ^ 0x10);
        QVERIFY2(!RemoteClient::isWholePng(damaged), QByteArray::number(at));
        QVERIFY2(!RemoteClient::isWholePng(png.left(at)), QByteArray::number(at));
    }
    QVERIFY(!RemoteClient::isWholePng(png + 'x'));
}

void TstTools::keyNamesAndNumbersGiveTheRemoteNumber()
{
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("F1")), 40);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("f5")), 44);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("F9")), 49);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("Setup")), 49);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("F10")), 50);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("F11")), 48);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("save")), 48);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("Enter")), 13);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("Down")), 19);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("14")), 14);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("-1")), -1);
    QCOMPARE(RemoteClient::keyCode(QStringLiteral("Escape")), -1);
    QCOMPARE(RemoteClient::keyCode(QString()), -1);
}

void TstTools::galleryPicturesTheMenuAndVoltsAmpsHertz()
{
    QTemporaryDir folder;
    const Result result = run(QStringLiteral("quvera-gallery"),
                              { "--out", folder.path(), "--pages", "menu,vif", "--wirings", "1,4", "--settle", "0",
                                "--warm-up", "0", "--sheet" });
    QVERIFY2(result.code == 0, result.error);
    const QStringList pictures = QDir(folder.path()).entryList({ QStringLiteral("*.png") });
    QFile index(folder.filePath(QStringLiteral("index.html")));
    QVERIFY(index.open(QIODevice::ReadOnly));
    const QByteArray html = index.readAll();
    int shown = 0;
    for (const QString &picture : pictures) {
        if (picture == QLatin1String("sheet.png"))
            continue;
        ++shown;
        QCOMPARE(QImage(folder.filePath(picture)).size(), QSize(640, 480));
        QVERIFY2(html.contains("src=\"" + picture.toUtf8() + '"'), qPrintable(picture));
    }
    // The menu's two pictures once, those of Volts/Amps/Hertz in both wirings.
    QCOMPARE(shown, 2 + 2 * 5);
    QVERIFY(!QImage(folder.filePath(QStringLiteral("sheet.png"))).isNull());
    QCOMPARE(run(QStringLiteral("quvera-gallery"), { "--pages", "garden" }).code, 2);
    QCOMPARE(run(QStringLiteral("quvera-gallery"), { "--wirings", "11" }).code, 2);
    QCOMPARE(run(QStringLiteral("quvera-gallery"), { "--languages", "XX" }).code, 2);
    QCOMPARE(run(QStringLiteral("quvera-gallery"), { "--language", "XX" }).code, 2);
}

void TstTools::galleryPicturesOneLanguage()
{
    QTemporaryDir folder;
    const QString out = folder.path();
    for (const QStringList &language : { QStringList { "--languages", "EN" }, QStringList { "--language", "RU" } }) {
        const Result result
            = run(QStringLiteral("quvera-gallery"),
                  QStringList { "--out", out, "--pages", "menu", "--settle", "0", "--warm-up", "0" } + language);
        QVERIFY2(result.code == 0, result.error);
        QCOMPARE(QFile::exists(out + "/sheet.png"), language.first() == "--language");
    }
    // The captions below the first row of tiles are others, the tiles are the same.
    const QRect tile(78, 32, 100, 100);
    const QRect captions(20, 132, 600, 40);
    const QImage english(out + "/menu-menu-3P_WYE_50_Hz.png"), russian(out + "/menu-menu-3P_WYE_50_Hz_RU.png");
    QVERIFY(!english.isNull() && !russian.isNull());
    QCOMPARE(russian.copy(tile), english.copy(tile));
    QVERIFY(russian.copy(captions) != english.copy(captions));
}

void TstTools::stoppedGalleryLeavesNothingBehind_data()
{
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("settle"); // ms before a picture
    QTest::newRow("Ctrl-C") << SIGINT << 100000;
    QTest::newRow("ended") << SIGTERM << 100000;
    QTest::newRow("terminal closed") << SIGHUP << 0;
}

void TstTools::stoppedGalleryLeavesNothingBehind()
{
    QFETCH(int, signal);
    QFETCH(int, settle);
    const QTemporaryDir folder;
    const QString desks = folder.filePath(QStringLiteral("tmp/"));
    QVERIFY(QDir().mkpath(desks));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), desks);
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder.path());
    QProcess gallery;
    gallery.setProcessEnvironment(environment);
    gallery.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-gallery"),
                  { "--out", folder.filePath(QStringLiteral("out")), "--settle", QString::number(settle) });
    const auto desk = [&desks] { return QDir(desks).entryList(QDir::Dirs | QDir::NoDotAndDotDot).join(QString()); };
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(desks + desk() + "/instrument.log"), 60000);
    QTest::qWait(3000);
    QCOMPARE(gallery.state(), QProcess::Running);
    QCOMPARE(::kill(pid_t(gallery.processId()), signal), 0);
    QVERIFY(gallery.waitForFinished(60000));
    QCOMPARE(gallery.exitCode(), 128 + signal);
    QCOMPARE(gallery.readAllStandardError(), QByteArray("quvera-gallery: stopped\n"));
    QCOMPARE(desk(), QString());
}

void TstTools::helpIsPrintedByAll_data()
{
    QTest::addColumn<QString>("tool");
    for (const char *tool : { "quvera", "quvera-files", "quvera-panel", "quvera-remote", "quvera-processor",
                              "quvera-gallery", "make-update", "update-unpack" })
        QTest::newRow(tool) << QString::fromLatin1(tool);
}

void TstTools::helpIsPrintedByAll()
{
    QFETCH(QString, tool);
    const QTemporaryDir folder;
    QProcessEnvironment noScreen;
    noScreen.insert(QStringLiteral("QUVERA_ROOT"), folder.filePath(QStringLiteral("root")));
    noScreen.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder.path());
    noScreen.insert(QStringLiteral("QT_QPA_PLATFORM"), tool == QLatin1String("quvera") ? "none" : "offscreen");
    const Result result = run(tool, { "--help" }, noScreen);
    QCOMPARE(result.code, 0);
    const QByteArray usage = result.output.left(result.output.indexOf('\n'));
    QVERIFY2(usage.startsWith("Usage: ") && usage.contains(tool.toLatin1() + ' '), usage);
    QCOMPARE(result.error, QByteArray());
    QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("root")))); // not begun
}

void TstTools::programTakesTheOptionsOfTheToolkitOnly_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("error");
    const QByteArray see = " (quvera --help lists what it takes)\n";
    QTest::newRow("unknown") << QStringList { "--root", "/tmp" } << 2 << "quvera: unknown argument \"--root\"" + see;
    QTest::newRow("word") << QStringList { "--platform", "none", "one\ntwo" } << 2
                          << "quvera: unknown argument \"one?two\"" + see;
    QTest::newRow("no value") << QStringList { "-platform" } << 2 << "quvera: \"-platform\" needs a value" + see;
    QTest::newRow("value in a form that the toolkit does not read")
        << QStringList { "-platform=offscreen", "--version" } << 2
        << "quvera: unknown argument \"-platform=offscreen\"" + see;
    QTest::newRow("value of an option without one")
        << QStringList { "-reverse=on", "--version" } << 2 << "quvera: unknown argument \"-reverse=on\"" + see;
    QTest::newRow("help behind others") << QStringList { "-style=fusion", "-platform", "none", "-h" } << 0
                                        << QByteArray();
    QTest::newRow("value that looks like help")
        << QStringList { "-platform", "--help", "last" } << 2 << "quvera: unknown argument \"last\"" + see;
    QTest::newRow("version") << QStringList { "--version" } << 0 << QByteArray();
}

void TstTools::programTakesTheOptionsOfTheToolkitOnly()
{
    QFETCH(QStringList, arguments);
    const Result result = run(QStringLiteral("quvera"), arguments);
    QTEST(result.code, "code");
    QTEST(result.error, "error");

    // Those of the toolkit work: this is no platform, and the toolkit says so.
    QVERIFY(run(QStringLiteral("quvera"), { "-platform", "nowhere" }).error.contains("\"nowhere\""));
}

void TstTools::manualsHaveTheOptionsOfTheHelp_data()
{
    QTest::addColumn<int>("least");
    QTest::newRow("quvera-remote") << 4;
    QTest::newRow("quvera-gallery") << 11;
    QTest::newRow("quvera-processor") << 12;
    QTest::newRow("quvera-panel") << 8;
    QTest::newRow("quvera-files") << 12;
}

void TstTools::manualsHaveTheOptionsOfTheHelp()
{
    QFETCH(int, least);
    const QString tool = QString::fromLatin1(QTest::currentDataTag());
    const auto options = [](const QString &text) {
        QSet<QString> found;
        auto words = QRegularExpression(QStringLiteral("(?<![a-z-])--[a-z][a-z-]*")).globalMatch(text);
        while (words.hasNext())
            found << words.next().captured();
        // Every tool has them, whether its help names them or not.
        return found - QSet<QString> { "--help", "--version" };
    };
    QFile page(QStringLiteral(QUVERA_SOURCE_DIR "/docs/man/") + tool + QStringLiteral(".1"));
    QVERIFY(page.open(QIODevice::ReadOnly));
    const QSet<QString> inHelp = options(QString::fromUtf8(run(tool, { "--help" }).output));
    const QString manual
        = QString::fromUtf8(page.readAll()).remove(QRegularExpression(QStringLiteral("\\\\f[BIR]|\\\\")));
    const QSet<QString> inManual = options(manual);
    QVERIFY2(inHelp.size() >= least, qPrintable(QString::number(inHelp.size())));
    QVERIFY2(inHelp == inManual,
             qPrintable(QStringList((inHelp - inManual + (inManual - inHelp)).values()).join(QLatin1Char(' '))));
}

QTEST_GUILESS_MAIN(TstTools)

#include "tst_tools.moc"
