#include "modbusclient.h"
#include "services/modbusblocks.h"
#include "services/modbusserver.h"
#include "services/modbusslave.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>
#include <QRegularExpression>
#include <QtTest>

#include <atomic>
#include <cstring>
#include <fcntl.h>
#include <sys/resource.h>
#include <thread>

namespace {

/// What a master saw before main: the slave is a static object of a library, built before the objects of this program.
struct EarlyMaster
{
    EarlyMaster()
    {
        ModbusClient client(ModbusSlave::port());
        registers = client.read(11000, 10);
    }
    QList<quint16> registers;
};
const EarlyMaster earlyMaster;

/// Standard output goes to a file for as long as this lives; then what is not a line of the server is printed after
/// all.
class CaughtOutput
{
public:
    CaughtOutput()
    {
        m_file.open();
        std::fflush(stdout);
        m_stdout = ::dup(1);
        ::dup2(m_file.handle(), 1);
    }
    ~CaughtOutput()
    {
        const QStringList others = all().filter(QRegularExpression(QStringLiteral("^(?!%1)").arg(kServerLine)));
        ::dup2(m_stdout, 1);
        ::close(m_stdout);
        for (const QString &line : others)
            std::puts(qPrintable(line));
    }
    QStringList lines() const { return all().filter(QRegularExpression(QStringLiteral("^") + kServerLine)); }

private:
    QStringList all() const
    {
        std::fflush(stdout);
        QFile file(m_file.fileName());
        file.open(QIODevice::ReadOnly);
        return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    const QString kServerLine = QStringLiteral("(---|###|Modbus Server)");
    QTemporaryFile m_file;
    int m_stdout = -1;
};

int openDescriptors()
{
    return int(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size());
}

/// A server of its own with two small blocks and the big ones.
struct OwnServer
{
    OwnServer() : registers(std::make_shared<ModbusRegisters>())
    {
        registers->mb_mapping_add_map(0, 50);
        registers->mb_mapping_add_map(100, 172);
        registers->mb_mapping_add_map(kScopeStart, kScopeRegisters);
        registers->mb_mapping_add_map(kTransientStart, kTransientRegisters);
        server = std::make_unique<ModbusServer>(0, registers);
        for (int i = 0; i < 172; ++i) {
            const quint16 value = quint16(0x1000 + i);
            registers->mb_mapping_setdata(quint32(100 + i), 1, &value);
        }
    }
    quint16 port() const { return server->port(); }
    std::shared_ptr<ModbusRegisters> registers;
    std::unique_ptr<ModbusServer> server;
};

/// What register 100 + i of an OwnServer answers.
QByteArray modelRead(int address, int count)
{
    QByteArray pdu = QByteArray(1, 4) + char(2 * count);
    for (int i = 0; i < count; ++i) {
        const int value = 0x1000 + address - 100 + i;
        pdu.append(char(value >> 8));
        pdu.append(char(value));
    }
    return pdu;
}

} // namespace

class TstModbusServer : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_output = std::make_unique<CaughtOutput>(); } // a line for each request would bury the results
    void cleanup() { m_output.reset(); }

    void servesBeforeMain();
    void publishedRegistersAreRead();
    void publishEndsWithItsBlock();
    void readBetweenBlocksIsRefused();
    void readsAtTheEdgesOfEveryBlock();
    void quantitiesOutOfTheProtocolAreRefusedAtOnce_data();
    void quantitiesOutOfTheProtocolAreRefusedAtOnce();
    void bigBlockNeedsTheLockAtItsStartOnly();
    void readsBehindTheStartSeeOneSnapshot();
    void transientBlockHasItsOwnBuffer();
    void lockIsReadAndWrittenByAllFourFunctions();
    void reconnectClearsTheLock();
    void writesElsewhereAreRefused();
    void function23BelowTheLockIsRefused();
    void secondClientDisplacesTheFirstAtOnce();
    void halfARequestKeepsNobodyOut();
    void requestInSinglePiecesIsAnswered();
    void segmentsSplitAndJoinedAtEveryByte();
    void everyFunctionAndLengthGetsOneAnswer();
    void headThatIsNoModbusEndsTheConnection_data();
    void headThatIsNoModbusEndsTheConnection();
    void halfClosedClientStillGetsItsAnswers();
    void clientThatNeverReadsHoldsUpNobody();
    void resetInMidAnswerLeavesTheServerAlive();
    void thousandsOfConnectionsLeaveNoDescriptor();
    void descriptorBeyondTheSetIsClosed();
    void publishersAndReadersMeetUnharmed();
    void occupiedPortEndsTheServerQuietly();
    void printsItsLinesLetterForLetter();
    void clearZeroesTheFirst100BytesAndTheBigBlocks();
    void informationBlockIsPublishedFromTheSettings();
    void secondBlockWithTheSameStartIsDropped();

