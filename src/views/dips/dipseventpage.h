#pragma once

#include "pages/eventspage.h"

/// List of the dips, swells, interruptions and rapid voltage changes.
class DipsEventPage : public EventsPage
{
    Q_OBJECT

public:
    explicit DipsEventPage(QWidget *parent = nullptr);

signals:
    void goDispMain();
};
