#include "playedscenario.h"

#include "scenario/commands.h"

#include <cmath>

/// The scenarios that come with the program: that they play, and that the published tests are what they say.
class TstProcessorLibrary : public QObject
{
    Q_OBJECT

private slots:
    void everyScenarioLoadsAndPlays_data();
    void everyScenarioLoadsAndPlays();
    void everyPublishedSetIsThere_data();
    void everyPublishedSetIsThere();
    void severityScenariosPlayTheirPoint_data();
    void severityScenariosPlayTheirPoint();
    void sensationScenariosPlayTheirTable_data();
    void sensationScenariosPlayTheirTable();
    void testingStatesCountInPercentOfTheDeclaredVoltage_data();
    void testingStatesCountInPercentOfTheDeclaredVoltage();
};

void TstProcessorLibrary::everyScenarioLoadsAndPlays_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : ScenarioFile::names())
        QTest::newRow(qPrintable(name)) << name;
}

void TstProcessorLibrary::everyScenarioLoadsAndPlays()
{
    QFETCH(QString, name);
    QString error;
    const auto scenario = ScenarioFile::load(name, &error);
    QVERIFY2(scenario, qPrintable(error));
    QCOMPARE(scenario->name, name);
    QVERIFY(!scenario->description.isEmpty());
    Stream stream;
    play(*scenario, 1, 3.0, &stream);
    // 3 s less the 50 ms that results take: at least 13 waves of 200 ms, 11 flicker datagrams of 250 ms.
    QVERIFY(stream.link.counters().datagrams[0] >= 13);
    QVERIFY(stream.link.counters().datagrams[1] >= 13);
    QVERIFY(stream.link.counters().datagrams[3] >= 13);
    QVERIFY(stream.link.counters().datagrams[4] >= 10);
    // Its commands are understood.
    QTemporaryDir root;
    board::BoardFiles files(root.path());
    QVERIFY(files.prepare(&error));
    board::UsbDisks disks(root.path());
    Simulator simulator(*scenario, 1, &stream.link);
    CommandTargets targets;
    targets.simulator = &simulator;
    targets.link = &stream.link;
    targets.files = &files;
    targets.disks = &disks;
    for (const Step &step : scenario->steps) {
        if (!step.tell.isEmpty())
            QCOMPARE(Commands(targets).obey(step.tell).left(2), QString("ok"));
    }
}

void TstProcessorLibrary::everyPublishedSetIsThere_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("Pst table, 230 V lamp")
        << QStringList { "pst-230v-0001", "pst-230v-0002", "pst-230v-0007", "pst-230v-0039",
                         "pst-230v-0110", "pst-230v-1620", "pst-230v-4000" };
    QTest::newRow("Pst table, 120 V lamp")
        << QStringList { "pst-120v-0001", "pst-120v-0002", "pst-120v-0007", "pst-120v-0039",
                         "pst-120v-0110", "pst-120v-1620", "pst-120v-4800" };
    QTest::newRow("Pinst tables") << QStringList { "pinst-sinusoidal-230v", "pinst-rectangular-230v",
                                                   "pinst-sinusoidal-120v", "pinst-rectangular-120v" };
    QTest::newRow("testing states") << QStringList { "test-state-1", "test-state-2", "test-state-3" };
    QTest::newRow("every phase") << QStringList { "dips-every-phase", "swells-every-phase" };
    QTest::newRow("the others") << QStringList { "nominal",         "nominal-60",   "nominal-400", "dip",
                                                 "swell",           "interruption", "unbalance",   "harmonics",
                                                 "frequency-drift", "transients",   "inrush",      "mains-signalling",
                                                 "bad-day",         "link-faults",  "clocks" };
}

void TstProcessorLibrary::everyPublishedSetIsThere()
{
    QFETCH(QStringList, names);
    for (const QString &name : names)
        QVERIFY2(ScenarioFile::names().contains(name), qPrintable(name));
}

void TstProcessorLibrary::severityScenariosPlayTheirPoint_data()
{
    // IEC 61000-4-15, test of the classifier: changes a minute and dV / V of Pst 1.
    struct Point
    {
        int changes;
        double percent230; // at 50 Hz
        double percent120; // at 60 Hz
    };
    static constexpr Point kPoints[]
        = { { 1, 2.715, 3.181 },   { 2, 2.191, 2.564 },    { 7, 1.450, 1.694 },  { 39, 0.894, 1.040 },
            { 110, 0.722, 0.844 }, { 1620, 0.407, 0.548 }, { 4000, 2.343, 0.0 }, { 4800, 0.0, 4.837 } };
    QTest::addColumn<int>("lamp");
    QTest::addColumn<int>("changes");
    QTest::addColumn<double>("percent");
    for (const Point &point : kPoints) {
        if (point.percent230 > 0.0)
            QTest::addRow("pst-230v-%04d", point.changes) << 230 << point.changes << point.percent230;
        if (point.percent120 > 0.0)
            QTest::addRow("pst-120v-%04d", point.changes) << 120 << point.changes << point.percent120;
    }
}

