#pragma once

#include <QString>

/// The first family of a font file, which the application can use from now on; empty if the file holds no face. Needs
/// the application. GUI thread.
QString familyOfFaceFile(const QString &path);
