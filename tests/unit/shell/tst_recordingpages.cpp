// What the recorder's pages ask of the shell, and what they hear of the task.
#include "shellcase.h"
#include "unit/storage/rootfiles.h"
#include "unit/widgets/dialogdriver.h"

#include "device/datagramtypes.h"
#include "platform/clock.h"

#include "settings/loggerinfo.h"
#include "shell/pagetable.h"
#include "shell/tasklinks.h"
#include "task/unitask.h"
#include "views/recorder/recordingsetup.h"
#include "views/recorder/recordingstart.h"
#include "views/recorder/recordpqa2page.h"
#include "views/vif/vifmain.h"
#include "views/vif/vifpage.h"

#include <QPointer>

#include <algorithm>
#include <cstring>
#include <memory>

class TstRecordingPages : public ShellCase
{
    Q_OBJECT

private slots:
    void startArmsARecordingInARunOfItsOwn();
    void aRunThatGoesOnTakesTheRecording();
    void planOnThePageIsTheTasks();
    void saveEndsTheRecordingAndNoMore();
    void restartPlansAnew();
    void anAnswerCountsForARecordingThatEndedMeanwhile_data();
    void anAnswerCountsForARecordingThatEndedMeanwhile();
    void comingBackShowsTheRecordingOrANewPlan();
    void recordingTimeReachesThePageInsteadOfTheRuns();
    void restartInTheQuestionOfAnotherPageKeepsThatPageLive();
    void loggersPagesRunTheirOwnFunction();

private:
    static RecordPqa2Page *recorder()
    {
        return static_cast<RecordPqa2Page *>(m_basedialog->navigator().page(UI_LOGGER));
    }
    static void enterLogger()
    {
        moveToTile("logger");
        QTest::keyClick(m_basedialog->menu(), kEnter);
        QCOMPARE(title(), QStringLiteral("Logger"));
    }
    static QString shown(const char *label)
    {
        return recorder()->currentPage()->findChild<QLabel *>(QLatin1String(label))->text();
    }
    /// A waveform of that moment, ms since 1970, comes from the processor.
    static void hear(qint64 time)
    {
        QByteArray payload(Link::kWaveWords * 4, '\0');
        std::memcpy(payload.data(), &time, sizeof time);
        g_unitask->datagramWave(payload);
    }
    static void press(Qt::Key letter) { QTest::keyClick(recorder()->currentPage(), letter); }
};

void TstRecordingPages::startArmsARecordingInARunOfItsOwn()
{
    enterLogger();
    QVERIFY(!m_taskmanage->currentTask()); // no measurement before the user's command
    press(kF5);
    QVERIFY(m_taskmanage->currentTask());
    QCOMPARE(m_taskmanage->getUniFunction(), int(AbstractTask::UniBasic));
    QVERIFY(g_unitask->recordEnabled());
    QCOMPARE(RecordInfo::m_in_recording, 1);
    QCOMPARE(recorder()->currentIndex(), int(RecordPqa2Page::Start));
    QVERIFY(shown("text").startsWith("Logger waits for its start."));
}

void TstRecordingPages::aRunThatGoesOnTakesTheRecording()
{
    enterVif();
    g_unitask->startTask();
    const UniTask *task = g_unitask;
    m_basedialog->navigator().go(UI_VIF, UI_MENU);
    enterLogger();
    press(kF5);
    QCOMPARE(static_cast<const UniTask *>(g_unitask), task);
    QVERIFY(g_unitask->recordEnabled());
    QVERIFY(g_unitask->isTaskRunning());
}

void TstRecordingPages::planOnThePageIsTheTasks()
{
    RecordInfo::m_duration = 30;
    enterLogger();
    press(kF5);
    QCOMPARE(g_unitask->recordLife(), qint64(30) * 3600 * 1000);
    QCOMPARE(shown("duration"), QStringLiteral("1 d, 6 hr"));
    QCOMPARE(shown("start"), RecordingText::moment(g_unitask->recordStart()));
    RecordInfo::m_duration = 2;
}

