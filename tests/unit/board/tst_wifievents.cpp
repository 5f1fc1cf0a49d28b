#include "board/qwpactrl.h"
#include "scripteddaemon.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

/// The control socket of the wireless daemon: which one is opened, what its events do, and how a lost daemon is found.
class TstWifiEvents : public QObject
{
    Q_OBJECT

private slots:
    void firstEntryIsOpened();
    void wlan0ComesBeforeOthers();
    void givenInterfaceIsOpened();
    void openingAttachesAndAsksForInterfaces();
    void daemonThatIsAwayIsMinusOne();
    void fileInPlaceOfTheSocketIsMinusOne();
    void requestsWithoutADaemonFail();
    void pingFindsADaemonThatCameLater();
    void pingFindsADaemonThatCameBack();
    void wrongAnswerToAPingOpensAnew();
    void daemonThatAnswersKeepsItsConnection();
    void refusedAttachClosesTheConnection();
    void eventsBecomeSignals_data();
    void eventsBecomeSignals();
    void resultsRestartTheScanTimer();
    void shorterIntervalOfAPageHolds();
    void disconnectionStopsTheScans();
    void scanTimerScans();
    void oneScanWaitsAtATime();
    void onePingWaitsAtATime();
    void pingIsSentEveryTenSeconds();
};

namespace {

const QString kFolder = QStringLiteral("/var/run/wpa_supplicant");

/// Waits until the daemon has heard all that an opened connection says.
#define VERIFY_ATTACHED(daemon) QTRY_COMPARE((daemon).count("INTERFACES") > 0 && (daemon).attached.size() > 0, true)

} // namespace

void TstWifiEvents::firstEntryIsOpened()
{
    QFile hidden(Target::path(kFolder) + QStringLiteral("/.aaa"));
    QVERIFY(hidden.open(QIODevice::WriteOnly));
    ScriptedDaemon other(QStringLiteral("wlan2"));
    ScriptedDaemon first(QStringLiteral("wlan1"));
    QWpaCtrl ctrl;
    QVERIFY(ctrl.isOpen());
    VERIFY_ATTACHED(first);
    QVERIFY(other.commands.isEmpty());
    QVERIFY(hidden.remove());
}

void TstWifiEvents::wlan0ComesBeforeOthers()
{
    ScriptedDaemon direct(QStringLiteral("p2p-dev-wlan0"));
    ScriptedDaemon usual(QStringLiteral("wlan0"));
    QWpaCtrl ctrl;
    VERIFY_ATTACHED(usual);
    QVERIFY(direct.commands.isEmpty());
}

void TstWifiEvents::givenInterfaceIsOpened()
{
    ScriptedDaemon usual(QStringLiteral("wlan0"));
    ScriptedDaemon given(QStringLiteral("wlan7"));
    QWpaCtrl ctrl(kFolder, QStringLiteral("wlan7"));
    VERIFY_ATTACHED(given);
    QVERIFY(usual.commands.isEmpty());
    QCOMPARE(ctrl.openCtrlConnection(QStringLiteral("wlan8")), -1);
    QVERIFY(!ctrl.isOpen());
    QCOMPARE(ctrl.openCtrlConnection(), 0);
    VERIFY_ATTACHED(usual);
}

void TstWifiEvents::openingAttachesAndAsksForInterfaces()
{
    ScriptedDaemon daemon;
    QWpaCtrl ctrl;
    VERIFY_ATTACHED(daemon);
    QCOMPARE(daemon.commands.size(), 2);
    ctrl.closeCtrlConnection();
    QVERIFY(!ctrl.isOpen());
}

void TstWifiEvents::daemonThatIsAwayIsMinusOne()
{
    QWpaCtrl ctrl;
    QVERIFY(!ctrl.isOpen());
    QCOMPARE(ctrl.openCtrlConnection(), -1);
    QCOMPARE(ctrl.openCtrlConnection(QStringLiteral("wlan0")), -1);
    QWpaCtrl nowhere(QStringLiteral("/no/such/folder"));
    QCOMPARE(nowhere.openCtrlConnection(), -1);
}

