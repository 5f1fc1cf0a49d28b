#pragma once

#include "scenario/quantities.h"

#include <QMap>
#include <QString>

#include <vector>

namespace scenario {

/// One value that an event takes, as scenarios and commands name it.
struct EventValue
{
    const char *key;
    Unit unit;
    double least;
    double most;
    bool required; // required values stand in this order in a command, the others as key=value

    /// "level: a percentage as 40%, 0 to 100".
    QString expectation() const;
};

/// How one kind of event is written. Levels are what stands while the event lasts, in percent of the steady value.
struct EventForm
{
    const char *name;
    processor::EventKind kind;
    Side side; // which inputs a bare "l1" means
    std::vector<EventValue> values;
    const char *help;

    const EventValue *value(const QString &key) const;
    /// "dip INPUTS LEVEL LENGTH [phase=]".
    QString usage() const;
};

const std::vector<EventForm> &eventForms();
const EventForm *eventForm(const QString &name);
/// "dip, swell, ...": all names, for error texts.
QString eventNames();

/// The event of \a form with \a values, each within its bounds. Its start is left at 0.
processor::SignalEvent makeEvent(const EventForm &form, processor::InputMask mask, const QMap<QString, double> &values);

} // namespace scenario
