#include "pagetest.h"
#include "platform/clock.h"
#include "settings/localtime.h"
#include "settings/userconfig.h"
#include "settings/waveinfo.h"
#include "storage/fileinfo.h"
#include "unit/setup/typing.h"
#include "unit/storage/rootfiles.h"
#include "views/wave/wave.h"
#include "views/wave/wavemain.h"
#include "views/wave/waveprogressbar.h"
#include "views/wave/wavesetup.h"

#include <QSignalSpy>

using namespace PageTest;

namespace {

const QDateTime kToday(QDate(2026, 3, 1), QTime(12, 30, 20), Qt::UTC);

void store(const QString &name)
{
    FileInfo().saveInfo(name, kToday);
    RootFiles::write(FileInfo::storagePath() + name, "x");
}

} // namespace

/// Pages of the waveform capture.
class TstWave : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void entryShowsTheSetupAndStartsNothing();
    void durationStopsAtItsBounds();
    void roomLimitsTheDuration_data();
    void roomLimitsTheDuration();
    void durationIsHeldToTheRoom();
    void ratesAreSteppedOneByOne();
    void everyCaptureHasANameOfItsOwn();
    void typedNameStaysUntilItIsTaken();
    void droppedNameChangesNothing();
    void nameOfAStoredFileIsAskedFor();
    void aCaptureThatTheIndexForgotIsAskedFor();
    void withoutRoomNothingStarts();
    void withoutAFreeNameStartAsksForOne();
    void downAndF1GoOnAndUpGoesBack();
    void enterChoosesATimedStart();
    void f5WorksOutTheCaptureAndStartsIt();
    void timedStartIsAMomentOfTheUsersZone();
    void captureThatWaitsHasNoTimeYet();
    void captureThatRunsShowsItsProgress();
    void f5AsksBeforeItStops();
    void stoppedCaptureIsShownUntilTheUserGoesBack();
    void timeOfTheCaptureBeforeIsNotShownOnTheSetup();
    void captureWithoutDataSaysSo();
    void storageThatTookNoMoreIsTold();
    void endOfAnotherRunChangesNothing();
    void runningCaptureIsShownAsItStands();
    void savesAPictureOnly();
    void barFillsWithThePercent();
    void longNamesFit();

private:
    WaveSetup *setup() { return static_cast<WaveSetup *>(m_page->page(Wave::Setup)); }
    WaveMain *main() { return static_cast<WaveMain *>(m_page->page(Wave::Main)); }
    void start()
    {
        m_page->enter();
        press(setup(), F5);
    }
    void measure(int percent, int seconds)
    {
        live().wave.begin = quint32(kToday.toSecsSinceEpoch());
        live().wave.percent = percent;
        live().wave.seconds = seconds;
        m_page->updateDisplay(nullptr);
    }
    std::unique_ptr<Wave> m_page;
};

void TstWave::init()
{
    RootFiles::clean();
    Clock::setForTest(kToday.toMSecsSinceEpoch());
    WaveInfo::m_in_waving = 0;
    WaveInfo::m_wave_file->clear();
    WaveInfo::m_sample_index = 0;
    WaveInfo::m_duration = 10;
    m_page = openedPage<Wave>();
    m_page->enter();
}

void TstWave::cleanup()
{
    m_page.reset();
    WaveInfo::m_in_waving = 0;
    Clock::useSystem();
}

void TstWave::entryShowsTheSetupAndStartsNothing()
{
    QSignalSpy started(m_page.get(), &Wave::startWaveTask);
    m_page->enter();
    QCOMPARE(m_page->currentIndex(), int(Wave::Setup));
    QCOMPARE(started.count(), 0);
    QCOMPARE(text(setup(), "duration_t"), QStringLiteral("Duration:"));
    QCOMPARE(text(setup(), "duration"), QStringLiteral("10 s"));
    QCOMPARE(text(setup(), "sample_rate"), QStringLiteral("20480 Hz"));
    QCOMPARE(text(setup(), "file_name"), QStringLiteral("Wave_1"));
    QCOMPARE(text(setup(), "start"), QStringLiteral("Immediate"));
    QCOMPARE(text(setup(), "year_t"), QStringLiteral("Year"));
    QCOMPARE(text(setup(), "minutes"), QStringLiteral("30"));
    QCOMPARE(text(setup(), "memory_t"), QStringLiteral("Memory Available:"));
    QVERIFY(text(setup(), "memory").endsWith(" MB"));
    QVERIFY(text(setup(), "memory").section(' ', 0, 0).toInt() > 0);
    QCOMPARE(text(setup(), "btn_f1"), QStringLiteral("Next"));
    QCOMPARE(text(setup(), "btn_f5"), QStringLiteral("Start"));
}

