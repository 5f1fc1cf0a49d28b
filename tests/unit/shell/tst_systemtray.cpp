#include "settings/config_data.h"
#include "settings/recordinfo.h"
#include "board/battery.h"
#include "board/network.h"
#include "platform/target.h"
#include "shell/systemtray.h"

#include "unit/markedlanguage.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

class TstSystemTray : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void batteryStatusPicksTheIcon_data();
    void batteryStatusPicksTheIcon();
    void eachCycleTellsTextAndIcons();
    void collectsByItself();
    void setUpLineIsShownAndAddedInfosTakeTurns();
    void whatTheStorageRefusesIsToldInTurnWithTheSetUpLine();
    void recordingIsShown();
    void bdsIsShownAfterItsSignalAndStays();
    void wirelessComesFromTheQuery();
    void usbDiskIsShown();
    void iconsTakeTurnsInTheirOrder();
    void withNoIconTheCableIsNamed();
    void anIconIsListedOnce();
    void batteryIsOnTheRight();
};

void TstSystemTray::cleanup()
{
    RecordInfo::m_in_recording = 0;
    QDir(Target::path(QStringLiteral("/run/media/sda1"))).removeRecursively();
}

void TstSystemTray::batteryStatusPicksTheIcon_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("icon");
    const char *icons[] = { "battery_1", "battery_2", "battery_3", "battery_f", "battery_charging", "battery_charged" };
    for (int status = 1; status <= 6; ++status)
        QTest::addRow("%d", status) << status << QString::fromLatin1(icons[status - 1]);
    QTest::newRow("no gauge") << 7 << "battery_0";
    QTest::newRow("unknown") << 0 << "battery_0";
    QTest::newRow("beyond") << 99 << "battery_0";
}

void TstSystemTray::batteryStatusPicksTheIcon()
{
    QFETCH(int, status);
    QTEST(SystemTray::batteryIcon(status), "icon");
}

/// Icons of the next cycle: left, right.
static QStringList nextIcons(SystemTray &tray)
{
    QSignalSpy spy(&tray, &SystemTray::refreshSystemIcon);
    tray.collectSystemInfo();
    return spy.size() == 1 ? QStringList { spy.at(0).at(0).toString(), spy.at(0).at(1).toString() } : QStringList();
}

static QString nextInfo(SystemTray &tray)
{
    QSignalSpy spy(&tray, &SystemTray::refreshSystemInfo);
    tray.collectSystemInfo();
    return spy.size() == 1 ? spy.at(0).at(0).toString() : QString();
}

/// Icons of `cycles` cycles on the left side.
static QStringList leftIcons(SystemTray &tray, int cycles)
{
    QStringList icons;
    for (int i = 0; i < cycles; ++i)
        icons << nextIcons(tray).value(0);
    return icons;
}

void TstSystemTray::eachCycleTellsTextAndIcons()
{
    SystemTray tray;
    QSignalSpy info(&tray, &SystemTray::refreshSystemInfo);
    QSignalSpy icon(&tray, &SystemTray::refreshSystemIcon);
    for (int i = 1; i <= 3; ++i) {
        tray.collectSystemInfo();
        QCOMPARE(info.size(), i);
        QCOMPARE(icon.size(), i);
    }
}

void TstSystemTray::collectsByItself()
{
    SystemTray tray;
    QSignalSpy icon(&tray, &SystemTray::refreshSystemIcon);
    QTRY_VERIFY(icon.size() >= 2);
}

void TstSystemTray::setUpLineIsShownAndAddedInfosTakeTurns()
{
    SystemTray tray;
    QCOMPARE(nextInfo(tray), m_settingConfig_g.systemInfo());
    QCOMPARE(nextInfo(tray), m_settingConfig_g.systemInfo());
    SystemTray other;
    other.addInfo(QStringLiteral("one"));
    other.addInfo(QStringLiteral("two"));
    other.addInfo(QStringLiteral("one"));
    QStringList shown;
    for (int i = 0; i < 6; ++i)
        shown << nextInfo(other);
    const QString setUp = m_settingConfig_g.systemInfo();
    QCOMPARE(shown, QStringList({ setUp, "one", "two", setUp, "one", "two" }));
    other.removeInfo(QStringLiteral("one"));
    QCOMPARE(other.infos(), QStringList { "two" });
}

