#include "services/modbusregisters.h"

#include <cstring>
#include <new>

ModbusRegisters::~ModbusRegisters()
{
    while (m_first) {
        Node *node = m_first;
        m_first = node->next;
        modbus_mapping_free(node->map);
        delete node;
    }
}

void ModbusRegisters::mb_mapping_add_map(quint32 start, quint32 length)
{
    if (length == 0 || start > 0xFFFF || length > 0x10000 - start)
        return;
    const std::lock_guard<std::mutex> lock(m_mutex);
    Node **place = &m_first;
    while (*place && quint32((*place)->map->start_input_registers) < start)
        place = &(*place)->next;
    if (*place && quint32((*place)->map->start_input_registers) == start)
        return;
    modbus_mapping_t *map = modbus_mapping_new_start_address(0, 0, 0, 0, 0, 0, start, length);
    if (!map)
        return;
    Node *node = new (std::nothrow) Node { map, *place };
    if (!node) {
        modbus_mapping_free(map);
        return;
    }
    *place = node;
}

modbus_mapping_t *ModbusRegisters::mapAt(quint32 address) const
{
    for (const Node *node = m_first; node; node = node->next) {
        const quint32 start = quint32(node->map->start_input_registers);
        if (address < start)
            break;
        if (address - start < quint32(node->map->nb_input_registers))
            return node->map;
    }
    return nullptr;
}

void ModbusRegisters::mb_mapping_setdata(quint32 start, quint32 length, const void *data)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    modbus_mapping_t *map = mapAt(start);
    if (!map || !data)
        return;
    const quint32 offset = start - quint32(map->start_input_registers);
    const quint32 count = qMin(length, quint32(map->nb_input_registers) - offset);
    std::memcpy(map->tab_input_registers + offset, data, count * sizeof(quint16));
}

void ModbusRegisters::mb_set_bd_buffer(quint32 start, quint32 length, const void *data)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_bigDataOpen || !data)
        return;
    if (start == kScopeStart)
        std::memcpy(mb_bd_scope, data, qMin(length, quint32(kScopeRegisters)) * sizeof(quint16));
    else if (start == kTransientStart)
        std::memcpy(mb_bd_transient, data, qMin(length, quint32(kTransientRegisters)) * sizeof(quint16));
}

void ModbusRegisters::openBigData()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_bigDataOpen = true;
}

void ModbusRegisters::refreshBigBlock(int address, modbus_mapping_t *map)
{
    const quint16 *buffer = address == kScopeStart ? mb_bd_scope : mb_bd_transient;
    const int length = address == kScopeStart ? kScopeRegisters : kTransientRegisters;
    std::memcpy(map->tab_input_registers, buffer, size_t(qMin(length, map->nb_input_registers)) * sizeof(quint16));
}

ModbusRegisters::Found ModbusRegisters::read(int address, int count, bool refresh, quint16 *out, int *available)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    *available = 0;
    modbus_mapping_t *map = mapAt(quint32(address));
    if (!map)
        return NoBlock;
    if (refresh && startsBigBlock(address) && map->start_input_registers == address)
        refreshBigBlock(address, map);
    const int offset = address - map->start_input_registers;
    *available = qBound(0, qMin(count, map->nb_input_registers - offset), kModbusMostRead);
    std::memcpy(out, map->tab_input_registers + offset, size_t(*available) * sizeof(quint16));
    return BlockFound;
}