void TstProcessorLibrary::severityScenariosPlayTheirPoint()
{
    QFETCH(int, lamp);
    QFETCH(int, changes);
    QFETCH(double, percent);
    QString error;
    const auto scenario = ScenarioFile::load(QTest::currentDataTag(), &error);
    QVERIFY2(scenario, qPrintable(error));
    QCOMPARE(scenario->setup.flickerCurve, lamp);
    QCOMPARE(scenario->setup.nominalFrequency, lamp == 230 ? 50 : 60);
    QCOMPARE(scenario->signal.frequencyHz, lamp == 230 ? 50.0 : 60.0);
    for (int line = 0; line < 3; ++line) {
        const processor::InputSpec &input = scenario->signal.inputs[std::size_t(line)];
        QCOMPARE(input.rms, double(lamp));
        QVERIFY(input.modulation.shape == processor::ModulationSpec::Shape::Rectangular);
        QCOMPARE(input.modulation.rateHz, changes / 120.0); // two changes make a period
        QCOMPARE(input.modulation.depthPercent, percent);
    }
}

void TstProcessorLibrary::sensationScenariosPlayTheirTable_data()
{
    // IEC 61000-4-15, normalised response: first, most sensitive and last point that is played.
    QTest::addColumn<int>("points");
    QTest::addColumn<double>("firstPercent"); // at 0.5 Hz
    QTest::addColumn<double>("leastPercent"); // at 8.8 Hz
    QTest::addColumn<double>("lastHertz");
    QTest::addColumn<double>("lastPercent");
    QTest::newRow("pinst-sinusoidal-230v") << 37 << 2.325 << 0.250 << 100.0 / 3.0 << 2.128;
    QTest::newRow("pinst-rectangular-230v") << 37 << 0.510 << 0.196 << 100.0 / 3.0 << 1.671;
    QTest::newRow("pinst-sinusoidal-120v") << 38 << 2.453 << 0.321 << 40.0 << 4.394;
    QTest::newRow("pinst-rectangular-120v") << 38 << 0.600 << 0.252 << 40.0 << 3.451;
}

void TstProcessorLibrary::sensationScenariosPlayTheirTable()
{
    QFETCH(int, points);
    QFETCH(double, firstPercent);
    QFETCH(double, leastPercent);
    QFETCH(double, lastHertz);
    QFETCH(double, lastPercent);
    QString error;
    const auto scenario = ScenarioFile::load(QTest::currentDataTag(), &error);
    QVERIFY2(scenario, qPrintable(error));
    std::vector<processor::ModulationSpec> played = { scenario->signal.inputs[0].modulation };
    for (const Step &step : scenario->steps) {
        QVERIFY(step.signal.has_value());
        QCOMPARE(step.at, 20.0 * double(played.size()));
        played.push_back(step.signal->inputs[0].modulation);
    }
    QCOMPARE(int(played.size()), points);
    QCOMPARE(played.front().rateHz, 0.5);
    QCOMPARE(played.front().depthPercent, firstPercent);
    QCOMPARE(played.back().rateHz, lastHertz);
    QCOMPARE(played.back().depthPercent, lastPercent);
    for (const processor::ModulationSpec &one : played)
        QVERIFY(one.depthPercent >= leastPercent && (one.rateHz == 8.8) == (one.depthPercent == leastPercent));
}

void TstProcessorLibrary::testingStatesCountInPercentOfTheDeclaredVoltage_data()
{
    // IEC 61000-4-30, testing states: percentages of 230 V on each phase, whatever its own fundamental is.
    QTest::addColumn<QVector<double>>("fundamentals"); // V
    QTest::addColumn<QVector<int>>("orders"); // of 10, 5 and 5 %
    QTest::addColumn<double>("hertz"); // of the interharmonic of 1 %
    QTest::newRow("test-state-2") << QVector<double> { 167.9, 184.0, 200.1 } << QVector<int> { 3, 5, 29 } << 375.0;
    QTest::newRow("test-state-3") << QVector<double> { 349.6, 322.0, 294.4 } << QVector<int> { 7, 13, 25 } << 175.0;
}

void TstProcessorLibrary::testingStatesCountInPercentOfTheDeclaredVoltage()
{
    QFETCH(QVector<double>, fundamentals);
    QFETCH(QVector<int>, orders);
    QFETCH(double, hertz);
    static constexpr double kHarmonicVolts[] = { 23.0, 11.5, 11.5 };
    QString error;
    const auto scenario = ScenarioFile::load(QTest::currentDataTag(), &error);
    QVERIFY2(scenario, qPrintable(error));
    for (int line = 0; line < 3; ++line) {
        const processor::InputSpec &input = scenario->signal.inputs[std::size_t(line)];
        QCOMPARE(input.rms, fundamentals[line]);
        QCOMPARE(int(input.harmonics.size()), 3);
        for (int i = 0; i < 3; ++i) {
            const processor::HarmonicSpec &harmonic = input.harmonics[std::size_t(i)];
            QCOMPARE(harmonic.order, orders[i]);
            QVERIFY(std::fabs(harmonic.percent / 100.0 * input.rms - kHarmonicVolts[i]) < 0.001);
            QCOMPARE(harmonic.phaseDeg, harmonic.order == 7 ? 180.0 : 0.0);
        }
        QCOMPARE(int(input.interharmonics.size()), 1);
        QCOMPARE(input.interharmonics[0].frequencyHz, hertz);
        QVERIFY(std::fabs(input.interharmonics[0].percent / 100.0 * input.rms - 2.3) < 0.001);
    }
}

QTEST_GUILESS_MAIN(TstProcessorLibrary)
#include "tst_processor_library.moc"
