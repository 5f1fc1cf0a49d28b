#pragma once

#include "model/pqaeventitem.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <vector>

/// The true signal of a supply with events, and what the method of measurement must make of it, worked out from the
/// formula of the signal alone.
///
/// The method (IEC 61000-4-30, 5.4): the r.m.s. value of one cycle, refreshed at each half cycle, cycles beginning at
/// zero crossings of L1. L1 has phase 0 at time 0, so value k covers [k T/2, k T/2 + T] and stands at its middle,
/// (k + 1) T/2. What begins or ends inside a cycle therefore shows in part: a dip may seem to begin half a cycle early
/// (its first value covers a part of it) or late, and its length is known to half a cycle, no better.
namespace SupplyModel {

constexpr double kVolts = 230.0;
constexpr double kAmps = 1.0;

/// One disturbance of the scenario.
struct Part
{
    const char *type; // "dip", "swell", "interruption", "inrush"
    const char *inputs; // "l1", "l2+l3", "all"
    double level; // percent that stand while it lasts; inrush: at its beginning
    double length; // s; inrush: time constant of the decay
    double phase; // point on wave where it begins, degrees of its first input
    double after = 0; // s behind the case's moment

    bool touches(int phaseIndex) const
    {
        return qstrcmp(inputs, "all") == 0 || QByteArray(inputs).contains(char('1' + phaseIndex));
    }
    bool onCurrents() const { return qstrcmp(type, "inrush") == 0; }
};

/// Disturbances around one moment.
struct Case
{
    QByteArray name;
    QVector<Part> parts;
};

struct Expected
{
    int type; // PQAEventType
    quint32 channels; // bits of the phases that may stand as the worst one: more than one where they are alike
    double start; // s of the signal
    double duration; // s
    double value; // V or A
};

/// The three phases at one half cycle.
struct Series
{
    double time; // s
    double value[3];
};

class Model
{
public:
    explicit Model(double hertz) : m_hertz(hertz) { }

    double period() const { return 1.0 / m_hertz; }

    /// When a part begins: the first time not before its moment at which its first input has the phase. Inputs L1, L2,
    /// L3 are at 0, -120 and 120 degrees of time 0, and every moment lies on a whole cycle.
    double begin(const Part &part, double moment) const
    {
        int first = 0;
        while (!part.touches(first))
            ++first;
        const double turn = std::fmod(part.phase - kPhase[first] + 720.0, 360.0) / 360.0;
        return moment + part.after + turn * period();
    }

    /// R.m.s. of the cycle that begins at \a from, by the sum over many places: voltage of a phase, or its current.
    double cycleRms(const Case &one, double moment, int phase, bool current, double from) const
    {
        constexpr int kPlaces = 2000;
        const double steady = current ? kAmps : kVolts;
        const auto matters = [&](const Part &part) {
            const double begins = begin(part, moment);
            return part.touches(phase) && part.onCurrents() == current && from + period() > begins
                && (current || from < begins + part.length);
        };
        if (std::none_of(one.parts.begin(), one.parts.end(), matters))
            return steady;
        double sum = 0;
        for (int i = 0; i < kPlaces; ++i) {
            const double t = from + (i + 0.5) / kPlaces * period();
            double factor = 1;
            for (const Part &part : one.parts) {
                if (part.touches(phase) && part.onCurrents() == current)
                    factor *= factorAt(part, t - begin(part, moment));
            }
            const double wave = factor * std::sin(2 * M_PI * (m_hertz * t + kPhase[phase] / 360.0));
            sum += 2 * wave * wave;
        }
        return steady * std::sqrt(sum / kPlaces);
    }

    /// The events of a case: levels of EN 50160 for dips (90 %, ends at 92), swells (110 %, ends at 108) and
    /// interruptions (all below 1 %, ends when one is at 3 or above); inrush begins at 2.5 A and ends at 2.475 A.
    QVector<Expected> events(const Case &one, double moment) const
    {
        QVector<Series> voltage, current;
        takeValues(one, moment, false, &voltage);
        takeValues(one, moment, true, &current);
        QVector<Expected> list;
        findDips(voltage, &list);
        findSwells(voltage, &list);
        for (int phase = 0; phase < 3; ++phase)
            findInrush(current, phase, &list);
        std::sort(list.begin(), list.end(), [](const Expected &a, const Expected &b) { return a.start < b.start; });
        return list;
    }

