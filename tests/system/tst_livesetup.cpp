// What is chosen on the set-up pages is what is measured from then on.
#include "livegraph.h"
#include "unit/widgets/dialogdriver.h"

#include "settings/config_data.h"

using namespace SystemTest;

namespace {

constexpr double kTolerance = 0.002; // of the value
constexpr int kWaitMs = 60000;

// Letters of the front panel.
constexpr auto kF1 = Qt::Key_W, kF2 = Qt::Key_Y, kF3 = Qt::Key_P, kF4 = Qt::Key_F, kF5 = Qt::Key_L;
constexpr auto kLeft = Qt::Key_O, kRight = Qt::Key_D, kUp = Qt::Key_Q, kDown = Qt::Key_T, kEnter = Qt::Key_K,
               kMenu = Qt::Key_A, kSetup = Qt::Key_S;

} // namespace

/// Wiring, nominal voltage, frequency and clamp, chosen by keys, end to end.
class TstLiveSetup : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { m_live.reset(); }
    void cleanup();
    void eachWiringIsMeasuredAsChosen_data();
    void eachWiringIsMeasuredAsChosen();
    void nominalFrequencyIsTheOneThatWasChosen_data();
    void nominalFrequencyIsTheOneThatWasChosen();
    void flickerHasNoTileAt400Hz();
    void flickerIsWeightedByTheLampThatWasChosen();
    void transientsAreCaughtAboveTheThresholdThatWasChosen();
    void clampScalesTheCurrents(); // the last: a supply that is set by command no longer follows

private:
    static void keys(Qt::Key key, int times)
    {
        for (int i = 0; i < times; ++i)
            LiveGraph::key(key);
    }
    /// Setup from any page; a running measurement is ended when it is asked for.
    static void enterSetup()
    {
        const bool asked = m_taskmanage->currentTask() && g_unitask->isTaskRunning();
        const DialogDriver::Step answer = [](QDialog *question) {
            QVERIFY(QTest::qWaitForWindowActive(question)); // no user is quicker
            QTest::keyClick(question, kF4); // Quit
        };
        DialogDriver quit(asked ? QList<DialogDriver::Step> { answer } : QList<DialogDriver::Step> {});
        LiveGraph::key(kSetup);
        QVERIFY(quit.isDone());
        QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Setup"));
        QTRY_VERIFY(QApplication::focusWidget()); // behind the question the window gets the keyboard back
    }
    /// Leaves Setup and measures.
    static void measure(const char *tile = "vif")
    {
        LiveGraph::key(kMenu);
        QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Menu"));
        QVERIFY(LiveGraph::open(QString::fromLatin1(tile)));
    }
    /// From the first page of Setup to the editor in this line of the functions.
    static void openFunction(int line)
    {
        LiveGraph::key(kF5); // Page Down
        LiveGraph::key(kF2); // Functions
        keys(kUp, 4);
        keys(kDown, line);
        LiveGraph::key(kEnter);
    }
    double value(int address) { return double(LiveGraph::registerFloat(m_master->read(address, 2), 0)); }
    bool holds(int address, double expected) { return std::fabs(value(address) - expected) <= kTolerance * expected; }

    std::unique_ptr<LiveGraph> m_live;
    std::unique_ptr<ModbusClient> m_master;
};

#define TRY_HOLDS(address, expected)                                                                                   \
    QTRY_VERIFY2_WITH_TIMEOUT(                                                                                         \
        holds(address, expected),                                                                                      \
        qPrintable(QStringLiteral("%1: %2 for %3").arg(address).arg(value(address)).arg(double(expected))), kWaitMs)

void TstLiveSetup::initTestCase()
{
    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({}), qPrintable(m_live->desk().error()));
    m_master.reset(new ModbusClient(ModbusSlave::port()));
    QVERIFY(m_master->isConnected());
    QVERIFY(LiveGraph::setSpeed(2));
}

void TstLiveSetup::cleanup()
{
    // However a case ended, the next begins with the set-up of a new instrument.
    enterSetup();
    while (m_settingConfig_g.getNomFreqSelect() != 1)
        LiveGraph::key(kF3);
}

