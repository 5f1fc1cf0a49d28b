#include "minimum.h"

#include "board.h"
#include "files.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <fcntl.h>
#include <sstream>
#include <sys/stat.h>

namespace update {

namespace {

/// A line "software N" or "firmware N", with nothing else in it.
bool readLine(const std::string &line, Kind *kind, std::uint32_t *version)
{
    for (const Kind each : { Kind::Software, Kind::Firmware }) {
        const std::string start = std::string(kindName(each)) + ' ';
        if (line.compare(0, start.size(), start) != 0)
            continue;
        const std::string number = line.substr(start.size());
        const char *const end = number.data() + number.size();
        const auto read = std::from_chars(number.data(), end, *version);
        *kind = each;
        return read.ec == std::errc() && read.ptr == end;
    }
    return false;
}

} // namespace

std::optional<std::uint32_t> Minimum::of(Kind kind) const
{
    constexpr std::size_t kMostBytes = 4096;
    const std::string path = m_root + kStateFolder + '/' + kMinimumFile;
    struct stat info
    {
    };
    if (::lstat(path.c_str(), &info) != 0)
        return errno == ENOENT ? std::optional<std::uint32_t>(0) : std::nullopt;
    std::string content;
    if (!readSmall(path, kMostBytes, &content))
        return {};
    std::istringstream lines(content);
    std::optional<std::uint32_t> most;
    for (std::string line; std::getline(lines, line);) {
        Kind named = kind;
        std::uint32_t version = 0;
        if (!readLine(line, &named, &version))
            return {};
        most = std::max(most.value_or(0), named == kind ? version : 0);
    }
    return most; // an empty file tells nothing
}

bool Minimum::raise(Kind kind, std::uint32_t version) const
{
    std::string content;
    for (const Kind each : { Kind::Software, Kind::Firmware }) {
        const std::optional<std::uint32_t> stored = of(each);
        if (!stored)
            return false;
        if (each == kind && version <= *stored)
            return true;
        content += std::string(kindName(each)) + ' ' + std::to_string(each == kind ? version : *stored) + '\n';
    }
    const File folder = openFolder(AT_FDCWD, m_root + kStateFolder);
    return folder && replaceSmall(folder.descriptor(), kMinimumFile, content, 0644);
}

} // namespace update
