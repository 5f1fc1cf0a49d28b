#include "record/tables/blockcheck.h"

#include "model/channelset.h"
#include "record/tables/blockcolumns.h"

#include <cstring>

namespace {

template <typename Value> Value valueAt(const char *bytes)
{
    Value value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

constexpr quint32 kNoBound = 0xFFFFFFFF;
constexpr quint32 kTransientBytes = 16 + BlockCheck::kTransientSamples * 2;
constexpr quint32 kWaveTimeBytes = 8;
constexpr quint32 kWaveInputBytes = BlockCheck::kWaveSamples * 2;

int inputsOf(const ChannelSet *wiring)
{
    int inputs = 0;
    for (int channel = 0; channel < 4; ++channel)
        inputs += !wiring || wiring->has(channel) ? 2 : 0;
    return inputs;
}

} // namespace

int BlockCheck::placeOf(quint32 type)
{
    const int low = int(type & 0xFF);
    switch (type >> 8) {
    case 0xA10000:
        return low;
    case 0xA10010:
        return kPage + low;
    case 0xA10100:
        return 2 * kPage + low;
    default:
        return 3 * kPage;
    }
}

void BlockCheck::set(quint32 type, BlockRole role, Time time, quint32 least, quint32 most)
{
    m_rules[std::size_t(placeOf(type))] = { role, time, least, most };
}

void BlockCheck::setWiring(int joinMode)
{
    m_rules.fill({});
    const ChannelSet *wiring = channelSet(joinMode);
    for (quint32 type : { Pqa2InstrumentInfo, Pqa2SystemSetting })
        set(type, BlockRole::Opening, Time::None, 0, kNoBound);
    set(Pqa2ChannelFactor, BlockRole::Opening, Time::None, 48, 48);
    set(Pqa2StartTime, BlockRole::Start, Time::Seconds, 4, 4);
    set(Pqa2EndTime, BlockRole::End, Time::Seconds, 4, 4);
    set(Pqa2SystemLog, BlockRole::Log, Time::Milliseconds, 8, kNoBound);
    set(Pqa2Transient, BlockRole::Transient, Time::Double, kTransientBytes, kTransientBytes);
    const quint32 waveBytes = kWaveTimeBytes + quint32(inputsOf(wiring)) * kWaveInputBytes;
    set(Pqa2EventWave, BlockRole::EventWave, Time::Double, wiring ? waveBytes : kWaveTimeBytes + 2 * kWaveInputBytes,
        waveBytes);
    set(Pqa2EventHead, BlockRole::EventHead, Time::EventStart, sizeof(EventHead), sizeof(EventHead));
    set(Pqa2EventCurves, BlockRole::EventCurves, Time::EventStart, 0, kLongestCurves);
    for (const BlockKind &kind : blockKinds()) {
        const quint32 bytes = quint32(blockBytes(kind, joinMode));
        set(kind.type, BlockRole::Values, kind.timeBytes == 4 ? Time::Seconds : Time::Milliseconds, bytes, bytes);
    }
}

const char *BlockCheck::problem(const Pqa2Block &block, const char *look) const
{
    const Rule &rule = this->rule(block.type);
    if (block.size < rule.least || block.size > rule.most)
        return "a block has another length than its kind";
    if (rule.time == Time::None || block.size == 0)
        return nullptr;
    if (rule.role == BlockRole::EventCurves && block.size < quint32(kShortestCurves))
        return "a block has another length than its kind";
    if (!look)
        return "a block cannot be read";
    const bool isTime = rule.time == Time::Double ? BlockCheck::isTime(valueAt<double>(look))
                                                  : BlockCheck::isTime(timeOf(block, look));
    return isTime ? nullptr : "the time of a block is none";
}

qint64 BlockCheck::timeOf(const Pqa2Block &block, const char *look) const
{
    if (!look || block.size < 4)
        return -1;
    switch (rule(block.type).time) {
    case Time::None:
        return -1;
    case Time::Seconds:
        return qint64(valueAt<quint32>(look)) * 1000;
    case Time::Milliseconds:
        return valueAt<qint64>(look);
    case Time::Double:
        return qint64(valueAt<double>(look));
    case Time::EventStart:
        return valueAt<qint64>(look + offsetof(EventHead, startTime));
    }
    return -1;
}
