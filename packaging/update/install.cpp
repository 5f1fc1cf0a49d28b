#include "install.h"

#include "board.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace update {

namespace {

constexpr char kAside[] = ".new"; // of a folder or link that does not count yet

Outcome failed(const std::string &what)
{
    return { NotInstalled, what + ": " + std::strerror(errno) };
}

/// Where a link of the software's folder leads to; empty when it is none.
std::string target(int folder, const char *link)
{
    char text[512];
    const ssize_t size = ::readlinkat(folder, link, text, sizeof(text));
    return size > 0 && std::size_t(size) < sizeof(text) ? std::string(text, std::size_t(size)) : std::string();
}

/// Lets `link` lead to another place in one step.
bool swing(int folder, const char *link, const std::string &to)
{
    const std::string aside = std::string(link) + kAside;
    return removeTree(folder, aside) && ::symlinkat(to.c_str(), folder, aside.c_str()) == 0
        && ::renameat(folder, aside.c_str(), folder, link) == 0 && ::fsync(folder) == 0;
}

/// One installation of software.
class Installation
{
public:
    Installation(const Package &package, int top, int versions)
        : m_package(package), m_top(top), m_versions(versions), m_aside(std::string(kVersionsFolder) + kAside)
    { }

    Outcome run();

private:
    bool isWanted(const std::string &version) const;
    bool removeUnused() const;
    bool hasRoom() const;
    Outcome writeVersion(int folder) const;
    Outcome writeEntry(int folder, std::size_t number) const;
    /// The folder of a name's last part; those on the way are made. Their names reach the disk by syncFolders().
    File folderOf(int folder, const std::string &name) const;
    bool syncFolders(int folder) const;
    std::string freeName() const;

