// The values on the pages, the registers of the Modbus master and the true signal are the same.
#include "livegraph.h"

using namespace SystemTest;

namespace {

constexpr double kTolerance = 0.001; // of the value

} // namespace

/// Values of the simulated supply as they stand on the pages and in the registers.
class TstLiveValues : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void voltsAmpsHertzShowTheSupplyWithinATenthOfAPercent();
    void valuesAreThoseOfTheSignalOnPageAndModbus_data();
    void valuesAreThoseOfTheSignalOnPageAndModbus();
    void softKeysOfThePageReadAsTheyShould();
    void powersAreThoseOfTheSignalOnPageAndModbus_data();
    void powersAreThoseOfTheSignalOnPageAndModbus();

private:
    /// A label comes to show the value within the tolerance, and within what its last digit hides.
    static bool shows(const char *label, double value)
    {
        return std::fabs(LiveGraph::number(label) - value)
            <= kTolerance * std::fabs(value) + LiveGraph::halfDigit(label);
    }
    /// A register pair comes to hold the value within the tolerance.
    bool holds(int address, double value)
    {
        const QList<quint16> words = m_master->read(address, 2);
        return words.size() == 2
            && std::fabs(double(LiveGraph::registerFloat(words, 0)) - value) <= kTolerance * std::fabs(value);
    }
    QString held(int address)
    {
        return QStringLiteral("%1: %2").arg(address).arg(
            double(LiveGraph::registerFloat(m_master->read(address, 2), 0)));
    }
    static QString shown(const char *label) { return QLatin1String(label) + QLatin1Char(' ') + LiveGraph::text(label); }

    std::unique_ptr<LiveGraph> m_live;
    std::unique_ptr<ModbusClient> m_master;
};

#define TRY_SHOWS(label, value) QTRY_VERIFY2_WITH_TIMEOUT(shows(label, value), qPrintable(shown(label)), kPatienceMs)
#define TRY_HOLDS(address, value)                                                                                      \
    QTRY_VERIFY2_WITH_TIMEOUT(holds(address, value), qPrintable(held(address)), kPatienceMs)

void TstLiveValues::initTestCase()
{
    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({}), qPrintable(m_live->desk().error()));
    QVERIFY(LiveGraph::open(QStringLiteral("vif")));
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Volts/Amps/Hertz"));
    m_master.reset(new ModbusClient(ModbusSlave::port()));
    QVERIFY(m_master->isConnected());
    QVERIFY(LiveGraph::setSpeed(2));
}

void TstLiveValues::cleanupTestCase()
{
    m_live.reset(); // ends the stand-in
}

void TstLiveValues::voltsAmpsHertzShowTheSupplyWithinATenthOfAPercent()
{
    for (const char *label : { "Urms_L1", "Urms_L2", "Urms_L3" })
        TRY_SHOWS(label, 230.0);
    for (const char *label : { "Irms_L1", "Irms_L2", "Irms_L3" })
        TRY_SHOWS(label, 1.0);
    // Peak of a sine: 230 * sqrt(2) = 325.27 V; noise adds a little. Crest factor sqrt(2) = 1.414.
    QTRY_VERIFY2_WITH_TIMEOUT(std::fabs(LiveGraph::number("Upk_L1") - 325.27) < 1.6, qPrintable(shown("Upk_L1")),
                              kPatienceMs);
    QTRY_VERIFY2_WITH_TIMEOUT(std::fabs(LiveGraph::number("Ucf_L1") - 1.414) < 0.0121, qPrintable(shown("Ucf_L1")),
                              kPatienceMs);
    TRY_SHOWS("freq", 50.0);
}

void TstLiveValues::valuesAreThoseOfTheSignalOnPageAndModbus_data()
{
    QTest::addColumn<QList<double>>("volts");
    QTest::addColumn<QList<double>>("amps");
    QTest::addColumn<double>("hertz");
    QTest::newRow("a tenfold load") << QList<double> { 230, 230, 230 } << QList<double> { 10, 10, 10 } << 50.0;
    QTest::newRow("three different") << QList<double> { 230, 207, 253 } << QList<double> { 10, 5, 20 } << 50.2;
    QTest::newRow("low") << QList<double> { 115, 57.5, 92 } << QList<double> { 2, 4, 1 } << 47.5;
    QTest::newRow("high") << QList<double> { 276, 264, 299 } << QList<double> { 25, 22, 18 } << 52.0;
}

