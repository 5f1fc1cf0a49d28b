#pragma once

#include "pages/viewcontainer.h"

/// Unbalance: the table of fundamentals with the sequence components, and the phasor diagram.
class unbalan : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Main, Vector };

    explicit unbalan(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;

protected:
    void aboutToShow(int row) override;
};