private:
    std::unique_ptr<CaughtOutput> m_output;
};

void TstModbusServer::servesBeforeMain()
{
    QVERIFY(ModbusSlave::port() != 0);
    QCOMPARE(earlyMaster.registers, (QList<quint16> { 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 }));
}

void TstModbusServer::publishedRegistersAreRead()
{
    ModbusClient client(ModbusSlave::port());
    mb_data_vif.frequency = 50.0f; // 0x42480000
    mb_data_vif.voltage[0] = 230.0f; // 0x43660000
    mbSlave.setModbusData(&mb_data_vif.head);
    QCOMPARE(client.read(0, 4), (QList<quint16> { 0x0000, 0x4248, 0x0000, 0x4366 }));
    // The exchange that the map page shows.
    QVERIFY(client.send(QByteArray::fromHex("000100000006010400020002")));
    QCOMPARE(client.receive(13), QByteArray::fromHex("00010000000701040400004366"));
}

void TstModbusServer::publishEndsWithItsBlock()
{
    OwnServer own;
    ModbusClient client(own.port());
    const QVector<quint16> data(400, 0x7777);
    own.registers->mb_mapping_setdata(40, 400, data.constData());
    QCOMPARE(client.read(39, 11), (QList<quint16>() << 0) + QList<quint16>(QVector<quint16>(10, 0x7777).toList()));
    QCOMPARE(client.read(100, 1), QList<quint16> { 0x1000 });
    own.registers->mb_mapping_setdata(60, 1, data.constData()); // between the blocks
    own.registers->mb_mapping_setdata(0xFFFFFFFF, 0xFFFFFFFF, data.constData());
    QCOMPARE(client.read(100, 1), QList<quint16> { 0x1000 });
}

void TstModbusServer::readBetweenBlocksIsRefused()
{
    ModbusClient client(ModbusSlave::port());
    QCOMPARE(client.ask(readInput(50, 1)), exceptionPdu(4, 2));
    QCOMPARE(client.ask(readInput(65000, 1)), exceptionPdu(4, 2));
    QCOMPARE(client.ask(readInput(1612, 1)), exceptionPdu(4, 2)); // behind register 611 of a spectrum
    QCOMPARE(client.ask(readInput(1712, 1)), exceptionPdu(4, 2));
}

void TstModbusServer::readsAtTheEdgesOfEveryBlock()
{
    ModbusClient client(ModbusSlave::port());
    QVERIFY(client.writeLock(1));
    for (const __modbus_data_header *block : modbusBlocks()) {
        const int start = int(block->start);
        const int length = int(block->length);
        QCOMPARE(client.read(start, 1).size(), 1);
        QCOMPARE(client.read(start + length - 1, 1).size(), 1);
        QCOMPARE(client.read(start + length - qMin(length, 125), qMin(length, 125)).size(), qMin(length, 125));
        QCOMPARE(client.ask(readInput(start + length - 1, 2)), exceptionPdu(4, 2));
        QCOMPARE(client.ask(readInput(start + length, 1)), exceptionPdu(4, 2));
        if (start > 0)
            QCOMPARE(client.ask(readInput(start - 1, 2)), exceptionPdu(4, 2));
    }
    QCOMPARE(client.ask(readInput(65535, 125)), exceptionPdu(4, 2));
}

