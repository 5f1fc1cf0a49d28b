#include "testpaths.h"
#include "unit/record/largerecording.h"
#include "unit/record/pqa2bytes.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString kTool = QStringLiteral(QUVERA_BIN_DIR "/quvera-files");
const QString kData = QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/");
constexpr int kPatience = 120000; // ms, ends a hang

struct Result
{
    int code; // -1: it did not end by itself
    QByteArray output;
    QByteArray error;
};

Result run(const QStringList &words)
{
    QProcess process;
    process.start(kTool, words);
    process.waitForFinished(kPatience);
    return { process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAllStandardOutput(),
             process.readAllStandardError() };
}

QStringList entries(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

QString textOf(const QString &path)
{
    return QString::fromUtf8(Pqa2Bytes::bytesOf(QStringLiteral(QUVERA_SOURCE_DIR "/") + path));
}

} // namespace

/// quvera-files as a user calls it.
class TstFilesTool : public QObject
{
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    bool makeLarge(qint64 megabytes = 48) const { return LargeRecording().write(path("large.pqa2"), megabytes << 20); }
    /// Has the tool at work and calls \a meddle once its output has begun to grow. On a machine that is through before,
    /// with a larger recording. False: it cannot be caught.
    template <typename Meddle> bool catchAtWork(QProcess *process, const Meddle &meddle)
    {
        for (const int megabytes : { 48, 192, 768 }) {
            QDir(path("out/csv")).removeRecursively();
            if (!makeLarge(megabytes))
                return false;
            process->start(kTool, { "export", path("large.pqa2"), "--csv", path("out/csv") });
            if (!QTest::qWaitFor([&] { return !entries(path("out")).isEmpty(); }, kPatience))
                return false;
            if (::kill(pid_t(process->processId()), SIGSTOP) != 0)
                return false;
            const bool isCaught = !QFile::exists(path("out/csv"));
            if (isCaught)
                meddle(pid_t(process->processId()));
            ::kill(pid_t(process->processId()), SIGCONT);
            if (!process->waitForFinished(kPatience))
                return false;
            if (isCaught)
                return true;
        }
        return false;
    }

    std::unique_ptr<QTemporaryDir> m_folder;

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(path("out")));
    }
    void statusAndLineGoWithTheState_data();
    void statusAndLineGoWithTheState();
    void verifyGivesTheWorstOfItsPaths();
    void wrongUseIsTold_data();
    void wrongUseIsTold();
    void jsonHoldsWhatScriptsArePromised();
    void jsonOfAFolderHasAnObjectForEachFile();
    void whatIsNotKnownIsNull();
    void outputThatExistsIsRefusedWithoutForce();
    void nothingIsWrittenBesideTheInput();
    void unreadableInputMakesNoOutput();
    void recoveredFolderIsWhole();
    void whateverFailsHasOneLine();
    void diskThatTakesAPartIsNamed();
    void emptyRecordIsExportedAsItIs();
    void namesWithLineFeedsStayInOneLine();
    void namesThatAreNoTextAreReadAndWritten_data();
    void namesThatAreNoTextAreReadAndWritten();
    void pathThatBeginsWithDashesStandsBehindTwo();
    void fullOrClosedOutputIsAnError();
    void interruptLeavesNoHalfOutput();
    void progressIsShownOnATerminalAfterASecond();
    void memoryStaysBelowItsBound();
    void helpManualAndCompletionNameTheSameWords();
};

void TstFilesTool::statusAndLineGoWithTheState_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("place");
    const Pqa2Bytes whole = Pqa2Bytes::recording(9).end(Pqa2Bytes::kSeconds);
    QByteArray broken = whole.bytes();
    broken.replace(whole.offsetOf(8), 12, QByteArray(12, '\xEE'));
    QTest::newRow("whole") << whole.bytes() << 0 << QByteArray();
    QTest::newRow("cut") << whole.bytes().left(whole.offsetOf(8) + 1) << 1
                         << "byte " + QByteArray::number(whole.offsetOf(8)) + ": ";
    QTest::newRow("broken") << broken << 2 << "byte " + QByteArray::number(whole.offsetOf(8)) + ": ";
    QTest::newRow("foreign") << QByteArray("text") << 3 << QByteArray("byte 0: ");
    QTest::newRow("empty") << QByteArray() << 3 << QByteArray("byte 0: ");
}

