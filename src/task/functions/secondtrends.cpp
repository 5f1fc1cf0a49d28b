#include "task/functions/secondtrends.h"

#include "model/livedata.h"
#include "task/displayfeed.h"

void SecondTrends::second()
{
    DisplayFeed::trendVif(m_live.vif);
    DisplayFeed::trendPower(m_live.power);
    DisplayFeed::trendMainsSignal(m_live.mainsSignal);
}
