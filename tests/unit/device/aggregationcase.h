#pragma once

#include "payloads.h"

#include <algorithm>
#include <cmath>
#include <limits>

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr double kPi = 3.141592653589793;
constexpr float kDegree = float(kPi / 180);

inline bool near(double actual, double expected, double relative = 1e-5)
{
    const bool ok = std::fabs(actual - expected) <= relative * std::max(1.0, std::fabs(expected));
    if (!ok)
        qWarning("%.9g instead of %.9g", actual, expected);
    return ok;
}
#define NEAR(actual, expected) QVERIFY(near(double(actual), double(expected)))

/// A balanced load on three phases: volts, amps, lag in degrees; angles from an arbitrary zero.
inline Payload balanced(float volts, float amps, float lag, float zero = 0.5f)
{
    Payload payload(Link::kAggregationWords);
    payload.set(2, 50);
    for (int c = 0; c < 3; ++c) {
        const float angle = zero - 120 * kDegree * float(c);
        payload.setChannel(c, volts, amps, volts * amps * std::cos(lag * kDegree), angle, angle - lag * kDegree);
    }
    return payload;
}
