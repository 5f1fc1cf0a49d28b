#include "settings/config_data.h"
#include "device/deviceinit.h"
#include "device/idevice.h"
#include "processorpeer.h"
#include "stdoutcapture.h"

#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>

/// The facade: frames to the wire in their order, datagrams into the main thread.
class TstIDevice : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void startUpGoesOverTheWireInItsOrder();
    void setUpFrameCarriesTheSettingsByPosition();
    void configurationWordTellsFrequencyClampAndWiring_data();
    void configurationWordTellsFrequencyClampAndWiring();
    void nominalFrequencyIsTakenWithinOneHertz_data();
    void nominalFrequencyIsTakenWithinOneHertz();
    void flickerLampIs230Or120();
    void payloadWordsThatReadAsMarkersAreEscaped();
    void everyWordEscapedStaysInsideTheStaticFrame();
    void calibrationFrames();
    void streamClockAndFirmwareFrames();
    void clockOfAnotherLengthIsNotSent();
    void buzzerSendsItsValue();
    void framesThatWaitForTheDeviceThreadStayWhole();
    void requestChangesNothingOnTheWire();
    void updateFramesPass();
    void olderClockCommandPasses();
    void datagramsCrossIntoTheMainThread();
    void transientsAreRelayedThoughTheLinkBringsNone();
    void datagramAfterATurnBringsAnotherTurn();
    void clockSignalsAreRelayed();
    void versionIsTheInitialTextUntilTheProcessorAnswers();
    void versionEndsAtTheFirstZeroByteOrTheArraysEnd();
    void stalledMainThreadLosesNothing();
    void stalledMainThreadGetsEverythingInOrder();
    void backlogLeavesTimersTheirTurn_data();
    void backlogLeavesTimersTheirTurn();
    void processorThatComesBackIsSetUpAgain();
    void withoutANodeTheProgramRunsWithoutData();
    void withoutAFacadeFramesGoNowhere();

private:
    void connectLink();
    QVector<quint32> receiveWords();

    std::unique_ptr<ProcessorPeer> m_peer;
};

namespace {

constexpr int kPatience = 30000; // ms, for the device thread

float toFloat(quint32 word)
{
    float value;
    memcpy(&value, &word, 4);
    return value;
}

float fromBits(quint32 word)
{
    return toFloat(word);
}

QVector<quint32> toWords(const QByteArray &frame)
{
    QVector<quint32> words(frame.size() / 4);
    memcpy(words.data(), frame.constData(), size_t(words.size()) * 4);
    return words;
}

} // namespace

void TstIDevice::init()
{
    m_settingConfig_g.setJoinMode(1);
    m_settingConfig_g.setNomFreq(1);
    m_settingConfig_g.setNomVoltStarSelect(5);
    m_settingConfig_g.setFlickerWeightingCurve(230);
    m_calib_data_g.initCalibData();
    m_settingConfig_g.followSettings();
    m_peer = std::make_unique<ProcessorPeer>();
}

void TstIDevice::cleanup()
{
    delete m_idevice;
    QVERIFY(!m_idevice);
    m_peer.reset();
}

/// Makes the facade and takes the two connections of the start-up.
void TstIDevice::connectLink()
{
    m_idevice = new IDevice;
    QVERIFY(m_peer->accept());
    QVERIFY(m_peer->accept());
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 193, 0, 123 }));
}

QVector<quint32> TstIDevice::receiveWords()
{
    return toWords(m_peer->receive(kPatience));
}

void TstIDevice::startUpGoesOverTheWireInItsOrder()
{
    m_idevice = new IDevice;
    DeviceInit::initAnalogDevice2();
    const QVector<quint32> stop { 122, 193, 0, 123 };
    QVERIFY(m_peer->accept());
    QCOMPARE(receiveWords(), stop);
    QCOMPARE(m_peer->receive(kPatience), QByteArray("")); // the node is closed and opened again
    QVERIFY(m_peer->accept());
    QCOMPARE(receiveWords(), stop);
    const QVector<quint32> setUp = receiveWords();
    QCOMPARE(setUp.size(), 24);
    QCOMPARE(setUp.mid(0, 2), (QVector<quint32> { 122, 198 }));
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 194, 0, 123 }));
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 193, 1, 123 }));
}

