#include "storage/filecopy.h"

#include <QFile>
#include <QFileInfo>

#include "platform/ordinaryfile.h"
#include "platform/target.h"
#include "storage/exclusivefile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Reads or writes until `length` bytes are through or there are no more. The bytes done, or -1 with errno set.
template <typename Call> qint64 wholly(Call call, qint64 length)
{
    qint64 done = 0;
    while (done < length) {
        const ssize_t n = call(done, static_cast<size_t>(length - done));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return -1;
        if (n == 0)
            break;
        done += n;
    }
    return done;
}

void shut(int &fd)
{
    if (fd >= 0)
        ::close(fd);
    fd = -1;
}

/// Brings the entries of a file's folder to the disk; where a file system cannot, the copy is good all the same.
void syncFolderOf(const QByteArray &file)
{
    int folder = ::open(QFile::encodeName(QFileInfo(QFile::decodeName(file)).path()).constData(), O_RDONLY | O_CLOEXEC);
    if (folder >= 0)
        ::fsync(folder);
    shut(folder);
}

} // namespace

FileCopy::FileCopy(const QString &source, const QString &target)
    : m_source(QFile::encodeName(Target::path(source))), m_target(QFile::encodeName(Target::path(target))),
      m_part(m_target + ".part")
{ }

FileCopy::~FileCopy()
{
    cancel(QString());
}

double FileCopy::progress() const
{
    return m_size > 0 ? double(m_copied) / double(m_size) : m_state == Running ? 0.0 : 1.0;
}

FileCopy::State FileCopy::copyPiece()
{
    if (m_state != Running)
        return m_state;
    if (m_out < 0 && !open())
        return fail();
    const qint64 before = m_copied;
    if (!copyBytes())
        return fail();
    if (m_copied == before) {
        if (!finish())
            return fail();
        m_state = Done;
    }
    return m_state;
}

bool FileCopy::open()
{
    m_in = OrdinaryFile::open(QFile::decodeName(m_source), O_RDONLY);
    struct stat info
    {
    };
    if (m_in < 0 || ::fstat(m_in, &info) != 0)
        return false;
    m_size = info.st_size;
    m_out = openExclusively(m_part);
    m_made = m_out >= 0;
    return m_made;
}

bool FileCopy::copyBytes()
{
    // A source that is still growing is copied as far as it went at the start. One that claims to be empty is asked all
    // the same: it may answer with an error.
    const qint64 wanted = m_size > 0 ? qMin(kPiece, m_size - m_copied) : 1;
    QByteArray piece(static_cast<int>(wanted), Qt::Uninitialized);
    const auto in = [&](qint64 at, size_t n) { return ::read(m_in, piece.data() + at, n); };
    const qint64 length = wholly(in, wanted);
    if (length < 0)
        return false;
    if (length == 0 || m_size == 0)
        return true;
    const auto out = [&](qint64 at, size_t n) { return ::write(m_out, piece.constData() + at, n); };
    if (wholly(out, length) != length || !flush(m_out, m_copied, length))
        return false;
    m_copied += length;
    return true;
}

bool FileCopy::flush(int fd, qint64 offset, qint64 length)
{
    constexpr unsigned int kWriteAndWait
        = SYNC_FILE_RANGE_WAIT_BEFORE | SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
    if (::sync_file_range(fd, offset, length, kWriteAndWait) == 0)
        return true;
    const bool unknown = errno == ENOSYS || errno == EINVAL || errno == ESPIPE || errno == EOPNOTSUPP;
    return unknown && ::fdatasync(fd) == 0;
}

bool FileCopy::finish()
{
    // The bytes are there already; this adds what describes the file.
    const bool synced = ::fsync(m_out) == 0;
    const bool closed = ::close(m_out) == 0;
    m_out = -1;
    if (!synced || !closed || ::rename(m_part.constData(), m_target.constData()) != 0)
        return false;
    shut(m_in);
    syncFolderOf(m_target);
    return true;
}

FileCopy::State FileCopy::fail()
{
    m_errorNumber = errno;
    cancel(qt_error_string(m_errorNumber));
    return m_state;
}

void FileCopy::cancel(const QString &reason)
{
    if (m_state != Running)
        return;
    m_state = Failed;
    m_error = reason;
    shut(m_in);
    shut(m_out);
    if (m_made)
        ::unlink(m_part.constData());
}
