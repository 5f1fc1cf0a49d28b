#include "keptrecord.h"
#include "pqa2bytes.h"
#include "record/exports/recovery.h"
#include "record/tables/recordsource.h"
#include "testpaths.h"
#include "unit/storage/filelimit.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

using P = Pqa2Bytes;

constexpr qint64 kTime = P::kTime;
constexpr qint64 kSeconds = P::kSeconds;
const QString kMark = QStringLiteral("recovered.txt");

} // namespace

/// Sound copies of damaged records.
class TstRecovery : public QObject
{
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    Recovery::Result recover(const QString &from, const QString &to, const RecordProgress &progress = {})
    {
        QFile::remove(path(to));
        return recoverOver(from, to, progress);
    }
    Recovery::Result recoverOver(const QString &from, const QString &to, const RecordProgress &progress = {})
    {
        RecordSource source;
        if (!source.open(path(from)))
            return Recovery::Ended;
        OutputPlace place;
        place.target = path(to);
        place.input = path(from);
        place.force = true;
        Recovery recovery(place);
        const Recovery::Result result = recovery.run(source, progress);
        error = recovery.error();
        return result;
    }
    /// The times of a table of a whole record; none when it is not whole.
    QVector<qint64> wholeTimes(const QString &name, const QByteArray &table)
    {
        RecordSource source;
        KeptRecord kept;
        if (!source.open(path(name)) || source.state() != RecordState::Whole || !source.read(kept))
            return {};
        return kept.times(table);
    }

    /// One of each kind that can be recovered, as a file of the folder.
    void addOneOfEachKind()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<bool>("hasSteps"); // in which it can be interrupted
        QTest::newRow("recording") << P::recording(3).bytes() << ".pqa2" << true;
        QTest::newRow("capture") << P::bytesOf(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/capture.wav")) << ".wav"
                                 << true;
        QTest::newRow("page") << pageWith("picture") << ".pqa" << false;
        QTest::newRow("log") << QByteArray("TIME,VRMS(V) L1 AVG,FREQ AVG,\n2023/11/14  22:13:20,230.000,50.000,\n")
                             << ".csv" << true;
    }
    static QByteArray pageWith(const QByteArray &text)
    {
        const QByteArray image = QByteArray::fromHex("89504E470D0A1A0A") + text;
        return P::le(4, 4) + P::le(quint64(kSeconds), 4) + P::le(230, 4) + P::le(50, 4) + P::le(1, 4) + P::le(10000, 4)
            + P::le(quint64(image.size()), 4) + P::le(0, 4) + P::le(0x02020006, 4) + P::le(0xCC33C3C3, 4) + image
            + QByteArray::fromHex("AA55");
    }
    QStringList namesWith(const QString &part) const
    {
        return QDir(m_folder.path())
            .entryList({ QLatin1Char('*') + part + QLatin1Char('*') }, QDir::AllEntries | QDir::Hidden);
    }

    QTemporaryDir m_folder;
    QString error;

private slots:
    void everyCutGivesAWholeRecordingOfTheBlocksBefore();
    void damageInTheMiddleIsLeftOut();
    void blockThatCannotBeRightIsLeftOut();
    void wholeFileComesOutTheSame_data();
    void wholeFileComesOutTheSame();
    void folderIsRecoveredFileByFile();
    void fileThatWasJustBegunTakesNothingFromTheOthers();
    void partThatWasJustBegunLeavesTheEndToTheOneBefore();
    void missingPartsAreClosedUp();
    void partCopiedWithoutItsFurtherPartIsSound();
    void tornCaptureKeepsItsWholeFrames();
    void pageWithATornRecordKeepsItsPicture();
    void pageWithATornPictureHasNothing();
    void logKeepsItsWholeLines();
    void interruptedRecoveryLeavesNothing_data() { addOneOfEachKind(); }
    void interruptedRecoveryLeavesNothing();
    void fullDiskFailsAndLeavesNothing_data() { addOneOfEachKind(); }
    void fullDiskFailsAndLeavesNothing();
    void outputInsideTheInputIsRefused();
    void originalsAreNotReplacedByACopy();
    void copyTellsWhatItWasMadeOf();
    void copyOfTheFolderWhereOneStandsTellsItsName();
};

void TstRecovery::everyCutGivesAWholeRecordingOfTheBlocksBefore()
{
    const P file = P::recording(4).end(kSeconds + 4);
    const QByteArray bytes = file.bytes();
    const int firstRow = file.offsetOf(4);
    for (int length = firstRow; length < bytes.size(); ++length) {
        QVERIFY(P::save(path("cut.pqa2"), bytes.left(length)));
        QCOMPARE(recover("cut.pqa2", "sound.pqa2"), Recovery::Done);
        QCOMPARE(P::bytesOf(path("cut.pqa2")), bytes.left(length));
        QVector<qint64> expected;
        for (int row = 1; row <= (length - firstRow) / 24 && row <= 4; ++row)
            expected << kTime + row * 1000;
        QCOMPARE(wholeTimes("sound.pqa2", "frequency"), expected);
        RecordSource source;
        QVERIFY(source.open(path("sound.pqa2")));
        QCOMPARE(source.state(), RecordState::Whole);
    }
}

