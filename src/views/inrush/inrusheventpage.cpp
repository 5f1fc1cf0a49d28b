#include "views/inrush/inrusheventpage.h"

InrushEventPage::InrushEventPage(QWidget *parent) : EventsPage(UI_INRUSH, parent)
{
    connect(this, &EventsPage::goBack, this, &InrushEventPage::goInrushStart);
}