void TstIDevice::setUpFrameCarriesTheSettingsByPosition()
{
    connectLink();
    __calib_data &calibration = m_calib_data_g.data();
    const int v = m_settingConfig_g.getVoltIndex(), i = m_settingConfig_g.getCurrentIndex();
    QCOMPARE(v, 1); // 230 V, star
    for (int k = 0; k < 4; ++k) {
        calibration.zeroVolt[v][k] = 0.01f * float(k + 1);
        calibration.zeroCurrent[i][k] = 0.001f * float(k + 1);
        calibration.volt[v][k] = 80.0f + float(k);
    }
    m_settingConfig_g.followSettings();
    m_settingConfig_g.setTransThreshold(40);
    DeviceInit::setupADSP21479();
    const QVector<quint32> words = receiveWords();
    QCOMPARE(words.size(), 24); // 96 bytes
    QCOMPARE(words[0], 122u);
    QCOMPARE(words[1], 198u);
    QCOMPARE(words[23], 123u);
    QCOMPARE(words[2], 0x320000u);
    for (int k = 0; k < 4; ++k) {
        QCOMPARE(toFloat(words[3 + k]), 0.01f * float(k + 1));
        QCOMPARE(toFloat(words[7 + k]), 0.001f * float(k + 1));
        QCOMPARE(toFloat(words[11 + k]), (80.0f + float(k)) / 80.0f);
        QCOMPARE(toFloat(words[15 + k]), 1.0f);
    }
    QCOMPARE(toFloat(words[19]), 0.5f); // 40 / 80
    QCOMPARE(words[20], 230u);
    QCOMPARE(toFloat(words[21]), 1375.0f);
    QCOMPARE(toFloat(words[22]), 285.0f);
    m_settingConfig_g.setTransThreshold(50);
}

void TstIDevice::configurationWordTellsFrequencyClampAndWiring_data()
{
    QTest::addColumn<int>("joinMode");
    QTest::addColumn<int>("nomFreq"); // 1 to 3
    QTest::addColumn<bool>("flexible");
    QTest::addColumn<quint32>("word");
    QTest::newRow("1: star") << 1 << 1 << false << 0x00320000u;
    QTest::newRow("2: delta") << 2 << 1 << false << 0x00320001u;
    QTest::newRow("3: star") << 3 << 2 << false << 0x003C0000u;
    QTest::newRow("4: delta, 400 Hz") << 4 << 3 << false << 0x01900001u;
    QTest::newRow("5: star, flexible") << 5 << 1 << true << 0x00328000u;
    QTest::newRow("6: delta, flexible") << 6 << 2 << true << 0x003C8001u;
    QTest::newRow("7: star") << 7 << 1 << false << 0x00320000u;
    QTest::newRow("8: delta") << 8 << 1 << false << 0x00320001u;
    QTest::newRow("9: its own code") << 9 << 1 << false << 0x00320003u;
    QTest::newRow("10: its own code, flexible") << 10 << 3 << true << 0x01908004u;
}

void TstIDevice::configurationWordTellsFrequencyClampAndWiring()
{
    QFETCH(int, joinMode);
    QFETCH(int, nomFreq);
    QFETCH(bool, flexible);
    QFETCH(quint32, word);
    connectLink();
    Clamp *clamp = m_settingConfig_g.clamps()->getCurClamp();
    QVERIFY(clamp);
    const bool before = clamp->flexible();
    clamp->setFlexible(flexible);
    m_settingConfig_g.setJoinMode(joinMode);
    m_settingConfig_g.setNomFreq(nomFreq);
    DeviceInit::setupADSP21479();
    const QVector<quint32> words = receiveWords();
    clamp->setFlexible(before);
    QVERIFY(words.size() >= 24);
    QCOMPARE(words[2], word);
}

