#include "task/functions/monitorsetup.h"

#include "settings/config_data.h"
#include "model/monitorrecords.h"

MonitorSetup currentMonitorSetup()
{
    const Derived &derived = m_settingConfig_g.derived();
    MonitorSetup setup;
    setup.limits = *m_limits_g.getLimitsInUsed();
    setup.nominalVolt = double(derived.realNominalVolt);
    setup.nominalFrequency = derived.nominalFrequency;
    setup.phases = derived.channels ? derived.channels->taskPhases : kMonitorPhases;
    return setup;
}
