#include "testpaths.h"
#include "unit/record/pqa2bytes.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using P = Pqa2Bytes;

/// What quvera-files says of a recording, word for word.
class TstInfoTool : public QObject
{
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Runs the tool in the folder and keeps what it says; answers its status.
    int call(const QStringList &words)
    {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        process.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-files"), words);
        const bool isThrough = process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit;
        m_said = process.readAllStandardOutput();
        m_complaint = process.readAllStandardError();
        return isThrough ? process.exitCode() : -1;
    }
    /// The line of info that begins with a word, without it.
    QByteArray lineOf(const QByteArray &word) const
    {
        for (const QByteArray &line : m_said.split('\n')) {
            if (line.startsWith(word + ' '))
                return line.mid(word.size()).trimmed();
        }
        return "no such line";
    }

    QTemporaryDir m_folder;
    QByteArray m_said, m_complaint;

private slots:
    void lengthsAreReadable_data();
    void lengthsAreReadable();
    void blocksOfAllFilesAreAddedUp();
    void unknownBlocksHaveTheirWholeType();
    void signsThatMoveTheCursorAreWritten();
    void furtherFaultsAreCounted();
    void aDashIsAPath();
    void anEmptyValueIsNone();
    void compressedFileIsTheShorterOne();
};

void TstInfoTool::lengthsAreReadable_data()
{
    QTest::addColumn<qint64>("ms");
    QTest::addColumn<QByteArray>("text");
    constexpr qint64 kSecond = 1000, kMinute = 60 * kSecond, kHour = 60 * kMinute, kDay = 24 * kHour;
    const QByteArray start = "2023-11-14T22:13:20.000Z";
    QTest::newRow("none") << qint64(0) << start;
    QTest::newRow("half a second") << qint64(500) << start + " to 2023-11-14T22:13:20.500Z, 500 ms";
    QTest::newRow("an hour") << kHour << start + " to 2023-11-14T23:13:20.000Z, 1 h";
    QTest::newRow("all of it") << 2 * kDay + 3 * kHour + 4 * kMinute + 5 * kSecond
                               << start + " to 2023-11-17T01:17:25.000Z, 2 d 3 h 4 min 5 s";
}

void TstInfoTool::lengthsAreReadable()
{
    QFETCH(qint64, ms);
    QFETCH(QByteArray, text);
    P file;
    file.opening().start(P::kSeconds).timed(0xA1000029, P::kTime + ms, P::f32(50)).end(P::kSeconds + ms / 1000);
    QVERIFY(file.save(path("file.pqa2")));
    QCOMPARE(call({ "info", "file.pqa2" }), 0);
    QCOMPARE(lineOf("time"), text);
}

void TstInfoTool::blocksOfAllFilesAreAddedUp()
{
    QVERIFY(QDir().mkpath(path("record")));
    QVERIFY(P::recording(2).save(path("record/Common.pqa2")));
    QVERIFY(P::recording(3).end(P::kSeconds + 9).save(path("record/Common_2.pqa2")));
    QCOMPARE(call({ "info", "record", "--json" }), 0);
    int found = 0;
    for (const QJsonValue &value : QJsonDocument::fromJson(m_said).object().value("blocks").toArray()) {
        const QJsonObject block = value.toObject();
        if (block.value("type").toString() != QLatin1String("0xA1000029"))
            continue;
        ++found;
        QCOMPARE(block.value("count").toInt(), 5);
        QCOMPARE(block.value("bytes").toInt(), 60); // 12 each
    }
    QCOMPARE(found, 1);
}

void TstInfoTool::unknownBlocksHaveTheirWholeType()
{
    QVERIFY(P().add(0x1F, "abcd").save(path("odd.pqa2")));
    QCOMPARE(call({ "info", "odd.pqa2", "--json" }), 0);
    const QJsonObject expected { { "type", "0x0000001F" }, { "name", "unknown" }, { "count", 1 }, { "bytes", 4 } };
    QVERIFY2(QJsonDocument::fromJson(m_said).object().value("blocks").toArray().contains(expected), m_said);
}

void TstInfoTool::signsThatMoveTheCursorAreWritten()
{
    QVERIFY(P::save(path("a\x7f"
                         "b.pqa2"),
                    "no record"));
    QCOMPARE(call({ "verify",
                    "a\x7f"
                    "b.pqa2" }),
             3);
    QVERIFY2(m_said.contains("a\\x7fb.pqa2") && m_complaint.contains("a\\x7fb.pqa2"), m_said + m_complaint);
}

void TstInfoTool::furtherFaultsAreCounted()
{
    QVERIFY(QDir().mkpath(path("torn")));
    QVERIFY(P::recording(2).save(path("torn/Common.pqa2"))); // without its end
    QCOMPARE(call({ "verify", "torn" }), 1);
    QVERIFY2(!m_complaint.contains("more"), m_complaint);
    QVERIFY(P::save(path("torn/U Harmonic(1-50).pqa2"), P::fileHead().left(23)));
    QCOMPARE(call({ "verify", "torn" }), 1);
    QVERIFY2(m_complaint.endsWith(" (and 1 more)\n"), m_complaint);
}

void TstInfoTool::aDashIsAPath()
{
    QVERIFY(P::recording(1).end(P::kSeconds).save(path("-")));
    QCOMPARE(call({ "verify", "-" }), 0);
    QCOMPARE(m_said, QByteArray("-: whole\n"));
}

void TstInfoTool::anEmptyValueIsNone()
{
    QVERIFY(P::recording(1).end(P::kSeconds).save(path("file.pqa2")));
    for (const char *option : { "--limits", "--language" }) {
        const QString empty = QLatin1String(option) + QStringLiteral("=");
        QCOMPARE(call({ "report", "file.pqa2", "--html", "report.html", empty }), 64);
        QVERIFY2(m_complaint.contains(option + QByteArray(" needs a ")), m_complaint);
    }
    QVERIFY(!QFile::exists(path("report.html")));
}

void TstInfoTool::compressedFileIsTheShorterOne()
{
    const QString file = QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/monitor.pqa2");
    QCOMPARE(call({ "export", file, "--pqdif", "plain.pqd" }), 0);
    QCOMPARE(call({ "export", file, "--pqdif-zlib", "short.pqd" }), 0);
    QVERIFY(P::bytesOf(path("short.pqd")).size() > 0);
    QVERIFY(P::bytesOf(path("short.pqd")).size() < P::bytesOf(path("plain.pqd")).size());
}

QTEST_GUILESS_MAIN(TstInfoTool)
#include "tst_infotool.moc"
