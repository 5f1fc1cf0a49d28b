#pragma once

/// Whether a frequency counts as `nominal`: within 1.0 Hz.
inline bool isNominal(double frequency, double nominal)
{
    const double difference = frequency - nominal;
    return difference < 1.0 && difference > -1.0;
}

/// Highest harmonic order at a nominal frequency: 100 at 50 and 60 Hz, `at400` at 400 Hz; another keeps `present`.
inline int highestOrder(double nominalFrequency, int at400, int present)
{
    if (isNominal(nominalFrequency, 50.0) || isNominal(nominalFrequency, 60.0))
        return 100;
    return isNominal(nominalFrequency, 400.0) ? at400 : present;
}
