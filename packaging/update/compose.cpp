#include "compose.h"

#include "crypto.h"
#include "files.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace update {

namespace {

constexpr std::size_t kPieceBytes = 256 * 1024;

/// A file that goes into the package.
struct Source
{
    std::string path;
    Entry entry;
};

Outcome wrong(const std::string &what)
{
    return { Refused, what };
}

/// Reads a source from its beginning: into its digest, or into the package behind it.
bool readThrough(const Source &source, Digest *digest, int package)
{
    const File file = openOrdinary(source.path);
    std::vector<char> piece(kPieceBytes);
    Sha256 sum;
    for (std::uint64_t at = 0; file && at < source.entry.size;) {
        const auto size = std::size_t(std::min<std::uint64_t>(source.entry.size - at, piece.size()));
        if (!readAt(file.descriptor(), at, piece.data(), size)
            || (package >= 0 && !writeAll(package, piece.data(), size)))
            return false;
        sum.add(piece.data(), size);
        at += size;
    }
    return file && sum.finish(digest);
}

Outcome addFile(const std::string &path, const std::string &name, std::vector<Source> *sources)
{
    struct stat info
    {
    };
    if (::lstat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode))
        return wrong(path + " is no ordinary file; a package holds nothing else");
    if (!isGoodName(name))
        return wrong(name + " is a name that no package may hold");
    Source source { path, { name, (info.st_mode & S_IXUSR) != 0, std::uint64_t(info.st_size), {} } };
    if (!readThrough(source, &source.entry.digest, -1))
        return wrong(path + " cannot be read");
    sources->push_back(source);
    return {};
}

Outcome addFolder(const std::string &path, const std::string &prefix, std::vector<Source> *sources)
{
    const File folder = openFolder(AT_FDCWD, path);
    std::vector<std::string> names;
    if (!folder || !namesIn(folder.descriptor(), &names))
        return wrong(path + " is no folder that can be read");
    std::sort(names.begin(), names.end()); // the same folder gives the same package
    for (const std::string &name : names) {
        struct stat info
        {
        };
        const std::string inner = path + '/' + name;
        const bool isFolder = ::lstat(inner.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
        const Outcome outcome
            = isFolder ? addFolder(inner, prefix + name + '/', sources) : addFile(inner, prefix + name, sources);
        if (!outcome.good())
            return outcome;
    }
    return {};
}

Outcome writePackage(const std::string &path, const std::string &head, const std::vector<Source> &sources)
{
    const File file(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
    if (!file || !writeAll(file.descriptor(), head.data(), head.size()))
        return wrong(path + " cannot be written: " + std::strerror(errno));
    for (const Source &source : sources) {
        Digest digest;
        if (!readThrough(source, &digest, file.descriptor()) || digest != source.entry.digest)
            return wrong(source.path + " cannot be copied, or changes meanwhile");
    }
    return ::fsync(file.descriptor()) == 0 ? Outcome() : wrong(path + " cannot be written");
}

} // namespace

Outcome composePackage(const Order &order)
{
    std::vector<Source> sources;
    Outcome outcome = order.kind == Kind::Software ? addFolder(order.source, std::string(), &sources)
                                                   : addFile(order.source, kFirmwareName, &sources);
    if (!outcome.good())
        return outcome;
    std::vector<Entry> entries;
    for (const Source &source : sources)
        entries.push_back(source.entry);
    Head head;
    head.kind = order.kind;
    head.version = order.version;
    head.minimum = order.minimum;
    const std::string message = compose(head, entries);
    // By the rules of the instrument, which would refuse what breaks them.
    std::string problem = readHead(message.substr(0, kHeadBytes), &head);
    if (problem.empty())
        problem = readTable(head, message.substr(kHeadBytes), &entries);
    if (!problem.empty())
        return wrong("no instrument would take the package: " + problem);
    const std::string signature = sign(order.privateKey, message);
    if (signature.empty())
        return wrong("the key is no Ed25519 key");
    outcome = writePackage(order.package, message + signature, sources);
    if (!outcome.good())
        ::unlink(order.package.c_str());
    return outcome;
}

} // namespace update