void TstFilesTool::statusAndLineGoWithTheState()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, status);
    QFETCH(QByteArray, place);
    const QString file = path("file.pqa2");
    QVERIFY(Pqa2Bytes::save(file, bytes));
    const QVector<QStringList> calls { { "info", file },
                                       { "info", file, "--json" },
                                       { "verify", file },
                                       { "recover", file, "--out", path("out/sound.pqa2") },
                                       { "export", file, "--csv", path("out/csv") },
                                       { "export", file, "--sqlite", path("out/base.sqlite") } };
    for (const QStringList &call : calls) {
        const Result result = run(call);
        QCOMPARE(result.code, status);
        QCOMPARE(result.error.count('\n'), status == 0 ? 0 : 1);
        QVERIFY2(status == 0 || result.error.contains(file.toUtf8() + ": " + place), result.error);
    }
    const QStringList made { "base.sqlite", "csv", "sound.pqa2" };
    QCOMPARE(entries(path("out")), status == 3 ? QStringList() : made);
}

void TstFilesTool::verifyGivesTheWorstOfItsPaths()
{
    const QByteArray bytes = Pqa2Bytes::bytesOf(kData + QStringLiteral("monitor.pqa2"));
    QVERIFY(Pqa2Bytes::save(path("cut.pqa2"), bytes.left(1000)));
    const QString whole = kData + QStringLiteral("recorder");
    Result result = run({ "verify", whole, path("cut.pqa2"), whole });
    QCOMPARE(result.code, 1);
    QCOMPARE(result.output, QStringLiteral("%1: whole\n%2: cut\n%1: whole\n").arg(whole, path("cut.pqa2")).toUtf8());
    result = run({ "verify", path("missing"), path("cut.pqa2") });
    QCOMPARE(result.code, 3);
    QCOMPARE(result.error.count('\n'), 2);
}

void TstFilesTool::wrongUseIsTold_data()
{
    QTest::addColumn<QStringList>("words");
    const QString file = kData + QStringLiteral("monitor.pqa2");
    QTest::newRow("nothing") << QStringList {};
    QTest::newRow("no such command") << QStringList { "dance", file };
    QTest::newRow("no path") << QStringList { "info" };
    QTest::newRow("two paths") << QStringList { "info", file, file };
    QTest::newRow("no such option") << QStringList { "info", file, "--xml" };
    QTest::newRow("no such letter") << QStringList { "info", file, "-j" };
    QTest::newRow("value of a flag") << QStringList { "info", file, "--json=1" };
    QTest::newRow("option twice") << QStringList { "info", file, "--json", "--json" };
    QTest::newRow("no target") << QStringList { "recover", file };
    QTest::newRow("no value") << QStringList { "recover", file, "--out" };
    QTest::newRow("empty value") << QStringList { "recover", file, "--out=" };
    QTest::newRow("no format") << QStringList { "export", file };
    QTest::newRow("two formats") << QStringList { "export", file, "--csv", "a", "--sqlite", "b" };
    QTest::newRow("no kind of report") << QStringList { "report", file };
    const QString there = kData + QStringLiteral("capture.wav"); // an output that exists
    for (const char *option : { "--csv", "--sqlite", "--comtrade", "--pqdif", "--pqdif-zlib", "--influx" })
        QTest::addRow("%s over a file", option) << QStringList { "export", file, option, there };
    for (const char *option : { "--html", "--pdf" })
        QTest::addRow("%s over a file", option) << QStringList { "report", file, option, there };
    QTest::newRow("--out over a file") << QStringList { "recover", file, "--out", there };
    QTest::newRow("folder of the output is missing")
        << QStringList { "export", file, "--csv", QStringLiteral("/no/such/folder") };
}

void TstFilesTool::wrongUseIsTold()
{
    QFETCH(QStringList, words);
    const Result result = run(words);
    QCOMPARE(result.code, 64);
    QCOMPARE(result.error.count('\n'), 1);
    QCOMPARE(result.output, QByteArray());
}

