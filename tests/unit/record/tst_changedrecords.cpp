#include "keptrecord.h"
#include "pqa2bytes.h"
#include "record/pqa2reader.h"
#include "record/tables/capturereading.h"
#include "record/tables/logreading.h"
#include "record/tables/pagereading.h"
#include "record/tables/recordsource.h"
#include "record/wavefile.h"
#include "testpaths.h"

#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

using P = Pqa2Bytes;

constexpr qint64 kTime = P::kTime;
constexpr int kFrameBytes = 16;
constexpr int kUsedInputs = 4; // L1 and N, voltage and current

/// A capture of L1 and N in two chunks, whose samples are the number of their frame.
QByteArray capture(int frames)
{
    QByteArray bytes = P::bytesOf(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/capture.wav")).left(88);
    bytes.replace(72, 8, P::le(quint64(frames), 8));
    for (int frame = 0; frame < frames; ++frame) {
        if (frame == 0 || frame == frames / 2)
            bytes += P::le(quint64(frame == 0 ? frames / 2 : frames - frames / 2) * kFrameBytes, 4);
        for (int input = 0; input < 8; ++input)
            bytes += P::le(quint64(frame), 2);
    }
    return bytes;
}

/// Makes a file shorter as soon as its reading has begun.
class CuttingRecord : public KeptRecord
{
public:
    CuttingRecord(const QString &path, qint64 length) : m_path(QFile::encodeName(path)), m_length(length) { }

    bool row(const RecordRow &row) override { return cut() && KeptRecord::row(row); }
    bool waveformBegin(const RecordedWaveform &waveform) override
    {
        return cut() && KeptRecord::waveformBegin(waveform);
    }

private:
    bool cut() const { return ::truncate(m_path.constData(), m_length) == 0; }

    const QByteArray m_path;
    const qint64 m_length;
};

std::unique_ptr<RecordReading> readingOf(const QString &kind, const QString &path)
{
    if (kind == QStringLiteral("capture"))
        return std::make_unique<CaptureReading>(path);
    if (kind == QStringLiteral("page"))
        return std::make_unique<PageReading>(path);
    return std::make_unique<LogReading>(path);
}

} // namespace

/// Records that become others between the look at them and their reading, or while they are read: an instrument goes
/// on, somebody copies or deletes, a stick is pulled out.
class TstChangedRecords : public QObject
{
    Q_OBJECT

private:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    static bool holdsFramesFromZero(const KeptRecord &kept, int most)
    {
        const QVector<qint16> &samples = kept.waveforms.at(0).samples;
        for (int i = 0; i < samples.size(); ++i) {
            if (samples.at(i) != qint16(i / kUsedInputs))
                return false;
        }
        return samples.size() % kUsedInputs == 0 && samples.size() / kUsedInputs <= most;
    }

    QTemporaryDir m_folder;
    RecordSource source;

private slots:
    void fileThatBecameAnotherIsUnreadable_data();
    void fileThatBecameAnotherIsUnreadable();
    void captureThatShrankGivesItsFirstFrames();
    void captureThatIsCutWhileItIsReadGivesItsFirstFrames();
    void captureThatGrewGivesWhatWasSeenOfIt();
    void captureWhosePlacesCannotBeReachedGivesNothing();
    void blockThatIsCutOffWhileItIsReadIsLeftOut_data();
    void blockThatIsCutOffWhileItIsReadIsLeftOut();
};

void TstChangedRecords::fileThatBecameAnotherIsUnreadable_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("at");
    QTest::addColumn<QString>("reason"); // empty: whichever
    QVERIFY(QDir().mkpath(path("folder")));
    QVERIFY(P::save(path("empty"), {}) && P::save(path("foreign"), QByteArray(500, 'x')));
    for (const char *kind : { "capture", "page", "log" }) {
        const auto row = [&](const char *name, const QString &reason) {
            QTest::addRow("%s: %s", kind, name)
                << QString::fromLatin1(kind) << path(QString::fromLatin1(name)) << reason;
        };
        row("missing", QString::fromLocal8Bit(std::strerror(ENOENT)));
        row("folder", QStringLiteral("it is no ordinary file"));
        row("empty", QString());
        row("foreign", QString());
    }
}

