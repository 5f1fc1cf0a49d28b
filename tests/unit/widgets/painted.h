#pragma once

#include <QImage>
#include <QWidget>

/// A widget's picture over black, as it stands on a page.
inline QImage painted(QWidget &widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(Qt::black);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

/// Pixels of `color` inside `area`.
inline int countPixels(const QImage &image, const QRect &area, const QColor &color)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += image.valid(x, y) && image.pixel(x, y) == color.rgb();
    }
    return count;
}

/// Rectangle from its left, top, right and bottom pixel.
inline QRect edges(int left, int top, int right, int bottom)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}
