// A capture whose instrument is killed is a file that can be read.
#include "instrument.h"

#include "record/wavefile.h"

#include <QFile>
#include <QFileInfo>

using namespace SystemTest;

namespace {

constexpr int kWaitMs = 60000; // for what takes ten seconds on a quiet machine
constexpr qint64 kSomeChunks = 88 + 4 * 65540;

QStringList keys(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

} // namespace

class TstKilledCapture : public QObject
{
    Q_OBJECT
private slots:
    void killedInstrumentLeavesWhatItsHeadCounts();

private:
    QString file() const { return m_desk->path(QStringLiteral("/mnt/storage/Wave_1.wav")); }
    QByteArray content(const char *boardPath) const
    {
        QFile found(m_desk->path(QLatin1String(boardPath)));
        return found.open(QIODevice::ReadOnly) ? found.readAll() : QByteArray();
    }
    struct Found
    {
        WaveFileReader::State state;
        qint64 counted; // by the head
        qint64 frames;
    };
    Found read() const
    {
        QFile device(file());
        device.open(QIODevice::ReadOnly);
        WaveFileReader reader(&device);
        qint64 frames = 0;
        for (WaveChunk chunk; reader.next(&chunk);)
            frames += chunk.frames;
        return { reader.state(), qint64(reader.header().frames), frames };
    }

    std::unique_ptr<Instrument> m_desk;
};

void TstKilledCapture::killedInstrumentLeavesWhatItsHeadCounts()
{
    m_desk = std::make_unique<Instrument>();
    VERIFY_DESK(m_desk->start(), *m_desk);
    VERIFY_DESK(m_desk->press(keys("Down Down Enter")), *m_desk); // from "Volts/Amps/Hertz" to "Wave"
    VERIFY_DESK(m_desk->press(keys("F5")), *m_desk);
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo(file()).size() > kSomeChunks, kWaitMs);
    m_desk->instrument().kill();
    QVERIFY(m_desk->instrument().waitForFinished());
    const Found found = read();
    QVERIFY(found.state == WaveFileReader::Whole || found.state == WaveFileReader::Cut);
    QVERIFY(found.counted >= 4 * 4096);
    QVERIFY(found.frames >= found.counted);
    QVERIFY(content("/mnt/storage/.infomation").contains("Wave_1.wav,"));
}

QTEST_MAIN(TstKilledCapture)
#include "tst_killedcapture.moc"
