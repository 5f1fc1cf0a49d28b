#pragma once

#include "scenario/simulator.h"

#include <QString>
#include <QStringList>

namespace scenario {

/// The command "set": changes the steady signal or the input stage of a running simulation.
///
/// \a words stand behind "set". Empty on success, otherwise why not, and nothing is changed then.
QString obeySet(Simulator *simulator, const QStringList &words);

/// One line for each form of "set", for the help text.
QStringList setUsage();

} // namespace scenario