void TstSystemTray::whatTheStorageRefusesIsToldInTurnWithTheSetUpLine()
{
    SystemTray tray;
    bool refuses = false;
    tray.setStorageQuery([&refuses] { return refuses; });
    nextInfo(tray);
    QVERIFY(tray.infos().isEmpty());
    refuses = true;
    QStringList seen { nextInfo(tray), nextInfo(tray), nextInfo(tray), nextInfo(tray) };
    QCOMPARE(seen.count("Nothing is stored:\nstorage full"), 2);
    QCOMPARE(seen.count(m_settingConfig_g.systemInfo()), 2);
    MarkedLanguage language; // one that was chosen meanwhile
    QVERIFY(QCoreApplication::installTranslator(&language));
    nextInfo(tray);
    QCOMPARE(tray.infos(), QStringList { "~Nothing is stored:\nstorage full" });
    QCoreApplication::removeTranslator(&language);
    refuses = false;
    nextInfo(tray);
    QVERIFY(tray.infos().isEmpty());
}

void TstSystemTray::recordingIsShown()
{
    SystemTray tray;
    tray.collectSystemInfo();
    QVERIFY(!tray.icons().contains(QStringLiteral("inRecording")));
    RecordInfo::m_in_recording = 1;
    tray.collectSystemInfo();
    QVERIFY(tray.icons().contains(QStringLiteral("inRecording")));
    RecordInfo::m_in_recording = 0;
    tray.collectSystemInfo();
    QVERIFY(!tray.icons().contains(QStringLiteral("inRecording")));
}

void TstSystemTray::bdsIsShownAfterItsSignalAndStays()
{
    SystemTray tray;
    tray.collectSystemInfo();
    QVERIFY(!tray.icons().contains(QStringLiteral("bds")));
    tray.usingBDS(1);
    QVERIFY(tray.icons().contains(QStringLiteral("bds")));
    for (int i = 0; i < 30; ++i)
        tray.collectSystemInfo();
    QVERIFY(tray.icons().contains(QStringLiteral("bds")));
    tray.usingBDS(0);
    QVERIFY(!tray.icons().contains(QStringLiteral("bds")));
    tray.usingBDS(0x80000000); // any bit of the processor's word counts
    QVERIFY(tray.icons().contains(QStringLiteral("bds")));
}

void TstSystemTray::wirelessComesFromTheQuery()
{
    SystemTray tray;
    bool joined = true;
    tray.setWirelessQuery([&joined] { return joined; });
    tray.collectSystemInfo();
    QVERIFY(tray.icons().contains(QStringLiteral("wirelessConnected")));
    joined = false;
    tray.collectSystemInfo();
    QVERIFY(!tray.icons().contains(QStringLiteral("wirelessConnected")));
}

void TstSystemTray::usbDiskIsShown()
{
    SystemTray tray;
    tray.collectSystemInfo();
    QVERIFY(!tray.icons().contains(QStringLiteral("USB")));
    QVERIFY(QDir().mkpath(Target::path(QStringLiteral("/run/media/sda1"))));
    SystemTray withDisk;
    withDisk.collectSystemInfo();
    QVERIFY(withDisk.icons().contains(QStringLiteral("USB")));
    QTRY_VERIFY((tray.collectSystemInfo(), tray.icons().contains(QStringLiteral("USB"))));
}

void TstSystemTray::iconsTakeTurnsInTheirOrder()
{
    QVERIFY(QDir().mkpath(Target::path(QStringLiteral("/run/media/sda1"))));
    SystemTray tray;
    tray.setWirelessQuery([] { return true; });
    tray.addIcon(QStringLiteral("clamp"));
    tray.usingBDS(1);
    RecordInfo::m_in_recording = 1;
    QStringList order { "inRecording", "USB", "bds" };
    if (NetWork::checkNetwireStatus(QStringLiteral("eth0")))
        order << QStringLiteral("netWireConnected");
    order << QStringLiteral("wirelessConnected") << QStringLiteral("clamp");
    QCOMPARE(leftIcons(tray, order.size()), order);
    QCOMPARE(tray.icons(), order);
    QCOMPARE(nextIcons(tray).value(0), order.first());
}

void TstSystemTray::withNoIconTheCableIsNamed()
{
    SystemTray tray;
    const bool wired = NetWork::checkNetwireStatus(QStringLiteral("eth0"));
    QCOMPARE(nextIcons(tray).value(0), wired ? QStringLiteral("netWireConnected") : QStringLiteral("netWireBroken"));
}

void TstSystemTray::anIconIsListedOnce()
{
    SystemTray tray;
    tray.addIcon(QStringLiteral("clamp"));
    tray.addIcon(QStringLiteral("clamp"));
    tray.addIcon(QString());
    QCOMPARE(tray.icons(), QStringList { "clamp" });
    tray.removeIcon(QStringLiteral("clamp"));
    QVERIFY(tray.icons().isEmpty());
}

void TstSystemTray::batteryIsOnTheRight()
{
    SystemTray tray;
    QCOMPARE(nextIcons(tray).value(1), SystemTray::batteryIcon(Battery::batteryStatus()));
}

QTEST_MAIN(TstSystemTray)
#include "tst_systemtray.moc"
