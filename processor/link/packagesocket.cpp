#include "link/packagesocket.h"

#include <QFile>

#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace wire {

bool PackageSocket::open(const QString &path, QString *error)
{
    m_listener = listenAt(path, SOCK_SEQPACKET, error);
    if (m_listener.isOpen())
        m_path = path;
    return m_listener.isOpen();
}

void PackageSocket::close()
{
    hangUp();
    m_listener.close();
    if (!m_path.isEmpty())
        ::unlink(QFile::encodeName(m_path).constData());
    m_path.clear();
}

void PackageSocket::hangUp(Events *events)
{
    if (events && connected())
        events->push_back({ Event::Kind::Disconnected, {} });
    m_client.close();
    m_queue.clear();
}

void PackageSocket::send(const std::vector<QByteArray> &messages)
{
    if (!connected())
        return;
    flush();
    if (m_queue.size() + messages.size() > kQueueMessages) {
        ++m_dropped;
        return;
    }
    m_queue.insert(m_queue.end(), messages.begin(), messages.end());
    flush();
}

void PackageSocket::flush()
{
    while (!m_queue.empty() && connected()) {
        const QByteArray &message = m_queue.front();
        const ssize_t sent
            = ::send(m_client.fd(), message.constData(), std::size_t(message.size()), MSG_DONTWAIT | MSG_NOSIGNAL);
        if (sent < 0)
            return; // full: the poll tells when to go on; gone: the next read tells
        ++m_sent;
        m_queue.pop_front();
    }
}

void PackageSocket::addPolls(std::vector<pollfd> *polls) const
{
    if (m_listener.isOpen())
        polls->push_back({ m_listener.fd(), POLLIN, 0 });
    if (connected())
        polls->push_back({ m_client.fd(), short(POLLIN | (m_queue.empty() ? 0 : POLLOUT)), 0 });
}

bool PackageSocket::farEndGone() const
{
    pollfd poll = { m_client.fd(), POLLRDHUP, 0 };
    return ::poll(&poll, 1, 0) > 0 && (poll.revents & (POLLRDHUP | POLLHUP | POLLERR));
}

void PackageSocket::readFrames(Events *events)
{
    while (connected()) {
        char peek;
        const ssize_t length = ::recv(m_client.fd(), &peek, 1, MSG_PEEK | MSG_TRUNC | MSG_DONTWAIT);
        if (length < 0 && (errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR))
            return;
        if (length < 0 || (length == 0 && farEndGone())) {
            hangUp(events);
            return;
        }
        QByteArray frame(int(qMin<ssize_t>(length, kMaxFrameBytes)), Qt::Uninitialized);
        const ssize_t got = ::recv(m_client.fd(), frame.data(), std::size_t(frame.size()), MSG_DONTWAIT);
        if (got < 0)
            return;
        frame.resize(length > kMaxFrameBytes ? 1 : int(got)); // one byte is no frame, and is counted as such
        events->push_back({ Event::Kind::Frame, frame });
    }
}

PackageSocket::Events PackageSocket::serve()
{
    Events events;
    readFrames(&events);
    for (Descriptor next = acceptFrom(m_listener); next.isOpen(); next = acceptFrom(m_listener)) {
        hangUp(&events);
        m_client = std::move(next);
        raiseBuffers(m_client, kBufferBytes);
        events.push_back({ Event::Kind::Connected, {} });
        readFrames(&events); // it may be gone again already, with something said
    }
    flush();
    return events;
}

} // namespace wire
