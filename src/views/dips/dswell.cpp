#include "views/dips/dswell.h"

#include "settings/config_data.h"
#include "pages/rmstrend.h"
#include "views/dips/dipseventpage.h"
#include "views/dips/dswellmain.h"

QList<__event_item> m_ds_events_list;

dswell::dswell(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_DIPS_SWELLS, { 3, "DipSwell" }, data, parent), m_main(new DswellMain(data)),
      m_events(new DipsEventPage)
{
    addPage(m_main);
    addPage(m_events);
    connect(m_main, &DswellMain::goDispEvent, this, &dswell::showDispEvent);
    connect(m_events, &DipsEventPage::goDispMain, this, &dswell::showDispMain);
}

void dswell::showDispMain()
{
    showPage(m_main);
}

void dswell::showDispEvent()
{
    showPage(m_events);
}

void dswell::initDisplayParam()
{
    m_ds_events_list.clear();
}

void dswell::init_parameter()
{
    ViewContainer::init_parameter();
    g_events_list.clear();
}

void dswell::refreshEventList(void *)
{
    m_ds_events_list.clear();
    for (const __event_item &event : qAsConst(g_events_list)) {
        if (event.type >= EventDip && event.type <= EventRvc)
            m_ds_events_list.append(event);
    }
    m_events->refreshEventList(&m_ds_events_list);
    m_main->showEventsCounts(m_ds_events_list.size());
}

QByteArray dswell::pqaData() const
{
    return RmsTrend::savedRecord(shown().dips, m_ds_events_list);
}
