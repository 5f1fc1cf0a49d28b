#include "views/monitor/monitorreadout.h"

#include "settings/config_data.h"
#include "widgets/text/f_to_str.h"

namespace {

using Field = MonitorReadout::Field;

// What stands for a value that is not there yet.
constexpr char kNoVolt[] = "___._V";
constexpr char kNoPercent[] = "___._%";
constexpr char kNoPercent2[] = "___.__%";
constexpr char kNoHertz[] = "___.__Hz";
constexpr char kNoRatio[] = "___._";
constexpr char kNoFlicker[] = "__.__";

QString valueOr(const char *placeholder, bool ready, const QString &text)
{
    return ready ? text : QString::fromLatin1(placeholder);
}

QString volt(bool ready, float value)
{
    return valueOr(kNoVolt, ready, F_to_Str::number_V(value) + m_settingConfig_g.units().volt);
}

QString hertz(bool ready, float value)
{
    return valueOr(kNoHertz, ready, F_to_Str::number_F(value) + QStringLiteral("Hz"));
}

QString percent2(bool ready, float value)
{
    return valueOr(kNoPercent2, ready, F_to_Str::number_2(value) + QLatin1Char('%'));
}

QString flicker(bool ready, float value)
{
    return valueOr(kNoFlicker, ready, F_to_Str::number_2(value));
}

/// "95%": the share of the time that a percentile or a limit speaks of.
QString share(float nep)
{
    return QString::number(double(F_to_Str::clean(nep)), 'g', 4) + QLatin1Char('%');
}

Field allowed(bool ready, float percent)
{
    return { MonitorReadout::tr("Allowed%"), valueOr(kNoRatio, ready, F_to_Str::number_1(percent)) };
}

/// \a whole is the limit itself; one that is not applied is no limit to be a percentage of.
Field limit(bool ready, float percent, float whole)
{
    const QString text
        = whole < kLimitNotApplied ? F_to_Str::number_1(percent) + QLatin1Char('%') : QStringLiteral("-");
    return { MonitorReadout::tr("Limit"), valueOr(kNoPercent, ready, text) };
}

Field number(const QString &caption, int count, int most)
{
    return { caption, QStringLiteral("%1/%2").arg(count).arg(most) };
}

float lastOf(const QList<float> &list)
{
    return list.isEmpty() ? 0 : list.last();
}

QString harmonicName(int row)
{
    return row == 0 ? QStringLiteral("THD") : QStringLiteral("H%1").arg(row + 1);
}

void addVoltage(MonitorReadout &readout, const MonitorView &view, int phase)
{
    const __monitor_data &data = view.data;
    const bool ready = data.voltReady > 0;
    const auto &band = view.limit.voltage;
    readout.quantity = QStringLiteral("Vrms");
    readout.fields = {
        { MonitorReadout::tr("Max"), volt(ready, data.voltMax[phase]) },
        { share(band.nep), volt(ready, data.voltPercentileNep[phase]) },
        allowed(ready, data.voltPartialRatio[phase]),
        { MonitorReadout::tr("Min"), volt(ready, data.voltMin[phase]) },
        { share(100), volt(ready, data.voltPercentileAll[phase]) },
        limit(ready, data.voltWholeRatio[phase], MonitorValues::bandWhole(band)),
    };
}

void addHarmonics(MonitorReadout &readout, const MonitorView &view, int phase)
{
    const __monitor_data &data = view.data;
    const bool ready = data.voltReady > 0;
    const int worst = MonitorValues::worstHarmonic(data, phase);
    const ComplianceBar bar = MonitorValues::histogram(view)[std::size_t(MonitorBarHarmonics + phase)];
    readout.quantity = MonitorReadout::tr("Harmonics");
    readout.fields = {
        { QStringLiteral("THD"),
          valueOr(kNoPercent, ready,
                  F_to_Str::number_1(lastOf(view.trend.row[MonitorTrendThd + phase])) + QLatin1Char('%')) },
        { MonitorReadout::tr("Worst"), ready ? harmonicName(worst) : QStringLiteral("___") },
        allowed(ready, bar.allowed),
        {},
        {},
        limit(ready, bar.limit, MonitorValues::harmonicWhole(view.limit)),
    };
}

void addFlicker(MonitorReadout &readout, const MonitorView &view, int phase)
{
    const __monitor_data &data = view.data;
    const bool ready = data.flickerReady > 0;
    const ComplianceBar bar = MonitorValues::histogram(view)[std::size_t(MonitorBarFlicker + phase)];
    readout.quantity = MonitorReadout::tr("Flicker");
    readout.fields = {
        { QStringLiteral("Plt"), flicker(ready, data.pltValue[phase]) },
        { share(view.limit.plt.nep), flicker(ready, data.pltPercentileNep[phase]) },
        allowed(ready, bar.allowed),
        {},
        { share(100), flicker(ready, data.pltPercentileAll[phase]) },
        limit(ready, bar.limit, view.limit.plt.whole),
    };
}

void addDirs(MonitorReadout &readout, const MonitorView &view, int)
{
    const MonitorEventCounts &events = view.events;
    readout.quantity = QStringLiteral("DIRS");
    readout.fields = {
        number(MonitorReadout::tr("Dips"), events.dips, view.limit.dips.maxAllowed),
        {},
        number(MonitorReadout::tr("Swells"), events.swells, view.limit.swells.maxAllowed),
        number(MonitorReadout::tr("Interr."), events.interruptions, view.limit.interruptions.maxAllowed),
        {},
        number(QStringLiteral("RVC"), events.rvc, view.limit.rvc.maxAllowed),
    };
}

void addUnbalance(MonitorReadout &readout, const MonitorView &view, int)
{
    const __monitor_data &data = view.data;
    const bool ready = data.voltReady > 0;
    readout.quantity = MonitorReadout::tr("Unbalance");
    readout.fields = {
        { MonitorReadout::tr("Neg."), percent2(ready, lastOf(view.trend.row[MonitorTrendUnbalance])) },
        {},
        allowed(ready, data.unbalPartialRatio),
        {},
        {},
        limit(ready, data.unbalWholeRatio, view.limit.neg.whole),
    };
}

void addFrequency(MonitorReadout &readout, const MonitorView &view, int)
{
    const __monitor_data &data = view.data;
    const bool ready = data.freqReady > 0;
    const auto &band = view.limit.frequency;
    readout.quantity = MonitorReadout::tr("Frequency");
    readout.fields = {
        { MonitorReadout::tr("Max"), hertz(ready, data.freqMax) },
        { share(band.nep), hertz(ready, data.freqPercentileNep) },
        allowed(ready, data.freqPartialRatio),
        { MonitorReadout::tr("Min"), hertz(ready, data.freqMin) },
        { share(100), hertz(ready, data.freqPercentileAll) },
        limit(ready, data.freqWholeRatio, MonitorValues::bandWhole(band)),
    };
}

void addSignals(MonitorReadout &readout, const MonitorView &view, int)
{
    const bool ready = view.data.voltReady > 0;
    const MonitorValues::Signal first = MonitorValues::worstSignal(view, 1);
    const MonitorValues::Signal second = MonitorValues::worstSignal(view, 2);
    const ComplianceBar bar = MonitorValues::histogram(view)[MonitorBarSignals];
    const monitor_limit &limits = view.limit;
    readout.quantity = MonitorReadout::tr("Mains Signaling");
    readout.fields = {
        { QStringLiteral("1: ") + share(limits.frequency1.nep), percent2(ready, first.nep) },
        { QStringLiteral("2: ") + share(limits.frequency2.nep), percent2(ready, second.nep) },
        allowed(ready, bar.allowed),
        { QStringLiteral("1: ") + share(100), percent2(ready, first.all) },
        { QStringLiteral("2: ") + share(100), percent2(ready, second.all) },
        limit(ready, bar.limit, std::min(limits.frequency1.whole, limits.frequency2.whole)),
    };
}

/// Who writes the fields behind the bars from \a first on.
const struct
{
    MonitorBar first;
    bool phases;
    void (*add)(MonitorReadout &readout, const MonitorView &view, int phase);
} kWriters[] = {
    { MonitorBarSignals, false, addSignals },     { MonitorBarFrequency, false, addFrequency },
    { MonitorBarUnbalance, false, addUnbalance }, { MonitorBarDirs, false, addDirs },
    { MonitorBarFlicker, true, addFlicker },      { MonitorBarHarmonics, true, addHarmonics },
    { MonitorBarVoltage, true, addVoltage },
};

/// In front of a quantity: whose it is.
void name(MonitorReadout &readout, const MonitorView &view, int phase)
{
    readout.phase = phase;
    readout.quantity.prepend(view.channels.caption(phase) + QLatin1Char(' '));
}

} // namespace

