#pragma once

#include "widgets/charts/curvetrendchart.h"

/// A trend chart with a cursor: a white line from top to bottom, and a mark on each curve named by the cursor flags.
/// The derived charts decide how a page's cursor position becomes a pixel.
class CursorTrendChart : public CurveTrendChart
{
public:
    void setCursorOn(bool on);
    bool cursorOn() const { return m_cursorOn; }
    /// The `__trendflag` bits of the curves that are marked at the cursor; none at first.
    void setCursorFlags(int flags);
    int cursorFlags() const { return m_cursorFlags; }
    /// Pixels from the left edge of the widget.
    int cursorPosition() const { return m_cursor; }

    /// Height of a mark for the band offset `value`, counted upwards from the middle of the chart.
    // Kept: the same for all bands, so that the marks do not lie on the curves.
    static int getCursorPosY(int value) { return 151 - value; }

protected:
    explicit CursorTrendChart(QWidget *parent);

    void paintEvent(QPaintEvent *event) override;
    void drawCursorsX(QPainter &painter) const;

    int m_cursor = 1;

private:
    bool m_cursorOn = false;
    int m_cursorFlags = 0;
};
