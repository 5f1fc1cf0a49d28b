#include "scenario/simulator.h"

#include "signal/eventplay.h"
#include "signal/wiredsupply.h"

#include <QFile>

#include <algorithm>
#include <limits>
#include <utility>

namespace scenario {

namespace {

constexpr int kEventsKept = 256; // begun since the last clearing; more make the synthesiser's list be cleared
constexpr double kLongestWait = 1.1; // s, for a point on wave: one cycle of 1 Hz, the lowest frequency there is

processor::SignalSpec withoutEvents(processor::SignalSpec signal)
{
    signal.events.clear();
    return signal;
}

/// Second at which \a event is over for certain; a change that stays for good never is.
double endOf(const processor::SignalEvent &event)
{
    return event.startSeconds + kLongestWait + processor::lengthOf(event);
}

// Microvolts per ampere: the clamps that an instrument with factory settings is set to.
constexpr double kDeliveredClamp = 10000.0;

} // namespace

Simulator::Simulator(const Scenario &scenario, quint64 seed, wire::ProcessorLink *link)
    : m_scenario(scenario), m_link(link), m_supply(withoutEvents(scenario.signal)), m_signal(m_supply),
      m_synthesiser(m_signal, seed), m_frontEnd(seed), m_chain(link->setup(), *link),
      m_setupSeen(link->setupCount() - 1), m_clockSeen(link->clockCount() - 1)
{
    takeUp();
}

// What the scenario says about the input stage and the link.
void Simulator::takeUp()
{
    const FrontEndSpec &given = m_scenario.frontEnd;
    m_frontEnd.setNoise(given.noise.value_or(processor::FrontEnd::kNoise));
    m_frontEnd.setClampRatio(given.clamp.value_or(kDeliveredClamp), given.neutralClamp.value_or(kDeliveredClamp));
    for (const wire::DatagramFault &fault : m_scenario.faults)
        m_link->faults().schedule(fault);
    for (int i = 0; i < wire::kFaultCount; ++i)
        m_link->faults().random(wire::Fault(i), m_scenario.faultRates[std::size_t(i)]);
    m_link->setBds(m_scenario.bds);
}

Simulator::~Simulator() = default;

bool Simulator::prepare(QString *error)
{
    const FrontEndSpec &given = m_scenario.frontEnd;
    if (!given.calibration.isEmpty() && !loadCalibration(given.calibration, error))
        return false;
    addHardwareErrors();
    m_frontEnd.setDrift(given.gainDrift, given.offsetDrift);
    return true;
}

bool Simulator::play(const Scenario &scenario, QString *error)
{
    const Scenario before = std::exchange(m_scenario, scenario);
    m_frontEnd.setCalibration({});
    if (!prepare(error)) {
        QString ignored; // it could be loaded before
        m_scenario = before;
        m_frontEnd.setCalibration({});
        prepare(&ignored);
        return false;
    }
    for (TimedEvent &timed : m_scenario.events)
        timed.event.startSeconds += seconds();
    for (Step &step : m_scenario.steps)
        step.at += seconds();
    m_link->faults().clear();
    for (wire::DatagramFault &fault : m_scenario.faults)
        fault.datagram += m_link->faults().datagrams();
    takeUp();
    if (m_scenario.clockStart >= 0)
        m_link->setClock(m_scenario.clockStart);
    clearEvents();
    m_supply = withoutEvents(m_scenario.signal);
    m_signal = m_supply;
    applySignal();
    m_setupSeen = m_link->setupCount() - 1; // clamps and wiring are taken up anew
    return true;
}

bool Simulator::loadCalibration(const QString &path, QString *error)
{
    processor::CalibrationSet calibration;
    std::string problem;
    if (!calibration.load(QFile::encodeName(path).toStdString(), problem)) {
        *error = QString::fromStdString(problem);
        return false;
    }
    m_frontEnd.setCalibration(calibration);
    return true;
}

void Simulator::addHardwareErrors()
{
    processor::CalibrationSet set = m_frontEnd.calibration();
    for (const HardwareError &error : m_scenario.frontEnd.errors) {
        for (std::size_t input = 0; input < std::size_t(processor::InputCount); ++input) {
            if (!(error.inputs & processor::maskOf(int(input))))
                continue;
            const bool voltage = input < 4;
            processor::CalibrationSet::Table &gains = voltage ? set.volt : set.current;
            processor::CalibrationSet::Table &zeros = voltage ? set.zeroVolt : set.zeroCurrent;
            for (std::size_t row = 0; row < gains.size(); ++row) {
                if (error.row && row != std::size_t(*error.row))
                    continue;
                gains[row][input % 4] *= float(1.0 + error.gain / 100.0);
                zeros[row][input % 4] += float(error.offset);
            }
        }
    }
    m_frontEnd.setCalibration(set);
}

void Simulator::followLink()
{
    if (m_setupSeen != m_link->setupCount()) {
        m_setupSeen = m_link->setupCount();
        const processor::ProcessorSetup &setup = m_link->setup();
        m_chain.setSetup(setup);
        m_frontEnd.setRogowski(m_scenario.frontEnd.rogowski.value_or(setup.flexibleClamp), setup.nominalFrequency);
        followSetup();
    }
    if (m_clockSeen != m_link->clockCount()) {
        m_clockSeen = m_link->clockCount();
        m_chain.setTime(std::int64_t(m_link->clock().at(milliseconds())));
    }
}

void Simulator::step(QStringList *commands)
{
    takeDue(seconds() + kBlockSeconds, commands);
    followLink();
    std::array<double *, processor::InputCount> volts;
    std::array<const double *, processor::InputCount> constVolts;
    std::array<std::int16_t *, processor::InputCount> samples;
    std::array<const std::int16_t *, processor::InputCount> constSamples;
    for (std::size_t i = 0; i < volts.size(); ++i) {
        constVolts[i] = volts[i] = m_volts[i].data();
        constSamples[i] = samples[i] = m_samples[i].data();
    }
    m_synthesiser.render(volts.data(), kBlockSamples);
    m_frontEnd.convert(constVolts.data(), samples.data(), kBlockSamples);
    if (m_frontEnd.takeClipped())
        m_clippedAt = seconds();
    m_clipped = m_clippedAt >= 0.0 && seconds() - m_clippedAt < 1.0;
    m_link->advance(milliseconds());
    m_chain.process(constSamples.data(), kBlockSamples);
}

void Simulator::takeDue(double until, QStringList *commands)
{
    for (Step &step : m_scenario.steps) {
        while (step.at < until) {
            if (step.signal) {
                m_supply = withoutEvents(*step.signal);
                m_signal = m_supply;
                applySignal();
                followSetup();
            }
            if (!step.tell.isEmpty() && commands)
                commands->append(step.tell);
            step.at = step.every > 0.0 ? step.at + step.every : std::numeric_limits<double>::infinity();
        }
    }
    for (TimedEvent &timed : m_scenario.events) {
        while (timed.event.startSeconds < until) {
            begin(timed.event);
            timed.event.startSeconds
                = timed.every > 0.0 ? timed.event.startSeconds + timed.every : std::numeric_limits<double>::infinity();
        }
    }
}

bool Simulator::addEvent(processor::SignalEvent event, double secondsFromNow)
{
    forgetOver();
    if (m_running.size() >= kMostRunning)
        return false;
    event.startSeconds = seconds() + std::max(0.0, secondsFromNow);
    begin(event);
    return true;
}

void Simulator::forgetOver()
{
    const auto over = [this](const processor::SignalEvent &running) { return endOf(running) < seconds(); };
    m_running.erase(std::remove_if(m_running.begin(), m_running.end(), over), m_running.end());
}

void Simulator::begin(const processor::SignalEvent &event)
{
    forgetOver();
    m_running.push_back(event);
    if (++m_begun > kEventsKept)
        applySignal();
    else
        m_synthesiser.addEvent(event);
}

void Simulator::clearEvents()
{
    m_running.clear();
    m_synthesiser.clearEvents();
}

void Simulator::setWiring(int wiring)
{
    m_wiring = wiring;
    followSetup();
}

void Simulator::followSetup()
{
    if (!m_scenario.followsSetup)
        return;
    m_signal = processor::wiredSupply(m_supply, m_wiring);
    m_signal.frequencyHz += m_link->setup().nominalFrequency - m_scenario.setup.nominalFrequency;
    applySignal();
}

void Simulator::setSignal(const processor::SignalSpec &signal)
{
    m_scenario.followsSetup = false;
    m_signal = withoutEvents(signal);
    applySignal();
}

void Simulator::applySignal()
{
    processor::SignalSpec spec = m_signal;
    spec.events = m_running;
    m_synthesiser.setSpec(spec);
    m_begun = 0;
}

void Simulator::setRanges(const board::RangeSelectors &ranges)
{
    m_frontEnd.setSelector(processor::FrontEnd::PhaseVoltage, ranges.phaseVoltage);
    m_frontEnd.setSelector(processor::FrontEnd::NeutralVoltage, ranges.neutralVoltage);
    m_frontEnd.setSelector(processor::FrontEnd::PhaseCurrent, ranges.phaseCurrent);
    m_frontEnd.setSelector(processor::FrontEnd::NeutralCurrent, ranges.neutralCurrent);
}

void Simulator::setRogowski(bool on)
{
    m_scenario.frontEnd.rogowski = on;
    m_setupSeen = m_link->setupCount() - 1;
}

} // namespace scenario
