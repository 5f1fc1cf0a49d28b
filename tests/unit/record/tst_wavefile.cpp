#include "fakepqa2device.h"
#include "platform/clock.h"
#include "platform/target.h"
#include "record/wavefile.h"
#include "settings/derived.h"
#include "settings/waveinfo.h"
#include "storage/fileinfo.h"
#include "unit/documentpage.h"
#include "unit/storage/rootfiles.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>

#include <cstring>

namespace {

const QDateTime kToday(QDate(2026, 3, 1), QTime(12, 30), Qt::UTC);
constexpr quint32 kBegin = 1'800'000'000;

Derived setUp()
{
    Derived derived;
    derived.realNominalVolt = 230.9f;
    derived.nominalFrequency = 50.0;
    derived.joinMode = 7;
    derived.clamp.ratio = 10000;
    for (int c = 0; c < 4; ++c) {
        derived.scales.voltage[c] = float(c + 1);
        derived.scales.current[c] = 0.5f * float(c + 1);
    }
    return derived;
}

/// \a frames frames that tell their number, from \a first on.
QByteArray chunk(int frames, int first = 0)
{
    QByteArray bytes;
    for (int f = first; f < first + frames; ++f) {
        for (int input = 0; input < 8; ++input) {
            const qint16 sample = qint16(10 * f + input);
            bytes.append(reinterpret_cast<const char *>(&sample), sizeof sample);
        }
    }
    return bytes;
}

template <typename T> T valueAt(const QByteArray &bytes, int offset)
{
    T value {};
    if (offset + int(sizeof value) <= bytes.size())
        std::memcpy(&value, bytes.constData() + offset, sizeof value);
    return value;
}

/// What a reader finds in \a content.
struct Found
{
    explicit Found(QByteArray content)
    {
        QBuffer buffer(&content);
        buffer.open(QIODevice::ReadOnly);
        WaveFileReader reader(&buffer);
        header = reader.header();
        for (WaveChunk chunk; reader.next(&chunk); ++chunks)
            frames += reader.frames(chunk);
        state = reader.state();
        fault = reader.faultOffset();
        reason = reader.reason();
    }

    WaveFileHeader header;
    QByteArray frames;
    int chunks = 0;
    WaveFileReader::State state;
    qint64 fault;
    QByteArray reason;
};

} // namespace

/// Waveform captures: the writer, and the reader beside it.
class TstWaveFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void headHasItsFieldsAtTheirOffsets();
    void headIsTrueAfterEveryChunk();
    void chunkIsItsLengthAndItsFrames();
    void fewerThanNineBytesWriteNothing();
    void framesAreRoundedTowardsZero();
    void fileThatIsNotOpenTakesNothing();
    void openEntersTheFileInTheIndexAndStartsItAnew();
    void fileWithoutANameIsNotOpened();
    void storageThatRefusesTheHeadLeavesNothing();
    void captureThatBeganAtOnceTellsTheMoment();
    void keptFileStaysAndAnotherOneGoesWithItsEntry();
    void killedWriterLeavesAllThatTheHeadCounts();
    void cutSupplyLeavesAllThatWasFlushed();
    void refusedChunkLeavesTheFileAsItWas_data();
    void refusedChunkLeavesTheFileAsItWas();
    void everyRefusedWriteLeavesAReadableFile_data();
    void everyRefusedWriteLeavesAReadableFile();
    void chunksAreWrittenBeforeTheHead();
    void atMostFiveSecondsAreNotFlushed();

    void fileOfAnotherProgramReadsBack();
    void piecesOfAChunkAreRead();
    void damagedLengthIsPassed();
    void damageIsTold_data();
    void damageIsTold();

    void formatPageTellsTheHeadAndTheRates();

private:
    std::unique_ptr<WaveFile> file(const QString &name = QStringLiteral("Wave_1"), quint32 rate = 20480)
    {
        return std::make_unique<WaveFile>(name, kBegin, rate, setUp(), std::make_unique<FakePqa2Device>(&m_state));
    }
    FakePqa2Device::State m_state;
};

void TstWaveFile::init()
{
    m_state = {};
    RootFiles::clean();
}

