#include "bench/processusage.h"
#include "desk/deskinstrument.h"
#include "system/panelprocess.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <algorithm>
#include <memory>

// What the panel costs and how long a key takes, with a whole instrument that measures: from the press of a key to the
// picture at a viewer, and the share of a core that the panel and the instrument take on top, for one viewer and for
// twenty.

namespace {

using PanelTest::Viewer;

constexpr int kKeys = 40;
constexpr double kKeyGoal = 150; // ms
constexpr double kOneGoal = 5, kTwentyGoal = 10; // percent of a core

/// From the press to the next picture at the viewer. The menu's own clock changes it once a second, so one key in ten
/// or so is answered by a picture that would have come anyway.
double keyToScreen(Viewer &viewer, quint16 port, bool right)
{
    QElapsedTimer timer;
    const int before = viewer.count("screen");
    timer.start();
    PanelTest::post(port, "/key", right ? "{\"key\":\"Right\"}" : "{\"key\":\"Left\"}");
    while (viewer.count("screen") == before && timer.elapsed() < 5000)
        viewer.socket().waitForReadyRead(1);
    return double(timer.nsecsElapsed()) / 1e6;
}

double median(QVector<double> *times)
{
    std::sort(times->begin(), times->end());
    return times->at(times->size() / 2);
}

/// The same without a panel: the part of the time that the instrument and the machine's other work take.
void measureRemote(DeskInstrument &desk)
{
    QVector<double> times;
    for (int i = 0; i < kKeys; ++i) {
        QTest::qWait(700 + QRandomGenerator::global()->bounded(700));
        QElapsedTimer timer;
        timer.start();
        desk.press({ i % 2 == 0 ? QStringLiteral("Right") : QStringLiteral("Left") });
        times << double(timer.nsecsElapsed()) / 1e6;
    }
    std::printf("key to picture by the remote control alone, median: %.2f ms\n", median(&times));
}

void measureKeys(quint16 port)
{
    Viewer viewer(port);
    QTest::qWait(2000);
    QVector<double> times;
    for (int i = 0; i < kKeys; ++i) {
        QTest::qWait(700 + QRandomGenerator::global()->bounded(700));
        times << keyToScreen(viewer, port, i % 2 == 0);
    }
    printBeside("key until its picture is at a viewer, median", median(&times), kKeyGoal, "ms");
}

/// Share of a core that both programs take, percent.
double share(qint64 panel, qint64 instrument, quint16 port, int viewers)
{
    std::vector<std::unique_ptr<Viewer>> all;
    for (int i = 0; i < viewers; ++i)
        all.push_back(std::make_unique<Viewer>(port));
    QTest::qWait(3000);
    const double before = usageOf(panel).seconds + usageOf(instrument).seconds;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 1000 * benchSeconds(20)) {
        QTest::qWait(100);
        for (const auto &viewer : all)
            viewer->count("screen"); // reads what came
    }
    return (usageOf(panel).seconds + usageOf(instrument).seconds - before) * 100000.0 / double(timer.elapsed());
}

int fail(const QString &why)
{
    std::fprintf(stderr, "%s\n", qPrintable(why));
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    DeskInstrument desk(QStringLiteral(QUVERA_BIN_DIR));
    PanelTest::PanelProcess panel;
    if (!desk.start({ QStringLiteral("--scenario"), QStringLiteral("living") }))
        return fail(desk.error());
    if (!panel.start({ "--instrument-port", QString::number(desk.remotePort()), "--root", desk.root() }))
        return fail(QString::fromUtf8(panel.process().readAllStandardError()));
    measureRemote(desk);
    measureKeys(panel.port());
    if (!desk.press({ "Menu", "Enter" })) // Volts/Amps/Hertz or its neighbour: values that change
        return fail(desk.error());
    QTest::qWait(12000); // the first ten seconds of a measurement measure nothing
    const qint64 panelId = panel.process().processId(), instrumentId = desk.instrument().processId();
    const double none = share(panelId, instrumentId, panel.port(), 0);
    const double one = share(panelId, instrumentId, panel.port(), 1);
    const double twenty = share(panelId, instrumentId, panel.port(), 20);
    std::printf("share of a core without a viewer: %.1f %% (the instrument measures)\n", none);
    printBeside("one viewer more", one - none, kOneGoal, "% of a core");
    printBeside("twenty viewers more", twenty - none, kTwentyGoal, "% of a core");
    return 0;
}
