#include "board/joinsettings.h"
#include "board/ssidtext.h"
#include "board/wifiinfo.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

/// Names of networks and passwords: whatever bytes they are, they stay in their own field.
class TstWifiNames : public QObject
{
    Q_OBJECT

private slots:
    void escapesOfTheDaemonAreTakenBack_data();
    void escapesOfTheDaemonAreTakenBack();
    void everyNameSurvivesEscapes();
    void namesAreShownAsReadableText_data();
    void namesAreShownAsReadableText();
    void hiddenNetworksShowUnknown();
    void copiesShareUntilOneChanges();
    void keyKindFollowsTheFlags_data();
    void keyKindFollowsTheFlags();
    void networkWithoutPasswordNeedsThreeValues();
    void only64CharactersGoUnquoted();
    void namesGoQuotedOrAsHexadecimal_data();
    void namesGoQuotedOrAsHexadecimal();
    void noNameLeavesItsField();
    void valuesThatCannotBeSentAreRefused_data();
    void valuesThatCannotBeSentAreRefused();
};

void TstWifiNames::escapesOfTheDaemonAreTakenBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("ssid");
    QTest::newRow("plain") << "Site 7" << QByteArray("Site 7");
    QTest::newRow("bytes") << "M\\xc3\\xbchle" << QByteArray("M\xc3\xbchle");
    QTest::newRow("capital digits") << "\\xC3\\xBC" << QByteArray("\xc3\xbc");
    QTest::newRow("letters") << "\\\\ \\\" \\e \\n \\r \\t" << QByteArray("\\ \" \x1b \n \r \t");
    QTest::newRow("an escaped backslash begins no escape") << "\\\\x41" << QByteArray("\\x41");
    QTest::newRow("zero byte") << "a\\x00b" << QByteArray("a\0b", 3);
    QTest::newRow("cut escapes stand") << "\\x4" << QByteArray("\\x4");
    QTest::newRow("cut backslash stands") << "a\\" << QByteArray("a\\");
    QTest::newRow("no digits") << "\\xzz" << QByteArray("\\xzz");
    QTest::newRow("unknown letter") << "\\q" << QByteArray("\\q");
    QTest::newRow("empty") << "" << QByteArray();
}

void TstWifiNames::escapesOfTheDaemonAreTakenBack()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, ssid);
    QCOMPARE(SsidText::unescaped(text), ssid);
}

void TstWifiNames::everyNameSurvivesEscapes()
{
    QCOMPARE(SsidText::escaped(QByteArray("a\"\\\x1b\n\r\t\x7f\xff ~", 11)),
             QStringLiteral("a\\\"\\\\\\e\\n\\r\\t\\x7f\\xff ~"));
    QRandomGenerator random(20);
    for (int round = 0; round < 5000; ++round) {
        QByteArray ssid(random.bounded(33), '\0');
        for (char &byte : ssid)
            byte = static_cast<char>(random.bounded(256));
        const QString text = SsidText::escaped(ssid);
        for (const QChar character : text)
            QVERIFY(character >= QLatin1Char(' ') && character <= QLatin1Char('~'));
        QCOMPARE(SsidText::unescaped(text), ssid);
    }
}

void TstWifiNames::namesAreShownAsReadableText_data()
{
    QTest::addColumn<QByteArray>("ssid");
    QTest::addColumn<QString>("shown");
    const QChar none(QChar::ReplacementCharacter);
    QTest::newRow("plain") << QByteArray("Site 7") << "Site 7";
    QTest::newRow("UTF-8") << QByteArray("M\xc3\xbchle") << QString::fromUtf8("M\xc3\xbchle");
    QTest::newRow("Chinese") << QByteArray("\xe7\x94\xb5") << QString::fromUtf8("\xe7\x94\xb5");
    QTest::newRow("line feed") << QByteArray("a\nb") << QStringLiteral("a") + none + QStringLiteral("b");
    QTest::newRow("zero byte") << QByteArray("a\0b", 3) << QStringLiteral("a") + none + QStringLiteral("b");
    QTest::newRow("not UTF-8") << QByteArray("a\xff") << QStringLiteral("a") + none;
    QTest::newRow("right to left") << QByteArray("\xe2\x80\xae"
                                                 "abc")
                                   << none + QStringLiteral("abc");
    QTest::newRow("markup stays letters") << QByteArray("<b>x</b>") << "<b>x</b>";
}

