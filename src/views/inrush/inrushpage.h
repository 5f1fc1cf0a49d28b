#pragma once

#include "model/pqaeventitem.h"
#include "pages/viewcontainer.h"

class InrushEventPage;
class InrushMain;
class InrushStartPage;

/// Inrush events, copied from the live list.
extern QList<__event_item> m_inrush_events_list;

/// Inrush currents: the levels that make one, the trend in which it shows, and the list of those found.
class InrushPage : public ViewContainer
{
    Q_OBJECT

public:
    explicit InrushPage(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;

public slots:
    void refreshEventList(void *);
    void showInrushMain();
    /// Arms the processor, where the switch is on, and shows the trend.
    void showInrushStart();
    void showInrushEvent();

signals:
    void startInrushTask();

protected:
    void initDisplayParam() override;

private:
    /// The raw inrush command to the processor.
    static void sendCMD();
    void backToStart();

    InrushMain *m_main;
    InrushStartPage *m_start;
    InrushEventPage *m_events;
};
