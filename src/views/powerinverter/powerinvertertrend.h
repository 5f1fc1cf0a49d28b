#pragma once

#include "pages/trendpage.h"

#include <memory>

namespace Ui {
class PowerInverterTrend;
}

/// Ten-minute trend of the inverter's input, output and efficiency.
class PowerInverterTrend : public TrendPage
{
    Q_OBJECT

public:
    explicit PowerInverterTrend(const LiveData &data, QWidget *parent = nullptr);
    ~PowerInverterTrend() override;

signals:
    void goPowerInverterMain();

private:
    static const std::vector<Quantity> &cycle();

    std::unique_ptr<Ui::PowerInverterTrend> m_ui;
};
