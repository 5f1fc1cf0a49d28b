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
    set(Pqa2ChannelFactor, BlockRole::Opening, Time::None, 0, 48); // empty where the writer was not told of them
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

BlockCheck::Finding BlockCheck::timed(BlockRole role, Time time, const Pqa2Block &block, const char *look) const
{
    if (role == BlockRole::EventCurves && block.size < quint32(kShortestCurves))
        return { role, "a block has another length than its kind", -1 };
    if (!look)
        return { role, "a block cannot be read", -1 };
    qint64 ms = -1;
    switch (time) {
    case Time::None:
        break;
    case Time::Seconds:
        ms = qint64(valueAt<quint32>(look)) * 1000;
        break;
    case Time::Milliseconds:
        ms = valueAt<qint64>(look);
        break;
    case Time::Double: {
        const double moment = valueAt<double>(look);
        ms = isTime(moment) ? qint64(moment) : -1;
        break;
    }
    case Time::EventStart:
        ms = valueAt<qint64>(look + offsetof(EventHead, startTime));
        break;
    }
    if (!isTime(ms))
        return { role, "the time of a block is none", -1 };
    return { role, nullptr, ms };
}
