#include "truesignal.h"

#include "testpaths.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>

namespace {

constexpr double kForever = std::numeric_limits<double>::infinity();
constexpr double kTwoPi = 2 * 3.14159265358979323846;
const double kRootTwo = std::sqrt(2.0);
constexpr int kDecays = 28; // time constants after which nothing is left

double number(const QJsonObject &object, const char *key, double other = 0)
{
    return object.value(QLatin1String(key)).toDouble(other);
}

/// Bits of "u1+i", "l2", "all": what a line means goes by the side that the event belongs to.
quint32 inputsOf(const QString &text, bool currents)
{
    quint32 bits = 0;
    for (const QString &name : text.split(QLatin1Char('+'))) {
        const quint32 digit = name.size() == 2 ? quint32(name[1].digitValue()) : 0;
        if (name == QLatin1String("u") || (name == QLatin1String("all") && !currents))
            bits |= 0x07;
        else if (name == QLatin1String("i") || name == QLatin1String("all"))
            bits |= 0x70;
        else if (name[0] == QLatin1Char('i') || (name[0] == QLatin1Char('l') && currents))
            bits |= 1u << (digit + 3);
        else
            bits |= 1u << (digit - 1);
    }
    return bits;
}

/// A number for the three phases, or a list that may have the neutral, too.
void forLines(const QJsonValue &value, const std::function<void(int, double)> &set)
{
    const QJsonArray list = value.toArray();
    for (int line = 0; line < (value.isDouble() ? 3 : list.size()); ++line)
        set(line, value.isDouble() ? value.toDouble() : list[line].toDouble());
}

void forObjects(const QJsonObject &signal, const char *key, TrueSignal::Source *inputs,
                const std::function<void(const QJsonObject &, TrueSignal::Source &)> &take)
{
    for (const QJsonValue &value : signal.value(QLatin1String(key)).toArray()) {
        const QJsonObject object = value.toObject();
        const quint32 bits = inputsOf(object.value(QLatin1String("inputs")).toString(QStringLiteral("u")), false);
        for (int input = 0; input < TrueSignal::kInputs; ++input) {
            if (bits >> input & 1)
                take(object, inputs[input]);
        }
    }
}

void readSources(const QJsonObject &signal, TrueSignal::Source *inputs)
{
    forObjects(signal, "harmonics", inputs, [](const QJsonObject &one, TrueSignal::Source &source) {
        source.harmonics.append({ number(one, "order"), number(one, "percent") / 100, number(one, "phase") / 360 });
    });
    forObjects(signal, "interharmonics", inputs, [](const QJsonObject &one, TrueSignal::Source &source) {
        source.interharmonics.append({ number(one, "f"), number(one, "percent") / 100, number(one, "phase") / 360 });
    });
    forObjects(signal, "flicker", inputs, [](const QJsonObject &one, TrueSignal::Source &source) {
        source.flickerDepth = number(one, "percent") / 100;
        source.flickerRate = number(one, "rate", number(one, "changesPerMinute") / 120); // a turn has two changes
        source.flickerPhase = number(one, "phase") / 360;
        source.flickerIsRectangular = one.value(QLatin1String("shape")) != QLatin1String("sinusoidal");
    });
    forObjects(signal, "noise", inputs,
               [](const QJsonObject &one, TrueSignal::Source &source) { source.noise = number(one, "rms"); });
    forObjects(signal, "dc", inputs,
               [](const QJsonObject &one, TrueSignal::Source &source) { source.offset = number(one, "level"); });
}

/// 0 to 1 in the time of the ramp, back behind the length.
double rampAt(const TrueSignal::Event &event, double age)
{
    if (age > event.length)
        return event.ramp > 0 ? std::max(1 - (age - event.length) / event.ramp, 0.0) : 0.0;
    return event.ramp > 0 ? std::min(age / event.ramp, 1.0) : 1.0;
}

/// A double exponential with a peak of 1.
double impulseAt(const TrueSignal::Event &event, double age)
{
    const double rise = event.ramp, decay = event.decay;
    const auto form = [=](double t) { return std::exp(-t / decay) - std::exp(-t / rise); };
    const double crest = std::log(decay / rise) / (1 / rise - 1 / decay);
    return form(age) / form(crest);
}

/// What an event makes of amplitude, phase (turns) and sum of an input.
void apply(const TrueSignal::Event &event, double age, double *factor, double *advance, double *added)
{
    *advance += event.turns;
    if (event.type == QLatin1String("ring"))
        *added += event.amplitude * std::exp(-age / event.decay) * std::sin(kTwoPi * event.hertz * age);
    else if (event.type == QLatin1String("transient"))
        *added += event.amplitude * impulseAt(event, age);
    else if (event.type == QLatin1String("rvc"))
        *factor *= 1 + event.level * rampAt(event, age);
    else if (event.type == QLatin1String("inrush"))
        *factor *= 1 + (event.level - 1) * std::exp(-age / event.decay);
    else if (event.type != QLatin1String("phasejump"))
        *factor *= event.level;
}

/// Fundamental at the angle \a x, what stands on top of it and how it swings, as a share of its amplitude.
double shareOf(const TrueSignal::Source &source, double x, double t)
{
    const double sine = std::sin(x), cosine = std::cos(x);
    double sum = sine, s = sine, c = cosine; // of the order so far: each follows from the one before
    int order = 1;
    for (const TrueSignal::Component &one : source.harmonics) {
        for (; order < int(one.order); ++order) {
            const double next = s * cosine + c * sine;
            c = c * cosine - s * sine;
            s = next;
        }
        sum += one.share * (s * std::cos(kTwoPi * one.phase) + c * std::sin(kTwoPi * one.phase));
    }
    for (const TrueSignal::Component &one : source.interharmonics)
        sum += one.share * std::sin(kTwoPi * (one.order * t + one.phase));
    if (!(source.flickerDepth > 0))
        return sum;
    double swing = std::sin(kTwoPi * (source.flickerRate * t + source.flickerPhase));
    if (source.flickerIsRectangular)
        swing = swing < 0 ? -1 : 1;
    return sum * (1 + source.flickerDepth / 2 * swing);
}

bool isOn(const TrueSignal::Telegram &telegram, double t)
{
    const double age = t - telegram.start;
    return age >= 0 && (telegram.period > 0 ? std::fmod(age, telegram.period) : age) < telegram.on;
}

} // namespace

