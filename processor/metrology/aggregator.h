#pragma once

#include "metrology/cycletracker.h"
#include "metrology/measurementsink.h"
#include "metrology/setup.h"
#include "metrology/spectrum.h"

namespace processor {

/// Measures one synchronised window: r.m.s., peak, offset, power, spectra, mains signalling.
class Aggregator
{
public:
    void setSetup(const ProcessorSetup &setup) { m_setup = setup; }

    /// Fills the payload from the window [from, to), frames with fractions. `frequency` is that of the fundamental and
    /// negative without lock; `cycles` are the base cycles in the window, which is the distance of two orders in lines.
    void measure(const SampleStore &store, double from, double to, double frequency, int cycles,
                 AggregationPayload &out);

private:
    void measureTime(const SampleStore &store, double from, double to, AggregationPayload &out) const;
    void measureSpectrum(int cycles, double length, AggregationPayload &out);

    ProcessorSetup m_setup;
    Spectrum m_spectrum;
};

} // namespace processor
