#pragma once

#include <QFile>
#include <QString>

/// Opens what was recorded for reading and nothing else: only an ordinary file, without waiting for anyone. Empty, or
/// why it cannot be read, for people. \a more: QIODevice::Unbuffered for who has windows of his own.
QString openInput(QFile *file, const QString &path, QIODevice::OpenMode more = {});
