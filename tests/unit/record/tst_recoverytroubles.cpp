#include "pqa2bytes.h"
#include "record/exports/recovery.h"
#include "record/tables/recordsource.h"
#include "testpaths.h"
#include "unit/storage/descriptorlimit.h"
#include "unit/storage/filelimit.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <unistd.h>

namespace {

using P = Pqa2Bytes;

constexpr qint64 kSeconds = P::kSeconds;
constexpr int kFrames = 20000;

/// A saved page with so many bytes of its picture, and of its record.
QByteArray page(int picture, int record)
{
    QByteArray head;
    for (const quint64 word : { quint64(4), quint64(kSeconds), quint64(230), quint64(50), quint64(1), quint64(10000),
                                quint64(picture), quint64(record), quint64(0x02020006), quint64(0xCC33C3C3) })
        head += P::le(word, 4);
    const QByteArray start = QByteArray::fromHex("89504E470D0A1A0A");
    return head + start.leftJustified(picture, 'p', true) + QByteArray(record, 'r') + QByteArray::fromHex("AA55");
}

QByteArray capture(int frames, quint32 rate = 5120)
{
    QByteArray bytes = P::bytesOf(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/capture.wav")).left(88);
    bytes.replace(64, 4, P::le(rate, 4)).replace(72, 8, P::le(quint64(frames), 8));
    for (int chunk = 0; chunk < 4; ++chunk)
        bytes += P::le(quint64(frames / 4) * 16, 4) + QByteArray(frames / 4 * 16, char(chunk));
    return bytes;
}

QByteArray log(int lines)
{
    QByteArray bytes = "TIME,FREQ AVG,\n";
    for (int i = 0; i < lines; ++i)
        bytes += "2023/11/14  22:13:20,50.000,\n";
    return bytes;
}

} // namespace

/// What a recovery says and leaves when its disk is full, its output is taken away, or its input changes.
class TstRecoveryTroubles : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void fullDiskInTheMidstIsNamed_data() { addLarge(); }
    void fullDiskInTheMidstIsNamed();
    void inputThatIsEmptiedHasNothing_data() { addLarge(); }
    void inputThatIsEmptiedHasNothing();
    void inputThatIsCutMeanwhileHasASoundCopyOrNone_data() { addLarge(); }
    void inputThatIsCutMeanwhileHasASoundCopyOrNone();
    void pageWithoutAPictureKeepsItsRecord();
    void whatHoldsNothingHasNothing_data();
    void whatHoldsNothingHasNothing();
    void folderThatCannotBeCopiedLeavesNothing();
    void folderWithoutABlockHasNothing();
    void fileThatBecameShorterEndsTheCopyAndIsNamed();
    void fileThatIsTakenAwayEndsTheCopyAndIsNamed();
    void folderWithALetterIsNotReplaced();
    void outputThatIsTakenAwayIsNamed();
    void targetThatAppearsMeanwhileStays();
    void withoutADescriptorNothingIsLeft();

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    QStringList hidden() const
    {
        return QDir(m_folder->path()).entryList({ ".quvera*" }, QDir::AllEntries | QDir::Hidden);
    }
    static void addLarge()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("recording") << P::recording(12000).bytes();
        QTest::newRow("capture") << capture(kFrames);
        QTest::newRow("page") << page(2 << 20, 1000);
        QTest::newRow("log") << log(8000);
    }
    Recovery::Result run(const char *from, const RecordProgress &progress = {}, bool force = false)
    {
        RecordSource source;
        source.open(path(from));
        return run(source, progress, force);
    }
    Recovery::Result run(const RecordSource &source, const RecordProgress &progress = {}, bool force = false)
    {
        Recovery recovery({ path("out"), source.path(), force });
        const Recovery::Result result = recovery.run(source, progress);
        m_error = recovery.error();
        return result;
    }
    bool makeFolder()
    {
        return QDir().mkpath(path("record")) && P::recording(3).save(path("record/Common.pqa2"))
            && P::recording(2).end(kSeconds + 9).save(path("record/Common_2.pqa2"));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_error;
};

