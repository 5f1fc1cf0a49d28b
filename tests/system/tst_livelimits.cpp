// Ratios and limits that were chosen by keys are what is measured and judged by.
#include "livegraph.h"
#include "unit/setup/typing.h"

#include "settings/config_data.h"

using namespace SystemTest;

namespace {

constexpr double kTolerance = 0.002; // of the value
constexpr int kWaitMs = 20000;

void keys(const char *letters)
{
    for (const char *letter = letters; *letter; ++letter) {
        QTRY_VERIFY(QApplication::focusWidget()); // behind a dialog the window gets the keyboard back
        LiveGraph::key(Qt::Key(*letter));
    }
}

} // namespace

/// The editors of ratios and limits, end to end: transformers of 100:1 and 10:1, and a limit set of one's own whose
/// dips begin at 95 percent.
class TstLiveLimits : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase() { m_live.reset(); }
    void ratiosScaleWhatIsMeasured();
    void aDipIsWhatTheEditedLimitSays();

private:
    double value(int address) { return double(LiveGraph::registerFloat(m_master->read(address, 2), 0)); }
    bool holds(int address, double expected) { return std::fabs(value(address) - expected) <= kTolerance * expected; }
    static int dips()
    {
        int count = 0;
        for (const __event_item &event : m_taskmanage->data().events())
            count += event.type == EventDip;
        return count;
    }

    std::unique_ptr<LiveGraph> m_live;
    std::unique_ptr<ModbusClient> m_master;
};

#define TRY_HOLDS(address, expected)                                                                                   \
    QTRY_VERIFY2_WITH_TIMEOUT(holds(address, expected), qPrintable(QString::number(value(address))), kWaitMs)

void TstLiveLimits::initTestCase()
{
    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({}), qPrintable(m_live->desk().error()));
    m_master.reset(new ModbusClient(ModbusSlave::port()));
    QVERIFY(m_master->isConnected());
    keys("S");
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Setup"));
    keys("F"); // clamps and ratios
    keys("TTDD"); // down to the current's ratio: 100:1
    keys("TD"); // the voltage's: 10:1
    keys("F");
    QCOMPARE(LiveGraph::text("i_ratio"), QStringLiteral("100:1"));
    QCOMPARE(LiveGraph::text("v_ratio"), QStringLiteral("10:1"));
    keys("LW"); // second page, limits
    {
        DialogDriver driver({ [](QDialog *keyboard) {
            QVERIFY(QTest::qWaitForWindowActive(keyboard)); // no user is quicker
            Typing::typed(QStringLiteral("Site"))(keyboard);
        } });
        keys("W"); // a set of one's own
        QVERIFY(driver.isDone());
    }
    keys("KTTTK"); // its dips
    QCOMPARE(LiveGraph::text("threshold"), QStringLiteral("90.0 %"));
    for (int i = 0; i < 50; ++i)
        keys("D");
    QCOMPARE(LiveGraph::text("threshold"), QStringLiteral("95.0 %"));
    keys("FFF"); // the value, the set, and the set in use
    QCOMPARE(LiveGraph::text("limits"), QStringLiteral("Site"));
    keys("A");
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Menu"));
    QVERIFY(LiveGraph::open(QStringLiteral("vif")));
    QVERIFY(LiveGraph::setSpeed(2));
}

void TstLiveLimits::ratiosScaleWhatIsMeasured()
{
    // 230 V and 1 A at the instrument's inputs.
    for (int phase = 0; phase < 3; ++phase) {
        TRY_HOLDS(2 + 2 * phase, 2300.0);
        TRY_HOLDS(26 + 2 * phase, 100.0);
    }
    // 10 mV/A behind 100:1 are 100 uV/A: the page shows kiloamperes.
    QTRY_VERIFY_WITH_TIMEOUT(std::fabs(LiveGraph::number("Irms_L1") - 0.1) < 0.001, kWaitMs);
}

void TstLiveLimits::aDipIsWhatTheEditedLimitSays()
{
    QCOMPARE(dips(), 0);
    QVERIFY(!LiveGraph::tell(QStringLiteral("set u1 223.1")).isNull()); // 97 percent
    TRY_HOLDS(2, 2231.0);
    QCOMPARE(dips(), 0);
    QVERIFY(!LiveGraph::tell(QStringLiteral("set u1 213.9")).isNull()); // 93 percent: above a built-in set's 90
    QTRY_COMPARE_WITH_TIMEOUT(dips(), 1, kWaitMs);
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveLimits>(argc, argv);
}

#include "tst_livelimits.moc"
