#pragma once

#include "link/packager.h"

#include <QByteArray>

#include <array>
#include <random>
#include <vector>

namespace wire {

/// What can happen to a package on its way.
enum class Fault { Drop, Repeat, Tear, Reorder, Garbage };
constexpr int kFaultCount = 5;

/// Names of the faults as commands and scenarios write them.
constexpr const char *kFaultNames[kFaultCount] = { "drop", "repeat", "torn", "reorder", "garbage" };

/// A fault that waits for one package of one datagram.
struct DatagramFault
{
    quint64 datagram = 0; // number in the stream, the first is 0
    int package = 0; // number within the datagram
    Fault fault = Fault::Drop;
    int bytes = 100; // what is left of a torn package
};

/// Spoils the stream on request and repeatably: turns each datagram's packages into the messages that leave.
///
/// Drop: not sent. Repeat: sent twice. Tear: only the beginning is sent. Reorder: sent behind the package after it.
/// Garbage: a message of random bytes goes ahead of the package.
class LinkFaults
{
public:
    explicit LinkFaults(quint64 seed = 1);

    /// The next \a packages packages suffer \a fault.
    void next(Fault fault, int packages);
    /// Each package suffers \a fault with the probability \a rate, 0 to 1.
    void random(Fault fault, double rate);
    void schedule(const DatagramFault &fault);
    /// Takes back all that is pending.
    void clear();

    /// The messages that leave for \a datagram. A package that was held back leaves with the one after it.
    std::vector<QByteArray> apply(const Datagram &datagram);

    quint64 count(Fault fault) const { return m_counts[std::size_t(fault)]; }
    quint64 total() const;
    quint64 datagrams() const { return m_datagrams; } // passed so far

private:
    bool strikes(Fault fault, int package, int *tornBytes);
    bool quiet() const;
    QByteArray noise();
    void send(std::vector<QByteArray> *messages, const QByteArray &message);

    std::mt19937_64 m_random;
    std::array<int, kFaultCount> m_next = {};
    std::array<double, kFaultCount> m_rates = {};
    std::array<quint64, kFaultCount> m_counts = {};
    std::vector<DatagramFault> m_scheduled; // those of datagrams to come, in any order
    QByteArray m_held; // a package that leaves behind the next one
    quint64 m_datagrams = 0;
};

} // namespace wire
