#pragma once

#include "report/recordoverview.h"
#include "report/trendband.h"
#include "report/valuejudge.h"
#include "task/functions/monitorsetup.h"

#include <QSet>

#include <optional>
#include <vector>

/// How many events of a kind there were, against the number that the limit set allows.
struct EventCount
{
    qint32 type = EventDip;
    int count = 0; // in the week that has most
    qint64 all = 0; // in the recording
    int allowed = 0;
    bool holds() const { return count <= allowed; }
};

/// What the instrument itself finds for a quantity of one phase, by the arithmetic of its monitor.
struct InstrumentResult
{
    QuantityKey key;
    bool partialOk = true;
    bool wholeOk = true; // where it has such a result
};

/// A trend of one quantity of one phase.
struct QuantityTrend
{
    QuantityKey key;
    TrendBand band;
};

/// Why a quantity that the limit set asks for could not be judged.
enum class NotJudgedBecause : quint8 {
    NotRecorded,
    IntervalTooLong, // ten minutes cannot be made of longer intervals
    NotTheInterval, // mains signals are judged by means of three seconds
    NoNominal, // the recording does not say what its values are to be compared with
    NoValue // not one complete value, or none without an interruption
};

struct NotJudged
{
    Quantity quantity;
    NotJudgedBecause why;
};

/// A quantity of which a good part of the recording has no value.
struct JudgedInPart
{
    Quantity quantity;
    double covered; // percent of the recording, of the phase that has least
};

/// An event or a transient with what was recorded of it, for a picture.
struct Moment
{
    RecordedEvent event; // number 0: a transient without an event
    RecordedWaveform wave; // samples 0: none was recorded
    QVector<qint16> samples; // interleaved
};

/// All that a recording says about the supply.
struct Judgement
{
    RecordOverview overview;
    MonitorSetup setup; // limits, nominal values
    QString limitsName;
    Weeks weeks;
    QVector<QuantityVerdict> verdicts;
    QVector<EventCount> eventCounts;
    QVector<InstrumentResult> instrument; // of monitor files
    QVector<QuantityTrend> trends;
    QVector<Moment> moments;
    QSet<int> listed; // numbers of the events that a table names: not all of very many
    QVector<NotJudged> notJudged;
    QVector<JudgedInPart> gaps;
    qint64 incompleteTenMinutes = 0;

    Outcome outcome() const;
    /// That nothing happened says nothing about a supply of which nothing else is known.
    Outcome outcomeOf(const EventCount &count) const;
    /// That a quantity of the set was judged by nothing, or by a part of the time only. Mains signals do not count:
    /// hardly a recording has them.
    bool leavesOut() const;
    const QuantityVerdict *find(const QuantityKey &key) const;
    const InstrumentResult *instrumentOf(const QuantityKey &key) const;
};
