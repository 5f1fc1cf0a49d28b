#pragma once

#include "cardcalls.h"
#include "monitorrun.h"
#include "record/loggerfile.h"
#include "record/wavefile.h"
#include "recorderrun.h"
#include "settings/derived.h"

#include <functional>

/// Short runs of everything that writes on the card, so that each of their calls can be cut off or refused.
namespace CardRuns {

inline int s_seconds = 12; // that a run lasts

/// What a run of a writer told about itself.
struct Trace
{
    QList<CardCalls::Call> calls;
    QList<int> seconds; // calls behind each second
    int failing = 0; // calls that could have failed
};

/// Lets a second of the run pass, and all that it asked of the disk threads.
inline void secondIsOver(Trace *trace)
{
    DiskWorker::instance().wait();
    DiskWorker::instance().wait(); // for what that asked for itself: a sync behind each change
    trace->seconds << CardCalls::taken().size();
}

inline void finish(Trace *trace)
{
    RootFiles::waitForDisks();
    RootFiles::waitForDisks();
    trace->calls = CardCalls::taken();
    trace->failing = CardCalls::calls();
    CardCalls::end();
    Clock::useSystem();
}

inline Trace recorder(const CardCalls::Fault &fault, const QList<float> &room = { 1000.0f })
{
    Trace trace;
    m_userConfig_g.setTimeZone(QStringLiteral("UTC"));
    RecorderRun run((RecordFiles::MakeDevice()));
    RecordInfo::m_recordItems = RecordInfo::Frequency10s | RecordInfo::CommonRms | RecordInfo::HarmonicVolt1to50;
    RecordInfo::m_interval_index = 0; // 1 s
    RootFiles::waitForDisks();
    CardCalls::begin(fault);
    CardCalls::setRoom(room);
    run.recorder().start();
    for (int second = 0; second < s_seconds; ++second) {
        run.take(5, 200);
        for (int tenth = 0; tenth < 10; ++tenth)
            run.recorder().beat();
        secondIsOver(&trace);
    }
    run.recorder().stop(Keep::Data);
    finish(&trace);
    return trace;
}

inline Trace monitor(const CardCalls::Fault &fault, const QList<float> &room = { 1000.0f })
{
    Trace trace;
    MonitorCase::beginCase();
    {
        MonitorCase::Run run;
        const auto supply = MonitorCase::distortedSupply();
        CardCalls::begin(fault);
        CardCalls::setRoom(room);
        run.begin();
        for (int second = 0; second < 5 * s_seconds; ++second) {
            run.pass(1, supply.get());
            secondIsOver(&trace);
        }
        run.end();
        finish(&trace);
    }
    MonitorCase::endCase();
    return trace;
}

/// \a value 0 to 255: a chunk that no other one is like.
inline QByteArray chunk(int value)
{
    return QByteArray(16 * 96, char(value));
}

inline Trace capture(const CardCalls::Fault &fault)
{
    Trace trace;
    RootFiles::clean();
    Clock::setForTest(RecorderRun::kStart);
    CardCalls::begin(fault);
    {
        const Derived setUp;
        WaveFile file(QStringLiteral("Wave_1"), 0, 20480, setUp);
        file.open(QDateTime::fromMSecsSinceEpoch(Clock::msecs(), Qt::UTC));
        for (int second = 0; second < s_seconds; ++second) {
            Clock::advance(1000);
            file.write(chunk(second + 1), Clock::seconds());
            secondIsOver(&trace);
        }
        file.save(true);
    }
    finish(&trace);
    return trace;
}

inline QByteArray line(int second)
{
    return "2023/11/14  22:13:" + QByteArray::number(20 + second) + ",50.000," + QByteArray(700, '1') + ",\n";
}

inline Trace logger(const CardCalls::Fault &fault)
{
    Trace trace;
    RootFiles::clean();
    Clock::setForTest(RecorderRun::kStart);
    CardCalls::begin(fault);
    const QString stem = QStringLiteral("Logger_1");
    const QDateTime now = QDateTime::fromMSecsSinceEpoch(Clock::msecs(), Qt::UTC);
    LoggerFile file(&stem);
    file.open(now);
    for (int second = 0; second < s_seconds; ++second) {
        Clock::advance(1000);
        file.write(line(second));
        file.flush();
        secondIsOver(&trace);
        if (second != s_seconds / 2)
            continue;
        file.incFileIndex();
        file.open(now);
    }
    file.save(true);
    finish(&trace);
    return trace;
}

inline Trace settings(const CardCalls::Fault &fault)
{
    Trace trace;
    RootFiles::clean();
    CardCalls::begin(fault);
    for (int mode : { 2, 3, 1 }) {
        m_settingConfig_g.setJoinMode(mode);
        m_userConfig_g.setTimeZone(mode == 2 ? QStringLiteral("UTC") : QStringLiteral("Europe/Warsaw"));
        secondIsOver(&trace);
    }
    finish(&trace);
    return trace;
}

} // namespace CardRuns
