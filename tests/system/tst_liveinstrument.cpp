#include "instrument.h"
#include "unit/services/modbusclient.h"

#include <QTcpSocket>
#include <QUdpSocket>
#include <csignal>

using namespace SystemTest;

/// The instrument as a user meets it: keys in, screen out.
class TstLiveInstrument : public QObject
{
    Q_OBJECT
private slots:
    void answersItsNameAndShowsTheMenu();
    void menuLeadsToVoltsAmpsHertzWithLiveValues();
    void arrowsWalkTheMenuAsATorus();
    void holdFreezesThePageAndRunGoesOn();
    void trendOpensAndLeadsBack();
    void everyWiringShowsItsOwnTable();
    void settingsOfARunAreKeptForTheNext();
    void hostileDatagramsLeaveItAlive();
    void setUpByRemoteKeysIsReadByTheMaster();
    void modbusAnswersWhileTheStreamRuns();
    void sigtermEndsIt();
    void secondInstrumentOnTheSamePortEndsWithAMessage();
};

void TstLiveInstrument::answersItsNameAndShowsTheMenu()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    QString name;
    QVERIFY(desk.remote().identify(&name));
    QCOMPARE(name, QStringLiteral("QUVERA"));
    const QImage screen = desk.screen();
    QCOMPARE(screen.size(), QSize(640, 480));
    QVERIFY(brightPixels(title(screen)) > 50);
    QVERIFY(brightPixels(page(screen)) > 1000);
}

void TstLiveInstrument::menuLeadsToVoltsAmpsHertzWithLiveValues()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    const QImage menu = desk.screen();
    VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk); // "vif" is current at the start
    const QImage first = desk.waitForScreen([&](const QImage &now) { return title(now) != title(menu); });
    QVERIFY(!first.isNull());
    // Noise and drift move the last digits: the page lives.
    const QImage later = desk.waitForScreen([&](const QImage &now) { return page(now) != page(first); });
    VERIFY_DESK(!later.isNull(), desk);
    // Back in the menu.
    VERIFY_DESK(desk.press({ QStringLiteral("Menu") }), desk);
    VERIFY_DESK(!desk.waitForScreen([&](const QImage &now) { return title(now) == title(menu); }).isNull(), desk);
}

void TstLiveInstrument::arrowsWalkTheMenuAsATorus()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    const QImage start = page(desk.screen());
    for (const QString &key : { QStringLiteral("Right"), QStringLiteral("Left") }) {
        for (int step = 0; step < 4; ++step) {
            VERIFY_DESK(desk.press({ key }), desk);
            QCOMPARE(page(desk.screen()) == start, step == 3); // four columns
        }
    }
    for (const QString &key : { QStringLiteral("Down"), QStringLiteral("Up") }) {
        for (int step = 0; step < 3; ++step) {
            VERIFY_DESK(desk.press({ key }), desk);
            QCOMPARE(page(desk.screen()) == start, step == 2); // three rows
        }
    }
}

void TstLiveInstrument::holdFreezesThePageAndRunGoesOn()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk);
    const auto table = [](const QImage &screen) { return screen.copy(0, 72, 640, 340); };
    const QImage running = desk.screen();
    VERIFY_DESK(!desk.waitForScreen([&](const QImage &now) { return table(now) != table(running); }).isNull(), desk);
    VERIFY_DESK(desk.press({ QStringLiteral("F5") }), desk);
    const QImage held = desk.screen();
    // As long as several updates take: the clock in the title bar goes on by two seconds, the table stands.
    QImage clock = held;
    for (int seconds = 0; seconds < 2; ++seconds) {
        clock = desk.waitForScreen(
            [&](const QImage &now) { return now.copy(469, 0, 171, 32) != clock.copy(469, 0, 171, 32); });
        VERIFY_DESK(!clock.isNull(), desk);
        QCOMPARE(table(clock), table(held));
    }
    VERIFY_DESK(desk.press({ QStringLiteral("F5") }), desk);
    VERIFY_DESK(!desk.waitForScreen([&](const QImage &now) { return table(now) != table(held); }).isNull(), desk);
}

