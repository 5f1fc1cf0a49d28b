#pragma once

#include "pages/viewcontainer.h"

class PowerMain;
class PowerTrendPage;

/// Power and energy: the table of powers with its energy panel, and the ten-minute trend.
class powen : public ViewContainer
{
    Q_OBJECT

public:
    explicit powen(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;

public slots:
    void showPowerTrend();
    void showPowerMain();

signals:
    /// The user wants the energy counters at zero.
    void resetEnergy();

private:
    PowerMain *m_main;
    PowerTrendPage *m_trend;
};
