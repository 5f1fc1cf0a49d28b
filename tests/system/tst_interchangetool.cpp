// COMTRADE and PQDIF from the command line: what the tool makes of whole, cut and foreign recordings, and what it
// leaves alone.
#include "testpaths.h"
#include "unit/record/comtradereading.h"
#include "unit/record/pqdifreading.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

enum Status { Whole = 0, Cut = 1, WrongUse = 64 };

QString data(const char *name)
{
    return QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/") + QLatin1String(name);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

} // namespace

class TstInterchangeTool : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(m_folder->isValid());
    }

    void recordingBecomesAPqdifFile_data();
    void recordingBecomesAPqdifFile();
    void captureBecomesAPair();
    void cutRecordingIsExportedUpToTheCut();
    void anotherFileIsReplacedOnlyWhenAsked();
    void recordingWithoutWaveformsHasNoPairs();
    void unwritableOutputLeavesNothing();

private:
    QString at(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    /// All that stands in the folder.
    QStringList left() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    int exported(const QString &input, const QStringList &options)
    {
        QProcess process;
        process.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-files"), QStringList { "export", input } + options);
        if (!process.waitForFinished(300000) || process.exitStatus() != QProcess::NormalExit)
            return -1;
        m_said = process.readAllStandardError();
        return process.exitCode();
    }

    QScopedPointer<QTemporaryDir> m_folder;
    QByteArray m_said;
};

void TstInterchangeTool::recordingBecomesAPqdifFile_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("plain") << QStringLiteral("--pqdif");
    QTest::newRow("compressed") << QStringLiteral("--pqdif-zlib");
}

void TstInterchangeTool::recordingBecomesAPqdifFile()
{
    QFETCH(QString, option);
    QCOMPARE(exported(data("recorder"), { option, at("r.pqd") }), int(Whole));
    QCOMPARE(m_said, QByteArray());
    QCOMPARE(left(), QStringList({ "r.pqd" }));
    const PqdifReading::File file = PqdifReading::read(contentOf(at("r.pqd")));
    QCOMPARE(file.fault, QString());
    QCOMPARE(file.dataSource()["tagNameDS"].text, QByteArray("recorder"));
    QVERIFY(file.definitionIndex("U_rms L1 (rms)") >= 0);
}

void TstInterchangeTool::captureBecomesAPair()
{
    QCOMPARE(exported(data("capture.wav"), { "--comtrade", at("pairs") }), int(Whole));
    QCOMPARE(QDir(at("pairs")).entryList(QDir::Files, QDir::Name),
             QStringList({ "0001_capture.cfg", "0001_capture.dat" }));
    QCOMPARE(ComtradeReading::readFiles(at("pairs/0001_capture")).fault, QString());
}

void TstInterchangeTool::cutRecordingIsExportedUpToTheCut()
{
    const QByteArray whole = contentOf(data("recorder/Common.pqa2"));
    QFile cut(at("Common.pqa2"));
    QVERIFY(cut.open(QIODevice::WriteOnly));
    QCOMPARE(cut.write(whole.left(whole.size() - 1000)), qint64(whole.size() - 1000));
    cut.close();
    QCOMPARE(exported(at("Common.pqa2"), { "--pqdif", at("r.pqd") }), int(Cut));
    QVERIFY2(m_said.contains("Common.pqa2"), m_said.constData());
    const PqdifReading::File file = PqdifReading::read(contentOf(at("r.pqd")));
    QCOMPARE(file.fault, QString());
    QVERIFY(!file.observations().empty());
}

void TstInterchangeTool::anotherFileIsReplacedOnlyWhenAsked()
{
    QFile other(at("r.pqd"));
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.write("mine");
    other.close();
    QCOMPARE(exported(data("recorder"), { "--pqdif", at("r.pqd") }), int(WrongUse));
    QVERIFY2(m_said.contains("r.pqd"), m_said.constData());
    QCOMPARE(contentOf(at("r.pqd")), QByteArray("mine"));
    QCOMPARE(exported(data("recorder"), { "--pqdif", at("r.pqd"), "--force" }), int(Whole));
    QCOMPARE(PqdifReading::read(contentOf(at("r.pqd"))).fault, QString());
}

void TstInterchangeTool::recordingWithoutWaveformsHasNoPairs()
{
    QCOMPARE(exported(data("monitor.pqa2"), { "--comtrade", at("pairs") }), int(Whole));
    QCOMPARE(QDir(at("pairs")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

void TstInterchangeTool::unwritableOutputLeavesNothing()
{
    QCOMPARE(exported(data("recorder"), { "--pqdif", at("missing/r.pqd") }), int(WrongUse));
    QCOMPARE(exported(at("nothing"), { "--pqdif", at("r.pqd") }), 3);
    QCOMPARE(left(), QStringList());
}

QTEST_APPLESS_MAIN(TstInterchangeTool)
#include "tst_interchangetool.moc"
