#include "storage/itemcopy.h"

#include "platform/target.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString kAside = QStringLiteral(".part");
const QString kOld = QStringLiteral(".old");

std::string native(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

/// A link goes, not what it leads to.
void removeWhole(const QString &path)
{
    std::error_code error;
    std::filesystem::remove_all(native(path), error);
}

bool isThere(const QString &path)
{
    struct stat info
    {
    };
    return ::lstat(native(path).c_str(), &info) == 0;
}

bool isFolder(const QString &path)
{
    const QFileInfo info(path);
    return info.isDir() && !info.isSymLink();
}

bool rename(const QString &from, const QString &to)
{
    return ::rename(native(from).c_str(), native(to).c_str()) == 0;
}

/// \a path takes the name \a target; what stood there goes. False with errno set: all is as it was.
bool replaceBy(const QString &path, const QString &target)
{
    const QString old = target + kOld;
    const bool stood = isThere(target);
    if (stood) {
        removeWhole(old);
        if (!rename(target, old))
            return false;
    }
    if (!rename(path, target)) {
        const int error = errno;
        if (stood)
            rename(old, target);
        errno = error;
        return false;
    }
    if (stood)
        removeWhole(old);
    return true;
}

/// Brings the names in a folder to the disk; where a file system cannot, the copy is good all the same.
void syncFolder(const QString &path)
{
    const int fd = ::open(native(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

} // namespace

ItemCopy::ItemCopy(const QString &source, const QString &target)
    : m_source(Target::path(source)), m_target(Target::path(target))
{
    survey();
}

ItemCopy::~ItemCopy()
{
    cancel(QString());
}

void ItemCopy::survey()
{
    m_isFolder = isFolder(m_source);
    if (!m_isFolder) {
        m_parts = { { QString(), false } };
        m_size = QFileInfo(m_source).size();
        return;
    }
    const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot | QDir::NoSymLinks;
    QDirIterator walk(m_source, all, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        const QFileInfo info = walk.fileInfo();
        if (!info.isDir() && !info.isFile())
            continue;
        m_parts << Part { info.filePath().mid(m_source.size() + 1), info.isDir() };
        m_size += info.isDir() ? 0 : info.size();
    }
}

qint64 ItemCopy::copied() const
{
    return m_done + (m_file ? m_file->copied() : 0);
}

bool ItemCopy::begin()
{
    m_begun = true;
    m_aside = m_isFolder || isFolder(m_target); // a file takes the place of a file by itself
    if (!m_isFolder)
        return true;
    removeWhole(m_target + kAside); // of a copy that lost its supply
    return ::mkdir(native(m_target + kAside).c_str(), 0755) == 0;
}

bool ItemCopy::beginPart(const Part &part)
{
    if (part.name.isEmpty()) {
        m_file = std::make_unique<FileCopy>(m_source, m_aside ? m_target + kAside : m_target);
        return true;
    }
    const QString aside = m_target + kAside + QLatin1Char('/') + part.name;
    if (part.isFolder)
        return ::mkdir(native(aside).c_str(), 0755) == 0;
    m_file = std::make_unique<FileCopy>(m_source + QLatin1Char('/') + part.name, aside);
    return true;
}

FileCopy::State ItemCopy::copyPiece()
{
    if (m_state != FileCopy::Running)
        return m_state;
    if (!m_begun && !begin())
        return fail(errno);
    if (m_file) {
        const FileCopy::State state = m_file->copyPiece();
        if (state == FileCopy::Failed)
            return fail(m_file->errorNumber());
        if (state == FileCopy::Done) {
            m_done += m_file->copied();
            m_file.reset();
        }
        return m_state;
    }
    if (m_next == m_parts.size())
        return finish();
    if (!beginPart(m_parts.at(m_next++)))
        return fail(errno);
    return m_state;
}

FileCopy::State ItemCopy::finish()
{
    if (m_isFolder)
        syncFolder(m_target + kAside);
    if (m_aside) {
        if (!replaceBy(m_target + kAside, m_target))
            return fail(errno);
        syncFolder(QFileInfo(m_target).path());
    }
    return m_state = FileCopy::Done;
}

FileCopy::State ItemCopy::fail(int error)
{
    m_outOfRoom = error == ENOSPC || error == EDQUOT;
    cancel(qt_error_string(error));
    return m_state;
}

void ItemCopy::cancel(const QString &reason)
{
    if (m_state != FileCopy::Running)
        return;
    m_state = FileCopy::Failed;
    m_error = reason;
    m_file.reset(); // takes away what it wrote
    if (m_begun && m_aside)
        removeWhole(m_target + kAside);
}
