#pragma once

#include <QPixmap>
#include <QVector>
#include <QWidget>

/// One bar of a compliance histogram.
struct ComplianceBar
{
    float limit = 0; // value in percent of the limit that holds for all the time
    float allowed = 0; // value in percent of the limit that may be broken for the time allowed
};

/// What both compliance histograms share: the two scales, their lines and legends, the double bars, the cursor. The
/// derived charts bring their positions and say which bars are shown. GUI thread.
class ComplianceBars : public QWidget
{
public:
    int cursorX() const { return m_cursorX; } // pixels
    int cursorIndex() const { return m_cursorIndex; }

protected:
    /// `positions`: centre of each bar, pixels; it outlives the chart.
    ComplianceBars(const int *positions, int count, int cursorIndex, QWidget *parent);

    void takeBars(const ComplianceBar *bars);
    /// Puts the cursor on a bar; an index outside the table is held to its ends.
    void moveCursor(int index);
    virtual bool isShown(int index) const = 0;

    void paintEvent(QPaintEvent *event) override;

private:
    void drawScale(QPainter &painter) const;
    void drawLegends(QPainter &painter) const;
    void drawCursor(QPainter &painter) const;
    void drawBars(QPainter &painter) const;
    void drawPart(QPainter &painter, int position, int reach, float percent, double pixelsPerPercent) const;

    const int *m_positions;
    int m_cursorX;
    int m_cursorIndex;
    QVector<ComplianceBar> m_bars;
    QPixmap m_limitSign;
    QPixmap m_allowedSign;
};