void TstWave::durationStopsAtItsBounds()
{
    press(setup(), Left);
    QCOMPARE(WaveInfo::m_duration, 10);
    press(setup(), Right);
    QCOMPARE(text(setup(), "duration"), QStringLiteral("11 s"));
    WaveInfo::m_duration = 590;
    hold(setup(), Right, 20);
    release(setup(), Right);
    QCOMPARE(WaveInfo::m_duration, 600);
    hold(setup(), Left, 40);
    release(setup(), Left);
    QCOMPARE(WaveInfo::m_duration, 10);
}

void TstWave::roomLimitsTheDuration_data()
{
    QTest::addColumn<int>("room"); // MB
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("seconds");
    // A second takes 16 bytes for each frame and 4 for each of five chunks; 5 MB stay free.
    QTest::newRow("plenty") << 30000 << 20480 << 600;
    QTest::newRow("100 MB at the full rate") << 105 << 20480 << 319; // 104857600 / 327700
    QTest::newRow("100 MB at half the rate") << 105 << 10240 << 600; // 639
    QTest::newRow("30 MB at a quarter") << 35 << 5120 << 383; // 31457280 / 81940
    QTest::newRow("just the shortest") << 9 << 20480 << 12; // 4194304 / 327700
    QTest::newRow("not the shortest") << 8 << 20480 << 0; // 9.6
    QTest::newRow("what stays free") << 5 << 5120 << 0;
    QTest::newRow("nothing") << 0 << 5120 << 0;
}

void TstWave::roomLimitsTheDuration()
{
    QFETCH(int, room);
    QFETCH(int, rate);
    QFETCH(int, seconds);
    QCOMPARE(WaveInfo::maxDuration(room, rate), seconds);
}

void TstWave::durationIsHeldToTheRoom()
{
    WaveInfo::m_duration = 700;
    WaveInfo::checkMaxDuration();
    QVERIFY(WaveInfo::m_storage_room > 0);
    QCOMPARE(WaveInfo::m_max_duration, WaveInfo::maxDuration(WaveInfo::m_storage_room, 20480));
    QCOMPARE(WaveInfo::m_duration, qMax(WaveInfo::m_max_duration, 10));
}

void TstWave::ratesAreSteppedOneByOne()
{
    press(setup(), Down);
    press(setup(), Right);
    QCOMPARE(text(setup(), "sample_rate"), QStringLiteral("20480 Hz"));
    press(setup(), Left);
    QCOMPARE(text(setup(), "sample_rate"), QStringLiteral("10240 Hz"));
    hold(setup(), Left, 8);
    release(setup(), Left);
    QCOMPARE(text(setup(), "sample_rate"), QStringLiteral("5120 Hz"));
    press(setup(), Right);
    QCOMPARE(WaveInfo::m_sample_index, 1);
}

void TstWave::everyCaptureHasANameOfItsOwn()
{
    store("Wave_1.wav");
    store("Wave_2.wav");
    m_page->enter();
    QCOMPARE(*WaveInfo::m_wave_file, QStringLiteral("Wave_3"));
}

void TstWave::typedNameStaysUntilItIsTaken()
{
    press(setup(), Down, 2);
    DialogDriver driver({ Typing::typed("Pump") });
    press(setup(), Enter);
    QVERIFY(driver.isDone());
    QCOMPARE(text(setup(), "file_name"), QStringLiteral("Pump"));
    m_page->enter();
    QCOMPARE(text(setup(), "file_name"), QStringLiteral("Pump"));
    store("Pump.wav");
    m_page->enter();
    QCOMPARE(text(setup(), "file_name"), QStringLiteral("Wave_1"));
}