void TstWifiEvents::fileInPlaceOfTheSocketIsMinusOne()
{
    QFile file(Target::path(kFolder) + QStringLiteral("/wlan0"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QWpaCtrl ctrl;
    QVERIFY(!ctrl.isOpen());
    QCOMPARE(ctrl.openCtrlConnection(), -1);
    QVERIFY(file.remove());
}

void TstWifiEvents::requestsWithoutADaemonFail()
{
    QWpaCtrl ctrl;
    int given = 1;
    ctrl.ctrlRequest("PING", this, [&given](int result, const QByteArray &) { given = result; });
    QCOMPARE(given, 1);
    QTRY_COMPARE(given, -1);
}

void TstWifiEvents::pingFindsADaemonThatCameLater()
{
    QWpaCtrl ctrl;
    ctrl.setPingInterval(20);
    QTest::qWait(60);
    QVERIFY(!ctrl.isOpen());
    ScriptedDaemon daemon;
    QTRY_VERIFY(ctrl.isOpen());
    VERIFY_ATTACHED(daemon);
    QTRY_VERIFY(daemon.count("PING") > 0);
}

void TstWifiEvents::pingFindsADaemonThatCameBack()
{
    ScriptedDaemon daemon;
    QWpaCtrl ctrl;
    VERIFY_ATTACHED(daemon);
    ctrl.setPingInterval(20);
    daemon.die();
    QTRY_VERIFY(!ctrl.isOpen());
    daemon.start();
    QTRY_VERIFY(ctrl.isOpen());
    QTRY_COMPARE(daemon.attached.size(), 1);
    QSignalSpy connected(&ctrl, &QWpaCtrl::connected);
    daemon.event("<3>CTRL-EVENT-CONNECTED - Connection to 02:00:00:00:00:00 completed");
    QTRY_COMPARE(connected.size(), 1);
}

void TstWifiEvents::wrongAnswerToAPingOpensAnew()
{
    ScriptedDaemon daemon;
    daemon.answers["PING"] = "UNKNOWN COMMAND\n";
    QWpaCtrl ctrl;
    VERIFY_ATTACHED(daemon);
    ctrl.ping();
    QTRY_COMPARE(daemon.count("ATTACH"), 2);
    QVERIFY(ctrl.isOpen());
    // A daemon that hears and says nothing is left as well.
    daemon.silent << "PING";
    QTRY_VERIFY(!ctrl.isWaiting("INTERFACES")); // so that the next goes out at once
    ctrl.setAnswerTime(50);
    ctrl.ping();
    ctrl.setAnswerTime(WpaChannel::kAnswerTimeMs); // of the requests behind it
    QTRY_COMPARE(daemon.count("ATTACH"), 3);
    QVERIFY(ctrl.isOpen());
}

void TstWifiEvents::daemonThatAnswersKeepsItsConnection()
{
    ScriptedDaemon daemon;
    QWpaCtrl ctrl;
    ctrl.setPingInterval(10);
    QTRY_VERIFY(daemon.count("PING") >= 5);
    QCOMPARE(daemon.count("ATTACH"), 1);
    QCOMPARE(daemon.count("INTERFACES"), 1);
}

void TstWifiEvents::refusedAttachClosesTheConnection()
{
    ScriptedDaemon daemon;
    daemon.answers["ATTACH"] = "FAIL\n";
    QWpaCtrl ctrl;
    QVERIFY(ctrl.isOpen());
    QTRY_VERIFY(!ctrl.isOpen());
    daemon.answers.clear();
    ctrl.ping();
    VERIFY_ATTACHED(daemon);
    QVERIFY(ctrl.isOpen());
}

void TstWifiEvents::eventsBecomeSignals_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("results");
    QTest::addColumn<int>("connected");
    QTest::addColumn<int>("disconnected");
    QTest::newRow("results") << QByteArray("<3>CTRL-EVENT-SCAN-RESULTS ") << 1 << 0 << 0;
    QTest::newRow("results, unmarked") << QByteArray("CTRL-EVENT-SCAN-RESULTS ") << 0 << 0 << 0;
    QTest::newRow("results, cut") << QByteArray("<3>CTRL-EVENT-SCAN-RESULTS") << 0 << 0 << 0;
    QTest::newRow("joined") << QByteArray("<3>CTRL-EVENT-CONNECTED - Connection to x completed") << 0 << 1 << 0;
    QTest::newRow("left") << QByteArray("<3>CTRL-EVENT-DISCONNECTED bssid=x reason=3") << 0 << 0 << 1;
    QTest::newRow("question") << QByteArray("<3>CTRL-REQ-PASSWORD-0:Password needed") << 0 << 0 << 0;
    QTest::newRow("rejected") << QByteArray("<3>CTRL-EVENT-ASSOC-REJECT bssid=x status_code=17") << 0 << 0 << 0;
    QTest::newRow("rejected without a number") << QByteArray("<3>CTRL-EVENT-ASSOC-REJECT ") << 0 << 0 << 0;
    QTest::newRow("end of the daemon") << QByteArray("<3>CTRL-EVENT-TERMINATING ") << 0 << 0 << 0;
    QTest::newRow("in the middle") << QByteArray("<3>x CTRL-EVENT-CONNECTED ") << 0 << 0 << 0;
    QTest::newRow("garbage") << QByteArray("<3>\xff\x01") << 0 << 0 << 0;
    QTest::newRow("open mark") << QByteArray("<") << 0 << 0 << 0;
    QTest::newRow("long") << "<3>CTRL-EVENT-CONNECTED " + QByteArray(5000, 'x') << 0 << 1 << 0;
}

void TstWifiEvents::eventsBecomeSignals()
{
    QFETCH(QByteArray, line);
    QFETCH(int, connected);
    ScriptedDaemon daemon;
    QWpaCtrl ctrl;
    VERIFY_ATTACHED(daemon);
    QSignalSpy results(&ctrl, &QWpaCtrl::scanResult);
    QSignalSpy joined(&ctrl, &QWpaCtrl::connected);
    QSignalSpy disconnected(&ctrl, &QWpaCtrl::disconnected);
    daemon.event(line);
    daemon.event("<3>CTRL-EVENT-CONNECTED "); // comes behind the line
    QTRY_COMPARE(joined.size() - 1, connected);
    QTest::qWait(10);
    QTEST(results.size(), "results");
    QCOMPARE(joined.size() - 1, connected);
    QTEST(disconnected.size(), "disconnected");
}

void TstWifiEvents::resultsRestartTheScanTimer()
{
    ScriptedDaemon daemon;
    QWpaCtrl ctrl;
    VERIFY_ATTACHED(daemon);
    QVERIFY(!ctrl.isScanning());
    QSignalSpy results(&ctrl, &QWpaCtrl::scanResult);
    daemon.event("<3>CTRL-EVENT-SCAN-RESULTS ");
    QTRY_COMPARE(results.size(), 1);
    QVERIFY(ctrl.isScanning());
    QCOMPARE(ctrl.scanInterval(), 5000);
}

void TstWifiEvents::shorterIntervalOfAPageHolds()
{
    ScriptedDaemon daemon;
    QWpaCtrl ctrl;
    VERIFY_ATTACHED(daemon);
    QSignalSpy results(&ctrl, &QWpaCtrl::scanResult);
    ctrl.setScanInterval(1000);
    ctrl.startScan(1000);
    daemon.event("<3>CTRL-EVENT-SCAN-RESULTS ");
    QTRY_COMPARE(results.size(), 1);
    QCOMPARE(ctrl.scanInterval(), 1000);
    ctrl.setScanInterval(5000);
    QCOMPARE(ctrl.scanInterval(), 5000);
    QVERIFY(ctrl.isScanning());
}

void TstWifiEvents::disconnectionStopsTheScans()
{
    ScriptedDaemon daemon;
    QWpaCtrl ctrl;
    VERIFY_ATTACHED(daemon);
    ctrl.startScan(60000);
    QVERIFY(ctrl.isScanning());
    daemon.event("<3>CTRL-EVENT-DISCONNECTED bssid=02:00:00:00:00:00 reason=3");
    QTRY_VERIFY(!ctrl.isScanning());
}

void TstWifiEvents::scanTimerScans()
{
    ScriptedDaemon daemon;
    QWpaCtrl ctrl;
    ctrl.startScan(10);
    QTRY_VERIFY(daemon.count("SCAN") >= 3);
    ctrl.stopScan();
    bool answered = false; // behind a scan that is still on its way
    ctrl.ctrlRequest("PING", this, [&answered](int, const QByteArray &) { answered = true; });
    QTRY_VERIFY(answered);
    const int scans = daemon.count("SCAN");
    QTest::qWait(60);
    QCOMPARE(daemon.count("SCAN"), scans);
}

void TstWifiEvents::oneScanWaitsAtATime()
{
    ScriptedDaemon daemon;
    daemon.hang();
    QWpaCtrl ctrl;
    for (int i = 0; i < 100; ++i)
        ctrl.scan();
    bool answered = false;
    ctrl.ctrlRequest("PING", this, [&answered](int result, const QByteArray &) { answered = result == 0; });
    daemon.wake();
    QTRY_VERIFY(answered);
    QCOMPARE(daemon.count("SCAN"), 1);
}

void TstWifiEvents::onePingWaitsAtATime()
{
    ScriptedDaemon daemon;
    daemon.hang();
    QWpaCtrl ctrl;
    for (int i = 0; i < 50; ++i)
        ctrl.ping();
    daemon.wake();
    QTRY_COMPARE(daemon.count("PING"), 1);
    QTest::qWait(50);
    QCOMPARE(daemon.count("PING"), 1);
}

void TstWifiEvents::pingIsSentEveryTenSeconds()
{
    ScriptedDaemon daemon;
    QElapsedTimer timer;
    timer.start();
    QWpaCtrl ctrl;
    QTRY_VERIFY_WITH_TIMEOUT(daemon.count("PING") > 0, 60000);
    QVERIFY2(timer.elapsed() >= 9500, qPrintable(QString::number(timer.elapsed()))); // a twentieth early at most
}

QTEST_GUILESS_MAIN(TstWifiEvents)
#include "tst_wifievents.moc"
