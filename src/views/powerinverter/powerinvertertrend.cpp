#include "views/powerinverter/powerinvertertrend.h"

#include "settings/config_data.h"
#include "task/inverterfeed.h"
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

double factorWatt()
{
    return m_settingConfig_g.units().factorWatt;
}

QString withUnit(const QString &caption, QString DisplayUnits::*unit)
{
    return QStringLiteral("%1(%2)").arg(caption, m_settingConfig_g.units().*unit);
}

int outputFlags()
{
    return InverterFeed::outputMask(ChannelLabels::channels().trendFlags(), singleOrThree != 0);
}

int singleFlag()
{
    return TrendSingle;
}

template <InverterFeed::Trend trend> const __trend_data &record(const DisplayRecords &shown)
{
    return shown.inverter.trend[trend];
}

template <float __pi_data::*value> TrendPage::Values input(const DisplayRecords &shown)
{
    return { shown.inverter.*value };
}

/// With a place for the neutral, which an output does not have.
template <float (__pi_data::*values)[3]> TrendPage::Values output(const DisplayRecords &shown)
{
    return TrendPage::valuesOf(shown.inverter.*values);
}

} // namespace

/// In the order in which F1 steps through them.
const std::vector<TrendPage::Quantity> &PowerInverterTrend::cycle()
{
    static const std::vector<Quantity> quantities {
        { 1, [] { return withUnit(tr("U in"), &DisplayUnits::volt); }, record<InverterFeed::InputVoltage>, factorVolt,
          singleFlag, input<&__pi_data::inputVoltage>, F_to_Str::number_V, true, nullptr, true },
        { 2, [] { return withUnit(tr("U out"), &DisplayUnits::volt); }, record<InverterFeed::OutputVoltage>, factorVolt,
          outputFlags, output<&__pi_data::outputVoltage>, F_to_Str::number_V, false, "" },
        { 3, [] { return withUnit(tr("I in"), &DisplayUnits::ampere); }, record<InverterFeed::InputCurrent>,
          factorAmpere, singleFlag, input<&__pi_data::inputCurrent>, F_to_Str::number_A, true, nullptr, true },
        { 4, [] { return withUnit(tr("I out"), &DisplayUnits::ampere); }, record<InverterFeed::OutputCurrent>,
          factorAmpere, outputFlags, output<&__pi_data::outputCurrent>, F_to_Str::number_A, false, "" },
        { 5, [] { return tr("Efficiency %"); }, record<InverterFeed::Efficiency>, unscaled, singleFlag,
          input<&__pi_data::efficiency>, F_to_Str::number_2, true, nullptr, true },
        { 6, [] { return withUnit(tr("P out"), &DisplayUnits::watt); }, record<InverterFeed::OutputPower>, factorWatt,
          outputFlags, output<&__pi_data::outputPower>, F_to_Str::number_P, false, "" },
    };
    return quantities;
}

PowerInverterTrend::PowerInverterTrend(const LiveData &data, QWidget *parent)
    : TrendPage(UI_POWER_INVERTER, data, cycle(), parent)
{
    static const KeyRow<PowerInverterTrend> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("PowerInverterTrend", "Type"), &PowerInverterTrend::nextType },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("PowerInverterTrend", "Back"), &PowerInverterTrend::goPowerInverterMain },
    };
    initTrend({ 16, 154, 48, 100 });
    setKeys(keys);
}
