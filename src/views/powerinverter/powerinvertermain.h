#pragma once

#include "model/livedata.h"
#include "pages/labelgrid.h"
#include "pages/livepage.h"

#include <memory>
#include <vector>

namespace Ui {
class PowerInverterMain;
}

/// Table of the inverter's direct-current input, its output phases and its efficiency.
class PowerInverterMain : public LivePage
{
    Q_OBJECT

public:
    explicit PowerInverterMain(const LiveData &data, QWidget *parent = nullptr);
    ~PowerInverterMain() override;

    /// Captions for the wiring, the units and the output in force.
    void showTitle();

public slots:
    void updateDisplay(void *) override { showCurParams(); }
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goPowerInverterTrend();

private:
    void showCurParams();
    /// \a row without the places of phases that the inverter does not have.
    static ChannelLabels::LabelRow outputs(ChannelLabels::LabelRow row);

    const LiveData &m_data;
    std::unique_ptr<Ui::PowerInverterMain> m_ui;
    ChannelLabels::LabelRow m_headers;
    std::vector<LabelGrid::Row> m_inputs; // in the order of the table of inputs
    std::vector<LabelGrid::Row> m_outputs; // in the order of the table of outputs
};
