// Feeds the files of a corpus folder to a fuzz target: each whole, cut short, and with bytes changed, the same way in
// every run. That it comes to the end, under the sanitizers too, is the test.
#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int *argc, char ***argv);

namespace {

constexpr int kCuts = 32; // torn forms of a file
constexpr int kAllFlips = 4000; // forms with a few changed bytes, of all files together

void feed(const QByteArray &bytes)
{
    // A copy of the exact size, so that the sanitizer sees a read behind the end.
    const std::vector<uint8_t> exact(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

// Repeatable pseudo-random numbers (a 64-bit linear congruential generator, high bits).
quint32 next(quint64 *state)
{
    *state = *state * 6364136223846793005ULL + 1442695040888963407ULL;
    return quint32(*state >> 33);
}

void feedForms(const QByteArray &bytes, int flips)
{
    feed(bytes);
    if (bytes.isEmpty())
        return;
    quint64 state = quint64(bytes.size());
    for (int i = 0; i < kCuts; ++i)
        feed(bytes.left(int(qint64(bytes.size()) * i / kCuts)));
    for (int i = 0; i < flips; ++i) {
        QByteArray changed = bytes;
        for (int k = 0; k <= i % 4; ++k)
            changed[int(next(&state) % quint32(changed.size()))] = char(next(&state));
        feed(changed);
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (LLVMFuzzerInitialize)
        LLVMFuzzerInitialize(&argc, &argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s CORPUS_FOLDER\n", argv[0]);
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        feedForms(file.readAll(), kAllFlips / int(names.size()) + 1);
    }
    std::printf("%d files replayed\n", int(names.size()));
    return names.isEmpty() ? 1 : 0;
}
