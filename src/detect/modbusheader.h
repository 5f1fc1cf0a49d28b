#pragma once

#include <QtGlobal>

/// Head of a block of Modbus input registers; the registers follow it in memory (docs/modbus.md).
struct __modbus_data_header
{
    quint32 start; // address of the first input register
    quint32 length; // registers
};
static_assert(sizeof(__modbus_data_header) == 8, "the registers of a block begin behind eight bytes");
