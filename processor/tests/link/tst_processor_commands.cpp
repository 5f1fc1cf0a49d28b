#include "scenario/commands.h"
#include "scenario/eventforms.h"
#include "scenario/setcommand.h"

#include <QTemporaryDir>
#include <QTest>

using namespace scenario;

/// The text commands: what they change, and what they say when they cannot.
class TstProcessorCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void setChangesTheSignal();
    void setKeepsThePhaseOfTheLoad();
    void setComponentsReplaceAndEnd();
    void setSpeaksToTheInputStage();
    void eventsBegin_data();
    void eventsBegin();
    void eventsThatStayAreRefusedWhenTooManyRun();
    void wrongCommandsSayWhatWasExpected_data();
    void wrongCommandsSayWhatWasExpected();
    void wrongSetChangesNothing();
    void faultsReachTheLink();
    void updateAnswersAreChosen();
    void anotherScenarioIsPlayedFromNowOn();
    void scenarioThatIsNoneChangesNothing();
    void clockMovesAndIsSet();
    void boardCommandsReachTheFiles();
    void usbDisksComeAndGo();
    void statusSpeedAndQuitReachTheProgram();
    void helpTellsEveryCommandAndForm();
    void recordedStreamHasNoSignalToChange();

private:
    QString tell(const QString &line) { return m_commands->obey(line); }

    QScopedPointer<QTemporaryDir> m_root;
    QScopedPointer<board::BoardFiles> m_files;
    QScopedPointer<board::UsbDisks> m_disks;
    QScopedPointer<wire::ProcessorLink> m_link;
    QScopedPointer<Simulator> m_simulator;
    QScopedPointer<Commands> m_commands;
    CommandTargets m_targets;
    std::vector<QByteArray> m_messages;
    double m_speed = 1.0;
    bool m_quit = false;
};

void TstProcessorCommands::init()
{
    m_messages.clear();
    m_root.reset(new QTemporaryDir);
    m_files.reset(new board::BoardFiles(m_root->path()));
    QString error;
    QVERIFY(m_files->prepare(&error));
    m_disks.reset(new board::UsbDisks(m_root->path()));
    m_link.reset(new wire::ProcessorLink(
        [this](const std::vector<QByteArray> &out) { m_messages.insert(m_messages.end(), out.begin(), out.end()); }));
    m_simulator.reset(new Simulator(Scenario(), 1, m_link.data()));
    m_targets.simulator = m_simulator.data();
    m_targets.link = m_link.data();
    m_targets.files = m_files.data();
    m_targets.disks = m_disks.data();
    m_targets.status = [] { return QString("a=1 b=2"); };
    m_targets.setSpeed = [this](double speed) { m_speed = speed; };
    m_targets.quit = [this] { m_quit = true; };
    m_commands.reset(new Commands(m_targets));
}

void TstProcessorCommands::setChangesTheSignal()
{
    for (const char *line : { "set u1 110", "set u2 0.12kV", "set un 5V", "set i 10A", "set in 200mA", "set f 50.1",
                              "set drift 0.01", "set phase u3 100", "set noise u1+i1 0.2", "set dc i2 -1" })
        QCOMPARE(tell(line), QString("ok"));
    const processor::SignalSpec &signal = m_simulator->signal();
    QCOMPARE(signal.inputs[processor::U1].rms, 110.0);
    QCOMPARE(signal.inputs[processor::U2].rms, 120.0);
    QCOMPARE(signal.inputs[processor::U3].rms, 230.0);
    QCOMPARE(signal.inputs[processor::UN].rms, 5.0);
    QCOMPARE(signal.inputs[processor::I3].rms, 10.0);
    QCOMPARE(signal.inputs[processor::IN].rms, 0.2);
    QCOMPARE(signal.frequencyHz, 50.1);
    QCOMPARE(signal.driftHzPerSecond, 0.01);
    QCOMPARE(signal.inputs[processor::U3].phaseDeg, 100.0);
    QCOMPARE(signal.inputs[processor::I1].noiseRms, 0.2);
    QCOMPARE(signal.inputs[processor::I2].dc, -1.0);
}

