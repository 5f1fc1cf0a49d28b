#include "record/exports/output.h"
#include "record/exports/outputfile.h"
#include "refusedcalls.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/withoutroot.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isTableName(const QString &name)
{
    return name.endsWith(QStringLiteral(".csv"));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

void put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

bool fill(const QString &path, const QByteArray &content)
{
    OutputFile file;
    file.open(path);
    file.write(content);
    return file.close();
}

} // namespace

/// An export is there whole or not at all, and nothing that is no export is lost to it.
class TstOutput : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.reset(new QTemporaryDir);
        QVERIFY(m_folder->isValid());
    }
    void cleanup() { g_refused = {}; }

    void fileTakesItsNameAtTheEndOnly();
    void folderTakesItsNameAtTheEndOnly();
    void unfinishedOutputLeavesNothing_data();
    void unfinishedOutputLeavesNothing();
    void existingTargetIsRefusedWithoutForce_data();
    void existingTargetIsRefusedWithoutForce();
    void forceReplacesAnEarlierFile();
    void forceReplacesAnEarlierFolderAsAWhole();
    void failedReplacementKeepsTheEarlierOutput();
    void forceReplacesNothingThatIsNoExport();
    void nothingIsWrittenIntoTheInput();
    void whatAppearsMeanwhileStays();
    void missingFolderAndMissingNameAreNamed();
    void placeThatCannotBeNamesItsReason();
    void nothingIsMadeBesideAThousandLeftovers();
    void firstThingThatWentWrongIsTold();
    void folderWhoseInsideMayNotBeSeenStays();
    void diskWithoutFlagsOfRenaming_data();
    void diskWithoutFlagsOfRenaming();
    void diskThatRefusesTheNewName_data();
    void diskThatRefusesTheNewName();
    void slashAtTheEndOfAFolderIsNothing();
    void largePiecesAndSmallOnesStandInOrder();
    void refusedWriteIsToldWhenTheFileIsClosed();
    void interruptedWriteGoesOn();
    void diskThatTakesNothingIsTold();
    void fileNeverFollowsALink();
    void inputHasTheNameThatStandsInItsFolder();

private:
    QString at(const char *name) const { return m_folder->filePath(QLatin1String(name)); }
    /// Everything in the test's folder, hidden names too.
    QStringList names() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TstOutput::fileTakesItsNameAtTheEndOnly()
{
    Output output(Output::File, { at("out.db"), QString(), false });
    QVERIFY2(output.begin(), qPrintable(output.error()));
    QVERIFY(fill(output.path(), "content"));
    QVERIFY(!QFile::exists(at("out.db")));
    QCOMPARE(QFileInfo(output.path()).path(), m_folder->path()); // a rename must not cross disks
    QVERIFY2(output.finish(), qPrintable(output.error()));
    QCOMPARE(names(), QStringList("out.db"));
    QCOMPARE(contentOf(at("out.db")), QByteArray("content"));
}

void TstOutput::folderTakesItsNameAtTheEndOnly()
{
    Output output(Output::Folder, { at("out"), QString(), false });
    QVERIFY2(output.begin(), qPrintable(output.error()));
    QVERIFY(output.makeFolder("waveforms"));
    QVERIFY(fill(output.path() + "/rms.csv", "a"));
    QVERIFY(fill(output.path() + "/waveforms/0001.csv", "b"));
    QVERIFY(!QFile::exists(at("out")));
    QVERIFY2(output.finish(), qPrintable(output.error()));
    QCOMPARE(names(), QStringList("out"));
    QCOMPARE(contentOf(at("out/rms.csv")), QByteArray("a"));
    QCOMPARE(contentOf(at("out/waveforms/0001.csv")), QByteArray("b"));
}

void TstOutput::unfinishedOutputLeavesNothing_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("file") << int(Output::File);
    QTest::newRow("folder") << int(Output::Folder);
}