void TstWaveFile::headHasItsFieldsAtTheirOffsets()
{
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    QCOMPARE(capture->write(chunk(4), kBegin + 5), qint64(64));
    const QByteArray head = m_state.content.left(88);
    QCOMPARE(head.left(4), QByteArray("WAV\x1A"));
    QCOMPARE(valueAt<quint32>(head, 4), 0x02020006u);
    QCOMPARE(valueAt<qint32>(head, 8), 230);
    QCOMPARE(valueAt<qint32>(head, 12), 50);
    QCOMPARE(valueAt<qint32>(head, 16), 7);
    QCOMPARE(valueAt<qint32>(head, 20), 10000);
    for (int c = 0; c < 4; ++c) {
        // 10 converter units on 32768 steps
        QCOMPARE(valueAt<float>(head, 24 + 4 * c), float((c + 1) * 10.0 / 32768));
        QCOMPARE(valueAt<float>(head, 40 + 4 * c), float(0.5 * (c + 1) * 10.0 / 32768));
    }
    QCOMPARE(valueAt<quint32>(head, 56), kBegin);
    QCOMPARE(valueAt<quint32>(head, 60), kBegin + 5);
    QCOMPARE(valueAt<quint32>(head, 64), 20480u);
    QCOMPARE(valueAt<quint32>(head, 68), 0u);
    QCOMPARE(valueAt<quint64>(head, 72), quint64(4));
    QCOMPARE(valueAt<quint32>(head, 80), 0xAA55A5A5u);
    QCOMPARE(valueAt<quint32>(head, 84), 0xCC33C3C3u);
}

void TstWaveFile::headIsTrueAfterEveryChunk()
{
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    for (int i = 1; i <= 5; ++i) {
        capture->write(chunk(10), kBegin + quint32(i));
        QCOMPARE(valueAt<quint64>(m_state.content, 72), quint64(10 * i));
        QCOMPARE(valueAt<quint32>(m_state.content, 60), kBegin + quint32(i));
        QCOMPARE(int(Found(m_state.content).state), int(WaveFileReader::Whole));
    }
}

void TstWaveFile::chunkIsItsLengthAndItsFrames()
{
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    capture->write(chunk(3), kBegin);
    capture->write(chunk(2, 3), kBegin);
    QCOMPARE(m_state.content.size(), 88 + 4 + 48 + 4 + 32);
    QCOMPARE(valueAt<quint32>(m_state.content, 88), 48u);
    QCOMPARE(m_state.content.mid(92, 48), chunk(3));
    QCOMPARE(valueAt<quint32>(m_state.content, 140), 32u);
    QCOMPARE(m_state.content.mid(144), chunk(2, 3));
}

void TstWaveFile::fewerThanNineBytesWriteNothing()
{
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    for (int size : { 0, 1, 8 })
        QCOMPARE(capture->write(QByteArray(size, 'x'), kBegin), qint64(0));
    QCOMPARE(m_state.content.size(), 88);
    QCOMPARE(capture->write(QByteArray(9, 'x'), kBegin), qint64(9));
    QCOMPARE(m_state.content.size(), 88 + 4 + 9);
}

void TstWaveFile::framesAreRoundedTowardsZero()
{
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    capture->write(QByteArray(15, 'x'), kBegin);
    QCOMPARE(capture->header().frames, quint64(0));
    capture->write(QByteArray(31, 'x'), kBegin);
    QCOMPARE(capture->header().frames, quint64(1));
}

void TstWaveFile::fileThatIsNotOpenTakesNothing()
{
    const auto capture = file();
    QCOMPARE(capture->write(chunk(4), kBegin), qint64(0));
    QVERIFY(!capture->flush());
    capture->save(false);
    QVERIFY(m_state.calls.isEmpty());
    QVERIFY(capture->open(kToday));
    capture->close();
    m_state.calls.clear();
    QCOMPARE(capture->write(chunk(4), kBegin), qint64(0));
    QVERIFY(m_state.calls.isEmpty());
}

