#include "record/tables/blockstream.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

template <typename Value> Value valueAt(const char **at)
{
    Value value;
    std::memcpy(&value, *at, sizeof value);
    *at += sizeof value;
    return value;
}

} // namespace

BlockStream::BlockStream(std::vector<Part> parts, const BlockColumns &columns, const BlockCheck &check)
    : m_parts(std::move(parts)), m_columns(columns), m_check(check), m_rows(std::size_t(columns.tables().size()))
{ }

StreamItem *BlockStream::head()
{
    while (m_ready.empty()) {
        if (!readOn())
            return nullptr;
    }
    return &m_ready.front();
}

void BlockStream::take()
{
    m_ready.pop_front();
}

/// False at the end of all.
bool BlockStream::readOn()
{
    if (m_part >= m_parts.size())
        return false;
    if (!m_walk)
        m_walk = std::make_unique<Pqa2Walk>(m_parts[m_part].path, m_parts[m_part].isBroken);
    Pqa2Block block;
    if (m_walk->next(&block)) {
        m_at = block.offset;
        takeBlock(block);
        return true;
    }
    m_done += m_walk->size();
    m_at = 0;
    m_walk.reset();
    if (++m_part == m_parts.size())
        closeRows();
    return true;
}

void BlockStream::takeBlock(const Pqa2Block &block)
{
    const BlockRole role = m_check.role(block.type);
    if (role < BlockRole::Values || role > BlockRole::EventWave)
        return;
    const BlockCheck::Finding finding = m_check.inspect(block, m_walk->payload(block, BlockCheck::kLook));
    if (finding.problem)
        return;
    if (role == BlockRole::Values)
        takeValues(block, finding.time);
    else
        takeOther(StreamItem::Kind(int(StreamItem::Log) + int(role) - int(BlockRole::Log)), block, finding.time);
}

void BlockStream::takeValues(const Pqa2Block &block, qint64 time)
{
    if (time != m_time || std::find(m_types.begin(), m_types.end(), block.type) != m_types.end())
        closeRows();
    const char *payload = m_walk->payload(block, block.size);
    if (!payload)
        return;
    m_time = time;
    m_types.push_back(block.type);
    for (const BlockKind &kind : blockKindsOf(block.type)) {
        const BlockColumns::Place &place = m_columns.place(kind);
        if (place.table < 0)
            continue; // was not there when the file was looked through
        OpenRow &row = m_rows[std::size_t(place.table)];
        if (!row.isUsed)
            row.numbers.assign(std::size_t(m_columns.tables().at(place.table).columns.size()),
                               std::numeric_limits<double>::quiet_NaN());
        row.isUsed = true;
        const char *at = payload + kind.timeBytes;
        for (const int cell : place.cells) {
            const double value = kind.cells == CellType::Double ? valueAt<double>(&at) : double(valueAt<float>(&at));
            if (cell >= 0)
                row.numbers[std::size_t(cell)] = value;
        }
    }
}

void BlockStream::takeOther(StreamItem::Kind kind, const Pqa2Block &block, qint64 time)
{
    constexpr qint64 kLongestLog = 4096; // bytes; the instrument's are short
    const qint64 most = kind == StreamItem::Log ? std::min<qint64>(kLongestLog, block.size) : block.size;
    const char *payload = m_walk->payload(block, most);
    if (!payload)
        return;
    StreamItem item;
    item.kind = kind;
    item.time = time;
    item.part = m_parts[m_part].number;
    item.payload = QByteArray(payload, int(most));
    m_ready.push_back(std::move(item));
}

void BlockStream::closeRows()
{
    for (std::size_t table = 0; table < m_rows.size() && !m_types.empty(); ++table) {
        if (!m_rows[table].isUsed)
            continue;
        StreamItem item;
        item.time = m_time;
        item.table = int(table);
        item.numbers = std::move(m_rows[table].numbers);
        m_rows[table] = {};
        m_ready.push_back(std::move(item));
    }
    m_types.clear();
}
