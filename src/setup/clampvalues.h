#pragma once

#include <QString>

#include <optional>

/// Numbers and texts of clamps as the clamp editors type and show them.
namespace ClampValues {

// What the keyboard takes
constexpr char kSensitivityPattern[] = "^(1000)|(\\d{1,3})|(0\\.\\d{1,3})$"; // mV/A
constexpr char kRangePattern[] = "^(\\d{1,4})$"; // A
constexpr char kRatioPattern[] = "^(\\d{1,5})$"; // one side of a transformer's ratio

constexpr int kLargestTypedRange = 9999; // A, four digits

/// uV/A of a typed sensitivity in mV/A: 0.5 is 500, 1000 is 1000000. Nothing for a text that the keyboard would refuse.
std::optional<int> ratioOf(const QString &typed);
/// The sensitivity as it is typed: 65 uV/A is "0.065". Without trailing zeros.
QString sensitivity(int ratio);
/// The same with its unit.
QString sensitivityText(int ratio);
QString rangeText(int amps);

/// Largest range of a clamp of this ratio, whose output then stays within 2 V: 2000000 / ratio, at least 1 A. Ratio 0
/// leaves \a bound as it is.
int changeRangeMax(int ratio, int bound);

/// What the catalogue's file says of a user's clamp. Not translated: the file goes from one instrument to another.
QString description(const QString &name, bool flexible);

} // namespace ClampValues
