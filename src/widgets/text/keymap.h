#pragma once

class QKeyEvent;

/// Turns the letters that the front panel sends into the instrument's keys, and lets a press on a dimmed screen only
/// wake it. Every key handler of the program begins with recoverBackLight(). GUI thread.
class keyMap
{
public:
    /// True if the screen was dimmed: it is lit again, and the caller drops the press.
    static bool recoverBackLight();
    /// The Qt key of a pressed letter; stops the dim delay.
    static int keyPressMap(int code);
    /// The Qt key of a released letter; starts the dim delay anew.
    static int keyReleaseMap(int code);
    /// The Qt key of a letter 'A' to 'Y'; `Qt::Key_unknown` for anything else.
    static int keyMapping(int code);
    /// The letter of a remote key number, 13 to 51; `Qt::Key_unknown` for a number that no key has.
    static int keyboardBackMap(int code);
    /// The letter that the front panel sends for a Qt key; `Qt::Key_unknown` for one that the panel does not have.
    static int panelLetter(int key);
    /// Whether a press is the keyboard's own repeat of a key that counts once: a held key repeats for the arrows only,
    /// so that nothing toggles back and no question that it opened is answered by it.
    static bool isDroppedRepeat(const QKeyEvent &press);
};