void TstProcessorCommands::setKeepsThePhaseOfTheLoad()
{
    // acos(0.5) = 60 degrees behind the voltage of the same line.
    QCOMPARE(tell("set i1 10"), QString("ok"));
    QCOMPARE(tell("set pf1 0.5"), QString("ok"));
    const auto angle = [this] {
        const auto &inputs = m_simulator->signal().inputs;
        double lag = inputs[processor::U1].phaseDeg - inputs[processor::I1].phaseDeg;
        return lag < 0.0 ? lag + 360.0 : lag;
    };
    QVERIFY(qAbs(angle() - 60.0) < 1e-9);
    QCOMPARE(tell("set i1 20"), QString("ok"));
    QCOMPARE(m_simulator->signal().inputs[processor::I1].rms, 20.0);
    QVERIFY(qAbs(angle() - 60.0) < 1e-9);
    QCOMPARE(tell("set pf1 0.5 cap"), QString("ok"));
    QVERIFY(qAbs(angle() - 300.0) < 1e-9);
}

void TstProcessorCommands::setComponentsReplaceAndEnd()
{
    const auto &input = m_simulator->signal().inputs[processor::U1];
    QCOMPARE(tell("set harmonic u 5 6% 180"), QString("ok"));
    QCOMPARE(tell("set harmonic u 5 4%"), QString("ok"));
    QCOMPARE(input.harmonics.size(), std::size_t(1));
    QCOMPARE(input.harmonics[0].percent, 4.0);
    QCOMPARE(tell("set harmonic u 5 0%"), QString("ok"));
    QVERIFY(input.harmonics.empty());
    QCOMPARE(tell("set interharmonic u1 175Hz 2%"), QString("ok"));
    QCOMPARE(input.interharmonics.at(0).frequencyHz, 175.0);
    QCOMPARE(tell("set flicker u1 39 0.9% sinusoidal"), QString("ok"));
    QCOMPARE(input.modulation.rateHz, 0.325);
    QCOMPARE(int(input.modulation.shape), int(processor::ModulationSpec::Shape::Sinusoidal));
    QCOMPARE(tell("set flicker off"), QString("ok"));
    QCOMPARE(int(input.modulation.shape), int(processor::ModulationSpec::Shape::None));
    QCOMPARE(tell("set signalling 1375 2%"), QString("ok"));
    QCOMPARE(m_simulator->signal().signalling.size(), std::size_t(1));
    QCOMPARE(tell("set signalling 1375 2% 285Hz 1.5"), QString("ok"));
    QCOMPARE(m_simulator->signal().signalling.size(), std::size_t(2));
    QCOMPARE(m_simulator->signal().signalling[1].frequencyHz, 285.0);
    QCOMPARE(tell("set signalling 1375 2 285"), QString("error: expected HERTZ PERCENT [HERTZ PERCENT], or off"));
    QCOMPARE(m_simulator->signal().signalling.size(), std::size_t(2));
    QCOMPARE(tell("set frequency i3 47Hz 0.5"), QString("ok"));
    QCOMPARE(m_simulator->signal().inputs[processor::I3].frequencyHz, 47.0);
    QCOMPARE(m_simulator->signal().inputs[processor::I3].driftHzPerSecond, 0.5);
    QCOMPARE(tell("set frequency i3 off"), QString("ok"));
    QCOMPARE(m_simulator->signal().inputs[processor::I3].frequencyHz, 0.0);
    QCOMPARE(tell("set signalling off"), QString("ok"));
    QVERIFY(m_simulator->signal().signalling.empty());
}

void TstProcessorCommands::setSpeaksToTheInputStage()
{
    QCOMPARE(tell("set clamp 10000"), QString("ok"));
    QCOMPARE(tell("set neutralclamp 500"), QString("ok"));
    QCOMPARE(m_simulator->frontEnd().phaseClampRatio(), 10000.0);
    QCOMPARE(m_simulator->frontEnd().neutralClampRatio(), 500.0);
}

void TstProcessorCommands::eventsBegin_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line :
         { "event dip l1 40% 200ms", "event dip all 40% 0.2 phase=90", "event swell l1+l2 120% 1s in=500ms",
           "event interruption all 80ms", "event interruption l1 80ms level=5%", "event rvc all -4% 3s ramp=20ms",
           "event phasejump all 30deg 1s", "event transient l1 500V decay=1ms rise=50us phase=90",
           "event ring l1 400 1kHz decay=2ms", "event inrush all 600% 500ms", "event loadstep l2 200% 2s angle=-20",
           "event loadstep all 150% 2s pf=0.6", "event clear" })
        QTest::newRow(line) << line;
}

void TstProcessorCommands::eventsBegin()
{
    QFETCH(QString, line);
    QCOMPARE(tell(line), QString("ok"));
    m_simulator->step(nullptr);
}