void TstIDevice::nominalFrequencyIsTakenWithinOneHertz_data()
{
    QTest::addColumn<double>("hertz");
    QTest::addColumn<quint32>("sent");
    QTest::newRow("50.9") << 50.9 << 50u;
    QTest::newRow("49.1") << 49.1 << 50u;
    QTest::newRow("51: still within") << 51.0 << 50u;
    QTest::newRow("59: still within") << 59.0 << 60u;
    QTest::newRow("51.1") << 51.1 << 400u;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 400u;
    QTest::newRow("59.5") << 59.5 << 60u;
    QTest::newRow("400") << 400.0 << 400u;
    QTest::newRow("55") << 55.0 << 400u;
}

void TstIDevice::nominalFrequencyIsTakenWithinOneHertz()
{
    QFETCH(double, hertz);
    QFETCH(quint32, sent);
    QCOMPARE(DeviceInit::nominalFrequencyWord(hertz), sent);
}

void TstIDevice::flickerLampIs230Or120()
{
    connectLink();
    for (int curve : { 230, 120, 0, 231 }) {
        m_settingConfig_g.setFlickerWeightingCurve(curve);
        DeviceInit::setupADSP21479();
        QCOMPARE(receiveWords().value(20), curve == 230 ? 230u : 120u);
    }
}

void TstIDevice::payloadWordsThatReadAsMarkersAreEscaped()
{
    connectLink();
    const int v = m_settingConfig_g.getVoltIndex();
    float *zero = m_calib_data_g.data().zeroVolt[v];
    zero[0] = fromBits(123);
    zero[1] = fromBits(122);
    zero[2] = fromBits(124); // nothing special
    zero[3] = fromBits(125);
    m_settingConfig_g.followSettings();
    DeviceInit::setupADSP21479();
    const QVector<quint32> words = receiveWords();
    QCOMPARE(words.size(), 24 + 3);
    QCOMPARE(words.mid(2, 8), (QVector<quint32> { 0x320000, 125, 91, 125, 90, 124, 125, 93 }));
    QCOMPARE(words.last(), 123u);
}

void TstIDevice::everyWordEscapedStaysInsideTheStaticFrame()
{
    connectLink();
    float marker[4];
    for (float &value : marker)
        value = fromBits(123);
    for (int i = 0; i < 40; ++i) {
        DeviceInit::changeCalibZero(marker, marker);
        QCOMPARE(receiveWords().size(), 24 + 8);
    }
}

void TstIDevice::calibrationFrames()
{
    connectLink();
    DeviceInit::change2CalibMode();
    QVector<quint32> words = receiveWords();
    QVector<quint32> expected { 122, 198, 0x00320002 };
    expected << QVector<quint32>(8, 0u) << QVector<quint32>(9, 0x3F800000u) << 230 << 0 << 0 << 123;
    QCOMPARE(words, expected);
    float volt[] = { 1, 2, 3, 4 }, current[] = { 5, 6, 7, 8 };
    DeviceInit::changeCalibZero(volt, current);
    words = receiveWords();
    for (int k = 0; k < 8; ++k) {
        QCOMPARE(toFloat(words.value(3 + k)), float(k + 1));
        expected[3 + k] = words.value(3 + k);
    }
    QCOMPARE(words, expected);
}

void TstIDevice::streamClockAndFirmwareFrames()
{
    connectLink();
    DeviceInit::startDataStream();
    DeviceInit::stopDataStream();
    DeviceInit::getADSPFWInfo();
    // 7B 00 00 00: not escaped, as the processor reads two words whatever they are.
    DeviceInit::setADSPHWClock(QByteArray::fromHex("7b00000005061807"));
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 193, 1, 123 }));
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 193, 0, 123 }));
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 194, 0, 123 }));
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 195, 123, 0x07180605, 123 }));
}

void TstIDevice::clockOfAnotherLengthIsNotSent()
{
    connectLink();
    DeviceInit::setADSPHWClock(QByteArray(7, '\x01'));
    DeviceInit::setADSPHWClock(QByteArray(9, '\x01'));
    DeviceInit::setADSPHWClock(QByteArray());
    DeviceInit::startDataStream();
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 193, 1, 123 }));
}

void TstIDevice::buzzerSendsItsValue()
{
    connectLink();
    m_idevice->buzzerRing();
    m_idevice->buzzerRing(3);
    QCOMPARE(receiveWords(), (QVector<quint32> { 194, 0 }));
    QCOMPARE(receiveWords(), (QVector<quint32> { 194, 3 }));
}

