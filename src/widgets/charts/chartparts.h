#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>
#include <QStringList>
#include <QVector>

class QPainter;
class QString;

/// Strokes and marks that all charts share, so that they look alike on every page. GUI thread.
namespace ChartParts {

/// Points of a curve from the left to the right edge of a plot.
constexpr int kPlotPoints = 600;

/// Dark grey dots for frames and grids.
QPen gridPen();
/// Solid dark grey for ticks and axis labels: three dots of the grid pen would not be seen.
QPen axisPen();

/// The colour of curves that belong to no phase, in the form that PhaseColor's functions have.
QColor white();

/// Font of `pixels` height in the widget family's own face.
void setFontPixels(QPainter &painter, int pixels);

/// Right-aligned polyline of pixel offsets: with m points it starts at x = capacity - m, so that the newest point
/// stands at capacity - 1. One point gives a path without a line; more than `capacity` start left of 0.
QPainterPath seriesPath(const QVector<qint16> &series, int capacity = kPlotPoints);

/// White vertical line at `x` from y = 1 to `bottom`, with the grip mark at its head.
void drawCursor(QPainter &painter, int x, int bottom);

/// Filled triangle with the corners (-4, 0), (4, 0), (0, 4) at (`x`, `y`): its tip stands four pixels below `y`.
void drawTriangle(QPainter &painter, int x, int y, const QColor &color);

/// Five-cornered tag with a letter in black, at the right end of a curve.
void drawFlagTag(QPainter &painter, int x, int y, const QColor &color, const QString &letter);

/// Puts \a labels in the place of those of an axis; false for none at all, which stay out and go to the debug log.
bool takeLabels(const QStringList &labels, QStringList *axis);

/// A picture of the resource tree in another size; null where the picture or the size is.
QPixmap scaledPicture(const QString &alias, const QSize &size);

/// `value` as a pixel coordinate inside what the rasteriser takes; not a number gives 0.
double boundedPixel(double value);

} // namespace ChartParts
