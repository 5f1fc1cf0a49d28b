#include "board/controlsocket.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace board {

namespace {

bool sendAll(const wire::Descriptor &socket, const QByteArray &bytes, int flags)
{
    return ::send(socket.fd(), bytes.constData(), std::size_t(bytes.size()), flags | MSG_NOSIGNAL) == bytes.size();
}

/// Whether the last whole line of \a answer ends it.
bool isWhole(const QByteArray &answer)
{
    if (!answer.endsWith('\n'))
        return false;
    const QByteArray last = answer.mid(answer.lastIndexOf('\n', -2) + 1);
    return last.startsWith("ok") || last.startsWith("error: ");
}

} // namespace

bool ControlSocket::open(const QString &path, QString *error)
{
    m_listener = wire::listenAt(path, SOCK_STREAM, error);
    if (m_listener.isOpen())
        m_path = path;
    return m_listener.isOpen();
}

void ControlSocket::close()
{
    m_clients.clear();
    m_listener.close();
    if (!m_path.isEmpty())
        ::unlink(QFile::encodeName(m_path).constData());
    m_path.clear();
}

void ControlSocket::addPolls(std::vector<pollfd> *polls) const
{
    if (m_listener.isOpen())
        polls->push_back({ m_listener.fd(), POLLIN, 0 });
    for (const Client &client : m_clients)
        polls->push_back({ client.socket.fd(), POLLIN, 0 });
}

bool ControlSocket::serveClient(Client *client, const Handler &handler)
{
    char buffer[kMaxLine];
    const ssize_t got = ::recv(client->socket.fd(), buffer, sizeof buffer, MSG_DONTWAIT);
    if (got < 0)
        return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
    if (got == 0)
        return false;
    client->received.append(buffer, int(got));
    for (int end = client->received.indexOf('\n'); end >= 0; end = client->received.indexOf('\n')) {
        const QString line = QString::fromUtf8(client->received.left(end)).trimmed();
        client->received.remove(0, end + 1);
        if (!sendAll(client->socket, handler(line).toUtf8() + '\n', MSG_DONTWAIT))
            return false;
    }
    if (client->received.size() < kMaxLine)
        return true;
    sendAll(client->socket, "error: the line is too long\n", MSG_DONTWAIT);
    return false;
}

void ControlSocket::serve(const Handler &handler)
{
    while (m_clients.size() < kMaxClients) {
        wire::Descriptor next = wire::acceptFrom(m_listener);
        if (!next.isOpen())
            break;
        m_clients.push_back({ std::move(next), {} });
    }
    const auto gone = [&](Client &client) { return !serveClient(&client, handler); };
    m_clients.erase(std::remove_if(m_clients.begin(), m_clients.end(), gone), m_clients.end());
}

bool ControlSocket::tell(const QString &path, const QString &line, QString *answer)
{
    wire::Descriptor socket = wire::connectTo(path, SOCK_STREAM, answer);
    if (!socket.isOpen())
        return false;
    QByteArray received;
    if (sendAll(socket, line.toUtf8() + '\n', 0)) {
        char buffer[4096];
        for (ssize_t got = 1; got > 0 && !isWhole(received);) {
            got = ::recv(socket.fd(), buffer, sizeof buffer, 0);
            received.append(buffer, int(std::max<ssize_t>(got, 0)));
        }
    }
    if (received.isEmpty()) {
        *answer = QStringLiteral("%1 hung up without an answer").arg(path);
        return false;
    }
    received.chop(received.endsWith('\n'));
    *answer = QString::fromUtf8(received);
    return true;
}

} // namespace board
