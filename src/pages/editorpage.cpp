#include "pages/editorpage.h"
#include "ui_editorform.h"

#include "settings/config_data.h"
#include "widgets/controls/labellook.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int kCaptionLeft = 76, kValueRight = 564; // pixels

/// Places of a row.
LabelGrid gridOf(int captionWidth, int height, int textSize)
{
    const int left = kCaptionLeft + captionWidth + 14;
    constexpr int kNote = -124; // from a value to its note: both stand to the right of their room
    return { left, kNote, kValueRight - left, textSize, height, kCaptionLeft, captionWidth, textSize, 2 };
}

const char *const kCaptionColors[] = { "#606060", "#c0c0c0" }; // grey row, selectable row
const char *const kValueColors[] = { "#606060", "#ffffff" };

void setTextColor(QLabel *label, const char *color)
{
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(QLatin1String(color)));
    label->setPalette(palette);
}

} // namespace

void EditorPage::Number::move(int steps) const
{
    const double from = read();
    const double to = std::clamp(from + steps * step, least, most);
    if (to != from)
        write(to);
}

EditorPage::EditorPage(_quvera_ui_type type, const Look &look, const KeyRepeat::Pace &pace, QWidget *parent)
    : LivePage(type, parent), m_look(look), m_pace(pace), m_ui(new Ui::EditorForm)
{
    m_ui->setupUi(this);
}

EditorPage::~EditorPage() = default;

EditorPage::Row EditorPage::numberRow(const QString &name, const char *caption, const Number &number,
                                      const char *pattern, int decimals)
{
    Row row { name, caption, {}, {}, {}, {} };
    row.text = [number, pattern = QString::fromUtf8(pattern), decimals] {
        return pattern.arg(number.read(), 0, 'f', decimals);
    };
    row.step = [number](int steps) { number.move(steps); };
    return row;
}

EditorPage::Row EditorPage::settingRow(const QString &name, const char *caption, const char *key,
                                       std::function<QString()> text, std::function<void()> changed)
{
    Row row { name, caption, std::move(text), {}, {}, {} };
    row.step = [setting = SettingConfig::row(key), changed = std::move(changed)](int steps) {
        if (setting && m_settingConfig_g.moveValue(*setting, steps) && changed)
            changed();
    };
    return row;
}

KeyRepeat::Pace EditorPage::paceOf(const char *key)
{
    const auto *setting = SettingConfig::row(key);
    KeyRepeat::Pace pace { setting ? setting->edit.ticksPerStep : 0, {} };
    for (const int step : { 1, 5, 10, 20, 50, 100 }) {
        if (step == 1 || (setting && step <= setting->edit.largestStep))
            pace.steps.push_back(step);
    }
    return pace;
}

void EditorPage::setRows(std::vector<Row> rows)
{
    setObjectName(QString::fromLatin1(metaObject()->className()));
    m_rows = std::move(rows);
    const LabelGrid grid = gridOf(m_look.captionWidth, m_look.height, m_look.textSize);
    m_ui->field_bar->resize(m_ui->field_bar->width(), m_look.height);
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        QStringList names { m_rows[i].name };
        if (m_rows[i].note)
            names << m_rows[i].name + QLatin1String("_note");
        m_labels.push_back(
            grid.addRow(this, m_rows[i].name + QLatin1String("_t"), names, m_look.top + int(i) * m_look.pitch));
    }
    LabelLook::dress(this);
    selectFirst();
}

void EditorPage::selectFirst()
{
    m_field = -1;
    select(1);
    m_field = std::max(m_field, 0);
    showSelection();
}

QString EditorPage::fitted(const char *row, const QString &text) const
{
    const auto *label = findChild<QLabel *>(QLatin1String(row));
    return label ? label->fontMetrics().elidedText(text, Qt::ElideRight, label->width()) : text;
}

void EditorPage::init_parameter()
{
    LivePage::init_parameter();
    stopRepeat();
    load();
    showRows(); // what they depend on may be another now
}

void EditorPage::retranslateUi()
{
    LivePage::retranslateUi();
    const char *own = metaObject()->className();
    setText(m_ui->title, QCoreApplication::translate(own, m_look.title));
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const Row &row = m_rows[i];
        if (row.caption)
            setText(m_labels[i].caption, QCoreApplication::translate(row.context ? row.context : own, row.caption));
    }
    showRows();
}

void EditorPage::ok()
{
    stopRepeat();
    store();
    emit stored();
}

void EditorPage::cancel()
{
    stopRepeat();
    load();
    showRows();
    emit cancelled();
}

bool EditorPage::isEnabled(int row) const
{
    const Row &asked = m_rows[std::size_t(row)];
    return !asked.shownOnly && (!asked.enabled || asked.enabled());
}

void EditorPage::select(int direction)
{
    stopRepeat();
    int field = m_field + direction;
    while (field >= 0 && field < int(m_rows.size()) && !isEnabled(field))
        field += direction;
    if (field >= 0 && field < int(m_rows.size()))
        m_field = field;
    showSelection();
}

void EditorPage::changeField(int step)
{
    // The selected row may have become grey by what stands behind it.
    if (m_rows.empty() || !isEnabled(m_field) || !m_rows[std::size_t(m_field)].step)
        return;
    m_rows[std::size_t(m_field)].step(step);
    showRows();
}

void EditorPage::showRows()
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        setText(m_labels[i].values[0], m_rows[i].text ? m_rows[i].text() : QString());
        setText(m_labels[i].values[1], m_rows[i].note ? m_rows[i].note() : QString());
        showEnabled(int(i));
    }
}

void EditorPage::showEnabled(int row)
{
    if (!m_rows[std::size_t(row)].enabled)
        return; // as it was dressed
    const LabelGrid::Row &labels = m_labels[std::size_t(row)];
    const int on = isEnabled(row) ? 1 : 0;
    setTextColor(labels.caption, kCaptionColors[on]);
    setTextColor(labels.values[0], kValueColors[on]);
}

void EditorPage::showSelection()
{
    if (m_field >= 0)
        m_ui->field_bar->move(m_ui->field_bar->x(), m_look.top + m_field * m_look.pitch);
}

void EditorPage::enterField()
{
    if (m_rows.empty() || !isEnabled(m_field) || !m_rows[std::size_t(m_field)].enter)
        return;
    m_rows[std::size_t(m_field)].enter();
    showRows();
}

std::vector<FrontKeys::Row> EditorPage::commonKeys()
{
    const auto step = [this](int steps) { changeField(steps); };
    return {
        { Qt::Key_Up, nullptr, [this] { selectPrev(); }, {}, 0, {} },
        { Qt::Key_Down, nullptr, [this] { selectNext(); }, {}, 0, {} },
        { Qt::Key_Left, nullptr, {}, step, -1, m_pace },
        { Qt::Key_Right, nullptr, {}, step, 1, m_pace },
        { Qt::Key_Enter, nullptr, [this] { enterField(); }, {}, 0, {} },
        { Qt::Key_F5, nullptr, {}, {}, 0, {} }, // nothing is held here
    };
}
