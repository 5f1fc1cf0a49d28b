#include "views/wave/wavemain.h"
#include "ui_wavemain.h"

#include "record/wavefile.h"
#include "settings/localtime.h"
#include "settings/waveinfo.h"
#include "views/wave/waveprogressbar.h"
#include "widgets/controls/labellook.h"
#include "widgets/dialogs/message.h"

namespace {

constexpr LabelGrid kGrid = { 310, 0, 270, 22, 36, 60, 240, 20, 1 };
constexpr int kTop = 118, kPitch = 40; // pixels
constexpr QRect kBar(60, 340, 520, 36);

enum Field { Name, Start, Rate, Duration, Remaining, kFields };

const struct
{
    const char *name;
    const char *caption;
} kRows[kFields] = {
    { "file_name", QT_TRANSLATE_NOOP("WaveMain", "File name:") },
    { "begin", QT_TRANSLATE_NOOP("WaveMain", "Start") },
    { "sample_rate", QT_TRANSLATE_NOOP("WaveMain", "Sample rate:") },
    { "duration", QT_TRANSLATE_NOOP("WaveMain", "Duration:") },
    { "remaining", QT_TRANSLATE_NOOP("WaveMain", "Time left:") },
};

QString clockText(int seconds)
{
    const auto two = [](int number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    return QStringLiteral("%1:%2:%3").arg(two(seconds / 3600), two(seconds / 60 % 60), two(seconds % 60));
}

QString momentText(quint32 seconds)
{
    if (seconds == 0)
        return QStringLiteral("---------- --:--:--");
    return LocalTime::toLocalDateTime(QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC))
        .toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

} // namespace

WaveMain::WaveMain(const LiveData &data, QWidget *parent)
    : LivePage(UI_WAVE, parent), m_data(data), m_ui(new Ui::WaveMain)
{
    static const KeyRow<WaveMain> keys[] = {
        { Qt::Key_F5, nullptr, &WaveMain::stopOrBack },
    };
    m_ui->setupUi(this);
    for (int field = 0; field < kFields; ++field) {
        const QString name = QString::fromLatin1(kRows[field].name);
        m_rows.push_back(kGrid.addRow(this, name + QLatin1String("_t"), { name }, kTop + field * kPitch));
    }
    LabelLook::dress(this);
    m_bar = new WaveProgressBar(this);
    m_bar->setGeometry(kBar);
    setKeys(keys);
}

WaveMain::~WaveMain() = default;

void WaveMain::retranslateUi()
{
    LivePage::retranslateUi();
    setText(m_ui->title, tr("Wave"));
    for (int field = 0; field < kFields; ++field)
        setText(m_rows[std::size_t(field)].caption, tr(kRows[field].caption));
    showState();
}

WaveMain::State WaveMain::state() const
{
    if (m_data.shown().wave.refused)
        return Refused;
    if (WaveInfo::m_in_waving)
        return m_data.shown().wave.begin ? Running : Waiting;
    return m_data.shown().wave.percent > 0 ? Ended : Unbegun;
}

void WaveMain::showState()
{
    const char *const texts[] = {
        QT_TR_NOOP("The capture waits for its start."),
        QT_TR_NOOP("The capture is running."),
        QT_TR_NOOP("The capture has ended.\nIts data stands in Memory."),
        QT_TR_NOOP("The storage takes no more data.\nWhat was captured stands in Memory."),
        QT_TR_NOOP("The capture was ended\nbefore it had data."),
    };
    setText(m_ui->state, tr(texts[state()]));
    setKeyCaption(5, WaveInfo::m_in_waving ? tr("Stop") : tr("Back"));
    const auto show = [this](Field field, const QString &text) { setText(m_rows[field].values[0], text); };
    const QFontMetrics metrics = m_rows[Name].values[0]->fontMetrics();
    show(Name, metrics.elidedText(*WaveInfo::m_wave_file + WaveFile::suffix(), Qt::ElideMiddle, kGrid.width));
    show(Start, momentText(m_data.shown().wave.begin ? m_data.shown().wave.begin : WaveInfo::m_begain_time));
    show(Rate, QStringLiteral("%1 Hz").arg(WaveInfo::sampleRate()));
    show(Duration, tr("%1 s").arg(WaveInfo::m_duration));
    showProgress();
}

void WaveMain::showProgress()
{
    const waveProgress &progress = m_data.shown().wave;
    m_bar->setPercent(progress.percent);
    setText(m_rows[Remaining].values[0], clockText(progress.begin ? progress.seconds : WaveInfo::m_duration));
}

void WaveMain::stopOrBack()
{
    if (!WaveInfo::m_in_waving) {
        emit exitTask();
        emit goWaveSetup();
        return;
    }
    const QString question = tr("Do you want to stop\n") + tr(" the current record?");
    if (Message::showMessage(Message::Warning, question) == Message::Ok)
        emit stopTaskWithSave(true);
}
