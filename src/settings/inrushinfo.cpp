#include "settings/inrushinfo.h"

#include "settings/config_data.h"

#include <cmath>

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
double InrushInfo::m_nom_amps = 100.0;
double InrushInfo::m_threshold = 200.0;
double InrushInfo::m_hysteresis = 2.0;
double InrushInfo::inrush_step = 0.001;
double InrushInfo::inrush_range = 0.0;
double InrushInfo::unit_ki = 1.0;
QString *InrushInfo::inrush_unit = new QString;
int InrushInfo::inrush_amps_prec = 3;

namespace {

/// Step of the editor in amperes at the clamp, by the clamp's range in amperes.
double stepFor(int range)
{
    if (range >= 1000)
        return 10.0;
    if (range >= 100)
        return 1.0;
    if (range >= 21)
        return 0.1;
    return range >= 6 ? 0.01 : 0.001;
}

} // namespace

void InrushInfo::initInfoTimes()
{
    initInfoTimes(m_settingConfig_g);
}

void InrushInfo::initInfoTimes(SettingConfig &settings)
{
    changeInfoCuzFreq(settings.getNomFreq());
    changeInfoCuzClamp(settings);
}

void InrushInfo::changeInfoCuzClamp()
{
    changeInfoCuzClamp(m_settingConfig_g);
}

void InrushInfo::changeInfoCuzClamp(SettingConfig &settings)
{
    const Clamp *clamp = settings.curClamp();
    const int range = clamp ? clamp->range() : 0; // A at the clamp
    const double ratio = settings.ratioI();
    const double primary = range * ratio; // A in the line
    if (primary < 1.0) {
        unit_ki = 1000.0;
        *inrush_unit = QStringLiteral("mA");
    } else if (primary >= 10000.0) {
        unit_ki = 0.001;
        *inrush_unit = QStringLiteral("kA");
    } else {
        unit_ki = 1.0;
        *inrush_unit = QStringLiteral("A");
    }
    const double shownPerAmp = ratio * unit_ki; // one ampere at the clamp, in the shown unit
    inrush_range = primary * unit_ki;
    inrush_step = stepFor(range) * shownPerAmp;
    const double digits = inrush_step > 0.0 ? std::ceil(-std::log10(inrush_step) - 1e-6) : 0.0;
    inrush_amps_prec = static_cast<int>(qBound(0.0, digits, 9.0));

    m_nom_amps = range * 0.25;
    m_threshold = 200.0;
    m_hysteresis = 2.0;
    // As required: the levels go to the settings whenever the clamp is taken over, at every start too. What stands
    // there already is not written again.
    if (settings.getInrushNomAmps() != m_nom_amps)
        settings.setInrushNomAmps(m_nom_amps);
    if (settings.getInrushThreshold() != 200)
        settings.setInrushThreshold(200);
    if (settings.getInrushHysteresis() != 2)
        settings.setInrushHysteresis(2);
}

void InrushInfo::changeInfoCuzFreq()
{
    changeInfoCuzFreq(m_settingConfig_g.getNomFreq());
}

void InrushInfo::changeInfoCuzFreq(double nominalFrequency)
{
    if (!choose(nominalFrequency, &m_rms_numb_per_sec, &m_zoom_time))
        return;
    if (m_zoom_time == m_zoom_time_50)
        m_dura_time = m_dura_time_50;
    else
        m_dura_time = m_zoom_time == m_zoom_time_60 ? m_dura_time_60 : m_dura_time_400;
}
