#include "settings/inrushinfo.h"

const InrushInfo::Duration InrushInfo::m_dura_time_50[7]
    = { { 6, 1 }, { 60, 1 }, { 120, 2 }, { 240, 2 }, { 480, 5 }, { 960, 10 }, { 1920, 10 } };
// 120 values a second: five seconds fill the 600 pixels of the chart.
const InrushInfo::Duration InrushInfo::m_dura_time_60[7]
    = { { 5, 1 }, { 60, 1 }, { 120, 2 }, { 240, 2 }, { 480, 5 }, { 960, 10 }, { 1920, 10 } };
const InrushInfo::Duration InrushInfo::m_dura_time_400[7]
    = { { 6, 1 }, { 60, 1 }, { 120, 2 }, { 240, 2 }, { 480, 5 }, { 960, 10 }, { 1920, 10 } };

int InrushInfo::m_rms_numb_per_sec = 100;
int InrushInfo::m_duration_index = 0;
const InrushInfo::Duration *InrushInfo::m_dura_time = InrushInfo::m_dura_time_50;
const TrendZoom *InrushInfo::m_zoom_time = InrushInfo::m_zoom_time_50;
int InrushInfo::m_zoom_index = 0;
void InrushInfo::changeInfoCuzFreq(double nominalFrequency)
{
    if (!choose(nominalFrequency, &m_rms_numb_per_sec, &m_zoom_time))
        return;
    if (m_zoom_time == m_zoom_time_50)
        m_dura_time = m_dura_time_50;
    else
        m_dura_time = m_zoom_time == m_zoom_time_60 ? m_dura_time_60 : m_dura_time_400;
}
