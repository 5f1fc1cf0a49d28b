// What the monitor finds and stores of a supply that breaks some limits and keeps others, beside the true signal.
#include "monitoredrun.h"
#include "record/pqa2format.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <complex>

using namespace SystemTest;

namespace {

constexpr double kVolts[3] = { 241.5, 230, 207 };
constexpr double kHertz = 50.2;
constexpr double kFifth = 7; // percent, more than the 6 that the European set allows
constexpr double kThird = 4; // less than its 5

/// Negative-sequence ratio of the three voltages in percent, by the definition of the symmetrical components.
double trueUnbalance()
{
    using Complex = std::complex<double>;
    const double third = 2 * std::acos(-1.0) / 3;
    Complex positive, negative;
    for (int phase = 0; phase < 3; ++phase) {
        const Complex volts = std::polar(kVolts[phase], -third * phase);
        positive += volts * std::polar(1.0, third * phase);
        negative += volts * std::polar(1.0, -third * phase);
    }
    return 100 * std::abs(negative) / std::abs(positive);
}

bool isAbout(double value, double wanted, double share)
{
    return std::fabs(value - wanted) <= share * std::fabs(wanted);
}

QVector<float> floatsOf(const ReadBlock &block)
{
    QVector<float> values((block.payload.size() - 4) / 4);
    std::memcpy(values.data(), block.payload.constData() + 4, std::size_t(values.size()) * sizeof(float));
    return values;
}

} // namespace

/// Ten minutes of the monitor, in the processor's time, from its start page to its file.
class TstLiveMonitor : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void tenMinuteValuesAreThoseOfTheSignal();
    void verdictsFollowTheLimits();
    void supplyThatBecomesGoodMendsWhatOneValueMends();
    void fileHoldsTheSameValues();

private:
    const __monitor_data &results() { return m_taskmanage->data().live().monitor; }
    const __monitor_trend &trend() { return m_taskmanage->data().live().monitorTrend; }

    std::unique_ptr<LiveGraph> m_live;
};

void TstLiveMonitor::initTestCase()
{
    const QJsonArray harmonics {
        QJsonObject { { "inputs", "u" }, { "order", 5 }, { "percent", kFifth }, { "phase", 0 } },
        QJsonObject { { "inputs", "u" }, { "order", 3 }, { "percent", kThird }, { "phase", 0 } },
        QJsonObject { { "inputs", "i" }, { "order", 5 }, { "percent", 20 }, { "phase", 0 } },
    };
    const QJsonObject signal { { "u", QJsonArray { kVolts[0], kVolts[1], kVolts[2], 0 } },
                               { "i", 1 },
                               { "f", kHertz },
                               { "harmonics", harmonics } };
    const QString path = qEnvironmentVariable("QUVERA_ROOT") + QStringLiteral("/supply.json");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(QJsonDocument(QJsonObject { { "signal", signal } }).toJson()) > 0);
    file.close();

    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({ QStringLiteral("--scenario"), path }), qPrintable(m_live->desk().error()));
    LiveGraph::key(Qt::Key_U); // Monitor
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Monitor"));
    QVERIFY(MonitoredRun::begin(this, 1000));
}

void TstLiveMonitor::cleanupTestCase()
{
    m_live.reset(); // ends the stand-in
}

void TstLiveMonitor::tenMinuteValuesAreThoseOfTheSignal()
{
    QVERIFY(LiveGraph::runUntil([this] { return results().voltReady; }, 40));
    for (int phase = 0; phase < 3; ++phase) {
        // The harmonics are percent of the fundamental: the r.m.s. value is larger.
        const double rms = kVolts[phase] * std::sqrt(1 + (kFifth * kFifth + kThird * kThird) / 10000);
        QVERIFY2(isAbout(double(results().voltMax[phase]), rms, 0.001),
                 qPrintable(QString::number(double(results().voltMax[phase]))));
        const double distortion = std::hypot(kFifth, kThird); // percent, of 8 allowed
        QVERIFY(isAbout(double(results().harmPartialRatio[phase][0]), distortion * 100 / 8, 0.01));
        QVERIFY(isAbout(double(results().harmPartialRatio[phase][4]), kFifth * 100 / 6, 0.01));
        QVERIFY(isAbout(double(results().harmPartialRatio[phase][2]), kThird * 100 / 5, 0.01));
    }
    QVERIFY(isAbout(double(results().freqMax), kHertz, 0.0001));
    QVERIFY(isAbout(double(results().freqPartialRatio), 40, 0.02)); // 0.2 of 0.5 Hz
    QVERIFY(isAbout(double(trend().row[MonitorTrendFrequency].first()), kHertz, 0.0001));
    QVERIFY2(isAbout(double(trend().row[MonitorTrendUnbalance].first()), trueUnbalance(), 0.01),
             qPrintable(QString::number(double(trend().row[MonitorTrendUnbalance].first()))));
    QVERIFY(isAbout(double(results().unbalPartialRatio), trueUnbalance() * 100 / 2, 0.01));
}

