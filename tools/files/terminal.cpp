#include "files/terminal.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t interrupted = 0;
bool progressIsShown = false;

/// Takes the progress off the terminal's line.
void clearLine()
{
    if (progressIsShown)
        std::fputs("\r\033[K", stderr);
    progressIsShown = false;
}

extern "C" void noteInterrupt(int)
{
    interrupted = 1;
}

} // namespace

namespace Terminal {

void complain(const QString &text)
{
    clearLine();
    std::fprintf(stderr, "quvera-files: %s\n", text.toUtf8().constData());
}

void complainOf(const RecordSource &source, const QString &outcome)
{
    const QVector<RecordFault> faults = source.faults();
    if (faults.isEmpty() && outcome.isEmpty())
        return;
    const RecordFault first = faults.isEmpty() ? RecordFault { source.path(), 0, outcome } : faults.constFirst();
    QString reason = first.reason;
    if (faults.size() > 1)
        reason += QStringLiteral(" (and %1 more)").arg(faults.size() - 1);
    if (!faults.isEmpty() && !outcome.isEmpty())
        reason += QStringLiteral("; ") + outcome;
    complain(QStringLiteral("%1: byte %2: %3")
                 .arg(first.path.isEmpty() ? QStringLiteral("\"\"") : printable(first.path),
                      QString::number(first.offset), printable(reason)));
}

QString printable(const QString &text)
{
    QString line;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isByte = c.isLowSurrogate() && (i == 0 || !text.at(i - 1).isHighSurrogate()); // that is no text
        if (c == QLatin1Char('\n'))
            line += QStringLiteral("\\n");
        else if (isByte || c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0))
            line += QStringLiteral("\\x%1").arg(c.unicode() & 0xFFU, 2, 16, QLatin1Char('0'));
        else
            line += c;
    }
    return line;
}

void catchSignals()
{
    struct sigaction action
    {
    };
    action.sa_handler = noteInterrupt;
    for (const int signal : { SIGINT, SIGTERM, SIGHUP })
        ::sigaction(signal, &action, nullptr);
    std::signal(SIGPIPE, SIG_IGN);
}

bool isInterrupted()
{
    return interrupted != 0;
}

bool finishOutput()
{
    if (std::fflush(stdout) == 0 && !std::ferror(stdout))
        return true;
    complain(QStringLiteral("the output could not be written"));
    return false;
}

} // namespace Terminal

Progress::Progress(const QString &what) : m_what(what), m_isShown(::isatty(STDERR_FILENO) == 1)
{
    m_time.start();
}

Progress::~Progress()
{
    clearLine();
}

RecordProgress Progress::callback()
{
    return [this](qint64 done, qint64 total) { return take(done, total); };
}

bool Progress::take(qint64 done, qint64 total)
{
    constexpr qint64 kQuiet = 1000; // ms
    constexpr qint64 kStep = 200;
    if (m_isShown && m_time.elapsed() >= qMax(kQuiet, m_shownAt + kStep)) {
        m_shownAt = m_time.elapsed();
        progressIsShown = true;
        const int percent = total > 0 ? int(qBound(0.0, double(done) * 100 / double(total), 100.0)) : 0;
        std::fprintf(stderr, "\r%s %3d %%", Terminal::printable(m_what).toUtf8().constData(), percent);
        std::fflush(stderr);
    }
    return !Terminal::isInterrupted();
}
