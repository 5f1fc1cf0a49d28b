#pragma once

#include "pages/meterpage.h"

#include <memory>
#include <vector>

namespace Ui {
class PowerMain;
}

/// Table of powers, power factors, voltages and currents, with a panel of the energies since the last reset.
class PowerMain : public MeterPage
{
    Q_OBJECT

public:
    explicit PowerMain(const LiveData &data, QWidget *parent = nullptr);
    ~PowerMain() override;

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goPowerTrend();
    void resetEnergy();

protected:
    void showTitle() override;
    void showHeaders() override;
    void showCurParams() override;

private:
    void pressReset();
    void toggleEnergy();
    void show_Energy();
    void showRow(const ChannelLabels::LabelRow &row, const float *values, bool hasTotal,
                 QString (*format)(float)) const;
    void showEnergies();
    void showCaporInd();

    std::unique_ptr<Ui::PowerMain> m_ui;
    bool m_energyShown = false;
    std::vector<LabelGrid::Row> m_energies; // active, apparent, reactive
    ChannelLabels::LabelRow m_flags;
};