void TstFilesTool::jsonHoldsWhatScriptsArePromised()
{
    const QString file = kData + QStringLiteral("monitor.pqa2");
    const Result result = run({ "info", "--json", file });
    QCOMPARE(result.code, 0);
    const QJsonObject object = QJsonDocument::fromJson(result.output).object();
    QStringList keys = object.keys();
    keys.sort();
    QCOMPARE(keys,
             QStringList({ "blocks", "end", "events", "instrument", "kind", "nominal_frequency_Hz", "nominal_voltage_V",
                           "path", "start", "state", "wiring" }));
    QCOMPARE(object.value("path").toString(), file);
    QCOMPARE(object.value("kind").toString(), QStringLiteral("monitor"));
    QCOMPARE(object.value("state").toString(), QStringLiteral("whole"));
    QCOMPARE(object.value("start").toString(), QStringLiteral("2023-11-14T22:13:20.000Z"));
    QCOMPARE(object.value("end").toString(), QStringLiteral("2023-11-14T22:23:30.000Z"));
    QCOMPARE(object.value("instrument").toObject(),
             QJsonObject({ { "model", "QUVERA" }, { "serial", "1AA000000" }, { "version", "2.2.6" } }));
    QCOMPARE(object.value("wiring").toString(), QStringLiteral("3P WYE"));
    QCOMPARE(object.value("nominal_voltage_V").toDouble(), 230.0);
    QCOMPARE(object.value("nominal_frequency_Hz").toDouble(), 50.0);
    QCOMPARE(object.value("events").toInt(), 4);
    QVERIFY(object.value("blocks").toArray().contains(
        QJsonObject({ { "type", "0xA1010000" }, { "name", "monitor frequency" }, { "count", 61 }, { "bytes", 488 } })));
}

void TstFilesTool::jsonOfAFolderHasAnObjectForEachFile()
{
    const Result result = run({ "info", kData + QStringLiteral("recorder"), "--json" });
    const QJsonObject object = QJsonDocument::fromJson(result.output).object();
    QCOMPARE(object.value("kind").toString(), QStringLiteral("recording"));
    const QJsonArray files = object.value("files").toArray();
    QCOMPARE(files.size(), 2);
    QCOMPARE(files.at(0).toObject().value("path").toString(), kData + QStringLiteral("recorder/Common.pqa2"));
    QCOMPARE(files.at(1).toObject().value("state").toString(), QStringLiteral("whole"));
    QVERIFY(files.at(1).toObject().value("blocks").toArray().size() > 3);
}

void TstFilesTool::whatIsNotKnownIsNull()
{
    QVERIFY(Pqa2Bytes().add(0, {}).save(path("bare.pqa2")));
    const Result result = run({ "info", path("bare.pqa2"), "--json" });
    QCOMPARE(result.code, 0);
    const QJsonObject object = QJsonDocument::fromJson(result.output).object();
    for (const char *key : { "start", "end", "wiring", "nominal_voltage_V", "nominal_frequency_Hz" })
        QVERIFY2(object.contains(key) && object.value(key).isNull(), key);
    QVERIFY(object.value("instrument").toObject().value("serial").isNull());
}

void TstFilesTool::outputThatExistsIsRefusedWithoutForce()
{
    const QString file = kData + QStringLiteral("monitor.pqa2");
    const QStringList call { "recover", file, "--out", path("out/sound.pqa2") };
    QCOMPARE(run(call).code, 0);
    QVERIFY(Pqa2Bytes::save(path("out/sound.pqa2"), "no recording"));
    const Result refused = run(call);
    QCOMPARE(refused.code, 64);
    QCOMPARE(refused.error.count('\n'), 1);
    QCOMPARE(Pqa2Bytes::bytesOf(path("out/sound.pqa2")), QByteArray("no recording"));
    QCOMPARE(run(call + QStringList("--force")).code, 0);
    QCOMPARE(Pqa2Bytes::bytesOf(path("out/sound.pqa2")), Pqa2Bytes::bytesOf(file));
}

void TstFilesTool::nothingIsWrittenBesideTheInput()
{
    QVERIFY(QDir().mkpath(path("stick/record")));
    QVERIFY(Pqa2Bytes::recording(3).save(path("stick/record/Common.pqa2")));
    const QByteArray bytes = Pqa2Bytes::bytesOf(path("stick/record/Common.pqa2"));
    QVERIFY(::chmod(QFile::encodeName(path("stick/record")).constData(), 0500) == 0); // as a disk that is read only
    for (const char *command : { "info", "verify" })
        QCOMPARE(run({ command, path("stick/record") }).code, 1);
    QCOMPARE(run({ "export", path("stick/record"), "--csv", path("out/csv") }).code, 1);
    QCOMPARE(run({ "export", path("stick/record"), "--csv", path("stick/record/csv") }).code, 64);
    QCOMPARE(entries(path("stick")), QStringList("record"));
    QCOMPARE(entries(path("stick/record")), QStringList("Common.pqa2"));
    QCOMPARE(Pqa2Bytes::bytesOf(path("stick/record/Common.pqa2")), bytes);
    QVERIFY(::chmod(QFile::encodeName(path("stick/record")).constData(), 0700) == 0);
}

