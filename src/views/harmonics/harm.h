#pragma once

#include "pages/viewcontainer.h"

/// Harmonics: the bar graph of a spectrum and the table of all orders.
class harm : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Main, Meter };

    explicit harm(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;

signals:
    /// Asks for the other reference than \a flag: 1 percent of r.m.s., 2 percent of the fundamental.
    void changeFlag(int flag);
};
