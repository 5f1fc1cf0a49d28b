#include "setup/limitharmpage.h"

using namespace HarmonicLimits;

namespace {

const KeyRepeat::Pace kLinePace { 5, { 1, 5 } };
const KeyRepeat::Pace kValuePace { 3, { 1, 5, 10, 20, 50, 100 } };
constexpr int kColumnWidth = 140; // pixels

} // namespace

LimitHarmPage::LimitHarmPage(LimitDraft &draft, QWidget *parent)
    : LineList(Columns, kColumnWidth, kLinePace, parent), m_draft(draft), m_limit(draft.limit)
{
    static const KeyRow<LimitHarmPage> keys[] = {
        { Qt::Key_F1, nullptr, &LimitHarmPage::nextColumn },
        { Qt::Key_F4, nullptr, &LimitHarmPage::ok },
        { Qt::Key_F5, nullptr, &LimitHarmPage::cancel },
        { Qt::Key_Left, nullptr, &LimitHarmPage::changeValue, -1, kValuePace },
        { Qt::Key_Right, nullptr, &LimitHarmPage::changeValue, 1, kValuePace },
    };
    setKeys(keys);
}

void LimitHarmPage::init_parameter()
{
    m_limit = m_draft.limit;
    m_column = Upper1;
    list().reset();
    LineList::init_parameter();
}

QString LimitHarmPage::title() const
{
    switch (m_column) {
    case Time:
        return tr("Harmonics: time in limits");
    case Upper1:
        return tr("Harmonics: limit for this time");
    default:
        return tr("Harmonics: limit for all the time");
    }
}

LineList::Line LimitHarmPage::line(int index) const
{
    Line line { name(index), {} };
    for (const Column column : { Time, Upper1, Upper2 })
        line.columns << LimitValue::getVoltageVal(LimitValue::floatToint(at(m_limit, column, index)),
                                                  LimitValue::Percent, span(column));
    return line;
}

void LimitHarmPage::lineChosen()
{
    setKeyCaption(1, tr("Column"));
    setKeyCaption(4, m_draft.okKey());
    setKeyCaption(5, m_draft.leaveKey());
}

void LimitHarmPage::nextColumn()
{
    stopRepeat();
    m_column = m_column == Upper2 ? Time : Column(m_column + 1);
    showLines();
}

void LimitHarmPage::changeValue(int steps)
{
    if (!m_draft.editable || selected() < 0)
        return;
    float &value = at(m_limit, m_column, selected());
    const int from = LimitValue::floatToint(value);
    const int to = LimitValue::stepped(from, steps, span(m_column));
    if (to != from)
        value = LimitValue::intTofloat(to);
    refreshList();
}

void LimitHarmPage::ok()
{
    stopRepeat();
    if (!m_draft.editable)
        return;
    m_draft.limit = m_limit;
    emit stored();
}

void LimitHarmPage::cancel()
{
    stopRepeat();
    emit cancelled();
}
