#pragma once

#include <QByteArray>
#include <QFile>

/// The lines of a text file of any content, in constant memory.
class LineReader
{
public:
    static constexpr int kMostLine = 1 << 20; // bytes; the logger's longest has some 64 kB

    explicit LineReader(QFile *file) : m_file(file) { }

    /// The next line without its line feed. One that is longer than kMostLine is passed over and comes empty.
    bool next(QByteArray *line);
    qint64 offset() const { return m_offset; } // of the line that next() gave
    bool isWhole() const { return m_isWhole; } // it has its line feed
    bool isTooLong() const { return m_isTooLong; }

private:
    QFile *m_file;
    QByteArray m_piece; // of the file
    int m_at = 0; // in the piece
    qint64 m_offset = 0, m_next = 0;
    bool m_isWhole = false;
    bool m_isTooLong = false;
};
