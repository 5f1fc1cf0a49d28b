#pragma once

#include <QString>

/// How editors of the inrush levels write them; the clamp and the nominal frequency in use decide.
namespace InrushTexts {

constexpr int kLastDuration = 6; // durations count from 0

/// A nominal current in amperes at the clamp, in the unit of the line.
QString nomAmps(double ampsAtClamp);
QString percent(int percent);
/// Length of the trend by its number; held to 0 to 6.
QString duration(int index);

} // namespace InrushTexts
