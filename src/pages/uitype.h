#pragma once

#include <QMetaType>

/// Identifies a page: what a page names that asks to be left for another one.
enum _quvera_ui_type : int {
    UI_MENU = 0,
    UI_SCOPE = 1,
    UI_VIF = 2,
    UI_DIPS_SWELLS = 3,
    UI_HARMONICS = 4,
    UI_POWER = 5,
    UI_FLICKER = 6,
    UI_UNBALANCE = 7,
    UI_TRANSIENTS = 8,
    UI_INRUSH = 9,
    UI_WAVE = 10,
    UI_LOGGER = 11,
    UI_MONITOR = 12,
    UI_USER = 13,
    UI_SETUP = 14,
    UI_MEMORY = 15,
    UI_MAINS_SIG = 16,
    UI_POWER_INVERTER = 17,
};
constexpr int kUiTypes = 18;
Q_DECLARE_METATYPE(_quvera_ui_type)
