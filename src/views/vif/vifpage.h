#pragma once

#include "pages/viewcontainer.h"

class VifMain;
class VifTrendPage;

/// Volts/Amps/Hertz: the table of values and the ten-minute trend.
class VifPage : public ViewContainer
{
    Q_OBJECT

public:
    explicit VifPage(const LiveData &data, QWidget *parent = nullptr);

    void enterVif() { enterFirstPage(); }
    QByteArray pqaData() const override;

public slots:
    void showVifTrend();
    void showVifmain();

private:
    VifMain *m_main;
    VifTrendPage *m_trend;
};
