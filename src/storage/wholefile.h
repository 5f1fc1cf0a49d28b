#pragma once

#include <QByteArray>
#include <QString>

/// Reads small files in one go and says how that went, so that a failed read is never taken for an empty file: a worn
/// card answers a read with an error, and what is then written over the file would be all that is left of it.
class WholeFile
{
public:
    enum Reading {
        Read, // all bytes are there
        Missing, // no file of that name
        Refused, // there, but no ordinary file, or one that may not be opened
        Failed, // the read ended in an error
        TooLarge,
    };

    /// The bytes of a file (a board's path); empty unless the answer is Read. A file of more than `most` bytes is too
    /// large. Nothing blocks: a pipe or a device is refused. Any thread.
    static Reading read(const QString &path, qint64 most, QByteArray *bytes);
};
