// Looking through a recording, as the tool's "verify" does it, beside one pass of reading the file.
#include "bench/ratios.h"
#include "record/tables/recordsource.h"
#include "unit/record/largerecording.h"

#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr qint64 kSize = 256 << 20; // bytes: more than the processor keeps near
constexpr std::size_t kPiece = 256 << 10; // bytes read at once

QString recording; // path

void verify(benchmark::State &state)
{
    for (auto _ : state) {
        RecordSource source;
        if (!source.open(recording) || source.state() != RecordState::Whole)
            state.SkipWithError("not whole");
    }
}

void onePass(benchmark::State &state)
{
    std::vector<char> piece(kPiece);
    for (auto _ : state) {
        const int fd = ::open(QFile::encodeName(recording).constData(), O_RDONLY | O_CLOEXEC);
        qint64 all = 0;
        for (ssize_t got = 1; got > 0; all += got)
            got = ::read(fd, piece.data(), piece.size());
        ::close(fd);
        if (all < kSize)
            state.SkipWithError("not read");
    }
}

BENCHMARK(verify)->Iterations(1);
BENCHMARK(onePass)->Iterations(1);

} // namespace

int main(int argc, char **argv)
{
    QTemporaryDir folder;
    recording = folder.filePath(QStringLiteral("Common.pqa2"));
    if (!LargeRecording().write(recording, kSize))
        return 1;
    return Ratios::run(argc, argv, Ratios::ProcessorTime,
                       { { "verify / one pass of reading", "verify", "onePass", 1.5 } });
}
