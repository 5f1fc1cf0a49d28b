#include "board/qwpactrl.h"
#include "board/wifi.h"
#include "scripteddaemon.h"
#include "standins.h"
#include "unit/storage/rootfiles.h"

#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <memory>

/// State of the wireless network: opening and leaving, the status, the list of networks, the commands of the board.
class TstWifiState : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void openingJoinsOnceAndScans();
    void closingLeaves();
    void joinedNetworkGetsAnAddress();
    void lostNetworkEndsTheAddressClient();
    void onlyTheAddressClientOfTheInterfaceIsEnded();
    void addressClientDelaysNothing();
    void stateIsAskedForEveryThreeSeconds();
    void answerAskedForBeforeTheCloseIsNotTaken();
    void statusIsTakenFromTheAnswer();
    void statusIsEmptyAfterAFailure();
    void statusIsAskedForAgainAndAgain();
    void hangingDaemonGetsOneStatusRequest();
    void listIsReadToItsEnd_data();
    void listIsReadToItsEnd();
    void resultsOfAScanAreRead();
    void oneListIsReadAtATime();
    void listOfTenThousandIsBounded();
    void daemonThatDiesInAListShowsNoNetworks();
    void pageScansEverySecond();
    void shellThatHangsStopsNoTimer();
    void namesAreTurnedBackIntoText();

private:
    std::unique_ptr<ScriptedDaemon> m_daemon;
    std::unique_ptr<Wifi> m_wifi;
};

namespace {

QByteArray bss(const QByteArray &ssid)
{
    return "bssid=02:00:00:00:00:01\nfreq=2437\nlevel=-70\nflags=[ESS]\nssid=" + ssid + '\n';
}

QByteArrayList shellCommands()
{
    return RootFiles::lines(QStringLiteral("/var/log/commands"));
}

} // namespace

void TstWifiState::init()
{
    QFile::remove(Target::path(QStringLiteral("/var/log/commands")));
    m_daemon = std::make_unique<ScriptedDaemon>();
    m_wifi = std::make_unique<Wifi>();
    QTRY_COMPARE(m_daemon->attached.size(), 1);
}

void TstWifiState::cleanup()
{
    m_wifi.reset();
    m_daemon.reset();
}

void TstWifiState::openingJoinsOnceAndScans()
{
    QVERIFY(!Wifi::is_opened);
    QVERIFY(!Wifi::is_openning);
    Wifi::open();
    QVERIFY(Wifi::is_opened);
    QVERIFY(Wifi::is_openning);
    Wifi::open(); // while opening: nothing
    QTRY_COMPARE(m_daemon->count("SCAN"), 1);
    QCOMPARE(m_daemon->count("REASSOCIATE"), 1);
    QVERIFY(Wifi::wpaCtrl->isScanning());
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 5000);
    m_daemon->event("<3>CTRL-EVENT-CONNECTED - Connection completed");
    QTRY_VERIFY(!Wifi::is_openning);
    QVERIFY(Wifi::is_opened);
    QTRY_COMPARE_WITH_TIMEOUT(shellCommands(), QByteArrayList({ "udhcpc -i wlan0" }), 30000);
    Wifi::stopScan();
    QVERIFY(!Wifi::wpaCtrl->isScanning());
    Wifi::open();
    QVERIFY(Wifi::wpaCtrl->isScanning());
    QTRY_COMPARE(m_daemon->count("REASSOCIATE"), 2);
}

void TstWifiState::closingLeaves()
{
    Wifi::open();
    Wifi::close();
    QVERIFY(!Wifi::is_opened);
    QVERIFY(!Wifi::is_openning);
    QTRY_COMPARE(m_daemon->count("DISCONNECT"), 1);
}

void TstWifiState::joinedNetworkGetsAnAddress()
{
    m_daemon->event("<3>CTRL-EVENT-CONNECTED - Connection completed");
    QTRY_COMPARE_WITH_TIMEOUT(shellCommands(), QByteArrayList({ "udhcpc -i wlan0" }), 30000);
}

void TstWifiState::lostNetworkEndsTheAddressClient()
{
    Wifi::open();
    m_daemon->event("<3>CTRL-EVENT-DISCONNECTED bssid=02:00:00:00:00:01 reason=3");
    QTRY_VERIFY_WITH_TIMEOUT(shellCommands().contains("wlan0_del_route.sh"), 30000);
    const QByteArrayList commands = shellCommands();
    QVERIFY(commands.contains("ps"));
    QVERIFY(commands.contains("kill -9"));
    QCOMPARE(commands.last(), QByteArray("wlan0_del_route.sh"));
    QVERIFY(!Wifi::wpaCtrl->isScanning());
}