void TstFilesTool::unreadableInputMakesNoOutput()
{
    for (const char *option : { "--csv", "--sqlite", "--comtrade", "--pqdif", "--influx" })
        QCOMPARE(run({ "export", path("missing"), option, path("out/x") }).code, 3);
    for (const char *option : { "--html", "--pdf" })
        QCOMPARE(run({ "report", path("missing"), option, path("out/x") }).code, 3);
    QCOMPARE(entries(path("out")), QStringList());
}

void TstFilesTool::recoveredFolderIsWhole()
{
    QVERIFY(QDir().mkpath(path("record")));
    const QByteArray bytes = Pqa2Bytes::recording(9).bytes();
    QVERIFY(Pqa2Bytes::save(path("record/Common.pqa2"), bytes.chopped(5)));
    QCOMPARE(run({ "recover", path("record"), "--out", path("out/sound") }).code, 1);
    QCOMPARE(run({ "verify", path("out/sound") }).code, 0);
}

void TstFilesTool::whateverFailsHasOneLine()
{
    QVERIFY(Pqa2Bytes::save(path("head.pqa2"), Pqa2Bytes::fileHead().left(24) + "torn"));
    QVERIFY(Pqa2Bytes::recording(3).save(path("cut.pqa2")));
    const QVector<QPair<int, QStringList>> calls {
        { 3, { "recover", path("head.pqa2"), "--out", path("out/sound.pqa2") } },
        { 3, { "info", QString() } },
        { 64, { "export", path("cut.pqa2"), "--csv", path("out") } },
        { 64, { "export", path("cut.pqa2"), "--csv", path("missing/csv") } },
        { 73, { "export", path("cut.pqa2"), "--csv", QStringLiteral("/proc/csv") } },
        { 73, { "report", path("cut.pqa2"), "--html", QStringLiteral("/proc/report.html") } },
        { 1, { "report", path("cut.pqa2"), "--html", path("out/report.html") } },
    };
    for (const auto &call : calls) {
        const Result result = run(call.second);
        QCOMPARE(result.code, call.first);
        QVERIFY2(result.error.count('\n') == 1, result.error);
    }
    const QByteArray line = run(calls.at(0).second).error;
    QVERIFY2(line.contains("head.pqa2: byte 24: ") && line.endsWith("; nothing of it can be recovered\n"), line);
}

void TstFilesTool::diskThatTakesAPartIsNamed()
{
    QVERIFY(makeLarge(1));
    for (const char *words : { "export --csv", "export --sqlite", "export --influx", "export --pqdif",
                               "export --pqdif-zlib", "report --html", "report --pdf", "recover --out" }) {
        QProcess shell; // a file may have 8 KiB; what goes beyond is refused in the middle of a write
        shell.start(
            QStringLiteral("bash"),
            { "-c",
              QStringLiteral("trap '' XFSZ; ulimit -f 8; exec \"$0\" %1 \"$1\" %2 \"$2\"")
                  .arg(QString::fromLatin1(words).section(' ', 0, 0), QString::fromLatin1(words).section(' ', 1)),
              kTool, path("large.pqa2"), path("out/x") });
        QVERIFY(shell.waitForFinished(kPatience));
        const QByteArray error = shell.readAllStandardError();
        QVERIFY2(shell.exitCode() == 73 && error.count('\n') == 1, words + QByteArray(": ") + error);
        QVERIFY2(error.contains("out/x") && !error.contains("Unknown error"), words + QByteArray(": ") + error);
        QCOMPARE(entries(path("out")), QStringList());
    }
}

void TstFilesTool::emptyRecordIsExportedAsItIs()
{
    QVERIFY(Pqa2Bytes().opening().start(Pqa2Bytes::kSeconds).end(Pqa2Bytes::kSeconds + 1).save(path("empty.pqa2")));
    for (const char *option : { "--csv", "--sqlite", "--comtrade", "--pqdif", "--pqdif-zlib", "--influx" }) {
        const QString target = path("out/") + QLatin1String(option);
        const Result result = run({ "export", path("empty.pqa2"), option, target });
        QVERIFY2(result.code == 0, option);
        QCOMPARE(result.error, QByteArray());
        QVERIFY2(QFile::exists(target), option);
    }
}

void TstFilesTool::namesThatAreNoTextAreReadAndWritten_data()
{
    QTest::addColumn<QByteArray>("language");
    for (const char *language : { "C", "C.UTF-8", "de_DE.ISO-8859-1" })
        QTest::newRow(language) << QByteArray(language);
}

