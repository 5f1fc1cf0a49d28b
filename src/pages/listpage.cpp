#include "pages/listpage.h"

#include <QScrollBar>

#include <algorithm>

ListPage::ListPage(_quvera_ui_type type, Unit unit, const KeyRepeat::Pace &pace, QWidget *parent)
    : LivePage(type, parent), m_unit(unit), m_pace(pace)
{ }

void ListPage::init_parameter()
{
    LivePage::init_parameter();
    stopRepeat();
}

void ListPage::setScrollBar(QScrollBar *bar)
{
    m_bar = bar;
    m_bar->setFocusPolicy(Qt::NoFocus); // the keys belong to the page
}

void ListPage::refreshList()
{
    if (m_bar) {
        const int rows = m_bar->pageStep();
        m_bar->setRange(0, m_unit == Pages ? list().lastPage() : std::max(list().count() - rows, 0));
        m_bar->setValue(list().first());
    }
    showList();
}

void ListPage::move(int step)
{
    if (m_unit == Pages)
        list().movePages(step);
    else
        list().moveLines(step);
    refreshList();
}

void ListPage::setChecking(bool on)
{
    m_checking = on;
    if (!on)
        list().checkAll(false);
    refreshList();
}

void ListPage::setAllChecked(bool on)
{
    list().checkAll(on);
    refreshList();
}

void ListPage::switchSelected()
{
    if (!m_checking)
        return;
    list().setChecked(list().selected(), !list().isChecked(list().selected()));
    refreshList();
}

std::vector<FrontKeys::Row> ListPage::commonKeys()
{
    const auto step = [this](int steps) { move(steps); };
    return {
        { Qt::Key_Up, nullptr, {}, step, -1, m_pace },
        { Qt::Key_Down, nullptr, {}, step, 1, m_pace },
        { Qt::Key_Enter, nullptr, [this] { switchSelected(); }, {}, 0, {} },
    };
}
