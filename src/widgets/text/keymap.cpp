#include "widgets/text/keymap.h"

#include "board/backlight.h"

#include <QKeyEvent>

namespace {
/// A key of the front panel: the letter it sends, its Qt key, and its number for the remote control (0: none).
struct FrontKey
{
    char letter;
    int key;
    int remote;
};
} // namespace

// clang-format off
static const FrontKey kFrontKeys[] = {
    { 'W', Qt::Key_F1,       40 },
    { 'Y', Qt::Key_F2,       41 },
    { 'P', Qt::Key_F3,       42 },
    { 'F', Qt::Key_F4,       43 },
    { 'L', Qt::Key_F5,       44 },
    { 'E', Qt::Key_F6,       45 }, // Scope
    { 'A', Qt::Key_F7,       46 }, // Menu
    { 'U', Qt::Key_F8,       47 }, // Monitor
    { 'S', Qt::Key_F9,       49 }, // Setup
    { 'R', Qt::Key_F10,      50 }, // Memory
    { 'I', Qt::Key_F11,      48 }, // Save
    { 'X', Qt::Key_F12,      51 }, // back light
    { 'B', Qt::Key_PowerOff,  0 },
    { 'O', Qt::Key_Left,     16 },
    { 'Q', Qt::Key_Up,       17 },
    { 'D', Qt::Key_Right,    18 },
    { 'T', Qt::Key_Down,     19 },
    { 'K', Qt::Key_Enter,    13 },
};
// clang-format on

bool keyMap::recoverBackLight()
{
    if (!BackLight::isShut())
        return false;
    BackLight::recoverBackLight();
    return true;
}

int keyMap::keyPressMap(int code)
{
    BackLight::recoverBackLight();
    return keyMapping(code);
}

int keyMap::keyReleaseMap(int code)
{
    BackLight::startBackLightDeley();
    return keyMapping(code);
}

int keyMap::keyMapping(int code)
{
    for (const FrontKey &front : kFrontKeys) {
        if (front.letter == code)
            return front.key;
    }
    return Qt::Key_unknown;
}

int keyMap::panelLetter(int key)
{
    for (const FrontKey &front : kFrontKeys) {
        if (front.key == key)
            return front.letter;
    }
    return Qt::Key_unknown;
}

bool keyMap::isDroppedRepeat(const QKeyEvent &press)
{
    if (!press.isAutoRepeat())
        return false;
    switch (keyMapping(press.key())) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
        return false;
    default:
        return true;
    }
}

int keyMap::keyboardBackMap(int code)
{
    for (const FrontKey &front : kFrontKeys) {
        if (front.remote != 0 && front.remote == code)
            return front.letter;
    }
    return Qt::Key_unknown;
}
