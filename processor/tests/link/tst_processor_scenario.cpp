#include "playedscenario.h"

#include "scenario/commands.h"
#include "scenario/quantities.h"

#include <QTemporaryDir>

#include <cmath>

/// Scenario files: what they may say, what is wrong with them, and that what they say is played.
class TstProcessorScenario : public QObject
{
    Q_OBJECT

private slots:
    void keysOfTheScenarioArriveWhereTheyBelong();
    void keysOfTheSignalArriveWhereTheyBelong();
    void setupWithoutKeysIsAStarAt50HzWithThe230VoltLamp();
    void anglesOfTheCurrentsFollowTheLoadUnlessTheyAreGiven();
    void emptyObjectIsAQuietSupply();
    void wrongFilesAreNamedWithKeyAndExpectation_data();
    void wrongFilesAreNamedWithKeyAndExpectation();
    void missingFileNamesTheOnesThereAre();
    void calibrationFileIsFoundBesideTheScenario();
    void hardwareErrorsAreOnTopOfTheGains();
    void sameSeedGivesTheSameStream();
    void dipHasItsDepthAndLength();
    void recurringEventComesAgain();
    void stepReplacesTheSignal();
    void changedSignalKeepsRunningEvents();
    void clockOfTheScenarioIsRead();
    void quantitiesCarryUnits_data();
    void quantitiesCarryUnits();
    void inputsHaveNames_data();
    void inputsHaveNames();
};

namespace {

/// A scenario that has every key.
const char kEveryKey[] = R"({
        "name": "all", "description": "d", "seed": 9, "followSetup": true,
        "setup": { "nominal": 60, "lamp": 120, "wiring": 1 },
        "frontEnd": { "noise": 0.0, "clamp": 10000, "neutralClamp": 500, "rogowski": true, "gainDrift": 0.5,
                      "offsetDrift": -0.25, "errors": [ { "inputs": "u1+i2", "row": 2, "gain": -3, "offset": 0.5 }, {} ] },
        "clock": { "start": "2024-01-18T12:00:00", "bds": true },
        "signal": {
            "u": [120, 121, 122, 3], "angles": [1, 2, 3, 4], "f": 60.5, "drift": 0.1, "driftLimit": 2,
            "i": [5, 6, 7, 1], "pf": [1, 1, 1], "neutralSum": false,
            "harmonics": [ { "inputs": "u1+i2", "order": 5, "percent": 6, "phase": 30 } ],
            "interharmonics": [ { "inputs": "u3", "f": 175, "percent": 2 } ],
            "flicker": [ { "inputs": "u2", "changesPerMinute": 39, "percent": 0.9 } ],
            "noise": [ { "inputs": "un", "rms": 0.1 } ],
            "dc": [ { "inputs": "i1", "level": -0.5 } ],
            "frequencies": [ { "inputs": "i3", "f": 47, "drift": 0.5 } ],
            "signalling": [ { "inputs": "u", "f": 1375, "percent": 2, "start": 1, "on": 3, "period": 9 } ]
        },
        "events": [ { "at": 2, "every": 5, "type": "dip", "inputs": "l1+l3", "level": 40, "length": 0.2, "phase": 90 } ],
        "steps": [ { "at": 3, "tell": "bds off" } ],
        "link": { "drop": 0.25, "at": [ { "atDatagram": 12, "tear": 1, "bytes": 20 } ] }
    })";

} // namespace

