#include "widgets/charts/inrushtrendchart.h"

#include "widgets/charts/chartparts.h"

InrushTrendChart::InrushTrendChart(QWidget *parent) : CursorTrendChart(parent) { }

void InrushTrendChart::showVifData(const __trend_chart_data *data)
{
    if (data)
        takeData(*data);
}

void InrushTrendChart::setCursorPosition(int position)
{
    if (position < 1)
        m_cursor = width() - 1;
    else if (position < width())
        m_cursor = ChartParts::kPlotPoints - position;
    else
        m_cursor = 1;
    update();
}