void TstWave::droppedNameChangesNothing()
{
    press(setup(), Down, 2);
    DialogDriver driver({ Typing::droppedAfter("Pump") });
    press(setup(), Enter);
    QVERIFY(driver.isDone());
    QCOMPARE(*WaveInfo::m_wave_file, QStringLiteral("Wave_1"));
}

void TstWave::nameOfAStoredFileIsAskedFor()
{
    store("Pump.png"); // entries are told apart without their suffix
    *WaveInfo::m_wave_file = "Pump";
    QSignalSpy started(m_page.get(), &Wave::startWaveTask);
    const QString question = "The file \"Pump.png\" is exist.\nDo you want to overwrite it?";
    DialogDriver no({ Typing::answered(question, 'L') });
    press(setup(), F5);
    QVERIFY(no.isDone());
    QCOMPARE(started.count(), 0);
    QVERIFY(FileInfo().testFileexist("Pump.png"));
    DialogDriver yes({ Typing::answered(question, 'F') });
    press(setup(), F5);
    QVERIFY(yes.isDone());
    QCOMPARE(started.count(), 1);
    QVERIFY(!RootFiles::exists("/mnt/storage/Pump.png"));
    QVERIFY(!RootFiles::isIndexed("Pump.png"));
}

void TstWave::aCaptureThatTheIndexForgotIsAskedFor()
{
    RootFiles::write("/mnt/storage/Pump.wav", "data"); // a picture "Pump.png" took its entry, and was deleted
    *WaveInfo::m_wave_file = "Pump";
    QSignalSpy started(m_page.get(), &Wave::startWaveTask);
    DialogDriver no({ Typing::answered("The file \"Pump.wav\" is exist.\nDo you want to overwrite it?", 'L') });
    press(setup(), F5);
    QVERIFY(no.isDone());
    QCOMPARE(started.count(), 0);
    QCOMPARE(RootFiles::read("/mnt/storage/Pump.wav"), QByteArray("data"));
}

void TstWave::withoutRoomNothingStarts()
{
    // A file system that never has any.
    const QString storage = Target::path("/mnt/storage");
    QVERIFY(QDir(storage).removeRecursively() && QFile::link("/proc", storage));
    QSignalSpy started(m_page.get(), &Wave::startWaveTask);
    DialogDriver driver({ Typing::answered("There is no room for a capture.\nDelete files in Memory.") });
    press(setup(), F5);
    const QString shown = text(setup(), "memory");
    QVERIFY(QFile::remove(storage));
    RootFiles::clean();
    QVERIFY(driver.isDone());
    QCOMPARE(started.count(), 0);
    QCOMPARE(m_page->currentIndex(), int(Wave::Setup));
    QCOMPARE(WaveInfo::m_in_waving, 0);
    QCOMPARE(shown, QStringLiteral("0 MB"));
    QCOMPARE(WaveInfo::m_duration, 10); // the shortest stays
}

void TstWave::withoutAFreeNameStartAsksForOne()
{
    QByteArray index;
    for (int n = 1; n <= 999; ++n)
        index += "Wave_" + QByteArray::number(n) + ".wav,2024-01-18 16:15:09\n";
    RootFiles::write(FileInfo::indexPath(), index);
    m_page->enter();
    QCOMPARE(text(setup(), "file_name"), QString());
    QSignalSpy started(m_page.get(), &Wave::startWaveTask);
    DialogDriver keyboard({ Typing::typed("Pump") });
    press(setup(), F5);
    QVERIFY(keyboard.isDone());
    QCOMPARE(started.count(), 0);
    QCOMPARE(text(setup(), "file_name"), QStringLiteral("Pump"));
    press(setup(), F5);
    QCOMPARE(started.count(), 1);
}

void TstWave::downAndF1GoOnAndUpGoesBack()
{
    QCOMPARE(setup()->field(), 0);
    press(setup(), Down);
    press(setup(), F1);
    QCOMPARE(setup()->field(), 2);
    press(setup(), F1, 5); // the date is grey, the room is shown only
    QCOMPARE(setup()->field(), 3);
    press(setup(), Up);
    QCOMPARE(setup()->field(), 2);
}

