#include "board/backlight.h"
#include "board/battery.h"
#include "board/network.h"
#include "platform/target.h"
#include "unit/filestandin.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTest>

/// Battery, back light and network queries.
class TstBoardServices : public QObject
{
    Q_OBJECT

private slots:
    void firstReadingHasNoHysteresis_data();
    void firstReadingHasNoHysteresis();
    void stepsHaveHysteresis_data();
    void stepsHaveHysteresis();
    void missingGaugeIsStatus7();
    void gaugeThatComesLateStartsAnew();
    void chargerShowsChargingAndKeepsTheStep();
    void chargeFinishedNeedsBothLines();
    void initExportsBothLinesAsInputs();
    void levelsAreWrittenAsOneCharacter();
    void lightKeyCycles();
    void wildLevelsAreHeldToTheTable();
    void shortDelaysTurnTheTimeOutOff();
    void timeOutShutsDownToTheLowestLight();
    void keyPressRestoresTheLight();
    void missingLightIsReported();
    void loopbackAnswers();
    void cableOfADeskStandsInAFile();
    void unknownInterfacesAnswerNothing();
    void whatIsNoFileHoldsNobodyUp_data();
    void whatIsNoFileHoldsNobodyUp();
    void gatewayIsTheThirdWordOfTheDefaultRoute_data();
    void gatewayIsTheThirdWordOfTheDefaultRoute();
};

namespace {

const QString kGauge = QStringLiteral("/sys/bus/iio/devices/iio:device0/in_voltage0_raw");
const QString kLight = QStringLiteral("/sys/class/backlight/backlight/brightness");

void write(const QString &boardPath, const QByteArray &text)
{
    const QString path = Target::path(boardPath);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(text), qint64(text.size()));
}

QByteArray read(const QString &boardPath)
{
    QFile file(Target::path(boardPath));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

void setCharger(bool on, bool finished)
{
    write(QStringLiteral("/sys/class/gpio/gpio105/value"), on ? "1\n" : "0\n");
    write(QStringLiteral("/sys/class/gpio/gpio117/value"), finished ? "1\n" : "0\n");
}

/// Raw reading of so many battery volts, to the nearest step of 3.37 mV: V = raw / 4096 * 1.8 / 1.5 * 11.5.
void setVolts(double volts)
{
    write(kGauge, QByteArray::number(qRound(volts / 13.8 * 4096)) + '\n');
}

} // namespace

void TstBoardServices::firstReadingHasNoHysteresis_data()
{
    QTest::addColumn<double>("volts");
    QTest::addColumn<int>("status");
    QTest::newRow("6.29") << 6.29 << 1;
    QTest::newRow("6.31") << 6.31 << 2;
    QTest::newRow("6.79") << 6.79 << 2;
    QTest::newRow("6.81") << 6.81 << 3;
    QTest::newRow("7.09") << 7.09 << 3;
    QTest::newRow("7.11") << 7.11 << 4;
}

void TstBoardServices::firstReadingHasNoHysteresis()
{
    QFETCH(double, volts);
    QFETCH(int, status);
    setCharger(false, false);
    setVolts(volts);
    Battery::batteryInit();
    QCOMPARE(Battery::batteryLevel(), qRound(volts / 13.8 * 4096));
    setVolts(volts); // between the steps nothing moves
    QCOMPARE(Battery::batteryStatus(), status);
}

void TstBoardServices::stepsHaveHysteresis_data()
{
    QTest::addColumn<double>("start"); // V at the first reading
    QTest::addColumn<QVector<double>>("volts");
    QTest::addColumn<QVector<int>>("status");
    using V = QVector<double>;
    using S = QVector<int>;
    QTest::newRow("up one step a reading") << 6.0 << V { 6.59, 6.61, 7.09, 7.11, 7.69, 7.71 } << S { 1, 2, 2, 3, 3, 4 };
    QTest::newRow("down one step a reading")
        << 8.0 << V { 7.11, 7.09, 6.81, 6.79, 6.31, 6.29 } << S { 4, 3, 3, 2, 2, 1 };
    QTest::newRow("a full one that is empty is low at once") << 8.0 << V { 6.0 } << S { 1 };
    QTest::newRow("an empty one that is full climbs") << 6.0 << V { 8.0, 8.0, 8.0, 8.0 } << S { 2, 3, 4, 4 };
}

void TstBoardServices::stepsHaveHysteresis()
{
    QFETCH(double, start);
    QFETCH(QVector<double>, volts);
    QFETCH(QVector<int>, status);
    setCharger(false, false);
    setVolts(start);
    Battery::batteryInit();
    for (int i = 0; i < volts.size(); ++i) {
        setVolts(volts[i]);
        QCOMPARE(Battery::batteryStatus(), status[i]);
    }
}

void TstBoardServices::missingGaugeIsStatus7()
{
    setCharger(true, true);
    QFile::remove(Target::path(kGauge));
    QCOMPARE(Battery::batteryStatus(), 7);
    Battery::batteryInit();
    QCOMPARE(Battery::batteryStatus(), 7);
}

