#include "settings/waveinfo.h"

#include "model/nominalfrequency.h"

int WaveInfo::m_in_waving = 0;
QString *WaveInfo::m_wave_file = new QString;
quint32 WaveInfo::m_begain_time = 0;
int WaveInfo::m_sample_index = 0;
const int WaveInfo::m_sample_times[3] = { 20480, 10240, 5120 };
int WaveInfo::m_step = 1;
int WaveInfo::m_duration = 10;
int WaveInfo::m_min_duration = 10;
int WaveInfo::m_max_duration = 600;
int WaveInfo::m_points_numb = 0;
int WaveInfo::m_storage_room = 0;

void WaveInfo::initPointsNumbs(double nominal)
{
    const int rate = m_sample_times[qBound(0, m_sample_index, 2)];
    m_step = m_sample_times[0] / rate;
    if (isNominal(nominal, 50.0) || isNominal(nominal, 60.0) || isNominal(nominal, 400.0))
        m_points_numb = m_duration * rate;
}
