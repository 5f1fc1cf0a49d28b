#include "recordercase.h"

#include "platform/clock.h"
#include "settings/localtime.h"

#include <QSignalSpy>

#include <cstring>

using namespace RecorderCase;

namespace {

enum Field { Name, Duration, Interval, Start, Year, Month, Day, Hours, Minutes };

} // namespace

/// Set-up of recorder and logger: what each field and key does.
class TstRecorderSetup : public QObject
{
    Q_OBJECT

private slots:
    void init() { nothingChosen(); }

    void takesTheFirstFreeName();
    void loggerTakesTheFirstNameWithoutAFile();
    void nameOfTheUserStays();
    void enterOpensTheKeyboardForTheName();
    void aNameCannotLeadElsewhere();
    void captions_data() { addFamilies(); }
    void captions();
    void durationReadsInDaysAndHours();
    void durationEndsAtTheRoomAndAtAnHour_data() { addFamilies(); }
    void durationEndsAtTheRoomAndAtAnHour();
    void intervalsStopAtTheEnds_data();
    void intervalsStopAtTheEnds();
    void shorterIntervalsNeedMoreRoom();
    void availableMemoryTellsRoomAndHours();
    void f1AndDownMoveOnAndUpBack_data() { addFamilies(); }
    void f1AndDownMoveOnAndUpBack();
    void enterOnTheStartTogglesIt_data() { addFamilies(); }
    void enterOnTheStartTogglesIt();
    void f2OpensTheParametersAndKeepsThePlan_data() { addFamilies(); }
    void f2OpensTheParametersAndKeepsThePlan();
    void f5StartsAtOnce_data() { addFamilies(); }
    void f5StartsAtOnce();
    void f5StartsAtThePlannedTimeOfTheUsersZone();
    void f5WithoutRoomSaysSoAndStartsNothing_data() { addFamilies(); }
    void f5WithoutRoomSaysSoAndStartsNothing();
    void withoutAFreeNameStartAsksForOne();
    void otherKeysDoNothing_data() { addFamilies(); }
    void otherKeysDoNothing();
    void enteringAgainPlansAnew();
    void savesUnderLogger();
    void dataOfASavedPageIsThePlan_data() { addFamilies(); }
    void dataOfASavedPageIsThePlan();
    void saveOffersAPictureUnderThePagesName_data();
    void saveOffersAPictureUnderThePagesName();
};

void TstRecorderSetup::takesTheFirstFreeName()
{
    auto page = openFamily(false);
    QCOMPARE(text(setupOf(*page), "file_name"), QStringLiteral("Logger_1"));
    QDir().mkpath(Target::path("/mnt/storage/240118_161509 Logger_1"));
    QDir().mkpath(Target::path("/mnt/storage/240119_161509 Logger_3"));
    page->enter();
    QCOMPARE(text(setupOf(*page), "file_name"), QStringLiteral("Logger_2"));
    QCOMPARE(*RecordInfo::m_record_file, QStringLiteral("Logger_2"));
}

void TstRecorderSetup::loggerTakesTheFirstNameWithoutAFile()
{
    RootFiles::write("/mnt/storage/.infomation", "Logger_1_00.csv,2024-01-18 16:15:09\n");
    auto page = openFamily(true);
    QCOMPARE(*LoggerInfo::m_logger_file, QStringLiteral("Logger_2"));
    RootFiles::write("/mnt/storage/Logger_2_00.csv", "TIME,\n"); // not in the index yet
    page->enter();
    QCOMPARE(*LoggerInfo::m_logger_file, QStringLiteral("Logger_3"));
}

void TstRecorderSetup::nameOfTheUserStays()
{
    auto page = openFamily(false);
    DialogDriver keyboard({ DialogDriver::press("YKF") }); // clear, the key under the cursor, Ok
    press(setupOf(*page), Enter);
    QVERIFY(keyboard.isDone());
    QCOMPARE(text(setupOf(*page), "file_name"), QStringLiteral("q"));
    page->enter();
    QCOMPARE(*RecordInfo::m_record_file, QStringLiteral("q"));
}

void TstRecorderSetup::enterOpensTheKeyboardForTheName()
{
    auto page = openFamily(true);
    QString title;
    DialogDriver keyboard({ [&title](QDialog *dialog) {
        title = labelText(dialog, "title");
        DialogDriver::press("KKL")(dialog); // two signs, Cancel
    } });
    press(setupOf(*page), Enter);
    QVERIFY(keyboard.isDone());
    QCOMPARE(title, QStringLiteral("File name:"));
    QCOMPARE(*LoggerInfo::m_logger_file, QStringLiteral("Logger_1"));
}

