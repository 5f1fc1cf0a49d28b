#pragma once

#include "pages/viewcontainer.h"

/// Power inverter: choice of the output, the table of input, output and efficiency, and their ten-minute trend.
class PowerInverter : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Setup, Main, Trend };

    explicit PowerInverter(const LiveData &data, QWidget *parent = nullptr);

    /// The processor's usual set-up comes back.
    void left() override;

signals:
    void startPowerInverterTask();

protected:
    void aboutToShow(int row) override;
};