TrueSignal::Supply TrueSignal::readSupply(const QJsonObject &signal)
{
    Supply supply;
    supply.hertz = number(signal, "f", 50);
    supply.drift = number(signal, "drift");
    supply.driftLimit = number(signal, "driftLimit", 0);
    supply.neutralSum = signal.value(QLatin1String("neutralSum")).toBool(true);
    Source *const inputs = supply.inputs;
    for (int line = 0; line < 3; ++line) {
        inputs[line].rms = 230;
        inputs[line].phase = (line == 1 ? -120 : 120 * line / 2) / 360.0;
    }
    forLines(signal.value(QLatin1String("u")), [=](int line, double volts) { inputs[line].rms = volts; });
    forLines(signal.value(QLatin1String("angles")),
             [=](int line, double degrees) { inputs[line].phase = degrees / 360; });
    forLines(signal.value(QLatin1String("i")), [=](int line, double amps) { inputs[I1 + line].rms = amps; });
    for (int line = 0; line < 3; ++line)
        inputs[I1 + line].phase = inputs[line].phase;
    const double side = signal.value(QLatin1String("capacitive")).toBool() ? 1 : -1;
    forLines(signal.value(QLatin1String("pf")), [=](int line, double factor) {
        if (line < 3)
            inputs[I1 + line].phase += side * std::acos(factor) / kTwoPi;
    });
    readSources(signal, inputs);
    for (Source &source : supply.inputs)
        std::sort(source.harmonics.begin(), source.harmonics.end(),
                  [](const Component &a, const Component &b) { return a.order < b.order; });
    for (const QJsonValue &value : signal.value(QLatin1String("signalling")).toArray()) {
        const QJsonObject one = value.toObject();
        supply.telegrams.append({ inputsOf(one.value(QLatin1String("inputs")).toString(), false), number(one, "f"),
                                  number(one, "percent") / 100, number(one, "start"), number(one, "on", 1),
                                  number(one, "period") });
    }
    return supply;
}

