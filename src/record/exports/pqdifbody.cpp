#include "record/exports/pqdifbody.h"

#include <cstring>

namespace {

constexpr quint8 kCollection = 1, kScalar = 2, kVector = 3;
constexpr qint32 kEntrySize = 28, kCountSize = 4;
constexpr qint32 kPayload = 20; // place of an entry's payload

qint32 padded(qint32 size)
{
    return (size + 3) / 4 * 4;
}

template <typename T> void put(QByteArray *bytes, qint32 offset, const T &value)
{
    std::memcpy(bytes->data() + offset, &value, sizeof value);
}

template <typename T> QByteArray bytesOf(const T &value)
{
    return { reinterpret_cast<const char *>(&value), int(sizeof value) };
}

} // namespace

struct PqdifCollection::Entry
{
    PqdifId tag;
    quint8 kind = 0;
    PqdifType type = {};
    bool embedded = false;
    QByteArray block; // what is embedded, or what stands at the link; not yet padded
    std::unique_ptr<PqdifCollection> inner;
};

PqdifTime PqdifTime::ofMicroseconds(qint64 sinceEpoch)
{
    constexpr qint64 kSecond = 1000000, kDay = 86400 * kSecond;
    constexpr quint32 kEpoch = 25569; // 1970-01-01, as all readers count
    constexpr qint64 kLast = 2932897 * kDay - 1; // end of the year 9999
    // Times of broken files may be anything; readers show a calendar's years.
    const qint64 time = qBound(qint64(0), sinceEpoch, kLast);
    const double whole = double(time % kDay / kSecond);
    const qint64 part = time % kSecond;
    // Readers cut to what they show, and a double below the fraction would lose its last digit.
    constexpr double kBeyondCutting = 1e-9;
    return { kEpoch + quint32(time / kDay), part == 0 ? whole : whole + double(part) * 1e-6 + kBeyondCutting };
}

PqdifCollection::PqdifCollection() = default;
PqdifCollection::~PqdifCollection() = default;
PqdifCollection::PqdifCollection(PqdifCollection &&other) noexcept = default;

void PqdifCollection::embed(const PqdifId &tag, PqdifType type, const void *value, int size)
{
    m_entries.push_back({ tag, kScalar, type, true, QByteArray(static_cast<const char *>(value), size), nullptr });
}

void PqdifCollection::link(const PqdifId &tag, quint8 kind, PqdifType type, const QByteArray &block)
{
    m_entries.push_back({ tag, kind, type, false, block, nullptr });
}

void PqdifCollection::addNumber(const PqdifId &tag, quint32 value)
{
    embed(tag, PqdifType::Uint4, &value, sizeof value);
}

void PqdifCollection::addSwitch(const PqdifId &tag, bool on)
{
    const quint32 value = on ? 1 : 0;
    embed(tag, PqdifType::Bool4, &value, sizeof value);
}

void PqdifCollection::addShort(const PqdifId &tag, qint16 value)
{
    embed(tag, PqdifType::Int2, &value, sizeof value);
}

void PqdifCollection::addReal(const PqdifId &tag, double value)
{
    embed(tag, PqdifType::Real8, &value, sizeof value);
}

void PqdifCollection::addId(const PqdifId &tag, const PqdifId &value)
{
    link(tag, kScalar, PqdifType::Id, bytesOf(value.bytes));
}

void PqdifCollection::addTime(const PqdifId &tag, const PqdifTime &time)
{
    link(tag, kScalar, PqdifType::Timestamp, bytesOf(time.day) + bytesOf(time.second));
}

void PqdifCollection::addText(const PqdifId &tag, const QByteArray &text)
{
    link(tag, kVector, PqdifType::Char1, bytesOf(quint32(text.size() + 1)) + text + '\0');
}

template <typename T> void PqdifCollection::linkVector(const PqdifId &tag, PqdifType type, const QVector<T> &values)
{
    const int bytes = values.size() * int(sizeof(T));
    QByteArray block(kCountSize + bytes, Qt::Uninitialized);
    put(&block, 0, qint32(values.size()));
    std::memcpy(block.data() + kCountSize, values.constData(), std::size_t(bytes));
    link(tag, kVector, type, block);
}

void PqdifCollection::addVector(const PqdifId &tag, const QVector<quint32> &values)
{
    linkVector(tag, PqdifType::Uint4, values);
}

void PqdifCollection::addVector(const PqdifId &tag, const QVector<qint16> &values)
{
    linkVector(tag, PqdifType::Int2, values);
}

void PqdifCollection::addVector(const PqdifId &tag, const QVector<float> &values)
{
    linkVector(tag, PqdifType::Real4, values);
}

void PqdifCollection::addVector(const PqdifId &tag, const QVector<double> &values)
{
    linkVector(tag, PqdifType::Real8, values);
}

PqdifCollection &PqdifCollection::addCollection(const PqdifId &tag)
{
    m_entries.push_back({ tag, kCollection, {}, false, {}, std::make_unique<PqdifCollection>() });
    return *m_entries.back().inner;
}

qint32 PqdifCollection::ownSize() const
{
    return kCountSize + kEntrySize * qint32(m_entries.size());
}

QByteArray PqdifCollection::body() const
{
    QByteArray body;
    writeTo(&body);
    return body;
}

/// The entries first, then what they link to, each in full before the next one.
void PqdifCollection::writeTo(QByteArray *body) const
{
    const qint32 start = body->size();
    body->append(ownSize(), '\0');
    put(body, start, qint32(m_entries.size()));
    qint32 place = start + kCountSize;
    for (const Entry &entry : m_entries) {
        put(body, place, entry.tag.bytes);
        put(body, place + 16, entry.kind);
        put(body, place + 17, quint8(entry.type));
        put(body, place + 18, quint8(entry.embedded ? 1 : 0));
        const qint32 linked = body->size();
        if (entry.embedded) {
            std::memcpy(body->data() + place + kPayload, entry.block.constData(), std::size_t(entry.block.size()));
        } else {
            put(body, place + kPayload, linked);
            put(body, place + kPayload + 4, entry.inner ? entry.inner->ownSize() : padded(entry.block.size()));
            if (entry.inner)
                entry.inner->writeTo(body);
            else
                body->append(entry.block).append(padded(entry.block.size()) - entry.block.size(), '\0');
        }
        place += kEntrySize;
    }
}
