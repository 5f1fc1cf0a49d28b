#include "truechannels.h"

#include <cmath>
#include <numeric>

namespace {

constexpr int kPlaces = 2560; // of a window: more than two for each turn of the order 100
constexpr int kCyclePlaces = 400;
constexpr double kTwoPi = 2 * 3.14159265358979323846;

} // namespace

QVector<double> TrueChannels::values(int channel, bool current, double from, double to, int places) const
{
    const auto input = [=](int number) { return m_signal.values(number, from, to, places); };
    const auto combine = [](QVector<double> a, const QVector<double> &b, double factorA, double factorB) {
        for (int i = 0; i < a.size(); ++i)
            a[i] = factorA * a[i] + factorB * b[i];
        return a;
    };
    if (current && channel == 1 && m_set.processorCode() == 4) // its clamp is open, the sum of the three is zero
        return combine(input(TrueSignal::I1), input(TrueSignal::I3), -1, -1);
    if (current)
        return input(TrueSignal::I1 + channel);
    if (!m_set.star())
        return channel == 3 ? QVector<double>(places) : combine(input(channel), input((channel + 1) % 3), 1, -1);
    if (channel == 1 && m_set.processorCode() == 3) // its lead is open, the sum of the three is zero
        return combine(input(TrueSignal::U1), input(TrueSignal::U3), -1, -1);
    return input(channel);
}

double TrueChannels::noise(int channel, bool current, double t) const
{
    const TrueSignal::Supply &supply = m_signal.supplyAt(t);
    const auto of = [&supply](int input) { return supply.inputs[input].noise; };
    if (!current || channel < 3 || !supply.neutralSum)
        return of((current ? TrueSignal::I1 : TrueSignal::U1) + channel);
    return std::hypot(std::hypot(of(TrueSignal::I1), of(TrueSignal::I2)),
                      std::hypot(of(TrueSignal::I3), of(TrueSignal::IN)));
}

TrueChannels::Means TrueChannels::means(double from, double to) const
{
    const bool uniform = m_signal.isUniform(from, to);
    QMap<double, Means> &known = uniform ? m_uniform : m_others;
    const double key = uniform ? m_signal.supplyAt(from).from : from;
    if (!known.contains(key))
        known.insert(key, meansOf(from, to));
    return known.value(key);
}

TrueChannels::Means TrueChannels::meansOf(double from, double to) const
{
    Means found {};
    QVector<double> u[kChannels], i[kChannels];
    const auto mean = [](const QVector<double> &a, const QVector<double> &b) {
        return std::inner_product(a.begin(), a.end(), b.begin(), 0.0) / kPlaces;
    };
    for (int channel = 0; channel < kChannels; ++channel) {
        u[channel] = values(channel, false, from, to, kPlaces);
        i[channel] = values(channel, true, from, to, kPlaces);
        found.volts[channel] = std::sqrt(mean(u[channel], u[channel]) + std::pow(noise(channel, false, from), 2));
        found.amps[channel] = std::sqrt(mean(i[channel], i[channel]) + std::pow(noise(channel, true, from), 2));
    }
    // Between lines two currents make up the power of all: the third is their negative sum.
    const bool twoCurrents = !m_set.star() && m_set.taskPhases == 3;
    const double watts[]
        = { mean(u[0], i[0]), twoCurrents ? 0 : mean(u[1], i[1]), twoCurrents ? -mean(u[1], i[2]) : mean(u[2], i[2]) };
    for (int row = 0; row < m_set.taskPhases; ++row) {
        found.watts[row] = watts[row];
        found.watts[kTotal] += watts[row];
    }
    return found;
}

QVector<std::complex<double>> TrueChannels::lines(int channel, bool current, double from, double to,
                                                  const QVector<int> &numbers) const
{
    static const QVector<std::complex<double>> circle = [] {
        QVector<std::complex<double>> points;
        for (int place = 0; place < kPlaces; ++place)
            points.append(std::polar(std::sqrt(2.0) / kPlaces, -kTwoPi * place / kPlaces));
        return points;
    }();
    QVector<std::complex<double>> found(numbers.size());
    const QVector<double> wave = values(channel, current, from, to, kPlaces);
    for (int i = 0; i < numbers.size(); ++i) {
        double real = 0, imaginary = 0;
        for (int place = 0, at = 0; place < kPlaces; ++place, at = (at + numbers[i]) % kPlaces) {
            real += wave.at(place) * circle.at(at).real();
            imaginary += wave.at(place) * circle.at(at).imag();
        }
        found[i] = { real, imaginary };
    }
    return found;
}

double TrueChannels::cycleRms(int channel, bool current, double from, double to) const
{
    const QVector<double> wave = values(channel, current, from, to, kCyclePlaces);
    const double square = std::inner_product(wave.begin(), wave.end(), wave.begin(), 0.0) / kCyclePlaces;
    return std::sqrt(square + std::pow(noise(channel, current, from), 2));
}
