#include "record/pqa2ff.h"

#include "device/trace.h"
#include "platform/clock.h"
#include "record/pqa2device.h"

#include <QFileInfo>

#include <algorithm>
#include <cstring>

namespace {

constexpr int kKeptBlocks = 3;
constexpr qint64 kMostPayload = 1 << 30; // bytes; no writer comes near it

constexpr qint64 alignedUp(qint64 bytes)
{
    return (bytes + 3) & ~qint64(3);
}

/// Bytes that a block takes in the file.
constexpr qint64 wholeBlock(qint64 payload)
{
    return qint64(sizeof(Pqa2BlockHead)) + alignedUp(payload);
}

} // namespace

Pqa2Opening (*Pqa2FF::s_opening)() = nullptr;

Pqa2FF::Pqa2FF() : Pqa2FF(std::make_unique<Pqa2Device>()) { }

Pqa2FF::Pqa2FF(const char *path) : Pqa2FF(QString::fromLocal8Bit(path)) { }

Pqa2FF::Pqa2FF(const QString &path) : Pqa2FF()
{
    m_path = path;
}

Pqa2FF::Pqa2FF(std::unique_ptr<Pqa2Device> device) : m_device(std::move(device)) { }

Pqa2FF::~Pqa2FF()
{
    close();
}

int Pqa2FF::open(const QString &path)
{
    close();
    m_part = 1;
    m_path = path;
    return open();
}

int Pqa2FF::open(const char *path)
{
    return open(QString::fromLocal8Bit(path));
}

int Pqa2FF::open()
{
    if (m_path.isEmpty())
        return 0;
    close();
    m_path = m_part > 1 ? m_firstPath : m_path;
    m_part = 1;
    return begin();
}

/// Starts the file of m_path anew.
bool Pqa2FF::begin()
{
    m_last.clear();
    m_end = 0;
    m_full = m_refuses = false;
    if (m_device->freeSize() < kRoomToOpen || !m_device->open(m_path))
        return false;
    m_open = true;
    if (m_part == 1) // a further part tells what its recording was begun with
        m_opening = s_opening ? s_opening() : Pqa2Opening();
    const bool begun = initFileHeader() && addDataBlock(Pqa2InstrumentInfo, m_opening.instrument) == 0
        && addDataBlock(Pqa2SystemSetting, m_opening.setting) == 0
        && addDataBlock(Pqa2ChannelFactor, m_opening.factors) == 0;
    if (!begun)
        close();
    return begun;
}

void Pqa2FF::continueInParts(std::function<void(Pqa2FF &)> begin)
{
    m_continues = true;
    m_beginPart = std::move(begin);
}

QString Pqa2FF::partPath(const QString &path, int part)
{
    if (part <= 1)
        return path;
    const QString suffix = QFileInfo(path).suffix();
    const QString dotted = suffix.isEmpty() ? suffix : QLatin1Char('.') + suffix;
    return QStringLiteral("%1_%2%3").arg(path.left(path.size() - dotted.size())).arg(part).arg(dotted);
}

bool Pqa2FF::initFileHeader()
{
    return write(reinterpret_cast<const char *>(&kPqa2FileHeader), qint64(sizeof kPqa2FileHeader))
        == qint64(sizeof kPqa2FileHeader);
}

void Pqa2FF::close()
{
    if (!m_open)
        return;
    m_open = false;
    m_device->close();
}

void Pqa2FF::flush()
{
    if (m_open)
        m_device->sync();
}

void Pqa2FF::flushBehind()
{
    if (m_open && m_unflushed)
        m_unflushed = !m_device->syncBehind();
}

qint64 Pqa2FF::size() const
{
    return m_open ? m_device->size() : -1;
}

QString Pqa2FF::fileName() const
{
    return QFileInfo(m_path).fileName();
}

qint64 Pqa2FF::write(const char *data, qint64 size)
{
    if (!m_open || !data || size < 0)
        return -1;
    const qint64 written = m_device->write(data, size);
    m_end = alignedUp(m_device->pos());
    m_unflushed = true;
    return written;
}

int Pqa2FF::addDataBlock(Pqa2DBType type, const char *data, int size)
{
    return appendBlock(type, data, size);
}

int Pqa2FF::addDataBlock(Pqa2DBType type, const QByteArray &data)
{
    return appendBlock(type, data.constData(), data.size());
}

int Pqa2FF::addDataBlock(const _pqa2_data_block &block)
{
    const int result = appendBlock(block.type, block.data, block.size);
    if (result < 0 && !m_logged)
        QV_TRACE("pqa2/pqa2ff") << "availableRoom" << m_device->freeSize();
    m_logged = result < 0;
    return result;
}

int Pqa2FF::addSystemLog(const QByteArray &text)
{
    const qint64 now = Clock::msecs();
    return addDataBlock(Pqa2SystemLog, QByteArray(reinterpret_cast<const char *>(&now), int(sizeof now)) + text);
}

