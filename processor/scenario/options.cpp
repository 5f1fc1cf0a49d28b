#include "scenario/options.h"

#include "link/deviceclock.h"
#include "scenario/quantities.h"
#include "scenario/scenariofile.h"

#include <QCommandLineParser>
#include <QDir>

namespace scenario {

namespace {

constexpr char kAbout[]
    = "Plays the measurement processor of the instrument on a desk: measures a synthesised supply and delivers the\n"
      "packages at DIR/dev/mcasp, plays the board's files under DIR, and takes commands at DIR/run/processor.ctl.\n"
      "Ctrl-C ends it.";

struct Definitions
{
    QCommandLineOption root { QStringLiteral("root"),
                              QStringLiteral("Folder that stands for \"/\". Without it QUVERA_ROOT is taken."),
                              QStringLiteral("DIR") };
    QCommandLineOption scenario { QStringLiteral("scenario"),
                                  QStringLiteral(
                                      "Scenario file, or the name of one that comes with the program; nominal "
                                      "without it."),
                                  QStringLiteral("FILE|NAME") };
    QCommandLineOption list { QStringLiteral("list-scenarios"), QStringLiteral("Print the names of those, and end.") };
    QCommandLineOption speed { QStringLiteral("speed"),
                               QStringLiteral("Let time run N times faster, on the wire and in the time stamps."),
                               QStringLiteral("N") };
    QCommandLineOption seed { QStringLiteral("seed"),
                              QStringLiteral(
                                  "Number that fixes noise and link faults; the scenario's own, or 1, without "
                                  "it."),
                              QStringLiteral("N") };
    QCommandLineOption clock { QStringLiteral("clock"),
                               QStringLiteral("The processor's clock at the start (UTC), as 2024-01-18T16:15:00; the "
                                              "scenario's own, or the host's, without it."),
                               QStringLiteral("TIME") };
    QCommandLineOption record { QStringLiteral("record"), QStringLiteral("Keep the package stream in FILE."),
                                QStringLiteral("FILE") };
    QCommandLineOption replay { QStringLiteral("replay"),
                                QStringLiteral("Play the package stream of FILE, byte for byte, instead of measuring."),
                                QStringLiteral("FILE") };
    QCommandLineOption frames { QStringLiteral("log-frames"),
                                QStringLiteral("Append each frame of the instrument to FILE: time, hexadecimal words, "
                                               "meaning."),
                                QStringLiteral("FILE") };
    QCommandLineOption duration { QStringLiteral("for"),
                                  QStringLiteral("End after so many simulated seconds of the stream."),
                                  QStringLiteral("SECONDS") };
    QCommandLineOption stream { QStringLiteral("stream"),
                                QStringLiteral("Start the stream at once instead of waiting for the instrument; with "
                                               "--record and --for this makes a recording without one.") };
    QCommandLineOption tell { QStringLiteral("tell"),
                              QStringLiteral(
                                  "Send COMMAND to the processor that runs under the root, print its answer, "
                                  "and end. \"help\" lists the commands."),
                              QStringLiteral("COMMAND") };

    void addTo(QCommandLineParser *parser)
    {
        parser->setApplicationDescription(QString::fromLatin1(kAbout));
        parser->addOptions(
            { root, scenario, list, speed, seed, clock, record, replay, frames, duration, stream, tell });
        parser->addOption(
            { { QStringLiteral("h"), QStringLiteral("help") }, QStringLiteral("Print this text, and end.") });
    }
};

/// Reads what is no plain text. Empty on success.
QString readValues(const QCommandLineParser &parser, const Definitions &given, Options *options)
{
    if (parser.isSet(given.speed)) {
        const auto speed = quantity(parser.value(given.speed), Unit::None);
        if (!speed || *speed < 0.01 || *speed > 10000.0)
            return QStringLiteral("--speed: expected a number from 0.01 to 10000");
        options->speed = *speed;
    }
    if (parser.isSet(given.seed)) {
        bool good = false;
        options->seed = parser.value(given.seed).toULongLong(&good);
        if (!good)
            return QStringLiteral("--seed: expected a whole number");
    }
    if (parser.isSet(given.clock)) {
        options->clockStart = wire::DeviceClock::fromText(parser.value(given.clock));
        if (*options->clockStart < 0)
            return QStringLiteral("--clock: expected a time as 2024-01-18T16:15:00");
    }
    if (parser.isSet(given.duration)) {
        const auto seconds = quantity(parser.value(given.duration), Unit::Seconds);
        if (!seconds || *seconds <= 0.0)
            return QStringLiteral("--for: expected %1").arg(expectation(Unit::Seconds));
        options->forSeconds = *seconds;
    }
    if (parser.isSet(given.replay) && (parser.isSet(given.record) || parser.isSet(given.scenario)))
        return QStringLiteral("--replay goes with neither --record nor --scenario");
    return {};
}

} // namespace

std::optional<Options> Options::read(const QStringList &arguments, QString *error, QString *text)
{
    QCommandLineParser parser;
    Definitions given;
    given.addTo(&parser);
    if (!parser.parse(arguments)) {
        *error = parser.errorText();
        return std::nullopt;
    }
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(given.list)) {
        *text = parser.isSet(given.list) ? ScenarioFile::names().join(QLatin1Char('\n')) + QLatin1Char('\n')
                                         : parser.helpText();
        return std::nullopt;
    }
    if (!parser.positionalArguments().isEmpty()) {
        *error = QStringLiteral("unexpected %1; see --help").arg(parser.positionalArguments().first());
        return std::nullopt;
    }
    Options options;
    options.root = parser.isSet(given.root) ? parser.value(given.root) : qEnvironmentVariable("QUVERA_ROOT");
    options.scenario = parser.isSet(given.scenario) ? parser.value(given.scenario) : options.scenario;
    options.record = parser.value(given.record);
    options.replay = parser.value(given.replay);
    options.frameLog = parser.value(given.frames);
    options.stream = parser.isSet(given.stream);
    options.tell = parser.value(given.tell);
    *error = readValues(parser, given, &options);
    if (error->isEmpty() && parser.isSet(given.tell) && options.tell.isEmpty())
        *error = QStringLiteral("--tell: expected a command; \"help\" lists them");
    // Never "/" by accident: the desk's own files are not the board's.
    if (error->isEmpty() && options.root.isEmpty())
        *error = QStringLiteral("no root: give --root DIR or set QUVERA_ROOT");
    if (error->isEmpty() && QDir(options.root).absolutePath() == QLatin1String("/"))
        *error = QStringLiteral("the root must not be /");
    return error->isEmpty() ? std::optional(options) : std::nullopt;
}

} // namespace scenario
