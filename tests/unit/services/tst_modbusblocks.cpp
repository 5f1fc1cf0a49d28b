#include "model/displayrecords.h"
#include "services/modbusblocks.h"
#include "unit/documentpage.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

// Records in, registers out. Registers are read the way a master reads them: 16 bits at a time, low half first.

class TstModbusBlocks : public QObject
{
    Q_OBJECT

private slots:
    void blocksStandWhereTheMapSays();
    void vifHoldsGroupsOfFourChannels();
    void powerHoldsSixQuantitiesAndThreeEnergies();
    void spectrumHoldsTwoValuesAndFiftyOrdersOfEachPhase();
    void interharmonicsOfL1StandAtRegister312AndNothingBehindTheBlock();
    void flickerGroupsLeaveTheFourthPlaceUnused();
    void unbalanceHoldsRatiosAndPhasors();
    void settingsOverwriteTheirPlacesInTheLimitSet();
    void clampBelowOneMillivoltKeepsTheLimitBytes();
    void scopeHoldsEveryTenthSampleAndItsScale();
    void transientHoldsTheFirst409Samples();
    void transientTimeBeyondAllIntegersIsSentAsZero();
    void eventRowsStandTenRegistersApart();
    void oddFloatsPassUnchanged();
    void pageTellsTheSameMap();
};