void TstRecovery::damageInTheMiddleIsLeftOut()
{
    const P file = P::recording(9).end(kSeconds + 9);
    QByteArray bytes = file.bytes();
    bytes.replace(file.offsetOf(8), 12, QByteArray(12, '\xEE')); // the head of the fifth row
    QVERIFY(P::save(path("broken.pqa2"), bytes));
    QCOMPARE(recover("broken.pqa2", "sound.pqa2"), Recovery::Done);
    QCOMPARE(wholeTimes("sound.pqa2", "frequency").size(), 8);
}

void TstRecovery::blockThatCannotBeRightIsLeftOut()
{
    QVERIFY(P::recording(1)
                .timed(0xA1000029, -5, P::f32(1))
                .timed(0xA1000020, kTime + 2000, P::f32(1)) // 13 values for each of four inputs belong there
                .timed(0xA1000029, kTime + 3000, P::f32(3))
                .end(kSeconds + 3)
                .save(path("odd.pqa2")));
    QCOMPARE(recover("odd.pqa2", "sound.pqa2"), Recovery::Done);
    QCOMPARE(wholeTimes("sound.pqa2", "frequency"), QVector<qint64>({ kTime + 1000, kTime + 3000 }));
}

void TstRecovery::wholeFileComesOutTheSame_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : { "monitor.pqa2", "capture.wav", "recorder/Common.pqa2", "recorder/U Harmonic(1-50).pqa2" })
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TstRecovery::wholeFileComesOutTheSame()
{
    QFETCH(QString, name);
    const QByteArray bytes = P::bytesOf(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/") + name);
    QVERIFY(!bytes.isEmpty());
    QVERIFY(P::save(path("same"), bytes));
    QCOMPARE(recover("same", "copy"), Recovery::Done);
    QCOMPARE(P::bytesOf(path("copy")), bytes);
}

void TstRecovery::folderIsRecoveredFileByFile()
{
    QVERIFY(QDir().mkpath(path("record")));
    const QByteArray common = P::recording(3).bytes();
    QVERIFY(P::save(path("record/Common.pqa2"), common));
    QVERIFY(P().opening().timed(0xA1000030, kTime, P::countUp(0, 208)).save(path("record/U Harmonic(1-50).pqa2")));
    QVERIFY(P::save(path("record/I Harmonic(1-50).pqa2"), {}));
    QCOMPARE(recover("record", "sound"), Recovery::Done);
    QCOMPARE(QDir(path("sound")).entryList(QDir::Files),
             QStringList({ "Common.pqa2", kMark, "U Harmonic(1-50).pqa2" })); // of the empty one there is nothing
    QCOMPARE(wholeTimes("sound", "frequency").size(), 3);
    QCOMPARE(wholeTimes("sound", "harmonics_u").size(), 1);
    QCOMPARE(P::bytesOf(path("record/Common.pqa2")), common);
}

void TstRecovery::fileThatWasJustBegunTakesNothingFromTheOthers()
{
    QVERIFY(QDir().mkpath(path("begun")));
    QVERIFY(P::recording(3).save(path("begun/Common.pqa2")));
    QVERIFY(P::save(path("begun/Common_2.pqa2"), P::fileHead()));
    QVERIFY(P::recording(2).end(kSeconds + 9).save(path("begun/Common_3.pqa2")));
    QVERIFY(P::save(path("begun/I Harmonic(1-50).pqa2"), P::fileHead())); // its first block is missing
    QCOMPARE(recover("begun", "kept"), Recovery::Done);
    QCOMPARE(QDir(path("kept")).entryList(QDir::Files), QStringList({ "Common.pqa2", "Common_2.pqa2", kMark }));
    QCOMPARE(wholeTimes("kept", "frequency").size(), 5);
}

void TstRecovery::partThatWasJustBegunLeavesTheEndToTheOneBefore()
{
    QVERIFY(QDir().mkpath(path("change")));
    QVERIFY(P::recording(3).save(path("change/Common.pqa2")));
    QVERIFY(P::save(path("change/Common_2.pqa2"), P::fileHead().left(23)));
    QCOMPARE(recover("change", "ended"), Recovery::Done);
    QCOMPARE(QDir(path("ended")).entryList(QDir::Files), QStringList({ "Common.pqa2", kMark }));
    QCOMPARE(wholeTimes("ended", "frequency").size(), 3);
}

void TstRecovery::missingPartsAreClosedUp()
{
    QVERIFY(QDir().mkpath(path("gap")));
    QVERIFY(P::recording(2).save(path("gap/Common.pqa2")));
    QVERIFY(P::recording(3).end(kSeconds + 9).save(path("gap/Common_3.pqa2")));
    QCOMPARE(recover("gap", "closed"), Recovery::Done);
    QCOMPARE(QDir(path("closed")).entryList(QDir::Files), QStringList({ "Common.pqa2", "Common_2.pqa2", kMark }));
    QCOMPARE(wholeTimes("closed", "frequency").size(), 5);
}

void TstRecovery::partCopiedWithoutItsFurtherPartIsSound()
{
    QVERIFY(QDir().mkpath(path("parts")));
    const QByteArray first = P::recording(3).bytes(), second = P::recording(2).end(kSeconds + 9).bytes();
    QVERIFY(P::save(path("parts/Common.pqa2"), first) && P::save(path("parts/Common_2.pqa2"), second));
    QCOMPARE(wholeTimes("parts/Common.pqa2", "frequency").size(), 3); // it goes on beside it
    QCOMPARE(recover("parts/Common.pqa2", "part.pqa2"), Recovery::Done);
    QCOMPARE(wholeTimes("part.pqa2", "frequency").size(), 3);
    QCOMPARE(P::bytesOf(path("part.pqa2")), P::recording(3).end(kSeconds + 3).bytes());
    QCOMPARE(recover("parts/Common_2.pqa2", "part.pqa2"), Recovery::Done);
    QCOMPARE(P::bytesOf(path("part.pqa2")), second);
    QCOMPARE(recover("parts", "whole"), Recovery::Done); // with both there is one end
    QCOMPARE(P::bytesOf(path("whole/Common.pqa2")), first);
}

void TstRecovery::tornCaptureKeepsItsWholeFrames()
{
    const QByteArray bytes = P::bytesOf(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/capture.wav"));
    QVERIFY(P::save(path("torn.wav"), bytes.left(bytes.size() - 5)));
    QCOMPARE(recover("torn.wav", "sound.wav"), Recovery::Done);
    RecordSource source;
    KeptRecord torn, sound;
    QVERIFY(source.open(path("torn.wav")));
    QCOMPARE(source.state(), RecordState::Cut);
    QVERIFY(source.read(torn));
    QVERIFY(source.open(path("sound.wav")));
    QCOMPARE(source.state(), RecordState::Whole);
    QVERIFY(source.read(sound));
    QVERIFY(torn.waveforms.at(0).samples.size() > 0);
    QCOMPARE(sound.waveforms.at(0).samples, torn.waveforms.at(0).samples);
}

void TstRecovery::pageWithATornRecordKeepsItsPicture()
{
    const QByteArray image = QByteArray::fromHex("89504E470D0A1A0A") + "picture";
    const QByteArray head = P::le(4, 4) + P::le(quint64(kSeconds), 4) + P::le(230, 4) + P::le(50, 4) + P::le(1, 4)
        + P::le(10000, 4) + P::le(quint64(image.size()), 4);
    const QByteArray rest = P::le(0x02020006, 4) + P::le(0xCC33C3C3, 4);
    QVERIFY(P::save(path("torn.pqa"), head + P::le(1000, 4) + rest + image + "only a little"));
    QCOMPARE(recover("torn.pqa", "sound.pqa"), Recovery::Done);
    QCOMPARE(P::bytesOf(path("sound.pqa")), head + P::le(0, 4) + rest + image + QByteArray::fromHex("AA55"));
}

void TstRecovery::pageWithATornPictureHasNothing()
{
    const QByteArray head = P::le(4, 4) + P::le(quint64(kSeconds), 4) + P::le(230, 4) + P::le(50, 4) + P::le(1, 4)
        + P::le(10000, 4) + P::le(1000, 4) + P::le(0, 4) + P::le(0x02020006, 4) + P::le(0xCC33C3C3, 4);
    QVERIFY(P::save(path("none.pqa"), head + QByteArray::fromHex("89504E470D0A1A0A")));
    QCOMPARE(recover("none.pqa", "never.pqa"), Recovery::Nothing);
    QVERIFY(!QFile::exists(path("never.pqa")));
}

void TstRecovery::logKeepsItsWholeLines()
{
    const QByteArray head = "TIME,VRMS(V) L1 AVG,FREQ AVG,\n";
    const QByteArray first = "2023/11/14  22:13:20,230.000,50.000,\n";
    const QByteArray last = "2023/11/14  22:13:22,231.000,50.000,\n";
    QVERIFY(P::save(path("torn.csv"),
                    head + first + QByteArray(30, '\0') + "\n2023/11/14  22:13:21,1,\n" + last + "2023/11/14  22:1"));
    QCOMPARE(recover("torn.csv", "sound.csv"), Recovery::Done);
    QCOMPARE(P::bytesOf(path("sound.csv")), head + first + last);
    QVERIFY(P::save(path("torn.csv"), head + first + last.chopped(1))); // nothing but its line feed is missing
    QCOMPARE(recover("torn.csv", "sound.csv"), Recovery::Done);
    QCOMPARE(P::bytesOf(path("sound.csv")), head + first);
}

void TstRecovery::interruptedRecoveryLeavesNothing()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, suffix);
    QFETCH(bool, hasSteps);
    QVERIFY(P::save(path("long" + suffix), bytes));
    const RecordProgress ends = [](qint64, qint64) { return false; };
    QCOMPARE(recover("long" + suffix, "half" + suffix, ends), hasSteps ? Recovery::Ended : Recovery::Done);
    QCOMPARE(namesWith("half").isEmpty(), hasSteps);
    QFile::remove(path("half" + suffix));
}

