#pragma once

#include "pages/meterpage.h"

#include <memory>

namespace Ui {
class VifMain;
}

/// Table of r.m.s., peak and crest values of all channels, and the frequency.
class VifMain : public MeterPage
{
    Q_OBJECT

public:
    explicit VifMain(const LiveData &data, QWidget *parent = nullptr);
    ~VifMain() override;

signals:
    void goVifTrend();

protected:
    void showCurParams() override;

private:
    std::unique_ptr<Ui::VifMain> m_ui;
};
