#include "record/exports/pqdifhappenings.h"

#include "record/exports/pqdifobservation.h"
#include "record/exports/waveformcheck.h"
#include "record/tables/blockcolumns.h"
#include "record/tables/isotime.h"
#include "record/tables/recordevents.h"

#include <algorithm>
#include <limits>

namespace {

using namespace PqdifValue;

constexpr int kInputs = 4;
constexpr int kMostListed = 64 * 1024; // entries, a megabyte
constexpr int kMostCurve = 64 * 1024; // values; curves of the instrument have some 600
constexpr int kMostNamed = 64 * 1024; // events whose category is remembered for their waveforms
constexpr qint64 kMostTrigger = qint64(1) << 40; // sample; behind it the time would overflow
constexpr qint64 kMicroseconds = 1000; // of a ms

/// The quantity behind an event's value, by kind.
struct KindRow
{
    int first, last; // kinds
    PqdifMeasured measured;
    PqdifId characteristic;
    enum : quint8 { Voltages, Currents, Supply } channel;
};
constexpr KindRow kKinds[] = {
    { EventThd, EventThd, PqdifMeasured::Voltage, kQcTotalThd, KindRow::Voltages },
    { EventHarmonicFirst, EventHarmonicLast, PqdifMeasured::Voltage, kQcSpectraHgroup, KindRow::Voltages },
    { EventFlicker, EventFlicker, PqdifMeasured::Voltage, kQcFlkrPlt, KindRow::Voltages },
    { EventUnbalance, EventUnbalance, PqdifMeasured::Voltage, kQcS2s1, KindRow::Supply },
    { EventFrequency, EventFrequency, PqdifMeasured::Voltage, kQcFrequency, KindRow::Supply },
    { EventInrush, EventInrush, PqdifMeasured::Current, kQcRms, KindRow::Currents },
    // All others are voltages.
    { std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), PqdifMeasured::Voltage, kQcRms,
      KindRow::Voltages },
};

const KindRow &rowOf(int kind)
{
    return *std::find_if(std::begin(kKinds), std::end(kKinds),
                         [kind](const KindRow &row) { return kind >= row.first && kind <= row.last; });
}

QByteArray channelOf(const RecordedEvent &event, int joinMode)
{
    const KindRow &row = rowOf(event.item.type);
    if (row.channel == KindRow::Supply || event.item.channel < 0 || event.item.channel >= kInputs)
        return {};
    return inputName(joinMode, event.item.channel, row.channel == KindRow::Voltages);
}

/// Length of an event in s. Of one that went on when the recording ended, what is known of it: that it lasted until
/// then.
double secondsOf(const PQAEventItem &item, qint64 recordingEnd)
{
    const qint64 end = item.finished != 0 ? item.endTime : recordingEnd;
    return isCalendarTime(double(end)) && end > item.startTime ? double(end - item.startTime) / 1e3 : 0;
}

/// Categories by duration: up to 30 cycles, 3 s, a minute, longer.
PqdifId byDuration(double seconds, double frequency, const PqdifId (&categories)[4])
{
    const double bounds[] = { 30 / (frequency > 0 ? frequency : 50), 3, 60 };
    return categories[std::count_if(std::begin(bounds), std::end(bounds),
                                    [=](double bound) { return seconds > bound; })];
}

PqdifId categoryOf(int kind, double seconds, double frequency)
{
    static constexpr PqdifId kSags[]
        = { kDisturbShortdurInstantSag, kDisturbShortdurMomentSag, kDisturbShortdurTempSag, kDisturbLongdurSag };
    static constexpr PqdifId kSwells[] = { kDisturbShortdurInstantSwell, kDisturbShortdurMomentSwell,
                                           kDisturbShortdurTempSwell, kDisturbLongdurSwell };
    static constexpr PqdifId kInterruptions[] = { kDisturbShortdurMomentInterrupt, kDisturbShortdurMomentInterrupt,
                                                  kDisturbShortdurTempInterrupt, kDisturbLongdurInterrupt };
    if (kind == EventThd || (kind >= EventHarmonicFirst && kind <= EventHarmonicLast))
        return kDisturbWavedistortHarmonic;
    switch (kind) {
    case EventDip:
        return byDuration(seconds, frequency, kSags);
    case EventSwell:
        return byDuration(seconds, frequency, kSwells);
    case EventInterruption:
        return byDuration(seconds, frequency, kInterruptions);
    case EventFlicker:
        return kDisturbVoltagefluctuation;
    case EventUnbalance:
        return kDisturbImbalance;
    case EventFrequency:
        return kDisturbPowerfreqvariation;
    default:
        return kDisturbNone;
    }
}

/// A channel with one value a time.
PqdifChannel valueChannel(const QByteArray &name, const QByteArray &input, PqdifMeasured measured,
                          const PqdifSeries &value)
{
    PqdifChannel channel;
    channel.name = name;
    channel.phase = pqdifPhase(input);
    channel.measured = measured;
    channel.series
        = { pqdifTimeSeries(value.storage == PqdifStorage::Scaled ? PqdifStorage::Increment : PqdifStorage::Values),
            value };
    return channel;
}

