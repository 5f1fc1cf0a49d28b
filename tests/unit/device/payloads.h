#pragma once

#include "device/datagramtypes.h"

#include <QByteArray>

#include <cstring>

/// A payload that a test fills word by word; the numbers are those of docs/link-protocol.md.
class Payload
{
public:
    explicit Payload(int words) : m_bytes(4 * words, '\0') { }
    void setInt(int word, quint32 value) { memcpy(m_bytes.data() + 4 * word, &value, 4); }
    void set(int word, float value) { memcpy(m_bytes.data() + 4 * word, &value, 4); }
    float at(int word) const
    {
        float value;
        memcpy(&value, m_bytes.constData() + 4 * word, 4);
        return value;
    }
    const char *data() const { return m_bytes.constData(); }
    const QByteArray &bytes() const { return m_bytes; }

    /// R.m.s. values, powers and fundamentals of one channel; angles in radians, counted from any zero.
    void setChannel(int c, float volts, float amps, float watts, float voltAngle, float currentAngle)
    {
        set(5 + 9 * c, watts);
        set(8 + 9 * c, volts);
        set(9 + 9 * c, amps);
        set(44 + 400 * c, volts);
        set(45 + 400 * c, voltAngle);
        set(44 + 400 * (4 + c), amps);
        set(45 + 400 * (4 + c), currentAngle);
    }

private:
    QByteArray m_bytes;
};
