#pragma once

#include <QString>

namespace wire {

/// A file descriptor that closes itself. -1: none.
class Descriptor
{
public:
    explicit Descriptor(int fd = -1) : m_fd(fd) { }
    ~Descriptor() { close(); }
    Descriptor(Descriptor &&other) noexcept : m_fd(other.release()) { }
    Descriptor &operator=(Descriptor &&other) noexcept;
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    int fd() const { return m_fd; }
    bool isOpen() const { return m_fd >= 0; }
    int release();
    void close();

private:
    int m_fd;
};

/// Makes a listening, non-blocking Unix socket of \a type (SOCK_SEQPACKET, SOCK_STREAM) at \a path. A socket that
/// nobody listens at any more is replaced; one that is served, and anything that is no socket, is left alone.
/// On failure an empty descriptor, and \a error is one line. Paths longer than a socket address holds are allowed.
Descriptor listenAt(const QString &path, int type, QString *error);

/// Connects to \a path, blocking; on failure an empty descriptor and one line in \a error.
Descriptor connectTo(const QString &path, int type, QString *error);

/// The next waiting connection, non-blocking; empty when there is none.
Descriptor acceptFrom(const Descriptor &listener);

/// Raises the socket's buffers as far as the system lets it.
void raiseBuffers(const Descriptor &socket, int bytes);

} // namespace wire
