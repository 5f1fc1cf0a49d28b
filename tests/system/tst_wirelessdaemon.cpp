#include "board/qwpactrl.h"
#include "board/ssidtext.h"
#include "board/wifi.h"
#include "platform/target.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <csignal>
#include <memory>

/// The wireless service against the real daemon, with the driver that has no hardware: all but the air itself.
class TstWirelessDaemon : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void daemonLivesAndSaysItsState();
    void scanWithoutHardwareFindsNothing();
    void eventsArriveOnTheSecondConnection();
    void openNetworkIsStoredSelectedAndSaved();
    void passwordsSurviveTheFile_data();
    void passwordsSurviveTheFile();
    void refusedPasswordLeavesNoNetwork();
    void storedNetworkForgetsWhatItsRouterWasBefore();
    void hostileNamesSurviveTheFile();
    void stoppedDaemonStopsNoTimer();
    void restartedDaemonIsFoundAgain();

private:
    void startDaemon();
    void stopDaemon();
    /// Whether a daemon that has come to serve its socket answers there, by a connection of its own.
    bool daemonAnswers();
    QByteArray configuration() const;
    /// The daemon's answer to a command; "no answer" without one.
    QByteArray ask(const QByteArray &command);
    int addNetwork(const QByteArray &ssid, const QString &flags, const QString &password);
    bool save();
    /// Lets the daemon forget its networks and read them from its file again.
    void readFileAgain() { QCOMPARE(ask("RECONFIGURE"), QByteArray("OK\n")); }
    int numberOf(const QByteArray &ssid);

    QString m_file; // the daemon's configuration
    QString m_program;
    std::unique_ptr<QProcess> m_daemon;
    std::unique_ptr<Wifi> m_wifi;
};

namespace {

constexpr int kPatience = 30000; // ms, for the daemon
const QString kSecured = QStringLiteral("[WPA2-PSK-CCMP][ESS]");
const QString kOpen = QStringLiteral("[ESS]");

QString socketPath()
{
    return Target::path(QStringLiteral("/var/run/wpa_supplicant/lo"));
}

} // namespace

void TstWirelessDaemon::initTestCase()
{
    m_program = QStandardPaths::findExecutable(QStringLiteral("wpa_supplicant"),
                                               { QStringLiteral("/usr/sbin"), QStringLiteral("/sbin") });
    QVERIFY2(!m_program.isEmpty(), "the package wpasupplicant is missing (packaging/debian-packages.txt)");
    m_file = Target::path(QStringLiteral("/etc/wpa_supplicant.conf"));
    QVERIFY(QDir().mkpath(Target::path(QStringLiteral("/etc"))));
}

void TstWirelessDaemon::init()
{
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("ctrl_interface=" + QFile::encodeName(Target::path(QStringLiteral("/var/run/wpa_supplicant")))
               + "\nupdate_config=1\n");
    file.close();
    startDaemon();
    m_wifi = std::make_unique<Wifi>();
    QVERIFY(Wifi::wpaCtrl->isOpen());
}

void TstWirelessDaemon::cleanup()
{
    m_wifi.reset();
    stopDaemon();
}

/// The daemon wants a raw socket on its interface: root has it, other users in a name space of their own.
void TstWirelessDaemon::startDaemon()
{
    const QStringList own { QStringLiteral("-D"), QStringLiteral("none"), QStringLiteral("-i"),
                            QStringLiteral("lo"), QStringLiteral("-c"),   m_file };
    const QStringList spaced = QStringList { QStringLiteral("-Urn"), m_program } + own;
    QByteArray said;
    for (bool ownSpace : { false, true }) {
        m_daemon = std::make_unique<QProcess>();
        m_daemon->setProcessChannelMode(QProcess::MergedChannels);
        m_daemon->start(ownSpace ? QStringLiteral("unshare") : m_program, ownSpace ? spaced : own);
        // The socket stands there for a moment even when the daemon then ends for lack of rights.
        QElapsedTimer time;
        time.start();
        while (m_daemon->state() != QProcess::NotRunning && time.elapsed() < kPatience) {
            QTest::qWait(20);
            if (QFile::exists(socketPath()) && daemonAnswers())
                return;
        }
        said += m_daemon->readAll();
    }
    QFAIL("the daemon does not start: " + said);
}