void TstWifiState::statusIsTakenFromTheAnswer()
{
    m_daemon->answers["STATUS"] = "bssid=02:00:00:00:00:01\nfreq=2437\nssid=Hall\nid=0\nkey_mgmt=WPA2-PSK\n"
                                  "wpa_state=COMPLETED\nip_address=192.168.4.20\n";
    QVERIFY(!Wifi::isWifiConnected());
    QSignalSpy changed(m_wifi.get(), &Wifi::statusChanged);
    Wifi::scanStatus();
    QVERIFY(!Wifi::isWifiConnected()); // not before the answer
    QTRY_VERIFY(changed.size() > 0);
    QVERIFY(Wifi::isWifiConnected());
    QCOMPARE(Wifi::status.ssid, QStringLiteral("Hall"));
    QCOMPARE(Wifi::status.ip_address, QStringLiteral("192.168.4.20"));
    m_daemon->answers["STATUS"] = "wpa_state=SCANNING\n";
    Wifi::scanStatus();
    QVERIFY(Wifi::isWifiConnected()); // still, until the daemon says otherwise
    changed.clear();
    QTRY_VERIFY(!Wifi::isWifiConnected());
    QVERIFY(changed.size() > 0);
    QCOMPARE(Wifi::status.ssid, QString());
    QCOMPARE(Wifi::status.ip_address, QString());
}

void TstWifiState::statusIsEmptyAfterAFailure()
{
    m_daemon->answers["STATUS"] = "wpa_state=COMPLETED\n";
    Wifi::scanStatus();
    QTRY_VERIFY(Wifi::isWifiConnected());
    m_daemon->die();
    Wifi::scanStatus();
    QTRY_VERIFY(!Wifi::isWifiConnected());
    QCOMPARE(Wifi::status.wpa_state, QString());
}

void TstWifiState::statusIsAskedForAgainAndAgain()
{
    QTRY_VERIFY_WITH_TIMEOUT(m_daemon->count("STATUS") >= 2, 15000);
}

void TstWifiState::hangingDaemonGetsOneStatusRequest()
{
    m_daemon->hang();
    for (int i = 0; i < 100; ++i)
        Wifi::scanStatus();
    m_daemon->wake();
    bool answered = false;
    int asked = 0; // before; the service asks by itself, too
    Wifi::enableNetwork(0, this, [&](bool ok) {
        answered = ok;
        asked = m_daemon->count("STATUS");
    });
    QTRY_VERIFY(answered);
    QCOMPARE(asked, 1);
}

void TstWifiState::listIsReadToItsEnd_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("FAIL") << QByteArray("FAIL\n");
    QTest::newRow("nothing") << QByteArray();
}

void TstWifiState::listIsReadToItsEnd()
{
    QFETCH(QByteArray, end);
    m_daemon->networks = { bss("Hall"), bss(""), bss("\\xc3\\x9c"), end, bss("never read") };
    QSignalSpy changed(m_wifi.get(), &Wifi::networksChanged);
    Wifi::scanResults();
    QTRY_COMPARE(changed.size(), 1);
    QStringList names;
    for (const WifiInfo &info : Wifi::networks())
        names << info.shownName();
    QCOMPARE(names, QStringList({ "Hall", "[Unknown]", QString::fromUtf8("\xc3\x9c") }));
    QCOMPARE(m_daemon->count("BSS 3"), 1);
    QCOMPARE(m_daemon->count("BSS 4"), 0);
    QCOMPARE(Wifi::networks().first().level(), -70);
}

void TstWifiState::resultsOfAScanAreRead()
{
    m_daemon->networks = { bss("Hall") };
    m_daemon->event("<3>CTRL-EVENT-SCAN-RESULTS ");
    QTRY_COMPARE(Wifi::networks().size(), 1);
    QVERIFY(Wifi::wpaCtrl->isScanning());
}

void TstWifiState::oneListIsReadAtATime()
{
    m_daemon->networks = { bss("Hall"), bss("Office") };
    QSignalSpy changed(m_wifi.get(), &Wifi::networksChanged);
    for (int i = 0; i < 50; ++i)
        m_daemon->event("<3>CTRL-EVENT-SCAN-RESULTS ");
    Wifi::scanResults();
    Wifi::scanResults();
    QTRY_VERIFY(changed.size() >= 1);
    QCOMPARE(Wifi::networks().size(), 2);
    QVERIFY(m_daemon->count("BSS 0") < 50);
}

void TstWifiState::listOfTenThousandIsBounded()
{
    m_daemon->networks.fill(bss("Hall"), 10000);
    QSignalSpy changed(m_wifi.get(), &Wifi::networksChanged);
    Wifi::scanResults();
    QTRY_COMPARE_WITH_TIMEOUT(changed.size(), 1, 30000);
    QCOMPARE(Wifi::networks().size(), Wifi::kMostNetworks);
    QCOMPARE(m_daemon->count("BSS " + QByteArray::number(Wifi::kMostNetworks)), 0);
}

void TstWifiState::daemonThatDiesInAListShowsNoNetworks()
{
    m_daemon->networks = { bss("Hall") };
    QSignalSpy changed(m_wifi.get(), &Wifi::networksChanged);
    Wifi::scanResults();
    QTRY_COMPARE(changed.size(), 1);
    QCOMPARE(Wifi::networks().size(), 1);
    m_daemon->die();
    Wifi::scanResults();
    QTRY_COMPARE(changed.size(), 2);
    QVERIFY(Wifi::networks().isEmpty());
}

