#include "board/wpaanswers.h"

#include <QRandomGenerator>
#include <QTest>

/// Readers of the wireless daemon's answers.
class TstWifiAnswers : public QObject
{
    Q_OBJECT

private slots:
    void wholeNetworkIsRead();
    void missingValuesHaveTheirTexts();
    void listEndsWithFailOrNothing();
    void statusKeepsAddressAndNameApart();
    void onlyOkIsSuccess_data();
    void onlyOkIsSuccess();
    void numbersOfNewNetworks_data();
    void numbersOfNewNetworks();
    void storedNetworkIsFoundByItsName_data();
    void storedNetworkIsFoundByItsName();
    void levelMarkIsSkipped_data();
    void levelMarkIsSkipped();
    void garbageIsReadToItsEnd();
};

void TstWifiAnswers::wholeNetworkIsRead()
{
    const WifiInfo info = WpaAnswers::network("id=4\nbssid=02:00:01:02:03:04\nfreq=2412\nbeacon_int=100\nlevel=-61\n"
                                              "ie=0003616263\nflags=[WPA2-PSK-CCMP][ESS]\nssid=Hall \\xc3\\x9c\n");
    QCOMPARE(info.bssid(), QStringLiteral("02:00:01:02:03:04"));
    QCOMPARE(info.freq(), QStringLiteral("2412"));
    QCOMPARE(info.level(), -61);
    QCOMPARE(info.flags(), QStringLiteral("[WPA2-PSK-CCMP][ESS]"));
    QCOMPARE(info.ssid(), QStringLiteral("Hall \\xc3\\x9c"));
    QCOMPARE(info.ssidBytes(), QByteArray("Hall \xc3\x9c"));
}

void TstWifiAnswers::missingValuesHaveTheirTexts()
{
    const WifiInfo info = WpaAnswers::network("id=4\nbssid=\nlevel=loud\n");
    QCOMPARE(info.bssid(), QStringLiteral("-:-"));
    QCOMPARE(info.freq(), QStringLiteral("Unknown"));
    QCOMPARE(info.flags(), QStringLiteral("Unknown"));
    QCOMPARE(info.level(), 0);
    QCOMPARE(info.ssid(), QString());
    QCOMPARE(info.shownName(), QStringLiteral("[Unknown]"));
}

void TstWifiAnswers::listEndsWithFailOrNothing()
{
    QVERIFY(WpaAnswers::endsList(""));
    QVERIFY(WpaAnswers::endsList("FAIL\n"));
    QVERIFY(WpaAnswers::endsList("FAIL"));
    QVERIFY(!WpaAnswers::endsList("id=0\nssid=FAIL\n"));
}

void TstWifiAnswers::statusKeepsAddressAndNameApart()
{
    const __wifi_status status = WpaAnswers::status("bssid=02:00:01:02:03:04\nfreq=2412\nssid=a=b\nid=0\n"
                                                    "key_mgmt=WPA2-PSK\nwpa_state=COMPLETED\nip_address=10.0.0.7\n");
    QCOMPARE(status.bssid, QStringLiteral("02:00:01:02:03:04"));
    QCOMPARE(status.ssid, QStringLiteral("a=b"));
    QCOMPARE(status.wpa_state, QStringLiteral("COMPLETED"));
    QCOMPARE(status.ip_address, QStringLiteral("10.0.0.7"));
    QCOMPARE(status.key_mgmt, QStringLiteral("WPA2-PSK"));
    const __wifi_status without = WpaAnswers::status("bssid=02:00:01:02:03:04\nwpa_state=SCANNING");
    QCOMPARE(without.ssid, QString());
    QCOMPARE(without.ip_address, QString());
    QCOMPARE(without.wpa_state, QStringLiteral("SCANNING"));
}

void TstWifiAnswers::onlyOkIsSuccess_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<bool>("ok");
    QTest::newRow("line") << QByteArray("OK\n") << true;
    QTest::newRow("bare") << QByteArray("OK") << true;
    QTest::newRow("FAIL") << QByteArray("FAIL\n") << false;
    QTest::newRow("busy") << QByteArray("FAIL-BUSY\n") << false;
    QTest::newRow("unknown") << QByteArray("UNKNOWN COMMAND\n") << false;
    QTest::newRow("longer") << QByteArray("OKAY\n") << false;
    QTest::newRow("nothing") << QByteArray() << false;
}

