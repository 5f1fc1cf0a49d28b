#include "views/recorder/recordingsetup.h"

#include "settings/localtime.h"
#include "storage/fileinfo.h"
#include "storage/massstorage.h"
#include "widgets/dialogs/message.h"
#include "widgets/dialogs/virtualkeyboard.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int kTop = 40, kPitch = 36; // of the rows, pixels
constexpr int kCaptionWidth = 230, kHeight = 34, kTextSize = 20;
const KeyRepeat::Pace kPace { 3, { 1, 5, 10, 20, 50, 100 } };

} // namespace

RecordingSetup::RecordingSetup(const char *title, const RecordingKind &kind, QWidget *parent)
    : EditorPage(UI_LOGGER, { title, kTop, kPitch, kCaptionWidth, kHeight, kTextSize }, kPace, parent), m_kind(kind)
{ }

void RecordingSetup::setUp()
{
    static const KeyRow<RecordingSetup> keys[] = {
        { Qt::Key_F1, nullptr, &RecordingSetup::changeToNext },
        { Qt::Key_F2, nullptr, &RecordingSetup::goRecordParam },
        { Qt::Key_F5, nullptr, &RecordingSetup::start },
    };
    setRows(rows());
    setKeys(keys);
}

std::vector<EditorPage::Row> RecordingSetup::rows()
{
    const char *const context = "RecordingSetup";
    const EditorPage::Number hours { [this] { return *m_kind.duration; },
                                     [this](double to) { *m_kind.duration = int(to); }, 1, 1 };
    std::vector<Row> all {
        { "file_name",
          QT_TRANSLATE_NOOP("RecordingSetup", "File name:"),
          [this] { return fitted("file_name", *m_kind.name); },
          {},
          [this] { editName(); },
          {},
          context },
        { "duration",
          QT_TRANSLATE_NOOP("RecordingSetup", "Duration:"),
          [this] { return RecordingText::hours(*m_kind.duration); },
          [this, hours](int steps) {
              Number bounded = hours;
              bounded.most = std::max(*m_kind.maxDuration, 1);
              bounded.move(steps);
          },
          {},
          {},
          context },
        { "interval",
          QT_TRANSLATE_NOOP("RecordingSetup", "Interval:"),
          [this] { return RecordingText::interval(m_kind.interval()); },
          [this](int step) { stepInterval(step); },
          {},
          {},
          context },
    };
    for (Row &row : m_start.rows())
        all.push_back(std::move(row));
    Row memory { "memory", QT_TRANSLATE_NOOP("RecordingSetup", "Memory Available:"), {}, {}, {}, {}, context };
    memory.text = [this] {
        return QStringLiteral("%1, %2").arg(RecordingText::room(MassStorage::storageFreeSize(FileInfo::storagePath())),
                                            RecordingText::hours(*m_kind.maxDuration).trimmed());
    };
    memory.shownOnly = true;
    all.push_back(std::move(memory));
    return all;
}

void RecordingSetup::retranslateUi()
{
    EditorPage::retranslateUi();
    setKeyCaption(1, tr("Next"));
    setKeyCaption(2, tr("Params"));
    setKeyCaption(5, tr("Start"));
}

void RecordingSetup::beginSetup()
{
    m_start.reset(LocalTime::currentDateTime());
    if (!m_named || m_kind.name->isEmpty())
        *m_kind.name = m_kind.defaultName();
    m_kind.readChoices();
    checkRoom();
    selectFirst();
}

void RecordingSetup::checkRoom()
{
    m_kind.checkMaxDuration();
    if (*m_kind.duration < 1 && *m_kind.maxDuration > 0)
        *m_kind.duration = 1; // the room that was wanting is there again
    showRows();
}

void RecordingSetup::editName()
{
    const QString typed = VirtualKeyBoard::getFileName(tr("File name:"), *m_kind.name);
    if (typed.isEmpty() || typed == *m_kind.name)
        return;
    *m_kind.name = typed;
    m_named = true;
}

void RecordingSetup::stepInterval(int step)
{
    // A few intervals only: no larger steps.
    *m_kind.intervalIndex = std::clamp(*m_kind.intervalIndex + (step < 0 ? -1 : 1), 0, m_kind.intervalCount - 1);
    m_kind.checkMaxDuration();
}

void RecordingSetup::initBegainTime()
{
    *m_kind.begin = m_start.begin(LocalTime::localTimeZone());
}

void RecordingSetup::start()
{
    stopRepeat();
    checkRoom();
    if (m_kind.name->isEmpty()) { // all 999 defaults are taken: one has to be typed first
        selectFirst();
        editName();
        showRows();
        return;
    }
    if (*m_kind.maxDuration < 1) {
        const bool canBegin = MassStorage::storageFreeSize(FileInfo::storagePath()) >= m_kind.roomToBegin;
        Message::showMessage(Message::Info,
                             canBegin ? tr("There is no room for a recording.\nDelete files in Memory.")
                                      : tr("A recording begins with 50 MB free.\nDelete files in Memory."));
        return;
    }
    initBegainTime();
    emit startWithRecord();
}

RecordPqa2Setup::RecordPqa2Setup(QWidget *parent)
    : RecordingSetup(QT_TRANSLATE_NOOP("RecordPqa2Setup", "Logger"), RecordingKind::recorder(), parent)
{
    setUp();
}

LoggerSetup::LoggerSetup(QWidget *parent)
    : RecordingSetup(QT_TRANSLATE_NOOP("LoggerSetup", "Logger"), RecordingKind::logger(), parent)
{
    setUp();
}
