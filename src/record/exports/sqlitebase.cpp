#include "record/exports/sqlitebase.h"

#include <QFile>

#include <sqlite3.h>

void SqliteStatement::Finish::operator()(sqlite3_stmt *statement) const
{
    sqlite3_finalize(statement);
}

void SqliteStatement::bind(qint64 value)
{
    sqlite3_bind_int64(m_statement.get(), ++m_bound, value);
}

void SqliteStatement::bind(double value)
{
    sqlite3_bind_double(m_statement.get(), ++m_bound, value);
}

void SqliteStatement::bind(const QByteArray &text)
{
    sqlite3_bind_text(m_statement.get(), ++m_bound, text.constData(), text.size(), SQLITE_STATIC);
}

bool SqliteStatement::run()
{
    const bool done = sqlite3_step(m_statement.get()) == SQLITE_DONE;
    sqlite3_reset(m_statement.get());
    sqlite3_clear_bindings(m_statement.get());
    m_bound = 0;
    return done;
}

void SqliteBase::Close::operator()(sqlite3 *base) const
{
    sqlite3_close_v2(base);
}

bool SqliteBase::open(const QString &path)
{
    sqlite3 *base = nullptr;
    constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOFOLLOW;
    const int status = sqlite3_open_v2(QFile::encodeName(path).constData(), &base, kFlags, nullptr);
    m_base.reset(base);
    if (status != SQLITE_OK)
        return keepReason();
    // What is thrown away as a whole needs no way back. Pages that no longer fit in the cache go to the file at once,
    // so that the largest recording takes no more memory than this.
    return run("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA locking_mode=EXCLUSIVE;"
               "PRAGMA cache_size=-8192; BEGIN EXCLUSIVE");
}

bool SqliteBase::run(const QByteArray &sql)
{
    return sqlite3_exec(m_base.get(), sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK || keepReason();
}

bool SqliteBase::prepare(const QByteArray &sql, SqliteStatement *statement)
{
    sqlite3_stmt *made = nullptr;
    const int status = sqlite3_prepare_v2(m_base.get(), sql.constData(), sql.size(), &made, nullptr);
    statement->m_statement.reset(made);
    statement->m_bound = 0;
    return status == SQLITE_OK || keepReason();
}

bool SqliteBase::commitAndClose()
{
    if (!run("COMMIT"))
        return false;
    return sqlite3_close(m_base.release()) == SQLITE_OK;
}

int SqliteBase::mostColumns() const
{
    return sqlite3_limit(m_base.get(), SQLITE_LIMIT_COLUMN, -1);
}

bool SqliteBase::keepReason()
{
    m_reason = m_base ? QString::fromUtf8(sqlite3_errmsg(m_base.get())) : QStringLiteral("out of memory");
    return false;
}

QByteArray SqliteBase::quoted(QByteArray name)
{
    return '"' + name.replace('"', "\"\"").replace('\0', '?') + '"'; // a statement ends at a zero
}
