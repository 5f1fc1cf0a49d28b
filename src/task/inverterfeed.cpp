#include "task/inverterfeed.h"

#include "device/cleanvalue.h"
#include "task/displayfeed.h"

#include <cmath>

int singleOrThree = 0;

namespace InverterFeed {

namespace {

constexpr int kPhases = 3;
constexpr int kDirect = 3; // channel of the direct-current side
constexpr int kTotal = 3; // row of the sum of the phases

void append(QList<float> &series, float value)
{
    DisplayFeed::appendLimited(series, value, kTrendPoints);
}

} // namespace

int outputMask(int channelMask, bool single)
{
    return channelMask & (single ? 0b001 : 0b111);
}

void feed(const __vif_data &live, const __power_data &power, bool single, int outputs, __pi_data &to)
{
    to.inputVoltage = SafeMath::cleaned(live.voltageOffset[kDirect]);
    to.inputCurrent = SafeMath::cleaned(live.currentOffset[kDirect]);
    to.inputPower = to.inputVoltage * to.inputCurrent;
    for (int p = 0; p < kPhases; ++p) {
        const bool shown = outputs >> p & 1;
        to.outputVoltage[p] = shown ? live.voltage[p] : 0;
        to.outputCurrent[p] = shown ? live.current[p] : 0;
        to.outputPower[p] = shown ? power.row[p].active : 0;
    }
    // The total row knows how the wiring adds up, also where the phases have no power of their own.
    const float output = SafeMath::cleaned(single ? power.row[0].active : power.row[kTotal].active);
    const float ratio = SafeMath::div_sn(output, to.inputPower) * 100.0f;
    to.efficiency = std::isfinite(ratio) ? ratio : 0;
    to.frequency = live.frequency;
}

void appendTrends(int outputs, __pi_data &data)
{
    append(data.trend[InputVoltage].series[0], data.inputVoltage);
    append(data.trend[InputCurrent].series[0], data.inputCurrent);
    append(data.trend[Efficiency].series[0], data.efficiency);
    for (int p = 0; p < kPhases; ++p) {
        if (!(outputs >> p & 1))
            continue;
        append(data.trend[OutputVoltage].series[p], data.outputVoltage[p]);
        append(data.trend[OutputCurrent].series[p], data.outputCurrent[p]);
        append(data.trend[OutputPower].series[p], data.outputPower[p]);
    }
}

} // namespace InverterFeed
