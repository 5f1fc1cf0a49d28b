#include "record/exports/csvexport.h"
#include "record/exports/influxexport.h"
#include "record/exports/sqliteexport.h"
#include "wildrecording.h"

#include <QTest>

#include <sqlite3.h>

#include <cmath>
#include <cstring>

using namespace ExportFeed;

namespace {

bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

/// Whether this text or nothing stands where a number was told.
bool tellsNumber(const QByteArray &text, double told, CellType type)
{
    const bool isNone
        = type == CellType::Integer ? std::fabs(told) >= 9.2e18 || std::isnan(told) : !std::isfinite(told);
    if (isNone)
        return text.isEmpty();
    char *end = nullptr;
    if (type == CellType::Integer) // zero has no sign
        return std::strtoll(text.constData(), &end, 10) == qint64(told) && *end == 0 && !text.isEmpty();
    const double read
        = type == CellType::Single ? double(std::strtof(text.constData(), &end)) : std::strtod(text.constData(), &end);
    return !text.isEmpty() && *end == 0 && sameBits(read, told);
}

/// Cells of a file by RFC 4180, as a strict reader takes them; nothing for a file that is none.
QVector<QVector<QByteArray>> cellsOf(const QByteArray &file)
{
    QVector<QVector<QByteArray>> lines { {} };
    for (int at = 0; at < file.size();) {
        QByteArray cell;
        if (file.at(at) == '"') {
            for (++at; at < file.size() && (file.at(at) != '"' || file.mid(at + 1, 1) == "\""); ++at) {
                at += file.at(at) == '"';
                cell += file.at(at);
            }
            ++at;
        } else {
            for (; at < file.size() && !strchr(",\n", file.at(at) ? file.at(at) : 'x'); ++at) {
                if (file.at(at) == '"' || file.at(at) == '\r')
                    return {};
                cell += file.at(at);
            }
        }
        if (at >= file.size() || (file.at(at) != ',' && file.at(at) != '\n'))
            return {};
        lines.last().append(cell);
        if (file.at(at++) == '\n')
            lines.append(QVector<QByteArray>());
    }
    lines.removeLast();
    return lines;
}

/// A line of the protocol, taken apart; no fields: it is none.
struct ProtocolLine
{
    QByteArray measurement;
    QVector<QPair<QByteArray, QByteArray>> tags, fields;
    qint64 time = 0;
};

class ProtocolReader
{
public:
    explicit ProtocolReader(const QByteArray &text) : m_text(text) { }

    bool atEnd() const { return m_at >= m_text.size(); }
    ProtocolLine next()
    {
        ProtocolLine line;
        line.measurement = word(", ");
        while (take(',')) {
            const QByteArray key = word("= ,");
            if (!take('='))
                return {};
            line.tags.append({ key, word(", =") });
        }
        do {
            if (line.fields.isEmpty() ? !take(' ') : false)
                return {};
            const QByteArray key = word("= ,");
            if (key.isEmpty() || !take('='))
                return {};
            line.fields.append({ key, take('"') ? string() : word(", ") });
        } while (take(','));
        bool isNumber = take(' ');
        const int end = m_text.indexOf('\n', m_at);
        line.time = isNumber ? m_text.mid(m_at, end - m_at).toLongLong(&isNumber) : 0;
        m_at = end < 0 ? m_text.size() : end + 1;
        return isNumber && end >= 0 ? line : ProtocolLine();
    }

private:
    bool take(char c)
    {
        if (atEnd() || m_text.at(m_at) != c)
            return false;
        ++m_at;
        return true;
    }
    QByteArray word(const char *ends)
    {
        QByteArray word;
        for (; !atEnd() && m_text.at(m_at) != '\n' && !(m_text.at(m_at) && strchr(ends, m_text.at(m_at))); ++m_at) {
            if (m_text.at(m_at) == '\\' && m_at + 1 < m_text.size() && strchr(",= ", m_text.at(m_at + 1)))
                ++m_at;
            word += m_text.at(m_at);
        }
        return word;
    }
    QByteArray string()
    {
        QByteArray string = "\"";
        for (; !atEnd() && m_text.at(m_at) != '"'; ++m_at) {
            if (m_text.at(m_at) == '\\')
                ++m_at;
            string += m_text.mid(m_at, 1);
        }
        ++m_at;
        return string;
    }

    const QByteArray m_text;
    int m_at = 0;
};

} // namespace

/// Recordings with wild content: every export is a file that a strict reader takes, and finds the content in.
class TstWildTables : public QObject
{
    Q_OBJECT

private slots:
    void csvIsTakenByAStrictReader();
    void databaseIsSoundAndHasEveryCell();
    void everyLineOfTheProtocolIsOne();

private:
    static constexpr quint32 kRecordings = 150;
    QTemporaryDir m_folder;
};