void TstOutput::unfinishedOutputLeavesNothing()
{
    QFETCH(int, kind);
    {
        Output output(Output::Kind(kind), { at("out"), QString(), false });
        QVERIFY(output.begin());
        if (kind == Output::Folder)
            QVERIFY(output.makeFolder("waveforms") && fill(output.path() + "/waveforms/0001.csv", "half"));
        QCOMPARE(names().size(), 1);
    }
    QCOMPARE(names(), QStringList());
    {
        // What failed is not put in place, even if its maker finishes it.
        Output output(Output::Kind(kind), { at("out"), QString(), false });
        QVERIFY(output.begin());
        QVERIFY(!output.fail("rms.csv", "no room"));
        QVERIFY(!output.finish());
        QCOMPARE(output.error(), at("out/rms.csv") + ": no room");
    }
    QCOMPARE(names(), QStringList());
}

void TstOutput::existingTargetIsRefusedWithoutForce_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    for (const char *name : { "file", "folder", "deadlink", "pipe" }) {
        QTest::addRow("file over %s", name) << int(Output::File) << name;
        QTest::addRow("folder over %s", name) << int(Output::Folder) << name;
    }
}

void TstOutput::existingTargetIsRefusedWithoutForce()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    put(at("file"), "mine");
    QVERIFY(QDir(m_folder->path()).mkdir("folder"));
    QVERIFY(QFile::link("/nowhere", at("deadlink")));
    QCOMPARE(::mkfifo(QFile::encodeName(at("pipe")).constData(), 0600), 0);
    const QStringList before = names();
    Output output(Output::Kind(kind), { m_folder->filePath(name), QString(), false }, isTableName);
    QVERIFY(!output.begin());
    QVERIFY2(output.error().contains("is there already (--force replaces it)"), qPrintable(output.error()));
    QVERIFY(output.isRefused());
    QCOMPARE(names(), before);
    QCOMPARE(contentOf(at("file")), QByteArray("mine"));
}

void TstOutput::forceReplacesAnEarlierFile()
{
    put(at("out"), "earlier");
    Output output(Output::File, { at("out"), QString(), true });
    QVERIFY2(output.begin(), qPrintable(output.error()));
    QVERIFY(fill(output.path(), "new"));
    QCOMPARE(contentOf(at("out")), QByteArray("earlier"));
    QVERIFY2(output.finish(), qPrintable(output.error()));
    QCOMPARE(contentOf(at("out")), QByteArray("new"));
    QCOMPARE(names(), QStringList("out"));
}

