// An hour of the recorder in the processor's time: every interval of its files beside the true signal.
#include "recordedrun.h"
#include "model/channelset.h"
#include "settings/config_data.h"
#include "settings/recordinfo.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace SystemTest;

namespace {

/// The supply before and behind the moment at which it changes.
struct Supply
{
    double volts[3]; // fundamentals
    double amps[3];
    double hertz;
};
constexpr Supply kSupplies[2]
    = { { { 231, 229, 226 }, { 2.0, 1.5, 1.0 }, 50.02 }, { { 222, 228, 233 }, { 2.2, 1.4, 1.2 }, 49.97 } };
constexpr double kChange = 2103.7; // s of the signal
constexpr double kPowerFactor = 0.9;
constexpr double kThird = 4, kFifth = 6; // percent of the voltage
constexpr double kSeventh = 20; // percent of the current: no order has both, so that power is that of the fundamentals
constexpr double kAggregation = 0.2; // s

QJsonObject signalOf(const Supply &supply)
{
    const auto three = [](const double(&values)[3]) { return QJsonArray { values[0], values[1], values[2], 0 }; };
    const auto order = [](const char *inputs, int order, double percent) {
        return QJsonObject { { "inputs", inputs }, { "order", order }, { "percent", percent }, { "phase", 0 } };
    };
    // Pst 1.00 of the published table; its changes take less than a thousandth of the mean voltage of a minute.
    const QJsonObject flicker {
        { "inputs", "u" }, { "shape", "rectangular" }, { "changesPerMinute", 110 }, { "percent", 0.722 }
    };
    return { { "u", three(supply.volts) },
             { "i", three(supply.amps) },
             { "pf", kPowerFactor },
             { "f", supply.hertz },
             { "harmonics", QJsonArray { order("u", 3, kThird), order("u", 5, kFifth), order("i", 7, kSeventh) } },
             { "flicker", QJsonArray { flicker } } };
}

/// Negative-sequence ratio in percent, by the formula of the line voltages (IEC 61000-4-30).
double unbalance(const Supply &supply)
{
    double second = 0, fourth = 0;
    for (int phase = 0; phase < 3; ++phase) {
        const double a = supply.volts[phase], b = supply.volts[(phase + 1) % 3];
        const double line = a * a + b * b + a * b; // squared: 120 degrees between them
        second += line;
        fourth += line * line;
    }
    const double root = std::sqrt(3 - 6 * fourth / (second * second));
    return 100 * std::sqrt((1 - root) / (1 + root));
}

double watts(const Supply &supply, int phase)
{
    return supply.volts[phase] * supply.amps[phase] * kPowerFactor;
}

} // namespace

/// Volts, amperes, hertz, powers, energies, unbalance, spectra and flicker of a recording.
class TstLiveRecordedHour : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void anHourIsRecorded();
    void everyIntervalHoldsTheSignal_data();
    void everyIntervalHoldsTheSignal();
    void spectraHoldTheHarmonics();
    void energiesAreThoseOfTheHour();
    void severitiesAreThoseOfTheTable();

private:
    void readFiles();
    /// Mean of a quantity in the time of an interval, as the signal has it.
    template <typename Quantity> double meanOf(int interval, Quantity quantity) const;
    QList<QByteArray> of(quint32 type) const { return m_run.of(type); }

    std::unique_ptr<LiveGraph> m_live;
    RecordedRun m_run;
    QVector<double> m_ends; // of the start and the intervals, s of the signal
};

void TstLiveRecordedHour::initTestCase()
{
    const QJsonObject step { { "at", kChange }, { "signal", signalOf(kSupplies[1]) } };
    const QJsonObject scenario { { "setup", QJsonObject { { "nominal", 50 }, { "lamp", 230 } } },
                                 { "signal", signalOf(kSupplies[0]) },
                                 { "steps", QJsonArray { step } } };
    const QString path = qEnvironmentVariable("QUVERA_ROOT") + QStringLiteral("/supply.json");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(QJsonDocument(scenario).toJson()) > 0);
    file.close();

    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({ QStringLiteral("--scenario"), path }), qPrintable(m_live->desk().error()));
    QVERIFY(LiveGraph::open(QStringLiteral("power")));

    RecordedRun::followProcessor(this);
    QVERIFY(LiveGraph::runUntil([] { return g_unitask->aggregation().time > 0; }, 1));
}