void TstWifiNames::namesAreShownAsReadableText()
{
    QFETCH(QByteArray, ssid);
    QFETCH(QString, shown);
    QCOMPARE(SsidText::shown(ssid), shown);
    WifiInfo info;
    info.setSsid(SsidText::escaped(ssid));
    QCOMPARE(info.shownName(), shown);
    QCOMPARE(info.ssidBytes(), ssid);
}

void TstWifiNames::hiddenNetworksShowUnknown()
{
    WifiInfo info;
    QCOMPARE(info.shownName(), QStringLiteral("[Unknown]"));
    info.setSsid(QStringLiteral("\\x00\\x00\\x00"));
    QCOMPARE(info.shownName(), QStringLiteral("[Unknown]"));
    info.setSsid(QStringLiteral(" "));
    QCOMPARE(info.shownName(), QStringLiteral(" "));
}

void TstWifiNames::copiesShareUntilOneChanges()
{
    WifiInfo first;
    first.setSsid(QStringLiteral("one"));
    WifiInfo second = first;
    const WifiInfo &readFirst = first, &readSecond = second;
    QCOMPARE(&readFirst.getData(), &readSecond.getData());
    second.cope();
    QVERIFY(&readFirst.getData() != &readSecond.getData());
    QCOMPARE(second.ssid(), QStringLiteral("one"));
    WifiInfo third = first;
    third.setLevel(-60);
    QCOMPARE(first.level(), 0);
    QCOMPARE(third.level(), -60);
}

void TstWifiNames::keyKindFollowsTheFlags_data()
{
    QTest::addColumn<QString>("flags");
    QTest::addColumn<QByteArray>("proto"); // empty: not sent
    QTest::addColumn<QByteArray>("keys");
    QTest::newRow("second generation") << "[WPA2-PSK-CCMP][ESS]" << QByteArray("WPA2") << QByteArray("WPA-PSK");
    QTest::newRow("first generation") << "[WPA-PSK-TKIP][ESS]" << QByteArray() << QByteArray("WPA-PSK");
    QTest::newRow("both") << "[WPA-PSK-TKIP][WPA2-PSK-CCMP][ESS]" << QByteArray("WPA2") << QByteArray("WPA-PSK");
    QTest::newRow("server, second") << "[WPA2-EAP-CCMP][ESS]" << QByteArray("WPA2") << QByteArray("WPA-EAP");
    QTest::newRow("server, first") << "[WPA-EAP-TKIP][ESS]" << QByteArray() << QByteArray("WPA-EAP");
    QTest::newRow("button and key") << "[WPA2-PSK-CCMP][WPS][ESS]" << QByteArray("WPA2") << QByteArray("WPA-PSK");
    QTest::newRow("button alone") << "[WPS][ESS]" << QByteArray() << QByteArray("NONE");
    QTest::newRow("none of them") << "[ESS]" << QByteArray() << QByteArray("NONE");
}

void TstWifiNames::keyKindFollowsTheFlags()
{
    QFETCH(QString, flags);
    QFETCH(QByteArray, proto);
    QFETCH(QByteArray, keys);
    WifiInfo info;
    info.setSsid(QStringLiteral("net"));
    info.setFlags(flags);
    QMap<QByteArray, QByteArray> sent;
    QByteArray last;
    for (const NetworkSetting &setting : JoinSettings::withAuth(info, QStringLiteral("password"))) {
        sent[setting.name] = setting.value;
        last = setting.name;
    }
    QCOMPARE(sent.value("proto"), proto);
    QCOMPARE(sent.value("key_mgmt"), keys);
    QCOMPARE(sent.value("ssid"), QByteArray("net"));
    QCOMPARE(sent.value("psk"), QByteArray("password"));
    QCOMPARE(last, QByteArray("psk"));
}