void TstRecoveryTroubles::fullDiskInTheMidstIsNamed()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(P::save(path("in"), bytes));
    const auto goesOn = [](qint64 done, qint64 total) { return done <= total; };
    {
        const FileLimit full(70000);
        QCOMPARE(run("in", goesOn), Recovery::Failed);
    }
    QCOMPARE(m_error, path("out") + ": " + qt_error_string(EFBIG));
    QVERIFY(!QFile::exists(path("out")) && hidden().isEmpty());
    QCOMPARE(run("in", goesOn), Recovery::Done);
    RecordSource copy;
    QVERIFY(copy.open(path("out")));
    QCOMPARE(copy.state(), RecordState::Whole);
}

void TstRecoveryTroubles::inputThatIsEmptiedHasNothing()
{
    QFETCH(QByteArray, bytes);
    for (const int left : { 0, 24 }) { // the head of a recording, of others a piece of it
        QVERIFY(P::save(path("in"), bytes));
        RecordSource source;
        QVERIFY(source.open(path("in")));
        QCOMPARE(::truncate(QFile::encodeName(path("in")).constData(), left), 0);
        if (left == 24 && bytes.startsWith("TIME,"))
            continue; // a whole header, which is all that is left
        QCOMPARE(run(source), Recovery::Nothing);
        QVERIFY(!QFile::exists(path("out")) && hidden().isEmpty());
    }
}

void TstRecoveryTroubles::inputThatIsCutMeanwhileHasASoundCopyOrNone()
{
    QFETCH(QByteArray, bytes);
    const QByteArray in = QFile::encodeName(path("in"));
    for (const int part : { 2, 3, 50 }) {
        QVERIFY(P::save(path("in"), bytes));
        RecordSource source;
        QVERIFY(source.open(path("in")));
        const auto cuts = [&](qint64, qint64) { return ::truncate(in.constData(), bytes.size() / part) == 0; };
        if (bytes.contains("\x89PNG")) // without steps
            QVERIFY(cuts(0, 0));
        const Recovery::Result result = run(source, cuts);
        QCOMPARE(result == Recovery::Done, QFile::exists(path("out")));
        QVERIFY(hidden().isEmpty());
        if (result == Recovery::Done) {
            RecordSource copy;
            QVERIFY(copy.open(path("out")));
            QCOMPARE(copy.state(), RecordState::Whole);
            QVERIFY(QFile::remove(path("out")));
        } else {
            QCOMPARE(result, Recovery::Nothing);
        }
    }
}

void TstRecoveryTroubles::pageWithoutAPictureKeepsItsRecord()
{
    QVERIFY(P::save(path("in"), page(0, 100) + "more"));
    QCOMPARE(run("in"), Recovery::Done);
    QCOMPARE(P::bytesOf(path("out")), page(0, 100));
}

void TstRecoveryTroubles::whatHoldsNothingHasNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("page without pieces") << page(0, 0);
    QTest::newRow("capture without a rate") << capture(8, 0);
    QTest::newRow("log with a torn header") << QByteArray("TIME,FREQ AVG");
}

void TstRecoveryTroubles::whatHoldsNothingHasNothing()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(P::save(path("in"), bytes));
    QCOMPARE(run("in"), Recovery::Nothing);
    QVERIFY(!QFile::exists(path("out")) && hidden().isEmpty());
}

void TstRecoveryTroubles::folderThatCannotBeCopiedLeavesNothing()
{
    QVERIFY(makeFolder());
    for (const int refused : { 0, 1 }) {
        int left = refused;
        QCOMPARE(run("record", [&left](qint64, qint64) { return left-- > 0; }), Recovery::Ended);
        QVERIFY(!QFile::exists(path("out")) && hidden().isEmpty());
    }
    {
        const FileLimit full(20);
        QCOMPARE(run("record"), Recovery::Failed);
    }
    QCOMPARE(m_error, path("out") + ": " + qt_error_string(EFBIG));
    QVERIFY(!QFile::exists(path("out")) && hidden().isEmpty());
}

void TstRecoveryTroubles::folderWithoutABlockHasNothing()
{
    QVERIFY(QDir().mkpath(path("begun")) && P::save(path("begun/Common.pqa2"), P::fileHead()));
    QCOMPARE(run("begun"), Recovery::Nothing);
    QVERIFY(!QFile::exists(path("out")) && hidden().isEmpty());
}

