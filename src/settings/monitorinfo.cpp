#include "settings/monitorinfo.h"

#include "storage/fileinfo.h"

QString *MonitorInfo::m_monitor_file = new QString;
quint32 MonitorInfo::m_begain_time = 0;
qint32 MonitorInfo::m_duration = 2;
qint32 MonitorInfo::_10min_data_counter = 2;
qint32 MonitorInfo::m_zoom_index = 2;
const MonitorInfo::Zoom MonitorInfo::m_zoom_time[4] = { { 168, 2.0f }, { 84, 1.0f }, { 42, 0.5f }, { 21, 0.25f } };

QString MonitorInfo::getDefName(const QString &first, const QString &second)
{
    return FileInfo().getDefaultRecordName(first + QLatin1Char('-') + second);
}