void TstWave::enterChoosesATimedStart()
{
    press(setup(), Down, 3);
    press(setup(), Enter);
    QCOMPARE(text(setup(), "start"), QStringLiteral("Timed"));
    press(setup(), Down, 5);
    press(setup(), Right);
    QCOMPARE(text(setup(), "minutes"), QStringLiteral("31"));
    m_page->enter(); // another capture begins at once again
    QCOMPARE(text(setup(), "start"), QStringLiteral("Immediate"));
}

void TstWave::f5WorksOutTheCaptureAndStartsIt()
{
    int frames = 0, step = 0, waving = 0;
    connect(m_page.get(), &Wave::startWaveTask, this, [&] {
        frames = WaveInfo::m_points_numb;
        step = WaveInfo::m_step;
        waving = WaveInfo::m_in_waving;
    });
    WaveInfo::m_duration = 25;
    WaveInfo::m_sample_index = 2;
    press(setup(), F5);
    QCOMPARE(frames, 25 * 5120);
    QCOMPARE(step, 4);
    QCOMPARE(waving, 1);
    QCOMPARE(WaveInfo::m_begain_time, 0u); // at once
    QCOMPARE(m_page->currentIndex(), int(Wave::Main));
}

void TstWave::timedStartIsAMomentOfTheUsersZone()
{
    m_userConfig_g.setTimeZone("Asia/Tokyo"); // nine hours ahead, the whole year
    m_page->enter();
    press(setup(), Down, 3);
    press(setup(), Right);
    press(setup(), Down, 5);
    press(setup(), Right, 2);
    press(setup(), F5);
    m_userConfig_g.setTimeZone("UTC");
    const QDateTime planned(QDate(2026, 3, 1), QTime(12, 32), Qt::UTC); // 21:32 in Tokyo
    QCOMPARE(WaveInfo::m_begain_time, quint32(planned.toSecsSinceEpoch()));
}

void TstWave::captureThatWaitsHasNoTimeYet()
{
    start();
    QCOMPARE(text(main(), "state"), QStringLiteral("The capture waits for its start."));
    QCOMPARE(text(main(), "file_name"), QStringLiteral("Wave_1.wav"));
    QCOMPARE(text(main(), "begin"), QStringLiteral("---------- --:--:--"));
    QCOMPARE(text(main(), "duration"), QStringLiteral("10 s"));
    QCOMPARE(text(main(), "remaining"), QStringLiteral("00:00:10"));
    QCOMPARE(text(main(), "btn_f5"), QStringLiteral("Stop"));
    WaveInfo::m_begain_time = quint32(kToday.toSecsSinceEpoch()) + 3600; // planned
    m_page->updateDisplay(nullptr);
    QCOMPARE(text(main(), "begin"), QStringLiteral("2026-03-01 13:30:20"));
    QCOMPARE(text(main(), "state"), QStringLiteral("The capture waits for its start."));
    WaveInfo::m_begain_time = 0;
}

void TstWave::captureThatRunsShowsItsProgress()
{
    start();
    m_page->stopWatchChanged("00:00:03");
    measure(30, 7);
    QCOMPARE(text(main(), "state"), QStringLiteral("The capture is running."));
    QCOMPARE(text(main(), "begin"), QStringLiteral("2026-03-01 12:30:20"));
    QCOMPARE(text(main(), "remaining"), QStringLiteral("00:00:07"));
    QCOMPARE(text(main(), "stop_watch"), QStringLiteral("00:00:03"));
    QCOMPARE(main()->findChild<WaveProgressBar *>()->percent(), 30);
    measure(1, 3725);
    QCOMPARE(text(main(), "remaining"), QStringLiteral("01:02:05"));
}

void TstWave::f5AsksBeforeItStops()
{
    start();
    measure(30, 7);
    QSignalSpy stopped(m_page.get(), &Wave::stopTaskWithSave);
    const QString question = "Do you want to stop\n the current record?";
    DialogDriver cancel({ Typing::answered(question, 'L') });
    press(main(), F5);
    QVERIFY(cancel.isDone());
    QCOMPARE(stopped.count(), 0);
    DialogDriver ok({ Typing::answered(question, 'F') });
    press(main(), F5);
    QVERIFY(ok.isDone());
    QCOMPARE(stopped.count(), 1);
    QCOMPARE(stopped.first().first().toBool(), true);
    QCOMPARE(m_page->currentIndex(), int(Wave::Main));
}