void TstProcessorScenario::keysOfTheScenarioArriveWhereTheyBelong()
{
    QString error;
    const auto scenario = parse(kEveryKey, &error);
    QVERIFY2(scenario, qPrintable(error));
    QCOMPARE(*scenario->seed, quint64(9));
    QCOMPARE(scenario->setup.nominalFrequency, 60);
    QCOMPARE(scenario->setup.flickerCurve, 120);
    QCOMPARE(int(scenario->setup.wiring), 1);
    QCOMPARE(*scenario->frontEnd.clamp, 10000.0);
    QCOMPARE(*scenario->frontEnd.neutralClamp, 500.0);
    QCOMPARE(*scenario->frontEnd.noise, 0.0);
    QVERIFY(*scenario->frontEnd.rogowski);
    QCOMPARE(scenario->frontEnd.gainDrift, 0.5);
    QCOMPARE(scenario->frontEnd.offsetDrift, -0.25);
    QCOMPARE(scenario->frontEnd.errors.at(0).inputs,
             processor::maskOf(processor::U1) | processor::maskOf(processor::I2));
    QCOMPARE(*scenario->frontEnd.errors.at(0).row, 2);
    QCOMPARE(scenario->frontEnd.errors.at(0).gain, -3.0);
    QCOMPARE(scenario->frontEnd.errors.at(0).offset, 0.5);
    QCOMPARE(scenario->frontEnd.errors.at(1).inputs, processor::InputMask(0xFF)); // all, in all rows
    QVERIFY(!scenario->frontEnd.errors.at(1).row);
    QCOMPARE(scenario->clockStart, qint64(1705579200000));
    QVERIFY(scenario->bds);
    QVERIFY(scenario->followsSetup);
    QCOMPARE(scenario->events.at(0).every, 5.0);
    QCOMPARE(scenario->events.at(0).event.percent, 60.0); // 40 percent are left
    QCOMPARE(scenario->events.at(0).event.startPhaseDeg, 90.0);
    QCOMPARE(scenario->events.at(0).event.inputs, processor::maskOf(processor::U1) | processor::maskOf(processor::U3));
    QCOMPARE(scenario->steps.at(0).tell, QString("bds off"));
    QCOMPARE(scenario->faultRates[0], 0.25);
    QCOMPARE(int(scenario->faults.at(0).fault), int(wire::Fault::Tear));
    QCOMPARE(scenario->faults.at(0).package, 1);
    QCOMPARE(scenario->faults.at(0).bytes, 20);
}

void TstProcessorScenario::setupWithoutKeysIsAStarAt50HzWithThe230VoltLamp()
{
    QString error;
    const auto scenario = parse(R"({ "setup": {} })", &error);
    QVERIFY2(scenario, qPrintable(error));
    QCOMPARE(scenario->setup.nominalFrequency, 50);
    QCOMPARE(scenario->setup.flickerCurve, 230);
    QCOMPARE(int(scenario->setup.wiring), 0);
}

void TstProcessorScenario::keysOfTheSignalArriveWhereTheyBelong()
{
    QString error;
    const auto scenario = parse(kEveryKey, &error);
    QVERIFY2(scenario, qPrintable(error));
    const processor::SignalSpec &signal = scenario->signal;
    QCOMPARE(signal.frequencyHz, 60.5);
    QCOMPARE(signal.driftLimitHz, 2.0);
    QVERIFY(!signal.neutralCarriesPhaseCurrents);
    QCOMPARE(signal.inputs[processor::UN].rms, 3.0);
    QCOMPARE(signal.inputs[processor::U3].phaseDeg, 3.0);
    QCOMPARE(signal.inputs[processor::I2].rms, 6.0);
    QCOMPARE(signal.inputs[processor::IN].rms, 1.0);
    QCOMPARE(signal.inputs[processor::U1].harmonics.at(0).order, 5);
    QCOMPARE(signal.inputs[processor::I2].harmonics.at(0).phaseDeg, 30.0);
    QVERIFY(signal.inputs[processor::U2].harmonics.empty());
    QCOMPARE(signal.inputs[processor::U3].interharmonics.at(0).frequencyHz, 175.0);
    QCOMPARE(signal.inputs[processor::U2].modulation.rateHz, 0.325); // 39 changes a minute: 19.5 periods
    QCOMPARE(signal.inputs[processor::UN].noiseRms, 0.1);
    QCOMPARE(signal.inputs[processor::I1].dc, -0.5);
    QCOMPARE(signal.inputs[processor::I3].frequencyHz, 47.0);
    QCOMPARE(signal.inputs[processor::I3].driftHzPerSecond, 0.5);
    QCOMPARE(signal.inputs[processor::I2].frequencyHz, 0.0); // that of all
    QCOMPARE(signal.signalling.at(0).periodSeconds, 9.0);
}

