#include "widgets/dialogs/runinfo.h"

#include "settings/recordinfo.h"
#include "model/livedata.h"
#include "ui_runinfo.h"

#include <algorithm>

int RunInfo::showSystemStatus(const LiveData &data)
{
    RunInfo info(data);
    return info.exec();
}

RunInfo::RunInfo(const LiveData &data, QWidget *parent) : SoftKeyDialog(parent), m_ui(new Ui::RunInfo)
{
    static const FrontKeys::KeyRow<RunInfo> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("RunInfo", "Restart"), &RunInfo::restart },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("RunInfo", "Cancel"), &RunInfo::reject },
    };
    m_ui->setupUi(this);
    m_ui->icon->setPixmap(QPixmap(QStringLiteral(":/info")));
    fitText(m_ui->system_status, statusText(data), 19);
    finishForm();
    setKeys(keys);
    if (RecordInfo::m_in_recording) {
        m_ui->btn_f1->setStyleSheet(QStringLiteral(
            "QLabel {background-color: transparent;background-image: url(:/button);color: rgb(128, 128, 128);}"));
    }
}

RunInfo::~RunInfo() = default;

QString RunInfo::statusText(const LiveData &data)
{
    const EventList &events = data.events();
    const int all = events.isOver() ? 0 : events.size();
    const auto count = [&events, all](PQAEventType type) {
        return std::count_if(events.begin(), events.begin() + all,
                             [type](const __event_item &item) { return item.type == type; });
    };
    return tr("System Status:\n\nLogger: %1\nTotal Events: %2\nDips: %3;   Swell: %4;   Interruption: %5;   "
              "Transients: %6;   Inrush: %7")
        .arg(RecordInfo::m_in_recording ? tr("Running") : tr("Stoped"))
        .arg(all + data.transients().size())
        .arg(count(EventDip))
        .arg(count(EventSwell))
        .arg(count(EventInterruption))
        .arg(data.transients().size())
        .arg(count(EventInrush));
}

void RunInfo::restart()
{
    if (!RecordInfo::m_in_recording)
        done(RestartTask);
}
