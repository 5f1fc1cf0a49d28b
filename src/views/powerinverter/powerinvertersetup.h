#pragma once

#include "pages/choicepage.h"

/// Choice of the inverter's output, single-phase or three-phase, and the start of the measurement.
class PowerInverterSetup : public ChoicePage
{
    Q_OBJECT

public:
    explicit PowerInverterSetup(QWidget *parent = nullptr);

signals:
    void startPowerInverterTask();
    void goPowerInverterMain();

protected:
    void load() override;

private:
    void start();
    void initInverter();
    void startPowerInverter();
};