void TstRecoveryTroubles::fileThatBecameShorterEndsTheCopyAndIsNamed()
{
    const QString second = path("record/Common_2.pqa2");
    for (const int left : { 0, 24, int(P::recording(1).bytes().size()) }) { // nothing, its head, its first block
        QVERIFY(makeFolder());
        RecordSource source;
        QVERIFY(source.open(path("record")));
        QCOMPARE(::truncate(QFile::encodeName(second).constData(), left), 0);
        QCOMPARE(run(source), Recovery::Nothing);
        QCOMPARE(m_error, QString("\"Common_2.pqa2\" became shorter while it was copied"));
        QVERIFY(!QFile::exists(path("out")) && hidden().isEmpty());
        // A second attempt knows what is there.
        QCOMPARE(run("record"), Recovery::Done);
        RecordSource copy;
        QVERIFY(copy.open(path("out")));
        QCOMPARE(copy.state(), RecordState::Whole);
        QVERIFY(QDir(path("out")).removeRecursively());
    }
}

void TstRecoveryTroubles::fileThatIsTakenAwayEndsTheCopyAndIsNamed()
{
    QVERIFY(makeFolder());
    RecordSource source;
    QVERIFY(source.open(path("record")));
    QVERIFY(QFile::remove(path("record/Common_2.pqa2")));
    QCOMPARE(run(source), Recovery::Nothing);
    QCOMPARE(m_error, "\"Common_2.pqa2\" can no longer be read: " + qt_error_string(ENOENT));
    QVERIFY(!QFile::exists(path("out")) && hidden().isEmpty());
}

void TstRecoveryTroubles::folderWithALetterIsNotReplaced()
{
    QVERIFY(makeFolder());
    QCOMPARE(run("record"), Recovery::Done);
    QVERIFY(P::save(path("out/letter.txt"), "mine"));
    QCOMPARE(run("record", {}, true), Recovery::Failed);
    QVERIFY2(m_error.contains("holds \"letter.txt\", which is no export"), qPrintable(m_error));
    QCOMPARE(P::bytesOf(path("out/letter.txt")), QByteArray("mine"));
}

void TstRecoveryTroubles::outputThatIsTakenAwayIsNamed()
{
    QVERIFY(makeFolder());
    const auto takes = [this](qint64, qint64) {
        for (const QString &name : hidden())
            QDir(m_folder->filePath(name)).removeRecursively();
        return true;
    };
    QCOMPARE(run("record", takes), Recovery::Failed);
    QCOMPARE(m_error, path("out") + ": " + qt_error_string(ENOENT));
    QVERIFY(QFile::remove(path("record/Common_2.pqa2"))); // with one file, what tells of it cannot be written
    QCOMPARE(run("record", takes), Recovery::Failed);
    QCOMPARE(m_error, path("out") + ": " + qt_error_string(ENOENT));
    QVERIFY(!QFile::exists(path("out")) && hidden().isEmpty());
}

void TstRecoveryTroubles::targetThatAppearsMeanwhileStays()
{
    QVERIFY(P::recording(3).save(path("in")));
    QCOMPARE(run("in", [this](qint64, qint64) { return P::save(path("out"), "mine"); }), Recovery::Failed);
    QCOMPARE(m_error, path("out") + ": " + qt_error_string(EEXIST));
    QCOMPARE(P::bytesOf(path("out")), QByteArray("mine"));
    QVERIFY(hidden().isEmpty());
}

void TstRecoveryTroubles::withoutADescriptorNothingIsLeft()
{
    QVERIFY(makeFolder());
    RecordSource source;
    QVERIFY(source.open(path("record")));
    Recovery::Result result = Recovery::Nothing;
    int failed = 0;
    for (rlim_t descriptors = 3; descriptors < 60 && result != Recovery::Done; ++descriptors) {
        {
            const DescriptorLimit few(descriptors);
            result = run(source);
        }
        failed += result == Recovery::Failed && m_error.endsWith(qt_error_string(EMFILE)) ? 1 : 0;
        QVERIFY2(result == Recovery::Done || !m_error.isEmpty(), "it must not pass for an empty recording");
        QCOMPARE(result == Recovery::Done, QFile::exists(path("out")));
        for (const QString &name : hidden()) // without one, no folder can be looked through either
            QVERIFY(QDir(m_folder->filePath(name)).removeRecursively());
    }
    QCOMPARE(result, Recovery::Done);
    QVERIFY(failed > 0);
}

QTEST_APPLESS_MAIN(TstRecoveryTroubles)
#include "tst_recoverytroubles.moc"
