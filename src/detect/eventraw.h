#pragma once

#include "model/pqaeventitem.h"

#include <cstddef>

/// Fixed head of a stored event: the first fields of its raw form, and alone the event-head block of a recorded file
/// (docs/formats/pqa2.md).
struct EventHead
{
    qint32 channel;
    qint32 type; // PQAEventType
    qint32 finished;
    float value; // unit of the quantity
    qint64 startTime; // ms since 1970
    qint64 endTime; // ms since 1970
};
static_assert(sizeof(EventHead) == 32, "stored head of an event");
static_assert(offsetof(EventHead, startTime) == 16 && offsetof(EventHead, endTime) == 24, "stored head of an event");
