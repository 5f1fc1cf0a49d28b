#include "record/exports/output.h"

#include "record/tables/recordsource.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <linux/fs.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// rename(2), with flags where there are any. The C library of the oldest boards lacks the call.
bool renamed(const QString &from, const QString &to, unsigned flags)
{
    const QByteArray source = QFile::encodeName(from), target = QFile::encodeName(to);
    if (flags == 0)
        return ::rename(source.constData(), target.constData()) == 0;
    return ::syscall(SYS_renameat2, AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), flags) == 0;
}

/// Kernels and file systems, those of USB disks among them, may know no flags.
bool knowsNoFlags()
{
    return errno == EINVAL || errno == ENOSYS;
}

bool exists(const QString &path, struct stat *info)
{
    return ::lstat(QFile::encodeName(path).constData(), info) == 0;
}

bool exists(const QString &path)
{
    struct stat info;
    return exists(path, &info);
}

bool isRecording(const QString &path)
{
    return RecordSource::formatOf(path) != RecordSource::Format::None;
}

bool isInside(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
}

} // namespace

QString OutputPlace::inputName() const
{
    return QFileInfo(QDir::cleanPath(QFileInfo(input).absoluteFilePath())).fileName();
}

Output::Output(Kind kind, OutputPlace place, Writes writes, const QString &mark)
    : m_kind(kind), m_place(std::move(place)),
      m_target(m_place.target.isEmpty() ? QString() : QDir::cleanPath(m_place.target)), m_writes(writes), m_mark(mark)
{ }

Output::~Output()
{
    if (m_path.isEmpty())
        return;
    if (m_kind == Folder)
        QDir(m_path).removeRecursively();
    else
        ::unlink(QFile::encodeName(m_path).constData());
}

bool Output::fail(const QString &name, const QString &reason)
{
    if (m_error.isEmpty()) {
        const QString where = name.isEmpty() ? m_place.target : m_target + QLatin1Char('/') + name;
        m_error = where + QStringLiteral(": ") + reason;
    }
    return false;
}

bool Output::refuse(const QString &reason)
{
    m_isRefused = true;
    return fail({}, reason);
}

bool Output::failBySystem()
{
    return fail({}, qt_error_string(errno));
}

bool Output::begin()
{
    m_error.clear();
    m_isRefused = false;
    return isFree() && isApartFromInput() && make();
}

bool Output::isFree()
{
    if (m_target.isEmpty())
        return refuse(QStringLiteral("a name is missing"));
    struct stat info;
    if (!exists(m_target, &info))
        return errno == ENOENT || failBySystem();
    if (!m_place.force)
        return refuse(QStringLiteral("is there already (--force replaces it)"));
    return isReplaceable(info.st_mode);
}

/// What no export wrote is the user's, and --force was not said to it.
bool Output::isReplaceable(quint32 mode)
{
    if (m_kind == File && !S_ISREG(mode))
        return refuse(QStringLiteral("is no ordinary file and is not replaced"));
    if (m_kind == File)
        return !isRecording(m_target) || refuse(QStringLiteral("is a recording and is not replaced"));
    if (!S_ISDIR(mode))
        return refuse(QStringLiteral("is no folder and is not replaced"));
    return holdsNothingElse();
}

/// Looks at the names as the bytes that they are: the toolkit passes over those that are no text.
bool Output::holdsNothingElse()
{
    namespace fs = std::filesystem;
    const QByteArray folder = QFile::encodeName(m_target);
    std::error_code error;
    for (fs::recursive_directory_iterator entry(folder.constData(), error), end; !error && entry != end;
         entry.increment(error)) {
        const fs::file_status status = entry->symlink_status(error);
        const int before = folder.size() + (folder.endsWith('/') ? 0 : 1);
        const QByteArray name = QByteArray::fromStdString(entry->path().native()).mid(before);
        // A folder is looked into; it counts by the files in it.
        if (!error && !fs::is_directory(status) && !isOurs(QFile::decodeName(name), fs::is_regular_file(status)))
            return false;
    }
    return !error || fail({}, QString::fromStdString(error.message()));
}

