#include "link/linkfaults.h"

#include <QtEndian>

#include <algorithm>
#include <numeric>

namespace wire {

namespace {

QByteArray messageOf(const Package &package)
{
    return QByteArray(reinterpret_cast<const char *>(package.data()), int(package.size()));
}

} // namespace

LinkFaults::LinkFaults(quint64 seed) : m_random(seed) { }

void LinkFaults::next(Fault fault, int packages)
{
    m_next[std::size_t(fault)] = std::max(0, packages);
}

void LinkFaults::random(Fault fault, double rate)
{
    m_rates[std::size_t(fault)] = std::clamp(rate, 0.0, 1.0);
}

void LinkFaults::schedule(const DatagramFault &fault)
{
    m_scheduled.push_back(fault);
}

void LinkFaults::clear()
{
    m_next = {};
    m_rates = {};
    m_scheduled.clear();
}

quint64 LinkFaults::total() const
{
    return std::accumulate(m_counts.begin(), m_counts.end(), quint64(0));
}

bool LinkFaults::quiet() const
{
    const auto none = [](auto value) { return value == 0; };
    return m_scheduled.empty() && m_held.isEmpty() && std::all_of(m_next.begin(), m_next.end(), none)
        && std::all_of(m_rates.begin(), m_rates.end(), none);
}

bool LinkFaults::strikes(Fault fault, int package, int *tornBytes)
{
    const std::size_t which = std::size_t(fault);
    bool struck = false;
    if (m_next[which] > 0) {
        --m_next[which];
        struck = true;
    }
    if (m_rates[which] > 0.0 && double(m_random() >> 11) * 0x1.0p-53 < m_rates[which])
        struck = true;
    if (struck && tornBytes)
        *tornBytes = int(m_random() % kPackageBytes);
    for (const DatagramFault &scheduled : m_scheduled) {
        if (scheduled.datagram != m_datagrams || scheduled.package != package || scheduled.fault != fault)
            continue;
        struck = true;
        if (tornBytes)
            *tornBytes = std::clamp(scheduled.bytes, 0, kPackageBytes - 1);
    }
    m_counts[which] += struck;
    return struck;
}

QByteArray LinkFaults::noise()
{
    QByteArray bytes(kPackageBytes, Qt::Uninitialized);
    for (int at = 0; at < kPackageBytes; at += int(sizeof(quint64)))
        qToLittleEndian<quint64>(m_random(), bytes.data() + at);
    return bytes;
}

void LinkFaults::send(std::vector<QByteArray> *messages, const QByteArray &message)
{
    if (!message.isEmpty()) // an empty message would read as the end of the stream, which is no fault of the line
        messages->push_back(message);
    if (!m_held.isEmpty()) {
        messages->push_back(m_held);
        m_held.clear();
    }
}

std::vector<QByteArray> LinkFaults::apply(const Datagram &datagram)
{
    std::vector<QByteArray> messages;
    messages.reserve(datagram.packages.size() + 1);
    const bool calm = quiet();
    for (std::size_t i = 0; i < datagram.packages.size(); ++i) {
        const QByteArray message = messageOf(datagram.packages[i]);
        if (calm) {
            messages.push_back(message);
            continue;
        }
        const int number = int(i);
        if (strikes(Fault::Garbage, number, nullptr))
            messages.push_back(noise());
        if (strikes(Fault::Drop, number, nullptr))
            continue;
        int left = kPackageBytes;
        strikes(Fault::Tear, number, &left);
        const QByteArray sent = message.left(left);
        if (m_held.isEmpty() && strikes(Fault::Reorder, number, nullptr)) {
            m_held = sent;
            continue;
        }
        const bool twice = strikes(Fault::Repeat, number, nullptr);
        send(&messages, sent);
        if (twice)
            send(&messages, sent);
    }
    ++m_datagrams;
    const auto past = [this](const DatagramFault &fault) { return fault.datagram < m_datagrams; };
    m_scheduled.erase(std::remove_if(m_scheduled.begin(), m_scheduled.end(), past), m_scheduled.end());
    return messages;
}

} // namespace wire
