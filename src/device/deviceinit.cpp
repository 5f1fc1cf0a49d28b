#include "device/deviceinit.h"

#include "settings/config_data.h"
#include "device/controlframe.h"
#include "device/frameslots.h"
#include "device/idevice.h"
#include "device/trace.h"

#include <algorithm>
#include <cmath>

namespace {

/// Payload of command 198, in the order of the wire.
struct SetUpWords
{
    quint32 configuration; // 31 to 16: hertz; 15: flexible clamp; 14 to 0: wiring code
    float zeroVolt[4] = { 0, 0, 0, 0 }; // converter units
    float zeroCurrent[4] = { 0, 0, 0, 0 };
    float gainVolt[4] = { 1, 1, 1, 1 }; // relative to channel L1
    float gainCurrent[4] = { 1, 1, 1, 1 };
    float transientThreshold = 1; // converter units
    quint32 flickerLamp = 230; // V: 230 or 120
    float signalFrequency1 = 0; // Hz
    float signalFrequency2 = 0; // Hz
};
static_assert(sizeof(SetUpWords) == 4 * 21, "21 payload words");

constexpr quint32 kCalibrationMode = 0x00320002; // 50 Hz, wiring code 2

template <int N> void appendEscaped(QByteArray &frame, const float (&values)[N])
{
    for (float value : values)
        ControlFrame::appendEscaped(frame, value);
}

void fillSetUpFrame(QByteArray &escaped_data, const SetUpWords &words)
{
    ControlFrame::appendWord(escaped_data, ControlFrame::kStart);
    ControlFrame::appendWord(escaped_data, ControlFrame::SetUp);
    ControlFrame::appendEscaped(escaped_data, words.configuration);
    appendEscaped(escaped_data, words.zeroVolt);
    appendEscaped(escaped_data, words.zeroCurrent);
    appendEscaped(escaped_data, words.gainVolt);
    appendEscaped(escaped_data, words.gainCurrent);
    ControlFrame::appendEscaped(escaped_data, words.transientThreshold);
    ControlFrame::appendEscaped(escaped_data, words.flickerLamp);
    ControlFrame::appendEscaped(escaped_data, words.signalFrequency1);
    ControlFrame::appendEscaped(escaped_data, words.signalFrequency2);
    ControlFrame::appendWord(escaped_data, ControlFrame::kEnd);
}

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

int calibrationRow(int index)
{
    return std::clamp(index, 0, 3);
}

quint32 configurationWord()
{
    const SettingConfig &settings = m_settingConfig_g;
    const ChannelSet *wiring = settings.channels();
    const Clamp *clamp = settings.curClamp();
    const quint32 code = wiring ? static_cast<quint32>(wiring->processorCode()) : 0;
    return DeviceInit::nominalFrequencyWord(settings.getNomFreq()) << 16
        | (clamp && clamp->flexible() ? quint32(1) << 15 : 0) | code;
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
    const SettingConfig &settings = m_settingConfig_g;
    m_idevice->changeCurrentGPIO(selectorOfCurrent(settings.getCurrentIndex()));
    m_idevice->changeNCurrentGPIO(selectorOfCurrent(settings.getCurrentNIndex()));
    m_idevice->changeVoltGPIO(selectorOfVolt(settings.getVoltIndex()));
    m_idevice->changeNVoltGPIO(selectorOfVolt(settings.getVoltIndex()));
}

void DeviceInit::setupADSP21479()
{
    const SettingConfig &settings = m_settingConfig_g;
    const __calib_data &calibration = m_calib_data_g.data();
    const int v = calibrationRow(settings.getVoltIndex());
    const int i = calibrationRow(settings.getCurrentIndex());
    const float reference = calibration.volt[v][0];

    SetUpWords words;
    words.configuration = configurationWord();
    for (int k = 0; k < 4; ++k) {
        words.zeroVolt[k] = calibration.zeroVolt[v][k];
        words.zeroCurrent[k] = calibration.zeroCurrent[i][k];
        words.gainVolt[k] = calibration.volt[v][k] / reference;
    }
    words.transientThreshold = static_cast<float>(settings.getTransThreshold()) / reference;
    words.flickerLamp = settings.getFlickerWeightingCurve() == 230 ? 230 : 120;
    const monitor_limit *limits = m_limits_g.getLimitsInUsed();
    words.signalFrequency1 = limits->frequency1.value;
    words.signalFrequency2 = limits->frequency2.value;

    static FrameSlots places;
    QByteArray &escaped_data = places.next();
    fillSetUpFrame(escaped_data, words);
    send(escaped_data);
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
    frame.append(bytes); // As required: not escaped
    ControlFrame::appendWord(frame, ControlFrame::kEnd);
    send(frame);
}

void DeviceInit::change2CalibMode()
{
    SetUpWords words;
    words.configuration = kCalibrationMode;
    static FrameSlots places;
    QByteArray &escaped_data = places.next();
    fillSetUpFrame(escaped_data, words);
    QV_TRACE("device/deviceinit") << escaped_data.toHex();
    send(escaped_data);
}

void DeviceInit::changeCalibZero(float *v, float *i)
{
    SetUpWords words;
    words.configuration = kCalibrationMode;
    std::copy_n(v, 4, words.zeroVolt);
    std::copy_n(i, 4, words.zeroCurrent);
    static FrameSlots places;
    QByteArray &escaped_data = places.next();
    fillSetUpFrame(escaped_data, words);
    QV_TRACE("device/deviceinit") << escaped_data.toHex();
    send(escaped_data);
}
