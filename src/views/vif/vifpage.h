#pragma once

#include "pages/viewcontainer.h"

/// Volts/Amps/Hertz: the table of values and the ten-minute trend.
class VifPage : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Main, Trend };

    explicit VifPage(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;
};
