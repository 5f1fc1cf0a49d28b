#include "usercase.h"

#include "board/network.h"
#include "board/qwpactrl.h"
#include "board/wpachannel.h"
#include "unit/board/scripteddaemon.h"
#include "unit/threadtime.h"
#include "user/userwifipage.h"

#include <QElapsedTimer>
#include <QScrollBar>
#include <QSignalSpy>

#include <memory>

using namespace UserCase;

/// Least time that anybody would wait for a daemon that does not answer: what takes less has not waited.
constexpr qint64 kOneAnswerMs = WpaChannel::kAnswerTimeMs;

/// The wireless page: its list of networks, its state, and joining.
class TstUserWifiPage : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void captionsStandBeforeTheFirstAnswer();
    void networksInReachAreListed();
    void openLooksForNetworksAndTheKeyReadsClose();
    void closeDisconnectsAtOnce();
    void closeEndsAJoinThatWaits();
    void hiddenPageAsksForNothing();
    void stateWords_data();
    void stateWords();
    void joinedNetworkShowsItsNameAndAddress();
    void leavingThePageRestoresTheScanInterval();
    void networkWithoutAPasswordIsJoinedAtOnce();
    void networkWithAPasswordAsksForIt();
    void cancelledPasswordJoinsNothing();
    void storedNetworkNeedsNoPassword();
    void storedNetworkTakesANewPassword();
    void storedNetworkFollowsARouterOfTheFirstGeneration();
    void refusedPasswordSelectsNothing();
    void hiddenNetworkAsksForItsName();
    void hiddenNetworkWithoutANameIsRefused();
    void hiddenNetworkThatIsStoredNeedsNoPassword();
    void networkWithoutAPasswordAsksForNone();
    void nameOfMoreThan32BytesIsRefused();
    void longNameIsCutAtItsPlace();
    void shortPasswordIsRefused();
    void passwordOf64DigitsGoesUnquoted();
    void failedJoinEndsInDisconnect();
    void selectionStaysOnItsNetwork();
    void selectedNetworkAndFieldAreMarkedForThoseWhoHearThem();
    void emptyListIgnoresItsKeys();
    void namesFromTheAirAreShownAsPlainText();
    void tenThousandNetworksStayUsable();
    void withoutADaemonNothingWaits();
    void regularFileInPlaceOfTheSocketIsNoDaemon();
    void daemonThatHangsStallsNothing();

private:
    void open()
    {
        m_page = std::make_unique<UserWifiPage>();
        m_page->init_parameter();
        m_page->show();
        QTRY_VERIFY(m_daemon->count("SCAN") > 0);
    }
    void openWith(const QVector<QByteArray> &networks)
    {
        m_daemon->networks = networks;
        open();
        QTRY_COMPARE(Wifi::networks().size(), networks.size());
        m_daemon->commands.clear();
    }
    QString shown(const char *name) const { return PageTest::text(m_page.get(), QString::fromLatin1(name)); }
    void press(FrontKey key, int times = 1) { PageTest::press(m_page.get(), key, times); }
    /// Commands that change networks.
    QVector<QByteArray> changes() const
    {
        QVector<QByteArray> commands;
        for (const QByteArray &command : m_daemon->commands) {
            if (command.contains("_NETWORK ") || command == "ADD_NETWORK" || command == "SAVE_CONFIG")
                commands << command;
        }
        return commands;
    }

    std::unique_ptr<ScriptedDaemon> m_daemon;
    std::unique_ptr<Wifi> m_wifi;
    std::unique_ptr<UserWifiPage> m_page;
};