void TstFilesTool::namesThatAreNoTextAreReadAndWritten()
{
    QFETCH(QByteArray, language);
    const QByteArray folder = QFile::encodeName(m_folder->path());
    const QByteArray names[]
        = { "M\xFCller \xFF.pqa2", QByteArrayLiteral("M\xC3\xBCller \xE2\x82\xAC \xF0\x9F\x94\x8C.pqa2") };
    const QByteArray shown[] = { "M\\xfcller \\xff.pqa2", names[1] };
    for (int i = 0; i < 2; ++i) {
        QVERIFY(Pqa2Bytes::recording(3).save(path("plain.pqa2")));
        const QByteArray name = folder + '/' + names[i], copy = folder + "/out/" + names[i];
        QCOMPARE(::rename(QFile::encodeName(path("plain.pqa2")).constData(), name.constData()), 0);
        // By a shell, which hands bytes on as they are.
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LC_ALL"), QString::fromLatin1(language));
        shell.setProcessEnvironment(environment);
        QVERIFY(Pqa2Bytes::save(path("call"),
                                "\"$1\" info --json '" + name + "'; echo $?; \"$1\" recover '" + name + "' --out '"
                                    + copy + "'; echo $?"));
        shell.start(QStringLiteral("bash"), { path("call"), kTool });
        QVERIFY(shell.waitForFinished(kPatience));
        const QByteArray output = shell.readAllStandardOutput(), error = shell.readAllStandardError();
        QVERIFY2(output.endsWith("}\n1\n1\n"), output + error); // cut: it has no end
        QVERIFY2(error.contains(shown[i] + ": byte "), error);
        QCOMPARE(::access(copy.constData(), F_OK), 0);
        QVERIFY2(output.contains(i == 0 ? QByteArray("M\\udcfcller \\udcff.pqa2") : names[1]), output);
    }
}

void TstFilesTool::namesWithLineFeedsStayInOneLine()
{
    const QString name = path("a\nb\x1b[31m.pqa2");
    QVERIFY(Pqa2Bytes::save(name, "no record"));
    const Result result = run({ "verify", name });
    QCOMPARE(result.code, 3);
    QCOMPARE(result.error.count('\n'), 1);
    QCOMPARE(result.output.count('\n'), 1);
    QVERIFY2(result.error.contains("a\\nb\\x1b[31m.pqa2"), result.error);
}

void TstFilesTool::pathThatBeginsWithDashesStandsBehindTwo()
{
    QProcess process;
    process.setWorkingDirectory(m_folder->path());
    QVERIFY(Pqa2Bytes::recording(1).end(Pqa2Bytes::kSeconds).save(path("--json")));
    process.start(kTool, { "verify", "--", "--json" });
    QVERIFY(process.waitForFinished(kPatience));
    QCOMPARE(process.exitCode(), 0);
}

void TstFilesTool::fullOrClosedOutputIsAnError()
{
    const QString file = kData + QStringLiteral("monitor.pqa2");
    for (const char *command : { "info", "verify", "--help" }) {
        QProcess process;
        process.setStandardOutputFile(QStringLiteral("/dev/full"));
        process.start(kTool, QByteArray(command) == "--help" ? QStringList(command) : QStringList { command, file });
        QVERIFY(process.waitForFinished(kPatience));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 73);
    }
    QProcess shell; // nobody reads the pipe any more
    shell.start(QStringLiteral("bash"),
                { "-c", QStringLiteral("exec 3> >(true); wait $!; \"$0\" info \"$1\" >&3; echo $? >&2"), kTool, file });
    QVERIFY(shell.waitForFinished(kPatience));
    QVERIFY2(shell.readAllStandardError().endsWith("73\n"), "a closed pipe ends the tool in good order");
}

void TstFilesTool::interruptLeavesNoHalfOutput()
{
    for (const int signal : { SIGTERM, SIGINT, SIGHUP }) {
        QProcess process;
        QVERIFY(catchAtWork(&process, [signal](pid_t tool) { ::kill(tool, signal); }));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 73);
        QCOMPARE(entries(path("out")), QStringList());
    }
}

