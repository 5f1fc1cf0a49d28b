// One half cycle through all event detectors, beside a plain pass over the same values: the eight inputs, and the
// windows of three rapid-voltage-change rings (sum, maximum and minimum of 100 half cycles each). And an event's change
// where the list is full, beside one where it is short.
#include "bench/benchapplication.h"
#include "bench/ratios.h"
#include "settings/limits.h"
#include "detect/powerevents.h"
#include "pages/eventfollower.h"
#include "pages/eventspage.h"

#include <memory>
#include <vector>

namespace {

constexpr int kWindow = 100; // half cycles of one second at 50 Hz

EventSettings settings()
{
    MonitorLimits2 set;
    set.initEN50160();
    return eventSettings(set.limit(), { 230.0f, 50.0f, 100.0, 200, 2, 1, 1 });
}

/// One second of half cycles: about the given voltage, with a little noise, and 10 A.
std::vector<QList<_value_with_time>> second(float volts)
{
    std::vector<QList<_value_with_time>> list;
    quint32 state = 1;
    for (int i = 0; i < kWindow; ++i) {
        QList<_value_with_time> values;
        for (int k = 0; k < 8; ++k) {
            state = state * 1664525u + 1013904223u;
            values.append({ 0, (k < 4 ? volts : 10.0f) + float(state >> 24) / 2560.0f });
        }
        list.push_back(values);
    }
    return list;
}

/// Moves the times of a half cycle on.
const QList<_value_with_time> &at(std::vector<QList<_value_with_time>> &list, qint64 halfCycle)
{
    QList<_value_with_time> &values = list[size_t(halfCycle % kWindow)];
    for (_value_with_time &value : values)
        value.time = 10 * halfCycle;
    return values;
}

void plainPass(benchmark::State &state)
{
    auto list = second(230.0f);
    std::vector<float> windows[3];
    for (auto &window : windows)
        window.assign(kWindow, 230.0f);
    qint64 halfCycle = 0;
    for (auto _ : state) {
        const QList<_value_with_time> &values = at(list, halfCycle);
        float sum = 0;
        float max = values.at(0).value;
        float min = max;
        const auto take = [&](float value) {
            sum += value;
            max = value > max ? value : max;
            min = value < min ? value : min;
        };
        for (const _value_with_time &value : values)
            take(value.value);
        for (int p = 0; p < 3; ++p) {
            windows[p][size_t(halfCycle % kWindow)] = values.at(p).value;
            for (const float value : windows[p])
                take(value);
        }
        benchmark::DoNotOptimize(sum);
        benchmark::DoNotOptimize(max);
        benchmark::DoNotOptimize(min);
        ++halfCycle;
    }
}

void quietNetwork(benchmark::State &state)
{
    auto list = second(230.0f);
    PowerEvents events(settings(), 1);
    qint64 halfCycle = 0;
    for (auto _ : state)
        events.checkPowerEvents(at(list, halfCycle++));
    if (events.eventCounter() != 0)
        state.SkipWithError("a quiet network has no events");
}

/// A dip of five half cycles in each second: curves are taken and completed all the time.
void dipEverySecond(benchmark::State &state)
{
    auto quiet = second(230.0f);
    auto dip = second(150.0f);
    auto events = std::make_unique<PowerEvents>(settings(), 1);
    qint64 halfCycle = 0;
    for (auto _ : state) {
        events->checkPowerEvents(at(halfCycle % kWindow < 5 ? dip : quiet, halfCycle));
        ++halfCycle;
        if (halfCycle % 100'000 == 0) { // an hour and more of events is enough of one list
            state.PauseTiming();
            events = std::make_unique<PowerEvents>(settings(), 1);
            state.ResumeTiming();
        }
    }
}

/// An event that comes and goes where \a count are in the list: detector, Modbus table, the page in front with its
/// table, and a page behind it. The lists are made anew before they grow by more than a little.
void changeAmong(benchmark::State &state, int count)
{
    constexpr int kPairs = 100;
    EventsPage front(UI_DIPS_SWELLS);
    QWidget hidden;
    front.show();
    std::unique_ptr<EventList> list;
    std::unique_ptr<EventFollower> followers[2];
    std::unique_ptr<PowerEvents> events;
    int shown = 0;
    const auto renew = [&] {
        front.refreshEventList(nullptr);
        events.reset();
        for (auto &follower : followers)
            follower.reset();
        list = std::make_unique<EventList>();
        PQAEventItem item;
        item.type = EventUnbalance;
        for (int i = 0; i < count; ++i)
            list->append(item);
        const auto show = [&](const EventSelection &selection) {
            front.refreshEventList(&selection);
            ++shown;
        };
        followers[0] = std::make_unique<EventFollower>(&front, *list, kAllEvents, show);
        followers[1] = std::make_unique<EventFollower>(&hidden, *list, kAllEvents, show);
        for (auto &follower : followers)
            follower->catchUp();
        events = std::make_unique<PowerEvents>(*list, settings(), 1);
    };
    renew();
    int pairs = 0;
    for (auto _ : state) {
        events->checkEventUnbal({ 10, 30 });
        events->checkEventUnbal({ 20, 0 });
        if (++pairs == kPairs) {
            state.PauseTiming();
            if (list->size() != count + kPairs || shown < 2 * kPairs)
                state.SkipWithError("each change reaches the list and the page");
            renew();
            pairs = shown = 0;
            state.ResumeTiming();
        }
    }
    front.refreshEventList(nullptr);
}

void changeAmongTen(benchmark::State &state)
{
    changeAmong(state, 10);
}

void changeAtTheLimit(benchmark::State &state)
{
    changeAmong(state, 10'000);
}

BENCHMARK(changeAmongTen);
BENCHMARK(changeAtTheLimit);
BENCHMARK(plainPass);
BENCHMARK(quietNetwork);
BENCHMARK(dipEverySecond);

} // namespace

int main(int argc, char **argv)
{
    BenchApplication app(argc, argv);
    return Ratios::run(
        argc, argv, Ratios::ProcessorTime,
        { { "events, quiet network / plain pass", "quietNetwork", "plainPass", 0 },
          { "events, a dip every second / plain pass", "dipEverySecond", "plainPass", 0 },
          { "events, a change at 10,000 events / a change at 10", "changeAtTheLimit", "changeAmongTen", 2.0 } });
}
