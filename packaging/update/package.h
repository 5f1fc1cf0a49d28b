#pragma once

#include "files.h"
#include "format.h"
#include "outcome.h"

#include <optional>

namespace update {

/// A package on a disk, read through one descriptor from the first byte to the last: what was checked is what is
/// installed, whatever happens to the name meanwhile. Memory does not grow with the package.
class Package
{
public:
    /// Opens and checks all of it: signature of head and table, then the digest of every file.
    /// `kind`: the only kind that is asked for, if one is.
    Outcome open(const std::string &path, const std::string &publicKey, std::optional<Kind> kind);

    const Head &head() const { return m_head; }
    const std::vector<Entry> &entries() const { return m_entries; }

    /// Writes the content of entry `number` to `to`, and checks it once more: a disk may change between two reads.
    Outcome copy(std::size_t number, int to) const;

private:
    Outcome readSigned(const std::string &publicKey);
    Outcome checkPayload() const;
    /// Reads an entry, into `to` unless that is -1.
    Outcome readEntry(std::size_t number, int to) const;

    std::optional<File> m_file;
    Head m_head;
    std::vector<Entry> m_entries;
};

} // namespace update
