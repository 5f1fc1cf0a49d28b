#include "board/qwpactrl.h"
#include "board/ssidtext.h"
#include "board/wifi.h"
#include "scripteddaemon.h"
#include "standins.h"

#include <QFile>
#include <QTest>

#include <memory>

/// Joining networks: what the daemon is sent, in which order, and what becomes of a join that fails.
class TstWifiJoin : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void operationsSendTheirCommands();
    void refusedOperationsFail();
    void withoutADaemonEverythingFails();
    void withoutTheServiceEverythingFails();
    void openNetworkIsAdded();
    void securedNetworkIsAdded();
    void hiddenNetworkIsAddedByItsTypedName();
    void hostileNameStaysInItsField();
    void refusedValueRemovesTheNetwork_data();
    void refusedValueRemovesTheNetwork();
    void passwordWithALineFeedIsNeverSent();
    void noNetworkIsConfiguredWithoutANumber();
    void askerThatIsGoneLeavesNoHalfNetwork();
    void daemonThatDiesInAJoinFailsIt();
    void chosenNetworkIsSelectedAndSaved();
    void savedFileIsWrittenToTheDisk();
    void numberOfAStoredNetworkIsFound();

private:
    /// Commands of the daemon that change networks.
    QVector<QByteArray> changes() const
    {
        QVector<QByteArray> commands;
        for (const QByteArray &command : m_daemon->commands) {
            if (command.contains("NETWORK") || command == "SAVE_CONFIG")
                commands << command;
        }
        return commands;
    }
    Wifi::Done takeOk()
    {
        return [this](bool ok) { m_ok = ok; };
    }
    Wifi::Number takeNumber()
    {
        return [this](int number) { m_number = number; };
    }

    std::unique_ptr<ScriptedDaemon> m_daemon;
    std::unique_ptr<Wifi> m_wifi;
    int m_ok = -1; // not answered
    int m_number = -100; // not answered
};

namespace {

WifiInfo network(const QByteArray &ssid, const QString &flags)
{
    WifiInfo info;
    info.setSsid(SsidText::escaped(ssid));
    info.setFlags(flags);
    return info;
}

const QString kOpen = QStringLiteral("[ESS]");
const QString kSecured = QStringLiteral("[WPA2-PSK-CCMP][ESS]");

} // namespace

void TstWifiJoin::init()
{
    setStandIn(QStringLiteral("sync"), "exit 0\n"); // one that outlives its test leaves no trace in the next
    m_daemon = std::make_unique<ScriptedDaemon>();
    m_wifi = std::make_unique<Wifi>();
    m_ok = -1;
    m_number = -100;
    QTRY_COMPARE(m_daemon->attached.size(), 1);
}

void TstWifiJoin::cleanup()
{
    m_wifi.reset();
    m_daemon.reset();
}

void TstWifiJoin::operationsSendTheirCommands()
{
    m_daemon->answers["ADD_NETWORK"] = "4\n";
    QTRY_COMPARE(m_daemon->count("INTERFACES"), 1);
    m_daemon->commands.clear();
    Wifi::addNetwork(this, takeNumber());
    Wifi::setNetwork(4, "key_mgmt", "NONE", false, this, takeOk());
    Wifi::setNetwork(4, "ssid", "a b", true, this, takeOk());
    Wifi::enableNetwork(4, this, takeOk());
    Wifi::selectNetwork(4, this, takeOk());
    Wifi::removeNetwork(4, this, takeOk());
    Wifi::disconnectNetwork();
    Wifi::reconnectNetwork();
    Wifi::reassociateNetwork();
    Wifi::reconfigureNetwork();
    Wifi::scanStatus();
    const QVector<QByteArray> expected { "ADD_NETWORK",
                                         "SET_NETWORK 4 key_mgmt NONE",
                                         "SET_NETWORK 4 ssid \"a b\"",
                                         "ENABLE_NETWORK 4",
                                         "SELECT_NETWORK 4",
                                         "REMOVE_NETWORK 4",
                                         "DISCONNECT",
                                         "RECONNECT",
                                         "REASSOCIATE",
                                         "RECONFIGURE" };
    const auto ordered = [this] { // the service asks for its state by itself, too
        auto commands = m_daemon->commands;
        commands.removeAll("STATUS");
        return commands;
    };
    QTRY_COMPARE(ordered(), expected);
    QTRY_VERIFY(m_daemon->count("STATUS") > 0);
    QCOMPARE(m_number, 4);
    QCOMPARE(m_ok, 1);
}

