#pragma once

/// One zoom step of an r.m.s. trend over 600 pixels.
struct TrendZoom
{
    int seconds; // across the chart
    int valuesPerPixel;
};

/// Whether a frequency counts as `nominal`: within 1.0 Hz.
inline bool isNominal(double frequency, double nominal)
{
    const double difference = frequency - nominal;
    return difference < 1.0 && difference > -1.0;
}
