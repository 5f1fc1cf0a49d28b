#pragma once

#include "record/exports/output.h"
#include "record/exports/outputfile.h"
#include "record/tables/recordsink.h"

#include <limits>
#include <vector>

/// A file in the line protocol that time-series databases take: a measurement for each table, a line for each moment
/// and channel, with the instrument's serial number as a tag, so that many instruments fill one database.
class InfluxExport : public RecordSink
{
public:
    explicit InfluxExport(OutputPlace place);

    bool begin(const RecordFacts &facts) override;
    bool table(int number, const RecordTable &table) override;
    bool row(const RecordRow &row) override;
    bool end(const RecordFacts &facts) override;
    QString error() const override { return m_output.error(); }
    bool isRefused() const override { return m_output.isRefused(); }

private:
    struct Field
    {
        QByteArray key; // with the sign behind it
        CellType type;
        int cell; // among the row's numbers or texts
    };
    struct Line
    {
        QByteArray channel; // as in the columns
        QByteArray start; // measurement and tags
        std::vector<Field> fields;
    };
    struct Table
    {
        std::vector<Line> lines;
        int channelText = -1; // among the row's texts: the cell that is the channel of the whole row
        qint64 time = std::numeric_limits<qint64>::min(); // ms, of the last row
        int sameTime = 0; // rows in front of it with this time
    };
    Line &lineOf(Table *table, const QByteArray &channel, const QByteArray &measurement);
    void putLine(const Line &line, const QByteArray &channel, const RecordRow &row, qint64 nanoseconds);

    Output m_output;
    OutputFile m_file;
    QByteArray m_instrument; // as a tag
    std::vector<Table> m_tables;
    QByteArray m_line;
    qint64 m_untold = 0; // rows of a time that the protocol cannot tell
};
