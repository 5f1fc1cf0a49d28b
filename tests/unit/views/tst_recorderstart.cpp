#include "recordercase.h"

#include "platform/clock.h"
#include "platform/target.h"
#include "unit/markedlanguage.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTimer>

using namespace RecorderCase;

namespace {

constexpr qint64 kHour = 3600000;
// 2024-01-18 16:15:09 UTC
constexpr qint64 kBegin = 1705594509000;

const QString kRunning = QStringLiteral("Logger is running.\nSwith to other page to see real time data and details.");
const QString kWaiting
    = QStringLiteral("Logger waits for its start.\nSwith to other page to see real time data and details.");
const QString kEnded = QStringLiteral("Logger has ended.\nIts data stands in Memory.");

} // namespace

/// Recorder and logger under way: what is shown, and what the user may answer.
class TstRecorderStart : public QObject
{
    Q_OBJECT

private slots:
    void init() { nothingChosen(); }

    void waitsRunsAndEnds_data() { addFamilies(); }
    void waitsRunsAndEnds();
    void planIsShownInLocalTime();
    void stopWatchShowsTheTimeOfTheRecording();
    void answersOfTheQuestion_data();
    void answersOfTheQuestion();
    void questionTellsWhatEachKeyDoes();
    void restartShowsTheNewRecordingWaiting();
    void f5AfterTheEndLeadsToANewPlan_data() { addFamilies(); }
    void f5AfterTheEndLeadsToANewPlan();
    void aRecordingThatEndsDuringTheQuestionCanStillBeAnswered();
    void otherKeysAreTakenAndDoNothing_data() { addFamilies(); }
    void otherKeysAreTakenAndDoNothing();
    void enteringShowsTheRecordingThatRuns_data() { addFamilies(); }
    void enteringShowsTheRecordingThatRuns();
    void leavesByTheFunctionKeysWhileItRuns();
    void roomIsRedWhereItDoesNotLast();
    void roomIsRedInTheLastHourOnceNothingIsStored();
    void whatIsRefusedWithRoomLeftIsToldToo();
    void anotherLanguageReachesEveryText();
    void randomKeysNeverStoreAWrongChoice_data() { addFamilies(); }
    void randomKeysNeverStoreAWrongChoice();
};

/// A recording of two hours is prepared, as the shell does it.
static std::unique_ptr<RecordingPage> prepared(bool logger)
{
    auto page = openFamily(logger);
    *kindOf(logger).active = 1;
    press(setupOf(*page), F5);
    page->showPlan(kBegin, kBegin + 2 * kHour);
    page->stopWatchChanged(QStringLiteral("-00:00:09"));
    return page;
}

void TstRecorderStart::waitsRunsAndEnds()
{
    QFETCH(bool, logger);
    auto page = prepared(logger);
    QCOMPARE(text(startOf(*page), "text"), kWaiting);
    QCOMPARE(text(startOf(*page), "btn_f5"), QStringLiteral("Stop"));
    page->stopWatchChanged(QStringLiteral("-00:00:00"));
    QCOMPARE(text(startOf(*page), "text"), kWaiting);
    page->stopWatchChanged(QStringLiteral("00:00:01"));
    QCOMPARE(text(startOf(*page), "text"), kRunning);
    QCOMPARE(text(startOf(*page), "btn_f5"), QStringLiteral("Stop"));
    *kindOf(logger).active = 0;
    page->recordingStoped();
    QCOMPARE(text(startOf(*page), "text"), kEnded);
    QCOMPARE(text(startOf(*page), "btn_f5"), QStringLiteral("Back"));
    for (const char *key : { "btn_f1", "btn_f2", "btn_f3", "btn_f4" })
        QCOMPARE(text(startOf(*page), key), QString());
}

void TstRecorderStart::planIsShownInLocalTime()
{
    m_userConfig_g.setTimeZone(QStringLiteral("Asia/Tokyo")); // nine hours ahead, all the year
    auto page = prepared(false);
    page->showPlan(kBegin, kBegin + 170 * kHour);
    const RecordingStart *start = startOf(*page);
    QCOMPARE(text(start, "file_name"), QStringLiteral("Logger_1"));
    QCOMPARE(text(start, "start"), QStringLiteral("2024-01-19  01:15:09"));
    QCOMPARE(text(start, "duration"), QStringLiteral("7 d, 2 hr"));
    QCOMPARE(text(start, "interval"), QStringLiteral("10 s"));
    QCOMPARE(text(start, "memory_t"), QStringLiteral("Memory Available:"));
    QVERIFY(!text(start, "memory").isEmpty());
    m_userConfig_g.setTimeZone(QStringLiteral("UTC"));
}

