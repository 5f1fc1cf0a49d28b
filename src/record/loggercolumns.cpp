#include "record/loggercolumns.h"

#include "model/channelset.h"

#include <algorithm>
#include <cmath>

namespace {

using Origin = loggerdata_origin;
using Units = DisplayUnits;
using Columns = LoggerColumns;

constexpr double kDegrees = 57.295779513082320876798; // of a radian
constexpr double kSmallest = 0.0001;
constexpr int kPhases = 3;

template <float ChannelRms::*field> double channelValue(const Origin &origin, int channel, int)
{
    return double(origin.aggregation.channel[channel].*field);
}

template <float PowerRow::*field> double powerValue(const Origin &origin, int row, int)
{
    return double(origin.aggregation.power[row].*field);
}

template <double EnergyRow::*field> double energyValue(const Origin &origin, int row, int)
{
    return origin.aggregation.energy[row].*field;
}

template <SequenceValues __datagram_aggregation::*sequence, float SequenceValues::*ratio>
double sequenceValue(const Origin &origin, int, int)
{
    return double(origin.aggregation.*sequence.*ratio);
}

/// Harmonics in percent of the fundamental; 0 without one.
double distortion(float harmonics, const SpectrumLine &fundamental)
{
    return fundamental.magnitude > 0 ? double(harmonics) * 100.0 / double(fundamental.magnitude) : 0.0;
}

double voltageDistortion(const Origin &origin, int channel, int)
{
    const ChannelSpectrum &spectrum = origin.aggregation.spectrum[channel];
    return distortion(spectrum.voltageDistortion, spectrum.voltage[0]);
}

double currentDistortion(const Origin &origin, int channel, int)
{
    const ChannelSpectrum &spectrum = origin.aggregation.spectrum[channel];
    return distortion(spectrum.currentDistortion, spectrum.current[0]);
}

template <SpectrumLine (ChannelSpectrum::*lines)[kHarmonicOrders]>
double harmonic(const Origin &origin, int channel, int order)
{
    return double((origin.aggregation.spectrum[channel].*lines)[order - 1].magnitude);
}

template <SpectrumLine (ChannelSpectrum::*lines)[kHarmonicOrders]>
double interharmonic(const Origin &origin, int channel, int order)
{
    return double((origin.aggregation.spectrum[channel].*lines)[order].magnitude);
}

template <SpectrumLine (ChannelSpectrum::*lines)[kHarmonicOrders]>
double harmonicAngle(const Origin &origin, int channel, int order)
{
    return double((origin.aggregation.spectrum[channel].*lines)[order - 1].phase) * kDegrees;
}

double frequency(const Origin &origin, int, int)
{
    return std::fabs(double(origin.aggregation.frequency));
}

double severity(const Origin &origin, int phase, int)
{
    return double(origin.pst[phase]);
}

constexpr auto kNegative = &SequenceValues::negativeRatio;
constexpr auto kZero = &SequenceValues::zeroRatio;
constexpr auto kVoltages = &__datagram_aggregation::voltageSequence;
constexpr auto kCurrents = &__datagram_aggregation::currentSequence;

const char *label(const Columns::Group &group, int channel)
{
    static const char *const channels[] = { " L1", " L2", " L3", " N" };
    static const char *const rows[] = { " L1", " L2", " L3", " ALL" };
    switch (group.layout) {
    case Columns::Rows:
    case Columns::Counters:
        return rows[channel];
    case Columns::Single:
        return "";
    default:
        return channels[channel];
    }
}

bool hasStatistics(const Columns::Group &group)
{
    return group.layout != Columns::Counters && group.layout != Columns::Severities;
}

/// Channels of a group in a wiring, bit 0 for the first.
unsigned channelsOf(const Columns::Group &group, const ChannelSet &wiring)
{
    constexpr unsigned kThree = (1u << kPhases) - 1, kAll = 1u << kPhases;
    switch (group.layout) {
    case Columns::Channels:
    case Columns::Orders:
        return wiring.mask;
    case Columns::Rows:
    case Columns::Counters:
        return (wiring.mask & kThree) | kAll;
    case Columns::Phases:
        return wiring.mask & kThree;
    case Columns::Severities:
        return kThree;
    case Columns::Single:
        break;
    }
    return 1;
}

} // namespace

