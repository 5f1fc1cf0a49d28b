#include "minimum.h"

#include "board.h"
#include "files.h"

#include <algorithm>
#include <fcntl.h>
#include <sstream>
#include <sys/stat.h>

namespace update {

std::uint32_t Minimum::of(Kind kind) const
{
    constexpr std::size_t kMostBytes = 4096;
    std::string content;
    if (!readSmall(m_root + kStateFolder + '/' + kMinimumFile, kMostBytes, &content))
        return 0;
    std::istringstream lines(content);
    std::uint32_t most = 0;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        std::string name;
        std::uint32_t version = 0;
        if (words >> name >> version && name == kindName(kind))
            most = std::max(most, version);
    }
    return most;
}

bool Minimum::raise(Kind kind, std::uint32_t version) const
{
    if (version <= of(kind))
        return true;
    std::string content;
    for (const Kind each : { Kind::Software, Kind::Firmware })
        content += std::string(kindName(each)) + ' ' + std::to_string(each == kind ? version : of(each)) + '\n';
    const File folder = openFolder(AT_FDCWD, m_root + kStateFolder);
    return folder && replaceSmall(folder.descriptor(), kMinimumFile, content, 0644);
}

} // namespace update
