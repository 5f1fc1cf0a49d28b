#include "services/modbusslave.h"

#include "platform/target.h"
#include "services/modbusblocks.h"
#include "services/modbusserver.h"

#include <cstring>

// Built before main. It needs nothing of the other static objects: the blocks are constants until someone writes them,
// and Target prepares itself at its first use.
ModbusSlave mbSlave;

namespace {

constexpr quint32 kClearedBytes = 100;

} // namespace

ModbusSlave::ModbusSlave() : m_registers(std::make_shared<ModbusRegisters>())
{
    for (const __modbus_data_header *block : modbusBlocks())
        addModbusMap(*block);
    mb_mapping_init();
}

ModbusSlave::~ModbusSlave() = default;

void ModbusSlave::mb_mapping_init()
{
    m_server = std::make_unique<ModbusServer>(Target::modbusPort(), m_registers);
}

quint16 ModbusSlave::port()
{
    return mbSlave.m_server->port();
}

void ModbusSlave::addModbusMap(const __modbus_data_header &header)
{
    m_registers->mb_mapping_add_map(header.start, header.length);
}

void ModbusSlave::setModbusData(quint32 start, quint32 length, const void *data)
{
    m_registers->mb_mapping_setdata(start, length, data);
}

void ModbusSlave::setModbusData(const __modbus_data_header *header)
{
    setModbusData(header->start, header->length, header + 1);
}

void ModbusSlave::setModbusBigData(quint32 start, quint32 length, const void *data)
{
    m_registers->mb_set_bd_buffer(start, length, data);
}

void ModbusSlave::setModbusBigData(const __modbus_data_header *header)
{
    setModbusBigData(header->start, header->length, header + 1);
}

void ModbusSlave::clearAllModbusData()
{
    for (__modbus_data_header *block : modbusBlocks()) {
        const bool big = ModbusRegisters::startsBigBlock(int(block->start));
        const quint32 bytes = block->length * quint32(sizeof(quint16));
        // Kept: of a small block only the first 100 bytes go.
        std::memset(block + 1, 0, big ? bytes : qMin(bytes, kClearedBytes));
        if (big)
            setModbusBigData(block);
        else
            setModbusData(block);
    }
}
