#include "task/functions/monitorfunction.h"

#include "detect/flickerprocessor.h"
#include "model/livedata.h"
#include "task/functions/eventblocks.h"

void MonitorFunction::flicker(const __datagram_flicker &record, const FlickerOutput &out)
{
    const quint32 seconds = quint32(record.time / 1000);
    const QByteArray head(reinterpret_cast<const char *>(&seconds), sizeof seconds);
    if (out.shortTerm)
        m_file.add(Pqa2MonitorFlickerShort, head + out.shortBlock);
    if (out.longTerm)
        m_file.add(Pqa2MonitorFlickerLong, head + out.longBlock);
}

void MonitorFunction::transient(const __trans_data &record)
{
    m_file.add(Pqa2Transient, EventBlocks::transient(record));
}

void MonitorFunction::storeEvents(EventChoice choice)
{
    EventBlocks::forEach(m_data.events(), choice,
                         [this](const PQAEventItem &event) { m_file.add(Pqa2EventHead, EventBlocks::head(event)); });
}

void MonitorFunction::stop(Keep)
{
    storeEvents(EventChoice::All);
}
