#include "record/exports/sqliteexport.h"

#include "record/exports/celltext.h"
#include "record/exports/wavetime.h"
#include "record/tables/isotime.h"
#include "record/tables/recordevents.h"
#include "record/tables/recordnames.h"

#include <QSet>

namespace {

constexpr int kTimeColumns = 2;
constexpr char kTimes[] = "time_utc TEXT NOT NULL, time_ms INTEGER NOT NULL";

const char *sqlType(CellType type)
{
    switch (type) {
    case CellType::Single:
    case CellType::Double:
        return "REAL";
    case CellType::Integer:
        return "INTEGER";
    case CellType::Text:
        break;
    }
    return "TEXT";
}

QByteArray insertInto(const QByteArray &table, int columns)
{
    QByteArray marks("?");
    for (int i = 1; i < columns; ++i)
        marks += ",?";
    return "INSERT INTO " + SqliteBase::quoted(table) + " VALUES(" + marks + ')';
}

void bindNumber(SqliteStatement *statement, double value, CellType type)
{
    if (!CellText::hasValue(value, type))
        statement->bindNothing();
    else if (type == CellType::Integer)
        statement->bind(qint64(value));
    else
        statement->bind(value);
}

/// The quoted name of a column. A database does not tell capitals from small letters; names that a foreign file gives
/// twice get numbers.
QByteArray uniqueName(const QByteArray &name, QSet<QByteArray> *taken)
{
    QByteArray unique = SqliteBase::quoted(name);
    for (int i = 2; taken->contains(unique.toLower()); ++i)
        unique = SqliteBase::quoted(name + '_' + QByteArray::number(i));
    taken->insert(unique.toLower());
    return unique;
}

const char *originName(RecordedWaveform::Origin origin)
{
    static constexpr const char *kNames[] = { "event", "transient", "capture" };
    return kNames[origin];
}

QByteArray timeText(qint64 time)
{
    return time == 0 ? QByteArray() : IsoTime::text(time);
}

} // namespace

SqliteExport::SqliteExport(OutputPlace place) : m_output(Output::File, std::move(place)) { }

bool SqliteExport::begin(const RecordFacts &)
{
    if (!m_output.begin())
        return false;
    return m_base.open(m_output.path()) || fail();
}

bool SqliteExport::table(int number, const RecordTable &table)
{
    if (number < 0)
        return m_output.fail({}, QStringLiteral("a table has no number"));
    if (std::size_t(number) >= m_tables.size())
        m_tables.resize(std::size_t(number) + 1);
    m_hasEvents = m_hasEvents || table.name == "events";
    Parts parts;
    const int most = m_base.mostColumns() - kTimeColumns;
    for (int from = 0; from == 0 || from < table.columns.size(); from += most) {
        parts.emplace_back();
        const QByteArray suffix = from == 0 ? QByteArray() : '_' + QByteArray::number(int(parts.size()));
        if (!makePart(table.name + suffix, table.columns.mid(from, most), &parts.back()))
            return false;
    }
    m_tables[std::size_t(number)] = std::move(parts);
    return true;
}

bool SqliteExport::makePart(const QByteArray &name, const QVector<RecordColumn> &columns, Part *part)
{
    QByteArray sql = "CREATE TABLE " + SqliteBase::quoted(name) + '(' + kTimes;
    QSet<QByteArray> taken { SqliteBase::quoted("time_utc"), SqliteBase::quoted("time_ms") };
    for (const RecordColumn &column : columns) {
        part->cells.push_back(column.type);
        sql += ", " + uniqueName(column.name(), &taken) + ' ' + sqlType(column.type);
    }
    // Made before the rows, which come in the order of their times: they are put at its end, and nothing has to be
    // sorted later in files of its own.
    sql += "); CREATE INDEX " + SqliteBase::quoted(name + "_by_time") + " ON " + SqliteBase::quoted(name) + "(time_ms)";
    return (m_base.run(sql) && m_base.prepare(insertInto(name, kTimeColumns + columns.size()), &part->insert))
        || fail();
}

bool SqliteExport::row(const RecordRow &row)
{
    if (row.table < 0 || std::size_t(row.table) >= m_tables.size())
        return m_output.fail({}, QStringLiteral("a row has no table"));
    char bytes[IsoTime::kMost];
    const QByteArray time = QByteArray::fromRawData(bytes, int(IsoTime::print(bytes, row.time) - bytes));
    const double *number = row.numbers;
    const QByteArray *text = row.texts;
    for (Part &part : m_tables[std::size_t(row.table)]) {
        part.insert.bind(time);
        part.insert.bind(row.time);
        for (const CellType cell : part.cells) {
            if (cell == CellType::Text)
                part.insert.bind(*text++);
            else
                bindNumber(&part.insert, *number++, cell);
        }
        if (!part.insert.run())
            return m_base.keepReason() || fail();
    }
    return true;
}

