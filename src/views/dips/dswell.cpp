#include "views/dips/dswell.h"

#include "settings/config_data.h"
#include "pages/rmstrend.h"
#include "views/dips/dipseventpage.h"
#include "views/dips/dswellmain.h"

dswell::dswell(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_DIPS_SWELLS, { 3, "DipSwell" }, data, parent), m_main(new DswellMain(data)),
      m_events(new DipsEventPage)
{
    addPage(m_main);
    addPage(m_events);
    connect(m_main, &DswellMain::goDispEvent, this, &dswell::showDispEvent);
    connect(m_events, &DipsEventPage::goDispMain, this, &dswell::showDispMain);
    m_follower = std::make_unique<EventFollower>(this, g_events_list, EventKinds { EventDip, EventRvc },
                                                 [this](const EventSelection &events) {
                                                     m_events->refreshEventList(&events);
                                                     m_main->showEventsCounts(events.size());
                                                 });
}

void dswell::showDispMain()
{
    showPage(m_main);
}

void dswell::showDispEvent()
{
    showPage(m_events);
}

QByteArray dswell::pqaData() const
{
    return RmsTrend::savedRecord(shown().dips, events());
}