void TstWifiNames::networkWithoutPasswordNeedsThreeValues()
{
    WifiInfo info;
    info.setSsid(QStringLiteral("open net"));
    QVector<QByteArray> commands;
    for (const NetworkSetting &setting : JoinSettings::withoutAuth(info))
        commands << JoinSettings::command(12, setting);
    const QVector<QByteArray> expected { "SET_NETWORK 12 ssid \"open net\"", "SET_NETWORK 12 key_mgmt NONE",
                                         "SET_NETWORK 12 scan_ssid 1" };
    QCOMPARE(commands, expected);
}

void TstWifiNames::only64CharactersGoUnquoted()
{
    WifiInfo info;
    for (int length : { 8, 63, 64, 65 }) {
        const QByteArray password(length, 'a');
        const QVector<NetworkSetting> settings = JoinSettings::withAuth(info, QString::fromLatin1(password));
        const QByteArray expected = length == 64 ? password : '"' + password + '"';
        QCOMPARE(JoinSettings::command(0, settings.last()), "SET_NETWORK 0 psk " + expected);
    }
}

void TstWifiNames::namesGoQuotedOrAsHexadecimal_data()
{
    QTest::addColumn<QByteArray>("ssid");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("plain") << QByteArray("Site #7") << QByteArray("\"Site #7\"");
    QTest::newRow("quote") << QByteArray("a\"b") << QByteArray("612262");
    QTest::newRow("backslash") << QByteArray("a\\") << QByteArray("615c");
    QTest::newRow("line feed") << QByteArray("a\n") << QByteArray("610a");
    QTest::newRow("zero byte") << QByteArray("\0a", 2) << QByteArray("0061");
    QTest::newRow("UTF-8") << QByteArray("\xc3\xbc") << QByteArray("c3bc");
    QTest::newRow("32 bytes") << QByteArray(32, '\xff') << QByteArray(64, 'f');
}

void TstWifiNames::namesGoQuotedOrAsHexadecimal()
{
    QFETCH(QByteArray, ssid);
    QFETCH(QByteArray, value);
    QCOMPARE(JoinSettings::command(3, { "ssid", ssid, true }), "SET_NETWORK 3 ssid " + value);
}

void TstWifiNames::noNameLeavesItsField()
{
    static const QRegularExpression shape(
        QStringLiteral("\\ASET_NETWORK 0 ssid (\"[ !#-\\[\\]-~]{1,32}\"|([0-9a-f]{2}){1,32})\\z"));
    QRandomGenerator random(21);
    const QByteArray nasty("\"\\\n\r\0#{}=' $`;ab", 16);
    for (int round = 0; round < 5000; ++round) {
        QByteArray ssid(1 + random.bounded(32), '\0');
        for (char &byte : ssid) {
            byte = random.bounded(3) ? nasty.at(random.bounded(nasty.size())) : static_cast<char>(random.bounded(256));
        }
        const QByteArray command = JoinSettings::command(0, { "ssid", ssid, true });
        QVERIFY2(shape.match(QString::fromLatin1(command)).hasMatch(), command.toHex());
    }
}

void TstWifiNames::valuesThatCannotBeSentAreRefused_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("password with a line feed") << 0 << QByteArray("psk") << QByteArray("pass\nword");
    QTest::newRow("password with a zero byte") << 0 << QByteArray("psk") << QByteArray("pass\0word", 9);
    QTest::newRow("password with an escape") << 0 << QByteArray("psk") << QByteArray("pass\x1bword");
    QTest::newRow("empty password") << 0 << QByteArray("psk") << QByteArray();
    QTest::newRow("empty name") << 0 << QByteArray("ssid") << QByteArray();
    QTest::newRow("name of 33 bytes") << 0 << QByteArray("ssid") << QByteArray(33, 'a');
    QTest::newRow("two fields in one") << 0 << QByteArray("ssid x") << QByteArray("a");
    QTest::newRow("no field") << 0 << QByteArray() << QByteArray("a");
    QTest::newRow("no network") << -1 << QByteArray("ssid") << QByteArray("a");
}

void TstWifiNames::valuesThatCannotBeSentAreRefused()
{
    QFETCH(int, id);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, value);
    QCOMPARE(JoinSettings::command(id, { name, value, true }), QByteArray());
}

QTEST_GUILESS_MAIN(TstWifiNames)
#include "tst_wifinames.moc"