void TstModbusServer::quantitiesOutOfTheProtocolAreRefusedAtOnce_data()
{
    QTest::addColumn<QByteArray>("pdu");
    QTest::newRow("read 0") << readInput(100, 0);
    QTest::newRow("read 126") << readInput(100, 126);
    QTest::newRow("read 65535") << readInput(100, 65535);
    QTest::newRow("lock: read 0") << modbusPdu(3, { 65000, 0 });
    QTest::newRow("lock: read 126") << modbusPdu(3, { 65000, 126 });
    QTest::newRow("lock: write 0") << modbusPdu(16, { 65000, 0 }) + char(0);
    QTest::newRow("lock: write 124") << modbusPdu(16, { 65000, 124 }) + char(248u) + QByteArray(240, 1);
    QTest::newRow("lock: byte count of another quantity") << modbusPdu(16, { 65000, 1 }) + char(4) + QByteArray(4, 0);
    QTest::newRow("lock: fewer bytes than counted") << modbusPdu(16, { 65000, 1 }) + char(2) + char(0);
    QTest::newRow("lock: write and read 0") << modbusPdu(23, { 65000, 0, 65000, 1 }) + char(2) + QByteArray(2, 0);
    QTest::newRow("lock: write 122 and read 1")
        << modbusPdu(23, { 65000, 1, 65000, 122 }) + char(244u) + QByteArray(240, 0);
    QTest::newRow("read without quantity") << modbusPdu(4, { 100 });
    QTest::newRow("read with a byte too many") << readInput(100, 1) + char(0);
    QTest::newRow("read without address") << QByteArray(1, 4);
}

void TstModbusServer::quantitiesOutOfTheProtocolAreRefusedAtOnce()
{
    QFETCH(QByteArray, pdu);
    OwnServer own;
    ModbusClient client(own.port());
    // The library would sleep and then throw away what follows: the next request shows that it did neither.
    QVERIFY(client.send(modbusFrame(1, pdu) + modbusFrame(2, readInput(100, 1))));
    quint16 transaction = 0;
    QCOMPARE(client.answer(&transaction), exceptionPdu(quint8(pdu[0]), 3));
    QCOMPARE(transaction, quint16(1));
    QCOMPARE(client.answer(&transaction), modelRead(100, 1));
    QCOMPARE(transaction, quint16(2));
}

void TstModbusServer::bigBlockNeedsTheLockAtItsStartOnly()
{
    OwnServer own;
    const QVector<quint16> data(kScopeRegisters, 0x0102);
    ModbusClient client(own.port());
    own.registers->mb_set_bd_buffer(kScopeStart, kScopeRegisters, data.constData());
    QCOMPARE(client.ask(readInput(12000, 2)), exceptionPdu(4, 2));
    QCOMPARE(client.read(12001, 1), QList<quint16> { 0 }); // what the map last held: nothing yet
    QVERIFY(client.writeLock(2)); // only 1 opens
    QCOMPARE(client.ask(readInput(12000, 2)), exceptionPdu(4, 2));
    QVERIFY(client.writeLock(1));
    QCOMPARE(client.read(12000, 2), (QList<quint16> { 0x0102, 0x0102 }));
    QVERIFY(client.writeLock(0));
    QCOMPARE(client.ask(readInput(12000, 2)), exceptionPdu(4, 2));
    QCOMPARE(client.read(12001, 1), QList<quint16> { 0x0102 });
}

