// Ten minutes of the monitor, with all its stages and its file, late in the fourth week beside the first day: what is
// kept grows, what a tick takes must not.
#include "bench/ratios.h"
#include "detect/flickerprocessor.h"
#include "detect/powerevents.h"
#include "model/livedata.h"
#include "platform/clock.h"
#include "settings/limitbuiltins.h"
#include "settings/monitorinfo.h"
#include "task/functions/monitorfunction.h"

#include <cstring>
#include <memory>

namespace {

constexpr int kTenMinutes = 600;
constexpr int kDay = 24 * 3600;

/// A run on a supply that is never the same twice.
class Run
{
public:
    explicit Run(int seconds)
        : m_events(m_data.events(), eventSettings(LimitBuiltins::en50160(), { 230, 50, 5, 100, 2, 1, 1 }), 1),
          m_record(std::make_unique<__datagram_aggregation>()), m_monitor({ m_data, m_events, m_flicker, [] {}, [] {} })
    {
        std::memset(static_cast<void *>(m_record.get()), 0, sizeof(*m_record));
        for (ChannelRms &channel : m_record->channel)
            channel.voltageFundamental = 230;
        MonitorInfo::m_duration = 24 * 30; // longer than its trend: it never has enough
        m_monitor.start();
        m_monitor.measure();
        pass(seconds);
    }
    ~Run() { m_monitor.stop(Keep::Data); }

    void pass(int seconds)
    {
        for (int i = 0; i < seconds; ++i) {
            m_state = m_state * 1664525u + 1013904223u;
            const float noise = float(m_state >> 8) / float(1 << 24);
            m_record->time += 1000;
            m_record->frequency = 49.9f + 0.2f * noise;
            for (ChannelRms &channel : m_record->channel)
                channel.voltage = 225 + 10 * noise;
            m_monitor.aggregation(*m_record);
            m_monitor.tick();
        }
    }

private:
    LiveData m_data;
    PowerEvents m_events;
    FlickerProcessor m_flicker;
    std::unique_ptr<__datagram_aggregation> m_record;
    MonitorFunction m_monitor;
    quint32 m_state = 1;
};

/// The runs begin once; a few hours more each round change nothing of what they stand for.
Run &firstDayRun()
{
    Clock::setForTest(1'700'000'000'000);
    static Run run(kDay / 24);
    return run;
}

Run &fourthWeekRun()
{
    Clock::setForTest(1'700'000'001'000);
    static Run run(27 * kDay);
    return run;
}

void firstDay(benchmark::State &state)
{
    Run &run = firstDayRun();
    for (auto _ : state)
        run.pass(kTenMinutes);
}
BENCHMARK(firstDay)->Iterations(6)->Repetitions(6);

void fourthWeek(benchmark::State &state)
{
    Run &run = fourthWeekRun();
    for (auto _ : state)
        run.pass(kTenMinutes);
}
BENCHMARK(fourthWeek)->Iterations(6)->Repetitions(6);

} // namespace

int main(int argc, char **argv)
{
    return Ratios::run(argc, argv, Ratios::ProcessorTime,
                       { { "ten minutes of the monitor, fourth week / first day", "fourthWeek", "firstDay", 1.1 } });
}
