#pragma once

#include "format.h"
#include "outcome.h"

namespace update {

/// What goes into a package, and where it is written.
struct Order
{
    Kind kind = Kind::Software;
    std::uint32_t version = 0;
    std::uint32_t minimum = 0;
    std::string privateKey; // PEM
    std::string source; // software: a folder; firmware: the image
    std::string package; // the file that is made
};

/// Makes a package. On a failure no file of its name is left.
Outcome composePackage(const Order &order);

} // namespace update
