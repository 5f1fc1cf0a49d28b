#include "device/deviceinit.h"

#include "settings/config_data.h"
#include "device/controlframe.h"
#include "device/frameslots.h"
#include "device/idevice.h"
#include "device/setupframe.h"
#include "device/trace.h"

#include <algorithm>
#include <cmath>

namespace {

void send(const QByteArray &frame)
{
    if (m_idevice)
        m_idevice->sendDSPMgmt(frame.constData(), static_cast<unsigned int>(frame.size()));
}

template <size_t N> void send(const quint32 (&frame)[N])
{
    if (m_idevice)
        m_idevice->sendDSPMgmt(frame, sizeof(frame));
}

/// Sends a set-up out of the storage of one command, and answers its frame.
const QByteArray &sendSetUp(FrameSlots &places, const SetUpWords &words)
{
    QByteArray &escaped_data = places.next();
    SetUpFrame::append(escaped_data, words);
    send(escaped_data);
    return escaped_data;
}

} // namespace

quint32 DeviceInit::nominalFrequencyWord(double hertz)
{
    if (std::fabs(hertz - 50.0) <= 1.0)
        return 50;
    return std::fabs(hertz - 60.0) <= 1.0 ? 60 : 400;
}

int DeviceInit::selectorOfCurrent(int index)
{
    constexpr int kSelectors[] = { 0, 2, 1, 3 };
    return index >= 0 && index < 4 ? kSelectors[index] : 1;
}

int DeviceInit::selectorOfVolt(int index)
{
    return index >= 0 && index < 4 ? index : 1;
}

void DeviceInit::initAnalogDevice2()
{
    set_analog_channel();
    setupADSP21479();
    getADSPFWInfo();
    startDataStream();
}

void DeviceInit::set_analog_channel()
{
    if (!m_idevice)
        return;
    const AnalogSelectors selectors = SetUpFrame::selectors(m_settingConfig_g.derived());
    m_idevice->changeCurrentGPIO(selectors.current);
    m_idevice->changeNCurrentGPIO(selectors.currentN);
    m_idevice->changeVoltGPIO(selectors.volt);
    m_idevice->changeNVoltGPIO(selectors.volt);
}

void DeviceInit::setupADSP21479()
{
    static FrameSlots places;
    sendSetUp(
        places,
        SetUpFrame::words(m_settingConfig_g.derived(), m_settingConfig_g.values(), *m_limits_g.getLimitsInUsed()));
}

void DeviceInit::getADSPFWInfo()
{
    static const quint32 frame[] = { ControlFrame::kStart, ControlFrame::FirmwareInfo, 0, ControlFrame::kEnd };
    send(frame);
}

void DeviceInit::startDataStream()
{
    static const quint32 frame[] = { ControlFrame::kStart, ControlFrame::StreamControl, 1, ControlFrame::kEnd };
    send(frame);
}

void DeviceInit::stopDataStream()
{
    static const quint32 frame[] = { ControlFrame::kStart, ControlFrame::StreamControl, 0, ControlFrame::kEnd };
    send(frame);
}

void DeviceInit::setADSPHWClock(const QByteArray &bytes)
{
    if (bytes.size() != 8)
        return;
    static FrameSlots places;
    QByteArray &frame = places.next();
    ControlFrame::appendWord(frame, ControlFrame::kStart);
    ControlFrame::appendWord(frame, ControlFrame::SetClock);
    frame.append(bytes); // Kept: not escaped
    ControlFrame::appendWord(frame, ControlFrame::kEnd);
    send(frame);
}

void DeviceInit::change2CalibMode()
{
    static FrameSlots places;
    QV_TRACE("device/deviceinit") << sendSetUp(places, SetUpWords()).toHex();
}

void DeviceInit::changeCalibZero(float *v, float *i)
{
    static FrameSlots places;
    SetUpWords words;
    std::copy_n(v, 4, words.zeroVolt);
    std::copy_n(i, 4, words.zeroCurrent);
    QV_TRACE("device/deviceinit") << sendSetUp(places, words).toHex();
}
