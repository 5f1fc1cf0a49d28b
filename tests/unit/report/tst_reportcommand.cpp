#include "testpaths.h"
#include "unit/report/writtenweek.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// The command "report" of quvera-files, as a person calls it.
class TstReportCommand : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void aReportIsWritten_data();
    void aReportIsWritten();
    void aCutRecordingIsReportedWithItsStatus();
    void whatIsUnreadableGetsNoReport();
    void wrongUseIsSaid_data();
    void wrongUseIsSaid();
    void whatStandsThereIsKept();
    void aLimitSetsFileJudges();
    void builtInLimitsAreNamedInLargeOrSmallLetters();
    void nothingElseIsWritten();

private:
    int run(const QStringList &words);
    QString output(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QByteArray content(const char *name) const
    {
        QFile file(output(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QString stored(const char *name)
    {
        return Target::path(QStringLiteral("/mnt/storage/") + QLatin1String(name));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_said;
};

void TstReportCommand::initTestCase()
{
    QVERIFY(QDir().mkpath(stored("")));
    QVERIFY(WrittenWeek::write("/mnt/storage/good.pqa2", WrittenWeek::Clean, 7200));
    QVERIFY(WrittenWeek::writeCut("/mnt/storage/cut.pqa2", 7200));
    QFile foreign(stored("foreign.pqa2"));
    QVERIFY(foreign.open(QIODevice::WriteOnly) && foreign.write("no recording") > 0);
}

void TstReportCommand::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

int TstReportCommand::run(const QStringList &words)
{
    constexpr int kPatience = 60000; // ms
    QProcess process;
    process.setWorkingDirectory(m_folder->path());
    process.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-files"), QStringList { "report" } + words);
    if (!process.waitForFinished(kPatience) || process.exitStatus() != QProcess::NormalExit)
        return -1;
    m_said = process.readAllStandardError();
    return process.exitCode();
}

void TstReportCommand::aReportIsWritten_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QByteArray>("tag");
    QTest::addColumn<QString>("title");
    QTest::newRow("English") << QStringList() << QByteArray("en") << "Power quality report";
    QTest::newRow("German") << QStringList { "--language", "GE" } << QByteArray("de")
                            << "Bericht zur Spannungsqualität";
    QTest::newRow("Russian") << QStringList { "--language", "ru" } << QByteArray("ru")
                             << "Отчёт о качестве электроэнергии";
    QTest::newRow("Chinese") << QStringList { "--language", "ZH" } << QByteArray("zh") << "电能质量报告";
}

void TstReportCommand::aReportIsWritten()
{
    QFETCH(QStringList, options);
    QFETCH(QByteArray, tag);
    QFETCH(QString, title);
    QCOMPARE(run(QStringList { stored("good.pqa2"), "--html", "a.html" } + options), 0);
    QCOMPARE(m_said, QByteArray());
    const QByteArray html = content("a.html");
    QVERIFY(html.contains("<html lang=\"" + tag));
    QVERIFY(html.contains("<h1>" + title.toUtf8() + "</h1>"));
    QVERIFY(html.endsWith("</html>\n"));
    QCOMPARE(run(QStringList { stored("good.pqa2"), "--pdf", "a.pdf" } + options), 0);
    QCOMPARE(m_said, QByteArray());
    QVERIFY(content("a.pdf").startsWith("%PDF-"));
    QVERIFY(content("a.pdf").trimmed().endsWith("%%EOF"));
}

void TstReportCommand::aCutRecordingIsReportedWithItsStatus()
{
    QCOMPARE(run({ stored("cut.pqa2"), "--html", "a.html" }), 1);
    QVERIFY2(m_said.contains("cut.pqa2") && m_said.count('\n') == 1, m_said.constData());
    QVERIFY(content("a.html").contains("cut short"));
}

void TstReportCommand::whatIsUnreadableGetsNoReport()
{
    for (const char *name : { "foreign.pqa2", "missing.pqa2" }) {
        QCOMPARE(run({ stored(name), "--html", "a.html" }), 3);
        QVERIFY(m_said.contains(name));
    }
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void TstReportCommand::wrongUseIsSaid_data()
{
    QTest::addColumn<QStringList>("words");
    const QString path = stored("good.pqa2");
    QTest::newRow("neither") << QStringList { path };
    QTest::newRow("both") << QStringList { path, "--html", "a", "--pdf", "b" };
    QTest::newRow("language") << QStringList { path, "--html", "a", "--language", "XX" };
    QTest::newRow("limits") << QStringList { path, "--html", "a", "--limits", "none.xml" };
    QTest::newRow("no path") << QStringList { "--html", "a" };
}

void TstReportCommand::wrongUseIsSaid()
{
    QFETCH(QStringList, words);
    QCOMPARE(run(words), 64);
    QCOMPARE(m_said.count('\n'), 1);
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void TstReportCommand::whatStandsThereIsKept()
{
    QFile file(output("a.html"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("<!DOCTYPE html>mine") > 0);
    file.close();
    QVERIFY(run({ stored("good.pqa2"), "--html", "a.html" }) > 3);
    QCOMPARE(content("a.html"), QByteArray("<!DOCTYPE html>mine"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList { "a.html" });
    QCOMPARE(run({ stored("good.pqa2"), "--html", "a.html", "--force" }), 0);
    QVERIFY(content("a.html").contains("<h1>"));
}

void TstReportCommand::aLimitSetsFileJudges()
{
    QFile set(output("plant.xml"));
    QVERIFY(set.open(QIODevice::WriteOnly));
    set.write("<?xml version=\"1.0\" encoding=\"utf-8\"?><limits verison=\"1.0\" name=\"Plant &lt;7&gt;\"><Voltage>"
              "<partial lower=\"0.1\" upper=\"0.1\"/></Voltage></limits>");
    set.close();
    QCOMPARE(run({ stored("good.pqa2"), "--html", "a.html", "--limits", output("plant.xml") }), 0);
    QVERIFY(content("a.html").contains("the supply did not keep to the limits of Plant &lt;7&gt;."));
}

void TstReportCommand::builtInLimitsAreNamedInLargeOrSmallLetters()
{
    QCOMPARE(run({ stored("good.pqa2"), "--html", "a.html", "--limits", "en50160" }), 0);
    QVERIFY(content("a.html").contains("EN50160"));
    QCOMPARE(run({ stored("good.pqa2"), "--html", "b.html", "--limits", "Gost32144" }), 0);
    QVERIFY(content("b.html").contains("GOST32144"));
}

void TstReportCommand::nothingElseIsWritten()
{
    // Neither beside the input nor in the folders that an instrument makes at its start.
    const QStringList before = QDir(stored("")).entryList(QDir::AllEntries | QDir::Hidden);
    const QString root = m_folder->filePath("root");
    QVERIFY(QDir().mkpath(root));
    const QByteArray own = qgetenv("QUVERA_ROOT");
    qputenv("QUVERA_ROOT", root.toLocal8Bit());
    const int status = run({ stored("good.pqa2"), "--html", output("a.html") });
    qputenv("QUVERA_ROOT", own);
    QCOMPARE(status, 0);
    QVERIFY(QDir(root).isEmpty());
    QCOMPARE(QDir(stored("")).entryList(QDir::AllEntries | QDir::Hidden), before);
}

QTEST_GUILESS_MAIN(TstReportCommand)
#include "tst_reportcommand.moc"