void TstLiveInstrument::trendOpensAndLeadsBack()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk);
    const auto keys = [](const QImage &screen) { return screen.copy(0, 440, 640, 40); };
    const QImage table = desk.screen();
    VERIFY_DESK(desk.press({ QStringLiteral("F4") }), desk);
    const QImage trend = desk.screen();
    QVERIFY(keys(trend) != keys(table));
    VERIFY_DESK(desk.press({ QStringLiteral("F4") }), desk);
    QCOMPARE(keys(desk.screen()), keys(table));
}

void TstLiveInstrument::everyWiringShowsItsOwnTable()
{
    // Header row of the table: L1 L2 L3 N in star wirings, L12 L23 L31 in delta wirings, fewer with fewer phases. So
    // the wirings fall into five pictures: 1, 7, 9; 2, 4, 8, 10; 3; 5; 6.
    QMap<int, QImage> headers;
    for (int wiring = 1; wiring <= 10; ++wiring) {
        Instrument desk;
        desk.setSetting(QLatin1String(kSettingFile), QStringLiteral("JOINMODE"), QString::number(wiring));
        VERIFY_DESK(desk.start(), desk);
        VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk);
        headers.insert(wiring, desk.screen().copy(0, 68, 640, 40));
        QVERIFY(brightPixels(headers.value(wiring)) > 20);
    }
    for (int same : { 7, 9 })
        QCOMPARE(headers.value(same), headers.value(1));
    for (int same : { 4, 8, 10 })
        QCOMPARE(headers.value(same), headers.value(2));
    const QList<int> kinds { 1, 2, 3, 5, 6 };
    for (int one : kinds) {
        for (int other : kinds)
            QCOMPARE(headers.value(one) == headers.value(other), one == other);
    }
}

void TstLiveInstrument::settingsOfARunAreKeptForTheNext()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    // A setting that a key changes: the light key steps the brightness, which is not kept; the threshold of the
    // transients is. Menu from "vif": Down, Right, Right to "transients", Enter; Right raises the threshold.
    const QString key = QStringLiteral("TRANS_THRESHOLD");
    const QString before = desk.setting(QLatin1String(kSettingFile), key);
    VERIFY_DESK(desk.press({ QStringLiteral("Down"), QStringLiteral("Right"), QStringLiteral("Right"),
                             QStringLiteral("Enter"), QStringLiteral("Right"), QStringLiteral("Right") }),
                desk);
    QTRY_VERIFY_WITH_TIMEOUT(desk.setting(QLatin1String(kSettingFile), key) != before, 20000);
    const QString changed = desk.setting(QLatin1String(kSettingFile), key);
    const QImage shown = page(desk.screen());
    desk.stop();
    VERIFY_DESK(desk.start(), desk);
    QCOMPARE(desk.setting(QLatin1String(kSettingFile), key), changed);
    VERIFY_DESK(desk.press({ QStringLiteral("Down"), QStringLiteral("Right"), QStringLiteral("Right"),
                             QStringLiteral("Enter") }),
                desk);
    VERIFY_DESK(!desk.waitForScreen([&](const QImage &now) { return page(now) == shown; }).isNull(), desk);
}