void TstRecorderStart::stopWatchShowsTheTimeOfTheRecording()
{
    auto page = prepared(false);
    QCOMPARE(text(startOf(*page), "stop_watch"), QStringLiteral("-00:00:09"));
    page->stopWatchChanged(QStringLiteral("167:59:59"));
    QCOMPARE(text(startOf(*page), "stop_watch"), QStringLiteral("167:59:59"));
    QCOMPARE(text(setupOf(*page), "stop_watch"), QString()); // of the next one
    QCOMPARE(text(paramOf(*page), "stop_watch"), QString());
    QVERIFY(holds(startOf(*page), "stop_watch", QStringLiteral("-9999:59:59")));
}

void TstRecorderStart::answersOfTheQuestion_data()
{
    QTest::addColumn<bool>("logger");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QStringList>("asked"); // of the shell, in order
    QTest::addColumn<bool>("leaves"); // for the set-up
    for (const bool logger : { false, true }) {
        const char *family = logger ? "logger" : "recorder";
        QTest::addRow("%s, Save", family) << logger << QByteArray("F") << QStringList { "keep" } << true;
        QTest::addRow("%s, Exit", family) << logger << QByteArray("W") << QStringList { "drop" } << true;
        QTest::addRow("%s, Restart", family) << logger << QByteArray("Y") << QStringList { "drop", "start" } << false;
        QTest::addRow("%s, Cancel", family) << logger << QByteArray("L") << QStringList {} << false;
    }
}

void TstRecorderStart::answersOfTheQuestion()
{
    QFETCH(bool, logger);
    QFETCH(QByteArray, key);
    QFETCH(QStringList, asked);
    QFETCH(bool, leaves);
    auto page = prepared(logger);
    page->stopWatchChanged(QStringLiteral("00:00:05"));
    QStringList heard;
    connect(page.get(), &RecordingPage::stopRecordWithSave, this,
            [&heard](bool keep) { heard << (keep ? "keep" : "drop"); });
    connect(page.get(), &RecordingPage::startRecordTask, this, [&heard] { heard << "start"; });
    DialogDriver answer({ DialogDriver::press(key) });
    press(startOf(*page), F5);
    QVERIFY(answer.isDone());
    QCOMPARE(heard, asked);
    LivePage *expected = leaves ? static_cast<LivePage *>(setupOf(*page)) : startOf(*page);
    QCOMPARE(page->currentPage(), expected);
}

void TstRecorderStart::questionTellsWhatEachKeyDoes()
{
    auto page = prepared(false);
    QString question;
    QStringList keys;
    DialogDriver answer({ [&](QDialog *dialog) {
        question = labelText(dialog, "message");
        keys = keyTexts(dialog);
        QTest::keyClick(dialog, 'L');
    } });
    press(startOf(*page), F5); // while it waits, too
    QCOMPARE(question,
             QStringLiteral("Save: save the data.\nExit: delete the data and exit.\n"
                            "Restart: delete the data and restart logger."));
    QCOMPARE(keys, QStringList({ "Exit", "Restart", "", "Save", "Cancel" }));
}

void TstRecorderStart::restartShowsTheNewRecordingWaiting()
{
    auto page = prepared(false);
    page->stopWatchChanged(QStringLiteral("01:00:00"));
    connect(page.get(), &RecordingPage::stopRecordWithSave, this, [&page] {
        RecordInfo::m_in_recording = 0;
        page->recordingStoped();
    });
    connect(page.get(), &RecordingPage::startRecordTask, this, [&page] {
        RecordInfo::m_in_recording = 1;
        page->stopWatchChanged(QStringLiteral("-00:00:00"));
        page->showPlan(kBegin + kHour, kBegin + 3 * kHour);
    });
    DialogDriver answer({ DialogDriver::press("Y") });
    press(startOf(*page), F5);
    QCOMPARE(text(startOf(*page), "text"), kWaiting);
    QCOMPARE(text(startOf(*page), "start"), QStringLiteral("2024-01-18  17:15:09"));
}

void TstRecorderStart::f5AfterTheEndLeadsToANewPlan()
{
    QFETCH(bool, logger);
    auto page = prepared(logger);
    *kindOf(logger).active = 0;
    page->recordingStoped();
    QDir().mkpath(Target::path("/mnt/storage/240118_161509 Logger_1"));
    RootFiles::write("/mnt/storage/.infomation", "Logger_1_00.csv,2024-01-18 16:15:09\n");
    QSignalSpy asked(page.get(), &RecordingPage::stopRecordWithSave);
    press(startOf(*page), F5);
    QCOMPARE(asked.count(), 0);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(setupOf(*page)));
    QCOMPARE(text(setupOf(*page), "file_name"), QStringLiteral("Logger_2"));
}

