#pragma once

#include <cmath>

/// What keeps numbers that are none out of measured values and of the quotients made of them.
namespace SafeMath {

constexpr float kSmallest = 0.0001f; // magnitudes below this are noise
constexpr float kSmallestDivisor = 1e-5f;

/// The value; 0 for a NaN, an infinity and a magnitude below 0.0001.
inline float cleaned(float value)
{
    const float magnitude = std::fabs(value);
    return magnitude >= kSmallest && magnitude <= 3.402823466e38f ? value : 0.0f;
}

/// a / b; 0 for b below 1e-5, negative ones with it.
inline float div_sn(float a, float b)
{
    return b >= kSmallestDivisor ? a / b : 0.0f;
}

/// a / b held to 0 to 1; 0 for b below 1e-5.
inline float div_s_percent(float a, float b)
{
    const float quotient = div_sn(a, b);
    return quotient > 1.0f ? 1.0f : quotient > 0.0f ? quotient : 0.0f;
}

} // namespace SafeMath