void TstProcessorCommands::eventsThatStayAreRefusedWhenTooManyRun()
{
    for (std::size_t i = 0; i < Simulator::kMostRunning; ++i)
        QCOMPARE(tell("event dip l1 99% 0"), QString("ok"));
    QCOMPARE(tell("event dip l1 99% 0"), QString("error: 256 events are not over, event clear ends them"));
    QCOMPARE(tell("event clear"), QString("ok"));
    // Events that end make room by themselves.
    for (std::size_t i = 0; i < Simulator::kMostRunning; ++i)
        QCOMPARE(tell("event dip l1 99% 20ms"), QString("ok"));
    QVERIFY(tell("event dip l1 99% 20ms").startsWith("error: "));
    while (m_simulator->seconds() < 1.5)
        m_simulator->step(nullptr);
    QCOMPARE(tell("event dip l1 99% 20ms"), QString("ok"));
}

void TstProcessorCommands::wrongCommandsSayWhatWasExpected_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("answer");
    QTest::newRow("nothing")
        << ""
        << "error: unknown command , expected one of set, event, fault, scenario, clock, bds, battery, "
           "charger, mains, usb, net, speed, status, help, quit";
    QTest::newRow("value") << "set u1 abc"
                           << "error: expected a voltage as 230 or 230V, 0 to 10000";
    QTest::newRow("too much") << "set u1 99999"
                              << "error: expected a voltage as 230 or 230V, 0 to 10000";
    QTest::newRow("unit") << "set f 50V"
                          << "error: expected a frequency as 50.1 or 50.1Hz, 10 to 1000";
    QTest::newRow("inputs") << "set noise x 1"
                            << "error: expected inputs as u1, i, l1+l2";
    QTest::newRow("harmonic, form") << "set harmonic u 5"
                                    << "error: expected INPUTS ORDER PERCENT [DEGREES]";
    QTest::newRow("harmonic, order") << "set harmonic u 5.5 1%"
                                     << "error: expected a whole order";
    QTest::newRow("event, kind") << "event sag l1 40% 200ms"
                                 << "error: expected one of dip, swell, interruption, rvc, phasejump, transient, ring, "
                                    "inrush, loadstep";
    QTest::newRow("event, inputs") << "event dip l9 40% 200ms"
                                   << "error: expected inputs as l1, all or l1+l2 behind dip";
    QTest::newRow("event, level") << "event dip l1 140% 200ms"
                                  << "error: level: expected a percentage as 40%, 0 to 100";
    QTest::newRow("event, length missing") << "event dip l1 40%"
                                           << "error: length: expected a time as 200ms or 0.2s, 0 to 86400";
    QTest::newRow("event, one word too many") << "event dip l1 40% 200ms 3"
                                              << "error: 3: expected event dip INPUTS LEVEL LENGTH [phase=]";
    QTest::newRow("event, unknown key") << "event dip l1 40% 200ms colour=3"
                                        << "error: colour=3: expected event dip INPUTS LEVEL LENGTH [phase=]";
    QTest::newRow("event, in") << "event dip l1 40% 200ms in=soon"
                               << "error: in: expected a time as 200ms or 0.2s";
    QTest::newRow("late") << "fault late x"
                          << "error: expected a time as 200ms or 0.2s, up to an hour";
    QTest::newRow("rate") << "fault rate drop 2"
                          << "error: expected fault rate drop|repeat|torn|reorder|garbage 0..1";
    QTest::newRow("update") << "fault update erase silent"
                            << "error: expected fault update announce|data|flash "
                               "result N|code N|silent|late TIME|repeat COUNT, or off";
    QTest::newRow("clock") << "clock tomorrow"
                           << "error: expected clock +TIME|-TIME|YYYY-MM-DDThh:mm:ss|host|unset";
    QTest::newRow("bds") << "bds maybe"
                         << "error: expected bds on|off";
    QTest::newRow("battery") << "battery 99"
                             << "error: expected a voltage as 230 or 230V, 0 to 13";
    QTest::newRow("charger") << "charger half"
                             << "error: expected charger on|full|off";
    QTest::newRow("usb size") << "usb insert A 5x"
                              << "error: expected a size as 64k, 16M or 2G";
    QTest::newRow("usb name") << "usb insert ../x"
                              << "error: a disk name is letters, digits, '_', '-' and '.'";
    QTest::newRow("net") << "net sideways"
                         << "error: expected net up|down";
    QTest::newRow("speed") << "speed 0"
                           << "error: expected a factor from 0.01 to 10000";
}