// Tables that the new recording does not have must not stay beside those that it has.
void TstOutput::forceReplacesAnEarlierFolderAsAWhole()
{
    QVERIFY(QDir(m_folder->path()).mkpath("out/waveforms"));
    put(at("out/power.csv"), "earlier");
    put(at("out/waveforms/0007.csv"), "earlier");
    Output output(Output::Folder, { at("out"), QString(), true }, isTableName);
    QVERIFY2(output.begin(), qPrintable(output.error()));
    QVERIFY(fill(output.path() + "/rms.csv", "new"));
    QVERIFY2(output.finish(), qPrintable(output.error()));
    QCOMPARE(QDir(at("out")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList("rms.csv"));
    QCOMPARE(names(), QStringList("out"));
}

void TstOutput::failedReplacementKeepsTheEarlierOutput()
{
    QVERIFY(QDir(m_folder->path()).mkdir("out"));
    put(at("out/rms.csv"), "earlier");
    {
        Output output(Output::Folder, { at("out"), QString(), true }, isTableName);
        QVERIFY(output.begin());
        QVERIFY(fill(output.path() + "/rms.csv", "half"));
    }
    QCOMPARE(contentOf(at("out/rms.csv")), QByteArray("earlier"));
    QCOMPARE(names(), QStringList("out"));
}

void TstOutput::forceReplacesNothingThatIsNoExport()
{
    QVERIFY(QDir(m_folder->path()).mkpath("photos/deep"));
    put(at("photos/rms.csv"), "a");
    put(at("photos/deep/.holiday.jpg"), "b");
    put(at("file"), "mine");
    QVERIFY(QDir(m_folder->path()).mkpath("logs"));
    put(at("logs/240118.csv"), "TIME,U1 rms mean(V)\n");
    put(at("240118.csv"), "TIME,U1 rms mean(V)\n");
    QVERIFY(QDir(m_folder->path()).mkpath("bytes"));
    FILE *file = std::fopen(QFile::encodeName(at("bytes/")).append("J\xFCrgen.jpg").constData(), "w");
    QVERIFY(file && std::fclose(file) == 0); // a name that is no text
    QVERIFY(QFile::link(at("photos"), at("link")));
    QCOMPARE(::mkfifo(QFile::encodeName(at("pipe")).constData(), 0600), 0);
    const QStringList before = names();
    const struct
    {
        Output::Kind kind;
        const char *name;
        const char *reason;
    } cases[] = {
        { Output::Folder, "photos", "holds \"deep/.holiday.jpg\", which is no export" },
        { Output::Folder, "bytes", "which is no export" },
        { Output::Folder, "logs", "holds the recording \"240118.csv\"" },
        { Output::File, "240118.csv", "is a recording" },
        { Output::Folder, "file", "is no folder" },
        { Output::Folder, "link", "is no folder" },
        { Output::File, "photos", "is no ordinary file" },
        { Output::File, "pipe", "is no ordinary file" },
        { Output::File, "link", "is no ordinary file" },
    };
    for (const auto &c : cases) {
        Output output(c.kind, { at(c.name), QString(), true }, isTableName);
        QVERIFY2(!output.begin(), c.name);
        QVERIFY2(output.error().contains(QLatin1String(c.reason)), qPrintable(output.error()));
    }
    Output top(Output::Folder, { "/", QString(), true }, isTableName);
    QVERIFY(!top.begin());
    const QString named = top.error().section(QLatin1Char('"'), 1, 1);
    QVERIFY2(QFileInfo(QLatin1Char('/') + named).isSymLink() || QFile::exists(QLatin1Char('/') + named),
             qPrintable(top.error()));
    // Filled while the export was under way.
    QVERIFY(QDir(m_folder->path()).mkdir("out"));
    Output output(Output::Folder, { at("out"), QString(), true }, isTableName);
    QVERIFY(output.begin());
    put(at("out/letter.txt"), "mine");
    QVERIFY(!output.finish());
    QCOMPARE(contentOf(at("out/letter.txt")), QByteArray("mine"));
    QCOMPARE(contentOf(at("photos/deep/.holiday.jpg")), QByteArray("b"));
    QVERIFY(QDir(at("out")).removeRecursively());
    QCOMPARE(contentOf(at("file")), QByteArray("mine"));
    for (const QString &name : before)
        QVERIFY2(names().contains(name), qPrintable(name));
}

void TstOutput::nothingIsWrittenIntoTheInput()
{
    QVERIFY(QDir(m_folder->path()).mkpath("recording/deep"));
    put(at("recording/Common.pqa2"), "r");
    put(at("capture.csv"), "c");
    QVERIFY(QFile::link(at("recording"), at("link")));
    const struct
    {
        const char *input, *target;
        Output::Kind kind;
    } cases[] = {
        { "recording", "recording/out", Output::Folder },
        { "recording", "recording/out.db", Output::File },
        { "recording", "recording/deep/out", Output::File },
        { "recording", "link/out", Output::File },
        { "link", "recording/out", Output::Folder },
        { "recording", "recording/deep/../out", Output::File },
        { "capture.csv", "capture.csv", Output::File },
        { "recording", "recording", Output::Folder },
        { "recording/Common.pqa2", "recording", Output::Folder },
    };
    const auto isAnything = [](const QString &) { return true; };
    for (const auto &c : cases) {
        Output output(c.kind, { at(c.target), at(c.input), true }, isAnything);
        QVERIFY2(!output.begin(), c.target);
        QVERIFY2(output.error().contains("lies in what is read"), qPrintable(output.error()));
    }
    QCOMPARE(QDir(at("recording")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList({ "Common.pqa2", "deep" }));
    QCOMPARE(contentOf(at("capture.csv")), QByteArray("c"));
    // A name that merely begins alike is another one.
    Output beside(Output::File, { at("recording.db"), at("recording"), false });
    QVERIFY2(beside.begin(), qPrintable(beside.error()));
}

void TstOutput::whatAppearsMeanwhileStays()
{
    Output output(Output::File, { at("out"), QString(), false });
    QVERIFY(output.begin());
    put(at("out"), "of another program");
    QVERIFY(!output.finish());
    QVERIFY(output.error().startsWith(at("out") + ": "));
    QCOMPARE(contentOf(at("out")), QByteArray("of another program"));
}

void TstOutput::missingFolderAndMissingNameAreNamed()
{
    Output deep(Output::Folder, { at("no/such/out"), QString(), false });
    QVERIFY(!deep.begin());
    QVERIFY2(deep.error().contains("there is no folder \"" + at("no/such") + '"'), qPrintable(deep.error()));
    Output nameless(Output::File, { QString(), QString(), false });
    QVERIFY(!nameless.begin());
    QVERIFY(nameless.error().contains("a name is missing"));
    QCOMPARE(names(), QStringList());
}

void TstOutput::placeThatCannotBeNamesItsReason()
{
    put(at("file"), "mine");
    const QString tooLong = m_folder->filePath(QString(300, QLatin1Char('x')));
    const struct
    {
        QString target;
        int reason;
    } cases[] = { { tooLong, ENAMETOOLONG }, { at("file/out"), ENOTDIR }, { "/proc/out", ENOENT } };
    for (const auto &c : cases) {
        for (const Output::Kind kind : { Output::File, Output::Folder }) {
            Output output(kind, { c.target, QString(), false });
            QVERIFY2(!output.begin() && !output.finish(), qPrintable(c.target));
            QCOMPARE(output.error(), c.target + ": " + qt_error_string(c.reason));
            QVERIFY(!output.isRefused());
        }
    }
    // What holds everything is the input, wherever the output is to lie.
    Output everywhere(Output::File, { at("out"), "/", false });
    QVERIFY(!everywhere.begin() && everywhere.isRefused());
    QVERIFY2(everywhere.error().contains("lies in what is read"), qPrintable(everywhere.error()));
    QCOMPARE(names(), QStringList("file"));
}

void TstOutput::nothingIsMadeBesideAThousandLeftovers()
{
    for (int i = 0; i < 1000; ++i)
        put(m_folder->filePath(QStringLiteral(".quvera-partial-%1-%2").arg(::getpid()).arg(i)), "left");
    {
        Output output(Output::File, { at("out"), QString(), false });
        QVERIFY(!output.begin());
        QCOMPARE(output.error(), at("out") + ": " + qt_error_string(EEXIST));
        QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral(".quvera-partial-%1-999").arg(::getpid()))));
        QVERIFY(output.begin());
    }
    QCOMPARE(names().size(), 999); // those of others stay
}

