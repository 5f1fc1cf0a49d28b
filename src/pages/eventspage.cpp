#include "pages/eventspage.h"
#include "ui_eventspage.h"

#include "widgets/controls/labellook.h"

EventsPage::EventsPage(_quvera_ui_type type, QWidget *parent)
    : ListPage(type, Lines, { 0, { 1 } }, parent), m_ui(new Ui::EventsPage)
{
    static const KeyRow<EventsPage> keys[] = {
        { Qt::Key_F5, nullptr, &EventsPage::goBack },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    showEventsCounts();
    setKeys(keys);
}

EventsPage::~EventsPage() = default;

void EventsPage::init_parameter()
{
    ListPage::init_parameter();
    refreshEventList(nullptr);
}

void EventsPage::retranslateUi()
{
    ListPage::retranslateUi();
    setKeyCaption(5, tr("Back"));
    setText(m_ui->events_t, tr("EVENTS :"));
    m_ui->events->update(); // its column titles
}

void EventsPage::refreshEventList(const EventSelection *list)
{
    m_ui->events->refreshEventList(list);
    showEventsCounts();
}

ScrollModel &EventsPage::list()
{
    return m_ui->events->scroll();
}

EventsWidget &EventsPage::table()
{
    return *m_ui->events;
}

void EventsPage::showList()
{
    m_ui->events->update();
    showEventsCounts();
}

void EventsPage::showEventsCounts()
{
    const EventsWidget &events = *m_ui->events;
    const int count = events.eventsCnt();
    const int position = count > 0 ? events.firstShown() + events.row() + 1 : 0;
    setText(m_ui->events_count, QStringLiteral("%1/%2").arg(position).arg(count));
}