bool Output::isOurs(const QString &name, bool isFile)
{
    if (!isFile || !m_writes || !m_writes(name))
        return refuse(QStringLiteral("holds \"%1\", which is no export, and is not replaced").arg(name));
    const QString folder = m_target + QLatin1Char('/');
    const bool isMarked = !m_mark.isEmpty() && exists(folder + m_mark);
    return isMarked || !isRecording(folder + name)
        || refuse(QStringLiteral("holds the recording \"%1\" and is not replaced").arg(name));
}

bool Output::isApartFromInput()
{
    const QFileInfo target(m_target);
    const QString folder = QFileInfo(target.path()).canonicalFilePath();
    if (folder.isEmpty())
        return refuse(QStringLiteral("there is no folder \"%1\"").arg(target.path()));
    const QString whole = QDir(folder).filePath(target.fileName());
    const QString input = QFileInfo(m_place.input).canonicalFilePath();
    if (input.isEmpty())
        return true;
    if (isInside(whole, input) || isInside(input, whole))
        return refuse(QStringLiteral("lies in what is read, where nothing is written"));
    return true;
}

bool Output::make()
{
    const QString folder = QFileInfo(m_target).path();
    constexpr int kNames = 1000; // more than exports that run at the same time, or were killed, leave in one folder
    for (int i = 0; i < kNames; ++i) {
        const QString path = QStringLiteral("%1/.quvera-partial-%2-%3").arg(folder).arg(::getpid()).arg(i);
        const QByteArray name = QFile::encodeName(path);
        constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        const int made = m_kind == Folder ? ::mkdir(name.constData(), 0777) : ::open(name.constData(), kFlags, 0666);
        if (made >= 0) {
            if (m_kind == File)
                ::close(made);
            m_path = path;
            return true;
        }
        if (errno != EEXIST)
            break;
    }
    return failBySystem();
}

bool Output::makeFolder(const QString &name)
{
    return ::mkdir(QFile::encodeName(m_path + QLatin1Char('/') + name).constData(), 0777) == 0
        || fail(name, qt_error_string(errno));
}

bool Output::finish()
{
    if (m_path.isEmpty() || !m_error.isEmpty())
        return false;
    if (!sync() || !putInPlace())
        return false;
    m_path.clear();
    return true;
}

/// A full or worn disk may say so only now.
bool Output::sync()
{
    const int fd = ::open(QFile::encodeName(m_path).constData(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return failBySystem();
    // A folder may hold thousands of files; one call for all of them costs the least.
    const bool taken = (m_kind == Folder ? ::syncfs(fd) : ::fsync(fd)) == 0;
    const int reason = errno;
    ::close(fd);
    errno = reason;
    return taken || failBySystem();
}

bool Output::putInPlace()
{
    if (m_place.force && m_kind == Folder && exists(m_target))
        return exchangeFolders();
    // Without force what another program put there meanwhile stays, too.
    if (!m_place.force) {
        if (renamed(m_path, m_target, RENAME_NOREPLACE))
            return true;
        if (!knowsNoFlags())
            return failBySystem();
        if (exists(m_target)) {
            errno = EEXIST;
            return failBySystem();
        }
    }
    return renamed(m_path, m_target, 0) || failBySystem();
}

bool Output::exchangeFolders()
{
    // Asked again: it may have been filled since.
    if (!holdsNothingElse())
        return false;
    if (renamed(m_path, m_target, RENAME_EXCHANGE)) {
        QDir(m_path).removeRecursively(); // the earlier one, which has this name now
        return true;
    }
    if (!knowsNoFlags())
        return failBySystem();
    const QString earlier = m_path + QStringLiteral("-earlier");
    if (!renamed(m_target, earlier, 0))
        return failBySystem();
    if (!renamed(m_path, m_target, 0)) {
        failBySystem();
        renamed(earlier, m_target, 0);
        return false;
    }
    QDir(earlier).removeRecursively();
    return true;
}
