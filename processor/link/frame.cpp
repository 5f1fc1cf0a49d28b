#include "link/frame.h"

#include <QtEndian>

#include <cstring>

namespace wire {

namespace {

enum CommandId : quint32 {
    kStream = 193,
    kFirmwareInfo = 194,
    kSetClock = 195,
    kFirmware = 196,
    kSetup = 198,
    kRawInrush = 174,
    kRawBuzzer = 194,
    kRawClock = 197,
    kRawSetup = 198,
    kRawFlash = 0xCF,
};

Frame malformed(const QString &reason)
{
    Frame frame;
    frame.reason = reason;
    return frame;
}

bool needsEscape(quint32 word)
{
    return word == kFrameStart || word == kFrameEnd || word == kFrameEscape;
}

/// Takes the escapes out of the words between the command id and the end marker. False: not what escaping yields.
bool unescape(const std::vector<quint32> &words, std::vector<quint32> *payload)
{
    payload->reserve(words.size());
    for (std::size_t i = 2; i + 1 < words.size(); ++i) {
        quint32 word = words[i];
        if (word == kFrameEscape) {
            if (++i + 1 >= words.size())
                return false;
            word = words[i] + kEscapeOffset;
            if (!needsEscape(word))
                return false;
        } else if (needsEscape(word)) {
            return false;
        }
        payload->push_back(word);
    }
    return true;
}

void takeClock(Frame *frame, const quint32 *twoWords)
{
    qToLittleEndian<quint32>(twoWords, 2, frame->clock.data());
}

/// The firmware transfer: sub-command, 1, and what it carries.
Frame firmwareFrame(Frame frame)
{
    if (frame.words.size() < 3 || frame.words[1] != 1 || frame.words[0] < 1 || frame.words[0] > 2)
        return malformed(QStringLiteral("firmware transfer without its two leading words"));
    const bool announce = frame.words[0] == 1;
    frame.words.erase(frame.words.begin(), frame.words.begin() + 2);
    if (announce && frame.words.size() != 1)
        return malformed(QStringLiteral("firmware announcement of %1 words").arg(frame.words.size()));
    frame.type = announce ? Frame::Type::FirmwareAnnounce : Frame::Type::FirmwareData;
    return frame;
}

Frame framedCommand(const std::vector<quint32> &words)
{
    if (words.size() < 3 || words.back() != kFrameEnd)
        return malformed(QStringLiteral("no end marker"));
    Frame frame;
    if (!unescape(words, &frame.words))
        return malformed(QStringLiteral("marker or wrong escape inside the payload"));
    const std::size_t count = frame.words.size();
    switch (words[1]) {
    case kStream:
        if (count != 1 || frame.words[0] > 1)
            return malformed(QStringLiteral("stream command without 0 or 1"));
        frame.type = Frame::Type::Stream;
        return frame;
    case kFirmwareInfo:
        if (count != 1)
            return malformed(QStringLiteral("firmware request of %1 words").arg(count));
        frame.type = Frame::Type::FirmwareInfo;
        return frame;
    case kSetClock:
        if (count != 2)
            return malformed(QStringLiteral("clock of %1 words").arg(count));
        takeClock(&frame, frame.words.data());
        frame.type = Frame::Type::SetClock;
        return frame;
    case kFirmware:
        return firmwareFrame(frame);
    case kSetup:
        if (count != std::size_t(kSetupWords))
            return malformed(QStringLiteral("set-up of %1 words").arg(count));
        frame.type = Frame::Type::Setup;
        return frame;
    default:
        return malformed(QStringLiteral("unknown command %1").arg(words[1]));
    }
}

Frame rawCommand(const std::vector<quint32> &words)
{
    Frame frame;
    const std::size_t count = words.size();
    if (words[0] == kRawInrush && count == 1) {
        frame.type = Frame::Type::Inrush;
    } else if (words[0] == kRawBuzzer && count == 2) {
        frame.type = Frame::Type::Buzzer;
        frame.words = { words[1] };
    } else if (words[0] == kRawFlash && count == 2 && words[1] == 3) {
        frame.type = Frame::Type::Flash;
    } else if (words[0] == kRawClock && count == 4 && words[1] == 0) {
        frame.type = Frame::Type::OlderClock;
        takeClock(&frame, words.data() + 2);
    } else if (words[0] == kRawSetup && count == std::size_t(kOlderSetupBytes / 4)) {
        frame.type = Frame::Type::OlderSetup;
        frame.words = words;
    } else {
        return malformed(QStringLiteral("unknown raw command %1 of %2 words").arg(words[0]).arg(count));
    }
    return frame;
}

} // namespace

Frame parseFrame(const QByteArray &bytes)
{
    if (bytes.isEmpty() || bytes.size() % 4 != 0)
        return malformed(QStringLiteral("%1 bytes are no whole words").arg(bytes.size()));
    const std::vector<quint32> words = wordsOf(bytes);
    return words[0] == kFrameStart ? framedCommand(words) : rawCommand(words);
}

std::vector<quint32> wordsOf(const QByteArray &bytes)
{
    std::vector<quint32> words(std::size_t(bytes.size()) / 4);
    if (!words.empty()) // an empty vector has no address to copy to
        qFromLittleEndian<quint32>(bytes.constData(), qsizetype(words.size()), words.data());
    return words;
}

QByteArray bytesOf(const std::vector<quint32> &words)
{
    QByteArray bytes(int(words.size() * 4), Qt::Uninitialized);
    if (!words.empty())
        qToLittleEndian<quint32>(words.data(), qsizetype(words.size()), bytes.data());
    return bytes;
}

QByteArray buildFrame(quint32 id, const std::vector<quint32> &payload)
{
    std::vector<quint32> words = { kFrameStart, id };
    for (quint32 word : payload) {
        if (needsEscape(word)) {
            words.push_back(kFrameEscape);
            word -= kEscapeOffset;
        }
        words.push_back(word);
    }
    words.push_back(kFrameEnd);
    return bytesOf(words);
}

QString Frame::meaning() const
{
    const auto clockText = [this](bool decimal) {
        const QByteArray raw(reinterpret_cast<const char *>(clock.data()), int(clock.size()));
        return QStringLiteral("%1 %2").arg(decimal ? "packed decimal" : "binary", QString::fromLatin1(raw.toHex(' ')));
    };
    switch (type) {
    case Type::Malformed:
        return QStringLiteral("malformed: ") + reason;
    case Type::Stream:
        return words[0] ? QStringLiteral("stream on") : QStringLiteral("stream off");
    case Type::FirmwareInfo:
        return QStringLiteral("firmware information wanted");
    case Type::SetClock:
        return QStringLiteral("clock, ") + clockText(false);
    case Type::FirmwareAnnounce:
        return QStringLiteral("firmware of %1 bytes announced").arg(words[0]);
    case Type::FirmwareData:
        return QStringLiteral("firmware data, %1 words").arg(words.size());
    case Type::Setup:
        return QStringLiteral("set-up, configuration %1").arg(words[0], 8, 16, QLatin1Char('0'));
    case Type::Buzzer:
        return QStringLiteral("buzzer %1").arg(words[0]);
    case Type::OlderClock:
        return QStringLiteral("clock in the older form, ") + clockText(true);
    case Type::Inrush:
        return QStringLiteral("inrush command");
    case Type::Flash:
        return QStringLiteral("flash the firmware");
    case Type::OlderSetup:
        return QStringLiteral("set-up in the older form");
    }
    return {};
}

} // namespace wire
