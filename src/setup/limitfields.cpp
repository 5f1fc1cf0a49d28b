#include "setup/limitfields.h"

#include <QCoreApplication>

#include <algorithm>

using namespace LimitValue;

namespace {

// Captions and titles
constexpr char kTimeInLimitsText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Time in limits");
constexpr char kUpperLimitText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Upper limit");
constexpr char kUpperAlwaysText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Upper, always");
constexpr char kLowerLimitText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Lower limit");
constexpr char kLowerAlwaysText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Lower, always");
constexpr char kThresholdText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Threshold");
constexpr char kHysteresisText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Hysteresis");
constexpr char kAllowedNumberText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Allowed number");
constexpr char kVoltageText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Voltage");
constexpr char kHarmonicsText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Harmonics");
constexpr char kFlickerText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Flicker");
constexpr char kDipsText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Dips");
constexpr char kSwellsText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Swells");
constexpr char kInterruptionsText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Interruptions");
constexpr char kRvcText[] = QT_TRANSLATE_NOOP("LimitValuePage", "RVC");
constexpr char kSteadyTimeText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Steady time");
constexpr char kMinimumStepText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Minimum step");
constexpr char kMinimumRateText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Minimum rate");
constexpr char kUnbalanceText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Unbalance");
constexpr char kFrequencyText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Frequency");
constexpr char kMainsSignalingText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Mains Signaling");
constexpr char kFrequency1Text[] = QT_TRANSLATE_NOOP("LimitValuePage", "Frequency 1");
constexpr char kFrequency2Text[] = QT_TRANSLATE_NOOP("LimitValuePage", "Frequency 2");
constexpr char kPltTimeText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Plt, time");
constexpr char kPltLimitText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Plt, limit");
constexpr char kPltAlwaysText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Plt, always");
constexpr char kPstTimeText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Pst, time");
constexpr char kPstLimitText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Pst, limit");
constexpr char kPstAlwaysText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Pst, always");
constexpr char kNegativeTimeText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Negative, time");
constexpr char kNegativeLimitText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Negative, limit");
constexpr char kNegativeAlwaysText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Negative, always");
constexpr char kZeroTimeText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Zero, time");
constexpr char kZeroLimitText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Zero, limit");
constexpr char kZeroAlwaysText[] = QT_TRANSLATE_NOOP("LimitValuePage", "Zero, always");
constexpr char kTime1Text[] = QT_TRANSLATE_NOOP("LimitValuePage", "Time 1");
constexpr char kLimit1Text[] = QT_TRANSLATE_NOOP("LimitValuePage", "Limit 1");
constexpr char kAlways1Text[] = QT_TRANSLATE_NOOP("LimitValuePage", "Always 1");
constexpr char kTime2Text[] = QT_TRANSLATE_NOOP("LimitValuePage", "Time 2");
constexpr char kLimit2Text[] = QT_TRANSLATE_NOOP("LimitValuePage", "Limit 2");
constexpr char kAlways2Text[] = QT_TRANSLATE_NOOP("LimitValuePage", "Always 2");

// Bounds and steps, hundredths
constexpr Span kTime = { 0, 10000, 10 };
constexpr Span kPercent = { 0, 10000, 10 };
constexpr Span kWhole = { 0, 10000, 10, true };
constexpr Span kOverNominal = { 10000, 20000, 10 };
constexpr Span kSeverity = { 0, 2000, 1 };
constexpr Span kWholeSeverity = { 0, 2000, 1, true };
constexpr Span kEvents = { 0, 999900, 100 };
constexpr Span kSteady = { 100, 6000, 100 }; // longer than a minute the detector does not look back
constexpr Span kSignal = { 5000, 300000, 100 };
constexpr Span kHarmonic = { 0, 10000, 5 };
constexpr Span kWholeHarmonic = { 0, 10000, 5, true };

#define REAL(member) [](monitor_limit &limit) -> float & { return limit.member; }, nullptr
#define COUNT(member) nullptr, [](monitor_limit &limit) -> qint32 & { return limit.member; }

#define BAND(group, base)                                                                                              \
    { "nep", kTimeInLimitsText, REAL(group.nep), Percent, kTime },                                                     \
        { "partial_upper", kUpperLimitText, REAL(group.partialUpper), PercentAbove, kPercent, base },                  \
        { "whole_upper", kUpperAlwaysText, REAL(group.wholeUpper), PercentAbove, kWhole, base },                       \
        { "partial_lower", kLowerLimitText, REAL(group.partialLower), PercentBelow, kPercent, base },                  \
    {                                                                                                                  \
        "whole_lower", kLowerAlwaysText, REAL(group.wholeLower), PercentBelow, kWhole, base                            \
    }
#define TOLERANCE(name, group, time, limit_text, always, unit, limit_span, always_span)                                \
    { name "_nep", time, REAL(group.nep), Percent, kTime },                                                            \
        { name "_partial", limit_text, REAL(group.partial), unit, limit_span },                                        \
    {                                                                                                                  \
        name "_whole", always, REAL(group.whole), unit, always_span                                                    \
    }
#define EVENT(group, span)                                                                                             \
    { "threshold", kThresholdText, REAL(group.threshold), Percent, span, OfVoltage },                                  \
        { "hysteresis", kHysteresisText, REAL(group.hysteresis), Percent, kPercent, OfVoltage },                       \
    {                                                                                                                  \
        "max_allowed", kAllowedNumberText, COUNT(group.maxAllowed), Plain, kEvents                                     \
    }

std::vector<LimitItem> makeItems()
{
    return {
        { "voltage", kVoltageText, { BAND(voltage, OfVoltage) }, false, { 1, 3 } },
        { "harmonics", kHarmonicsText, {} },
        { "flicker",
          kFlickerText,
          { TOLERANCE("plt", plt, kPltTimeText, kPltLimitText, kPltAlwaysText, Plain, kSeverity, kWholeSeverity),
            TOLERANCE("pst", pst, kPstTimeText, kPstLimitText, kPstAlwaysText, Plain, kSeverity, kWholeSeverity) },
          true,
          { 1, 4 } },
        { "dips", kDipsText, { EVENT(dips, kPercent) }, false, { 0 } },
        { "swells", kSwellsText, { EVENT(swells, kOverNominal) }, false, { 0 } },
        { "interruptions", kInterruptionsText, { EVENT(interruptions, kPercent) }, false, { 0 } },
        { "rvc",
          kRvcText,
          { { "threshold", kThresholdText, REAL(rvc.threshold), Percent, kPercent, OfVoltage },
            { "steadytime", kSteadyTimeText, REAL(rvc.steadytime), Seconds, kSteady },
            { "minstep", kMinimumStepText, REAL(rvc.minstep), Percent, kPercent, OfVoltage },
            { "minrate", kMinimumRateText, REAL(rvc.minrate), PercentPerSecond, kPercent, OfVoltage },
            { "max_allowed", kAllowedNumberText, COUNT(rvc.maxAllowed), Plain, kEvents } },
          false,
          { 2 } },
        { "unbalance",
          kUnbalanceText,
          { TOLERANCE("neg", neg, kNegativeTimeText, kNegativeLimitText, kNegativeAlwaysText, Percent, kPercent,
                      kWhole),
            TOLERANCE("zero", zero, kZeroTimeText, kZeroLimitText, kZeroAlwaysText, Percent, kPercent, kWhole) },
          false,
          { 1, 4 } },
        { "frequency", kFrequencyText, { BAND(frequency, OfFrequency) }, false, { 1, 3 } },
        { "mains_signal",
          kMainsSignalingText,
          { { "value1", kFrequency1Text, REAL(frequency1.value), Hertz, kSignal },
            TOLERANCE("signal1", frequency1, kTime1Text, kLimit1Text, kAlways1Text, Percent, kPercent, kWhole),
            { "value2", kFrequency2Text, REAL(frequency2.value), Hertz, kSignal },
            TOLERANCE("signal2", frequency2, kTime2Text, kLimit2Text, kAlways2Text, Percent, kPercent, kWhole) },
          false,
          { 0, 4 } },
    };
}

#undef EVENT
#undef TOLERANCE
#undef BAND
#undef COUNT
#undef REAL

} // namespace

