#pragma once

#include "widgets/charts/cursortrendchart.h"

/// Half-cycle trend of the dips and swells page, with a cursor counted from the left edge.
class DSTrendChart : public CursorTrendChart
{
public:
    explicit DSTrendChart(QWidget *parent = nullptr);

    /// Shows the series; a null pointer changes nothing, empty series empty the chart.
    void showDSData(const __trend_chart_data *data);
    /// Pixel 1 to 600: below 1 gives 1, from 601 up gives 600.
    void setCursorPosition(int position);
};
