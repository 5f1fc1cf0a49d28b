#include "record/tables/blockcolumns.h"

#include "model/channelset.h"

#include <QString>

#include <algorithm>
#include <map>
#include <tuple>

namespace {

using Fields = std::vector<BlockField>;

constexpr int kInputs = 4;
constexpr int kLines = 50; // of a spectrum in one file
constexpr int kMonitorOrders = 50; // rows of the monitor's spectra

Fields ranked(Fields fields)
{
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!fields[i].quantity.isEmpty())
            fields[i].rank = int(i);
    }
    return fields;
}

BlockField volts(const char *quantity, const char *unit = "V")
{
    return { quantity, unit, -1, -1, true };
}

/// "Uh05"
QByteArray lineName(const char *stem, int order)
{
    return QByteArray(stem) + (order < 10 ? "0" : "") + QByteArray::number(order);
}

/// A channel of a file of spectra: two head values, then fifty lines.
Fields spectrum(char input, bool isInter, int firstOrder)
{
    const bool isVoltage = input == 'U';
    const char *unit = isVoltage ? "V" : "A";
    const QByteArray name(1, input);
    Fields fields { { name + "_distortion", unit, 0, -1, isVoltage },
                    { name + "_fundamental", unit, 1, -1, isVoltage } };
    for (int i = 0; i < kLines; ++i) {
        const int order = firstOrder + i;
        const QByteArray line = lineName((name + (isInter ? "ih" : "h")).constData(), order);
        fields.push_back({ line, unit, 2 + order, qint16(order), isVoltage });
    }
    return fields;
}

Fields monitorSpectrum(char input, int firstRank)
{
    const bool isVoltage = input == 'U';
    const QByteArray name(1, input);
    Fields fields { { name + "_distortion", "percent", firstRank, -1, isVoltage } };
    for (int order = 2; order <= kMonitorOrders; ++order)
        fields.push_back(
            { lineName((name + 'h').constData(), order), "percent", firstRank + order - 1, qint16(order), isVoltage });
    return fields;
}

/// The angles among the r.m.s. values, for the table of angles.
Fields anglesOfRms()
{
    Fields fields(13);
    fields[10] = { "U_angle", "deg", 0, -1, true };
    fields[11] = { "I_angle", "deg", 1 };
    fields[12] = { "UI_angle", "deg", 2 };
    return fields;
}

const Fields kFrequency { { "f", "Hz", 0 } };
const Fields kRms = ranked({ volts("U_rms"),
                             volts("U_peak"),
                             volts("U_offset"),
                             volts("U_crest", ""),
                             { "I_rms", "A" },
                             { "I_peak", "A" },
                             { "I_offset", "A" },
                             { "I_crest", "" },
                             volts("U_fundamental"),
                             { "I_fundamental", "A" },
                             {},
                             {},
                             {} });
const Fields kRmsAngles = anglesOfRms();
const Fields kAngle[] = {
    { { "U_angle", "deg", 0, -1, true } }, { { "I_angle", "deg", 1 } },         { { "UI_angle", "deg", 2 } },
    { { "UI_angle_h03", "deg", 3, 3 } },   { { "UI_angle_h05", "deg", 4, 5 } }, { { "UI_angle_h07", "deg", 5, 7 } },
};
const Fields kPower
    = ranked({ { "P", "W" }, { "S", "VA" }, { "Q", "var" }, { "PF", "" }, { "cos_phi", "" }, { "tan_phi", "" } });
const Fields kEnergy = ranked({ { "EP", "Wh" }, { "ES", "VAh" }, { "EQ", "varh" } });
const Fields kUnbalance = ranked({ { "U_positive", "V" },
                                   { "U_negative", "V" },
                                   { "U_negative_ratio", "percent" },
                                   { "U_zero", "V" },
                                   { "U_zero_ratio", "percent" },
                                   { "I_positive", "A" },
                                   { "I_negative", "A" },
                                   { "I_negative_ratio", "percent" },
                                   { "I_zero", "A" },
                                   { "I_zero_ratio", "percent" } });
