#include "metrology/spectrum.h"

#include "signal/vectorcode.h"

#include <cmath>
#include <fftw3.h>
#include <mutex>

namespace processor {

namespace {

// Only executing a plan is safe in several threads; making and destroying one is not.
std::mutex &planMutex()
{
    static std::mutex mutex;
    return mutex;
}

} // namespace

struct Spectrum::Plan
{
    static constexpr int Bins = Resampler::Points / 2 + 8; // the last seven are room between channels
    double *in;
    fftw_complex *out;
    fftw_plan plan;

    // An estimated plan is the same in every run, so runs repeat to the last bit; a measured one would not.
    Plan()
    {
        const std::lock_guard<std::mutex> lock(planMutex());
        in = fftw_alloc_real(std::size_t(Channels) * Resampler::Stride);
        out = fftw_alloc_complex(std::size_t(Channels) * Bins);
        const int n = Resampler::Points;
        plan = fftw_plan_many_dft_r2c(1, &n, Channels, in, nullptr, 1, Resampler::Stride, out, nullptr, 1, Bins,
                                      FFTW_ESTIMATE);
        for (int i = 0; i < Channels * Resampler::Stride; ++i)
            in[i] = 0.0;
    }
    ~Plan()
    {
        const std::lock_guard<std::mutex> lock(planMutex());
        fftw_destroy_plan(plan);
        fftw_free(in);
        fftw_free(out);
    }
    Plan(const Plan &) = delete;
    Plan &operator=(const Plan &) = delete;
};

Spectrum::Spectrum() : m_plan(std::make_unique<Plan>()), m_power(std::size_t(Channels) * Lines)
{
    fftw_execute(m_plan->plan);
}

Spectrum::~Spectrum() = default;

PROCESSOR_VECTOR_CODE void Spectrum::analyse(const SampleStore &store, double from, double length)
{
    m_resampler.resample(store, from, length, m_plan->in);
    fftw_execute(m_plan->plan);
    double scale[Lines]; // of a squared bin to a squared r.m.s. value
    for (int k = 0; k < Lines; ++k) {
        const double factor = m_resampler.correction(k / length) / Resampler::Points;
        scale[k] = factor * factor * (k == 0 ? 1.0 : 2.0);
    }
    for (int c = 0; c < Channels; ++c) {
        const fftw_complex *bins = m_plan->out + c * Plan::Bins;
        double *power = m_power.data() + std::size_t(c) * Lines;
        for (int k = 0; k < Lines; ++k)
            power[k] = (bins[k][0] * bins[k][0] + bins[k][1] * bins[k][1]) * scale[k];
    }
}

double Spectrum::phase(int channel, int line) const
{
    const fftw_complex &bin = m_plan->out[channel * Plan::Bins + line];
    return bin[0] == 0.0 && bin[1] == 0.0 ? 0.0 : std::atan2(bin[1], bin[0]);
}

void Spectrum::transformOnly()
{
    fftw_execute(m_plan->plan);
}

} // namespace processor
