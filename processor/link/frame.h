#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <array>
#include <vector>

namespace wire {

constexpr quint32 kFrameStart = 122;
constexpr quint32 kFrameEnd = 123;
constexpr quint32 kFrameEscape = 125;
constexpr quint32 kEscapeOffset = 32;

constexpr int kSetupWords = 21; // payload of the set-up frame
constexpr int kOlderSetupBytes = 104; // the older set-up block behind the bare word 198

/// One message of the instrument, taken apart. What makes no sense is Malformed and says why in `reason`.
struct Frame
{
    enum class Type {
        Malformed,
        Stream, // words[0]: 1 on, 0 off
        FirmwareInfo,
        SetClock, // clock: eight bytes, binary
        FirmwareAnnounce, // words[0]: length of the image in bytes, without padding
        FirmwareData, // words: the image, padded to words, and its CRC
        Setup, // words: the 21 set-up words
        Buzzer, // words[0]: value
        OlderClock, // clock: eight bytes, packed decimal
        Inrush,
        Flash,
        OlderSetup, // words: the 26 words of the older block
    };

    Type type = Type::Malformed;
    std::vector<quint32> words; // without markers, command id and escapes
    std::array<quint8, 8> clock = {};
    QString reason; // only of a malformed frame

    /// In words a person reads, for the log: "stream on", "malformed: ...".
    QString meaning() const;
};

/// Takes one message apart. Any bytes are allowed; nothing is read outside \a bytes.
Frame parseFrame(const QByteArray &bytes);

/// The 32-bit words of \a bytes; a rest below four bytes is left out.
std::vector<quint32> wordsOf(const QByteArray &bytes);

/// \a words as bytes on the wire.
QByteArray bytesOf(const std::vector<quint32> &words);

/// The framed command \a id with \a payload, escaped, as an instrument would send it.
QByteArray buildFrame(quint32 id, const std::vector<quint32> &payload);

} // namespace wire