void TstProcessorScenario::anglesOfTheCurrentsFollowTheLoadUnlessTheyAreGiven()
{
    // A power factor of 0.5 is an angle of 60 degrees, behind the voltage or before it.
    QString error;
    const auto inductive = parse(R"({"signal": {"angles": [10, -110, 130], "i": 5, "pf": 0.5}})", &error);
    const auto capacitive
        = parse(R"({"signal": {"angles": [10, -110, 130], "i": 5, "pf": 0.5, "capacitive": true}})", &error);
    const auto given = parse(R"({"signal": {"i": 5, "pf": 0.5, "currentAngles": [11, 12, 13, 14]}})", &error);
    QVERIFY2(inductive && capacitive && given, qPrintable(error));
    QCOMPARE(inductive->signal.inputs[processor::I1].phaseDeg, -50.0);
    QCOMPARE(inductive->signal.inputs[processor::I3].phaseDeg, 70.0);
    QCOMPARE(capacitive->signal.inputs[processor::I1].phaseDeg, 70.0);
    for (int line = 0; line < 4; ++line)
        QCOMPARE(given->signal.inputs[std::size_t(processor::I1 + line)].phaseDeg, 11.0 + line);
}

void TstProcessorScenario::emptyObjectIsAQuietSupply()
{
    QString error;
    const auto scenario = parse("{}", &error);
    QVERIFY2(scenario, qPrintable(error));
    QCOMPARE(scenario->name, QString("s"));
    QCOMPARE(scenario->signal.inputs[processor::U1].rms, 230.0);
    QCOMPARE(scenario->signal.frequencyHz, 50.0);
}

