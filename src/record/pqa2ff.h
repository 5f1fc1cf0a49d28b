#pragma once

#include "record/pqa2format.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <memory>

class Pqa2Device;

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

/// Payloads of the opening blocks: what a file says of its instrument (pqa2info.h).
struct Pqa2Opening
{
    QByteArray instrument;
    QByteArray setting;
    QByteArray factors;
};

/// Writer of a PQA2 file: a head and a chain of typed blocks. A block is linked from the one before it only when all of
/// it is in the file, so that whatever ends the process leaves every finished block readable (docs/formats/pqa2.md).
/// One thread at a time; opened on the main thread.
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

    /// Who is asked, at each opening, what the file and its further parts say of the instrument; nothing is said
    /// before.
    static void setOpening(Pqa2Opening (*source)()) { s_opening = source; }

    /// Starts the file anew with its head and the three opening blocks. 0 without a path, without room, or when the
    /// file cannot be opened or begun; then there is no open file.
    int open();
    int open(const QString &path);
    int open(const char *path);
    bool isOpen() const { return m_open; }
    void close();
    /// From now on a block that no link could reach any more goes on in a next file, the next part of the recording,
    /// which has a head and opening blocks of its own. `begin`, where given, then writes what every part begins with.
    void continueInParts(std::function<void(Pqa2FF &)> begin = {});
    /// A block was refused because the file has reached its end just below 4 GiB, and no next part was begun.
    bool isFull() const { return m_full; }
    /// The last block was refused, for whatever reason; the next one may succeed.
    bool refuses() const { return m_refuses; }
    /// Part 2 of "Common.pqa2" is "Common_2.pqa2"; part 1 is the file itself.
    static QString partPath(const QString &path, int part);
    /// Has the system write out what was written so far: the point that a power cut cannot go behind.
    void flush();
    /// The same without waiting for it, where something was written since the last time.
    void flushBehind();

    /// 0: stored, or no file open. -1: nothing stored, for lack of room, because the storage failed or the file is
    /// full; the file stays whole, and unless it is full the next block may succeed.
    int addDataBlock(Pqa2DBType type, const char *data, int size);
    int addDataBlock(Pqa2DBType type, const QByteArray &data);
    /// Many blocks of one kind at once, for as little of the caller's time as one: they are linked when all of them are
    /// in the file. Where that fails they are stored one by one, as far as they go. -1: not all are stored.
    int addDataBlocks(Pqa2DBType type, const QList<QByteArray> &payloads);
    /// The raw form tells the debug log when it is refused, of several in a row with the first.
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
    int tryBlock(quint32 type, const char *data, qint64 size);
    int storeBlock(quint32 type, const char *data, qint64 size);
    void bufferBlock(quint32 oonb, quint32 type, const char *data, qint64 size);
    int storeBuffer(qint64 lastBlock);
    bool beginNextPart();
    bool begin();
    bool modifyLastOONB(const _pqa2_block_iterator &block);
    void dropTail(qint64 end);

    static Pqa2Opening (*s_opening)();

    std::unique_ptr<Pqa2Device> m_device;
    QString m_path; // of the part that is open, or of the first one
    QString m_firstPath;
    int m_part = 1;
    bool m_open = false;
    bool m_full = false;
    bool m_refuses = false;
    bool m_logged = false; // that blocks are refused
    bool m_unflushed = false; // something was written that no flush was begun for
    bool m_continues = false; // in a next part
    std::function<void(Pqa2FF &)> m_beginPart;
    Pqa2Opening m_opening;
    qint64 m_end = 0; // where the next block starts
    QList<_pqa2_block_iterator> m_last; // the last blocks, at most three
    QByteArray m_buffer; // blocks on their way into the file
};
