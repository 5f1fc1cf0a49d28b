// A waveform capture of a minute in the formats of other programs, beside a plain loop that reads the same file and
// writes the same samples. Behind the ratios stands what the longest capture takes of memory.
#include "bench/memoryof.h"
#include "bench/ratios.h"
#include "record/exports/comtradeexport.h"
#include "record/exports/pqdifexport.h"
#include "record/tables/recordsource.h"
#include "record/wavefile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstring>

namespace {

constexpr quint32 kRate = 20480;
constexpr int kFrames = 4096; // of a chunk
constexpr int kMinute = 60 * int(kRate) / kFrames; // chunks
constexpr int kLongest = 10 * kMinute;

QString capture, output; // paths

bool writeCapture(int chunks)
{
    const WaveFileHeader head { { 'W', 'A', 'V', '\x1A' },
                                kWaveFormat,
                                230,
                                50,
                                1,
                                10000,
                                { 0.5f, 0.5f, 0.5f, 0.5f },
                                { 0.25f, 0.25f, 0.25f, 0.25f },
                                1700000000,
                                1700000000,
                                kRate,
                                0,
                                quint64(chunks) * kFrames,
                                kWaveMark1,
                                kWaveMark2 };
    QFile file(capture);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(reinterpret_cast<const char *>(&head), sizeof head);
    QVector<qint16> samples(kFrames * 8);
    for (int i = 0; i < samples.size(); ++i)
        samples[i] = qint16(i * 7919);
    const quint32 bytes = quint32(samples.size()) * sizeof(qint16);
    for (int i = 0; i < chunks; ++i) {
        file.write(reinterpret_cast<const char *>(&bytes), sizeof bytes);
        file.write(reinterpret_cast<const char *>(samples.constData()), bytes);
    }
    return file.flush() && file.error() == QFile::NoError;
}

void removeOutput()
{
    QDir(output).removeRecursively();
    QFile::remove(output);
}

template <typename Sink> bool exported()
{
    RecordSource source;
    Sink sink({ output, capture, false });
    return source.open(capture) && source.state() == RecordState::Whole && source.read(sink);
}

template <typename Sink> void exportOf(benchmark::State &state)
{
    for (auto _ : state) {
        removeOutput();
        if (!exported<Sink>())
            state.SkipWithError("not exported");
    }
}

void comtrade(benchmark::State &state)
{
    exportOf<ComtradeExport>(state);
}

void pqdif(benchmark::State &state)
{
    exportOf<PqdifExport>(state);
}

/// Number, time and eight samples of each frame, as a COMTRADE file has them.
bool copiedPlainly()
{
    std::FILE *from = std::fopen(QFile::encodeName(capture).constData(), "rb");
    std::FILE *to = std::fopen(QFile::encodeName(output + QStringLiteral(".plain")).constData(), "wb");
    bool isGood = from && to && std::fseek(from, sizeof(WaveFileHeader), SEEK_SET) == 0;
    std::vector<char> frames(std::size_t(kFrames) * 16), lines(std::size_t(kFrames) * 24);
    quint32 bytes, number = 0;
    while (isGood && std::fread(&bytes, sizeof bytes, 1, from) == 1) {
        isGood = bytes == frames.size() && std::fread(frames.data(), 1, frames.size(), from) == frames.size();
        for (std::size_t i = 0; i < std::size_t(kFrames); ++i) {
            const quint32 time = quint32(number * 1e6 / kRate + 0.5);
            ++number;
            std::memcpy(&lines[i * 24], &number, 4);
            std::memcpy(&lines[i * 24 + 4], &time, 4);
            std::memcpy(&lines[i * 24 + 8], &frames[i * 16], 16);
        }
        isGood = isGood && std::fwrite(lines.data(), 1, lines.size(), to) == lines.size();
    }
    if (from)
        std::fclose(from);
    return (to && std::fclose(to) == 0) && isGood;
}

void plainLoop(benchmark::State &state)
{
    for (auto _ : state) {
        if (!copiedPlainly())
            state.SkipWithError("not copied");
    }
}

BENCHMARK(comtrade)->Iterations(1);
BENCHMARK(pqdif)->Iterations(1);
BENCHMARK(plainLoop)->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir folder;
    capture = folder.filePath(QStringLiteral("capture.wav"));
    output = folder.filePath(QStringLiteral("out"));
    if (!writeCapture(kMinute))
        return 1;
    const int status = Ratios::run(argc, argv, Ratios::ProcessorTime,
                                   { { "COMTRADE export / plain loop", "comtrade", "plainLoop", 0 },
                                     { "PQDIF export of samples / plain loop", "pqdif", "plainLoop", 0 } });
    const struct
    {
        const char *name;
        bool (*work)();
    } formats[] = { { "COMTRADE", exported<ComtradeExport> }, { "PQDIF", exported<PqdifExport> } };
    if (!writeCapture(kLongest))
        return 1;
    for (const auto &format : formats) {
        removeOutput();
        const double memory = memoryOf(format.work);
        std::printf("memory of exporting ten minutes of samples as %s: %.0f MiB (goal: at most 128)%s\n", format.name,
                    memory, memory > 0 && memory <= 128 ? "" : " MISSED");
        std::fflush(stdout);
    }
    return status;
}
