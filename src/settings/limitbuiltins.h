#pragma once

#include "settings/limits.h"

/// The two limit sets that the instrument brings along.
namespace LimitBuiltins {
monitor_limit en50160(); // EN 50160
monitor_limit gost32144(); // GOST 32144
}
