#pragma once

#include "record/tables/recordsink.h"
#include "report/timespans.h"

#include <QHash>
#include <QStringList>

#include <vector>

/// What the rows of a table have in common.
struct TableLook
{
    qint64 rows = 0;
    qint64 first = 0, last = 0; // ms since 1970
    double interval = 0; // between rows, as most of them have it, ms; 0: not known
};

/// What has to be known of a recording before its values can be judged: when it was, what interrupted or disturbed the
/// supply meanwhile, how long the intervals are. Takes little memory, however long the recording is.
struct RecordOverview
{
    static constexpr int kMostEvents = 20000; // twice of what a measurement can bring

    RecordFacts facts;
    qint64 start = 0, end = 0; // ms since 1970; equal when nothing has a time
    qint64 countsFrom = 0; // ms since 1970: an event that had ended by then was found before the recording
    QVector<RecordedEvent> events; // without their curves
    qint64 eventsBeyond = 0; // that were not kept
    TimeSpans interruptions; // and times without a voltage
    TimeSpans disturbances; // dips and swells
    bool hasVoltage = false; // there were values of the voltage,
    bool hasLiveVoltage = false; // and one of them was one
    QHash<QByteArray, TableLook> tables;
    QStringList log; // the first lines of the system log

    qint64 length() const { return end - start; }
    /// Whether it was over when the recording began.
    bool isEarlier(const __event_item &event) const { return event.finished && event.endTime < countsFrom; }
};

/// Whether a time can be one: what a damaged file says may be any number.
bool isPlausibleTime(qint64 time);

/// Makes the overview, in a pass of its own.
class OverviewSink : public RecordSink
{
public:
    /// \a interruption: percent of the nominal voltage below which there is none.
    explicit OverviewSink(double interruption) : m_interruption(interruption) { }

    bool begin(const RecordFacts &facts) override;
    bool table(int number, const RecordTable &table) override;
    bool row(const RecordRow &row) override;
    bool event(const RecordedEvent &event) override;
    bool end(const RecordFacts &facts) override;
    QString error() const override { return {}; }

    const RecordOverview &overview() const { return m_overview; }

private:
    struct Table
    {
        QByteArray name;
        TableLook look;
        std::vector<qint64> steps; // between the first rows
        std::vector<int> voltages; // cells that hold one
        int logText = -1; // cell of the system log's text
    };
    void lookAtVoltages(const Table &table, const RecordRow &row, qint64 before);

    const double m_interruption;
    RecordOverview m_overview;
    std::vector<Table> m_tables; // by their number
};
