#pragma once

#include "settings/config_data.h"
#include "model/transparam.h"
#include "device/datagramtypes.h"
#include "platform/clock.h"
#include "task/unitask.h"
#include "unit/measureddata.h"

#include <cstring>
#include <vector>

// Payloads as they leave the link, and fresh records behind a universal task at a fixed time.

using namespace MeasuredData;

constexpr qint64 kNow = 1'700'000'000'000; // ms
// Factory calibration at 230 V in a star wiring, clamp of 10 mV/A: row 1 of the voltage gains, row 3 of the current
// gains.
constexpr float kVolt = 79.25f;
constexpr float kAmpere = 71.45f / 10.0f;

/// A payload of 32-bit words as it leaves the link.
class Payload
{
public:
    explicit Payload(int words, qint64 time = kNow) : m_words(std::size_t(words), 0)
    {
        m_words[0] = quint32(time);
        m_words[1] = quint32(quint64(time) >> 32);
    }
    Payload &set(int word, float value)
    {
        std::memcpy(&m_words[std::size_t(word)], &value, sizeof(value));
        return *this;
    }
    Payload &set(int word, quint32 value)
    {
        m_words[std::size_t(word)] = value;
        return *this;
    }
    QByteArray bytes() const { return { reinterpret_cast<const char *>(m_words.data()), int(m_words.size() * 4) }; }

private:
    std::vector<quint32> m_words;
};

inline Payload aggregation(float frequency = 50.0f)
{
    Payload p(Link::kAggregationWords);
    p.set(2, frequency);
    for (int c = 0; c < 4; ++c)
        p.set(8 + 9 * c, 2.0f + c).set(9 + 9 * c, 1.0f + c).set(10 + 9 * c, 3.0f);
    return p;
}

/// \a entries half cycles of \a volts raw and \a amps raw in each block.
inline Payload halfCycles(int entries, float volts, float amps, qint64 time = kNow)
{
    Payload p(Link::kRmsWords, time);
    for (int c = 0; c < 3; ++c) {
        const int block = 2 + 181 * c;
        p.set(block, quint32(2 * entries));
        for (int i = 0; i < entries; ++i) {
            const qint64 at = time + 10 * i;
            const int entry = block + 1 + 6 * i;
            p.set(entry, quint32(at / 1000)).set(entry + 1, quint32(at % 1000)).set(entry + 2, volts + 0.001f * i);
            p.set(entry + 3, quint32(at / 1000)).set(entry + 4, quint32(at % 1000)).set(entry + 5, amps);
        }
    }
    return p;
}

inline Payload wave(quint32 transient = 0, qint64 time = kNow)
{
    Payload p(Link::kWaveWords, time);
    p.set(16386, transient);
    return p;
}

/// Fixed time, "3P WYE", empty records and lists.
inline void renewRecords()
{
    Clock::setForTest(kNow);
    m_settingConfig_g.setJoinMode(1);
    renewLive();
    liveData().transients().clear();
    liveData().events().clear();
}

inline void dropRecords()
{
    liveData().transients().clear();
    Clock::useSystem();
}
