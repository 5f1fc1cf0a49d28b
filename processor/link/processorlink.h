#pragma once

#include "link/deviceclock.h"
#include "link/firmwareexchange.h"
#include "link/framelog.h"
#include "link/linkfaults.h"
#include "link/packager.h"
#include "metrology/measurementsink.h"
#include "metrology/setup.h"

#include <QByteArray>

#include <deque>
#include <functional>
#include <vector>

namespace wire {

/// The processor's end of the wire, without the socket: obeys frames, frames measurements, and keeps the rules of when
/// something may be sent. Everything happens on the caller's thread, in simulated time.
///
/// Measurements leave only between "stream on" and "stream off". The firmware text leaves then as well: a request made
/// in silence is answered once the stream is on. Update answers leave at once, since the instrument updates in silence.
class ProcessorLink : public processor::MeasurementSink
{
public:
    /// Takes the messages of one datagram, or what faults made of it, at once.
    using Transmit = std::function<void(const std::vector<QByteArray> &messages)>;

    struct Counters
    {
        quint64 frames = 0;
        quint64 malformed = 0;
        std::array<quint64, kKindCount> datagrams = {}; // by Kind
    };

    explicit ProcessorLink(Transmit transmit, quint64 seed = 1);

    /// \name What the owner of time calls
    /// @{
    /// Simulated time goes on to \a simulatedMs: answers and delayed packages that became due leave.
    void advance(qint64 simulatedMs);
    /// One message of the instrument.
    void takeFrame(const QByteArray &bytes);
    /// The far end hung up: the stream is off until it is switched on anew.
    void disconnected();
    /// @}

    /// \name What frames change
    /// @{
    bool streaming() const { return m_streaming; }
    /// Whether something waits for simulated time to go on: the stream, or an answer that takes its time.
    bool needsTime() const { return m_streaming || !m_pending.empty(); }
    void setStreaming(bool on);
    const processor::ProcessorSetup &setup() const { return m_setup; }
    void setSetup(const processor::ProcessorSetup &setup) { m_setup = setup; }
    /// Grow by one with each set-up and each clock change, so that the owner sees when to pass them on.
    unsigned setupCount() const { return m_setupCount; }
    unsigned clockCount() const { return m_clockCount; }
    quint32 buzzer() const { return m_buzzer; }
    /// @}

    /// \name Knobs of the simulation
    /// @{
    LinkFaults &faults() { return m_faults; }
    const LinkFaults &faults() const { return m_faults; }
    /// Fixes the course of the faults; those that were chosen are taken back.
    void setSeed(quint64 seed) { m_faults = LinkFaults(seed); }
    FirmwareExchange &firmware() { return m_firmware; }
    const FirmwareExchange &firmware() const { return m_firmware; }
    FrameLog &frameLog() { return m_log; }
    const DeviceClock &clock() const { return m_clock; }
    void setClock(qint64 msSince1970);
    void shiftClock(qint64 ms);
    bool bds() const { return m_bds; }
    void setBds(bool on) { m_bds = on; }
    /// Holds all packages back for \a ms of simulated time; then they leave together.
    void holdBack(qint64 ms) { m_heldUntilMs = m_nowMs + ms; }
    const Counters &counters() const { return m_counters; }
    qint64 nowMs() const { return m_nowMs; } // simulated
    /// @}

    /// \name MeasurementSink
    /// @{
    void aggregation(const processor::AggregationPayload &payload, std::int64_t timeMs) override;
    void rms(const processor::RmsPayload &payload, std::int64_t timeMs) override;
    void wave(const processor::WavePayload &payload, std::int64_t timeMs) override;
    void flicker(const processor::FlickerPayload &payload, std::int64_t timeMs) override;
    /// @}

private:
    struct Pending
    {
        qint64 dueMs; // simulated
        FirmwareExchange::Answer answer;
    };

    void obey(const Frame &frame);
    void answerUpdate(const FirmwareExchange::Answers &answers);
    void sendFirmwareText();
    template <typename Payload> void sendMeasurement(Kind kind, const Payload &payload, std::int64_t timeMs);
    void send(Kind kind, quint64 stampMs, const std::vector<quint32> &payload);
    void release(const std::vector<QByteArray> &messages);

    Transmit m_transmit;
    Packager m_packager;
    LinkFaults m_faults;
    FirmwareExchange m_firmware;
    FrameLog m_log;
    DeviceClock m_clock;
    processor::ProcessorSetup m_setup;
    Counters m_counters;
    std::vector<quint32> m_payload; // kept between datagrams
    std::vector<Pending> m_pending;
    std::deque<std::vector<QByteArray>> m_heldBack;
    qint64 m_nowMs = 0;
    qint64 m_heldUntilMs = 0;
    unsigned m_setupCount = 0;
    unsigned m_clockCount = 0;
    quint32 m_buzzer = 0;
    bool m_streaming = false;
    bool m_bds = false;
    bool m_textWanted = false;
};

} // namespace wire