void TstRecorderSetup::aNameCannotLeadElsewhere()
{
    auto page = openFamily(false);
    DialogDriver keyboard({ [](QDialog *dialog) {
        QTest::keyClick(dialog, 'Y');
        for (const char *typed : { "..", "/", "a", ",", " ", "/../b" }) {
            QInputMethodEvent event;
            event.setCommitString(QString::fromLatin1(typed));
            QCoreApplication::sendEvent(dialog, &event);
        }
        QTest::keyClick(dialog, 'F');
    } });
    press(setupOf(*page), Enter);
    QVERIFY(keyboard.isDone());
    QCOMPARE(*RecordInfo::m_record_file, QStringLiteral("a..b"));
}

void TstRecorderSetup::captions()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    const RecordingSetup *setup = setupOf(*page);
    const QMap<QString, QString> expected {
        { "title", "Logger" },
        { "file_name_t", "File name:" },
        { "duration_t", "Duration:" },
        { "interval_t", "Interval:" },
        { "start_t", "Start" },
        { "start", "Immediate" },
        { "year_t", "Year" },
        { "month_t", "Month" },
        { "day_t", "Day" },
        { "hours_t", "Hours" },
        { "minutes_t", "Minutes" },
        { "memory_t", "Memory Available:" },
        { "btn_f1", "Next" },
        { "btn_f2", "Params" },
        { "btn_f3", "" },
        { "btn_f4", "" },
        { "btn_f5", "Start" },
        { "duration", " 0 d, 2 hr" },
    };
    for (auto it = expected.begin(); it != expected.end(); ++it)
        QCOMPARE(it.key() + ": " + text(setup, it.key()), it.key() + ": " + it.value());
}

void TstRecorderSetup::durationReadsInDaysAndHours()
{
    QCOMPARE(RecordingText::hours(1), QStringLiteral(" 0 d, 1 hr"));
    QCOMPARE(RecordingText::hours(23), QStringLiteral(" 0 d, 23 hr"));
    QCOMPARE(RecordingText::hours(24), QStringLiteral(" 1 d, 0 hr"));
    QCOMPARE(RecordingText::hours(170), QStringLiteral(" 7 d, 2 hr"));
}

void TstRecorderSetup::durationEndsAtTheRoomAndAtAnHour()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    RecordingSetup *setup = setupOf(*page);
    *kindOf(logger).maxDuration = 4;
    press(setup, Down);
    press(setup, Right, 7);
    QCOMPARE(*kindOf(logger).duration, 4);
    QCOMPARE(text(setup, "duration"), QStringLiteral(" 0 d, 4 hr"));
    press(setup, Left, 7);
    QCOMPARE(*kindOf(logger).duration, 1);
    *kindOf(logger).maxDuration = 0; // no room: the hour stays, and no start is taken
    press(setup, Right);
    QCOMPARE(*kindOf(logger).duration, 1);
}

void TstRecorderSetup::intervalsStopAtTheEnds_data()
{
    QTest::addColumn<bool>("logger");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("recorder") << false
                              << QStringList { "1 s", "3 s", "5 s", "10 s", "30 s", "1 min", "2 min", "5 min" };
    QTest::newRow("logger") << true << QStringList { "1 s",   "2 s",   "5 s",    "10 s",   "30 s",   "1 min",
                                                     "2 min", "5 min", "10 min", "15 min", "30 min", "1 hr" };
}

void TstRecorderSetup::intervalsStopAtTheEnds()
{
    QFETCH(bool, logger);
    QFETCH(QStringList, texts);
    auto page = openFamily(logger);
    RecordingSetup *setup = setupOf(*page);
    press(setup, Down, 2);
    press(setup, Left, 20);
    for (const QString &expected : texts) {
        QCOMPARE(text(setup, "interval"), expected);
        press(setup, Right);
    }
    QCOMPARE(text(setup, "interval"), texts.last());
    press(setup, Left);
    QCOMPARE(text(setup, "interval"), texts.at(texts.size() - 2));
}

void TstRecorderSetup::shorterIntervalsNeedMoreRoom()
{
    // All groups at one second take so much that no card of today lasts for the longest plan.
    RootFiles::write(kRecordFile, "PARAMS=65535\n");
    auto page = openFamily(false);
    press(setupOf(*page), Down, 2);
    press(setupOf(*page), Left, 20);
    const int everySecond = RecordInfo::m_max_duration;
    QVERIFY(everySecond > 0);
    press(setupOf(*page), Right);
    QVERIFY(RecordInfo::m_max_duration > everySecond);
    RecordInfo::m_duration = RecordInfo::m_max_duration;
    press(setupOf(*page), Left);
    QCOMPARE(RecordInfo::m_duration, everySecond); // lowered to what there is room for
    QCOMPARE(text(setupOf(*page), "duration"), RecordingText::hours(everySecond));
}

