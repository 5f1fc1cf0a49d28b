#pragma once

#include <QObject>

class QCoreApplication;
class QKeyEvent;

/// Lets the keys of a PC keyboard stand for those of the front panel, which on the board arrive as letters: F1 to F12,
/// the arrows and Enter are the keys of that name, Escape leads out. The panel's letters work as well, but for a widget
/// that takes text (Qt::WA_InputMethodEnabled): signs and Backspace come to it as text of an input method. What comes
/// from the remote control carries no text and stays a key of the panel. GUI thread.
class DeskKeys : public QObject
{
public:
    /// The letter that the front panel sends for a Qt key, `Qt::Key_unknown` for a key that it does not have.
    using PanelLetter = int (*)(int key);

    /// From now on translates what the widgets of `application`, which owns the answer, would get. On the board there
    /// is nothing to translate: null, and a keyboard plugged in there does nothing.
    static DeskKeys *install(QCoreApplication *application, PanelLetter panelLetter);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// Hands the sign of a key, or the erasing of one, to a widget that takes text; false: the key has none.
    static bool typeInto(QObject *widget, const QKeyEvent &key);
    DeskKeys(QCoreApplication *application, PanelLetter panelLetter);
    int letterOf(const QKeyEvent &key) const;

    PanelLetter m_panelLetter;
};
