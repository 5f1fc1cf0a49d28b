// What happens to a clock and to the processor while the whole instrument records: the run goes on, and all of its file
// can be read.
#include "instrument.h"

#include "record/pqa2reader.h"

#include <QDir>
#include <QFile>

#include <cstring>

using namespace SystemTest;

namespace {

constexpr int kWaitMs = 120000; // for what takes seconds on a quiet machine
constexpr int kSpeed = 10;
constexpr char kStartRecorder[] = "Down Down Right Enter F2 F1 F4 Down Down Left Left Left F5"; // all, every second
constexpr quint32 kLog = 0xA1000009, kEnd = 0xA1000019, kRecorded = 0xA1000020;

struct Block
{
    quint32 type;
    QByteArray payload;
};

/// \a whole: the chain of the file comes to a proper end.
QList<Block> blocksOf(const QString &path, bool *whole)
{
    QList<Block> blocks;
    QFile file(path);
    *whole = false;
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return blocks;
    Pqa2Reader reader(&file);
    for (Pqa2Block block; reader.next(&block);)
        blocks.append({ block.type, reader.payload(block) });
    *whole = reader.state() == Pqa2Reader::Whole;
    return blocks;
}

} // namespace

class TstTroubledRuns : public QObject
{
    Q_OBJECT
private slots:
    void goesOnThroughClocksThatAreSetAndAMinuteOfSilence_data();
    void goesOnThroughClocksThatAreSetAndAMinuteOfSilence();
    void recordingGoesOnWhenTheInstrumentsOwnClockIsSet();

private:
    QString file() const
    {
        const QDir storage(m_desk->path(QStringLiteral("/mnt/storage/")));
        const QStringList runs = storage.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        return runs.isEmpty() ? QString() : storage.filePath(runs.first() + QLatin1Char('/') + m_name);
    }
    /// Times of the intervals, in ms since 1970, as they stand in the file now.
    QList<qint64> intervals() const;
    /// So many more intervals than there are now; false: they did not come.
    bool waitForIntervals(int more) const
    {
        const int before = intervals().size();
        return QTest::qWaitFor([this, before, more] { return intervals().size() >= before + more; }, kWaitMs);
    }
    bool tell(const QString &command, QString *answer = nullptr) const
    {
        QProcess process;
        process.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-processor"),
                      { QStringLiteral("--root"), m_desk->root(), QStringLiteral("--tell"), command });
        const bool isTold = process.waitForFinished(kWaitMs) && process.exitCode() == 0;
        if (answer)
            *answer = QString::fromUtf8(process.readAllStandardOutput());
        return isTold;
    }
    /// How far the processor's time has gone, s; -1 where it does not tell.
    double processorSeconds() const
    {
        QString status;
        if (!tell(QStringLiteral("status"), &status))
            return -1;
        return status.section(QStringLiteral(" t="), 1).section(QLatin1Char(' '), 0, 0).toDouble();
    }
    /// How often the file says that the processor was silent; -1: it says so twice of one silence.
    int silences() const;
    int count(quint32 type, bool *whole) const
    {
        int found = 0;
        for (const Block &block : blocksOf(file(), whole))
            found += block.type == type;
        return found;
    }
    void setClocks();
    void beSilent();

    std::unique_ptr<Instrument> m_desk;
    QString m_name; // of the file
    quint32 m_type = 0; // of the block of an interval
};

QList<qint64> TstTroubledRuns::intervals() const
{
    bool whole = false;
    QList<qint64> times;
    for (const Block &block : blocksOf(file(), &whole)) {
        if (block.type != m_type)
            continue;
        // The recorder stores milliseconds in eight bytes, the monitor seconds in four.
        qint64 time = 0;
        const bool isSeconds = block.payload.size() == 8;
        std::memcpy(&time, block.payload.constData(), isSeconds ? 4 : 8);
        times << (isSeconds ? 1000 * time : time);
    }
    return times;
}

void TstTroubledRuns::goesOnThroughClocksThatAreSetAndAMinuteOfSilence_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("end");
    QTest::addColumn<QString>("name");
    QTest::addColumn<quint32>("type");
    QTest::newRow("recorder") << kStartRecorder << "F5 F4" // Stop: Save
                              << "Common.pqa2" << kRecorded;
    QTest::newRow("monitor") << "Monitor F5"
                             << "Menu F4" // Quit
                             << "Monitor.pqa2" << 0xA1010000u;
}

int TstTroubledRuns::silences() const
{
    bool whole = false, isTold = false;
    int found = 0;
    for (const Block &block : blocksOf(file(), &whole)) {
        isTold = isTold && block.type != m_type;
        if (block.type != kLog || block.payload.mid(8) != "Communication Interrupted!")
            continue;
        if (isTold)
            return -1;
        isTold = true;
        ++found;
    }
    return found;
}

