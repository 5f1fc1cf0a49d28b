#include "link/firmwareexchange.h"

#include "link/frame.h"

#include <zlib.h>

namespace wire {

bool FirmwareExchange::answer(Answers *answers, Step step, quint32 result, int delayMs) const
{
    static constexpr quint32 kCodes[kSteps] = { kCodeAnnounce, kCodeData, kCodeFlash };
    const Replaced &replaced = m_replaced[step];
    const quint32 given = replaced.result.value_or(result);
    const Answer one { replaced.code.value_or(kCodes[step]), given, delayMs + replaced.lateMs };
    if (!replaced.silent)
        answers->insert(answers->end(), std::size_t(1 + replaced.repeats), one);
    return given == Good;
}

FirmwareExchange::Answers FirmwareExchange::announce(quint32 length)
{
    Answers answers;
    const bool fits = length > 0 && length <= kMaxImageBytes;
    m_imageHeld = false;
    m_announced = 0;
    if (answer(&answers, Announce, fits ? Good : BadLength, 0) && fits)
        m_announced = length;
    return answers;
}

FirmwareExchange::Answers FirmwareExchange::data(const std::vector<quint32> &words)
{
    Answers answers;
    quint32 result = Good;
    if (m_announced == 0) {
        result = OutOfTurn;
    } else if (words.size() != std::size_t((m_announced + 3) / 4) + 1) {
        result = BadLength;
    } else {
        const QByteArray image = bytesOf(words);
        const uLong crc
            = ::crc32(::crc32(0, nullptr, 0), reinterpret_cast<const Bytef *>(image.constData()), m_announced);
        result = quint32(crc) == words.back() ? Good : BadChecksum;
    }
    m_announced = 0;
    m_imageHeld = answer(&answers, Data, result, kChecksumMs) && result == Good;
    if (m_imageHeld)
        flashImage(&answers, kChecksumMs + m_replaced[Data].lateMs + kFlashMs);
    return answers;
}

FirmwareExchange::Answers FirmwareExchange::flash()
{
    Answers answers;
    if (m_imageHeld)
        flashImage(&answers, kFlashMs);
    else
        answer(&answers, Flash, OutOfTurn, 0);
    return answers;
}

void FirmwareExchange::flashImage(Answers *answers, int delayMs)
{
    m_imageHeld = false;
    if (answer(answers, Flash, Good, delayMs))
        ++m_updates;
}

QString FirmwareExchange::versionText() const
{
    return QStringLiteral("CPU:ADSP-21479;Silicon:0.2;Firmware:1.0.%1;").arg(m_updates);
}

} // namespace wire
