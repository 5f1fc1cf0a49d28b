#include "longdevice.h"
#include "monitorrun.h"
#include "unit/storage/filelimit.h"
#include "unit/documentpage.h"

#include <QMap>
#include <QTest>

using namespace MonitorCase;

namespace {

struct Field
{
    const char *name;
    std::size_t offset;
    std::size_t size;
};
#define FIELD(name)                                                                                                    \
    {                                                                                                                  \
#name, offsetof(__monitor_data, name), sizeof(__monitor_data::name)                                            \
    }
const Field kFields[] = {
    FIELD(freqReady),
    FIELD(voltReady),
    FIELD(flickerReady),
    FIELD(voltMax),
    FIELD(voltMin),
    FIELD(voltWorstPartial),
    FIELD(voltWorstWhole),
    FIELD(voltPartialRatio),
    FIELD(voltWholeRatio),
    FIELD(voltPercentileNep),
    FIELD(voltPercentileAll),
    FIELD(voltPartialOk),
    FIELD(voltWholeOk),
    FIELD(harmPartialRatio),
    FIELD(harmWholeRatio),
    FIELD(harmOk),
    FIELD(pltValue),
    FIELD(pltPartialRatio),
    FIELD(pltWholeRatio),
    FIELD(pltPercentileNep),
    FIELD(pltPercentileAll),
    FIELD(pltOk),
    FIELD(unbalPartialRatio),
    FIELD(unbalWholeRatio),
    FIELD(unbalOk),
    FIELD(freqMax),
    FIELD(freqMin),
    FIELD(freqWorstPartial),
    FIELD(freqWorstWhole),
    FIELD(freqPartialRatio),
    FIELD(freqWholeRatio),
    FIELD(freqPercentileNep),
    FIELD(freqPercentileAll),
    FIELD(freqPartialOk),
    FIELD(freqWholeOk),
    FIELD(signal1PercentileNep),
    FIELD(signal1PercentileAll),
    FIELD(signal2PercentileNep),
    FIELD(signal2PercentileAll),
};

/// A run of ten minutes and ten seconds in which something of every kind happens, apart from transients.
void passEverything(Run &run)
{
    run.begin();
    const auto record = distortedSupply();
    run.pass(600, record.get());
    for (int i = 0; i < 11; ++i) { // eleven intervals of before, of one mean each
        for (int phase = 0; phase < 3; ++phase)
            run.m_flicker.insertFlickerPinst(phase, 1);
        run.m_flicker.closeIntervals(0, QByteArray(), run.m_data.live().flicker);
    }
    record->frequency = 53;
    run.pass(10, record.get());
    for (int phase = 0; phase < 3; ++phase) {
        for (int i = 0; i < 29900; ++i)
            run.m_flicker.insertFlickerPinst(phase, 1);
    }
    run.end();
}

} // namespace

/// The monitor's file and records against docs/formats/monitor.md and the stored example.
class TstMonitorFile : public QObject
{
    Q_OBJECT

private slots:
    void init() { beginCase(); }
    void cleanup() { endCase(); }

    void resultsStandAtTheWordsOfThePage();
    void trendsStandInTheRowsOfThePage();
    void blocksAreThoseOfThePage();
    void exampleHoldsWhatItsSupplyWas();
    void runWritesTheBlocksOfTheExample();
    void whatTheStorageRefusesIsKnown();
    void aFileThatIsFullGoesOnInItsNextPart();

private:
    const DocumentPage m_page { QStringLiteral("formats/monitor.md") };
};

void TstMonitorFile::resultsStandAtTheWordsOfThePage()
{
    const auto rows = m_page.table(QStringLiteral("## Results"));
    QCOMPARE(rows.size(), int(std::size(kFields)));
    for (int i = 0; i < rows.size(); ++i) {
        QCOMPARE(rows[i][2], QLatin1String(kFields[i].name));
        QCOMPARE(rows[i][0].toUInt() * 4, uint(kFields[i].offset));
        QCOMPARE(rows[i][1].toUInt() * 4, uint(kFields[i].size));
    }
}

void TstMonitorFile::trendsStandInTheRowsOfThePage()
{
    Run run;
    passEverything(run);
    QStringList filled;
    for (int row = 0; row < kMonitorTrendRows; ++row) {
        if (!run.trend().row[row].isEmpty())
            filled << QString::number(row);
    }
    QStringList documented;
    for (const QStringList &row : m_page.table(QStringLiteral("## Trends"))) {
        const QStringList ends = row[0].split(QStringLiteral(" to "));
        for (int place = ends.first().toInt(); place <= ends.last().toInt(); ++place)
            documented << QString::number(place);
    }
    QCOMPARE(filled, documented);
}