/// Both curves of an input behind one another, as far as they have a time and a value. What comes back in time is left
/// out.
RmsCurve joined(const RmsCurve &first, const RmsCurve &second)
{
    RmsCurve curve;
    for (const RmsCurve *part : { &first, &second }) {
        for (const _value_with_time &sample : *part) {
            const bool isLater = curve.isEmpty() || sample.time > curve.constLast().time;
            if (isLater && isCalendarTime(double(sample.time)) && std::isfinite(sample.value)
                && curve.size() < kMostCurve)
                curve.append(sample);
        }
    }
    return curve;
}

} // namespace

bool PqdifHappenings::event(const RecordedEvent &event)
{
    if (!isCalendarTime(double(event.item.startTime)))
        return true;
    const int kind = event.item.type;
    const double seconds = secondsOf(event.item, m_facts.end);
    if (m_categories.size() < kMostNamed)
        m_categories.insert(event.number, categoryOf(kind, seconds, m_facts.nominalFrequency));
    const QByteArray channel = channelOf(event, m_facts.joinMode);
    const QByteArray name = eventKindName(kind) + (channel.isEmpty() ? "" : " ") + channel;
    return listEvent(event, name, channel, seconds) && keepCurves(event, name, seconds);
}

bool PqdifHappenings::listEvent(const RecordedEvent &event, const QByteArray &name, const QByteArray &input,
                                double seconds)
{
    if (!std::isfinite(event.item.value))
        return true;
    const KindRow &row = rowOf(event.item.type);
    const quint32 unit = pqdifUnit(eventUnit(event.item.type));
    const char *list = event.item.finished != 0 ? " (events)" : " (events that went on)";
    PqdifChannel channel = valueChannel(name + list, input, row.measured,
                                        { kSeriesVal, unit, row.characteristic, PqdifStorage::Values, 0 });
    channel.type = kMagnitudeDurationTime;
    channel.series.append({ kSeriesDuration, kPqdifSeconds, kQcNone, PqdifStorage::Values, 0 });
    m_list[m_channels->numberOf(channel)].append({ event.item.startTime, event.item.value, float(seconds) });
    return ++m_listed < kMostListed || flush();
}

bool PqdifHappenings::flush()
{
    if (m_listed == 0)
        return true;
    qint64 first = std::numeric_limits<qint64>::max(), last = 0;
    for (QVector<Entry> &entries : m_list) {
        std::stable_sort(entries.begin(), entries.end(),
                         [](const Entry &a, const Entry &b) { return a.start < b.start; });
        first = qMin(first, entries.first().start);
        last = qMax(last, entries.last().start);
    }
    PqdifObservation observation("Events", first * kMicroseconds, last * kMicroseconds, PqdifTrigger::None);
    for (auto entries = m_list.cbegin(); entries != m_list.cend(); ++entries) {
        QVector<double> times;
        QVector<float> values, durations;
        for (const Entry &entry : entries.value()) {
            times << double(entry.start - first) / 1e3;
            values << entry.value;
            durations << entry.duration;
        }
        observation.beginChannel(entries.key());
        observation.addTimes(times);
        observation.addValues(values);
        observation.addValues(durations);
    }
    m_list.clear();
    m_listed = 0;
    return m_keep(observation.body(), observation.start());
}

bool PqdifHappenings::keepCurves(const RecordedEvent &event, const QByteArray &name, double seconds)
{
    RmsCurve curves[2 * kInputs];
    qint64 first = std::numeric_limits<qint64>::max(), last = 0;
    for (int i = 0; i < 2 * kInputs; ++i) {
        curves[i] = joined(event.item.startRms[i], event.item.endRms[i]);
        if (!curves[i].isEmpty()) {
            // Samples are packed: no reference to their times.
            const qint64 begin = curves[i].constFirst().time, end = curves[i].constLast().time;
            first = qMin(first, begin);
            last = qMax(last, end);
        }
    }
    if (first > last)
        return true;
    PqdifObservation observation(name + ' ' + IsoTime::text(event.item.startTime), first * kMicroseconds,
                                 last * kMicroseconds, PqdifTrigger::Channel);
    PqdifCollection &root = observation.root();
    root.addTime(PqdifTag::kTimeTriggered, PqdifTime::ofMicroseconds(event.item.startTime * kMicroseconds));
    root.addNumber(PqdifTag::kObservationSerial, quint32(event.number));
    root.addNumber(PqdifTag::kObservationAggregationSerial, quint32(event.number));
    root.addId(PqdifTag::kDisturbanceCategoryID, categoryOf(event.item.type, seconds, m_facts.nominalFrequency));
    if (event.item.finished != 0 && seconds > 0)
        root.addReal(PqdifTag::kCharactDuration, seconds);
    for (int i = 0; i < 2 * kInputs; ++i) {
        if (curves[i].isEmpty())
            continue;
        const bool isVoltage = i < kInputs;
        const QByteArray input = inputName(m_facts.joinMode, i % kInputs, isVoltage);
        QVector<double> times;
        QVector<float> values;
        for (const _value_with_time &sample : qAsConst(curves[i])) {
            times << double(sample.time - first) / 1e3;
            values << sample.value;
        }
        observation.beginChannel(m_channels->numberOf(
            valueChannel((isVoltage ? "U_rms " : "I_rms ") + input + " (event)", input,
                         isVoltage ? PqdifMeasured::Voltage : PqdifMeasured::Current,
                         { kSeriesVal, pqdifUnit(isVoltage ? "V" : "A"), kQcRms, PqdifStorage::Values, 0 })));
        observation.addTimes(times);
        observation.addValues(values);
    }
    return m_keep(observation.body(), observation.start());
}

