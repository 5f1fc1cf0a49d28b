#pragma once

#include "model/livedata.h"
#include "pages/trendchartpage.h"

/// Trend of the instantaneous flicker sensation of the phases, with the latest values.
class FlickerPage : public TrendChartPage
{
    Q_OBJECT

public:
    explicit FlickerPage(const LiveData &data, QWidget *parent = nullptr);

public slots:
    void updateDisplay(void *) override { showFlickerTrend(); }
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goFlickerMain();

private:
    void showTitle();
    void showFlickerTrend();

    const LiveData &m_data;
};
