#include "views/mainssignaling/mainssignalingtrend.h"

#include "settings/config_data.h"
#include "widgets/text/f_to_str.h"
#include "widgets/charts/viftrendchart.h"

namespace {

/// Places in __mains_sig_data::trend.
enum Trend { Signal1 = 0, Signal2 = 2, Rms1 = 4, Rms2 = 5 };

template <int trend> const __trend_data &record(const DisplayRecords &shown)
{
    return shown.mainsSignal.trend[trend];
}

template <float (__mains_sig_data::*values)[kChannels]> TrendPage::Values latest(const DisplayRecords &shown)
{
    return TrendPage::valuesOf(shown.mainsSignal.*values);
}

/// In percent, as the trend.
template <float (__mains_sig_data::*values)[kChannels]> TrendPage::Values percent(const DisplayRecords &shown)
{
    TrendPage::Values percents = latest<values>(shown);
    for (float &value : percents)
        value *= 100.0f;
    return percents;
}

} // namespace

/// In the order in which F1 steps through them.
const std::vector<TrendPage::Quantity> &MainsSignalingTrend::cycle()
{
    static const std::vector<Quantity> quantities {
        { 1, [] { return tr("Sig 1(%)"); }, record<Signal1>, unscaled, wiringFlags, percent<&__mains_sig_data::signal1>,
          F_to_Str::number_2 },
        { 2, [] { return tr("Sig 2(%)"); }, record<Signal2>, unscaled, wiringFlags, percent<&__mains_sig_data::signal2>,
          F_to_Str::number_2 },
        { 3, [] { return tr("Urms\u00bd(%1)").arg(m_settingConfig_g.units().volt); }, record<Rms1>,
          [] { return m_settingConfig_g.units().factorVolt; }, wiringFlags, latest<&__mains_sig_data::rms1>,
          F_to_Str::number_V },
        { 4, [] { return tr("Irms\u00bd(%1)").arg(m_settingConfig_g.units().ampere); }, record<Rms2>,
          [] { return m_settingConfig_g.units().factorAmpere; }, wiringFlags, latest<&__mains_sig_data::rms2>,
          F_to_Str::number_A },
    };
    return quantities;
}

MainsSignalingTrend::MainsSignalingTrend(const LiveData &data, QWidget *parent)
    : TrendPage(UI_MAINS_SIG, data, cycle(), parent)
{
    static const KeyRow<MainsSignalingTrend> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("MainsSignalingTrend", "Type"), &MainsSignalingTrend::nextType },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("MainsSignalingTrend", "Back"), &MainsSignalingTrend::goBack },
    };
    initTrend({ 16, 154, 48, 100 });
    setKeys(keys);
}
