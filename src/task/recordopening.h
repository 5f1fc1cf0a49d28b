#pragma once

#include "record/pqa2ff.h"

/// What recorded files say of this instrument: its labels, the processor's version and the settings as they stand now.
/// For Pqa2FF::setOpening(). Main thread.
Pqa2Opening recordOpening();