bool TstWirelessDaemon::daemonAnswers()
{
    WpaChannel channel;
    if (!channel.open(QStringLiteral("/var/run/wpa_supplicant"), QStringLiteral("lo")))
        return false;
    QByteArray said;
    bool answered = false;
    channel.request("PING", this, [&](int, const QByteArray &answer) {
        said = answer;
        answered = true;
    });
    const auto isOver = [&] { return answered || m_daemon->state() == QProcess::NotRunning; };
    return QTest::qWaitFor(isOver, kPatience) && said == "PONG\n";
}

void TstWirelessDaemon::stopDaemon()
{
    if (m_daemon) {
        m_daemon->terminate();
        QVERIFY(m_daemon->waitForFinished(kPatience));
    }
    m_daemon.reset();
    QFile::remove(socketPath());
}

QByteArray TstWirelessDaemon::configuration() const
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray TstWirelessDaemon::ask(const QByteArray &command)
{
    QByteArray text = "no answer";
    bool answered = false;
    Wifi::wpaCtrl->ctrlRequest(command, this, [&](int result, const QByteArray &answer) {
        if (result == 0)
            text = answer;
        answered = true;
    });
    return QTest::qWaitFor([&answered] { return answered; }, kPatience) ? text : QByteArray("never called");
}

int TstWirelessDaemon::addNetwork(const QByteArray &ssid, const QString &flags, const QString &password)
{
    WifiInfo info;
    info.setSsid(SsidText::escaped(ssid));
    info.setFlags(flags);
    int added = -100;
    Wifi::addSsid(info, password, this, [&added](int number) { added = number; });
    (void)QTest::qWaitFor([&added] { return added != -100; }, kPatience);
    return added;
}

bool TstWirelessDaemon::save()
{
    int saved = -1;
    Wifi::saveConfig(this, [&saved](bool ok) { saved = ok; });
    (void)QTest::qWaitFor([&saved] { return saved >= 0; }, kPatience);
    return saved == 1;
}

int TstWirelessDaemon::numberOf(const QByteArray &ssid)
{
    int found = -100;
    Wifi::networkId(SsidText::escaped(ssid), this, [&found](int number) { found = number; });
    (void)QTest::qWaitFor([&found] { return found != -100; }, kPatience);
    return found;
}

void TstWirelessDaemon::daemonLivesAndSaysItsState()
{
    QCOMPARE(ask("PING"), QByteArray("PONG\n"));
    QCOMPARE(ask("INTERFACES"), QByteArray("lo\n"));
    QSignalSpy changed(m_wifi.get(), &Wifi::statusChanged);
    Wifi::scanStatus();
    QTRY_VERIFY_WITH_TIMEOUT(changed.size() > 0, kPatience);
    QVERIFY2(!Wifi::status.wpa_state.isEmpty(), "the status holds no state");
    QVERIFY(!Wifi::isWifiConnected());
}

void TstWirelessDaemon::scanWithoutHardwareFindsNothing()
{
    // The daemon takes the request, and says in an event that its driver cannot scan; other drivers refuse at once.
    const QByteArray answer = ask("SCAN");
    QVERIFY2(answer == "OK\n" || answer.startsWith("FAIL"), answer.constData());
    const QByteArray first = ask("BSS 0");
    QVERIFY2(first.isEmpty() || first.startsWith("FAIL"), first.constData());
    QSignalSpy changed(m_wifi.get(), &Wifi::networksChanged);
    Wifi::scanResults();
    QTRY_COMPARE_WITH_TIMEOUT(changed.size(), 1, kPatience);
    QVERIFY(Wifi::networks().isEmpty());
}

