#pragma once

#include "link/frame.h"

#include <QFile>
#include <QString>

namespace wire {

/// Text file of the frames that arrived, one line each: time of the processor's clock, words in hexadecimal, meaning.
/// Frames longer than kShownWords are cut in the line and end in "... (N words)".
class FrameLog
{
public:
    static constexpr int kShownWords = 32;

    /// Opens \a path for appending; false and one line in \a error.
    bool open(const QString &path, QString *error);
    /// Writes at once, so that a reader sees each frame as it comes. Does nothing without a file.
    void write(quint64 msSince1970, const QByteArray &bytes, const Frame &frame);

    static QString line(quint64 msSince1970, const QByteArray &bytes, const Frame &frame);

private:
    QFile m_file;
};

} // namespace wire