namespace {

void rowsOfWrongFiles()
{
    QTest::newRow("no JSON") << QByteArray("{\n  \"seed\": x }") << "s.json: line 2, column 11: illegal number";
    QTest::newRow("empty") << QByteArray() << "s.json: line 1, column 1: illegal value";
    QTest::newRow("a list") << QByteArray("[]") << "s.json: expected an object, found a list";
    QTest::newRow("unknown key") << QByteArray(R"({"sinal": {}})")
                                 << "s.json: sinal: unknown key, expected one of clock, description, events, "
                                    "followSetup, frontEnd, link, name, seed, "
                                    "setup, signal, steps";
    QTest::newRow("text for a number") << QByteArray(R"({"signal": {"f": "50"}})")
                                       << "s.json: signal.f: expected a number from 10 to 1000, found \"50\"";
    QTest::newRow("number out of bounds")
        << QByteArray(R"({"signal": {"f": 5}})") << "s.json: signal.f: expected a number from 10 to 1000, found 5";
    QTest::newRow("angle of a current out of bounds")
        << QByteArray(R"({"signal": {"currentAngles": [0, 361, 0]}})")
        << "s.json: signal.currentAngles[1]: expected a number from -360 to 360";
    QTest::newRow("broken order")
        << QByteArray(R"({"signal": {"harmonics": [{"order": 2, "percent": 1}, {"order": 2.5, "percent": 1}]}})")
        << "s.json: signal.harmonics[1].order: expected a whole number from 2 to 100, found 2.5";
    QTest::newRow("order missing")
        << QByteArray(R"({"signal": {"harmonics": [{"percent": 1}]}})")
        << "s.json: signal.harmonics[0].order: expected an order from 2 to 100, found nothing";
    QTest::newRow("unknown inputs")
        << QByteArray(R"({"signal": {"dc": [{"inputs": "u4", "level": 1}]}})")
        << "s.json: signal.dc[0].inputs: expected inputs as \"u1\", \"i\" or \"u1+u2\", found \"u4\"";
    QTest::newRow("two voltages")
        << QByteArray(R"({"signal": {"u": [1, 2]}})")
        << "s.json: signal.u: expected a number from 0 to 10000, or a list of 3 or 4 of them, "
           "found a list";
    QTest::newRow("voltage in a list") << QByteArray(R"({"signal": {"u": [1, 2, "x"]}})")
                                       << "s.json: signal.u[2]: expected a number from 0 to 10000";
    QTest::newRow("flicker without a rate")
        << QByteArray(R"({"signal": {"flicker": [{"percent": 1}]}})")
        << "s.json: signal.flicker[0].rate: expected either \"rate\" in hertz or \"changesPerMinute\", found nothing";
    QTest::newRow("flicker of another shape")
        << QByteArray(R"({"signal": {"flicker": [{"shape": "saw", "rate": 1, "percent": 1}]}})")
        << "s.json: signal.flicker[0].shape: expected \"rectangular\" or \"sinusoidal\", found \"saw\"";
}

void rowsOfWrongEvents()
{
    QTest::newRow("event of no kind") << QByteArray(R"({"events": [{"at": 1, "type": "sag"}]})")
                                      << "s.json: events[0].type: expected one of dip, swell, interruption, rvc, "
                                         "phasejump, transient, ring, inrush, loadstep, found \"sag\"";
    QTest::newRow("event without its length")
        << QByteArray(R"({"events": [{"at": 1, "type": "dip", "level": 40}]})")
        << "s.json: events[0].length: expected a time as 200ms or 0.2s, 0 to 86400, found nothing";
    QTest::newRow("dip that is a swell") << QByteArray(
        R"({"events": [{"at": 1, "type": "dip", "level": 140, "length": 1}]})")
                                         << "s.json: events[0].level: expected a number from 0 to 100, found 140";
    QTest::newRow("event that comes again and never ends")
        << QByteArray(R"({"events": [{"at": 1, "every": 5, "type": "dip", "level": 40, "length": 0}]})")
        << "s.json: events[0].length: expected more than 0, since the event comes again, found 0";
    QTest::newRow("events that pile up")
        << QByteArray(R"({"events": [{"at": 1, "every": 0.5, "type": "dip", "level": 40, "length": 64}]})")
        << "s.json: events[0].every: expected 1 s or more, so that at most 64 of these run at once, found 0.5";
    QTest::newRow("event without a time") << QByteArray(R"({"events": [{"type": "dip", "level": 40, "length": 1}]})")
                                          << "s.json: events[0].at: expected a time in seconds, found nothing";
    QTest::newRow("event again too soon")
        << QByteArray(R"({"events": [{"at": 1, "every": 0.001, "type": "dip", "level": 40, "length": 1}]})")
        << "s.json: events[0].every: expected 0 for once, or a period of 0.02 s or more, found 0.001";
    QTest::newRow("key of another event")
        << QByteArray(R"({"events": [{"at": 1, "type": "dip", "level": 40, "length": 1, "decay": 1}]})")
        << "s.json: events[0].decay: unknown key, expected one of at, every, inputs, length, level, phase, type";
}

void rowsOfWrongStepsAndSetUp()
{
    QTest::newRow("step with nothing") << QByteArray(R"({"steps": [{"at": 1}]})")
                                       << "s.json: steps[0].tell: expected a command, or a \"signal\", found nothing";
    QTest::newRow("step with an unknown command")
        << QByteArray(R"({"steps": [{"at": 1, "tell": "dance"}]})")
        << "s.json: steps[0].tell: expected a command that begins with one of set, event, fault, scenario, clock, bds, "
           "battery, "
           "charger, mains, usb, net, speed, status, help, quit, found \"dance\"";
    QTest::newRow("signal of a step") << QByteArray(R"({"steps": [{"at": 1, "signal": {"f": 0}}]})")
                                      << "s.json: steps[0].signal.f: expected a number from 10 to 1000, found 0";
    QTest::newRow("row of the gains") << QByteArray(R"({"frontEnd": {"errors": [{"row": 4}]}})")
                                      << "s.json: frontEnd.errors[0].row: expected a whole number from 0 to 3, found 4";
    QTest::newRow("inputs of an error")
        << QByteArray(R"({"frontEnd": {"errors": [{"inputs": "u9"}]}})")
        << "s.json: frontEnd.errors[0].inputs: expected inputs as \"u1\", \"i\" or \"u1+u2\", found \"u9\"";
    QTest::newRow("fault of no kind")
        << QByteArray(R"({"link": {"at": [{"atDatagram": 1}]}})")
        << "s.json: link.at[0]: expected one of lose, repeat, tear, reorder, garbage with the number of a package";
    QTest::newRow("rate above one") << QByteArray(R"({"link": {"drop": 1.5}})")
                                    << "s.json: link.drop: expected a number from 0 to 1, found 1.5";
    QTest::newRow("clock of no time") << QByteArray(R"({"clock": {"start": "noon"}})")
                                      << "s.json: clock.start: expected a time as 2024-01-18T16:15:00, found \"noon\"";
    QTest::newRow("nominal frequency") << QByteArray(R"({"setup": {"nominal": 55}})")
                                       << "s.json: setup.nominal: expected 50, 60 or 400, found 55";
    QTest::newRow("flag that is none") << QByteArray(R"({"clock": {"bds": 1}})")
                                       << "s.json: clock.bds: expected true or false, found 1";
    QTest::newRow("events that are no list")
        << QByteArray(R"({"events": {}})") << "s.json: events: expected a list, found an object";
}

} // namespace

