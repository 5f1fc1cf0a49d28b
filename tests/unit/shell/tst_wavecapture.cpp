#include "shellcase.h"

#include "device/datagramtypes.h"
#include "platform/clock.h"
#include "record/wavefile.h"
#include "settings/waveinfo.h"
#include "storage/fileinfo.h"
#include "task/unitask.h"
#include "unit/setup/typing.h"
#include "unit/storage/rootfiles.h"
#include "views/wave/wave.h"
#include "views/wave/wavemain.h"
#include "views/wave/wavesetup.h"

#include <QBuffer>

/// A waveform capture from the menu to the file.
class TstWaveCapture : public ShellCase
{
    Q_OBJECT

private slots:
    void captureGoesFromTheMenuToTheFile();
    void secondCaptureGetsAFileOfItsOwn();
    void userWhoStopsKeepsTheFile();
    void userWhoQuitsForAnotherPageKeepsNothing();
    void captureAtEachFrequencyEnds_data();
    void captureAtEachFrequencyEnds();

private:
    Wave *page() { return qobject_cast<Wave *>(m_basedialog->navigator().currentPage()); }
    WaveMain *main() { return page()->findChild<WaveMain *>(); }
    QString state() { return main()->findChild<QLabel *>("state")->text(); }
    void enterWave()
    {
        moveToTile("wave");
        QTest::keyClick(m_basedialog->menu(), kEnter);
    }
    /// From the menu to a capture that runs.
    void begin()
    {
        enterWave();
        QTest::keyClick(page()->findChild<WaveSetup *>(), kF5);
        g_unitask->startTask();
    }
    static void take(int datagrams)
    {
        for (int d = 0; d < datagrams && g_unitask; ++d)
            g_unitask->datagramWave(QByteArray(4 * Link::kWaveWords, '\0'));
    }
    static quint64 framesOf(const QString &name)
    {
        QByteArray content = RootFiles::read(FileInfo::storagePath() + name);
        QBuffer buffer(&content);
        buffer.open(QIODevice::ReadOnly);
        WaveFileReader reader(&buffer);
        quint64 frames = 0;
        for (WaveChunk chunk; reader.next(&chunk);)
            frames += quint64(chunk.frames);
        return reader.state() == WaveFileReader::Whole ? frames : 0;
    }
};

void TstWaveCapture::captureGoesFromTheMenuToTheFile()
{
    RootFiles::clean();
    enterWave();
    QCOMPARE(title(), QStringLiteral("Wave"));
    QVERIFY(page());
    QVERIFY(!m_taskmanage->currentTask()); // nothing starts by itself
    QTest::keyClick(page()->findChild<WaveSetup *>(), kF5);
    QCOMPARE(m_taskmanage->getUniFunction(), 2);
    QVERIFY(!g_unitask->isTaskRunning());
    QCOMPARE(state(), QStringLiteral("The capture waits for its start."));
    g_unitask->startTask();
    take(1);
    g_unitask->updatedata();
    QCOMPARE(state(), QStringLiteral("The capture is running."));
    take(49); // ten seconds
    QVERIFY(g_unitask->isTaskStoped());
    QCOMPARE(state(), QStringLiteral("The capture has ended.\nIts data stands in Memory."));
    QCOMPARE(framesOf("Wave_1.wav"), quint64(204800));
    QVERIFY(RootFiles::isIndexed("Wave_1.wav"));
    QTest::keyClick(main(), kF5);
    QVERIFY(!m_taskmanage->currentTask());
    QCOMPARE(page()->currentIndex(), int(Wave::Setup));
}

void TstWaveCapture::secondCaptureGetsAFileOfItsOwn()
{
    RootFiles::clean();
    begin();
    take(50);
    QTest::keyClick(main(), kF5);
    QTest::keyClick(page()->findChild<WaveSetup *>(), kF5);
    QCOMPARE(state(), QStringLiteral("The capture waits for its start."));
    g_unitask->startTask();
    take(50);
    QCOMPARE(framesOf("Wave_1.wav"), quint64(204800));
    QCOMPARE(framesOf("Wave_2.wav"), quint64(204800));
}

void TstWaveCapture::userWhoStopsKeepsTheFile()
{
    RootFiles::clean();
    begin();
    take(3);
    DialogDriver ok({ Typing::answered("Do you want to stop\n the current record?", 'F') });
    QTest::keyClick(main(), kF5);
    QVERIFY(ok.isDone());
    QVERIFY(g_unitask->isTaskStoped());
    QCOMPARE(framesOf("Wave_1.wav"), quint64(3 * 4096));
    QVERIFY(RootFiles::isIndexed("Wave_1.wav"));
}

void TstWaveCapture::userWhoQuitsForAnotherPageKeepsNothing()
{
    RootFiles::clean();
    begin();
    take(3);
    DialogDriver quit({ DialogDriver::press("F") });
    QTest::keyClick(main(), kF7);
    QVERIFY(quit.isDone());
    QCOMPARE(title(), QStringLiteral("Menu"));
    QVERIFY(!RootFiles::exists("/mnt/storage/Wave_1.wav"));
    QVERIFY(!RootFiles::isIndexed("Wave_1.wav"));
    QCOMPARE(WaveInfo::m_in_waving, 0);
    enterWave();
    QCOMPARE(page()->currentIndex(), int(Wave::Setup));
}

void TstWaveCapture::captureAtEachFrequencyEnds_data()
{
    QTest::addColumn<int>("frequency"); // 1 to 3: 50, 60, 400 Hz
    QTest::newRow("50 Hz") << 1;
    QTest::newRow("60 Hz") << 2;
    QTest::newRow("400 Hz") << 3;
}

void TstWaveCapture::captureAtEachFrequencyEnds()
{
    QFETCH(int, frequency);
    RootFiles::clean();
    m_settingConfig_g.setNomFreq(frequency);
    begin();
    take(50);
    QVERIFY(g_unitask->isTaskStoped());
    QCOMPARE(framesOf("Wave_1.wav"), quint64(204800));
}

QTEST_MAIN(TstWaveCapture)
#include "tst_wavecapture.moc"
