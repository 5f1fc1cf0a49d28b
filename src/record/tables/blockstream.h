#pragma once

#include "record/tables/blockcheck.h"
#include "record/tables/blockcolumns.h"
#include "record/tables/pqa2walk.h"

#include <deque>
#include <memory>

/// A thing that a file tells at a moment.
struct StreamItem
{
    enum Kind : quint8 { Row, Log, Transient, EventWave };

    Kind kind = Row;
    qint64 time = 0; // ms since 1970
    int table = 0; // of a row, as BlockColumns numbers them
    int part = 0; // of the recording
    std::vector<double> numbers; // of a row
    QByteArray payload; // of all others
};

/// What one file tells, in all its parts, one thing after the other. Blocks of one time are the row of one interval.
class BlockStream
{
public:
    struct Part
    {
        int number; // among the parts of the recording
        QString path;
        bool isBroken; // there are blocks behind damage
    };

    BlockStream(std::vector<Part> parts, const BlockColumns &columns, const BlockCheck &check);

    /// Null at the end.
    StreamItem *head();
    void take();
    /// Bytes behind it.
    qint64 done() const { return m_done + m_at; }

private:
    struct OpenRow
    {
        bool isUsed = false;
        std::vector<double> numbers;
    };

    bool readOn();
    void takeBlock(const Pqa2Block &block);
    void takeValues(const Pqa2Block &block, qint64 time);
    void takeOther(StreamItem::Kind kind, const Pqa2Block &block, qint64 time);
    void closeRows();

    const std::vector<Part> m_parts;
    const BlockColumns &m_columns;
    const BlockCheck &m_check;
    std::size_t m_part = 0; // of m_parts
    std::unique_ptr<Pqa2Walk> m_walk;
    qint64 m_done = 0, m_at = 0;
    std::deque<StreamItem> m_ready;

    // The rows of the moment
    qint64 m_time = -1;
    std::vector<OpenRow> m_rows; // of the tables
    std::vector<quint32> m_types; // that they have
};