void TstLiveValues::valuesAreThoseOfTheSignalOnPageAndModbus()
{
    QFETCH(QList<double>, volts);
    QFETCH(QList<double>, amps);
    QFETCH(double, hertz);
    static const char *const voltLabels[] = { "Urms_L1", "Urms_L2", "Urms_L3" };
    static const char *const ampLabels[] = { "Irms_L1", "Irms_L2", "Irms_L3" };
    for (int phase = 0; phase < 3; ++phase) {
        QVERIFY(!LiveGraph::tell(QStringLiteral("set u%1 %2").arg(phase + 1).arg(volts[phase])).isNull());
        QVERIFY(!LiveGraph::tell(QStringLiteral("set i%1 %2").arg(phase + 1).arg(amps[phase])).isNull());
    }
    QVERIFY(!LiveGraph::tell(QStringLiteral("set f %1").arg(hertz)).isNull());
    for (int phase = 0; phase < 3; ++phase) {
        TRY_SHOWS(voltLabels[phase], volts[phase]);
        TRY_HOLDS(2 + 2 * phase, volts[phase]);
        TRY_SHOWS(ampLabels[phase], amps[phase]);
        TRY_HOLDS(26 + 2 * phase, amps[phase]);
    }
    TRY_SHOWS("freq", hertz);
    TRY_HOLDS(0, hertz);
    QCOMPARE(LiveGraph::status(QStringLiteral("clipped")), QStringLiteral("no"));
}

void TstLiveValues::softKeysOfThePageReadAsTheyShould()
{
    QCOMPARE(LiveGraph::text("btn_f4"), QStringLiteral("Trend"));
    QCOMPARE(LiveGraph::text("btn_f5"), QStringLiteral("Hold"));
    LiveGraph::key(Qt::Key_L);
    QTRY_COMPARE(LiveGraph::text("btn_f5"), QStringLiteral("Run"));
    LiveGraph::key(Qt::Key_L);
    QTRY_COMPARE(LiveGraph::text("btn_f5"), QStringLiteral("Hold"));
}

void TstLiveValues::powersAreThoseOfTheSignalOnPageAndModbus_data()
{
    QTest::addColumn<double>("volt");
    QTest::addColumn<double>("ampere");
    QTest::addColumn<double>("factor");
    QTest::newRow("2.3 kVA, ohmic") << 230.0 << 10.0 << 1.0;
    QTest::newRow("2.3 kVA at 0.8") << 230.0 << 10.0 << 0.8;
    QTest::newRow("2.5 kVA at 0.6") << 250.0 << 10.0 << 0.6;
}

// S = U I, P = S times the power factor, Q = S times sqrt(1 - factor^2), behind the voltage; the totals of three equal
// phases are three times that.
void TstLiveValues::powersAreThoseOfTheSignalOnPageAndModbus()
{
    QFETCH(double, volt);
    QFETCH(double, ampere);
    QFETCH(double, factor);
    if (LiveGraph::text("name") != QStringLiteral("Power&Energy")) {
        LiveGraph::key(Qt::Key_A); // Menu
        QVERIFY(LiveGraph::open(QStringLiteral("power")));
        QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Power&Energy"));
    }
    for (const auto &command : { QStringLiteral("set f 50"), QStringLiteral("set u %1").arg(volt),
                                 QStringLiteral("set i %1").arg(ampere), QStringLiteral("set pf %1").arg(factor) })
        QVERIFY2(!LiveGraph::tell(command).isNull(), qPrintable(command));

    const double apparent = volt * ampere;
    const double active = apparent * factor;
    const double reactive = apparent * std::sqrt(1 - factor * factor);
    const char *const columns[] = { "L1", "L2", "L3", "Tot" };
    for (int column = 0; column < 4; ++column) {
        const double times = column == 3 ? 3 : 1;
        const struct
        {
            const char *name;
            int address;
            double value;
        } rows[] = { { "P", 100, active }, { "S", 108, apparent }, { "Q", 116, reactive } };
        for (const auto &row : rows) {
            const QByteArray label = QByteArray(row.name) + '_' + columns[column];
            if (row.value == 0) {
                // What is left of 2.3 kVA when a phase is off by the angle of half a sample: less than a hundredth.
                QTRY_VERIFY2_WITH_TIMEOUT(std::fabs(LiveGraph::number(label.constData())) < 0.07,
                                          qPrintable(shown(label.constData())), kPatienceMs);
                continue;
            }
            // The page has kilo and two decimals: 2.30 kW.
            QTRY_VERIFY2_WITH_TIMEOUT(std::fabs(LiveGraph::number(label.constData()) - times * row.value / 1000)
                                          <= 0.005001 + kTolerance * times * row.value / 1000,
                                      qPrintable(shown(label.constData())), kPatienceMs);
            TRY_HOLDS(row.address + 2 * column, times * row.value);
        }
    }
    TRY_HOLDS(124, factor);
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveValues>(argc, argv);
}

#include "tst_livevalues.moc"
