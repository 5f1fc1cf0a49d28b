#pragma once

#include "views/common/channellabels.h"
#include "views/common/trendscaler.h"
#include "views/common/viewpage.h"

#include <memory>

namespace Ui {
class VifTrendPage;
}

/// Ten-minute trend of one quantity at a time, with its latest values below the chart.
class VifTrendPage : public ViewPage
{
    Q_OBJECT

public:
    explicit VifTrendPage(QWidget *parent = nullptr);
    ~VifTrendPage() override;

    int type() const { return m_type; }

public slots:
    void updateDisplay(void *) override { showVifTrend(); }
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goBack();

private:
    void nextType();
    void changeType();
    void initTrendFlags();
    void showType();
    void showVifTrend();
    void showVifValue();

    std::unique_ptr<Ui::VifTrendPage> m_ui;
    int m_type = 1; // 1 to 9
    TrendScaler::Picture m_picture; // kept alive for the chart
    ChannelLabels::LabelRow m_captions;
    ChannelLabels::LabelRow m_values;
};
