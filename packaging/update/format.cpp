#include "format.h"

#include <algorithm>
#include <cstring>
#include <set>

namespace update {

namespace {

constexpr char kMagic[] = "QVUPDATE"; // 8 bytes without the zero
constexpr std::size_t kMagicBytes = sizeof(kMagic) - 1;
constexpr std::size_t kRowBytes = 44; // of a table row, without the name
constexpr std::uint16_t kPlainMode = 0644;
constexpr std::uint16_t kExecutableMode = 0755;

template <typename Number> Number numberAt(const std::string &bytes, std::size_t at)
{
    Number number = 0;
    for (std::size_t k = sizeof(Number); k-- > 0;)
        number = Number(number << 8 | std::uint8_t(bytes[at + k]));
    return number;
}

template <typename Number> void append(std::string *bytes, Number number)
{
    for (std::size_t k = 0; k < sizeof(Number); ++k)
        bytes->push_back(char(number >> (8 * k) & 0xFF));
}

bool isGoodCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || std::strchr("._+-@", c);
}

/// One part of a name, between slashes. A part that begins with a dash would be an option of some command.
bool isGoodPart(const std::string &part)
{
    return !part.empty() && part != "." && part != ".." && part[0] != '-'
        && std::all_of(part.begin(), part.end(), [](char c) { return c != '\0' && isGoodCharacter(c); });
}

/// Empty when no entry stands twice, or as a file where another one needs a folder.
std::string checkNames(const std::vector<Entry> &entries)
{
    std::set<std::string> names;
    for (const Entry &entry : entries) {
        if (!names.insert(entry.name).second)
            return "a file stands in it twice";
    }
    for (const Entry &entry : entries) {
        for (std::size_t slash = entry.name.find('/'); slash != std::string::npos;
             slash = entry.name.find('/', slash + 1)) {
            if (names.count(entry.name.substr(0, slash)))
                return "a name is both a file and a folder";
        }
    }
    return {};
}

std::string readRow(const std::string &bytes, std::size_t *at, Entry *entry)
{
    if (bytes.size() - *at < kRowBytes)
        return "its table is cut";
    const std::size_t nameBytes = numberAt<std::uint16_t>(bytes, *at);
    const std::uint16_t mode = numberAt<std::uint16_t>(bytes, *at + 2);
    entry->size = numberAt<std::uint64_t>(bytes, *at + 4);
    std::copy_n(bytes.begin() + std::ptrdiff_t(*at + 12), kDigestBytes, entry->digest.begin());
    *at += kRowBytes;
    if (bytes.size() - *at < nameBytes)
        return "its table is cut";
    entry->name = bytes.substr(*at, nameBytes);
    *at += nameBytes;
    if (mode != kPlainMode && mode != kExecutableMode)
        return "an entry is no plain file";
    entry->executable = mode == kExecutableMode;
    if (!isGoodName(entry->name))
        return "it holds a file name that is not allowed";
    return {};
}

} // namespace

const char *kindName(Kind kind)
{
    return kind == Kind::Software ? "software" : "firmware";
}

bool isGoodName(const std::string &name)
{
    if (name.empty() || name.size() > kMostNameBytes)
        return false;
    std::size_t parts = 0;
    for (std::size_t from = 0;;) {
        const std::size_t slash = name.find('/', from);
        if (++parts > kMostNameParts || !isGoodPart(name.substr(from, slash - from)))
            return false;
        if (slash == std::string::npos)
            return true;
        from = slash + 1;
    }
}

std::string readHead(const std::string &bytes, Head *head)
{
    if (bytes.size() < kMagicBytes || bytes.compare(0, kMagicBytes, kMagic) != 0)
        return "it is no update package";
    if (bytes.size() < kHeadBytes)
        return "it is cut";
    if (numberAt<std::uint32_t>(bytes, 8) != kFormatVersion)
        return "it has a format that this instrument does not know";
    const std::uint32_t kind = numberAt<std::uint32_t>(bytes, 12);
    if (kind != std::uint32_t(Kind::Software) && kind != std::uint32_t(Kind::Firmware))
        return "it is of an unknown kind";
    head->kind = Kind(kind);
    head->version = numberAt<std::uint32_t>(bytes, 16);
    head->minimum = numberAt<std::uint32_t>(bytes, 20);
    head->files = numberAt<std::uint32_t>(bytes, 24);
    head->tableBytes = numberAt<std::uint32_t>(bytes, 28);
    head->payloadBytes = numberAt<std::uint64_t>(bytes, 32);
    if (head->version == 0 || head->minimum > head->version)
        return "its version makes no sense";
    const std::uint64_t most = head->kind == Kind::Software ? kMostSoftwareBytes : kMostFirmwareBytes;
    if (head->files > kMostFiles || head->tableBytes > kMostTableBytes || head->payloadBytes > most)
        return "it is too large";
    if (head->files == 0 || (head->kind == Kind::Firmware && (head->files != 1 || head->payloadBytes == 0)))
        return "it does not hold what its kind asks for";
    return {};
}

std::string readTable(const Head &head, const std::string &bytes, std::vector<Entry> *entries)
{
    entries->clear();
    if (bytes.size() != head.tableBytes)
        return "its table is cut";
    std::uint64_t total = 0;
    std::size_t at = 0;
    for (std::uint32_t k = 0; k < head.files; ++k) {
        Entry entry;
        std::string problem = readRow(bytes, &at, &entry);
        if (problem.empty() && entry.size > head.payloadBytes - total)
            problem = "its files are larger than it is";
        if (!problem.empty())
            return problem;
        total += entry.size;
        entries->push_back(std::move(entry));
    }
    if (at != bytes.size() || total != head.payloadBytes)
        return "its table does not fit its content";
    if (head.kind == Kind::Firmware && entries->front().name != kFirmwareName)
        return "it does not hold what its kind asks for";
    return checkNames(*entries);
}

std::string compose(Head head, const std::vector<Entry> &entries)
{
    std::string table;
    head.payloadBytes = 0;
    for (const Entry &entry : entries) {
        append(&table, std::uint16_t(entry.name.size()));
        append(&table, entry.executable ? kExecutableMode : kPlainMode);
        append(&table, entry.size);
        table.append(entry.digest.begin(), entry.digest.end());
        table += entry.name;
        head.payloadBytes += entry.size;
    }
    std::string bytes = kMagic;
    append(&bytes, kFormatVersion);
    append(&bytes, std::uint32_t(head.kind));
    append(&bytes, head.version);
    append(&bytes, head.minimum);
    append(&bytes, std::uint32_t(entries.size()));
    append(&bytes, std::uint32_t(table.size()));
    append(&bytes, head.payloadBytes);
    return bytes + table;
}

} // namespace update
