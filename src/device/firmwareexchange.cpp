#include "device/firmwareexchange.h"

#include "device/controlframe.h"
#include "device/idevice.h"

#include <QtEndian>

#include <zlib.h>

namespace {

constexpr int kWord = 4;
constexpr quint32 kFirmware = ControlFrame::FirmwareTransfer;
constexpr quint32 kAnnounce = 1;
constexpr quint32 kData = 2;
constexpr quint32 kFlash[] = { 0xCF, 3 };
constexpr int kCodeWord = 2; // of an answer, behind the two words of its time stamp
constexpr int kResultWord = 3;

quint32 wordAt(const QByteArray &answer, int index)
{
    const int at = index * kWord;
    return at + kWord <= answer.size() ? qFromLittleEndian<quint32>(answer.constData() + at) : 0;
}

QByteArray begunFrame(quint32 subCommand)
{
    QByteArray frame;
    for (quint32 word : { quint32(ControlFrame::kStart), kFirmware, subCommand, 1u })
        ControlFrame::appendWord(frame, word);
    return frame;
}

} // namespace

FirmwareExchange::FirmwareExchange(IDevice *device, QObject *parent) : QObject(parent), m_device(device)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &FirmwareExchange::firmwareTimeOut);
}

quint32 FirmwareExchange::_crc_32(const void *data, int length)
{
    if (length < 1)
        return 0;
    return quint32(::crc32(::crc32(0, nullptr, 0), static_cast<const Bytef *>(data), uInt(length)));
}

QByteArray FirmwareExchange::padded(const QByteArray &content)
{
    QByteArray image = content;
    image.append(QByteArray((kWord - content.size() % kWord) % kWord, '\0'));
    ControlFrame::appendWord(image, _crc_32(content.constData(), content.size()));
    return image;
}

QByteArray FirmwareExchange::announceFrame(quint32 length)
{
    QByteArray frame = begunFrame(kAnnounce);
    ControlFrame::appendEscaped(frame, length);
    ControlFrame::appendWord(frame, ControlFrame::kEnd);
    return frame;
}

QByteArray FirmwareExchange::dataFrame(const QByteArray &image)
{
    QByteArray frame = begunFrame(kData);
    frame.reserve(frame.size() + image.size() + image.size() / 8); // markers are rare in an image
    for (int at = 0; at + kWord <= image.size(); at += kWord)
        ControlFrame::appendEscaped(frame, qFromLittleEndian<quint32>(image.constData() + at));
    ControlFrame::appendWord(frame, ControlFrame::kEnd);
    return frame;
}

QByteArray FirmwareExchange::flashFrame()
{
    QByteArray frame;
    for (quint32 word : kFlash)
        ControlFrame::appendWord(frame, word);
    return frame;
}

void FirmwareExchange::start(const QByteArray &content)
{
    m_image = padded(content);
    connect(m_device, &IDevice::datagramUpdate, this, &FirmwareExchange::firmwareUpdate, Qt::UniqueConnection);
    m_device->firmwareUpdate(announceFrame(quint32(content.size())));
    wait(Announced, kAnnounceMs);
}

void FirmwareExchange::wait(Stage stage, int ms)
{
    m_stage = stage;
    m_timer.start(ms);
}

void FirmwareExchange::end()
{
    m_timer.stop();
    m_stage = Idle;
    m_image.clear();
}

void FirmwareExchange::firmwareSendData()
{
    const QByteArray frame = dataFrame(m_image);
    m_image.clear();
    m_device->sendDSPMgmt(frame);
    wait(DataSent, kDataMs);
}

void FirmwareExchange::firmwareUpdate(const QByteArray &answer)
{
    const quint32 code = wordAt(answer, kCodeWord);
    const quint32 result = wordAt(answer, kResultWord);
    const Stage stage = m_stage;
    m_timer.stop();
    if (stage == Flashing) {
        flashAnswered(code, result);
    } else if (stage == Announced && code == CodeAnnounce && result == 0) {
        firmwareSendData();
    } else if (stage == DataSent && code == CodeData && result == 0) {
        wait(Flashing, kDataMs);
        emit dataTaken();
    } else {
        end();
        emit refused(stage, code, result);
    }
}

void FirmwareExchange::flashAnswered(quint32 code, quint32 result)
{
    enum { Good = 0, Fault = 1 };

    if (code != CodeFlash)
        return; // Kept: nothing is waited for any more
    m_status = quint16(result);
    if (m_status == Good) {
        end();
        emit completed();
    } else if (m_status == Fault) {
        wait(Flashing, kFaultMs);
        emit flashFault();
    }
}

void FirmwareExchange::firmwareTimeOut()
{
    const Stage stage = m_stage;
    end();
    emit timedOut(stage);
}
