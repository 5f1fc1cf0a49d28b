#include "views/dips/dipseventpage.h"

DipsEventPage::DipsEventPage(QWidget *parent) : EventsPage(UI_DIPS_SWELLS, parent)
{
    connect(this, &EventsPage::goBack, this, &DipsEventPage::goDispMain);
}
