#pragma once

#include "pages/trendpage.h"

/// Ten-minute trend of the two carriers and of the half-cycle r.m.s. values.
class MainsSignalingTrend : public TrendPage
{
    Q_OBJECT

public:
    explicit MainsSignalingTrend(const LiveData &data, QWidget *parent = nullptr);

signals:
    void goBack();

private:
    static const std::vector<Quantity> &cycle();
};
