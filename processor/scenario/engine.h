#pragma once

#include "board/boardfiles.h"
#include "board/controlsocket.h"
#include "board/usbdisks.h"
#include "link/packagesocket.h"
#include "link/processorlink.h"
#include "link/streamfile.h"
#include "scenario/commands.h"
#include "scenario/options.h"
#include "scenario/pacer.h"
#include "scenario/simulator.h"

#include <QString>

#include <memory>
#include <optional>

namespace scenario {

/// The running program: one thread that waits on its sockets and on the next moment of simulated time.
///
/// Simulated time stands at 0 until the stream is first switched on, so that a scenario begins when somebody looks;
/// from then on it runs, in silence as well.
class Engine
{
public:
    explicit Engine(const Options &options);
    ~Engine();

    /// Opens files and sockets; false and one line in \a error.
    bool prepare(QString *error);
    /// Runs until a signal, "quit", or the end that the options ask for. Returns the exit code of the program.
    int run();

    /// Where the sockets stand under a root.
    static QString nodePath(const QString &root);
    static QString controlPath(const QString &root);

private:
    bool lockRoot(QString *error);
    bool prepareSource(QString *error);
    bool prepareSignals(QString *error);
    void wait(Pacer::Nanoseconds time);
    void serve();
    void watchClock();
    void watchSetup();
    void begin();
    void advance();
    void advanceReplay();
    void transmit(const std::vector<QByteArray> &messages);
    void readBoard(Pacer::Clock::time_point now);
    QString status() const;
    double seconds() const;
    void say(const QString &text) const;

    Options m_options;
    board::BoardFiles m_files;
    board::UsbDisks m_disks;
    board::ControlSocket m_control;
    wire::PackageSocket m_node;
    wire::ProcessorLink m_link;
    wire::StreamWriter m_record;
    wire::StreamReader m_replay;
    std::optional<wire::StreamMessage> m_nextMessage; // of the replay
    std::unique_ptr<Simulator> m_simulator; // null in a replay
    std::unique_ptr<Commands> m_commands;
    wire::Descriptor m_lock;
    wire::Descriptor m_signals;
    Pacer m_pacer;
    Pacer::Clock::time_point m_boardRead;
    QString m_scenarioName;
    board::RangeSelectors m_ranges;
    unsigned m_clockSeen = 0; // clock changes of the link
    unsigned m_setupSeen = 0; // set-ups of the link
    qint64 m_clockSetAt = 0; // host ms of the last one
    double m_replaySeconds = 0.0;
    bool m_begun = false;
    bool m_ended = false;
    int m_exitCode = 0;
};

} // namespace scenario
