#pragma once

#include "monitorcase.h"
#include "platform/clock.h"
#include "platform/target.h"
#include "settings/config_data.h"
#include "settings/monitorinfo.h"
#include "task/functions/monitorfunction.h"
#include "task/recordopening.h"
#include "unit/record/readblocks.h"
#include "unit/storage/rootfiles.h"

#include <QDir>
#include <QFile>

// Whole runs of the monitor under the test's root, at a fixed time, as fast as the machine goes.

namespace MonitorCase {

constexpr qint64 kBegin = 1'700'000'000'000; // ms

/// An empty storage, a stopped clock, a monitor of two hours.
inline void beginCase()
{
    RootFiles::clean();
    Pqa2FF::setOpening(recordOpening);
    Clock::setForTest(kBegin);
    m_userConfig_g.setTimeZone(QStringLiteral("UTC"));
    MonitorInfo::m_duration = 2;
    *MonitorInfo::m_monitor_file = QStringLiteral("Monitor-EN50160-1");
}

inline void endCase()
{
    Clock::useSystem();
    m_settingConfig_g.setJoinMode(1);
}

/// 231, 232 and 233 V with fundamentals of 200 V, in percent: THD 1, 2 and 3, order 5 1.5, distortion of the current 2
/// with half of it in order 5, unbalance 1.5 and 0.5; the first mains signal of L2 is 0.01 of nominal.
inline std::unique_ptr<__datagram_aggregation> distortedSupply()
{
    auto record = supply(230, 50);
    for (int phase = 0; phase < 3; ++phase) {
        record->channel[phase].voltage = 231.0f + float(phase);
        record->channel[phase].voltageFundamental = 200;
        record->spectrum[phase].voltageDistortion = 2 * float(phase + 1);
        record->spectrum[phase].voltage[4].magnitude = 3;
        record->spectrum[phase].currentDistortion = 4;
        record->spectrum[phase].current[4].magnitude = 2;
    }
    record->voltageSequence.negativeRatio = 1.5f;
    record->voltageSequence.zeroRatio = 0.5f;
    record->mainsSignal[1].ratio1 = 0.01f;
    return record;
}

/// A monitor with what stands around it, driven as fast as the machine goes.
class Run
{
public:
    /// \a device makes what lies below the file; without it that is a file.
    explicit Run(int joinMode = 1, std::function<std::unique_ptr<Pqa2Device>()> device = {})
    {
        m_settingConfig_g.setJoinMode(joinMode);
        const MonitorSetup setup = currentMonitorSetup();
        m_events = std::make_unique<PowerEvents>(
            m_data.events(),
            eventSettings(setup.limits, { float(setup.nominalVolt), float(setup.nominalFrequency), 5.0, 100, 2, 1, 1 }),
            joinMode);
        m_function = std::make_unique<MonitorFunction>(MonitorLinks {
            m_data, *m_events, m_flicker, [this] { ++refreshed; }, [this] { ++enough; }, std::move(device) });
    }

    void begin()
    {
        m_function->start();
        m_function->measure();
    }
    /// \a seconds pass, each with an aggregation of the supply; null: none comes.
    void pass(int seconds, const __datagram_aggregation *supply)
    {
        for (int i = 0; i < seconds && enough == 0; ++i) {
            Clock::advance(1000);
            if (supply) {
                auto record = std::make_unique<__datagram_aggregation>(*supply);
                record->time = Clock::msecs();
                m_function->aggregation(*record);
            }
            m_function->tick();
        }
    }
    void end() { m_function->stop(Keep::Data); }

    const __monitor_data &results() { return m_data.live().monitor; }
    const __monitor_trend &trend() { return m_data.live().monitorTrend; }

    /// The file's blocks behind those that every file opens with.
    static QList<ReadBlock> blocks()
    {
        const QDir storage(Target::path(QStringLiteral("/mnt/storage")));
        const QStringList folders = storage.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        if (folders.size() != 1)
            return {};
        QFile file(storage.filePath(folders[0] + QStringLiteral("/Monitor.pqa2")));
        return file.open(QIODevice::ReadOnly) ? readBlocks(file.readAll()).mid(3) : QList<ReadBlock>();
    }
    static QList<quint32> kinds()
    {
        QList<quint32> all;
        for (const ReadBlock &block : blocks())
            all << block.type;
        return all;
    }

    int refreshed = 0;
    int enough = 0;
    LiveData m_data;
    FlickerProcessor m_flicker;
    std::unique_ptr<PowerEvents> m_events;
    std::unique_ptr<MonitorFunction> m_function;
};

inline quint32 secondsOf(const ReadBlock &block)
{
    quint32 seconds = 0;
    std::memcpy(&seconds, block.payload.constData(), sizeof seconds);
    return seconds;
}

/// Float \a index behind the time.
inline float floatOf(const ReadBlock &block, int index)
{
    float value = 0;
    if (block.payload.size() >= 8 + 4 * index)
        std::memcpy(&value, block.payload.constData() + 4 + 4 * index, sizeof value);
    return value;
}

} // namespace MonitorCase