void TstProcessorScenario::wrongFilesAreNamedWithKeyAndExpectation_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    rowsOfWrongFiles();
    rowsOfWrongEvents();
    rowsOfWrongStepsAndSetUp();
}

void TstProcessorScenario::wrongFilesAreNamedWithKeyAndExpectation()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    QString reported;
    QVERIFY(!parse(json, &reported));
    QCOMPARE(reported, error);
}

void TstProcessorScenario::missingFileNamesTheOnesThereAre()
{
    QString error;
    QVERIFY(!ScenarioFile::load("nonesuch", &error));
    QVERIFY2(error.startsWith("no scenario nonesuch: neither a file nor one of bad-day, "), qPrintable(error));
    QVERIFY(!ScenarioFile::load("/none/such.json", &error));
    QVERIFY(!error.contains('\n'));
}

void TstProcessorScenario::calibrationFileIsFoundBesideTheScenario()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("own.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(R"({"frontEnd": {"calibration": "own.dat"}})");
    file.close();
    QString error;
    const auto scenario = ScenarioFile::load(folder.filePath("own.json"), &error);
    QVERIFY2(scenario, qPrintable(error));
    QCOMPARE(scenario->frontEnd.calibration, folder.filePath("own.dat"));
    Stream stream;
    Simulator simulator(*scenario, 1, &stream.link);
    QVERIFY(!simulator.prepare(&error)); // it is not there
    QVERIFY(error.contains("own.dat"));
}

