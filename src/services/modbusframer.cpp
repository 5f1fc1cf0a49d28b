#include "services/modbusframer.h"

#include <cstring>

bool ModbusFramer::next(const quint8 **frame, int *length)
{
    const int have = m_end - m_start;
    if (have >= kLengthEnd) { // a head that cannot be one is never passed
        const quint8 *head = m_bytes + m_start;
        const int protocol = head[2] << 8 | head[3];
        const int announced = head[4] << 8 | head[5];
        if (protocol != 0 || announced < 2 || announced > kMostAnnounced) {
            m_broken = true;
        } else if (have >= kLengthEnd + announced) {
            *frame = head;
            *length = kLengthEnd + announced;
            m_start += *length;
            return true;
        }
    }
    // Only a begun frame is left: move it to the front, so that there is room for its rest.
    if (m_start > 0) {
        std::memmove(m_bytes, m_bytes + m_start, size_t(have));
        m_start = 0;
        m_end = have;
    }
    return false;
}

void ModbusFramer::clear()
{
    m_start = 0;
    m_end = 0;
    m_broken = false;
}