void TstWirelessDaemon::eventsArriveOnTheSecondConnection()
{
    WpaChannel channel;
    QVERIFY(channel.open(QStringLiteral("/var/run/wpa_supplicant"), QStringLiteral("lo")));
    QSignalSpy messages(&channel, &WpaChannel::message);
    QByteArray attached;
    channel.request("ATTACH", this, [&attached](int, const QByteArray &answer) { attached = answer; });
    QTRY_COMPARE_WITH_TIMEOUT(attached, QByteArray("OK\n"), kPatience);
    ask("SCAN");
    QTRY_VERIFY_WITH_TIMEOUT(messages.size() > 0, kPatience);
    QVERIFY(messages.first().first().toByteArray().startsWith("<"));
}

void TstWirelessDaemon::openNetworkIsStoredSelectedAndSaved()
{
    const int number = addNetwork("Site 7", kOpen, QString());
    QCOMPARE(number, 0);
    int selected = -1;
    Wifi::change2Network(number, this, [&selected](bool ok) { selected = ok; });
    QTRY_COMPARE_WITH_TIMEOUT(selected, 1, kPatience);
    QTRY_VERIFY2_WITH_TIMEOUT(configuration().contains("\tssid=\"Site 7\"\n"), configuration().constData(), kPatience);
    QVERIFY(configuration().contains("\tkey_mgmt=NONE\n"));
    QVERIFY(configuration().contains("\tscan_ssid=1\n"));
    readFileAgain();
    QCOMPARE(numberOf("Site 7"), 0);
    QCOMPARE(numberOf("Site 8"), -1);
}

void TstWirelessDaemon::passwordsSurviveTheFile_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<QByteArray>("line");
    const QString raw = QString(64, QLatin1Char('a'));
    QTest::newRow("plain") << "password" << QByteArray("psk=\"password\"");
    QTest::newRow("quotes") << "pass\"word\"" << QByteArray("psk=\"pass\"word\"\"");
    QTest::newRow("remark sign") << "pass #word" << QByteArray("psk=\"pass #word\"");
    QTest::newRow("backslash") << "password\\" << QByteArray("psk=\"password\\\"");
    QTest::newRow("another field") << "12345678\" key_mgmt=NONE" << QByteArray("psk=\"12345678\" key_mgmt=NONE\"");
    QTest::newRow("63 characters") << raw.mid(1) << "psk=\"" + raw.mid(1).toLatin1() + '"';
    QTest::newRow("raw key") << raw << "psk=" + raw.toLatin1();
}

void TstWirelessDaemon::passwordsSurviveTheFile()
{
    QFETCH(QString, password);
    QFETCH(QByteArray, line);
    QCOMPARE(addNetwork("Hall", kSecured, password), 0);
    for (int round = 0; round < 2; ++round) { // the second time from what was read out of the file
        QVERIFY(save());
        QVERIFY2(configuration().contains("\t" + line + '\n'), configuration().constData());
        QCOMPARE(configuration().count("network={"), 1);
        QVERIFY(configuration().contains("\tkey_mgmt=WPA-PSK\n"));
        readFileAgain();
        QCOMPARE(numberOf("Hall"), 0);
    }
}

void TstWirelessDaemon::storedNetworkForgetsWhatItsRouterWasBefore()
{
    QCOMPARE(addNetwork("Hall", kSecured, QStringLiteral("password")), 0);
    QVERIFY(save());
    QVERIFY2(configuration().contains("\tproto=RSN\n"), configuration().constData()); // as it calls the second kind
    WifiInfo now;
    now.setSsid(QStringLiteral("Hall"));
    now.setFlags(QStringLiteral("[WPA-PSK-TKIP][ESS]"));
    int forgotten = -1;
    Wifi::forgetFormerKind(0, now, this, [&forgotten](bool ok) { forgotten = ok; });
    QTRY_COMPARE_WITH_TIMEOUT(forgotten, 1, kPatience);
    QVERIFY(save());
    QVERIFY2(!configuration().contains("\tproto="), configuration().constData()); // its default is not written
    QVERIFY(configuration().contains("\tpsk=\"password\"\n"));
}