void TstWaveFile::openEntersTheFileInTheIndexAndStartsItAnew()
{
    for (int i = 0; i < 2; ++i) {
        WaveFile capture(QStringLiteral("Wave_7"), kBegin, 5120, setUp());
        QVERIFY(capture.open(kToday));
        capture.write(chunk(10), kBegin);
        QVERIFY(capture.open(kToday)); // open already
        QCOMPARE(capture.header().frames, quint64(10));
        capture.save(true);
        QVERIFY(!capture.isOpen());
        QCOMPARE(RootFiles::index(), QStringList { "Wave_7.wav,2026-03-01 12:30:00" });
        QFile stored(Target::path(QStringLiteral("/mnt/storage/Wave_7.wav")));
        QCOMPARE(stored.size(), qint64(88 + 4 + 160));
    }
}

void TstWaveFile::fileWithoutANameIsNotOpened()
{
    const auto capture = file(QString());
    QVERIFY(!capture->open(kToday));
    QVERIFY(m_state.calls.isEmpty());
    QVERIFY(RootFiles::index().isEmpty());
}

void TstWaveFile::storageThatRefusesTheHeadLeavesNothing()
{
    m_state.opens = false;
    QVERIFY(!file()->open(kToday));
    m_state.opens = true;
    for (int taken : { -1, 0, 40 }) {
        m_state.failingWrite = m_state.writeNumber;
        m_state.bytesTaken = taken;
        QVERIFY(!file()->open(kToday));
        QVERIFY(RootFiles::index().isEmpty());
    }
}

void TstWaveFile::captureThatBeganAtOnceTellsTheMoment()
{
    WaveFile capture(QStringLiteral("Wave_1"), 0, 20480, setUp(), std::make_unique<FakePqa2Device>(&m_state));
    QVERIFY(capture.open(kToday));
    QCOMPARE(valueAt<quint32>(m_state.content, 56), quint32(kToday.toSecsSinceEpoch()));
}

void TstWaveFile::keptFileStaysAndAnotherOneGoesWithItsEntry()
{
    for (bool keep : { true, false }) {
        WaveFile capture(QStringLiteral("Wave_2"), kBegin, 20480, setUp());
        QVERIFY(capture.open(kToday));
        capture.write(chunk(10), kBegin);
        capture.save(keep);
        QCOMPARE(QFile::exists(Target::path(capture.fullFilePath())), keep);
        QCOMPARE(RootFiles::isIndexed(QStringLiteral("Wave_2.wav")), keep);
    }
}

void TstWaveFile::killedWriterLeavesAllThatTheHeadCounts()
{
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    for (int i = 0; i < 4; ++i)
        capture->write(chunk(3, 3 * i), kBegin);
    // The file after each write, and after each part of the one that was under way.
    for (int done = 1; done <= m_state.writes.size(); ++done) {
        QByteArray content;
        for (int w = 0; w < done; ++w) {
            const auto &[at, bytes] = m_state.writes.at(w);
            content.resize(qMax(content.size(), int(at) + bytes.size()));
            content.replace(int(at), bytes.size(), bytes);
        }
        const int torn = done < m_state.writes.size() ? m_state.writes.at(done).second.size() : 1;
        for (int part = 0; part < torn; ++part) {
            QByteArray cut = content;
            if (part > 0) {
                const auto &[at, bytes] = m_state.writes.at(done);
                cut.resize(qMax(cut.size(), int(at) + part));
                cut.replace(int(at), part, bytes.left(part));
            }
            const Found found(cut);
            QVERIFY(found.state == WaveFileReader::Whole || found.state == WaveFileReader::Cut);
            QVERIFY(found.frames.size() / 16 >= int(found.header.frames));
            QCOMPARE(found.frames, chunk(found.frames.size() / 16));
        }
    }
    QCOMPARE(Found(m_state.content).frames, chunk(12));
}

