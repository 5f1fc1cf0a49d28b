#include "playedscenario.h"

#include "board/boardfiles.h"
#include "scenario/commands.h"
#include "signal/wiredsupply.h"

#include <QDir>
#include <QTemporaryDir>

#include <cmath>

using processor::SignalSpec;

/// The supply of the desk: that it follows what the instrument is set to, and suits its factory settings.
class TstProcessorSupply : public QObject
{
    Q_OBJECT

private slots:
    void supplyTakesTheWiring_data();
    void supplyTakesTheWiring();
    void openLeadsCarryNothing_data();
    void openLeadsCarryNothing();
    void loadKeepsItsAngle();
    void unknownWiringChangesNothing();
    void wiringComesFromTheSettings();
    void signalFollowsWiringAndFrequency();
    void signalThatIsSetStays();
    void otherScenariosStayAsTheyAre();
    void suppliesSuitTheFactorySettings_data();
    void suppliesSuitTheFactorySettings();
};

namespace {

/// A steady voltage as the instrument's two leads see it.
double between(const SignalSpec &spec, int a, int b)
{
    const auto part = [&spec](int input, bool real) {
        const processor::InputSpec &one = spec.inputs[std::size_t(input)];
        const double angle = one.phaseDeg * 3.14159265358979 / 180.0;
        return one.rms * (real ? std::cos(angle) : std::sin(angle));
    };
    return std::hypot(part(a, true) - part(b, true), part(a, false) - part(b, false));
}

/// The set-up frame's payload for a nominal frequency, in a frame as the instrument sends it.
void setNominal(wire::ProcessorLink *link, int hertz)
{
    processor::ProcessorSetup setup = link->setup();
    setup.nominalFrequency = hertz;
    link->setSetup(setup);
}

} // namespace

void TstProcessorSupply::supplyTakesTheWiring_data()
{
    QTest::addColumn<int>("wiring");
    QTest::addColumn<double>("l1n");
    QTest::addColumn<double>("l2n");
    QTest::addColumn<double>("l12");
    QTest::addColumn<double>("l13");
    // Halves in opposition: 230 V each, 460 V across.
    QTest::newRow("star") << 1 << 230.0 << 230.0 << 398.37 << 398.37;
    QTest::newRow("delta") << 4 << 230.0 << 230.0 << 398.37 << 398.37;
    QTest::newRow("split phase") << 5 << 230.0 << 230.0 << 460.0 << 230.0; // L3 is open: the lead stands at 0
    // The high leg closes a triangle of 460 V with the two halves.
    QTest::newRow("high leg") << 7 << 230.0 << 398.37 << 460.0 << 460.0;
}

void TstProcessorSupply::supplyTakesTheWiring()
{
    QFETCH(int, wiring);
    QFETCH(double, l1n);
    QFETCH(double, l2n);
    QFETCH(double, l12);
    QFETCH(double, l13);
    const SignalSpec spec = processor::wiredSupply(SignalSpec::threePhase(230.0, 50.0, 1.0), wiring);
    QVERIFY(std::fabs(spec.inputs[processor::U1].rms - l1n) < 0.01);
    QVERIFY(std::fabs(spec.inputs[processor::U2].rms - l2n) < 0.01);
    QVERIFY(std::fabs(between(spec, processor::U1, processor::U2) - l12) < 0.01);
    QVERIFY(std::fabs(between(spec, processor::U1, processor::U3) - l13) < 0.01);
}

void TstProcessorSupply::openLeadsCarryNothing_data()
{
    QTest::addColumn<int>("wiring");
    QTest::addColumn<QString>("connected"); // voltages L1, L2, L3, N, then currents
    // As the wiring diagrams on the instrument's screen draw them.
    const char *const rows[] = { "11111111", "11101110", "10011001", "11101110", "11011101",
                                 "11001100", "11111111", "11101110", "10111111", "11101010" };
    for (int i = 0; i < 10; ++i)
        QTest::addRow("%d", i + 1) << i + 1 << QString::fromLatin1(rows[i]);
}

void TstProcessorSupply::openLeadsCarryNothing()
{
    QFETCH(int, wiring);
    QFETCH(QString, connected);
    SignalSpec star = SignalSpec::threePhase(230.0, 50.0, 1.0);
    star.inputs[processor::UN].rms = 0.5;
    star.inputs[processor::IN].rms = 0.1;
    const SignalSpec spec = processor::wiredSupply(star, wiring);
    for (int input = 0; input < processor::InputCount; ++input)
        QCOMPARE(spec.inputs[std::size_t(input)].rms > 0.0, connected.at(input) == QLatin1Char('1'));
    QCOMPARE(spec.neutralCarriesPhaseCurrents, connected.at(processor::IN) == QLatin1Char('1'));
}

void TstProcessorSupply::loadKeepsItsAngle()
{
    const SignalSpec star = SignalSpec::threePhase(230.0, 50.0, 1.0, 0.5); // 60 degrees behind
    for (int wiring : { 5, 7 }) {
        const SignalSpec spec = processor::wiredSupply(star, wiring);
        for (int line = 0; line < 2; ++line)
            QVERIFY(std::fabs(spec.inputs[std::size_t(processor::U1 + line)].phaseDeg
                              - spec.inputs[std::size_t(processor::I1 + line)].phaseDeg - 60.0)
                    < 1e-6);
    }
}