const Fields kSignalling = ranked(
    { volts("U_signal1_ratio", ""), volts("U_signal1"), volts("U_signal2_ratio", ""), volts("U_signal2"), {}, {} });
const Fields kPst { { "Pst", "", 0, -1, true } };
const Fields kPlt { { "Plt", "", 0, -1, true } };
const Fields kHarmonicsU[] = { spectrum('U', false, 1), spectrum('U', false, 51) };
const Fields kHarmonicsI[] = { spectrum('I', false, 1), spectrum('I', false, 51) };
const Fields kInterharmonicsU[] = { spectrum('U', true, 0), spectrum('U', true, 50) };
const Fields kInterharmonicsI[] = { spectrum('I', true, 0), spectrum('I', true, 50) };
const Fields kMonitorVoltage = ranked({ volts("U_rms") });
const Fields kMonitorUnbalance = ranked({ { "U_negative_ratio", "percent" }, { "U_zero_ratio", "percent" } });
const Fields kMonitorHarmonicsU = monitorSpectrum('U', 0);
const Fields kMonitorHarmonicsI = monitorSpectrum('I', kMonitorOrders);

/// A group of the recorder: the types of its mean, maximum and minimum, 0 for none.
struct Group
{
    quint32 types[3];
    const char *table;
    BlockRows rows;
    const Fields *fields;
};

const Group kGroups[] = {
    { { 0xA1000028, 0xA1000063, 0xA10000A3 }, "frequency_10s", BlockRows::Single, &kFrequency },
    { { 0xA1000029, 0xA1000064, 0xA10000A4 }, "frequency", BlockRows::Single, &kFrequency },
    { { 0xA1000020, 0xA1000060, 0xA10000A0 }, "rms", BlockRows::Channels, &kRms },
    { { 0xA1000020, 0xA1000060, 0xA10000A0 }, "angles", BlockRows::Channels, &kRmsAngles },
    { { 0xA1001003, 0, 0 }, "angles", BlockRows::Channels, &kAngle[0] },
    { { 0xA1001004, 0, 0 }, "angles", BlockRows::Channels, &kAngle[1] },
    { { 0xA1001005, 0, 0 }, "angles", BlockRows::Channels, &kAngle[2] },
    { { 0xA1001006, 0, 0 }, "angles", BlockRows::Channels, &kAngle[3] },
    { { 0xA1001007, 0, 0 }, "angles", BlockRows::Channels, &kAngle[4] },
    { { 0xA1001008, 0, 0 }, "angles", BlockRows::Channels, &kAngle[5] },
    { { 0xA1000021, 0xA1000061, 0xA10000A1 }, "power", BlockRows::Powers, &kPower },
    { { 0xA1000023, 0xA1000062, 0xA10000A2 }, "unbalance", BlockRows::Single, &kUnbalance },
    { { 0xA1000038, 0xA100006D, 0xA10000AD }, "signalling", BlockRows::Channels, &kSignalling },
    { { 0xA1000030, 0xA1000065, 0xA10000A5 }, "harmonics_u", BlockRows::Channels, &kHarmonicsU[0] },
    { { 0xA1000032, 0xA1000067, 0xA10000A7 }, "harmonics_u", BlockRows::Channels, &kHarmonicsU[1] },
    { { 0xA1000031, 0xA1000066, 0xA10000A6 }, "harmonics_i", BlockRows::Channels, &kHarmonicsI[0] },
    { { 0xA1000033, 0xA1000068, 0xA10000A8 }, "harmonics_i", BlockRows::Channels, &kHarmonicsI[1] },
    { { 0xA1000034, 0xA1000069, 0xA10000A9 }, "interharmonics_u", BlockRows::Channels, &kInterharmonicsU[0] },
    { { 0xA1000036, 0xA100006B, 0xA10000AB }, "interharmonics_u", BlockRows::Channels, &kInterharmonicsU[1] },
    { { 0xA1000035, 0xA100006A, 0xA10000AA }, "interharmonics_i", BlockRows::Channels, &kInterharmonicsI[0] },
    { { 0xA1000037, 0xA100006C, 0xA10000AC }, "interharmonics_i", BlockRows::Channels, &kInterharmonicsI[1] },
};

