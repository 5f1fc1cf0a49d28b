#include "services/modbusresponder.h"

#include "platform/clock.h"
#include "platform/lineoutput.h"
#include "services/modbusframer.h"
#include "services/modbusregisters.h"

namespace {

constexpr int kFunctionAt = ModbusFramer::kHead;
constexpr int kAddressAt = kFunctionAt + 1;

int word(const quint8 *frame, int at)
{
    return frame[at] << 8 | frame[at + 1];
}

bool isLockFunction(int function)
{
    return function == MODBUS_FC_READ_HOLDING_REGISTERS || function == MODBUS_FC_WRITE_SINGLE_REGISTER
        || function == MODBUS_FC_WRITE_MULTIPLE_REGISTERS || function == MODBUS_FC_WRITE_AND_READ_REGISTERS;
}

/// Bytes of a request to the lock register, quantities within the protocol's limits. The library pauses for its
/// response time-out on a wrong quantity and believes a wrong byte count.
bool isWellFormed(const quint8 *frame, int length)
{
    const int behind = length - kAddressAt; // bytes behind the function code
    const int quantity = behind >= 4 ? word(frame, kAddressAt + 2) : 0;
    switch (frame[kFunctionAt]) {
    case MODBUS_FC_READ_HOLDING_REGISTERS:
    case MODBUS_FC_READ_INPUT_REGISTERS:
        return behind == 4 && quantity >= 1 && quantity <= MODBUS_MAX_READ_REGISTERS;
    case MODBUS_FC_WRITE_SINGLE_REGISTER:
        return behind == 4;
    case MODBUS_FC_WRITE_MULTIPLE_REGISTERS:
        return behind >= 5 && quantity >= 1 && quantity <= MODBUS_MAX_WRITE_REGISTERS
            && frame[kAddressAt + 4] == 2 * quantity && behind == 5 + 2 * quantity;
    case MODBUS_FC_WRITE_AND_READ_REGISTERS: {
        const int written = behind >= 9 ? word(frame, kAddressAt + 6) : 0;
        return behind >= 9 && quantity >= 1 && quantity <= MODBUS_MAX_WR_READ_REGISTERS && written >= 1
            && written <= MODBUS_MAX_WR_WRITE_REGISTERS && frame[kAddressAt + 8] == 2 * written
            && behind == 9 + 2 * written;
    }
    default:
        return false;
    }
}

} // namespace

ModbusResponder::ModbusResponder(modbus_t *context, ModbusRegisters &registers)
    : m_context(context), m_registers(registers),
      m_lock(modbus_mapping_new_start_address(0, 0, 0, 0, kLockAddress, 1, 0, 0))
{ }

ModbusResponder::~ModbusResponder()
{
    if (m_lock)
        modbus_mapping_free(m_lock);
}

bool ModbusResponder::refuse(const quint8 *frame, int exception)
{
    return modbus_reply_exception(m_context, frame, unsigned(exception)) > 0;
}

bool ModbusResponder::answer(const quint8 *frame, int length)
{
    const int function = frame[kFunctionAt];
    if (function == MODBUS_FC_READ_INPUT_REGISTERS)
        return answerRead(frame, length);
    if (isLockFunction(function))
        return answerLock(frame, length);
    LineOutput::print("-----exception: %d %02x\n", length >= kAddressAt + 2 ? word(frame, kAddressAt) : 0, function);
    return refuse(frame, MODBUS_EXCEPTION_ILLEGAL_FUNCTION);
}

bool ModbusResponder::answerRead(const quint8 *frame, int length)
{
    if (length < kAddressAt + 2)
        return refuse(frame, MODBUS_EXCEPTION_ILLEGAL_DATA_VALUE);
    const int address = word(frame, kAddressAt);
    const timeval now = Clock::timeOfDay();
    LineOutput::print("### addr: %d %d %d\n", int(now.tv_sec), int(now.tv_usec / 1000), address);

    const bool locked = m_lock->tab_registers[0] == 1;
    const int count = isWellFormed(frame, length) ? word(frame, kAddressAt + 2) : 0;
    quint16 values[kModbusMostRead];
    int available = 0;
    const auto found = m_registers.read(address, count, locked && count > 0, values, &available);
    if (found == ModbusRegisters::NoBlock) {
        LineOutput::print("-----exception: %d\n", address);
        return refuse(frame, MODBUS_EXCEPTION_ILLEGAL_DATA_ADDRESS);
    }
    if (ModbusRegisters::startsBigBlock(address) && !locked) {
        LineOutput::print("-----exception: %d %02x\n", address, frame[kFunctionAt]);
        return refuse(frame, MODBUS_EXCEPTION_ILLEGAL_DATA_ADDRESS);
    }
    if (count == 0)
        return refuse(frame, MODBUS_EXCEPTION_ILLEGAL_DATA_VALUE);

    // The copy stands in for the block, so that no writer waits while the client is written to. A read past the end of
    // the block is refused by the library, since only the registers inside are offered.
    modbus_mapping_t copy = {};
    copy.start_input_registers = address;
    copy.nb_input_registers = available;
    copy.tab_input_registers = values;
    return modbus_reply(m_context, frame, length, &copy) > 0;
}

bool ModbusResponder::answerLock(const quint8 *frame, int length)
{
    const int function = frame[kFunctionAt];
    const int address = length >= kAddressAt + 2 ? word(frame, kAddressAt) : 0;
    if (address != kLockAddress) {
        LineOutput::print("-----exception: %d %02x\n", address, function);
        return refuse(frame, MODBUS_EXCEPTION_ILLEGAL_DATA_ADDRESS);
    }
    if (!isWellFormed(frame, length))
        return refuse(frame, MODBUS_EXCEPTION_ILLEGAL_DATA_VALUE);
    // Function 23 carries two addresses. The library checks one of them against the block by its sum with the quantity
    // alone, so that a write below the block lands in foreign memory.
    if (function == MODBUS_FC_WRITE_AND_READ_REGISTERS
        && (word(frame, kAddressAt + 4) != kLockAddress || word(frame, kAddressAt + 6) != 1
            || word(frame, kAddressAt + 2) != 1)) {
        LineOutput::print("-----exception: %d %02x\n", word(frame, kAddressAt + 4), function);
        return refuse(frame, MODBUS_EXCEPTION_ILLEGAL_DATA_ADDRESS);
    }
    const bool sent = modbus_reply(m_context, frame, length, m_lock) > 0;
    const timeval now = Clock::timeOfDay();
    LineOutput::print("### Lock: 0x%04X; %d %d\n", m_lock->tab_registers[0], int(now.tv_sec), int(now.tv_usec / 1000));
    return sent;
}
