// A recording whose instrument goes away in the middle of it: what is there afterwards.
#include "instrument.h"

#include "record/pqa2reader.h"
#include "record/wavefile.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>

using namespace SystemTest;

namespace {

const QString kJournal = QStringLiteral(".running");
constexpr int kWaitMs = 60000; // for what takes ten seconds on a quiet machine

/// Blocks of a file up to the first thing that is wrong, and whether that is nothing but a missing last link.
struct Found
{
    QMap<quint32, int> blocks;
    bool isReadable = false;
};

Found readFile(const QString &path)
{
    Found found;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return found;
    Pqa2Reader reader(&file);
    for (Pqa2Block block; reader.next(&block);)
        ++found.blocks[block.type];
    found.isReadable
        = reader.state() == Pqa2Reader::Whole || (reader.state() == Pqa2Reader::Cut && !reader.skipDamage());
    return found;
}

} // namespace

class TstKilledRecording : public QObject
{
    Q_OBJECT
private slots:
    void everyFinishedIntervalStaysAndTheNextStartKnowsTheRecording();
    void killedAtAnyMomentAgainAndAgainItSaysOnceWhatWasCut_data();
    void killedAtAnyMomentAgainAndAgainItSaysOnceWhatWasCut();

private:
    static QStringList startKeys();
    /// Names of the index, in order.
    QStringList listed() const
    {
        QStringList names;
        QFile file(storage().filePath(QStringLiteral(".infomation")));
        if (file.open(QIODevice::ReadOnly)) {
            for (const QByteArray &line : file.readAll().split('\n'))
                names << QString::fromLatin1(line.left(line.indexOf(',')));
        }
        names.removeAll(QString());
        names.sort();
        return names;
    }
    void checkFiles(const QString &run);
    QDir storage() const { return QDir(m_desk.path(QStringLiteral("/mnt/storage/"))); }
    QStringList folders() const { return storage().entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name); }
    /// Recordings in folders, and captures.
    QStringList runs() const { return storage().entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name); }

    Instrument m_desk;
};

QStringList TstKilledRecording::startKeys()
{
    const QStringList keys = QStringLiteral("Down Down Right Enter").split(' '); // to "Logger"
    return keys + QStringLiteral("F2 F1 F4 Down Down Left Left Left F5").split(' '); // everything, every second
}

void TstKilledRecording::everyFinishedIntervalStaysAndTheNextStartKnowsTheRecording()
{
    VERIFY_DESK(m_desk.start(), m_desk);
    VERIFY_DESK(m_desk.press(startKeys()), m_desk);
    QTRY_COMPARE_WITH_TIMEOUT(folders().size(), 1, kWaitMs);
    const QString folder = storage().filePath(folders().first()) + QLatin1Char('/');
    const QString last = folder + QStringLiteral("I inHarmonic(50-99).pqa2"); // the last to be written of an interval
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(last).size() > 3 * 3 * 852, kWaitMs);
    m_desk.stopInstrument();

    const Found common = readFile(folder + QStringLiteral("Common.pqa2"));
    QVERIFY(common.isReadable);
    QCOMPARE(common.blocks.value(0xA1000018), 1);
    QCOMPARE(common.blocks.value(0xA1000019), 0); // it did not come to its end
    const int intervals = common.blocks.value(0xA1000020);
    QVERIFY(intervals >= 3);
    for (const quint32 type : { 0xA1000060u, 0xA10000A0u, 0xA1001008u, 0xA1000021u, 0xA1000022u, 0xA1000023u })
        QVERIFY(intervals - common.blocks.value(type) <= 1);
    for (const QString &name : QDir(folder).entryList(QDir::Files))
        QVERIFY2(readFile(folder + name).isReadable, qPrintable(name));
    QVERIFY(intervals - readFile(last).blocks.value(0xA1000037) <= 1);

    // As if its entry had not reached the card either.
    const QString index = storage().filePath(QStringLiteral(".infomation"));
    QVERIFY(QFile::remove(index));
    VERIFY_DESK(m_desk.startInstrument(), m_desk);
    const auto entries = [&index] {
        QFile file(index);
        return file.open(QIODevice::ReadOnly) ? file.readAll().count("Logger_1,") : 0;
    };
    QTRY_COMPARE_WITH_TIMEOUT(entries(), 1, kWaitMs);
    QCOMPARE(folders().size(), 1);
}