void TstRecorderStart::aRecordingThatEndsDuringTheQuestionCanStillBeAnswered()
{
    auto page = prepared(false);
    QSignalSpy asked(page.get(), &RecordingPage::stopRecordWithSave);
    DialogDriver answer({ [&page](QDialog *dialog) {
        RecordInfo::m_in_recording = 0;
        page->recordingStoped();
        QTest::keyClick(dialog, 'W'); // Exit: the data go
    } });
    press(startOf(*page), F5);
    QCOMPARE(asked.count(), 1);
    QCOMPARE(asked.at(0).at(0).toBool(), false);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(setupOf(*page)));
}

void TstRecorderStart::otherKeysAreTakenAndDoNothing()
{
    QFETCH(bool, logger);
    auto page = prepared(logger);
    QSignalSpy asked(page.get(), &RecordingPage::stopRecordWithSave),
        started(page.get(), &RecordingPage::startRecordTask);
    for (const FrontKey key : { F1, F2, F3, F4, Up, Down, Left, Right, Enter }) {
        QKeyEvent event(QEvent::KeyPress, int(key), Qt::NoModifier);
        event.ignore();
        QCoreApplication::sendEvent(startOf(*page), &event);
        QVERIFY(event.isAccepted());
    }
    QCOMPARE(asked.count() + started.count(), 0);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(startOf(*page)));
    QCOMPARE(text(startOf(*page), "text"), kWaiting);
}

void TstRecorderStart::enteringShowsTheRecordingThatRuns()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(setupOf(*page)));
    *kindOf(logger).active = 1;
    page->enter();
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(startOf(*page)));
    *kindOf(logger).active = 0;
    page->enter();
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(setupOf(*page)));
}

void TstRecorderStart::leavesByTheFunctionKeysWhileItRuns()
{
    auto page = prepared(false);
    QSignalSpy leaving(page.get(), &Page::leave);
    const QList<QPair<Qt::Key, int>> exits { { Qt::Key_E, UI_SCOPE },
                                             { Qt::Key_A, UI_MENU },
                                             { Qt::Key_U, UI_MONITOR },
                                             { Qt::Key_S, UI_SETUP },
                                             { Qt::Key_R, UI_MEMORY } };
    for (LivePage *shown : { static_cast<LivePage *>(setupOf(*page)), static_cast<LivePage *>(paramOf(*page)),
                             static_cast<LivePage *>(startOf(*page)) }) {
        for (const auto &exit : exits) {
            leaving.clear();
            QTest::keyClick(shown, exit.first);
            QCOMPARE(leaving.count(), 1);
            QCOMPARE(leaving.at(0).at(0).toInt(), exit.second);
        }
    }
}

void TstRecorderStart::roomIsRedWhereItDoesNotLast()
{
    auto page = prepared(false);
    auto *memory = startOf(*page)->findChild<QLabel *>("memory");
    const qint64 now = Clock::msecs();
    page->showPlan(now, now + kHour);
    const QColor enough = memory->palette().color(QPalette::WindowText);
    page->showPlan(now, now + qint64(1000000) * kHour); // longer than any card lasts
    QVERIFY(memory->palette().color(QPalette::WindowText) != enough);
    QCOMPARE(memory->palette().color(QPalette::WindowText), QColor(Qt::red));
    RecordInfo::m_in_recording = 0;
    page->recordingStoped();
    QCOMPARE(memory->palette().color(QPalette::WindowText), enough); // nothing needs it any more
}

void TstRecorderStart::roomIsRedInTheLastHourOnceNothingIsStored()
{
    auto page = prepared(false);
    const qint64 now = Clock::msecs();
    // A file system that never has any room.
    const QString storage = Target::path("/mnt/storage");
    QVERIFY(QDir(storage).removeRecursively() && QFile::link("/proc", storage));
    page->showPlan(now, now + kHour / 2);
    const QColor none = startOf(*page)->findChild<QLabel *>("memory")->palette().color(QPalette::WindowText);
    const QString waiting = text(startOf(*page), "text");
    page->stopWatchChanged(QStringLiteral("00:00:01"));
    const QString full = text(startOf(*page), "text");
    QVERIFY(QFile::remove(storage) && QDir().mkpath(storage));
    QCOMPARE(none, QColor(Qt::red));
    QCOMPARE(waiting, kWaiting);
    QCOMPARE(full, QStringLiteral("The storage takes no more data.\nDelete files in Memory."));
    page->show();
    startOf(*page)->updateDisplay(nullptr); // room again
    QCOMPARE(text(startOf(*page), "text"), kRunning);
}

