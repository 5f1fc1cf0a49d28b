#pragma once

#include "model/livedata.h"
#include "pages/channellabels.h"
#include "pages/trendscaler.h"
#include "pages/livepage.h"

#include <memory>

namespace Ui {
class FlickerPage;
}

/// Trend of the instantaneous flicker sensation of the phases, with the latest values.
class FlickerPage : public LivePage
{
    Q_OBJECT

public:
    explicit FlickerPage(const LiveData &data, QWidget *parent = nullptr);
    ~FlickerPage() override;

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
    std::unique_ptr<Ui::FlickerPage> m_ui;
    ChannelLabels::LabelRow m_captions;
    ChannelLabels::LabelRow m_values;
    TrendScaler::Picture m_picture; // kept alive for the chart
};
