#pragma once

#include <QFile>
#include <QString>

/// Opens what was recorded for reading and nothing else: only an ordinary file, without waiting for anyone. Empty, or
/// why it cannot be read, for people.
QString openInput(QFile *file, const QString &path);