MonitorReadout MonitorReadout::ofBar(const MonitorView &view, int bar)
{
    MonitorReadout readout;
    readout.verdict = MonitorValues::verdict(view, bar);
    for (const auto &writer : kWriters) {
        if (bar < writer.first)
            continue;
        const int phase = writer.phases ? bar - writer.first : 0;
        writer.add(readout, view, phase);
        if (writer.phases)
            name(readout, view, phase);
        break;
    }
    return readout;
}

MonitorReadout MonitorReadout::ofHarmonic(const MonitorView &view, int phase, int row)
{
    const __monitor_data &data = view.data;
    const bool ready = data.voltReady > 0;
    const float partial = view.limit.harmonicPartial[row];
    const float whole = MonitorValues::harmonicWhole(view.limit, row);
    MonitorReadout readout;
    readout.verdict = MonitorValues::harmonicVerdict(view, phase, row);
    readout.quantity = harmonicName(row);
    name(readout, view, phase);
    readout.fields = {
        // The results hold ratios; the value follows from the limit that it is compared with.
        { tr("Value"), percent2(ready, data.harmPartialRatio[phase][row] * partial / 100.0f) },
        { share(view.limit.harmonicNep[row]), F_to_Str::number_2(partial) + QLatin1Char('%') },
        allowed(ready, data.harmPartialRatio[phase][row]),
        {},
        { share(100), whole < kLimitNotApplied ? F_to_Str::number_2(whole) + QLatin1Char('%') : QStringLiteral("-") },
        limit(ready, data.harmWholeRatio[phase][row], whole),
    };
    return readout;
}
