#include "views/inrush/inrushpage.h"

#include "settings/config_data.h"
#include "device/controlframe.h"
#include "device/idevice.h"
#include "pages/rmstrend.h"
#include "views/inrush/inrusheventpage.h"
#include "views/inrush/inrushmain.h"
#include "views/inrush/inrushstartpage.h"

QList<__event_item> m_inrush_events_list;

InrushPage::InrushPage(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_INRUSH, { 7, "Inrush" }, data, parent), m_main(new InrushMain),
      m_start(new InrushStartPage(data)), m_events(new InrushEventPage)
{
    addPage(m_main);
    addPage(m_start);
    addPage(m_events);
    connect(m_main, &InrushMain::goInrushStart, this, &InrushPage::showInrushStart);
    connect(m_start, &InrushStartPage::goInrushEvent, this, &InrushPage::showInrushEvent);
    connect(m_events, &InrushEventPage::goInrushStart, this, &InrushPage::backToStart);
}

void InrushPage::sendCMD()
{
    // Only the pointer crosses to the device thread.
    static const quint32 command = ControlFrame::RawInrush;
    if (m_idevice)
        m_idevice->sendDSPMgmt(&command, sizeof command);
}

void InrushPage::showInrushMain()
{
    showPage(m_main);
}

void InrushPage::showInrushStart()
{
    if (m_main->switchOn())
        sendCMD();
    emit startInrushTask();
    m_start->beginView();
    showPage(m_start);
}

void InrushPage::backToStart()
{
    showPage(m_start);
}

void InrushPage::showInrushEvent()
{
    showPage(m_events);
}

void InrushPage::initDisplayParam()
{
    m_inrush_events_list.clear();
}

void InrushPage::refreshEventList(void *)
{
    m_inrush_events_list.clear();
    for (const __event_item &event : qAsConst(g_events_list)) {
        if (event.type == EventInrush)
            m_inrush_events_list.append(event);
    }
    m_events->refreshEventList(&m_inrush_events_list);
    m_start->showEventsCounts(m_inrush_events_list.size());
}

QByteArray InrushPage::pqaData() const
{
    return RmsTrend::savedRecord(shown().inrush, m_inrush_events_list);
}