void TstLiveRecordedHour::cleanupTestCase()
{
    Clock::useSystem();
    m_live.reset(); // ends the stand-in
}

void TstLiveRecordedHour::anHourIsRecorded()
{
    *RecordInfo::m_record_file = QStringLiteral("Hour");
    RecordInfo::m_recordItems = 0xFFFF;
    RecordInfo::m_interval_index = 5; // 60 s
    RecordInfo::m_duration = 1;
    m_taskmanage->enableRecord();
    QVERIFY(LiveGraph::runUntil([] { return g_unitask->isRecording(); }, 20));
    QVERIFY(LiveGraph::runUntil([] { return !g_unitask->isRecording(); }, 200));
    QCOMPARE(LiveGraph::status(QStringLiteral("dropped")), QStringLiteral("0"));
    readFiles();

    QCOMPARE(of(0xA1000018).size(), 1);
    QCOMPARE(of(0xA1000019).size(), 1);
    const quint32 start = valueAt<quint32>(of(0xA1000018).first(), 0),
                  end = valueAt<quint32>(of(0xA1000019).first(), 0);
    QVERIFY(end - start >= 3600 && end - start <= 3601);
    QCOMPARE(of(0xA1000020).size(), 60);
    QVERIFY(of(0xA1000028).size() >= 359);
    QCOMPARE(of(0xA1000009).size(), 0); // nothing was lost
    for (int i = 1; i < m_ends.size(); ++i) // 3000 cycles each
        QVERIFY2(std::fabs(m_ends[i] - m_ends[i - 1] - 3000 / 50.02) < 0.45, qPrintable(QString::number(i)));
}

void TstLiveRecordedHour::readFiles()
{
    QVERIFY(m_run.read(QStringLiteral("Hour")));
    const QList<QByteArray> intervals = of(0xA1000029);
    QVERIFY(!intervals.isEmpty());
    for (const QByteArray &block : intervals)
        m_ends << RecordedRun::secondsOf(block);
    m_ends.prepend(m_ends.first() - 3000 / 50.02);
}

template <typename Quantity> double TstLiveRecordedHour::meanOf(int interval, Quantity quantity) const
{
    const double begin = m_ends[interval], end = m_ends[interval + 1];
    const double share = std::clamp((kChange - begin) / (end - begin), 0.0, 1.0);
    return share * quantity(kSupplies[0]) + (1 - share) * quantity(kSupplies[1]);
}

void TstLiveRecordedHour::everyIntervalHoldsTheSignal_data()
{
    QTest::addColumn<quint32>("type");
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("quantity"); // 0 V, 1 A, 2 W, 3 Hz, 4 percent of unbalance
    QTest::addColumn<int>("phase");
    QTest::addColumn<double>("tolerance"); // relative; Hz and percent as they are
    for (int phase = 0; phase < 3; ++phase) {
        QTest::addRow("volts of L%d", phase + 1) << 0xA1000020u << 8 + 52 * phase << 0 << phase << 0.001;
        QTest::addRow("amperes of L%d", phase + 1) << 0xA1000020u << 8 + 52 * phase + 16 << 1 << phase << 0.001;
        QTest::addRow("watts of L%d", phase + 1) << 0xA1000021u << 8 + 24 * phase << 2 << phase << 0.002;
    }
    QTest::addRow("watts in all") << 0xA1000021u << 8 + 72 << 2 << 3 << 0.002;
    QTest::addRow("hertz") << 0xA1000029u << 8 << 3 << 0 << 0.01;
    QTest::addRow("unbalance") << 0xA1000023u << 8 + 8 << 4 << 0 << 0.15;
}

