#pragma once

#include "pages/viewcontainer.h"

class HarmMain;
class HarmMeterPage;

/// Harmonics: the bar graph of a spectrum and the table of all orders.
class harm : public ViewContainer
{
    Q_OBJECT

public:
    explicit harm(const LiveData &data, QWidget *parent = nullptr);

    void enterHarm() { enterFirstPage(); }
    QByteArray pqaData() const override;

public slots:
    void showHarmMain();
    void showHarmMeter();

signals:
    /// Asks for the other reference than \a flag: 1 percent of r.m.s., 2 percent of the fundamental.
    void changeFlag(int flag);

private:
    HarmMain *m_main;
    HarmMeterPage *m_meter;
};
