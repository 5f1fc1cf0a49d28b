#pragma once

#include <QtGlobal>

#include <modbus.h>

/// Cuts the bytes of a Modbus TCP connection into frames by the length that each frame's head tells, whatever the
/// segments were. Holds at most one read more than one frame; owns no socket.
class ModbusFramer
{
public:
    static constexpr int kHead = 7; // transaction, protocol, length, unit
    static constexpr int kLengthEnd = 6; // the announced length counts from here
    static constexpr int kMostAnnounced = 254; // unit and a longest request
    static constexpr int kCapacity = 4096; // bytes

    /// Where the next bytes go, and how many fit. Room is left whenever all whole frames were taken.
    quint8 *space() { return m_bytes + m_end; }
    int room() const { return kCapacity - m_end; }
    /// Tells how many bytes were put there.
    void filled(int bytes) { m_end += qBound(0, bytes, room()); }

    /// A whole frame: points to it and tells its length; it stays valid until space() is filled again. None: false.
    bool next(const quint8 **frame, int *length);
    /// A head that cannot be one of Modbus: protocol not 0, or an announced length out of 2 to 254. The connection must
    /// end.
    bool isBroken() const { return m_broken; }
    /// Forgets everything, for a new connection.
    void clear();

private:
    quint8 m_bytes[kCapacity];
    int m_start = 0;
    int m_end = 0;
    bool m_broken = false;
};