namespace {

QByteArray network(const QByteArray &ssid, const QByteArray &flags, int number = 1, int level = -50)
{
    return "bssid=02:00:00:00:00:" + QByteArray::number(10 + number) + "\nfreq=2412\nlevel=" + QByteArray::number(level)
        + "\nflags=" + flags + "\nssid=" + ssid + "\n";
}

const QByteArray kOpen = "[ESS]";
const QByteArray kSecured = "[WPA2-PSK-CCMP][ESS]";
const QByteArray kJoined = "bssid=02:00:00:00:00:11\nssid=Hall\nwpa_state=COMPLETED\nip_address=10.0.0.7\n";

/// Presses "Ok" in the password dialog, which refuses it, and leaves.
void isRefused(QDialog *dialog)
{
    QTest::keyClick(dialog, 'F');
    QVERIFY(dialog->isVisible());
    QCOMPARE(labelText(dialog, "hint"), QStringLiteral("Invalid input!"));
    QTest::keyClick(dialog, 'L');
}

} // namespace

void TstUserWifiPage::init()
{
    m_daemon = std::make_unique<ScriptedDaemon>();
    m_wifi = std::make_unique<Wifi>();
    QTRY_COMPARE(m_daemon->attached.size(), 1);
}

void TstUserWifiPage::cleanup()
{
    m_page.reset();
    m_wifi.reset();
    m_daemon.reset();
}

void TstUserWifiPage::captionsStandBeforeTheFirstAnswer()
{
    m_page = std::make_unique<UserWifiPage>();
    m_page->init_parameter();
    const char *const captions[][2]
        = { { "ssid_t", "SSID:" },       { "state_t", "Status:" },    { "address_t", "Address:" },
            { "netmask_t", "Netmask:" }, { "gateway_t", "Gateway:" }, { "btn_f1", "Open" },
            { "btn_f4", "Connect To" },  { "btn_f5", "Exit" },        { "state", "Disconnect" },
            { "address", "UNKNOWN" } };
    for (const auto &caption : captions)
        QCOMPARE(shown(caption[0]), QString::fromLatin1(caption[1]));
}

void TstUserWifiPage::networksInReachAreListed()
{
    openWith({ network("Hall", kSecured, 1, -40), network("Guests", kOpen, 2, -71), network("", kSecured, 3) });
    QTRY_COMPARE(shown("name_0"), QStringLiteral("Hall"));
    QCOMPARE(shown("level_0"), QStringLiteral("-40 dBm"));
    QCOMPARE(shown("security_0"), QStringLiteral("secured"));
    QCOMPARE(shown("name_1"), QStringLiteral("Guests"));
    QCOMPARE(shown("security_1"), QString());
    QCOMPARE(shown("name_2"), QStringLiteral("[Unknown]"));
    QCOMPARE(shown("name_3"), QString());
    QCOMPARE(shown("count"), QStringLiteral("1 / 3"));
}

void TstUserWifiPage::openLooksForNetworksAndTheKeyReadsClose()
{
    m_daemon->answers["STATUS"] = "wpa_state=INACTIVE\n";
    open();
    QTRY_COMPARE(Wifi::status.wpa_state, QStringLiteral("INACTIVE"));
    m_daemon->commands.clear();
    press(F1);
    QCOMPARE(shown("btn_f1"), QStringLiteral("Close"));
    QTRY_VERIFY(m_daemon->count("REASSOCIATE") == 1 && m_daemon->count("SCAN") > 0);
    QTRY_COMPARE(shown("state"), QStringLiteral("Scanning"));
}

void TstUserWifiPage::closeDisconnectsAtOnce()
{
    m_daemon->answers["STATUS"] = kJoined;
    open();
    QTRY_COMPARE(shown("state"), QStringLiteral("Connected"));
    QCOMPARE(shown("btn_f1"), QStringLiteral("Close"));
    m_daemon->answers["STATUS"] = "wpa_state=DISCONNECTED\n";
    press(F1);
    QCOMPARE(shown("btn_f1"), QStringLiteral("Open"));
    QCOMPARE(shown("state"), QStringLiteral("Disconnect"));
    QCOMPARE(shown("address"), QStringLiteral("UNKNOWN"));
    QCOMPARE(shown("ssid"), QString());
    QTRY_COMPARE(m_daemon->count("DISCONNECT"), 1);
}