void TstLiveRecordedHour::everyIntervalHoldsTheSignal()
{
    QFETCH(quint32, type);
    QFETCH(int, place);
    QFETCH(int, quantity);
    QFETCH(int, phase);
    QFETCH(double, tolerance);
    const auto truth = [&](const Supply &supply) {
        switch (quantity) {
        case 0:
            return supply.volts[phase] * std::sqrt(1 + (kThird * kThird + kFifth * kFifth) / 10000);
        case 1:
            return supply.amps[phase] * std::sqrt(1 + kSeventh * kSeventh / 10000);
        case 2:
            return phase < 3 ? watts(supply, phase) : watts(supply, 0) + watts(supply, 1) + watts(supply, 2);
        case 3:
            return supply.hertz;
        default:
            return unbalance(supply);
        }
    };
    const QList<QByteArray> blocks = of(type);
    QCOMPARE(blocks.size(), m_ends.size() - 1);
    const double change = std::fabs(truth(kSupplies[1]) - truth(kSupplies[0]));
    for (int i = 0; i < blocks.size(); ++i) {
        const double expected = meanOf(i, truth), measured = double(valueAt<float>(blocks[i], place));
        double allowed = quantity < 3 ? tolerance * expected : tolerance;
        if (m_ends[i] < kChange && m_ends[i + 1] > kChange - kAggregation)
            allowed += 2 * kAggregation / 60 * change; // the aggregation in which it changed counts for one side
        QVERIFY2(std::fabs(measured - expected) <= allowed,
                 qPrintable(QStringLiteral("interval %1: %2 instead of %3").arg(i).arg(measured).arg(expected)));
    }
}

void TstLiveRecordedHour::spectraHoldTheHarmonics()
{
    // Of each channel: distortion, fundamental, 50 lines.
    const QList<QByteArray> volts = of(0xA1000030), amps = of(0xA1000031);
    QCOMPARE(volts.size(), m_ends.size() - 1);
    QCOMPARE(amps.size(), m_ends.size() - 1);
    const auto line = [](const QByteArray &block, int phase, int order) {
        return double(valueAt<float>(block, 8 + 208 * phase + 8 + 4 * (order - 1)));
    };
    for (int i = 0; i < volts.size(); ++i) {
        for (int phase = 0; phase < 3; ++phase) {
            const double u = meanOf(i, [phase](const Supply &supply) { return supply.volts[phase]; });
            const double a = meanOf(i, [phase](const Supply &supply) { return supply.amps[phase]; });
            QVERIFY(std::fabs(line(volts[i], phase, 1) - u) <= 0.002 * u);
            QVERIFY(std::fabs(line(volts[i], phase, 3) - kThird / 100 * u) <= 0.05 * kThird / 100 * u);
            QVERIFY(std::fabs(line(volts[i], phase, 5) - kFifth / 100 * u) <= 0.05 * kFifth / 100 * u);
            QVERIFY(std::fabs(line(amps[i], phase, 7) - kSeventh / 100 * a) <= 0.05 * kSeventh / 100 * a);
            QVERIFY(line(volts[i], phase, 7) < 0.002 * u); // what is not there
            const double distortion = double(valueAt<float>(volts[i], 8 + 208 * phase));
            QVERIFY(std::fabs(distortion - std::hypot(kThird, kFifth) / 100 * u) <= 0.05 * distortion);
            QCOMPARE(valueAt<float>(volts[i], 8 + 208 * phase + 4), valueAt<float>(volts[i], 8 + 208 * phase + 8));
        }
    }
}

void TstLiveRecordedHour::energiesAreThoseOfTheHour()
{
    const QList<QByteArray> blocks = of(0xA1000022);
    QCOMPARE(blocks.size(), m_ends.size() - 1);
    for (int phase = 0; phase < 4; ++phase) {
        double expected = 0; // Wh
        for (int i = 0; i < blocks.size(); ++i) {
            expected
                += (m_ends[i + 1] - m_ends[i]) / 3600 * meanOf(i, [phase](const Supply &supply) {
                       return phase < 3 ? watts(supply, phase) : watts(supply, 0) + watts(supply, 1) + watts(supply, 2);
                   });
        }
        const double counted = valueAt<double>(blocks.last(), 8 + 24 * phase);
        QVERIFY2(std::fabs(counted - expected) <= 0.002 * expected,
                 qPrintable(QStringLiteral("%1 instead of %2").arg(counted).arg(expected)));
    }
}

void TstLiveRecordedHour::severitiesAreThoseOfTheTable()
{
    const QList<QByteArray> severities = of(0xA1000026);
    QVERIFY(severities.size() >= 5);
    for (const QByteArray &block : severities) {
        const double end = RecordedRun::secondsOf(block);
        if (end > kChange && end < kChange + 620)
            continue; // the voltage itself has changed
        for (int phase = 0; phase < 3; ++phase)
            QVERIFY2(std::fabs(double(valueAt<float>(block, 8 + 4 * phase)) - 1) <= 0.05,
                     qPrintable(QString::number(double(valueAt<float>(block, 8 + 4 * phase)))));
    }
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveRecordedHour>(argc, argv);
}
#include "tst_liverecordedhour.moc"
