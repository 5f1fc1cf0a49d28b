#include <QRegularExpression>
#include <QTest>

#include <QRandomGenerator>

#include "settings/config.h"
#include "storage/safefile.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/ordinaryuser.h"
#include "unit/storage/rootfiles.h"
#include "unit/storage/wornfile.h"

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
const QString kPath = QStringLiteral("/mnt/userfs/config/test.conf");
const QString kStaging = kPath + QStringLiteral(".bak");
}

/// The settings file format: reading, rewriting, and what a crash or a full disk leaves.
class TstConfig : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    // Reading

    void aMissingFileOrKeyGivesTheEmptyText()
    {
        QCOMPARE(Config::readConfigFile(kPath, "LANG"), QString());
        RootFiles::write(kPath, "SLEEP=5\n");
        QCOMPARE(Config::readConfigFile(kPath, "LANG"), QString());
    }

    void readingFindsTheValue_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("value");
        QTest::newRow("plain") << QByteArray("A=1\nLANG=ZH\nB=2\n") << "ZH";
        QTest::newRow("no line feed at the end") << QByteArray("\nLANG=ZH") << "ZH";
        QTest::newRow("empty value") << QByteArray("LANG=\n") << "";
        QTest::newRow("behind the first equals sign") << QByteArray("LANG=a=b=c\n") << "a=b=c";
        QTest::newRow("two lines of one key: the last wins") << QByteArray("LANG=ZH\nLANG=RU\n") << "RU";
        QTest::newRow("the key inside another line's value") << QByteArray("LANG=ZH\nUSER_NAME=LANGLEY\n") << "LANGLEY";
        QTest::newRow("the real line after it") << QByteArray("USER_NAME=LANGLEY\nLANG=ZH\n") << "ZH";
        QTest::newRow("the key in a comment with a value")
            << QByteArray("LANG=ZH\n# LANG=RU would be Russian\n") << "RU would be Russian";
        QTest::newRow("the key in a line without a value") << QByteArray("LANG=ZH\n# LANG\n") << "";
        QTest::newRow("another case does not match") << QByteArray("lang=ZH\n") << "";
        QTest::newRow("blanks are kept") << QByteArray("LANG= ZH \n") << " ZH ";
        QTest::newRow("carriage return is kept") << QByteArray("LANG=ZH\r\n") << "ZH\r";
        QTest::newRow("nothing behind a zero byte") << QByteArray("LANG=ZH\n\0LANG=RU\n", 17) << "ZH";
        QTest::newRow("a zero byte cuts the value") << QByteArray("LANG=Z\0H\n", 9) << "Z";
        QTest::newRow("Latin text") << QByteArray("LANG=M\xfcller\n") << QString::fromLatin1("M\xfcller");
        QTest::newRow("only line feeds") << QByteArray("\n\n\n") << "";
        QTest::newRow("binary") << QByteArray("\xff\xfe\x01LANG\x80\x90=\n=\n") << "";
    }
    void readingFindsTheValue()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, value);
        RootFiles::write(kPath, file);
        QCOMPARE(Config::readConfigFile(kPath, "LANG"), value);
    }

    void aLineOfAMegabyteIsRead()
    {
        const QByteArray longValue(1024 * 1024, 'x');
        RootFiles::write(kPath, "WIDE=" + longValue + "\nLANG=ZH\n");
        QCOMPARE(Config::readConfigFile(kPath, "LANG"), QString("ZH"));
        QCOMPARE(Config::readConfigFile(kPath, "WIDE").size(), longValue.size());
    }

    void aFileThatIsNoneOfOursCountsAsMissing_data()
    {
        QTest::addColumn<int>("kind");
        QTest::newRow("a folder of that name") << 0;
        QTest::newRow("a pipe that would block") << 1;
        QTest::newRow("a link to nothing") << 2;
        QTest::newRow("larger than a settings file can be") << 3;
    }
    void aFileThatIsNoneOfOursCountsAsMissing()
    {
        QFETCH(int, kind);
        const QByteArray path = QFile::encodeName(Target::path(kPath));
        if (kind == 0)
            QVERIFY(QDir().mkpath(Target::path(kPath)));
        else if (kind == 1)
            QVERIFY(::mkfifo(path.constData(), 0600) == 0);
        else if (kind == 2)
            QVERIFY(::symlink("nowhere", path.constData()) == 0);
        else
            RootFiles::write(kPath, "LANG=ZH\n" + QByteArray(3 * 1024 * 1024, '\n'));
        QCOMPARE(Config::readConfigFile(kPath, "LANG"), QString());
    }

    // Writing

    void theFirstWriteMakesAFileThatBeginsWithAnEmptyLine()
    {
        Config::writeConfigFile(kPath, "LANG", "ZH");
        QCOMPARE(RootFiles::read(kPath), QByteArray("\nLANG=ZH"));
        QVERIFY(!RootFiles::exists(kStaging));
    }

    void writingRewritesTheText_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after"); // of LANG=RU
        QTest::newRow("new key behind what is there") << QByteArray("A=1\n") << QByteArray("A=1\n\nLANG=RU");
        QTest::newRow("new key behind a text without line feed") << QByteArray("\nA=1") << QByteArray("\nA=1\nLANG=RU");
        QTest::newRow("replaced, empty lines gone") << QByteArray("\nA=1\n\nLANG=ZH") << QByteArray("A=1\nLANG=RU\n");
        QTest::newRow("both of two lines replaced")
            << QByteArray("LANG=ZH\nB=2\nLANG=EN\n") << QByteArray("LANG=RU\nB=2\nLANG=RU\n");
        QTest::newRow("lines without equals sign dropped")
            << QByteArray("# note\nLANG=ZH\n[x]\n") << QByteArray("LANG=RU\n");
        QTest::newRow("lines without equals sign stay when the key is new")
            << QByteArray("# note\nA=1\n") << QByteArray("# note\nA=1\n\nLANG=RU");
        QTest::newRow("a value that holds the key is replaced too")
            << QByteArray("USER_NAME=LANGLEY\n") << QByteArray("LANG=RU\n");
        QTest::newRow("the key only in a line without equals sign")
            << QByteArray("# LANG\nA=1\n") << QByteArray("A=1\n");
        QTest::newRow("empty file") << QByteArray() << QByteArray("\nLANG=RU");
    }
    void writingRewritesTheText()
    {
        QFETCH(QByteArray, before);
        RootFiles::write(kPath, before);
        Config::writeConfigFile(kPath, "LANG", "RU");
        QTEST(RootFiles::read(kPath), "after");
        QVERIFY(!RootFiles::exists(kStaging));
    }

    void eachWriteRunsSync()
    {
        Config::writeConfigFile(kPath, "A", "1");
        Config::writeConfigFile(kPath, "A", "2");
        QCOMPARE(RootFiles::commands(), QByteArray("sync\nsync\n"));
    }

    void charactersOutsideLatin1AreReplaced()
    {
        Config::writeConfigFile(kPath, "USER_NAME", QString::fromUtf8("Łódź é"));
        QCOMPARE(RootFiles::read(kPath),
                 QByteArray("\nUSER_NAME=?\xf3"
                            "d? \xe9"));
        QCOMPARE(Config::readConfigFile(kPath, "USER_NAME"), QString::fromUtf8("?ód? é"));
    }

    void anotherWriteReadsTheFileAsUtf8AndLosesItsLatinLetters()
    {
        RootFiles::write(kPath, "USER_NAME=M\xfcller\n");
        Config::writeConfigFile(kPath, "LANG", "ZH");
        QCOMPARE(RootFiles::read(kPath), QByteArray("USER_NAME=M?ller\n\nLANG=ZH"));
    }

    void aValueStaysOnItsLine()
    {
        Config::writeConfigFile(kPath, "USER_NAME", "a\nJOINMODE=9\r" + QString(QChar(0)) + "b");
        QCOMPARE(RootFiles::read(kPath), QByteArray("\nUSER_NAME=a JOINMODE=9  b"));
    }

    void writingToADamagedFileBeyondAllSizesStartsItAnew()
    {
        // Its values count as missing when read, so none of them is kept.
        RootFiles::write(kPath, "LANG=ZH\n" + QByteArray(3 * 1024 * 1024, '\n'));
        Config::writeConfigFile(kPath, "SLEEP", "5");
        QCOMPARE(RootFiles::read(kPath), QByteArray("\nSLEEP=5"));
    }

    void anUnreadableFileCountsAsMissingAndKeepsWhatItHolds()
    {
        RootFiles::write(kPath, "LANG=ZH\n");
        const QByteArray path = QFile::encodeName(Target::path(kPath));
        QVERIFY(::chmod(path.constData(), 0) == 0);
        {
            OrdinaryUser user;
            QCOMPARE(Config::readConfigFile(kPath, "LANG"), QString());
            Config::writeConfigFile(kPath, "LANG", "RU");
        }
        QVERIFY(::chmod(path.constData(), 0644) == 0);
        QCOMPARE(RootFiles::read(kPath), QByteArray("LANG=ZH\n"));
        QCOMPARE(RootFiles::read(kStaging), QByteArray("\nLANG=RU")); // waits for someone who may
    }

    void aReadThatEndsInAnErrorKeepsTheFileAndSaysSo()
    {
        QVERIFY(makeWornFile(kPath));
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("test.conf: read fail, LANG is not stored"));
        Config::writeConfigFile(kPath, "LANG", "RU");
        QVERIFY(isWornFile(kPath));
        QVERIFY(!RootFiles::exists(kStaging));
        QCOMPARE(RootFiles::commands(), QByteArray());
        QTest::ignoreMessage(QtDebugMsg, QRegularExpression("test.conf: read fail, the defaults stand"));
        QCOMPARE(Config::readConfigFile(kPath, "LANG"), QString());
    }

    void aReadOnlyFolderLosesTheWriteAndNothingElse()
    {
        RootFiles::write(kPath, "LANG=ZH\n");
        // The file itself might be written: it must not be written in place.
        QVERIFY(::chmod(QFile::encodeName(Target::path(kPath)).constData(), 0666) == 0);
        {
            OrdinaryUser user;
            const QByteArray folder = QFile::encodeName(Target::path("/mnt/userfs/config"));
            user.setFolderMode(folder, 0555);
            Config::writeConfigFile(kPath, "LANG", "RU");
            QCOMPARE(Config::readConfigFile(kPath, "LANG"), QString("ZH"));
        }
        QCOMPARE(RootFiles::read(kPath), QByteArray("LANG=ZH\n"));
        QVERIFY(!RootFiles::exists(kStaging));
    }

    // Crashes and full disks

    void aStagingCopyLeftByACrashIsNeverRead()
    {
        RootFiles::write(kPath, "LANG=ZH\n");
        const QByteArray next = "LANG=RU\n";
        for (int n = 0; n <= next.size(); ++n) { // cut at every byte, the complete copy included
            RootFiles::write(kStaging, next.left(n));
            QCOMPARE(Config::readConfigFile(kPath, "LANG"), QString("ZH"));
        }
        Config::writeConfigFile(kPath, "LANG", "KO");
        QCOMPARE(RootFiles::read(kPath), QByteArray("LANG=KO\n"));
        QVERIFY(!RootFiles::exists(kStaging));
    }

    void beforeTheRenameTheOldTextStandsAndAfterItTheNew()
    {
        RootFiles::write(kPath, "LANG=ZH\n");
        QVERIFY(SafeFile::stage(kPath, "LANG=RU\n"));
        QCOMPARE(RootFiles::read(kPath), QByteArray("LANG=ZH\n"));
        QCOMPARE(RootFiles::read(kStaging), QByteArray("LANG=RU\n"));
        QVERIFY(SafeFile::commit(kPath));
        QCOMPARE(RootFiles::read(kPath), QByteArray("LANG=RU\n"));
        QVERIFY(!RootFiles::exists(kStaging));
    }

    void aDiskFullAtAnyByteKeepsTheOldText()
    {
        const QByteArray old = "NOM_FREQ=1\nJOINMODE=4\nLANG=ZH\n";
        const QByteArray next = "NOM_FREQ=1\nJOINMODE=4\nLANG=RUSSIAN\n";
        for (int n = 0; n < next.size(); ++n) {
            RootFiles::write(kPath, old);
            {
                FileLimit full(static_cast<rlim_t>(n));
                Config::writeConfigFile(kPath, "LANG", "RUSSIAN");
            }
            QCOMPARE(RootFiles::read(kPath), old);
            QVERIFY(!RootFiles::exists(kStaging));
        }
        FileLimit justEnough(static_cast<rlim_t>(next.size()));
        Config::writeConfigFile(kPath, "LANG", "RUSSIAN");
        QCOMPARE(RootFiles::read(kPath), next);
    }

    void aFolderThatIsGoneLosesTheWriteAndNothingElse()
    {
        QVERIFY(QDir(Target::path("/mnt/userfs/config")).removeRecursively());
        Config::writeConfigFile(kPath, "LANG", "RU");
        QVERIFY(!RootFiles::exists(kPath));
        QCOMPARE(RootFiles::commands(), QByteArray());
    }

    void aFolderNamedLikeTheFileStaysAndTheTextWaitsInTheStagingCopy()
    {
        QVERIFY(QDir().mkpath(Target::path(kPath)));
        Config::writeConfigFile(kPath, "LANG", "RU");
        QVERIFY(QFileInfo(Target::path(kPath)).isDir());
        QCOMPARE(RootFiles::read(kStaging), QByteArray("\nLANG=RU"));
    }

    void aFolderNamedLikeTheStagingCopyLosesTheWrite()
    {
        RootFiles::write(kPath, "LANG=ZH\n");
        QVERIFY(QDir().mkpath(Target::path(kStaging)));
        Config::writeConfigFile(kPath, "LANG", "RU");
        QCOMPARE(RootFiles::read(kPath), QByteArray("LANG=ZH\n"));
    }

    void aPipeNamedLikeTheStagingCopyDoesNotHangTheWriter()
    {
        const QByteArray staging = QFile::encodeName(Target::path(kStaging));
        QVERIFY(::mkfifo(staging.constData(), 0600) == 0);
        ::alarm(20); // a writer that waits for a reader of the pipe would wait for ever
        Config::writeConfigFile(kPath, "LANG", "RU");
        ::alarm(0);
        QCOMPARE(RootFiles::read(kPath), QByteArray("\nLANG=RU"));
        QVERIFY(!RootFiles::exists(kStaging));
    }

    void aLinkNamedLikeTheStagingCopyLeadsNowhere()
    {
        const QString other = QStringLiteral("/mnt/userfs/sys/other");
        RootFiles::write(other, "keep");
        QVERIFY(::symlink(QFile::encodeName(Target::path(other)).constData(),
                          QFile::encodeName(Target::path(kStaging)).constData())
                == 0);
        Config::writeConfigFile(kPath, "LANG", "RU");
        QCOMPARE(RootFiles::read(other), QByteArray("keep"));
        QCOMPARE(RootFiles::read(kPath), QByteArray("\nLANG=RU"));
        QVERIFY(!QFileInfo(Target::path(kPath)).isSymLink());
    }

    void aProcessKilledWhileWritingLeavesAWholeText()
    {
        for (int round = 0; round < 12; ++round) {
            RootFiles::write(kPath, QByteArray(600, 'a') + "\nN=0\n");
            const pid_t child = ::fork();
            QVERIFY(child >= 0);
            if (child == 0) {
                for (int n = 1;; ++n)
                    SafeFile::replace(
                        kPath, QByteArray(600 + n % 7, char('a' + n % 26)) + "\nN=" + QByteArray::number(n) + "\n");
            }
            // Killed at some step of a write that is under way, once the writer has shown that it works.
            const QByteArray before = RootFiles::read(kPath);
            while (RootFiles::read(kPath) == before) { }
            for (int spin = 0; spin < round * 7; ++spin)
                RootFiles::exists(kPath);
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);
            const QByteArray text = RootFiles::read(kPath);
            const int n = Config::readConfigFile(kPath, "N").toInt();
            QCOMPARE(text, QByteArray(600 + n % 7, char('a' + n % 26)) + "\nN=" + QByteArray::number(n) + "\n");
        }
    }

    // Against a model

    void aHundredThousandWritesAndReadsFollowTheModel()
    {
        const QStringList keys
            = { "NOM_FREQ", "JOINMODE", "LANG", "SLEEP", "RATIO_IFENZI", "RATIO_VFENZI", "TZ", "SN" };
        QRandomGenerator random(20240607);
        QMap<QString, QString> model;
        QString text;
        for (int step = 0; step < 100000; ++step) {
            const QString key = keys.at(random.bounded(keys.size()));
            if (random.bounded(2)) {
                const QString value = QString::number(random.bounded(100000));
                text = Config::textWith(text, key, value);
                model[key] = value;
            }
            if (Config::valueIn(text.toLatin1(), key) != model.value(key))
                QFAIL(qPrintable(QStringLiteral("step %1, key %2, text %3").arg(step).arg(key, text)));
        }
        for (const QString &key : keys)
            QCOMPARE(text.count(key + "="), 1);
    }

    void linesThatHoldEachOthersKeysFollowTheModel()
    {
        // The model keeps the lines themselves; keys and values come from one small set, so that they overlap.
        const QStringList words = { "A", "B", "AB", "BA", "1", "" };
        QRandomGenerator random(7);
        QStringList lines = { "" }; // as a split at line feeds gives them
        QString text;
        for (int step = 0; step < 20000; ++step) {
            const QString key = words.at(random.bounded(4));
            const QString value = words.at(random.bounded(words.size()));
            const QString entry = key + "=" + value;
            if (lines.filter(key).isEmpty()) {
                lines << entry;
            } else {
                QStringList rewritten;
                for (const QString &line : qAsConst(lines)) {
                    if (line.contains("="))
                        rewritten << (line.contains(key) ? entry : line);
                }
                lines = rewritten << "";
            }
            text = Config::textWith(text, key, value);
            QCOMPARE(text, lines.join('\n'));
            if (random.bounded(50) == 0) { // anew now and then, or all lines become one
                lines = QStringList { "" };
                text.clear();
            }
        }
    }

    void writesThroughTheFileAreReadBack()
    {
        QRandomGenerator random(11);
        const QStringList keys = { "NOM_FREQ", "JOINMODE", "LANG", "SLEEP" };
        QMap<QString, QString> model;
        for (int step = 0; step < 150; ++step) {
            const QString key = keys.at(random.bounded(keys.size()));
            model[key] = QString::number(random.generate());
            Config::writeConfigFile(kPath, key, model[key]);
            for (const QString &each : keys)
                QCOMPARE(Config::readConfigFile(kPath, each), model.value(each));
        }
    }
};

QTEST_GUILESS_MAIN(TstConfig)
#include "tst_config.moc"