void TstIDevice::framesThatWaitForTheDeviceThreadStayWhole()
{
    // The device thread sleeps 500 ms in its start-up; all this waits for it.
    m_idevice = new IDevice;
    for (int mode = 1; mode <= 10; ++mode) {
        m_settingConfig_g.setJoinMode(mode);
        DeviceInit::setupADSP21479();
    }
    QVERIFY(m_peer->accept());
    QVERIFY(m_peer->accept());
    receiveWords();
    const quint32 codes[] = { 0, 1, 0, 1, 0, 1, 0, 1, 3, 4 };
    for (quint32 code : codes) {
        const QVector<quint32> words = receiveWords();
        QCOMPARE(words.size(), 24);
        QCOMPARE(words[2], 0x320000u | code);
        QCOMPARE(words[23], 123u);
    }
}

void TstIDevice::requestChangesNothingOnTheWire()
{
    connectLink();
    QSignalSpy asked(m_idevice, &IDevice::requestTypeData);
    m_idevice->requestDSPData(3, 200);
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked[0], (QVariantList { 3, 200 }));
    m_idevice->requestDSPVersion();
    DeviceInit::startDataStream();
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 193, 1, 123 })); // and nothing before it
}

void TstIDevice::updateFramesPass()
{
    connectLink();
    const QByteArray frame = wordsToBytes({ 122, 196, 2, 1, 7, 123 });
    m_idevice->firmwareUpdate(frame);
    QCOMPARE(m_peer->receive(kPatience), frame);
}

void TstIDevice::olderClockCommandPasses()
{
    connectLink();
    m_idevice->changeHWClock(QByteArray::fromHex("0102030405060708"));
    QCOMPARE(receiveWords(), (QVector<quint32> { 197, 0, 0x04030201, 0x08070605 }));
}

void TstIDevice::datagramsCrossIntoTheMainThread()
{
    connectLink();
    QSignalSpy spies[] = {
        QSignalSpy(m_idevice, &IDevice::datagramAggregation), QSignalSpy(m_idevice, &IDevice::datagramRMS_1_2),
        QSignalSpy(m_idevice, &IDevice::datagramTransient),   QSignalSpy(m_idevice, &IDevice::datagramWave),
        QSignalSpy(m_idevice, &IDevice::datagramFlicker),     QSignalSpy(m_idevice, &IDevice::datagramFirmwareInfo),
        QSignalSpy(m_idevice, &IDevice::datagramUpdate),
    };
    QThread *thread = nullptr;
    connect(m_idevice, &IDevice::datagramWave, this, [&thread] { thread = QThread::currentThread(); });
    HeadValues head;
    for (const DatagramKind &kind : kDatagramKinds) {
        head.type = kind.type;
        ++head.id;
        m_peer->send(makeDatagram(head, countingPayload(kind.words - Link::kTimeWords, 1000u * head.id)));
    }
    QTRY_COMPARE_WITH_TIMEOUT(spies[6].size(), 1, kPatience);
    QCOMPARE(thread, QThread::currentThread());
    quint32 id = 1;
    for (const DatagramKind &kind : kDatagramKinds) {
        ++id;
        QCOMPARE(spies[kind.type].size(), kind.emitted ? 1 : 0);
        if (!kind.emitted)
            continue;
        const QByteArray expected = timeBytes(0) + countingPayload(kind.words - Link::kTimeWords, 1000u * id);
        QCOMPARE(spies[kind.type][0][0].toByteArray(), expected.mid(kind.skippedBytes));
    }
}

void TstIDevice::transientsAreRelayedThoughTheLinkBringsNone()
{
    connectLink();
    QSignalSpy transient(m_idevice, &IDevice::datagramTransient);
    m_idevice->datagramTransientSlot(DatagramTransient, QByteArray("abc"));
    QCOMPARE(transient.size(), 1);
    QCOMPARE(transient[0][0].toByteArray(), QByteArray("abc"));
}

