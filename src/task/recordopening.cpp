#include "task/recordopening.h"

#include "settings/config_data.h"
#include "device/idevice.h"
#include "record/pqa2info.h"

Pqa2Opening recordOpening()
{
    const InstrumentLabels labels = { m_userConfig_g.getInstrumentModelName(), m_userConfig_g.getInstrumentSN(),
                                      m_idevice ? m_idevice->dspVersion() : QString() };
    const Derived &setUp = m_settingConfig_g.derived();
    return { getInstrumentInfo(labels).toLatin1(), getSystemSetting(setUp).toLatin1(), getChannelFactor(setUp.scales) };
}
