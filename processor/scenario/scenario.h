#pragma once

#include "link/linkfaults.h"
#include "metrology/setup.h"
#include "signal/signalspec.h"

#include <QString>
#include <QtGlobal>

#include <array>
#include <optional>
#include <vector>

namespace scenario {

/// An event of the signal, once or again and again.
struct TimedEvent
{
    processor::SignalEvent event;
    double every = 0.0; // s, 0: once
};

/// A moment at which something else than an event happens: the steady signal is replaced, or a command is obeyed.
struct Step
{
    double at = 0.0; // s
    double every = 0.0; // s, 0: once
    std::optional<processor::SignalSpec> signal;
    QString tell; // empty: none
};

/// How far gains and zero offsets of the input stage are off: something for a calibration to find.
struct HardwareError
{
    processor::InputMask inputs = 0;
    std::optional<int> row; // of the gains, 0 to 3; nothing: all
    double gain = 0.0; // percent of the volts or millivolts per converter unit
    double offset = 0.0; // converter units
};

/// What the input stage is, where it differs from the ordinary one.
struct FrontEndSpec
{
    std::optional<double> noise; // steps of the converter, r.m.s.
    std::optional<double> clamp; // microvolts per ampere, phases
    std::optional<double> neutralClamp;
    std::optional<bool> rogowski; // the clamps that are plugged in, whatever the set-up says
    QString calibration; // file of the hardware's own gains; empty: the ordinary ones
    std::vector<HardwareError> errors; // on top of those
    double gainDrift = 0.0; // percent per hour, all inputs and ranges
    double offsetDrift = 0.0; // converter units per hour
};

/// All that a scenario file says. Plain data; times count from the moment the stream is first switched on.
struct Scenario
{
    QString name;
    QString description;
    std::optional<quint64> seed;
    processor::ProcessorSetup setup; // until the instrument sends its own
    processor::SignalSpec signal = processor::SignalSpec::threePhase(230.0, 50.0);
    /// The signal is that of a star at the set-up's nominal frequency, and becomes what the instrument is set to.
    bool followsSetup = false;
    FrontEndSpec frontEnd;
    std::vector<TimedEvent> events;
    std::vector<Step> steps;
    std::vector<wire::DatagramFault> faults;
    std::array<double, wire::kFaultCount> faultRates = {};
    qint64 clockStart = -1; // ms since 1970; -1: the host's time
    bool bds = false;
};

} // namespace scenario
