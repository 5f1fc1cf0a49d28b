#include "detect/flickerprocessor.h"

#include "device/datatypes.h"
#include "model/displayrecords.h"

#include <limits>

namespace {

constexpr float kNoCap = std::numeric_limits<float>::infinity();
constexpr float kClosingCap = 20.0f; // top of the scale that the long-term value is shown and judged on

void appendFloat(QByteArray *block, float value)
{
    block->append(reinterpret_cast<const char *>(&value), int(sizeof value));
}

} // namespace

void FlickerProcessor::Window::take(float value, quint32 samplesPerWindow)
{
    if (value > running)
        running = value;
    // "At least", since the limit comes with each datagram and may fall below the count.
    if (++count >= samplesPerWindow) {
        previous = running;
        running = 0;
        count = 0;
    }
}

void FlickerProcessor::insertFlickerPinst(int phase, float pinst)
{
    QList<float> &values = m_phase[phase].interval;
    if (values.isEmpty() || pinst > values.constFirst()) {
        values.prepend(pinst);
        return;
    }
    if (pinst < values.constLast()) {
        values.append(pinst);
        return;
    }
    int low = 0;
    int high = values.size() - 1;
    while (high - low > 1) {
        const int middle = (low + high) / 2;
        if (pinst > values.at(middle))
            high = middle;
        else
            low = middle;
    }
    values.insert(high, pinst);
}

void FlickerProcessor::endInterval(int phase, float pltCap, FlickerOutput &out, __flicker_data &data)
{
    Phase &p = m_phase[phase];
    m_lastPst = float(DataTypes::pst10min(&p.interval, unsigned(p.interval.size())));
    out.shortTerm |= 1u << phase;
    p.shortTerm.append(m_lastPst);
    data.pstTrend[phase].append(m_lastPst);
    p.interval.clear();
    if (p.shortTerm.size() < kShortPerLong)
        return;
    const float value = float(DataTypes::plt(&p.shortTerm, unsigned(p.shortTerm.size())));
    m_lastPlt = value > pltCap ? pltCap : value;
    p.shortTerm.clear();
    out.longTerm |= 1u << phase;
    out.plt[phase] = m_lastPlt;
    data.pltTrend[phase].append(m_lastPlt);
}

FlickerOutput FlickerProcessor::process(const __datagram_flicker &record, const QByteArray &blockHead,
                                        __flicker_data &data)
{
    for (int i = 0; i < kFlickerPhases; ++i) {
        Phase &p = m_phase[i];
        for (const float pinst : record.pinst[i]) {
            p.windowA.take(pinst, record.samplesPerWindow);
            p.windowB.take(pinst, record.samplesPerWindow);
            p.sum += pinst;
            if (++p.count < kSumSamples)
                continue;
            const float mean = p.sum / float(kSumSamples);
            QList<float> &trend = data.pinstTrend[i];
            if (trend.size() >= kTrendValues)
                trend.removeFirst();
            trend.append(mean);
            insertFlickerPinst(i, mean);
            p.sum = 0;
            p.count = 0;
        }
        data.flickerMax[i] = p.windowA.previous > p.windowA.running ? p.windowA.previous : p.windowA.running;
    }

    FlickerOutput out;
    float shortValues[kFlickerPhases];
    float longValues[kFlickerPhases];
    for (int i = 0; i < kFlickerPhases; ++i) {
        if (m_phase[i].interval.size() >= kIntervalValues)
            endInterval(i, kNoCap, out, data);
        // Kept: a phase without a new value repeats the last one computed, so that a block has one per phase.
        shortValues[i] = m_lastPst;
        longValues[i] = m_lastPlt;
    }
    out.shortBlock = blockHead;
    out.longBlock = blockHead;
    for (int i = 0; i < kFlickerPhases; ++i) {
        if (out.shortTerm)
            appendFloat(&out.shortBlock, shortValues[i]);
        if (out.longTerm)
            appendFloat(&out.longBlock, longValues[i]);
        if (!((out.shortTerm | out.longTerm) & (1u << i)))
            continue;
        if (!data.pstTrend[i].isEmpty())
            data.pst[i] = data.pstTrend[i].constLast();
        if (!data.pltTrend[i].isEmpty())
            data.plt[i] = data.pltTrend[i].constLast();
    }
    return out;
}

FlickerOutput FlickerProcessor::closeIntervals(int moreThan, const QByteArray &blockHead, __flicker_data &data)
{
    FlickerOutput out;
    out.shortBlock = blockHead;
    out.longBlock = blockHead;
    for (int i = 0; i < kFlickerPhases; ++i) {
        if (m_phase[i].interval.size() <= moreThan)
            continue;
        endInterval(i, kClosingCap, out, data);
        appendFloat(&out.shortBlock, m_lastPst);
        if (out.longTerm & (1u << i))
            appendFloat(&out.longBlock, m_lastPlt);
    }
    return out;
}

void FlickerProcessor::clear(__flicker_data &data)
{
    for (int i = 0; i < kFlickerPhases; ++i) {
        m_phase[i] = Phase();
        data.pinstTrend[i].clear();
        data.pstTrend[i].clear();
        data.pltTrend[i].clear();
    }
}
