#include "files/commandline.h"
#include "files/exports.h"
#include "files/infotext.h"
#include "files/reportcommand.h"
#include "files/terminal.h"

#include <cstdio>
#include <limits>

namespace {

int statusOf(const RecordSource &source)
{
    return int(source.state());
}

/// Looks through a path, says what is wrong with it. False: the user ended it.
bool openSource(RecordSource *source, const QString &path)
{
    Progress progress(path);
    return source->open(path, progress.callback());
}

int interrupted()
{
    Terminal::complain(QStringLiteral("interrupted"));
    return ExitNoOutput;
}

int misuse(const QString &reason)
{
    Terminal::complain(reason);
    return ExitMisuse;
}

int runInfo(const CommandLine &line)
{
    RecordSource source;
    if (!openSource(&source, line.paths.constFirst()))
        return interrupted();
    Terminal::complainOf(source);
    if (source.state() == RecordState::Unreadable)
        return ExitUnreadable;
    const QByteArray text = line.has(QStringLiteral("--json")) ? InfoText::json(source) : InfoText::text(source);
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout);
    return Terminal::finishOutput() ? statusOf(source) : int(ExitNoOutput);
}

int runVerify(const CommandLine &line)
{
    static constexpr const char *kStates[] = { "whole", "cut", "broken", "unreadable" };
    int worst = ExitWhole;
    for (const QString &path : line.paths) {
        RecordSource source;
        if (!openSource(&source, path))
            return interrupted();
        std::printf("%s: %s\n", Terminal::printable(path).toUtf8().constData(), kStates[statusOf(source)]);
        if (!Terminal::finishOutput())
            return ExitNoOutput;
        Terminal::complainOf(source);
        worst = qMax(worst, statusOf(source));
    }
    return worst;
}

int runExport(const CommandLine &line)
{
    const ExportFormat *chosen = nullptr;
    for (const ExportFormat &format : exportFormats()) {
        if (!line.has(format.option))
            continue;
        if (chosen)
            return misuse(QStringLiteral("%1 and %2: one format at a time").arg(chosen->option, format.option));
        chosen = &format;
    }
    if (!chosen)
        return misuse(QStringLiteral("export: no format is given"));
    const QString input = line.paths.constFirst();
    RecordSource source;
    if (!openSource(&source, input))
        return interrupted();
    Terminal::complainOf(source);
    if (source.state() == RecordState::Unreadable)
        return ExitUnreadable;
    OutputPlace place;
    place.target = line.value(chosen->option);
    place.input = input;
    place.force = line.has(QStringLiteral("--force"));
    Progress progress(place.target);
    const std::unique_ptr<RecordSink> sink = chosen->make(place);
    if (!source.read(*sink, progress.callback())) {
        if (Terminal::isInterrupted())
            return interrupted();
        Terminal::complain(Terminal::printable(sink->error()));
        return ExitNoOutput;
    }
    return statusOf(source);
}

std::vector<CommandOption> exportOptions()
{
    std::vector<CommandOption> options;
    for (const ExportFormat &format : exportFormats())
        options.push_back({ format.option, format.value, format.help });
    options.push_back({ "--force", "", "replace an output that exists" });
    return options;
}

} // namespace

const std::vector<Command> &commands()
{
    static const std::vector<Command> rows {
        { "info",
          "PATH [--json]",
          "what was recorded, when, by which instrument",
          1,
          1,
          { { "--json", "", "as one JSON object" } },
          runInfo },
        { "verify", "PATH...", "whether files are whole", 1, std::numeric_limits<int>::max(), {}, runVerify },
        { "export", "PATH FORMAT [--force]", "hand a recording on in another format", 1, 1, exportOptions(),
          runExport },
        reportCommand(),
    };
    return rows;
}
