#include "report/judgerecord.h"

#include "report/recordjudge.h"
#include "settings/limitbuiltins.h"

#include <QDir>
#include <QFileInfo>

std::unique_ptr<Judgement> judgeRecord(RecordSource &source, const MonitorLimits2 &limits,
                                       const RecordProgress &progress)
{
    OverviewSink overview(double(limits.limit().interruptions.threshold));
    if (!source.read(overview, progress))
        return nullptr;
    RecordJudge judge(overview.overview(), limits);
    if (!source.read(judge, progress))
        return nullptr;
    return std::make_unique<Judgement>(judge.judgement());
}

ReportSource reportSourceOf(const RecordSource &source)
{
    ReportSource about;
    const QFileInfo info(QDir::cleanPath(QFileInfo(source.path()).absoluteFilePath()));
    // A monitor's file has the same name in every folder; the folder's says when it was and what.
    const bool inFolder = !source.isFolder() && info.suffix() == QLatin1String("pqa2");
    about.name = inFolder ? info.dir().dirName() + QLatin1Char('/') + info.fileName() : info.fileName();
    about.kind = source.facts().kind;
    about.state = source.state();
    about.faults = source.faults();
    return about;
}

bool findReportLimits(const QString &name, MonitorLimits2 *limits)
{
    const auto isName
        = [&name](const char *builtIn) { return name.compare(QLatin1String(builtIn), Qt::CaseInsensitive) == 0; };
    if (name.isEmpty() || isName(LimitBuiltins::kEn50160Name))
        limits->initEN50160();
    else if (isName(LimitBuiltins::kGost32144Name))
        limits->initGOST32144();
    else
        return limits->loadFile(name);
    return true;
}
