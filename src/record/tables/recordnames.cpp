#include "record/tables/recordnames.h"

const char *recordKindName(RecordKind kind)
{
    static constexpr const char *kNames[] = { "recording", "monitor", "waveform", "page", "log" };
    return kNames[int(kind)];
}

const char *recordStateName(RecordState state)
{
    static constexpr const char *kNames[] = { "whole", "cut", "broken", "unreadable" };
    return kNames[int(state)];
}
