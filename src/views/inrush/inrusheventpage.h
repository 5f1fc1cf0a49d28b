#pragma once

#include "pages/eventspage.h"

/// List of the inrush currents found.
class InrushEventPage : public EventsPage
{
    Q_OBJECT

public:
    explicit InrushEventPage(QWidget *parent = nullptr);

signals:
    void goInrushStart();
};
