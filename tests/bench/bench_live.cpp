#include "bench/benchapplication.h"
#include "bench/processusage.h"
#include "desk/deskinstrument.h"
#include "testpaths.h"

#include <QElapsedTimer>
#include <QThread>

#include <cstdio>

// The whole instrument on the live stream: processor time with each page shown, resident memory and its growth.
// Seconds behind each page: QUVERA_BENCH_SECONDS (default 10); for the growth over ten minutes set 60.

namespace {

struct PageKeys
{
    const char *name;
    QStringList keys; // from the page before
};

} // namespace

int main(int argc, char **argv)
{
    BenchApplication app(argc, argv);
    const int seconds = benchSeconds(10);

    DeskInstrument desk(QStringLiteral(QUVERA_BIN_DIR));
    QElapsedTimer clock;
    if (!desk.startProcessor()) {
        std::fprintf(stderr, "%s\n", qPrintable(desk.error()));
        return 1;
    }
    clock.start();
    if (!desk.startInstrument()) {
        std::fprintf(stderr, "%s\n", qPrintable(desk.error()));
        return 1;
    }
    std::printf("start to the answering menu: %lld ms\n", clock.elapsed());

    const qint64 pid = desk.instrument().processId();
    const PageKeys pages[] = {
        { "menu", {} },
        { "Volts/Amps/Hertz", { "Enter" } },
        { "Volts/Amps/Hertz trend", { "F4" } },
        { "Scope", { "F6" } },
        { "Dips&Swells", { "F7", "Down", "Enter" } },
        { "Harmonics", { "F7", "Up", "Right", "Enter" } },
        { "Unbalance", { "F7", "Right", "Enter" } },
        { "Power&Energy", { "F7", "Right", "Enter" } },
    };
    QThread::sleep(1);
    const double first = usageOf(pid).mebibytes;
    for (const PageKeys &page : pages) {
        if (!desk.press(page.keys)) {
            std::fprintf(stderr, "%s\n", qPrintable(desk.error()));
            return 1;
        }
        if (page.keys.size() == 1 && page.keys[0] == QLatin1String("Enter"))
            QThread::sleep(11); // a measurement begins ten seconds after it was asked for
        const Usage before = usageOf(pid);
        QThread::sleep(quint32(seconds));
        const double share = (usageOf(pid).seconds - before.seconds) / seconds * 100.0;
        printBeside(page.name, share, 3.0, "percent of a core");
    }
    const double last = usageOf(pid).mebibytes;
    printBeside("resident memory", last, 64.0, "MiB");
    std::printf("growth since the menu, trends filling included: %.2f MiB\n", last - first);
    desk.stop();
    return 0;
}