void TstRecorderSetup::availableMemoryTellsRoomAndHours()
{
    QCOMPARE(RecordingText::room(0.4f), QStringLiteral("0 MB"));
    QCOMPARE(RecordingText::room(1023.0f), QStringLiteral("1023 MB"));
    QCOMPARE(RecordingText::room(1536.0f), QStringLiteral("1.5 GB"));
    auto page = openFamily(false);
    QVERIFY2(text(setupOf(*page), "memory").endsWith(RecordingText::hours(RecordInfo::m_max_duration).trimmed()),
             qPrintable(text(setupOf(*page), "memory")));
}

void TstRecorderSetup::f1AndDownMoveOnAndUpBack()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    RecordingSetup *setup = setupOf(*page);
    QCOMPARE(setup->field(), int(Name));
    press(setup, F1);
    QCOMPARE(setup->field(), int(Duration));
    press(setup, Down);
    QCOMPARE(setup->field(), int(Interval));
    press(setup, F1, 3);
    QCOMPARE(setup->field(), int(Start)); // the date is grey, the memory is no field
    press(setup, Enter);
    press(setup, F1, 3);
    press(setup, Down, 9);
    QCOMPARE(setup->field(), int(Minutes));
    press(setup, Up, 20);
    QCOMPARE(setup->field(), int(Name));
}

void TstRecorderSetup::enterOnTheStartTogglesIt()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    RecordingSetup *setup = setupOf(*page);
    press(setup, Down, 3);
    press(setup, Enter);
    QCOMPARE(text(setup, "start"), QStringLiteral("Timed"));
    press(setup, Enter);
    QCOMPARE(text(setup, "start"), QStringLiteral("Immediate"));
    press(setup, Right);
    QCOMPARE(text(setup, "start"), QStringLiteral("Timed"));
    press(setup, Left);
    QCOMPARE(text(setup, "start"), QStringLiteral("Immediate"));
}

void TstRecorderSetup::f2OpensTheParametersAndKeepsThePlan()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    press(setupOf(*page), Down, 3);
    press(setupOf(*page), Enter);
    press(setupOf(*page), F2);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(paramOf(*page)));
    press(paramOf(*page), F5);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(setupOf(*page)));
    QCOMPARE(text(setupOf(*page), "start"), QStringLiteral("Timed"));
    QCOMPARE(setupOf(*page)->field(), int(Start));
}

void TstRecorderSetup::f5StartsAtOnce()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    *kindOf(logger).begin = 77;
    QSignalSpy started(page.get(), &RecordingPage::startRecordTask);
    press(setupOf(*page), F5);
    QCOMPARE(started.count(), 1);
    QCOMPARE(*kindOf(logger).begin, 0u);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(startOf(*page)));
}

void TstRecorderSetup::f5StartsAtThePlannedTimeOfTheUsersZone()
{
    m_userConfig_g.setTimeZone(QStringLiteral("Asia/Tokyo")); // nine hours ahead, all the year
    auto page = openFamily(false);
    RecordingSetup *setup = setupOf(*page);
    press(setup, Down, 3);
    press(setup, Enter);
    press(setup, Down);
    press(setup, Right); // the next year, or in a leap year's last day of February the day before
    press(setup, F5);
    const QDateTime local
        = QDateTime(QDate(text(setup, "year").toInt(), text(setup, "month").toInt(), text(setup, "day").toInt()),
                    QTime(text(setup, "hours").toInt(), text(setup, "minutes").toInt()), Qt::UTC);
    QCOMPARE(qint64(RecordInfo::m_begain_time), local.toSecsSinceEpoch() - 9 * 3600);
    QVERIFY(RecordInfo::m_begain_time > Clock::now().addDays(300).toSecsSinceEpoch());
    m_userConfig_g.setTimeZone(QStringLiteral("UTC"));
}

void TstRecorderSetup::f5WithoutRoomSaysSoAndStartsNothing()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    QDir(Target::path("/mnt/storage")).removeRecursively(); // a card that is gone has no room
    QSignalSpy started(page.get(), &RecordingPage::startRecordTask);
    QString said;
    DialogDriver message({ [&said](QDialog *dialog) {
        said = labelText(dialog, "message");
        QTest::keyClick(dialog, 'L');
    } });
    press(setupOf(*page), F5);
    QVERIFY(message.isDone());
    QCOMPARE(said,
             logger ? QStringLiteral("There is no room for a recording.\nDelete files in Memory.")
                    : QStringLiteral("A recording begins with 50 MB free.\nDelete files in Memory."));
    QCOMPARE(started.count(), 0);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(setupOf(*page)));
}

