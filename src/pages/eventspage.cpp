#include "pages/eventspage.h"
#include "ui_eventspage.h"

#include "widgets/controls/keyrepeat.h"
#include "widgets/controls/labellook.h"

EventsPage::EventsPage(_quvera_ui_type type, QWidget *parent)
    : LivePage(type, parent), m_ui(new Ui::EventsPage), m_repeat(new KeyRepeat(this, 0, { 1 }))
{
    static const KeyRow<EventsPage> keys[] = {
        { Qt::Key_Up, nullptr, &EventsPage::pressUp },
        { Qt::Key_Down, nullptr, &EventsPage::pressDown },
        { Qt::Key_F5, nullptr, &EventsPage::goBack },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    connect(m_repeat, &KeyRepeat::repeated, this, &EventsPage::accTimerSlot);
    showEventsCounts();
    setKeys(keys);
}

EventsPage::~EventsPage() = default;

void EventsPage::init_parameter()
{
    LivePage::init_parameter();
    refreshEventList(nullptr);
}

void EventsPage::retranslateUi()
{
    LivePage::retranslateUi();
    setKeyCaption(5, tr("Back"));
    setText(m_ui->events_t, tr("EVENTS :"));
    m_ui->events->update(); // its column titles
}

void EventsPage::refreshEventList(const QList<__event_item> *list)
{
    m_ui->events->refreshEventList(list);
    showEventsCounts();
}

void EventsPage::pressUp()
{
    m_repeat->start(-1);
}

void EventsPage::pressDown()
{
    m_repeat->start(1);
}

void EventsPage::releaseKey(int key)
{
    if (key == Qt::Key_Up || key == Qt::Key_Down)
        m_repeat->stop();
}

void EventsPage::accTimerSlot(int step)
{
    if (step < 0)
        m_ui->events->selectPrevItem();
    else
        m_ui->events->selectNextItem();
    showEventsCounts();
}

void EventsPage::showEventsCounts()
{
    const EventsWidget &events = *m_ui->events;
    const int count = events.eventsCnt();
    const int position = count > 0 ? events.firstShown() + events.row() + 1 : 0;
    setText(m_ui->events_count, QStringLiteral("%1/%2").arg(position).arg(count));
}