void TstUserWifiPage::stateWords_data()
{
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<QString>("word");
    const char *const rows[][2] = {
        { "COMPLETED", "Connected" },        { "SCANNING", "Scanning" },       { "AUTHENTICATING", "Connecting" },
        { "ASSOCIATING", "Connecting" },     { "ASSOCIATED", "Connecting" },   { "4WAY_HANDSHAKE", "Connecting" },
        { "GROUP_HANDSHAKE", "Connecting" }, { "DISCONNECTED", "Disconnect" }, { "INTERFACE_DISABLED", "Disconnect" },
    };
    for (const auto &row : rows)
        QTest::newRow(row[0]) << QByteArray(row[0]) << QString::fromLatin1(row[1]);
}

void TstUserWifiPage::stateWords()
{
    QFETCH(QByteArray, state);
    QFETCH(QString, word);
    m_daemon->answers["STATUS"] = "wpa_state=" + state + "\n";
    Wifi::is_opened = true; // and joined once: no longer opening
    open();
    QTRY_COMPARE(Wifi::status.wpa_state, QString::fromLatin1(state));
    QCOMPARE(shown("state"), word);
}

void TstUserWifiPage::joinedNetworkShowsItsNameAndAddress()
{
    m_daemon->answers["STATUS"] = kJoined;
    open();
    QTRY_COMPARE(shown("ssid"), QStringLiteral("Hall"));
    const QString address = NetWork::getIfIpaddr(QStringLiteral("wlan0"));
    QCOMPARE(shown("address"), address.isEmpty() ? QStringLiteral("10.0.0.7") : address);
    QCOMPARE(shown("gateway"), NetWork::getIfGateway());
}

void TstUserWifiPage::leavingThePageRestoresTheScanInterval()
{
    open();
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 1000);
    m_page->hide();
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 5000);
    m_page->show();
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 1000);
    UserPage user(liveData());
    user.enter();
    user.show();
    m_page->hide();
    PageTest::press(user.currentPage(), F3);
    QCOMPARE(onTop(user), QStringLiteral("UserWifiPage"));
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 1000);
    PageTest::press(user.currentPage(), F5); // Exit
    QCOMPARE(onTop(user), QStringLiteral("UserZiPage"));
    QCOMPARE(Wifi::wpaCtrl->scanInterval(), 5000);
}

void TstUserWifiPage::networkWithoutAPasswordIsJoinedAtOnce()
{
    openWith({ network("Hall", kSecured, 1), network("Guests", kOpen, 2) });
    press(Down);
    press(F4);
    QCOMPARE(shown("state"), QStringLiteral("Connecting"));
    const QVector<QByteArray> expected { "ADD_NETWORK",
                                         "SET_NETWORK 0 ssid \"Guests\"",
                                         "SET_NETWORK 0 key_mgmt NONE",
                                         "SET_NETWORK 0 scan_ssid 1",
                                         "SELECT_NETWORK 0",
                                         "SAVE_CONFIG" };
    QTRY_COMPARE(changes(), expected);
    QCOMPARE(shown("btn_f1"), QStringLiteral("Close"));
}

void TstUserWifiPage::networkWithAPasswordAsksForIt()
{
    openWith({ network("Hall", kSecured) });
    DialogDriver driver({ DialogDriver::press("K"), type(QStringLiteral("Secret-12")), DialogDriver::press("F") });
    press(Enter);
    QVERIFY(driver.isDone());
    const QVector<QByteArray> expected { "ADD_NETWORK",
                                         "SET_NETWORK 0 ssid \"Hall\"",
                                         "SET_NETWORK 0 scan_ssid 1",
                                         "SET_NETWORK 0 proto WPA2",
                                         "SET_NETWORK 0 key_mgmt WPA-PSK",
                                         "SET_NETWORK 0 psk \"Secret-12\"",
                                         "SELECT_NETWORK 0",
                                         "SAVE_CONFIG" };
    QTRY_COMPARE(changes(), expected);
}

