// What the trial of the packages asks of other programs: a "no" of theirs is never lost on the way.
#include "unit/architecture/packagetext.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using namespace PackageText;

class TstPackageChecks : public QObject
{
    Q_OBJECT

private slots:
    void errorOfLintianIsNotLost();
    void nothingIsHiddenFromLintian();
    void wordOfACommandIsAFault_data();
    void wordOfACommandIsAFault();
    void trialIsHeardBehindTheseChecks();
    void trialAsksThroughTheseChecks();
    void pictureIsKnownByItsTitle_data();
    void pictureIsKnownByItsTitle();

private:
    BoardCommands m_commands { QStringLiteral("packaging/debian/checks.sh") };
};

void TstPackageChecks::errorOfLintianIsNotLost()
{
    const QString log = m_commands.root() + QStringLiteral("/log");
    const QStringList question { QStringLiteral("without_errors"), log, QStringLiteral("one.deb") };
    // As lintian does: its status is 2 when it found what --fail-on names.
    m_commands.answer("lintian",
                      "[ \"$*\" = '--fail-on error one.deb' ] || exit 0\n"
                      "echo 'E: one: no-copyright-file'\nexit 2");
    QCOMPARE(m_commands.call(question), 2);
    QCOMPARE(read(log), QStringLiteral("E: one: no-copyright-file\n"));
    m_commands.answer("lintian", "echo 'W: one: no-manual-page'");
    QCOMPARE(m_commands.call(question), 0);
    QCOMPARE(read(log), QStringLiteral("W: one: no-manual-page\n"));
}

void TstPackageChecks::nothingIsHiddenFromLintian()
{
    QVERIFY(!text(QStringLiteral("packaging/debian/test.sh")).contains(QLatin1String("suppress-tags")));
    QCOMPARE(caught(text(kDebian + QStringLiteral("changelog")), QStringLiteral("\\A[a-z]+ \\([^)]+\\) ([a-z]+);")),
             QStringList { QStringLiteral("unstable") });
    QVERIFY(QDir(kTop + QLatin1Char('/') + kDebian).entryList({ QStringLiteral("*lintian-overrides*") }).isEmpty());
}

void TstPackageChecks::wordOfACommandIsAFault_data()
{
    QTest::addColumn<QByteArray>("does");
    QTest::addColumn<int>("status");
    QTest::newRow("silent") << QByteArray("exit 0") << 0;
    QTest::newRow("a warning beside a good end") << QByteArray("echo 'Unknown key name' >&2") << 1;
    QTest::newRow("a word") << QByteArray("echo word") << 1;
    QTest::newRow("a silent fault") << QByteArray("exit 3") << 1;
}

void TstPackageChecks::wordOfACommandIsAFault()
{
    QFETCH(QByteArray, does);
    QFETCH(int, status);
    m_commands.answer("asked", does);
    QCOMPARE(m_commands.call({ QStringLiteral("says_nothing"), QStringLiteral("asked"), QStringLiteral("unit") }),
             status);
}

/// The trial reads two files of functions: neither takes from the other what it needs.
void TstPackageChecks::trialIsHeardBehindTheseChecks()
{
    const QString trial = text(QStringLiteral("packaging/debian/test.sh"));
    const QString readsBoth = caught(trial, QStringLiteral("^(\\. [^\n]+\n\\. [^\n]+)$")).value(0);
    const QString asks = QStringLiteral("\nwithout_errors \"$PWD/log\" one.deb\nsays_nothing true\nsay goes on\n"
                                        "says_nothing echo a word || die \"no unit\"\n");
    m_commands.answer("lintian", "echo 'W: one: no-manual-page'");
    QProcess script;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("top"), kTop);
    environment.insert(QStringLiteral("here"), kTop + QStringLiteral("/packaging/debian"));
    environment.insert(QStringLiteral("PATH"), m_commands.root() + QStringLiteral(":/usr/bin:/bin"));
    script.setProcessEnvironment(environment);
    script.setWorkingDirectory(m_commands.root());
    script.start(QStringLiteral("/bin/bash"), { QStringLiteral("-euc"), readsBoth + asks });
    QVERIFY(script.waitForFinished());
    QCOMPARE(QString::fromUtf8(script.readAllStandardError()),
             QStringLiteral("W: one: no-manual-page\ngoes on\na word\nquvera: no unit\n"));
    QCOMPARE(script.exitCode(), 1);
}

void TstPackageChecks::trialAsksThroughTheseChecks()
{
    for (const char *file : { "test.sh", "inside.sh" }) {
        const QStringList lines
            = text(QStringLiteral("packaging/debian/") + QLatin1String(file)).split(QLatin1Char('\n'));
        int asked = 0;
        for (const QString &line : lines) {
            if (line.contains(QLatin1String("systemd-analyze verify"))) {
                ++asked;
                QVERIFY2(line.trimmed().startsWith(QLatin1String("says_nothing ")), qPrintable(line));
            }
            QVERIFY2(!line.trimmed().startsWith(QLatin1String("lintian ")), qPrintable(line));
        }
        QVERIFY2(asked > 0, file);
    }
    QVERIFY(text(QStringLiteral("packaging/debian/test.sh")).contains(QLatin1String("\nwithout_errors \"$out/")));
}

void TstPackageChecks::pictureIsKnownByItsTitle_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("status");
    QTest::newRow("the menu") << QStringLiteral("Menu") << 0;
    QTest::newRow("another page") << QStringLiteral("Memory") << 1;
    QTest::newRow("begins alike") << QStringLiteral("Menu of more") << 1;
    QTest::newRow("without a title") << QString() << 1;
}

void TstPackageChecks::pictureIsKnownByItsTitle()
{
    QFETCH(QString, title);
    QFETCH(int, status);
    QImage image(640, 480, QImage::Format_RGB32);
    image.fill(Qt::black);
    image.setText(QStringLiteral("Texts"), QStringLiteral("Menu"));
    if (!title.isEmpty())
        image.setText(QStringLiteral("Title"), title);
    const QString picture = m_commands.root() + QStringLiteral("/picture.png");
    QVERIFY(image.save(picture));
    QCOMPARE(m_commands.call({ QStringLiteral("has_title"), picture, QStringLiteral("Menu") }), status);
}

QTEST_GUILESS_MAIN(TstPackageChecks)
#include "tst_packagechecks.moc"
