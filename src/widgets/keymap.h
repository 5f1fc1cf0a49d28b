#pragma once

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
};