void TstModbusServer::readsBehindTheStartSeeOneSnapshot()
{
    OwnServer own;
    ModbusClient client(own.port());
    const QVector<quint16> first(kScopeRegisters, 1);
    const QVector<quint16> second(kScopeRegisters, 2);
    own.registers->mb_set_bd_buffer(kScopeStart, kScopeRegisters, first.constData());
    QVERIFY(client.writeLock(1));
    QCOMPARE(client.read(12000, 125).count(1), 125);
    own.registers->mb_set_bd_buffer(kScopeStart, kScopeRegisters, second.constData());
    for (int address = 12125; address + 125 <= 12000 + kScopeRegisters; address += 125)
        QCOMPARE(client.read(address, 125).count(1), 125);
    QCOMPARE(client.ask(readInput(12000, 126)), exceptionPdu(4, 3)); // a refused read takes no snapshot
    QCOMPARE(client.read(12125, 125).count(1), 125);
    QCOMPARE(client.read(12000, 1), QList<quint16> { 2 });
    QCOMPARE(client.read(12125, 125).count(2), 125);
    // Fewer registers delivered: the rest stays.
    const quint16 three = 3;
    own.registers->mb_set_bd_buffer(kScopeStart, 1, &three);
    QCOMPARE(client.read(12000, 2), (QList<quint16> { 3, 2 }));
}

void TstModbusServer::transientBlockHasItsOwnBuffer()
{
    OwnServer own;
    ModbusClient client(own.port());
    QVector<quint16> data(5000, 0x0A0B);
    own.registers->mb_set_bd_buffer(kTransientStart, 5000, data.constData()); // cut at the buffer's end
    own.registers->mb_set_bd_buffer(100, 172, data.constData()); // no big block
    QVERIFY(client.writeLock(1));
    QCOMPARE(client.read(20000, 1), QList<quint16> { 0x0A0B });
    QCOMPARE(client.read(20000 + kTransientRegisters - 1, 1), QList<quint16> { 0x0A0B });
    QCOMPARE(client.read(12000, 1), QList<quint16> { 0 });
    QCOMPARE(client.read(100, 1), QList<quint16> { 0x1000 });
}

void TstModbusServer::lockIsReadAndWrittenByAllFourFunctions()
{
    OwnServer own;
    ModbusClient client(own.port());
    const auto lock = [&] { return client.ask(modbusPdu(3, { 65000, 1 })); };
    const auto holds = [](int value) { return QByteArray(1, 3) + char(2) + char(value >> 8) + char(value); };
    QCOMPARE(lock(), holds(0));
    QCOMPARE(client.ask(modbusPdu(6, { 65000, 0x1234 })), modbusPdu(6, { 65000, 0x1234 }));
    QCOMPARE(lock(), holds(0x1234));
    QCOMPARE(client.ask(modbusPdu(16, { 65000, 1 }) + char(2) + char(0) + char(1)), modbusPdu(16, { 65000, 1 }));
    QCOMPARE(lock(), holds(1));
    // Function 23 writes first, then reads.
    QCOMPARE(client.ask(modbusPdu(23, { 65000, 1, 65000, 1 }) + char(2) + char(0x0A) + char(0x0B)),
             QByteArray(1, 23) + char(2) + char(0x0A) + char(0x0B));
    QCOMPARE(client.ask(modbusPdu(3, { 65000, 2 })), exceptionPdu(3, 2)); // one register, not two
    QCOMPARE(client.ask(modbusPdu(16, { 65000, 2 }) + char(4) + QByteArray(4, 0)), exceptionPdu(16, 2));
    QCOMPARE(lock(), holds(0x0A0B));
}

void TstModbusServer::reconnectClearsTheLock()
{
    OwnServer own;
    ModbusClient first(own.port());
    QVERIFY(first.writeLock(1));
    QCOMPARE(first.read(12000, 1).size(), 1);
    ModbusClient second(own.port());
    QCOMPARE(second.ask(readInput(12000, 1)), exceptionPdu(4, 2));
}

void TstModbusServer::writesElsewhereAreRefused()
{
    OwnServer own;
    ModbusClient client(own.port());
    for (const int address : { 0, 100, 12000, 64999, 65001, 65535 }) {
        QCOMPARE(client.ask(modbusPdu(3, { address, 1 })), exceptionPdu(3, 2));
        QCOMPARE(client.ask(modbusPdu(6, { address, 1 })), exceptionPdu(6, 2));
        QCOMPARE(client.ask(modbusPdu(16, { address, 1 }) + char(2) + QByteArray(2, 0)), exceptionPdu(16, 2));
        QCOMPARE(client.ask(modbusPdu(23, { address, 1, address, 1 }) + char(2) + QByteArray(2, 0)),
                 exceptionPdu(23, 2));
    }
    QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
}

