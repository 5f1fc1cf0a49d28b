#pragma once

#include <QImage>
#include <QWidget>

/// A picture over the whole screen. Soft key 5 leaves it; other keys rise to the window below, which knows light and
/// power.
class ImageViewer : public QWidget
{
    Q_OBJECT

public:
    /// Shows \a image over the window of \a page, which gets the keyboard back afterwards.
    static ImageViewer *viewImage(const QImage &image, QWidget *page);
    /// Reads a picture of the storage (its real name), smaller where it would not fit the screen; null where it is
    /// none. Any thread.
    static QImage read(const QString &path);

    ImageViewer(const QImage &image, QWidget *page);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    void leave();

    QWidget *const m_page;
    const QImage m_image;
};
