#include "views/inrush/inrushpage.h"

#include "settings/config_data.h"
#include "device/controlframe.h"
#include "device/idevice.h"
#include "pages/rmstrend.h"
#include "views/inrush/inrusheventpage.h"
#include "views/inrush/inrushmain.h"
#include "views/inrush/inrushstartpage.h"

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
    m_follower = std::make_unique<EventFollower>(this, g_events_list, EventKinds { EventInrush, EventInrush },
                                                 [this](const EventSelection &events) {
                                                     m_events->refreshEventList(&events);
                                                     m_start->showEventsCounts(events.size());
                                                 });
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

QByteArray InrushPage::pqaData() const
{
    return RmsTrend::savedRecord(shown().inrush, events());
}