void TstModbusServer::function23BelowTheLockIsRefused()
{
    OwnServer own;
    ModbusClient client(own.port());
    for (const int writeAddress : { 0, 1, 64000, 64999, 65001, 65535 }) {
        const QByteArray pdu = modbusPdu(23, { 65000, 1, writeAddress, 1 }) + char(2) + char(0x55) + char(0x55);
        QCOMPARE(client.ask(pdu), exceptionPdu(23, 2));
    }
    const QByteArray many = modbusPdu(23, { 65000, 1, 65000, 121 }) + char(242u) + QByteArray(242, 0x55);
    QCOMPARE(client.ask(many), exceptionPdu(23, 2));
    QCOMPARE(client.ask(modbusPdu(3, { 65000, 1 })), QByteArray(1, 3) + char(2) + char(0) + char(0));
}

void TstModbusServer::secondClientDisplacesTheFirstAtOnce()
{
    OwnServer own;
    ModbusClient first(own.port());
    QCOMPARE(first.ask(readInput(100, 1)), modelRead(100, 1));
    ModbusClient second(own.port());
    QCOMPARE(second.ask(readInput(100, 1)), modelRead(100, 1));
    QVERIFY(first.isClosedByServer());
    QCOMPARE(second.ask(readInput(101, 2)), modelRead(101, 2));
}

void TstModbusServer::halfARequestKeepsNobodyOut()
{
    OwnServer own;
    ModbusClient half(own.port());
    QVERIFY(half.send(modbusFrame(1, readInput(100, 1)).left(9)));
    ModbusClient other(own.port());
    QCOMPARE(other.ask(readInput(100, 1)), modelRead(100, 1));
    QVERIFY(half.isClosedByServer());
}

void TstModbusServer::requestInSinglePiecesIsAnswered()
{
    OwnServer own;
    ModbusClient client(own.port());
    const QByteArray frame = modbusFrame(7, readInput(150, 3));
    for (int i = 0; i < frame.size(); ++i) {
        QVERIFY(client.send(frame.mid(i, 1)));
        std::this_thread::yield();
    }
    QCOMPARE(client.answer(), modelRead(150, 3));
}

void TstModbusServer::segmentsSplitAndJoinedAtEveryByte()
{
    OwnServer own;
    ModbusClient client(own.port());
    QByteArray stream;
    QList<QByteArray> expected;
    const QList<QPair<QByteArray, QByteArray>> exchanges = {
        { readInput(100, 125), modelRead(100, 125) },
        { QByteArray(1, 43) + QByteArray(60, 0x0E), exceptionPdu(43, 1) },
        { readInput(271, 1), modelRead(271, 1) },
        { modbusPdu(16, { 65000, 1 }) + char(2) + char(0) + char(1), modbusPdu(16, { 65000, 1 }) },
        { readInput(50, 1), exceptionPdu(4, 2) },
        { readInput(120, 7), modelRead(120, 7) },
    };
    for (const auto &exchange : exchanges) {
        stream += modbusFrame(quint16(expected.size()), exchange.first);
        expected << exchange.second;
    }
    for (int cut = 0; cut <= stream.size(); ++cut) {
        QVERIFY(client.send(stream.left(cut)));
        if (cut % 3 == 0)
            std::this_thread::yield();
        QVERIFY(client.send(stream.mid(cut)));
        for (int i = 0; i < expected.size(); ++i) {
            quint16 transaction = 0xFFFF;
            QCOMPARE(client.answer(&transaction), expected.at(i));
            QCOMPARE(transaction, quint16(i));
        }
    }
    // All at once, many times over: more than one read of the server holds.
    QByteArray joined;
    for (int i = 0; i < 100; ++i)
        joined += stream;
    QVERIFY(client.send(joined));
    for (int i = 0; i < 100 * expected.size(); ++i)
        QCOMPARE(client.answer(), expected.at(i % expected.size()));
}