/// The processor's clock is set on and back; the times of the intervals follow it.
void TstTroubledRuns::setClocks()
{
    constexpr qint64 kHourMs = 3600 * 1000, kNearMs = kHourMs / 4;
    for (const qint64 hours : { 1, -1 }) {
        const qint64 before = intervals().last();
        QVERIFY(tell(QStringLiteral("clock %1%2s").arg(QLatin1String(hours > 0 ? "+" : "")).arg(hours * 3600)));
        QVERIFY(waitForIntervals(3));
        const qint64 moved = intervals().last() - before - hours * kHourMs;
        QVERIFY2(qAbs(moved) < kNearMs, qPrintable(QString::number(moved)));
    }
    const QDateTime now = QDateTime::fromMSecsSinceEpoch(intervals().last(), Qt::UTC);
    for (const QDateTime &time : { now.addYears(10), now.addYears(-10), now }) {
        QVERIFY(tell(QStringLiteral("clock ") + time.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss"))));
        QVERIFY(waitForIntervals(3));
        const qint64 moved = intervals().last() - time.toMSecsSinceEpoch();
        QVERIFY2(qAbs(moved) < kNearMs, qPrintable(QString::number(moved)));
    }
}

void TstTroubledRuns::beSilent()
{
    const qint64 before = intervals().last();
    const int told = silences();
    QVERIFY(tell(QStringLiteral("fault rate drop 1")));
    const double begin = processorSeconds();
    QVERIFY(begin >= 0);
    QTRY_VERIFY_WITH_TIMEOUT(processorSeconds() > begin + 80, kWaitMs);
    if (m_type == kRecorded)
        QTRY_VERIFY_WITH_TIMEOUT(silences() > told, kWaitMs);
    QVERIFY(m_desk->isInstrumentRunning() && !m_desk->screen().isNull());
    QVERIFY(tell(QStringLiteral("fault off")));
    QVERIFY(waitForIntervals(3));
    QVERIFY(intervals().last() > before + 60000);
}

void TstTroubledRuns::goesOnThroughClocksThatAreSetAndAMinuteOfSilence()
{
    QFETCH(QString, start);
    QFETCH(QString, end);
    QFETCH(QString, name);
    QFETCH(quint32, type);
    m_name = name;
    m_type = type;
    m_desk = std::make_unique<Instrument>();
    m_desk->setSpeed(kSpeed); // where the machine cannot, it takes longer
    VERIFY_DESK(m_desk->start(), *m_desk);
    VERIFY_DESK(m_desk->press(start.split(QLatin1Char(' '))), *m_desk);
    QVERIFY(waitForIntervals(2));
    setClocks();
    beSilent();

    VERIFY_DESK(m_desk->press(end.split(QLatin1Char(' '))), *m_desk);
    bool whole = false;
    QTRY_COMPARE_WITH_TIMEOUT(count(kEnd, &whole), 1, kWaitMs);
    QVERIFY(whole);
    if (type == kRecorded) { // ten times "Lost some data!" and once "Communication Interrupted!"
        QVERIFY2(silences() >= 1, qPrintable(QString::number(silences()))); // a stand-in that was held up is one, too
        QVERIFY(count(kLog, &whole) >= 11);
    }
    // Nothing of it is told at the next start.
    QTRY_VERIFY_WITH_TIMEOUT(!QFile::exists(m_desk->path(QStringLiteral("/mnt/storage/.running"))), kWaitMs);
}

void TstTroubledRuns::recordingGoesOnWhenTheInstrumentsOwnClockIsSet()
{
    m_name = QStringLiteral("Common.pqa2");
    m_type = kRecorded;
    m_desk = std::make_unique<Instrument>();
    const QString set = m_desk->path(QStringLiteral("/clock"));
    const auto setClock = [&set](const char *by) {
        QFile file(set);
        return file.open(QIODevice::WriteOnly) && file.write(by) > 0;
    };
    QVERIFY(setClock("+0"));
    qputenv("FAKETIME_TIMESTAMP_FILE", set.toLocal8Bit());
    qputenv("FAKETIME_NO_CACHE", "1");
    qputenv("FAKETIME_DONT_FAKE_MONOTONIC", "1");
    VERIFY_DESK(m_desk->startProcessor(), *m_desk);
    QVERIFY2(m_desk->setSpeed(1), qPrintable(m_desk->error()));
    qputenv("LD_PRELOAD", m_desk->clockLibrary().toLocal8Bit()); // for the instrument alone
    const bool started = m_desk->startInstrument();
    for (const char *name :
         { "LD_PRELOAD", "FAKETIME_TIMESTAMP_FILE", "FAKETIME_NO_CACHE", "FAKETIME_DONT_FAKE_MONOTONIC" })
        qunsetenv(name);
    VERIFY_DESK(started, *m_desk);
    VERIFY_DESK(m_desk->press(QString(QLatin1String(kStartRecorder)).split(QLatin1Char(' '))), *m_desk);
    QVERIFY(waitForIntervals(2));
    for (const char *by : { "+1h", "-1h", "+10y", "-10y", "+1h" }) {
        QVERIFY(setClock(by));
        QVERIFY2(waitForIntervals(3), by);
        QVERIFY(m_desk->isInstrumentRunning() && !m_desk->screen().isNull());
    }
    VERIFY_DESK(m_desk->press({ QStringLiteral("F5"), QStringLiteral("F4") }), *m_desk); // Stop: Save
    bool whole = false;
    QTRY_COMPARE_WITH_TIMEOUT(count(kEnd, &whole), 1, kWaitMs);
    QVERIFY(whole);
    quint32 end = 0; // by the clock as it stands now
    for (const Block &block : blocksOf(file(), &whole)) {
        if (block.type == kEnd)
            std::memcpy(&end, block.payload.constData(), sizeof end);
    }
    const qint64 ahead = qint64(end) - QDateTime::currentSecsSinceEpoch();
    QVERIFY2(ahead > 3000 && ahead <= 3600, qPrintable(QString::number(ahead)));
}

QTEST_MAIN(TstTroubledRuns)
#include "tst_troubledruns.moc"
