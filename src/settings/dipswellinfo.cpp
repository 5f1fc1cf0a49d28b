#include "settings/dipswellinfo.h"

int DipSwellInfo::m_rms_numb_per_sec = 100;
const TrendZoom *DipSwellInfo::m_zoom_time = DipSwellInfo::m_zoom_time_50;
int DipSwellInfo::m_zoom_index = 0;

void DipSwellInfo::initInfoTimes(double nominalFrequency)
{
    choose(nominalFrequency, &m_rms_numb_per_sec, &m_zoom_time);
}
