#pragma once

#include "scenario/jsonkeys.h"
#include "signal/signalspec.h"

namespace scenario {

/// Reads the steady signal of a scenario from \a value, which stands at \a path of its file.
processor::SignalSpec readSignal(JsonErrors *errors, const QString &path, const QJsonValue &value);

} // namespace scenario
