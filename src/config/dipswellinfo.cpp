#include "config/dipswellinfo.h"

#include "config/config_data.h"

const TrendZoom DipSwellInfo::m_zoom_time_50[4] = { { 60, 10 }, { 48, 8 }, { 24, 4 }, { 12, 2 } };
const TrendZoom DipSwellInfo::m_zoom_time_60[4] = { { 60, 12 }, { 40, 8 }, { 20, 4 }, { 10, 2 } };
const TrendZoom DipSwellInfo::m_zoom_time_400[4] = { { 60, 12 }, { 48, 8 }, { 24, 4 }, { 12, 2 } };
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
    if (isNominal(nominalFrequency, 50.0)) {
        m_rms_numb_per_sec = 100;
        m_zoom_time = m_zoom_time_50;
    } else if (isNominal(nominalFrequency, 60.0)) {
        m_rms_numb_per_sec = 120;
        m_zoom_time = m_zoom_time_60;
    } else if (isNominal(nominalFrequency, 400.0)) {
        m_rms_numb_per_sec = 100;
        m_zoom_time = m_zoom_time_400;
    }
}
