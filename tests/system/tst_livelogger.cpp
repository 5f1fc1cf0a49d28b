// The lines of the logger are the supply's values, each under its own name.
#include "livegraph.h"
#include "platform/target.h"
#include "settings/loggerinfo.h"
#include "storage/fileinfo.h"

#include <QFile>
#include <QMap>

using namespace SystemTest;

/// The logger of text files beside the simulated supply.
class TstLiveLogger : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void linesAreTheSupply_data();
    void linesAreTheSupply();
    void extremesEncloseTheMean();

private:
    std::unique_ptr<LiveGraph> m_live;
    QStringList m_names;
    QMap<QString, double> m_last; // values of the last line by their names
};

void TstLiveLogger::initTestCase()
{
    constexpr int kLines = 6;
    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({}), qPrintable(m_live->desk().error()));
    *LoggerInfo::m_logger_file = QStringLiteral("Live");
    LoggerInfo::m_paramselected = 0xFFFFFFF; // all but flicker, which takes ten minutes
    LoggerInfo::m_interval_index = 0;
    m_basedialog->navigator().startFunction(AbstractTask::UniLogger, UI_LOGGER);
    Clock::advance(11000);
    QVERIFY(QTest::qWaitFor([] { return g_unitask->isTaskRunning(); }, kPatienceMs));
    Clock::useSystem();
    QVERIFY(LiveGraph::setSpeed(4));

    QFile file(Target::path(FileInfo::storagePath() + QStringLiteral("Live_00.csv")));
    QByteArrayList lines;
    QVERIFY(QTest::qWaitFor(
        [&] {
            if (!file.open(QIODevice::ReadOnly))
                return false;
            lines = file.readAll().split('\n');
            file.close();
            return lines.size() > kLines;
        },
        kPatienceMs));
    m_names = QString::fromUtf8(lines.first()).split(QLatin1Char(','));
    const QByteArrayList cells = lines.at(lines.size() - 2).split(',');
    QCOMPARE(cells.size(), m_names.size());
    for (int i = 1; i < cells.size() - 1; ++i)
        m_last[m_names.at(i)] = cells.at(i).toDouble();
}

void TstLiveLogger::cleanupTestCase()
{
    m_taskmanage->exitTask();
    m_live.reset();
}

void TstLiveLogger::linesAreTheSupply_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("tolerance");
    // 230 V and 1 A from phase to neutral, 50 Hz, a power factor of 0.95; powers are shown in thousands.
    for (const char *phase : { "L1", "L2", "L3" }) {
        const auto row = [phase](const char *group, double value, double tolerance, const char *statistic = " AVG") {
            QTest::newRow(qPrintable(QStringLiteral("%1 %2%3").arg(QString::fromUtf8(group), phase, statistic)))
                << value << tolerance;
        };
        row("VRMS(V)", 230.0, 0.25);
        row("VRMS(V)", 230.0, 0.25, " MAX");
        row("VRMS(V)", 230.0, 0.25, " MIN");
        row("VCF", 1.414, 0.02);
        row("IRMS(A)", 1.0, 0.002);
        row("P(kW)", 0.2185, 0.001);
        row("S(kVA)", 0.23, 0.001);
        row("PF", 0.95, 0.011);
        row("cosΦ", 0.95, 0.011);
        row("VHarmonic", 230.0, 0.25, " 1'th AVG");
        row("VHarmonic", 0.0, 0.5, " 2'th AVG");
        row("IHarmonic", 1.0, 0.011, " 1'th AVG");
        row("VInterHarmonic", 0.0, 1.0, " 5'th AVG");
    }
    QTest::newRow("VHarmΦ L1 1'th AVG") << 0.0 << 0.1;
    QTest::newRow("VHarmΦ L2 1'th AVG") << -120.0 << 0.5;
    QTest::newRow("VRMS(V) N AVG") << 0.0 << 5.0;
    QTest::newRow("P(kW) ALL AVG") << 3 * 0.2185 << 0.003;
    QTest::newRow("FREQ AVG") << 50.0 << 0.01;
    QTest::newRow("VNEG AVG") << 0.0 << 0.1;
}

void TstLiveLogger::linesAreTheSupply()
{
    QFETCH(double, value);
    QFETCH(double, tolerance);
    const QString name = QString::fromUtf8(QTest::currentDataTag());
    QVERIFY2(m_last.contains(name), qPrintable(name));
    QVERIFY2(std::fabs(m_last.value(name) - value) <= tolerance, qPrintable(QString::number(m_last.value(name))));
}

void TstLiveLogger::extremesEncloseTheMean()
{
    int means = 0;
    const QString ending = QStringLiteral(" AVG");
    for (auto mean = m_last.constBegin(); mean != m_last.constEnd(); ++mean) {
        if (!mean.key().endsWith(ending))
            continue;
        const QString name = mean.key().chopped(ending.size());
        QVERIFY2(m_last.value(name + " MIN") <= mean.value() && mean.value() <= m_last.value(name + " MAX"),
                 qPrintable(name));
        ++means;
    }
    QVERIFY(means > 2400); // six spectra of four channels and a hundred orders alone
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveLogger>(argc, argv);
}
#include "tst_livelogger.moc"