void TstModbusServer::everyFunctionAndLengthGetsOneAnswer()
{
    OwnServer own;
    ModbusClient client(own.port());
    for (int function = 0; function < 256; ++function) {
        QByteArray stream;
        int requests = 0;
        for (int told = 2; told <= 254; ++told) {
            // Data that looks like the lock register where an address is read.
            QByteArray pdu(told - 1, char(0x01));
            pdu[0] = char(function);
            if (pdu.size() >= 3) {
                pdu[1] = char(0xFD);
                pdu[2] = char(0xE8);
            }
            stream += modbusFrame(quint16(requests++), pdu);
        }
        QVERIFY(client.send(stream));
        for (int i = 0; i < requests; ++i) {
            quint16 transaction = 0;
            const QByteArray pdu = client.answer(&transaction);
            QVERIFY2(!pdu.isEmpty(), qPrintable(QStringLiteral("function %1, request %2").arg(function).arg(i)));
            QCOMPARE(transaction, quint16(i));
            QCOMPARE(quint8(pdu[0]) & 0x7F, function & 0x7F);
        }
    }
    QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
}

void TstModbusServer::headThatIsNoModbusEndsTheConnection_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("protocol 1") << QByteArray::fromHex("000100010006010400640001");
    QTest::newRow("length 0") << QByteArray::fromHex("000100000000010400640001");
    QTest::newRow("length 1") << QByteArray::fromHex("000100000001010400640001");
    QTest::newRow("length 255") << QByteArray::fromHex("0001000000ff010400640001");
    QTest::newRow("length 65535") << QByteArray::fromHex("00010000ffff010400640001");
    QTest::newRow("text") << QByteArray("GET / HTTP/1.1\r\n\r\n");
    QTest::newRow("behind a good request") << modbusFrame(1, readInput(100, 1)) + QByteArray(12, char(0xFF));
}

void TstModbusServer::headThatIsNoModbusEndsTheConnection()
{
    QFETCH(QByteArray, bytes);
    OwnServer own;
    ModbusClient client(own.port());
    QVERIFY(client.send(bytes));
    QVERIFY(client.isClosedByServer());
    ModbusClient next(own.port());
    QCOMPARE(next.ask(readInput(100, 1)), modelRead(100, 1));
}

void TstModbusServer::halfClosedClientStillGetsItsAnswers()
{
    OwnServer own;
    ModbusClient client(own.port());
    QVERIFY(client.send(modbusFrame(1, readInput(100, 1)) + modbusFrame(2, readInput(101, 1))));
    ::shutdown(client.socket(), SHUT_WR);
    QCOMPARE(client.answer(), modelRead(100, 1));
    QCOMPARE(client.answer(), modelRead(101, 1));
    QVERIFY(client.isClosedByServer());
}

void TstModbusServer::clientThatNeverReadsHoldsUpNobody()
{
    OwnServer own;
    ModbusClient deaf(own.port());
    ::fcntl(deaf.socket(), F_SETFL, O_NONBLOCK);
    const int small = 4096;
    ::setsockopt(deaf.socket(), SOL_SOCKET, SO_RCVBUF, &small, sizeof small);
    QByteArray flood;
    for (int i = 0; i < 1000; ++i)
        flood += modbusFrame(quint16(i), readInput(100, 125));
    // It asks until the server lets it go: answers are twenty times as long as requests and soon fill every buffer.
    QTRY_VERIFY_WITH_TIMEOUT(!deaf.send(flood) && errno != EAGAIN, 60'000);
    const quint16 value = 0x2222;
    own.registers->mb_mapping_setdata(0, 1, &value);
    ModbusClient other(own.port());
    QCOMPARE(other.read(0, 1), QList<quint16> { 0x2222 });
}

void TstModbusServer::resetInMidAnswerLeavesTheServerAlive()
{
    OwnServer own;
    QByteArray burst;
    for (int i = 0; i < 50; ++i)
        burst += modbusFrame(quint16(i), readInput(100, 125));
    for (int i = 0; i < 200; ++i) {
        ModbusClient client(own.port());
        QVERIFY(client.isConnected());
        client.send(burst);
        if (i % 2)
            client.receive(100);
        client.reset();
    }
    ModbusClient client(own.port());
    QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
}

void TstModbusServer::thousandsOfConnectionsLeaveNoDescriptor()
{
    OwnServer own;
    {
        ModbusClient client(own.port());
        QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
    }
    const int before = openDescriptors();
    for (int i = 0; i < 5000; ++i) {
        ModbusClient client(own.port());
        QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1)); // or the short queue of newcomers would be full
    }
    {
        ModbusClient client(own.port());
        QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
    }
    QTRY_VERIFY(openDescriptors() <= before);
}

