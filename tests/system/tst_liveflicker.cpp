// Flicker of the published points on the page: run once with the 230 V lamp at 50 Hz and once with the 120 V lamp at
// 60 Hz (QUVERA_TEST_VARIANT).
#include "livegraph.h"
#include "testpaths.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace SystemTest;

namespace {

const bool kIs230 = ratedHertz() == 50;

/// The scenarios of the points, by changes per minute: one phase each, which are measured beside each other.
const char *const kPoints[] = { kIs230 ? "pst-230v-0002" : "pst-120v-0007", kIs230 ? "pst-230v-0110" : "pst-120v-0110",
                                kIs230 ? "pst-230v-1620" : "pst-120v-1620" };
constexpr const char *kInputs[] = { "u1", "u2", "u3" };

QJsonObject scenario(const char *name)
{
    QFile file(QStringLiteral(QUVERA_SOURCE_DIR "/processor/scenarios/%1.json").arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

} // namespace

/// The rectangular changes of IEC 61000-4-15, table 5, of which each makes Pst 1.00: within 5 percent on the page.
class TstLiveFlicker : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanupTestCase();
    void pageShowsZeroBeforeTheFirstInterval();
    void pageShowsPstOneAtThePublishedPoints();
    void masterReadsWhatThePageShows();
    void longTermValueWaitsForTwelveIntervals();

private:
    std::unique_ptr<LiveGraph> m_live;
};

void TstLiveFlicker::initTestCase()
{
    QJsonObject all = scenario(kPoints[0]);
    QJsonObject signal = all.value(QStringLiteral("signal")).toObject();
    QJsonArray flicker;
    for (int phase = 0; phase < 3; ++phase) {
        const QJsonObject one = scenario(kPoints[phase]);
        QVERIFY2(!one.isEmpty(), kPoints[phase]);
        QCOMPARE(one.value(QStringLiteral("setup")), all.value(QStringLiteral("setup")));
        QJsonObject point = one.value(QStringLiteral("signal"))
                                .toObject()
                                .value(QStringLiteral("flicker"))
                                .toArray()
                                .at(0)
                                .toObject();
        point.insert(QStringLiteral("inputs"), QString::fromLatin1(kInputs[phase]));
        flicker.append(point);
    }
    signal.insert(QStringLiteral("flicker"), flicker);
    all.insert(QStringLiteral("signal"), signal);
    const QString path = qEnvironmentVariable("QUVERA_ROOT") + QStringLiteral("/points.json");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(QJsonDocument(all).toJson()) > 0);
    file.close();

    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({ QStringLiteral("--scenario"), path }), qPrintable(m_live->desk().error()));
    QVERIFY(LiveGraph::open(QStringLiteral("flicker")));
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Flicker"));
}

void TstLiveFlicker::cleanupTestCase()
{
    m_live.reset(); // ends the stand-in
}

void TstLiveFlicker::pageShowsZeroBeforeTheFirstInterval()
{
    for (const char *label : { "Pst_L1", "Pst_L2", "Pst_L3", "Plt_L1", "Plt_L2", "Plt_L3" })
        QCOMPARE(LiveGraph::text(label), QStringLiteral("0.00"));
}

void TstLiveFlicker::pageShowsPstOneAtThePublishedPoints()
{
    // An interval is 600 s of the signal. The first one begins with the signal; the second has no beginning in it.
    for (int interval = 1; interval <= 2; ++interval) {
        QVERIFY(LiveGraph::runUntil([&] { return m_taskmanage->data().live().flicker.pstTrend[2].size() >= interval; },
                                    100));
        for (const char *label : { "Pst_L1", "Pst_L2", "Pst_L3" })
            QTRY_VERIFY2_WITH_TIMEOUT(std::fabs(LiveGraph::number(label) - 1.0) <= 0.05,
                                      qPrintable(QLatin1String(label) + QLatin1Char(' ') + LiveGraph::text(label)),
                                      kPatienceMs);
        for (int phase = 0; phase < 3; ++phase)
            QVERIFY2(std::fabs(m_taskmanage->data().live().flicker.pstTrend[phase].at(interval - 1) - 1.0f) <= 0.05f,
                     kPoints[phase]);
    }
    QCOMPARE(LiveGraph::status(QStringLiteral("dropped")), QStringLiteral("0"));
    QCOMPARE(LiveGraph::status(QStringLiteral("lamp")), kIs230 ? QStringLiteral("230") : QStringLiteral("120"));
    QCOMPARE(LiveGraph::status(QStringLiteral("nominal")), QString::number(ratedHertz()));
}

void TstLiveFlicker::masterReadsWhatThePageShows()
{
    ModbusClient master(ModbusSlave::port());
    QVERIFY(master.isConnected());
    static const char *const labels[] = { "Pst_L1", "Pst_L2", "Pst_L3" };
    for (int phase = 0; phase < 3; ++phase) {
        const QList<quint16> block = master.read(3000, 24);
        QCOMPARE(block.size(), 24);
        const double pst = double(LiveGraph::registerFloat(block, 8 + 2 * phase));
        QVERIFY(std::fabs(pst - 1.0) <= 0.05);
        QTRY_VERIFY(std::fabs(LiveGraph::number(labels[phase]) - pst) <= 0.00501); // two decimals
    }
}

void TstLiveFlicker::longTermValueWaitsForTwelveIntervals()
{
    for (const char *label : { "Plt_L1", "Plt_L2", "Plt_L3" })
        QCOMPARE(LiveGraph::text(label), QStringLiteral("0.00"));
}

int main(int argc, char **argv)
{
    QList<QPair<QString, QString>> settings;
    if (!kIs230)
        settings = { { QStringLiteral("NOM_FREQ"), QStringLiteral("2") },
                     { QStringLiteral("NOM_VOLT_SELECT"), QStringLiteral("3") }, // 120 V
                     { QStringLiteral("FLICKER_WEIGHTING_CURVE"), QStringLiteral("120") } };
    return runInInstrument<TstLiveFlicker>(argc, argv, settings);
}

#include "tst_liveflicker.moc"