void TstRecorderStart::whatIsRefusedWithRoomLeftIsToldToo()
{
    auto page = prepared(false);
    page->stopWatchChanged(QStringLiteral("00:00:01"));
    page->show();
    QCOMPARE(text(startOf(*page), "text"), kRunning);
    liveData().setStorageRefuses(true); // a card that takes no more, or a file that could not be begun
    startOf(*page)->updateDisplay(nullptr);
    QCOMPARE(text(startOf(*page), "text"), QStringLiteral("The storage takes no more data.\nDelete files in Memory."));
    QCOMPARE(startOf(*page)->findChild<QLabel *>("memory")->palette().color(QPalette::WindowText), QColor(Qt::red));
    liveData().setStorageRefuses(false);
    startOf(*page)->updateDisplay(nullptr);
    QCOMPARE(text(startOf(*page), "text"), kRunning);
}

void TstRecorderStart::anotherLanguageReachesEveryText()
{
    auto page = prepared(false);
    page->stopWatchChanged(QStringLiteral("00:00:01"));
    const QMap<QString, QString> english = lastingTexts(page.get());
    MarkedLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    page->retranslateUi();
    // No words: names, numbers, moments. The rest begins with the language's sign.
    const QStringList neutral {
        "file_name", "year", "month", "day", "hours", "minutes", "start", "memory", "stop_watch"
    };
    const QMap<QString, QString> marked = texts(page.get());
    for (const QString &path : english.keys()) {
        if (english[path].isEmpty() || neutral.contains(path.section('/', -1)))
            continue;
        QVERIFY2(marked[path].startsWith('~'), qPrintable(path + ": " + marked[path]));
    }
    QCOMPARE(text(startOf(*page), "text"), QLatin1Char('~') + kRunning);
    QCOMPARE(text(setupOf(*page), "start"), QStringLiteral("~Immediate"));
    QCoreApplication::removeTranslator(&language);
    page->retranslateUi();
    QCOMPARE(lastingTexts(page.get()), english);
}

void TstRecorderStart::randomKeysNeverStoreAWrongChoice()
{
    QFETCH(bool, logger);
    const RecordingKind &kind = kindOf(logger);
    auto page = openFamily(logger);
    page->show();
    connect(page.get(), &RecordingPage::startRecordTask, this, [&] {
        *kind.active = 1;
        page->showPlan(kBegin, kBegin + *kind.duration * kHour);
        page->stopWatchChanged(QStringLiteral("00:00:01"));
    });
    connect(page.get(), &RecordingPage::stopRecordWithSave, this, [&] {
        *kind.active = 0;
        page->recordingStoped();
    });
    const FrontKey keys[] = { F1, F2, F3, F4, F5, Left, Right, Up, Down, Enter };
    quint32 random = 20240118;
    const auto next = [&random, &keys] {
        random = random * 1664525 + 1013904223;
        return keys[(random >> 16) % std::size(keys)];
    };
    // Dialogs run a loop of their own: what comes then goes to them.
    QTimer pump;
    connect(&pump, &QTimer::timeout, this, [&next] {
        if (QWidget *dialog = QApplication::activeModalWidget())
            QTest::keyClick(dialog, Qt::Key(next()));
    });
    pump.start(0);
    int visited[3] = {};
    for (int i = 0; i < 6000; ++i) {
        ++visited[page->currentIndex()];
        press(page->currentPage(), next());
        QVERIFY(*kind.duration >= 1);
        QVERIFY(*kind.duration <= std::max(*kind.maxDuration, 1));
        QVERIFY(*kind.intervalIndex >= 0 && *kind.intervalIndex < kind.intervalCount);
        QVERIFY(!kind.name->isEmpty() && kind.name->size() <= 32 && !kind.name->contains('/'));
        if (!logger)
            QVERIFY(RecordInfo::m_recordItems & 1 && RecordInfo::m_recordItems <= 0xffff);
        else
            QVERIFY(LoggerInfo::m_paramselected <= 0x1fffffff);
        QCOMPARE(page->currentIndex() == RecordingPage::Start, page->currentPage() == startOf(*page));
    }
    for (const int times : visited)
        QVERIFY(times > 50);
}

PAGE_TEST_MAIN(TstRecorderStart)
#include "tst_recorderstart.moc"
