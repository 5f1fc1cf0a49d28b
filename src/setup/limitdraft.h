#pragma once

#include "settings/limits.h"

#include <QCoreApplication>
#include <QString>

/// The limit set whose values are looked at. Those of a user's set may be changed; nothing is stored before the list of
/// its items is left with Ok.
struct LimitDraft
{
    Q_DECLARE_TR_FUNCTIONS(LimitDraft)

public:
    /// Captions of F4, empty where there is nothing to store, and of F5.
    QString okKey() const { return editable ? tr("Ok") : QString(); }
    QString leaveKey() const { return editable ? tr("Cancel") : tr("Back"); }

    QString name;
    bool editable = false;
    monitor_limit limit {};
};
