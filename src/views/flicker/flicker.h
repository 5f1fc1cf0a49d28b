#pragma once

#include "pages/viewcontainer.h"

class FlickerMain;
class FlickerPage;

/// Flicker: the table of severities and the trend of the instantaneous sensation.
class flicker : public ViewContainer
{
    Q_OBJECT

public:
    explicit flicker(const LiveData &data, QWidget *parent = nullptr);

    void enterFlicker() { showFlickerMain(); }
    QByteArray pqaData() const override;

public slots:
    void showFlickerMain();
    void showFlickerTrend();
    void retranslateUi() override;

private:
    void showTitle();

    FlickerMain *m_main;
    FlickerPage *m_trend;
};
