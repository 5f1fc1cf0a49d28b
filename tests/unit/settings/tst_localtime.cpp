#include "settings/config_data.h"
#include "platform/clock.h"
#include "settings/localtime.h"

#include <QTest>

class TstLocalTime : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Clock::useSystem(); }
    void theUsersZoneIsTaken();
    void anUnknownZoneFallsBackToUtc();
    void nowIsTheClockInTheUsersZone();
    void aChangedZoneTakesEffectAtOnce();
};

void TstLocalTime::theUsersZoneIsTaken()
{
    m_userConfig_g.setTimeZone(QStringLiteral("Asia/Shanghai"));
    QCOMPARE(LocalTime::localTimeZone().id(), QByteArray("Asia/Shanghai"));
    const QDateTime utc(QDate(2024, 2, 29), QTime(20, 0), Qt::UTC);
    QCOMPARE(LocalTime::toLocalDateTime(utc).toString(QStringLiteral("yyyy-MM-dd hh:mm")),
             QStringLiteral("2024-03-01 04:00"));
    QCOMPARE(LocalTime::toLocalDateTime(utc), utc); // the same moment
}

void TstLocalTime::anUnknownZoneFallsBackToUtc()
{
    for (const char *id : { "Mars/Olympus", "x", "../../etc/passwd" }) {
        m_userConfig_g.setTimeZone(QString::fromLatin1(id));
        QCOMPARE(LocalTime::localTimeZone().id(), QByteArray("UTC"));
    }
}

void TstLocalTime::nowIsTheClockInTheUsersZone()
{
    m_userConfig_g.setTimeZone(QStringLiteral("Asia/Shanghai"));
    Clock::setForTest(1700000000000); // 2023-11-14 22:13:20 UTC
    QCOMPARE(LocalTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")),
             QStringLiteral("2023-11-15 06:13:20"));
}

void TstLocalTime::aChangedZoneTakesEffectAtOnce()
{
    Clock::setForTest(1700000000000);
    m_userConfig_g.setTimeZone(QStringLiteral("UTC"));
    QCOMPARE(LocalTime::currentDateTime().time().hour(), 22);
    m_userConfig_g.setTimeZone(QStringLiteral("America/New_York"));
    QCOMPARE(LocalTime::currentDateTime().time().hour(), 17);
}

QTEST_GUILESS_MAIN(TstLocalTime)
#include "tst_localtime.moc"