void TstFilesTool::progressIsShownOnATerminalAfterASecond()
{
    const int master = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    QVERIFY(master >= 0 && ::grantpt(master) == 0 && ::unlockpt(master) == 0);
    const QString terminal = QString::fromLocal8Bit(::ptsname(master));
    const auto shown = [master] {
        QByteArray all, piece(4096, '\0');
        for (ssize_t got; (got = ::read(master, piece.data(), std::size_t(piece.size()))) > 0;)
            all += piece.left(int(got));
        return all;
    };
    // Held up, so that it takes longer than a second however fast the machine is.
    const auto holdUp = [](pid_t) { QTest::qWait(1200); };
    // On a busy machine what is quick may take a second now and then, but not again and again.
    QElapsedTimer patience;
    patience.start();
    QByteArray ofQuick;
    do {
        QProcess quick;
        quick.setStandardErrorFile(terminal);
        quick.start(kTool, { "verify", kData + QStringLiteral("monitor.pqa2") });
        QVERIFY(quick.waitForFinished(kPatience));
        ofQuick = shown();
    } while (!ofQuick.isEmpty() && patience.elapsed() < kPatience);
    QCOMPARE(ofQuick, QByteArray());

    QProcess slow;
    slow.setStandardErrorFile(terminal);
    QVERIFY(catchAtWork(&slow, holdUp));
    QCOMPARE(slow.exitCode(), 0);
    const QByteArray text = shown();
    QVERIFY2(text.contains(" %"), text);
    QVERIFY2(text.endsWith("\r\033[K"), text); // and taken away

    QProcess ended;
    ended.setStandardErrorFile(terminal);
    QVERIFY(catchAtWork(&ended, [holdUp](pid_t tool) {
        holdUp(tool);
        ::kill(tool, SIGINT);
    }));
    QCOMPARE(ended.exitCode(), 73);
    const QByteArray last = shown();
    QVERIFY2(last.endsWith(" %\r\033[Kquvera-files: interrupted\r\n"), last);
    ::close(master);

    QProcess piped;
    QVERIFY(catchAtWork(&piped, holdUp));
    QCOMPARE(piped.exitCode(), 0);
    QCOMPARE(piped.readAllStandardError(), QByteArray());
}

void TstFilesTool::memoryStaysBelowItsBound()
{
    constexpr long kBound = 128 << 10; // KiB
    QVERIFY(makeLarge());
    const QVector<QStringList> calls { { "verify", path("large.pqa2") },
                                       { "recover", path("large.pqa2"), "--out", path("out/sound.pqa2") },
                                       { "export", path("large.pqa2"), "--csv", path("out/csv") } };
    for (const QStringList &call : calls) {
        std::vector<QByteArray> words { QFile::encodeName(kTool) };
        for (const QString &word : call)
            words.push_back(QFile::encodeName(word));
        std::vector<char *> arguments;
        for (QByteArray &word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        const pid_t child = ::fork();
        if (child == 0) {
            ::execv(arguments[0], arguments.data());
            ::_exit(127);
        }
        int status = 0;
        struct rusage usage;
        QVERIFY(::wait4(child, &status, 0, &usage) == child);
        QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
        QVERIFY2(usage.ru_maxrss < kBound, qPrintable(call.at(0) + QStringLiteral(": %1 KiB").arg(usage.ru_maxrss)));
    }
}

void TstFilesTool::helpManualAndCompletionNameTheSameWords()
{
    const Result help = run({ "--help" });
    QCOMPARE(help.code, 0);
    const QString manual = textOf(QStringLiteral("docs/man/quvera-files.1")).remove(QLatin1Char('\\'));
    const QString completion = textOf(QStringLiteral("tools/files/quvera-files.bash-completion"));
    static const QRegularExpression word(QStringLiteral("^  (?:    (--[a-z-]+)|([a-z]+)) "),
                                         QRegularExpression::MultilineOption);
    int words = 0;
    auto found = word.globalMatch(QString::fromUtf8(help.output));
    while (found.hasNext()) {
        const auto match = found.next();
        const QString name = match.captured(1) + match.captured(2);
        if (name == QLatin1String("quvera"))
            continue;
        ++words;
        QVERIFY2(manual.contains(QRegularExpression(QStringLiteral("(^|[ B\"])%1\\b").arg(name))), qPrintable(name));
        QVERIFY2(completion.contains(QRegularExpression(QStringLiteral("[ \"]%1[ \"]").arg(name))), qPrintable(name));
    }
    QVERIFY(words > 15);
    QCOMPARE(run({ "--version" }).output, QByteArray("quvera-files 2.2.6\n"));
}

QTEST_GUILESS_MAIN(TstFilesTool)
#include "tst_filestool.moc"
