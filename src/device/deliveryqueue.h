#pragma once

#include "device/datagramkinds.h"

#include <QByteArray>

#include <array>
#include <deque>
#include <mutex>

/// What the link hands over: a datagram, or one of the two words of its clock rule.
struct Delivery
{
    /// Kinds behind those of datagrams.
    enum Word { TimeStamp = kDatagramKindCount, BdsWord, KindCount };

    int kind = -1; // __datagramtype or Word
    QByteArray bytes; // of a datagram
    quint32 word = 0; // of a Word
};

/// The way of results from the device thread to the main thread: everything comes out in the order in which it went in.
/// A main thread that stands still finds at most 64 MiB waiting, far more than ten seconds of the whole stream. Beyond
/// that the oldest of the kind that takes most room goes, so that a flood of samples pushes out samples and no half
/// cycles; what went is counted and printed, once when it begins and once when the main thread goes on.
/// Any thread; nothing waits but for a few instructions.
class DeliveryQueue
{
public:
    static constexpr qint64 kMostBytes = 64 << 20;
    static constexpr qint64 kBytesBeside = 96; // what a delivery takes beside its bytes

    /// @param mostBytes bound of the waiting deliveries, kBytesBeside for each of them included.
    explicit DeliveryQueue(qint64 mostBytes = kMostBytes) : m_mostBytes(mostBytes) { }

    /// True when nobody is on the way to empty the queue: the caller has to see to it that take() is called.
    bool put(Delivery delivery);
    /// Before the first take() of a turn: from now on put() asks for another turn.
    void beginTurn();
    /// The oldest one; false when none is left, which gives the memory of a long queue back to the system.
    bool take(Delivery *delivery);

    qint64 bytes() const; // of what waits now
    quint64 dropped() const; // since the start

private:
    struct Waiting
    {
        quint64 number; // in the order of arrival
        Delivery delivery;
    };
    static qint64 cost(const Delivery &delivery) { return delivery.bytes.size() + kBytesBeside; }
    void dropOldest();
    void tellDropped();
    Delivery takeFirst(int kind);

    const qint64 m_mostBytes;
    mutable std::mutex m_lock; // guards all below
    std::array<std::deque<Waiting>, Delivery::KindCount> m_waiting;
    std::array<qint64, Delivery::KindCount> m_kindBytes {};
    std::array<quint64, Delivery::KindCount> m_droppedNow {}; // since the main thread came last
    quint64 m_nextNumber = 0;
    qint64 m_bytes = 0;
    qint64 m_mostBytesSeen = 0; // since the queue was empty
    quint64 m_dropped = 0;
    bool m_turnComes = false;
};