const std::vector<LoggerColumns::Group> &LoggerColumns::groups()
{
    constexpr QString Units::*kNoUnit = nullptr;
    constexpr double Units::*kUnscaled = nullptr;
    // clang-format off
    static const std::vector<Group> all {
        { 0x1, "VRMS", Channels, 3, &Units::volt, &Units::factorVolt, channelValue<&ChannelRms::voltage> },
        { 0x2, "VCF", Channels, 2, kNoUnit, kUnscaled, channelValue<&ChannelRms::voltageCrest> },
        { 0x4, "VTHD", Channels, 2, kNoUnit, kUnscaled, voltageDistortion },
        { 0x8, "VNEG", Single, 2, kNoUnit, kUnscaled, sequenceValue<kVoltages, kNegative> },
        { 0x10, "VZERO", Single, 2, kNoUnit, kUnscaled, sequenceValue<kVoltages, kZero> },
        { 0x20, "VDC", Channels, 2, &Units::volt, &Units::factorVolt, channelValue<&ChannelRms::voltageOffset> },
        { 0x40, "IRMS", Channels, 3, &Units::ampere, &Units::factorAmpere, channelValue<&ChannelRms::current> },
        { 0x80, "ICF", Channels, 2, kNoUnit, kUnscaled, channelValue<&ChannelRms::currentCrest> },
        { 0x100, "ITHD", Channels, 2, kNoUnit, kUnscaled, currentDistortion },
        { 0x200, "INEG", Single, 2, kNoUnit, kUnscaled, sequenceValue<kCurrents, kNegative> },
        { 0x400, "IZERO", Single, 2, kNoUnit, kUnscaled, sequenceValue<kCurrents, kZero> },
        { 0x800, "IDC", Channels, 2, &Units::ampere, &Units::factorAmpere, channelValue<&ChannelRms::currentOffset> },
        { 0x1000, "P", Rows, 3, &Units::watt, &Units::factorWatt, powerValue<&PowerRow::active> },
        { 0x2000, "S", Rows, 3, &Units::voltAmpere, &Units::factorWatt, powerValue<&PowerRow::apparent> },
        { 0x4000, "Q", Rows, 3, &Units::var, &Units::factorWatt, powerValue<&PowerRow::reactive> },
        { 0x8000, "PF", Rows, 2, kNoUnit, kUnscaled, powerValue<&PowerRow::factor> },
        { 0x10000, "cosΦ", Phases, 2, kNoUnit, kUnscaled, powerValue<&PowerRow::fundamentalFactor> },
        { 0x20000, "tanΦ", Rows, 2, kNoUnit, kUnscaled, powerValue<&PowerRow::tangent> },
        { 0x40000, "EnergyP", Counters, 3, &Units::wattHour, &Units::factorWattHour, energyValue<&EnergyRow::active> },
        { 0x80000, "EnergyS", Counters, 3, &Units::voltAmpereHour, &Units::factorWattHour,
          energyValue<&EnergyRow::apparent> },
        { 0x100000, "EnergyQ", Counters, 3, &Units::varHour, &Units::factorWattHour,
          energyValue<&EnergyRow::reactive> },
        { 0x200000, "FREQ", Single, 3, kNoUnit, kUnscaled, frequency },
        { 0x400000, "VHarmonic", Orders, 2, kNoUnit, kUnscaled, harmonic<&ChannelSpectrum::voltage>, 1 },
        { 0x800000, "IHarmonic", Orders, 2, kNoUnit, kUnscaled, harmonic<&ChannelSpectrum::current>, 1 },
        { 0x1000000, "VInterHarmonic", Orders, 2, kNoUnit, kUnscaled, interharmonic<&ChannelSpectrum::voltageInter> },
        { 0x2000000, "IInterHarmonic", Orders, 2, kNoUnit, kUnscaled, interharmonic<&ChannelSpectrum::currentInter> },
        { 0x4000000, "VHarmΦ", Orders, 2, kNoUnit, kUnscaled, harmonicAngle<&ChannelSpectrum::voltage>, 1 },
        { 0x8000000, "IHarmΦ", Orders, 2, kNoUnit, kUnscaled, harmonicAngle<&ChannelSpectrum::current>, 1 },
        { 0x10000000, "PST", Severities, 2, kNoUnit, kUnscaled, severity },
    };
    // clang-format on
    return all;
}

LoggerColumns::LoggerColumns(quint32 selected, const ChannelSet &wiring, int highestOrder, const DisplayUnits &units)
    : m_units(units)
{
    const int orders = std::clamp(highestOrder, 0, kHarmonicOrders);
    for (const Group &group : groups()) {
        if (!(selected & group.bit))
            continue;
        const double factor = group.factor ? units.*group.factor : 1.0;
        const unsigned channels = channelsOf(group, wiring);
        const int lines = group.layout == Orders ? orders : 1;
        for (int channel = 0; channel < kChannels; ++channel) {
            for (int line = 0; (channels >> channel & 1) && line < lines; ++line)
                m_columns.push_back({ &group, channel, group.firstOrder + line, factor });
        }
    }
}

QString LoggerColumns::caption(const Column &column) const
{
    const Group &group = *column.group;
    QString name = QString::fromUtf8(group.name);
    if (group.unit)
        name += QLatin1Char('(') + m_units.*group.unit + QLatin1Char(')');
    name += QLatin1String(label(group, column.channel));
    if (group.layout == Orders)
        name += QStringLiteral(" %1'th").arg(column.order);
    return name;
}

QString LoggerColumns::header() const
{
    QString text = QStringLiteral("TIME,");
    for (const Column &column : m_columns) {
        const QString name = caption(column);
        if (hasStatistics(*column.group))
            text += name + QLatin1String(" AVG,") + name + QLatin1String(" MAX,") + name + QLatin1String(" MIN,");
        else
            text += name + QLatin1Char(',');
    }
    return text;
}

void LoggerColumns::calculateLoggerData(const loggerdata_origin &origin, int samples,
                                        std::vector<logger_value> *values) const
{
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const Column &column = m_columns[i];
        logger_value &value = (*values)[i];
        value.last = column.group->value(origin, column.channel, column.order) * column.factor;
        value.sum += value.last;
        if (samples == 0 || value.last > value.maximum)
            value.maximum = value.last;
        if (samples == 0 || value.last < value.minimum)
            value.minimum = value.last;
    }
}

double LoggerColumns::cleaned(double value)
{
    return std::isfinite(value) && std::fabs(value) >= kSmallest ? value : 0.0;
}

QByteArray LoggerColumns::line(const std::vector<logger_value> &values, int samples) const
{
    QByteArray text;
    const auto add = [&text](double value, int decimals) {
        text += QByteArray::number(cleaned(value), 'f', decimals);
        text += ',';
    };
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const Group &group = *m_columns[i].group;
        const logger_value &value = values[i];
        if (!hasStatistics(group)) {
            add(value.last, group.decimals);
            continue;
        }
        add(value.sum / std::max(samples, 1), group.decimals);
        add(value.maximum, group.decimals);
        add(value.minimum, group.decimals);
    }
    return text;
}
