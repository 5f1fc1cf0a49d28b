#include "files/delivery.h"
#include "files/exports.h"
#include "files/infotext.h"
#include "files/reportcommand.h"
#include "files/terminal.h"
#include "record/exports/recovery.h"
#include "record/tables/recordnames.h"

#include <cstdio>
#include <limits>

namespace {

int runInfo(const CommandLine &line)
{
    RecordSource source;
    if (!openSource(&source, line.paths.constFirst()))
        return interrupted();
    if (source.state() == RecordState::Unreadable) {
        Terminal::complainOf(source);
        return ExitUnreadable;
    }
    const QByteArray text = line.has(QStringLiteral("--json")) ? InfoText::json(source) : InfoText::text(source);
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout);
    if (!Terminal::finishOutput())
        return ExitNoOutput;
    Terminal::complainOf(source);
    return statusOf(source);
}

int runVerify(const CommandLine &line)
{
    int worst = ExitWhole;
    for (const QString &path : line.paths) {
        RecordSource source;
        if (!openSource(&source, path))
            return interrupted();
        std::printf("%s: %s\n", Terminal::printable(path).toUtf8().constData(), recordStateName(source.state()));
        if (!Terminal::finishOutput())
            return ExitNoOutput;
        Terminal::complainOf(source);
        worst = qMax(worst, statusOf(source));
    }
    return worst;
}

int recover(RecordSource &source, const OutputPlace &place, const RecordProgress &progress)
{
    Recovery recovery(place);
    switch (recovery.run(source, progress)) {
    case Recovery::Done:
        return statusOf(source);
    case Recovery::Failed:
        return noOutput(recovery.error(), recovery.isRefused());
    case Recovery::Ended:
        return interrupted();
    case Recovery::Nothing:
        break;
    }
    const QString reason = recovery.error();
    Terminal::complainOf(source, reason.isEmpty() ? QStringLiteral("nothing of it can be recovered") : reason);
    return ExitUnreadable;
}

int runRecover(const CommandLine &line)
{
    const QString out = QStringLiteral("--out");
    return line.has(out) ? makeOutput(line, out, recover) : misuse(QStringLiteral("recover: no --out is given"));
}

int runExport(const CommandLine &line)
{
    std::vector<const ExportFormat *> chosen;
    for (const ExportFormat &format : exportFormats()) {
        if (line.has(format.option))
            chosen.push_back(&format);
    }
    if (chosen.empty())
        return misuse(QStringLiteral("export: no format is given"));
    if (chosen.size() > 1)
        return misuse(
            QStringLiteral("export: %1 and %2: one format at a time").arg(chosen[0]->option, chosen[1]->option));
    return makeOutput(line, chosen[0]->option,
                      [&](RecordSource &source, const OutputPlace &place, const RecordProgress &progress) {
                          const std::unique_ptr<RecordSink> sink = chosen[0]->make(place);
                          return deliver(source, *sink, progress);
                      });
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
        { "recover",
          "PATH --out TARGET [--force]",
          "a sound copy of what can be read",
          1,
          1,
          { { "--out", "TARGET", "the copy: a file, or a folder for a folder" },
            { "--force", "", "replace an output that exists" } },
          runRecover },
        { "export", "PATH FORMAT [--force]", "hand a recording on in another format", 1, 1, exportOptions(),
          runExport },
        reportCommand(),
    };
    return rows;
}
