#pragma once

#include "pages/viewcontainer.h"

class PowerInverterMain;
class PowerInverterSetup;
class PowerInverterTrend;

/// Power inverter: choice of the output, the table of input, output and efficiency, and their ten-minute trend.
class PowerInverter : public ViewContainer
{
    Q_OBJECT

public:
    explicit PowerInverter(const LiveData &data, QWidget *parent = nullptr);

    void enterPowerInverter() { enterFirstPage(); }

public slots:
    void showPowerInverterSetup();
    void showPowerInverterMain();
    void showPowerInverterTrend();

signals:
    void startPowerInverterTask();

private:
    PowerInverterSetup *m_setup;
    PowerInverterMain *m_main;
    PowerInverterTrend *m_trend;
};
