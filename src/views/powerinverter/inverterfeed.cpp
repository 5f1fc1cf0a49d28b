#include "views/powerinverter/inverterfeed.h"

#include "widgets/text/f_to_str.h"

#include <cmath>

int singleOrThree = 0;

namespace InverterFeed {

namespace {

constexpr int kPhases = 3;
constexpr int kDirect = 3; // channel of the direct-current side
constexpr int kTotal = 3; // row of the sum of the phases

void append(QList<float> &series, float value)
{
    while (series.size() >= kTrendPoints)
        series.removeFirst();
    series.append(value);
}

} // namespace

int outputMask(int channelMask, bool single)
{
    return channelMask & (single ? 0b001 : 0b111);
}

void feed(const __vif_data &live, const __power_data &power, bool single, int outputs, __pi_data &to)
{
    to.inputVoltage = F_to_Str::clean(live.voltageOffset[kDirect]);
    to.inputCurrent = F_to_Str::clean(live.currentOffset[kDirect]);
    to.inputPower = to.inputVoltage * to.inputCurrent;
    for (int p = 0; p < kPhases; ++p) {
        const bool shown = outputs >> p & 1;
        to.outputVoltage[p] = shown ? live.voltage[p] : 0;
        to.outputCurrent[p] = shown ? live.current[p] : 0;
        to.outputPower[p] = shown ? power.row[p].active : 0;
    }
    // The total row knows how the wiring adds up, also where the phases have no power of their own.
    const float output = F_to_Str::clean(single ? power.row[0].active : power.row[kTotal].active);
    const float ratio = F_to_Str::div_sn(output, to.inputPower) * 100.0f;
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
