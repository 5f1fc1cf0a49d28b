#include "record/pqa2reader.h"

#include <QFileDevice>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

constexpr qint64 kWindow = Pqa2Reader::kMostView; // bytes
constexpr qint64 kHeadBytes = sizeof(Pqa2BlockHead);
constexpr int kMostProbes = 200000; // a file made to mislead the search gets no further

/// Where something is stored from \a offset on, as the file system tells it: a hole reads as zeros, gigabytes of them
/// at times. \a size where nothing is.
qint64 behindHole(QIODevice *device, qint64 offset, qint64 size)
{
    const auto *file = qobject_cast<QFileDevice *>(device);
    if (!file || file->handle() < 0)
        return offset;
    const off_t data = ::lseek(file->handle(), offset, SEEK_DATA);
    if (data < 0)
        return errno == ENXIO ? size : offset;
    return std::clamp<qint64>(data, offset, size);
}

/// Where the next block stands when nothing lies between.
qint64 endOf(qint64 offset, const Pqa2BlockHead &head)
{
    return offset + kHeadBytes + ((qint64(head.size) + 3) & ~qint64(3));
}

} // namespace

Pqa2Reader::Pqa2Reader(QIODevice *device) : m_device(device)
{
    m_size = m_device && m_device->isReadable() && !m_device->isSequential() ? m_device->size() : 0;
    if (readHeader())
        m_next = qint64(sizeof kPqa2FileHeader);
    else
        m_state = Unreadable;
}

bool Pqa2Reader::readHeader()
{
    const char *header = bytes(0, qint64(sizeof kPqa2FileHeader));
    if (!header)
        return fail(0, -1, m_size == 0 ? "the file is empty or cannot be read" : "the file is shorter than its head");
    if (std::memcmp(header, &kPqa2FileHeader, sizeof kPqa2FileHeader) != 0)
        return fail(0, -1, "the head is not that of a recorded file");
    return true;
}

/// Notes what is wrong. Always false.
bool Pqa2Reader::fail(qint64 offset, qint64 searchFrom, const char *reason)
{
    if (m_faultOffset < 0) {
        m_faultOffset = offset;
        m_reason = reason;
    }
    if (m_state == Whole)
        m_state = Cut;
    m_next = -1;
    m_searchFrom = searchFrom;
    return false;
}

/// The same from a window that begins there.
const char *Pqa2Reader::load(qint64 offset, qint64 count)
{
    if (offset < 0 || count < 0 || count > kWindow || offset > m_size - count)
        return nullptr;
    const int wanted = int(std::min(kWindow, m_size - offset));
    if (m_window.size() < wanted || !m_window.isDetached())
        m_window = QByteArray(int(std::min(kWindow, m_size)), Qt::Uninitialized);
    const qint64 got = m_device->seek(offset) ? m_device->read(m_window.data(), wanted) : -1;
    m_windowOffset = offset;
    m_windowBytes = m_window.constData();
    m_windowSize = std::max<qint64>(got, 0);
    return count <= m_windowSize ? m_windowBytes : nullptr;
}

bool Pqa2Reader::head(qint64 offset, Pqa2BlockHead *head)
{
    const char *there = bytes(offset, kHeadBytes);
    if (there)
        std::memcpy(head, there, sizeof *head);
    return there != nullptr;
}

/// A link that skips bytes is as unusual as it is a sign of damage: what it leads to must be known.
bool Pqa2Reader::isGapWithoutBlock(const Pqa2BlockHead &head, qint64 end) const
{
    return m_gapFrom >= 0 && (end > m_size || !pqa2KindName(head.type));
}

