// A Modbus master that gives no rest, while the stream runs many times faster than any supply.
#include "instrument.h"
#include "unit/services/modbusclient.h"
#include "testpaths.h"

#include <QDir>
#include <QFile>
#include <QMutex>
#include <QProcess>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstring>
#include <thread>

using namespace SystemTest;

namespace {

constexpr int kPatienceMs = 300000; // for a condition that a quiet machine meets in seconds
constexpr int kAtOnce = 8; // requests on their way at a time
constexpr int kMostRegisters = 125; // of one read
constexpr double kFast = 40; // times real time
constexpr double kSlow = 1;

struct Block
{
    int start, registers;
};
constexpr Block kBlocks[]
    = { { 0, 50 },     { 100, 172 },  { 1000, 612 },  { 2000, 612 },   { 3000, 24 },   { 3500, 48 },
        { 5000, 100 }, { 11000, 10 }, { 11100, 232 }, { 12000, 3288 }, { 20000, 1658 } };

float floatAt(const QByteArray &pdu, int reg)
{
    const auto word = [&pdu](int at) { return quint32(quint8(pdu[2 + 2 * at])) << 8 | quint8(pdu[3 + 2 * at]); };
    const quint32 bits = word(reg) | word(reg + 1) << 16;
    float value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

/// Reads all there is, with the lock, eight requests at a time and as fast as it is answered, from a thread of its own.
class GreedyMaster
{
public:
    explicit GreedyMaster(quint16 port) : m_client(port), m_thread([this] { run(); }) { }
    ~GreedyMaster()
    {
        m_ends = true;
        m_thread.join();
    }
    bool isConnected() const { return m_client.isConnected(); }
    int rounds() const { return m_rounds; }
    float voltage() const { return m_voltage; } // of L1 as last read, V
    float frequency() const { return m_frequency; } // Hz
    QString fault() const
    {
        QMutexLocker lock(&m_mutex);
        return m_fault;
    }

private:
    struct Request
    {
        QByteArray pdu;
        int registers; // read; 0: the answer repeats the request
        int start;
    };

    void run()
    {
        const QVector<Request> requests = round();
        while (!m_ends && fault().isEmpty()) {
            for (int i = 0; i < requests.size() && fault().isEmpty(); i += kAtOnce)
                ask(requests.mid(i, kAtOnce));
            ++m_rounds;
        }
    }
    static QVector<Request> round()
    {
        QVector<Request> list;
        for (const Block &block : kBlocks) {
            list.append({ modbusPdu(6, { 65000, 1 }), 0, 65000 });
            for (int at = 0; at < block.registers; at += kMostRegisters) {
                const int count = qMin(kMostRegisters, block.registers - at);
                list.append({ readInput(block.start + at, count), count, block.start + at });
            }
            list.append({ modbusPdu(6, { 65000, 0 }), 0, 65000 });
        }
        return list;
    }
    void ask(const QVector<Request> &requests)
    {
        QByteArray bytes;
        for (const Request &request : requests)
            bytes += modbusFrame(++m_sent, request.pdu);
        if (!m_client.send(bytes))
            return setFault(QStringLiteral("the connection is gone"));
        for (const Request &request : requests) {
            quint16 transaction = 0;
            const QByteArray answer = m_client.answer(&transaction);
            const bool good = request.registers == 0 ? answer == request.pdu
                                                     : answer.size() == 2 + 2 * request.registers && answer[0] == 4;
            if (!good || transaction != ++m_answered)
                return setFault(QStringLiteral("answer %1 of address %2 has %3 bytes")
                                    .arg(transaction)
                                    .arg(request.start)
                                    .arg(answer.size()));
            if (request.start == 0) {
                m_frequency = floatAt(answer, 0);
                m_voltage = floatAt(answer, 2);
            }
        }
    }
    void setFault(const QString &text)
    {
        QMutexLocker lock(&m_mutex);
        m_fault = text;
    }

    ModbusClient m_client;
    quint16 m_sent = 0;
    quint16 m_answered = 0;
    std::atomic<bool> m_ends { false };
    std::atomic<int> m_rounds { 0 };
    std::atomic<float> m_voltage { 0 };
    std::atomic<float> m_frequency { 0 };
    mutable QMutex m_mutex;
    QString m_fault;
    std::thread m_thread; // last: it uses all of them
};

} // namespace

/// Whole processes under a master that wants everything at once.
class TstHostileMaster : public QObject
{
    Q_OBJECT
private slots:
    void masterAtFullSpeedLeavesKeysValuesAndMemoryAlone();
    void mastersThatComeAndGoLeaveNothingBehind();

private:
    static QString tell(const DeskInstrument &desk, const QString &command);
    static double simulatedSeconds(const DeskInstrument &desk);
    static int residentKilobytes(DeskInstrument &desk);
    static int descriptors(DeskInstrument &desk);
    static bool isNear(float value, double expected) { return std::fabs(double(value) - expected) <= 0.001 * expected; }
};

QString TstHostileMaster::tell(const DeskInstrument &desk, const QString &command)
{
    QProcess process;
    process.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-processor"),
                  { QStringLiteral("--root"), desk.root(), QStringLiteral("--tell"), command });
    if (!process.waitForFinished(kPatienceMs) || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput());
}

double TstHostileMaster::simulatedSeconds(const DeskInstrument &desk)
{
    return tell(desk, QStringLiteral("status"))
        .section(QStringLiteral(" t="), 1)
        .section(QLatin1Char(' '), 0, 0)
        .toDouble();
}

