#include "record/exports/pqa2copy.h"

#include "record/exports/outputfile.h"

namespace {

void putHead(OutputFile *to, const Pqa2BlockHead &head)
{
    to->write(reinterpret_cast<const char *>(&head), sizeof head);
}

} // namespace

Pqa2Copy::Pqa2Copy(Pqa2Walk *from, OutputFile *to) : m_from(from), m_to(to), m_end(sizeof kPqa2FileHeader)
{
    m_to->write(reinterpret_cast<const char *>(&kPqa2FileHeader), sizeof kPqa2FileHeader);
}

void Pqa2Copy::add(const Pqa2Block &block)
{
    if (m_hasBlock)
        put(false);
    m_block = block;
    m_hasBlock = true;
}

void Pqa2Copy::put(bool isLast)
{
    constexpr qint64 kPiece = 1 << 20; // bytes
    const qint64 padded = (qint64(m_block.size) + 3) & ~qint64(3);
    m_end += qint64(sizeof(Pqa2BlockHead)) + padded;
    putHead(m_to, { isLast ? kPqa2LastBlock : quint32(m_end), m_block.type, m_block.size });
    qint64 at = 0;
    while (at < m_block.size) {
        const QByteArray piece = m_from->copy(m_block, at, kPiece);
        if (piece.isEmpty()) {
            m_isShort = true; // the file has become shorter
            return;
        }
        m_to->write(piece);
        at += piece.size();
    }
    for (; at < padded; ++at)
        m_to->write("", 1);
}

void Pqa2Copy::addEnd(quint32 seconds)
{
    if (!m_hasBlock)
        return; // nothing that could end
    put(false);
    m_hasBlock = false;
    putHead(m_to, { kPqa2LastBlock, Pqa2EndTime, sizeof seconds });
    m_to->write(reinterpret_cast<const char *>(&seconds), sizeof seconds);
    m_end += qint64(sizeof(Pqa2BlockHead) + sizeof seconds);
}

bool Pqa2Copy::finish()
{
    if (m_hasBlock)
        put(true);
    return m_end > qint64(sizeof kPqa2FileHeader) && !m_isShort;
}
