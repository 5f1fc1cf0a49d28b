#pragma once

#include "pages/livepage.h"

#include <memory>

namespace Ui {
class PowerInverterSetup;
}

/// Choice of the inverter's output, single-phase or three-phase, and the start of the measurement.
class PowerInverterSetup : public LivePage
{
    Q_OBJECT

public:
    explicit PowerInverterSetup(QWidget *parent = nullptr);
    ~PowerInverterSetup() override;

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void startPowerInverterTask();
    void goPowerInverterMain();

private:
    void chooseSingle();
    void chooseThree();
    void start();
    void initInverter();
    void startPowerInverter();

    std::unique_ptr<Ui::PowerInverterSetup> m_ui;
};