void TstProcessorScenario::hardwareErrorsAreOnTopOfTheGains()
{
    QString error;
    const auto scenario = parse(R"({"frontEnd": {"errors": [ {"inputs": "u1+in", "row": 1, "gain": 2, "offset": 0.01},
                                                             {"inputs": "u1", "gain": -50, "offset": -0.03} ]}})",
                                &error);
    QVERIFY2(scenario, qPrintable(error));
    Stream stream;
    Simulator simulator(*scenario, 1, &stream.link);
    QVERIFY2(simulator.prepare(&error), qPrintable(error));
    const processor::CalibrationSet &set = simulator.frontEnd().calibration();
    QCOMPARE(set.volt[1][0], 79.25f * 1.02f * 0.5f);
    QCOMPARE(set.volt[0][0], 39.8f * 0.5f);
    QCOMPARE(set.zeroVolt[1][0], 0.01f - 0.03f);
    QCOMPARE(set.zeroVolt[3][0], -0.03f);
    QCOMPARE(set.current[1][3], 214.45f * 1.02f);
    QCOMPARE(set.zeroCurrent[1][3], 0.01f);
    QCOMPARE(set.current[2][3], 285.72f);
    QCOMPARE(set.volt[1][1], 79.25f);
    QCOMPARE(set.zeroVolt[1][1], 0.0f);
}

void TstProcessorScenario::sameSeedGivesTheSameStream()
{
    QString error;
    const auto scenario = ScenarioFile::load("bad-day", &error);
    QVERIFY2(scenario, qPrintable(error));
    Stream first;
    Stream second;
    Stream third;
    play(*scenario, 11, 6.0, &first);
    play(*scenario, 11, 6.0, &second);
    play(*scenario, 12, 6.0, &third);
    QVERIFY(first.messages == second.messages);
    QVERIFY(first.messages != third.messages);
}

void TstProcessorScenario::dipHasItsDepthAndLength()
{
    QString error;
    const auto scenario = parse(
        R"({"events": [{"at": 1, "type": "dip", "inputs": "l2", "level": 40, "length": 0.2, "phase": 0}]})", &error);
    QVERIFY2(scenario, qPrintable(error));
    Stream stream;
    play(*scenario, 1, 2.0, &stream);
    // 230 V on the lowest range are 230 / 39.8 = 5.779 units. Of 200 ms, or 20 half cycles, the one-cycle windows that
    // lie wholly inside are 19; one on each side reaches in by half.
    const float whole = 5.7789f;
    int low = 0;
    int between = 0;
    for (float value : stream.halfCycles(1)) {
        low += std::fabs(value - 0.4f * whole) < 0.01f;
        between += value > 0.41f * whole && value < 0.99f * whole;
    }
    QVERIFY2(low >= 18 && low <= 19, qPrintable(QString::number(low)));
    QVERIFY2(between >= 2 && between <= 4, qPrintable(QString::number(between)));
    for (float value : stream.halfCycles(0))
        QVERIFY(std::fabs(value - whole) < 0.01f);
}

void TstProcessorScenario::recurringEventComesAgain()
{
    QString error;
    const auto scenario = parse(
        R"({"events": [{"at": 0.5, "every": 1, "type": "interruption", "inputs": "all", "length": 0.1}]})", &error);
    QVERIFY2(scenario, qPrintable(error));
    Stream stream;
    play(*scenario, 1, 4.2, &stream);
    int falls = 0;
    float last = 5.0f;
    for (float value : stream.halfCycles(0)) {
        falls += last >= 0.5f && value < 0.5f;
        last = value;
    }
    QCOMPARE(falls, 4); // at 0.5, 1.5, 2.5 and 3.5 s
}

void TstProcessorScenario::stepReplacesTheSignal()
{
    QString error;
    const auto scenario = parse(R"({"signal": {"u": 100}, "steps": [{"at": 1, "signal": {"u": 200}}]})", &error);
    QVERIFY2(scenario, qPrintable(error));
    Stream stream;
    play(*scenario, 1, 2.0, &stream);
    const std::vector<float> values = stream.halfCycles(0);
    QVERIFY(std::fabs(values.at(20) - 100.0f / 39.8f) < 0.01f);
    QVERIFY(std::fabs(values.back() - 200.0f / 39.8f) < 0.01f);
}

