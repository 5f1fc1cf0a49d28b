#pragma once

#include "pages/listpage.h"

#include <memory>

namespace Ui {
class EventsPage;
}
class EventSelection;
class EventsWidget;

/// List of a function's events, one line selected, with a counter "3/17". The arrows up and down move the selection,
/// and go on while they are held; F5 goes back.
class EventsPage : public ListPage
{
    Q_OBJECT

public:
    explicit EventsPage(_quvera_ui_type type, QWidget *parent = nullptr);
    ~EventsPage() override;

    /// Shows \a list, which outlives the page; null empties the table.
    void refreshEventList(const EventSelection *list);

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goBack();

protected:
    ScrollModel &list() override;
    void showList() override;
    EventsWidget &table();

private:
    void showEventsCounts();

    std::unique_ptr<Ui::EventsPage> m_ui;
};
