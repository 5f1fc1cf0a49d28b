#pragma once

#include "link/wire.h"

#include <vector>

namespace wire {

/// A datagram cut into the packages that carry it, ready to send.
struct Datagram
{
    Kind kind = Kind::Aggregation;
    quint32 id = 0;
    std::vector<Package> packages;
};

/// Cuts payloads into packages with their heads, and counts the datagrams. Holds no thread and no socket.
class Packager
{
public:
    /// The id the first datagram gets. It starts at 1, since a receiver takes 0 for "none yet".
    explicit Packager(quint32 firstId = 1);

    /// \a payload holds the words behind the time stamp, in the host's byte order; a payload shorter than the kind's is
    /// filled up with zeros, a longer one is cut. \a stampMs is in ms since 1970, \a bdsWord goes into the head of
    /// half-cycle datagrams and is 0 in every other.
    Datagram pack(Kind kind, quint64 stampMs, quint32 bdsWord, const std::vector<quint32> &payload);

private:
    quint32 m_nextId;
};

} // namespace wire
