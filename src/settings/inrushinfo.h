#pragma once

#include <QString>

#include "model/trendzoom.h"

class SettingConfig;

/// Parameters of the inrush function: length and zoom of its trend, the levels of the detector, steps of the editor.
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
    static double m_nom_amps; // A at the clamp
    static double m_threshold, m_hysteresis; // percent of m_nom_amps
    static double inrush_step, inrush_range; // in the shown unit
    static double unit_ki; // shown number = A x unit_ki
    static QString *inrush_unit; // "mA", "A" or "kA"
    static int inrush_amps_prec; // decimals

    /// Takes everything from the nominal frequency and the clamp, and stores the levels that follow.
    static void initInfoTimes();
    static void initInfoTimes(SettingConfig &settings);
    /// After a change of the clamp: range, unit, step and levels anew.
    static void changeInfoCuzClamp();
    static void changeInfoCuzClamp(SettingConfig &settings);
    /// After a change of the nominal frequency: rate and tables anew.
    static void changeInfoCuzFreq();
    static void changeInfoCuzFreq(double nominalFrequency);
};
