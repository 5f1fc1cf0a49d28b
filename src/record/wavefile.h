#pragma once

#include "record/storedfile.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <cstddef>
#include <memory>
#include <type_traits>

class Pqa2Device;
class QIODevice;
struct Derived;

// Waveform captures (".wav", not the sound format of that name): a head and chunks of raw samples.
// Format: docs/formats/waveform-capture.md.

constexpr quint32 kWaveFormat = 0x02020006;
constexpr quint32 kWaveMark1 = 0xAA55A5A5;
constexpr quint32 kWaveMark2 = 0xCC33C3C3;
constexpr int kWaveInputs = 8; // of a frame
constexpr int kWaveFrameBytes = kWaveInputs * int(sizeof(qint16));

/// Head of the file, little-endian, 88 bytes. It is true after every chunk.
struct WaveFileHeader
{
    char magic[4]; // 'W', 'A', 'V', 0x1A
    quint32 format; // kWaveFormat
    qint32 nominalVolt; // V with the transformer's ratio, truncated
    qint32 nominalFrequency; // Hz, truncated
    qint32 joinMode; // the wiring, 1 to 10
    qint32 clampRatio; // uV/A, clamp of the phases
    float voltFactor[4]; // V for one step of a sample: L1, L2, L3, N
    float ampereFactor[4]; // A for one step of a sample
    quint32 begin; // planned start, s since 1970; of one that began at once the moment of it
    quint32 lastWrite; // s since 1970
    quint32 sampleRate; // frames per second
    quint32 padding; // 0
    quint64 frames; // in the chunks behind
    quint32 mark1; // kWaveMark1
    quint32 mark2; // kWaveMark2

    /// Whether it is the head of a capture.
    bool isValid() const;
};
static_assert(sizeof(WaveFileHeader) == 88 && offsetof(WaveFileHeader, voltFactor) == 24
                  && offsetof(WaveFileHeader, begin) == 56 && offsetof(WaveFileHeader, frames) == 72
                  && offsetof(WaveFileHeader, mark1) == 80,
              "as in the file");
static_assert(std::is_trivially_copyable_v<WaveFileHeader>, "written and read byte for byte");

/// Writer of a capture. A chunk is whole in the file before the head counts it, so that whatever ends the process
/// leaves a file whose head tells what is there. Main thread.
class WaveFile
{
public:
    /// \a name: without folder and suffix; \a beginTime: 0 for at once. The factors and the wiring are those of \a
    /// setUp as it stands now.
    WaveFile(const QString &name, unsigned int beginTime, unsigned int sampleRate, const Derived &setUp);
    /// On another device.
    WaveFile(const QString &name, unsigned int beginTime, unsigned int sampleRate, const Derived &setUp,
             std::unique_ptr<Pqa2Device> device);
    WaveFile(const WaveFile &) = delete;
    WaveFile &operator=(const WaveFile &) = delete;

    /// Begins the file with its head and enters it in the index; \a localTime is the time of day of the user's zone.
    /// Nothing happens to one that is open. False: there is no open file.
    bool open(const QDateTime &localTime);
    bool isOpen() const { return m_file.isOpen(); }
    /// A chunk of whole frames, written at \a time (s since 1970). The bytes stored: 0 for fewer than 9 and without an
    /// open file; -1 when the storage refused it. Then nothing of it is left and the head is as it was. Every few
    /// seconds a flush goes with it.
    qint64 write(const QByteArray &data, unsigned int time);
    /// Has the system write out what was written so far, without waiting for it. False when it was not begun, as the
    /// flush before still goes on.
    bool flush() { return m_file.flush(); }
    void close() { m_file.close(); }
    /// Closes the file; one that is not kept is deleted, and its entry in the index with it.
    void save(bool keep);

    const WaveFileHeader &header() const { return m_header; }
    QString fileName() const; // with the suffix
    QString fullFilePath() const; // the board's
    static QString suffix() { return QStringLiteral(".wav"); }

private:
    bool writeHeader();

    const QString m_name;
    WaveFileHeader m_header;
    StoredFile m_file;
};

/// A chunk as it stands in the file.
struct WaveChunk
{
    qint64 offset = 0; // of its first frame
    qint64 frames = 0; // whole ones, all inside the file
};

/// Reader of a capture, whoever wrote it: from chunk to chunk, in constant memory, whatever the bytes are. Nothing is
/// written. The device is the caller's, open for reading and random access.
class WaveFileReader
{
public:
    /// What is known of the file so far.
    enum State {
        Whole, // nothing wrong was found
        Cut, // everything up to the fault was delivered, and nothing is known behind it
        Broken, // a length between two chunks is damaged; both were delivered
        Unreadable // no capture
    };

    explicit WaveFileReader(QIODevice *device);

    /// All zeros for a file that is no capture.
    const WaveFileHeader &header() const { return m_header; }
    /// The next chunk, its frames left in the file. False at the end and at a fault that cannot be passed.
    bool next(WaveChunk *chunk);
    /// The frames of a chunk from frame \a at on, at most \a most of them; fewer when the file has become shorter.
    QByteArray frames(const WaveChunk &chunk, qint64 at = 0, qint64 most = kMostFrames);

    State state() const { return m_state; }
    qint64 faultOffset() const { return m_faultOffset; } // of the first fault, -1 without one
    const char *reason() const { return m_reason; } // of the first fault, for people; empty without one

    static constexpr qint64 kMostFrames = 65536; // that frames() gives at once

private:
    bool lengthAt(qint64 offset, quint32 *length);
    bool passDamagedLength(quint32 *length);
    void fail(State state, qint64 offset, const char *reason);
    void finish();

    QIODevice *m_device;
    qint64 m_size = 0; // of the file, as it was found
    WaveFileHeader m_header {};
    qint64 m_next = -1; // offset of the next length; -1: none
    quint64 m_found = 0; // frames delivered
    State m_state = Whole;
    qint64 m_faultOffset = -1;
    const char *m_reason = "";
};
