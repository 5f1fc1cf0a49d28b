#pragma once

#include "model/pqaeventitem.h"
#include "pages/viewcontainer.h"

class MainsSignalingEvent;
class MainsSignalingMain;
class MainsSignalingTrend;

/// Mains-signalling events. The detector makes none; whoever reads a stored file may fill the list.
extern QList<__event_item> m_ms_events_list;

/// Mains signaling: the table of the two carriers, their ten-minute trend, and a list of events.
class MainsSignaling : public ViewContainer
{
    Q_OBJECT

public:
    explicit MainsSignaling(const LiveData &data, QWidget *parent = nullptr);

    void enterMainsSignaling() { enterFirstPage(); }
    /// The event list in the form of the other event pages, with no trend before it.
    QByteArray pqaData() const override;

public slots:
    void showMainsSignalingMain();
    void showMainsSignalingTrend();
    void showMainsSignalingEvent();
    /// Shows m_ms_events_list as it stands.
    void refreshEventList(void *);

protected:
    void initDisplayParam() override;

private:
    MainsSignalingMain *m_main;
    MainsSignalingTrend *m_trend;
    MainsSignalingEvent *m_events;
};