void TstOutput::firstThingThatWentWrongIsTold()
{
    Output output(Output::Folder, { at("out"), QString(), false });
    QVERIFY(!output.finish() && output.error().isEmpty()); // was not begun
    QVERIFY(output.begin() && output.makeFolder("waveforms"));
    QVERIFY(!output.makeFolder("waveforms"));
    QVERIFY(!output.fail("rms.csv", "no room"));
    QCOMPARE(output.error(), at("out/waveforms") + ": " + qt_error_string(EEXIST));
    QVERIFY(!output.finish() && !output.isRefused());
    // What was not said to write into folders replaces none that holds anything.
    QVERIFY(QDir(m_folder->path()).mkdir("earlier"));
    put(at("earlier/rms.csv"), "earlier");
    Output blind(Output::Folder, { at("earlier"), QString(), true });
    QVERIFY(!blind.begin() && blind.isRefused());
}

void TstOutput::folderWhoseInsideMayNotBeSeenStays()
{
    // From inside, so that the folders above need not be open to everybody.
    const QString before = QDir::currentPath();
    QVERIFY(QDir(m_folder->path()).mkpath("out/shut") && QDir::setCurrent(m_folder->path()));
    put("out/shut/rms.csv", "earlier");
    QCOMPARE(::chmod(".", 0777) + ::chmod("out", 0777) + ::chmod("out/shut", 0), 0);
    Output output(Output::Folder, { "out", QString(), true }, isTableName);
    bool isBegun = true;
    {
        const WithoutRoot user;
        isBegun = output.begin();
    }
    QCOMPARE(::chmod("out/shut", 0700), 0);
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(!isBegun && !output.isRefused());
    QCOMPARE(output.error(), "out: " + qt_error_string(EACCES));
    QCOMPARE(contentOf(at("out/shut/rms.csv")), QByteArray("earlier"));
}

