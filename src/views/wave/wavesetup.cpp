#include "views/wave/wavesetup.h"

#include "platform/target.h"
#include "record/wavefile.h"
#include "settings/config_data.h"
#include "settings/localtime.h"
#include "settings/waveinfo.h"
#include "storage/fileinfo.h"
#include "widgets/dialogs/message.h"
#include "widgets/dialogs/savedialog.h"
#include "widgets/dialogs/virtualkeyboard.h"

#include <QFile>

#include <algorithm>

namespace {

// Ten rows.
constexpr int kTop = 40, kPitch = 36, kCaptionWidth = 240, kHeight = 34, kTextSize = 20;
const KeyRepeat::Pace kPace { 3, { 1, 5, 10, 50 } };
/// Pictures of pages are called "Wave1": entries are told apart without their suffix.
constexpr char kPrefix[] = "Wave_";

} // namespace

WaveSetup::WaveSetup(QWidget *parent)
    : EditorPage(UI_WAVE, { QT_TRANSLATE_NOOP("WaveSetup", "Wave"), kTop, kPitch, kCaptionWidth, kHeight, kTextSize },
                 kPace, parent)
{
    static const KeyRow<WaveSetup> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("WaveSetup", "Next"), &WaveSetup::changeToNext },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("WaveSetup", "Start"), &WaveSetup::start },
    };
    std::vector<Row> rows {
        { "duration",
          QT_TRANSLATE_NOOP("WaveSetup", "Duration:"),
          [] { return tr("%1 s").arg(WaveInfo::m_duration); },
          [](int steps) {
              const int most = std::max(WaveInfo::m_max_duration, WaveInfo::m_min_duration);
              WaveInfo::m_duration = std::clamp(WaveInfo::m_duration + steps, WaveInfo::m_min_duration, most);
          },
          {},
          {} },
        { "sample_rate",
          QT_TRANSLATE_NOOP("WaveSetup", "Sample rate:"),
          [] { return QStringLiteral("%1 Hz").arg(WaveInfo::sampleRate()); },
          [this](int step) { stepRate(step); },
          {},
          {} },
        { "file_name",
          QT_TRANSLATE_NOOP("WaveSetup", "File name:"),
          [this] { return fitted("file_name", *WaveInfo::m_wave_file); },
          {},
          [this] { editItem(); },
          {} },
    };
    for (Row &row : m_start.rows())
        rows.push_back(std::move(row));
    Row memory { "memory", QT_TRANSLATE_NOOP("WaveSetup", "Memory Available:"), {}, {}, {}, {} };
    memory.text = [] { return QStringLiteral("%1 MB").arg(WaveInfo::m_storage_room); };
    memory.shownOnly = true;
    rows.push_back(std::move(memory));
    setRows(std::move(rows));
    setKeys(keys);
}

void WaveSetup::beginSetup()
{
    stopRepeat();
    m_start.reset(LocalTime::currentDateTime());
    QString &name = *WaveInfo::m_wave_file;
    if (!m_named || name.isEmpty() || FileInfo().testFileexist(name + WaveFile::suffix())) {
        name = FileInfo::baseName(FileInfo().getDefaultFileName(QString::fromLatin1(kPrefix), WaveFile::suffix()));
        m_named = false;
    }
    WaveInfo::checkMaxDuration();
    showRows();
    selectFirst();
}

void WaveSetup::editItem()
{
    const QString typed = VirtualKeyBoard::getFileName(tr("File name:"), *WaveInfo::m_wave_file);
    if (typed.isEmpty())
        return;
    m_named = m_named || typed != *WaveInfo::m_wave_file;
    *WaveInfo::m_wave_file = typed;
}

void WaveSetup::stepRate(int step)
{
    // Right is more samples; three rates: no larger steps.
    WaveInfo::m_sample_index = std::clamp(WaveInfo::m_sample_index - (step < 0 ? -1 : 1), 0, WaveInfo::kRates - 1);
    WaveInfo::checkMaxDuration();
}

void WaveSetup::initBegainTime()
{
    WaveInfo::m_begain_time = m_start.begin(LocalTime::localTimeZone());
}

bool WaveSetup::nameIsFree()
{
    const QString file = *WaveInfo::m_wave_file + WaveFile::suffix();
    const QStringList stored = FileInfo().getInfoFiles();
    const auto sameName = std::find_if(stored.begin(), stored.end(), [&file](const QString &other) {
        return FileInfo::baseName(other) == FileInfo::baseName(file);
    });
    // A picture that was saved under the same base name took the entry of a capture, which stands there all the same.
    const bool entered = sameName != stored.end();
    if (!entered && !QFile::exists(Target::path(FileInfo::storagePath() + file)))
        return true;
    const QString question = SaveDialog::tr("The file \"") + (entered ? *sameName : file)
        + SaveDialog::tr("\" is exist.\nDo you want to overwrite it?");
    if (Message::showMessage(Message::YesNo, question) != Message::Yes)
        return false;
    FileInfo().removeInfoBehind(file);
    return true;
}

void WaveSetup::start()
{
    stopRepeat();
    WaveInfo::checkMaxDuration();
    showRows();
    if (WaveInfo::m_wave_file->isEmpty()) { // all 999 defaults are taken: one has to be typed first
        editItem();
        showRows();
        return;
    }
    if (WaveInfo::m_max_duration < WaveInfo::m_min_duration) {
        Message::showMessage(Message::Info, tr("There is no room for a capture.\nDelete files in Memory."));
        return;
    }
    if (!nameIsFree())
        return;
    WaveInfo::initPointsNumbs(m_settingConfig_g.getNomFreq());
    initBegainTime();
    emit goWaveMain();
}