void TstIDevice::datagramAfterATurnBringsAnotherTurn()
{
    connectLink();
    const QSignalSpy waves(m_idevice, &IDevice::datagramWave);
    HeadValues head;
    head.type = DatagramWave;
    for (int n = 1; n <= 3; ++n) {
        ++head.id;
        m_peer->send(makeDatagram(head, countingPayload(Link::kWaveWords - Link::kTimeWords, 1)));
        QTRY_COMPARE_WITH_TIMEOUT(waves.size(), n, kPatience); // what waited is taken before the next one is sent
    }
}

void TstIDevice::clockSignalsAreRelayed()
{
    connectLink();
    QSignalSpy stamps(m_idevice, &IDevice::dspTimeStamp), bds(m_idevice, &IDevice::usingBDS);
    HeadValues head;
    head.type = DatagramRMS_1_2;
    head.bds = 9;
    head.seconds = 1500000001;
    m_peer->send(makePackage(head));
    QTRY_COMPARE_WITH_TIMEOUT(stamps.size(), 1, kPatience);
    QCOMPARE(stamps[0][0].toUInt(), 1500000001u);
    QCOMPARE(bds.size(), 1);
    QCOMPARE(bds[0][0].toUInt(), 9u);
}

void TstIDevice::versionIsTheInitialTextUntilTheProcessorAnswers()
{
    connectLink();
    QCOMPARE(m_idevice->dspVersion(), QStringLiteral("CPU:ADSP-21479;Silicon:0.2;Firmware:None;"));
    QSignalSpy answered(m_idevice, &IDevice::datagramFirmwareInfo);
    HeadValues head;
    head.type = DatagramFirmwareInfo;
    m_peer->send(makePackage(head, QByteArray("CPU:ADSP-21479;Silicon:0.3;Firmware:2.1;\0junk", 45)));
    QTRY_COMPARE_WITH_TIMEOUT(answered.size(), 1, kPatience);
    QCOMPARE(m_idevice->dspVersion(), QStringLiteral("CPU:ADSP-21479;Silicon:0.3;Firmware:2.1;"));
    QCOMPARE(answered[0][0].toByteArray().size(), 4096);
}

void TstIDevice::versionEndsAtTheFirstZeroByteOrTheArraysEnd()
{
    connectLink();
    m_idevice->datagramFirmwareInfoSlot(DatagramFirmwareInfo, QByteArray("caf\xe9"));
    QCOMPARE(m_idevice->dspVersion(), QString::fromLatin1("caf\xe9"));
    m_idevice->datagramFirmwareInfoSlot(DatagramFirmwareInfo, QByteArray("\0abc", 4));
    QCOMPARE(m_idevice->dspVersion(), QString());
    m_idevice->datagramFirmwareInfoSlot(DatagramFirmwareInfo, QByteArray());
    QCOMPARE(m_idevice->dspVersion(), QString());
}

void TstIDevice::stalledMainThreadLosesNothing()
{
    connectLink();
    QSignalSpy waves(m_idevice, &IDevice::datagramWave);
    constexpr int kDatagrams = 60; // 12 s of waves
    HeadValues head;
    head.type = DatagramWave;
    for (int i = 0; i < kDatagrams; ++i) { // this thread runs no event loop meanwhile
        ++head.id;
        m_peer->send(makeDatagram(head, countingPayload(16385, head.id)));
    }
    QTRY_COMPARE_WITH_TIMEOUT(waves.size(), kDatagrams, kPatience);
    for (int i = 0; i < kDatagrams; ++i)
        QCOMPARE(waves[i][0].toByteArray(), timeBytes(0) + countingPayload(16385, quint32(i + 2)));
}

