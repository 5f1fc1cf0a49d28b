#pragma once

#include "widgets/charts/compliancebars.h"

/// Compliance of the distortion and the harmonic orders 2 to 25 of one phase with the limit set in use.
/// Made for 640 pixels in width.
class MonitorHarmHisto : public ComplianceBars
{
public:
    explicit MonitorHarmHisto(QWidget *parent = nullptr);

    static constexpr int kBars = 25;

    /// Copies twenty-five bars; a null pointer changes nothing.
    void showHarmHistogram(const ComplianceBar *values);
    void setCursorIndex(int index);

protected:
    bool isShown(int) const override { return true; }
};