void TstLiveSetup::eachWiringIsMeasuredAsChosen_data()
{
    // A supply of 230 V from line to neutral: 230 * sqrt(3) = 398.37 V from line to line; a high leg stands that high
    // above the neutral. Where a wiring measures fewer phases only those count.
    constexpr double kLine = 398.37;
    QTest::addColumn<int>("mode");
    QTest::addColumn<QList<double>>("volts");
    QTest::addColumn<int>("nominal"); // sixth of the table
    QTest::newRow("3P WYE") << 1 << QList<double> { 230, 230, 230 } << 277;
    QTest::newRow("3P IT") << 2 << QList<double> { kLine, kLine, kLine } << 480;
    QTest::newRow("1P +NEUTRAL") << 3 << QList<double> { 230 } << 277;
    QTest::newRow("3P DELTA") << 4 << QList<double> { kLine, kLine, kLine } << 480;
    QTest::newRow("1P SPLIT PHASE") << 5 << QList<double> { 230, 230 } << 277;
    QTest::newRow("1P IT NO NEUTRAL") << 6 << QList<double> { kLine } << 480;
    QTest::newRow("3P HIGH LEG") << 7 << QList<double> { 230, kLine, 230 } << 277;
    QTest::newRow("3P OPEN LEG") << 8 << QList<double> { kLine, kLine, kLine } << 480;
    QTest::newRow("2.5-ELEMENT") << 9 << QList<double> { 230, 230, 230 } << 277;
    QTest::newRow("2-ELEMENT") << 10 << QList<double> { kLine, kLine, kLine } << 480;
}

void TstLiveSetup::eachWiringIsMeasuredAsChosen()
{
    QFETCH(int, mode);
    QFETCH(QList<double>, volts);
    QFETCH(int, nominal);
    enterSetup();
    LiveGraph::key(kF1); // Config
    LiveGraph::key(kF1); // Page 1
    keys(kRight, mode - 1);
    LiveGraph::key(kEnter);
    QCOMPARE(LiveGraph::text("join_name"), QString::fromLatin1(QTest::currentDataTag()));
    LiveGraph::key(kF4);
    LiveGraph::key(kF2); // Vnom
    keys(kLeft, 8);
    keys(kRight, 5);
    LiveGraph::key(kF4);
    QCOMPARE(LiveGraph::text("vnom"), QStringLiteral("%1 V").arg(nominal));
    measure();
    QCOMPARE(m_master->read(11303, 1), QList<quint16> { quint16(mode) });
    QCOMPARE(value(11304), 50.0);
    QCOMPARE(value(11306), double(nominal));
    for (int phase = 0; phase < volts.size(); ++phase) {
        TRY_HOLDS(2 + 2 * phase, volts[phase]);
        const QByteArray label = "Urms_L" + QByteArray::number(phase + 1);
        QTRY_VERIFY2_WITH_TIMEOUT(std::fabs(LiveGraph::number(label) - volts[phase]) <= kTolerance * volts[phase],
                                  qPrintable(LiveGraph::text(label)), kWaitMs);
    }
    TRY_HOLDS(26, 1.0);
}

void TstLiveSetup::nominalFrequencyIsTheOneThatWasChosen_data()
{
    QTest::addColumn<int>("presses");
    QTest::addColumn<int>("hertz");
    QTest::newRow("60 Hz") << 1 << 60;
    QTest::newRow("400 Hz") << 2 << 400;
    QTest::newRow("50 Hz") << 3 << 50;
}

void TstLiveSetup::nominalFrequencyIsTheOneThatWasChosen()
{
    QFETCH(int, presses);
    QFETCH(int, hertz);
    enterSetup();
    keys(kF3, presses);
    QCOMPARE(LiveGraph::text("freq"), QStringLiteral("%1 Hz").arg(hertz));
    measure(); // the supply follows the set-up that is sent
    QCOMPARE(value(11304), double(hertz));
    TRY_HOLDS(0, hertz);
    TRY_HOLDS(26, 1.0);
}