void TstWaveFile::cutSupplyLeavesAllThatWasFlushed()
{
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    for (int i = 0; i < 2; ++i)
        capture->write(chunk(4, 4 * i), kBegin);
    QVERIFY(capture->flush());
    const QByteArray flushed = m_state.content;
    const int before = m_state.writes.size();
    for (int i = 2; i < 5; ++i)
        capture->write(chunk(4, 4 * i), kBegin);
    // What came behind the flush reached the disk in any choice: two writes a chunk.
    const int behind = m_state.writes.size() - before;
    QCOMPARE(behind, 6);
    for (int choice = 0; choice < 1 << behind; ++choice) {
        QByteArray content = flushed;
        for (int w = 0; w < behind; ++w) {
            if (!(choice >> w & 1))
                continue;
            const auto &[at, bytes] = m_state.writes.at(before + w);
            if (content.size() < at)
                content.append(QByteArray(int(at) - content.size(), '\0')); // a hole
            content.replace(int(at), bytes.size(), bytes);
        }
        const Found found(content);
        QVERIFY(found.state != WaveFileReader::Unreadable);
        QVERIFY(found.frames.startsWith(chunk(8)));
    }
}

void TstWaveFile::refusedChunkLeavesTheFileAsItWas_data()
{
    QTest::addColumn<int>("taken");
    QTest::newRow("the write fails") << -1;
    QTest::newRow("nothing is taken") << 0;
    QTest::newRow("a part of the length is taken") << 3;
    QTest::newRow("a part of the frames is taken") << 20;
}

void TstWaveFile::refusedChunkLeavesTheFileAsItWas()
{
    QFETCH(int, taken);
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    capture->write(chunk(4), kBegin);
    const QByteArray before = m_state.content;
    m_state.failingWrite = m_state.writeNumber;
    m_state.bytesTaken = taken;
    QCOMPARE(capture->write(chunk(4, 4), kBegin + 1), qint64(-1));
    QCOMPARE(m_state.content, before);
    QCOMPARE(capture->header().frames, quint64(4));
    QCOMPARE(capture->write(chunk(4, 4), kBegin + 2), qint64(64)); // there is room again
    QCOMPARE(Found(m_state.content).frames, chunk(8));
}

void TstWaveFile::everyRefusedWriteLeavesAReadableFile_data()
{
    QTest::addColumn<int>("taken");
    for (int taken : { -1, 0, 3, 62, 73 }) // 62 and 73: in the midst of the head's time and count
        QTest::addRow("%d bytes are taken", taken) << taken;
}

void TstWaveFile::everyRefusedWriteLeavesAReadableFile()
{
    QFETCH(int, taken);
    constexpr int kChunks = 10;
    for (int failing = 1; failing <= 2 * kChunks; ++failing) { // the first is the head of the empty file
        m_state = {};
        const auto capture = file();
        QVERIFY(capture->open(kToday));
        m_state.failingWrite = failing;
        m_state.bytesTaken = taken;
        int stored = 0;
        for (int i = 0; i < kChunks; ++i) {
            stored += capture->write(chunk(8, 8 * stored), kBegin + quint32(i)) > 0;
            const Found found(m_state.content);
            QVERIFY(found.state == WaveFileReader::Whole || found.state == WaveFileReader::Cut);
            QCOMPARE(found.frames, chunk(8 * stored));
        }
        QVERIFY(stored >= kChunks - 1);
        const Found found(m_state.content);
        // Only a head that was refused at the very end stays behind its chunks, unless the byte that counts was taken.
        QCOMPARE(found.state == WaveFileReader::Whole, failing != 2 * kChunks || taken > 72);
    }
}

void TstWaveFile::chunksAreWrittenBeforeTheHead()
{
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    m_state.calls.clear();
    capture->write(chunk(4), kBegin);
    QCOMPARE(m_state.calls, QStringList({ "seek 88", "write 88+68", "seek 0", "write 0+88" }));
    m_state.calls.clear();
    QVERIFY(capture->flush());
    QCOMPARE(m_state.calls, QStringList({ "syncBehind" }));
    m_state.syncs = false; // the flush before still goes on
    QVERIFY(!capture->flush());
}

void TstWaveFile::atMostFiveSecondsAreNotFlushed()
{
    Clock::setForTest(1000LL * kBegin);
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    m_state.calls.clear();
    int since = 0; // chunks that no flush followed, five a second
    for (int i = 0; i < 200; ++i) {
        Clock::advance(200);
        m_state.syncs = i % 50 != 24; // now and then the card is slow
        capture->write(chunk(1), kBegin);
        since = m_state.calls.last() == QLatin1String("syncBehind") && m_state.syncs ? 0 : since + 1;
        QVERIFY(since <= 25);
    }
    const auto flushes = m_state.calls.count(QStringLiteral("syncBehind"));
    QVERIFY2(flushes >= 9 && flushes <= 20, "now and then, not with each chunk");
    Clock::useSystem();
}

