#pragma once

#include <QtGlobal>

#include <modbus.h>
#include <mutex>

constexpr int kModbusMostRead = MODBUS_MAX_READ_REGISTERS; // registers in one request
constexpr int kScopeStart = 12000;
constexpr int kScopeRegisters = 3288;
constexpr int kTransientStart = 20000;
constexpr int kTransientRegisters = 1658;

/// The input registers that a Modbus master may read: one libmodbus mapping for each block, sorted by address, and the
/// big blocks as they were delivered last. Any thread; one mutex guards all of it, and no caller waits longer than a
/// copy of one block takes.
class ModbusRegisters
{
public:
    /// What stands behind an address.
    enum Found { NoBlock, BlockFound };

    ModbusRegisters() = default;
    ~ModbusRegisters();
    ModbusRegisters(const ModbusRegisters &) = delete;
    ModbusRegisters &operator=(const ModbusRegisters &) = delete;

    /// Adds a block of zeros. A second block with the same start, a block beyond address 65535, and a block for which
    /// there is no memory are dropped.
    void mb_mapping_add_map(quint32 start, quint32 length);
    /// Writes into the block that holds the start address, up to its end. No such block: nothing happens.
    void mb_mapping_setdata(quint32 start, quint32 length, const void *data);
    /// Delivers a big block: 12000 or 20000; anything else, and anything before openBigData(), is ignored.
    void mb_set_bd_buffer(quint32 start, quint32 length, const void *data);
    /// From here on big blocks are taken: the lock register exists.
    void openBigData();

    /// Copies what a read of `count` registers from `address` may see to `out` (room for kModbusMostRead), and tells in
    /// `*available` how many of them lie inside the block. With refresh, a big block that starts at the address is
    /// brought up to date first.
    Found read(int address, int count, bool refresh, quint16 *out, int *available);

    /// Whether the address starts a big block.
    static bool startsBigBlock(int address) { return address == kScopeStart || address == kTransientStart; }

private:
    struct Node
    {
        modbus_mapping_t *map;
        Node *next;
    };

    /// The mapping that holds the address, or null. Needs the mutex.
    modbus_mapping_t *mapAt(quint32 address) const;
    void refreshBigBlock(int address, modbus_mapping_t *map);

    std::mutex m_mutex;
    Node *m_first = nullptr;
    bool m_bigDataOpen = false;
    quint16 mb_bd_scope[kScopeRegisters] = {};
    quint16 mb_bd_transient[kTransientRegisters] = {};
};
