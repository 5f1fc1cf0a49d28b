#pragma once

#include "link/frame.h"
#include "metrology/setup.h"

#include <optional>

namespace wire {

/// The set-up that a frame of either form carries. Nothing when it names a frequency or a wiring that is not known.
///
/// The older block of 104 bytes holds less: what it does not name keeps its value of \a now.
std::optional<processor::ProcessorSetup> setupOf(const Frame &frame, const processor::ProcessorSetup &now);

} // namespace wire