void TstWave::stoppedCaptureIsShownUntilTheUserGoesBack()
{
    start();
    measure(40, 6);
    m_page->taskStoped();
    QCOMPARE(WaveInfo::m_in_waving, 0);
    QCOMPARE(text(main(), "state"), QStringLiteral("The capture has ended.\nIts data stands in Memory."));
    QCOMPARE(text(main(), "btn_f5"), QStringLiteral("Back"));
    QCOMPARE(main()->findChild<WaveProgressBar *>()->percent(), 40);
    int shown = -1;
    connect(m_page.get(), &Wave::exitTask, this, [&] { shown = m_page->currentIndex(); });
    press(main(), F5);
    QCOMPARE(shown, int(Wave::Main)); // the task ends first
    QCOMPARE(m_page->currentIndex(), int(Wave::Setup));
}

void TstWave::timeOfTheCaptureBeforeIsNotShownOnTheSetup()
{
    start();
    m_page->stopWatchChanged(QStringLiteral("00:00:10"));
    QCOMPARE(text(main(), "stop_watch"), QStringLiteral("00:00:10"));
    m_page->taskStoped();
    press(main(), F5);
    QCOMPARE(m_page->currentIndex(), int(Wave::Setup));
    QCOMPARE(text(setup(), "stop_watch"), QString());
}

void TstWave::captureWithoutDataSaysSo()
{
    start();
    m_page->taskStoped();
    QCOMPARE(text(main(), "state"), QStringLiteral("The capture was ended\nbefore it had data."));
    QCOMPARE(text(main(), "btn_f5"), QStringLiteral("Back"));
}

void TstWave::storageThatTookNoMoreIsTold()
{
    start();
    live().wave.refused = true;
    measure(40, 6);
    m_page->taskStoped();
    QCOMPARE(text(main(), "state"),
             QStringLiteral("The storage takes no more data.\nWhat was captured stands in Memory."));
}

void TstWave::endOfAnotherRunChangesNothing()
{
    m_page->taskStoped();
    QCOMPARE(m_page->currentIndex(), int(Wave::Setup));
    QCOMPARE(WaveInfo::m_in_waving, 0);
}

void TstWave::runningCaptureIsShownAsItStands()
{
    start();
    measure(40, 6);
    m_page->enter();
    QCOMPARE(m_page->currentIndex(), int(Wave::Main));
    m_page->taskStoped();
    m_page->enter();
    QCOMPARE(m_page->currentIndex(), int(Wave::Setup));
}

void TstWave::savesAPictureOnly()
{
    QCOMPARE(m_page->saveIdentity().windowId, 10);
    QCOMPARE(QString(m_page->saveIdentity().defaultName), QStringLiteral("Wave"));
    QVERIFY(m_page->pqaData().isEmpty());
}

void TstWave::barFillsWithThePercent()
{
    WaveProgressBar bar;
    bar.resize(202, 30);
    const auto filled = [&bar](int x) { return bar.grab().toImage().pixelColor(x, 3).blue() > 150; };
    QVERIFY(!filled(5));
    bar.setPercent(25);
    QVERIFY(filled(45) && !filled(55));
    bar.setPercent(100);
    QVERIFY(filled(195));
    bar.setPercent(1000);
    QCOMPARE(bar.percent(), 100);
    bar.setPercent(-3);
    QCOMPARE(bar.percent(), 0);
}

void TstWave::longNamesFit()
{
    start();
    *WaveInfo::m_wave_file = QString(32, 'W');
    m_page->updateDisplay(nullptr);
    const auto *label = main()->findChild<QLabel *>("file_name");
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
    QVERIFY(label->text().endsWith(".wav"));
    QVERIFY(holds(main(), "begin", "2026-03-01 12:30:20"));
}

PAGE_TEST_MAIN(TstWave)
#include "tst_wave.moc"
