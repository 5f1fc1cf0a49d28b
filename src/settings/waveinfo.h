#pragma once

#include <QString>
#include <QtGlobal>

/// The user's choices of the waveform capture.
class WaveInfo
{
public:
    static int m_in_waving; // 1: prepared or running
    static QString *m_wave_file; // name without the suffix
    static quint32 m_begain_time; // s since 1970
    static int m_sample_index; // into m_sample_times
    static const int m_sample_times[3]; // samples per second and channel
    static int m_step; // decimation: 20480 / sample rate
    static int m_duration; // s
    static int m_min_duration, m_max_duration; // s
    static int m_points_numb; // frames of the whole capture
    static int m_storage_room; // MB free when checked

    /// Works out m_step and, for a nominal frequency of 50, 60 or 400 Hz, m_points_numb.
    static void initPointsNumbs(double nominal);
};
