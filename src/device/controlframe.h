#pragma once

#include <QByteArray>
#include <QtGlobal>
#include <cstring>

/// Frames to the measurement processor: 32-bit little-endian words (docs/link-protocol.md, "Frames").
namespace ControlFrame {

constexpr quint32 kStart = 122;
constexpr quint32 kEnd = 123;
constexpr quint32 kEscape = 125;
constexpr quint32 kEscapeShift = 32; // an escaped word stands this much lower

enum Command : quint32 {
    StreamControl = 193, // 0 stop, 1 start
    FirmwareInfo = 194,
    SetClock = 195,
    FirmwareTransfer = 196,
    SetUp = 198,
};

/// Raw commands: neither start nor end marker.
enum RawCommand : quint32 {
    RawInrush = 174,
    RawBuzzer = 194,
    RawClock = 197,
    RawSetUp = 198, // repeated by the link, see DeviceDSP::DSPWrite
};

inline void appendWord(QByteArray &frame, quint32 word)
{
    frame.append(reinterpret_cast<const char *>(&word), sizeof(word));
}

/// Appends a payload word; one that would read as a marker is moved out of the way. Words are compared as integers,
/// also those that hold a float.
inline void appendEscaped(QByteArray &frame, quint32 word)
{
    if (word == kStart || word == kEnd || word == kEscape) {
        appendWord(frame, kEscape);
        word -= kEscapeShift;
    }
    appendWord(frame, word);
}

inline void appendEscaped(QByteArray &frame, float value)
{
    quint32 word;
    memcpy(&word, &value, sizeof(word));
    appendEscaped(frame, word);
}

} // namespace ControlFrame
