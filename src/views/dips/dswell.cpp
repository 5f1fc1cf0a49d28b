#include "views/dips/dswell.h"

#include "settings/config_data.h"
#include "model/livedata.h"
#include "pages/rmstrend.h"
#include "views/dips/dipseventpage.h"
#include "views/dips/dswellmain.h"

dswell::dswell(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_DIPS_SWELLS, { 3, "DipSwell" }, data,
                    {
                        { make<DswellMain>, { way(&DswellMain::goDispEvent, Events) } },
                        { make<DipsEventPage>, { way(&DipsEventPage::goDispMain, Main) } },
                    },
                    parent)
{
    const auto show = [this](const EventSelection &events) {
        if (auto *list = made<DipsEventPage>(Events))
            list->refreshEventList(&events);
        if (auto *trend = made<DswellMain>(Main))
            trend->showEventsCounts(events.size());
    };
    m_follower = std::make_unique<EventFollower>(this, data.events(), EventKinds { EventDip, EventRvc }, show);
}

QByteArray dswell::pqaData() const
{
    return RmsTrend::savedRecord(shown().dips, events());
}