void TstProcessorScenario::changedSignalKeepsRunningEvents()
{
    QString error;
    const auto scenario = parse(R"({"signal": {"u": 100},
        "events": [{"at": 0.5, "type": "dip", "inputs": "all", "level": 50, "length": 5}],
        "steps": [{"at": 1, "signal": {"u": 200}}]})",
                                &error);
    QVERIFY2(scenario, qPrintable(error));
    Stream stream;
    play(*scenario, 1, 2.0, &stream);
    QVERIFY(std::fabs(stream.halfCycles(0).back() - 100.0f / 39.8f) < 0.01f); // half of 200
}

void TstProcessorScenario::clockOfTheScenarioIsRead()
{
    QString error;
    const auto scenario = ScenarioFile::load("clocks", &error);
    QVERIFY2(scenario, qPrintable(error));
    QCOMPARE(scenario->clockStart, qint64(-1));
    QVERIFY(!scenario->bds);
}

void TstProcessorScenario::quantitiesCarryUnits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("value"); // not a number: refused
    const double none = std::nan("");
    QTest::newRow("percent") << "40%" << int(Unit::Percent) << 40.0;
    QTest::newRow("milliseconds") << "200ms" << int(Unit::Seconds) << 0.2;
    QTest::newRow("seconds") << "1.5s" << int(Unit::Seconds) << 1.5;
    QTest::newRow("bare seconds") << "3" << int(Unit::Seconds) << 3.0;
    QTest::newRow("minutes") << "2min" << int(Unit::Seconds) << 120.0;
    QTest::newRow("kilovolts") << "1.5kV" << int(Unit::Volts) << 1500.0;
    QTest::newRow("milliamperes") << "20mA" << int(Unit::Amperes) << 0.02;
    QTest::newRow("negative, exponent") << "-1e3" << int(Unit::None) << -1000.0;
    QTest::newRow("wrong unit") << "5V" << int(Unit::Seconds) << none;
    QTest::newRow("no number") << "abc" << int(Unit::None) << none;
    QTest::newRow("nothing") << "" << int(Unit::None) << none;
    QTest::newRow("infinite") << "1e999" << int(Unit::None) << none;
    QTest::newRow("nan") << "nan" << int(Unit::None) << none;
    QTest::newRow("comma") << "1,5" << int(Unit::None) << none;
}

void TstProcessorScenario::quantitiesCarryUnits()
{
    QFETCH(QString, text);
    QFETCH(int, unit);
    QFETCH(double, value);
    const auto got = quantity(text, Unit(unit));
    QCOMPARE(got.has_value(), !std::isnan(value));
    if (got)
        QVERIFY(std::fabs(*got - value) < 1e-12);
}

void TstProcessorScenario::inputsHaveNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("voltageMask");
    QTest::addColumn<int>("currentMask");
    QTest::newRow("l1") << "l1" << 0x01 << 0x10;
    QTest::newRow("L3, capital") << "L3" << 0x04 << 0x40;
    QTest::newRow("n") << "n" << 0x08 << 0x80;
    QTest::newRow("all") << "all" << 0x07 << 0x70;
    QTest::newRow("u2") << "u2" << 0x02 << 0x02;
    QTest::newRow("in") << "in" << 0x80 << 0x80;
    QTest::newRow("u+i") << "u+i" << 0x77 << 0x77;
    QTest::newRow("l1+l2") << "l1+l2" << 0x03 << 0x30;
    QTest::newRow("l4") << "l4" << 0 << 0;
    QTest::newRow("half known") << "l1+x" << 0 << 0;
    QTest::newRow("empty") << "" << 0 << 0;
}

void TstProcessorScenario::inputsHaveNames()
{
    QFETCH(QString, text);
    QFETCH(int, voltageMask);
    QFETCH(int, currentMask);
    QCOMPARE(int(inputs(text, Side::Voltage)), voltageMask);
    QCOMPARE(int(inputs(text, Side::Current)), currentMask);
}

QTEST_GUILESS_MAIN(TstProcessorScenario)
#include "tst_processor_scenario.moc"
