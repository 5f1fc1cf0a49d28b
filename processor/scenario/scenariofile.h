#pragma once

#include "scenario/scenario.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace scenario {

/// Reads scenarios: strict JSON (docs/simulator.md, "Scenario files"), unknown keys refused.
class ScenarioFile
{
public:
    /// A file's path, or the name of a scenario that comes with the program. On failure \a error is one line that names
    /// the file, the key, and what was expected there.
    static std::optional<Scenario> load(const QString &fileOrName, QString *error);
    static std::optional<Scenario> parse(const QString &fileName, const QByteArray &json, QString *error);

    /// Names of the scenarios that come with the program, in alphabetical order.
    static QStringList names();
};

} // namespace scenario
