#pragma once

#include <QByteArray>
#include <QString>

/// A compiled language file (.qm). The toolkit believes the lengths that stand in it, so that a damaged file would let
/// it read beyond its end.
namespace TranslationFile {

/// The content of a file (a board's path) whose every text lies inside it; empty for any other.
QByteArray read(const QString &path);
/// Whether all sections, entries and texts lie inside \a content. Sections that the build never writes are refused.
bool isSound(const QByteArray &content);

} // namespace TranslationFile
