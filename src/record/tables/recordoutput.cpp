#include "record/tables/recordoutput.h"

namespace {

RecordColumn column(const char *name, const char *unit, CellType type)
{
    return { name, Statistic::None, {}, unit, type, -1 };
}

} // namespace

bool RecordOutput::row(const RecordTable &table, qint64 time, const double *numbers, const QByteArray *texts)
{
    auto told = m_told.constFind(table.name);
    if (told == m_told.constEnd()) {
        told = m_told.insert(table.name, m_told.size());
        if (!m_sink.table(*told, table))
            return false;
    }
    return m_sink.row({ *told, time, numbers, texts });
}

const RecordTable &transientTable()
{
    static const RecordTable table { "transients",
                                     { column("waveform", "", CellType::Integer), column("channel", "", CellType::Text),
                                       column("U_extreme", "V", CellType::Single),
                                       column("f", "Hz", CellType::Single) } };
    return table;
}

const RecordTable &logTable()
{
    static const RecordTable table { "system_log", { column("text", "", CellType::Text) } };
    return table;
}
