#pragma once

#include "pages/trendpage.h"

#include <memory>

namespace Ui {
class VifTrendPage;
}

/// Ten-minute trend of r.m.s., peak, crest and offset values and of the frequency.
class VifTrendPage : public TrendPage
{
    Q_OBJECT

public:
    explicit VifTrendPage(const LiveData &data, QWidget *parent = nullptr);
    ~VifTrendPage() override;

signals:
    void goBack();

private:
    static const std::vector<Quantity> &cycle();

    std::unique_ptr<Ui::VifTrendPage> m_ui;
};
