#pragma once

#include "pages/meterpage.h"

#include <memory>

namespace Ui {
class MainsSignalingMain;
}

/// Table of the two carriers, in percent of the nominal voltage and in volts, beside the half-cycle r.m.s. values.
class MainsSignalingMain : public MeterPage
{
    Q_OBJECT

public:
    explicit MainsSignalingMain(const LiveData &data, QWidget *parent = nullptr);
    ~MainsSignalingMain() override;

signals:
    void goMainsSignalingTrend();
    void goMainsSignalingEvent();

protected:
    void showTitle() override;
    void showCurParams() override;

private:
    std::unique_ptr<Ui::MainsSignalingMain> m_ui;
};