const BlockKind kSingles[] = {
    { 0xA1000022, "energy", Statistic::None, BlockRows::Powers, CellType::Double, 8, &kEnergy },
    { 0xA1000026, "flicker_pst", Statistic::None, BlockRows::ThreePhases, CellType::Single, 8, &kPst },
    { 0xA1000027, "flicker_plt", Statistic::None, BlockRows::ThreePhases, CellType::Single, 8, &kPlt },
    { 0xA1010000, "monitor_frequency", Statistic::Mean, BlockRows::Single, CellType::Single, 4, &kFrequency },
    { 0xA1010001, "monitor_voltage", Statistic::Mean, BlockRows::MeasuredPhases, CellType::Single, 4,
      &kMonitorVoltage },
    { 0xA1010002, "monitor_flicker_pst", Statistic::None, BlockRows::ThreePhases, CellType::Single, 4, &kPst },
    { 0xA1010003, "monitor_flicker_plt", Statistic::None, BlockRows::ThreePhases, CellType::Single, 4, &kPlt },
    { 0xA1010004, "monitor_unbalance", Statistic::None, BlockRows::Single, CellType::Single, 4, &kMonitorUnbalance },
    { 0xA1010005, "monitor_harmonics", Statistic::None, BlockRows::MeasuredPhases, CellType::Single, 4,
      &kMonitorHarmonicsU },
    { 0xA1010006, "monitor_harmonics", Statistic::None, BlockRows::MeasuredPhases, CellType::Single, 4,
      &kMonitorHarmonicsI },
};

std::vector<BlockKind> makeKinds()
{
    std::vector<BlockKind> kinds(std::begin(kSingles), std::end(kSingles));
    for (const Group &group : kGroups) {
        for (int i = 0; i < 3; ++i) {
            if (group.types[i])
                kinds.push_back({ group.types[i], group.table, Statistic(int(Statistic::Mean) + i), group.rows,
                                  CellType::Single, 8, group.fields });
        }
    }
    std::stable_sort(kinds.begin(), kinds.end(),
                     [](const BlockKind &a, const BlockKind &b) { return a.type < b.type; });
    return kinds;
}

bool isStored(BlockRows rows, const ChannelSet *wiring, int row)
{
    switch (rows) {
    case BlockRows::Single:
        return row == 0;
    case BlockRows::ThreePhases:
        return row < 3;
    case BlockRows::MeasuredPhases:
        return row < (wiring ? wiring->taskPhases : 3);
    default:
        return !wiring || (wiring->recordMask >> row & 1);
    }
}

/// Whether the wiring has what a stored row tells of.
bool isColumn(BlockRows rows, const ChannelSet *wiring, int row)
{
    if (!wiring || rows == BlockRows::Single)
        return true;
    const bool isTotal = rows == BlockRows::Powers && row == kInputs - 1;
    return rows == BlockRows::Channels ? wiring->has(row) : isTotal || row < wiring->taskPhases;
}

QByteArray channelName(const BlockKind &kind, const BlockField &field, int joinMode, int row)
{
    if (kind.rows == BlockRows::Single)
        return {};
    if (kind.rows == BlockRows::Powers && row == kInputs - 1)
        return "total";
    return inputName(joinMode, row, field.isVoltage);
}

using ColumnKey = std::tuple<int, int, int>; // rank, statistic, row

/// A column and its place among the others of its table.
struct PlacedColumn
{
    RecordColumn column;
    int place = 0;
};
using PlacedColumns = std::map<ColumnKey, PlacedColumn>;

/// Hands on each value of a block of this kind, in the order in which they stand, as (is it a column, key, field, row).
template <typename Take> void eachValue(const BlockKind &kind, const ChannelSet *wiring, const Take &take)
{
    for (int row = 0; row < kInputs; ++row) {
        if (!isStored(kind.rows, wiring, row))
            continue;
        for (const BlockField &field : *kind.fields) {
            const bool has = field.rank >= 0 && isColumn(kind.rows, wiring, row);
            take(has, ColumnKey(field.rank, int(kind.statistic), row), field, row);
        }
    }
}

} // namespace

