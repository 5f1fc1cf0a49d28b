#pragma once

#include "record/tables/linereader.h"
#include "record/tables/logcolumns.h"
#include "record/tables/recordreading.h"

class RecordOutput;

/// A file of the logger: lines of text under a header. Its times are those of the user's clock, of a zone that it does
/// not tell; they are handed on as they stand.
class LogReading : public RecordReading
{
public:
    explicit LogReading(const QString &path) : RecordReading(RecordKind::Log, path) { }

    bool scan(const RecordProgress &progress) override;
    bool read(RecordSink &sink, const RecordProgress &progress) override;
    QVector<std::pair<QString, QString>> details() const override;

    /// The time of a line, ms; below 0 for a line that is none of the logger's. \a cells: columns behind the time.
    static qint64 timeOf(const QByteArray &line, int cells);

    /// Columns behind the time that a header tells.
    static int headerCells(const QByteArray &line);

private:
    bool readLine(RecordOutput &out, const QByteArray &line, qint64 time);

    LogColumns m_columns;
    qint64 m_lines = 0; // that are right
    std::vector<std::vector<double>> m_cells; // of the tables
};
