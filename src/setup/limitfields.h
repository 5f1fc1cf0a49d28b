#pragma once

#include "settings/limits.h"
#include "setup/limitvalue.h"

#include <vector>

/// One value of a limit set: where it stands in the record, how it is stepped and shown.
struct LimitField
{
    const char *name; // of its row
    const char *caption; // to be translated, context LimitValuePage
    float &(*real)(monitor_limit &); // null for a number of events
    qint32 &(*count)(monitor_limit &); // null for all others
    LimitValue::Unit unit;
    LimitValue::Span span;
    LimitValue::Base base = LimitValue::NoBase;

    /// In hundredths.
    int value(const monitor_limit &limit) const;
    void setValue(monitor_limit &limit, int hundredths) const;
    /// With its unit.
    QString text(const monitor_limit &limit) const;
};

/// A group of values that are edited on one page.
struct LimitItem
{
    const char *name;
    const char *title; // to be translated, context LimitValuePage
    std::vector<LimitField> fields; // none: the harmonics, which have a table of their own
    bool lamp = false; // the lamp of the flicker curve is shown as well
    /// The fields that the list of items shows, by their numbers.
    std::vector<int> inList = {};
};

/// All items, in their order.
const std::vector<LimitItem> &limitItems();

/// The three values of a harmonic row; all rows have the same.
namespace HarmonicLimits {
enum Column { Time, Upper1, Upper2, Columns }; // share of time, limit for it, limit for all the time
/// Rows in use.
int rows(const monitor_limit &limit);
float &at(monitor_limit &limit, Column column, int row);
float at(const monitor_limit &limit, Column column, int row);
const LimitValue::Span &span(Column column);
/// "THD", "H2" and so on.
QString name(int row);
}
