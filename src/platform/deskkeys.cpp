#include "platform/deskkeys.h"

#include "platform/target.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QWidget>

namespace {

constexpr auto kDeskModifiers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

} // namespace

DeskKeys *DeskKeys::install(QCoreApplication *application, PanelLetter panelLetter)
{
    return Target::root().isEmpty() ? nullptr : new DeskKeys(application, panelLetter);
}

DeskKeys::DeskKeys(QCoreApplication *application, PanelLetter panelLetter)
    : QObject(application), m_panelLetter(panelLetter)
{
    application->installEventFilter(this);
}

int DeskKeys::letterOf(const QKeyEvent &key) const
{
    // Those belong to the desk's window system: Alt and F4 closes a window.
    if (key.modifiers() & kDeskModifiers)
        return Qt::Key_unknown;
    switch (key.key()) {
    case Qt::Key_Return:
        return m_panelLetter(Qt::Key_Enter);
    case Qt::Key_Escape:
        // F5 is the way out of every dialog, Menu that of a page.
        return m_panelLetter(QGuiApplication::modalWindow() ? Qt::Key_F5 : Qt::Key_F7);
    default:
        return m_panelLetter(key.key());
    }
}

bool DeskKeys::typeInto(QObject *widget, const QKeyEvent &key)
{
    if (key.modifiers() & kDeskModifiers)
        return false;
    QInputMethodEvent input;
    if (key.key() == Qt::Key_Backspace)
        input.setCommitString(QString(), -1, 1);
    else if (!key.text().isEmpty() && key.text().at(0).isPrint())
        input.setCommitString(key.text());
    else
        return false;
    QCoreApplication::sendEvent(widget, &input);
    return true;
}

bool DeskKeys::eventFilter(QObject *watched, QEvent *event)
{
    // A window passes its keys on to a widget; they are translated there, once.
    if (!watched->isWidgetType() || (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease))
        return false;
    const auto &key = *static_cast<const QKeyEvent *>(event);
    const bool takesText = static_cast<const QWidget *>(watched)->testAttribute(Qt::WA_InputMethodEnabled);
    if (takesText && event->type() == QEvent::KeyPress && typeInto(watched, key)) {
        event->accept();
        return true;
    }
    const int letter = letterOf(key);
    if (letter == Qt::Key_unknown)
        return false;
    QKeyEvent panel(event->type(), letter, Qt::NoModifier, QString(), key.isAutoRepeat(), ushort(key.count()));
    QCoreApplication::sendEvent(watched, &panel);
    // It rose through the parents as a letter; as a PC key it ends here.
    event->accept();
    return true;
}
