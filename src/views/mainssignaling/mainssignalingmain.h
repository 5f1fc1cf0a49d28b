#pragma once

#include "views/common/channellabels.h"
#include "views/common/viewpage.h"

#include <memory>
#include <vector>

namespace Ui {
class MainsSignalingMain;
}

/// Table of the two carriers, in percent of the nominal voltage and in volts, beside the half-cycle r.m.s. values.
class MainsSignalingMain : public ViewPage
{
    Q_OBJECT

public:
    explicit MainsSignalingMain(QWidget *parent = nullptr);
    ~MainsSignalingMain() override;

public slots:
    void updateDisplay(void *) override { showCurParams(); }
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goMainsSignalingTrend();
    void goMainsSignalingEvent();

private:
    void showTitle();
    void showCurParams();

    std::unique_ptr<Ui::MainsSignalingMain> m_ui;
    ChannelLabels::LabelRow m_headers;
    std::vector<ChannelLabels::LabelRow> m_rows; // in the order of the table of rows
};
