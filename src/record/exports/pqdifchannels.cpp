#include "record/exports/pqdifchannels.h"

#include "record/exports/asciitext.h"

namespace {

struct Numbered
{
    const char *name;
    quint32 number;
};

constexpr Numbered kPhases[]
    = { { "L1", 1 }, { "L2", 2 }, { "L3", 3 }, { "N", 4 }, { "L12", 5 }, { "L23", 6 }, { "L31", 7 }, { "total", 13 } };

constexpr Numbered kUnits[]
    = { { "s", kPqdifSeconds }, { "V", 6 },    { "A", 7 },        { "VA", 8 },    { "W", 9 },   { "var", 10 },
        { "Hz", 15 },           { "deg", 17 }, { "percent", 19 }, { "varh", 22 }, { "Wh", 23 }, { "VAh", 24 } };

template <std::size_t count> quint32 numberIn(const Numbered (&rows)[count], const QByteArray &name)
{
    for (const Numbered &row : rows) {
        if (name == row.name)
            return row.number;
    }
    return 0;
}

} // namespace

quint32 pqdifPhase(const QByteArray &channel)
{
    return numberIn(kPhases, channel);
}

quint32 pqdifUnit(const QByteArray &unit)
{
    return numberIn(kUnits, unit);
}

PqdifSeries pqdifTimeSeries(PqdifStorage storage)
{
    return { PqdifValue::kSeriesTime, kPqdifSeconds, PqdifValue::kQcInstantaneous, storage, 0 };
}

bool PqdifSeries::operator==(const PqdifSeries &other) const
{
    return value == other.value && unit == other.unit && characteristic == other.characteristic
        && storage == other.storage && nominal == other.nominal;
}

bool PqdifChannel::operator==(const PqdifChannel &other) const
{
    return name == other.name && phase == other.phase && type == other.type && measured == other.measured
        && series == other.series;
}

int PqdifChannels::numberOf(const PqdifChannel &channel)
{
    constexpr int kMostName = 200; // characters
    const QByteArray wanted = AsciiText::of(channel.name, kMostName);
    QByteArray name = wanted;
    for (int i = 2; m_numbers.contains(name); ++i) {
        const int number = m_numbers.value(name);
        PqdifChannel known = m_channels[number];
        known.name = channel.name;
        if (known == channel)
            return number;
        name = wanted + " #" + QByteArray::number(i);
    }
    m_numbers.insert(name, m_channels.size());
    m_channels.append(channel);
    m_channels.last().name = name;
    return m_channels.size() - 1;
}

void PqdifChannels::writeTo(PqdifCollection *dataSource) const
{
    PqdifCollection &all = dataSource->addCollection(PqdifTag::kChannelDefns);
    for (const PqdifChannel &channel : m_channels) {
        PqdifCollection &one = all.addCollection(PqdifTag::kOneChannelDefn);
        one.addText(PqdifTag::kChannelName, channel.name);
        one.addNumber(PqdifTag::kPhaseID, channel.phase);
        one.addId(PqdifTag::kQuantityTypeID, channel.type);
        one.addNumber(PqdifTag::kQuantityMeasuredID, quint32(channel.measured));
        PqdifCollection &definitions = one.addCollection(PqdifTag::kSeriesDefns);
        for (const PqdifSeries &series : channel.series) {
            PqdifCollection &definition = definitions.addCollection(PqdifTag::kOneSeriesDefn);
            definition.addId(PqdifTag::kValueTypeID, series.value);
            definition.addNumber(PqdifTag::kQuantityUnitsID, series.unit);
            definition.addId(PqdifTag::kQuantityCharacteristicID, series.characteristic);
            definition.addNumber(PqdifTag::kStorageMethodID, quint32(series.storage));
            if (series.nominal > 0)
                definition.addReal(PqdifTag::kSeriesNominalQuantity, series.nominal);
        }
    }
}
