#pragma once

#include "settings/limits.h"

#include <QString>

/// The limit set whose values are looked at. Those of a user's set may be changed; nothing is stored before the list of
/// its items is left with Ok.
struct LimitDraft
{
    QString name;
    bool editable = false;
    monitor_limit limit {};
};
