#include "link/processorlink.h"

#include "link/setupframe.h"
#include "link/transientrecord.h"

#include <algorithm>
#include <cstring>

namespace wire {

namespace {

constexpr quint32 kBdsWord = 1; // any value but 0 says that the time comes from the satellite receiver
constexpr std::size_t kMaxHeldBack = 1024; // datagrams; what a hold longer than that would add is lost

} // namespace

ProcessorLink::ProcessorLink(Transmit transmit, quint64 seed) : m_transmit(std::move(transmit)), m_faults(seed) { }

void ProcessorLink::advance(qint64 simulatedMs)
{
    m_nowMs = simulatedMs;
    if (m_nowMs >= m_heldUntilMs) {
        for (; !m_heldBack.empty(); m_heldBack.pop_front())
            m_transmit(m_heldBack.front());
    }
    for (std::size_t i = 0; i < m_pending.size();) {
        if (m_pending[i].dueMs > m_nowMs) {
            ++i;
            continue;
        }
        const FirmwareExchange::Answer answer = m_pending[i].answer;
        m_pending.erase(m_pending.begin() + std::ptrdiff_t(i));
        send(Kind::Update, m_clock.at(m_nowMs), { answer.code, answer.result, 0, 0 });
    }
}

void ProcessorLink::takeFrame(const QByteArray &bytes)
{
    Frame frame = parseFrame(bytes);
    obey(frame); // ahead of the log, which tells the clock as the frame left it
    ++m_counters.frames;
    m_log.write(m_clock.at(m_nowMs), bytes, frame);
}

void ProcessorLink::disconnected()
{
    setStreaming(false);
    m_pending.clear();
    m_textWanted = false;
}

void ProcessorLink::setStreaming(bool on)
{
    m_streaming = on;
    if (on && m_textWanted)
        sendFirmwareText();
    if (!on)
        m_heldBack.clear();
}

void ProcessorLink::setClock(qint64 msSince1970)
{
    m_clock.set(msSince1970, m_nowMs);
    ++m_clockCount;
}

void ProcessorLink::shiftClock(qint64 ms)
{
    m_clock.shift(ms);
    ++m_clockCount;
}

void ProcessorLink::obey(const Frame &frame)
{
    switch (frame.type) {
    case Frame::Type::Malformed:
        ++m_counters.malformed;
        return;
    case Frame::Type::Stream:
        setStreaming(frame.words[0] != 0);
        return;
    case Frame::Type::FirmwareInfo:
        m_textWanted = true;
        if (m_streaming)
            sendFirmwareText();
        return;
    case Frame::Type::SetClock:
    case Frame::Type::OlderClock: {
        const bool good = frame.type == Frame::Type::SetClock ? m_clock.setBinary(frame.clock, m_nowMs)
                                                              : m_clock.setPackedDecimal(frame.clock, m_nowMs);
        m_clockCount += good;
        m_counters.malformed += !good;
        return;
    }
    case Frame::Type::FirmwareAnnounce:
        answerUpdate(m_firmware.announce(frame.words[0]));
        return;
    case Frame::Type::FirmwareData:
        answerUpdate(m_firmware.data(frame.words));
        return;
    case Frame::Type::Flash:
        answerUpdate(m_firmware.flash());
        return;
    case Frame::Type::Setup:
    case Frame::Type::OlderSetup: {
        const auto setup = setupOf(frame, m_setup);
        if (setup)
            m_setup = *setup;
        m_setupCount += setup.has_value();
        m_counters.malformed += !setup;
        return;
    }
    case Frame::Type::Buzzer:
        m_buzzer = frame.words[0];
        return;
    case Frame::Type::Inrush: // measured all the time; the command changes nothing here
        return;
    }
}

void ProcessorLink::answerUpdate(const FirmwareExchange::Answers &answers)
{
    for (const FirmwareExchange::Answer &answer : answers)
        m_pending.push_back({ m_nowMs + answer.delayMs, answer });
    advance(m_nowMs);
}

void ProcessorLink::sendFirmwareText()
{
    m_textWanted = false;
    const QByteArray text = m_firmware.versionText().toLatin1();
    std::vector<quint32> payload(std::size_t(kindInfo(Kind::FirmwareInfo).payloadWords()), 0);
    std::memcpy(payload.data(), text.constData(), std::min(payload.size() * 4, std::size_t(text.size())));
    send(Kind::FirmwareInfo, m_clock.at(m_nowMs), payload);
}

template <typename Payload> void ProcessorLink::sendMeasurement(Kind kind, const Payload &payload, std::int64_t timeMs)
{
    static_assert(sizeof(Payload) % 4 == 0, "whole words");
    if (!m_streaming)
        return;
    m_payload.resize(sizeof payload / 4);
    std::memcpy(m_payload.data(), &payload, sizeof payload);
    send(kind, quint64(std::max<std::int64_t>(0, timeMs)), m_payload);
}

void ProcessorLink::send(Kind kind, quint64 stampMs, const std::vector<quint32> &payload)
{
    ++m_counters.datagrams[std::size_t(kind)];
    release(m_faults.apply(m_packager.pack(kind, stampMs, m_bds ? kBdsWord : 0, payload)));
}

void ProcessorLink::release(const std::vector<QByteArray> &messages)
{
    if (m_nowMs >= m_heldUntilMs && m_heldBack.empty())
        m_transmit(messages);
    else if (m_heldBack.size() < kMaxHeldBack)
        m_heldBack.push_back(messages);
}

void ProcessorLink::aggregation(const processor::AggregationPayload &payload, std::int64_t timeMs)
{
    sendMeasurement(Kind::Aggregation, payload, timeMs);
}

void ProcessorLink::rms(const processor::RmsPayload &payload, std::int64_t timeMs)
{
    sendMeasurement(Kind::HalfCycleRms, payload, timeMs);
}

void ProcessorLink::wave(const processor::WavePayload &payload, std::int64_t timeMs)
{
    sendMeasurement(Kind::Wave, payload, timeMs);
    if (payload.transient == 0 || !m_streaming)
        return;
    TransientPayload record;
    cutTransient(payload, &record);
    sendMeasurement(Kind::Transient, record, timeMs);
}

void ProcessorLink::flicker(const processor::FlickerPayload &payload, std::int64_t timeMs)
{
    sendMeasurement(Kind::Flicker, payload, timeMs);
}

} // namespace wire
