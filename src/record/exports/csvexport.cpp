#include "record/exports/csvexport.h"

#include "record/exports/celltext.h"
#include "record/exports/wavetime.h"

#include <QRegularExpression>

namespace {

/// A text as a cell: in quotes where it would not be one otherwise, with its own quotes doubled.
void printText(OutputFile *file, const QByteArray &text)
{
    bool isPlain = true;
    for (const char c : text)
        isPlain = isPlain && c != '"' && c != ',' && c != '\n' && c != '\r';
    if (isPlain)
        return file->write(text);
    QByteArray quoted = text;
    quoted.replace('"', "\"\"");
    file->write('"' + quoted + '"');
}

void printHeader(OutputFile *file, const QVector<QByteArray> &names)
{
    file->write("time_utc", 8);
    for (const QByteArray &name : names) {
        file->write(",", 1);
        printText(file, name);
    }
    file->write("\n", 1);
}

} // namespace

CsvExport::CsvExport(OutputPlace place) : m_output(Output::Folder, std::move(place), writes) { }

bool CsvExport::writes(const QString &name)
{
    static const QRegularExpression ours(QStringLiteral("\\A([a-z0-9_]+|waveforms/[0-9]{4,})\\.csv\\z"));
    return ours.match(name).hasMatch();
}

bool CsvExport::begin(const RecordFacts &)
{
    return m_output.begin();
}

bool CsvExport::table(int number, const RecordTable &table)
{
    if (number < 0)
        return m_output.fail({}, QStringLiteral("a table has no number"));
    if (std::size_t(number) >= m_tables.size())
        m_tables.resize(std::size_t(number) + 1);
    auto made = std::make_unique<Table>();
    made->name = QString::fromUtf8(table.name) + QStringLiteral(".csv");
    if (!writes(made->name))
        return m_output.fail(made->name, QStringLiteral("is no name of a table"));
    if (!made->file.open(m_output.path() + QLatin1Char('/') + made->name))
        return m_output.fail(made->name, made->file.reason());
    QVector<QByteArray> names;
    for (const RecordColumn &column : table.columns) {
        made->cells.push_back(column.type);
        names.append(column.name());
    }
    printHeader(&made->file, names);
    m_tables[std::size_t(number)] = std::move(made);
    return true;
}

bool CsvExport::row(const RecordRow &row)
{
    Table *table
        = row.table >= 0 && std::size_t(row.table) < m_tables.size() ? m_tables[std::size_t(row.table)].get() : nullptr;
    if (!table)
        return m_output.fail({}, QStringLiteral("a row has no table"));
    OutputFile &file = table->file;
    file.wrote(IsoTime::print(file.room(), row.time));
    const double *number = row.numbers;
    const QByteArray *text = row.texts;
    for (const CellType cell : table->cells) {
        if (cell == CellType::Text) {
            file.write(",", 1);
            printText(&file, *text++);
            continue;
        }
        char *at = file.room();
        *at++ = ',';
        if (CellText::hasValue(*number, cell))
            at = CellText::print(at, *number, cell);
        ++number;
        file.wrote(at);
    }
    file.write("\n", 1);
    return !file.hasFailed() || m_output.fail(table->name, file.reason());
}

bool CsvExport::waveformBegin(const RecordedWaveform &waveform)
{
    if (!m_hasWaveforms && !m_output.makeFolder(QStringLiteral("waveforms")))
        return false;
    m_hasWaveforms = true;
    m_waveform = waveform;
    m_sample = 0;
    m_waveName = QStringLiteral("waveforms/%1.csv").arg(waveform.number, 4, 10, QLatin1Char('0'));
    if (!m_waveFile.open(m_output.path() + QLatin1Char('/') + m_waveName))
        return m_output.fail(m_waveName, m_waveFile.reason());
    QVector<QByteArray> names { "t_s" };
    for (const RecordedWaveform::Channel &channel : waveform.channels)
        names.append(channel.name + '_' + channel.unit);
    printHeader(&m_waveFile, names);
    return true;
}

/// Where no time is known the cell stays empty.
void CsvExport::printSampleTime(qint64 sample)
{
    char *at = m_waveFile.room();
    qint64 time = 0;
    if (WaveTime::ofSample(m_waveform, sample, &time)) {
        if (time != m_shownTime) {
            m_timeSize = int(IsoTime::print(m_time, time) - m_time);
            m_shownTime = time;
        }
        at = std::copy_n(m_time, m_timeSize, at);
    }
    *at++ = ',';
    at = CellText::print(at, WaveTime::secondsOfSample(m_waveform, sample), CellType::Double);
    m_waveFile.wrote(at);
}

bool CsvExport::waveformSamples(const qint16 *samples, int count)
{
    for (int s = 0; s < count; ++s) {
        printSampleTime(m_sample++);
        for (const RecordedWaveform::Channel &channel : qAsConst(m_waveform.channels)) {
            char *at = m_waveFile.room();
            *at++ = ',';
            const double value = float(*samples++) * channel.factor;
            if (CellText::hasValue(value, CellType::Single))
                at = CellText::print(at, value, CellType::Single);
            m_waveFile.wrote(at);
        }
        m_waveFile.write("\n", 1);
    }
    return !m_waveFile.hasFailed() || m_output.fail(m_waveName, m_waveFile.reason());
}

bool CsvExport::waveformEnd()
{
    return close(&m_waveFile, m_waveName);
}

bool CsvExport::close(OutputFile *file, const QString &name)
{
    return file->close() || m_output.fail(name, file->reason());
}

bool CsvExport::end(const RecordFacts &)
{
    for (const auto &table : m_tables) {
        if (table && !close(&table->file, table->name))
            return false;
    }
    return m_output.finish();
}
