#include "views/inrush/inrushmain.h"

#include "pages/inrushtexts.h"
#include "settings/config_data.h"
#include "settings/inrushinfo.h"

#include <algorithm>
#include <utility>

namespace {

/// Keeps \a value; false if it stood there already: a key held at a bound must not write the settings file over and
/// over.
template <typename T> bool keep(T &place, T value)
{
    return std::exchange(place, value) != value;
}

void changeDuration(int step)
{
    const int moved = InrushInfo::m_duration_index + (step < 0 ? -1 : 1); // seven rows: no larger steps
    if (keep(InrushInfo::m_duration_index, std::clamp(moved, 0, InrushTexts::kLastDuration)))
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
        settingRow("nom_amps", QT_TRANSLATE_NOOP("InrushMain", "Nominal Amps"), "INRUSH_NOMAMPS",
                   [] { return InrushTexts::nomAmps(m_settingConfig_g.getInrushNomAmps()); }),
        settingRow("threshold", QT_TRANSLATE_NOOP("InrushMain", "Threshold"), "INRUSH_THRESHOLD",
                   [] { return InrushTexts::percent(m_settingConfig_g.getInrushThreshold()); }),
        settingRow("hysteresis", QT_TRANSLATE_NOOP("InrushMain", "Hysteresis"), "INRUSH_HYSTERESIS",
                   [] { return InrushTexts::percent(m_settingConfig_g.getInrushHysteresis()); }),
        { "duration",
          QT_TRANSLATE_NOOP("InrushMain", "DURATION"),
          [] { return InrushTexts::duration(InrushInfo::m_duration_index); },
          changeDuration,
          {},
          {} },
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