void TstWaveFile::fileOfAnotherProgramReadsBack()
{
    // Two chunks of four frames; frame f, input i: 100 f + i, odd inputs negative.
    QFile stored(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/capture.wav"));
    QVERIFY(stored.open(QIODevice::ReadOnly));
    const Found found(stored.readAll());
    QCOMPARE(int(found.state), int(WaveFileReader::Whole));
    QCOMPARE(found.fault, qint64(-1));
    QCOMPARE(found.chunks, 2);
    QCOMPARE(found.header.nominalVolt, 120);
    QCOMPARE(found.header.nominalFrequency, 60);
    QCOMPARE(found.header.joinMode, 3);
    QCOMPARE(found.header.clampRatio, 1000);
    QCOMPARE(found.header.voltFactor[3], 0.25f);
    QCOMPARE(found.header.ampereFactor[0], 0.5f);
    QCOMPARE(found.header.begin, 1767225600u);
    QCOMPARE(found.header.lastWrite, 1767225601u);
    QCOMPARE(found.header.sampleRate, 5120u);
    QCOMPARE(found.header.frames, quint64(8));
    for (int f = 0; f < 8; ++f) {
        for (int i = 0; i < 8; ++i)
            QCOMPARE(valueAt<qint16>(found.frames, 16 * f + 2 * i), qint16((i % 2 ? -1 : 1) * (100 * f + i)));
    }
}

void TstWaveFile::piecesOfAChunkAreRead()
{
    const auto capture = file();
    QVERIFY(capture->open(kToday));
    capture->write(chunk(10), kBegin);
    QBuffer buffer(&m_state.content);
    buffer.open(QIODevice::ReadOnly);
    WaveFileReader reader(&buffer);
    WaveChunk read;
    QVERIFY(reader.next(&read));
    QCOMPARE(reader.frames(read, 3, 4), chunk(4, 3));
    QCOMPARE(reader.frames(read, 8, 4), chunk(2, 8));
    QVERIFY(reader.frames(read, 10).isEmpty());
    QVERIFY(reader.frames(read, 0, -1).isEmpty());
    QCOMPARE(reader.frames(read, -5, 1), chunk(1));
    QVERIFY(!reader.next(&read));
}

void TstWaveFile::damagedLengthIsPassed()
{
    const auto capture = file(QStringLiteral("Wave_1"), 5120);
    QVERIFY(capture->open(kToday));
    for (int i = 0; i < 3; ++i)
        capture->write(chunk(1024, 1024 * i), kBegin);
    for (quint32 length : { 0u, 1u, 16u, 0xFFFFFFF0u }) {
        for (int damaged = 0; damaged < 3; ++damaged) {
            QByteArray content = m_state.content;
            const int at = 88 + damaged * (4 + 16384);
            std::memcpy(content.data() + at, &length, sizeof length);
            const Found found(content);
            QCOMPARE(int(found.state), int(WaveFileReader::Broken));
            QCOMPARE(found.fault, qint64(at));
            QCOMPARE(found.frames, chunk(3 * 1024));
        }
    }
}

void TstWaveFile::damageIsTold_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("frames");
    QTest::addColumn<int>("fault");
    FakePqa2Device::State state;
    WaveFile capture(QStringLiteral("x"), kBegin, 20480, setUp(), std::make_unique<FakePqa2Device>(&state));
    QVERIFY(capture.open(kToday));
    const QByteArray empty = state.content;
    capture.write(chunk(4), kBegin);
    capture.write(chunk(4, 4), kBegin);
    const QByteArray whole = state.content;
    const auto with = [&whole](int at, char byte) {
        QByteArray changed = whole;
        changed[at] = byte;
        return changed;
    };
    const int second = 88 + 4 + 64;
    QTest::newRow("no chunk") << empty << int(WaveFileReader::Whole) << 0 << -1;
    QTest::newRow("whole") << whole << int(WaveFileReader::Whole) << 8 << -1;
    QTest::newRow("empty file") << QByteArray() << int(WaveFileReader::Unreadable) << 0 << 0;
    QTest::newRow("half a head") << whole.left(87) << int(WaveFileReader::Unreadable) << 0 << 0;
    QTest::newRow("a sound file") << QByteArray("RIFF").leftJustified(200, ' ') << int(WaveFileReader::Unreadable) << 0
                                  << 0;
    QTest::newRow("another format") << with(5, 9) << int(WaveFileReader::Unreadable) << 0 << 0;
    QTest::newRow("another mark") << with(87, 9) << int(WaveFileReader::Unreadable) << 0 << 0;
    QTest::newRow("cut inside a frame") << whole.left(second + 4 + 40) << int(WaveFileReader::Cut) << 6
                                        << second + 4 + 40;
    QTest::newRow("cut inside a length") << whole.left(second + 2) << int(WaveFileReader::Cut) << 4 << second;
    QTest::newRow("cut between chunks") << whole.left(second) << int(WaveFileReader::Cut) << 4 << 72;
    QTest::newRow("length of no frames") << with(second, 8) << int(WaveFileReader::Cut) << 4 << second;
    QTest::newRow("length of nothing") << with(second, 0) << int(WaveFileReader::Cut) << 4 << second;
    QTest::newRow("a wrong length and a torn one where the usual one leads")
        << with(88, 8).left(88 + 4) + QByteArray(65536 + 3, '\0') << int(WaveFileReader::Cut) << 0 << 88;
    QTest::newRow("head counts less") << with(72, 7) << int(WaveFileReader::Cut) << 8 << 72;
}

