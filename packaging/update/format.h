#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

/// How an update package is laid out: docs/formats/update-package.md. Pure functions over bytes, no files.
namespace update {

enum class Kind : std::uint32_t { Software = 1, Firmware = 2 };
const char *kindName(Kind kind); // "software", "firmware"

constexpr std::size_t kHeadBytes = 40;
constexpr std::size_t kSignatureBytes = 64; // Ed25519
constexpr std::size_t kDigestBytes = 32; // SHA-256
constexpr std::uint32_t kFormatVersion = 1;
constexpr std::uint32_t kMostFiles = 4096;
constexpr std::uint32_t kMostTableBytes = 1u << 20;
constexpr std::size_t kMostNameBytes = 255;
constexpr std::size_t kMostNameParts = 16;
constexpr std::uint64_t kMostSoftwareBytes = 512ull << 20;
constexpr std::uint64_t kMostFirmwareBytes = 8ull << 20; // as the measurement processor takes
constexpr char kFirmwareName[] = "firmware.bin"; // the one file of a firmware package

using Digest = std::array<std::uint8_t, kDigestBytes>;

struct Head
{
    Kind kind = Kind::Software;
    std::uint32_t version = 0; // grows with each release
    std::uint32_t minimum = 0; // once this package is installed, older ones than that are refused
    std::uint32_t files = 0;
    std::uint32_t tableBytes = 0;
    std::uint64_t payloadBytes = 0;

    /// Length of the whole package.
    std::uint64_t packageBytes() const { return payloadOffset() + payloadBytes; }
    std::uint64_t payloadOffset() const { return kHeadBytes + tableBytes + kSignatureBytes; }
};

struct Entry
{
    std::string name; // below the folder of the version, as "bin/quvera"
    bool executable = false;
    std::uint64_t size = 0;
    Digest digest {};
};

/// Reads the first kHeadBytes of a package. Empty when every field is within its bounds, otherwise what is wrong.
std::string readHead(const std::string &bytes, Head *head);
/// Reads the table behind the head; `head` passed readHead. Empty when it is whole and every entry may be installed.
std::string readTable(const Head &head, const std::string &bytes, std::vector<Entry> *entries);

/// Head and table as they stand in a package, which are the bytes that are signed. Fills in the counts of `head`.
std::string compose(Head head, const std::vector<Entry> &entries);

/// Whether a name stays below the folder that it is installed in and is the same on every file system.
bool isGoodName(const std::string &name);

} // namespace update
