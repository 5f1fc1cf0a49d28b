#include "views/power/powertrendpage.h"

#include "settings/config_data.h"
#include "widgets/text/f_to_str.h"
#include "widgets/charts/viftrendchart.h"

namespace {

template <double DisplayUnits::*factor> double scale()
{
    return m_settingConfig_g.units().*factor;
}

template <int trend> const __trend_data &record(const DisplayRecords &shown)
{
    return shown.power.trend[trend];
}

/// Latest values of the four rows, gathered out of the record.
template <float PowerDisplayRow::*field> TrendPage::Values rows(const DisplayRecords &shown)
{
    TrendPage::Values values;
    for (int c = 0; c < kChannels; ++c)
        values[c] = shown.power.row[c].*field;
    return values;
}

template <float (__power_data::*phases)[3]> TrendPage::Values threePhases(const DisplayRecords &shown)
{
    return TrendPage::valuesOf(shown.power.*phases);
}

QString withUnit(const char *text, QString DisplayUnits::*unit)
{
    return PowerTrendPage::tr(text).arg(m_settingConfig_g.units().*unit);
}

int phaseFlags()
{
    return ChannelLabels::channels().trendFlags() & (TrendL1 | TrendL2 | TrendL3);
}

int phaseAndTotalFlags()
{
    return phaseFlags() | TrendTotal;
}

constexpr const char *kTotal = "T :";
constexpr const char *kNoTotal = "";

} // namespace

/// In the order in which F1 steps through them; the types are flags.
const std::vector<TrendPage::Quantity> &PowerTrendPage::cycle()
{
    constexpr auto factorWatt = scale<&DisplayUnits::factorWatt>;
    static const std::vector<Quantity> quantities {
        { 1, [] { return withUnit(QT_TR_NOOP("P(%1)"), &DisplayUnits::watt); }, record<0>, factorWatt,
          phaseAndTotalFlags, rows<&PowerDisplayRow::active>, F_to_Str::number_P, false, kTotal },
        { 2, [] { return withUnit(QT_TR_NOOP("S(%1)"), &DisplayUnits::voltAmpere); }, record<1>, factorWatt,
          phaseAndTotalFlags, rows<&PowerDisplayRow::apparent>, F_to_Str::number_P, false, kTotal },
        { 4, [] { return withUnit(QT_TR_NOOP("Q1(%1)"), &DisplayUnits::var); }, record<2>, factorWatt,
          phaseAndTotalFlags, rows<&PowerDisplayRow::reactive>, F_to_Str::number_P, false, kTotal },
        { 8, [] { return tr("PF"); }, record<3>, unscaled, phaseAndTotalFlags, rows<&PowerDisplayRow::factor>,
          F_to_Str::number_2, false, kTotal },
        { 16, [] { return tr("cosΦ"); }, record<4>, unscaled, phaseAndTotalFlags,
          rows<&PowerDisplayRow::fundamentalFactor>, F_to_Str::number_2, false, kTotal },
        { 32, [] { return tr("tanΦ"); }, record<5>, unscaled, phaseAndTotalFlags, rows<&PowerDisplayRow::tangent>,
          F_to_Str::number_2, false, kTotal },
        { 64, [] { return withUnit(QT_TR_NOOP("U rms(%1)"), &DisplayUnits::volt); }, record<6>,
          scale<&DisplayUnits::factorVolt>, phaseFlags, threePhases<&__power_data::voltage>, F_to_Str::number_V, false,
          kNoTotal },
        { 128, [] { return withUnit(QT_TR_NOOP("I rms(%1)"), &DisplayUnits::ampere); }, record<7>,
          scale<&DisplayUnits::factorAmpere>, phaseFlags, threePhases<&__power_data::current>, F_to_Str::number_A,
          false, kNoTotal },
    };
    return quantities;
}

PowerTrendPage::PowerTrendPage(const LiveData &data, QWidget *parent) : TrendPage(UI_POWER, data, cycle(), parent)
{
    static const KeyRow<PowerTrendPage> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("PowerTrendPage", "Type"), &PowerTrendPage::nextType },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("PowerTrendPage", "Back"), &PowerTrendPage::goPowerMain },
    };
    initTrend({ 12, 154, 52, 100 }, "trend_power", " :");
    setKeys(keys);
}
