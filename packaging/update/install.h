#pragma once

#include "package.h"

namespace update {

/// Installs a checked package below `root`. A power cut or a failed write at any point leaves the version that ran
/// before, or the new one, never a mix of both; what was left half-done goes away with the next update.
Outcome installSoftware(const Package &package, const std::string &root);

/// Leaves the image of a firmware package as a plain file for the instrument, which alone may read it.
Outcome leaveFirmware(const Package &package, const std::string &root);

} // namespace update
