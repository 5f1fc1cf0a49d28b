#pragma once

#include "pages/eventfollower.h"
#include "pages/viewcontainer.h"

#include <memory>

/// Dips and swells: the trend of half-cycle values and the list of events found in it.
class dswell : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Main, Events };

    explicit dswell(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;
    /// Dips, swells, interruptions and rapid voltage changes of the live list.
    const EventSelection &events() const { return m_follower->events(); }

protected:
    void pageMade(int) override { m_follower->catchUp(); }

private:
    std::unique_ptr<EventFollower> m_follower;
};
