#pragma once

#include "views/common/channellabels.h"
#include "views/common/viewpage.h"

#include <memory>
#include <vector>

namespace Ui {
class VifMain;
}

/// Table of r.m.s., peak and crest values of all channels, and the frequency.
class VifMain : public ViewPage
{
    Q_OBJECT

public:
    explicit VifMain(QWidget *parent = nullptr);
    ~VifMain() override;

public slots:
    void updateDisplay(void *) override { showCurParams(); }
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goVifTrend();

private:
    void showTitle();
    void showCurParams();

    std::unique_ptr<Ui::VifMain> m_ui;
    ChannelLabels::LabelRow m_headers;
    std::vector<ChannelLabels::LabelRow> m_rows; // in the order of the table of rows
};
