#include "task/functions/inverterfunction.h"

#include "model/livedata.h"
#include "task/inverterfeed.h"

void InverterFunction::aggregation(const __datagram_aggregation &)
{
    const Output output = m_output();
    InverterFeed::feed(m_live.vif, m_live.power, output.single, output.phases, m_live.inverter);
}

void InverterFunction::second()
{
    InverterFeed::appendTrends(m_output().phases, m_live.inverter);
}
