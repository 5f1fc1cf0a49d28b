#pragma once

#include "device/datagramtypes.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class DeliveryQueue;
struct Delivery;
class DeviceDSP;
class DeviceGPIO;
class QThread;

/// The facade through which the program meets the measurement processor: owns the device thread with its DeviceDSP, and
/// the range switches. Datagrams come out as signals in the main thread, frames go in as pointers to static storage.
/// Main thread only. Made once at start (m_idevice) and never deleted by the program.
class IDevice : public QObject
{
    Q_OBJECT
public:
    explicit IDevice(QObject *parent = nullptr);
    ~IDevice() override;

    /// Queues a write of `len` bytes. Only the pointer crosses to the device thread: the bytes must stay valid and
    /// unchanged until that thread has written them, so they live in static storage.
    void sendDSPMgmt(const void *data, unsigned int len);
    /// Queues a write of a frame that is too large for static storage: its bytes live until they are written.
    void sendDSPMgmt(const QByteArray &frame);
    /// What the processor reported of its firmware; before that "CPU:ADSP-21479;Silicon:0.2;Firmware:None;".
    QString dspVersion() const;
    /// Sends 8 clock bytes in the older form of the clock command.
    void changeHWClock(QByteArray bytes);

    // Range switches, 0 to 3 (DeviceGPIO).
    void changeCurrentGPIO(int value);
    void changeVoltGPIO(int value);
    void changeNCurrentGPIO(int value);
    void changeNVoltGPIO(int value);
    void changeAnalogSwitchI(int value); // phase currents, then neutral current
    void changeAnalogSwitchV(int value); // phase voltages, then neutral voltage

signals:
    void datagramAggregation(const QByteArray &datagram);
    void datagramRMS_1_2(const QByteArray &datagram);
    void datagramTransient(const QByteArray &datagram);
    void datagramWave(const QByteArray &datagram);
    void datagramFlicker(const QByteArray &datagram);
    void datagramFirmwareInfo(const QByteArray &text);
    void datagramUpdate(const QByteArray &datagram);
    void dspTimeStamp(quint32 seconds);
    void usingBDS(quint32 word);
    void requestTypeData(int type, int interval);
    void requestVersion();
    void writeHWClock(QByteArray bytes);
    void dspUpdate(QByteArray frame);
    void dspUpdateStatus(int status, quint32 value);
    void writeDSP(const void *data, int len);
    /// The node was lost and is open again (desk only). The set-up has been queued anew when this comes.
    void reopened();

public slots:
    void datagramAggregationSlot(__datagramtype type, const QByteArray &datagram);
    void datagramRMS_1_2Slot(__datagramtype type, const QByteArray &datagram);
    void datagramTransientSlot(__datagramtype type, const QByteArray &datagram);
    void datagramWaveSlot(__datagramtype type, const QByteArray &datagram);
    void datagramFlickerSlot(__datagramtype type, const QByteArray &datagram);
    void datagramFirmwareInfoSlot(__datagramtype type, const QByteArray &text);
    void datagramUpdateSlot(__datagramtype type, const QByteArray &datagram);
    void dspTimeStampSlot(quint32 seconds);
    void usingBDSSlot(quint32 word);
    void requestDSPData(int type, int interval);
    void requestDSPVersion();
    /// Sounds the processor's buzzer.
    void buzzerRing(unsigned int value = 0);
    /// Passes a whole frame of the update procedure on.
    void firmwareUpdate(QByteArray frame);

private:
    void connectLink();
    void connectResults();
    Q_INVOKABLE void resultCame();
    void takeResults();
    void takeDatagram(const Delivery &result);
    void setUpAgain();

    std::unique_ptr<DeliveryQueue> m_results; // from the device thread
    QTimer m_rest; // runs until the rest of a long turn is taken
    DeviceDSP *m_dsp;
    QThread *m_thread;
    DeviceGPIO *m_gpio = nullptr;
    QString *m_version;
};

extern IDevice *m_idevice;