void TstBoardServices::gaugeThatComesLateStartsAnew()
{
    setCharger(false, false);
    QFile::remove(Target::path(kGauge));
    QCOMPARE(Battery::batteryStatus(), 7);
    setVolts(7.0);
    QCOMPARE(Battery::batteryStatus(), 3);
}

void TstBoardServices::chargerShowsChargingAndKeepsTheStep()
{
    setCharger(false, false);
    setVolts(6.0);
    Battery::batteryInit();
    QCOMPARE(Battery::batteryStatus(), 1);
    setCharger(true, false);
    setVolts(8.0);
    QCOMPARE(Battery::batteryStatus(), 5);
    QCOMPARE(Battery::batteryLevel(), qRound(6.0 / 13.8 * 4096)); // the gauge is not read
    setCharger(false, false);
    setVolts(6.5);
    QCOMPARE(Battery::batteryStatus(), 1); // 6.6 V would be needed from step 1
}

void TstBoardServices::chargeFinishedNeedsBothLines()
{
    setVolts(7.5);
    setCharger(true, true);
    QCOMPARE(Battery::batteryStatus(), 6);
    write(QStringLiteral("/sys/class/gpio/gpio117/value"), "1"); // without its line feed it is another text
    QCOMPARE(Battery::batteryStatus(), 5);
    setCharger(false, true);
    QVERIFY(Battery::batteryStatus() < 5);
}

void TstBoardServices::initExportsBothLinesAsInputs()
{
    write(QStringLiteral("/sys/class/gpio/export"), "");
    write(QStringLiteral("/sys/class/gpio/gpio105/direction"), "out\n");
    write(QStringLiteral("/sys/class/gpio/gpio117/direction"), "out\n");
    Battery::batteryInit();
    QCOMPARE(read(QStringLiteral("/sys/class/gpio/export")), QByteArray("117\n")); // the later of the two
    QCOMPARE(read(QStringLiteral("/sys/class/gpio/gpio105/direction")), QByteArray("in\n"));
    QCOMPARE(read(QStringLiteral("/sys/class/gpio/gpio117/direction")), QByteArray("in\n"));
}

void TstBoardServices::levelsAreWrittenAsOneCharacter()
{
    write(kLight, "");
    const char *const kTexts[] = { "1", "3", "5", "7" };
    for (int level = 0; level < 4; ++level) {
        BackLight::setBackLight(level);
        QCOMPARE(BackLight::level(), level);
        QCOMPARE(read(kLight), QByteArray(kTexts[level]));
    }
}

void TstBoardServices::lightKeyCycles()
{
    BackLight::setBackLight(3);
    for (int level : { 2, 1, 0, 3, 2 }) {
        BackLight::switchBackLight();
        QCOMPARE(BackLight::level(), level);
    }
}

void TstBoardServices::wildLevelsAreHeldToTheTable()
{
    BackLight::setBackLight(100);
    QCOMPARE(read(kLight), QByteArray("7"));
    BackLight::setBackLight(-1);
    QCOMPARE(read(kLight), QByteArray("1"));
}

void TstBoardServices::shortDelaysTurnTheTimeOutOff()
{
    BackLight::setBackLight(3);
    for (int seconds : { 3, 0, 1, 2, -5 }) { // 3 starts one, the others end it
        BackLight::setBackLightDeley(seconds);
        if (seconds != 3)
            BackLight::startBackLightDeley();
    }
    QTest::qWait(3300);
    QVERIFY(!BackLight::isShut());
    QCOMPARE(read(kLight), QByteArray("7"));
}

void TstBoardServices::timeOutShutsDownToTheLowestLight()
{
    BackLight::setBackLight(2);
    BackLight::setBackLightDeley(3);
    QVERIFY(!BackLight::isShut());
    QTRY_VERIFY(BackLight::isShut());
    QCOMPARE(read(kLight), QByteArray("1"));
    QCOMPARE(BackLight::level(), 2); // kept for the way back
    BackLight::recoverBackLight();
    BackLight::setBackLightDeley(0);
}

void TstBoardServices::keyPressRestoresTheLight()
{
    BackLight::setBackLight(3);
    BackLight::shutDownBL();
    QVERIFY(BackLight::isShut());
    QCOMPARE(read(kLight), QByteArray("1"));
    BackLight::recoverBackLight();
    QVERIFY(!BackLight::isShut());
    QCOMPARE(read(kLight), QByteArray("7"));
}

void TstBoardServices::missingLightIsReported()
{
    QFile::remove(Target::path(kLight));
    QVERIFY(QDir().rmdir(QFileInfo(Target::path(kLight)).path()));
    QTest::ignoreMessage(
        QtDebugMsg,
        QRegularExpression(QStringLiteral("^F: device/backlight L: [0-9]+ > Failed to open backlight ctrl$")));
    BackLight::setBackLight(1);
    QCOMPARE(BackLight::level(), 1);
    write(kLight, "");
}

