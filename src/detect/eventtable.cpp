#include "detect/eventtable.h"

void ModbusEventTable::fill(const EventList &events)
{
    for (ModbusEventRow &unused : row)
        unused.valid = 0;
    const int first = qMax(0, events.size() - kModbusEventRows);
    for (int i = first; i < events.size(); ++i) {
        const PQAEventItem &event = events.at(i);
        row[i - first]
            = { 1,           quint16(event.finished), quint16(event.type), quint16(event.channel), event.startSeconds,
                event.value, event.duration };
    }
}
