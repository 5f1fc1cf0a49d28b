#pragma once

#include "pages/rmstrendpage.h"

class InrushTrendChart;

/// Trend of the half-cycle values over the chosen duration, in which an inrush shows. It opens with the currents, at
/// the finest scale that the duration stores.
class InrushStartPage : public RmsTrendPage
{
    Q_OBJECT

public:
    explicit InrushStartPage(const LiveData &data, QWidget *parent = nullptr);

    /// The user starts a capture: newest values, at the scale of the duration chosen now.
    void beginView();

public slots:
    void init_parameter() override;

signals:
    void goInrushEvent();

protected:
    const __rms_trend_data &record(const DisplayRecords &shown) const override { return shown.inrush; }
    int valuesPerSecond() const override;
    /// The four zoom pairs and, where none of them has its length, the scale of the duration.
    QVector<TrendZoom> zoomSteps() const override;
    int zoomIndex() const override { return m_zoom; }
    void zoomIndexChanged(int index) override;
    int axisLabelCount() const override;
    Quantity firstQuantity() const override { return Current; }
    void showSeries(const __trend_chart_data &data) override;
    void showChartCursor(int position) override;
    void openEvents() override { emit goInrushEvent(); }

private:
    TrendZoom durationScale() const;
    void chooseScale();

    InrushTrendChart *m_chart;
    int m_zoom = 0; // into zoomSteps()
};
