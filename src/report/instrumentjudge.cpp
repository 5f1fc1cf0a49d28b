#include "report/instrumentjudge.h"

#include "report/judgement.h"

InstrumentJudge::InstrumentJudge(const MonitorSetup &setup) : m_judge(setup, m_data, m_trend, m_checks) { }

void InstrumentJudge::take(const QuantityKey &key, qint64 time, float value)
{
    if (++m_values > kMostValues)
        return;
    switch (key.quantity) {
    case Quantity::Frequency:
        m_judge.frequency(value, time);
        break;
    case Quantity::Voltage:
        m_judge.voltage(key.phase, value, time);
        break;
    case Quantity::Unbalance:
        m_judge.unbalance(value, time);
        break;
    case Quantity::Thd:
        m_judge.harmonic(key.phase, 0, value, time);
        break;
    case Quantity::Harmonic:
        if (key.order < 2 || key.order > kMonitorHarmonics)
            return;
        m_judge.harmonic(key.phase, key.order - 1, value, time);
        break;
    case Quantity::Plt:
        m_judge.plt(key.phase, value, time);
        break;
    default:
        return; // the instrument has no result for it
    }
    if (!m_given.contains(key))
        m_given.append(key);
}

QVector<InstrumentResult> InstrumentJudge::results() const
{
    QVector<InstrumentResult> results;
    if (m_values > kMostValues)
        return results;
    for (const QuantityKey &key : m_given) {
        const int phase = qBound(0, int(key.phase), kMonitorPhases - 1);
        switch (key.quantity) {
        case Quantity::Frequency:
            results.append({ key, m_data.freqPartialOk != 0, m_data.freqWholeOk != 0 });
            break;
        case Quantity::Voltage:
            results.append({ key, m_data.voltPartialOk[phase] != 0, m_data.voltWholeOk[phase] != 0 });
            break;
        case Quantity::Unbalance:
            results.append({ key, m_data.unbalOk != 0, true });
            break;
        case Quantity::Thd:
            results.append({ key, m_data.harmOk[phase][0] != 0, true });
            break;
        case Quantity::Harmonic:
            results.append({ key, m_data.harmOk[phase][key.order - 1] != 0, true });
            break;
        case Quantity::Plt:
            results.append({ key, m_data.pltOk[phase] != 0, true });
            break;
        default:
            break;
        }
    }
    return results;
}
