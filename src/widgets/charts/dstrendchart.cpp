#include "widgets/charts/dstrendchart.h"

#include "widgets/charts/chartparts.h"

#include <algorithm>

DSTrendChart::DSTrendChart(QWidget *parent) : CursorTrendChart(parent) { }

void DSTrendChart::showDSData(const __trend_chart_data *data)
{
    if (data)
        takeData(*data);
}

void DSTrendChart::setCursorPosition(int position)
{
    m_cursor = std::clamp(position, 1, ChartParts::kPlotPoints);
    update();
}
