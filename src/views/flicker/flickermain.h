#pragma once

#include "views/common/channellabels.h"
#include "views/common/viewpage.h"

#include <memory>
#include <vector>

namespace Ui {
class FlickerMain;
}

/// Table of short-term, long-term and instantaneous flicker of the phases.
class FlickerMain : public ViewPage
{
    Q_OBJECT

public:
    explicit FlickerMain(QWidget *parent = nullptr);
    ~FlickerMain() override;

public slots:
    void updateDisplay(void *) override { showCurParams(); }
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goFlickerTrend();

private:
    void showTitle();
    void showCurParams();

    std::unique_ptr<Ui::FlickerMain> m_ui;
    ChannelLabels::LabelRow m_headers;
    std::vector<ChannelLabels::LabelRow> m_rows; // in the order of the table of rows
};
