#include "task/halfcycletrends.h"

#include "model/livedata.h"
#include "task/displayfeed.h"

#include <algorithm>

void HalfCycleTrends::push(const __datagram_rms &record, int channels, __mains_sig_data &means)
{
    for (int c = 0; c < channels; ++c) {
        const RmsSeries &voltage = record.voltage[c];
        const RmsSeries &current = record.current[c];
        const int count = int(std::min<quint32>(voltage.count, kRmsEntries));
        float voltageSum = 0;
        float currentSum = 0;
        for (int i = 0; i < count; ++i) {
            m_rings[c].rmsfifoPush(voltage.entry[i].value);
            m_rings[c + kChannels].rmsfifoPush(current.entry[i].value);
            voltageSum += voltage.entry[i].value;
            currentSum += current.entry[i].value;
        }
        if (count > 0) {
            means.rms1[c] = voltageSum / float(count);
            means.rms2[c] = currentSum / float(count);
        }
    }
}

void HalfCycleTrends::drain(int channels, const Limits &limits, DisplayRecords &live)
{
    for (int c = 0; c < channels; ++c) {
        for (int input : { c, c + kChannels }) {
            const bool isVoltage = input < kChannels;
            QList<float> &dips = isVoltage ? live.dips.voltage[c] : live.dips.current[c];
            QList<float> &inrush = isVoltage ? live.inrush.voltage[c] : live.inrush.current[c];
            while (m_rings[input].rmsfifoCount() >= 1) {
                const float value = m_rings[input].rms_data_extract();
                DisplayFeed::appendLimited(dips, value, limits.dips);
                DisplayFeed::appendLimited(inrush, value, limits.inrush);
            }
        }
    }
}
