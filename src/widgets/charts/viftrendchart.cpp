#include "widgets/charts/viftrendchart.h"

VifTrendChart::VifTrendChart(QWidget *parent) : CurveTrendChart(parent) { }

void VifTrendChart::showVifData(const __trend_chart_data *data)
{
    if (!data || !data->series[0] || data->series[0]->isEmpty())
        return;
    takeData(*data);
}
