#include "record/tables/pqa2merge.h"

#include "model/channelset.h"
#include "model/datagramrecords.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

constexpr double kSampleRate = 20480; // samples of one input per second, whatever the frequency
constexpr qint64 kProgressStep = 1024; // things handed on

QSet<quint32> typesOf(const QVector<RecordFileReport> &files)
{
    QSet<quint32> types;
    for (const RecordFileReport &file : files) {
        for (const RecordBlockCount &count : file.blocks)
            types.insert(count.type);
    }
    return types;
}

template <typename Value> Value valueAt(const QByteArray &bytes, int at)
{
    Value value;
    std::memcpy(&value, bytes.constData() + at, sizeof value);
    return value;
}

quint8 curveMask(int joinMode)
{
    const ChannelSet *wiring = channelSet(joinMode);
    return wiring ? wiring->curveMask : 0b0111;
}

} // namespace

Pqa2Merge::Pqa2Merge(const RecordFacts &facts, const QVector<Pqa2Part> &parts, const QVector<RecordFileReport> &files,
                     const BlockCheck &check, const RecordEvents &events)
    : m_facts(facts), m_parts(parts), m_check(check), m_events(events),
      m_columns(facts.joinMode, [types = typesOf(files)](quint32 type) { return types.contains(type); })
{
    std::vector<std::vector<BlockStream::Part>> files_;
    for (int i = 0; i < parts.size(); ++i) {
        if (i == 0 || parts.at(i - 1).file != parts.at(i).file)
            files_.emplace_back();
        files_.back().push_back({ i, parts.at(i).path, files.at(i).state == RecordState::Broken });
    }
    for (auto &file : files_)
        m_streams.push_back(std::make_unique<BlockStream>(std::move(file), m_columns, m_check));
}

bool Pqa2Merge::read(RecordSink &sink, const RecordProgress &progress, qint64 total)
{
    RecordOutput out(sink);
    return sink.begin(m_facts) && readEvents(out) && readStreams(out, progress, total) && sink.end(m_facts);
}

bool Pqa2Merge::readEvents(RecordOutput &out)
{
    const RecordTable table = eventTable();
    std::unique_ptr<Pqa2Walk> walk;
    int part = -1;
    int number = 0;
    for (const RecordEvents::Place &place : m_events.places()) {
        if (place.part != part)
            walk = std::make_unique<Pqa2Walk>(m_parts.at(part = place.part).path);
        RecordedEvent event;
        event.number = ++number;
        event.item = eventOf(walk->copy(place.block, 0, place.block.size), curveMask(m_facts.joinMode));
        // Without its bytes, which are gone since, what was seen of it has to do.
        if (event.item.startTime != place.head.startTime)
            event.item = eventOf(QByteArray(reinterpret_cast<const char *>(&place.head), sizeof place.head), 0);
        const EventCells cells = eventCells(event, m_facts.joinMode);
        if (!out.row(table, place.head.startTime, cells.numbers.data(), cells.texts.data()) || !out.sink().event(event))
            return false;
    }
    return true;
}

/// The file whose next thing is the oldest comes first; where two tell of the same moment, their rows meet.
bool Pqa2Merge::readStreams(RecordOutput &out, const RecordProgress &progress, qint64 total)
{
    for (qint64 count = 0;; ++count) {
        int oldest = -1;
        for (int i = 0; i < int(m_streams.size()); ++i) {
            const StreamItem *item = m_streams[std::size_t(i)]->head();
            if (item && (oldest < 0 || item->time < m_streams[std::size_t(oldest)]->head()->time))
                oldest = i;
        }
        if (oldest < 0)
            return true;
        BlockStream &stream = *m_streams[std::size_t(oldest)];
        StreamItem item = std::move(*stream.head());
        stream.take();
        bool taken = false;
        switch (item.kind) {
        case StreamItem::Row:
            taken = takeRow(out, &item, oldest);
            break;
        case StreamItem::Log: {
            const QByteArray text = QString::fromLatin1(item.payload.mid(8)).toUtf8();
            taken = out.row(logTable(), item.time, nullptr, &text);
            break;
        }
        case StreamItem::Transient:
            taken = takeTransient(out, item);
            break;
        case StreamItem::EventWave:
            taken = takeEventWave(out, item);
            break;
        }
        if (!taken)
            return false;
        if (progress && count % kProgressStep == 0) {
            qint64 done = 0;
            for (const auto &each : m_streams)
                done += each->done();
            if (!progress(done, total))
                return false;
        }
    }
}

