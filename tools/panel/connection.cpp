#include "panel/connection.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cerrno>
#include <cstring>
#include <netinet/tcp.h>
#include <poll.h>
#include <strings.h>
#include <sys/socket.h>
#include <unistd.h>

namespace panel {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kReadTime(3000);
constexpr milliseconds kReadTimeInAHurry(100);
constexpr milliseconds kWriteTime(5000);
constexpr unsigned kLostMs = 10000; // so long without a sign of a peer that has to give one
constexpr int kLookMs = 20;
constexpr int kLingerMs = 100;
constexpr std::size_t kLingerBytes = 64 * 1024;

thread_local Connection *t_current = nullptr;

int waitFor(int socket, short events, int ms)
{
    pollfd wait = { socket, events, 0 };
    const int ready = ::poll(&wait, 1, ms);
    return ready > 0 ? wait.revents : 0;
}

/// The value of a header field in a head, without blanks around it; all its values joined when it stands more than
/// once.
std::string field(const std::string &head, const char *name)
{
    std::string found;
    const std::size_t length = std::strlen(name);
    for (std::size_t at = head.find("\r\n"); at != std::string::npos; at = head.find("\r\n", at + 2)) {
        const char *line = head.c_str() + at + 2;
        if (::strncasecmp(line, name, length) != 0 || line[length] != ':')
            continue;
        const std::size_t begin = at + 2 + length + 1;
        std::string value = head.substr(begin, head.find("\r\n", begin) - begin);
        value.erase(0, value.find_first_not_of(" \t"));
        value.erase(value.find_last_not_of(" \t") + 1);
        found += (found.empty() ? "" : ",") + value;
    }
    return found;
}

/// Fields that no request to the panel needs, and what the library would make of them is not bounded: it unpacks a
/// packed body whole and reads ranges by a regular expression.
struct RefusedField
{
    const char *name;
    int status;
};

constexpr RefusedField kRefusedFields[]
    = { { "Transfer-Encoding", 411 }, { "Expect", 411 }, { "Range", 411 }, { "Content-Encoding", 415 } };

/// The library takes other line ends than CR LF for such, too, and would find fields that nobody looked at here.
bool isPlain(const std::string &head)
{
    for (std::size_t i = 0; i < head.size(); ++i) {
        const auto sign = static_cast<unsigned char>(head[i]);
        if (sign == '\r' && i + 1 < head.size() && head[i + 1] == '\n')
            ++i;
        else if ((sign < ' ' && sign != '\t') || sign == 0x7f)
            return false;
    }
    return true;
}

const char *reason(int status)
{
    switch (status) {
    case 408:
        return "Request Timeout";
    case 411:
        return "Length Required";
    case 413:
        return "Payload Too Large";
    case 415:
        return "Unsupported Media Type";
    case 431:
        return "Request Header Fields Too Large";
    case 503:
        return "Service Unavailable";
    default:
        return "Bad Request";
    }
}

void address(int socket, int (*name)(int, sockaddr *, socklen_t *), std::string &ip, int &port)
{
    sockaddr_storage storage = {};
    socklen_t size = sizeof storage;
    char text[INET6_ADDRSTRLEN] = {};
    if (name(socket, reinterpret_cast<sockaddr *>(&storage), &size) != 0)
        return;
    if (storage.ss_family == AF_INET) {
        const auto *four = reinterpret_cast<const sockaddr_in *>(&storage);
        port = ntohs(four->sin_port);
        ::inet_ntop(AF_INET, &four->sin_addr, text, sizeof text);
    } else if (storage.ss_family == AF_INET6) {
        const auto *six = reinterpret_cast<const sockaddr_in6 *>(&storage);
        port = ntohs(six->sin6_port);
        ::inet_ntop(AF_INET6, &six->sin6_addr, text, sizeof text);
    }
    ip = text;
}

} // namespace

Connection::Connection(int socket) : m_socket(socket)
{
    t_current = this;
    ::setsockopt(socket, IPPROTO_TCP, TCP_USER_TIMEOUT, &kLostMs, sizeof kLostMs);
    beginPiece();
}

Connection::~Connection()
{
    t_current = nullptr;
    linger();
    ::close(m_socket);
}

