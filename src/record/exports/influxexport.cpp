#include "record/exports/influxexport.h"

#include "record/exports/celltext.h"

#include <limits>

namespace {

constexpr qint64 kNanoseconds = 1000000; // of a ms
constexpr qint64 kMostTime = std::numeric_limits<qint64>::max() / kNanoseconds - 1; // ms

/// A text as a tag. The protocol has no sign for a line feed in one, nor for a backslash in front of what ends it.
QByteArray tag(const QByteArray &text)
{
    QByteArray escaped;
    for (const char c : text) {
        if (c == ',' || c == '=' || c == ' ')
            escaped += '\\';
        escaped += c == '\\' ? '/' : uchar(c) < ' ' ? '_' : c;
    }
    return escaped;
}

/// A text as the value of a field.
QByteArray quoted(QByteArray text)
{
    return '"' + text.replace('\\', "\\\\").replace('"', "\\\"") + '"';
}

} // namespace

InfluxExport::InfluxExport(OutputPlace place) : m_output(Output::File, std::move(place)) { }

bool InfluxExport::begin(const RecordFacts &facts)
{
    const QString name = facts.serialNumber.isEmpty() ? facts.model : facts.serialNumber;
    m_instrument = name.isEmpty() ? QByteArray("unknown") : tag(name.toUtf8());
    if (!m_output.begin())
        return false;
    return m_file.open(m_output.path()) || m_output.fail({}, m_file.reason());
}

InfluxExport::Line &InfluxExport::lineOf(Table *table, const QByteArray &channel, const QByteArray &measurement)
{
    for (Line &line : table->lines) {
        if (line.channel == channel)
            return line;
    }
    QByteArray start = tag(measurement) + ",instrument=" + m_instrument;
    if (!channel.isEmpty())
        start += ",channel=" + tag(channel);
    table->lines.push_back({ channel, start, {} });
    return table->lines.back();
}

bool InfluxExport::table(int number, const RecordTable &table)
{
    if (number < 0)
        return m_output.fail({}, QStringLiteral("a table has no number"));
    if (std::size_t(number) >= m_tables.size())
        m_tables.resize(std::size_t(number) + 1);
    Table made;
    int numbers = 0, texts = 0;
    for (const RecordColumn &column : table.columns) {
        const bool isText = column.type == CellType::Text;
        const int cell = isText ? texts++ : numbers++;
        if (isText && column.quantity == "channel") {
            made.channelText = cell;
            continue;
        }
        const QByteArray key = RecordColumn { column.quantity, column.statistic, {}, {}, column.type, -1 }.name();
        const QByteArray named = key.isEmpty() ? QByteArray("value") : tag(key);
        lineOf(&made, column.channel, table.name).fields.push_back({ named + '=', column.type, cell });
    }
    m_tables[std::size_t(number)] = std::move(made);
    return true;
}

void InfluxExport::putLine(const Line &line, const QByteArray &channel, const RecordRow &row, qint64 nanoseconds)
{
    m_line = line.start;
    if (line.channel.isEmpty() && !channel.isEmpty())
        m_line += ",channel=" + tag(channel);
    char separator = ' ';
    char number[CellText::kMost];
    for (const Field &field : line.fields) {
        const bool isText = field.type == CellType::Text;
        if (isText ? row.texts[field.cell].isEmpty() : !CellText::hasValue(row.numbers[field.cell], field.type))
            continue;
        m_line += separator;
        separator = ',';
        m_line += field.key;
        if (isText) {
            m_line += quoted(row.texts[field.cell]);
            continue;
        }
        m_line.append(number, int(CellText::print(number, row.numbers[field.cell], field.type) - number));
        if (field.type == CellType::Integer)
            m_line += 'i';
    }
    if (separator == ' ')
        return; // a line without a field is none
    m_line += ' ';
    m_line += QByteArray::number(nanoseconds);
    m_line += '\n';
    m_file.write(m_line);
}

bool InfluxExport::row(const RecordRow &row)
{
    if (row.table < 0 || std::size_t(row.table) >= m_tables.size())
        return m_output.fail({}, QStringLiteral("a row has no table"));
    Table &table = m_tables[std::size_t(row.table)];
    // A database keeps one line of a time and its tags. Things that happened in the same ms stay apart by nanoseconds,
    // by the same ones each time that the recording is exported.
    table.sameTime = row.time == table.time ? table.sameTime + 1 : 0;
    table.time = row.time;
    if (row.time > kMostTime || row.time < -kMostTime || table.sameTime >= kNanoseconds) {
        ++m_untold;
        return true;
    }
    const QByteArray channel = table.channelText < 0 ? QByteArray() : row.texts[table.channelText];
    for (const Line &line : table.lines)
        putLine(line, channel, row, row.time * kNanoseconds + table.sameTime);
    return !m_file.hasFailed() || m_output.fail({}, m_file.reason());
}

bool InfluxExport::end(const RecordFacts &)
{
    if (m_untold > 0)
        m_file.write("# " + QByteArray::number(m_untold) + " rows are missing: nanoseconds do not reach their time\n");
    return (m_file.close() || m_output.fail({}, m_file.reason())) && m_output.finish();
}
