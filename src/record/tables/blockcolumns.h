#pragma once

#include "record/tables/recordtable.h"

#include <functional>
#include <vector>

// Which columns of which table the blocks of a recording are. A reader's own account of the format, apart from the
// tables that the writers go by: a slip in one of them shows where the two meet.

/// A value of a block.
struct BlockField
{
    QByteArray quantity; // empty: no column
    const char *unit = "";
    int rank = -1; // place among the table's quantities
    qint16 order = -1; // of a line
    bool isVoltage = false; // between lines where the wiring has no star point
};

/// For which channels a block holds its values.
enum class BlockRows : quint8 {
    Single, // for none: they belong to the supply
    Channels, // those that the wiring records
    Powers, // the same, the fourth being the total
    ThreePhases, // always three
    MeasuredPhases // one to three
};

/// A kind of block with a time and values behind it. Some kinds feed two tables: they have two entries.
struct BlockKind
{
    quint32 type;
    const char *table;
    Statistic statistic;
    BlockRows rows;
    CellType cells; // Single or Double
    int timeBytes; // 8: ms since 1970, 4: s
    const std::vector<BlockField> *fields; // of each channel
};

/// All kinds with values, by type.
const std::vector<BlockKind> &blockKinds();
/// The kinds of one type, one behind the other; empty for what holds no values.
struct BlockKindRange
{
    const BlockKind *first = nullptr;
    const BlockKind *last = nullptr; // behind the last one
    const BlockKind *begin() const { return first; }
    const BlockKind *end() const { return last; }
    bool isEmpty() const { return first == last; }
};
BlockKindRange blockKindsOf(quint32 type);

/// Bytes of a payload with its time. A wiring that is not known (0) counts as one with all channels.
int blockBytes(const BlockKind &kind, int joinMode);

/// The tables with values, those of happenings and the log, in the order in which they are listed.
const QVector<QByteArray> &recordTableNames();
/// "L1", "L12", "N": what an input is called.
QByteArray inputName(int joinMode, int channel, bool isVoltage);

/// The columns of the tables of one recording, and where in them each value of its blocks stands.
class BlockColumns
{
public:
    /// \a isThere: whether the recording has blocks of this type.
    BlockColumns(int joinMode, const std::function<bool(quint32 type)> &isThere);

    const QVector<RecordTable> &tables() const { return m_tables; }
    /// A kind of block: its table, and for each value the place among the table's cells, -1 for none.
    struct Place
    {
        int table = -1; // -1: the recording has no such blocks
        std::vector<int> cells;
    };
    const Place &place(const BlockKind &kind) const { return m_places[std::size_t(&kind - blockKinds().data())]; }

private:
    QVector<RecordTable> m_tables;
    std::vector<Place> m_places; // of blockKinds()
};