void TstWifiState::pageScansEverySecond()
{
    Wifi::open();
    Wifi::accScanInv();
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 1000);
    m_daemon->event("<3>CTRL-EVENT-SCAN-RESULTS ");
    QTRY_VERIFY(m_daemon->count("BSS 0") > 0);
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 1000);
    QTRY_VERIFY_WITH_TIMEOUT(m_daemon->count("SCAN") >= 3, 15000);
    Wifi::restoreScanInv();
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 5000);
}

void TstWifiState::shellThatHangsStopsNoTimer()
{
    setStandIn(QStringLiteral("sync"), kUntilLetGo + "echo sync >> \"${0%/bin/*}/var/log/commands\"\n");
    const TurnsBeside screen;
    Wifi::saveConfig(this, [](bool) {});
    QVERIFY(shellCommands().isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(shellCommands(), QByteArrayList({ "sync" }), 30000);
    QVERIFY2(screen.turns() >= TurnsBeside::kTurns, qPrintable(QString::number(screen.turns())));
    QVERIFY(QFile::remove(Target::path(kLetGo)));
}

void TstWifiState::namesAreTurnedBackIntoText()
{
    QCOMPARE(Wifi::hexStr2QString(QStringLiteral("M\\xc3\\xbchle")), QString::fromUtf8("M\xc3\xbchle"));
    QCOMPARE(Wifi::hexStr2QString(QString()), QString());
}

void TstWifiState::onlyTheAddressClientOfTheInterfaceIsEnded()
{
    setStandIn(QStringLiteral("ps"),
               "echo ' 71 root udhcpc -i wlan0'\necho ' 72 root udhcpc -i eth0'\n"
               "echo ' 73 root quvera'\n");
    m_daemon->event("<3>CTRL-EVENT-DISCONNECTED bssid=02:00:00:00:00:01 reason=3");
    QTRY_COMPARE_WITH_TIMEOUT(shellCommands(), QByteArrayList({ "kill -9 71", "wlan0_del_route.sh" }), 30000);
}

void TstWifiState::addressClientDelaysNothing()
{
    setStandIn(QStringLiteral("udhcpc"), kUntilLetGo + "echo late >> \"${0%/bin/*}/var/log/commands\"\n");
    m_daemon->event("<3>CTRL-EVENT-CONNECTED - Connection completed");
    m_daemon->event("<3>CTRL-EVENT-DISCONNECTED bssid=02:00:00:00:00:01 reason=3");
    QByteArrayList seen;
    QTRY_VERIFY_WITH_TIMEOUT((seen += shellCommands()).contains("wlan0_del_route.sh"), 30000);
    QVERIFY(!seen.contains("late")); // it still waits
    RootFiles::write(kLetGo, "");
    QTRY_VERIFY_WITH_TIMEOUT(shellCommands().contains("late"), 30000);
    QVERIFY(QFile::remove(Target::path(kLetGo)));
}

void TstWifiState::stateIsAskedForEveryThreeSeconds()
{
    cleanup();
    m_daemon = std::make_unique<ScriptedDaemon>();
    QElapsedTimer time; // of a service that begins now
    time.start();
    m_wifi = std::make_unique<Wifi>();
    QTRY_VERIFY_WITH_TIMEOUT(m_daemon->count("STATUS") > 0, 60000);
    const int first = m_daemon->count("STATUS");
    int seconds = 0;
    QTimer second; // a busy machine holds it up as much as the other
    connect(&second, &QTimer::timeout, this, [&seconds] { ++seconds; });
    second.start(1000);
    QTRY_VERIFY_WITH_TIMEOUT(m_daemon->count("STATUS") > first, 60000);
    QVERIFY2(seconds <= 4, qPrintable(QString::number(seconds)));
    QVERIFY2(time.elapsed() > 5000, qPrintable(QString::number(time.elapsed()))); // twice, a twentieth early at most
}

void TstWifiState::answerAskedForBeforeTheCloseIsNotTaken()
{
    m_daemon->silent << "STATUS";
    Wifi::scanStatus();
    QTRY_COMPARE(m_daemon->count("STATUS"), 1);
    const ScriptedDaemon::Client asker = m_daemon->last;
    Wifi::close();
    m_daemon->send(asker, "wpa_state=COMPLETED\n");
    QTRY_COMPARE(m_daemon->count("DISCONNECT"), 1); // the daemon hears it behind its answer
    QVERIFY(!Wifi::isWifiConnected());
    m_daemon->silent.clear();
    m_daemon->answers["STATUS"] = "wpa_state=COMPLETED\n";
    Wifi::scanStatus();
    QTRY_VERIFY(Wifi::isWifiConnected());
}

QTEST_GUILESS_MAIN(TstWifiState)
#include "tst_wifistate.moc"