void TstWirelessDaemon::refusedPasswordLeavesNoNetwork()
{
    QCOMPARE(addNetwork("Hall", kSecured, QStringLiteral("short")), -1);
    QCOMPARE(addNetwork("Hall", kSecured, QString(64, QLatin1Char('g'))), -1); // raw, and not hexadecimal
    QCOMPARE(addNetwork("Hall", kSecured, QStringLiteral("password\nkey_mgmt=NONE")), -1);
    QCOMPARE(addNetwork(QByteArray(33, 'x'), kOpen, QString()), -1);
    QVERIFY(save());
    QVERIFY2(!configuration().contains("network={"), configuration().constData());
}

void TstWirelessDaemon::hostileNamesSurviveTheFile()
{
    const QVector<QByteArray> names { "a\"b",
                                      "x\"\n\tpsk=\"12345678",
                                      "}\nctrl_interface=/x",
                                      "\\x41",
                                      "tab\there",
                                      "# remark",
                                      "\"",
                                      "\\",
                                      " ",
                                      "616263",
                                      "P\"x\"",
                                      QByteArray("zero\0byte", 9),
                                      QByteArray(32, '\xff'),
                                      "$(reboot);`reboot`",
                                      "M\xc3\xbchle" };
    for (const QByteArray &name : names)
        QVERIFY2(addNetwork(name, kOpen, QString()) >= 0, name.toHex());
    QVERIFY(save());
    readFileAgain();
    const QByteArray file = configuration();
    QCOMPARE(file.count("network={"), names.size());
    QVERIFY2(!file.contains("psk="), file.constData());
    QCOMPARE(file.count("ctrl_interface="), 1);
    for (int i = 0; i < names.size(); ++i)
        QVERIFY2(numberOf(names.at(i)) == i, names.at(i).toHex() + '\n' + file);
}

void TstWirelessDaemon::stoppedDaemonStopsNoTimer()
{
    QCOMPARE(ask("PING"), QByteArray("PONG\n"));
    QCOMPARE(::kill(static_cast<pid_t>(m_daemon->processId()), SIGSTOP), 0);
    Wifi::wpaCtrl->setAnswerTime(kPatience / 2); // far longer than the turns take
    int turns = 0;
    QTimer screen;
    connect(&screen, &QTimer::timeout, this, [&turns] { ++turns; });
    screen.start(10);
    bool answered = false;
    Wifi::wpaCtrl->ctrlRequest("PING", this, [&answered](int, const QByteArray &) { answered = true; });
    const bool turned = QTest::qWaitFor([&turns] { return turns >= 5; }, kPatience);
    const bool hasWaited = !answered;
    ::kill(static_cast<pid_t>(m_daemon->processId()), SIGCONT);
    QVERIFY2(turned && hasWaited, qPrintable(QString::number(turns)));
    QTRY_VERIFY_WITH_TIMEOUT(answered, kPatience);

    QCOMPARE(::kill(static_cast<pid_t>(m_daemon->processId()), SIGSTOP), 0);
    Wifi::wpaCtrl->setAnswerTime(300);
    const QByteArray answer = ask("PING");
    ::kill(static_cast<pid_t>(m_daemon->processId()), SIGCONT);
    QCOMPARE(answer, QByteArray("no answer"));
    // What the daemon now says to the old question is not taken for the answer to the next one.
    Wifi::wpaCtrl->setAnswerTime(10000);
    QCOMPARE(ask("INTERFACES"), QByteArray("lo\n"));
}

void TstWirelessDaemon::restartedDaemonIsFoundAgain()
{
    QCOMPARE(ask("PING"), QByteArray("PONG\n"));
    Wifi::wpaCtrl->setAnswerTime(500); // a request may be on its way when the daemon goes
    Wifi::wpaCtrl->setPingInterval(100);
    stopDaemon();
    QTRY_VERIFY_WITH_TIMEOUT(!Wifi::wpaCtrl->isOpen(), kPatience);
    Wifi::wpaCtrl->setAnswerTime(10000);
    startDaemon();
    QTRY_VERIFY_WITH_TIMEOUT(Wifi::wpaCtrl->isOpen(), kPatience);
    QCOMPARE(ask("PING"), QByteArray("PONG\n"));
}

QTEST_GUILESS_MAIN(TstWirelessDaemon)
#include "tst_wirelessdaemon.moc"
