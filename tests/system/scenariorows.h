#pragma once

#include <QList>
#include <QPair>
#include <QString>

/// The supplies of `processor/scenarios`, the instruments that record them, and for how long.
namespace SystemTest {

/// What an instrument is set to.
enum SetUp {
    Factory,
    Star120V,
    OnBoard,
    Delta,
    OnePhase,
    SplitPhase,
    TwoLines,
    HighLeg,
    TwoAndAHalf,
    TwoElements,
    Coils
};

/// What a supply does to the clock, the link or the input stage, so that something is not as the signal says.
enum Peculiarity { None, ClockJumps, LosesPackages, OpenInputs, AllAtOnce };

struct Row
{
    const char *name; // of the run
    const char *scenario;
    SetUp setUp;
    double seconds; // of the signal
    Peculiarity peculiarity;
};
const Row kRows[] = {
    { "nominal", "nominal", Factory, 14, None },
    { "nominal-60", "nominal-60", Star120V, 14, None },
    { "nominal-400", "nominal-400", OnBoard, 14, None },
    { "nominal-delta", "nominal", Delta, 14, None },
    { "nominal-one-phase", "nominal", OnePhase, 14, None },
    { "nominal-two-lines", "nominal", TwoLines, 14, None },
    { "nominal-two-and-a-half-elements", "nominal", TwoAndAHalf, 14, None },
    { "nominal-two-elements", "nominal", TwoElements, 14, None },
    { "split-phase", "split-phase", SplitPhase, 14, None },
    { "high-leg", "high-leg", HighLeg, 14, None },
    { "feeding-back", "feeding-back", Factory, 14, None },
    { "flexible-clamps", "flexible-clamps", Coils, 14, None },
    { "living", "living", Factory, 80, None },
    { "bad-day", "bad-day", Factory, 112, AllAtOnce },
    { "dip", "dip", Factory, 20, None },
    { "swell", "swell", Factory, 20, None },
    { "interruption", "interruption", Factory, 24, None },
    { "inrush", "inrush", Factory, 20, None },
    { "rapid-changes", "rapid-changes", Factory, 34, None },
    { "phase-jumps", "phase-jumps", Factory, 14, None },
    { "load-steps", "load-steps", Factory, 20, None },
    { "transients", "transients", Factory, 18, None },
    { "frequency-drift", "frequency-drift", Factory, 60, None },
    { "unbalance", "unbalance", Factory, 14, None },
    { "harmonics", "harmonics", Factory, 14, None },
    { "harmonics-high", "harmonics-high", Factory, 14, None },
    { "interharmonics", "interharmonics", Factory, 14, None },
    { "mains-signalling", "mains-signalling", Factory, 24, None },
    { "link-faults", "link-faults", Factory, 40, LosesPackages },
    { "clocks", "clocks", Factory, 72, ClockJumps },
    { "out-of-calibration", "out-of-calibration", Factory, 8, OpenInputs },
    { "dips-every-phase", "dips-every-phase", Factory, 52, None },
    { "swells-every-phase", "swells-every-phase", Factory, 52, None },
    { "dips-depth-and-length", "dips-depth-and-length", Factory, 98, None },
    { "swells-depth-and-length", "swells-depth-and-length", Factory, 76, None },
    { "test-state-1", "test-state-1", Factory, 14, None },
    { "test-state-2", "test-state-2", Factory, 20, None },
    { "test-state-3", "test-state-3", Factory, 20, None },
    { "pinst-rectangular-230v", "pinst-rectangular-230v", Factory, 44, None },
    { "pinst-sinusoidal-230v", "pinst-sinusoidal-230v", Factory, 44, None },
    { "pinst-rectangular-120v", "pinst-rectangular-120v", Star120V, 44, None },
    { "pinst-sinusoidal-120v", "pinst-sinusoidal-120v", Star120V, 44, None },
    { "pst-230v-0001", "pst-230v-0001", Factory, 32, None },
    { "pst-230v-0002", "pst-230v-0002", Factory, 32, None },
    { "pst-230v-0007", "pst-230v-0007", Factory, 14, None },
    { "pst-230v-0039", "pst-230v-0039", Factory, 14, None },
    { "pst-230v-0110", "pst-230v-0110", Factory, 14, None },
    { "pst-230v-1620", "pst-230v-1620", Factory, 14, None },
    { "pst-230v-4000", "pst-230v-4000", Factory, 14, None },
    { "pst-120v-0001", "pst-120v-0001", Star120V, 32, None },
    { "pst-120v-0002", "pst-120v-0002", Star120V, 32, None },
    { "pst-120v-0007", "pst-120v-0007", Star120V, 14, None },
    { "pst-120v-0039", "pst-120v-0039", Star120V, 14, None },
    { "pst-120v-0110", "pst-120v-0110", Star120V, 14, None },
    { "pst-120v-1620", "pst-120v-1620", Star120V, 14, None },
    { "pst-120v-4800", "pst-120v-4800", Star120V, 14, None },
};

constexpr double kTwoIntervals = 1230; // s: long enough for two short-term severities

/// The row of this run: "-dip" is that of "dip", "-long-dip" the same for so long that severities of flicker are
/// recorded, nothing that of "nominal".
inline Row thisRow()
{
    QByteArray variant = qgetenv("QUVERA_TEST_VARIANT");
    const bool isLong = variant.startsWith("-long");
    variant.remove(0, isLong ? 6 : 1);
    for (Row row : kRows) {
        if (variant != row.name && !variant.isEmpty())
            continue;
        row.seconds = isLong ? kTwoIntervals : row.seconds;
        return row;
    }
    qFatal("no row for the supply \"%s\"", variant.constData());
}

/// Short-term severity of a supply; 0 where none is published for it.
inline double severityOf(const QByteArray &scenario)
{
    return scenario.startsWith("pst-") || scenario == "test-state-2" ? 1 : scenario == "test-state-3" ? 4 : 0;
}

/// The instrument of a row.
struct Setting
{
    int wiring;
    double nominalVolts; // of a line to neutral
    int hertz;
    quint32 open; // inputs that are not connected
    double voltsOfUnit; // of the converter in the voltage range that belongs to it; it has ten on either side
    QList<QPair<QString, QString>> settings;
};

inline Setting settingOf(SetUp setUp)
{
    const auto join
        = [](int mode) { return QPair<QString, QString>(QStringLiteral("JOINMODE"), QString::number(mode)); };
    const QPair<QString, QString> sixty { QStringLiteral("NOM_FREQ"), QStringLiteral("2") };
    const QPair<QString, QString> volts120 { QStringLiteral("NOM_VOLT_SELECT"), QStringLiteral("3") };
    switch (setUp) {
    case Star120V:
        return { 1, 120,  60,
                 0, 39.8, { sixty, volts120, { QStringLiteral("FLICKER_WEIGHTING_CURVE"), QStringLiteral("120") } } };
    case OnBoard:
        return { 1,
                 115,
                 400,
                 0,
                 39.8,
                 { { QStringLiteral("NOM_FREQ"), QStringLiteral("3") },
                   { QStringLiteral("NOM_VOLT_SELECT"), QStringLiteral("9") },
                   { QStringLiteral("NOM_VOLT_CUSTOM"), QStringLiteral("115") } } };
    case Delta:
        return { 4, 398, 50, 0x88, 153.6, { join(4) } };
    case OnePhase:
        return { 3, 230, 50, 0x66, 79.25, { join(3) } };
    case SplitPhase:
        return { 5, 120, 60, 0, 39.8, { sixty, volts120, join(5) } };
    case TwoLines:
        return { 6, 398, 50, 0xCC, 153.6, { join(6) } };
    case HighLeg:
        return { 7, 120, 60, 0, 79.25, { sixty, volts120, join(7) } };
    case TwoAndAHalf:
        return { 9, 230, 50, 0x02, 79.25, { join(9) } };
    case TwoElements:
        return { 10, 398, 50, 0xA8, 153.6, { join(10) } };
    case Coils:
        return { 1, 230, 50, 0, 79.25, { join(1) } };
    default:
        return { 1, 230, 50, 0, 79.25, {} };
    }
}

} // namespace SystemTest
