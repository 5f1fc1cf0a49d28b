#include "shell/interruptednote.h"

#include "record/interruptedruns.h"
#include "settings/localtime.h"
#include "storage/filework.h"
#include "storage/runjournal.h"
#include "widgets/dialogs/message.h"

#include <QTimer>

#include <memory>

QString InterruptedNote::text(const InterruptedRun &run)
{
    return tr("Recording %1 was interrupted at %2")
        .arg(run.name, run.last.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
}

QString InterruptedNote::text(const PlannedRun &run)
{
    const QDateTime start = LocalTime::toLocalDateTime(QDateTime::fromSecsSinceEpoch(run.start, Qt::UTC));
    return tr("Recording %1, planned for %2,\nwas lost with the supply.")
        .arg(run.name, start.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")));
}

void InterruptedNote::tell(FileWork *work)
{
    RunJournal::instance(); // what was left is read before anything new is recorded
    const auto runs = std::make_shared<QVector<InterruptedRun>>();
    const auto show = [work, runs] {
        work->deleteLater();
        QTimer::singleShot(0, work->parent(), [runs] {
            for (const InterruptedRun &run : qAsConst(*runs)) {
                Message::showMessage(Message::Info, text(run));
                RunJournal::instance().forget(run.name);
            }
            for (const PlannedRun &run : RunJournal::instance().missed())
                Message::showMessage(Message::Info, text(run));
            RunJournal::instance().forgetMissed();
        });
    };
    work->run(
        [runs, zone = LocalTime::localTimeZone()] { *runs = InterruptedRuns::find(RunJournal::instance(), zone); },
        show);
}
