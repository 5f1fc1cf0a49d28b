#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// What both programs do with files. Everything below a folder goes through its descriptor, never through its name.
namespace update {

/// A descriptor that is closed with its owner.
class File
{
public:
    explicit File(int descriptor = -1) : m_descriptor(descriptor) { }
    File(File &&other) noexcept : m_descriptor(other.m_descriptor) { other.m_descriptor = -1; }
    ~File();
    File(const File &) = delete;
    File &operator=(const File &) = delete;
    File &operator=(File &&) = delete;

    int descriptor() const { return m_descriptor; }
    explicit operator bool() const { return m_descriptor >= 0; }

private:
    int m_descriptor;
};

/// An ordinary file for reading, never a link, a pipe or a device; nothing waits. errno tells why not.
File openOrdinary(const std::string &path);
/// An existing folder, whose last part is no link.
File openFolder(int parent, const std::string &name);
/// A new file; it fails where something of that name stands.
File createFile(int folder, const std::string &name, unsigned mode);

/// Reads exactly `size` bytes at `offset`. False: an error (errno), or the end came first (errno 0).
bool readAt(int descriptor, std::uint64_t offset, void *buffer, std::size_t size);
bool writeAll(int descriptor, const void *data, std::size_t size);

/// The content of a small ordinary file. False when it is none or larger than `most`.
bool readSmall(const std::string &path, std::size_t most, std::string *content);
/// Replaces a small file so that a power cut leaves the old or the new one.
bool replaceSmall(int folder, const std::string &name, const std::string &content, unsigned mode);

/// What stands in a folder. False when it cannot be read to its end.
bool namesIn(int folder, std::vector<std::string> *names);
/// Takes a file, a link or a whole folder away without following links. A name that is not there is fine.
bool removeTree(int folder, const std::string &name);

} // namespace update
