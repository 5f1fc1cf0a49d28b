#pragma once

#include "record/exports/pqdifchannels.h"
#include "record/tables/recordsink.h"

#include <QMap>

#include <functional>
#include <vector>

/// Takes the body of an observation and its time in us.
using PqdifKeep = std::function<bool(const QByteArray &body, qint64 time)>;

/// The rows of tables as value logs: observations of a table, each of as many rows as came until flush() or fill the
/// memory set aside for them.
class PqdifTrends
{
public:
    static constexpr int kMostCells = 256 * 1024; // of a table, kept at a time: 2 MiB

    PqdifTrends(PqdifChannels *channels, PqdifKeep keep) : m_channels(channels), m_keep(std::move(keep)) { }

    /// Tables of happenings are no trends; their rows are passed over.
    void table(int number, const RecordTable &table, const RecordFacts &facts);
    bool has(int table) const { return m_trends.contains(table); }
    /// Of a moment that a calendar has.
    bool row(const RecordRow &row);
    bool flush();

private:
    /// One channel of the observations; its cells stand in the order of its series.
    struct Line
    {
        int definition = 0;
        int group = -1;
        QVector<int> cells;
        bool isDouble = false;
    };
    struct Trend
    {
        QByteArray name;
        int columns = 0; // with numbers
        QVector<Line> lines;
        std::vector<qint64> times; // ms
        std::vector<double> cells; // row by row
        qint64 interval = 0; // ms, the shortest so far, 0: not known
    };
    bool flush(Trend *trend);
    void addLine(const Trend &trend, const Line &line, const std::vector<int> &order,
                 class PqdifObservation *observation, const QVector<double> &times) const;

    PqdifChannels *m_channels;
    PqdifKeep m_keep;
    qint64 m_start = 0; // ms, of the recording; 0: not known
    QMap<int, Trend> m_trends; // by number of the table
};
