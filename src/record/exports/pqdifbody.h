#pragma once

#include "record/exports/pqdifid.h"

#include <QByteArray>
#include <QVector>

#include <memory>
#include <vector>

/// A moment as PQDIF files have it: day and second of the day.
struct PqdifTime
{
    quint32 day = 0;
    double second = 0;

    static PqdifTime ofMicroseconds(qint64 sinceEpoch);
};

/// Physical types, by their number in the files.
enum class PqdifType : quint8 {
    Bool4 = 3,
    Char1 = 10,
    Int2 = 21,
    Uint4 = 32,
    Real4 = 40,
    Real8 = 41,
    Timestamp = 50,
    Id = 60,
};

/// The tree of elements that makes the body of a PQDIF record. Elements stand in the body in the order in which they
/// were added.
class PqdifCollection
{
public:
    PqdifCollection();
    ~PqdifCollection();
    PqdifCollection(PqdifCollection &&other) noexcept;
    PqdifCollection(const PqdifCollection &) = delete;
    PqdifCollection &operator=(const PqdifCollection &) = delete;

    void addNumber(const PqdifId &tag, quint32 value);
    void addSwitch(const PqdifId &tag, bool on);
    void addShort(const PqdifId &tag, qint16 value);
    void addReal(const PqdifId &tag, double value);
    void addId(const PqdifId &tag, const PqdifId &value);
    void addTime(const PqdifId &tag, const PqdifTime &time);
    /// ASCII, see AsciiText.
    void addText(const PqdifId &tag, const QByteArray &text);
    void addVector(const PqdifId &tag, const QVector<quint32> &values);
    void addVector(const PqdifId &tag, const QVector<qint16> &values);
    void addVector(const PqdifId &tag, const QVector<float> &values);
    void addVector(const PqdifId &tag, const QVector<double> &values);
    /// A collection in this one, to be filled as long as this one lives.
    PqdifCollection &addCollection(const PqdifId &tag);

    bool isEmpty() const { return m_entries.empty(); }
    /// The body with this collection as its root.
    QByteArray body() const;

private:
    struct Entry;
    void embed(const PqdifId &tag, PqdifType type, const void *value, int size);
    void link(const PqdifId &tag, quint8 kind, PqdifType type, const QByteArray &block);
    template <typename T> void linkVector(const PqdifId &tag, PqdifType type, const QVector<T> &values);
    qint32 ownSize() const;
    void writeTo(QByteArray *body) const;

    std::vector<Entry> m_entries;
};