bool SqliteExport::makeWaveformTables()
{
    if (m_insertWaveform.isPrepared())
        return true;
    return (m_base.run(
                QByteArray("CREATE TABLE waveforms(") + kTimes
                + ", number INTEGER PRIMARY KEY, origin TEXT, event INTEGER, rate_Hz REAL, trigger_sample INTEGER);"
                  "CREATE TABLE waveform_samples(waveform INTEGER, sample INTEGER, t_s REAL,"
                  " PRIMARY KEY(waveform, sample)) WITHOUT ROWID")
            && m_base.prepare(insertInto("waveforms", 7), &m_insertWaveform))
        || fail();
}

bool SqliteExport::waveformBegin(const RecordedWaveform &waveform)
{
    if (!makeWaveformTables())
        return false;
    m_waveform = waveform;
    m_sample = 0;
    QByteArray columns("waveform, sample, t_s"), marks("?,?,?");
    for (const RecordedWaveform::Channel &channel : waveform.channels) {
        const QByteArray name = SqliteBase::quoted(channel.name + '_' + channel.unit);
        // The next waveform may have an input that none before it had.
        if (m_waveColumns.insert(name).second
            && !m_base.run("ALTER TABLE waveform_samples ADD COLUMN " + name + " REAL"))
            return fail();
        columns += ", " + name;
        marks += ",?";
    }
    if (!m_base.prepare("INSERT INTO waveform_samples(" + columns + ") VALUES(" + marks + ')', &m_insertSample))
        return fail();
    qint64 time = 0;
    if (!WaveTime::ofSample(waveform, 0, &time))
        time = 0;
    const QByteArray text = IsoTime::text(time), origin = originName(waveform.origin);
    m_insertWaveform.bind(text);
    m_insertWaveform.bind(time);
    m_insertWaveform.bind(qint64(waveform.number));
    m_insertWaveform.bind(origin);
    if (waveform.event > 0)
        m_insertWaveform.bind(qint64(waveform.event));
    else
        m_insertWaveform.bindNothing();
    m_insertWaveform.bind(waveform.sampleRate);
    m_insertWaveform.bind(waveform.trigger);
    return m_insertWaveform.run() || m_base.keepReason() || fail();
}

bool SqliteExport::waveformSamples(const qint16 *samples, int count)
{
    for (int s = 0; s < count; ++s) {
        m_insertSample.bind(qint64(m_waveform.number));
        m_insertSample.bind(m_sample);
        m_insertSample.bind(WaveTime::secondsOfSample(m_waveform, m_sample++));
        for (const RecordedWaveform::Channel &channel : qAsConst(m_waveform.channels))
            bindNumber(&m_insertSample, double(float(*samples++) * channel.factor), CellType::Single);
        if (!m_insertSample.run())
            return m_base.keepReason() || fail();
    }
    return true;
}

/// Who asks a recording for its events gets none instead of an error.
bool SqliteExport::makeEventsUnlessThere()
{
    Part part;
    return m_hasEvents || makePart(eventTable().name, eventTable().columns, &part);
}

bool SqliteExport::putInfo(const RecordFacts &facts)
{
    const QByteArray texts[] = {
        recordKindName(facts.kind),  timeText(facts.start),          timeText(facts.end),     facts.model.toUtf8(),
        facts.serialNumber.toUtf8(), facts.softwareVersion.toUtf8(), facts.firmware.toUtf8(), facts.clamp.toUtf8(),
        facts.clampN.toUtf8(),       facts.ratio.toUtf8(),           facts.ratioN.toUtf8(),
    };
    SqliteStatement insert;
    if (!m_base.run("CREATE TABLE info(kind TEXT, start_utc TEXT, end_utc TEXT, model TEXT, serial TEXT, version TEXT,"
                    " firmware TEXT, clamp TEXT, clamp_N TEXT, ratio TEXT, ratio_N TEXT, wiring INTEGER,"
                    " nominal_voltage_V REAL, nominal_frequency_Hz REAL)")
        || !m_base.prepare(insertInto("info", 14), &insert))
        return fail();
    for (const QByteArray &text : texts) {
        if (text.isEmpty())
            insert.bindNothing();
        else
            insert.bind(text);
    }
    insert.bind(qint64(facts.joinMode));
    insert.bind(facts.nominalVolt);
    insert.bind(facts.nominalFrequency);
    return insert.run() || m_base.keepReason() || fail();
}

bool SqliteExport::end(const RecordFacts &facts)
{
    if (!makeEventsUnlessThere() || !putInfo(facts))
        return false;
    m_tables.clear();
    m_insertWaveform = {};
    m_insertSample = {};
    return (m_base.commitAndClose() || fail()) && m_output.finish();
}
