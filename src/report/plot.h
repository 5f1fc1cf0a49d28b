#pragma once

#include "report/drawing.h"

class QLocale;

/// Axes of a drawing: where a value stands. Both ranges are those that are shown; what lies beyond is held at the edge.
class Plot
{
public:
    static constexpr double kLeft = 52, kRight = 26, kTop = 24, kBottom = 22;

    /// A plot over the whole width.
    Plot(Drawing *drawing, double height, const QString &title);

    void setRangeX(double from, double to);
    /// The range is widened to round numbers; marks with lines stand at them.
    void setRangeY(double from, double to, const QString &unit, const QLocale &locale);
    /// A mark below the axis.
    void markX(double x, const QString &text, bool line = true);
    void frame();
    /// A word of the legend, right above the plot; the first one stands rightmost.
    void legend(Ink ink, const QString &text);

    QPointF at(double x, double y) const;
    double left() const { return kLeft; }
    double right() const { return Drawing::kWidth - kRight; }
    double top() const { return kTop; }
    double bottom() const { return m_height - kBottom; }
    bool showsY(double y) const { return y >= m_y0 && y <= m_y1; }
    /// A dashed line over the whole width with its value, as far as it is in the range.
    void limit(double y, const QString &text);

private:
    Drawing *m_drawing;
    double m_height;
    double m_x0 = 0, m_x1 = 1, m_y0 = 0, m_y1 = 1;
    double m_legendRight;
};

/// 1, 2 or 5 times a power of ten: about \a count of them go into \a range.
double roundStep(double range, int count);

/// Decimals that tell marks apart that are so far from each other.
int decimalsOf(double step);