void TstProcessorCommands::wrongCommandsSayWhatWasExpected()
{
    QFETCH(QString, line);
    QFETCH(QString, answer);
    QCOMPARE(tell(line), answer);
}

void TstProcessorCommands::wrongSetChangesNothing()
{
    QVERIFY(tell("set u1 -1").startsWith("error: "));
    QVERIFY(tell("set colour 1").startsWith("error: expected what to set: u|u1"));
    QVERIFY(tell("set").startsWith("error: "));
    QCOMPARE(m_simulator->signal().inputs[processor::U1].rms, 230.0);
}

void TstProcessorCommands::faultsReachTheLink()
{
    const wire::Datagram datagram = wire::Packager().pack(wire::Kind::Wave, 0, 0, {});
    QCOMPARE(tell("fault drop 3"), QString("ok"));
    QCOMPARE(m_link->faults().apply(datagram).size(), std::size_t(6));
    QCOMPARE(tell("fault repeat 2"), QString("ok"));
    QCOMPARE(m_link->faults().apply(datagram).size(), std::size_t(11));
    QCOMPARE(tell("fault garbage 1"), QString("ok"));
    QCOMPARE(m_link->faults().apply(datagram).size(), std::size_t(10));
    QCOMPARE(tell("fault torn 1"), QString("ok"));
    QVERIFY(m_link->faults().apply(datagram).at(0).size() < 8192);
    QCOMPARE(tell("fault reorder 1"), QString("ok"));
    QCOMPARE(int(quint8(m_link->faults().apply(datagram).at(0)[0])), 1);
    QCOMPARE(tell("fault rate drop 1"), QString("ok"));
    QCOMPARE(m_link->faults().apply(datagram).size(), std::size_t(0));
    QCOMPARE(tell("fault off"), QString("ok"));
    QCOMPARE(m_link->faults().apply(datagram).size(), std::size_t(9));
    QVERIFY(tell("fault drop").startsWith("error: expected fault "));
    QVERIFY(tell("fault drop -1").startsWith("error: expected fault "));
}

void TstProcessorCommands::updateAnswersAreChosen()
{
    QCOMPARE(tell("fault update announce result 0x12"), QString("ok"));
    QCOMPARE(m_link->firmware().announce(8)[0].result, 0x12u);
    QCOMPARE(tell("fault update off"), QString("ok"));
    QCOMPARE(tell("fault update announce code 0xC409"), QString("ok"));
    QCOMPARE(m_link->firmware().announce(8)[0].code, 0xC409u);
    QCOMPARE(tell("fault update announce silent"), QString("ok"));
    QVERIFY(m_link->firmware().announce(8).empty());
    QCOMPARE(tell("fault update off"), QString("ok"));
    QCOMPARE(tell("fault update announce late 5s"), QString("ok"));
    QCOMPARE(tell("fault update announce repeat 2"), QString("ok"));
    QCOMPARE(m_link->firmware().announce(8).size(), std::size_t(3));
    QCOMPARE(m_link->firmware().announce(8)[2].delayMs, 5000);
    for (const char *wrong : { "late soon", "late -1s", "late 2h", "late", "repeat 101", "repeat -1", "silent 1" })
        QVERIFY2(tell(QStringLiteral("fault update data ") + wrong).startsWith("error: expected fault update"), wrong);
}

