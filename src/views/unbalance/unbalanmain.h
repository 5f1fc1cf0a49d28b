#pragma once

#include "views/common/channellabels.h"
#include "views/common/viewpage.h"

#include <memory>
#include <vector>

namespace Ui {
class UnbalanMain;
}

/// Table of r.m.s. values, fundamentals and angles, with the negative and zero sequence ratios.
class UnbalanMain : public ViewPage
{
    Q_OBJECT

public:
    explicit UnbalanMain(QWidget *parent = nullptr);
    ~UnbalanMain() override;

public slots:
    void updateDisplay(void *) override { showCurParams(); }
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goUnbalanVector();

private:
    void showTitle();
    void showCurParams();

    std::unique_ptr<Ui::UnbalanMain> m_ui;
    ChannelLabels::LabelRow m_headers;
    std::vector<ChannelLabels::LabelRow> m_rows; // in the order of the table of rows
    std::vector<QLabel *> m_ratios; // in the order of the table of ratios
};
