#include "pages/choicepage.h"
#include "ui_choiceform.h"

#include "widgets/controls/labellook.h"
#include "widgets/controls/mcheckbox.h"
#include "widgets/controls/mradiobutton.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
constexpr QRect kCornerTitle(16, 4, 480, 30); // where buttons stand side by side
constexpr int kBarMargin = 16; // pixels of the bar to both sides of its button
constexpr int kColumnMargin = 4; // likewise where buttons stand side by side
}

ChoicePage::ChoicePage(_quvera_ui_type type, Kind kind, const Look &look, QWidget *parent)
    : LivePage(type, parent), m_kind(kind), m_look(look), m_ui(new Ui::ChoiceForm)
{
    m_ui->setupUi(this);
}

ChoicePage::~ChoicePage() = default;

QAbstractButton *ChoicePage::makeButton()
{
    if (m_kind == OneOf)
        return new MRadioButton(this);
    return new MCheckBox(this);
}

QRect ChoicePage::place(int index) const
{
    return { m_look.left + index % m_look.columns * m_look.columnPitch,
             m_look.top + index / m_look.columns * m_look.pitch, m_look.width, m_look.height };
}

void ChoicePage::addChoice(const Choice &choice)
{
    QAbstractButton *button = makeButton();
    button->setObjectName(QString::fromUtf8(choice.name));
    button->setGeometry(place(int(m_buttons.size())));
    button->setFocusPolicy(Qt::NoFocus);
    m_choices.push_back(&choice);
    m_buttons.push_back(button);
}

void ChoicePage::finishChoices()
{
    setObjectName(QString::fromLatin1(metaObject()->className()));
    if (m_look.columns > 1) { // the buttons need the room
        m_ui->title->setGeometry(kCornerTitle);
        m_ui->title->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        m_ui->title->setProperty("textSize", 22);
    }
    if (m_look.textSize != Look {}.textSize)
        setStyleSheet(styleSheet() + QStringLiteral("\nQCheckBox { font-size: %1px; }").arg(m_look.textSize));
    LabelLook::dress(this);
    m_ui->field_bar->setVisible(m_kind == AnyOf && !m_buttons.empty());
    if (m_kind == OneOf)
        setChosen(0);
    showCursor();
}

void ChoicePage::init_parameter()
{
    LivePage::init_parameter();
    if (m_kind == AnyOf)
        m_cursor = 0;
    load();
    showCursor();
}

void ChoicePage::retranslateUi()
{
    LivePage::retranslateUi();
    const char *own = metaObject()->className();
    setText(m_ui->title, QCoreApplication::translate(own, m_look.title));
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        if (m_choices[i]->caption)
            m_buttons[i]->setText(QCoreApplication::translate(own, m_choices[i]->caption));
    }
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
        button->setChecked(button->isChecked() || button->isEnabled());
    emit choiceChanged();
}

void ChoicePage::invertAll()
{
    if (m_kind != AnyOf)
        return;
    for (QAbstractButton *button : m_buttons)
        button->setChecked(button->isChecked() != button->isEnabled());
    emit choiceChanged();
}

void ChoicePage::setAvailable(int index, bool available)
{
    if (has(index))
        m_buttons[std::size_t(index)]->setEnabled(available);
}

bool ChoicePage::isAvailable(int index) const
{
    return has(index) && m_buttons[std::size_t(index)]->isEnabled();
}

void ChoicePage::setCaption(int index, const QString &text)
{
    if (has(index))
        m_buttons[std::size_t(index)]->setText(text);
}

void ChoicePage::moveSideways(int direction)
{
    const int column = m_cursor % m_look.columns + direction;
    if (column >= 0 && column < m_look.columns)
        moveCursor(direction);
}

void ChoicePage::moveCursor(int by)
{
    const int moved = m_cursor + by;
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
    if (m_kind != AnyOf || !isAvailable(m_cursor))
        return;
    setChosen(m_cursor, !isChosen(m_cursor));
    emit choiceChanged();
}

void ChoicePage::showCursor()
{
    const int margin = m_look.columns > 1 ? kColumnMargin : kBarMargin;
    m_ui->field_bar->setGeometry(place(m_cursor).adjusted(-margin, 0, margin, 0));
}

std::vector<FrontKeys::Row> ChoicePage::commonKeys()
{
    return {
        { Qt::Key_Up, nullptr, [this] { moveCursor(-m_look.columns); }, {}, 0, {} },
        { Qt::Key_Down, nullptr, [this] { moveCursor(m_look.columns); }, {}, 0, {} },
        { Qt::Key_Left, nullptr, [this] { moveSideways(-1); }, {}, 0, {} },
        { Qt::Key_Right, nullptr, [this] { moveSideways(1); }, {}, 0, {} },
        { Qt::Key_Enter, nullptr, [this] { toggle(); }, {}, 0, {} },
        { Qt::Key_F5, nullptr, {}, {}, 0, {} }, // nothing is held here
    };
}
