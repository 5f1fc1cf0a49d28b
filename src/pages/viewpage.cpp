#include "pages/viewpage.h"

#include "settings/phasecolor.h"
#include "widgets/text/keymap.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>

#include <algorithm>

ViewPage::ViewPage(_quvera_ui_type type, QWidget *parent)
    : QDialog(parent), m_type(type), m_phaseColors(PhaseColor::digits())
{
    setFocusPolicy(Qt::StrongFocus);
}

void ViewPage::setNoKeys()
{
    m_keys.clear();
    finishKeys();
}

void ViewPage::finishKeys()
{
    retranslateUi();
}

bool ViewPage::hasOwnKey(int key) const
{
    return std::any_of(m_keys.begin(), m_keys.end(), [key](const Key &row) { return row.key == key; });
}

void ViewPage::retranslateUi()
{
    for (const Key &row : m_keys) {
        if (row.caption)
            setKeyCaption(row.key - Qt::Key_F1 + 1,
                          QCoreApplication::translate(metaObject()->className(), row.caption));
    }
    showHold();
}

void ViewPage::setKeyCaption(int number, const QString &text)
{
    setText(findChild<QLabel *>(QStringLiteral("btn_f%1").arg(number)), text);
}

void ViewPage::setText(QLabel *label, const QString &text)
{
    if (label && label->text() != text)
        label->setText(text);
}

void ViewPage::showHold()
{
    if (!hasOwnKey(Qt::Key_F5))
        setKeyCaption(5, m_running ? ViewPage::tr("Hold") : ViewPage::tr("Run"));
}

void ViewPage::setPause()
{
    m_running = false;
    showHold();
}

void ViewPage::setContinue()
{
    m_running = true;
    showHold();
}

void ViewPage::stopWatchChanged(const QString &text)
{
    setText(findChild<QLabel *>(QStringLiteral("stop_watch")), text);
}

void ViewPage::init_parameter()
{
    m_running = true;
    showHold();
}

void ViewPage::keyPressEvent(QKeyEvent *event)
{
    // The press that wakes the screen does nothing else. A held F5 does not toggle again and again.
    if (keyMap::recoverBackLight() || keyMap::isDroppedRepeat(*event))
        event->accept();
    else
        event->setAccepted(pressKey(keyMap::keyPressMap(event->key())));
}

void ViewPage::keyReleaseEvent(QKeyEvent *event)
{
    releaseKey(keyMap::keyReleaseMap(event->key()));
    event->ignore();
}

void ViewPage::focusInEvent(QFocusEvent *)
{
    if (auto *button = findChild<QWidget *>(QStringLiteral("nouse"), Qt::FindDirectChildrenOnly))
        button->setFocus();
}

void ViewPage::showEvent(QShowEvent *event)
{
    const QString colors = PhaseColor::digits();
    if (m_phaseColors != colors) {
        m_phaseColors = colors;
        retranslateUi(); // every caption anew, with its colour
    }
    QDialog::showEvent(event);
}

bool ViewPage::pressKey(int key)
{
    const auto row = std::find_if(m_keys.begin(), m_keys.end(), [key](const Key &k) { return k.key == key; });
    if (row != m_keys.end()) {
        row->action();
        return true;
    }
    switch (key) {
    case Qt::Key_F5:
        m_running ? emit pause() : emit run();
        return true;
    case Qt::Key_F6:
        emit goScope(m_type, UI_SCOPE);
        return true;
    case Qt::Key_F7:
        emit goMenu(m_type, UI_MENU);
        return true;
    case Qt::Key_F8:
        emit goMonitor(m_type, UI_MONITOR);
        return true;
    case Qt::Key_F9:
        emit goSetup(m_type, UI_SETUP);
        return true;
    case Qt::Key_F10:
        emit goMemory(m_type, UI_MEMORY);
        return true;
    case Qt::Key_F1:
    case Qt::Key_F2:
    case Qt::Key_F3:
    case Qt::Key_F4:
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_Enter:
    case Qt::Key_Return:
        return true;
    default:
        return false; // F11 rises to the container, F12 and Power to the main window
    }
}
