#include "../device/aggregationcase.h"
#include "../services/modbusclient.h"
#include "settings/config_data.h"
#include "model/transparam.h"
#include "device/datatypes.h"
#include "services/modbuspublisher.h"
#include "services/modbusslave.h"
#include "task/unitask.h"
#include "unit/measureddata.h"

#include <QTest>

#include <memory>

using namespace MeasuredData;

/// What a master reads of a running measurement. Scales are 1, so that values read as sent.
class TstModbusPublisher : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void nothingIsPublishedBeforeTheStart();
    void aggregationFillsValuesPowersSpectraAndUnbalance();
    void negativeFrequencyIsPublishedByItsMagnitude();
    void flickerIsPublishedByTwoFunctionsOnly_data();
    void flickerIsPublishedByTwoFunctionsOnly();
    void waveIsSeenAtTheNextSnapshot();
    void transientFillsItsBlock();
    void dipStandsInTheFirstRow();
    void theEndOfAMeasurementClears();
    void settingsStandBehindTheLimitSet();

private:
    float real(int address)
    {
        const QList<quint16> r = m_master->read(address, 2);
        if (r.size() != 2)
            return kNaN;
        const quint32 bits = quint32(r[0]) | quint32(r[1]) << 16;
        float value;
        memcpy(&value, &bits, sizeof value);
        return value;
    }
    void start(AbstractTask::UniFunction function = AbstractTask::UniBasic)
    {
        m_task->initUniFunction(function);
        m_task->startTask();
    }

    std::unique_ptr<UniTask> m_task;
    std::unique_ptr<ModbusClient> m_master;
};

/// A calibration with which a converter unit is a volt, an ampere and a watt.
static void setUnitScales()
{
    const Clamp *clamp = m_settingConfig_g.curClamp();
    for (int row = 0; row < 4; ++row) {
        for (int c = 0; c < kChannels; ++c) {
            m_calib_data_g.data().volt[row][c] = 1;
            m_calib_data_g.data().current[row][c] = float(clamp->ratio()) / 1000;
        }
    }
    m_settingConfig_g.followSettings();
}

void TstModbusPublisher::initTestCase()
{
    renewLive();
}

void TstModbusPublisher::init()
{
    m_settingConfig_g.setJoinMode(1);
    ModbusPublisher::clear();
    setUnitScales();
    m_task = std::make_unique<UniTask>(liveData());
    m_calib_data_g.initCalibData(); // aggregations keep the scales that the task began with
    m_settingConfig_g.followSettings();
    ModbusPublisher::follow(m_task.get());
    m_master = std::make_unique<ModbusClient>(ModbusSlave::port());
    QVERIFY(m_master->isConnected());
}

void TstModbusPublisher::cleanup()
{
    m_task.reset();
    m_master.reset();
    liveData().transients().clear();
}

void TstModbusPublisher::nothingIsPublishedBeforeTheStart()
{
    m_task->initUniFunction(AbstractTask::UniBasic);
    m_task->datagramAggregation(balanced(230, 10, 60).bytes());
    QCOMPARE(real(0), 0.0f);
    QCOMPARE(real(2), 0.0f);
}

void TstModbusPublisher::aggregationFillsValuesPowersSpectraAndUnbalance()
{
    start();
    m_task->datagramAggregation(balanced(230, 10, 60).bytes());
    QCOMPARE(real(0), 50.0f);
    for (int phase = 0; phase < 3; ++phase) {
        QCOMPARE(real(2 + 2 * phase), 230.0f);
        QCOMPARE(real(26 + 2 * phase), 10.0f);
        NEAR(real(100 + 2 * phase), 1150); // W: 230 x 10 x cos 60
        NEAR(real(108 + 2 * phase), 2300); // VA
        NEAR(real(116 + 2 * phase), 1991.858); // var: 2300 x sin 60
        NEAR(real(124 + 2 * phase), 0.5);
        QCOMPARE(real(1000 + 104 * phase), 230.0f); // r.m.s. before the harmonics
        QCOMPARE(real(1004 + 104 * phase), 230.0f); // the fundamental is the first of them
        QCOMPARE(real(2004 + 104 * phase), 10.0f);
        QCOMPARE(real(3508 + 2 * phase), 230.0f);
    }
    NEAR(real(106), 3450); // totals
    NEAR(real(114), 6900);
    NEAR(real(122), 5975.575);
    NEAR(real(3524 + 2), -120); // angle of L2
    NEAR(real(3540), 60);
}

void TstModbusPublisher::negativeFrequencyIsPublishedByItsMagnitude()
{
    start();
    Payload payload = balanced(230, 10, 0);
    payload.set(2, -49.5f);
    m_task->datagramAggregation(payload.bytes());
    QCOMPARE(real(0), 49.5f);
}

void TstModbusPublisher::flickerIsPublishedByTwoFunctionsOnly_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<bool>("published");
    QTest::newRow("basic") << 1 << true;
    QTest::newRow("wave") << 2 << false;
    QTest::newRow("logger") << 3 << false;
    QTest::newRow("monitor") << 4 << true;
    QTest::newRow("power inverter") << 5 << false;
}