void TstOutput::diskWithoutFlagsOfRenaming_data()
{
    QTest::addColumn<int>("reason");
    QTest::newRow("file system") << EINVAL;
    QTest::newRow("kernel") << ENOSYS;
}

void TstOutput::diskWithoutFlagsOfRenaming()
{
    QFETCH(int, reason);
    g_refused.renameWithFlags = reason;
    {
        Output file(Output::File, { at("file"), QString(), false });
        QVERIFY(file.begin() && fill(file.path(), "new"));
        QVERIFY2(file.finish(), qPrintable(file.error()));
        Output late(Output::File, { at("late"), QString(), false });
        QVERIFY(late.begin());
        put(at("late"), "mine"); // meanwhile
        QVERIFY(!late.finish());
        QCOMPARE(late.error(), at("late") + ": " + qt_error_string(EEXIST));
    }
    for (const bool isEarlierThere : { false, true }) {
        Output folder(Output::Folder, { at("out"), QString(), isEarlierThere }, isTableName);
        QVERIFY(folder.begin() && fill(folder.path() + (isEarlierThere ? "/power.csv" : "/rms.csv"), "new"));
        QVERIFY2(folder.finish(), qPrintable(folder.error()));
    }
    g_refused.renameWithFlags = 0;
    QCOMPARE(names(), QStringList({ "file", "late", "out" }));
    QCOMPARE(contentOf(at("file")), QByteArray("new"));
    QCOMPARE(contentOf(at("late")), QByteArray("mine"));
    QCOMPARE(QDir(at("out")).entryList(QDir::Files), QStringList("power.csv"));
}

void TstOutput::diskThatRefusesTheNewName_data()
{
    QTest::addColumn<int>("flags"); // answer to a name with flags
    QTest::addColumn<int>("plain"); // name without that is refused, counted from 0
    QTest::newRow("a name with flags") << EIO << -1;
    QTest::newRow("the earlier folder's") << EINVAL << 0;
    QTest::newRow("the new folder's") << EINVAL << 1;
}

void TstOutput::diskThatRefusesTheNewName()
{
    QFETCH(int, flags);
    QFETCH(int, plain);
    QVERIFY(QDir(m_folder->path()).mkdir("out"));
    put(at("out/rms.csv"), "earlier");
    {
        Output folder(Output::Folder, { at("out"), QString(), true }, isTableName);
        QVERIFY(folder.begin() && fill(folder.path() + "/rms.csv", "new"));
        g_refused.renameWithFlags = flags;
        g_refused.plainRename = plain;
        QVERIFY(!folder.finish());
        g_refused = {};
        QCOMPARE(folder.error(), at("out") + ": " + qt_error_string(EIO));
    }
    QCOMPARE(contentOf(at("out/rms.csv")), QByteArray("earlier"));
    QCOMPARE(names(), QStringList("out"));
    // A single file, with an earlier one and without.
    for (const bool force : { true, false }) {
        Output file(Output::File, { at(force ? "earlier" : "file"), QString(), force });
        if (force)
            put(at("earlier"), "mine");
        QVERIFY(file.begin());
        g_refused.renameWithFlags = EIO;
        g_refused.plainRename = 0;
        QVERIFY(!file.finish());
        g_refused = {};
        QCOMPARE(file.error(), at(force ? "earlier" : "file") + ": " + qt_error_string(EIO));
    }
    QCOMPARE(contentOf(at("earlier")), QByteArray("mine"));
    QVERIFY(!QFile::exists(at("file")));
}

void TstOutput::slashAtTheEndOfAFolderIsNothing()
{
    Output output(Output::Folder, { at("out/"), QString(), false });
    QVERIFY2(output.begin(), qPrintable(output.error()));
    QVERIFY2(output.finish(), qPrintable(output.error()));
    QCOMPARE(names(), QStringList("out"));
}

