#include "widgets/charts/monitorhistogram.h"

static const int kPositions[MonitorHistogram::kBars] = { 30, 60, 90, 150, 180, 210, 280, 310, 340, 395, 425, 455, 485 };

MonitorHistogram::MonitorHistogram(QWidget *parent) : ComplianceBars(kPositions, kBars, 3, parent) { }

void MonitorHistogram::showHistogram(const ComplianceBar *data)
{
    if (data)
        takeBars(data);
}

void MonitorHistogram::setCursorPosition(int index)
{
    moveCursor(index);
}

void MonitorHistogram::setFlags(int flags)
{
    m_flags = flags;
    update();
}