void TstProcessorSupply::unknownWiringChangesNothing()
{
    const SignalSpec star = SignalSpec::threePhase(230.0, 50.0, 1.0);
    for (int wiring : { -1, 0, 11 }) {
        const SignalSpec spec = processor::wiredSupply(star, wiring);
        for (std::size_t input = 0; input < processor::InputCount; ++input) {
            QCOMPARE(spec.inputs[input].rms, star.inputs[input].rms);
            QCOMPARE(spec.inputs[input].phaseDeg, star.inputs[input].phaseDeg);
        }
    }
}

void TstProcessorSupply::wiringComesFromTheSettings()
{
    QTemporaryDir root;
    const board::BoardFiles files(root.path());
    QCOMPARE(files.wiring(), 0);
    QVERIFY(QDir(root.path()).mkpath("mnt/userfs/sys"));
    const auto settings = [&root](const QByteArray &text) {
        QFile file(root.filePath("mnt/userfs/sys/setting.conf"));
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    };
    QVERIFY(settings("\nNOM_FREQ=1\nJOINMODE=5\nCLAMP_TYPE=1\n"));
    QCOMPARE(files.wiring(), 5);
    QVERIFY(settings("JOINMODE=5\nJOINMODE=10"));
    QCOMPARE(files.wiring(), 10);
    for (const char *text : { "JOINMODE=11\n", "JOINMODE=\n", "JOINMODE=-3\n", "NOM_FREQ=1\n", "" }) {
        QVERIFY(settings(text));
        QCOMPARE(files.wiring(), 0);
    }
}

void TstProcessorSupply::signalFollowsWiringAndFrequency()
{
    QString error;
    const auto scenario = parse(R"({"followSetup": true, "signal": {"u": 100, "f": 50.5, "i": 1}})", &error);
    QVERIFY2(scenario, qPrintable(error));
    Stream stream;
    stream.link.setSetup(scenario->setup);
    Simulator simulator(*scenario, 1, &stream.link);
    QCOMPARE(simulator.signal().inputs[processor::U2].phaseDeg, -120.0);
    simulator.setWiring(5);
    QCOMPARE(simulator.signal().inputs[processor::U2].phaseDeg, 180.0);
    QCOMPARE(simulator.signal().frequencyHz, 50.5);
    // Half a hertz above what the instrument is set to, whatever that is.
    setNominal(&stream.link, 60);
    simulator.setWiring(7);
    QCOMPARE(simulator.signal().frequencyHz, 60.5);
    QCOMPARE(simulator.signal().inputs[processor::U2].phaseDeg, 90.0);
    // And back: nothing of the high leg stays.
    setNominal(&stream.link, 50);
    simulator.setWiring(1);
    QCOMPARE(simulator.signal().inputs[processor::U2].rms, 100.0);
    QCOMPARE(simulator.signal().frequencyHz, 50.5);
}

void TstProcessorSupply::signalThatIsSetStays()
{
    QString error;
    const auto scenario = parse(R"({"followSetup": true, "signal": {"u": 100}})", &error);
    QVERIFY2(scenario, qPrintable(error));
    Stream stream;
    Simulator simulator(*scenario, 1, &stream.link);
    simulator.setWiring(5);
    SignalSpec mine = simulator.signal();
    mine.inputs[processor::U2].rms = 77.0;
    simulator.setSignal(mine);
    simulator.setWiring(7);
    QCOMPARE(simulator.signal().inputs[processor::U2].rms, 77.0);
    QCOMPARE(simulator.signal().inputs[processor::U2].phaseDeg, 180.0);
}

void TstProcessorSupply::otherScenariosStayAsTheyAre()
{
    QString error;
    const auto scenario = parse(R"({"signal": {"u": 100}})", &error);
    QVERIFY2(scenario, qPrintable(error));
    Stream stream;
    Simulator simulator(*scenario, 1, &stream.link);
    simulator.setWiring(5);
    setNominal(&stream.link, 60);
    simulator.step(nullptr);
    QCOMPARE(simulator.signal().inputs[processor::U2].phaseDeg, -120.0);
    QCOMPARE(simulator.signal().frequencyHz, 50.0);
}

void TstProcessorSupply::suppliesSuitTheFactorySettings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("seconds"); // so long that everything but the transient has happened
    QTest::newRow("living") << QStringLiteral("living") << 140.0;
    QTest::newRow("nominal") << QStringLiteral("nominal") << 2.0;
    QTest::newRow("inrush") << QStringLiteral("inrush") << 6.0;
}

// An instrument with factory settings measures 230 V with a clamp of 5 A; from 2.5 A on a current is an inrush, and
// above 253 V and below 207 V a voltage is a swell or a dip.
void TstProcessorSupply::suppliesSuitTheFactorySettings()
{
    QFETCH(QString, name);
    QFETCH(double, seconds);
    QString error;
    const auto scenario = ScenarioFile::load(name, &error);
    QVERIFY2(scenario, qPrintable(error));
    for (int line = 0; line < 3; ++line) {
        const auto &voltage = scenario->signal.inputs[std::size_t(processor::U1 + line)];
        const auto &current = scenario->signal.inputs[std::size_t(processor::I1 + line)];
        QVERIFY(voltage.rms > 220.0 && voltage.rms < 240.0);
        QVERIFY(current.rms > 0.1 && current.rms < 2.0);
    }
    Stream stream;
    stream.link.setSetup(scenario->setup);
    stream.link.setStreaming(true);
    Simulator simulator(*scenario, 1, &stream.link);
    simulator.setRanges({ 1, 1, 3, 3 }); // the instrument's own choice for these
    while (simulator.seconds() < seconds) {
        simulator.step(nullptr);
        QVERIFY(!simulator.clipped());
    }
}

QTEST_GUILESS_MAIN(TstProcessorSupply)

#include "tst_processor_supply.moc"
