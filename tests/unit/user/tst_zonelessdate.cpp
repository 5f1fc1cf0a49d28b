#include "usercase.h"

#include "device/idevice.h"
#include "platform/clock.h"
#include "settings/localtime.h"
#include "unit/views/framespy.h"
#include "user/userdatepage.h"

#include <QTimeZone>

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>

using namespace UserCase;

/// In place of the C library's: this process finds no zone database, as on a board whose image has none.
extern "C" int open64(const char *path, int flags, ...)
{
    if (std::strstr(path, "/zoneinfo")) {
        errno = ENOENT;
        return -1;
    }
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = flags & (O_CREAT | O_TMPFILE) ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    static const auto real = reinterpret_cast<int (*)(const char *, int, ...)>(::dlsym(RTLD_NEXT, "open64"));
    return real(path, flags, mode);
}

/// The page of date and time on a system without a zone database.
class TstZonelessDate : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { Clock::useSystem(); }
    void utcIsTheOnlyZone();
    void storedZoneCountsAsUtcUntilOkStoresUtc();
    void timeIsSetInUtc();

private:
    static void step(UserDatePage &page, int field, FrontKey key, int times = 1)
    {
        press(&page, Up, 6);
        press(&page, Down, field);
        press(&page, key, times);
    }
};

namespace {

constexpr int kHours = 3, kZone = 5; // fields

QString shownTime(const UserDatePage &page)
{
    return text(&page, QStringLiteral("hours")) + QLatin1Char(':') + text(&page, QStringLiteral("minutes"));
}

} // namespace

void TstZonelessDate::initTestCase()
{
    m_idevice = new IDevice;
    QVERIFY2(!QTimeZone::isTimeZoneIdAvailable("Europe/Paris"), "the database is there after all");
}

void TstZonelessDate::init()
{
    removeFile(kUserFile);
    m_userConfig_g = UserConfig();
    Clock::setForTest(QDateTime(QDate(2024, 1, 18), QTime(16, 15, 42), Qt::UTC).toMSecsSinceEpoch());
}

void TstZonelessDate::utcIsTheOnlyZone()
{
    UserDatePage page;
    page.show();
    page.init_parameter();
    for (const FrontKey key : { Right, Left, Right }) {
        step(page, kZone, key, 40);
        QCOMPARE(text(&page, QStringLiteral("time_zone")), QStringLiteral("UTC"));
        QCOMPARE(shownTime(page), QStringLiteral("16:15"));
    }
}

void TstZonelessDate::storedZoneCountsAsUtcUntilOkStoresUtc()
{
    const QByteArray before = "TZ=Asia/Kolkata\n";
    writeFile(kUserFile, before);
    m_userConfig_g = UserConfig();
    UserDatePage page;
    page.show();
    page.init_parameter();
    QCOMPARE(text(&page, QStringLiteral("time_zone")), QStringLiteral("UTC"));
    QCOMPARE(shownTime(page), QStringLiteral("16:15"));
    press(&page, F5);
    QCOMPARE(content(kUserFile), before);
    press(&page, F4);
    QCOMPARE(UserConfig().getTimeZone(), QStringLiteral("UTC"));
    QCOMPARE(LocalTime::localTimeZone().id(), QByteArray("UTC"));
}

void TstZonelessDate::timeIsSetInUtc()
{
    UserDatePage page;
    page.show();
    page.init_parameter();
    step(page, kHours, Right);
    FrameSpy frames;
    press(&page, F4);
    QCOMPARE(frames.count(), 1);
    // 0 s, 15 min, 17 h, Thursday; 18, January, 2024
    QCOMPARE(frames.frames.at(0).bytes.mid(8, 8), QByteArray::fromHex("000f11041201e807"));
}

PAGE_TEST_MAIN(TstZonelessDate)
#include "tst_zonelessdate.moc"