void TstWifiJoin::refusedOperationsFail()
{
    for (const char *word : { "ADD_NETWORK", "SET_NETWORK", "ENABLE_NETWORK", "SELECT_NETWORK", "REMOVE_NETWORK" })
        m_daemon->answers[word] = "FAIL\n";
    int refused = 0;
    const Wifi::Done count = [&refused](bool ok) { refused += !ok; };
    Wifi::setNetwork(0, "scan_ssid", "1", false, this, count);
    Wifi::enableNetwork(0, this, count);
    Wifi::selectNetwork(0, this, count);
    Wifi::removeNetwork(0, this, count);
    Wifi::addNetwork(this, takeNumber());
    QTRY_COMPARE(m_number, -1);
    QCOMPARE(refused, 4);
}

void TstWifiJoin::withoutADaemonEverythingFails()
{
    m_daemon->die();
    int failed = 0;
    const Wifi::Done count = [&failed](bool ok) { failed += !ok; };
    Wifi::selectNetwork(0, this, count);
    Wifi::saveConfig(this, count);
    Wifi::change2Network(0, this, count);
    Wifi::addSsid(network("a", kOpen), QString(), this, takeNumber());
    QCOMPARE(failed, 0);
    QTRY_COMPARE(failed, 3);
    QTRY_COMPARE(m_number, -1);
    m_number = -100;
    Wifi::networkId(QStringLiteral("a"), this, takeNumber());
    QTRY_COMPARE(m_number, -1);
    Wifi::open();
    Wifi::close();
}

void TstWifiJoin::withoutTheServiceEverythingFails()
{
    m_wifi.reset();
    Wifi::addSsid(network("a", kOpen), QString(), this, takeNumber());
    Wifi::change2Network(0, this, takeOk());
    Wifi::open();
    Wifi::startScan();
    Wifi::accScanInv();
    Wifi::scanResults();
    Wifi::scanStatus();
    Wifi::close();
    QTRY_COMPARE(m_number, -1);
    QTRY_COMPARE(m_ok, 0);
    QVERIFY(!Wifi::isWifiConnected());
}

void TstWifiJoin::openNetworkIsAdded()
{
    m_daemon->answers["ADD_NETWORK"] = "2\n";
    Wifi::addSsid(network("Guests", kOpen), QString(), this, takeNumber());
    QTRY_COMPARE(m_number, 2);
    const QVector<QByteArray> expected { "ADD_NETWORK", "SET_NETWORK 2 ssid \"Guests\"", "SET_NETWORK 2 key_mgmt NONE",
                                         "SET_NETWORK 2 scan_ssid 1" };
    QCOMPARE(changes(), expected);
}

void TstWifiJoin::securedNetworkIsAdded()
{
    Wifi::addSsid(network("Hall", kSecured), QStringLiteral("pass\"word #1"), this, takeNumber());
    QTRY_COMPARE(m_number, 0);
    const QVector<QByteArray> expected { "ADD_NETWORK",
                                         "SET_NETWORK 0 ssid \"Hall\"",
                                         "SET_NETWORK 0 scan_ssid 1",
                                         "SET_NETWORK 0 proto WPA2",
                                         "SET_NETWORK 0 key_mgmt WPA-PSK",
                                         "SET_NETWORK 0 psk \"pass\"word #1\"" };
    QCOMPARE(changes(), expected);
}

void TstWifiJoin::hiddenNetworkIsAddedByItsTypedName()
{
    Wifi::addSsid(network("", kOpen), QString(), this, takeNumber());
    QTRY_COMPARE(m_number, -1); // nothing to ask the air for
    m_daemon->commands.clear();
    Wifi::addSsid(network("Cellar", kOpen), QString(), this, takeNumber());
    QTRY_COMPARE(m_number, 0);
    QVERIFY(changes().contains("SET_NETWORK 0 ssid \"Cellar\""));
    QVERIFY(changes().contains("SET_NETWORK 0 scan_ssid 1"));
}

void TstWifiJoin::hostileNameStaysInItsField()
{
    const QByteArray name("x\"\n\tpsk=\"\\$(reboot)", 19);
    Wifi::addSsid(network(name, kOpen), QString(), this, takeNumber());
    QTRY_COMPARE(m_number, 0);
    QVERIFY(changes().contains("SET_NETWORK 0 ssid " + name.toHex()));
    for (const QByteArray &command : m_daemon->commands)
        QVERIFY2(!command.contains("reboot") && !command.contains('\n'), command.constData());
}

void TstWifiJoin::refusedValueRemovesTheNetwork_data()
{
    QTest::addColumn<QByteArray>("refused");
    QTest::newRow("name") << QByteArray("SET_NETWORK 0 ssid \"Hall\"");
    QTest::newRow("kind of key") << QByteArray("SET_NETWORK 0 key_mgmt WPA-PSK");
    QTest::newRow("password") << QByteArray("SET_NETWORK 0 psk \"short\"");
}

