#pragma once

#include "board/boardfiles.h"
#include "frontend/frontend.h"
#include "link/processorlink.h"
#include "metrology/measurementchain.h"
#include "scenario/scenario.h"
#include "signal/synthesiser.h"

#include <QString>
#include <QStringList>

#include <array>
#include <memory>
#include <vector>

namespace scenario {

/// Plays a scenario: synthesiser, input stage and measurement, block by block, into the link.
///
/// Simulated time is the count of samples; nothing here looks at the host's clock. The same scenario, seed and frames
/// at the same simulated times give the same stream, byte for byte.
class Simulator
{
public:
    static constexpr int kBlockSamples = 1024; // 50 ms; frames and commands take effect between blocks
    static constexpr double kBlockSeconds = kBlockSamples / processor::SampleRate;

    /// \a link takes the results and must outlive this object.
    Simulator(const Scenario &scenario, quint64 seed, wire::ProcessorLink *link);
    ~Simulator();

    /// Loads what the scenario names besides itself; false and one line in \a error.
    bool prepare(QString *error);

    /// Plays another scenario from now on: its times count from this moment, and what was set by command is forgotten.
    /// The clock goes on, unless the scenario gives one, and so do the instrument's set-up and the measurement. False
    /// and one line in \a error when what it names cannot be loaded; then all stays as it was.
    bool play(const Scenario &scenario, QString *error);

    /// Renders, measures and sends one block. \a commands, when not null, gets the commands that became due.
    void step(QStringList *commands);

    /// Simulated seconds since the start.
    double seconds() const { return m_synthesiser.seconds(); }
    qint64 milliseconds() const { return m_synthesiser.position() * 1000 / qint64(processor::SampleRate); }

    /// Events that can be asked for at a time: those that stay for good would else slow a long run down without end.
    static constexpr std::size_t kMostRunning = 256;

    /// Begins \a event so many seconds from now. False, and nothing begins, while kMostRunning are not over.
    bool addEvent(processor::SignalEvent event, double secondsFromNow);
    void clearEvents();
    /// The steady signal, without events. Running events go on when it is replaced. One that is set stays as it is,
    /// whatever set-up the scenario's own would have followed.
    const processor::SignalSpec &signal() const { return m_signal; }
    void setSignal(const processor::SignalSpec &signal);

    /// The instrument's wiring, 1 to 10, which a supply that follows the set-up takes; 0: not known, a star.
    void setWiring(int wiring);

    processor::FrontEnd &frontEnd() { return m_frontEnd; }
    void setRanges(const board::RangeSelectors &ranges);
    /// Fixes the kind of clamp that is plugged in; without it the clamp follows the set-up.
    void setRogowski(bool on);

    const Scenario &scenario() const { return m_scenario; }
    double measuredFrequency() const { return m_chain.frequency(); }
    bool clipped() const { return m_clipped; } // any sample of the last whole second

private:
    void takeUp();
    bool loadCalibration(const QString &path, QString *error);
    void addHardwareErrors();
    void followLink();
    void takeDue(double until, QStringList *commands);
    void begin(const processor::SignalEvent &event);
    void forgetOver();
    void followSetup();
    void applySignal();

    Scenario m_scenario; // times of its events and steps move on as they recur
    wire::ProcessorLink *m_link;
    processor::SignalSpec m_supply; // as the scenario describes it
    processor::SignalSpec m_signal; // as it stands at the inputs
    int m_wiring = 0;
    processor::Synthesiser m_synthesiser;
    processor::FrontEnd m_frontEnd;
    processor::MeasurementChain m_chain;
    std::vector<processor::SignalEvent> m_running;
    std::array<std::array<double, kBlockSamples>, processor::InputCount> m_volts; // and amperes
    std::array<std::array<std::int16_t, kBlockSamples>, processor::InputCount> m_samples;
    unsigned m_setupSeen;
    unsigned m_clockSeen;
    int m_begun = 0; // events since the synthesiser's list was last cleared of those that are over
    double m_clippedAt = -1.0; // s
    bool m_clipped = false;
};

} // namespace scenario
