#pragma once

#include "device/datagramtypes.h"

#include <QByteArray>
#include <QObject>

class QSocketNotifier;
class QTimer;

/// Reads the processor's packages of 8192 bytes, reassembles them into datagrams and emits one signal for each; also
/// the one place that writes to the processor (docs/link-protocol.md).
/// Lives on the device thread, where it emits; IDevice hands what it emits to the main thread. It decodes nothing:
/// payloads leave as they came, behind eight bytes of time stamp (ms since 1970, little-endian). Whatever arrives, no
/// copy leaves its buffer: where a package claims more words than there are, the copy is cut.
class DeviceDSP : public QObject
{
    Q_OBJECT
public:
    explicit DeviceDSP(QObject *parent = nullptr);
    ~DeviceDSP() override;

signals:
    void datagramAggregation(__datagramtype type, const QByteArray &datagram);
    void datagramRMS_1_2(__datagramtype type, const QByteArray &datagram);
    void datagramTransient(__datagramtype type, const QByteArray &datagram); // Kept: never emitted
    void datagramWave(__datagramtype type, const QByteArray &datagram);
    void datagramFlicker(__datagramtype type, const QByteArray &datagram);
    void datagramFirmwareInfo(__datagramtype type, const QByteArray &datagram); // without the time stamp
    void datagramUpdate(__datagramtype type, const QByteArray &datagram);
    /// The clocks differ: the processor's time, s since 1970.
    void dspTimeStamp(quint32 seconds);
    /// The processor's time comes from its BDS receiver; the value is its word of the head, never 0.
    void usingBDS(quint32 word);
    void dspUpdateStatus(int status, quint32 value); // Kept: declared and relayed, never emitted
    /// The node had gone and is open again: the processor must be set up anew.
    void reopened();

public slots:
    /// Writes a frame of `len` bytes. One that begins with the bare word 198 is repeated three times, a second apart,
    /// and is dropped while an earlier one is still being repeated.
    void DSPWrite(const void *data, int len);
    /// One read() of the node; answers what read() answers.
    int DSPRead(char *buffer, unsigned int len);
    void requestVersion() { } // the version is asked for by a frame
    /// Sends the 8 clock bytes in the older form of the clock command.
    void writeHWClock(const QByteArray &bytes);
    /// Sends a whole frame of the update procedure.
    void firmwareUpdate(const QByteArray &frame);
    void RecvStart(int, int) { } // the stream is the same whatever is asked for
    void RecvStop();
    void datagramLoop();
    void dspNotifier();
    /// Stops the stream, waits 500 ms, opens the node anew and stops the stream again. Runs as the thread starts.
    void openDSP();
    void dspSetupTimeout();

private:
    /// Reads and takes one package. 0: taken; -1: nothing to read, or refused. Never blocks.
    int handleDatagram();
    bool openDSPDev();
    void closeDSPDev();
    void resetDSP();
    void updateClock(const QByteArray &bcd);

    bool isNodeOpened(); // openDSPDev() with its message
    void readPackages();
    bool takesPackage(quint32 flag);
    bool continuesDatagram(quint32 flag);
    bool beginsDatagram(quint32 flag);
    bool storePayload(quint32 flag);
    void emitDatagram();
    void checkClock();
    void writeNode(const void *data, int len);
    void pauseReading(int milliseconds);
    void burstFailed();
    bool isNodeHungUp() const;
    void resumeReading();

    QTimer *m_recvTimer = nullptr;
    qint32 m_clockCountDown = 30; // r.m.s. datagrams until the clocks are compared, which is at 1; may run negative
    qint32 m_clockReload = 30; // r.m.s. datagrams from a correction to the next comparison
    int m_fd = -1;
    QSocketNotifier *m_notifier = nullptr;
    quint32 m_updateWord = 0; // second word of the last update frame
    quint8 m_clockUpdated = 0;
    quint8 m_waitFirst = 1; // the next package must begin a datagram
    quint8 m_setupAcked = 0; // Kept: nothing sets it
    quint8 m_setupPending = 0;
    qint32 m_setupRetries = 0;
    char m_setupFrame[104] = {};
    QTimer *m_pauseTimer = nullptr; // runs while reading is paused
    bool m_nodeGone = false; // to be opened anew when the pause ends
    int m_failedPause = 0; // ms of the pause behind the last burst, 0 when it was none that only failed
    int m_burstErrors = 0; // reads of this burst that failed one after the other, an empty node not counted
    int m_burstPackages = 0; // read in this burst, good or not
};
