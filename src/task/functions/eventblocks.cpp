#include "task/functions/eventblocks.h"

#include "detect/powerevents.h"
#include "model/displayrecords.h"
#include "task/transientcutter.h"

namespace EventBlocks {

QByteArray head(const PQAEventItem &event)
{
    return PowerEvents::rawHead(event);
}

QByteArray transient(const __trans_data &record)
{
    const int channel = TransientCutter::channelCode(record.position) - 1;
    QByteArray block;
    if (channel < 0 || channel >= kChannels)
        return block;
    block.append(reinterpret_cast<const char *>(&record.time), sizeof(record.time));
    block.append(reinterpret_cast<const char *>(&record.frequency), sizeof(record.frequency));
    block.append(reinterpret_cast<const char *>(&record.position), sizeof(record.position));
    block.append(reinterpret_cast<const char *>(record.samples[channel]), sizeof(record.samples[channel]));
    return block;
}

} // namespace EventBlocks