bool TrueSignal::load(const QString &name, double end)
{
    QFile file(QStringLiteral(QUVERA_SOURCE_DIR "/processor/scenarios/%1.json").arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QJsonObject scenario = QJsonDocument::fromJson(file.readAll()).object();
    m_supplies = { readSupply(scenario.value(QLatin1String("signal")).toObject()) };
    for (const QJsonValue &step : scenario.value(QLatin1String("steps")).toArray()) {
        const QJsonObject one = step.toObject();
        if (!one.contains(QLatin1String("signal")))
            continue;
        m_supplies.append(readSupply(one.value(QLatin1String("signal")).toObject()));
        m_supplies.last().from = number(one, "at");
    }
    m_events.clear();
    for (const QJsonValue &event : scenario.value(QLatin1String("events")).toArray())
        readEvent(event.toObject(), end);
    return true;
}

void TrueSignal::unplug(quint32 inputs)
{
    for (Supply &supply : m_supplies) {
        for (int input = 0; input < kInputs; ++input) {
            if (inputs >> input & 1)
                supply.inputs[input] = Source();
        }
        supply.neutralSum = supply.neutralSum && !(inputs >> IN & 1);
    }
}

void TrueSignal::setOpenInput(int input, double offset, double noise)
{
    for (Supply &supply : m_supplies) {
        supply.neutralSum = false;
        supply.inputs[input] = Source();
        supply.inputs[input].offset = offset;
        supply.inputs[input].noise = noise;
    }
}

void TrueSignal::readEvent(const QJsonObject &object, double end)
{
    Event event {};
    event.type = object.value(QLatin1String("type")).toString();
    const bool currents = event.type == QLatin1String("inrush") || event.type == QLatin1String("loadstep");
    event.inputs = inputsOf(object.value(QLatin1String("inputs")).toString(), currents);
    event.length = number(object, "length", kForever);
    event.level = event.type == QLatin1String("rvc") ? number(object, "change") / 100 : number(object, "level") / 100;
    event.ramp = number(object, event.type == QLatin1String("rvc") ? "ramp" : "rise");
    event.decay = number(object, "decay");
    event.amplitude = number(object, "amplitude");
    event.hertz = number(object, "f");
    event.turns = number(object, "angle") / 360;
    if (object.contains(QLatin1String("pf"))) {
        for (int line = 0; line < 3; ++line) {
            if (event.inputs >> (I1 + line) & 1) // the events of the supplies that have it touch one line
                event.turns = m_supplies[0].inputs[line].phase - std::acos(number(object, "pf")) / kTwoPi
                    - m_supplies[0].inputs[I1 + line].phase;
        }
    }
    const bool decays = event.adds() || event.type == QLatin1String("inrush");
    const double lasts = decays ? kDecays * event.decay : event.length + event.ramp;
    const double every = number(object, "every");
    for (double at = number(object, "at"); at < end; at += every) {
        event.start = startOf(at, object, event.inputs);
        event.end = event.start + lasts;
        m_events.append(event);
        if (every <= 0)
            break;
    }
}

/// With a point on wave: the first time from the moment on at which the first input stands at it.
double TrueSignal::startOf(double moment, const QJsonObject &object, quint32 inputs) const
{
    if (!object.contains(QLatin1String("phase")))
        return moment;
    int first = 0;
    while (!(inputs >> first & 1))
        ++first;
    const double wanted = number(object, "phase") / 360 - supplyAt(moment).inputs[first].phase;
    return momentOf(wanted + std::ceil(turns(moment) - wanted - 1e-9));
}

const TrueSignal::Supply &TrueSignal::supplyAt(double t) const
{
    const Supply *found = &m_supplies[0];
    for (const Supply &supply : m_supplies) {
        if (supply.from <= t)
            found = &supply;
    }
    return *found;
}

double TrueSignal::hertz(double t) const
{
    const Supply &supply = m_supplies[0]; // the steps of the supplies keep it
    const double change = supply.drift * t, limit = supply.driftLimit > 0 ? supply.driftLimit : kForever;
    return supply.hertz + std::clamp(change, -limit, limit);
}

double TrueSignal::turns(double t) const
{
    const Supply &supply = m_supplies[0];
    const double until = supply.driftLimit > 0 && supply.drift != 0 ? supply.driftLimit / std::fabs(supply.drift) : t;
    const double drifts = std::min(t, until);
    return supply.hertz * t + supply.drift * drifts * drifts / 2 + (t - drifts) * (hertz(t) - supply.hertz);
}

double TrueSignal::momentOf(double wanted) const
{
    double t = wanted / m_supplies[0].hertz;
    for (int round = 0; round < 20; ++round)
        t -= (turns(t) - wanted) / hertz(t);
    return t;
}

double TrueSignal::advance(int input, double t) const
{
    double sum = 0;
    for (const Event &event : m_events)
        sum += event.inputs >> input & 1 && t >= event.start && t < event.end ? event.turns : 0;
    return sum;
}

double TrueSignal::momentOfL1(double wanted) const
{
    double t = momentOf(wanted);
    for (int round = 0; round < 4; ++round)
        t = momentOf(wanted - advance(U1, t));
    return t;
}

QVector<double> TrueSignal::ownValues(int input, double from, double to, int places) const
{
    QVector<const Event *> events;
    for (const Event &event : m_events) {
        if (event.inputs >> input & 1 && event.start < to && event.end > from)
            events.append(&event);
    }
    QVector<double> values(places);
    for (int place = 0; place < places; ++place) {
        const double t = from + (to - from) * place / places;
        const Supply &supply = supplyAt(t);
        const Source &source = supply.inputs[input];
        if (!(source.rms > 0) && source.offset == 0)
            continue;
        double factor = kRootTwo * source.rms, advance = 0, added = source.offset;
        for (const Event *event : qAsConst(events)) {
            if (t >= event->start && t < event->end)
                apply(*event, t - event->start, &factor, &advance, &added);
        }
        const double x = kTwoPi * (turns(t) + source.phase + advance);
        values[place] = factor * shareOf(source, x, t) + added;
        for (const Telegram &one : supply.telegrams) {
            if (one.inputs >> input & 1 && isOn(one, t))
                values[place] += factor * one.share * std::sin(kTwoPi * one.hertz * t);
        }
        if (input <= UN)
            values[place] = std::clamp(values[place], -m_range, m_range);
    }
    return values;
}

QVector<double> TrueSignal::values(int input, double from, double to, int places) const
{
    QVector<double> sum = ownValues(input, from, to, places);
    for (int line = I1; input == IN && supplyAt(from).neutralSum && line <= I3; ++line) {
        const QVector<double> other = ownValues(line, from, to, places);
        std::transform(sum.begin(), sum.end(), other.begin(), sum.begin(), std::plus<double>());
    }
    return sum;
}

bool TrueSignal::isQuiet(double from, double to) const
{
    const auto within = [=](double moment) { return moment > from && moment < to; };
    return std::none_of(m_events.begin(), m_events.end(),
                        [=](const Event &event) { return event.start < to && event.end > from; })
        && std::none_of(m_supplies.begin(), m_supplies.end(),
                        [=](const Supply &supply) { return supply.from > 0 && within(supply.from); });
}

bool TrueSignal::isWithoutTelegrams(double from, double to) const
{
    const QVector<Telegram> &telegrams = supplyAt(from).telegrams;
    return std::none_of(telegrams.begin(), telegrams.end(), [=](const Telegram &telegram) {
        const double turn = telegram.period > 0 ? std::floor((to - telegram.start) / telegram.period) : 0;
        const double begins = telegram.start + std::max(turn, 0.0) * telegram.period;
        return begins < to && begins + telegram.on > from;
    });
}

bool TrueSignal::isUniform(double from, double to) const
{
    const Supply &supply = supplyAt(from);
    return isQuiet(from, to) && isWithoutTelegrams(from, to)
        && std::all_of(supply.inputs, supply.inputs + kInputs, [](const Source &source) {
               return source.interharmonics.isEmpty() && !(source.flickerDepth > 0);
           });
}
