#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

/// What the link does with packages, worked out a second time and independently: an oracle for random streams. It keeps
/// the datagram as bytes and decides by the state table.
class LinkModel
{
public:
    struct Emitted
    {
        int type;
        QByteArray bytes;
        bool operator==(const Emitted &other) const { return type == other.type && bytes == other.bytes; }
    };

    /// Takes what one read brought; the emitted datagrams (none or one) and the printed lines are appended.
    void take(const QByteArray &read, QVector<Emitted> *emitted, QStringList *printed)
    {
        if (read.isEmpty())
            return;
        std::copy(read.begin(), read.end(), m_package.begin());
        const uint32_t flag = word(0);
        const int number = flag & 0xff;
        const bool first = flag >> 31, last = flag >> 30 & 1;
        if ((flag >> 8 & 0xff) != 0xff || (flag >> 16 & 0xa5) != 0xa5) {
            *printed << QStringLiteral("Unkown");
            return;
        }
        const bool starts = first && number == 0;
        if (m_inProgress && !starts) {
            if (++m_number != number) {
                *printed << QStringLiteral("Wrong package %1").arg(m_number);
                m_inProgress = false;
                return;
            }
        } else {
            m_number = number;
            if (number != 0) {
                *printed << QStringLiteral("Wrong first %1").arg(number);
                return;
            }
            begin(printed);
        }
        fill(first, last);
        m_inProgress = !last;
        if (last)
            finish(emitted);
    }

private:
    static constexpr int kStore = 65548;

    uint32_t word(int offset) const
    {
        uint32_t value;
        memcpy(&value, m_package.data() + offset, 4);
        return value;
    }
    void begin(QStringList *printed)
    {
        const uint32_t id = word(4);
        if (m_id != 0 && id != m_id + 1)
            *printed << QStringLiteral("Lost %1 %2").arg(m_id).arg(id);
        m_id = id;
        m_type = word(16) & 0xff;
        constexpr int kBytes[] = { 13000, 2180, 16020, 65548, 6012, 4104, 24 };
        if (m_type < 7)
            m_length = kBytes[m_type];
        const uint64_t time = uint64_t(word(32)) * 1000 + word(36);
        memcpy(m_store.data(), &time, 8);
        m_at = 8;
    }
    void fill(bool first, bool last)
    {
        const int from = first ? 40 : 16;
        int count = 8192 - from; // bytes that the package can give
        int advance = count;
        if (first && last)
            advance = m_length;
        else if (!first)
            advance = std::min(count, std::max(0, m_length - m_at));
        count = std::min({ count, advance, kStore - m_at });
        if (count > 0)
            memcpy(m_store.data() + m_at, m_package.data() + from, size_t(count));
        m_at += advance;
    }
    void finish(QVector<Emitted> *emitted) const
    {
        if (m_type > 6 || m_type == 2)
            return;
        const int skip = m_type == 5 ? 8 : 0;
        emitted->append({ m_type, QByteArray(m_store.data() + skip, m_length - skip) });
    }

    std::array<char, 8192> m_package {};
    std::array<char, kStore> m_store {};
    bool m_inProgress = false;
    int m_number = 0;
    int m_type = 0;
    uint32_t m_id = 0;
    int m_length = 0;
    int m_at = 0;
};
