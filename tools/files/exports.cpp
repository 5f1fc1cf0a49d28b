#include "files/exports.h"

#include "record/exports/comtradeexport.h"
#include "record/exports/csvexport.h"
#include "record/exports/influxexport.h"
#include "record/exports/pqdifexport.h"
#include "record/exports/sqliteexport.h"

namespace {

template <typename Sink> std::unique_ptr<RecordSink> make(const OutputPlace &place)
{
    return std::make_unique<Sink>(place);
}

std::unique_ptr<RecordSink> makeCompressedPqdif(const OutputPlace &place)
{
    return std::make_unique<PqdifExport>(place, true);
}

} // namespace

const std::vector<ExportFormat> &exportFormats()
{
    static const std::vector<ExportFormat> formats {
        { "--csv", "DIR", "tables and waveforms as comma-separated values", make<CsvExport> },
        { "--sqlite", "FILE", "tables and waveforms as an SQLite database", make<SqliteExport> },
        { "--comtrade", "DIR", "waveforms as COMTRADE pairs", make<ComtradeExport> },
        { "--pqdif", "FILE", "trends, events and waveforms as a PQDIF file", make<PqdifExport> },
        { "--pqdif-zlib", "FILE", "the same, its records compressed", makeCompressedPqdif },
        { "--influx", "FILE", "tables as line protocol for a time-series database", make<InfluxExport> },
    };
    return formats;
}
