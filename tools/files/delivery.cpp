#include "files/delivery.h"

#include "files/terminal.h"

bool openSource(RecordSource *source, const QString &path)
{
    Progress progress(path);
    return source->open(path, progress.callback());
}

int statusOf(const RecordSource &source)
{
    static_assert(ExitWhole == int(RecordState::Whole) && ExitUnreadable == int(RecordState::Unreadable));
    return int(source.state());
}

int interrupted()
{
    return noOutput(QStringLiteral("interrupted"));
}

int misuse(const QString &reason)
{
    Terminal::complain(reason + QStringLiteral(" (quvera-files --help)"));
    return ExitMisuse;
}

int noOutput(const QString &reason, bool isRefused)
{
    Terminal::complain(Terminal::printable(reason));
    return isRefused ? ExitMisuse : ExitNoOutput;
}

int makeOutput(const CommandLine &line, const QString &option, const OutputWork &work)
{
    OutputPlace place;
    place.target = line.value(option);
    place.input = line.paths.constFirst();
    place.force = line.has(QStringLiteral("--force"));
    RecordSource source;
    if (!openSource(&source, place.input))
        return interrupted();
    int status = statusOf(source);
    if (status != ExitUnreadable) {
        Progress progress(place.target);
        status = work(source, place, progress.callback());
    }
    // One line in any case: what came out otherwise than the state of the record has had its own.
    if (status == statusOf(source))
        Terminal::complainOf(source);
    return status;
}

int deliver(RecordSource &source, RecordSink &sink, const RecordProgress &progress)
{
    if (source.read(sink, progress))
        return statusOf(source);
    return Terminal::isInterrupted() ? interrupted() : noOutput(sink.error(), sink.isRefused());
}
