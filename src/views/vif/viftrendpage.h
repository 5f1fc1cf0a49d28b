#pragma once

#include "pages/trendpage.h"

/// Ten-minute trend of r.m.s., peak, crest and offset values and of the frequency.
class VifTrendPage : public TrendPage
{
    Q_OBJECT

public:
    explicit VifTrendPage(const LiveData &data, QWidget *parent = nullptr);

signals:
    void goBack();

private:
    static const std::vector<Quantity> &cycle();
};
