#include "setup/limititemspage.h"

#include "settings/config_data.h"
#include "setup/limitfields.h"

#include <QCoreApplication>

LimitItemsPage::LimitItemsPage(LimitDraft &draft, QWidget *parent)
    : LineList(2, 150, KeyRepeat::Pace { 0, { 1 } }, parent), m_draft(draft)
{
    static const KeyRow<LimitItemsPage> keys[] = {
        { Qt::Key_F4, nullptr, &LimitItemsPage::ok },
        { Qt::Key_F5, nullptr, &LimitItemsPage::cancelled },
        { Qt::Key_Enter, nullptr, &LimitItemsPage::openItem },
    };
    setKeys(keys);
}

QString LimitItemsPage::title() const
{
    return m_draft.name;
}

int LimitItemsPage::lineCount() const
{
    return int(limitItems().size());
}

LineList::Line LimitItemsPage::line(int index) const
{
    const LimitItem &item = limitItems()[std::size_t(index)];
    Line line { QCoreApplication::translate("LimitValuePage", item.title), {} };
    for (const int field : item.inList)
        line.columns << item.fields[std::size_t(field)].text(m_draft.limit);
    if (item.fields.empty()) {
        using namespace HarmonicLimits;
        line.columns << LimitValue::getVoltageVal(LimitValue::floatToint(at(m_draft.limit, Upper1, 0)),
                                                  LimitValue::Percent, span(Upper1));
    }
    if (line.columns.size() == 1)
        line.columns.prepend(QString()); // a single value stands in the last column
    return line;
}

void LimitItemsPage::lineChosen()
{
    setKeyCaption(4, m_draft.okKey());
    setKeyCaption(5, m_draft.leaveKey());
}

void LimitItemsPage::init_parameter()
{
    list().reset();
    LineList::init_parameter();
}

void LimitItemsPage::ok()
{
    if (!m_draft.editable)
        return;
    m_limits_g.add(m_draft.name, m_draft.limit);
    emit stored();
}
