#pragma once

#include "model/pqaeventitem.h"
#include "pages/viewcontainer.h"

class DipsEventPage;
class DswellMain;

/// Events of the dip family, copied from the live list: dips, swells, interruptions, rapid voltage changes.
extern QList<__event_item> m_ds_events_list;

/// Dips and swells: the trend of half-cycle values and the list of events found in it.
class dswell : public ViewContainer
{
    Q_OBJECT

public:
    explicit dswell(const LiveData &data, QWidget *parent = nullptr);

    QByteArray pqaData() const override;

public slots:
    void init_parameter() override;
    void refreshEventList(void *);
    void showDispMain();
    void showDispEvent();

protected:
    void initDisplayParam() override;

private:
    DswellMain *m_main;
    DipsEventPage *m_events;
};
