#pragma once

#include <QByteArray>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <cstdio>
#include <unistd.h>

/// Collects what the program prints on standard output while it lives.
class StdoutCapture
{
public:
    StdoutCapture()
    {
        fflush(stdout);
        m_saved = ::dup(STDOUT_FILENO);
        m_file = ::tmpfile();
        ::dup2(::fileno(m_file), STDOUT_FILENO);
    }
    /// Passes on what was collected: the test's own report is among it.
    ~StdoutCapture()
    {
        fflush(stdout);
        ::dup2(m_saved, STDOUT_FILENO);
        ::close(m_saved);
        char piece[4096];
        off_t at = 0;
        for (ssize_t n; (n = ::pread(::fileno(m_file), piece, sizeof(piece), at)) > 0; at += n)
            fwrite(piece, 1, static_cast<size_t>(n), stdout);
        ::fclose(m_file);
    }
    StdoutCapture(const StdoutCapture &) = delete;
    StdoutCapture &operator=(const StdoutCapture &) = delete;

    /// The printed lines since the last call.
    QStringList lines()
    {
        fflush(stdout);
        QByteArray text;
        char piece[4096];
        for (ssize_t n; (n = ::pread(::fileno(m_file), piece, sizeof(piece), m_read)) > 0; m_read += n)
            text.append(piece, static_cast<int>(n));
        QStringList lines = QString::fromLatin1(text).split(QLatin1Char('\n'));
        if (lines.last().isEmpty())
            lines.removeLast();
        return lines;
    }
    /// The same with every source line number as 0: "L: 217 >" reads "L: 0 >".
    QStringList linesWithoutNumbers()
    {
        QStringList all = lines();
        for (QString &line : all)
            line.replace(QRegularExpression(QStringLiteral("^L: [1-9][0-9]* >")), QStringLiteral("L: 0 >"));
        return all;
    }

private:
    int m_saved;
    FILE *m_file;
    off_t m_read = 0;
};