void TstRecordingPages::saveEndsTheRecordingAndNoMore()
{
    enterLogger();
    press(kF5);
    g_unitask->startTask();
    const UniTask *task = g_unitask;
    DialogAnswer save(kF4);
    press(kF5);
    QVERIFY(save.asked);
    QCOMPARE(RecordInfo::m_in_recording, 0);
    QCOMPARE(static_cast<const UniTask *>(g_unitask), task);
    QVERIFY(g_unitask->isTaskRunning());
    QVERIFY(!g_unitask->recordEnabled());
    QCOMPARE(recorder()->currentIndex(), int(RecordPqa2Page::Setup));
}

void TstRecordingPages::restartPlansAnew()
{
    enterLogger();
    press(kF5);
    g_unitask->startTask();
    emit g_unitask->recordTimeChanged(QStringLiteral("00:12:00"));
    QVERIFY(shown("text").startsWith("Logger is running."));
    DialogAnswer restart(Qt::Key_Y);
    press(kF5);
    QVERIFY(restart.asked);
    QCOMPARE(RecordInfo::m_in_recording, 1);
    QVERIFY(g_unitask->recordEnabled());
    QCOMPARE(recorder()->currentIndex(), int(RecordPqa2Page::Start));
    QVERIFY(shown("text").startsWith("Logger waits for its start."));
}

void TstRecordingPages::anAnswerCountsForARecordingThatEndedMeanwhile_data()
{
    QTest::addColumn<_quvera_ui_type>("target"); // whose key asks; the logger's own page: Stop
    QTest::addColumn<Qt::Key>("answer");
    QTest::addColumn<bool>("stays");
    QTest::addRow("Stop, Save") << UI_LOGGER << kF4 << true;
    QTest::addRow("Stop, Exit") << UI_LOGGER << kF1 << false;
    QTest::addRow("Stop, Restart") << UI_LOGGER << Qt::Key_Y << false;
    QTest::addRow("Setup, Save") << UI_SETUP << kF4 << true;
    QTest::addRow("Setup, Exit") << UI_SETUP << kF1 << false;
    QTest::addRow("Setup, Restart") << UI_SETUP << Qt::Key_Y << false;
}

void TstRecordingPages::anAnswerCountsForARecordingThatEndedMeanwhile()
{
    QFETCH(_quvera_ui_type, target);
    QFETCH(Qt::Key, answer);
    QFETCH(bool, stays);
    RootFiles::clean();
    enterLogger();
    RecordInfo::m_begain_time = Clock::seconds() + 3600;
    *RecordInfo::m_record_file = QStringLiteral("Ended");
    emit m_taskmanage->links().recordWanted();
    recorder()->enter();
    hear(g_unitask->recordStart());
    QVERIFY(g_unitask->isRecording());
    const QString folder = g_unitask->recorder().folder().path();
    QVERIFY(RootFiles::exists(folder));
    DialogDriver ends({ [answer](QDialog *dialog) {
        hear(g_unitask->recordEnd());
        QVERIFY(!g_unitask->isRecording());
        QTest::keyClick(dialog, answer);
    } });
    if (target == UI_LOGGER)
        press(kF5);
    else
        m_basedialog->navigator().go(UI_LOGGER, target);
    QVERIFY(ends.isDone());
    QCOMPARE(RootFiles::exists(folder), stays);
    RecordInfo::m_begain_time = 0;
}

void TstRecordingPages::comingBackShowsTheRecordingOrANewPlan()
{
    enterLogger();
    press(kF5);
    g_unitask->startTask();
    m_basedialog->navigator().go(UI_LOGGER, UI_VIF); // no question on the way
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
    m_basedialog->navigator().go(UI_VIF, UI_LOGGER);
    QCOMPARE(recorder()->currentIndex(), int(RecordPqa2Page::Start));
    m_basedialog->navigator().go(UI_LOGGER, UI_VIF);
    g_unitask->stopRecordTask(); // at its end
    m_basedialog->navigator().go(UI_VIF, UI_LOGGER);
    QCOMPARE(recorder()->currentIndex(), int(RecordPqa2Page::Setup));
    QVERIFY(m_taskmanage->currentTask());
}

