#pragma once

#include "pages/eventspage.h"

/// List of the mains-signalling events.
class MainsSignalingEvent : public EventsPage
{
    Q_OBJECT

public:
    explicit MainsSignalingEvent(QWidget *parent = nullptr);
};
