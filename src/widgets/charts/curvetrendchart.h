#pragma once

#include "widgets/charts/trendchart.h"

#include <QPainterPath>

/// A trend chart with its curves: one path a band, built when the data arrives, so that a paint only translates and
/// strokes. The derived charts add cursors.
class CurveTrendChart : public TrendChart
{
protected:
    using TrendChart::TrendChart;

    /// Takes the series, builds their paths and updates.
    void takeData(const __trend_chart_data &data);
    void paintEvent(QPaintEvent *event) override;

    /// Shared copies of the series last shown, so that a mark at the cursor never reads a list of the page.
    QVector<qint16> m_series[kBands];

private:
    void initLinePath();

    QPainterPath m_path[kBands];
};
