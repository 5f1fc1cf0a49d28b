#include "config/harmdata.h"

#include "config/config_data.h"
#include "config/trendzoom.h"

int HarmData::m_harm_max_numb = 100;
bool HarmData::m_bewith_inharm = true;

void HarmData::initHarmMaxNumb()
{
    initHarmMaxNumb(m_settingConfig_g.getNomFreq());
}

void HarmData::initHarmMaxNumb(double nominalFrequency)
{
    if (isNominal(nominalFrequency, 50.0) || isNominal(nominalFrequency, 60.0)) {
        m_harm_max_numb = 100;
        m_bewith_inharm = true;
    } else if (isNominal(nominalFrequency, 400.0)) {
        m_harm_max_numb = 12;
        m_bewith_inharm = false;
    }
}
