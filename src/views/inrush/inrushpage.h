#pragma once

#include "pages/eventfollower.h"
#include "pages/viewcontainer.h"

#include <memory>

/// Inrush currents: the levels that make one, the trend in which it shows, and the list of those found.
class InrushPage : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Main, Start, Events };

    explicit InrushPage(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;
    /// Inrush events of the live list.
    const EventSelection &events() const { return m_follower->events(); }

signals:
    void startInrushTask();

protected:
    void pageMade(int) override { m_follower->catchUp(); }

private:
    /// The raw inrush command to the processor.
    static void sendCMD();
    /// Arms the processor, where the switch is on, before the trend is shown.
    void start();

    std::unique_ptr<EventFollower> m_follower;
};