void TstModbusServer::descriptorBeyondTheSetIsClosed()
{
    OwnServer own;
    QVERIFY(own.port() != 0);
    rlimit limit = {};
    QCOMPARE(::getrlimit(RLIMIT_NOFILE, &limit), 0);
    const rlimit raised = { qMax<rlim_t>(limit.rlim_cur, 4096), qMax<rlim_t>(limit.rlim_max, 4096) };
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &raised), 0);
    QList<int> taken;
    while (taken.isEmpty() || taken.constLast() < 1100)
        taken.append(::fcntl(0, F_DUPFD_CLOEXEC, 0));
    {
        ModbusClient client(own.port());
        QVERIFY(client.isClosedByServer());
    }
    for (const int descriptor : taken)
        ::close(descriptor);
    ModbusClient client(own.port());
    QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
}

void TstModbusServer::publishersAndReadersMeetUnharmed()
{
    OwnServer own;
    std::atomic<bool> stop { false };
    // Two writers without a pause, each block in one value: a read must never see two.
    const auto publish = [&](quint16 step) {
        QVector<quint16> data(kScopeRegisters);
        for (quint16 value = step; !stop; value = quint16(value + step)) {
            data.fill(value);
            own.registers->mb_mapping_setdata(100, 172, data.constData());
            own.registers->mb_set_bd_buffer(kScopeStart, kScopeRegisters, data.constData());
        }
    };
    std::thread one(publish, quint16(1));
    std::thread two(publish, quint16(7));
    bool whole = true;
    {
        ModbusClient client(own.port());
        whole = client.writeLock(1);
        for (int i = 0; i < 500 && whole; ++i) {
            const QList<quint16> small = client.read(100, 125);
            whole = small.size() == 125 && small.count(small.first()) == 125;
            const QList<quint16> start = client.read(12000, 125);
            const QList<quint16> end = client.read(12000 + kScopeRegisters - 125, 125);
            whole = whole && start.size() == 125 && end.size() == 125 && start.count(start.first()) == 125
                && end.count(start.first()) == 125;
        }
    }
    stop = true;
    one.join();
    two.join();
    QVERIFY(whole);
}

void TstModbusServer::occupiedPortEndsTheServerQuietly()
{
    OwnServer own;
    ModbusServer second(own.port(), std::make_shared<ModbusRegisters>());
    QCOMPARE(second.port(), quint16(0));
    ModbusClient client(own.port());
    QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
}

