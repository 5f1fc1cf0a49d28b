#pragma once

#include "widgets/charts/curvetrendchart.h"

/// Ten-minute trend of the live pages: up to four curves, no cursor.
class VifTrendChart : public CurveTrendChart
{
public:
    explicit VifTrendChart(QWidget *parent = nullptr);

    /// Shows the series. Nothing changes when `data` is null or its first series is empty.
    void showVifData(const __trend_chart_data *data);
};
