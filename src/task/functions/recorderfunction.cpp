#include "task/functions/recorderfunction.h"

#include "detect/flickerprocessor.h"
#include "detect/powerevents.h"
#include "model/channelset.h"
#include "model/livedata.h"
#include "settings/recordinfo.h"
#include "task/eventwave.h"
#include "task/functions/eventblocks.h"

void RecorderFunction::flicker(const __datagram_flicker &record, const FlickerOutput &out)
{
    if (!(RecordInfo::m_recordItems & RecordInfo::Flicker))
        return;
    const QByteArray head(reinterpret_cast<const char *>(&record.time), sizeof record.time);
    if (out.shortTerm)
        m_common.add(Pqa2FlickerShort, head + out.shortBlock);
    if (out.longTerm)
        m_common.add(Pqa2FlickerLong, head + out.longBlock);
}

void RecorderFunction::transient(const __trans_data &record)
{
    m_common.add(Pqa2Transient, EventBlocks::transient(record));
}

void RecorderFunction::eventComplete(const PQAEventItem &event)
{
    m_common.add(Pqa2EventCurves, PowerEvents::toRawData(event));
}

void RecorderFunction::eventWave(const EventWave &wave, const ChannelSet &wiring)
{
    if (m_common.isOpen())
        m_common.add(Pqa2EventWave, EventWaveCutter::block(wave, wiring.mask));
}

void RecorderFunction::storeEvents(EventChoice choice)
{
    if (!m_common.isOpen())
        return;
    EventBlocks::forEach(m_data.events(), choice, [this, choice](const PQAEventItem &event) {
        if (choice == EventChoice::All)
            m_common.add(Pqa2EventHead, EventBlocks::head(event));
        else
            m_common.add(Pqa2EventCurves, PowerEvents::toRawData(event));
    });
    if (choice != EventChoice::Finished)
        return;
    for (const __trans_data &record : m_data.transients())
        m_common.add(Pqa2Transient, EventBlocks::transient(record));
}
