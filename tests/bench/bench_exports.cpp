// A recording into tables, as the tool exports it, beside a plain loop that reads the same blocks and prints the same
// numbers. Behind the ratios stands what exports of a recording of 1 GB take of memory.
#include "bench/memoryof.h"
#include "bench/ratios.h"
#include "record/exports/csvexport.h"
#include "record/exports/influxexport.h"
#include "record/exports/pqdifexport.h"
#include "record/exports/sqliteexport.h"
#include "record/tables/recordsource.h"
#include "unit/record/largerecording.h"

#include <QTemporaryDir>

#include <charconv>

namespace {

constexpr qint64 kMegabyte = 1 << 20;
constexpr qint64 kMeasured = 16 * kMegabyte;
constexpr qint64 kLarge = 1024 * kMegabyte;

QString recording, output; // paths

template <typename Sink> bool exported()
{
    RecordSource source;
    Sink sink({ output, recording, true });
    return source.open(recording) && source.state() == RecordState::Whole && source.read(sink);
}

/// A file and a folder do not replace each other.
void removeOutput()
{
    QDir(output).removeRecursively();
    QFile::remove(output);
}

template <typename Sink> void exportOf(benchmark::State &state)
{
    removeOutput();
    for (auto _ : state) {
        if (!exported<Sink>())
            state.SkipWithError("not exported");
    }
}

void csv(benchmark::State &state)
{
    exportOf<CsvExport>(state);
}

void sqlite(benchmark::State &state)
{
    exportOf<SqliteExport>(state);
}

void influx(benchmark::State &state)
{
    exportOf<InfluxExport>(state);
}

void pqdif(benchmark::State &state)
{
    exportOf<PqdifExport>(state);
}

/// Follows the links and prints each block as a line.
bool printedPlainly()
{
    std::FILE *from = std::fopen(QFile::encodeName(recording).constData(), "rb");
    std::FILE *to = std::fopen(QFile::encodeName(output + QStringLiteral(".plain")).constData(), "wb");
    Pqa2BlockHead head { sizeof(Pqa2FileHeader), 0, 0 };
    std::vector<char> payload, line;
    bool isGood = from && to;
    while (isGood && head.oonb != kPqa2LastBlock) {
        isGood = std::fseek(from, long(head.oonb), SEEK_SET) == 0 && std::fread(&head, sizeof head, 1, from) == 1;
        payload.resize(head.size);
        isGood = isGood && std::fread(payload.data(), 1, payload.size(), from) == payload.size();
        if (head.type < 0xA1000020)
            continue;
        line.resize(payload.size() * 8);
        char *at = line.data(), *end = at + line.size();
        qint64 time;
        std::memcpy(&time, payload.data(), sizeof time);
        at = std::to_chars(at, end, time).ptr;
        for (std::size_t i = sizeof time; i < payload.size(); i += sizeof(float)) {
            float value;
            std::memcpy(&value, payload.data() + i, sizeof value);
            *at++ = ',';
            at = std::to_chars(at, end, value).ptr;
        }
        *at++ = '\n';
        isGood = isGood && std::fwrite(line.data(), 1, std::size_t(at - line.data()), to) > 0;
    }
    if (from)
        std::fclose(from);
    return (to && std::fclose(to) == 0) && isGood;
}

void plainLoop(benchmark::State &state)
{
    for (auto _ : state) {
        if (!printedPlainly())
            state.SkipWithError("not printed");
    }
}

BENCHMARK(csv)->Iterations(1);
BENCHMARK(sqlite)->Iterations(1);
BENCHMARK(influx)->Iterations(1);
BENCHMARK(pqdif)->Iterations(1);
BENCHMARK(plainLoop)->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir folder;
    recording = folder.filePath(QStringLiteral("Common.pqa2"));
    output = folder.filePath(QStringLiteral("out"));
    const struct
    {
        const char *name;
        bool (*work)();
    } formats[] = { { "CSV", exported<CsvExport> },
                    { "SQLite", exported<SqliteExport> },
                    { "line protocol", exported<InfluxExport> },
                    { "PQDIF", exported<PqdifExport> } };
    if (!LargeRecording().write(recording, kMeasured))
        return 1;
    const int status = Ratios::run(argc, argv, Ratios::ProcessorTime,
                                   { { "CSV export / plain loop", "csv", "plainLoop", 2.0 },
                                     { "SQLite export / plain loop", "sqlite", "plainLoop", 0 },
                                     { "line protocol / plain loop", "influx", "plainLoop", 0 },
                                     { "PQDIF export / plain loop", "pqdif", "plainLoop", 0 } });
    if (!LargeRecording().write(recording, kLarge))
        return 1;
    for (const auto &format : formats) {
        removeOutput();
        const double memory = memoryOf(format.work);
        std::printf("memory of exporting 1 GB as %s: %.0f MiB (goal: at most 128)%s\n", format.name, memory,
                    memory > 0 && memory <= 128 ? "" : " MISSED");
        std::fflush(stdout);
    }
    return status;
}
