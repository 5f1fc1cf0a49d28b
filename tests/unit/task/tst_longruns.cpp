// A week of the recorder and a week of the monitor: what an hour costs and what is held do not grow.
#include <QTest>

#include "endlessdevice.h"
#include "monitorrun.h"
#include "recorderrun.h"
#include "task/eventwave.h"

#include <atomic>
#include <malloc.h>

// All memory that this process asks for is counted here. The C library itself keeps its functions under these names.
extern "C" {
void *__libc_malloc(std::size_t bytes);
void *__libc_realloc(void *old, std::size_t bytes);
}

static std::atomic<qint64> s_askedFor { 0 }; // bytes

extern "C" void *malloc(std::size_t bytes)
{
    s_askedFor += qint64(bytes);
    return __libc_malloc(bytes);
}

extern "C" void *realloc(void *old, std::size_t bytes)
{
    s_askedFor += qint64(bytes);
    return __libc_realloc(old, bytes);
}

namespace {

constexpr int kHour = 3600; // s
constexpr int kWeek = 7 * 24; // hours
constexpr int kHalfCycles = 100; // a second

/// What an hour cost.
struct Cost
{
    EndlessCounts card;
    qint64 askedFor = 0; // bytes of memory
};

Cost operator-(const Cost &after, const Cost &before)
{
    return { after.card - before.card, after.askedFor - before.askedFor };
}

Cost costNow()
{
    return { EndlessDevice::s_counts, s_askedFor };
}

qint64 memoryInUse()
{
    return qint64(::mallinfo2().uordblks);
}

QByteArray shown(const Cost &cost)
{
    return QByteArray::number(cost.card.writes) + " writes, " + QByteArray::number(cost.card.bytes) + " bytes, "
        + QByteArray::number(cost.card.flushes) + " flushes, " + QByteArray::number(cost.askedFor) + " of memory";
}

/// A finished dip with curves of three seconds around its start and its end.
PQAEventItem eventWithCurves(qint64 time)
{
    PQAEventItem event;
    event.type = EventDip;
    event.finished = 1;
    event.startTime = time;
    event.endTime = time + 10000;
    for (RmsCurve *curves : { event.startRms, event.endRms }) {
        for (int input = 0; input < 8; ++input)
            curves[input].fill({ time, 115.0f }, 3 * kHalfCycles);
    }
    return event;
}

FlickerOutput severities()
{
    FlickerOutput out;
    out.shortTerm = out.longTerm = 7;
    out.shortBlock = out.longBlock = QByteArray(12, '\1');
    return out;
}

/// What an hour of a supply that is not quiet adds to a recording.
void disturb(RecorderRun &run)
{
    run.recorder().eventComplete(eventWithCurves(run.record->time));
    EventWave wave;
    wave.time = run.record->time;
    wave.samples << std::make_shared<const __datagram_wave>() << std::make_shared<const __datagram_wave>();
    run.recorder().eventWave(wave, *channelSet(1));
    auto transient = std::make_unique<__trans_data>();
    transient->position = 1u << 24;
    run.recorder().transient(*transient);
    run.recorder().flicker(__datagram_flicker(), severities());
}

/// Breaks every limit that the monitor knows, or none.
std::unique_ptr<__datagram_aggregation> judgedSupply(bool good)
{
    auto record = MonitorCase::supply(good ? 230 : 180, good ? 50 : 48);
    record->voltageSequence.negativeRatio = good ? 0 : 5;
    for (int phase = 0; phase < 3; ++phase) {
        for (int row = 0; row < 50; ++row)
            record->spectrum[phase].voltage[row].magnitude = good ? 0 : 30;
        record->spectrum[phase].voltageDistortion = good ? 0 : 60;
    }
    return record;
}

/// A long-term flicker value, and five seconds of half cycles with a dip of a second.
void endTenMinutes(MonitorCase::Run &run, bool flickers)
{
    FlickerOutput out = severities();
    for (float &plt : out.plt)
        plt = flickers ? 2.0f : 0.5f;
    __datagram_flicker record {};
    record.time = Clock::msecs();
    run.m_function->flicker(record, out);
    for (int half = 0; half < 5 * kHalfCycles; ++half) {
        const bool dips = half >= kHalfCycles && half < 2 * kHalfCycles;
        QList<_value_with_time> values;
        for (int input = 0; input < 8; ++input)
            values.append({ Clock::msecs() + 10 * half, input < 3 ? (dips ? 115.0f : 230.0f) : 0.0f });
        run.m_events->checkPowerEvents(values);
    }
}

} // namespace

class TstLongRuns : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Clock::useSystem(); }
    void aWeekOfEverythingEverySecondCostsTheSameEachHour();
    void aWeekOfTheMonitorWithAllEventsCostsTheSameEachHour();
};