void TstWifiAnswers::onlyOkIsSuccess()
{
    QFETCH(QByteArray, answer);
    QTEST(WpaAnswers::isOk(answer), "ok");
}

void TstWifiAnswers::numbersOfNewNetworks_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<int>("number");
    QTest::newRow("first") << QByteArray("0\n") << 0;
    QTest::newRow("later") << QByteArray("17\n") << 17;
    QTest::newRow("FAIL") << QByteArray("FAIL\n") << -1;
    QTest::newRow("negative") << QByteArray("-3\n") << -1;
    QTest::newRow("too large") << QByteArray("99999999999\n") << -1;
    QTest::newRow("with more") << QByteArray("1 psk x\n") << -1;
    QTest::newRow("nothing") << QByteArray() << -1;
}

void TstWifiAnswers::numbersOfNewNetworks()
{
    QFETCH(QByteArray, answer);
    QTEST(WpaAnswers::networkNumber(answer), "number");
}

void TstWifiAnswers::storedNetworkIsFoundByItsName_data()
{
    QTest::addColumn<QByteArray>("ssid");
    QTest::addColumn<int>("number");
    QTest::newRow("plain") << QByteArray("Hall") << 0;
    QTest::newRow("first of two") << QByteArray("Office") << 1;
    QTest::newRow("tab in the name") << QByteArray("a\tb") << 3;
    QTest::newRow("bytes in the name") << QByteArray("\xc3\x9c\n") << 4;
    QTest::newRow("backslash in the name") << QByteArray("\\x41") << 5;
    QTest::newRow("beginning of a name") << QByteArray("Hal") << -1;
    QTest::newRow("number of another") << QByteArray("any") << -1;
    QTest::newRow("heading") << QByteArray("ssid") << -1;
    QTest::newRow("no number") << QByteArray("Broken") << -1;
    QTest::newRow("cut line") << QByteArray("Cut") << -1;
}

void TstWifiAnswers::storedNetworkIsFoundByItsName()
{
    QFETCH(QByteArray, ssid);
    const QByteArray list = "network id / ssid / bssid / flags\n"
                            "0\tHall\tany\t[CURRENT]\n"
                            "1\tOffice\tany\t[DISABLED]\n"
                            "2\tOffice\tany\t\n"
                            "3\ta\\tb\tany\t\n"
                            "4\t\\xc3\\x9c\\n\tany\t\n"
                            "5\t\\\\x41\tany\t\n"
                            "x\tBroken\tany\t\n"
                            "7\tCut\ta";
    QTEST(WpaAnswers::networkId(list, ssid), "number");
}

void TstWifiAnswers::levelMarkIsSkipped_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("marked") << QByteArray("<3>CTRL-EVENT-X ") << QByteArray("CTRL-EVENT-X ");
    QTest::newRow("two digits") << QByteArray("<12>x") << QByteArray("x");
    QTest::newRow("unmarked") << QByteArray("CTRL-EVENT-X") << QByteArray("CTRL-EVENT-X");
    QTest::newRow("never closed") << QByteArray("<3") << QByteArray("<3");
    QTest::newRow("no number") << QByteArray("<>x") << QByteArray("<>x");
    QTest::newRow("a word") << QByteArray("<b>x") << QByteArray("<b>x");
    QTest::newRow("only the first") << QByteArray("<3><4>x") << QByteArray("<4>x");
    QTest::newRow("empty") << QByteArray() << QByteArray();
}

void TstWifiAnswers::levelMarkIsSkipped()
{
    QFETCH(QByteArray, line);
    QTEST(WpaAnswers::eventText(line), "text");
}

void TstWifiAnswers::garbageIsReadToItsEnd()
{
    QRandomGenerator random(22);
    const QByteArray letters("=\n\t\\x<>ssidblevf0\xff\0", 19);
    for (int round = 0; round < 3000; ++round) {
        QByteArray text(random.bounded(2048), '\0');
        for (char &byte : text)
            byte = letters.at(random.bounded(letters.size()));
        // Every text that comes out stood in what went in.
        QVERIFY(WpaAnswers::network(text).ssid().size() <= text.size());
        QVERIFY(WpaAnswers::status(text).ssid.size() <= text.size());
        QVERIFY(WpaAnswers::networkId(text, "s") >= -1);
        QVERIFY(text.endsWith(WpaAnswers::eventText(text)));
    }
}

QTEST_GUILESS_MAIN(TstWifiAnswers)
#include "tst_wifianswers.moc"