void TstUserWifiPage::cancelledPasswordJoinsNothing()
{
    openWith({ network("Hall", kSecured) });
    DialogDriver driver({ DialogDriver::press("K"), type(QStringLiteral("Secret-12")), DialogDriver::press("L") });
    press(F4);
    QVERIFY(driver.isDone());
    QTest::qWait(100);
    QCOMPARE(changes(), QVector<QByteArray>());
}

void TstUserWifiPage::storedNetworkNeedsNoPassword()
{
    m_daemon->answers["LIST_NETWORKS"] = "network id / ssid / bssid / flags\n3\tHall\tany\t\n";
    openWith({ network("Hall", kSecured) });
    DialogDriver driver({ [](QDialog *dialog) {
        QTRY_COMPARE(labelText(dialog, "password"), QStringLiteral("(stored)"));
        QTest::keyClick(dialog, 'F');
    } });
    press(F4);
    const QVector<QByteArray> expected { "SELECT_NETWORK 3", "SAVE_CONFIG" };
    QTRY_COMPARE(changes(), expected);
}

void TstUserWifiPage::storedNetworkTakesANewPassword()
{
    m_daemon->answers["LIST_NETWORKS"] = "network id / ssid / bssid / flags\n3\tHall\tany\t\n";
    openWith({ network("Hall", kSecured) });
    DialogDriver driver({ DialogDriver::press("K"), type(QStringLiteral("other-one")), DialogDriver::press("F") });
    press(F4);
    QTRY_VERIFY(changes().contains("SAVE_CONFIG"));
    QVERIFY(!changes().contains("ADD_NETWORK"));
    QVERIFY(changes().contains("SET_NETWORK 3 psk \"other-one\""));
    QVERIFY(changes().contains("SELECT_NETWORK 3"));
}

void TstUserWifiPage::storedNetworkFollowsARouterOfTheFirstGeneration()
{
    // What was stored while the router was of the second one would never join it again.
    m_daemon->answers["LIST_NETWORKS"] = "network id / ssid / bssid / flags\n3\tHall\tany\t\n";
    openWith({ network("Hall", "[WPA-PSK-TKIP][ESS]") });
    {
        DialogDriver driver({ [](QDialog *dialog) {
            QTRY_COMPARE(labelText(dialog, "password"), QStringLiteral("(stored)"));
            QTest::keyClick(dialog, 'F');
        } });
        press(F4);
    }
    const QByteArray reset = "SET_NETWORK 3 proto WPA RSN"; // the daemon's default
    QTRY_COMPARE(changes(), (QVector<QByteArray> { reset, "SELECT_NETWORK 3", "SAVE_CONFIG" }));
    DialogDriver driver({ DialogDriver::press("K"), type(QStringLiteral("other-one")), DialogDriver::press("F") });
    press(F4);
    QTRY_COMPARE(changes().count("SAVE_CONFIG"), 2);
    QCOMPARE(changes().count(reset), 2);
    QCOMPARE(changes().count("SET_NETWORK 3 psk \"other-one\""), 1);
}

void TstUserWifiPage::refusedPasswordSelectsNothing()
{
    m_daemon->answers["LIST_NETWORKS"] = "network id / ssid / bssid / flags\n3\tHall\tany\t\n";
    m_daemon->answers["SET_NETWORK"] = "FAIL\n";
    openWith({ network("Hall", kSecured) });
    DialogDriver driver({ DialogDriver::press("K"), type(QStringLiteral("other-one")), DialogDriver::press("F") });
    press(F4);
    QTRY_COMPARE(changes(), QVector<QByteArray> { "SET_NETWORK 3 ssid \"Hall\"" });
    QTRY_VERIFY(shown("state") != QStringLiteral("Connecting"));
    QCOMPARE(changes().size(), 1);
}