bool PqdifHappenings::waveformBegin(const RecordedWaveform &waveform)
{
    m_waveform = waveform;
    m_definitions.clear();
    m_first = 0;
    for (int i = 0; i < waveform.channels.size() && hasUsableRate(waveform); ++i) {
        RecordedWaveform::Channel &input = m_waveform.channels[i];
        const bool isValue = hasFactor(input);
        if (!isValue)
            input.factor = 1;
        PqdifChannel channel = valueChannel(
            input.name + (isValue ? " (waveform)" : " (waveform, steps)"), input.channel,
            input.name.startsWith('I') ? PqdifMeasured::Current : PqdifMeasured::Voltage,
            { kSeriesVal, isValue ? pqdifUnit(input.unit) : 0, kQcInstantaneous, PqdifStorage::Scaled, 0 });
        channel.type = kWaveform;
        m_definitions << m_channels->numberOf(channel);
    }
    m_samples = QVector<QVector<qint16>>(m_definitions.size());
    return true;
}

bool PqdifHappenings::waveformSamples(const qint16 *samples, int count)
{
    const int inputs = m_definitions.size();
    if (inputs == 0)
        return true;
    const int most = kMostSamples / inputs;
    for (int done = 0; done < count;) {
        const int before = m_samples[0].size(), piece = qMin(count - done, most - before);
        for (int c = 0; c < inputs; ++c) {
            m_samples[c].resize(before + piece);
            const qint16 *from = samples + qint64(done) * inputs + c;
            for (qint16 *to = m_samples[c].data() + before, *end = to + piece; to != end; ++to, from += inputs)
                *to = *from;
        }
        done += piece;
        if (before + piece == most && !keepSamples())
            return false;
    }
    return true;
}

bool PqdifHappenings::waveformEnd()
{
    return keepSamples();
}

QByteArray PqdifHappenings::waveformName() const
{
    if (m_waveform.origin == RecordedWaveform::Event)
        return m_waveform.event > 0 ? "Waveform of event " + QByteArray::number(m_waveform.event)
                                    : "Waveform of an event";
    return (m_waveform.origin == RecordedWaveform::Transient ? "Transient, waveform " : "Capture, waveform ")
        + QByteArray::number(m_waveform.number);
}

bool PqdifHappenings::keepSamples()
{
    if (m_samples.isEmpty() || m_samples[0].isEmpty())
        return true;
    const double rate = m_waveform.sampleRate;
    const qint64 count = m_samples[0].size();
    const double beginning = isCalendarTime(m_waveform.start) ? m_waveform.start * kMicroseconds : 0;
    const auto timeOf = [&](qint64 sample) { return qint64(std::llround(beginning + double(sample) * 1e6 / rate)); };
    PqdifObservation observation(waveformName(), timeOf(m_first), timeOf(m_first + count - 1),
                                 m_waveform.origin == RecordedWaveform::Capture ? PqdifTrigger::None
                                                                                : PqdifTrigger::Channel);
    PqdifCollection &root = observation.root();
    if (m_waveform.origin != RecordedWaveform::Capture) {
        root.addTime(PqdifTag::kTimeTriggered,
                     PqdifTime::ofMicroseconds(timeOf(qBound<qint64>(0, m_waveform.trigger, kMostTrigger))));
        if (m_waveform.event > 0)
            root.addNumber(PqdifTag::kObservationAggregationSerial, quint32(m_waveform.event));
        const bool isTransient = m_waveform.origin == RecordedWaveform::Transient;
        root.addId(PqdifTag::kDisturbanceCategoryID,
                   isTransient ? kDisturbTransient : m_categories.value(m_waveform.event, kDisturbNone));
    }
    for (int c = 0; c < m_definitions.size(); ++c) {
        observation.beginChannel(m_definitions[c]);
        observation.addClock(count, rate);
        observation.addScaled(m_samples[c], double(m_waveform.channels[c].factor));
        m_samples[c].resize(0);
    }
    m_first += count;
    return m_keep(observation.body(), observation.start());
}