void TstRecorderSetup::withoutAFreeNameStartAsksForOne()
{
    for (int n = 1; n <= 999; ++n)
        QDir().mkpath(Target::path(QStringLiteral("/mnt/storage/240118_161509 Logger_%1").arg(n)));
    auto page = openFamily(false);
    QCOMPARE(text(setupOf(*page), "file_name"), QString());
    QSignalSpy started(page.get(), &RecordingPage::startRecordTask);
    DialogDriver keyboard({ DialogDriver::press("KF") });
    press(setupOf(*page), F5);
    QVERIFY(keyboard.isDone());
    QCOMPARE(started.count(), 0);
    QCOMPARE(text(setupOf(*page), "file_name"), QStringLiteral("q"));
    press(setupOf(*page), F5);
    QCOMPARE(started.count(), 1);
}

void TstRecorderSetup::otherKeysDoNothing()
{
    QFETCH(bool, logger);
    auto page = openFamily(logger);
    const QMap<QString, QString> before = [&] {
        QMap<QString, QString> all;
        for (const QLabel *label : setupOf(*page)->findChildren<QLabel *>())
            all[label->objectName()] = label->text();
        return all;
    }();
    QSignalSpy started(page.get(), &RecordingPage::startRecordTask);
    press(setupOf(*page), F3, 3);
    press(setupOf(*page), F4, 3);
    press(setupOf(*page), Left, 3); // on the name
    press(setupOf(*page), Right, 3);
    for (const QLabel *label : setupOf(*page)->findChildren<QLabel *>())
        QCOMPARE(label->text(), before[label->objectName()]);
    QCOMPARE(started.count(), 0);
    QCOMPARE(page->currentPage(), static_cast<LivePage *>(setupOf(*page)));
}

void TstRecorderSetup::enteringAgainPlansAnew()
{
    auto page = openFamily(false);
    press(setupOf(*page), Down, 3);
    press(setupOf(*page), Enter);
    page->enter();
    QCOMPARE(text(setupOf(*page), "start"), QStringLiteral("Immediate"));
    QCOMPARE(setupOf(*page)->field(), int(Name));
}

void TstRecorderSetup::savesUnderLogger()
{
    for (bool logger : { false, true }) {
        auto page = openFamily(logger);
        QCOMPARE(page->saveIdentity().windowId, 26);
        QCOMPARE(QByteArray(page->saveIdentity().defaultName), QByteArray("Logger"));
        QCOMPARE(setupOf(*page)->saveIdentity().windowId, 0); // the container's
        QCOMPARE(QByteArray(paramOf(*page)->saveIdentity().defaultName), QByteArray("Params"));
    }
}

void TstRecorderSetup::dataOfASavedPageIsThePlan()
{
    QFETCH(bool, logger);
    RootFiles::write(logger ? kLoggerFile : kRecordFile, "PARAMS=9\n");
    auto page = openFamily(logger);
    *kindOf(logger).active = 1;
    *kindOf(logger).begin = 1705594509;
    *kindOf(logger).duration = 170;
    QByteArray expected(84, '\0');
    const quint32 words[] = { 1, 1705594509, 170, logger ? 1u : 10u, 9 };
    std::memcpy(expected.data(), words, sizeof words);
    std::memcpy(expected.data() + 20, "Logger_1", 8);
    QCOMPARE(page->pqaData(), expected);
    *kindOf(logger).name = QString(100, QLatin1Char('x')); // none of the keyboard's; its end is cut off
    QCOMPARE(page->pqaData().mid(20), QByteArray(63, 'x') + '\0');
}

void TstRecorderSetup::saveOffersAPictureUnderThePagesName_data()
{
    QTest::addColumn<bool>("logger");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("name");
    for (const bool logger : { false, true }) {
        const char *family = logger ? "logger" : "recorder";
        QTest::addRow("%s, set-up", family) << logger << int(RecordingPage::Setup) << "Logger1.png";
        QTest::addRow("%s, parameters", family) << logger << int(RecordingPage::Param) << "Params1.png";
        QTest::addRow("%s, under way", family) << logger << int(RecordingPage::Start) << "Logger1.png";
    }
}

void TstRecorderSetup::saveOffersAPictureUnderThePagesName()
{
    QFETCH(bool, logger);
    QFETCH(int, row);
    QFETCH(QString, name);
    auto page = openFamily(logger);
    page->showPage(row);
    QString offered;
    DialogDriver dialog({ [&offered](QDialog *save) {
        offered = labelText(save, "file_name");
        QTest::keyClick(save, 'L'); // Cancel
    } });
    press(page->currentPage(), F11);
    QVERIFY(dialog.isDone());
    QCOMPARE(offered, name);
}

PAGE_TEST_MAIN(TstRecorderSetup)
#include "tst_recordersetup.moc"
