#include "record/pqafile.h"

#include "record/truncated.h"
#include "settings/derived.h"
#include "storage/fileinfo.h"
#include "settings/softwareversion.h"
#include "platform/clock.h"
#include "platform/diskworker.h"
#include "platform/target.h"

#include <QFile>

#include <cstring>

static constexpr unsigned char kTrailer[] = { 0xAA, 0x55 };
static constexpr quint32 kVersion
    = quint32(kSoftwareMajor) << 24 | quint32(kSoftwareMinor) << 16 | quint32(kSoftwareBuild);

QString PqaFile::imagePath()
{
    return QStringLiteral("/tmp/img.png");
}

QString PqaFile::dataPath()
{
    return QStringLiteral("/tmp/dat.pqa");
}

PqaFile::PqaFile(int winId, const Derived &setUp, const QByteArray &png)
{
    initFileHeader(winId, setUp);
    saveImage(png);
}

PqaFile::~PqaFile() = default;

void PqaFile::saveImage(const QByteArray &png)
{
    QFile image(Target::path(imagePath()));
    image.remove(); // of a save that was cancelled
    if (image.open(QIODevice::WriteOnly)) {
        image.write(png);
        image.flush();
        image.close();
    }
    m_header.imageSize = quint32(image.size());
}

void PqaFile::writeFileData(const void *data, quint32 size)
{
    open();
    m_header.time = Clock::seconds();
    pushData(data, size);
    writeFileHeader();
    writeImageData();
    writeData();
    close();
}

void PqaFile::open()
{
    m_file = std::make_unique<QFile>(Target::path(dataPath()));
    m_file->remove();
    m_opened = m_file->open(QIODevice::ReadWrite);
}

void PqaFile::initFileHeader(int winId, const Derived &setUp)
{
    m_header.page = winId;
    m_header.nominalVolt = truncated(double(setUp.realNominalVolt));
    m_header.nominalFrequency = truncated(setUp.nominalFrequency);
    m_header.joinMode = setUp.joinMode;
    m_header.clampRatio = setUp.clamp.ratio;
    m_header.version = kVersion;
    m_header.magic = kMagic;
}

void PqaFile::pushData(const void *data, quint32 size)
{
    m_data.reset(data && size > 0 ? static_cast<char *>(std::malloc(size)) : nullptr);
    m_header.dataSize = m_data ? size : 0;
    if (m_data)
        std::memcpy(m_data.get(), data, size);
}

void PqaFile::writeFileHeader()
{
    write(&m_header, sizeof m_header);
}

void PqaFile::writeImageData()
{
    QFile image(Target::path(imagePath()));
    if (!image.open(QIODevice::ReadOnly))
        return;
    const QByteArray bytes = image.readAll();
    write(bytes.constData(), bytes.size());
}

void PqaFile::writeData()
{
    write(m_data.get(), m_header.dataSize);
    m_data.reset();
}

void PqaFile::close()
{
    write(kTrailer, sizeof kTrailer);
    m_file->close();
    m_file.reset();
    m_opened = false;
    DiskWorker::instance().sync();
}

void PqaFile::write(const void *data, qint64 length)
{
    if (m_opened && data)
        m_file->write(static_cast<const char *>(data), length);
}

void PqaFile::saveSnapshot(const QString &name)
{
    store(imagePath(), name);
}

void PqaFile::saveDataFile(const QString &name)
{
    store(dataPath(), name);
}

void PqaFile::store(const QString &temporary, const QString &name)
{
    QFile stored(Target::path(FileInfo::storagePath() + name));
    QFile source(Target::path(temporary));
    stored.remove();
    // Piece by piece, so that a full disk keeps what it could take: a short file may still show its picture.
    if (source.open(QIODevice::ReadOnly) && stored.open(QIODevice::WriteOnly)) {
        constexpr qint64 kPiece = 64 * 1024;
        for (QByteArray piece = source.read(kPiece); !piece.isEmpty(); piece = source.read(kPiece)) {
            if (stored.write(piece) != piece.size())
                break;
        }
    }
    stored.close();
    source.remove();
    DiskWorker::instance().sync();
}
