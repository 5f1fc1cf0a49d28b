#include "services/modbusslave.h"

#include "settings/config_data.h"
#include "settings/softwareversion.h"
#include "services/modbusblocks.h"

void update_modbus_swinfo()
{
    const SettingConfig &config = m_settingConfig_g;
    const Clamp *clamp = config.curClamp();
    const ModbusSettings settings = {
        { kSoftwareMajor, kSoftwareMinor, kSoftwareBuild },
        config.getJoinMode(),
        float(config.getNomFreq()),
        config.getRealNominalVolt(),
        clamp ? clamp->range() : 0,
        clamp ? clamp->ratio() : 0,
        { config.getRatioIFenzi(), config.getRatioIFenmu() },
        { config.getRatioVFenzi(), config.getRatioVFenmu() },
    };
    fillModbus(&mb_data_swinfo, *m_limits_g.getLimitsInUsed(), settings);
    mbSlave.setModbusData(&mb_data_swinfo.head);
}