void TstOutput::largePiecesAndSmallOnesStandInOrder()
{
    OutputFile file;
    QVERIFY(file.open(at("out")));
    QByteArray all;
    for (int size : { 1, 4096, 65535, 0, 65536, 65537, 3, 300000, 5 }) {
        const QByteArray piece(size, char('a' + all.size() % 26));
        file.write(piece);
        all += piece;
        for (int i = 0; i < 40; ++i) {
            char *room = file.room();
            std::fill_n(room, OutputFile::kMostRoom, '.');
            file.wrote(room + OutputFile::kMostRoom);
            all += QByteArray(OutputFile::kMostRoom, '.');
        }
    }
    QVERIFY(file.close());
    QVERIFY(contentOf(at("out")) == all);
}

void TstOutput::refusedWriteIsToldWhenTheFileIsClosed()
{
    OutputFile file;
    {
        const FileLimit full(100000);
        QVERIFY(file.open(at("out")));
        for (int i = 0; i < 50; ++i)
            file.write(QByteArray(5000, 'x'));
        QVERIFY(file.hasFailed() && !file.close());
    }
    QCOMPARE(file.reason(), qt_error_string(EFBIG));
    QCOMPARE(QFileInfo(at("out")).size(), 100000);
    // An unopened file takes nothing and says so.
    OutputFile closedFile;
    closedFile.write("x");
    QVERIFY(!closedFile.close());
}

void TstOutput::interruptedWriteGoesOn()
{
    OutputFile file;
    QVERIFY(file.open(at("out")));
    g_refused.nextWrite = EINTR;
    file.write(QByteArray(200000, 'x'));
    QVERIFY(!file.hasFailed() && file.close());
    QCOMPARE(contentOf(at("out")), QByteArray(200000, 'x'));
}

void TstOutput::diskThatTakesNothingIsTold()
{
    OutputFile file;
    QVERIFY(file.open(at("out")));
    g_refused.nextWriteTakesNothing = true;
    file.write(QByteArray(200000, 'x'));
    g_refused.nextClose = ENOSPC; // behind what went wrong first
    QVERIFY(file.hasFailed() && !file.close());
    QCOMPARE(file.reason(), qt_error_string(EIO));
    QVERIFY(file.open(at("out")));
    file.write("x");
    g_refused.nextClose = ENOSPC;
    QVERIFY(!file.hasFailed() && !file.close());
    QCOMPARE(file.reason(), qt_error_string(ENOSPC));
    for (const Output::Kind kind : { Output::File, Output::Folder }) {
        Output output(kind, { at("late"), QString(), false });
        QVERIFY(output.begin());
        g_refused.sync = EIO;
        QVERIFY(!output.finish());
        g_refused.sync = 0;
        QCOMPARE(output.error(), at("late") + ": " + qt_error_string(EIO));
    }
    QCOMPARE(names(), QStringList("out"));
}

void TstOutput::fileNeverFollowsALink()
{
    put(at("elsewhere"), "mine");
    QVERIFY(QFile::link(at("elsewhere"), at("out")));
    OutputFile file;
    QVERIFY(!file.open(at("out")));
    QCOMPARE(contentOf(at("elsewhere")), QByteArray("mine"));
}

void TstOutput::inputHasTheNameThatStandsInItsFolder()
{
    const QString before = QDir::currentPath();
    QVERIFY(QDir().mkpath(at("240118 Week/more")) && QDir::setCurrent(at("240118 Week")));
    QStringList names;
    for (const char *input : { ".", "./", "more/..", "more/", "..", "Common.pqa2", "/mnt/240119 Week/" })
        names << OutputPlace { {}, QLatin1String(input), false }.inputName();
    QVERIFY(QDir::setCurrent(before));
    QCOMPARE(names,
             QStringList({ "240118 Week", "240118 Week", "240118 Week", "more", QDir(m_folder->path()).dirName(),
                           "Common.pqa2", "240119 Week" }));
}

QTEST_GUILESS_MAIN(TstOutput)
#include "tst_output.moc"
