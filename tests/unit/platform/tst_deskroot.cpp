#include <QTest>

#include <QTemporaryDir>

#include "platform/deskroot.h"
#include "platform/target.h"

namespace {

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

} // namespace

/// The folder that stands for "/" on a desk.
class TstDeskRoot : public QObject
{
    Q_OBJECT

private slots:
    void theRootOfTheProcessIsReadyAtItsFirstUse()
    {
        QString error = "unset";
        QVERIFY(DeskRoot::prepare(&error));
        QCOMPARE(error, QString());
        QVERIFY(QFileInfo(Target::path("/mnt/userfs/sys/limits")).isDir());
    }

    void aFreshRootHasTheBoardsFolders_data()
    {
        QTest::addColumn<QString>("folder");
        for (const char *folder :
             { "/mnt/storage", "/mnt/calibration", "/mnt/userfs/config", "/mnt/userfs/sys/limits",
               "/mnt/userfs/language", "/mnt/userfs/skin", "/tmp/screenshots", "/run/media", "/var/run/wpa_supplicant",
               "/var/log", "/dev", "/etc/init.d", "/usr/lib/fonts", "/sys/class/gpio", "/bin" })
            QTest::newRow(folder) << QString::fromLatin1(folder);
    }
    void aFreshRootHasTheBoardsFolders()
    {
        QFETCH(QString, folder);
        QVERIFY(QFileInfo(Target::root() + folder).isDir());
    }

    void everyLineOfTheFrontEndAndTheSupplyIsThere()
    {
        for (int line : { 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59, 105, 117 }) {
            const QString folder = Target::root() + QStringLiteral("/sys/class/gpio/gpio%1").arg(line);
            QCOMPARE(read(folder + "/value"), QByteArray("0\n"));
            QCOMPARE(read(folder + "/direction"), QByteArray("in\n"));
        }
        QCOMPARE(read(Target::root() + "/sys/class/gpio/export"), QByteArray());
    }

    void theBatteryStartsFull()
    {
        const int raw = read(Target::root() + "/sys/bus/iio/devices/iio:device0/in_voltage0_raw").trimmed().toInt();
        const double volts = raw * 0.000244140625 * 1.8 / 1.5 * 11.5;
        QVERIFY(volts >= 7.7 && volts < 8.4); // two cells between "full" and their limit
    }

    void theFontsOfTheBoardAreLinked()
    {
        for (const char *font : { "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf",
                                  "/usr/share/fonts/truetype/wqy/wqy-zenhei.ttc" }) {
            const QString link = Target::root()
                + (QByteArray(font).contains("wqy") ? "/usr/lib/fonts/WenQuanYiZenHei.ttf"
                                                    : "/usr/lib/fonts/arial.ttf");
            if (QFileInfo::exists(font))
                QCOMPARE(QFileInfo(link).symLinkTarget(), QString::fromLatin1(font));
            else
                QVERIFY(!QFileInfo::exists(link));
        }
    }

    void theLanguagesOfTheBuildAreLinked()
    {
        QTemporaryDir built, root;
        const QString board = root.path() + "/mnt/userfs/language/";
        write(built.path() + "/lang_ru.qm", "of the build");
        write(built.path() + "/lang_ge.qm", "of the build");
        write(built.path() + "/other.txt", "");
        QVERIFY(QDir().mkpath(board));
        write(board + "lang_ge.qm", "of an update");
        QVERIFY(QFile::link(built.path() + "/of a deleted build", board + "lang_ru.qm"));
        QCOMPARE(DeskRoot::build(root.path(), built.path()), QString());
        QCOMPARE(QDir(board).entryList(QDir::Files), QStringList({ "lang_ge.qm", "lang_ru.qm" }));
        QCOMPARE(read(board + "lang_ru.qm"), QByteArray("of the build"));
        QCOMPARE(read(board + "lang_ge.qm"), QByteArray("of an update"));
    }

    void whatSomeonePreparedStaysAsItIs()
    {
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkpath("bin"));
        QVERIFY(QDir(dir.path()).mkpath("sys/class/gpio/gpio54"));
        write(dir.path() + "/bin/sync", "mine");
        write(dir.path() + "/sys/class/gpio/gpio54/value", "1\n");
        QCOMPARE(DeskRoot::build(dir.path()), QString());
        QCOMPARE(read(dir.path() + "/bin/sync"), QByteArray("mine"));
        QCOMPARE(read(dir.path() + "/sys/class/gpio/gpio54/value"), QByteArray("1\n"));
        QCOMPARE(read(dir.path() + "/sys/class/gpio/gpio54/direction"), QByteArray("in\n")); // missing: made
        QVERIFY(QFileInfo(dir.path() + "/bin/date").isExecutable());
    }

    void preparingTwiceChangesNothing()
    {
        QTemporaryDir dir;
        QCOMPARE(DeskRoot::build(dir.path()), QString());
        write(dir.path() + "/sys/class/backlight/backlight/brightness", "3");
        QCOMPARE(DeskRoot::build(dir.path()), QString());
        QCOMPARE(read(dir.path() + "/sys/class/backlight/backlight/brightness"), QByteArray("3"));
        QCOMPARE(QDir(dir.path() + "/bin").entryList({ "*.?????*" }, QDir::Files), QStringList()); // no staging copies
    }

    void aRootThatCannotBeWrittenGivesOneLine()
    {
        QTemporaryDir dir;
        write(dir.path() + "/file", "");
        const QString error = DeskRoot::build(dir.path() + "/file/root");
        QVERIFY(error.startsWith("The desk root cannot be written: " + dir.path() + "/file/root"));
        QVERIFY(!error.contains('\n'));
    }

    void aRootThatTheShellWouldSplitIsRefused_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name :
             { "with blank", "semi;colon", "quo'te", "dollar$HOME", "star*", "back`tick", "new\nline" })
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void aRootThatTheShellWouldSplitIsRefused()
    {
        QFETCH(QString, name);
        QTemporaryDir dir;
        const QString error = DeskRoot::build(dir.path() + "/" + name);
        QVERIFY(error.startsWith("The desk root cannot be used: "));
        QVERIFY(!error.contains('\n'));
        QVERIFY(!QFileInfo::exists(dir.path() + "/" + name));
    }
};

QTEST_GUILESS_MAIN(TstDeskRoot)
#include "tst_deskroot.moc"
