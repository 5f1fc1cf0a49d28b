#include "views/harmonics/harmvalues.h"

#include "widgets/text/f_to_str.h"

#include <algorithm>
#include <iterator>

namespace HarmValues {

namespace {

constexpr int kOfFundamental = 2; // harm_data::reference

constexpr Line kHead[] = {
    { Voltage, { Offset, 1 } },
    { Current, { Offset, 1 } },
    { Voltage, { Distortion, 1 } },
    { Current, { Distortion, 1 } },
};
constexpr Line kBlocks[] = {
    { Voltage, { Harmonic, 1 } },
    { Current, { Harmonic, 1 } },
    { Voltage, { Interharmonic, 1 } },
    { Current, { Interharmonic, 1 } },
};
constexpr int kHeadLines = int(std::size(kHead));

float reference(const harm_data &data, const HarmChannel &block)
{
    return data.reference == kOfFundamental ? block.harmonic[0].magnitude : block.rms;
}

} // namespace

const HarmChannel &block(const harm_data &data, int quantity, int channel)
{
    return data.channel[std::clamp(channel, 0, kChannels - 1) + (quantity == Current ? kChannels : 0)];
}

float magnitude(const HarmChannel &block, Item item)
{
    const int index = std::clamp(item.order, 1, kHarmonicOrders) - 1;
    switch (item.kind) {
    case Distortion:
        return block.distortion;
    case Offset:
        return block.offset;
    case Harmonic:
        return block.harmonic[index].magnitude;
    case Interharmonic:
        return block.inter[index].magnitude;
    }
    return 0;
}

float percent(const harm_data &data, int quantity, int channel, Item item)
{
    const HarmChannel &from = block(data, quantity, channel);
    // Kept: held to 0 .. 1, so that a negative offset counts as 0.
    return F_to_Str::div_s_percent(F_to_Str::clean(magnitude(from, item)), F_to_Str::clean(reference(data, from)))
        * 100.0f;
}

QList<__graphdata> bars(const harm_data &data, int quantity, int first, int last, bool inter)
{
    QList<__graphdata> list;
    const auto append = [&](Item item) {
        __graphdata bar;
        for (int c = 0; c < kChannels; ++c)
            bar.value[c] = percent(data, quantity, c, item);
        list.append(bar);
    };
    append({ Distortion, 1 });
    append({ Offset, 1 });
    const int end = std::min(last, kHarmonicOrders);
    for (int order = std::max(first, 1); order <= end; ++order) {
        append({ Harmonic, order });
        if (inter)
            append({ Interharmonic, order });
    }
    return list;
}

int lineCount(int orders, bool inter)
{
    return kHeadLines + orders * (inter ? 4 : 2);
}

Line line(int index, int orders)
{
    if (index < kHeadLines)
        return kHead[std::max(index, 0)];
    const int place = index - kHeadLines;
    const int perBlock = std::max(orders, 1);
    Line line = kBlocks[std::min(place / perBlock, int(std::size(kBlocks)) - 1)];
    line.item.order = place % perBlock + 1;
    return line;
}

} // namespace HarmValues
