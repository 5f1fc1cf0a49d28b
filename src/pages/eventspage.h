#pragma once

#include "model/pqaeventitem.h"
#include "pages/livepage.h"

#include <memory>

namespace Ui {
class EventsPage;
}
class KeyRepeat;

/// List of a function's events, one line selected, with a counter "3/17". The arrows up and down move the selection,
/// and go on while they are held; F5 goes back.
class EventsPage : public LivePage
{
    Q_OBJECT

public:
    explicit EventsPage(_quvera_ui_type type, QWidget *parent = nullptr);
    ~EventsPage() override;

    /// Shows \a list; null empties the table.
    void refreshEventList(const QList<__event_item> *list);

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goBack();

protected:
    void releaseKey(int key) override;

private:
    void pressUp();
    void pressDown();
    void accTimerSlot(int step);
    void showEventsCounts();

    std::unique_ptr<Ui::EventsPage> m_ui;
    KeyRepeat *m_repeat;
};
