// The update package that is made of a Debian package: the instrument's unpacker takes it, and it holds the programs of
// the Debian package and nothing else of it. The Debian package here is a small one with the same folders.
#include "testpaths.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

class TstPackageUpdate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void programsAndLanguagesReachTheInstrument();
    void packageWithoutProgramsGivesNoUpdate();
    void wrongCallSaysHow();

private:
    QString path(const QString &name) const { return m_scratch->filePath(name); }
    void write(const QString &name, const QByteArray &content, bool executable) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        if (executable)
            file.setPermissions(file.permissions() | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
    }
    static int run(const QString &program, const QStringList &arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(program, arguments);
        process.waitForFinished(-1);
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    void pack() const
    {
        write(QStringLiteral("deb/DEBIAN/control"),
              "Package: quvera\nVersion: 2.2.6\nArchitecture: all\nMaintainer: nobody <nobody@quvera.example>\n"
              "Description: some files\n",
              false);
        QCOMPARE(run(QStringLiteral("dpkg-deb"),
                     { QStringLiteral("--root-owner-group"), QStringLiteral("-b"), path(QStringLiteral("deb")),
                       path(QStringLiteral("quvera.deb")) }),
                 0);
    }
    int makeUpdate(const QStringList &more) const
    {
        return run(QStringLiteral(QUVERA_SOURCE_DIR "/packaging/debian/make-software-update"),
                   QStringList { path(QStringLiteral("quvera.deb")), path(QStringLiteral("update.key")) } + more);
    }
    QString update() const { return path(QStringLiteral("Software.upd")); }

    std::unique_ptr<QTemporaryDir> m_scratch;
};

void TstPackageUpdate::initTestCase()
{
    qputenv("PATH", QUVERA_BIN_DIR ":" + qgetenv("PATH")); // of the programs that are called
}

void TstPackageUpdate::init()
{
    m_scratch = std::make_unique<QTemporaryDir>();
    qputenv("QUVERA_ROOT", path(QStringLiteral("root")).toLocal8Bit());
    QDir().mkpath(path(QStringLiteral("root/etc/quvera")));
    QDir().mkpath(path(QStringLiteral("root/opt/quvera")));
    QCOMPARE(run(QStringLiteral("make-update"),
                 { QStringLiteral("keys"), path(QStringLiteral("update.key")),
                   path(QStringLiteral("root/etc/quvera/update.pub")) }),
             0);
}

void TstPackageUpdate::programsAndLanguagesReachTheInstrument()
{
    const QString own = QStringLiteral("deb/usr/lib/quvera/");
    write(own + QStringLiteral("bin/quvera"), "program", true);
    write(own + QStringLiteral("bin/update-unpack"), "unpacker", true);
    write(own + QStringLiteral("bin/language/lang_ge.qm"), "language", false);
    write(own + QStringLiteral("scripts/networking.sh"), "script", true);
    write(QStringLiteral("deb/usr/share/quvera/board.conf"), "screen", false);
    pack();
    QCOMPARE(makeUpdate({ QStringLiteral("20206"), QStringLiteral("0"), update() }), 0);
    QCOMPARE(run(QStringLiteral("update-unpack"), { update() }), 0);

    const QString current = path(QStringLiteral("root/opt/quvera/current"));
    QCOMPARE(QFile::symLinkTarget(current), path(QStringLiteral("root/opt/quvera/versions/20206")));
    QStringList files;
    QDirIterator all(current + QLatin1Char('/'), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        QFile file(all.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const bool executable = file.permissions() & QFile::ExeOther;
        files << file.fileName().mid(current.size() + 1) + QLatin1Char('=') + QString::fromLatin1(file.readAll())
                + QLatin1String(executable ? "*" : "");
    }
    files.sort();
    QCOMPARE(
        files,
        (QStringList { "bin/language/lang_ge.qm=language", "bin/quvera=program*", "bin/update-unpack=unpacker*" }));
}

void TstPackageUpdate::packageWithoutProgramsGivesNoUpdate()
{
    write(QStringLiteral("deb/usr/bin/quvera-remote"), "tool", true);
    pack();
    QVERIFY(makeUpdate({ QStringLiteral("20206"), QStringLiteral("0"), update() }) != 0);
    QVERIFY(!QFileInfo::exists(update()));
}

void TstPackageUpdate::wrongCallSaysHow()
{
    QCOMPARE(makeUpdate({ QStringLiteral("20206"), QStringLiteral("0") }), 2);
}

QTEST_GUILESS_MAIN(TstPackageUpdate)
#include "tst_packageupdate.moc"
