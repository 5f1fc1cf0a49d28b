#pragma once

#include "pages/trendpage.h"

/// Ten-minute trend of the inverter's input, output and efficiency.
class PowerInverterTrend : public TrendPage
{
    Q_OBJECT

public:
    explicit PowerInverterTrend(const LiveData &data, QWidget *parent = nullptr);

signals:
    void goPowerInverterMain();

private:
    static const std::vector<Quantity> &cycle();
};
