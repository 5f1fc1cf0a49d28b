#pragma once

#include "record/tables/recordreport.h"
#include "record/tables/recordsink.h"

// Words for scripts, the same in all outputs; people get them translated elsewhere.

/// "recording", "monitor", "waveform", "page", "log"
const char *recordKindName(RecordKind kind);
/// "whole", "cut", "broken", "unreadable"
const char *recordStateName(RecordState state);
