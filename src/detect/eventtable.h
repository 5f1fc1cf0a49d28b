#pragma once

#include "model/eventlist.h"
#include "detect/modbusheader.h"

#include <cstddef>

constexpr int kModbusEventRows = 10;

/// One event as a Modbus master reads it: ten registers.
struct ModbusEventRow
{
    quint16 valid; // 1: the row holds an event
    quint16 finished;
    quint16 type; // PQAEventType
    quint16 channel;
    quint32 startSeconds; // s since 1970
    float value; // unit of the quantity
    qint32 duration; // ms
};
static_assert(sizeof(ModbusEventRow) == 20 && offsetof(ModbusEventRow, startSeconds) == 8
                  && offsetof(ModbusEventRow, value) == 12 && offsetof(ModbusEventRow, duration) == 16,
              "registers of a row");

/// The block of the newest events as the Modbus slave takes it: head, then ten rows, oldest first (docs/modbus.md).
struct ModbusEventTable
{
    __modbus_data_header head = { 5000, kModbusEventRows * sizeof(ModbusEventRow) / 2 };
    ModbusEventRow row[kModbusEventRows] = {};

    /// Marks all rows as unused and enters the newest events of the list. An unused row keeps its other registers.
    void fill(const EventList &events);
};
static_assert(sizeof(ModbusEventTable) == 208 && offsetof(ModbusEventTable, row) == 8, "head and ten rows");