void TstUserWifiPage::hiddenNetworkAsksForItsName()
{
    openWith({ network("", kSecured) });
    DialogDriver driver({ DialogDriver::press("K"), type(QStringLiteral("cellar")), DialogDriver::press("TK"),
                          type(QStringLiteral("12345678")), DialogDriver::press("F") });
    press(F4);
    QVERIFY(driver.isDone());
    QTRY_VERIFY(changes().contains("SAVE_CONFIG"));
    QVERIFY(changes().contains("SET_NETWORK 0 ssid \"cellar\""));
    QVERIFY(changes().contains("SET_NETWORK 0 scan_ssid 1"));
    QVERIFY(changes().contains("SET_NETWORK 0 psk \"12345678\""));
}

void TstUserWifiPage::hiddenNetworkWithoutANameIsRefused()
{
    // A name of zero bytes hides just as an empty one does.
    openWith({ network("\\x00\\x00\\x00", kOpen) });
    DialogDriver driver({ [](QDialog *dialog) {
        QCOMPARE(labelText(dialog, "ssid"), QStringLiteral("[Unknown]"));
        isRefused(dialog);
    } });
    press(F4);
    QVERIFY(driver.isDone());
    QCOMPARE(changes(), QVector<QByteArray>());
}

void TstUserWifiPage::shortPasswordIsRefused()
{
    openWith({ network("Hall", kSecured) });
    DialogDriver driver({ DialogDriver::press("K"), type(QStringLiteral("1234567")), [](QDialog *dialog) {
                             QCOMPARE(labelText(dialog, "password"), QString()); // the keyboard did not take it
                             QTest::keyClick(dialog, 'F');
                             QVERIFY(dialog->isVisible());
                             QTest::keyClick(dialog, 'L');
                         } });
    press(F4);
    QVERIFY(driver.isDone());
    QCOMPARE(changes(), QVector<QByteArray>());
}

void TstUserWifiPage::passwordOf64DigitsGoesUnquoted()
{
    openWith({ network("Hall", kSecured) });
    const QString key = QStringLiteral("0123456789abcdef").repeated(4);
    DialogDriver driver({ DialogDriver::press("K"), type(key + QLatin1Char('0')), DialogDriver::press("F") });
    press(F4);
    QVERIFY(driver.isDone());
    QTRY_VERIFY(changes().contains("SAVE_CONFIG"));
    QVERIFY(changes().contains("SET_NETWORK 0 psk " + key.toLatin1())); // the 65th sign was not taken
}

void TstUserWifiPage::failedJoinEndsInDisconnect()
{
    m_daemon->answers["ADD_NETWORK"] = "FAIL\n";
    openWith({ network("Guests", kOpen) });
    press(F4);
    QCOMPARE(shown("state"), QStringLiteral("Connecting"));
    QTRY_VERIFY(shown("state") != QStringLiteral("Connecting"));
    QVERIFY(!changes().contains("SAVE_CONFIG"));
}

void TstUserWifiPage::selectionStaysOnItsNetwork()
{
    openWith({ network("a", kOpen, 1), network("b", kOpen, 2), network("c", kOpen, 3) });
    press(Down, 2);
    QCOMPARE(shown("count"), QStringLiteral("3 / 3"));
    m_daemon->networks
        = { network("d", kOpen, 4), network("c", kOpen, 3), network("a", kOpen, 1), network("b", kOpen, 2) };
    Wifi::scanResults();
    QTRY_COMPARE(shown("count"), QStringLiteral("2 / 4"));
    m_daemon->networks = { network("d", kOpen, 4) };
    Wifi::scanResults();
    QTRY_COMPARE(shown("count"), QStringLiteral("1 / 1"));
}

void TstUserWifiPage::selectedNetworkAndFieldAreMarkedForThoseWhoHearThem()
{
    openWith({ network("hall", kOpen, 1), network("", kSecured, 2) });
    QVERIFY2(heard(m_page.get()).startsWith(QLatin1String("hall")), qPrintable(heard(m_page.get())));
    press(Down);
    QVERIFY2(heard(m_page.get()).startsWith(QLatin1String("[Unknown]")), qPrintable(heard(m_page.get())));
    DialogDriver driver({ [](QDialog *dialog) {
        QCOMPARE(heard(dialog), QStringLiteral("SSID: [Unknown]"));
        QTest::keyClick(dialog, Qt::Key(Down));
        QCOMPARE(heard(dialog), QStringLiteral("Password:"));
        QTest::keyClick(dialog, Qt::Key(F5));
    } });
    press(F4);
    QVERIFY(driver.isDone());
}