    const Package &m_package;
    const int m_top; // the software's folder
    const int m_versions;
    const std::string m_aside; // where the new version is written
};

Outcome Installation::run()
{
    if (!removeUnused())
        return failed("what an earlier update left cannot be removed");
    if (!hasRoom())
        return { NotInstalled, "there is no room for the new version" };
    if (::mkdirat(m_versions, m_aside.c_str(), 0755) != 0)
        return failed("the folder of the new version cannot be made");
    const std::string name = freeName();
    Outcome outcome;
    {
        const File folder = openFolder(m_versions, m_aside);
        outcome = folder ? writeVersion(folder.descriptor()) : failed("the folder of the new version cannot be opened");
    }
    if (outcome.good()
        && (::renameat(m_versions, m_aside.c_str(), m_versions, name.c_str()) != 0 || ::fsync(m_versions) != 0))
        outcome = failed("the new version cannot take its name");
    if (!outcome.good()) {
        removeTree(m_versions, m_aside);
        return outcome;
    }
    const std::string former = target(m_top, kCurrentLink);
    if ((!former.empty() && !swing(m_top, kPreviousLink, former))
        || !swing(m_top, kCurrentLink, std::string(kVersionsFolder) + '/' + name))
        return failed("the new version cannot be made the current one");
    removeUnused(); // what stays only takes room until the next update
    return {};
}

/// Whether a link leads to it, however the link is written: someone may have made it by hand.
bool Installation::isWanted(const std::string &version) const
{
    struct stat folder
    {
    }, linked {};
    if (::fstatat(m_versions, version.c_str(), &folder, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    for (const char *link : { kCurrentLink, kPreviousLink }) {
        if (::fstatat(m_top, link, &linked, 0) == 0 && linked.st_dev == folder.st_dev && linked.st_ino == folder.st_ino)
            return true;
    }
    return false;
}

/// Versions that no link leads to: older ones, and what an update that was cut off left.
bool Installation::removeUnused() const
{
    struct stat linked
    {
    };
    for (const char *link : { kCurrentLink, kPreviousLink }) {
        if (::fstatat(m_top, link, &linked, 0) != 0 && errno != ENOENT)
            return false; // what cannot be looked at may be in use
    }
    std::vector<std::string> names;
    bool good = namesIn(m_versions, &names);
    for (const std::string &name : names) {
        if (!isWanted(name))
            good = removeTree(m_versions, name) && good;
    }
    return good;
}

bool Installation::hasRoom() const
{
    struct statvfs room
    {
    };
    if (::fstatvfs(m_versions, &room) != 0)
        return false;
    const std::uint64_t block = room.f_frsize ? room.f_frsize : 1;
    // A file ends within a block, and each may need a folder of its own.
    const std::uint64_t needed = m_package.head().payloadBytes / block + 2 * m_package.entries().size() + 1;
    return room.f_bavail >= needed;
}

Outcome Installation::writeVersion(int folder) const
{
    for (std::size_t number = 0; number < m_package.entries().size(); ++number) {
        const Outcome outcome = writeEntry(folder, number);
        if (!outcome.good())
            return outcome;
    }
    return syncFolders(folder) ? Outcome() : failed("the new version cannot be brought to the disk");
}

Outcome Installation::writeEntry(int folder, std::size_t number) const
{
    const Entry &entry = m_package.entries()[number];
    const File parent = folderOf(folder, entry.name);
    if (!parent)
        return failed("a folder of the new version cannot be made");
    const std::string last = entry.name.substr(entry.name.rfind('/') + 1);
    const File file = createFile(parent.descriptor(), last, entry.executable ? 0755 : 0644);
    if (!file)
        return failed("a file of the new version cannot be made");
    Outcome outcome = m_package.copy(number, file.descriptor());
    if (outcome.good() && ::fsync(file.descriptor()) != 0)
        outcome = failed("a file of the new version cannot be brought to the disk");
    return outcome;
}

File Installation::folderOf(int folder, const std::string &name) const
{
    int inside = ::dup(folder);
    for (std::size_t from = 0, slash; inside >= 0 && (slash = name.find('/', from)) != std::string::npos;
         from = slash + 1) {
        const std::string part = name.substr(from, slash - from);
        const File outer(inside);
        inside = -1;
        if (::mkdirat(outer.descriptor(), part.c_str(), 0755) == 0 || errno == EEXIST)
            inside = ::dup(openFolder(outer.descriptor(), part).descriptor());
    }
    return File(inside);
}

bool Installation::syncFolders(int folder) const
{
    std::vector<std::string> names;
    if (!namesIn(folder, &names))
        return false;
    for (const std::string &name : names) {
        const File inner = openFolder(folder, name);
        if (inner ? !syncFolders(inner.descriptor()) : errno != ENOTDIR)
            return false;
    }
    return ::fsync(folder) == 0;
}

/// "12" for version 12, "12.1" when that stands already: the version that runs is never written to.
std::string Installation::freeName() const
{
    std::string name = std::to_string(m_package.head().version);
    const std::string first = name;
    for (int again = 1; ::faccessat(m_versions, name.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0; ++again)
        name = first + '.' + std::to_string(again);
    return name;
}

} // namespace

Outcome installSoftware(const Package &package, const std::string &root)
{
    const File top = openFolder(AT_FDCWD, root + kSoftwareFolder);
    if (!top)
        return failed("there is no folder for software");
    const File lock(::openat(top.descriptor(), ".lock", O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
    if (!lock)
        return failed("the lock of updates cannot be opened");
    if (::flock(lock.descriptor(), LOCK_EX | LOCK_NB) != 0)
        return { Busy, "another update is under way" };
    if (::mkdirat(top.descriptor(), kVersionsFolder, 0755) != 0 && errno != EEXIST)
        return failed("there is no folder for versions");
    const File versions = openFolder(top.descriptor(), kVersionsFolder);
    if (!versions)
        return failed("there is no folder for versions");
    return Installation(package, top.descriptor(), versions.descriptor()).run();
}

Outcome leaveFirmware(const Package &package, const std::string &root)
{
    const File folder = openFolder(AT_FDCWD, root + kTemporaryFolder);
    if (!folder)
        return failed("there is no temporary folder");
    // Always a new file, and the rename replaces what stands under the final name: nothing is written through a link.
    const std::string aside = std::string(kFirmwareFile) + '.' + std::to_string(::getpid());
    if (!removeTree(folder.descriptor(), aside))
        return failed("what an earlier update left cannot be removed");
    Outcome outcome;
    {
        const File file = createFile(folder.descriptor(), aside, 0600);
        outcome = file ? package.copy(0, file.descriptor()) : failed("the image cannot be written");
        if (outcome.good() && ::fsync(file.descriptor()) != 0)
            outcome = failed("the image cannot be written");
    }
    if (outcome.good() && ::renameat(folder.descriptor(), aside.c_str(), folder.descriptor(), kFirmwareFile) != 0)
        outcome = failed("the image cannot take its name");
    if (!outcome.good())
        removeTree(folder.descriptor(), aside);
    return outcome;
}

} // namespace update
