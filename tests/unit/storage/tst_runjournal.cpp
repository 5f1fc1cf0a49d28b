#include <QRegularExpression>
#include <QTest>

#include "storage/runjournal.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"

#include <sys/stat.h>

namespace {

const QString kJournal = QStringLiteral("/mnt/storage/.running");

QByteArray stored()
{
    RootFiles::waitForDisks();
    return RootFiles::read(kJournal);
}

} // namespace

/// The file that names what is being recorded.
class TstRunJournal : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void withoutARunThereIsNoFile()
    {
        RunJournal journal;
        journal.end("never begun");
        journal.forget("never found");
        QCOMPARE(stored(), QByteArray("(missing)"));
        QVERIFY(journal.interrupted().isEmpty());
    }

    void itStandsThereWhileARunGoesOn()
    {
        RunJournal journal;
        journal.begin("231114_221320 Logger_1");
        QCOMPARE(stored(), QByteArray("231114_221320 Logger_1\n"));
        journal.begin("Wave_1.wav");
        QCOMPARE(stored(), QByteArray("231114_221320 Logger_1\nWave_1.wav\n"));
        const QByteArray commands = RootFiles::commands();
        journal.begin("Wave_1.wav");
        QCOMPARE(stored(), QByteArray("231114_221320 Logger_1\nWave_1.wav\n"));
        QCOMPARE(RootFiles::commands(), commands); // the card is spared what it holds already
        journal.end("231114_221320 Logger_1");
        QCOMPARE(stored(), QByteArray("Wave_1.wav\n"));
        journal.end("Wave_1.wav");
        QCOMPARE(stored(), QByteArray("(missing)"));
        QVERIFY(RootFiles::commands().endsWith("sync\n"));
    }

    void theNextStartFindsWhatWasCutUntilItIsForgotten()
    {
        RootFiles::write(kJournal, "231114_221320 Logger_1\n\xd0\x96.wav\n");
        RunJournal next;
        QCOMPARE(next.interrupted(), QStringList({ "231114_221320 Logger_1", QStringLiteral("Ж.wav") }));
        next.begin("Wave_2.wav");
        QCOMPARE(stored(), QByteArray("231114_221320 Logger_1\n\xd0\x96.wav\nWave_2.wav\n"));
        next.forget("231114_221320 Logger_1");
        next.forget("Wave_2.wav"); // it is not over
        QCOMPARE(stored(), QByteArray("\xd0\x96.wav\nWave_2.wav\n"));
        next.end(QStringLiteral("Ж.wav")); // it never went on
        QCOMPARE(next.interrupted(), QStringList { QStringLiteral("Ж.wav") });
    }

    void whatGoesOnFromAnotherTakesItsPlace()
    {
        RunJournal journal;
        journal.begin("Logger_1_00.csv");
        journal.begin("Wave_1.wav");
        journal.begin("Logger_1_01.csv", "Logger_1_00.csv");
        QCOMPARE(stored(), QByteArray("Wave_1.wav\nLogger_1_01.csv\n"));
    }

    void aJournalThatSomebodyTookAwayIsWrittenAnew()
    {
        RunJournal journal;
        journal.begin("one");
        QCOMPARE(stored(), QByteArray("one\n"));
        QVERIFY(QFile::remove(Target::path(kJournal)));
        journal.end("one");
        QCOMPARE(stored(), QByteArray("(missing)"));
        journal.begin("one");
        QCOMPARE(stored(), QByteArray("one\n"));
    }

    void aNewRunTakesThePlaceOfACutOneOfItsName()
    {
        RootFiles::write(kJournal, "Wave_1.wav\n");
        RunJournal journal;
        journal.begin("Wave_1.wav");
        QVERIFY(journal.interrupted().isEmpty());
        journal.end("Wave_1.wav");
        QCOMPARE(stored(), QByteArray("(missing)"));
    }

    void noLineLeadsOutOfTheStorageOrIsUnreadable()
    {
        RootFiles::write(
            kJournal, QByteArray("../userfs\n\n.infomation\na/b\n") + '\0' + "\ngood\ngood\nlast without a line feed");
        RunJournal journal;
        QCOMPARE(journal.interrupted(), QStringList({ "good", "last without a line feed" }));
        journal.begin("two\nlines");
        journal.begin("../x");
        RootFiles::waitForDisks();
        QCOMPARE(RunJournal().interrupted().size(), 2);
    }

    void aMillionLinesAreNotTakenIn()
    {
        QByteArray text;
        for (int i = 0; i < 1000; ++i)
            text += QByteArray::number(i) + '\n';
        RootFiles::write(kJournal, text);
        QCOMPARE(RunJournal().interrupted().size(), 64);
        RootFiles::write(kJournal, text.repeated(1000));
        QCOMPARE(RunJournal().interrupted().size(), 0);
    }

    void whatIsNoFileHoldsNoStartUp()
    {
        QCOMPARE(::mkfifo(QFile::encodeName(Target::path(kJournal)).constData(), 0644), 0);
        QVERIFY(RunJournal().interrupted().isEmpty());
    }

    void onAFullCardTheOldNamesStayAndTheLastOneGoes()
    {
        RunJournal journal;
        journal.begin("one");
        journal.begin("two");
        RootFiles::waitForDisks();
        {
            const FileLimit full(0);
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: RunJournal"));
            journal.begin("three");
            QCOMPARE(stored(), QByteArray("one\ntwo\n"));
            journal.end("three"); // as the file says already
            QCOMPARE(stored(), QByteArray("one\ntwo\n"));
            QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: RunJournal"));
            journal.end("one");
            QCOMPARE(stored(), QByteArray("one\ntwo\n"));
            journal.end("two");
            QCOMPARE(stored(), QByteArray("(missing)"));
        }
        QVERIFY(!RootFiles::exists(kJournal + ".bak"));
    }

    void withoutRoomForAnotherFileANameThatEndedGoesAllTheSame()
    {
        RunJournal journal;
        journal.begin("one");
        journal.begin("two");
        RootFiles::waitForDisks();
        QVERIFY(QDir().mkpath(Target::path(kJournal + ".bak"))); // no staging copy can be made
        journal.end("one");
        RootFiles::waitForDisks();
        QCOMPARE(RunJournal().interrupted(), QStringList { "two" });
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("open fail: RunJournal"));
        journal.begin("three"); // what is longer needs room
        RootFiles::waitForDisks();
        QCOMPARE(RunJournal().interrupted(), QStringList { "two" });
        journal.end("three");
        journal.end("two");
        QCOMPARE(stored(), QByteArray("(missing)"));
    }

    void whatAStartForgetsNeedsNoRoomAndLeavesNothingBehind()
    {
        RootFiles::write(kJournal, "a long name.wav\nb\n");
        QVERIFY(QDir().mkpath(Target::path(kJournal + ".bak"))); // no staging copy can be made
        RunJournal journal;
        journal.forget("a long name.wav");
        RootFiles::waitForDisks();
        QCOMPARE(RunJournal().interrupted(), QStringList { "b" });
    }

    void aRunThatWaitsStandsThereUntilItBegins()
    {
        RunJournal journal;
        journal.plan({ "My\nlog, 7", 1'700'000'000 });
        QCOMPARE(stored(), QByteArray(".planned 1700000000 My log, 7\n"));
        QVERIFY(journal.missed().isEmpty()); // the supply is there
        journal.plan({ "Wave_1", 1'700'000'001 }); // in its place
        journal.begin("231114_221320 Logger_1");
        QCOMPARE(stored(), QByteArray(".planned 1700000001 Wave_1\n231114_221320 Logger_1\n"));
        journal.endPlan();
        QCOMPARE(stored(), QByteArray("231114_221320 Logger_1\n"));
        journal.end("231114_221320 Logger_1");
        QCOMPARE(stored(), QByteArray("(missing)"));
    }

    void theNextStartFindsWhatWaitedUntilItIsForgotten()
    {
        RootFiles::write(kJournal,
                         ".planned 1700000000 My log\n.planned\n.planned x y\n.planned 5\n.planned -1 a\nWave_1.wav\n");
        RunJournal next;
        QCOMPARE(next.missed().size(), 1);
        QCOMPARE(next.missed()[0].name, QStringLiteral("My log"));
        QCOMPARE(next.missed()[0].start, 1'700'000'000u);
        QCOMPARE(next.interrupted(), QStringList { "Wave_1.wav" });
        next.plan({ "Later", 1'800'000'000 });
        QCOMPARE(stored(), QByteArray(".planned 1700000000 My log\n.planned 1800000000 Later\nWave_1.wav\n"));
        next.forgetMissed();
        QCOMPARE(stored(), QByteArray(".planned 1800000000 Later\nWave_1.wav\n"));
    }

    void ofManyPlansTheFirstFewAreTakenIn()
    {
        RootFiles::write(kJournal, QByteArray(".planned 5 a\n").repeated(1000));
        QCOMPARE(RunJournal().missed().size(), 4);
    }
};

QTEST_GUILESS_MAIN(TstRunJournal)
#include "tst_runjournal.moc"