namespace {

/// Registers of a block behind its head.
template <typename Block> std::vector<quint16> registers(const Block &block)
{
    std::vector<quint16> list((sizeof block - sizeof(__modbus_data_header)) / 2);
    std::memcpy(list.data(), reinterpret_cast<const char *>(&block) + sizeof(__modbus_data_header), 2 * list.size());
    return list;
}

quint32 long32(const std::vector<quint16> &list, size_t at)
{
    return quint32(list.at(at)) | quint32(list.at(at + 1)) << 16;
}

float real(const std::vector<quint16> &list, size_t at)
{
    const quint32 bits = long32(list, at);
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// A record in which each float differs: word n holds n + 0.5, but the energies and the time.
std::unique_ptr<__datagram_aggregation> numberedRecord()
{
    auto record = std::make_unique<__datagram_aggregation>();
    auto *words = reinterpret_cast<char *>(record.get());
    for (size_t n = 2; n < sizeof(__datagram_aggregation) / 4; ++n) {
        const float value = float(n) + 0.5f;
        std::memcpy(words + 4 * n, &value, sizeof value);
    }
    for (int row = 0; row < 4; ++row)
        record->energy[row] = { 1000.25 + row, 2000.25 + row, 3000.25 + row };
    return record;
}

} // namespace

void TstModbusBlocks::blocksStandWhereTheMapSays()
{
    const quint32 expected[][2]
        = { { 0, 50 },     { 100, 172 },   { 1000, 612 }, { 2000, 612 },   { 3000, 24 },   { 3500, 48 },
            { 11000, 10 }, { 11100, 232 }, { 5000, 100 }, { 12000, 3288 }, { 20000, 1658 } };
    const auto &blocks = modbusBlocks();
    QCOMPARE(blocks.size(), std::size(expected));
    for (size_t i = 0; i < blocks.size(); ++i) {
        QCOMPARE(blocks[i]->start, expected[i][0]);
        QCOMPARE(blocks[i]->length, expected[i][1]);
    }
}

void TstModbusBlocks::vifHoldsGroupsOfFourChannels()
{
    const auto record = numberedRecord();
    ModbusVif block;
    fillModbus(&block, *record);
    const auto r = registers(block);
    QCOMPARE(real(r, 0), 2.5f); // frequency: word 2
    // A channel has 13 words from word 3: voltage, peak, offset, crest, current, peak, offset, crest.
    for (size_t c = 0; c < 4; ++c) {
        const float first = 3.5f + 13 * float(c);
        QCOMPARE(real(r, 2 + 2 * c), first);
        QCOMPARE(real(r, 10 + 2 * c), first + 1);
        QCOMPARE(real(r, 18 + 2 * c), first + 3);
        QCOMPARE(real(r, 26 + 2 * c), first + 4);
        QCOMPARE(real(r, 34 + 2 * c), first + 5);
        QCOMPARE(real(r, 42 + 2 * c), first + 7);
    }
}

void TstModbusBlocks::powerHoldsSixQuantitiesAndThreeEnergies()
{
    const auto record = numberedRecord();
    ModbusPower block;
    fillModbus(&block, *record);
    const auto r = registers(block);
    for (size_t q = 0; q < 6; ++q) {
        for (size_t c = 0; c < 4; ++c)
            QCOMPARE(real(r, 8 * q + 2 * c), 55.5f + float(6 * c + q)); // six words a row from word 55
    }
    for (size_t c = 0; c < 4; ++c) {
        QCOMPARE(real(r, 48 + 2 * c), 1000.25f + float(c));
        QCOMPARE(real(r, 56 + 2 * c), 2000.25f + float(c));
        QCOMPARE(real(r, 64 + 2 * c), 3000.25f + float(c));
    }
    for (size_t i = 72; i < 172; ++i)
        QCOMPARE(r[i], quint16(0));
}

void TstModbusBlocks::spectrumHoldsTwoValuesAndFiftyOrdersOfEachPhase()
{
    const auto record = numberedRecord();
    ModbusSpectrum volts = { { 1000, 612 } };
    ModbusSpectrum amps = { { 2000, 612 } };
    fillModbus(&volts, *record, true);
    fillModbus(&amps, *record, false);
    const auto u = registers(volts);
    const auto i = registers(amps);
    for (size_t p = 0; p < 3; ++p) {
        const float channel = 3.5f + 13 * float(p);
        const float spectrum = 104.5f + 1202 * float(p);
        QCOMPARE(real(u, 104 * p), channel); // r.m.s. voltage
        QCOMPARE(real(u, 104 * p + 2), spectrum); // root-sum-square of the voltage
        QCOMPARE(real(i, 104 * p), channel + 4); // r.m.s. current
        QCOMPARE(real(i, 104 * p + 2), spectrum + 1);
        for (size_t h = 0; h < 50; ++h) {
            QCOMPARE(real(u, 104 * p + 4 + 2 * h), spectrum + 302 + 3 * float(h));
            QCOMPARE(real(i, 104 * p + 4 + 2 * h), spectrum + 902 + 3 * float(h));
        }
    }
}

void TstModbusBlocks::interharmonicsOfL1StandAtRegister312AndNothingBehindTheBlock()
{
    const auto record = numberedRecord();
    ModbusSpectrum volts = { { 1000, 612 } };
    fillModbus(&volts, *record, true);
    const auto r = registers(volts);
    QCOMPARE(r.size(), size_t(612));
    for (size_t h = 0; h < 15; ++h)
        QCOMPARE(real(r, 312 + 2 * h), 106.5f + 3 * float(h));
    for (size_t i = 342; i < 612; ++i)
        QCOMPARE(r[i], quint16(0));
}

void TstModbusBlocks::flickerGroupsLeaveTheFourthPlaceUnused()
{
    __flicker_data data;
    for (int p = 0; p < 3; ++p) {
        data.flickerMax[p] = 1.0f + float(p);
        data.pst[p] = 10.0f + float(p);
        data.plt[p] = 20.0f + float(p);
    }
    ModbusFlicker block;
    fillModbus(&block, data);
    const auto r = registers(block);
    for (size_t p = 0; p < 3; ++p) {
        QCOMPARE(real(r, 2 * p), 1.0f + float(p));
        QCOMPARE(real(r, 8 + 2 * p), 10.0f + float(p));
        QCOMPARE(real(r, 16 + 2 * p), 20.0f + float(p));
    }
    for (const size_t unused : { 6, 14, 22 })
        QCOMPARE(long32(r, unused), 0u);
}

void TstModbusBlocks::unbalanceHoldsRatiosAndPhasors()
{
    const auto record = numberedRecord();
    ModbusUnbalance block;
    fillModbus(&block, *record);
    const auto r = registers(block);
    QCOMPARE(real(r, 0), 4914.5f);
    QCOMPARE(real(r, 2), 4916.5f);
    QCOMPARE(real(r, 4), 4919.5f);
    QCOMPARE(real(r, 6), 4921.5f);
    for (size_t g = 0; g < 5; ++g) {
        for (size_t c = 0; c < 4; ++c)
            QCOMPARE(real(r, 8 + 8 * g + 2 * c), 11.5f + float(13 * c + g)); // words 8 to 12 of a channel's 13
    }
}

namespace {

monitor_limit numberedLimits()
{
    monitor_limit limits;
    auto *words = reinterpret_cast<char *>(&limits);
    for (quint32 n = 0; n < sizeof limits / 4; ++n) {
        const quint32 word = 0x00010000u * (2 * n + 1) + 2 * n; // register k of the set holds k
        std::memcpy(words + 4 * n, &word, sizeof word);
    }
    return limits;
}

ModbusSettings someSettings()
{
    return { { 2, 2, 6 }, 4, 60.0f, 2300.0f, 3000, 10000, { 5, 2 }, { 7, 3 } };
}

} // namespace

void TstModbusBlocks::settingsOverwriteTheirPlacesInTheLimitSet()
{
    ModbusSwInfo block;
    fillModbus(&block, numberedLimits(), someSettings());
    const auto r = registers(block);
    for (size_t i = 0; i < 232; ++i) {
        if (i < 200 || (i >= 208 && i < 224))
            QCOMPARE(r[i], quint16(i));
    }
    QCOMPARE(r[200], quint16(2));
    QCOMPARE(r[201], quint16(2));
    QCOMPARE(r[202], quint16(6));
    QCOMPARE(r[203], quint16(4));
    QCOMPARE(real(r, 204), 60.0f);
    QCOMPARE(real(r, 206), 2300.0f);
    QCOMPARE(long32(r, 224), 3000u);
    QCOMPARE(r[226], quint16(10));
    QCOMPARE(r[227], quint16(1));
    QCOMPARE(r[228], quint16(5));
    QCOMPARE(r[229], quint16(2));
    QCOMPARE(r[230], quint16(7));
    QCOMPARE(r[231], quint16(3));
}

void TstModbusBlocks::clampBelowOneMillivoltKeepsTheLimitBytes()
{
    ModbusSettings settings = someSettings();
    settings.clampRatio = 999;
    ModbusSwInfo block;
    fillModbus(&block, numberedLimits(), settings);
    QCOMPARE(registers(block)[226], quint16(226));
    QCOMPARE(registers(block)[227], quint16(227));
    settings.clampRatio = 1000;
    fillModbus(&block, numberedLimits(), settings);
    QCOMPARE(registers(block)[226], quint16(1));
    QCOMPARE(registers(block)[227], quint16(1));
}

void TstModbusBlocks::scopeHoldsEveryTenthSampleAndItsScale()
{
    auto record = std::make_unique<__datagram_wave>();
    for (int c = 0; c < 4; ++c) {
        for (int i = 0; i < kWaveSamples; ++i) {
            record->voltage[c][i] = qint16(i + 5000 * c);
            record->current[c][i] = qint16(-i - 5000 * c);
        }
    }
    float wvi[12];
    for (int i = 0; i < 12; ++i)
        wvi[i] = 3276.8f * float(i + 1); // times 10 / 32768: i + 1
    ModbusScope block;
    fillModbus(&block, *record, wvi);
    const auto r = registers(block);
    QCOMPARE(r.size(), size_t(3288));
    for (size_t c = 0; c < 4; ++c) {
        QCOMPARE(real(r, 2 * c), float(5 + c));
        QCOMPARE(real(r, 8 + 2 * c), float(9 + c));
        for (size_t i = 0; i < 409; ++i) {
            QCOMPARE(qint16(r[16 + 409 * c + i]), qint16(10 * i + 5000 * c));
            QCOMPARE(qint16(r[1652 + 409 * c + i]), qint16(-qint64(10 * i + 5000 * c)));
        }
    }
}

void TstModbusBlocks::transientHoldsTheFirst409Samples()
{
    __trans_data record = {};
    record.number = 7;
    record.time = 1.5e12 + 0.75;
    for (int c = 0; c < 4; ++c) {
        record.rms[c] = 230.0f + float(c);
        for (int i = 0; i < 600; ++i)
            record.samples[c][i] = qint16(1000 * c + i);
    }
    float wvi[12] = {};
    wvi[4] = 32768.0f;
    wvi[7] = 16384.0f;
    ModbusTransient block;
    fillModbus(&block, record, wvi);
    const auto r = registers(block);
    QCOMPARE(r.size(), size_t(1658));
    QCOMPARE(quint64(long32(r, 0)) | quint64(long32(r, 2)) << 32, quint64(1'500'000'000'000));
    QCOMPARE(long32(r, 4), 7u);
    QCOMPARE(real(r, 6), 10.0f);
    QCOMPARE(real(r, 12), 5.0f);
    for (size_t c = 0; c < 4; ++c) {
        QCOMPARE(real(r, 14 + 2 * c), 230.0f + float(c));
        for (size_t i = 0; i < 409; ++i)
            QCOMPARE(qint16(r[22 + 409 * c + i]), qint16(1000 * c + i));
    }
}

void TstModbusBlocks::transientTimeBeyondAllIntegersIsSentAsZero()
{
    const double odd[] = { std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -1e300 };
    const float wvi[12] = {};
    for (const double time : odd) {
        __trans_data record = {};
        record.time = time;
        ModbusTransient block;
        block.time = 5;
        fillModbus(&block, record, wvi);
        QCOMPARE(qint64(block.time), qint64(0));
    }
}

void TstModbusBlocks::eventRowsStandTenRegistersApart()
{
    EventList events;
    for (int i = 0; i < 12; ++i) {
        PQAEventItem event;
        event.finished = i % 2;
        event.type = 27;
        event.channel = i % 3;
        event.startSeconds = 0x10002u + quint32(i);
        event.value = 100.0f + float(i);
        event.duration = -i;
        events.append(event);
    }
    ModbusEventTable table;
    table.fill(events);
    const auto r = registers(table);
    QCOMPARE(r.size(), size_t(100));
    for (size_t row = 0; row < 10; ++row) {
        const size_t i = row + 2;
        QCOMPARE(r[10 * row], quint16(1));
        QCOMPARE(r[10 * row + 1], quint16(i % 2));
        QCOMPARE(r[10 * row + 2], quint16(27));
        QCOMPARE(r[10 * row + 3], quint16(i % 3));
        QCOMPARE(long32(r, 10 * row + 4), 0x10002u + quint32(i));
        QCOMPARE(real(r, 10 * row + 6), 100.0f + float(i));
        QCOMPARE(qint32(long32(r, 10 * row + 8)), -qint32(i));
    }
}

void TstModbusBlocks::oddFloatsPassUnchanged()
{
    auto record = std::make_unique<__datagram_aggregation>();
    std::memset(static_cast<void *>(record.get()), 0xFF, sizeof *record); // every float a NaN
    ModbusVif vif;
    fillModbus(&vif, *record);
    for (const quint16 value : registers(vif))
        QCOMPARE(value, quint16(0xFFFF));
    ModbusPower power;
    record->energy[0] = { 1e300, -1e300, std::numeric_limits<double>::denorm_min() };
    fillModbus(&power, *record);
    QVERIFY(std::isinf(power.energy[0][0]));
    QCOMPARE(power.energy[2][0], 0.0f);
    record->frequency = std::numeric_limits<float>::denorm_min();
    record->channel[0].voltage = -std::numeric_limits<float>::infinity(); // 0xFF800000
    fillModbus(&vif, *record);
    QCOMPARE(long32(registers(vif), 0), 1u);
    QCOMPARE(long32(registers(vif), 2), 0xFF800000u);
}

namespace {

/// A row of the map: address, type and field.
struct MapRow
{
    int address;
    QString type;
    QString field;
    bool operator==(const MapRow &other) const
    {
        return address == other.address && type == other.type && field == other.field;
    }
};

template <typename T> struct TypeName;
template <> struct TypeName<float>
{
    static constexpr const char *name = "float";
};
template <> struct TypeName<quint16>
{
    static constexpr const char *name = "uint16";
};
template <> struct TypeName<qint16>
{
    static constexpr const char *name = "int16";
};
template <> struct TypeName<qint32>
{
    static constexpr const char *name = "int32";
};
template <> struct TypeName<quint32>
{
    static constexpr const char *name = "uint32";
};
template <> struct TypeName<qint64>
{
    static constexpr const char *name = "int64";
};
template <> struct TypeName<ModbusEventRow>
{
    static constexpr const char *name = "event";
};

template <typename T> QString typeText()
{
    using Element = std::remove_all_extents_t<T>;
    QString text = QString::fromLatin1(TypeName<Element>::name);
    if constexpr (std::rank_v < T >> 0)
        text += QStringLiteral("[%1]").arg(std::extent_v<T, 0>);
    if constexpr (std::rank_v < T >> 1)
        text += QStringLiteral("[%1]").arg(std::extent_v<T, 1>);
    return text;
}

#define MAP_ROW(Block, start, member, field)                                                                           \
    MapRow                                                                                                             \
    {                                                                                                                  \
        int((start) + (offsetof(Block, member) - sizeof(__modbus_data_header)) / 2),                                   \
            typeText<decltype(Block::member)>(), QStringLiteral(field)                                                 \
    }

QList<MapRow> spectrumRows(int start, const QString &name)
{
    QList<MapRow> rows;
    for (int p = 0; p < 3; ++p) {
        const int phase = start + int(p * sizeof(ModbusSpectrum::Phase) / 2);
        const QString prefix = QStringLiteral("%1.L%2.").arg(name).arg(p + 1);
        rows << MapRow { phase, QStringLiteral("float"), prefix + QStringLiteral("rms") }
             << MapRow { phase + int(offsetof(ModbusSpectrum::Phase, distortion) / 2), QStringLiteral("float"),
                         prefix + QStringLiteral("distortion") }
             << MapRow { phase + int(offsetof(ModbusSpectrum::Phase, harmonic) / 2),
                         typeText<decltype(ModbusSpectrum::Phase::harmonic)>(), prefix + QStringLiteral("harmonic") };
    }
    MapRow inter = MAP_ROW(ModbusSpectrum, start, inter, "");
    inter.field = name + QStringLiteral(".inter");
    MapRow unused = MAP_ROW(ModbusSpectrum, start, unused, "");
    unused.field = name + QStringLiteral(".unused");
    return rows << inter << unused;
}

QList<MapRow> powerRows()
{
    const int start = int(mb_data_power.head.start);
    const QString fields[] = { "active",  "apparent",     "reactive",       "factor",        "fundamentalFactor",
                               "tangent", "activeEnergy", "apparentEnergy", "reactiveEnergy" };
    QList<MapRow> rows;
    for (int i = 0; i < 9; ++i)
        rows << MapRow { start + 8 * i, QStringLiteral("float[4]"), QStringLiteral("power.") + fields[i] };
    return rows << MAP_ROW(ModbusPower, start, reserved, "power.reserved");
}

QList<MapRow> mapOfTheCode()
{
    QList<MapRow> rows;
    rows << MAP_ROW(ModbusVif, mb_data_vif.head.start, frequency, "vif.frequency")
         << MAP_ROW(ModbusVif, mb_data_vif.head.start, voltage, "vif.voltage")
         << MAP_ROW(ModbusVif, mb_data_vif.head.start, voltagePeak, "vif.voltagePeak")
         << MAP_ROW(ModbusVif, mb_data_vif.head.start, voltageCrest, "vif.voltageCrest")
         << MAP_ROW(ModbusVif, mb_data_vif.head.start, current, "vif.current")
         << MAP_ROW(ModbusVif, mb_data_vif.head.start, currentPeak, "vif.currentPeak")
         << MAP_ROW(ModbusVif, mb_data_vif.head.start, currentCrest, "vif.currentCrest");
    rows << powerRows();
    rows << spectrumRows(int(mb_data_ufft.head.start), QStringLiteral("ufft"))
         << spectrumRows(int(mb_data_ifft.head.start), QStringLiteral("ifft"));
    rows << MAP_ROW(ModbusFlicker, mb_data_flicker.head.start, maximum, "flicker.maximum")
         << MAP_ROW(ModbusFlicker, mb_data_flicker.head.start, pst, "flicker.pst")
         << MAP_ROW(ModbusFlicker, mb_data_flicker.head.start, plt, "flicker.plt");
    rows << MAP_ROW(ModbusUnbalance, mb_data_unbalance.head.start, ratio, "unbalance.ratio")
         << MAP_ROW(ModbusUnbalance, mb_data_unbalance.head.start, voltage, "unbalance.voltage")
         << MAP_ROW(ModbusUnbalance, mb_data_unbalance.head.start, current, "unbalance.current")
         << MAP_ROW(ModbusUnbalance, mb_data_unbalance.head.start, voltageAngle, "unbalance.voltageAngle")
         << MAP_ROW(ModbusUnbalance, mb_data_unbalance.head.start, currentAngle, "unbalance.currentAngle")
         << MAP_ROW(ModbusUnbalance, mb_data_unbalance.head.start, angleDifference, "unbalance.angleDifference");
    rows << MAP_ROW(ModbusEventTable, mb_data_events.head.start, row, "events.row");
    rows << MAP_ROW(ModbusHwInfo, mb_data_hwinfo.head.start, reserved, "hwinfo.reserved");
    const quint32 info = mb_data_swinfo.head.start;
    rows << MAP_ROW(ModbusSwInfo, info, limits, "swinfo.limits")
         << MAP_ROW(ModbusSwInfo, info, version, "swinfo.version")
         << MAP_ROW(ModbusSwInfo, info, joinMode, "swinfo.joinMode")
         << MAP_ROW(ModbusSwInfo, info, nominalFrequency, "swinfo.nominalFrequency")
         << MAP_ROW(ModbusSwInfo, info, nominalVolt, "swinfo.nominalVolt")
         << MAP_ROW(ModbusSwInfo, info, limitsToo, "swinfo.limitsToo")
         << MAP_ROW(ModbusSwInfo, info, clampRange, "swinfo.clampRange")
         << MAP_ROW(ModbusSwInfo, info, clampRatio, "swinfo.clampRatio")
         << MAP_ROW(ModbusSwInfo, info, clampRatioUnit, "swinfo.clampRatioUnit")
         << MAP_ROW(ModbusSwInfo, info, currentRatio, "swinfo.currentRatio")
         << MAP_ROW(ModbusSwInfo, info, voltageRatio, "swinfo.voltageRatio");
    rows << MAP_ROW(ModbusScope, mb_data_scope.head.start, voltageScale, "scope.voltageScale")
         << MAP_ROW(ModbusScope, mb_data_scope.head.start, currentScale, "scope.currentScale")
         << MAP_ROW(ModbusScope, mb_data_scope.head.start, voltage, "scope.voltage")
         << MAP_ROW(ModbusScope, mb_data_scope.head.start, current, "scope.current");
    rows << MAP_ROW(ModbusTransient, mb_data_trans.head.start, time, "trans.time")
         << MAP_ROW(ModbusTransient, mb_data_trans.head.start, number, "trans.number")
         << MAP_ROW(ModbusTransient, mb_data_trans.head.start, scale, "trans.scale")
         << MAP_ROW(ModbusTransient, mb_data_trans.head.start, rms, "trans.rms")
         << MAP_ROW(ModbusTransient, mb_data_trans.head.start, samples, "trans.samples");
    return rows;
}

} // namespace

void TstModbusBlocks::pageTellsTheSameMap()
{
    const QString text = DocumentPage(QStringLiteral("modbus.md")).text();
    const QString section
        = text.section(QStringLiteral("## Input registers"), 1).section(QStringLiteral("\n### "), 0, 0);
    static const QRegularExpression line(QStringLiteral("^\\| (\\d+) \\| ([^|]+) \\| [^|]*\\| ([^|]+) \\|"),
                                         QRegularExpression::MultilineOption);
    QList<MapRow> documented;
    for (auto match = line.globalMatch(section); match.hasNext();) {
        const auto row = match.next();
        documented.append({ row.captured(1).toInt(), row.captured(2).trimmed(), row.captured(3).trimmed() });
    }
    const QList<MapRow> code = mapOfTheCode();
    for (int i = 0; i < qMin(documented.size(), code.size()); ++i) {
        const QString tells
            = QStringLiteral("%1 %2 %3").arg(documented[i].address).arg(documented[i].type, documented[i].field);
        const QString is = QStringLiteral("%1 %2 %3").arg(code[i].address).arg(code[i].type, code[i].field);
        QCOMPARE(tells, is);
    }
    QCOMPARE(documented.size(), code.size());
}

QTEST_GUILESS_MAIN(TstModbusBlocks)
#include "tst_modbusblocks.moc"
