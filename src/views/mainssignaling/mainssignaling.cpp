#include "views/mainssignaling/mainssignaling.h"

#include "model/displayrecords.h"
#include "pages/rmstrend.h"
#include "views/mainssignaling/mainssignalingevent.h"
#include "views/mainssignaling/mainssignalingmain.h"
#include "views/mainssignaling/mainssignalingtrend.h"

QList<__event_item> m_ms_events_list;

MainsSignaling::MainsSignaling(QWidget *parent)
    : ViewContainer(UI_MAINS_SIG, { 12, "MainsSig" }, parent), m_main(new MainsSignalingMain),
      m_trend(new MainsSignalingTrend), m_events(new MainsSignalingEvent)
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
    // The address must stay: the task and the pages hold it for the life of the process.
    if (!g_mains_sig)
        g_mains_sig = new __mains_sig_data;
    *g_mains_sig = {};
    m_ms_events_list.clear();
}

QByteArray MainsSignaling::pqaData() const
{
    return RmsTrend::savedRecord(__rms_trend_data(), m_ms_events_list);
}
