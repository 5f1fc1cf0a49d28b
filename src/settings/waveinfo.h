#pragma once

#include <QString>
#include <QtGlobal>

/// The user's choices of the waveform capture.
class WaveInfo
{
public:
    static constexpr int kRates = 3;

    static int m_in_waving; // 1: prepared or running
    static QString *m_wave_file; // name without the suffix
    static quint32 m_begain_time; // s since 1970
    static int m_sample_index; // into m_sample_times
    static const int m_sample_times[kRates]; // samples per second and channel
    static int m_step; // decimation: 20480 / sample rate
    static int m_duration; // s
    static int m_min_duration, m_max_duration; // s
    static int m_points_numb; // frames of the whole capture
    static int m_storage_room; // MB free when checked

    /// Samples per second and channel.
    static int sampleRate() { return m_sample_times[qBound(0, m_sample_index, kRates - 1)]; }
    /// Works out m_step and, for a nominal frequency of 50, 60 or 400 Hz, m_points_numb.
    static void initPointsNumbs(double nominal);
    /// Takes the room of the storage and holds the duration to what it allows; the shortest capture stays.
    static void checkMaxDuration();
    /// Seconds that \a room (MB) allows; 0 where it does not allow the shortest capture.
    static int maxDuration(int room, int sampleRate);
};