int LimitField::value(const monitor_limit &limit) const
{
    monitor_limit copy = limit;
    constexpr int kLargestCount = 21474836; // whose hundredths 32 bits hold
    return real ? floatToint(real(copy)) : std::clamp(count(copy), -kLargestCount, kLargestCount) * 100;
}

void LimitField::setValue(monitor_limit &limit, int hundredths) const
{
    if (real)
        real(limit) = intTofloat(hundredths);
    else
        count(limit) = hundredths / 100;
}

QString LimitField::text(const monitor_limit &limit) const
{
    return getVoltageVal(value(limit), unit, span);
}

const std::vector<LimitItem> &limitItems()
{
    static const std::vector<LimitItem> items = makeItems();
    return items;
}

int HarmonicLimits::rows(const monitor_limit &limit)
{
    return std::clamp(int(limit.harmonicCount), 0, monitor_limit::kRows);
}

float &HarmonicLimits::at(monitor_limit &limit, Column column, int row)
{
    float *const columns[] = { limit.harmonicNep, limit.harmonicPartial, limit.harmonicWhole };
    return columns[column][std::clamp(row, 0, monitor_limit::kRows - 1)];
}

float HarmonicLimits::at(const monitor_limit &limit, Column column, int row)
{
    monitor_limit copy = limit;
    return at(copy, column, row);
}

const Span &HarmonicLimits::span(Column column)
{
    static constexpr Span kSpans[] = { kTime, kHarmonic, kWholeHarmonic };
    return kSpans[column];
}

QString HarmonicLimits::name(int row)
{
    return row == 0 ? QStringLiteral("THD") : QStringLiteral("H%1").arg(row + 1);
}
