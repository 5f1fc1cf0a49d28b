#include "views/recorder/recordingstart.h"
#include "ui_recordingstart.h"

#include "model/livedata.h"
#include "platform/clock.h"
#include "settings/recordinfo.h"
#include "storage/fileinfo.h"
#include "storage/massstorage.h"
#include "widgets/controls/labellook.h"
#include "widgets/dialogs/message.h"

#include <QColor>

namespace {

constexpr qint64 kHour = 3600 * 1000; // ms
constexpr LabelGrid kGrid = { 264, 0, 316, 24, 40, 60, 200, 22, 1 };
constexpr int kTop = 170, kPitch = 44; // pixels

enum Field { Name, Start, Duration, Interval, Memory, kFields };

const struct
{
    const char *name;
    const char *caption;
} kRows[kFields] = {
    { "file_name", QT_TRANSLATE_NOOP("RecordingStart", "File name:") },
    { "start", QT_TRANSLATE_NOOP("RecordingStart", "Start") },
    { "duration", QT_TRANSLATE_NOOP("RecordingStart", "Duration:") },
    { "interval", QT_TRANSLATE_NOOP("RecordingStart", "Interval:") },
    { "memory", QT_TRANSLATE_NOOP("RecordingStart", "Memory Available:") },
};

} // namespace

RecordingStart::RecordingStart(const LiveData &data, const RecordingKind &kind, QWidget *parent)
    : LivePage(UI_LOGGER, parent), m_data(data), m_kind(kind), m_ui(new Ui::RecordingStart)
{
    static const KeyRow<RecordingStart> keys[] = {
        { Qt::Key_F5, nullptr, &RecordingStart::stopOrBack },
    };
    m_ui->setupUi(this);
    for (int field = 0; field < kFields; ++field) {
        const QString name = QString::fromLatin1(kRows[field].name);
        m_rows.push_back(kGrid.addRow(this, name + QLatin1String("_t"), { name }, kTop + field * kPitch));
    }
    LabelLook::dress(this);
    setKeys(keys);
}

RecordingStart::~RecordingStart() = default;

void RecordingStart::init_parameter()
{
    LivePage::init_parameter();
    m_counting = false;
    showState();
}

void RecordingStart::showPlan(qint64 begin, qint64 end)
{
    m_begin = begin;
    m_end = end;
    m_counting = false;
    showState();
}

void RecordingStart::recordingStoped()
{
    showState();
}

void RecordingStart::updateDisplay(void *)
{
    if (isVisible())
        showRoom();
}

void RecordingStart::stopWatchChanged(const QString &text)
{
    LivePage::stopWatchChanged(text);
    const bool counting = !text.startsWith(QLatin1Char('-'));
    if (counting == m_counting)
        return;
    m_counting = counting;
    showState();
}

void RecordingStart::showEvent(QShowEvent *event)
{
    showState();
    LivePage::showEvent(event);
}

void RecordingStart::retranslateUi()
{
    LivePage::retranslateUi();
    for (int field = 0; field < kFields; ++field)
        setText(m_rows[std::size_t(field)].caption, tr(kRows[field].caption));
    showState();
}

RecordingStart::State RecordingStart::state() const
{
    if (!*m_kind.active)
        return Ended;
    return m_counting ? Running : Waiting;
}

void RecordingStart::showState()
{
    setText(m_ui->title, tr("Logger"));
    setKeyCaption(5, state() == Ended ? tr("Back") : tr("Stop"));
    const auto show = [this](Field field, const QString &text) { setText(m_rows[field].values[0], text); };
    show(Name, m_rows[Name].values[0]->fontMetrics().elidedText(*m_kind.name, Qt::ElideRight, kGrid.width));
    show(Start, m_begin ? RecordingText::moment(m_begin) : QString());
    show(Duration, RecordingText::hours(int((m_end - m_begin) / kHour)).trimmed());
    show(Interval, RecordingText::interval(m_kind.interval()));
    showRoom();
}

/// Free room, and how long it lasts; in red where the recording needs more. The text above says when it is used up.
void RecordingStart::showRoom()
{
    const char *const texts[] = {
        QT_TR_NOOP("Logger waits for its start.\nSwith to other page to see real time data and details."),
        QT_TR_NOOP("Logger is running.\nSwith to other page to see real time data and details."),
        QT_TR_NOOP("Logger has ended.\nIts data stands in Memory."),
    };
    const float room = MassStorage::storageFreeSize(FileInfo::storagePath());
    const bool full = m_data.storageRefuses() || double(room) < RecordInfo::kRoomKept;
    const int hours = m_kind.hoursOf(room, state() == Running && !full);
    const qint64 rest = m_end - qMax(m_begin, Clock::msecs());
    QLabel *label = m_rows[Memory].values[0];
    setText(label, QStringLiteral("%1, %2").arg(RecordingText::room(room), RecordingText::hours(hours).trimmed()));
    setText(m_ui->text,
            full && state() == Running ? tr("The storage takes no more data.\nDelete files in Memory.")
                                       : tr(texts[state()]));
    const bool lasts = !full && (hours + 1) * kHour >= rest;
    LabelLook::setColor(label, QColor(state() != Ended && !lasts ? Qt::red : Qt::white));
}

void RecordingStart::stopOrBack()
{
    if (state() == Ended) {
        emit goRecordSetup();
        return;
    }
    const QString question = tr("Save: save the data.\n") + tr("Exit: delete the data and exit.\n")
        + tr("Restart: delete the data and restart logger.");
    switch (Message::showMessage(Message::RecorderChoice, question)) {
    case Message::Save:
        emit stopRecordWithSave(true);
        emit goRecordSetup();
        break;
    case Message::Discard:
        emit stopRecordWithSave(false);
        emit goRecordSetup();
        break;
    case Message::Restart:
        emit stopRecordWithSave(false);
        emit restartRecord();
        break;
    default:
        break;
    }
}
