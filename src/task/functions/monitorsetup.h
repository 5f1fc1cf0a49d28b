#pragma once

#include "settings/limits.h"

/// What a run of the monitor is judged by; taken when the run is planned, so that a later choice does not touch it.
struct MonitorSetup
{
    monitor_limit limits {};
    double nominalVolt = 230; // V, with the transformer ratio
    double nominalFrequency = 50; // Hz
    int phases = 3; // measured, 1 to 3
};

/// The active limits and the present settings. Main thread.
MonitorSetup currentMonitorSetup();
