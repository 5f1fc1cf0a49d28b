#pragma once

#include "detect/modbusheader.h"
#include "services/modbusregisters.h"

#include <memory>

class ModbusServer;

/// The Modbus slave of the instrument: register store and server. The one object is mbSlave; it serves from before main
/// for the life of the process. Any thread may hand it blocks; a publish is one copy under a mutex (docs/modbus.md).
class ModbusSlave
{
public:
    ModbusSlave();
    ~ModbusSlave();
    ModbusSlave(const ModbusSlave &) = delete;
    ModbusSlave &operator=(const ModbusSlave &) = delete;

    void addModbusMap(const __modbus_data_header &header);
    /// Publishes `length` registers from address `start`, as far as the block that holds it reaches.
    void setModbusData(quint32 start, quint32 length, const void *data);
    /// The registers stand behind the head.
    void setModbusData(const __modbus_data_header *header);
    /// Delivers a big block: a master sees it when it next reads at the block's start with the lock at 1.
    void setModbusBigData(quint32 start, quint32 length, const void *data);
    void setModbusBigData(const __modbus_data_header *header);
    /// Zeros the first 100 bytes of each small block and all of the big ones, and publishes them.
    void clearAllModbusData();

    /// The port served, once the server listens; 0 when it could not.
    static quint16 port();

private:
    void mb_mapping_init();

    std::shared_ptr<ModbusRegisters> m_registers;
    std::unique_ptr<ModbusServer> m_server;
};

extern ModbusSlave mbSlave;

/// Publishes the limit set in use and the settings; at start-up and whenever Setup is left. Main thread.
void update_modbus_swinfo();