// A close with bytes unread takes the answer away from the peer, so what is on its way is read, for a moment.
void Connection::linger()
{
    ::shutdown(m_socket, SHUT_WR);
    char bytes[4096];
    std::size_t read = 0;
    const auto until = Clock::now() + milliseconds(kLingerMs);
    while (read < kLingerBytes && Clock::now() < until && waitFor(m_socket, POLLIN, kLookMs)) {
        const ssize_t size = ::recv(m_socket, bytes, sizeof bytes, MSG_DONTWAIT);
        if (size <= 0)
            return;
        read += std::size_t(size);
    }
}

Connection *Connection::current()
{
    return t_current;
}

void Connection::beginPiece()
{
    m_writeUntil = Clock::now() + kWriteTime;
}

bool Connection::receive(int waitMs)
{
    if (!waitFor(m_socket, POLLIN, waitMs))
        return true;
    char bytes[4096];
    const ssize_t size = ::recv(m_socket, bytes, sizeof bytes, MSG_DONTWAIT);
    if (size > 0)
        m_request.append(bytes, std::size_t(size));
    return size > 0 || (size < 0 && (errno == EAGAIN || errno == EINTR));
}

// 0: the request is whole. -1: more has to come. Otherwise the status of the refusal.
int Connection::missing() const
{
    const std::size_t end = m_request.find("\r\n\r\n");
    if (end == std::string::npos)
        return m_request.size() > kLongestHead ? 431 : -1;
    if (end > kLongestHead)
        return 431;
    const std::string head = m_request.substr(0, end + 2);
    if (!isPlain(head))
        return 400;
    for (const RefusedField &refused : kRefusedFields) {
        if (!field(head, refused.name).empty())
            return refused.status;
    }
    const std::string length = field(head, "Content-Length");
    if (length.size() > 6 || !std::all_of(length.begin(), length.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return length.find_first_not_of("0123456789") == std::string::npos ? 413 : 400;
    const std::size_t body = length.empty() ? 0 : std::size_t(std::stoul(length));
    if (body > kLongestBody)
        return 413;
    return m_request.size() < end + 4 + body ? -1 : 0;
}

int Connection::readRequest(const std::function<bool()> &hurry)
{
    for (;;) {
        // The time counts up to the look: what it finds is taken, however late this machine is.
        const auto age = Clock::now() - m_begun;
        if (!receive(kLookMs))
            return -1;
        const int status = missing();
        if (status >= 0)
            return status;
        if (age > kReadTime || (age > kReadTimeInAHurry && hurry()))
            return m_request.empty() ? -1 : 408;
    }
}

void Connection::refuse(int status)
{
    write("HTTP/1.1 " + std::to_string(status) + ' ' + reason(status)
          + "\r\nContent-Length: 0\r\nConnection: close\r\n\r\n");
}

bool Connection::is_readable() const
{
    return m_taken < m_request.size();
}

bool Connection::is_writable() const
{
    return Clock::now() < m_writeUntil && !(waitFor(m_socket, POLLRDHUP, 0) & (POLLRDHUP | POLLHUP | POLLERR));
}

ssize_t Connection::read(char *to, size_t size)
{
    const std::size_t count = std::min(size, m_request.size() - m_taken);
    std::memcpy(to, m_request.data() + m_taken, count);
    m_taken += count;
    return ssize_t(count);
}

ssize_t Connection::write(const char *from, size_t size)
{
    for (;;) {
        const ssize_t sent = ::send(m_socket, from, size, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent >= 0)
            return sent;
        // Rounded up: an answer that ended for its time must not look writable for the rest of a millisecond.
        const auto left = std::chrono::ceil<milliseconds>(m_writeUntil - Clock::now()).count();
        if ((errno != EAGAIN && errno != EINTR) || left <= 0)
            return -1;
        waitFor(m_socket, POLLOUT, int(left));
    }
}

void Connection::get_remote_ip_and_port(std::string &ip, int &port) const
{
    address(m_socket, ::getpeername, ip, port);
}

void Connection::get_local_ip_and_port(std::string &ip, int &port) const
{
    address(m_socket, ::getsockname, ip, port);
}

} // namespace panel