void TstModbusPublisher::flickerIsPublishedByTwoFunctionsOnly()
{
    QFETCH(int, function);
    QFETCH(bool, published);
    start(AbstractTask::UniFunction(function));
    Payload payload(Link::kFlickerWords);
    for (int phase = 0; phase < 3; ++phase)
        payload.set(2 + 500 * phase, 1.5f + float(phase));
    payload.setInt(1502, 1000);
    m_task->datagramFlicker(payload.bytes());
    for (int phase = 0; phase < 3; ++phase)
        QCOMPARE(real(3000 + 2 * phase), published ? 1.5f + float(phase) : 0.0f);
    QCOMPARE(real(3006), 0.0f);
}

void TstModbusPublisher::waveIsSeenAtTheNextSnapshot()
{
    start();
    QByteArray bytes = Payload(Link::kWaveWords).bytes();
    for (int i = 0; i < kWaveSamples; ++i) {
        const qint16 sample = qint16(i);
        memcpy(bytes.data() + 8 + 2 * i, &sample, 2); // L1; the samples of I1 follow
    }
    QVERIFY(m_master->writeLock(1));
    QCOMPARE(m_master->read(12000, 1).size(), 1);
    m_task->datagramWave(bytes);
    QCOMPARE(m_master->read(12016 + 7, 1), QList<quint16> { 0 }); // still the snapshot before
    NEAR(real(12000), 79.25 * 10 / 32768); // volts per step; this read takes a snapshot
    QCOMPARE(m_master->read(12016, 3), (QList<quint16> { 0, 10, 20 })); // every tenth
    QCOMPARE(m_master->read(12016 + 408, 1), QList<quint16> { 4080 });
}

void TstModbusPublisher::transientFillsItsBlock()
{
    start();
    QByteArray bytes = Payload(Link::kWaveWords).bytes();
    const qint64 time = 1'700'000'000'000;
    memcpy(bytes.data(), &time, 8);
    for (int i = 0; i < kWaveSamples; ++i) {
        const qint16 sample = qint16(i);
        memcpy(bytes.data() + 8 + 2 * i, &sample, 2);
    }
    const quint32 word = 1u << 24 | 2349; // window from sample 2048, half of the 200 ms
    memcpy(bytes.data() + 4 * 16386, &word, 4);
    m_task->datagramAggregation(balanced(230, 10, 0).bytes());
    m_task->datagramWave(bytes);
    QVERIFY(m_master->writeLock(1));
    // 1700000000100 is 0x0000018BCFE56864.
    QCOMPARE(m_master->read(20000, 6), (QList<quint16> { 0x6864, 0xCFE5, 0x018B, 0, 1, 0 }));
    NEAR(real(20006), 79.25 * 10 / 32768);
    QCOMPARE(real(20014), 230.0f);
    QCOMPARE(m_master->read(20022, 2), (QList<quint16> { 2048, 2049 }));
    QCOMPARE(m_master->read(20022 + 408, 2), (QList<quint16> { 2456, 0 })); // the 409th, then L2
}

void TstModbusPublisher::dipStandsInTheFirstRow()
{
    start();
    const qint64 time = 1'700'000'000'000;
    Payload payload(Link::kRmsWords);
    for (int c = 0; c < 3; ++c) {
        payload.setInt(2 + 181 * c, 2);
        payload.setInt(3 + 181 * c, quint32(time / 1000));
        payload.set(5 + 181 * c, c == 1 ? 1.0f : 2.9f); // 79.25 V on L2, 229.8 V
    }
    m_task->datagramRMS_1_2(payload.bytes());
    // Valid, running, a dip, L2; 1700000000 is 0x6553F100, 79.25 is 0x429E8000.
    QCOMPARE(m_master->read(5000, 10), (QList<quint16> { 1, 0, 27, 1, 0xF100, 0x6553, 0x8000, 0x429E, 0, 0 }));
    QCOMPARE(m_master->read(5010, 1), QList<quint16> { 0 });
}

void TstModbusPublisher::theEndOfAMeasurementClears()
{
    start();
    m_task->datagramAggregation(balanced(230, 10, 60).bytes());
    QCOMPARE(real(2), 230.0f);
    m_task.reset();
    ModbusPublisher::clear();
    QCOMPARE(real(2), 0.0f);
    QCOMPARE(real(100), 0.0f);
    QCOMPARE(real(1104), 230.0f); // only the first 50 registers of a block go
}

void TstModbusPublisher::settingsStandBehindTheLimitSet()
{
    m_settingConfig_g.setJoinMode(4);
    ModbusPublisher::publishSettings();
    QCOMPARE(m_master->read(11300, 4), (QList<quint16> { 2, 2, 6, 4 }));
}

QTEST_GUILESS_MAIN(TstModbusPublisher)
#include "tst_modbuspublisher.moc"
