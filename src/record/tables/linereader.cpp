#include "record/tables/linereader.h"

bool LineReader::next(QByteArray *line)
{
    constexpr qint64 kPiece = 256 << 10; // bytes
    line->resize(0);
    m_offset = m_next;
    m_isWhole = false;
    m_isTooLong = false;
    while (!m_isWhole) {
        if (m_at == m_piece.size()) {
            m_piece = m_file->read(kPiece);
            m_at = 0;
            if (m_piece.isEmpty())
                break;
        }
        const int end = m_piece.indexOf('\n', m_at);
        const int count = (end < 0 ? m_piece.size() : end) - m_at;
        m_isTooLong = m_isTooLong || line->size() + count > kMostLine;
        if (!m_isTooLong)
            line->append(m_piece.constData() + m_at, count);
        m_isWhole = end >= 0;
        m_at += count + (m_isWhole ? 1 : 0);
        m_next += count + (m_isWhole ? 1 : 0);
    }
    if (m_isTooLong)
        line->resize(0);
    return m_next > m_offset;
}
