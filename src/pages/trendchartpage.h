#pragma once

#include "pages/labelgrid.h"
#include "pages/livepage.h"
#include "pages/trendscaler.h"

#include <QStringList>

#include <memory>

namespace Ui {
class TrendForm;
}
class VifTrendChart;

/// A page of one trend chart with what it shows at the top and the latest values below it: the form of all such pages.
/// A page places its values by one record and draws a picture whenever it has a new one.
class TrendChartPage : public LivePage
{
    Q_OBJECT

public:
    ~TrendChartPage() override;

protected:
    TrendChartPage(_quvera_ui_type type, QWidget *parent);

    /// To be called once, before setKeys; the page is dressed. \a axis: labels of the time axis, oldest first;
    /// \a chart: object name of the chart.
    void setUpChart(const QStringList &axis, const char *chart, const ValueStrip::Labels &labels);
    /// Draws \a picture, which is kept for the chart. Without values the chart stays as it is.
    void showPicture(TrendScaler::Picture picture);
    /// At the top left: what the chart shows.
    void showName(const QString &name);

    VifTrendChart &chart() { return *m_chart; }

    ValueStrip::Labels m_labels;

private:
    std::unique_ptr<Ui::TrendForm> m_ui;
    VifTrendChart *m_chart;
    TrendScaler::Picture m_picture; // kept alive for the chart
};
