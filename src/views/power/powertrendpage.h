#pragma once

#include "pages/trendpage.h"

/// Ten-minute trend of powers, power factors, voltages and currents.
class PowerTrendPage : public TrendPage
{
    Q_OBJECT

public:
    explicit PowerTrendPage(const LiveData &data, QWidget *parent = nullptr);

signals:
    void goPowerMain();

private:
    static const std::vector<Quantity> &cycle();
};
