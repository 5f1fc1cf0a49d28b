#pragma once

#include <QByteArray>
#include <QString>

/// Texts for files that know nothing but ASCII.
namespace AsciiText {

/// Letters lose their accents; what has no such letter becomes '?', what cannot be printed a blank. Blanks at both ends
/// go; at most \a most characters stay.
QByteArray of(const QString &text, int most);
/// The same of UTF-8.
QByteArray of(const QByteArray &text, int most);

} // namespace AsciiText
