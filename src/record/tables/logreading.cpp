#include "record/tables/logreading.h"

#include "record/tables/inputfile.h"
#include "record/tables/recordoutput.h"

#include <QDateTime>

#include <cmath>
#include <limits>

namespace {

constexpr int kTimeBytes = 20; // "2023/11/14  22:13:20"
constexpr int kProgressStep = 1000; // lines

/// The cells of a header behind the time. The last comma has nothing behind it.
std::vector<QByteArray> cellsOf(const QByteArray &line)
{
    QList<QByteArray> cells = line.split(',');
    if (cells.constLast().isEmpty()) // a line without a comma is one cell
        cells.removeLast();
    return { cells.begin() + (cells.isEmpty() ? 0 : 1), cells.end() };
}

} // namespace

int LogReading::headerCells(const QByteArray &line)
{
    return int(cellsOf(line).size());
}

qint64 LogReading::timeOf(const QByteArray &line, int cells)
{
    if (line.size() < kTimeBytes || line.count(',') != cells + 1 || line.at(kTimeBytes) != ',')
        return -1;
    const QString text = QString::fromLatin1(line.left(kTimeBytes));
    const QDate date = QDate::fromString(text.left(10), QStringLiteral("yyyy/MM/dd"));
    const QTime time = QTime::fromString(text.mid(12), QStringLiteral("hh:mm:ss"));
    return date.isValid() && time.isValid() ? QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch() : -1;
}

bool LogReading::scan(const RecordProgress &progress)
{
    RecordFileReport &report = m_files[0];
    QFile file;
    const QString reason = openInput(&file, report.path);
    report.size = file.size();
    LineReader lines(&file);
    QByteArray line;
    if (!lines.next(&line) || !line.startsWith("TIME,")) {
        report.fault(RecordState::Unreadable, 0, reason.isEmpty() ? QStringLiteral("no header of the logger") : reason);
        return true;
    }
    m_columns = LogColumns(cellsOf(line));
    const int cells = int(m_columns.places().size());
    if (!lines.isWhole())
        report.fault(RecordState::Cut, 0, QStringLiteral("the file ends inside its header"));
    if (m_columns.unknown() > 0)
        report.fault(RecordState::Broken, 0, QStringLiteral("columns of the header are not the logger's"));
    for (qint64 number = 0; lines.next(&line); ++number) {
        const qint64 time = timeOf(line, cells);
        if (!lines.isWhole()) {
            report.fault(RecordState::Cut, lines.offset(), QStringLiteral("the file ends inside a line"));
        } else if (time < 0) {
            report.fault(RecordState::Broken, lines.offset(), QStringLiteral("a line is none of the logger's"));
        } else {
            ++m_lines;
            report.start = report.start ? qMin(report.start, time) : time;
            report.end = qMax(report.end, time);
        }
        if (progress && number % kProgressStep == 0 && !progress(lines.offset(), report.size))
            return false;
    }
    m_facts.start = report.start;
    m_facts.end = report.end;
    return true;
}

QVector<std::pair<QString, QString>> LogReading::details() const
{
    return { { QStringLiteral("lines"),
               QStringLiteral("%1 of %2 columns").arg(m_lines).arg(m_columns.places().size()) } };
}

bool LogReading::read(RecordSink &sink, const RecordProgress &progress)
{
    QFile file;
    openInput(&file, m_files.at(0).path);
    LineReader lines(&file);
    RecordOutput out(sink);
    m_cells.clear();
    for (const RecordTable &table : m_columns.tables())
        m_cells.emplace_back(std::size_t(table.columns.size()));
    QByteArray line;
    if (!sink.begin(m_facts))
        return false;
    lines.next(&line);
    for (qint64 number = 0; lines.next(&line); ++number) {
        const qint64 time = lines.isWhole() ? timeOf(line, int(m_columns.places().size())) : -1;
        if (time >= 0 && !readLine(out, line, time))
            return false;
        if (progress && number % kProgressStep == 0 && !progress(lines.offset(), m_files.at(0).size))
            return false;
    }
    return sink.end(m_facts);
}

bool LogReading::readLine(RecordOutput &out, const QByteArray &line, qint64 time)
{
    int at = kTimeBytes + 1;
    for (const LogColumns::Place &place : m_columns.places()) {
        const int end = line.indexOf(',', at);
        bool isNumber = false;
        const double number = QByteArray::fromRawData(line.constData() + at, end - at).toDouble(&isNumber);
        at = end + 1;
        if (place.table >= 0)
            m_cells[std::size_t(place.table)][std::size_t(place.cell)]
                = isNumber && std::isfinite(number) ? number * place.factor : std::numeric_limits<double>::quiet_NaN();
    }
    for (int table = 0; table < m_columns.tables().size(); ++table) {
        if (!out.row(m_columns.tables().at(table), time, m_cells[std::size_t(table)].data()))
            return false;
    }
    return true;
}