void TstChangedRecords::fileThatBecameAnotherIsUnreadable()
{
    QFETCH(QString, kind);
    QFETCH(QString, at);
    QFETCH(QString, reason);
    const auto reading = readingOf(kind, at);
    QVERIFY(reading->scan([](qint64, qint64) { return true; }));
    const RecordFileReport &report = reading->files().constFirst();
    QCOMPARE(report.state, RecordState::Unreadable);
    QCOMPARE(report.faults.size(), 1);
    QCOMPARE(report.faults.constFirst().path, at);
    const QString told = report.faults.constFirst().reason;
    QVERIFY2(reason.isEmpty() ? !told.isEmpty() : told == reason, qPrintable(told));
    QCOMPARE(reading->facts().start, qint64(0));
}

void TstChangedRecords::captureThatShrankGivesItsFirstFrames()
{
    constexpr int kFrames = 40;
    const QByteArray whole = capture(kFrames);
    int most = 0;
    for (int length = 0; length <= whole.size(); ++length) {
        QVERIFY(P::save(path("shrinks.wav"), whole));
        QVERIFY(source.open(path("shrinks.wav")));
        QCOMPARE(source.state(), RecordState::Whole);
        QVERIFY(P::save(path("shrinks.wav"), whole.left(length)));
        KeptRecord kept;
        QVERIFY(source.read(kept));
        QVERIFY(kept.hasEnded);
        QCOMPARE(kept.complaints, QStringList());
        QCOMPARE(kept.waveforms.size(), length < 88 ? 0 : 1); // without a head there is no rate
        if (length < 88)
            continue;
        QVERIFY(holdsFramesFromZero(kept, qMax(0, length - 92) / kFrameBytes));
        most = kept.waveforms.at(0).samples.size() / kUsedInputs;
    }
    QCOMPARE(most, kFrames);
}

void TstChangedRecords::captureThatIsCutWhileItIsReadGivesItsFirstFrames()
{
    constexpr int kFrames = 40000;
    const QByteArray whole = capture(kFrames);
    for (const int length : { 88, 90, 92, 92 + 20 * kFrameBytes, 92 + 5000 * kFrameBytes + 3 }) {
        QVERIFY(P::save(path("cut.wav"), whole));
        QVERIFY(source.open(path("cut.wav")));
        CuttingRecord kept(path("cut.wav"), length);
        QVERIFY(source.read(kept));
        QVERIFY(kept.hasEnded);
        QCOMPARE(kept.complaints, QStringList());
        QVERIFY(holdsFramesFromZero(kept, kFrames / 2));
        QCOMPARE(kept.waveforms.at(0).facts.samples, qint64(kFrames)); // as was seen beforehand
    }
}

void TstChangedRecords::captureThatGrewGivesWhatWasSeenOfIt()
{
    constexpr int kFrames = 40;
    const QByteArray whole = capture(kFrames);
    for (const int seen : { 0, 1, 5, 20, 21, 39 }) {
        const int length = 92 + seen * kFrameBytes + (seen > kFrames / 2 ? 4 : 0);
        QVERIFY(P::save(path("grows.wav"), whole.left(length + 3)));
        QVERIFY(source.open(path("grows.wav")));
        QCOMPARE(source.state(), RecordState::Cut);
        QVERIFY(P::save(path("grows.wav"), whole));
        KeptRecord kept;
        QVERIFY(source.read(kept));
        QVERIFY(kept.hasEnded);
        QCOMPARE(kept.waveforms.size(), seen > 0 ? 1 : 0);
        if (seen == 0)
            continue;
        QVERIFY(holdsFramesFromZero(kept, seen));
        QCOMPARE(kept.waveforms.at(0).samples.size(), seen * kUsedInputs);
    }
}

