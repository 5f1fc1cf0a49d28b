#pragma once

#include <limits>

/// What bytes from the wire may hold where a number is expected: no number, no end, far too large, denormal.
constexpr float kWildFloats[] = { std::numeric_limits<float>::quiet_NaN(),
                                  std::numeric_limits<float>::infinity(),
                                  -std::numeric_limits<float>::infinity(),
                                  1e30f,
                                  -1e30f,
                                  1e-40f };
