#pragma once

#include "pages/viewcontainer.h"

/// Power and energy: the table of powers with its energy panel, and the ten-minute trend.
class powen : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Main, Trend };

    explicit powen(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;

signals:
    /// The user wants the energy counters at zero.
    void resetEnergy();
};
