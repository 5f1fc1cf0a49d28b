#include "widgets/dialogs/virtualkeyboard.h"

#include "board/backlight.h"
#include "ui_virtualkeyboard.h"
#include "widgets/text/keymap.h"

#include <QInputMethodEvent>

#include <algorithm>

QString VirtualKeyBoard::getKeyBoardInput(const QString &title, const QString &text, const QString &expression,
                                          int maxLength, bool *accepted)
{
    VirtualKeyBoard keyboard(title, text, expression, maxLength);
    const bool taken = keyboard.exec() == QDialog::Accepted;
    if (accepted)
        *accepted = taken;
    return taken ? keyboard.text() : text;
}

QString VirtualKeyBoard::getFileName(const QString &title, const QString &name)
{
    constexpr int kLongest = 32;
    return getKeyBoardInput(title, name, QStringLiteral("[A-Za-z0-9_-][A-Za-z0-9_.-]{0,31}"), kLongest);
}

VirtualKeyBoard::VirtualKeyBoard(const QString &title, const QString &text, const QString &expression, int maxLength,
                                 QWidget *parent)
    : SoftKeyDialog(parent), m_ui(new Ui::VirtualKeyBoard), m_maxLength(std::max(maxLength, 1))
{
    static const FrontKeys::KeyRow<VirtualKeyBoard> keys[] = {
        { Qt::Key_F1, nullptr, &VirtualKeyBoard::exchangeChar }, // its text is the case that it leads to
        { Qt::Key_F2, QT_TRANSLATE_NOOP("VirtualKeyBoard", "Clear"), &VirtualKeyBoard::clearInput },
        { Qt::Key_F3, QT_TRANSLATE_NOOP("VirtualKeyBoard", "Space"), &VirtualKeyBoard::appendSpace },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("VirtualKeyBoard", "Ok"), &VirtualKeyBoard::accept },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("VirtualKeyBoard", "Cancel"), &VirtualKeyBoard::reject },
        { Qt::Key_Left, nullptr, &VirtualKeyBoard::moveLeft },
        { Qt::Key_Right, nullptr, &VirtualKeyBoard::moveRight },
        { Qt::Key_Up, nullptr, &VirtualKeyBoard::moveUp },
        { Qt::Key_Down, nullptr, &VirtualKeyBoard::moveDown },
        { Qt::Key_Enter, nullptr, &VirtualKeyBoard::handleKeyPress },
    };
    if (!expression.isEmpty())
        m_expression.setPattern(QRegularExpression::anchoredPattern(expression));
    m_ui->setupUi(this);
    m_ui->input->setStyleSheet(
        QStringLiteral("QLabel { background-image: url(:/keyboard_input); padding-left: 10px; }"));
    m_ui->hint->setStyleSheet(QStringLiteral("QLabel { color: rgb(255, 160, 64); }"));
    fitText(m_ui->title, title, 20);
    finishForm();
    setKeys(keys);
    setKeyText(1, QStringLiteral("ABC"));
    m_ui->keys->setCurrentChar(QLatin1Char('q'));
    setInput(text);
    setAttribute(Qt::WA_InputMethodEnabled);
}

VirtualKeyBoard::~VirtualKeyBoard() = default;

void VirtualKeyBoard::setInput(const QString &text)
{
    m_text = text;
    m_ui->hint->clear();
    // The end of a long text stays in sight, with the place of the next sign behind it.
    const QString shown = m_text + QLatin1Char('_');
    m_ui->input->setText(m_ui->input->fontMetrics().elidedText(shown, Qt::ElideLeft, m_ui->input->width() - 24));
}

void VirtualKeyBoard::append(QChar sign)
{
    const QString text = m_text + sign;
    if (text.size() > m_maxLength)
        return;
    if (!m_expression.pattern().isEmpty()) {
        const auto match = m_expression.match(text, 0, QRegularExpression::PartialPreferCompleteMatch);
        if (!match.hasMatch() && !match.hasPartialMatch())
            return;
    }
    setInput(text);
}

void VirtualKeyBoard::inputMethodEvent(QInputMethodEvent *event)
{
    event->accept();
    if (keyMap::recoverBackLight())
        return; // as any other key
    BackLight::recoverBackLight();
    m_typed = true;
    if (event->replacementLength() > 0)
        setInput(m_text.left(m_text.size() - 1));
    for (const QChar sign : event->commitString())
        append(sign);
}

void VirtualKeyBoard::handleKeyPress()
{
    if (m_typed)
        return accept();
    const QChar sign = m_ui->keys->currentChar();
    if (sign == QLatin1Char('<'))
        setInput(m_text.left(m_text.size() - 1));
    else
        append(sign);
}

void VirtualKeyBoard::exchangeChar()
{
    m_ui->keys->exchangeChar();
    setKeyText(1, m_ui->keys->isUpperCase() ? QStringLiteral("abc") : QStringLiteral("ABC"));
}

void VirtualKeyBoard::accept()
{
    if (m_expression.pattern().isEmpty() || m_expression.match(m_text).hasMatch())
        SoftKeyDialog::accept();
    else
        fitText(m_ui->hint, tr("Invalid input!"), 18);
}

void VirtualKeyBoard::clearInput()
{
    setInput(QString());
}

void VirtualKeyBoard::appendSpace()
{
    append(QLatin1Char(' '));
}

void VirtualKeyBoard::moveLeft()
{
    m_typed = false;
    m_ui->keys->moveHorizontally(-1);
}

void VirtualKeyBoard::moveRight()
{
    m_typed = false;
    m_ui->keys->moveHorizontally(1);
}

void VirtualKeyBoard::moveUp()
{
    m_typed = false;
    m_ui->keys->moveVertically(-1);
}

void VirtualKeyBoard::moveDown()
{
    m_typed = false;
    m_ui->keys->moveVertically(1);
}