void TstModbusServer::printsItsLinesLetterForLetter()
{
    QStringList lines;
    {
        OwnServer own;
        {
            ModbusClient first(own.port());
            QCOMPARE(first.ask(readInput(100, 1)), modelRead(100, 1));
            ModbusClient second(own.port());
            QCOMPARE(second.ask(readInput(50, 1)), exceptionPdu(4, 2));
            QCOMPARE(second.ask(readInput(12000, 1)), exceptionPdu(4, 2));
            QVERIFY(second.writeLock(1));
            QCOMPARE(second.ask(modbusPdu(6, { 7, 1 })), exceptionPdu(6, 2));
            QCOMPARE(second.ask(modbusPdu(43, { 0x0E01 })), exceptionPdu(43, 1));
        }
        const auto hasEnd = [&] { return m_output->lines().contains(QStringLiteral("-----disconnect by master")); };
        QTRY_VERIFY(hasEnd());
        lines = m_output->lines();
    }
    const QString expected[] = {
        QStringLiteral("---connection: \\d+"),
        QStringLiteral("---connect new: \\d+"),
        QStringLiteral("### addr: \\d+ \\d{1,3} 100"),
        QStringLiteral("---connection: \\d+"),
        QStringLiteral("-----disconnect old: \\d+"),
        QStringLiteral("---connect new: \\d+"),
        QStringLiteral("### addr: \\d+ \\d{1,3} 50"),
        QStringLiteral("-----exception: 50"),
        QStringLiteral("### addr: \\d+ \\d{1,3} 12000"),
        QStringLiteral("-----exception: 12000 04"),
        QStringLiteral("### Lock: 0x0001; \\d+ \\d{1,3}"),
        QStringLiteral("-----exception: 7 06"),
        QStringLiteral("-----exception: 3585 2b"),
        QStringLiteral("-----disconnect by master"),
    };
    QCOMPARE(lines.size(), int(std::size(expected)));
    for (int i = 0; i < lines.size(); ++i)
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(expected[i])).match(lines.at(i)).hasMatch(),
                 qPrintable(lines.at(i)));
}

void TstModbusServer::clearZeroesTheFirst100BytesAndTheBigBlocks()
{
    ModbusClient client(ModbusSlave::port());
    QVERIFY(client.writeLock(1));
    for (__modbus_data_header *block : modbusBlocks()) {
        std::memset(block + 1, 0x55, 2 * block->length);
        if (ModbusRegisters::startsBigBlock(int(block->start)))
            mbSlave.setModbusBigData(block);
        else
            mbSlave.setModbusData(block);
    }
    QCOMPARE(client.read(100, 1), QList<quint16> { 0x5555 });
    QCOMPARE(client.read(20000, 1), QList<quint16> { 0x5555 });
    mbSlave.clearAllModbusData();
    for (const __modbus_data_header *block : modbusBlocks()) {
        const int start = int(block->start);
        const int length = int(block->length);
        const bool big = ModbusRegisters::startsBigBlock(start);
        const int zeros = big ? 125 : qMin(length, 50);
        QCOMPARE(client.read(start, zeros).count(0), zeros);
        if (big)
            QCOMPARE(client.read(start + length - 1, 1), QList<quint16> { 0 });
        else if (length > 50)
            QCOMPARE(client.read(start + 50, 1), QList<quint16> { 0x5555 });
    }
}

void TstModbusServer::informationBlockIsPublishedFromTheSettings()
{
    ModbusClient client(ModbusSlave::port());
    update_modbus_swinfo();
    // A fresh instrument: version 2.2.6, "3P WYE", 50 Hz (0x42480000), 230 V (0x43660000), EN50160, whose first word is
    // the share of time of the voltage band: 95.0 (0x42BE0000).
    QCOMPARE(client.read(11300, 8), (QList<quint16> { 2, 2, 6, 1, 0x0000, 0x4248, 0x0000, 0x4366 }));
    QCOMPARE(client.read(11100, 2), (QList<quint16> { 0x0000, 0x42BE }));
    // "TARN-41A": 5 A, 10 mV/A; ratios 1:1.
    QCOMPARE(client.read(11324, 8), (QList<quint16> { 5, 0, 10, 1, 1, 1, 1, 1 }));
}

void TstModbusServer::secondBlockWithTheSameStartIsDropped()
{
    OwnServer own;
    own.registers->mb_mapping_add_map(0, 10);
    own.registers->mb_mapping_add_map(70000, 1);
    own.registers->mb_mapping_add_map(65535, 2);
    own.registers->mb_mapping_add_map(300, 0);
    own.registers->mb_mapping_add_map(65535, 1);
    ModbusClient client(own.port());
    QCOMPARE(client.read(49, 1).size(), 1);
    QCOMPARE(client.read(65535, 1), QList<quint16> { 0 });
    QCOMPARE(client.ask(readInput(300, 1)), exceptionPdu(4, 2));
}

QTEST_GUILESS_MAIN(TstModbusServer)
#include "tst_modbusserver.moc"
