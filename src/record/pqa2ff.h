#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <cstddef>
#include <memory>

class Pqa2Device;

/// Kinds of blocks in a PQA2 file; the payloads are told in docs/formats/pqa2.md.
enum Pqa2DBType : quint32 {
    Pqa2Blank = 0,
    Pqa2InstrumentInfo = 0xA1000001,
    Pqa2SystemLog = 0xA1000009,
    Pqa2SystemSetting = 0xA1000010,
    Pqa2ChannelFactor = 0xA1000011,
    Pqa2StartTime = 0xA1000018,
    Pqa2EndTime = 0xA1000019,
    Pqa2Transient = 0xA1000025,
    Pqa2FlickerShort = 0xA1000026,
    Pqa2FlickerLong = 0xA1000027,
    Pqa2EventWave = 0xA100002A,
    Pqa2MonitorFrequency = 0xA1010000,
    Pqa2MonitorVoltage = 0xA1010001,
    Pqa2MonitorFlickerShort = 0xA1010002,
    Pqa2MonitorFlickerLong = 0xA1010003,
    Pqa2MonitorUnbalance = 0xA1010004,
    Pqa2MonitorHarmonics = 0xA1010005,
    Pqa2MonitorSecondSpectrum = 0xA1010006,
    Pqa2EventHead = 0xA1010080,
    Pqa2EventCurves = 0xA1010083,
};

constexpr quint32 kPqa2LastBlock = 0xFFFFFFFF; // link of a block that none follows

#pragma pack(push, 1)
/// Head of the file, 24 bytes.
struct Pqa2FileHeader
{
    char magic[4]; // "PQA2"
    quint32 version; // format and version code
    quint8 signature[8]; // the same in all files
    quint32 mark1;
    quint32 mark2;
};
/// Head of a block; the payload follows, then bytes without meaning up to a multiple of 4.
struct Pqa2BlockHead
{
    quint32 oonb; // file offset of the next block, or kPqa2LastBlock
    quint32 type; // Pqa2DBType
    quint32 size; // bytes of the payload
};
#pragma pack(pop)
static_assert(sizeof(Pqa2FileHeader) == 24 && offsetof(Pqa2FileHeader, signature) == 8
                  && offsetof(Pqa2FileHeader, mark1) == 16,
              "as stored");
static_assert(sizeof(Pqa2BlockHead) == 12 && offsetof(Pqa2BlockHead, type) == 4, "as stored");

/// The head that every file begins with.
constexpr Pqa2FileHeader kPqa2FileHeader = {
    { 'P', 'Q', 'A', '2' },
    0x10002009,
    { 0x9B, 0x51, 0x56, 0x52, 0x0D, 0x0A, 0x1A, 0x0A }, // a byte that text lacks, line ends that a text copy would turn
    0xA5A5A5A5,
    0xC3C3C3C3,
};

/// A block for the raw form of addDataBlock.
struct _pqa2_data_block
{
    quint32 oonb; // written as kPqa2LastBlock whatever stands here
    quint32 type; // Pqa2DBType
    quint32 size; // bytes of the payload
    const char *data;
};

/// Where a block starts and what its link is to hold.
struct _pqa2_block_iterator
{
    quint32 offset;
    quint32 oonb;
};

/// Writer of a PQA2 file: a head and a chain of typed blocks. A block is linked from the one before it only when all of
/// it is in the file, so that whatever ends the process leaves every finished block readable (docs/formats/pqa2.md).
/// Main thread only.
class Pqa2FF
{
public:
    static constexpr float kRoomToOpen = 50.0f; // MB
    static constexpr float kRoomToWrite = 5.0f; // MB

    Pqa2FF();
    explicit Pqa2FF(const char *path); // a board's path, as all paths here
    explicit Pqa2FF(const QString &path);
    /// On another device, which it takes over.
    explicit Pqa2FF(std::unique_ptr<Pqa2Device> device);
    ~Pqa2FF();
    Pqa2FF(const Pqa2FF &) = delete;
    Pqa2FF &operator=(const Pqa2FF &) = delete;

    /// Starts the file anew with its head and the three opening blocks. 0 without a path, without room, or when the
    /// file cannot be opened or begun; then there is no open file.
    int open();
    int open(const QString &path);
    int open(const char *path);
    bool isOpen() const { return m_open; }
    void close();
    /// Has the system write out what was written so far: the point that a power cut cannot go behind.
    void flush();

    /// 0: stored, or no file open. -1: nothing stored, for lack of room or because the storage failed; the file stays
    /// whole and the next block may succeed.
    int addDataBlock(Pqa2DBType type, const char *data, int size);
    int addDataBlock(Pqa2DBType type, const QByteArray &data);
    /// The raw form tells the debug log when it is refused.
    int addDataBlock(const _pqa2_data_block &block);
    /// Text with the present time before it.
    int addSystemLog(const QByteArray &text);
    int addBlankBlock();
    /// Bytes outside the chain, at the end of the file. Bytes taken, or -1.
    qint64 write(const char *data, qint64 size);

    qint64 size() const; // bytes, -1 when not open
    QString fileName() const; // without the folder
    QString fullFilePath() const { return m_path; }
    static QString defaultPqa2Suffix() { return QStringLiteral(".pqa2"); }

private:
    bool initFileHeader();
    int appendBlock(quint32 type, const char *data, qint64 size);
    bool modifyLastOONB(const _pqa2_block_iterator &block);
    void dropTail(qint64 end);

    std::unique_ptr<Pqa2Device> m_device;
    QString m_path;
    bool m_open = false;
    qint64 m_end = 0; // where the next block starts
    QList<_pqa2_block_iterator> m_last; // the last blocks, at most three
    QByteArray m_buffer; // block on its way into the file
};
