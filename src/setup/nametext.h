#pragma once

#include <QString>

/// Names that users give to clamps and limit sets.
namespace NameText {

constexpr int kLongest = 32; // signs that the keyboard takes

/// A name as typed, without blanks around it.
QString trimmed(const QString &typed);
/// Whether a name can be shown and written into a file's text: no control characters, nothing that is half a letter.
bool isPlain(const QString &name);
/// Whether it can also be the name of a file, here and on a disk that it is copied to: none of \ / : * ? " < > |, no
/// dot at either end, and not too long.
bool isFileName(const QString &name);

} // namespace NameText
