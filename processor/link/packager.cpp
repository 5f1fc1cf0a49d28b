#include "link/packager.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace wire {

namespace {

/// Puts \a count words of \a payload from \a from on at \a to; what the payload does not hold stays zero.
void putWords(quint8 *to, const std::vector<quint32> &payload, std::size_t from, std::size_t count)
{
    if (from >= payload.size())
        return;
    qToLittleEndian<quint32>(payload.data() + from, qsizetype(std::min(count, payload.size() - from)), to);
}

Package firstPackage(Kind kind, quint32 id, quint64 stampMs, quint32 bdsWord, bool single)
{
    FirstHead head = {};
    head.flag = qToLittleEndian(kFlagPattern | kFlagFirst | (single ? kFlagLast : 0u));
    head.id = qToLittleEndian(id);
    head.type = qToLittleEndian(quint32(kind));
    head.bdsWord = qToLittleEndian(kind == Kind::HalfCycleRms ? bdsWord : 0u);
    head.seconds = qToLittleEndian(quint32(stampMs / 1000));
    head.milliseconds = qToLittleEndian(quint32(stampMs % 1000));
    Package package = {};
    std::memcpy(package.data(), &head, sizeof head);
    return package;
}

Package nextPackage(quint32 id, int number, bool last)
{
    NextHead head = {};
    head.flag = qToLittleEndian(kFlagPattern | (last ? kFlagLast : 0u) | (quint32(number) & kFlagNumber));
    head.id = qToLittleEndian(id);
    Package package = {};
    std::memcpy(package.data(), &head, sizeof head);
    return package;
}

} // namespace

Packager::Packager(quint32 firstId) : m_nextId(firstId) { }

Datagram Packager::pack(Kind kind, quint64 stampMs, quint32 bdsWord, const std::vector<quint32> &payload)
{
    const KindInfo &info = kindInfo(kind);
    const std::size_t words = std::size_t(info.payloadWords());
    Datagram datagram;
    datagram.kind = kind;
    datagram.id = m_nextId++;
    datagram.packages.reserve(std::size_t(info.packages));
    datagram.packages.push_back(firstPackage(kind, datagram.id, stampMs, bdsWord, info.packages == 1));
    std::size_t at = std::min(words, std::size_t(kFirstPayloadWords));
    putWords(datagram.packages.back().data() + kFirstHeadBytes, payload, 0, at);
    for (int number = 1; number < info.packages; ++number) {
        const std::size_t count = std::min(words - at, std::size_t(kNextPayloadWords));
        datagram.packages.push_back(nextPackage(datagram.id, number, number + 1 == info.packages));
        putWords(datagram.packages.back().data() + kNextHeadBytes, payload, at, count);
        at += count;
    }
    return datagram;
}

} // namespace wire