void TstLongRuns::aWeekOfEverythingEverySecondCostsTheSameEachHour()
{
    // All nine files reach their end in the course of the week.
    static constexpr qint64 kAhead = qint64(3) << 30;
    EndlessDevice::s_opened.clear();
    RecorderRun run([] { return std::make_unique<EndlessDevice>(kAhead); });
    m_userConfig_g.setTimeZone(QStringLiteral("UTC"));
    RecordInfo::m_interval_index = 0;
    RecordInfo::m_recordItems = 0xFFFF;
    run.recorder().start();
    Cost second;
    qint64 memory = 0;
    int hoursOfNewParts = 0;
    for (int hour = 1; hour <= kWeek; ++hour) {
        const Cost before = costNow();
        const int files = EndlessDevice::s_opened.size();
        for (int interval = 0; interval < kHour; ++interval) {
            run.take(5, 200);
            for (int tenth = 0; tenth < 10; ++tenth)
                run.recorder().beat();
        }
        disturb(run);
        const Cost cost = costNow() - before;
        if (hour <= 2) {
            second = cost;
            memory = memoryInUse();
            continue;
        }
        if (EndlessDevice::s_opened.size() > files) {
            ++hoursOfNewParts;
            continue;
        }
        QVERIFY2(cost.card == second.card, shown(cost) + " in hour " + QByteArray::number(hour) + "; " + shown(second));
        QVERIFY2(cost.askedFor <= second.askedFor * 1.001, shown(cost) + "; " + shown(second));
        QVERIFY2(memoryInUse() < memory + 64 * 1024, QByteArray::number(memoryInUse() - memory));
    }
    QCOMPARE(second.card.flushes, qint64(9 * kHour / 4));
    // Files differ in size: that of the common values is the last to reach its end.
    QVERIFY(hoursOfNewParts >= 2);
    QCOMPARE(EndlessDevice::s_opened.size(), 18);
    int secondParts = 0;
    for (const QString &path : qAsConst(EndlessDevice::s_opened))
        secondParts += path.endsWith(QLatin1String("_2.pqa2"));
    QCOMPARE(secondParts, 9);
    run.recorder().stop(Keep::Data);
}

void TstLongRuns::aWeekOfTheMonitorWithAllEventsCostsTheSameEachHour()
{
    constexpr int kTenMinutes = 600;
    constexpr int kMostEvents = 10001;
    constexpr int kFullHour = 2 * 24; // the list of events takes no more long before
    MonitorCase::beginCase();
    MonitorInfo::m_duration = kWeek;
    {
        MonitorCase::Run run(1, [] { return std::make_unique<EndlessDevice>(); });
        const auto good = judgedSupply(true), bad = judgedSupply(false);
        run.begin();
        Cost wanted;
        qint64 memory = 0;
        for (int hour = 1; hour <= kWeek; ++hour) {
            const Cost before = costNow();
            for (int tenMinutes = 0; tenMinutes < 6; ++tenMinutes) {
                const bool fails = tenMinutes % 2 == 0;
                run.pass(kTenMinutes, fails ? bad.get() : good.get());
                endTenMinutes(run, fails);
            }
            const Cost cost = costNow() - before;
            if (hour <= kFullHour) {
                wanted = cost;
                memory = memoryInUse();
                continue;
            }
            QVERIFY2(cost.card == wanted.card,
                     shown(cost) + " in hour " + QByteArray::number(hour) + "; " + shown(wanted));
            QVERIFY2(double(cost.askedFor) <= double(wanted.askedFor) * 1.05, shown(cost) + "; " + shown(wanted));
        }
        // A float for each ten seconds and for each ten minutes is kept for the percentiles, in blocks that are half
        // full at least.
        const qint64 kept = 2 * 4 * (qint64(kWeek) * 360 + 3 * qint64(kWeek) * 6);
        QVERIFY2(memoryInUse() - memory < kept + 64 * 1024, QByteArray::number(memoryInUse() - memory));
        QCOMPARE(run.enough, 1);
        QCOMPARE(run.m_data.events().size(), kMostEvents);
        bool kinds[EventFrequency + 1] = {};
        for (const PQAEventItem &event : run.m_data.events())
            kinds[event.type] = true;
        for (const int kind : { int(EventThd), int(EventHarmonicFirst), int(EventHarmonicLast), int(EventRms),
                                int(EventFlicker), int(EventDip), int(EventUnbalance), int(EventFrequency) })
            QVERIFY2(kinds[kind], QByteArray::number(kind));

        // The heads of all of them go in one piece.
        const EndlessCounts before = EndlessDevice::s_counts;
        run.end();
        QVERIFY2((EndlessDevice::s_counts - before).writes < 10,
                 QByteArray::number((EndlessDevice::s_counts - before).writes));
        QVERIFY((EndlessDevice::s_counts - before).bytes > qint64(kMostEvents) * 44);
    }
    MonitorCase::endCase();
}

QTEST_GUILESS_MAIN(TstLongRuns)
#include "tst_longruns.moc"
