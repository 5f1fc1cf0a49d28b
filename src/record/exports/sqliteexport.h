#pragma once

#include "record/exports/output.h"
#include "record/exports/sqlitebase.h"
#include "record/tables/recordsink.h"

#include <memory>
#include <set>
#include <vector>

/// A database of SQLite with the tables of a recording, its events, its waveforms and what it says of itself.
class SqliteExport : public RecordSink
{
public:
    explicit SqliteExport(OutputPlace place);

    bool begin(const RecordFacts &facts) override;
    bool waveformBegin(const RecordedWaveform &waveform) override;
    bool waveformSamples(const qint16 *samples, int count) override;
    bool table(int number, const RecordTable &table) override;
    bool row(const RecordRow &row) override;
    bool end(const RecordFacts &facts) override;
    QString error() const override { return m_output.error(); }
    bool isRefused() const override { return m_output.isRefused(); }

private:
    /// A table in the database. One of more columns than a database takes goes on in another one.
    struct Part
    {
        std::vector<CellType> cells;
        SqliteStatement insert;
    };
    using Parts = std::vector<Part>;

    bool makePart(const QByteArray &name, const QVector<RecordColumn> &columns, Part *part);
    bool makeWaveformTables();
    bool makeEventsUnlessThere();
    bool putInfo(const RecordFacts &facts);
    bool fail() { return m_output.fail({}, m_base.reason()); }

    Output m_output;
    SqliteBase m_base; // before the statements, which go first
    std::vector<Parts> m_tables;
    bool m_hasEvents = false;
    RecordedWaveform m_waveform; // the one that goes on
    std::set<QByteArray> m_waveColumns;
    SqliteStatement m_insertWaveform, m_insertSample;
    qint64 m_sample = 0; // the next one
};
