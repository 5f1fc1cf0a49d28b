#include "modbusownserver.h"

#include <QDir>
#include <QTest>

#include <cerrno>
#include <fcntl.h>
#include <sys/resource.h>
#include <thread>

// Masters that send what they should not, in any pieces, never read, or vanish.

namespace {

int openDescriptors()
{
    return int(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).size());
}

} // namespace

class TstModbusBadClients : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_output = std::make_unique<CaughtOutput>(); } // a line for each request would bury the results
    void cleanup() { m_output.reset(); }

    void quantitiesOutOfTheProtocolAreRefusedAtOnce_data();
    void quantitiesOutOfTheProtocolAreRefusedAtOnce();
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
    void occupiedPortEndsTheServerQuietly();
    void outputThatStandsStillDelaysNoAnswer();

private:
    std::unique_ptr<CaughtOutput> m_output;
};

void TstModbusBadClients::quantitiesOutOfTheProtocolAreRefusedAtOnce_data()
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
    QTest::newRow("lock: write 0 and read 1") << modbusPdu(23, { 65000, 1, 65000, 0 }) + char(0);
    QTest::newRow("read without quantity") << modbusPdu(4, { 100 });
    QTest::newRow("read with a byte too many") << readInput(100, 1) + char(0);
    QTest::newRow("read without address") << QByteArray(1, 4);
}

void TstModbusBadClients::quantitiesOutOfTheProtocolAreRefusedAtOnce()
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

void TstModbusBadClients::writesElsewhereAreRefused()
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

void TstModbusBadClients::function23BelowTheLockIsRefused()
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

void TstModbusBadClients::secondClientDisplacesTheFirstAtOnce()
{
    OwnServer own;
    ModbusClient first(own.port());
    QCOMPARE(first.ask(readInput(100, 1)), modelRead(100, 1));
    ModbusClient second(own.port());
    QCOMPARE(second.ask(readInput(100, 1)), modelRead(100, 1));
    QVERIFY(first.isClosedByServer());
    QCOMPARE(second.ask(readInput(101, 2)), modelRead(101, 2));
}

void TstModbusBadClients::halfARequestKeepsNobodyOut()
{
    OwnServer own;
    ModbusClient half(own.port());
    QVERIFY(half.send(modbusFrame(1, readInput(100, 1)).left(9)));
    ModbusClient other(own.port());
    QCOMPARE(other.ask(readInput(100, 1)), modelRead(100, 1));
    QVERIFY(half.isClosedByServer());
}

void TstModbusBadClients::requestInSinglePiecesIsAnswered()
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

void TstModbusBadClients::segmentsSplitAndJoinedAtEveryByte()
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

void TstModbusBadClients::everyFunctionAndLengthGetsOneAnswer()
{
    OwnServer own;
    ModbusClient client(own.port());
    for (int function = 0; function < 256; ++function) {
        QByteArray stream;
        int requests = 0;
        for (int announced = 2; announced <= 254; ++announced) {
            // Data that looks like the lock register where an address is read.
            QByteArray pdu(announced - 1, char(0x01));
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

void TstModbusBadClients::headThatIsNoModbusEndsTheConnection_data()
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

void TstModbusBadClients::headThatIsNoModbusEndsTheConnection()
{
    QFETCH(QByteArray, bytes);
    OwnServer own;
    ModbusClient client(own.port());
    QVERIFY(client.send(bytes));
    QVERIFY(client.isClosedByServer());
    ModbusClient next(own.port());
    QCOMPARE(next.ask(readInput(100, 1)), modelRead(100, 1));
}

void TstModbusBadClients::halfClosedClientStillGetsItsAnswers()
{
    OwnServer own;
    ModbusClient client(own.port());
    QVERIFY(client.send(modbusFrame(1, readInput(100, 1)) + modbusFrame(2, readInput(101, 1))));
    ::shutdown(client.socket(), SHUT_WR);
    QCOMPARE(client.answer(), modelRead(100, 1));
    QCOMPARE(client.answer(), modelRead(101, 1));
    QVERIFY(client.isClosedByServer());
}

void TstModbusBadClients::clientThatNeverReadsHoldsUpNobody()
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

void TstModbusBadClients::resetInMidAnswerLeavesTheServerAlive()
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

void TstModbusBadClients::thousandsOfConnectionsLeaveNoDescriptor()
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
    QTRY_VERIFY_WITH_TIMEOUT(openDescriptors() <= before, 30'000);
}

void TstModbusBadClients::descriptorBeyondTheSetIsClosed()
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

void TstModbusBadClients::outputThatStandsStillDelaysNoAnswer()
{
    int ends[2];
    QCOMPARE(::pipe(ends), 0);
    std::fflush(stdout);
    const int kept = ::dup(STDOUT_FILENO);
    ::dup2(ends[1], STDOUT_FILENO); // a pipe that nobody reads takes some two thousand of the server's lines
    int answered = 0;
    {
        OwnServer own;
        ModbusClient client(own.port());
        for (int i = 0; i < 10000 && client.ask(readInput(100, 1)) == modelRead(100, 1); ++i)
            ++answered;
        if (answered < 10000)
            ::close(ends[0]); // lets a server that waits go on, so that it can end
        else
            answered += client.ask(readInput(100, 1)) == modelRead(100, 1);
    }
    ::dup2(kept, STDOUT_FILENO);
    for (const int end : { kept, ends[0], ends[1] })
        ::close(end);
    QCOMPARE(answered, 10001);
}

void TstModbusBadClients::occupiedPortEndsTheServerQuietly()
{
    OwnServer own;
    ModbusServer second(own.port(), std::make_shared<ModbusRegisters>());
    QCOMPARE(second.port(), quint16(0));
    ModbusClient client(own.port());
    QCOMPARE(client.ask(readInput(100, 1)), modelRead(100, 1));
}

QTEST_GUILESS_MAIN(TstModbusBadClients)
#include "tst_modbusbadclients.moc"