void TstRecordingPages::recordingTimeReachesThePageInsteadOfTheRuns()
{
    enterLogger();
    press(kF5);
    g_unitask->startTask();
    emit g_unitask->stopWatchChanged(QStringLiteral("01:00:00"));
    emit g_unitask->recordTimeChanged(QStringLiteral("00:00:07"));
    QCOMPARE(shown("stop_watch"), QStringLiteral("00:00:07"));
    m_basedialog->navigator().go(UI_LOGGER, UI_VIF);
    emit g_unitask->recordTimeChanged(QStringLiteral("00:00:09"));
    m_basedialog->navigator().go(UI_VIF, UI_LOGGER);
    QCOMPARE(shown("stop_watch"), QStringLiteral("00:00:09"));
}

void TstRecordingPages::restartInTheQuestionOfAnotherPageKeepsThatPageLive()
{
    enterLogger();
    press(kF5);
    g_unitask->startTask();
    m_basedialog->navigator().go(UI_LOGGER, UI_VIF);
    DialogAnswer restart(Qt::Key_Y);
    m_basedialog->navigator().go(UI_VIF, UI_SETUP);
    QVERIFY(restart.asked);
    QCOMPARE(title(), QStringLiteral("Volts/Amps/Hertz"));
    QVERIFY(g_unitask->recordEnabled());
    emit g_unitask->stopWatchChanged(QStringLiteral("00:00:42"));
    auto *vif = static_cast<VifPage *>(m_basedialog->navigator().page(UI_VIF));
    QCOMPARE(vif->currentPage()->findChild<QLabel *>("stop_watch")->text(), QStringLiteral("00:00:42"));
}

void TstRecordingPages::loggersPagesRunTheirOwnFunction()
{
    const std::vector<PageRow> &rows = PageTable::rows();
    const auto row = std::find_if(rows.begin(), rows.end(), [](const PageRow &r) { return r.plan == Plan::Unreached; });
    QVERIFY(row != rows.end() && row->type == UI_LOGGER);
    RootFiles::clean();
    const std::unique_ptr<FunctionPage> made(row->make(m_taskmanage->links(), m_taskmanage->data()));
    auto *page = qobject_cast<LoggerPage *>(made.get());
    QVERIFY(page);
    const auto answer = [page](Qt::Key key) {
        DialogAnswer question(key);
        QTest::keyClick(page->currentPage(), kF5);
        return question.asked;
    };
    const QString file = QStringLiteral("/mnt/storage/Logger_1_00.csv");
    LoggerInfo::m_duration = 30;
    page->enter();
    QTest::keyClick(page->currentPage(), kF5);
    QCOMPARE(m_taskmanage->getUniFunction(), int(AbstractTask::UniLogger));
    QCOMPARE(LoggerInfo::m_in_logging, 1);
    QVERIFY(RootFiles::exists(file));
    QCOMPARE(page->currentIndex(), int(LoggerPage::Start));
    QCOMPARE(page->currentPage()->findChild<QLabel *>("duration")->text(), QStringLiteral("1 d, 6 hr"));
    const QPointer<UniTask> first = g_unitask;
    QVERIFY(answer(Qt::Key_Y)); // Restart: a run of its own
    QVERIFY(g_unitask && g_unitask != first);
    QCOMPARE(LoggerInfo::m_in_logging, 1);
    QVERIFY(RootFiles::exists(file));
    g_unitask->startTask(); // it measures
    QVERIFY(answer(kF4)); // Save
    QCOMPARE(LoggerInfo::m_in_logging, 0);
    QVERIFY(g_unitask->isTaskStoped());
    QVERIFY(RootFiles::exists(file));
    QCOMPARE(page->currentIndex(), int(LoggerPage::Setup));
    QCOMPARE(*LoggerInfo::m_logger_file, QStringLiteral("Logger_2"));
    QTest::keyClick(page->currentPage(), kF5);
    QVERIFY(RootFiles::exists(QStringLiteral("/mnt/storage/Logger_2_00.csv")));
    QVERIFY(answer(kF1)); // Exit
    QTRY_VERIFY_WITH_TIMEOUT(!RootFiles::exists(QStringLiteral("/mnt/storage/Logger_2_00.csv")), 30000);
    QVERIFY(RootFiles::exists(file));
    LoggerInfo::m_duration = 2;
}

QTEST_MAIN(TstRecordingPages)
#include "tst_recordingpages.moc"
