#include "widgets/charts/curvetrendchart.h"

#include "widgets/charts/chartparts.h"

#include <QPainter>

void CurveTrendChart::takeData(const __trend_chart_data &data)
{
    for (int band = 0; band < kBands; ++band)
        m_series[band] = data.series[band] ? *data.series[band] : QVector<qint16>();
    initLinePath();
    update();
}

void CurveTrendChart::initLinePath()
{
    for (int band = 0; band < kBands; ++band)
        m_path[band] = ChartParts::seriesPath(m_series[band]);
}

void CurveTrendChart::paintEvent(QPaintEvent *event)
{
    TrendChart::paintEvent(event);
    QPainter painter(this);
    for (const Curve &curve : kCurves) {
        if (!(flags() & curve.bit))
            continue;
        const int band = curve.band;
        drawUpLimits(painter, curve.bit, 0, bandTop(band) + 12);
        drawLoLimits(painter, curve.bit, 0, bandBottom(band));
        if (m_series[band].isEmpty())
            continue; // no data: frame, grid and labels only
        painter.setPen(QPen(curve.color(), 1));
        painter.translate(1.0, bandTop(band) + 1);
        painter.drawPath(m_path[band]);
        painter.resetTransform();
        drawCursors(painter, curve.bit, plotWidth(), bandTop(band) + 1 + m_series[band].last());
    }
}
