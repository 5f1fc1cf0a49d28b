#pragma once

#include "pages/meterpage.h"

#include <memory>
#include <vector>

namespace Ui {
class UnbalanMain;
}

/// Table of r.m.s. values, fundamentals and angles, with the negative and zero sequence ratios.
class UnbalanMain : public MeterPage
{
    Q_OBJECT

public:
    explicit UnbalanMain(const LiveData &data, QWidget *parent = nullptr);
    ~UnbalanMain() override;

signals:
    void goUnbalanVector();

protected:
    void showTitle() override;
    void showCurParams() override;

private:
    std::unique_ptr<Ui::UnbalanMain> m_ui;
    std::vector<LabelGrid::Row> m_ratios; // in the order of the table of ratios
};
