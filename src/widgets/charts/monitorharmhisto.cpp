#include "widgets/charts/monitorharmhisto.h"

static const int kPositions[MonitorHarmHisto::kBars] = {
    30, // distortion, set apart from the orders
    74,  96,  118, 140, 162, 184, 206, 228, 250, 272, 294, 316, //
    338, 360, 382, 404, 426, 448, 470, 492, 514, 536, 558, 580,
};

MonitorHarmHisto::MonitorHarmHisto(QWidget *parent) : ComplianceBars(kPositions, kBars, 0, parent) { }

void MonitorHarmHisto::showHarmHistogram(const ComplianceBar *values)
{
    if (values)
        takeBars(values);
}

void MonitorHarmHisto::setCursorIndex(int index)
{
    moveCursor(index);
}