bool Pqa2Merge::takeRow(RecordOutput &out, StreamItem *item, int stream)
{
    for (std::size_t i = std::size_t(stream) + 1; i < m_streams.size(); ++i) {
        const StreamItem *other = m_streams[i]->head();
        if (!other || other->kind != StreamItem::Row || other->time != item->time || other->table != item->table)
            continue;
        for (std::size_t cell = 0; cell < item->numbers.size(); ++cell) {
            if (!std::isnan(other->numbers[cell]))
                item->numbers[cell] = other->numbers[cell];
        }
        m_streams[i]->take();
    }
    return out.row(m_columns.tables().at(item->table), item->time, item->numbers.data());
}

RecordedWaveform::Channel Pqa2Merge::channel(const Pqa2Part &part, int input, bool isVoltage) const
{
    const QByteArray name = inputName(m_facts.joinMode, input, isVoltage);
    const float factor = isVoltage ? part.factors.volts[input] : part.factors.amperes[input];
    return { (isVoltage ? "U_" : "I_") + name, name, isVoltage ? "V" : "A", RecordedWaveform::factorOf(factor) };
}

bool Pqa2Merge::takeTransient(RecordOutput &out, const StreamItem &item)
{
    constexpr int kHead = 16; // bytes in front of the samples
    constexpr int kSamples = BlockCheck::kTransientSamples;
    const quint32 position = valueAt<quint32>(item.payload, 12);
    const int input = qBound(0, int(position >> 24) - 1, kChannels - 1);
    RecordedWaveform waveform;
    waveform.origin = RecordedWaveform::Transient;
    waveform.start = valueAt<double>(item.payload, 0);
    waveform.trigger = qMin<qint64>(position & 0xFFFFFF, kSamples - 1);
    waveform.channels = { channel(m_parts.at(item.part), input, true) };
    const float factor = waveform.channels.at(0).factor;
    float extreme = std::isnan(factor) ? factor : 0;
    for (int i = 0; i < kSamples; ++i) {
        const float value = valueAt<qint16>(item.payload, kHead + 2 * i) * factor;
        extreme = std::abs(value) > std::abs(extreme) ? value : extreme;
    }
    waveform.number = out.nextWaveform();
    const double numbers[] = { double(waveform.number), double(extreme), double(valueAt<float>(item.payload, 8)) };
    const double moment = waveform.start + double(waveform.trigger) * 1000 / kSampleRate;
    return out.row(transientTable(), qint64(std::floor(moment)), numbers, &waveform.channels.at(0).channel)
        && putWaveform(out, &waveform, item.payload.constData() + kHead, kSamples);
}

bool Pqa2Merge::takeEventWave(RecordOutput &out, const StreamItem &item)
{
    constexpr int kHead = 8; // bytes in front of the samples
    constexpr int kSamples = BlockCheck::kWaveSamples;
    RecordedWaveform waveform;
    waveform.origin = RecordedWaveform::Event;
    waveform.number = out.nextWaveform();
    waveform.start = valueAt<double>(item.payload, 0);
    waveform.event = m_events.ofWave(waveform.start, kSamples * 1000 / kSampleRate);
    if (waveform.event) {
        const double behind = double(m_events.startOf(waveform.event)) - waveform.start;
        waveform.trigger = qBound<qint64>(0, qint64(std::round(behind * kSampleRate / 1000)), kSamples - 1);
    }
    const ChannelSet *wiring = channelSet(m_facts.joinMode);
    const int most = (item.payload.size() - kHead) / (kSamples * int(sizeof(qint16)));
    for (int input = 0; input < kChannels; ++input) {
        if ((wiring && !wiring->has(input)) || waveform.channels.size() + 2 > most)
            continue;
        waveform.channels.append(channel(m_parts.at(item.part), input, true));
        waveform.channels.append(channel(m_parts.at(item.part), input, false));
    }
    return putWaveform(out, &waveform, item.payload.constData() + kHead, kSamples);
}

/// \a samples: those of one channel behind those of the other.
bool Pqa2Merge::putWaveform(RecordOutput &out, RecordedWaveform *waveform, const char *samples, int count)
{
    waveform->sampleRate = kSampleRate;
    waveform->samples = count;
    const int channels = waveform->channels.size();
    std::vector<qint16> frames(std::size_t(channels) * std::size_t(count));
    for (int c = 0; c < channels; ++c) {
        for (int i = 0; i < count; ++i)
            std::memcpy(&frames[std::size_t(i * channels + c)],
                        samples + 2 * (std::size_t(c) * std::size_t(count) + std::size_t(i)), 2);
    }
    return out.sink().waveformBegin(*waveform) && out.sink().waveformSamples(frames.data(), count)
        && out.sink().waveformEnd();
}
