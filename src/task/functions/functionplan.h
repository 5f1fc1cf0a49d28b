#pragma once

#include "task/abstracttask.h"

#include <QString>

#include <optional>

/// When a run of a function begins and how long it lasts, as AbstractTask::setTaskLifeCycle takes it.
struct FunctionPlan
{
    quint32 start = 0; // s since 1970; 0: at once
    int life = -1; // s; -1: the longest
    bool servesFlicker = false; // the plant's master reads the severities
    QString name = {}; // of what it records
};

/// The plan of \a function as the user's choices stand; none for what is no function.
std::optional<FunctionPlan> functionPlan(AbstractTask::UniFunction function);