/// Every file opens and holds whole intervals, all but the last one in each.
void TstKilledRecording::checkFiles(const QString &run)
{
    if (run.endsWith(WaveFile::suffix())) {
        QFile file(storage().filePath(run));
        QVERIFY(file.open(QIODevice::ReadOnly));
        if (file.size() < qint64(sizeof(WaveFileHeader)))
            return; // killed before its head was written
        WaveFileReader reader(&file);
        quint64 frames = 0;
        for (WaveChunk chunk; reader.next(&chunk);)
            frames += chunk.frames;
        QVERIFY(reader.state() == WaveFileReader::Whole || reader.state() == WaveFileReader::Cut);
        QVERIFY(frames >= reader.header().frames);
        return;
    }
    const QDir files(storage().filePath(run));
    const int intervals = readFile(files.filePath(QStringLiteral("Common.pqa2"))).blocks.value(0xA1000020);
    for (const QString &name : files.entryList(QDir::Files)) {
        if (QFileInfo(files.filePath(name)).size() < 24)
            continue; // killed before its head was written
        const Found found = readFile(files.filePath(name));
        QVERIFY2(found.isReadable, qPrintable(run + QLatin1Char('/') + name));
        if (name == QLatin1String("I inHarmonic(50-99).pqa2"))
            QVERIFY(intervals - found.blocks.value(0xA1000037) <= 1);
    }
}

void TstKilledRecording::killedAtAnyMomentAgainAndAgainItSaysOnceWhatWasCut_data()
{
    QTest::addColumn<QStringList>("first"); // keys from the menu to a run that begins at once
    QTest::addColumn<QStringList>("next"); // the same for those that follow
    const auto keys = [](const char *names) { return QString::fromLatin1(names).split(QLatin1Char(' ')); };
    QTest::newRow("recorder") << startKeys() << keys("Down Down Right Enter F5"); // by the same choices
    QTest::newRow("monitor") << keys("Monitor F5") << keys("Monitor F5");
    QTest::newRow("capture") << keys("Down Down Enter F5") << keys("Down Down Enter F5");
}

void TstKilledRecording::killedAtAnyMomentAgainAndAgainItSaysOnceWhatWasCut()
{
    QFETCH(QStringList, first);
    QFETCH(QStringList, next);
    // More of them by hand: QUVERA_KILLS=200.
    const int rounds = qMax(qEnvironmentVariableIntValue("QUVERA_KILLS"), 3);
    m_desk.stop();
    QVERIFY(storage().removeRecursively() && QDir().mkpath(storage().path()));
    m_desk.setSpeed(4); // where it cannot, it takes longer
    VERIFY_DESK(m_desk.start(), m_desk);
    const QImage menu = page(m_desk.screen());
    for (int round = 0; round < rounds; ++round) {
        const QStringList before = runs();
        VERIFY_DESK(m_desk.press(round == 0 ? first : next), m_desk);
        QTRY_COMPARE_WITH_TIMEOUT(runs().size(), before.size() + 1, kWaitMs);
        QTRY_VERIFY_WITH_TIMEOUT(storage().exists(kJournal), kWaitMs); // a run that holds nothing yet need not be told
        QTest::qWait(int(QRandomGenerator::global()->bounded(1500)));
        m_desk.instrument().kill();
        QVERIFY(m_desk.instrument().waitForFinished());
        for (const QString &run : runs()) {
            if (!before.contains(run))
                checkFiles(run);
        }

        VERIFY_DESK(m_desk.startInstrument(), m_desk);
        const QImage message = m_desk.waitForScreen([&menu](const QImage &now) { return page(now) != menu; });
        QVERIFY2(!message.isNull(), "nothing was told");
        QVERIFY(storage().exists(kJournal));
        VERIFY_DESK(m_desk.press({ QStringLiteral("F5") }), m_desk);
        QVERIFY(!m_desk.waitForScreen([&menu](const QImage &now) { return page(now) == menu; }).isNull());
        QTRY_VERIFY_WITH_TIMEOUT(!storage().exists(kJournal), kWaitMs); // it is not told again
        QTRY_COMPARE_WITH_TIMEOUT(listed(), runs(), kWaitMs);
    }
}

QTEST_MAIN(TstKilledRecording)
#include "tst_killedrecording.moc"
