#pragma once

#include <QString>
#include <QtGlobal>

/// The user's choices of the logger function.
class LoggerInfo
{
public:
    static int m_in_logging; // 1: prepared or running
    static QString *m_logger_file; // file name stem
    static quint32 m_paramselected; // column groups, bits 0 to 28
    static int m_param_numb; // weighted count of the chosen columns
    static quint32 m_begain_time; // s since 1970
    static int m_duration; // h
    static int m_max_duration; // h that the room allows
    static int m_interval_index; // into m_logger_interval
    static const int m_logger_interval[12]; // s
    static int m_harm_max_numb; // highest order
    static float m_storage_room; // MB free when checked

    /// The chosen groups of logger.conf.
    static void readSelectedParam();
    static void writeSelectedParam();
    /// 100 orders at 50 and 60 Hz, 13 at 400 Hz; another nominal frequency changes nothing.
    static void initHarmMaxNumb(double nominalFrequency);
    /// Counts the chosen columns into m_param_numb.
    static void countParamNumb(double nominalFrequency);
    static int countParamNumb(quint32 selected, double nominalFrequency);
    /// Takes the room of the storage and holds the duration to what it allows.
    static void checkMaxDuration();
    static int maxDuration(float room, int paramNumb, int intervalSeconds);
};
