#include "scenario/signalreader.h"

#include "scenario/quantities.h"

namespace scenario {

namespace {

using processor::InputMask;
using processor::InputSpec;
using processor::ModulationSpec;
using processor::SignalSpec;

constexpr double kMaxVolts = 10000.0;
constexpr double kMaxAmps = 100000.0;
constexpr double kMaxHertz = 10000.0;

/// The inputs that the key "inputs" names; voltages when it is absent.
InputMask readInputs(JsonKeys *keys)
{
    const QString text = keys->text(QStringLiteral("inputs"), QStringLiteral("u"));
    const InputMask mask = inputs(text, Side::Voltage);
    if (mask == 0)
        keys->wrong(QStringLiteral("inputs"), QStringLiteral("inputs as \"u1\", \"i\" or \"u1+u2\""));
    return mask;
}

/// A number for all three phases, or a list of three or four (the last is the neutral). \a set gets line and value.
template <typename Function>
void readLines(JsonKeys *keys, JsonErrors *errors, const QString &key, double least, double most, Function set)
{
    const QJsonValue value = keys->any(key);
    const QString expected = QStringLiteral("a number from %1 to %2, or a list of 3 or 4 of them").arg(least).arg(most);
    if (value.isUndefined())
        return;
    if (value.isDouble() && value.toDouble() >= least && value.toDouble() <= most) {
        for (int line = 0; line < 3; ++line)
            set(line, value.toDouble());
        return;
    }
    const QJsonArray list = value.toArray();
    if (list.size() < 3 || list.size() > 4)
        return keys->wrong(key, expected);
    for (int line = 0; line < list.size(); ++line) {
        const double number = list.at(line).toDouble(most + 1.0);
        if (!(number >= least && number <= most))
            return errors->add(QStringLiteral("%1[%2]").arg(keys->path(key)).arg(line),
                               QStringLiteral("expected a number from %1 to %2").arg(least).arg(most));
        set(line, number);
    }
}

void readLoads(JsonKeys *keys, JsonErrors *errors, SignalSpec *spec)
{
    std::array<double, 4> amps = {};
    std::array<double, 4> powerFactor = { 1.0, 1.0, 1.0, 1.0 };
    readLines(keys, errors, QStringLiteral("i"), 0.0, kMaxAmps,
              [&](int line, double a) { amps[std::size_t(line)] = a; });
    readLines(keys, errors, QStringLiteral("pf"), -1.0, 1.0,
              [&](int line, double pf) { powerFactor[std::size_t(line)] = pf; });
    const bool capacitive = keys->flag(QStringLiteral("capacitive"), false);
    for (int line = 0; line < 3; ++line)
        processor::setLoad(*spec, line, amps[std::size_t(line)], powerFactor[std::size_t(line)], capacitive);
    spec->inputs[processor::IN].rms = amps[3];
    readLines(keys, errors, QStringLiteral("currentAngles"), -360.0, 360.0,
              [&](int line, double angle) { spec->inputs[std::size_t(processor::I1 + line)].phaseDeg = angle; });
}

/// One object of a list that names inputs and what is added to their signal.
template <typename Read>
void readForInputs(JsonErrors *errors, SignalSpec *spec, const QString &path, const QJsonValue &value, Read read)
{
    JsonKeys one(errors, path, value);
    const InputMask mask = readInputs(&one);
    const auto addTo = read(&one);
    one.finish();
    forEachInput(spec, mask, addTo);
}

auto readModulation(JsonKeys *keys)
{
    ModulationSpec modulation;
    const QString shape = keys->text(QStringLiteral("shape"), QStringLiteral("rectangular"));
    if (shape == QLatin1String("rectangular"))
        modulation.shape = ModulationSpec::Shape::Rectangular;
    else if (shape == QLatin1String("sinusoidal"))
        modulation.shape = ModulationSpec::Shape::Sinusoidal;
    else
        keys->wrong(QStringLiteral("shape"), QStringLiteral("\"rectangular\" or \"sinusoidal\""));
    // A period of a rectangle holds two changes.
    modulation.rateHz = keys->number(QStringLiteral("changesPerMinute"), 0.0, 0.0, 120.0 * kMaxHertz) / 120.0;
    modulation.rateHz = keys->number(QStringLiteral("rate"), modulation.rateHz, 0.0, kMaxHertz);
    if (keys->has(QStringLiteral("rate")) == keys->has(QStringLiteral("changesPerMinute")))
        keys->wrong(QStringLiteral("rate"), QStringLiteral("either \"rate\" in hertz or \"changesPerMinute\""));
    keys->require(QStringLiteral("percent"), QStringLiteral("the relative change dV/V in percent"));
    modulation.depthPercent = keys->number(QStringLiteral("percent"), 0.0, 0.0, 100.0);
    modulation.phaseDeg = keys->number(QStringLiteral("phase"), 0.0, 0.0, 360.0);
    return [modulation](InputSpec &input) { input.modulation = modulation; };
}

auto readHarmonic(JsonKeys *keys)
{
    keys->require(QStringLiteral("order"), QStringLiteral("an order from 2 to 100"));
    const processor::HarmonicSpec harmonic = { keys->integer(QStringLiteral("order"), 3, 2, 100),
                                               keys->number(QStringLiteral("percent"), 0.0, 0.0, 1000.0),
                                               keys->number(QStringLiteral("phase"), 0.0, -360.0, 360.0) };
    return [harmonic](InputSpec &input) { input.harmonics.push_back(harmonic); };
}

auto readInterharmonic(JsonKeys *keys)
{
    keys->require(QStringLiteral("f"), QStringLiteral("a frequency in hertz"));
    const processor::InterharmonicSpec component = { keys->number(QStringLiteral("f"), 0.0, 0.0, kMaxHertz),
                                                     keys->number(QStringLiteral("percent"), 0.0, 0.0, 1000.0),
                                                     keys->number(QStringLiteral("phase"), 0.0, -360.0, 360.0) };
    return [component](InputSpec &input) { input.interharmonics.push_back(component); };
}

auto readNoise(JsonKeys *keys)
{
    const double rms = keys->number(QStringLiteral("rms"), 0.0, 0.0, kMaxVolts);
    return [rms](InputSpec &input) { input.noiseRms = rms; };
}

auto readOffset(JsonKeys *keys)
{
    const double level = keys->number(QStringLiteral("level"), 0.0, -kMaxVolts, kMaxVolts);
    return [level](InputSpec &input) { input.dc = level; };
}

auto readOwnFrequency(JsonKeys *keys)
{
    keys->require(QStringLiteral("f"), QStringLiteral("a frequency in hertz"));
    const double hertz = keys->number(QStringLiteral("f"), 0.0, 10.0, 1000.0);
    const double drift = keys->number(QStringLiteral("drift"), 0.0, -10.0, 10.0);
    return [hertz, drift](InputSpec &input) {
        input.frequencyHz = hertz;
        input.driftHzPerSecond = drift;
    };
}

processor::SignallingSpec readSignalling(JsonErrors *errors, const QString &path, const QJsonValue &value)
{
    JsonKeys one(errors, path, value);
    processor::SignallingSpec burst;
    burst.inputs = readInputs(&one);
    one.require(QStringLiteral("f"), QStringLiteral("a frequency in hertz"));
    burst.frequencyHz = one.number(QStringLiteral("f"), 0.0, 1.0, kMaxHertz);
    burst.percent = one.number(QStringLiteral("percent"), 0.0, 0.0, 100.0);
    burst.startSeconds = one.number(QStringLiteral("start"), 0.0, 0.0, 1e6);
    burst.onSeconds = one.number(QStringLiteral("on"), burst.onSeconds, 0.0, 1e6);
    burst.periodSeconds = one.number(QStringLiteral("period"), 0.0, 0.0, 1e6);
    one.finish();
    return burst;
}

void readComponents(JsonKeys *keys, JsonErrors *errors, SignalSpec *spec)
{
    const auto readList = [=](const char *name, auto read) {
        keys->list(QString::fromLatin1(name), [=](const QString &path, const QJsonValue &value) {
            readForInputs(errors, spec, path, value, read);
        });
    };
    readList("harmonics", readHarmonic);
    readList("interharmonics", readInterharmonic);
    readList("noise", readNoise);
    readList("dc", readOffset);
    readList("frequencies", readOwnFrequency);
    keys->list(QStringLiteral("signalling"), [=](const QString &path, const QJsonValue &value) {
        spec->signalling.push_back(readSignalling(errors, path, value));
    });
    readList("flicker", readModulation);
}

} // namespace

SignalSpec readSignal(JsonErrors *errors, const QString &path, const QJsonValue &value)
{
    JsonKeys keys(errors, path, value);
    const double frequency = keys.number(QStringLiteral("f"), 50.0, 10.0, 1000.0);
    SignalSpec spec = SignalSpec::threePhase(230.0, frequency);
    readLines(&keys, errors, QStringLiteral("u"), 0.0, kMaxVolts,
              [&](int line, double volts) { spec.inputs[std::size_t(processor::U1 + line)].rms = volts; });
    readLines(&keys, errors, QStringLiteral("angles"), -360.0, 360.0,
              [&](int line, double angle) { spec.inputs[std::size_t(processor::U1 + line)].phaseDeg = angle; });
    readLoads(&keys, errors, &spec);
    spec.driftHzPerSecond = keys.number(QStringLiteral("drift"), 0.0, -10.0, 10.0);
    spec.driftLimitHz = keys.number(QStringLiteral("driftLimit"), 0.0, 0.0, 100.0);
    spec.neutralCarriesPhaseCurrents = keys.flag(QStringLiteral("neutralSum"), true);
    readComponents(&keys, errors, &spec);
    keys.finish();
    const std::string problem = processor::validate(spec);
    if (!problem.empty())
        errors->add(path, QString::fromStdString(problem));
    return spec;
}

} // namespace scenario
