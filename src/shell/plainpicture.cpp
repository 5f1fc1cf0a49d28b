#include "shell/plainpicture.h"

#include <QImage>
#include <QResource>
#include <QtEndian>

#include <cstring>

namespace {

// What assets/plainpixels.cpp writes: a BMP of 32 bits a pixel from the upper row to the lower.
constexpr int kHeaders = 14 + 124; // bytes
constexpr int kPixelsAt = 10;
constexpr int kWidthAt = 18;
constexpr int kHeightAt = 22;
constexpr int kBitsAt = 28;
constexpr int kAlphaAt = 66;
constexpr int kMaxSide = 4096;

QImage copied(const uchar *bytes, qint64 size)
{
    if (size < kHeaders || std::memcmp(bytes, "BM", 2) != 0)
        return QImage();
    const auto number = [bytes](int at) { return qFromLittleEndian<qint32>(bytes + at); };
    const int width = number(kWidthAt);
    const qint64 height = -qint64(number(kHeightAt));
    if (number(kPixelsAt) != kHeaders || qFromLittleEndian<quint16>(bytes + kBitsAt) != 32 || width < 1 || height < 1
        || width > kMaxSide || height > kMaxSide || size < kHeaders + width * height * 4)
        return QImage();
    QImage image(width, int(height), number(kAlphaAt) == 0 ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(image.scanLine(y), bytes + kHeaders + qint64(y) * width * 4, size_t(width) * 4);
    return image;
}

} // namespace

QPixmap plainPicture(const QString &name)
{
    // Pixels are kept in the order of a little-endian machine's memory.
    if (Q_BYTE_ORDER == Q_LITTLE_ENDIAN) {
        const QResource picture(name);
        if (picture.isValid() && picture.compressionAlgorithm() == QResource::NoCompression) {
            const QImage image = copied(picture.data(), picture.size());
            if (!image.isNull())
                return QPixmap::fromImage(image);
        }
    }
    return QPixmap(name);
}
