#pragma once

#include "settings/config.h"

#include <QString>

#include <variant>

/// Where a setting's value is kept: one member of the record of its holder.
template <typename Values>
using SettingMember = std::variant<int Values::*, unsigned Values::*, double Values::*, QString Values::*>;

/// What follows a change of a setting, for those who changed it: bits of SettingRow::follows.
enum SettingFollow : unsigned {
    FollowDerived = 0x1, // what derive() works out
    FollowRanges = 0x2, // switches of the analog ranges
    FollowProcessor = 0x4, // set-up frame of the processor
    FollowModbus = 0x8, // Modbus block of the settings
    FollowTables = 0x10, // lengths and zoom steps of the r.m.s. trends
    FollowTask = 0x20, // levels that the next measurement starts with
};

/// How an editor changes a setting. A value set through the row is held to these bounds, which may be narrower than
/// those of reading: what an older version or a person wrote into the file is taken as it stands.
struct EditRule
{
    double lowest = 0;
    double highest = 0; // equal to lowest: no bounds, no steps
    double step = 0;
    const char *unit = ""; // of value, bounds and step
    int ticksPerStep = 0; // ticks of a held key before the next larger step; 0: the steps do not grow
    int largestStep = 1; // in steps: growth goes 1, 5, 10, 20, 50, 100 up to here
};

/// Bounds and step of a setting at this moment.
struct EditRange
{
    double lowest = 0;
    double highest = 0;
    double step = 0;

    bool any() const { return highest > lowest && step > 0; }
    /// A value held to the bounds; as it is without bounds.
    double held(double value) const;
    /// A value moved by so many steps, down for a negative number. One that stands between two steps moves onto the
    /// next of them first; the bounds are the ends.
    double moved(double value, int steps) const;
};

/// One setting. The row serves reading, writing, the default of a missing key, the table of docs/settings.md and the
/// test that walks all keys.
template <typename Values> struct SettingRow
{
    const char *key;
    const char *type; // as the documentation names it: "int", "float read, int kept", "unsigned", "double", "text"
    const char *defaultText; // of a missing or empty key, in the written form
    int lowest, highest; // held on reading; 0, 0: no bound
    SettingMember<Values> member;
    const char *meaning;
    EditRule edit = {};
    unsigned follows = 0; // SettingFollow
};

/// Text forms of numbers in settings files. What does not parse, and what is not a finite number, reads as 0.
namespace SettingText {
int toInt(const QString &text);
unsigned toUnsigned(const QString &text);
double toDouble(const QString &text);
int floatToInt(const QString &text); // parsed as a float, then truncated
QString fromDouble(double value); // format g, six significant digits
}
