#include "usercase.h"

#include "device/idevice.h"
#include "platform/clock.h"
#include "unit/views/framespy.h"
#include "user/timezones.h"
#include "user/userdatepage.h"
#include "settings/localtime.h"

#include <QSignalSpy>
#include <QTimeZone>

#include <memory>

using namespace UserCase;

/// Date, time and time zone: how the fields move, and what "Ok" sends and stores.
class TstUserDatePage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_idevice = new IDevice; }
    void init();
    void cleanup();
    void opensWithTheClockInTheUsersZone();
    void fieldsFollowTheClockUntilOneIsChanged();
    void fieldsStopAtTheirBounds();
    void dayStaysInsideTheMonth();
    void leapYears_data();
    void leapYears();
    void noSequenceOfKeysMakesADayThatIsMissing();
    void heldKeyMovesFaster();
    void zoneStepsThroughTheDatabaseAndStops();
    void anotherZoneShowsTheSameMomentUntilAFieldIsChanged();
    void okSendsTheTimeToTheProcessorInUtc();
    void okWithAZoneAloneKeepsTheSeconds();
    void okStoresTheZoneAndTellsTheClockLine();
    void cancelRestoresAndStoresNothing();
    void clockBytes();
    void timesAroundTheChangesOfSummerTime_data();
    void timesAroundTheChangesOfSummerTime();
    void withoutAZoneDatabaseThereIsUtcOnly();
    void unknownStoredZoneCountsAsUtc();
    void longestZoneNameFits();

private:
    enum Field { Year, Month, Day, Hours, Minutes, Zone };

    void begin(const QDateTime &utc)
    {
        Clock::setForTest(utc.toMSecsSinceEpoch());
        m_page->init_parameter();
        m_field = m_page->field();
    }
    void step(Field field, FrontKey key, int times = 1)
    {
        for (; m_field < field; ++m_field)
            PageTest::press(m_page.get(), Down);
        for (; m_field > field; --m_field)
            PageTest::press(m_page.get(), Up);
        PageTest::press(m_page.get(), key, times);
    }
    QString date() const { return texts({ "year", "month", "day" }, QLatin1Char('-')); }
    QString time() const { return texts({ "hours", "minutes" }, QLatin1Char(':')); }
    QString texts(const QStringList &names, QChar between) const
    {
        QStringList shown;
        for (const QString &name : names)
            shown << PageTest::text(m_page.get(), name);
        return shown.join(between);
    }

    std::unique_ptr<UserDatePage> m_page;
    int m_field = 0;
};

