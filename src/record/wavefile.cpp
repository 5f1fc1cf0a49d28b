#include "record/wavefile.h"

#include "platform/clock.h"
#include "platform/diskworker.h"
#include "platform/target.h"
#include "record/pqa2device.h"
#include "record/pqa2info.h"
#include "record/truncated.h"
#include "settings/derived.h"
#include "storage/fileinfo.h"

#include <QFile>

#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr char kMagic[4] = { 'W', 'A', 'V', 0x1A };
constexpr qint64 kFlushInterval = 4000; // ms; a cut of the supply costs no more than this and a chunk
constexpr qint64 kSmallestChunk = 9; // bytes; less is no chunk

WaveFileHeader headerFor(quint32 begin, quint32 sampleRate, const Derived &setUp)
{
    WaveFileHeader header {};
    std::memcpy(header.magic, kMagic, sizeof kMagic);
    header.format = kWaveFormat;
    header.nominalVolt = truncated(double(setUp.realNominalVolt));
    header.nominalFrequency = truncated(setUp.nominalFrequency);
    header.joinMode = setUp.joinMode;
    header.clampRatio = setUp.clamp.ratio;
    // The factors of the opening block of a recording, without those of the power.
    const QByteArray factors = getChannelFactor(setUp.scales);
    std::memcpy(header.voltFactor, factors.constData(), sizeof header.voltFactor);
    std::memcpy(header.ampereFactor, factors.constData() + sizeof header.voltFactor, sizeof header.ampereFactor);
    header.begin = begin;
    header.sampleRate = sampleRate;
    header.mark1 = kWaveMark1;
    header.mark2 = kWaveMark2;
    return header;
}

/// Takes a file and its entry away. Its bytes are freed by the disk worker: the system keeps them as long as the file
/// is open somewhere.
void removeLargeFile(const QString &name)
{
    const QByteArray path = QFile::encodeName(Target::path(FileInfo::storagePath() + name));
    const int fd = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    FileInfo().removeInfo(name);
    if (fd >= 0)
        DiskWorker::instance().run([fd] { ::close(fd); });
}

} // namespace

bool WaveFileHeader::isValid() const
{
    return std::memcmp(magic, kMagic, sizeof kMagic) == 0 && format == kWaveFormat && mark1 == kWaveMark1
        && mark2 == kWaveMark2;
}

// Writer

WaveFile::WaveFile(const QString &name, unsigned int beginTime, unsigned int sampleRate, const Derived &setUp)
    : WaveFile(name, beginTime, sampleRate, setUp, std::make_unique<Pqa2Device>())
{ }

WaveFile::WaveFile(const QString &name, unsigned int beginTime, unsigned int sampleRate, const Derived &setUp,
                   std::unique_ptr<Pqa2Device> device)
    : m_name(name), m_header(headerFor(beginTime, sampleRate, setUp)), m_device(std::move(device))
{ }

WaveFile::~WaveFile()
{
    close();
}

QString WaveFile::fileName() const
{
    return m_name + suffix();
}

QString WaveFile::fullFilePath() const
{
    return FileInfo::storagePath() + fileName();
}

bool WaveFile::open(const QDateTime &localTime)
{
    if (m_open)
        return true;
    if (m_name.isEmpty() || !m_device->open(fullFilePath()))
        return false;
    FileInfo().saveInfo(fileName(), localTime);
    m_header.frames = 0;
    m_header.lastWrite = 0;
    if (m_header.begin == 0) // not planned for a time
        m_header.begin = quint32(localTime.toSecsSinceEpoch());
    m_flushed = Clock::elapsed();
    m_open = writeHeader();
    if (!m_open) {
        m_device->close();
        FileInfo().removeInfo(fileName()); // nothing but a torn head
    }
    return m_open;
}

bool WaveFile::writeHeader()
{
    return m_device->seek(0)
        && m_device->write(reinterpret_cast<const char *>(&m_header), sizeof m_header) == qint64(sizeof m_header);
}

qint64 WaveFile::write(const QByteArray &data, unsigned int time)
{
    if (!m_open || data.size() < kSmallestChunk)
        return 0;
    const qint64 end = m_device->size();
    const quint32 length = quint32(data.size());
    QByteArray chunk(reinterpret_cast<const char *>(&length), sizeof length);
    chunk += data;
    if (!m_device->seek(end) || m_device->write(chunk.constData(), chunk.size()) != chunk.size()) {
        m_device->resize(end);
        return -1;
    }
    m_header.lastWrite = time;
    m_header.frames += quint64(length) / kWaveFrameBytes;
    // A head that cannot be written counts fewer frames than there are, which a reader sees.
    writeHeader();
    if (Clock::elapsed() - m_flushed >= kFlushInterval)
        flush();
    return data.size();
}

bool WaveFile::flush()
{
    if (!m_open || !m_device->syncBehind())
        return false;
    m_flushed = Clock::elapsed();
    return true;
}

void WaveFile::close()
{
    if (!m_open)
        return;
    m_open = false;
    m_device->close();
}

void WaveFile::save(bool keep)
{
    if (!m_open)
        return;
    close();
    if (!keep)
        removeLargeFile(fileName());
}
