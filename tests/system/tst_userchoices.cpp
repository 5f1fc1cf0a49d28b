#include "instrument.h"

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>

using namespace SystemTest;

/// What a person sets on the user pages reaches the processor, the files and the board's commands.
class TstUserChoices : public QObject
{
    Q_OBJECT
private slots:
    void dateThatIsSetBecomesThatOfProcessorAndSystem();
    void zoneThatIsSetIsInForceAtTheNextStart();
    void staticAddressIsStoredAndApplied();
    void languageIsThatOfTheNextStart();

private:
    /// From the menu as it stands at the start to the user pages.
    static bool enterUser(Instrument &desk)
    {
        return desk.press(QStringLiteral("Down Down Right Right Enter").split(QLatin1Char(' ')));
    }
    static bool press(Instrument &desk, const char *keys)
    {
        return desk.press(QString::fromLatin1(keys).split(QLatin1Char(' ')));
    }
    static QString commands(const Instrument &desk)
    {
        QFile log(desk.path(QStringLiteral("/var/log/commands")));
        return log.open(QIODevice::ReadOnly) ? QString::fromUtf8(log.readAll()) : QString();
    }
};

void TstUserChoices::dateThatIsSetBecomesThatOfProcessorAndSystem()
{
    Instrument desk;
    VERIFY_DESK(desk.start({ QStringLiteral("--clock"), QStringLiteral("2024-02-29T10:20:30") }), desk);
    const int year = QDateTime::currentDateTimeUtc().date().year();
    VERIFY_DESK(enterUser(desk), desk);
    VERIFY_DESK(press(desk, "F1 Right F4"), desk); // a year on from the system's clock
    const int yearThen = QDateTime::currentDateTimeUtc().date().year(); // another one at its very end
    const auto isSet = [&](int to) { return commands(desk).contains(QStringLiteral("date -s %1-").arg(to)); };
    QTRY_VERIFY2_WITH_TIMEOUT(isSet(year + 1) || isSet(yearThen + 1), qPrintable(commands(desk)), 30000);
}

void TstUserChoices::zoneThatIsSetIsInForceAtTheNextStart()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    VERIFY_DESK(enterUser(desk), desk);
    VERIFY_DESK(press(desk, "F1 Down Down Down Down Down Right Right F4"), desk);
    const QString zone = desk.setting(QLatin1String(kUserFile), QStringLiteral("TZ"));
    QVERIFY2(zone.startsWith(QStringLiteral("Africa/")), qPrintable(zone));
    QVERIFY(desk.stopInstrument());
    VERIFY_DESK(desk.startInstrument(), desk);
    VERIFY_DESK(enterUser(desk), desk);
    // One step back from there is the zone before it, so the page began with the stored one.
    VERIFY_DESK(press(desk, "F1 Down Down Down Down Down Left Left F4"), desk);
    QCOMPARE(desk.setting(QLatin1String(kUserFile), QStringLiteral("TZ")), QStringLiteral("UTC"));
}

void TstUserChoices::staticAddressIsStoredAndApplied()
{
    constexpr char kNetFile[] = "/mnt/userfs/config/eth0.conf";
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    VERIFY_DESK(enterUser(desk), desk);
    VERIFY_DESK(press(desk, "F2 Down Right Down Enter"), desk); // Static, the address on the keyboard
    VERIFY_DESK(press(desk, "F2 Up Enter"), desk); // Clear; over q stands 1
    VERIFY_DESK(press(desk, "Down Down Left Enter"), desk); // "." at the end of the row
    VERIFY_DESK(press(desk, "Up Up Right Enter Down Down Left Enter"), desk);
    VERIFY_DESK(press(desk, "Up Up Right Enter Down Down Left Enter"), desk);
    VERIFY_DESK(press(desk, "Up Up Right Enter F4 F4"), desk); // 1.1.1.1, Ok, Ok
    QTRY_COMPARE_WITH_TIMEOUT(desk.setting(QLatin1String(kNetFile), QStringLiteral("IPADDR")),
                              QStringLiteral("1.1.1.1"), 30000);
    QTRY_COMPARE_WITH_TIMEOUT(desk.setting(QLatin1String(kNetFile), QStringLiteral("USE_DHCP")), QStringLiteral("0"),
                              30000);
    QTRY_COMPARE_WITH_TIMEOUT(desk.setting(QLatin1String(kNetFile), QStringLiteral("NETWORK")),
                              QStringLiteral("1.1.1.0"), 30000);
    QTRY_VERIFY_WITH_TIMEOUT(commands(desk).contains(QStringLiteral("networking.sh eth0\n")), 30000);
    QTRY_VERIFY_WITH_TIMEOUT(commands(desk).contains(QStringLiteral("networking restart\n")), 30000);
}

void TstUserChoices::languageIsThatOfTheNextStart()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    VERIFY_DESK(enterUser(desk), desk);
    const QImage english = title(desk.screen());
    VERIFY_DESK(press(desk, "Right"), desk);
    const QImage chinese
        = desk.waitForScreen([&](const QImage &now) { return title(now) != english; }); // at once, in the title too
    VERIFY_DESK(!chinese.isNull(), desk);
    QCOMPARE(desk.setting(QLatin1String(kUserFile), QStringLiteral("LANG")), QStringLiteral("ZH"));
    QVERIFY(desk.stopInstrument());
    VERIFY_DESK(desk.startInstrument(), desk);
    VERIFY_DESK(enterUser(desk), desk);
    QCOMPARE(title(desk.screen()), title(chinese));
}

QTEST_GUILESS_MAIN(TstUserChoices)
#include "tst_userchoices.moc"
