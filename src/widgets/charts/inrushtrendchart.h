#pragma once

#include "widgets/charts/cursortrendchart.h"

/// Half-cycle trend of the inrush page, with a cursor counted from the right edge.
class InrushTrendChart : public CursorTrendChart
{
public:
    explicit InrushTrendChart(QWidget *parent = nullptr);

    /// Shows the series; a null pointer changes nothing, empty series empty the chart.
    void showVifData(const __trend_chart_data *data);
    /// Points back from the newest: below 1 gives the right end of the widget, below the widget's width the pixel
    /// 600 - position, otherwise pixel 1.
    void setCursorPosition(int position);
};
