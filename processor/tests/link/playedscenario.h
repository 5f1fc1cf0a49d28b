#pragma once

#include "scenario/scenariofile.h"
#include "scenario/simulator.h"

#include <QtEndian>
#include <QTest>

#include <cstring>

// What the tests of scenarios share: reading one, playing it, and looking at what it sends.

using namespace scenario;

/// Keeps what a simulator sends.
struct Stream
{
    std::vector<QByteArray> messages;
    wire::ProcessorLink link { [this](const std::vector<QByteArray> &out) {
        messages.insert(messages.end(), out.begin(), out.end());
    } };

    /// Half-cycle values of the voltage of phase \a line, in converter units, over the whole stream.
    std::vector<float> halfCycles(int line) const
    {
        std::vector<float> values;
        for (const QByteArray &message : messages) {
            if (!(word(message, 0) & wire::kFlagFirst) || word(message, 16) != 1)
                continue;
            const int block = 40 + 4 * 181 * line;
            for (quint32 i = 0; i < word(message, block) / 2; ++i) {
                const quint32 bits = word(message, block + 4 + int(i) * 24 + 8);
                float value;
                std::memcpy(&value, &bits, sizeof value);
                values.push_back(value);
            }
        }
        return values;
    }
    static quint32 word(const QByteArray &message, int byte)
    {
        return qFromLittleEndian<quint32>(message.constData() + byte);
    }
};

inline std::optional<Scenario> parse(const QByteArray &json, QString *error)
{
    return ScenarioFile::parse("s.json", json, error);
}

/// Plays \a scenario for \a seconds of its time.
inline void play(const Scenario &scenario, quint64 seed, double seconds, Stream *stream)
{
    stream->link.setSetup(scenario.setup);
    stream->link.setSeed(seed);
    stream->link.setClock(1705579200000);
    stream->link.setStreaming(true);
    Simulator simulator(scenario, seed, &stream->link);
    QString error;
    QVERIFY2(simulator.prepare(&error), qPrintable(error));
    while (simulator.seconds() < seconds)
        simulator.step(nullptr);
}