int TstHostileMaster::residentKilobytes(DeskInstrument &desk)
{
    QFile file(QStringLiteral("/proc/%1/status").arg(desk.instrument().processId()));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QString text = QString::fromLatin1(file.readAll());
    return text.section(QStringLiteral("VmRSS:"), 1).simplified().section(QLatin1Char(' '), 0, 0).toInt();
}

int TstHostileMaster::descriptors(DeskInstrument &desk)
{
    return QDir(QStringLiteral("/proc/%1/fd").arg(desk.instrument().processId()))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

void TstHostileMaster::masterAtFullSpeedLeavesKeysValuesAndMemoryAlone()
{
    // A round carries kRoundSeconds of the stream, or more where it is late to end, some 400 kB each second: where the
    // machine is slow all of it may wait in the instrument, but never two rounds.
    constexpr int kRounds = 6;
    constexpr int kWarmRounds = 2; // trends and queues have grown by then
    constexpr double kRoundSeconds = 40;
    constexpr double kWaitingKilobytes = 410; // of a second
    constexpr double kTrendKilobytes = 4 * 1024; // the trends go on to grow

    Instrument desk;
    VERIFY_DESK(desk.start(), desk);
    VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk); // Volts/Amps/Hertz; the measurement begins in a while
    GreedyMaster master(desk.modbusPort());
    QVERIFY(master.isConnected());
    QTRY_VERIFY_WITH_TIMEOUT(isNear(master.voltage(), 230), kPatienceMs);
    int before = 0;
    double longest = 0, all = 0; // s of the stream
    for (int round = 0; round < kRounds; ++round) {
        const int readBefore = master.rounds();
        const double from = simulatedSeconds(desk);
        QVERIFY(!tell(desk, QStringLiteral("speed %1").arg(kFast)).isNull());
        // Trend and back, menu and back, while the master reads.
        do {
            VERIFY_DESK(desk.press({ QStringLiteral("F4"), QStringLiteral("F4"), QStringLiteral("Menu"),
                                     QStringLiteral("Enter") }),
                        desk);
        } while (simulatedSeconds(desk) < from + kRoundSeconds);
        QVERIFY(!tell(desk, QStringLiteral("speed %1").arg(kSlow)).isNull());
        const double carried = simulatedSeconds(desk) - from;
        longest = std::max(longest, carried);
        all += carried;
        const double trends = kTrendKilobytes * std::max(1.0, all / (kRounds * kRoundSeconds));
        const double volts = 200 + 7 * round;
        QVERIFY(!tell(desk, QStringLiteral("set u1 %1").arg(volts)).isNull());
        // When the new value is here, nothing of the round waits any more.
        QTRY_VERIFY2_WITH_TIMEOUT(isNear(master.voltage(), volts),
                                  qPrintable(QString::number(double(master.voltage()))), kPatienceMs);
        QVERIFY(isNear(master.frequency(), 50));
        QTRY_VERIFY_WITH_TIMEOUT(master.rounds() > readBefore, kPatienceMs);
        QCOMPARE(master.fault(), QString());
        const int now = residentKilobytes(desk);
        QVERIFY(now > 0);
        if (round < kWarmRounds)
            before = qMax(before, now);
        else
            QVERIFY2(now < before + longest * kWaitingKilobytes + trends,
                     qPrintable(QStringLiteral("%1 kB, %2 before").arg(now).arg(before)));
    }
    QVERIFY(desk.isInstrumentRunning());
    QVERIFY(!desk.screen().isNull());
}

void TstHostileMaster::mastersThatComeAndGoLeaveNothingBehind()
{
    Instrument desk;
    VERIFY_DESK(desk.start({ QStringLiteral("--speed"), QStringLiteral("5") }), desk);
    VERIFY_DESK(desk.press({ QStringLiteral("Enter") }), desk);
    {
        ModbusClient first(desk.modbusPort());
        QCOMPARE(first.read(11303, 1), QList<quint16> { 1 });
    }
    const int open = descriptors(desk);
    QVERIFY(open > 0);
    const QByteArray request = modbusFrame(1, readInput(0, 50));
    for (int i = 0; i < 400; ++i) {
        ModbusClient client(desk.modbusPort());
        QVERIFY(client.isConnected());
        switch (i % 4) {
        case 0: // leaves in the middle of a request
            client.send(request.left(i % request.size()));
            break;
        case 1: // does not wait for its answers
            for (int n = 0; n < kAtOnce; ++n)
                client.send(request);
            client.reset();
            break;
        case 2: // talks nonsense
            client.send(QByteArray(1 + i % 300, char(i)));
            break;
        default: // leaves the lock at 1: the next master finds it at 0
            QVERIFY(client.writeLock(1));
            QCOMPARE(client.read(12000, 1).size(), 1);
        }
    }
    ModbusClient last(desk.modbusPort());
    QVERIFY(last.isConnected());
    QCOMPARE(last.ask(readInput(12000, 1)), exceptionPdu(4, 2));
    const auto voltage = [&last] {
        const QByteArray pdu = last.ask(readInput(2, 2));
        return pdu.size() == 6 ? floatAt(pdu, 0) : 0.0f;
    };
    QTRY_VERIFY_WITH_TIMEOUT(isNear(voltage(), 230), kPatienceMs);
    QTRY_VERIFY2_WITH_TIMEOUT(descriptors(desk) <= open + 1, qPrintable(QString::number(descriptors(desk))),
                              kPatienceMs);
    VERIFY_DESK(desk.press({ QStringLiteral("Menu") }), desk);
    QVERIFY(desk.isInstrumentRunning());
}

QTEST_GUILESS_MAIN(TstHostileMaster)

#include "tst_hostilemaster.moc"
