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
    explicit PowerInverter(QWidget *parent = nullptr);

    void enterPowerInverter() { enterFirstPage(); }

public slots:
    /// Derives the record from the live values, then redraws; nothing on hold.
    void updateDisplay(void *data) override;
    void showPowerInverterSetup();
    void showPowerInverterMain();
    void showPowerInverterTrend();

signals:
    void startPowerInverterTask();

protected:
    void initDisplayParam() override;

private:
    void setHeld(bool held);

    PowerInverterSetup *m_setup;
    PowerInverterMain *m_main;
    PowerInverterTrend *m_trend;
    bool m_held = false;
    quint32 m_trendSecond = 0; // of the last trend point; s since 1970
};
