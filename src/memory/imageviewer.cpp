#include "memory/imageviewer.h"

#include "storage/wholefile.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>

namespace {

constexpr QSize kScreen(640, 480);
constexpr qint64 kLargestFile = 16 * 1024 * 1024; // bytes
constexpr int kLargestSide = 4096; // pixels: a small file may claim to be an enormous picture

} // namespace

QImage ImageViewer::read(const QString &path)
{
    QByteArray bytes;
    if (WholeFile::read(path, kLargestFile, &bytes) != WholeFile::Read)
        return {};
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer, "png");
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > kLargestSide || size.height() > kLargestSide)
        return {};
    const QImage image = reader.read();
    const bool fits = size.width() <= kScreen.width() && size.height() <= kScreen.height();
    return image.isNull() || fits ? image : image.scaled(kScreen, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

ImageViewer *ImageViewer::viewImage(const QImage &image, QWidget *page)
{
    auto *viewer = new ImageViewer(image, page);
    viewer->cover();
    return viewer;
}

ImageViewer::ImageViewer(const QImage &image, QWidget *page) : CoverView(page), m_image(image) { }

void ImageViewer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.drawImage(QRect(QPoint((width() - m_image.width()) / 2, (height() - m_image.height()) / 2), m_image.size()),
                      m_image);
}
