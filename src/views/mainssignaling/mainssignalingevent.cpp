#include "views/mainssignaling/mainssignalingevent.h"

MainsSignalingEvent::MainsSignalingEvent(QWidget *parent) : EventsPage(UI_MAINS_SIG, parent) { }
