#include "record/exports/outputfile.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {
constexpr std::size_t kBuffer = 64 << 10; // bytes; some two dozen files are open at a time
static_assert(kBuffer > OutputFile::kMostRoom);
}

OutputFile::OutputFile() = default;

OutputFile::~OutputFile()
{
    close();
}

bool OutputFile::open(const QString &path)
{
    close();
    m_errno = 0;
    constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC;
    m_fd = ::open(QFile::encodeName(path).constData(), kFlags, 0666);
    if (m_fd < 0) {
        m_errno = errno;
        return false;
    }
    m_buffer.resize(kBuffer);
    m_at = m_buffer.data();
    m_end = m_at + m_buffer.size();
    return true;
}

void OutputFile::write(const char *data, qint64 size)
{
    if (size > m_end - m_at)
        flush();
    if (size > m_end - m_at) {
        put(data, size);
    } else if (size > 0) {
        std::memcpy(m_at, data, std::size_t(size));
        m_at += size;
    }
}

void OutputFile::flush()
{
    put(m_buffer.data(), m_at - m_buffer.data());
    m_at = m_buffer.data();
}

void OutputFile::put(const char *data, qint64 size)
{
    while (size > 0 && m_errno == 0) {
        const ssize_t written = ::write(m_fd, data, std::size_t(size));
        if (written > 0) {
            data += written;
            size -= written;
        } else if (written == 0) {
            m_errno = EIO;
        } else if (errno != EINTR) {
            m_errno = errno;
        }
    }
}

bool OutputFile::close()
{
    if (m_fd < 0)
        return m_errno == 0;
    flush();
    if (::close(m_fd) != 0 && m_errno == 0)
        m_errno = errno;
    m_fd = -1;
    m_at = m_end = nullptr;
    m_buffer = {};
    return m_errno == 0;
}

QString OutputFile::reason() const
{
    return qt_error_string(m_errno);
}
