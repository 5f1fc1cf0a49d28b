#pragma once

#include "settings/limits.h"

/// The two limit sets that the instrument brings along.
namespace LimitBuiltins {
constexpr char kEn50160Name[] = "EN50160";
constexpr char kGost32144Name[] = "GOST32144";
monitor_limit en50160(); // EN 50160
monitor_limit gost32144(); // GOST 32144
}
