// The process that records is killed at any moment, again and again: what it had finished is there.
#include <QDirIterator>
#include <QLoggingCategory>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include "cardchecks.h"
#include "cardruns.h"

#include <cstdio>
#include <map>
#include <unistd.h>

using namespace CardChecks;

// Here nothing stands between the runs and the card.
void CardCalls::begin(const Fault &) { }
void CardCalls::setRoom(const QList<float> &) { }
int CardCalls::calls()
{
    return 0;
}
QList<CardCalls::Call> CardCalls::taken()
{
    ::usleep(2000); // behind each second of a run, so that whoever ends it has the time to
    return {};
}
void CardCalls::end() { }

namespace {

constexpr int kSeconds = 40; // of a run; a run of the monitor has five times as many
constexpr int kWaitMs = 60000; // ends a hang
constexpr char kStarted = 's';

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

/// Bytes of the recorded files so far.
qint64 recorded()
{
    qint64 bytes = 0;
    const QString card = Target::path(QStringLiteral("/mnt/storage"));
    QDirIterator all(card, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext())
        bytes += QFileInfo(all.next()).size();
    return bytes;
}

/// A run in a process of its own.
class Writer : public QProcess
{
public:
    explicit Writer(const QByteArray &name)
    {
        setProcessChannelMode(QProcess::ForwardedErrorChannel);
        start(QCoreApplication::applicationFilePath(), { QStringLiteral("--writer"), QString::fromLatin1(name) });
    }
    bool waitForBegin() { return waitForReadyRead(kWaitMs) && read(1) == QByteArray(1, kStarted); }
};

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
    const int rounds = qMax(qEnvironmentVariableIntValue("QUVERA_KILLS"), 12);
    const QByteArray name = QTest::currentDataTag();
    int whole = 0, told = 0;
    qint64 bytes = 0;
    Files good;
    {
        Writer writer(name);
        QVERIFY(writer.waitForBegin());
        QVERIFY(writer.waitForFinished(kWaitMs));
        good = onCard();
        bytes = recorded();
        QCOMPARE(faultOf(good, good, &whole, &told), QByteArray());
        QCOMPARE(told, 0);
        QVERIFY(whole > pieces);
    }
    int cutRuns = 0;
    for (int round = 0; round < rounds; ++round) {
        Writer writer(name);
        QVERIFY(writer.waitForBegin());
        // At any place of the run, and at any moment of what is done there.
        const qint64 place = qint64(QRandomGenerator::global()->bounded(double(bytes)));
        while (recorded() < place && writer.state() == QProcess::Running && !writer.waitForFinished(0)) { }
        ::usleep(unsigned(QRandomGenerator::global()->bounded(1000)));
        writer.kill();
        QVERIFY(writer.state() == QProcess::NotRunning || writer.waitForFinished(kWaitMs));
        int found = 0;
        const QByteArray fault = faultOf(onCard(), good, &found, &told);
        QVERIFY2(fault.isEmpty(), fault);
        QVERIFY(told <= 1);
        if (found <= pieces || found >= whole)
            continue;
        ++cutRuns;
        QCOMPARE(told, 1);
    }
    QVERIFY2(cutRuns > rounds / 4, QByteArray::number(cutRuns));
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--writer") == 0) {
        RootFiles::clean();
        std::fputc(kStarted, stdout);
        std::fflush(stdout);
        runWriter(argv[2]);
        return 0;
    }
    TstKilledWriters test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_killedwriters.moc"
