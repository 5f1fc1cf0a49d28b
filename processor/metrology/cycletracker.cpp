#include "metrology/cycletracker.h"

#include "signal/angles.h"
#include "signal/synthesiser.h"
#include "signal/vectorcode.h"

#include <algorithm>
#include <cmath>

namespace processor {

namespace {

constexpr double WindowCycles = 4.0;
constexpr double LeastAmplitude = 0.02; // converter units: 0.2 % of full scale
constexpr double LockRange = 0.16; // of the nominal frequency; class A ends at 0.15, which noise oversteps
constexpr double AcquireReach = 4.5; // fundamental cycles past the expected crossing at the lowest frequency looked at
constexpr double SteadyLimit = 0.004; // cycles between the expected and the found crossing
constexpr double RemnantPart = 0.1; // of its amplitude before: what is less is what a lost reference left behind
constexpr double EdgeChange = 0.04; // of the amplitude from cycle to cycle: something begins or ends
constexpr double EdgePull = 0.02; // cycles that such an edge may seem to move a crossing
constexpr std::size_t LeastRun = 4; // ends of cycles in a row that a frequency is taken from
constexpr int PatienceCycles = 8; // disturbed cycles after which the search begins anew
constexpr int Lanes = 8;

// Phase of a sine in cycles from the correlation with a cosine wave.
double sinePhase(const std::complex<double> &z)
{
    return std::arg(z) / TwoPi + 0.25;
}

} // namespace

void CycleTracker::start(int nominalFrequency)
{
    m_nominal = nominalFrequency;
    m_baseCycles = nominalFrequency == 400 ? 8 : 1;
    m_frequency = m_nominal;
    m_position = (WindowCycles / 2.0 / (1.0 - LockRange) + 0.1 - 1.0) * basePeriod(); // room for the widest window
    m_searching = true;
    m_locked = false;
    m_reference = -1;
    m_offset = 0.0;
    m_amplitude = 0.0;
    m_level = 0.0;
    m_away = 0;
    m_unsteady = 0;
    m_runLength = 0;
}

double CycleTracker::basePeriod() const
{
    return m_baseCycles * SampleRate / m_frequency;
}

std::int64_t CycleTracker::needs() const
{
    return static_cast<std::int64_t>(m_position - WindowCycles / 2.0 * basePeriod()) - 2;
}

// Amplitude and phase of `channel` at the place `at` under a Hann window `cycles` wide: |z| is the amplitude of the
// fundamental, arg z its phase as a cosine. Eight samples are rotated at a time.
PROCESSOR_VECTOR_CODE std::complex<double> CycleTracker::phasor(const SampleStore &store, int channel, double at,
                                                                double frequency, double cycles) const
{
    const double width = cycles * SampleRate / frequency;
    const auto from = std::max(static_cast<std::int64_t>(std::ceil(at - width / 2.0)), store.first());
    const auto to = std::min(static_cast<std::int64_t>(std::floor(at + width / 2.0)), store.end() - 1);
    const double step = TwoPi * frequency / SampleRate;
    double re[Lanes], im[Lanes], hre[Lanes], him[Lanes], sumRe[Lanes] = {}, sumIm[Lanes] = {};
    for (int j = 0; j < Lanes; ++j) {
        const double angle = step * (static_cast<double>(from + j) - at);
        re[j] = std::cos(angle);
        im[j] = -std::sin(angle);
        hre[j] = std::cos(angle / cycles);
        him[j] = std::sin(angle / cycles);
    }
    const double turnRe = std::cos(step * Lanes), turnIm = -std::sin(step * Lanes);
    const double hannRe = std::cos(step * Lanes / cycles), hannIm = std::sin(step * Lanes / cycles);
    const auto c = static_cast<std::size_t>(channel);
    for (std::int64_t n = from; n <= to; n += Lanes) {
        double x[Lanes] = {};
        if (n + Lanes <= to + 1) {
            const SampleStore::Frame *frames = &store.frame(n);
            for (int j = 0; j < Lanes; ++j)
                x[j] = static_cast<double>(frames[j][c]);
        } else {
            for (int j = 0; n + j <= to; ++j)
                x[j] = static_cast<double>(store.frame(n + j)[c]);
        }
        for (int j = 0; j < Lanes; ++j) {
            const double weighted = x[j] * (0.5 + 0.5 * hre[j]);
            sumRe[j] += weighted * re[j];
            sumIm[j] += weighted * im[j];
            const double r = re[j] * turnRe - im[j] * turnIm;
            im[j] = re[j] * turnIm + im[j] * turnRe;
            re[j] = r;
            const double h = hre[j] * hannRe - him[j] * hannIm;
            him[j] = hre[j] * hannIm + him[j] * hannRe;
            hre[j] = h;
        }
    }
    std::complex<double> sum;
    for (int j = 0; j < Lanes; ++j)
        sum += std::complex<double>(sumRe[j], sumIm[j]);
    return sum * (4.0 / width);
}

// Keeps the reference for as long as it carries a fundamental, else takes the first input that does. The count of
// cycles goes on at the phase it has: the new reference is read with an offset.
bool CycleTracker::chooseReference(const SampleStore &store, double at, std::complex<double> &value, double &offset)
{
    static constexpr int candidates[] = { 0, 1, 2, 4, 5, 6 };
    // A search knows the frequency only roughly and must not look through too narrow a window.
    const double width = m_searching ? WindowCycles : WindowCycles * m_baseCycles;
    if (m_reference >= 0) {
        value = phasor(store, m_reference, at, m_frequency, width);
        offset = m_offset;
        if (std::abs(value) >= std::max(LeastAmplitude, RemnantPart * m_level))
            return true;
    }
    for (int channel : candidates) {
        if (channel == m_reference)
            continue;
        value = phasor(store, channel, at, m_frequency, width);
        if (std::abs(value) < std::max(2.0 * LeastAmplitude, channel < 4 ? RemnantPart * m_level : 0.0))
            continue;
        m_reference = channel;
        m_level = std::abs(value);
        offset = m_searching ? 0.0 : sinePhase(value);
        return true;
    }
    return false;
}

bool CycleTracker::next(const SampleStore &store, CycleEnd &out)
{
    return m_searching ? acquire(store, out) : track(store, out);
}

// Looks for a fundamental anywhere in the lock range: the phase is measured twice, one cycle apart, and the difference
// corrects the frequency until it fits.
bool CycleTracker::acquire(const SampleStore &store, CycleEnd &out)
{
    m_frequency = m_nominal;
    const double at = m_position + basePeriod();
    const double nominalCycle = SampleRate / m_nominal;
    if (at + std::max(AcquireReach * nominalCycle, WindowCycles / 2.0 * basePeriod()) + 2.0
        >= static_cast<double>(store.end()))
        return false;
    std::complex<double> value;
    double offset = 0.0;
    out = CycleEnd();
    out.position = at;
    m_reference = -1;
    m_level = 0.0;
    if (chooseReference(store, at, value, offset)) {
        double f = m_nominal;
        double phase = 0.0;
        for (int i = 0; i < 5; ++i) {
            const double z1 = sinePhase(phasor(store, m_reference, at, f, WindowCycles));
            const double z2 = sinePhase(phasor(store, m_reference, at + SampleRate / f, f, WindowCycles));
            f = std::clamp(f * (1.0 + centred(z2 - z1)), 0.75 * m_nominal, 1.3 * m_nominal);
            phase = z1;
        }
        if (std::fabs(f / m_nominal - 1.0) <= LockRange) {
            m_frequency = f;
            m_searching = false;
            out.position = at - centred(phase) * SampleRate / f;
            out.locked = true;
            out.steady = true;
            out.fresh = true;
            m_offset = 0.0;
            m_amplitude = std::abs(value);
            m_run[0] = out.position;
            m_runLength = 1;
            m_unsteady = 0;
        }
    }
    out.period = basePeriod();
    m_locked = out.locked;
    m_position = out.position;
    return true;
}

bool CycleTracker::track(const SampleStore &store, CycleEnd &out)
{
    const double period = basePeriod();
    const double at = m_position + period;
    if (at + WindowCycles / 2.0 * period + 2.0 >= static_cast<double>(store.end()))
        return false;
    std::complex<double> value;
    double offset = 0.0;
    out = CycleEnd();
    out.position = at;
    out.locked = chooseReference(store, at, value, offset);
    m_offset = offset;
    if (out.locked) {
        const double early = centred(sinePhase(value) - offset);
        const double amplitude = std::abs(value);
        const bool edge = std::fabs(amplitude - m_amplitude) > EdgeChange * m_amplitude;
        m_amplitude = amplitude;
        out.steady = std::fabs(early) < SteadyLimit && !edge;
        // The edge of a dip under the window pulls the phase a little; a true jump moves it by more. The last remnant
        // of a voltage that went away tells nothing.
        if (!edge || (std::fabs(early) > EdgePull && amplitude > 0.5 * m_level))
            out.position = at - early * SampleRate / m_frequency;
    }
    if (out.steady)
        m_level = m_amplitude;
    m_away = out.locked ? 0 : m_away + 1;
    if (m_away > PatienceCycles)
        m_level = 0.0; // from here on a weak signal is better than none
    learnFrequency(out);
    out.period = basePeriod();
    m_locked = out.locked;
    m_position = out.position;
    return true;
}

// The frequency comes from undisturbed cycles only: a phase jump or the edge of a dip is no change of frequency.
void CycleTracker::learnFrequency(const CycleEnd &end)
{
    if (!end.steady) {
        m_runLength = 0;
        m_unsteady = end.locked ? m_unsteady + 1 : 0;
        m_searching = m_unsteady > PatienceCycles;
        return;
    }
    m_unsteady = 0;
    if (m_runLength == RunLength) {
        std::copy(m_run.begin() + 1, m_run.end(), m_run.begin());
        --m_runLength;
    }
    m_run[m_runLength++] = end.position;
    if (m_runLength < LeastRun)
        return;
    const auto cycles = static_cast<double>((m_runLength - 1) * static_cast<std::size_t>(m_baseCycles));
    const double f = cycles * SampleRate / (end.position - m_run[0]);
    if (std::fabs(f / m_nominal - 1.0) <= LockRange)
        m_frequency = f;
    else
        m_searching = true;
}

} // namespace processor
