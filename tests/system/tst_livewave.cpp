// The captured waveform is that of the supply, at each rate and without a seam between its chunks.
#include "livegraph.h"
#include "record/wavefile.h"
#include "settings/waveinfo.h"
#include "storage/fileinfo.h"
#include "platform/target.h"

#include <QBuffer>
#include <QFile>

using namespace SystemTest;

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr int kSeconds = 10;

/// A captured file in V and A, one list for each input.
struct Capture
{
    explicit Capture(const QString &name)
    {
        QFile file(Target::path(FileInfo::storagePath() + name));
        if (!file.open(QIODevice::ReadOnly))
            return;
        WaveFileReader reader(&file);
        header = reader.header();
        for (WaveChunk chunk; reader.next(&chunk);) {
            const QByteArray bytes = reader.frames(chunk);
            for (int at = 0; at + kWaveFrameBytes <= bytes.size(); at += kWaveFrameBytes)
                take(bytes.constData() + at);
        }
        whole = reader.state() == WaveFileReader::Whole;
    }

    double rms(int input) const
    {
        double sum = 0;
        for (const double value : input_[input])
            sum += value * value;
        return std::sqrt(sum / double(input_[input].size()));
    }
    /// Share of a sine of 50 Hz in an input, and its angle in degrees: by correlation over whole periods.
    std::pair<double, double> fundamental(int input) const
    {
        double in = 0, across = 0;
        const int count = int(input_[input].size());
        for (int i = 0; i < count; ++i) {
            const double angle = 2 * kPi * 50.0 * i / header.sampleRate;
            in += input_[input][std::size_t(i)] * std::sin(angle);
            across += input_[input][std::size_t(i)] * std::cos(angle);
        }
        return { std::hypot(in, across) * std::sqrt(2.0) / count, std::atan2(across, in) * 180 / kPi };
    }

    WaveFileHeader header {};
    std::vector<double> input_[kWaveInputs];
    bool whole = false;

private:
    void take(const char *frame)
    {
        for (int input = 0; input < kWaveInputs; ++input) {
            qint16 sample = 0;
            std::memcpy(&sample, frame + 2 * input, sizeof sample);
            const float factor = input < 4 ? header.voltFactor[input] : header.ampereFactor[input - 4];
            input_[input].push_back(double(sample) * double(factor));
        }
    }
};

/// Difference of two angles, -180 to 180 degrees.
double between(double a, double b)
{
    return std::remainder(a - b, 360.0);
}

} // namespace

/// Waveform captures of the simulated supply, from the keys to the file.
class TstLiveWave : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void captureIsTheSupply_data();
    void captureIsTheSupply();

private:
    std::unique_ptr<LiveGraph> m_live;
};

void TstLiveWave::initTestCase()
{
    m_live.reset(new LiveGraph);
    QVERIFY2(m_live->start({}), qPrintable(m_live->desk().error()));
    m_basedialog->navigator().go(UI_MENU, UI_WAVE);
    QTRY_COMPARE(LiveGraph::text("name"), QStringLiteral("Wave"));
}

void TstLiveWave::cleanupTestCase()
{
    m_live.reset();
}

void TstLiveWave::captureIsTheSupply_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("rate");
    QTest::newRow("20480 per second") << 0 << 20480;
    QTest::newRow("10240 per second") << 1 << 10240;
    QTest::newRow("5120 per second") << 2 << 5120;
}

void TstLiveWave::captureIsTheSupply()
{
    QFETCH(int, index);
    QFETCH(int, rate);
    WaveInfo::m_sample_index = index;
    QVERIFY(LiveGraph::setSpeed(1));
    LiveGraph::key(Qt::Key_L); // Start
    const QString name = *WaveInfo::m_wave_file + WaveFile::suffix();
    QTRY_VERIFY_WITH_TIMEOUT(g_unitask, kPatienceMs);
    Clock::advance(11000);
    QVERIFY(QTest::qWaitFor([] { return g_unitask->isTaskRunning(); }, kPatienceMs));
    Clock::useSystem();
    QVERIFY(LiveGraph::setSpeed(8));
    QVERIFY(QTest::qWaitFor([] { return g_unitask->isTaskStoped(); }, kPatienceMs));
    QVERIFY2(LiveGraph::text("state").startsWith("The capture has ended."), qPrintable(LiveGraph::text("state")));
    LiveGraph::key(Qt::Key_L); // Back

    const Capture capture(name);
    QVERIFY(capture.whole);
    QCOMPARE(int(capture.header.sampleRate), rate);
    QCOMPARE(int(capture.input_[0].size()), rate * kSeconds);
    // Seams, samples at the wrong place or of another input would take away from what correlates with one sine.
    const double reference = capture.fundamental(0).second;
    for (int phase = 0; phase < 3; ++phase) {
        const auto [volts, voltAngle] = capture.fundamental(phase);
        const auto [amperes, ampereAngle] = capture.fundamental(4 + phase);
        QVERIFY2(std::fabs(volts - 230.0) < 0.5, qPrintable(QString::number(volts)));
        QVERIFY2(std::fabs(capture.rms(phase) - 230.0) < 0.5, qPrintable(QString::number(capture.rms(phase))));
        QVERIFY2(std::fabs(amperes - 1.0) < 0.005, qPrintable(QString::number(amperes)));
        QVERIFY2(std::fabs(between(voltAngle - reference, -120.0 * phase)) < 0.5,
                 qPrintable(QString::number(voltAngle - reference)));
        QVERIFY(std::fabs(between(ampereAngle, voltAngle)) < 45); // a load, not a source
    }
    QVERIFY2(capture.rms(3) < 5.0, qPrintable(QString::number(capture.rms(3)))); // neutral
}

int main(int argc, char **argv)
{
    return runInInstrument<TstLiveWave>(argc, argv);
}
#include "tst_livewave.moc"