namespace {

QDateTime utc(int year, int month, int day, int hour = 12, int minute = 0, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

} // namespace

void TstUserDatePage::init()
{
    removeFile(kUserFile);
    m_userConfig_g = UserConfig();
    m_page = std::make_unique<UserDatePage>();
    m_page->show();
    begin(utc(2024, 1, 18, 16, 15, 42));
}

void TstUserDatePage::cleanup()
{
    m_page.reset();
    Clock::useSystem();
}

void TstUserDatePage::opensWithTheClockInTheUsersZone()
{
    QCOMPARE(text(m_page.get(), "title"), QStringLiteral("Date & Time"));
    QCOMPARE(date() + time(), QStringLiteral("2024-01-1816:15"));
    QCOMPARE(text(m_page.get(), "time_zone"), QStringLiteral("UTC"));
    m_userConfig_g.setTimeZone(QStringLiteral("Asia/Kolkata")); // five hours and a half ahead
    begin(utc(2024, 1, 18, 20, 15));
    QCOMPARE(date() + time(), QStringLiteral("2024-01-1901:45"));
    QCOMPARE(text(m_page.get(), "time_zone"), QStringLiteral("Asia/Kolkata"));
}

void TstUserDatePage::fieldsFollowTheClockUntilOneIsChanged()
{
    Clock::advance(20000);
    QTRY_COMPARE_WITH_TIMEOUT(time(), QStringLiteral("16:16"), 3000);
    step(Hours, Right);
    Clock::advance(600000);
    QTest::qWait(1300);
    QCOMPARE(time(), QStringLiteral("17:16"));
}

void TstUserDatePage::fieldsStopAtTheirBounds()
{
    step(Month, Left, 15);
    step(Hours, Right, 30);
    step(Minutes, Right, 60);
    QCOMPARE(date() + time(), QStringLiteral("2024-01-1823:59"));
    step(Month, Right, 15);
    step(Hours, Left, 30);
    step(Minutes, Left, 60);
    step(Day, Right, 40);
    QCOMPARE(date() + time(), QStringLiteral("2024-12-3100:00"));
    step(Day, Left, 40);
    step(Year, Left, 120);
    QCOMPARE(date(), QStringLiteral("2000-12-01"));
    step(Year, Right, 120);
    QCOMPARE(date(), QStringLiteral("2099-12-01"));
}

void TstUserDatePage::dayStaysInsideTheMonth()
{
    begin(utc(2023, 1, 31));
    step(Month, Right);
    QCOMPARE(date(), QStringLiteral("2023-02-28"));
    step(Day, Right);
    QCOMPARE(date(), QStringLiteral("2023-02-28")); // no 29 or 31 February
    begin(utc(2023, 3, 31));
    step(Month, Right);
    QCOMPARE(date(), QStringLiteral("2023-04-30"));
    for (const FrontKey otherYear : { Left, Right }) {
        begin(utc(2024, 2, 29));
        step(Year, otherYear);
        QCOMPARE(text(m_page.get(), "day"), QStringLiteral("28"));
    }
}

void TstUserDatePage::leapYears_data()
{
    QTest::addColumn<int>("year");
    QTest::addColumn<int>("days");
    for (const int year : { 2000, 2004, 2024, 2096 })
        QTest::addRow("%d", year) << year << 29;
    for (const int year : { 2001, 2023, 2026, 2099 })
        QTest::addRow("%d", year) << year << 28;
}

void TstUserDatePage::leapYears()
{
    QFETCH(int, year);
    begin(utc(year, 2, 27));
    step(Day, Right, 5);
    QTEST(text(m_page.get(), "day").toInt(), "days");
}

void TstUserDatePage::noSequenceOfKeysMakesADayThatIsMissing()
{
    begin(utc(2024, 2, 29, 23, 59));
    quint32 random = 7;
    const FrontKey keys[] = { Left, Right, Up, Down };
    for (int i = 0; i < 1000; ++i) {
        random = random * 1664525 + 1013904223;
        PageTest::press(m_page.get(), keys[random >> 30]);
        const QDate shown = QDate::fromString(date(), QStringLiteral("yyyy-MM-dd"));
        QVERIFY2(shown.isValid(), qPrintable(date()));
        QVERIFY2(QTime::fromString(time(), QStringLiteral("hh:mm")).isValid(), qPrintable(time()));
    }
}

void TstUserDatePage::heldKeyMovesFaster()
{
    begin(utc(2024, 6, 15, 12, 10));
    step(Minutes, Up, 0);
    PageTest::hold(m_page.get(), Right, 3);
    const int slow = text(m_page.get(), "minutes").toInt() - 10;
    PageTest::release(m_page.get(), Right);
    begin(utc(2024, 6, 15, 12, 10));
    PageTest::hold(m_page.get(), Right, 6);
    const int fast = text(m_page.get(), "minutes").toInt() - 10;
    PageTest::release(m_page.get(), Right);
    QCOMPARE(slow, 4); // the press and three ticks by one minute
    QVERIFY2(fast > 7, qPrintable(QString::number(fast)));
}

void TstUserDatePage::zoneStepsThroughTheDatabaseAndStops()
{
    step(Zone, Left, 3);
    QCOMPARE(text(m_page.get(), "time_zone"), QStringLiteral("UTC"));
    step(Zone, Right);
    const QString first = text(m_page.get(), "time_zone");
    QVERIFY2(first.startsWith(QStringLiteral("Africa/")), qPrintable(first));
    step(Zone, Right, int(QTimeZone::availableTimeZoneIds().size()));
    const QString last = text(m_page.get(), "time_zone");
    QVERIFY2(last.startsWith(QStringLiteral("Pacific/")), qPrintable(last));
    step(Zone, Right);
    QCOMPARE(text(m_page.get(), "time_zone"), last);
}

void TstUserDatePage::anotherZoneShowsTheSameMomentUntilAFieldIsChanged()
{
    m_userConfig_g.setTimeZone(QStringLiteral("Africa/Accra"));
    begin(utc(2024, 7, 1, 12, 0));
    step(Zone, Right); // Addis Ababa, three hours ahead
    QCOMPARE(text(m_page.get(), "time_zone"), QStringLiteral("Africa/Addis_Ababa"));
    QCOMPARE(time(), QStringLiteral("15:00"));
    step(Hours, Right);
    step(Zone, Left);
    QCOMPARE(time(), QStringLiteral("16:00")); // as the user set it
}

void TstUserDatePage::okSendsTheTimeToTheProcessorInUtc()
{
    m_userConfig_g.setTimeZone(QStringLiteral("Asia/Kolkata"));
    begin(utc(2024, 1, 18, 16, 15, 42)); // 21:45 in Kolkata
    step(Year, Right); // 2025
    step(Minutes, Right); // 21:46, which is 16:16 UTC
    FrameSpy frames;
    PageTest::press(m_page.get(), F4);
    QCOMPARE(frames.count(), 1);
    QCOMPARE(frames.word(0, 1), 195u);
    // 0 s, 16 min, 16 h, Saturday; 18, January, 2025
    QCOMPARE(frames.frames.at(0).bytes.mid(8, 8), QByteArray::fromHex("001010061201e907"));
}

void TstUserDatePage::okWithAZoneAloneKeepsTheSeconds()
{
    step(Zone, Right);
    FrameSpy frames;
    PageTest::press(m_page.get(), F4);
    QCOMPARE(frames.count(), 1);
    // 42 s, 15 min, 16 h, Thursday; 18, January, 2024
    QCOMPARE(frames.frames.at(0).bytes.mid(8, 8), QByteArray::fromHex("2a0f10041201e807"));
}

void TstUserDatePage::okStoresTheZoneAndTellsTheClockLine()
{
    QSignalSpy set(m_page.get(), &UserDatePage::timeSet), left(m_page.get(), &UserDatePage::goUserMain);
    step(Zone, Right);
    const QString zone = text(m_page.get(), "time_zone");
    PageTest::press(m_page.get(), F4);
    QCOMPARE(UserConfig().getTimeZone(), zone);
    QCOMPARE(QString::fromLatin1(LocalTime::localTimeZone().id()), zone);
    QCOMPARE(set.count(), 1);
    QCOMPARE(left.count(), 1);
}

void TstUserDatePage::cancelRestoresAndStoresNothing()
{
    const QByteArray before = "TZ=Asia/Kolkata\n";
    writeFile(kUserFile, before);
    m_userConfig_g = UserConfig();
    begin(utc(2024, 1, 18, 16, 15));
    step(Year, Right, 3);
    step(Zone, Right, 3);
    FrameSpy frames;
    PageTest::press(m_page.get(), F5);
    QCOMPARE(frames.count(), 0);
    QCOMPARE(content(kUserFile), before);
    QCOMPARE(date() + time(), QStringLiteral("2024-01-1821:45"));
    QCOMPARE(text(m_page.get(), "time_zone"), QStringLiteral("Asia/Kolkata"));
}

void TstUserDatePage::clockBytes()
{
    QCOMPARE(UserDatePage::adjustdate(utc(2024, 1, 18, 16, 15, 42)), QByteArray::fromHex("2a0f10041201e807"));
    const QDateTime elsewhere(QDate(2024, 1, 18), QTime(18, 15, 42), Qt::OffsetFromUTC, 7200);
    QCOMPARE(UserDatePage::adjustdate(elsewhere), QByteArray::fromHex("2a0f10041201e807"));
    QCOMPARE(UserDatePage::adjustdate(utc(2000, 2, 29, 0, 0, 0)), QByteArray::fromHex("000000021d02d007"));
    QCOMPARE(UserDatePage::adjustdate(utc(2023, 12, 31, 23, 59, 59)), QByteArray::fromHex("3b3b17071f0ce707"));
}

void TstUserDatePage::timesAroundTheChangesOfSummerTime_data()
{
    QTest::addColumn<QDateTime>("before"); // with the clock an hour early
    QTest::addColumn<int>("hour"); // in UTC, of the next one
    QTest::newRow("before the gap") << utc(2024, 3, 30, 23, 30) << 0;
    QTest::newRow("in the gap, which 2:30 is") << utc(2024, 3, 31, 0, 30) << 1;
    QTest::newRow("behind the gap") << utc(2024, 3, 31, 1, 30) << 2;
    QTest::newRow("before the hour that comes twice") << utc(2024, 10, 26, 22, 30) << 23;
    QTest::newRow("behind it") << utc(2024, 10, 27, 2, 30) << 3;
}

void TstUserDatePage::timesAroundTheChangesOfSummerTime()
{
    QFETCH(QDateTime, before);
    // In Berlin the clock goes from 2:00 to 3:00 on 31 March 2024, and back from 3:00 to 2:00 on 27 October.
    m_userConfig_g.setTimeZone(QStringLiteral("Europe/Berlin"));
    begin(before);
    step(Hours, Right);
    FrameSpy frames;
    PageTest::press(m_page.get(), F4);
    const QByteArray bytes = frames.frames.at(0).bytes.mid(8, 8);
    QCOMPARE(int(bytes.at(1)), 30);
    QTEST(int(bytes.at(2)), "hour");
}

void TstUserDatePage::withoutAZoneDatabaseThereIsUtcOnly()
{
    // What the toolkit offers where the system has no database.
    const QList<QByteArray> offsets { "UTC", "UTC+01:00", "UTC-05:30", "UTC+14:00" };
    QCOMPARE(TimeZones::list(offsets, "UTC"), QVector<QByteArray> { "UTC" });
    QCOMPARE(TimeZones::list({}, "UTC"), QVector<QByteArray> { "UTC" });
    const QList<QByteArray> some { "Europe/Paris", "UTC", "UTC+01:00", "Asia/Tokyo" };
    QCOMPARE(TimeZones::list(some, "UTC"), (QVector<QByteArray> { "UTC", "Asia/Tokyo", "Europe/Paris" }));
    QCOMPARE(TimeZones::list(some, "Etc/GMT+3"),
             (QVector<QByteArray> { "UTC", "Asia/Tokyo", "Etc/GMT+3", "Europe/Paris" }));
}

void TstUserDatePage::unknownStoredZoneCountsAsUtc()
{
    for (const char *zone : { "Moon/Sea", "../../etc/passwd", "'; reboot;'", "" }) {
        m_userConfig_g.setTimeZone(QString::fromLatin1(zone));
        begin(utc(2024, 1, 18, 16, 15));
        QCOMPARE(text(m_page.get(), "time_zone"), QStringLiteral("UTC"));
        QCOMPARE(time(), QStringLiteral("16:15"));
    }
}

void TstUserDatePage::longestZoneNameFits()
{
    m_userConfig_g.setTimeZone(QStringLiteral("America/Argentina/Buenos_Aires"));
    begin(utc(2024, 1, 18));
    const auto *label = m_page->findChild<QLabel *>(QStringLiteral("time_zone"));
    QCOMPARE(label->text(), QStringLiteral("America/Argentina/Buenos_Aires"));
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
}

PAGE_TEST_MAIN(TstUserDatePage)
#include "tst_userdatepage.moc"