void TstWaveFile::damageIsTold()
{
    QFETCH(QByteArray, content);
    QFETCH(int, state);
    QFETCH(int, frames);
    QFETCH(int, fault);
    const Found found(content);
    QCOMPARE(int(found.state), state);
    QCOMPARE(found.frames, chunk(frames));
    QCOMPARE(found.fault, qint64(fault));
    QCOMPARE(found.reason.isEmpty(), fault < 0);
}

void TstWaveFile::formatPageTellsTheHeadAndTheRates()
{
#define FIELD(type, name)                                                                                              \
    QStringList                                                                                                        \
    {                                                                                                                  \
        QString::number(offsetof(WaveFileHeader, name)), QString::number(sizeof(WaveFileHeader::name)), type, #name    \
    }
    const QList<QStringList> fields {
        FIELD("char[4]", magic),          FIELD("uint32", format),         FIELD("int32", nominalVolt),
        FIELD("int32", nominalFrequency), FIELD("int32", joinMode),        FIELD("int32", clampRatio),
        FIELD("float[4]", voltFactor),    FIELD("float[4]", ampereFactor), FIELD("uint32", begin),
        FIELD("uint32", lastWrite),       FIELD("uint32", sampleRate),     FIELD("uint32", padding),
        FIELD("uint64", frames),          FIELD("uint32", mark1),          FIELD("uint32", mark2),
    };
#undef FIELD
    const DocumentPage page(QStringLiteral("formats/waveform-capture.md"));
    QList<QStringList> documented;
    for (const QStringList &row : page.table(QStringLiteral("## File head")))
        documented << row.mid(0, 4);
    QCOMPARE(documented, fields);
    const auto number = [](quint32 value) {
        return QStringLiteral("0x%1").arg(value, 8, 16, QLatin1Char('0')).toUpper().replace('X', 'x');
    };
    const QString text = page.section(QStringLiteral("## File head"));
    for (const quint32 constant : { kWaveFormat, kWaveMark1, kWaveMark2 })
        QVERIFY2(text.contains(number(constant)), qPrintable(number(constant)));

    int row = 0;
    for (const QStringList &cells : page.table(QStringLiteral("## Chunks"))) {
        const int rate = WaveInfo::m_sample_times[row++];
        const int step = 20480 / rate;
        const QStringList expected { QString::number(rate), QString::number(step), QString::number(4096 / step),
                                     QString::number(65536 / step) };
        QCOMPARE(cells, expected);
    }
    QCOMPARE(row, 3);
}

QTEST_GUILESS_MAIN(TstWaveFile)
#include "tst_wavefile.moc"
