#pragma once

/// One zoom step of an r.m.s. trend over 600 pixels.
struct TrendZoom
{
    int seconds; // across the chart
    int valuesPerPixel;
};

/// What the nominal frequency decides about an r.m.s. trend: the same for each function that shows one, while each
/// keeps its own choice among the steps.
class RmsTrendTables
{
public:
    static const TrendZoom m_zoom_time_50[4], m_zoom_time_60[4], m_zoom_time_400[4];

protected:
    /// Gives values per second and zoom steps; false, and nothing given, for another frequency than 50, 60, 400 Hz.
    static bool choose(double nominalFrequency, int *valuesPerSecond, const TrendZoom **zoom);
};
