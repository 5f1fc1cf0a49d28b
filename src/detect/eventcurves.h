#pragma once

#include "model/pqaeventitem.h"

/// Makes one curve of the curves of an input around a start and an end where they overlap: the end's later samples go
/// behind the start's, and nothing is left of \a end. An end behind the start stays as it is. Without a start both
/// become empty. A second call changes nothing.
void joinCurves(RmsCurve &start, RmsCurve &end);

/// The same for all inputs of an event, which so keeps each half cycle once, and for its whole life no spare memory.
void joinCurves(PQAEventItem &event);
