#include "link/unixsocket.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace wire {

namespace {

QString errorText(const QString &what)
{
    return QStringLiteral("%1: %2").arg(what, QString::fromLocal8Bit(std::strerror(errno)));
}

/// A socket address for \a path. A path too long for it is reached through the descriptor of its folder, which
/// \a folder then holds open. False: the file name alone is too long, or the folder is not there.
bool addressOf(const QString &path, sockaddr_un *address, Descriptor *folder)
{
    QByteArray name = QFile::encodeName(path);
    if (name.size() >= int(sizeof address->sun_path)) {
        const QFileInfo info(path);
        *folder = Descriptor(::open(QFile::encodeName(info.path()).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        if (!folder->isOpen())
            return false;
        name = "/proc/self/fd/" + QByteArray::number(folder->fd()) + '/' + QFile::encodeName(info.fileName());
    }
    *address = {};
    address->sun_family = AF_UNIX;
    if (name.size() >= int(sizeof address->sun_path)) {
        errno = ENAMETOOLONG;
        return false;
    }
    std::memcpy(address->sun_path, name.constData(), std::size_t(name.size()));
    return true;
}

/// Clears the place for a new socket. False: it is in use, or not ours to clear.
bool clearStale(const QString &path, int type, QString *error)
{
    struct stat info;
    if (::lstat(QFile::encodeName(path).constData(), &info) != 0)
        return true;
    if (!S_ISSOCK(info.st_mode)) {
        *error = QStringLiteral("%1 exists and is no socket").arg(path);
        return false;
    }
    QString ignored;
    if (connectTo(path, type, &ignored).isOpen()) {
        *error = QStringLiteral("%1 is in use by another processor").arg(path);
        return false;
    }
    if (::unlink(QFile::encodeName(path).constData()) != 0) {
        *error = errorText(QStringLiteral("cannot remove %1").arg(path));
        return false;
    }
    return true;
}

} // namespace

Descriptor &Descriptor::operator=(Descriptor &&other) noexcept
{
    if (this != &other) {
        close();
        m_fd = other.release();
    }
    return *this;
}

int Descriptor::release()
{
    const int fd = m_fd;
    m_fd = -1;
    return fd;
}

void Descriptor::close()
{
    if (m_fd >= 0)
        ::close(m_fd);
    m_fd = -1;
}

Descriptor listenAt(const QString &path, int type, QString *error)
{
    // It gets its name when it listens: who waits for the file may connect as soon as it is there.
    const QString begun = path + QStringLiteral(".%1").arg(::getpid());
    const QByteArray begunName = QFile::encodeName(begun);
    if (!clearStale(path, type, error))
        return Descriptor();
    ::unlink(begunName.constData());
    Descriptor socket(::socket(AF_UNIX, type | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    Descriptor folder;
    sockaddr_un address;
    const bool listens = socket.isOpen() && addressOf(begun, &address, &folder)
        && ::bind(socket.fd(), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0
        && ::listen(socket.fd(), 8) == 0
        // Takes no other's place, which a renaming would.
        && ::link(begunName.constData(), QFile::encodeName(path).constData()) == 0;
    if (!listens) {
        *error = errorText(QStringLiteral("cannot make %1").arg(path));
        socket.close();
    }
    ::unlink(begunName.constData());
    return socket;
}

Descriptor connectTo(const QString &path, int type, QString *error)
{
    Descriptor socket(::socket(AF_UNIX, type | SOCK_CLOEXEC, 0));
    Descriptor folder;
    sockaddr_un address;
    if (!socket.isOpen() || !addressOf(path, &address, &folder)
        || ::connect(socket.fd(), reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        *error = errorText(QStringLiteral("cannot reach %1").arg(path));
        return Descriptor();
    }
    return socket;
}

Descriptor acceptFrom(const Descriptor &listener)
{
    return Descriptor(::accept4(listener.fd(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
}

void raiseBuffers(const Descriptor &socket, int bytes)
{
    for (const auto &[forced, plain] : { std::pair(SO_SNDBUFFORCE, SO_SNDBUF), std::pair(SO_RCVBUFFORCE, SO_RCVBUF) }) {
        if (::setsockopt(socket.fd(), SOL_SOCKET, forced, &bytes, sizeof bytes) != 0)
            ::setsockopt(socket.fd(), SOL_SOCKET, plain, &bytes, sizeof bytes);
    }
}

} // namespace wire