bool Pqa2Reader::next(Pqa2Block *block)
{
    if (m_next < 0)
        return false;
    const qint64 offset = m_next;
    Pqa2BlockHead head;
    if (!this->head(offset, &head))
        return fail(offset, m_gapFrom, "the file ends where a block is to begin");
    const qint64 end = endOf(offset, head);
    if (isGapWithoutBlock(head, end))
        return fail(offset, m_gapFrom, "a link does not lead to a block");
    if (end > m_size)
        return fail(offset, offset + 4, "a block is longer than the rest of the file");
    const bool linksInside = head.oonb > offset && head.oonb < end;
    if (linksInside && startsChain(head.oonb))
        return fail(offset, offset + 4, "a block is longer than its link tells");
    *block = { offset, head.type, head.size };
    m_next = -1;
    m_gapFrom = -1;
    if (head.oonb == kPqa2LastBlock) {
        if (end != m_size)
            fail(end, end, "bytes stand behind the last block");
    } else if (head.oonb % 4 != 0 || head.oonb < end) {
        fail(offset, offset + kHeadBytes, "a link does not lead forward to a block");
    } else if (head.oonb >= m_size) {
        fail(offset, end, "a link leads behind the end of the file");
    } else {
        m_next = head.oonb;
        m_gapFrom = head.oonb == end ? -1 : end;
    }
    return true;
}

/// Whether what stands there may be the head of a block as the writer sets it: of a kind of the format, inside the
/// file, linked to the place right behind it or to nothing.
bool Pqa2Reader::isPlausible(qint64 offset, Pqa2BlockHead *found)
{
    if (!head(offset, found) || !pqa2KindName(found->type))
        return false;
    const qint64 end = endOf(offset, *found);
    return end <= m_size && (found->oonb == kPqa2LastBlock ? end == m_size : qint64(found->oonb) == end);
}

/// One block alone is no chain: a process that ends between a block and its link leaves one, and that is a cut.
bool Pqa2Reader::startsChain(qint64 offset)
{
    Pqa2BlockHead first, second;
    if (!isPlausible(offset, &first) || first.oonb == kPqa2LastBlock)
        return false;
    const qint64 windowOffset = m_windowOffset, windowSize = m_windowSize;
    const QByteArray window = m_window; // shared: another one is loaded beside it
    const bool starts = isPlausible(first.oonb, &second);
    if (m_windowOffset != windowOffset) { // the search goes on where it was
        m_window = window;
        m_windowOffset = windowOffset;
        m_windowBytes = m_window.constData();
        m_windowSize = windowSize;
        ++m_probes;
    }
    return starts;
}

/// The first place from \a offset on whose link may be that of a block; a quick look that leaves most places out.
qint64 Pqa2Reader::nextCandidate(qint64 offset)
{
    while (offset + kHeadBytes <= m_size) {
        if (offset < m_windowOffset || offset + kHeadBytes > m_windowOffset + m_windowSize)
            offset = std::max(offset, (behindHole(m_device, offset, m_size) & ~qint64(3)) - kHeadBytes);
        if (!bytes(offset, kHeadBytes))
            break;
        const char *place = m_windowBytes + (offset - m_windowOffset);
        const qint64 end = m_windowOffset + m_windowSize - kHeadBytes;
        for (; offset <= end; offset += 4, place += 4) {
            quint32 link;
            std::memcpy(&link, place, sizeof link);
            if (link % 4 == 0 && link >= offset + kHeadBytes && link < m_size)
                return offset;
        }
    }
    return m_size;
}

bool Pqa2Reader::skipDamage()
{
    if (m_searchFrom < 0)
        return false;
    qint64 offset = nextCandidate((m_searchFrom + 3) & ~qint64(3));
    m_searchFrom = -1;
    for (; offset + kHeadBytes <= m_size && m_probes < kMostProbes; offset = nextCandidate(offset + 4)) {
        if (!startsChain(offset))
            continue;
        m_next = offset;
        m_gapFrom = -1;
        m_state = Broken;
        return true;
    }
    return false;
}

QByteArray Pqa2Reader::payload(const Pqa2Block &block, qint64 at, qint64 most)
{
    const qint64 wanted = std::min({ most, kMostPayload, qint64(block.size) - at });
    if (at < 0 || wanted <= 0 || !m_device->seek(block.offset + kHeadBytes + at))
        return {};
    return m_device->read(wanted);
}
