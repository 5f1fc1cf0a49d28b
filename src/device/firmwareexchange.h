#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

class IDevice;

/// Carries a new firmware to the measurement processor, one step after the other: the length is announced, the image
/// sent, the flashing waited for; each step waits for its answer (docs/link-protocol.md, "Firmware update"). One object
/// for one update. What it comes to is told by signals; each of them but the two of the way ends it. Main thread.
class FirmwareExchange : public QObject
{
    Q_OBJECT

public:
    enum Stage { Idle = 0, Announced = 1, DataSent = 2, Flashing = 4 };
    enum Code : quint32 { CodeAnnounce = 0xC401, CodeData = 0xC402, CodeFlash = 0xC403 };

    static constexpr int kAnnounceMs = 3000; // until the answer must be there
    static constexpr int kDataMs = 60000; // transfer and checksum, then the flashing
    static constexpr int kFaultMs = 10000; // after a fault of the flashing
    static constexpr qint64 kMostBytes = 8 * 1024 * 1024; // of an image

    explicit FirmwareExchange(IDevice *device, QObject *parent = nullptr);

    /// Announces `content`, the plain image.
    void start(const QByteArray &content);
    Stage stage() const { return m_stage; }
    quint16 status() const { return m_status; } // low 16 bits of the last answer to the flashing, 0 before one
    /// ms that the answer is waited for, -1 when nothing is.
    int waitMs() const { return m_timer.isActive() ? m_timer.interval() : -1; }

    /// The image as it is sent: padded to whole words, the checksum of the bytes without padding behind it.
    static QByteArray padded(const QByteArray &content);
    /// The frame of the data: all words of `image`, those that read as markers escaped.
    static QByteArray dataFrame(const QByteArray &image);
    static QByteArray announceFrame(quint32 length);
    /// Asks for the flashing by itself. The processor flashes on its own once the checksum is good.
    static QByteArray flashFrame();
    /// Reflected CRC-32 (polynomial 0xEDB88320, initial value and final inversion all ones). A length below 1 gives 0.
    static quint32 _crc_32(const void *data, int length);

public slots:
    /// An answer, behind its time stamp. Words that a short one lacks are 0.
    void firmwareUpdate(const QByteArray &answer);
    void firmwareTimeOut();

signals:
    void dataTaken(); // checksum good, the flashing goes on
    void flashFault(); // waits for another answer
    void completed();
    /// An answer that does not fit the stage, or refuses it.
    void refused(int stage, quint32 code, quint32 result);
    void timedOut(int stage);

private:
    void wait(Stage stage, int ms);
    void end();
    void firmwareSendData();
    void flashAnswered(quint32 code, quint32 result);

    IDevice *const m_device;
    QByteArray m_image; // until it is sent
    QTimer m_timer;
    Stage m_stage = Idle;
    quint16 m_status = 0;
};
