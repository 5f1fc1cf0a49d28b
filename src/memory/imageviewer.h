#pragma once

#include "memory/coverview.h"

#include <QImage>

/// A picture over the whole screen.
class ImageViewer : public CoverView
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

private:
    const QImage m_image;
};
