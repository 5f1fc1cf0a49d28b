#pragma once

#include "record/pqa2format.h"

#include <QByteArray>
#include <QFile>

#include <cstring>

/// A recording of any size, written at once: the common quantities and the voltage's harmonics of four channels, mean,
/// maximum and minimum of each interval, with values that differ in all their digits.
class LargeRecording
{
public:
    static constexpr int kInterval = 200; // ms
    static constexpr qint64 kStart = 1700000000000; // ms since 1970

    /// False when the disk does not take it. The last block may go beyond \a bytes a little.
    bool write(const QString &path, qint64 bytes)
    {
        m_file.setFileName(path);
        if (!m_file.open(QIODevice::WriteOnly))
            return false;
        m_file.write(reinterpret_cast<const char *>(&kPqa2FileHeader), sizeof kPqa2FileHeader);
        put(Pqa2InstrumentInfo, "MODEL: QUVERA\nSN: 1AA000007\n", false);
        put(Pqa2SystemSetting, "Fnom: 50Hz\nUnom: 230V\nJoin: 3P WYE_1\n", false);
        const quint32 begin = quint32(kStart / 1000);
        put(Pqa2StartTime, QByteArray(reinterpret_cast<const char *>(&begin), sizeof begin), false);
        for (bool isLast = false; !isLast; ++m_intervals) {
            isLast = m_file.pos() >= bytes;
            for (const Group &group : kGroups) {
                for (const quint32 type :
                     { group.type, group.type + 0x40 - group.less, group.type + 0x80 - group.less })
                    put(type, payload(group.floats),
                        isLast && &group == std::end(kGroups) - 1 && type == group.type + 0x80 - group.less);
            }
        }
        return m_file.flush() && m_file.error() == QFile::NoError;
    }
    qint64 intervals() const { return m_intervals; }
    /// Numbers of one interval, times left out.
    static int numbersOfAnInterval()
    {
        int floats = 0;
        for (const Group &group : kGroups)
            floats += 3 * group.floats;
        return floats;
    }

private:
    struct Group
    {
        quint32 type; // of the mean
        quint32 less; // how much nearer maximum and minimum stand than 0x40 and 0x80 behind it
        int floats;
    };
    static constexpr Group kGroups[] = {
        { 0xA1000029, 5, 1 }, // frequency
        { 0xA1000020, 0, 52 }, // r.m.s. values
        { 0xA1000021, 0, 24 }, // powers
        { 0xA1000030, 0xB, 208 }, // harmonics of the voltage
    };

    QByteArray payload(int floats)
    {
        QByteArray bytes(8 + 4 * floats, Qt::Uninitialized);
        const qint64 time = kStart + (m_intervals + 1) * kInterval;
        std::memcpy(bytes.data(), &time, sizeof time);
        for (int i = 0; i < floats; ++i) {
            m_random = m_random * 1664525 + 1013904223;
            const float value = 250.0f * float(m_random >> 8) / float(1 << 24);
            std::memcpy(bytes.data() + 8 + 4 * i, &value, sizeof value);
        }
        return bytes;
    }

    void put(quint32 type, const QByteArray &payload, bool isLast)
    {
        const int padding = (4 - payload.size() % 4) % 4;
        const quint32 next = quint32(m_file.pos()) + quint32(sizeof(Pqa2BlockHead)) + quint32(payload.size() + padding);
        const Pqa2BlockHead head = { isLast ? kPqa2LastBlock : next, type, quint32(payload.size()) };
        m_file.write(reinterpret_cast<const char *>(&head), sizeof head);
        m_file.write(payload);
        m_file.write("\0\0\0", padding);
    }

    QFile m_file;
    qint64 m_intervals = 0;
    quint32 m_random = 1;
};
