#include "platform/lineoutput.h"

#include <QString>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr size_t kLongestText = 4000; // bytes; a pipe takes up to 4096 whole or not at all

/// While it lives, a write to an output that nobody reads any more is a failed write and no end of the program.
class NoPipeSignal
{
public:
    NoPipeSignal()
    {
        sigset_t pending;
        sigpending(&pending);
        m_wasPending = sigismember(&pending, SIGPIPE) == 1;
        sigemptyset(&m_pipe);
        sigaddset(&m_pipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &m_pipe, &m_before);
    }
    ~NoPipeSignal()
    {
        constexpr timespec kNow = { 0, 0 };
        while (m_failed && !m_wasPending && sigtimedwait(&m_pipe, nullptr, &kNow) < 0 && errno == EINTR) { }
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    NoPipeSignal(const NoPipeSignal &) = delete;
    NoPipeSignal &operator=(const NoPipeSignal &) = delete;
    void writeFailed() { m_failed = true; }

private:
    sigset_t m_pipe;
    sigset_t m_before;
    bool m_wasPending = false;
    bool m_failed = false;
};

void printToolkitMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const std::string line = qFormatLogMessage(type, context, text).toStdString() + '\n';
    LineOutput::standardError().write(line.data(), line.size());
}

} // namespace

LineOutput::~LineOutput()
{
    if (m_twin >= 0)
        ::close(m_twin);
}

LineOutput &LineOutput::standardOutput()
{
    // Never destroyed: objects that end after main print too.
    static auto *output = new LineOutput(STDOUT_FILENO);
    return *output;
}

LineOutput &LineOutput::standardError()
{
    static auto *output = new LineOutput(STDERR_FILENO);
    return *output;
}

void LineOutput::print(const char *format, ...)
{
    char text[kLongestText + 1];
    va_list values;
    va_start(values, format);
    const int length = vsnprintf(text, sizeof text, format, values);
    va_end(values);
    if (length > 0)
        standardOutput().write(text, std::min(size_t(length), kLongestText));
}

void LineOutput::takeToolkitMessages()
{
    qInstallMessageHandler(printToolkitMessage);
}

unsigned long long LineOutput::dropped() const
{
    const std::lock_guard<std::mutex> lock(m_lock);
    return m_dropped;
}

void LineOutput::write(const char *text, size_t size)
{
    size = std::min(size, kLongestText);
    if (size == 0)
        return;
    const std::lock_guard<std::mutex> lock(m_lock);
    lookBehindDescriptor();
    const char *rest = m_rest.data();
    size_t restSize = m_rest.size();
    bool goes = restSize == 0 || writePart(&rest, &restSize);
    m_rest.erase(0, m_rest.size() - restSize);
    if (goes && m_dropped != m_droppedReported) {
        char notice[80];
        const int length = snprintf(notice, sizeof notice, "%llu lines were dropped: the output stood still\n",
                                    m_dropped - m_droppedReported);
        const unsigned long long dropped = m_dropped;
        goes = writeWhole(notice, size_t(length));
        if (goes)
            m_droppedReported = dropped;
    }
    if (!goes || !m_rest.empty() || !writeWhole(text, size))
        ++m_dropped;
}

/// A test, a log rotation or the board's start-up may put another file behind the descriptor.
void LineOutput::lookBehindDescriptor()
{
    struct stat behind;
    if (::fstat(m_descriptor, &behind) != 0) {
        m_kind = Unknown;
        return;
    }
    if (m_kind != Unknown && behind.st_dev == m_device && behind.st_ino == m_inode)
        return;
    if (m_twin >= 0)
        ::close(m_twin);
    m_twin = -1;
    m_rest.clear();
    m_device = behind.st_dev;
    m_inode = behind.st_ino;
    const bool canWait = S_ISFIFO(behind.st_mode) || S_ISCHR(behind.st_mode);
    m_kind = S_ISSOCK(behind.st_mode) ? Socket : canWait ? Pipe : File;
    if (m_kind != Pipe)
        return;
    // A flag on the descriptor itself would change it for every other process that has it.
    char name[32];
    snprintf(name, sizeof name, "/proc/self/fd/%d", m_descriptor);
    m_twin = ::open(name, O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
}

/// Writes what the output takes now and moves on behind it. False when nothing or only a part was taken.
bool LineOutput::writePart(const char **text, size_t *size)
{
    ssize_t taken = 0;
    do
        taken = writeNow(*text, *size);
    while (taken < 0 && errno == EINTR);
    if (taken <= 0)
        return false;
    *text += taken;
    *size -= std::min(*size, size_t(taken));
    return *size == 0;
}

/// True when the text was taken; what the output did not take at once of it is kept for the next time.
bool LineOutput::writeWhole(const char *text, size_t size)
{
    const size_t all = size;
    if (!writePart(&text, &size) && size == all)
        return false;
    m_rest.assign(text, size);
    return true;
}

ssize_t LineOutput::writeNow(const char *text, size_t size) const
{
    errno = EAGAIN; // unless a call below knows better
    if (m_kind == Unknown)
        return -1;
    if (m_kind == Socket)
        return ::send(m_descriptor, text, size, MSG_DONTWAIT | MSG_NOSIGNAL);
    if (m_kind == Pipe && m_twin < 0) {
        pollfd output { m_descriptor, POLLOUT, 0 };
        const int ready = ::poll(&output, 1, 0);
        if (ready == 0)
            return -1;
        // A process without descriptors cannot ask: its last words are worth the risk.
        if (ready > 0 && (output.revents & (POLLOUT | POLLERR)) == 0)
            return -1;
    }
    int error = 0;
    ssize_t taken = 0;
    {
        NoPipeSignal noSignal;
        taken = ::write(m_twin >= 0 ? m_twin : m_descriptor, text, size);
        error = errno;
        if (taken < 0)
            noSignal.writeFailed();
    }
    errno = error;
    return taken;
}
