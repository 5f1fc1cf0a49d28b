#include "views/mainssignaling/mainssignaling.h"

#include "pages/rmstrend.h"
#include "views/mainssignaling/mainssignalingevent.h"
#include "views/mainssignaling/mainssignalingmain.h"
#include "views/mainssignaling/mainssignalingtrend.h"

MainsSignaling::MainsSignaling(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_MAINS_SIG, { 12, "MainsSig" }, data,
                    {
                        { make<MainsSignalingMain>,
                          { way(&MainsSignalingMain::goMainsSignalingTrend, Trend),
                            way(&MainsSignalingMain::goMainsSignalingEvent, Events) } },
                        { make<MainsSignalingTrend>, { way(&MainsSignalingTrend::goBack, Main) } },
                        { make<MainsSignalingEvent>, { way(&MainsSignalingEvent::goBack, Main) } },
                    },
                    parent)
{
    m_follower = std::make_unique<EventFollower>(this, m_list, kAllEvents, [this](const EventSelection &events) {
        if (auto *list = made<MainsSignalingEvent>(Events))
            list->refreshEventList(&events);
    });
}

void MainsSignaling::aboutToShow(int row)
{
    if (row == Events)
        m_follower->catchUp();
}

void MainsSignaling::initDisplayParam()
{
    m_list.clear();
}

QByteArray MainsSignaling::pqaData() const
{
    return RmsTrend::savedRecord(__rms_trend_data(), m_follower->events());
}