void TstChangedRecords::captureWhosePlacesCannotBeReachedGivesNothing()
{
    class Stuck : public QBuffer
    {
    public:
        bool seek(qint64 place) override { return !isStuck && QBuffer::seek(place); }
        bool isStuck = true;
    } device;
    device.setData(capture(40));
    QVERIFY(device.open(QIODevice::ReadOnly));
    QCOMPARE(int(WaveFileReader(&device).state()), int(WaveFileReader::Unreadable));
    device.isStuck = false;
    WaveFileReader reader(&device);
    WaveChunk chunk;
    QVERIFY(reader.next(&chunk));
    QCOMPARE(reader.frames(chunk).size(), 20 * kFrameBytes);
    device.isStuck = true;
    QVERIFY(reader.frames(chunk).isEmpty());
    QVERIFY(!reader.next(&chunk));
    QCOMPARE(int(reader.state()), int(WaveFileReader::Cut));
    QCOMPARE(reader.faultOffset(), qint64(92 + 20 * kFrameBytes)); // where the second chunk was to be
}

void TstChangedRecords::blockThatIsCutOffWhileItIsReadIsLeftOut_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<QByteArray>("values"); // behind the time
    QTest::addColumn<int>("read"); // bytes of the block that a reader has in memory by then
    const QByteArray transient = P::f32(50) + P::le(1U << 24 | 301, 4) + QByteArray(1200, '\1');
    QTest::newRow("values, not even the time") << 0xA1000020U << P::countUp(1, 52) << 12 + 4;
    QTest::newRow("values, the first ones") << 0xA1000020U << P::countUp(1, 52) << 12 + 60;
    QTest::newRow("transient, not even the time") << 0xA1000025U << transient << 12 + 4;
    QTest::newRow("transient, the first samples") << 0xA1000025U << transient << 12 + 60;
    QTest::newRow("a head in halves") << 0xA1000020U << P::countUp(1, 52) << 4;
}

void TstChangedRecords::blockThatIsCutOffWhileItIsReadIsLeftOut()
{
    QFETCH(quint32, type);
    QFETCH(QByteArray, values);
    QFETCH(int, read);
    // A reader has the first 256 KiB in memory when the first row comes: the block lies across that.
    constexpr int kRows = 3;
    P file = P::recording(kRows);
    const int begin = file.bytes().size();
    file.timed(0xA1000009, kTime + 4000, QByteArray(int(Pqa2Reader::kMostView) - read - begin - 20, 'x'));
    const QByteArray start = type == 0xA1000025U ? P::f64(double(kTime) + 5000) : P::le(quint64(kTime) + 5000, 8);
    file.add(type, start + values).timed(0xA1000029, kTime + 6000, P::f32(50)).end(P::kSeconds + 7);
    QCOMPARE(file.offsetOf(4 + kRows + 1), int(Pqa2Reader::kMostView) - read);
    QVERIFY(file.save(path("cut.pqa2")));
    QVERIFY(source.open(path("cut.pqa2")));
    QCOMPARE(source.state(), RecordState::Whole);
    CuttingRecord kept(path("cut.pqa2"), 1000);
    QVERIFY(source.read(kept));
    QVERIFY(kept.hasEnded);
    QCOMPARE(kept.complaints, QStringList());
    QCOMPARE(kept.times("frequency"), QVector<qint64>({ kTime + 1000, kTime + 2000, kTime + 3000 }));
    QCOMPARE(kept.times("system_log").size(), 1);
    QVERIFY(kept.times("rms").isEmpty() && kept.times("transients").isEmpty() && kept.waveforms.isEmpty());
}

QTEST_APPLESS_MAIN(TstChangedRecords)
#include "tst_changedrecords.moc"
