#pragma once

#include "settings/config.h"

#include <QString>

#include <variant>

/// Where a setting's value is kept: one member of the record of its holder.
template <typename Values>
using SettingMember = std::variant<int Values::*, unsigned Values::*, double Values::*, QString Values::*>;

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
};

/// Text forms of numbers in settings files. What does not parse, and what is not a finite number, reads as 0.
namespace SettingText {
int toInt(const QString &text);
unsigned toUnsigned(const QString &text);
double toDouble(const QString &text);
int floatToInt(const QString &text); // parsed as a float, then truncated
QString fromDouble(double value); // format g, six significant digits
}