void TstWifiJoin::refusedValueRemovesTheNetwork()
{
    QFETCH(QByteArray, refused);
    m_daemon->answers[refused] = "FAIL\n";
    Wifi::addSsid(network("Hall", kSecured), QStringLiteral("short"), this, takeNumber());
    QTRY_COMPARE(m_number, -1);
    const QVector<QByteArray> sent = changes();
    QCOMPARE(sent.last(), QByteArray("REMOVE_NETWORK 0"));
    QCOMPARE(sent.at(sent.size() - 2), refused); // nothing was sent behind it
}

void TstWifiJoin::passwordWithALineFeedIsNeverSent()
{
    Wifi::addSsid(network("Hall", kSecured), QStringLiteral("password\"\nkey_mgmt=NONE\n#"), this, takeNumber());
    QTRY_COMPARE(m_number, -1);
    for (const QByteArray &command : m_daemon->commands)
        QVERIFY2(!command.contains("psk"), command.constData());
    QCOMPARE(changes().last(), QByteArray("REMOVE_NETWORK 0"));
}

void TstWifiJoin::noNetworkIsConfiguredWithoutANumber()
{
    m_daemon->answers["ADD_NETWORK"] = "garbage\n";
    Wifi::addSsid(network("Hall", kSecured), QStringLiteral("password"), this, takeNumber());
    QTRY_COMPARE(m_number, -1);
    QCOMPARE(changes(), QVector<QByteArray>({ "ADD_NETWORK" }));
}

void TstWifiJoin::askerThatIsGoneLeavesNoHalfNetwork()
{
    m_daemon->answers["SET_NETWORK 0 scan_ssid 1"] = "FAIL\n";
    bool called = false;
    {
        QObject page;
        Wifi::addSsid(network("Hall", kOpen), QString(), &page, [&called](int) { called = true; });
    }
    QTRY_VERIFY(m_daemon->count("REMOVE_NETWORK 0") == 1);
    QTest::qWait(20);
    QVERIFY(!called);
}

void TstWifiJoin::daemonThatDiesInAJoinFailsIt()
{
    m_daemon->silent << "SET_NETWORK";
    QTRY_VERIFY(!Wifi::wpaCtrl->isWaiting("INTERFACES"));
    Wifi::addSsid(network("Hall", kOpen), QString(), this, takeNumber());
    Wifi::wpaCtrl->setAnswerTime(100); // of what comes behind the first command
    QTRY_COMPARE(m_daemon->count("SET_NETWORK 0 ssid \"Hall\""), 1);
    m_daemon->die();
    QTRY_COMPARE(m_number, -1);
}

void TstWifiJoin::chosenNetworkIsSelectedAndSaved()
{
    Wifi::change2Network(3, this, takeOk());
    QTRY_COMPARE(m_daemon->count("SAVE_CONFIG"), 1);
    QTRY_COMPARE(m_ok, 1);
    QCOMPARE(changes(), QVector<QByteArray>({ "SELECT_NETWORK 3", "SAVE_CONFIG" }));
    m_daemon->answers["SELECT_NETWORK"] = "FAIL\n";
    Wifi::change2Network(4, this, takeOk());
    QTRY_COMPARE(m_ok, 0);
}

void TstWifiJoin::savedFileIsWrittenToTheDisk()
{
    setStandIn(QStringLiteral("sync"), "echo synced > \"${0%/bin/*}/var/log/synced\"\n");
    QFile synced(Target::path(QStringLiteral("/var/log/synced")));
    m_daemon->silent << "SAVE_CONFIG";
    Wifi::saveConfig(this, takeOk());
    QTRY_COMPARE(m_daemon->count("SAVE_CONFIG"), 1);
    QTest::qWait(50);
    QVERIFY(!synced.exists()); // not before the daemon has written it
    m_daemon->send(m_daemon->last, "OK\n");
    QTRY_VERIFY_WITH_TIMEOUT(synced.exists(), 30000);
    QCOMPARE(m_ok, 1);
}

void TstWifiJoin::numberOfAStoredNetworkIsFound()
{
    m_daemon->answers["LIST_NETWORKS"] = "network id / ssid / bssid / flags\n0\tHall\tany\t[CURRENT]\n"
                                         "1\t\\xc3\\x9c \\\"b\\\"\tany\t[DISABLED]\n";
    Wifi::networkId(SsidText::escaped("\xc3\x9c \"b\""), this, takeNumber());
    QTRY_COMPARE(m_number, 1);
    Wifi::networkId(QStringLiteral("Nobody"), this, takeNumber());
    QTRY_COMPARE(m_number, -1);
}

QTEST_GUILESS_MAIN(TstWifiJoin)
#include "tst_wifijoin.moc"
