#pragma once

#include <QtGlobal>

#include <modbus.h>

class ModbusRegisters;

/// Answers one whole request after the other through a libmodbus context. Everything that the library would answer with
/// a pause, or not check at all, is refused here first; no lock is held while an answer is sent. One thread.
class ModbusResponder
{
public:
    static constexpr int kLockAddress = 65000;

    /// Takes neither; the context's socket is the client's.
    ModbusResponder(modbus_t *context, ModbusRegisters &registers);
    ~ModbusResponder();
    ModbusResponder(const ModbusResponder &) = delete;
    ModbusResponder &operator=(const ModbusResponder &) = delete;

    /// False without memory for the lock register.
    bool isReady() const { return m_lock != nullptr; }
    /// Value of the big-data lock; 0 for a new connection.
    quint16 lock() const { return m_lock->tab_registers[0]; }
    void clearLock() { m_lock->tab_registers[0] = 0; }

    /// Answers a frame as ModbusFramer cuts it. False when the answer could not be sent whole: the client must go.
    bool answer(const quint8 *frame, int length);

private:
    bool answerRead(const quint8 *frame, int length);
    bool answerLock(const quint8 *frame, int length);
    bool refuse(const quint8 *frame, int exception);

    modbus_t *m_context;
    ModbusRegisters &m_registers;
    modbus_mapping_t *m_lock = nullptr; // mb_map_bigdata_lock: one holding register at kLockAddress
};
