#pragma once

#include "pages/eventfollower.h"
#include "pages/viewcontainer.h"

#include <memory>

class DipsEventPage;
class DswellMain;

/// Dips and swells: the trend of half-cycle values and the list of events found in it.
class dswell : public ViewContainer
{
    Q_OBJECT

public:
    explicit dswell(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;
    /// Dips, swells, interruptions and rapid voltage changes of the live list.
    const EventSelection &events() const { return m_follower->events(); }

public slots:
    void showDispMain();
    void showDispEvent();

private:
    DswellMain *m_main;
    DipsEventPage *m_events;
    std::unique_ptr<EventFollower> m_follower;
};
