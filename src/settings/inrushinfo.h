#pragma once

#include "model/trendzoom.h"

/// Length and zoom of the inrush trend. The levels of the detector are settings, what an editor of them needs follows
/// from the clamp (Derived::inrush).
class InrushInfo : public RmsTrendTables
{
public:
    /// One length of the trend: seconds kept, values per stored step.
    struct Duration
    {
        int seconds;
        int step;
    };

    static int m_rms_numb_per_sec;
    static int m_duration_index; // into m_dura_time, 0 to 6
    static const Duration *m_dura_time; // the seven rows in force
    static const Duration m_dura_time_50[7], m_dura_time_60[7], m_dura_time_400[7];
    static const TrendZoom *m_zoom_time; // the four steps in force
    static int m_zoom_index;

    /// After a change of the nominal frequency: rate and tables anew. Another one than 50, 60, 400 Hz leaves them.
    static void changeInfoCuzFreq(double nominalFrequency);
};
