#include "panel/processorline.h"

#include <QElapsedTimer>
#include <QFile>

#include <cstdio>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace panel {

namespace {

constexpr int kAnswerMs = 2000;
constexpr int kLongestAnswer = 64 * 1024;

/// Waits until something comes or goes; false when the time is over.
bool waitFor(int socket, short events, const QElapsedTimer &since)
{
    pollfd wait = { socket, events, 0 };
    const qint64 left = kAnswerMs - since.elapsed();
    return left > 0 && ::poll(&wait, 1, int(left)) > 0;
}

/// An answer is whole when its last line is no line of help, which begin with blanks.
bool isWhole(const QByteArray &answer)
{
    return answer.endsWith('\n') && answer.mid(answer.lastIndexOf('\n', -2) + 1).at(0) != ' ';
}

} // namespace

// By the folder's descriptor: a socket's own name holds hardly more than a hundred signs.
int ProcessorLine::connectToSocket() const
{
    const int folder = ::open(QFile::encodeName(m_root + QStringLiteral("/run")).constData(), O_PATH | O_CLOEXEC);
    if (folder < 0)
        return -1;
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::snprintf(address.sun_path, sizeof address.sun_path, "/proc/self/fd/%d/processor.ctl", folder);
    int line = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (line >= 0 && ::connect(line, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        ::close(line);
        line = -1;
    }
    ::close(folder);
    return line;
}

bool ProcessorLine::tell(const QString &command, QString *answer) const
{
    const int line = connectToSocket();
    if (line < 0)
        return false;
    QElapsedTimer since;
    since.start();
    const QByteArray request = command.toUtf8() + '\n';
    QByteArray received;
    bool open = ::send(line, request.constData(), size_t(request.size()), MSG_NOSIGNAL) == request.size();
    while (open && (received.isEmpty() || !isWhole(received)) && received.size() < kLongestAnswer) {
        char bytes[4096];
        open = waitFor(line, POLLIN, since);
        const ssize_t size = open ? ::recv(line, bytes, sizeof bytes, MSG_DONTWAIT) : 0;
        open = size > 0;
        received.append(bytes, int(size > 0 ? size : 0));
    }
    ::close(line);
    if (received.isEmpty() || !isWhole(received))
        return false;
    *answer = QString::fromUtf8(received.trimmed());
    return true;
}

} // namespace panel
