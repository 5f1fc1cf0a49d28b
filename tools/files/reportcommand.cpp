#include "files/reportcommand.h"

#include "files/delivery.h"
#include "files/terminal.h"
#include "record/exports/outputfile.h"
#include "report/htmlreport.h"
#include "report/judgerecord.h"
#include "report/pdfreport.h"
#include "report/reportlanguage.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>

#include <algorithm>
#include <cstring>

namespace {

const QString kHtml = QStringLiteral("--html");
const QString kPdf = QStringLiteral("--pdf");

bool write(Output *output, const ReportContent &content, bool isPdf)
{
    QBuffer pdf;
    if (!output->begin() || !pdf.open(QIODevice::WriteOnly))
        return false;
    if (isPdf && !pdfReport(content, &pdf))
        return output->fail({}, QStringLiteral("the pages could not be painted"));
    OutputFile file;
    if (file.open(output->path()))
        file.write(isPdf ? pdf.data() : htmlReport(content));
    return file.close() ? output->finish() : output->fail({}, file.reason());
}

/// Beside the program where it was built, in a folder of its package where it was installed.
QString languageFolder()
{
    const QString programs = QCoreApplication::applicationDirPath();
    const QString installed = programs + QStringLiteral("/../lib/quvera-tools/bin/language");
    return QFile::exists(installed) ? installed : programs + QStringLiteral("/language");
}

int runReport(const CommandLine &line)
{
    qunsetenv("QUVERA_ROOT"); // paths are those of this system
    const bool isPdf = line.has(kPdf);
    if (isPdf == line.has(kHtml))
        return misuse(QStringLiteral("report: either --html or --pdf"));
    MonitorLimits2 limits;
    const QString limitsName = line.value(QStringLiteral("--limits"));
    if (!findReportLimits(limitsName, &limits))
        return misuse(QStringLiteral("report: \"%1\" is no limit set; EN50160, GOST32144 or a set's file")
                          .arg(Terminal::printable(limitsName)));
    ReportLanguage language;
    if (line.has(QStringLiteral("--language"))) {
        const QString folder = languageFolder();
        if (!language.choose(line.value(QStringLiteral("--language")), folder))
            return misuse(QStringLiteral("report: languages are %1").arg(ReportLanguage::keys()));
        if (!language.isThere())
            Terminal::complain(QStringLiteral("%1: no file of this language, the report is in English")
                                   .arg(Terminal::printable(folder)));
    }

    return makeOutput(line, isPdf ? kPdf : kHtml,
                      [&](RecordSource &source, const OutputPlace &place, const RecordProgress &progress) {
                          const auto judgement = judgeRecord(source, limits, progress);
                          if (!judgement)
                              return interrupted();
                          const ReportSource about = reportSourceOf(source);
                          const Report text(language.word());
                          Output output(Output::File, place);
                          const bool isThere = write(&output, ReportWriter(*judgement, about, text).content(), isPdf);
                          return isThere ? statusOf(source) : noOutput(output.error(), output.isRefused());
                      });
}

} // namespace

std::unique_ptr<QCoreApplication> makeApplication(int &argc, char **argv)
{
    const bool paints
        = std::any_of(argv, argv + argc, [](const char *word) { return std::strncmp(word, "--pdf", 5) == 0; });
    if (!paints)
        return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen"); // no screen is needed, and none may be there
    // What the toolkit misses of a desktop is nothing to the user.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return std::make_unique<QGuiApplication>(argc, argv);
}

Command reportCommand()
{
    return { "report",
             "PATH (--html FILE | --pdf FILE)",
             "what the recording says about the supply, by the limits of a standard",
             1,
             1,
             { { kHtml, "FILE", "one self-contained page" },
               { kPdf, "FILE", "pages of A4" },
               { "--limits", "NAME", "EN50160 (without this), GOST32144 or the file of a limit set" },
               { "--language", "KEY", ReportLanguage::keys() },
               { "--force", "", "replace an output that exists" } },
             runReport };
}
