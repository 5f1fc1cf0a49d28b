#include "views/inrush/inrushpage.h"

#include "settings/config_data.h"
#include "device/controlframe.h"
#include "device/idevice.h"
#include "model/livedata.h"
#include "pages/rmstrend.h"
#include "views/inrush/inrusheventpage.h"
#include "views/inrush/inrushmain.h"
#include "views/inrush/inrushstartpage.h"

InrushPage::InrushPage(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_INRUSH, { 7, "Inrush" }, data,
                    {
                        { make<InrushMain>, { way(&InrushMain::goInrushStart, Start, &InrushPage::start) } },
                        { make<InrushStartPage>, { way(&InrushStartPage::goInrushEvent, Events) } },
                        { make<InrushEventPage>, { way(&InrushEventPage::goInrushStart, Start) } },
                    },
                    parent)
{
    const auto show = [this](const EventSelection &events) {
        if (auto *list = made<InrushEventPage>(Events))
            list->refreshEventList(&events);
        if (auto *trend = made<InrushStartPage>(Start))
            trend->showEventsCounts(events.size());
    };
    m_follower = std::make_unique<EventFollower>(this, data.events(), EventKinds { EventInrush, EventInrush }, show);
}

void InrushPage::sendCMD()
{
    // Only the pointer crosses to the device thread.
    static const quint32 command = ControlFrame::RawInrush;
    if (m_idevice)
        m_idevice->sendDSPMgmt(&command, sizeof command);
}

void InrushPage::start()
{
    if (made<InrushMain>(Main)->switchOn())
        sendCMD();
    emit startInrushTask();
    static_cast<InrushStartPage *>(page(Start))->beginView();
}

QByteArray InrushPage::pqaData() const
{
    return RmsTrend::savedRecord(shown().inrush, events());
}
