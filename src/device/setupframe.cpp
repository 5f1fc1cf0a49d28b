#include "device/setupframe.h"

#include "device/controlframe.h"
#include "device/deviceinit.h"
#include "settings/derived.h"
#include "settings/settingvalues.h"

#include <algorithm>

namespace {

template <int N> void appendEscaped(QByteArray &frame, const float (&values)[N])
{
    for (float value : values)
        ControlFrame::appendEscaped(frame, value);
}

quint32 configurationWord(const Derived &derived)
{
    const quint32 code = derived.channels ? static_cast<quint32>(derived.channels->processorCode()) : 0;
    return DeviceInit::nominalFrequencyWord(derived.nominalFrequency) << 16
        | (derived.clamp.flexible ? quint32(1) << 15 : 0) | code;
}

} // namespace

SetUpWords SetUpFrame::words(const Derived &derived, const SettingValues &values, const monitor_limit &limits)
{
    const float reference = derived.voltGain[0];
    SetUpWords words;
    words.configuration = configurationWord(derived);
    std::copy_n(derived.zeroVolt, 4, words.zeroVolt);
    std::copy_n(derived.zeroCurrent, 4, words.zeroCurrent);
    for (int k = 0; k < 4; ++k)
        words.gainVolt[k] = derived.voltGain[k] / reference;
    words.transientThreshold = static_cast<float>(values.transThreshold) / reference;
    words.flickerLamp = SettingValues::lampOf(values.flickerWeightingCurve);
    words.signalFrequency1 = limits.frequency1.value;
    words.signalFrequency2 = limits.frequency2.value;
    return words;
}

void SetUpFrame::append(QByteArray &frame, const SetUpWords &words)
{
    ControlFrame::appendWord(frame, ControlFrame::kStart);
    ControlFrame::appendWord(frame, ControlFrame::SetUp);
    ControlFrame::appendEscaped(frame, words.configuration);
    appendEscaped(frame, words.zeroVolt);
    appendEscaped(frame, words.zeroCurrent);
    appendEscaped(frame, words.gainVolt);
    appendEscaped(frame, words.gainCurrent);
    ControlFrame::appendEscaped(frame, words.transientThreshold);
    ControlFrame::appendEscaped(frame, words.flickerLamp);
    ControlFrame::appendEscaped(frame, words.signalFrequency1);
    ControlFrame::appendEscaped(frame, words.signalFrequency2);
    ControlFrame::appendWord(frame, ControlFrame::kEnd);
}

AnalogSelectors SetUpFrame::selectors(const Derived &derived)
{
    return { DeviceInit::selectorOfVolt(derived.voltIndex), DeviceInit::selectorOfCurrent(derived.currentIndex),
             DeviceInit::selectorOfCurrent(derived.currentNIndex) };
}
