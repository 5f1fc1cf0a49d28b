#include "platform/servicenotes.h"

#include <QByteArray>
#include <QTimer>

#include <chrono>
#include <cstddef>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

/// One datagram. The manager's library does the same, but loads five others into every start.
void tell(const QByteArray &socketName, const char *state)
{
    sockaddr_un address {};
    if (socketName.isEmpty() || size_t(socketName.size()) >= sizeof address.sun_path)
        return;
    address.sun_family = AF_UNIX;
    memcpy(address.sun_path, socketName.constData(), size_t(socketName.size()));
    if (address.sun_path[0] == '@') // a name without a file
        address.sun_path[0] = '\0';
    const int fd = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0)
        return;
    const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + size_t(socketName.size()));
    (void)::sendto(fd, state, strlen(state), MSG_NOSIGNAL, reinterpret_cast<sockaddr *>(&address), length);
    ::close(fd);
}

} // namespace

void ServiceNotes::begin()
{
    const QByteArray socketName = qgetenv("NOTIFY_SOCKET");
    const qint64 patience = qEnvironmentVariable("WATCHDOG_USEC").toLongLong(); // us
    const QByteArray watched = qgetenv("WATCHDOG_PID");
    // Commands that the program runs are not to speak for it.
    for (const char *name : { "NOTIFY_SOCKET", "WATCHDOG_USEC", "WATCHDOG_PID" })
        qunsetenv(name);
    if (socketName.isEmpty())
        return;
    tell(socketName, "READY=1");
    if (patience <= 0 || (!watched.isEmpty() && watched.toLongLong() != ::getpid()))
        return;
    static QTimer sign;
    QObject::connect(&sign, &QTimer::timeout, [socketName] { tell(socketName, "WATCHDOG=1"); });
    sign.start(std::chrono::milliseconds(patience / 3000));
}
