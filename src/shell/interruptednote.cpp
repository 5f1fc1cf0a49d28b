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
        });
    };
    work->run(
        [runs, zone = LocalTime::localTimeZone()] { *runs = InterruptedRuns::find(RunJournal::instance(), zone); },
        show);
}
