#include "views/vif/viftrendpage.h"

#include "settings/config_data.h"
#include "widgets/text/f_to_str.h"
#include "widgets/charts/viftrendchart.h"

namespace {

double factorVolt()
{
    return m_settingConfig_g.units().factorVolt;
}

double factorAmpere()
{
    return m_settingConfig_g.units().factorAmpere;
}

template <VifTrend trend> const __trend_data &record(const DisplayRecords &shown)
{
    return shown.vif.trend[trend];
}

template <float (__vif_data::*values)[kChannels]> TrendPage::Values latest(const DisplayRecords &shown)
{
    return TrendPage::valuesOf(shown.vif.*values);
}

QString volts(const char *text)
{
    return VifTrendPage::tr(text).arg(m_settingConfig_g.units().volt);
}

QString amperes(const char *text)
{
    return VifTrendPage::tr(text).arg(m_settingConfig_g.units().ampere);
}

} // namespace

/// In the order in which F1 steps through them.
const std::vector<TrendPage::Quantity> &VifTrendPage::cycle()
{
    static const std::vector<Quantity> quantities {
        { 1, [] { return volts(QT_TR_NOOP("U rms(%1)")); }, record<VifTrendURms>, factorVolt, wiringFlags,
          latest<&__vif_data::voltage>, F_to_Str::number_V },
        { 2, [] { return volts(QT_TR_NOOP("U pk(%1)")); }, record<VifTrendUPeak>, factorVolt, wiringFlags,
          latest<&__vif_data::voltagePeak>, F_to_Str::number_V },
        { 4, [] { return tr("U dc(V)"); }, record<VifTrendUDc>, unscaled, wiringFlags,
          latest<&__vif_data::voltageOffset>, F_to_Str::number_2 },
        { 3, [] { return tr("U cf"); }, record<VifTrendUCrest>, unscaled, wiringFlags,
          latest<&__vif_data::voltageCrest>, F_to_Str::number_2 },
        { 5, [] { return amperes(QT_TR_NOOP("I rms(%1)")); }, record<VifTrendIRms>, factorAmpere, wiringFlags,
          latest<&__vif_data::current>, F_to_Str::number_A },
        { 6, [] { return amperes(QT_TR_NOOP("I pk(%1)")); }, record<VifTrendIPeak>, factorAmpere, wiringFlags,
          latest<&__vif_data::currentPeak>, F_to_Str::number_A },
        { 8, [] { return tr("I dc(A)"); }, record<VifTrendIDc>, unscaled, wiringFlags,
          latest<&__vif_data::currentOffset>, F_to_Str::number_2 },
        { 7, [] { return tr("I cf"); }, record<VifTrendICrest>, unscaled, wiringFlags,
          latest<&__vif_data::currentCrest>, F_to_Str::number_2 },
        { 9, [] { return tr("Freq(Hz)"); }, record<VifTrendFrequency>, unscaled, [] { return int(TrendSingle); },
          [](const DisplayRecords &shown) { return Values { shown.vif.frequency }; }, F_to_Str::number_F, true },
    };
    return quantities;
}

VifTrendPage::VifTrendPage(const LiveData &data, QWidget *parent) : TrendPage(UI_VIF, data, cycle(), parent)
{
    static const KeyRow<VifTrendPage> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("VifTrendPage", "Type"), &VifTrendPage::nextType },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("VifTrendPage", "Back"), &VifTrendPage::goBack },
    };
    initTrend({ 16, 154, 50, 100 });
    setKeys(keys);
}