void TstBoardServices::loopbackAnswers()
{
    QVERIFY(NetWork::checkNetwireStatus(QStringLiteral("lo")));
    QCOMPARE(NetWork::getIfIpaddr(QStringLiteral("lo")), QStringLiteral("127.0.0.1"));
    QCOMPARE(NetWork::getIfNetmask(QStringLiteral("lo")), QStringLiteral("255.0.0.0"));
    QCOMPARE(NetWork::getIfHwaddr(QStringLiteral("lo")), QStringLiteral("0:0:0:0:0:0"));
}

void TstBoardServices::cableOfADeskStandsInAFile()
{
    const QString file = QStringLiteral("/sys/class/net/eth7/carrier");
    QVERIFY(!NetWork::checkNetwireStatus(QStringLiteral("eth7"))); // unknown to the kernel
    write(file, "1\n");
    QVERIFY(NetWork::checkNetwireStatus(QStringLiteral("eth7")));
    write(file, "0\n");
    QVERIFY(!NetWork::checkNetwireStatus(QStringLiteral("eth7")));
    write(file, "");
    QVERIFY(!NetWork::checkNetwireStatus(QStringLiteral("eth7"))); // nothing to read: the kernel's answer
    QVERIFY(NetWork::checkNetwireStatus(QStringLiteral("lo")));
    write(QStringLiteral("/sys/class/net/lo/carrier"), "0\n");
    QVERIFY(!NetWork::checkNetwireStatus(QStringLiteral("lo")));
    QVERIFY(QFile::remove(Target::path(QStringLiteral("/sys/class/net/lo/carrier"))));
}

void TstBoardServices::unknownInterfacesAnswerNothing()
{
    for (const QString &name : { QStringLiteral("nosuch0"), QString(), QString(5000, QLatin1Char('e')) }) {
        QVERIFY(!NetWork::checkNetwireStatus(name));
        QCOMPARE(NetWork::getIfIpaddr(name), QString());
        QCOMPARE(NetWork::getIfNetmask(name), QString());
        QCOMPARE(NetWork::getIfHwaddr(name), QString());
    }
}

void TstBoardServices::whatIsNoFileHoldsNobodyUp_data()
{
    addFileStandIns();
}

void TstBoardServices::whatIsNoFileHoldsNobodyUp()
{
    QFETCH(FileStandIn, kind);
    const QString carrier = QStringLiteral("/sys/class/net/lo/carrier");
    const QString charger = QStringLiteral("/sys/class/gpio/gpio105/value");
    const QString export_ = QStringLiteral("/sys/class/gpio/export");
    setVolts(8.0);
    const auto restore = qScopeGuard([&] {
        for (const QString &path : { kGauge, kLight, carrier, charger, export_ })
            removeStandIn(path);
        write(export_, "");
        setCharger(false, false);
    });
    for (const QString &path : { kLight, carrier, charger, export_ })
        QVERIFY(putStandIn(path, kind));
    ::alarm(20); // whoever waits for the other end of a pipe would wait for ever
    Battery::batteryInit();
    QCOMPARE(Battery::batteryStatus(), 4);
    QVERIFY(putStandIn(kGauge, kind));
    Battery::batteryInit();
    QVERIFY(Battery::batteryStatus() != 4);
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QStringLiteral("Failed to open backlight ctrl$")));
    BackLight::setBackLight(1);
    QVERIFY(NetWork::checkNetwireStatus(QStringLiteral("lo"))); // the kernel's answer
    ::alarm(0);
}

void TstBoardServices::gatewayIsTheThirdWordOfTheDefaultRoute_data()
{
    QTest::addColumn<QByteArray>("routes");
    QTest::addColumn<QString>("gateway");
    QTest::newRow("none") << QByteArray("10.0.0.0/8 dev eth0") << QStringLiteral("0.0.0.0");
    QTest::newRow("one") << QByteArray("default via 192.168.2.1 dev eth0 \n192.168.2.0/24 dev eth0")
                         << QStringLiteral("192.168.2.1");
    QTest::newRow("first of two, behind white space")
        << QByteArray("10.0.0.0/8 dev eth0\n  default via 10.0.0.1 dev eth0\ndefault via 10.0.0.2 dev wlan0")
        << QStringLiteral("10.0.0.1");
    QTest::newRow("no third word") << QByteArray("default via") << QStringLiteral("0.0.0.0");
}

void TstBoardServices::gatewayIsTheThirdWordOfTheDefaultRoute()
{
    QFETCH(QByteArray, routes);
    QFETCH(QString, gateway);
    write(QStringLiteral("/routes"), routes);
    write(QStringLiteral("/bin/ip"),
          "#!/bin/sh\ncat '" + QFile::encodeName(Target::path(QStringLiteral("/routes"))) + "'\n");
    QVERIFY(QFile::setPermissions(Target::path(QStringLiteral("/bin/ip")),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QCOMPARE(NetWork::getIfGateway(), gateway);
}

QTEST_GUILESS_MAIN(TstBoardServices)
#include "tst_boardservices.moc"