const std::vector<BlockKind> &blockKinds()
{
    static const std::vector<BlockKind> kinds = makeKinds();
    return kinds;
}

BlockKindRange blockKindsOf(quint32 type)
{
    const auto &kinds = blockKinds();
    const auto first = std::lower_bound(kinds.begin(), kinds.end(), type,
                                        [](const BlockKind &kind, quint32 wanted) { return kind.type < wanted; });
    auto last = first;
    while (last != kinds.end() && last->type == type)
        ++last;
    return { kinds.data() + (first - kinds.begin()), kinds.data() + (last - kinds.begin()) };
}

int blockBytes(const BlockKind &kind, int joinMode)
{
    const ChannelSet *wiring = channelSet(joinMode);
    int rows = 0;
    for (int row = 0; row < kInputs; ++row)
        rows += isStored(kind.rows, wiring, row) ? 1 : 0;
    return kind.timeBytes + rows * int(kind.fields->size()) * (kind.cells == CellType::Double ? 8 : 4);
}

const QVector<QByteArray> &recordTableNames()
{
    static const QVector<QByteArray> names {
        "frequency_10s",
        "frequency",
        "rms",
        "angles",
        "power",
        "energy",
        "flicker_pst",
        "flicker_plt",
        "unbalance",
        "signalling",
        "harmonics_u",
        "harmonics_i",
        "interharmonics_u",
        "interharmonics_i",
        "monitor_frequency",
        "monitor_voltage",
        "monitor_unbalance",
        "monitor_harmonics",
        "monitor_flicker_pst",
        "monitor_flicker_plt",
        "events",
        "transients",
        "system_log",
    };
    return names;
}

QByteArray inputName(int joinMode, int channel, bool isVoltage)
{
    static constexpr const char *kNames[] = { "L1", "L2", "L3", "N" };
    const ChannelSet *wiring = channelSet(joinMode);
    const QByteArray name = wiring && isVoltage ? wiring->caption(channel).toLatin1() : QByteArray();
    return name.isEmpty() ? QByteArray(kNames[qBound(0, channel, kInputs - 1)]) : name;
}

BlockColumns::BlockColumns(int joinMode, const std::function<bool(quint32)> &isThere) : m_places(blockKinds().size())
{
    const ChannelSet *wiring = channelSet(joinMode);
    std::vector<PlacedColumns> columns(std::size_t(recordTableNames().size()));
    const auto columnsOf = [&](const BlockKind &kind) -> auto &
    {
        return columns[std::size_t(recordTableNames().indexOf(kind.table))];
    };
    for (const BlockKind &kind : blockKinds()) {
        if (!isThere(kind.type))
            continue;
        auto &table = columnsOf(kind);
        eachValue(kind, wiring, [&](bool has, const ColumnKey &key, const BlockField &field, int row) {
            if (has)
                table[key].column = { field.quantity, kind.statistic, channelName(kind, field, joinMode, row),
                                      field.unit,     kind.cells,     field.order };
        });
    }
    std::vector<int> numbers(columns.size(), -1);
    for (std::size_t t = 0; t < columns.size(); ++t) {
        if (columns[t].empty())
            continue;
        RecordTable table { recordTableNames().at(int(t)), {} };
        for (auto &entry : columns[t]) {
            entry.second.place = table.columns.size();
            table.columns.append(entry.second.column);
        }
        numbers[t] = m_tables.size();
        m_tables.append(table);
    }
    for (std::size_t k = 0; k < blockKinds().size(); ++k) {
        const BlockKind &kind = blockKinds()[k];
        if (!isThere(kind.type))
            continue;
        const auto &table = columnsOf(kind);
        m_places[k].table = numbers[std::size_t(recordTableNames().indexOf(kind.table))];
        eachValue(kind, wiring, [&](bool has, const ColumnKey &key, const BlockField &, int) {
            m_places[k].cells.push_back(has ? table.at(key).place : -1);
        });
    }
}