void TstRecovery::fullDiskFailsAndLeavesNothing()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, suffix);
    QVERIFY(P::save(path("input" + suffix), bytes));
    QVERIFY(bytes.size() > 20);
    Recovery::Result result = Recovery::Done;
    {
        const FileLimit full(20);
        result = recover("input" + suffix, "never" + suffix);
    }
    QCOMPARE(result, Recovery::Failed);
    QVERIFY2(error.startsWith(path("never" + suffix) + ": "), qPrintable(error));
    QCOMPARE(namesWith("never"), QStringList());
    QCOMPARE(recover("input" + suffix, "room" + suffix), Recovery::Done); // it was the disk
}

void TstRecovery::outputInsideTheInputIsRefused()
{
    QVERIFY(QDir().mkpath(path("input")));
    QVERIFY(P::recording(3).save(path("input/Common.pqa2")));
    QCOMPARE(recover("input", "input/sound"), Recovery::Failed);
    QVERIFY(!error.isEmpty());
    QCOMPARE(QDir(path("input")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({ "Common.pqa2" }));
}

void TstRecovery::originalsAreNotReplacedByACopy()
{
    QVERIFY(QDir().mkpath(path("torn")) && QDir().mkpath(path("original")));
    QVERIFY(P::recording(3).save(path("torn/Common.pqa2")));
    const QByteArray original = P::recording(5).end(kSeconds + 9).bytes();
    QVERIFY(P::save(path("original/Common.pqa2"), original) && P::save(path("original.pqa2"), original));
    QCOMPARE(recoverOver("torn", "original"), Recovery::Failed);
    QVERIFY2(error.contains("holds the recording \"Common.pqa2\""), qPrintable(error));
    QCOMPARE(recoverOver("torn/Common.pqa2", "original.pqa2"), Recovery::Failed);
    QVERIFY2(error.contains("is a recording and is not replaced"), qPrintable(error));
    QCOMPARE(P::bytesOf(path("original/Common.pqa2")), original);
    QCOMPARE(P::bytesOf(path("original.pqa2")), original);
    // An earlier copy is.
    QCOMPARE(recoverOver("original", "again"), Recovery::Done);
    QCOMPARE(recoverOver("torn", "again"), Recovery::Done);
    QCOMPARE(wholeTimes("again", "frequency").size(), 3);
}

void TstRecovery::copyTellsWhatItWasMadeOf()
{
    QVERIFY(QDir().mkpath(path("240118_161500 Record 1")));
    const QByteArray bytes = P::recording(3).bytes();
    QVERIFY(P::save(path("240118_161500 Record 1/Common.pqa2"), bytes));
    QCOMPARE(recover("240118_161500 Record 1/", "told"), Recovery::Done);
    QCOMPARE(P::bytesOf(path("told/") + kMark),
             "What could be read of \"240118_161500 Record 1\", copied by quvera-files.\n"
             "Common.pqa2: byte "
                 + QByteArray::number(bytes.size()) + ": the recording has no end\n");
}

void TstRecovery::copyOfTheFolderWhereOneStandsTellsItsName()
{
    QVERIFY(QDir().mkpath(path("240118_161500 Here")));
    QVERIFY(P::recording(3).save(path("240118_161500 Here/Common.pqa2")));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(path("240118_161500 Here")));
    RecordSource source;
    const bool isOpen = source.open(QStringLiteral("."));
    Recovery recovery({ path("here"), QStringLiteral("."), false });
    const Recovery::Result result = recovery.run(source, {});
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(isOpen);
    QCOMPARE(result, Recovery::Done);
    QVERIFY(P::bytesOf(path("here/") + kMark).startsWith("What could be read of \"240118_161500 Here\", "));
}

QTEST_APPLESS_MAIN(TstRecovery)
#include "tst_recovery.moc"
