#pragma once

#include <QByteArray>
#include <QtGlobal>

#include "settings/limits.h"

struct Derived;
struct SettingValues;

/// Payload of the set-up frame, in the order of the wire (docs/link-protocol.md, "Frames"). As it stands: a neutral
/// set-up, without offsets and with gains of 1, for the calibration.
struct SetUpWords
{
    quint32 configuration = 0x00320002; // 31 to 16: hertz; 15: flexible clamp; 14 to 0: wiring code; here 50 Hz, code 2
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

/// Selector values of the analog ranges.
struct AnalogSelectors
{
    int volt, current, currentN;
};

namespace SetUpFrame {

/// The words for a set-up; no globals. `derived` may belong to another calibration than the one in use.
SetUpWords words(const Derived &derived, const SettingValues &values, const monitor_limit &limits);
/// Appends the whole frame to `frame`.
void append(QByteArray &frame, const SetUpWords &words);
AnalogSelectors selectors(const Derived &derived);

}
