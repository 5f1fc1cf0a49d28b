#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

#include <array>
#include <optional>
#include <vector>

namespace wire {

/// The processor's side of a firmware update: length, image with checksum, flash. One answer a step.
///
/// The instrument announces the length, sends the image and then waits for the end of the flashing, so the processor
/// flashes on its own once the checksum is good; the separate flash command is obeyed as well. Each answer can be
/// replaced by an error, another code or silence, come late or again, to see what the instrument makes of it.
class FirmwareExchange
{
public:
    enum Step { Announce, Data, Flash };
    static constexpr int kSteps = 3;

    static constexpr quint32 kCodeAnnounce = 0xC401;
    static constexpr quint32 kCodeData = 0xC402;
    static constexpr quint32 kCodeFlash = 0xC403;

    enum Result : quint32 {
        Good = 0,
        Fault = 1, // of the flash: the instrument shows a fault and waits on
        OutOfTurn = 2, // data without an announcement, flash without an image
        BadChecksum = 3,
        BadLength = 4, // nothing announced, more than fits, or another number of words than announced
    };

    static constexpr quint32 kMaxImageBytes = 8u << 20;
    static constexpr int kChecksumMs = 200; // simulated time from the image to its answer
    static constexpr int kFlashMs = 2000; // and from there to the end of the flashing

    struct Answer
    {
        quint32 code;
        quint32 result;
        int delayMs; // simulated time from now
    };
    using Answers = std::vector<Answer>;

    Answers announce(quint32 length);
    /// \a words: the image padded to whole words, and its CRC-32 over the bytes without padding.
    Answers data(const std::vector<quint32> &words);
    Answers flash();

    void replaceResult(Step step, quint32 result) { m_replaced[step].result = result; }
    void replaceCode(Step step, quint32 code) { m_replaced[step].code = code; }
    void silence(Step step) { m_replaced[step].silent = true; }
    /// The answer comes so much later than it would.
    void delay(Step step, int ms) { m_replaced[step].lateMs = ms; }
    /// The answer comes so many times more, at once.
    void repeat(Step step, int times) { m_replaced[step].repeats = times; }
    void answerWell() { m_replaced = {}; }

    /// "CPU:ADSP-21479;Silicon:0.2;Firmware:1.0.0;"; each update that was flashed raises the last number.
    QString versionText() const;
    int updates() const { return m_updates; }

private:
    struct Replaced
    {
        std::optional<quint32> result;
        std::optional<quint32> code;
        int lateMs = 0;
        int repeats = 0;
        bool silent = false;
    };

    /// Adds the answer of \a step, or what replaces it. True when \a result stands and is Good.
    bool answer(Answers *answers, Step step, quint32 result, int delayMs) const;
    void flashImage(Answers *answers, int delayMs);

    std::array<Replaced, kSteps> m_replaced = {};
    quint32 m_announced = 0; // bytes; 0: nothing announced
    bool m_imageHeld = false;
    int m_updates = 0;
};

} // namespace wire
