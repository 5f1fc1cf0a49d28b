#include "pages/choicepage.h"
#include "ui_choiceform.h"

#include "widgets/controls/labellook.h"
#include "widgets/controls/mcheckbox.h"
#include "widgets/controls/mradiobutton.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
constexpr int kHeight = 40; // pixels
constexpr int kBarMargin = 16; // of the bar to the left of its button
}

ChoicePage::ChoicePage(_quvera_ui_type type, Kind kind, const Look &look, QWidget *parent)
    : LivePage(type, parent), m_kind(kind), m_look(look), m_ui(new Ui::ChoiceForm)
{
    m_ui->setupUi(this);
}

ChoicePage::~ChoicePage() = default;

void ChoicePage::addChoice(const Choice &choice)
{
    QAbstractButton *button = nullptr;
    if (m_kind == OneOf)
        button = new MRadioButton(this);
    else
        button = new MCheckBox(this);
    button->setObjectName(QString::fromLatin1(choice.name));
    button->setGeometry(m_look.left, m_look.top + int(m_buttons.size()) * m_look.pitch, m_look.width, kHeight);
    button->setFocusPolicy(Qt::NoFocus);
    m_choices.push_back(&choice);
    m_buttons.push_back(button);
}

void ChoicePage::finishChoices()
{
    setObjectName(QString::fromLatin1(metaObject()->className()));
    LabelLook::dress(this);
    m_ui->field_bar->setVisible(m_kind == AnyOf && !m_buttons.empty());
    if (m_kind == OneOf)
        setChosen(0);
    showCursor();
}

void ChoicePage::init_parameter()
{
    LivePage::init_parameter();
    load();
    showCursor();
}

void ChoicePage::retranslateUi()
{
    LivePage::retranslateUi();
    const char *own = metaObject()->className();
    setText(m_ui->title, QCoreApplication::translate(own, m_look.title));
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->setText(QCoreApplication::translate(own, m_choices[i]->caption));
}

bool ChoicePage::isChosen(int index) const
{
    return has(index) && m_buttons[std::size_t(index)]->isChecked();
}

int ChoicePage::chosen() const
{
    const auto on = std::find_if(m_buttons.begin(), m_buttons.end(),
                                 [](const QAbstractButton *button) { return button->isChecked(); });
    return on == m_buttons.end() ? -1 : int(on - m_buttons.begin());
}

std::vector<int> ChoicePage::chosenAll() const
{
    std::vector<int> all;
    for (int i = 0; i < int(m_buttons.size()); ++i) {
        if (isChosen(i))
            all.push_back(i);
    }
    return all;
}

void ChoicePage::setChosen(int index, bool on)
{
    if (!has(index) || (m_kind == OneOf && !on))
        return;
    m_buttons[std::size_t(index)]->setChecked(on);
    if (m_kind == OneOf)
        m_cursor = index;
}

void ChoicePage::selectAll()
{
    if (m_kind != AnyOf)
        return;
    for (QAbstractButton *button : m_buttons)
        button->setChecked(true);
    emit choiceChanged();
}

void ChoicePage::invertAll()
{
    if (m_kind != AnyOf)
        return;
    for (QAbstractButton *button : m_buttons)
        button->setChecked(!button->isChecked());
    emit choiceChanged();
}

void ChoicePage::moveCursor(int direction)
{
    const int moved = m_cursor + direction;
    if (!has(moved))
        return;
    m_cursor = moved;
    if (m_kind == OneOf) {
        setChosen(moved);
        emit choiceChanged();
    }
    showCursor();
}

void ChoicePage::toggle()
{
    if (m_kind != AnyOf || !has(m_cursor))
        return;
    setChosen(m_cursor, !isChosen(m_cursor));
    emit choiceChanged();
}

void ChoicePage::showCursor()
{
    m_ui->field_bar->setGeometry(m_look.left - kBarMargin, m_look.top + m_cursor * m_look.pitch,
                                 m_look.width + 2 * kBarMargin, kHeight);
}

std::vector<FrontKeys::Row> ChoicePage::commonKeys()
{
    return {
        { Qt::Key_Up, nullptr, [this] { moveCursor(-1); }, {}, 0, {} },
        { Qt::Key_Down, nullptr, [this] { moveCursor(1); }, {}, 0, {} },
        { Qt::Key_Enter, nullptr, [this] { toggle(); }, {}, 0, {} },
        { Qt::Key_F5, nullptr, {}, {}, 0, {} }, // nothing is held here
    };
}
