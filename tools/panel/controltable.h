#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <vector>

namespace panel {

/// One thing to choose at a control: a number within bounds, or one of some words.
struct Field
{
    const char *name; // in the wish, and in the command behind a %
    const char *label;
    double least, most, step; // of a number
    double value; // at first
    const char *unit; // of choices: how one is shown, % standing for it
    const char *choices; // words with blanks between them; null: a number
};

/// One control beside the instrument, and the command of the processor stand-in that it stands for.
struct Control
{
    const char *id;
    const char *group;
    const char *label;
    bool isLive; // obeyed while it is moved, else by its button
    const char *command;
    std::vector<Field> fields;
};

const std::vector<Control> &controlTable();

/// The table for the page.
QByteArray controlsAsJson(const QStringList &scenarios);

/// The command for a wish, {"control": id, field: value, ...}; empty, and why, when the wish fits no control.
/// @param scenarios the words that the field "scenario" takes.
QString commandFor(const QJsonObject &wish, const QStringList &scenarios, QString *why);

} // namespace panel
