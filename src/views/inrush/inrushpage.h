#pragma once

#include "pages/eventfollower.h"
#include "pages/viewcontainer.h"

#include <memory>

class InrushEventPage;
class InrushMain;
class InrushStartPage;

/// Inrush currents: the levels that make one, the trend in which it shows, and the list of those found.
class InrushPage : public ViewContainer
{
    Q_OBJECT

public:
    explicit InrushPage(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;
    /// Inrush events of the live list.
    const EventSelection &events() const { return m_follower->events(); }

public slots:
    void showInrushMain();
    /// Arms the processor, where the switch is on, and shows the trend.
    void showInrushStart();
    void showInrushEvent();

signals:
    void startInrushTask();

private:
    /// The raw inrush command to the processor.
    static void sendCMD();
    void backToStart();

    InrushMain *m_main;
    InrushStartPage *m_start;
    InrushEventPage *m_events;
    std::unique_ptr<EventFollower> m_follower;
};