void TstLiveMonitor::verdictsFollowTheLimits()
{
    for (int phase = 0; phase < 3; ++phase) {
        QCOMPARE(results().harmOk[phase][4], 0); // 7 of 6 percent
        QCOMPARE(results().harmOk[phase][2], 1); // 4 of 5 percent
        QCOMPARE(results().harmOk[phase][0], 0); // 8.06 of 8 percent
        QCOMPARE(results().harmOk[phase][6], 1); // nothing
        QCOMPARE(results().voltPartialOk[phase], 0); // none within a tenth of a volt
    }
    QCOMPARE(results().freqPartialOk, 0); // 0.2 Hz off
    QCOMPARE(results().unbalOk, 0); // 4.4 of 2 percent
    QStringList kinds;
    for (const PQAEventItem &event : m_taskmanage->data().events()) {
        if (event.type != EventRms) // kept: these run at any voltage but one
            kinds << QStringLiteral("%1 L%2").arg(event.type).arg(event.channel + 1);
    }
    kinds.sort();
    QCOMPARE(kinds, QStringList({ "0 L1", "0 L2", "0 L3", "31 L1", "4 L1", "4 L2", "4 L3" }));
}

void TstLiveMonitor::supplyThatBecomesGoodMendsWhatOneValueMends()
{
    for (const char *command : { "set u 230", "set f 50", "set harmonic u 5 0%", "set harmonic u 3 0%" })
        QVERIFY2(!LiveGraph::tell(QLatin1String(command)).isNull(), command);
    // The second ten minutes may begin in the supply of before.
    QVERIFY(LiveGraph::runUntil([this] { return trend().row[MonitorTrendVoltage].size() == 3; }, 40));
    for (int phase = 0; phase < 3; ++phase) {
        QVERIFY(isAbout(double(trend().row[MonitorTrendVoltage + phase].last()), 230, 0.001));
        QVERIFY(double(trend().row[MonitorTrendThd + phase].last()) < 0.2);
        QCOMPARE(results().harmOk[phase][4], 0); // one value outside is enough
        QVERIFY(double(results().harmPartialRatio[phase][4]) < 3);
    }
    QVERIFY(double(trend().row[MonitorTrendUnbalance].last()) < 0.1);
    QCOMPARE(results().unbalOk, 1);
    QCOMPARE(results().freqPartialOk, 1); // within a hundredth of a hertz
    QVERIFY(isAbout(double(results().freqMax), kHertz, 0.0001)); // the extremes stay
    QVERIFY(isAbout(double(results().freqPartialRatio), 40, 0.02));
    for (const PQAEventItem &event : m_taskmanage->data().events()) {
        if (event.type != EventRms)
            QVERIFY2(event.finished, qPrintable(QString::number(event.type)));
    }
}

void TstLiveMonitor::fileHoldsTheSameValues()
{
    QMap<quint32, QList<ReadBlock>> blocks = MonitoredRun::endAndRead();
    QVERIFY(blocks[Pqa2MonitorFrequency].size() >= 60);
    QVERIFY(isAbout(double(floatsOf(blocks[Pqa2MonitorFrequency].first())[0]), kHertz, 0.0001));
    QCOMPARE(floatsOf(blocks[Pqa2MonitorVoltage].first()),
             QVector<float>({ trend().row[4][0], trend().row[5][0], trend().row[6][0] }));
    QVERIFY(isAbout(double(floatsOf(blocks[Pqa2MonitorHarmonics].first())[104]), kFifth, 0.01));
    // Of the current: 20 percent of 1 A, in percent of a fundamental in volts; all of it is the fifth.
    QVERIFY(isAbout(double(floatsOf(blocks[Pqa2MonitorSecondSpectrum].first())[50]), 20.0 / kVolts[1], 0.05));
    QVERIFY(isAbout(double(floatsOf(blocks[Pqa2MonitorSecondSpectrum].first())[54]), 100, 0.05));
    QVERIFY(isAbout(double(floatsOf(blocks[Pqa2MonitorUnbalance].first())[0]), trueUnbalance(), 0.01));
    QVERIFY(!blocks[Pqa2EventHead].isEmpty());
    QCOMPARE(blocks[Pqa2EndTime].size(), 1);
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveMonitor>(argc, argv);
}
#include "tst_livemonitor.moc"
