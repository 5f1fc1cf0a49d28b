#pragma once

#include <QByteArray>
#include <QFile>
#include <QList>

#include <utility>

/// The bytes of a recorded file, put together from docs/formats/pqa2.md alone, so that a reader is not held against the
/// writer of the same program.
class Pqa2Bytes
{
public:
    static QByteArray le(quint64 value, int bytes)
    {
        QByteArray out;
        for (int i = 0; i < bytes; ++i)
            out.append(char(value >> (8 * i) & 0xFF));
        return out;
    }
    static QByteArray f32(float value)
    {
        quint32 bits;
        memcpy(&bits, &value, 4);
        return le(bits, 4);
    }
    static QByteArray f64(double value)
    {
        quint64 bits;
        memcpy(&bits, &value, 8);
        return le(bits, 8);
    }
    static QByteArray floats(const QList<float> &values)
    {
        QByteArray out;
        for (const float value : values)
            out += f32(value);
        return out;
    }
    /// Floats that count up: first, first + 1 ...
    static QByteArray countUp(float first, int count)
    {
        QByteArray out;
        for (int i = 0; i < count; ++i)
            out += f32(first + float(i));
        return out;
    }
    static QByteArray fileHead() { return QByteArray::fromHex("50514132092000109B5156520D0A1A0AA5A5A5A5C3C3C3C3"); }

    Pqa2Bytes &add(quint32 type, const QByteArray &payload)
    {
        m_blocks.append({ type, payload });
        return *this;
    }
    /// With a time in ms in front.
    Pqa2Bytes &timed(quint32 type, qint64 ms, const QByteArray &values)
    {
        return add(type, le(quint64(ms), 8) + values);
    }
    /// With a time in s in front.
    Pqa2Bytes &timedS(quint32 type, qint64 s, const QByteArray &values)
    {
        return add(type, le(quint64(s), 4) + values);
    }
    /// What a file says of its instrument, in this wiring ("3P WYE_1").
    Pqa2Bytes &opening(const QByteArray &join = "3P WYE_1")
    {
        add(0xA1000001, "MODEL: QUVERA\nSN: 1AA000007\nDT: 2023-11-14 22:13:20\nSV: 2.2.6\nFV: None\n");
        add(0xA1000010, "Fnom: 50Hz\nUnom: 230V\nJoin: " + join + "\nClamp: TARN-41A;10mV/A 5A\nRatio: 1/1;1/1\n");
        return add(0xA1000011, floats({ 0.5F, 0.25F, 0.125F, 2, 4, 8, 16, 32, 0, 0, 0, 0 }));
    }
    Pqa2Bytes &start(qint64 s) { return add(0xA1000018, le(quint64(s), 4)); }
    Pqa2Bytes &end(qint64 s) { return add(0xA1000019, le(quint64(s), 4)); }

    static constexpr qint64 kTime = 1700000000000; // ms: 2023-11-14 22:13:20 UTC
    static constexpr qint64 kSeconds = kTime / 1000;
    /// The beginning of a recording: four blocks, then a frequency each second, counted from 1 Hz and kTime + 1 s on.
    static Pqa2Bytes recording(int rows)
    {
        Pqa2Bytes file;
        file.opening().start(kSeconds);
        for (int i = 1; i <= rows; ++i)
            file.timed(0xA1000029, kTime + i * 1000, f32(float(i)));
        return file;
    }

    QByteArray bytes() const
    {
        QByteArray out = fileHead();
        for (int i = 0; i < m_blocks.size(); ++i) {
            const QByteArray &payload = m_blocks.at(i).second;
            const int padded = (payload.size() + 3) / 4 * 4;
            const bool isLast = i + 1 == m_blocks.size();
            out += le(isLast ? 0xFFFFFFFF : quint64(out.size() + 12 + padded), 4) + le(m_blocks.at(i).first, 4)
                + le(quint64(payload.size()), 4) + payload + QByteArray(padded - payload.size(), '\0');
        }
        return out;
    }
    /// Where the block \a index begins.
    int offsetOf(int index) const
    {
        Pqa2Bytes before;
        before.m_blocks = m_blocks.mid(0, index);
        return before.bytes().size();
    }
    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    bool save(const QString &path) const { return save(path, bytes()); }
    static bool save(const QString &path, const QByteArray &bytes)
    {
        QFile::remove(path); // some file systems wait for the disk when a file is written anew
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

private:
    QList<std::pair<quint32, QByteArray>> m_blocks;
};
