#include "files/terminal.h"

#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace {

volatile std::sig_atomic_t interrupted = 0;

extern "C" void noteInterrupt(int)
{
    interrupted = 1;
}

} // namespace

namespace Terminal {

void complain(const QString &text)
{
    std::fprintf(stderr, "quvera-files: %s\n", text.toUtf8().constData());
}

void complainOf(const RecordSource &source)
{
    const QVector<RecordFault> faults = source.faults();
    if (faults.isEmpty())
        return;
    const RecordFault &first = faults.constFirst();
    const QString more = faults.size() > 1 ? QStringLiteral(" (and %1 more)").arg(faults.size() - 1) : QString();
    complain(QStringLiteral("%1: byte %2: %3%4")
                 .arg(printable(first.path), QString::number(first.offset), printable(first.reason), more));
}

QString printable(const QString &text)
{
    QString line;
    for (const QChar c : text) {
        if (c == QLatin1Char('\n'))
            line += QStringLiteral("\\n");
        else if (c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0))
            line += QStringLiteral("\\x%1").arg(uint(c.unicode()), 2, 16, QLatin1Char('0'));
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

void Progress::clear()
{
    if (m_hasShown)
        std::fputs("\r\033[K", stderr);
    m_hasShown = false;
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
        m_hasShown = true;
        const int percent = total > 0 ? int(qBound(0.0, double(done) * 100 / double(total), 100.0)) : 0;
        std::fprintf(stderr, "\r%s %3d %%", Terminal::printable(m_what).toUtf8().constData(), percent);
        std::fflush(stderr);
    }
    return !Terminal::isInterrupted();
}
