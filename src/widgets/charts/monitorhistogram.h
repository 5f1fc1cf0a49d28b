#pragma once

#include "widgets/charts/compliancebars.h"

/// Compliance of the thirteen quantities of the Monitor function with the limit set in use.
/// Made for 600 pixels in width.
class MonitorHistogram : public ComplianceBars
{
public:
    explicit MonitorHistogram(QWidget *parent = nullptr);

    static constexpr int kBars = 13;

    /// Copies thirteen bars (104 bytes); a null pointer changes nothing.
    void showHistogram(const ComplianceBar *data);
    void setCursorPosition(int index);
    /// Bit i shows bar i; all at first.
    void setFlags(int flags);
    int flags() const { return m_flags; }

protected:
    bool isShown(int index) const override { return m_flags & (1 << index); }

private:
    int m_flags = (1 << kBars) - 1;
};
static_assert(MonitorHistogram::kBars * sizeof(ComplianceBar) == 104, "what a page hands over");
