#include "setup/limitvaluepage.h"

#include "settings/config_data.h"

#include <algorithm>

namespace {

constexpr int kTop = 50, kPitch = 44; // pixels: eight rows fit
const KeyRepeat::Pace kPace { 3, { 1, 5, 10, 20, 50, 100 } };

/// Captions get the room that no value in volts or hertz needs.
int captionWidth(const LimitItem &item)
{
    constexpr int kBesideNotes = 270, kWide = 300;
    const auto hasNote = [](const LimitField &field) { return field.base != LimitValue::NoBase; };
    return std::any_of(item.fields.begin(), item.fields.end(), hasNote) ? kBesideNotes : kWide;
}

} // namespace

LimitValuePage::LimitValuePage(LimitDraft &draft, const LimitItem &item, QWidget *parent)
    : EditorPage(UI_SETUP, { item.title, kTop, kPitch, captionWidth(item) }, kPace, parent), m_draft(draft),
      m_limit(draft.limit)
{
    static const KeyRow<LimitValuePage> keys[] = {
        { Qt::Key_F4, nullptr, &LimitValuePage::finish },
        { Qt::Key_F5, nullptr, &LimitValuePage::cancel },
    };
    std::vector<Row> rows;
    for (const LimitField &field : item.fields)
        rows.push_back(fieldRow(field));
    if (item.lamp) {
        Row lamp { "lamp", QT_TRANSLATE_NOOP("LimitValuePage", "Lamp"), {}, {}, {}, {} };
        lamp.text = [this] {
            const int volts = SettingValues::lampOf(m_settingConfig_g.getFlickerWeightingCurve());
            return QStringLiteral("%1V ").arg(volts) + tr("lamp");
        };
        lamp.shownOnly = true;
        rows.push_back(lamp);
    }
    setRows(std::move(rows));
    setKeys(keys);
}

EditorPage::Row LimitValuePage::fieldRow(const LimitField &field)
{
    Row row { QLatin1String(field.name), field.caption, {}, {}, {}, {} };
    row.text = [this, &field] { return field.text(m_limit); };
    if (field.base != LimitValue::NoBase) {
        row.note = [this, &field] {
            return LimitValue::nominalText(field.value(m_limit), field.unit, field.base, field.span,
                                           m_settingConfig_g.derived());
        };
    }
    row.step = [this, &field](int steps) { changeLimitValue(field, steps); };
    return row;
}

void LimitValuePage::changeLimitValue(const LimitField &field, int steps)
{
    if (!m_draft.editable)
        return;
    const int from = field.value(m_limit);
    const int to = LimitValue::stepped(from, steps, field.span);
    if (to != from)
        field.setValue(m_limit, to);
}

void LimitValuePage::load()
{
    m_limit = m_draft.limit;
    showKeys();
    selectFirst();
}

void LimitValuePage::retranslateUi()
{
    EditorPage::retranslateUi();
    showKeys();
}

void LimitValuePage::showKeys()
{
    setKeyCaption(4, m_draft.okKey());
    setKeyCaption(5, m_draft.leaveKey());
}

void LimitValuePage::finish()
{
    if (m_draft.editable)
        ok();
}
