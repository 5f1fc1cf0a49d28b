#pragma once

#include <QByteArray>
#include <QtGlobal>

/// Sends the frames that set the measurement processor up through m_idevice; nothing answers them. It takes the set-up
/// in use from the globals and builds by setupframe.h. Layouts: docs/link-protocol.md, "Frames". Main thread; does
/// nothing without m_idevice.
class DeviceInit
{
public:
    /// The full processor start: ranges at once, then set-up, firmware request and start of the stream, queued. A new
    /// set-up is the only way that changed settings reach the processor.
    static void initAnalogDevice2();
    /// Switches the four analog channels to the ranges of the settings.
    static void set_analog_channel();
    static void setupADSP21479();
    static void getADSPFWInfo();
    static void startDataStream();
    static void stopDataStream();
    /// Sets the processor's clock. Eight binary bytes: seconds, minutes, hours, day of the week, day, month, low and
    /// high byte of the year. Any other length sends nothing.
    static void setADSPHWClock(const QByteArray &bytes);
    /// Neutral set-up for the calibration: no offsets, gains of 1.
    static void change2CalibMode();
    /// The same with four voltage and four current offsets, converter units.
    static void changeCalibZero(float *v, float *i);

    /// Hertz that the set-up frame carries: 50 or 60 when `hertz` lies within 1 of it, else 400.
    static quint32 nominalFrequencyWord(double hertz);
    /// Selector value of a current channel for a range index 0 to 3; 1 for any other.
    static int selectorOfCurrent(int index);
    /// The same of a voltage channel.
    static int selectorOfVolt(int index);
};
