#pragma once

#include "pages/eventfollower.h"
#include "pages/viewcontainer.h"

#include <memory>

/// Mains signaling: the table of the two carriers, their ten-minute trend, and a list of events.
class MainsSignaling : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Main, Trend, Events };

    explicit MainsSignaling(const LiveData &data, QWidget *parent = nullptr);

    /// The event list in the form of the other event pages, with no trend before it.
    QByteArray pqaData() const override;
    /// The page's own list. The detector makes no events of its kind; whoever reads a stored file may fill it.
    EventList &events() { return m_list; }

protected:
    void initDisplayParam() override;
    void aboutToShow(int row) override;

private:
    EventList m_list;
    std::unique_ptr<EventFollower> m_follower;
};
