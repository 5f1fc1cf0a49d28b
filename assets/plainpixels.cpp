// Rewrites a picture as plain pixels, at build time: what is shown while the instrument starts is then copied instead
// of decoded. Usage: plainpixels PICTURE.png PLAIN
//
// The picture becomes a BMP of four bytes a pixel, as the toolkit keeps pixels in memory, with an alpha channel if it
// is transparent anywhere. The toolkit reads it; src/shell/plainpicture.cpp copies it. The pixels stay the same.
#include <QDataStream>
#include <QFile>
#include <QImage>

#include <cstdio>

namespace {

constexpr quint32 kFileHeader = 14; // bytes
constexpr quint32 kInfoHeader = 124; // the fifth version of it, which names an alpha channel

bool isOpaque(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 255)
                return false;
        }
    }
    return true;
}

/// From the upper row to the lower, blue first, as the toolkit keeps it in memory on a little-endian machine.
QByteArray bmp(const QImage &image)
{
    constexpr quint32 kPerMetre = 2835; // 72 dots an inch
    constexpr quint32 kBitFields = 3;
    constexpr quint32 kSrgb = 0x73524742;
    const quint32 pixels = quint32(image.width()) * quint32(image.height()) * 4;
    const quint32 alphaMask = isOpaque(image) ? 0 : 0xff000000;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("BM", 2);
    out << (kFileHeader + kInfoHeader + pixels) << quint32(0) << (kFileHeader + kInfoHeader);
    out << kInfoHeader << qint32(image.width()) << qint32(-image.height()) << quint16(1) << quint16(32) << kBitFields
        << pixels << kPerMetre << kPerMetre << quint32(0) << quint32(0) << quint32(0x00ff0000) << quint32(0x0000ff00)
        << quint32(0x000000ff) << alphaMask << kSrgb;
    while (bytes.size() < int(kFileHeader + kInfoHeader))
        out << quint8(0);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            out << quint32(image.pixel(x, y));
    }
    return bytes;
}

} // namespace

int main(int argc, char **argv)
{
    const QImage image = argc == 3 ? QImage(QFile::decodeName(argv[1])) : QImage();
    if (image.isNull()) {
        std::fprintf(stderr, "plainpixels: no picture can be read\n");
        return 1;
    }
    const QByteArray plain = bmp(image);
    // What was made must be what was given.
    const QImage again = QImage::fromData(plain).convertToFormat(QImage::Format_ARGB32);
    QFile file(QFile::decodeName(argv[2]));
    if (again != image.convertToFormat(QImage::Format_ARGB32) || !file.open(QIODevice::WriteOnly)
        || file.write(plain) != plain.size()) {
        std::fprintf(stderr, "plainpixels: %s cannot be made\n", argv[2]);
        return 1;
    }
    return 0;
}
