#pragma once

#include "record/exports/output.h"
#include "record/exports/outputfile.h"
#include "record/tables/isotime.h"
#include "record/tables/recordsink.h"

#include <limits>
#include <memory>
#include <vector>

/// A folder with a file of comma-separated values for each table, as RFC 4180 quotes them, and one for each waveform:
/// what a spreadsheet and every language read. Lines end with a line feed.
class CsvExport : public RecordSink
{
public:
    explicit CsvExport(OutputPlace place);

    bool begin(const RecordFacts &facts) override;
    bool end(const RecordFacts &facts) override;
    QString error() const override { return m_output.error(); }
    bool isRefused() const override { return m_output.isRefused(); }
    bool table(int number, const RecordTable &table) override;
    bool row(const RecordRow &row) override;
    bool waveformBegin(const RecordedWaveform &waveform) override;
    bool waveformSamples(const qint16 *samples, int count) override;
    bool waveformEnd() override;

    /// Whether a file of that name is one of such a folder.
    static bool writes(const QString &name);

private:
    struct Table
    {
        QString name; // of its file
        std::vector<CellType> cells;
        OutputFile file;
    };
    bool close(OutputFile *file, const QString &name);
    void printSampleTime(qint64 sample);

    Output m_output;
    std::vector<std::unique_ptr<Table>> m_tables;
    bool m_hasWaveforms = false;
    RecordedWaveform m_waveform; // the one that goes on
    QString m_waveName;
    OutputFile m_waveFile;
    qint64 m_sample = 0; // the next one
    qint64 m_shownTime = std::numeric_limits<qint64>::min(); // ms; many samples share one
    char m_time[IsoTime::kMost] {};
    int m_timeSize = 0;
};