void TstLiveSetup::clampScalesTheCurrents()
{
    enterSetup();
    LiveGraph::key(kF4); // Clamp
    LiveGraph::key(kDown); // from the channel to its clamp
    keys(kRight, 3); // 100 A at 1 mV/A in place of 5 A at 10 mV/A
    LiveGraph::key(kF4); // Ok
    QCOMPARE(LiveGraph::text("clamp"), QStringLiteral("TARN-44"));
    measure();
    const QList<quint16> words = m_master->read(11324, 2);
    QCOMPARE(int(words.value(0) | quint32(words.value(1)) << 16), 100);
    // The same clamp at the input of the stand-in.
    QVERIFY(!LiveGraph::tell(QStringLiteral("set clamp 1000")).isNull());
    QVERIFY(!LiveGraph::tell(QStringLiteral("set i 20")).isNull());
    TRY_HOLDS(26, 20.0);
}

void TstLiveSetup::flickerHasNoTileAt400Hz()
{
    enterSetup();
    keys(kF3, 2);
    LiveGraph::key(kMenu);
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Menu"));
    for (int i = 0; i < 12; ++i, LiveGraph::key(i % 4 ? kRight : kDown))
        QVERIFY(m_basedialog->menu()->currentItem()->objectName() != QStringLiteral("flicker"));
}

void TstLiveSetup::flickerIsWeightedByTheLampThatWasChosen()
{
    constexpr int kFlicker = 1;
    const struct
    {
        Qt::Key key;
        const char *shown, *lamp;
    } choices[] = { { kLeft, "60Hz 120V", "120" }, { kRight, "50Hz 230V", "230" } };
    for (const auto &choice : choices) {
        enterSetup();
        openFunction(kFlicker);
        LiveGraph::key(choice.key);
        QCOMPARE(LiveGraph::text("curve"), QString::fromLatin1(choice.shown));
        LiveGraph::key(kF4); // Ok
        measure("flicker");
        QTRY_COMPARE_WITH_TIMEOUT(LiveGraph::status(QStringLiteral("lamp")), QString::fromLatin1(choice.lamp), kWaitMs);
    }
}

void TstLiveSetup::transientsAreCaughtAboveTheThresholdThatWasChosen()
{
    constexpr int kTransients = 2;
    const auto caught = [] { return m_taskmanage->data().transients().shownSize(); };
    // An impulse of 200 V is caught by the lower threshold only, one of 600 V by both.
    const struct
    {
        Qt::Key key;
        int presses; // from 50 V on
        const char *shown;
        int caughtOfSmall;
    } choices[] = { { kRight, 250, "300 %", 0 }, { kLeft, 200, "100 %", 1 } };
    for (const auto &choice : choices) {
        enterSetup();
        openFunction(kTransients);
        keys(choice.key, choice.presses);
        LiveGraph::key(kF4); // Ok
        measure("transients");
        QCOMPARE(LiveGraph::text("threshold"), QString::fromLatin1(choice.shown)); // the page's own row
        LiveGraph::key(kF5); // Start
        QCOMPARE(LiveGraph::text("trigger"), QString::fromLatin1(choice.shown));
        QTRY_VERIFY_WITH_TIMEOUT(LiveGraph::measuredUntil() > 0, kWaitMs);
        QVERIFY(!LiveGraph::tell(QStringLiteral("event transient l1 200V in=1s")).isNull());
        QVERIFY(!LiveGraph::tell(QStringLiteral("event transient l1 600V in=3s")).isNull());
        const double told = LiveGraph::status(QStringLiteral("t")).toDouble(); // s: both come within three from here
        const qint64 end = LiveGraph::startMs() + qint64(1000 * (told + 6));
        QTRY_VERIFY_WITH_TIMEOUT(LiveGraph::measuredUntil() > end, kWaitMs);
        QCOMPARE(caught(), choice.caughtOfSmall + 1);
    }
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveSetup>(argc, argv);
}

#include "tst_livesetup.moc"
