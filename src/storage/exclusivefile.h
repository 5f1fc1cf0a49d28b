#pragma once

class QByteArray;

/// Opens a staging file for writing: always a new, ordinary file. Whatever stood under the name is taken away first and
/// never written through: a left-over pipe would hang the writer, a link would lead elsewhere. `name` is a real path.
/// Answers the descriptor, or -1 with errno set; a folder of that name stays and is an error.
int openExclusively(const QByteArray &name);
