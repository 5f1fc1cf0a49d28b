#pragma once

#include "pages/rmstrendpage.h"

class DSTrendChart;

/// Trend of the half-cycle values over the last minute, in which dips and swells show.
class DswellMain : public RmsTrendPage
{
    Q_OBJECT

public:
    explicit DswellMain(const LiveData &data, QWidget *parent = nullptr);

public slots:
    void init_parameter() override;

signals:
    void goDispEvent();

protected:
    const __rms_trend_data &record(const DisplayRecords &shown) const override { return shown.dips; }
    int valuesPerSecond() const override;
    QVector<TrendZoom> zoomSteps() const override;
    int zoomIndex() const override;
    void zoomIndexChanged(int index) override;
    int axisLabelCount() const override;
    void showSeries(const __trend_chart_data &data) override;
    void showChartCursor(int position) override;
    void openEvents() override { emit goDispEvent(); }

private:
    DSTrendChart *m_chart;
};
