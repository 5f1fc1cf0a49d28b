// What it costs to record everything every second: processor time of the whole instrument, all its threads, on the live
// stream with the page of volts and amperes in front, with a recording beside it and without, in turns of one run.
// Seconds of a turn: QUVERA_BENCH_SECONDS (default 20).
#include "bench/benchapplication.h"
#include "bench/processusage.h"
#include "desk/deskinstrument.h"
#include "testpaths.h"

#include <QDir>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>

namespace {

constexpr int kTurns = 3;
constexpr quint32 kSettle = 3; // s behind the last key
constexpr quint32 kBegin = 12; // s until a measurement runs

QStringList keys(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

/// Percent of a core that the instrument takes in so many seconds.
double share(DeskInstrument &desk, int seconds)
{
    const qint64 pid = desk.instrument().processId();
    QElapsedTimer time;
    time.start();
    const double before = usageOf(pid).seconds;
    QThread::sleep(quint32(seconds));
    return (usageOf(pid).seconds - before) * 1e5 / double(time.elapsed());
}

qint64 bytesOnCard(const DeskInstrument &desk)
{
    qint64 bytes = 0;
    const QDir storage(desk.path(QStringLiteral("/mnt/storage/")));
    for (const QFileInfo &run : storage.entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QFileInfo &file : QDir(run.filePath()).entryInfoList(QDir::Files))
            bytes += file.size();
    }
    return bytes;
}

} // namespace

int main(int argc, char **argv)
{
    BenchApplication app(argc, argv);
    const int seconds = benchSeconds(20);
    DeskInstrument desk(QStringLiteral(QUVERA_BIN_DIR));
    const auto press = [&desk](const char *names) {
        if (desk.press(keys(names)))
            return;
        std::fprintf(stderr, "%s\n", qPrintable(desk.error()));
        std::exit(1);
    };
    if (!desk.start()) {
        std::fprintf(stderr, "%s\n", qPrintable(desk.error()));
        return 1;
    }
    // All parameters, every second; the choices stay for the recordings that follow.
    press("Down Down Right Enter F2 F1 F4 Down Down Left Left Left Menu Up Up Left Enter");
    QThread::sleep(kBegin);
    double without = 100, with = 100;
    for (int turn = 0; turn < kTurns; ++turn) {
        const double quiet = share(desk, seconds);
        press("Menu Down Down Right Enter F5 Menu Up Up Left Enter");
        QThread::sleep(kBegin);
        const qint64 before = bytesOnCard(desk);
        const double recording = share(desk, seconds);
        const qint64 bytes = bytesOnCard(desk) - before;
        if (bytes < 10000 * seconds) {
            std::fprintf(stderr, "nothing is recorded: %lld bytes\n", bytes);
            return 1;
        }
        press("Menu Down Down Right Enter F5 F1 Menu Up Up Left Enter"); // discarded
        QThread::sleep(kSettle);
        std::printf("%.2f percent of a core without, %.2f with a recording of %.1f kB/s\n", quiet, recording,
                    double(bytes) / 1000 / seconds);
        without = std::min(without, quiet);
        with = std::min(with, recording);
    }
    printBeside("recording everything every second, beside the same stream without it", with - without, 1.5,
                "percent of a core more");
    desk.stop();
    return 0;
}