void TstLiveInstrument::hostileDatagramsLeaveItAlive()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk);
    QUdpSocket socket;
    quint32 seed = 1;
    for (int round = 0; round < 4000; ++round) {
        QByteArray bytes(round % 2001, '\0');
        for (char &byte : bytes) {
            seed = seed * 1664525 + 1013904223;
            byte = char(seed >> 24);
        }
        // Not a key: what noise presses would be left to chance.
        if (bytes.size() >= 4 && bytes.at(0) == 1)
            bytes[0] = 5;
        if (bytes.size() < 12)
            bytes = QByteArray(bytes.size(), '\7');
        socket.writeDatagram(bytes, QHostAddress(QHostAddress::LocalHost), desk.remotePort());
        if (round % 100 == 0)
            VERIFY_DESK(desk.remote().keepAlive(), desk);
    }
    const QImage before = desk.screen();
    VERIFY_DESK(!before.isNull(), desk);
    VERIFY_DESK(!desk.waitForScreen([&](const QImage &now) { return now != before; }).isNull(), desk);
    QVERIFY(desk.isInstrumentRunning());
}

void TstLiveInstrument::setUpByRemoteKeysIsReadByTheMaster()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    ModbusClient master(desk.modbusPort());
    const auto wiring = [&] { return master.read(11303, 1).value(0); };
    QCOMPARE(int(wiring()), 1);
    const auto press = [&](const char *keys) { return desk.press(QString::fromLatin1(keys).split(QLatin1Char(' '))); };
    // Config, the second page, its last wiring, Ok; Vnom, the line voltage after the one in use, Ok; Freq once.
    VERIFY_DESK(press("F9 F1 F2 Right Right Right Enter F4 F2 Right F4 F3"), desk);
    QCOMPARE(desk.setting(QLatin1String(kSettingFile), QStringLiteral("JOINMODE")), QStringLiteral("8"));
    QCOMPARE(desk.setting(QLatin1String(kSettingFile), QStringLiteral("NOM_VOLT_LINE_SELECT")), QStringLiteral("6"));
    QCOMPARE(desk.setting(QLatin1String(kSettingFile), QStringLiteral("NOM_FREQ")), QStringLiteral("2"));
    QCOMPARE(int(wiring()), 1); // not before Setup is left
    VERIFY_DESK(press("Menu"), desk);
    QTRY_COMPARE_WITH_TIMEOUT(int(wiring()), 8, 30000);
    const QList<quint16> words = master.read(11304, 4); // frequency and nominal voltage, low word first
    QCOMPARE(words, (QList<quint16> { 0x0000, 0x4270, 0x0000, 0x43F0 })); // 60.0 and 480.0 as floats
}

void TstLiveInstrument::modbusAnswersWhileTheStreamRuns()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    QTcpSocket master;
    master.connectToHost(QHostAddress(QHostAddress::LocalHost), desk.modbusPort());
    QVERIFY(master.waitForConnected(20000));
    // Read one holding register at 65000: the big-data lock.
    master.write(QByteArray::fromHex("000100000006ff03fde80001"));
    QByteArray answer;
    while (answer.size() < 11)
        QVERIFY(master.waitForReadyRead(20000) && (answer += master.readAll(), true));
    QCOMPARE(answer.left(9), QByteArray::fromHex("000100000005ff0302"));
}

void TstLiveInstrument::sigtermEndsIt()
{
    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk);
    QVERIFY(desk.stopInstrument());
    QVERIFY(!desk.isInstrumentRunning());
    QVERIFY2(!desk.instrumentOutput().contains("Segmentation"), desk.instrumentOutput());
}

void TstLiveInstrument::secondInstrumentOnTheSamePortEndsWithAMessage()
{
    Instrument desk;
    QUdpSocket taken;
    QVERIFY(taken.bind(QHostAddress(QHostAddress::AnyIPv4), desk.remotePort()));
    VERIFY_DESK(desk.startProcessor(), desk);
    QVERIFY(!desk.startInstrument());
    QCOMPARE(desk.instrument().exitStatus(), QProcess::NormalExit);
    QCOMPARE(desk.instrument().exitCode(), 255);
    QVERIFY(desk.instrumentOutput().contains("bind() 函数使用失败了.\r"));
}

QTEST_GUILESS_MAIN(TstLiveInstrument)

#include "tst_liveinstrument.moc"
