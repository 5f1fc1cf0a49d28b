#include "modbusownserver.h"
#include "settings/config_data.h"
#include "services/modbusblocks.h"
#include "services/modbusslave.h"

#include <QRegularExpression>
#include <QTest>

#include <atomic>
#include <cstring>
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
    void bigBlockNeedsTheLockAtItsStartOnly();
    void readsBehindTheStartSeeOneSnapshot();
    void transientBlockHasItsOwnBuffer();
    void lockIsReadAndWrittenByAllFourFunctions();
    void reconnectClearsTheLock();
    void publishersAndReadersMeetUnharmed();
    void printsItsLinesLetterForLetter();
    void clearZeroesTheFirst100BytesAndTheBigBlocks();
    void informationBlockIsPublishedFromTheSettings();
    void withoutAnyClampItsRangeIsZero();
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
    // The first read may come before the writers' first step.
    const QVector<quint16> uniform(kScopeRegisters, 0);
    own.registers->mb_mapping_setdata(100, 172, uniform.constData());
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
        QTRY_VERIFY_WITH_TIMEOUT(hasEnd(), 30'000);
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

void TstModbusServer::withoutAnyClampItsRangeIsZero()
{
    ClampIF *clamps = m_settingConfig_g.clamps();
    while (Clamp *clamp = clamps->first())
        clamps->removeClamp(clamp);
    QVERIFY(!m_settingConfig_g.curClamp());
    update_modbus_swinfo();
    ModbusClient client(ModbusSlave::port());
    QCOMPARE(client.read(11324, 2), (QList<quint16> { 0, 0 }));
    m_settingConfig_g.loadSettingConfig();
    QVERIFY(m_settingConfig_g.curClamp());
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
