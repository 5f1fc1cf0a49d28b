#pragma once

#include <QObject>
#include <QString>

/// The range switches of the analog inputs: two selector lines and an enable line for each of four channels, driven by
/// shell commands on the kernel's GPIO files. It remembers nothing: the lines keep their state in the kernel.
/// Main thread; each command blocks it for the length of a shell run. Failures pass unnoticed.
class DeviceGPIO : public QObject
{
    Q_OBJECT
public:
    explicit DeviceGPIO(QObject *parent = nullptr);

    // Selector value 0 to 3; only the two low bits count.
    void changeCurrentGPIO(int value); // phase currents
    void changeVoltGPIO(int value); // phase voltages
    void changeNCurrentGPIO(int value); // neutral current
    void changeNVoltGPIO(int value); // neutral voltage

    /// Exports all lines, makes them outputs and switches the four channels on.
    void initDeviceGPIO();
    void resetDeviceGPIO() { initDeviceGPIO(); }
    void closeDeviceGPIO() { }
    void initGPIO(QString number);
    /// Opens the value file of a line; the caller closes it. -1 when it does not exist or does not open.
    int openGPIODev(QString number);
};
