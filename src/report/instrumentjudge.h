#pragma once

#include "detect/slowchecks.h"
#include "model/monitorrecords.h"
#include "task/functions/monitorjudge.h"

#include <QVector>

#include <optional>

struct QuantityKey;
struct InstrumentResult;

/// The instrument's own results for the values of a monitor file: they go through the arithmetic of its monitor once
/// more.
class InstrumentJudge
{
public:
    /// A run of years brings fewer values; a damaged file is not followed further.
    static constexpr qint64 kMostValues = 4000000;

    explicit InstrumentJudge(const MonitorSetup &setup);

    void take(const QuantityKey &key, qint64 time, float value);
    /// What it found for the quantities that it was given; nothing when there were too many values.
    QVector<InstrumentResult> results() const;

private:
    /// Nobody is listening.
    class NoChecks : public SlowChecks
    {
    public:
        void checkEventFreq(const _value_with_time &) override { }
        void checkEventVolt(int, const _value_with_time &) override { }
        void checkEventUnbal(const _value_with_time &) override { }
        void checkEventHarm(int, int, const _value_with_time &) override { }
        void checkEventFlicker(int, const _value_with_time &) override { }
    };

    NoChecks m_checks;
    __monitor_data m_data;
    __monitor_trend m_trend;
    MonitorJudge m_judge;
    QVector<QuantityKey> m_given;
    qint64 m_values = 0;
};
