#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

/// A statement that is prepared once and run many times. Its values are bound from the first to the last.
class SqliteStatement
{
public:
    SqliteStatement() = default;
    void bind(qint64 value);
    /// Not-a-number: no value.
    void bind(double value);
    /// UTF-8, kept by the caller until run().
    void bind(const QByteArray &text);
    void bindNothing() { ++m_bound; }
    /// False: SqliteBase::reason() says why.
    bool run();
    bool isPrepared() const { return m_statement != nullptr; }

private:
    friend class SqliteBase;
    struct Finish
    {
        void operator()(sqlite3_stmt *statement) const;
    };
    std::unique_ptr<sqlite3_stmt, Finish> m_statement;
    int m_bound = 0;
};

/// An SQLite database that is made in one go and thrown away if that fails: one transaction, and no journal beside it.
class SqliteBase
{
public:
    /// Opens an empty file and begins the transaction.
    bool open(const QString &path);
    bool run(const QByteArray &sql);
    bool prepare(const QByteArray &sql, SqliteStatement *statement);
    /// All statements have to be gone.
    bool commitAndClose();
    int mostColumns() const; // of a table
    /// Why the last call failed, for people.
    QString reason() const { return m_reason; }
    /// Keeps the reason why a statement failed; answers false.
    bool keepReason();

    /// A name as it stands in a statement.
    static QByteArray quoted(QByteArray name);

private:
    struct Close
    {
        void operator()(sqlite3 *base) const;
    };
    std::unique_ptr<sqlite3, Close> m_base;
    QString m_reason;
};
