#pragma once

#include <QByteArray>

class RecordSource;

/// What is known of a record, for people and for scripts.
namespace InfoText {

QByteArray text(const RecordSource &source);
QByteArray json(const RecordSource &source);

} // namespace InfoText
