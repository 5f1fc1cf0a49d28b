#pragma once

#include "record/pqa2format.h"

#include <QByteArray>

class QIODevice;

/// A block as it stands in the file.
struct Pqa2Block
{
    qint64 offset = 0; // of its head
    quint32 type = 0; // Pqa2DBType, or a kind that this version does not know
    quint32 size = 0; // bytes of the payload; all of them lie inside the file
};

/// Reader of a PQA2 file, whoever wrote it: follows the links from block to block, in constant memory, whatever the
/// bytes are. It stops at the first thing that is wrong and says where and what; skipDamage() then looks for the blocks
/// that stand behind it. Nothing is written. The device is the caller's, open for reading and random access.
class Pqa2Reader
{
public:
    /// What is known of the file so far.
    enum State {
        Whole, // nothing wrong was found
        Cut, // everything up to the fault was delivered, and nothing is known behind it
        Broken, // damaged in the middle: blocks were found on both sides of a fault
        Unreadable // no file of this format
    };

    static constexpr qint64 kMostView = 256 << 10; // bytes that view() gives
    static constexpr qint64 kMostPayload = 16 << 20; // bytes that payload() gives; far above every writer's

    explicit Pqa2Reader(QIODevice *device);

    /// The next block, its payload left in the file. False at the end and at a fault.
    bool next(Pqa2Block *block);
    /// At a fault: true when a chain of blocks was found behind it, which next() goes on with. Searches the file once.
    bool skipDamage();
    /// The payload from byte `at` on, at most `most` bytes of it; fewer when the file has become shorter meanwhile.
    QByteArray payload(const Pqa2Block &block, qint64 at = 0, qint64 most = kMostPayload);
    /// The payload, or its first \a most bytes, where they lie: valid until the next call. Null where more is asked for
    /// than kMostView, and when the file has become shorter meanwhile.
    const char *view(const Pqa2Block &block, qint64 most = kMostView)
    {
        return bytes(block.offset + qint64(sizeof(Pqa2BlockHead)), qMin(most, qint64(block.size)));
    }

    State state() const { return m_state; }
    qint64 faultOffset() const { return m_faultOffset; } // of the first fault, -1 without one
    const char *reason() const { return m_reason; } // of the first fault, for people; empty without one

private:
    bool head(qint64 offset, Pqa2BlockHead *head);
    bool isGapWithoutBlock(const Pqa2BlockHead &head, qint64 end) const;
    bool isPlausible(qint64 offset, Pqa2BlockHead *head);
    bool startsChain(qint64 offset);
    qint64 nextCandidate(qint64 offset);
    bool readHeader();
    bool fail(qint64 offset, qint64 searchFrom, const char *reason);
    /// So many bytes of the file, valid until the next call; null when they are not all there.
    const char *bytes(qint64 offset, qint64 count)
    {
        const qint64 at = offset - m_windowOffset;
        const bool isInWindow = at >= 0 && count >= 0 && at + count <= m_windowSize;
        return isInWindow ? m_windowBytes + at : load(offset, count);
    }
    const char *load(qint64 offset, qint64 count);

    QIODevice *m_device;
    qint64 m_size = 0; // of the file, as it was found
    QByteArray m_window; // piece of the file
    qint64 m_windowOffset = 0;
    const char *m_windowBytes = nullptr; // those of m_window
    qint64 m_windowSize = 0;
    qint64 m_next = -1; // offset of the next block; -1: none, or a fault
    qint64 m_gapFrom = -1; // end of the block before, where its link leads further than there
    int m_probes = 0; // places looked at far from the search
    qint64 m_searchFrom = -1; // where blocks behind the last fault may begin; -1: nothing to search
    State m_state = Whole;
    qint64 m_faultOffset = -1;
    const char *m_reason = "";
};
