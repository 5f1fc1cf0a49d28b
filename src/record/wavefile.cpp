#include "record/wavefile.h"

#include "record/pqa2device.h"
#include "record/pqa2info.h"
#include "record/truncated.h"
#include "settings/derived.h"
#include "storage/fileinfo.h"

#include <cstring>

namespace {

constexpr char kMagic[4] = { 'W', 'A', 'V', 0x1A };
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
    : m_name(name), m_header(headerFor(beginTime, sampleRate, setUp)), m_file(std::move(device))
{ }

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
    if (isOpen())
        return true;
    if (m_name.isEmpty() || !m_file.open(fileName(), localTime))
        return false;
    m_header.frames = 0;
    m_header.lastWrite = 0;
    if (m_header.begin == 0) // not planned for a time
        m_header.begin = quint32(localTime.toSecsSinceEpoch());
    if (!writeHeader())
        m_file.remove(); // nothing but a torn head
    return isOpen();
}

bool WaveFile::writeHeader()
{
    return m_file.rewrite(0, reinterpret_cast<const char *>(&m_header), sizeof m_header);
}

qint64 WaveFile::write(const QByteArray &data, unsigned int time)
{
    if (!isOpen() || data.size() < kSmallestChunk)
        return 0;
    const quint32 length = quint32(data.size());
    if (!m_file.append(QByteArray(reinterpret_cast<const char *>(&length), sizeof length) + data))
        return -1;
    m_header.lastWrite = time;
    m_header.frames += quint64(length) / kWaveFrameBytes;
    // A head that cannot be written counts fewer frames than there are, which a reader sees.
    writeHeader();
    m_file.flushNowAndThen();
    return data.size();
}

void WaveFile::save(bool keep)
{
    if (!isOpen())
        return;
    close();
    if (!keep)
        m_file.remove();
}
