#include "views/mainssignaling/mainssignaling.h"

#include "pages/rmstrend.h"
#include "views/mainssignaling/mainssignalingevent.h"
#include "views/mainssignaling/mainssignalingmain.h"
#include "views/mainssignaling/mainssignalingtrend.h"

QList<__event_item> m_ms_events_list;

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
    refreshEventList(nullptr);
    showPage(m_events);
}

void MainsSignaling::refreshEventList(void *)
{
    m_events->refreshEventList(&m_ms_events_list);
}

void MainsSignaling::initDisplayParam()
{
    m_ms_events_list.clear();
}

QByteArray MainsSignaling::pqaData() const
{
    return RmsTrend::savedRecord(__rms_trend_data(), m_ms_events_list);
}
