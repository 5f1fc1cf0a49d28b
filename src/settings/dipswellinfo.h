#pragma once

#include "model/trendzoom.h"

/// Parameters of the r.m.s. trend of dips and swells.
class DipSwellInfo : public RmsTrendTables
{
public:
    static int m_rms_numb_per_sec;
    static const TrendZoom *m_zoom_time; // the four steps in force
    static int m_zoom_index; // 0 to 3

    /// Takes rate and steps of the nominal frequency; another than 50, 60, 400 Hz changes nothing.
    static void initInfoTimes(double nominalFrequency);
};