    /// Seconds behind its moment after which a case is over for certain.
    static double span(const Case &one)
    {
        double seconds = 0;
        for (const Part &part : one.parts)
            seconds = std::max(seconds, part.after + part.length * (part.onCurrents() ? 8.0 : 1.0));
        return seconds + 0.1;
    }

    // Events of a series of half cycles. Levels of voltages are shares of \a nominal.

    static void findDips(const QVector<Series> &series, QVector<Expected> *list, double nominal = kVolts)
    {
        double start = -1, worst[3] = {};
        bool interrupted = false;
        bool armed = true; // behind an event a half cycle without a dip must come before the next
        for (const Series &entry : series) {
            const double low = *std::min_element(entry.value, entry.value + 3);
            const double high = *std::max_element(entry.value, entry.value + 3);
            if (start < 0 && !armed) {
                armed = low >= 0.9 * nominal;
                continue;
            }
            if (start < 0 && low < 0.9 * nominal) {
                start = entry.time;
                std::fill_n(worst, 3, 1e9);
            }
            if (start < 0)
                continue;
            for (int phase = 0; phase < 3; ++phase)
                worst[phase] = std::min(worst[phase], entry.value[phase]);
            if (!interrupted && high < 0.01 * nominal) {
                interrupted = true;
                start = entry.time; // the dip that led here is part of the interruption, which counts from now
            }
            if (interrupted ? high < 0.03 * nominal : low < 0.92 * nominal)
                continue;
            const double value = *std::min_element(worst, worst + 3);
            list->append({ interrupted ? EventInterruption : EventDip, alike(worst, value, nominal), start,
                           entry.time - start, value });
            start = -1;
            interrupted = false;
            armed = false;
        }
    }

    static void findSwells(const QVector<Series> &series, QVector<Expected> *list, double nominal = kVolts)
    {
        double start = -1, worst[3] = {};
        for (const Series &entry : series) {
            const double high = *std::max_element(entry.value, entry.value + 3);
            if (start < 0 && high > 1.1 * nominal) {
                start = entry.time;
                std::fill_n(worst, 3, 0.0);
            }
            if (start < 0)
                continue;
            for (int phase = 0; phase < 3; ++phase)
                worst[phase] = std::max(worst[phase], entry.value[phase]);
            if (high > 1.08 * nominal)
                continue;
            const double value = *std::max_element(worst, worst + 3);
            list->append({ EventSwell, alike(worst, value, nominal), start, entry.time - start, value });
            start = -1;
        }
    }

    static void findInrush(const QVector<Series> &series, int phase, QVector<Expected> *list)
    {
        double start = -1, worst = 0;
        for (const Series &entry : series) {
            if (start < 0 && entry.value[phase] >= 2.5)
                start = entry.time;
            if (start < 0)
                continue;
            worst = std::max(worst, entry.value[phase]);
            if (entry.value[phase] > 2.475)
                continue;
            list->append({ EventInrush, 1u << phase, start, entry.time - start, worst });
            start = -1;
            worst = 0;
        }
    }

private:
    static double factorAt(const Part &part, double t)
    {
        if (t < 0)
            return 1;
        if (part.onCurrents())
            return 1 + (part.level / 100 - 1) * std::exp(-t / part.length);
        return t < part.length ? part.level / 100 : 1;
    }

    void takeValues(const Case &one, double moment, bool current, QVector<Series> *series) const
    {
        const double half = period() / 2;
        const auto first = std::llround((moment - 0.1) / half);
        const auto last = std::llround((moment + span(one)) / half);
        for (auto k = first; k <= last; ++k) {
            Series entry { (double(k) + 1) * half, {} };
            for (int phase = 0; phase < 3; ++phase)
                entry.value[phase] = cycleRms(one, moment, phase, current, double(k) * half);
            series->append(entry);
        }
    }

    /// The phases whose worst value is within 0.3 % of the worst of all.
    static quint32 alike(const double (&worst)[3], double value, double nominal)
    {
        quint32 bits = 0;
        for (int phase = 0; phase < 3; ++phase)
            bits |= std::fabs(worst[phase] - value) <= 0.003 * nominal ? 1u << phase : 0u;
        return bits;
    }

    static constexpr double kPhase[3] = { 0, -120, 120 }; // degrees at time 0
    double m_hertz;
};

} // namespace SupplyModel