void TstProcessorCommands::anotherScenarioIsPlayedFromNowOn()
{
    QVERIFY(tell("scenario list").startsWith("ok bad-day "));
    QVERIFY(tell("scenario list").split(' ').contains("dip"));
    QTemporaryDir folder;
    QFile file(folder.filePath("later.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"signal\": {\"u\": 120, \"f\": 60},"
               " \"steps\": [{\"at\": 1, \"tell\": \"battery 6\"}]}");
    file.close();
    QStringList commands;
    for (int i = 0; i < 60; ++i) // 3 s
        m_simulator->step(&commands);
    QCOMPARE(tell("set u1 110"), QString("ok"));
    QCOMPARE(tell("scenario " + file.fileName()), QString("ok"));
    QCOMPARE(m_simulator->signal().inputs[processor::U1].rms, 120.0);
    QCOMPARE(m_simulator->signal().frequencyHz, 60.0);
    QCOMPARE(m_simulator->seconds(), 3.0); // time goes on
    for (int i = 0; i < 18; ++i)
        m_simulator->step(&commands);
    QCOMPARE(commands, QStringList()); // the step's second counts from the change
    for (int i = 0; i < 4; ++i)
        m_simulator->step(&commands);
    QCOMPARE(commands, QStringList { "battery 6" });
}

void TstProcessorCommands::scenarioThatIsNoneChangesNothing()
{
    QCOMPARE(tell("set u1 110"), QString("ok"));
    for (const char *line : { "scenario", "scenario no-such-one", "scenario dip swell", "scenario /dev/null" })
        QVERIFY2(tell(line).startsWith("error: "), line);
    QCOMPARE(m_simulator->signal().inputs[processor::U1].rms, 110.0);
}

void TstProcessorCommands::clockMovesAndIsSet()
{
    QCOMPARE(tell("clock 2024-01-18T12:00:00"), QString("ok 2024-01-18T12:00:00.000"));
    QCOMPARE(tell("clock +5s"), QString("ok 2024-01-18T12:00:05.000"));
    QCOMPARE(tell("clock -1h"), QString("ok 2024-01-18T11:00:05.000"));
    QCOMPARE(tell("clock unset"), QString("ok 1970-01-01T00:00:00.000"));
    const unsigned before = m_link->clockCount();
    QVERIFY(tell("clock host").startsWith("ok 20"));
    QCOMPARE(m_link->clockCount(), before + 1);
    QCOMPARE(tell("bds on"), QString("ok"));
    QVERIFY(m_link->bds());
}

void TstProcessorCommands::boardCommandsReachTheFiles()
{
    const auto read = [this](const char *path) {
        QFile file(m_root->filePath(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QCOMPARE(tell("battery 7.4"), QString("ok"));
    QCOMPARE(read("sys/bus/iio/devices/iio:device0/in_voltage0_raw"), QByteArray("2196\n"));
    QCOMPARE(tell("charger full"), QString("ok"));
    QCOMPARE(read("sys/class/gpio/gpio117/value"), QByteArray("1\n"));
    QCOMPARE(tell("mains on"), QString("ok"));
    QCOMPARE(read("sys/class/gpio/gpio105/value") + read("sys/class/gpio/gpio117/value"), QByteArray("1\n0\n"));
    QCOMPARE(tell("mains off"), QString("ok"));
    QCOMPARE(read("sys/class/gpio/gpio105/value"), QByteArray("0\n"));
    QCOMPARE(tell("net down"), QString("ok"));
    QCOMPARE(read("sys/class/net/eth0/carrier"), QByteArray("0\n"));
}

void TstProcessorCommands::usbDisksComeAndGo()
{
    QCOMPARE(tell("usb insert STICK 16M"), QString("ok"));
    QCOMPARE(tell("usb list"), QString("ok STICK"));
    QCOMPARE(tell("usb pull STICK"), QString("ok"));
    QCOMPARE(tell("usb list"), QString("ok"));
    QCOMPARE(tell("usb pull STICK"), QString("error: STICK is not in"));
}

void TstProcessorCommands::statusSpeedAndQuitReachTheProgram()
{
    QCOMPARE(tell("status"), QString("ok a=1 b=2"));
    QCOMPARE(tell("  speed   20 "), QString("ok"));
    QCOMPARE(m_speed, 20.0);
    QCOMPARE(tell("quit"), QString("ok"));
    QVERIFY(m_quit);
}

void TstProcessorCommands::helpTellsEveryCommandAndForm()
{
    const QString help = tell("help");
    for (const QString &name : Commands::names().split(", "))
        QVERIFY2(help.contains("  " + name + ' '), qPrintable(name));
    QVERIFY(help.endsWith("\nok"));
    for (const EventForm &form : eventForms())
        QVERIFY(tell("help event").contains("  event " + form.usage()));
    for (const QString &usage : setUsage())
        QVERIFY(tell("help set").contains("  set " + usage));
}

void TstProcessorCommands::recordedStreamHasNoSignalToChange()
{
    m_targets.simulator = nullptr;
    Commands commands(m_targets);
    QVERIFY(commands.obey("set u1 230").startsWith("error: a recorded stream is played"));
    QVERIFY(commands.obey("event clear").startsWith("error: a recorded stream is played"));
    QCOMPARE(commands.obey("bds on"), QString("ok"));
}

QTEST_GUILESS_MAIN(TstProcessorCommands)
#include "tst_processor_commands.moc"
