#include "widgets/charts/cursortrendchart.h"

#include "widgets/charts/chartparts.h"

#include <QPainter>

CursorTrendChart::CursorTrendChart(QWidget *parent) : CurveTrendChart(parent) { }

void CursorTrendChart::setCursorOn(bool on)
{
    m_cursorOn = on;
    update();
}

void CursorTrendChart::setCursorFlags(int flags)
{
    m_cursorFlags = flags;
    update();
}

void CursorTrendChart::paintEvent(QPaintEvent *event)
{
    CurveTrendChart::paintEvent(event);
    if (!m_cursorOn)
        return;
    QPainter painter(this);
    drawCursorsX(painter);
}

void CursorTrendChart::drawCursorsX(QPainter &painter) const
{
    ChartParts::drawCursor(painter, m_cursor, 303);
    for (const Curve &curve : kCurves) {
        if (!(m_cursorFlags & curve.bit))
            continue;
        const QVector<qint16> &series = m_series[curve.band];
        // Entry cursor - 1 of a full series; a shorter one lies against the right edge, so count from there.
        const int index = m_cursor - 1 - (ChartParts::kPlotPoints - series.size());
        if (index >= 0 && index < series.size())
            ChartParts::drawTriangle(painter, m_cursor, getCursorPosY(series.at(index)) - 4, curve.color());
    }
}
