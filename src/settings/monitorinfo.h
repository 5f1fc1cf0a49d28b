#pragma once

#include <QString>
#include <QtGlobal>

/// The user's choices of the monitor function.
class MonitorInfo
{
public:
    /// One zoom step of the monitor's trend: hours across the chart, 10-minute values that share a point.
    struct Zoom
    {
        int hours;
        float step;
    };

    static QString *m_monitor_file; // record name
    static quint32 m_begain_time; // s since 1970
    static qint32 m_duration; // h
    static qint32 _10min_data_counter; // 10-minute values that make the data enough
    static qint32 m_zoom_index; // into m_zoom_time
    static const Zoom m_zoom_time[4];

    /// First free record name that begins with "first-second".
    static QString getDefName(const QString &first, const QString &second);
};