void TstUserWifiPage::emptyListIgnoresItsKeys()
{
    open();
    QCOMPARE(heard(m_page.get()), QString());
    for (const FrontKey key : { Up, Down, Enter, F4 })
        press(key, 3);
    QCOMPARE(shown("count"), QStringLiteral("no networks"));
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(changes(), QVector<QByteArray>());
}

void TstUserWifiPage::namesFromTheAirAreShownAsPlainText()
{
    openWith({ network("<b>x</b><img src='/etc/passwd'>", kOpen, 1), network("\\xe2\\x80\\xaeevil", kOpen, 2) });
    QTRY_VERIFY(shown("name_0").startsWith(QStringLiteral("<b>x</b>")));
    QCOMPARE(m_page->findChild<QLabel *>(QStringLiteral("name_0"))->textFormat(), Qt::PlainText);
    QVERIFY(!shown("name_1").contains(QChar(0x202e))); // no turn of the writing's direction
    QCOMPARE(m_page->findChild<QLabel *>(QStringLiteral("ssid"))->textFormat(), Qt::PlainText);
}

void TstUserWifiPage::tenThousandNetworksStayUsable()
{
    open();
    QVector<WifiInfo> many;
    for (int i = 0; i < 10000; ++i) {
        WifiInfo info;
        info.setSsid(QStringLiteral("network %1").arg(i));
        info.setBssid(QStringLiteral("bssid %1").arg(i));
        many.append(info);
    }
    const int labels = m_page->findChildren<QLabel *>().size();
    m_page->showNetworks(many);
    press(Up);
    PageTest::hold(m_page.get(), Down, 60);
    PageTest::release(m_page.get(), Down);
    const ThreadTime lists;
    for (int i = 0; i < 20; ++i)
        m_page->showNetworks(many); // with the selection far down
    QVERIFY2(lists.ms() < 20 * 50, qPrintable(QString::number(lists.ms())));
    const ThreadTime keys;
    press(Down, 20);
    QVERIFY2(keys.ms() < 20 * 50, qPrintable(QString::number(keys.ms())));
    QCOMPARE(m_page->findChildren<QLabel *>().size(), labels);
    QVERIFY(shown("count").endsWith(QStringLiteral("/ 10000")));
    QCOMPARE(m_page->findChild<QScrollBar *>()->maximum(), 10000 - UserWifiPage::kLines);
}

void TstUserWifiPage::withoutADaemonNothingWaits()
{
    m_daemon->die();
    m_page = std::make_unique<UserWifiPage>();
    m_page->init_parameter();
    QElapsedTimer time;
    time.start();
    m_page->show();
    for (const FrontKey key : { F1, F4, Enter, F1, F1 })
        press(key);
    QVERIFY2(time.elapsed() < kOneAnswerMs, qPrintable(QString::number(time.elapsed())));
    QTest::qWait(100);
    QTRY_COMPARE(shown("state"), QStringLiteral("Disconnect"));
    QCOMPARE(shown("count"), QStringLiteral("no networks"));
}

void TstUserWifiPage::regularFileInPlaceOfTheSocketIsNoDaemon()
{
    m_page.reset();
    m_wifi.reset();
    m_daemon->die();
    writeFile(QStringLiteral("/var/run/wpa_supplicant/wlan0"), "no socket");
    m_wifi = std::make_unique<Wifi>();
    m_page = std::make_unique<UserWifiPage>();
    m_page->init_parameter();
    m_page->show();
    press(F1);
    press(F4);
    QTest::qWait(100);
    QTRY_COMPARE(shown("state"), QStringLiteral("Disconnect"));
    QCOMPARE(content(QStringLiteral("/var/run/wpa_supplicant/wlan0")), QByteArray("no socket"));
    QFile::remove(Target::path(QStringLiteral("/var/run/wpa_supplicant/wlan0")));
}

