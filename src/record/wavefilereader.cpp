#include "record/wavefile.h"

#include <QIODevice>

#include <algorithm>
#include <cstring>

namespace {

constexpr quint32 kFullRate = 20480; // frames per second of the undecimated samples
constexpr quint32 kFullChunk = 65536; // bytes of a chunk at the full rate

/// Bytes of each chunk that the instrument writes at this rate; 0: it knows no such rate.
quint32 usualLength(quint32 sampleRate)
{
    const bool known = sampleRate != 0 && sampleRate <= kFullRate && kFullRate % sampleRate == 0;
    return known ? kFullChunk / (kFullRate / sampleRate) : 0;
}

} // namespace

WaveFileReader::WaveFileReader(QIODevice *device) : m_device(device), m_size(device->size())
{
    WaveFileHeader header {};
    const bool read = m_device->seek(0)
        && m_device->read(reinterpret_cast<char *>(&header), sizeof header) == qint64(sizeof header);
    if (!read || !header.isValid()) {
        fail(Unreadable, 0, "no head of a waveform capture");
        return;
    }
    m_header = header;
    m_next = sizeof header;
}

void WaveFileReader::fail(State state, qint64 offset, const char *reason)
{
    m_state = std::max(m_state, state); // Broken stays where the end is missing as well
    if (m_faultOffset >= 0)
        return;
    m_faultOffset = offset;
    m_reason = reason;
}

bool WaveFileReader::lengthAt(qint64 offset, quint32 *length)
{
    return m_device->seek(offset)
        && m_device->read(reinterpret_cast<char *>(length), sizeof *length) == qint64(sizeof *length);
}

/// Whether the chunk at m_next has the usual length although its own says otherwise.
bool WaveFileReader::passDamagedLength(quint32 *length)
{
    const quint32 usual = usualLength(m_header.sampleRate);
    if (usual == 0 || *length == usual)
        return false;
    const qint64 behind = m_next + qint64(sizeof *length) + usual;
    quint32 following = 0;
    if (behind != m_size && !(behind < m_size && lengthAt(behind, &following) && following == usual))
        return false;
    *length = usual;
    return true;
}

bool WaveFileReader::next(WaveChunk *chunk)
{
    if (m_next < 0)
        return false;
    if (m_next == m_size) {
        finish();
        return false;
    }
    quint32 length = 0;
    if (!lengthAt(m_next, &length)) {
        fail(Cut, m_next, "the file ends inside the length of a chunk");
        m_next = -1;
        return false;
    }
    const qint64 offset = m_next + qint64(sizeof length);
    const qint64 room = m_size - offset;
    if (passDamagedLength(&length))
        fail(Broken, m_next, "a chunk has another length than the file's other chunks");
    if (length == 0 || length % kWaveFrameBytes != 0) {
        fail(Cut, m_next, "the length of a chunk is no number of frames");
        m_next = -1;
        return false;
    }
    const bool torn = qint64(length) > room;
    if (torn)
        fail(Cut, offset + room, "the file ends inside a chunk");
    m_next = torn ? -1 : offset + length;
    chunk->offset = offset;
    chunk->frames = std::min(qint64(length), room) / kWaveFrameBytes;
    m_found += quint64(chunk->frames);
    return chunk->frames > 0;
}

/// The chunks end with the file: the head must have counted them.
void WaveFileReader::finish()
{
    m_next = -1;
    if (m_header.frames != m_found)
        fail(Cut, offsetof(WaveFileHeader, frames), "the head counts other frames than the chunks hold");
}

QByteArray WaveFileReader::frames(const WaveChunk &chunk, qint64 at, qint64 most)
{
    const qint64 first = std::clamp(at, qint64(0), chunk.frames);
    const qint64 count = std::clamp(std::min(most, chunk.frames - first), qint64(0), kMostFrames);
    if (count == 0 || !m_device->seek(chunk.offset + first * kWaveFrameBytes))
        return {};
    QByteArray bytes = m_device->read(count * kWaveFrameBytes);
    bytes.truncate(bytes.size() / kWaveFrameBytes * kWaveFrameBytes);
    return bytes;
}