void TstMonitorFile::blocksAreThoseOfThePage()
{
    Run run;
    passEverything(run);
    QList<quint32> documented;
    for (const QStringList &row : m_page.table(QStringLiteral("## Blocks"))) {
        const quint32 kind = row[0].toUInt(nullptr, 16);
        if (kind != 0xA1000025 && !documented.contains(kind))
            documented << kind;
    }
    QList<quint32> written;
    for (quint32 kind : Run::kinds()) {
        if (!written.contains(kind))
            written << kind;
    }
    std::sort(documented.begin(), documented.end());
    std::sort(written.begin(), written.end());
    QCOMPARE(written, documented);
    const QMap<quint32, int> sizes {
        { 0xA1000018, 4 },  { 0xA1010000, 8 },   { 0xA1010001, 16 },  { 0xA1010002, 16 }, { 0xA1010003, 16 },
        { 0xA1010004, 12 }, { 0xA1010005, 604 }, { 0xA1010006, 604 }, { 0xA1010080, 32 }, { 0xA1000019, 4 },
    };
    for (const ReadBlock &block : Run::blocks())
        QCOMPARE(block.payload.size(), sizes.value(block.type));
}

void TstMonitorFile::exampleHoldsWhatItsSupplyWas()
{
    QFile file(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/monitor.pqa2"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QMap<quint32, QList<ReadBlock>> blocks;
    for (const ReadBlock &block : readBlocks(file.readAll()))
        blocks[block.type] << block;
    QVERIFY(blocks[0xA1000010][0].payload.contains("Join: 3P WYE_1\n"));
    QCOMPARE(blocks[0xA1010000].size(), 61);
    for (int i = 0; i < 61; ++i) {
        const ReadBlock &block = blocks[0xA1010000][i];
        QCOMPARE(secondsOf(block), quint32(kBegin / 1000 + 10 * (i + 1)));
        QCOMPARE(floatOf(block, 0), i < 60 ? 50.0f : 53.0f);
    }
    QCOMPARE(blocks[0xA1010001].size(), 1);
    QCOMPARE(secondsOf(blocks[0xA1010001][0]), quint32(kBegin / 1000 + 600));
    for (int phase = 0; phase < 3; ++phase) {
        QCOMPARE(floatOf(blocks[0xA1010001][0], phase), 231.0f + float(phase));
        QCOMPARE(floatOf(blocks[0xA1010005][0], 50 * phase), float(phase + 1)); // percent
        QCOMPARE(floatOf(blocks[0xA1010005][0], 50 * phase + 4), 1.5f);
        QCOMPARE(floatOf(blocks[0xA1010006][0], 50 * phase), 2.0f);
        QCOMPARE(floatOf(blocks[0xA1010006][0], 50 * phase + 4), 50.0f);
    }
    QCOMPARE(floatOf(blocks[0xA1010004][0], 0), 1.5f);
    QCOMPARE(floatOf(blocks[0xA1010004][0], 1), 0.5f);
    QCOMPARE(blocks[0xA1010080].size(), 4); // three voltages off nominal, the frequency
    QCOMPARE(secondsOf(blocks[0xA1000019][0]), quint32(kBegin / 1000 + 610));
}

void TstMonitorFile::runWritesTheBlocksOfTheExample()
{
    Run run;
    passEverything(run);
    QFile file(QStringLiteral(QUVERA_SOURCE_DIR "/tests/data/monitor.pqa2"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<ReadBlock> example = readBlocks(file.readAll()).mid(3);
    const QList<ReadBlock> written = Run::blocks();
    QCOMPARE(written.size(), example.size());
    for (int i = 0; i < written.size(); ++i) {
        QCOMPARE(written[i].type, example[i].type);
        QCOMPARE(written[i].payload, example[i].payload);
    }
}

void TstMonitorFile::whatTheStorageRefusesIsKnown()
{
    Run run;
    QVERIFY(!run.m_function->refused()); // nothing runs
    run.begin();
    const auto supply = distortedSupply();
    run.pass(10, supply.get());
    QVERIFY(!run.m_function->refused());
    {
        const FileLimit full(0);
        run.pass(10, supply.get());
        QVERIFY(run.m_function->refused());
    }
    run.pass(10, supply.get());
    QVERIFY(!run.m_function->refused());
    run.end();
    Run without;
    {
        const FileLimit full(0);
        without.begin(); // no file can be begun
    }
    without.pass(10, supply.get());
    QVERIFY(without.m_function->refused());
    without.end();
    QVERIFY(!without.m_function->refused());
}

void TstMonitorFile::aFileThatIsFullGoesOnInItsNextPart()
{
    LongDevice::s_parts.clear();
    Run run(1, [] { return std::make_unique<LongDevice>(); });
    run.begin();
    const auto record = distortedSupply();
    run.pass(600, record.get());
    run.end();
    QCOMPARE(LongDevice::s_parts.keys(), (QStringList { "Monitor.pqa2", "Monitor_2.pqa2" }));
    int frequencies = 0;
    for (const auto &part : qAsConst(LongDevice::s_parts))
        frequencies += part->content.count(QByteArray::fromHex("000001A108000000")); // type and size
    QCOMPARE(frequencies, 60);
    const QList<ReadBlock> blocks = readBlocks(LongDevice::s_parts["Monitor_2.pqa2"]->content).mid(3);
    QVERIFY(blocks.size() > 3);
    QCOMPARE(blocks.first().type, 0xA1000018u);
    QCOMPARE(secondsOf(blocks.first()), quint32(kBegin / 1000)); // of the run
    QCOMPARE(blocks.last().type, 0xA1000019u);
}

QTEST_GUILESS_MAIN(TstMonitorFile)
#include "tst_monitorfile.moc"
