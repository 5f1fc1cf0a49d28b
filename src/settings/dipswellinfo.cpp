#include "settings/dipswellinfo.h"

#include "settings/config_data.h"

int DipSwellInfo::m_rms_numb_per_sec = 100;
const TrendZoom *DipSwellInfo::m_zoom_time = DipSwellInfo::m_zoom_time_50;
int DipSwellInfo::m_zoom_index = 0;
double DipSwellInfo::m_threshold = 0.0;
double DipSwellInfo::m_hysteresis = 0.0;
double DipSwellInfo::m_nom_amps = 0.0;

void DipSwellInfo::initInfoTimes()
{
    initInfoTimes(m_settingConfig_g.getNomFreq());
}

void DipSwellInfo::initInfoTimes(double nominalFrequency)
{
    choose(nominalFrequency, &m_rms_numb_per_sec, &m_zoom_time);
}
