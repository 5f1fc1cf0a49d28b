#pragma once

#include <QString>

class QCommandLineParser;

/// What a tool ends with, as its manual says.
enum ToolStatus { Done = 0, Failed = 1, Misused = 2 };

/// Says in one line, behind the tool's name, why it ends; returns the \a status.
int fail(int status, const QString &text);

/// Sorts the words that the tool was called with; --help answers and ends. False: an option that there is not, one
/// without its value, or a word where none \a takesWords; it is said, and the tool ends with Misused.
bool readCall(QCommandLineParser &parser, bool takesWords);
