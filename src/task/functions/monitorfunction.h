#pragma once

#include "record/pqa2ff.h"
#include "task/functions/functionfile.h"
#include "task/functions/monitorjudge.h"
#include "task/functions/taskfunction.h"

#include <functional>
#include <memory>
#include <optional>

class FlickerProcessor;
class LiveData;
class PowerEvents;
class Pqa2Device;

/// What the monitor needs of the task that it runs in. What is referred to outlives it.
struct MonitorLinks
{
    LiveData &data;
    PowerEvents &events;
    FlickerProcessor &flicker;
    std::function<void()> refresh; // pages show new values
    std::function<void()> enough; // the run ends
    std::function<std::unique_ptr<Pqa2Device>()> device = {}; // makes what lies below its file
};

/// The monitor: judges the supply by the active limits, every ten seconds and every ten minutes, and stores what it was
/// judged by, with the events and flicker severities, in "Monitor.pqa2" (docs/formats/monitor.md).
class MonitorFunction : public TaskFunction
{
public:
    static constexpr int kTenSeconds = 10; // ticks
    static constexpr int kTenMinutes = 600;

    explicit MonitorFunction(MonitorLinks links);
    ~MonitorFunction() override;

    FunctionFile &file() { return m_file; }

    /// Makes the folder "yyMMdd_hhmmss name" with its file, and takes limits and settings as they stand.
    void start() override;
    void measure() override;
    void aggregation(const __datagram_aggregation &record) override;
    void tick() override;
    /// Blocks begin with the datagram's time, whole seconds since 1970.
    void flicker(const __datagram_flicker &record, const FlickerOutput &out) override;
    void transient(const __trans_data &record) override;
    void storeEvents(EventChoice choice) override;
    bool refused() const override { return m_judge && (!m_file.isOpen() || m_monitorFile->refuses()); }
    /// The heads of all events, the flicker intervals that are nearly full and the time are the end of its file.
    void stop(Keep) override;

private:
    void openFile();
    void flush();
    void endTenSeconds();
    void endTenMinutes();
    void endVoltages();
    void endUnbalance();
    void endHarmonics();
    void closeFlicker();
    void storePlt(const FlickerOutput &out, qint64 time);
    quint32 seconds() const { return quint32(m_time / 1000); }

    MonitorLinks m_links;
    FunctionFile m_file;
    std::unique_ptr<Pqa2FF> m_monitorFile;
    QString m_run; // name of its folder
    std::optional<MonitorJudge> m_judge; // while it runs
    MonitorSums m_sums;
    quint32 m_start = 0; // s since 1970, of measuring
    qint64 m_time = 0; // ms since 1970, of the newest datagram
    int m_ticks = 0; // of the running ten seconds
    int m_minuteTicks = 0; // of the running ten minutes
};
