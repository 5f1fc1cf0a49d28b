#pragma once

#include <QPixmap>

/// An embedded picture. One that is kept as plain pixels is copied as it lies there, any other one is decoded.
/// assets/CMakeLists.txt lists the plain ones.
QPixmap plainPicture(const QString &name);
