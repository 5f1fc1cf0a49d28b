#pragma once

#include "format.h"

#include <optional>

namespace update {

/// The oldest version of each kind that may still be installed. Packages raise it, nothing lowers it.
class Minimum
{
public:
    explicit Minimum(const std::string &root) : m_root(root) { }

    /// What is stored; 0, which allows all, where the file is missing or does not name the kind. Nothing when the file
    /// cannot be read or holds anything else: nobody knows what it forbade.
    std::optional<std::uint32_t> of(Kind kind) const;
    /// False when it cannot be stored, or what is stored is not known.
    bool raise(Kind kind, std::uint32_t version) const;

private:
    const std::string m_root;
};

} // namespace update
