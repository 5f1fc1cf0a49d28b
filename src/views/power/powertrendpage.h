#pragma once

#include "pages/trendpage.h"

#include <memory>

namespace Ui {
class PowerTrendPage;
}

/// Ten-minute trend of powers, power factors, voltages and currents.
class PowerTrendPage : public TrendPage
{
    Q_OBJECT

public:
    explicit PowerTrendPage(const LiveData &data, QWidget *parent = nullptr);
    ~PowerTrendPage() override;

signals:
    void goPowerMain();

private:
    static const std::vector<Quantity> &cycle();

    std::unique_ptr<Ui::PowerTrendPage> m_ui;
};
