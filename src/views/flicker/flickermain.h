#pragma once

#include "pages/meterpage.h"

#include <memory>

namespace Ui {
class FlickerMain;
}

/// Table of short-term, long-term and instantaneous flicker of the phases.
class FlickerMain : public MeterPage
{
    Q_OBJECT

public:
    explicit FlickerMain(const LiveData &data, QWidget *parent = nullptr);
    ~FlickerMain() override;

signals:
    void goFlickerTrend();

protected:
    void showHeaders() override;
    void showCurParams() override;

private:
    std::unique_ptr<Ui::FlickerMain> m_ui;
};
