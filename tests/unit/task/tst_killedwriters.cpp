// The process that records is killed at any moment, again and again: what it had finished is there.
#include <QLoggingCategory>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include "cardchecks.h"
#include "cardruns.h"

#include <csignal>
#include <cstdlib>
#include <thread>
#include <unistd.h>

using namespace CardChecks;

// How the process that records ends itself.
static int s_second = 0; // of the run
static int s_lastSecond = -1; // -1: never
static unsigned s_moment = 0; // us behind it

static void secondIsOver()
{
    if (s_second++ != s_lastSecond)
        return;
    std::thread([] {
        ::usleep(s_moment);
        ::kill(::getpid(), SIGKILL);
    }).detach();
}

// Here nothing stands between the runs and the card.
void CardCalls::begin(const Fault &) { }
void CardCalls::setRoom(const QList<float> &) { }
int CardCalls::calls()
{
    return 0;
}
QList<CardCalls::Call> CardCalls::taken() // behind each second of a run
{
    secondIsOver();
    return {};
}
void CardCalls::end() { }

namespace {

constexpr int kSeconds = 40; // of a run
constexpr int kWaitMs = 60000; // ends a hang
constexpr int kMonitorSeconds = 5 * kSeconds;
constexpr int kMoments = 3000; // us; a second of a run takes less

void runWriter(const QByteArray &name)
{
    CardRuns::s_seconds = kSeconds;
    Pqa2FF::setOpening(recordOpening);
    if (name == "recorder")
        CardRuns::recorder({});
    else if (name == "monitor")
        CardRuns::monitor({});
    else if (name == "capture")
        CardRuns::capture({});
    else
        CardRuns::logger({});
}

/// The recorded files and what stands beside them, as they are on the card.
Files onCard()
{
    Files files;
    QDir root(Target::path(QStringLiteral("/mnt/storage")));
    const auto add = [&files](const QDir &folder, const QByteArray &prefix) {
        for (const QFileInfo &file : folder.entryInfoList(QDir::Files | QDir::Hidden)) {
            QFile content(file.filePath());
            if (content.open(QIODevice::ReadOnly))
                files.insert("storage/" + prefix + QFile::encodeName(file.fileName()), content.readAll());
        }
    };
    add(root, {});
    for (const QString &folder : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        add(QDir(root.filePath(folder)), QFile::encodeName(folder) + '/');
    return files;
}

/// A run in a process of its own, which is killed that long behind a second of it; -1: it comes to its end.
bool runProcess(const QByteArray &name, int second, int moment)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(
        QCoreApplication::applicationFilePath(),
        { QStringLiteral("--writer"), QString::fromLatin1(name), QString::number(second), QString::number(moment) });
    return process.waitForFinished(kWaitMs) && (second >= 0 || process.exitStatus() == QProcess::NormalExit);
}

} // namespace

class TstKilledWriters : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false")); }
    void whatWasFinishedIsThereAndTheNextStartTellsOnceWhatWasCut_data();
    void whatWasFinishedIsThereAndTheNextStartTellsOnceWhatWasCut();

private:
    /// Empty, or what is wrong with what a killed run left; \a good is that of one which came to its end.
    static QByteArray faultOf(const Files &left, const Files &good, int *found, int *told);
};

void TstKilledWriters::whatWasFinishedIsThereAndTheNextStartTellsOnceWhatWasCut_data()
{
    QTest::addColumn<int>("pieces"); // that a run has stored when its name is known to the next start for certain
    QTest::newRow("recorder") << 60;
    QTest::newRow("monitor") << 8;
    QTest::newRow("capture") << 3;
    QTest::newRow("logger") << 3;
}

QByteArray TstKilledWriters::faultOf(const Files &left, const Files &good, int *found, int *told)
{
    *found = 0;
    for (auto file = left.cbegin(); file != left.cend(); ++file) {
        if (!grows(file.key()))
            continue;
        const QList<QByteArray> whole = pieces(file.key(), good.value(file.key()));
        const QList<QByteArray> there = pieces(file.key(), file.value());
        if (!startsWith(whole, there))
            return file.key() + " holds what is not of its run";
        *found += there.size();
    }
    QStringList cut;
    const QByteArray fault = startOn(left, &cut);
    *told = cut.size();
    return fault;
}

void TstKilledWriters::whatWasFinishedIsThereAndTheNextStartTellsOnceWhatWasCut()
{
    QFETCH(int, pieces);
    // More of them by hand: QUVERA_KILLS=200.
    const int rounds = qMax(qEnvironmentVariableIntValue("QUVERA_KILLS"), 20);
    const QByteArray name = QTest::currentDataTag();
    int whole = 0, told = 0;
    QVERIFY(runProcess(name, -1, 0));
    const Files good = onCard();
    QCOMPARE(faultOf(good, good, &whole, &told), QByteArray());
    QCOMPARE(told, 0);
    QVERIFY(whole > pieces);
    int cutRuns = 0;
    // A busy machine may kill most of them before they have stored much: then there are more.
    for (int round = 0; round < rounds || (cutRuns <= rounds / 10 && round < 10 * rounds); ++round) {
        QRandomGenerator &random = *QRandomGenerator::global();
        const int second = random.bounded(name == "monitor" ? kMonitorSeconds : kSeconds);
        QVERIFY(runProcess(name, second, random.bounded(kMoments)));
        int found = 0;
        const QByteArray fault = faultOf(onCard(), good, &found, &told);
        QVERIFY2(fault.isEmpty(), fault);
        QVERIFY(told <= 1);
        if (found <= pieces || found >= whole)
            continue;
        ++cutRuns;
        QCOMPARE(told, 1);
    }
    QVERIFY2(cutRuns > rounds / 10, QByteArray::number(cutRuns));
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 5 && qstrcmp(argv[1], "--writer") == 0) {
        RootFiles::clean();
        s_lastSecond = std::atoi(argv[3]);
        s_moment = unsigned(std::atoi(argv[4]));
        secondIsOver(); // also before anything is there
        runWriter(argv[2]);
        return 0;
    }
    TstKilledWriters test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_killedwriters.moc"
