#include "recorderrun.h"
#include "unit/documentpage.h"

#include "model/channelset.h"
#include "settings/recordgroups.h"
#include "task/functions/recordblocks.h"
#include "task/recordopening.h"

#include <QDir>
#include <QTest>

namespace {

const char *const kSpectrumFile = "U Harmonic(1-50).pqa2";

QString hex(quint32 type)
{
    return type
        ? QStringLiteral("0x%1").arg(type, 8, 16, QLatin1Char('0')).replace(2, 8, QString::number(type, 16).toUpper())
        : QStringLiteral("none");
}

/// Word w of the aggregation number i is w + i; angles and phases are 0.
void fill(__datagram_aggregation &record, int number)
{
    const qint64 time = record.time;
    auto *words = reinterpret_cast<float *>(&record);
    for (int word = 2; word < int(sizeof record) / 4; ++word)
        words[word] = float(word + number);
    for (ChannelRms &channel : record.channel)
        channel.voltageAngle = channel.currentAngle = channel.angleDifference = 0;
    for (ChannelSpectrum &spectrum : record.spectrum) {
        for (int h = 0; h < kHarmonicOrders; ++h)
            spectrum.voltage[h].phase = spectrum.current[h].phase = 0;
    }
    record.time = time;
    record.frequency = 50.0f + 0.125f * float(number % 5);
    record.power[0] = { 3600.0f, 7200.0f, -1800.0f, 0.5f, 0.5f, -0.5f };
}

/// The recording of tests/data/recorder: one second, another one, and the beginning of a third.
void record(RecorderRun &run)
{
    RecordInfo::m_recordItems = 0x805F | RecordInfo::HarmonicVolt1to50;
    RecordInfo::m_interval_index = 0; // 1 s
    Pqa2FF::setOpening(&recordOpening);
    run.recorder().start();
    for (int i = 0; i < 13; ++i) {
        fill(*run.record, i);
        run.take();
    }
    run.recorder().stop(Keep::Data);
}

QList<ReadBlock> example(const char *file)
{
    QFile stored(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/recorder/") + QLatin1String(file));
    return stored.open(QIODevice::ReadOnly) ? readBlocks(stored.readAll()).mid(3) : QList<ReadBlock>();
}

QList<ReadBlock> ofKind(const QList<ReadBlock> &blocks, quint32 type)
{
    QList<ReadBlock> found;
    for (const ReadBlock &block : blocks) {
        if (block.type == type)
            found << block;
    }
    return found;
}

} // namespace

/// The page of the recorder's files, and the example of one.
class TstRecorderFile : public QObject
{
    Q_OBJECT

private slots:
    void groupsStandInThePage();
    void anglesStandInThePage();
    void channelsStandInThePage();
    void theExampleHoldsWhatWasMeasured();
    void theExampleHoldsTheSpectraOfItsFile();
    void theProgramStillWritesTheExample();

private:
    const DocumentPage m_page { QStringLiteral("formats/recorder.md") };
};

void TstRecorderFile::groupsStandInThePage()
{
    const auto rows = m_page.table(QStringLiteral("## Groups"));
    QCOMPARE(rows.size(), int(recordGroups().size()));
    for (int i = 0; i < rows.size(); ++i) {
        const RecordGroup &group = recordGroups()[std::size_t(i)];
        QCOMPARE(rows[i][0].toUInt(nullptr, 16), group.item);
        QCOMPARE(rows[i][2], hex(group.mean));
        QCOMPARE(rows[i][3], hex(group.maximum));
        QCOMPARE(rows[i][4], hex(group.minimum));
        QCOMPARE(rows[i][5], QLatin1String(recordFiles()[group.file].name));
        QStringList places;
        if (group.distortion)
            places << QString::number(group.distortion) << QString::number(group.fundamental);
        QCOMPARE(rows[i][6], (places << QString::number(group.first)).join(QLatin1String(", ")));
        const QString bytes = QString::number(recordGroupBytes(group, *channelSet(6)));
        QCOMPARE(rows[i][7], group.channelStride ? bytes + QLatin1String(" a channel") : bytes);
    }
}

void TstRecorderFile::anglesStandInThePage()
{
    const auto rows = m_page.table(QStringLiteral("## Angles"));
    QCOMPARE(rows.size(), kRecordAngleGroups);
    for (int i = 0; i < rows.size(); ++i) {
        QCOMPARE(rows[i][0], hex(kRecordFirstAngleType + quint32(i)));
        const bool below = i == RecordAngles::Voltage || i == RecordAngles::Current;
        QCOMPARE(rows[i][2], below ? QStringLiteral("-360 to 0") : QStringLiteral("-180 to 180"));
    }
}

void TstRecorderFile::channelsStandInThePage()
{
    QStringList wirings;
    for (const QStringList &row : m_page.table(QStringLiteral("## Channels"))) {
        for (const QString &mode : row[0].split(QLatin1String(", "))) {
            wirings << mode;
            const ChannelSet *set = channelSet(mode.toInt());
            QVERIFY(set);
            QStringList channels;
            const char *const names[kChannels] = { "L1", "L2", "L3", "N" };
            for (int c = 0; c < kChannels; ++c) {
                if (set->recordMask >> c & 1)
                    channels << QLatin1String(names[c]);
            }
            QCOMPARE(row[1], channels.join(QLatin1String(", ")));
            const std::size_t groups[] = { 1, 2, 6 }; // r.m.s., power, the first spectrum
            for (int i = 0; i < 3; ++i)
                QCOMPARE(row[2 + i].toInt(), 8 + recordGroupBytes(recordGroups()[groups[i]], *set));
        }
    }
    QCOMPARE(wirings.size(), 10);
    QCOMPARE(wirings.removeDuplicates(), 0);
}

void TstRecorderFile::theExampleHoldsWhatWasMeasured()
{
    const QList<ReadBlock> blocks = example("Common.pqa2");
    QVERIFY(!blocks.isEmpty());
    QCOMPARE(valueAt<quint32>(blocks.first().payload, 0), 1'700'000'000u);
    QCOMPARE(blocks.last().type, 0xA1000019u);
    // Six aggregations, then five, then the two that were left: numbers 0 to 5, 6 to 10, 11 and 12.
    const float mean[] = { 2.5f, 8.0f, 11.5f }, highest[] = { 5, 10, 12 }, lowest[] = { 0, 6, 11 };
    const qint64 time[] = { 1200, 2200, 2600 };
    const struct
    {
        quint32 means, maxima, minima;
        int word; // of the first float that is compared
        int at; // its place in the payload
    } rows[] = { { 0xA1000020, 0xA1000060, 0xA10000A0, 3, 8 },
                 { 0xA1000020, 0xA1000060, 0xA10000A0, 3 + 3 * 13, 8 + 3 * 52 },
                 { 0xA1000021, 0xA1000061, 0xA10000A1, 55 + 6, 8 + 24 },
                 { 0xA1000023, 0xA1000062, 0xA10000A2, 4921, 8 + 36 },
                 { 0xA1000038, 0xA100006D, 0xA10000AD, 4922, 8 } };
    for (const auto &row : rows) {
        const QList<ReadBlock> means = ofKind(blocks, row.means), maxima = ofKind(blocks, row.maxima),
                               minima = ofKind(blocks, row.minima);
        QCOMPARE(means.size(), 3);
        QCOMPARE(maxima.size(), 3);
        QCOMPARE(minima.size(), 3);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(valueAt<qint64>(means[i].payload, 0), RecorderRun::kStart + time[i]);
            QVERIFY(qAbs(valueAt<float>(means[i].payload, row.at) - (float(row.word) + mean[i])) < 1e-3f);
            QCOMPARE(valueAt<float>(maxima[i].payload, row.at), float(row.word) + highest[i]);
            QCOMPARE(valueAt<float>(minima[i].payload, row.at), float(row.word) + lowest[i]);
        }
    }
    const QList<ReadBlock> frequencies = ofKind(blocks, 0xA1000029), energies = ofKind(blocks, 0xA1000022);
    QVERIFY(qAbs(valueAt<float>(frequencies[0].payload, 8) - (50.0f + 0.125f * 10 / 6)) < 1e-4f);
    QCOMPARE(valueAt<float>(frequencies[1].payload, 8), 50.25f);
    for (int i = 0; i < 3; ++i) // 3600 W for as long as it took
        QVERIFY(qAbs(valueAt<double>(energies[i].payload, 8) - double(time[i]) / 1000) < 1e-5);
    QCOMPARE(ofKind(blocks, 0xA1001003).size(), 3);
}

void TstRecorderFile::theExampleHoldsTheSpectraOfItsFile()
{
    const QList<ReadBlock> blocks = example(kSpectrumFile);
    QCOMPARE(blocks.size(), 9);
    const QList<ReadBlock> means = ofKind(blocks, 0xA1000030);
    QCOMPARE(means.size(), 3);
    for (int c = 0; c < kChannels; ++c) {
        const int at = 8 + 208 * c;
        QVERIFY(qAbs(valueAt<float>(means[1].payload, at) - float(104 + 1202 * c + 8)) < 1e-2f);
        QVERIFY(qAbs(valueAt<float>(means[1].payload, at + 4) - float(406 + 1202 * c + 8)) < 1e-2f);
        for (int h = 0; h < 50; ++h)
            QVERIFY(qAbs(valueAt<float>(means[1].payload, at + 8 + 4 * h) - float(406 + 1202 * c + 3 * h + 8)) < 1e-2f);
    }
}

void TstRecorderFile::theProgramStillWritesTheExample()
{
    RecorderRun run;
    record(run);
    const QString keep = qEnvironmentVariable("QUVERA_KEEP_EXAMPLE"); // a folder that takes the files as they are now
    for (const char *file : { "Common.pqa2", kSpectrumFile }) {
        const QList<ReadBlock> written = run.blocks(file), kept = example(file);
        if (!keep.isEmpty())
            QFile::copy(Target::path(run.recorder().folder().file(QLatin1String(file))),
                        keep + QLatin1Char('/') + QLatin1String(file));
        QCOMPARE(written.size(), kept.size());
        for (int i = 0; i < written.size(); ++i) {
            QCOMPARE(written[i].type, kept[i].type);
            QCOMPARE(written[i].payload, kept[i].payload);
        }
    }
}

QTEST_GUILESS_MAIN(TstRecorderFile)
#include "tst_recorderfile.moc"
