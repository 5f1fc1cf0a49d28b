#include "memory/imageviewer.h"

#include "storage/wholefile.h"
#include "widgets/controls/frontkeys.h"
#include "widgets/text/keymap.h"

#include <QBuffer>
#include <QImageReader>
#include <QKeyEvent>
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
    viewer->show();
    viewer->raise();
    viewer->setFocus();
    return viewer;
}

ImageViewer::ImageViewer(const QImage &image, QWidget *page) : QWidget(page->window()), m_page(page), m_image(image)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFocusPolicy(Qt::StrongFocus);
    setGeometry(page->window()->rect());
}

void ImageViewer::leave()
{
    QWidget *const page = m_page;
    close();
    page->setFocus();
}

void ImageViewer::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    painter.drawImage(QRect(QPoint((width() - m_image.width()) / 2, (height() - m_image.height()) / 2), m_image.size()),
                      m_image);
}

void ImageViewer::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(FrontKeys::press(*event, [this](int key) {
        if (key == Qt::Key_F5)
            leave();
        return key == Qt::Key_F5;
    }));
}

void ImageViewer::keyReleaseEvent(QKeyEvent *event)
{
    keyMap::keyReleaseMap(event->key());
    event->ignore();
}