void TstUserWifiPage::daemonThatHangsStallsNothing()
{
    openWith({ network("Guests", kOpen) });
    m_daemon->hang();
    QElapsedTimer time;
    time.start();
    for (const FrontKey key : { F4, F1, F1, Up, Down, F4 })
        press(key);
    QVERIFY2(time.elapsed() < kOneAnswerMs, qPrintable(QString::number(time.elapsed())));
    m_daemon->wake();
}

void TstUserWifiPage::closeEndsAJoinThatWaits()
{
    openWith({ network("Guests", kOpen) });
    m_daemon->silent << "LIST_NETWORKS";
    press(F4);
    QCOMPARE(shown("state"), QStringLiteral("Connecting"));
    press(F1);
    QCOMPARE(shown("state"), QStringLiteral("Disconnect"));
}

void TstUserWifiPage::hiddenPageAsksForNothing()
{
    open();
    m_page->hide();
    QTest::qWait(100);
    m_daemon->commands.clear();
    // The page would ask with each of these, and the service does so at each third: the sum would be larger.
    int seconds = 0;
    QTimer second;
    connect(&second, &QTimer::timeout, this, [&seconds] { ++seconds; });
    second.start(1000);
    QTRY_VERIFY_WITH_TIMEOUT(seconds >= 4, 60000);
    QVERIFY2(m_daemon->count("STATUS") <= 4, qPrintable(QString::number(m_daemon->count("STATUS"))));
}

void TstUserWifiPage::nameOfMoreThan32BytesIsRefused()
{
    openWith({ network(QByteArray("x").repeated(33), kSecured) });
    DialogDriver driver({ DialogDriver::press("K"), type(QStringLiteral("Secret-12")), isRefused });
    press(F4);
    QVERIFY(driver.isDone());
    QCOMPARE(changes(), QVector<QByteArray>());
}

void TstUserWifiPage::hiddenNetworkThatIsStoredNeedsNoPassword()
{
    m_daemon->answers["LIST_NETWORKS"] = "network id / ssid / bssid / flags\n3\tcellar\tany\t\n";
    openWith({ network("", kSecured) });
    DialogDriver driver({ DialogDriver::press("K"), type(QStringLiteral("cellar")), [](QDialog *dialog) {
                             QTRY_COMPARE(labelText(dialog, "password"), QStringLiteral("(stored)"));
                             QTest::keyClick(dialog, 'F');
                         } });
    press(F4);
    QTRY_COMPARE(changes(), QVector<QByteArray>({ "SELECT_NETWORK 3", "SAVE_CONFIG" }));
}

void TstUserWifiPage::networkWithoutAPasswordAsksForNone()
{
    openWith({ network("", kOpen) });
    DialogDriver driver(
        { DialogDriver::press("TK"), type(QStringLiteral("cellar")), DialogDriver::press("F") }); // down: no field
    press(F4);
    QTRY_VERIFY(changes().contains("SAVE_CONFIG"));
    QVERIFY(changes().contains("SET_NETWORK 0 ssid \"cellar\""));
    QVERIFY(changes().contains("SET_NETWORK 0 key_mgmt NONE"));
}

void TstUserWifiPage::longNameIsCutAtItsPlace()
{
    openWith({ network(QByteArray("W").repeated(32), kOpen) });
    const auto *label = m_page->findChild<QLabel *>(QStringLiteral("name_0"));
    QTRY_VERIFY(shown("name_0").endsWith(QChar(0x2026)));
    QVERIFY(label->fontMetrics().horizontalAdvance(label->text()) <= label->width());
}

PAGE_TEST_MAIN(TstUserWifiPage)
#include "tst_userwifipage.moc"
