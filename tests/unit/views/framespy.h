#pragma once

#include "device/idevice.h"

#include <QByteArray>
#include <QVector>

/// Frames that pages hand to the processor's link while this lives, with the address that they were given at.
class FrameSpy
{
public:
    struct Frame
    {
        const void *address;
        QByteArray bytes;
    };

    FrameSpy()
        : m_connection(QObject::connect(m_idevice, &IDevice::writeDSP, [this](const void *data, int length) {
              frames.append({ data, QByteArray(static_cast<const char *>(data), length) });
          }))
    { }
    ~FrameSpy() { QObject::disconnect(m_connection); }
    FrameSpy(const FrameSpy &) = delete;
    FrameSpy &operator=(const FrameSpy &) = delete;

    int count() const { return frames.size(); }
    /// A 32-bit word of a frame; 0 beyond its end.
    quint32 word(int frame, int index) const
    {
        quint32 value = 0;
        const QByteArray bytes = frames.at(frame).bytes.mid(4 * index, 4);
        std::copy(bytes.begin(), bytes.end(), reinterpret_cast<char *>(&value));
        return value;
    }

    QVector<Frame> frames;

private:
    QMetaObject::Connection m_connection;
};
