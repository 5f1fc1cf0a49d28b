#include "views/mainssignaling/mainssignaling.h"

#include "pages/rmstrend.h"
#include "views/mainssignaling/mainssignalingevent.h"
#include "views/mainssignaling/mainssignalingmain.h"
#include "views/mainssignaling/mainssignalingtrend.h"

MainsSignaling::MainsSignaling(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_MAINS_SIG, { 12, "MainsSig" }, data, parent), m_main(new MainsSignalingMain(data)),
      m_trend(new MainsSignalingTrend(data)), m_events(new MainsSignalingEvent)
{
    addPage(m_main);
    addPage(m_trend);
    addPage(m_events);
    connect(m_main, &MainsSignalingMain::goMainsSignalingTrend, this, &MainsSignaling::showMainsSignalingTrend);
    connect(m_main, &MainsSignalingMain::goMainsSignalingEvent, this, &MainsSignaling::showMainsSignalingEvent);
    connect(m_trend, &MainsSignalingTrend::goBack, this, &MainsSignaling::showMainsSignalingMain);
    connect(m_events, &MainsSignalingEvent::goBack, this, &MainsSignaling::showMainsSignalingMain);
    m_follower = std::make_unique<EventFollower>(
        this, m_list, kAllEvents, [this](const EventSelection &events) { m_events->refreshEventList(&events); });
}

void MainsSignaling::showMainsSignalingMain()
{
    showPage(m_main);
}

void MainsSignaling::showMainsSignalingTrend()
{
    showPage(m_trend);
}

void MainsSignaling::showMainsSignalingEvent()
{
    m_follower->catchUp();
    showPage(m_events);
}

void MainsSignaling::initDisplayParam()
{
    m_list.clear();
}

QByteArray MainsSignaling::pqaData() const
{
    return RmsTrend::savedRecord(__rms_trend_data(), m_follower->events());
}
