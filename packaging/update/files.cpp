#include "files.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace update {

File::~File()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

File openOrdinary(const std::string &path)
{
    if (path.find('\0') != std::string::npos) {
        errno = ENOENT;
        return File();
    }
    const int fd = ::openat(AT_FDCWD, path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat info
    {
    };
    if (fd >= 0 && ::fstat(fd, &info) == 0 && S_ISREG(info.st_mode))
        return File(fd);
    if (fd >= 0) {
        ::close(fd);
        errno = EINVAL;
    }
    return File();
}

File openFolder(int parent, const std::string &name)
{
    return File(::openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

File createFile(int folder, const std::string &name, unsigned mode)
{
    return File(::openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
}

bool readAt(int descriptor, std::uint64_t offset, void *buffer, std::size_t size)
{
    auto *to = static_cast<char *>(buffer);
    while (size > 0) {
        errno = 0;
        const ssize_t got = ::pread(descriptor, to, size, off_t(offset));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        to += got;
        offset += std::uint64_t(got);
        size -= std::size_t(got);
    }
    return true;
}

bool writeAll(int descriptor, const void *data, std::size_t size)
{
    const auto *from = static_cast<const char *>(data);
    while (size > 0) {
        const ssize_t written = ::write(descriptor, from, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        from += written;
        size -= std::size_t(written);
    }
    return true;
}

bool readSmall(const std::string &path, std::size_t most, std::string *content)
{
    const File file = openOrdinary(path);
    struct stat info
    {
    };
    if (!file || ::fstat(file.descriptor(), &info) != 0 || info.st_size < 0 || std::size_t(info.st_size) > most)
        return false;
    content->resize(std::size_t(info.st_size));
    return readAt(file.descriptor(), 0, &(*content)[0], content->size());
}

bool replaceSmall(int folder, const std::string &name, const std::string &content, unsigned mode)
{
    const std::string aside = name + ".new";
    if (!removeTree(folder, aside))
        return false;
    {
        const File file = createFile(folder, aside, mode);
        if (!file || !writeAll(file.descriptor(), content.data(), content.size()) || ::fsync(file.descriptor()) != 0)
            return false;
    }
    return ::renameat(folder, aside.c_str(), folder, name.c_str()) == 0 && ::fsync(folder) == 0;
}

bool namesIn(int folder, std::vector<std::string> *names)
{
    names->clear();
    const int twin = ::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR *listing = twin >= 0 ? ::fdopendir(twin) : nullptr;
    if (!listing) {
        if (twin >= 0)
            ::close(twin);
        return false;
    }
    errno = 0;
    while (const dirent *entry = ::readdir(listing)) {
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
            names->emplace_back(entry->d_name);
        errno = 0;
    }
    const bool whole = errno == 0;
    ::closedir(listing);
    return whole;
}

bool removeTree(int folder, const std::string &name)
{
    if (::unlinkat(folder, name.c_str(), 0) == 0 || errno == ENOENT)
        return true;
    if (errno != EISDIR && errno != EPERM)
        return false;
    {
        const File inner = openFolder(folder, name);
        std::vector<std::string> names;
        if (!inner || !namesIn(inner.descriptor(), &names))
            return false;
        for (const std::string &entry : names) {
            if (!removeTree(inner.descriptor(), entry))
                return false;
        }
    }
    return ::unlinkat(folder, name.c_str(), AT_REMOVEDIR) == 0;
}

} // namespace update
