#include <QTest>

#include "settings/config.h"
#include "settings/netconfig.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/rootfiles.h"

/// The wired network's settings.
class TstNetConfig : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }

    void aMissingFileGivesTheDefaults()
    {
        const NetConfig config;
        QVERIFY(config.getIsDHCP());
        QCOMPARE(config.getIPAddr(), QString("192.168.2.100"));
        QCOMPARE(config.getNetMask(), QString("255.255.255.0"));
        QCOMPARE(config.getGateWay(), QString("192.168.2.1"));
        QCOMPARE(config.getNetWork(), QString("192.168.2.0"));
        QCOMPARE(config.getMAC(), QString("6E:69:75:53:01:0A"));
    }

    void filesThatAreNoneOfOursGiveTheDefaults_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QByteArray keys = "USE_DHCP=0\nIPADDR=10.0.0.1\nMAC=x\n";
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("empty values") << QByteArray("USE_DHCP=\nIPADDR=\nMAC=\n");
        QTest::newRow("binary") << QByteArray::fromHex("ff00fe0180c0dead3d0a0a3d3d3d").repeated(1000);
        QTest::newRow("a zero byte in front") << '\0' + keys;
        QTest::newRow("huge") << keys.repeated(100000);
    }
    void filesThatAreNoneOfOursGiveTheDefaults()
    {
        QFETCH(QByteArray, file);
        RootFiles::write(NetConfig::filePath(), file);
        const NetConfig config;
        QVERIFY(config.getIsDHCP());
        QCOMPARE(config.getIPAddr(), QString("192.168.2.100"));
        QCOMPARE(config.getMAC(), QString("6E:69:75:53:01:0A"));
    }

    void aFullDiskKeepsTheOldAddress()
    {
        const QByteArray old = "IPADDR=10.0.0.1\n";
        RootFiles::write(NetConfig::filePath(), old);
        {
            FileLimit full(3);
            NetConfig config;
            config.setIPAddr("10.0.0.2");
            QCOMPARE(config.getIPAddr(), QString("10.0.0.2")); // until the next start
        }
        QCOMPARE(RootFiles::read(NetConfig::filePath()), old);
    }

    void whatIsSetTogetherIsWrittenOnceAsOneAfterTheOther()
    {
        for (const QByteArray &old :
             { QByteArray(), QByteArray("MAC=x\nIPADDR=1.1.1.1\nno key\n\nNAME=M\xc3\xbcller\n") }) {
            const auto change = [](NetConfig &config) {
                config.setIPAddr("10.0.0.2");
                config.setDHCP(false);
                config.setNetMask("no address");
                config.setGateWay("10.0.0.9");
            };
            RootFiles::clean();
            if (!old.isEmpty())
                RootFiles::write(NetConfig::filePath(), old);
            NetConfig one;
            change(one);
            const QByteArray expected = RootFiles::read(NetConfig::filePath());
            QVERIFY(expected.contains("GATEWAY=10.0.0.9"));

            RootFiles::clean();
            if (!old.isEmpty())
                RootFiles::write(NetConfig::filePath(), old);
            const QByteArray before = RootFiles::read(NetConfig::filePath());
            NetConfig all;
            all.changeTogether([&] {
                change(all);
                QCOMPARE(RootFiles::read(NetConfig::filePath()), before);
            });
            QCOMPARE(RootFiles::read(NetConfig::filePath()), expected);
            QCOMPARE(RootFiles::commands().count("sync"), 1);
            all.setMAC("y"); // alone again
            QVERIFY(RootFiles::read(NetConfig::filePath()).contains("MAC=y"));
        }
    }

    void onlyZeroTurnsDhcpOff_data()
    {
        QTest::addColumn<QByteArray>("word");
        QTest::addColumn<bool>("on");
        QTest::newRow("0") << QByteArray("0") << false;
        QTest::newRow("1") << QByteArray("1") << true;
        QTest::newRow("nothing") << QByteArray("") << true;
        QTest::newRow("no") << QByteArray("no") << true;
        QTest::newRow("00") << QByteArray("00") << true;
    }
    void onlyZeroTurnsDhcpOff()
    {
        QFETCH(QByteArray, word);
        RootFiles::write(NetConfig::filePath(), "USE_DHCP=" + word + "\n");
        QTEST(NetConfig().getIsDHCP(), "on");
    }

    void everyKeyIsStoredAndReadBack()
    {
        NetConfig config;
        config.setDHCP(false);
        config.setIPAddr("10.0.0.7");
        config.setNetMask("255.0.0.0");
        config.setGateWay("10.0.0.1");
        config.setNetWork("10.0.0.0");
        config.setMAC("02:00:00:00:00:01");
        const NetConfig next;
        QVERIFY(!next.getIsDHCP());
        QCOMPARE(next.getIPAddr(), QString("10.0.0.7"));
        QCOMPARE(next.getNetMask(), QString("255.0.0.0"));
        QCOMPARE(next.getGateWay(), QString("10.0.0.1"));
        QCOMPARE(next.getNetWork(), QString("10.0.0.0"));
        QCOMPARE(next.getMAC(), QString("02:00:00:00:00:01"));
        config.setDHCP(true);
        QCOMPARE(Config::readConfigFile(NetConfig::filePath(), "USE_DHCP"), QString("1"));
    }

    void aChangeThatChangesNothingWritesNothing()
    {
        NetConfig config;
        config.changeTogether([&config] { config.setIPAddr("256.1.1.1"); });
        QVERIFY(!RootFiles::exists(NetConfig::filePath()));
        config.changeTogether([&config] { config.setIPAddr("10.0.0.7"); });
        QCOMPARE(Config::readConfigFile(NetConfig::filePath(), "IPADDR"), QString("10.0.0.7"));
    }

    void addressesThatAreNoneAreNotStored()
    {
        NetConfig config;
        config.setIPAddr("256.1.1.1");
        config.setNetMask("0.0.0.0");
        config.setGateWay("1.2.3");
        config.setNetWork("");
        QVERIFY(!RootFiles::exists(NetConfig::filePath()));
        QCOMPARE(config.getIPAddr(), QString("192.168.2.100"));
        QCOMPARE(config.getNetMask(), QString("255.255.255.0"));
        QCOMPARE(config.getGateWay(), QString("192.168.2.1"));
        QCOMPARE(config.getNetWork(), QString("192.168.2.0"));
    }

    void addresses_data()
    {
        QTest::addColumn<bool>("valid");
        for (const char *good : { "192.168.2.100", "255.255.255.255", "1.2.3.4", "0.0.0.1", "10.0.0.0", "199.249.250.9",
                                  "01.02.03.04", "00.0.0.0" })
            QTest::newRow(good) << true;
        for (const char *bad : { "0.0.0.0",   "256.1.1.1",  "1.1.1.256", "300.1.1.1",        "1.2.3",
                                 "1.2.3.4.5", "1.2.3.",     ".1.2.3",    "1..2.3",           " 1.2.3.4",
                                 "1.2.3.4 ",  "1.2.3.4\n",  "a.b.c.d",   "-1.2.3.4",         "1,2,3,4",
                                 "001.2.3.4", "1.2.3.1000", "",          "1.2.3.4;rm -rf /", "1.2.3.\xd9\xa4" })
            QTest::newRow(bad) << false;
    }
    void addresses()
    {
        QFETCH(bool, valid);
        QCOMPARE(NetConfig::ipIsValid(QString::fromUtf8(QTest::currentDataTag())), valid);
    }
};

QTEST_GUILESS_MAIN(TstNetConfig)
#include "tst_netconfig.moc"