void TstIDevice::stalledMainThreadGetsEverythingInOrder()
{
    connectLink();
    QVector<QPair<int, quint32>> seen, sent;
    const auto note = [&seen](int kind) {
        return [&seen, kind](const QByteArray &bytes) { seen.append({ kind, toWords(bytes).value(2) }); };
    };
    connect(m_idevice, &IDevice::datagramAggregation, this, note(DatagramAggregation));
    connect(m_idevice, &IDevice::datagramRMS_1_2, this, note(DatagramRMS_1_2));
    connect(m_idevice, &IDevice::datagramWave, this, note(DatagramWave));
    connect(m_idevice, &IDevice::datagramFlicker, this, note(DatagramFlicker));
    connect(m_idevice, &IDevice::usingBDS, this, [&seen](quint32 word) { seen.append({ -1, word }); });
    constexpr int kTicks = 50; // ten seconds of everything, every 200 ms; flicker each second
    HeadValues head;
    const auto send = [&](__datagramtype kind) {
        head.type = quint32(kind);
        ++head.id;
        head.bds = head.id;
        if (kind == DatagramRMS_1_2)
            sent.append({ -1, head.id });
        m_peer->send(makeDatagram(head, countingPayload(kDatagramKinds[kind].words - Link::kTimeWords, head.id)));
        sent.append({ kind, head.id });
    };
    for (int tick = 0; tick < kTicks; ++tick) { // this thread runs no event loop meanwhile
        send(DatagramAggregation);
        send(DatagramRMS_1_2);
        send(DatagramWave);
        if (tick % 5 == 0)
            send(DatagramFlicker);
    }
    QTRY_COMPARE_WITH_TIMEOUT(seen.size(), sent.size(), kPatience);
    QCOMPARE(seen, sent);
}

void TstIDevice::backlogLeavesTimersTheirTurn_data()
{
    QTest::addColumn<int>("more"); // that come while those that waited are taken
    QTest::newRow("nothing more comes") << 0;
    QTest::newRow("the stream goes on") << 40;
}

void TstIDevice::backlogLeavesTimersTheirTurn()
{
    QFETCH(int, more);
    connectLink();
    constexpr int kDatagrams = 40;
    int taken = 0, takenAtTimer = 0, longest = 0;
    HeadValues head;
    head.type = DatagramUpdate;
    const auto send = [&] {
        ++head.id;
        m_peer->send(makePackage(head));
    };
    connect(m_idevice, &IDevice::datagramUpdate, this, [&] {
        if (taken < more)
            send();
        QThread::msleep(10); // a slow page
        ++taken;
    });
    for (int i = 0; i < kDatagrams; ++i)
        send();
    QThread::msleep(300); // all of them wait now
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        longest = std::max(longest, taken - takenAtTimer);
        takenAtTimer = taken;
    });
    timer.start(1);
    QTRY_COMPARE_WITH_TIMEOUT(taken, kDatagrams + more, kPatience);
    QVERIFY2(takenAtTimer > kDatagrams / 2, qPrintable(QString::number(takenAtTimer)));
    QVERIFY2(longest <= 6, qPrintable(QString::number(longest))); // two take the time of a turn
}

void TstIDevice::processorThatComesBackIsSetUpAgain()
{
    connectLink();
    QSignalSpy reopened(m_idevice, &IDevice::reopened);
    m_peer->goAway();
    QVERIFY(m_peer->listen());
    QTRY_COMPARE_WITH_TIMEOUT(reopened.size(), 1, kPatience);
    QVERIFY(m_peer->accept());
    QCOMPARE(receiveWords().value(1), 198u);
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 194, 0, 123 }));
    QCOMPARE(receiveWords(), (QVector<quint32> { 122, 193, 1, 123 }));
}

void TstIDevice::withoutANodeTheProgramRunsWithoutData()
{
    m_peer->goAway();
    StdoutCapture out;
    m_idevice = new IDevice;
    DeviceInit::initAnalogDevice2();
    m_idevice->buzzerRing();
    QStringList lines;
    QTRY_VERIFY_WITH_TIMEOUT(!(lines += out.lines()).isEmpty(), kPatience);
    QCOMPARE(lines, QStringList { QStringLiteral("failed to open /dev/mcasp") });
    QCOMPARE(m_idevice->dspVersion(), QStringLiteral("CPU:ADSP-21479;Silicon:0.2;Firmware:None;"));
}

void TstIDevice::withoutAFacadeFramesGoNowhere()
{
    QVERIFY(!m_idevice);
    DeviceInit::initAnalogDevice2();
    DeviceInit::stopDataStream();
    QVERIFY(!m_peer->isConnectionWaiting());
}

QTEST_GUILESS_MAIN(TstIDevice)
#include "tst_idevice.moc"
