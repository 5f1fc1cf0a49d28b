#pragma once

#include "device/datagramtypes.h"
#include "model/datagramrecords.h"
#include "settings/derived.h"

#include <QByteArray>
#include <QList>

/// What decides how an aggregation is decoded.
struct DecodeSettings
{
    ScaleTable scales;
    const ChannelSet *wiring = nullptr;
    double nominalFrequency = 50.0; // Hz
    int nominalVolt = 0; // V, without the transformer's ratio

    DecodeSettings() = default;
    /// `measuring`: the scales that the measurement began with; the rest as it stands now.
    DecodeSettings(const ScaleTable &measuring, const Derived &now)
        : scales(measuring), wiring(now.channels), nominalFrequency(now.nominalFrequency), nominalVolt(now.nominalVolt)
    { }
};

/// Decodes payloads of datagrams into records in volts, amperes, watts, hertz and degrees, and works out the quantities
/// derived from them. Payload tables: docs/link-protocol.md; records: docs/formats/records.md.
/// All functions are static, read no settings, allocate nothing and report nothing; a NaN stays one where nothing else
/// is said. Any thread.
class DataTypes
{
public:
    /// Whether an array holds the payload of a kind; the decoders below read that many bytes.
    static bool fits(__datagramtype kind, const QByteArray &payload);

    /// 545 words. Values are held to 10 converter units.
    static void datagramRMS_1_2(__datagram_rms *record, const char *payload, const ScaleTable &scales);
    /// 16387 words.
    static void datagramWave(__datagram_wave *record, const char *payload);
    /// 1503 words.
    static void datagramFlicker(__datagram_flicker *record, const char *payload);
    /// 3250 words. Energies keep their old contents, so do the orders that a 400 Hz system does not have.
    static void datagramAggregation(__datagram_aggregation *record, const char *payload, const DecodeSettings &by);

    // The steps of datagramAggregation in their order: later ones read what earlier ones wrote. `payload` has 3250
    // words.
    static void aggregation_vif(__datagram_aggregation *record, const float *payload, const DecodeSettings &by);
    static void aggregation_harm(__datagram_aggregation *record, const float *payload, const DecodeSettings &by);
    static void aggregation_unbalance(__datagram_aggregation *record);
    static void aggregation_power(__datagram_aggregation *record, const float *payload, const DecodeSettings &by);
    static void aggregation_mainssig(__datagram_aggregation *record, const float *payload, const DecodeSettings &by);

    /// a - b, degrees, brought into -180 to 180; both ends stay as they are.
    static float iu_pahse_difference(float a, float b);
    /// Long-term flicker: cube root of the mean cube of the first n values (IEC 61000-4-15, 5.7.3). NaN for n = 0.
    static double plt(const QList<float> *values, unsigned int n);
    /// Value at fraction p of the first n of a sorted list, interpolated between neighbours. In a descending list p is
    /// the fraction of time in which the value is exceeded. Where n * p is below 1 the first value, 0 for no values.
    static float percentiles(float p, QList<float> *sorted, unsigned int n);
    /// The same for \a count values that are kept in another way: \a at takes a place and answers its value.
    template <typename At> static float percentileOf(float p, int count, const At &at)
    {
        if (count == 0)
            return 0.0f;
        const float x = static_cast<float>(count) * p;
        if (count == 1 || !(x >= 1.0f)) // would read ahead of the list
            return at(0);
        if (x >= static_cast<float>(count))
            return at(count - 1);
        const int i = static_cast<int>(x);
        const float r = x - static_cast<float>(i);
        return at(i - 1) + (at(i) - at(i - 1)) * r;
    }
    /// Short-term flicker of a descending list of instantaneous values (IEC 61000-4-15, 5.7.2, smoothed percentiles).
    static double pst10min(QList<float> *sorted, unsigned int n);
    /// Resamples n values to 600. Without values `out` stays as it is.
    static void lineInterpolation(float *out, const float *in, int n);
    /// Resamples inCount samples to outCount, cut to integers. Up to 2 only the ends are set.
    static void lineInterpolation(short *out, const short *in, int outCount, int inCount);
    /// The order of descending lists.
    static bool compare(float a, float b) { return a > b; }
};
