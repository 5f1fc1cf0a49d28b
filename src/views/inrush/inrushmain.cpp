#include "views/inrush/inrushmain.h"

#include "settings/config_data.h"
#include "settings/inrushinfo.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kLastDuration = 6;

/// Keeps \a value; false if it stood there already: a key held at a bound must not write the settings file over and
/// over.
template <typename T> bool keep(T &place, T value)
{
    return std::exchange(place, value) != value;
}

QString nomAmpsText()
{
    const InrushEditing &shown = m_settingConfig_g.derived().inrush;
    const double amps = m_settingConfig_g.getInrushNomAmps() * shown.shownPerAmp;
    return QStringLiteral("%1 %2").arg(QString::number(amps, 'f', shown.decimals), shown.unit);
}

QString percentText(int percent)
{
    return QStringLiteral("%1 %").arg(percent);
}

QString durationText()
{
    const int seconds = InrushInfo::m_dura_time[std::clamp(InrushInfo::m_duration_index, 0, kLastDuration)].seconds;
    return seconds % 60 == 0 ? QString::number(seconds / 60) + QStringLiteral(" m")
                             : QString::number(seconds) + QStringLiteral(" s");
}

void changeDuration(int step)
{
    const int moved = InrushInfo::m_duration_index + (step < 0 ? -1 : 1); // seven rows: no larger steps
    if (keep(InrushInfo::m_duration_index, std::clamp(moved, 0, kLastDuration)))
        m_settingConfig_g.setInrushIndex(InrushInfo::m_duration_index);
}

} // namespace

InrushMain::InrushMain(QWidget *parent)
    : EditorPage(UI_INRUSH, { QT_TRANSLATE_NOOP("InrushMain", "Inrush") }, paceOf("INRUSH_THRESHOLD"), parent)
{
    static const KeyRow<InrushMain> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("InrushMain", "Defaults"), &InrushMain::initInrushMain },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("InrushMain", "Start"), &InrushMain::goInrushStart },
    };
    setRows({
        settingRow("nom_amps", QT_TRANSLATE_NOOP("InrushMain", "Nominal Amps"), "INRUSH_NOMAMPS", nomAmpsText),
        settingRow("threshold", QT_TRANSLATE_NOOP("InrushMain", "Threshold"), "INRUSH_THRESHOLD",
                   [] { return percentText(m_settingConfig_g.getInrushThreshold()); }),
        settingRow("hysteresis", QT_TRANSLATE_NOOP("InrushMain", "Hysteresis"), "INRUSH_HYSTERESIS",
                   [] { return percentText(m_settingConfig_g.getInrushHysteresis()); }),
        { "duration", QT_TRANSLATE_NOOP("InrushMain", "DURATION"), durationText, changeDuration, {}, {} },
        { "arming",
          QT_TRANSLATE_NOOP("InrushMain", "Switch"),
          [this] { return m_switchOn ? tr("On") : tr("Off"); },
          [this](int step) { m_switchOn = step > 0; },
          {},
          {} },
    });
    setKeys(keys);
}

void InrushMain::initInrushMain()
{
    stopRepeat();
    m_settingConfig_g.initInrushLevels();
    m_switchOn = true;
    if (keep(InrushInfo::m_duration_index, 0))
        m_settingConfig_g.setInrushIndex(0);
    showRows();
}
