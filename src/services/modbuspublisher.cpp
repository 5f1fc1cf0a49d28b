#include "services/modbuspublisher.h"

#include "settings/config_data.h"
#include "model/livedata.h"
#include "services/modbusblocks.h"
#include "services/modbusslave.h"
#include "task/unitask.h"

#include <algorithm>
#include <cstring>

namespace ModbusPublisher {

namespace {

void publishAggregation(const __datagram_aggregation *record)
{
    fillModbus(&mb_data_vif, *record);
    fillModbus(&mb_data_power, *record);
    fillModbus(&mb_data_unbalance, *record);
    fillModbus(&mb_data_ufft, *record, true);
    fillModbus(&mb_data_ifft, *record, false);
    for (const __modbus_data_header *block :
         { &mb_data_vif.head, &mb_data_power.head, &mb_data_unbalance.head, &mb_data_ufft.head, &mb_data_ifft.head })
        mbSlave.setModbusData(block);
}

void publishEvents(const QByteArray &table)
{
    std::memcpy(&mb_data_events, table.constData(), std::min(std::size_t(table.size()), sizeof(mb_data_events)));
    mbSlave.setModbusData(&mb_data_events.head);
}

} // namespace

void follow(UniTask *task)
{
    QObject::connect(task, &UniTask::aggregationTaken, task, publishAggregation);
    QObject::connect(task, &UniTask::eventTableChanged, task, publishEvents);
    QObject::connect(task, &UniTask::waveTaken, task, [](const __datagram_wave *record) {
        fillModbus(&mb_data_scope, *record, m_settingConfig_g.wvi());
        mbSlave.setModbusBigData(&mb_data_scope.head);
    });
    QObject::connect(task, &UniTask::transientTaken, task, [](const __trans_data *record) {
        fillModbus(&mb_data_trans, *record, m_settingConfig_g.wvi());
        mbSlave.setModbusBigData(&mb_data_trans.head);
    });
    QObject::connect(task, &UniTask::flickerTaken, task, [task] {
        fillModbus(&mb_data_flicker, task->live().flicker); // a hold of the display does not concern the master
        mbSlave.setModbusData(&mb_data_flicker.head);
    });
}

void clear()
{
    mbSlave.clearAllModbusData();
}

void publishSettings()
{
    update_modbus_swinfo();
}

} // namespace ModbusPublisher