void TstWildTables::csvIsTakenByAStrictReader()
{
    for (quint32 seed = 1; seed <= kRecordings; ++seed) {
        const WildRecording wild(seed);
        CsvExport csv({ m_folder.filePath(QStringLiteral("csv")), QString(), true });
        QVERIFY2(wild.feed(&csv), qPrintable(csv.error()));
        const auto lines = cellsOf(contentOf(m_folder.filePath(QStringLiteral("csv/log.csv"))));
        QCOMPARE(lines.size(), int(wild.rows.size()) + 1);
        for (int l = 0; l < lines.size(); ++l) {
            QCOMPARE(lines.at(l).size(), wild.table.columns.size() + 1);
            std::size_t number = 0, text = 0;
            for (int c = 0; c < wild.table.columns.size(); ++c) {
                const QByteArray &cell = lines.at(l).at(c + 1);
                const RecordColumn &column = wild.table.columns.at(c);
                if (l == 0) {
                    QCOMPARE(cell, column.name());
                    continue;
                }
                const WildRow &row = wild.rows[std::size_t(l - 1)];
                if (column.type == CellType::Text)
                    QCOMPARE(cell, row.texts[text++]);
                else
                    QVERIFY2(tellsNumber(cell, row.numbers[number++], column.type), cell);
            }
        }
    }
}

void TstWildTables::databaseIsSoundAndHasEveryCell()
{
    const QString path = m_folder.filePath(QStringLiteral("out.db"));
    for (quint32 seed = 1; seed <= kRecordings; ++seed) {
        const WildRecording wild(seed);
        SqliteExport sqlite({ path, QString(), true });
        QVERIFY2(wild.feed(&sqlite), qPrintable(sqlite.error()));
        sqlite3 *base = nullptr;
        sqlite3_stmt *query = nullptr;
        QCOMPARE(sqlite3_open_v2(QFile::encodeName(path).constData(), &base, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
        QCOMPARE(sqlite3_prepare_v2(base, "select * from log order by rowid", -1, &query, nullptr), SQLITE_OK);
        QCOMPARE(sqlite3_column_count(query), wild.table.columns.size() + 2);
        for (const WildRow &row : wild.rows) {
            QCOMPARE(sqlite3_step(query), SQLITE_ROW);
            QCOMPARE(qint64(sqlite3_column_int64(query, 1)), row.time);
            std::size_t number = 0, text = 0;
            for (int c = 0; c < wild.table.columns.size(); ++c) {
                const CellType type = wild.table.columns.at(c).type;
                if (type == CellType::Text) {
                    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(query, c + 2));
                    QCOMPARE(QByteArray(bytes, sqlite3_column_bytes(query, c + 2)), row.texts[text++]);
                    continue;
                }
                const double told = row.numbers[number++];
                const bool isNone = sqlite3_column_type(query, c + 2) == SQLITE_NULL;
                const bool isFound = isNone
                    ? tellsNumber("", told, type)
                    : sqlite3_column_double(query, c + 2) == told && !tellsNumber("", told, type);
                QVERIFY2(isFound, QByteArray::number(told, 'g', 17));
            }
        }
        QCOMPARE(sqlite3_step(query), SQLITE_DONE);
        sqlite3_finalize(query);
        QCOMPARE(sqlite3_close(base), SQLITE_OK);
    }
}

void TstWildTables::everyLineOfTheProtocolIsOne()
{
    int lines = 0;
    for (quint32 seed = 1; seed <= kRecordings; ++seed) {
        const WildRecording wild(seed);
        const QString path = m_folder.filePath(QStringLiteral("out.line"));
        InfluxExport influx({ path, QString(), true });
        QVERIFY2(wild.feed(&influx), qPrintable(influx.error()));
        int known = 0, told = 0;
        for (const WildRow &row : wild.rows) {
            const bool hasTime = std::fabs(double(row.time)) < 9.2e12;
            std::size_t number = 0, text = 0;
            for (const RecordColumn &column : wild.table.columns) {
                const bool isTag = column.quantity == "channel" && column.type == CellType::Text;
                const bool isThere = column.type == CellType::Text
                    ? !row.texts[text++].isEmpty()
                    : !tellsNumber("", row.numbers[number++], column.type);
                told += hasTime && isThere && !isTag;
            }
        }
        QByteArray content = contentOf(path);
        const int comment = content.lastIndexOf("\n# ");
        if (content.startsWith("# "))
            content.clear();
        else if (comment >= 0 && content.endsWith("do not reach their time\n"))
            content.truncate(comment + 1);
        for (ProtocolReader reader(content); !reader.atEnd(); ++lines) {
            const ProtocolLine line = reader.next();
            QVERIFY2(!line.fields.isEmpty(), content);
            QCOMPARE(line.measurement, QByteArray("log"));
            QCOMPARE(line.tags.at(0).first, QByteArray("instrument"));
            QVERIFY(!line.tags.at(0).second.isEmpty() && line.tags.size() <= 2);
            known += line.fields.size();
        }
        QCOMPARE(known, told);
    }
    QVERIFY(lines > 400);
}

QTEST_GUILESS_MAIN(TstWildTables)
#include "tst_wildtables.moc"