int Pqa2FF::addBlankBlock()
{
    return appendBlock(Pqa2Blank, nullptr, 0);
}

int Pqa2FF::appendBlock(quint32 type, const char *data, qint64 size)
{
    if (!m_open)
        return 0;
    const int result = tryBlock(type, data, size);
    m_refuses = result < 0;
    return result;
}

int Pqa2FF::tryBlock(quint32 type, const char *data, qint64 size)
{
    if (size < 0 || size > kMostPayload || (size > 0 && !data) || m_device->freeSize() < kRoomToWrite)
        return -1;
    if (m_end + wholeBlock(size) >= qint64(kPqa2LastBlock)) { // no link could tell where the next block starts
        m_full = true;
        if (!m_continues || !beginNextPart())
            return -1;
    }
    return storeBlock(type, data, size);
}

/// The next file takes the place of this one. Without room for it this one stays open.
bool Pqa2FF::beginNextPart()
{
    if (m_device->freeSize() < kRoomToOpen)
        return false;
    close();
    m_firstPath = m_part > 1 ? m_firstPath : m_path;
    m_path = partPath(m_firstPath, ++m_part);
    if (!begin()) {
        m_full = true;
        return false;
    }
    if (m_beginPart)
        m_beginPart(*this);
    return m_open;
}

int Pqa2FF::addDataBlocks(Pqa2DBType type, const QList<QByteArray> &payloads)
{
    if (!m_open || payloads.isEmpty())
        return 0;
    qint64 whole = 0;
    for (const QByteArray &payload : payloads)
        whole += wholeBlock(payload.size());
    if (whole <= kMostPayload && m_end + whole < qint64(kPqa2LastBlock) && m_device->freeSize() >= kRoomToWrite) {
        m_buffer.resize(0);
        qint64 last = m_end;
        for (int i = 0; i < payloads.size(); ++i) {
            last = m_end + m_buffer.size();
            const bool follows = i + 1 < payloads.size();
            const quint32 next = follows ? quint32(last + wholeBlock(payloads[i].size())) : kPqa2LastBlock;
            bufferBlock(next, type, payloads[i].constData(), payloads[i].size());
        }
        m_refuses = storeBuffer(last) < 0;
        if (!m_refuses)
            return 0;
    }
    int result = 0;
    for (const QByteArray &payload : payloads)
        result = std::min(result, addDataBlock(type, payload));
    return result;
}

int Pqa2FF::storeBlock(quint32 type, const char *data, qint64 size)
{
    m_buffer.resize(0);
    bufferBlock(kPqa2LastBlock, type, data, size);
    return storeBuffer(m_end);
}

void Pqa2FF::bufferBlock(quint32 oonb, quint32 type, const char *data, qint64 size)
{
    const Pqa2BlockHead head = { oonb, type, quint32(size) };
    const int start = m_buffer.size();
    m_buffer.resize(start + int(wholeBlock(size)));
    char *block = m_buffer.data() + start;
    std::memcpy(block, &head, sizeof head);
    if (size > 0)
        std::memcpy(block + sizeof head, data, size_t(size));
    std::memset(block + sizeof head + size, 0, size_t(wholeBlock(size) - qint64(sizeof head) - size));
}

/// Stores the blocks of the buffer, the last of which begins at that place of the file.
int Pqa2FF::storeBuffer(qint64 lastBlock)
{
    // Blocks that are not whole in the file are never linked: they are cut off, and the next ones take their place.
    const qint64 start = m_end;
    const qint64 whole = m_buffer.size();
    if ((m_device->pos() != start && !m_device->seek(start)) || m_device->write(m_buffer.constData(), whole) != whole) {
        dropTail(start);
        return -1;
    }
    m_end = start + whole;
    m_unflushed = true;
    if (!modifyLastOONB({ quint32(start), kPqa2LastBlock })) {
        dropTail(start);
        return -1;
    }
    m_last.last().offset = quint32(lastBlock);
    return 0;
}

bool Pqa2FF::modifyLastOONB(const _pqa2_block_iterator &block)
{
    if (!m_last.isEmpty())
        m_last.last().oonb = block.offset;
    m_last.append(block);
    if (m_last.size() > 1) {
        _pqa2_block_iterator &before = m_last[m_last.size() - 2];
        const auto *link = reinterpret_cast<const char *>(&before.oonb);
        if (!m_device->seek(before.offset) || m_device->write(link, 4) != 4) {
            // A link torn by the failure leads behind the end of the file, where a reader stops. The next block starts
            // at the same place, so that the same link is written whole with it.
            before.oonb = kPqa2LastBlock;
            m_last.removeLast();
            return false;
        }
    }
    if (m_last.size() > kKeptBlocks)
        m_last.removeFirst();
    m_device->seek(m_end);
    return true;
}

void Pqa2FF::dropTail(qint64 end)
{
    m_end = end;
    m_device->resize(end);
    m_device->seek(end);
}
