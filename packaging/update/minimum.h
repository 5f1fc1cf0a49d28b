#pragma once

#include "format.h"

namespace update {

/// The oldest version of each kind that may still be installed. Packages raise it, nothing lowers it.
class Minimum
{
public:
    explicit Minimum(const std::string &root) : m_root(root) { }

    /// What is stored. A file that is missing allows all; of one that is damaged the lines that make sense count.
    std::uint32_t of(Kind kind) const;
    /// False when it cannot be stored.
    bool raise(Kind kind, std::uint32_t version) const;

private:
    const std::string m_root;
};

} // namespace update
