#include "package.h"

#include "crypto.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/stat.h>

namespace update {

namespace {

constexpr std::size_t kPieceBytes = 256 * 1024; // read at a time

Outcome refused(const std::string &why)
{
    return { Refused, "the package is refused: " + why };
}

/// What a failed read means: the end that came too early is a cut package, an error is the disk's.
Outcome unreadable()
{
    if (errno == 0)
        return refused("it is cut");
    return { Unreadable, std::string("the package cannot be read: ") + std::strerror(errno) };
}

} // namespace

Outcome Package::open(const std::string &path, const std::string &publicKey, std::optional<Kind> kind)
{
    m_file.emplace(openOrdinary(path));
    struct stat info
    {
    };
    if (!*m_file || ::fstat(m_file->descriptor(), &info) != 0)
        return { Unreadable, "the package cannot be read: it is no ordinary file" };
    std::string bytes(std::min<std::size_t>(kHeadBytes, std::size_t(info.st_size)), '\0');
    if (!readAt(m_file->descriptor(), 0, &bytes[0], bytes.size()))
        return unreadable();
    const std::string problem = readHead(bytes, &m_head);
    if (!problem.empty())
        return refused(problem);
    const std::uint64_t size = std::uint64_t(info.st_size);
    if (size != m_head.packageBytes())
        return refused(size < m_head.packageBytes() ? "it is cut" : "something stands behind its end");
    Outcome outcome = readSigned(publicKey);
    if (outcome.good() && kind && *kind != m_head.kind)
        outcome = refused(std::string("it holds ") + kindName(m_head.kind) + ", asked for is " + kindName(*kind));
    return outcome.good() ? checkPayload() : outcome;
}

/// Nothing of the table is looked at before its signature is known to be good.
Outcome Package::readSigned(const std::string &publicKey)
{
    std::string message(kHeadBytes + m_head.tableBytes, '\0');
    std::string signature(kSignatureBytes, '\0');
    if (!readAt(m_file->descriptor(), 0, &message[0], message.size())
        || !readAt(m_file->descriptor(), message.size(), &signature[0], signature.size()))
        return unreadable();
    if (std::all_of(signature.begin(), signature.end(), [](char byte) { return byte == '\0'; }))
        return refused("it is not signed");
    bool keyRead = false;
    const bool good = isSignedBy(publicKey, message, signature, &keyRead);
    if (!keyRead)
        return { NotInstalled, "the instrument has no key that packages are checked with" };
    if (!good)
        return refused("its signature is wrong");
    // The head is read anew from the bytes that are signed: the first read of a bad disk may have been another one.
    std::string problem = readHead(message.substr(0, kHeadBytes), &m_head);
    if (problem.empty())
        problem = readTable(m_head, message.substr(kHeadBytes), &m_entries);
    return problem.empty() ? Outcome() : refused(problem);
}

Outcome Package::checkPayload() const
{
    for (std::size_t number = 0; number < m_entries.size(); ++number) {
        const Outcome outcome = readEntry(number, -1);
        if (!outcome.good())
            return outcome;
    }
    return {};
}

Outcome Package::copy(std::size_t number, int to) const
{
    return readEntry(number, to);
}

Outcome Package::readEntry(std::size_t number, int to) const
{
    std::uint64_t at = m_head.payloadOffset();
    for (std::size_t before = 0; before < number; ++before)
        at += m_entries[before].size;
    const Entry &entry = m_entries[number];
    std::vector<char> piece(std::size_t(std::min<std::uint64_t>(entry.size, kPieceBytes)));
    Sha256 sum;
    for (std::uint64_t left = entry.size; left > 0;) {
        const std::size_t size = std::size_t(std::min<std::uint64_t>(left, piece.size()));
        if (!readAt(m_file->descriptor(), at, piece.data(), size))
            return unreadable();
        sum.add(piece.data(), size);
        if (to >= 0 && !writeAll(to, piece.data(), size))
            return { NotInstalled, std::string("a file cannot be written: ") + std::strerror(errno) };
        at += size;
        left -= size;
    }
    Digest digest;
    return sum.finish(&digest) && digest == entry.digest ? Outcome() : refused("the content of a file is damaged");
}

} // namespace update
